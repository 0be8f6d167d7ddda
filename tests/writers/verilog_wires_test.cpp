#include "verilog_sections.h"

using namespace gnl_test;

namespace {

using VerilogVariablesSection = verilog_sections;
using VerilogWires = verilog_sections;

std::string variables(GNL_GENERATOR & design)
{
    return written(design, &GNL_GENERATOR::dump_verilog_variables_section);
}

/// Writes itself.
class hooked : public design
{
public:
    using design::design;
    void dump_verilog_custom_wires(std::ostream & out) override { out << "\twires of " << get_name() << ";\n"; }
};

hooked & self_writing(top_design & top, std::string const & name, std::string const & instance, int array_width = 0)
{
    auto & made = *new hooked(&top, name, "", array_width);
    made.set_instance_name(instance);
    made.set_use_custom_verilog_output();
    made.set_custom_subdesign_insert_mode();
    return made;
}

} // namespace

TEST_F(VerilogVariablesSection, IsTwoEmptyLinesWithoutSignals)
{
    top_design top;
    top.input("a").set_used();
    EXPECT_EQ(variables(top), "\n\n");
}

TEST_F(VerilogVariablesSection, DeclaresTheWiresThatDriveSomething)
{
    top_design top;
    auto & y = top.output("y");
    auto & bit = top.wire("bit");
    auto & one = top.wire("one", 1);
    auto & bus = top.wire("bus", 8);
    auto & state = top.wire("state", 8);
    auto & flag = top.wire("flag");
    top.wire("idle");
    state.set_use_verilog_reg();
    flag.set_use_verilog_reg();
    flag.set_qelvar_internal_option("X=1");
    for (GNL_WIRE * wire : {&bit, &one, &bus, &state, &flag})
        wire->set_port_is_a_driver();
    y.set_used();
    EXPECT_EQ(variables(top), "\n"
                              "\twire  bit;\n"
                              "\twire  [7:0]  bus;\n"
                              "\treg  flag/* synthesis QELVAR_ATTRIBUTE=\"X=1\" */;\n"
                              "\twire  [0:0]  one;\n"
                              "\treg  [7:0]  state;\n"
                              "\n");
}

TEST_F(VerilogVariablesSection, KeepsIdleWiresWhenRemovalIsOff)
{
    top_design top("LBX_REMOVE_OPTIONAL_WIRES=OFF");
    top.wire("idle", 2);
    EXPECT_EQ(variables(top), "\n"
                              "\twire  [1:0]  idle;\n"
                              "\n");
}

TEST_F(VerilogVariablesSection, DeclaresInputsThatAreFedByTheirDefault)
{
    top_design top;
    auto & a = top.input("a", 0, 1);
    auto & b = top.input("b", 4, 0);
    auto & used = top.input("used", 0, 1);
    auto & held = top.input("held", 0, 1);
    top.input("untouched", 0, 1);
    for (GNL_PORT_INPUT * input : {&a, &b, &used, &held})
        input->set_generate_constant_wire();
    used.set_used();
    held.set_constant_used();
    EXPECT_EQ(variables(top), "\n"
                              "\twire a;\n"
                              "\twire [3:0]  b;\n"
                              "\n");
}

TEST_F(VerilogVariablesSection, AnOutputRegisterHasThreeBlanks)
{
    top_design top;
    auto & bus = top.output("bus", 4);
    auto & bit = top.output("bit");
    auto & unused = top.output("unused");
    for (GNL_PORT_OUTPUT * output : {&bus, &bit, &unused})
        output->set_use_verilog_reg();
    bus.set_used();
    bit.set_used();
    EXPECT_EQ(variables(top), "\n"
                              "\treg   wire_bit;\n"
                              "\treg   [3:0]   wire_bus;\n"
                              "\n");
}

TEST_F(VerilogVariablesSection, WiresOfSubdesignsStandBeforeTheDesignsOwn)
{
    top_design top;
    top.cell("u2").output("q").set_used();
    top.cell("u1").output("q", 4).set_used();
    top.wire("a").set_port_is_a_driver();
    EXPECT_EQ(variables(top), "\n"
                              "\twire  [3:0]   wire_u1_q;\n"
                              "\twire  wire_u2_q;\n"
                              "\twire  a;\n"
                              "\n");
}

TEST_F(VerilogVariablesSection, ExpressionsOfAStructuralNetlistStandBetweenSubdesignsAndWires)
{
    top_design top("LBX_STRUCTURAL_NETLIST=ON");
    auto & a = top.input("a", 2);
    auto & b = top.input("b", 2);
    auto & w = top.wire("w", 2);
    a.set_used();
    b.set_used();
    top.cell("u1").output("q").set_used();
    top.connect([&] { w = a & b; });
    w.set_port_is_a_driver();
    EXPECT_EQ(variables(top), "\n"
                              "\twire  wire_u1_q;\n"
                              "\twire  [1:0]  w_lg_a1w;\n"
                              "\twire  [1:0]  w;\n"
                              "\n");
}

TEST_F(VerilogVariablesSection, CustomWiresOfTheDesignCloseIt)
{
    hooked top(nullptr, "top");
    top.wire("w").set_port_is_a_driver();
    EXPECT_EQ(variables(top), "\n"
                              "\twire  w;\n"
                              "\n");
    top.set_use_custom_verilog_output();
    EXPECT_EQ(variables(top), "\n"
                              "\twire  w;\n"
                              "\twires of top;\n"
                              "\n");
}

TEST_F(VerilogWires, DeclareUsedOutputsAndBidirsThatActAsOutputs)
{
    top_design top;
    auto & u = top.cell("u");
    u.output("bit").set_used();
    u.output("bus", 4).set_used();
    auto & state = u.output("state", 4);
    state.set_used();
    state.set_use_verilog_reg();
    u.output("unused");
    auto & pad = u.bidir("pad", 4);
    auto & pad2 = u.bidir("pad2");
    auto & pad3 = u.bidir("pad3");
    u.bidir("pad4").lock_bidir_port(1);
    pad.lock_bidir_port(1);
    pad2.lock_bidir_port(2);
    for (GNL_PORT_BIDIR * bidir : {&pad, &pad2, &pad3})
        bidir->set_used();
    EXPECT_EQ(wires_of(u), "\twire  wire_u_bit;\n"
                           "\twire  [3:0]   wire_u_bus;\n"
                           "\twire  [3:0]   wire_u_pad;\n"
                           "\treg   [3:0]   wire_u_state;\n");
}

TEST_F(VerilogWires, AnArrayCutsRangesConcatenationsAndOtherWidthsOutOfANet)
{
    top_design top;
    auto & whole = top.input("whole", 8);
    auto & slice = top.input("slice", 4);
    auto & bit = top.input("bit");
    auto & one = top.input("one", 1);
    for (GNL_PORT_INPUT * input : {&whole, &slice, &bit, &one})
        input->set_used();
    auto & arr = top.cell("arr", 2);
    arr.output("q", 4).set_used();
    top.connect([&] {
        arr.input("a", 4) = whole;
        arr.input("b", 4) = slice;
        arr.input("c", 4) = whole.range(5, 2);
        arr.input("d", 4) = (bit, bit, whole.range(1, 0));
        arr.input("e", 4) = slice & bit;
        arr.input("f") = bit;
        arr.input("g", 1) = bit;
        arr.input("h") = one;
        arr.input("i", 4) = bit;
    });
    EXPECT_EQ(wires_of(arr), "\twire  [7:0]   wire_arr_a;\n"
                             "\twire  [7:0]   wire_arr_c;\n"
                             "\twire  [7:0]   wire_arr_d;\n"
                             "\twire  [7:0]   wire_arr_i;\n"
                             "\twire  [7:0]   wire_arr_q;\n");
}

TEST_F(VerilogWires, SlicesWithResultsOfTheirOwnAlwaysHaveARange)
{
    top_design top;
    auto & arr = top.cell("arr", 2);
    auto const declare = [](design & slice) {
        slice.output("bit");
        slice.output("bus", 4);
        slice.output("state").set_use_verilog_reg();
        slice.bidir("pad");
        slice.bidir("pad2", 2);
    };
    declare(arr);
    arr.declare_slice = declare;
    arr[0].port("bit").set_used();
    arr[0].port("state").set_used();
    arr[1].port("bus").set_used();
    for (char const * name : {"pad", "pad2"})
        arr[1].port(name).set_used();
    static_cast<GNL_PORT_BIDIR &>(arr[1].port("pad")).lock_bidir_port(1);
    static_cast<GNL_PORT_BIDIR &>(arr[1].port("pad2")).lock_bidir_port(2);
    EXPECT_EQ(wires_of(arr), "\twire  [0:0]   wire_arr_0bit;\n"
                             "\twire  [3:0]   wire_arr_1bus;\n"
                             "\twire [0:0]   wire_arr_1pad;\n"
                             "\treg   [0:0]   wire_arr_0state;\n");
}

TEST_F(VerilogWires, ASlicesRangeComesFromTheSlicesPort)
{
    top_design top;
    auto & arr = top.cell("arr", 2);
    arr.output("q", 4);
    int width = 2;
    arr.declare_slice = [&](design & slice) { slice.output("q", width++); };
    arr[0].port("q").set_used();
    arr[1].port("q").set_used();
    EXPECT_EQ(wires_of(arr), "\twire  [1:0]   wire_arr_0q;\n"
                             "\twire  [2:0]   wire_arr_1q;\n");
}

TEST_F(VerilogWires, ASliceWithoutThePortIsPassedOver)
{
    top_design top;
    auto & arr = top.cell("arr", 2);
    arr.output("q");
    arr.declare_slice = [](design & slice) {
        if (slice.get_slice_index() == 1)
            slice.output("q");
    };
    arr[1].port("q").set_used();
    EXPECT_EQ(wires_of(arr), "\twire  [0:0]   wire_arr_1q;\n");
}

TEST_F(VerilogWires, CustomOutputReadsExpressionsThroughANet)
{
    top_design top;
    auto & bus = top.input("bus", 4);
    auto & bit = top.input("bit");
    bus.set_used();
    bit.set_used();
    auto & u = top.cell("u");
    u.set_use_custom_verilog_output();
    top.connect([&] {
        u.input("a", 4) = ~bus;
        u.input("b") = !bit;
        u.input("c") = bit;
        u.input("d", 4) = bit;
        u.input("e", 2) = bus.range(1, 0);
        u.input("f") = 1;
    });
    EXPECT_EQ(wires_of(u), "\twire  [3:0]   wire_u_a;\n"
                           "\twire  wire_u_b;\n"
                           "\twire  [3:0]   wire_u_d;\n"
                           "\twire  [1:0]   wire_u_e;\n");
}

TEST_F(VerilogWires, CustomOutputOfAnArrayHasANetForEachSlice)
{
    top_design top;
    auto & bus = top.input("bus", 2);
    auto & bit = top.input("bit");
    bus.set_used();
    bit.set_used();
    auto & arr = top.cell("arr", 2);
    arr.set_use_custom_verilog_output();
    top.connect([&] {
        arr.input("a") = !bit;
        arr.input("b") = bit;
        arr.input("c") = bus;
        arr.input("d", 2) = ~bus;
    });
    EXPECT_EQ(wires_of(arr), "\twire  [1:0]   wire_arr_a;\n"
                             "\twire  wire_arr_a_0;\n"
                             "\twire  wire_arr_a_1;\n"
                             "\twire  [1:0]   wire_arr_c;\n"
                             "\twire  wire_arr_c_0;\n"
                             "\twire  wire_arr_c_1;\n"
                             "\twire  [3:0]   wire_arr_d;\n"
                             "\twire  [3:0]   wire_arr_d_0;\n"
                             "\twire  [3:0]   wire_arr_d_1;\n");
}

TEST_F(VerilogWires, CustomInputsOfSlicesHaveNoBlankBehindTheRange)
{
    top_design top;
    auto & a = top.input("a", 4);
    auto & s = top.input("s");
    a.set_used();
    s.set_used();
    auto & arr = top.cell("arr", 2);
    arr.set_use_custom_verilog_output();
    auto const declare = [](design & slice) {
        slice.input("bus", 4);
        slice.input("bit");
    };
    declare(arr);
    arr.declare_slice = declare;
    top.connect([&] {
        arr[0].port("bus") = ~a;
        arr[1].port("bus") = a;
        arr[0].port("bit") = s;
        arr[1].port("bit") = !s;
    });
    EXPECT_EQ(wires_of(arr), "\twire  wire_arr_1bit;\n"
                             "\twire  [3:0]wire_arr_0bus;\n");
}

TEST_F(VerilogWires, AnInsertedSubdesignHasOnlyTheWiresOfItsHook)
{
    top_design top;
    auto & u = self_writing(top, "blk", "u");
    u.output("q").set_used();
    EXPECT_EQ(wires_of(u), "\twires of blk;\n");
}

TEST_F(VerilogWires, ACellsHookRunsOnceForAnArray)
{
    top_design top;
    auto & arr = self_writing(top, "blk", "arr", 2);
    arr.set_primitive();
    arr[0];
    arr.set_as_heterogeneous_array();
    EXPECT_EQ(wires_of(arr), "\twires of blk;\n");
}

TEST_F(VerilogWires, TheSlicesOfAnUnevenDesignDeclareTheirOwn)
{
    top_design top;
    auto & arr = self_writing(top, "blk", "arr", 2);
    arr.declare_slice = [](design & slice) { slice.output("q", 2); };
    arr.output("q", 2);
    arr[0].port("q").set_used();
    arr[1].port("q").set_used();
    arr.set_as_heterogeneous_array();
    EXPECT_EQ(wires_of(arr), "\twire  [1:0]   wire_arr_0q;\n"
                             "\twire  [1:0]   wire_arr_1q;\n");
}

TEST_F(VerilogWires, WithoutTheHookAnInsertedSubdesignDeclaresNothing)
{
    top_design top;
    auto & u = top.cell("u");
    u.set_custom_subdesign_insert_mode();
    u.output("q").set_used();
    EXPECT_EQ(wires_of(u), "");
}

TEST_F(VerilogWires, AStructuralNetlistDeclaresExpressionsOnResultsOfSubdesigns)
{
    top_design top("LBX_STRUCTURAL_NETLIST=ON");
    auto & a = top.input("a");
    a.set_used();
    auto & y = top.output("y");
    auto & z = top.output("z", 4);
    auto & u = top.cell("u");
    auto & q = u.output("q");
    auto & arr = top.cell("arr", 2);
    arr.output("r", 4);
    arr.declare_slice = [](design & slice) { slice.output("r", 4); };
    top.connect([&] {
        y = q & a;
        z = ~arr[1].port("r");
    });
    EXPECT_EQ(wires_of(u), "\twire  w_lg_q1w;\n"
                           "\twire  wire_u_q;\n");
    EXPECT_EQ(written(u, &GNL_GENERATOR::dump_verilog_wires, nullptr), "\twire  wire_u_q;\n");
    EXPECT_EQ(wires_of(arr), "\twire  [3:0]   wire_arr_1r;\n"
                             "\twire  [3:0]  w_lg_r2w;\n");
    EXPECT_EQ(written(arr[1], &GNL_GENERATOR::dump_verilog_structural_netlist_wires, &top),
              "\twire  [3:0]  w_lg_r2w;\n");
    EXPECT_EQ(written(arr[0], &GNL_GENERATOR::dump_verilog_structural_netlist_wires, &top), "");
}
