#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

using VhdlWires = vhdl_sections;
using VhdlConstantWires = vhdl_sections;
using VhdlArrayWires = vhdl_sections;
using VhdlTwoDimensions = vhdl_sections;

/// Writes itself, and knows how its output starts in a simulation.
class hooked : public design
{
public:
    using design::design;
    void dump_vhdl_custom_wires(std::ostream & out) override { out << "\t-- wires of " << get_instance_name() << "\n"; }
    int get_custom_vhdl_initial_value(std::string const & name) override
    {
        return name == "other" ? -1 : initial_value;
    }
    int initial_value = 1;
};

hooked & self_writing(top_design & top, std::string const & instance, int array_width = 0)
{
    auto & made = *new hooked(&top, "blk", "", array_width);
    made.set_instance_name(instance);
    made.set_entity_name("blk");
    made.set_use_custom_vhdl_output();
    return made;
}

/// An array of slices with an input `a` and an output `y` each.
design & array_of(top_design & top, int slices, int width = 0)
{
    auto & array = top.cell("arr", slices);
    auto const declare = [width](design & of) {
        of.input("a", width);
        of.output("y", width);
    };
    declare(array);
    array.declare_slice = declare;
    return array;
}

} // namespace

TEST_F(VhdlWires, AnOutputThatIsUsedIsASignal)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    for (auto * port : {&leaf.output("x"), &leaf.output("y", 1), &leaf.output("z", 8), &leaf.output("Out")})
        port->set_used();
    leaf.output("idle");
    EXPECT_EQ(signals_of(leaf), "\t SIGNAL  wire_u_Out\t:\tSTD_LOGIC;\n"
                                "\t SIGNAL  wire_u_x\t:\tSTD_LOGIC;\n"
                                "\t SIGNAL  wire_u_y\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n"
                                "\t SIGNAL  wire_u_z\t:\tSTD_LOGIC_VECTOR (7 DOWNTO 0);\n");
}

TEST_F(VhdlWires, AScalarOfWhichARangeIsTakenIsAVector)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    auto & q = leaf.output("q");
    auto & y = top.output("y");
    top.connect([&] { y = q[0]; });
    EXPECT_EQ(signals_of(leaf), "\t SIGNAL  wire_u_q\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n");
}

TEST_F(VhdlWires, AnInputReadsASimpleDriverDirectly)
{
    top_design top;
    auto & x = top.input("x", 8);
    auto & s = top.input("s");
    for (GNL_PORT * port : std::vector<GNL_PORT *>{&x, &s})
        port->set_used();
    auto & leaf = top.subdesign("leaf", "u");
    auto & a = leaf.input("a", 8);
    auto & b = leaf.input("b", 2);
    auto & c = leaf.input("c", 1);
    top.connect([&] {
        a = x;
        b = x.range(2, 1);
        c = s;
    });
    EXPECT_EQ(signals_of(leaf), "");
}

TEST_F(VhdlWires, AnInputReadsAnExpressionThroughASignal)
{
    for (bool const concat_signals : {true, false}) {
        top_design top(concat_signals ? "" : "LBX_NO_VHDL_SUBDES_CONCAT_WIRES=ON");
        auto & x = top.input("x", 4);
        auto & s = top.input("s");
        for (GNL_PORT * port : std::vector<GNL_PORT *>{&x, &s})
            port->set_used();
        auto & leaf = top.subdesign("leaf", "u");
        auto & a = leaf.input("a", 4);
        auto & b = leaf.input("b", 5);
        auto & c = leaf.input("c");
        top.connect([&] {
            a = ~x;
            b = (s, x);
            c = ~s;
        });
        EXPECT_EQ(signals_of(leaf), concat_signals ? "\t SIGNAL  wire_u_a\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n"
                                                     "\t SIGNAL  wire_u_b\t:\tSTD_LOGIC_VECTOR (4 DOWNTO 0);\n"
                                                     "\t SIGNAL  wire_u_c\t:\tSTD_LOGIC;\n"
                                                   : "");
        // An expression that the signal reads is no signal itself.
        EXPECT_EQ(declarations_of(top).find("lg_"), std::string::npos);
    }
}

TEST_F(VhdlWires, AnInputThatTakesItsDriverBitByBitIsASignal)
{
    top_design top("LBX_NO_VHDL_SUBDES_CONCAT_WIRES=ON");
    auto & s = top.input("s");
    s.set_used();
    auto & leaf = top.subdesign("leaf", "u");
    auto & a = leaf.input("a", 8);
    top.connect([&] { a = s; });
    EXPECT_EQ(signals_of(leaf), "\t SIGNAL  wire_u_a\t:\tSTD_LOGIC_VECTOR (7 DOWNTO 0);\n");
}

TEST_F(VhdlWires, OnlyConnectionsOfTheDesignAroundCount)
{
    top_design top;
    auto & x = top.input("x");
    x.set_used();
    auto & leaf = top.subdesign("leaf", "u");
    auto & a = leaf.input("a", 4);
    top.connect([&] { a = x; });
    a.set_connection_level(&leaf);
    EXPECT_EQ(signals_of(leaf), "");
}

TEST_F(VhdlWires, ABidirThatActsAsAnOutputIsASignal)
{
    top_design top;
    auto & d = top.input("d", 4);
    d.set_used();
    auto & pad = top.bidir("pad", 4);
    auto & y = top.output("y", 4);
    auto & leaf = top.subdesign("leaf", "u");
    auto & driven = leaf.bidir("driven", 4);
    auto & read = leaf.bidir("read", 4);
    auto & held = leaf.bidir("held", 1);
    auto & joined = leaf.bidir("joined", 4);
    leaf.bidir("idle", 4);
    top.connect([&] {
        driven = d;
        y = read;
        held = 1;
        pad = joined;
    });
    EXPECT_EQ(signals_of(leaf), "\t SIGNAL  wire_u_driven\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n"
                                "\t SIGNAL  wire_u_held\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n"
                                "\t SIGNAL  wire_u_read\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n");
}

TEST_F(VhdlWires, ExpressionsOnOutputsBelongToTheSubdesign)
{
    top_design top;
    auto & s = top.input("s");
    s.set_used();
    auto & y = top.output("y", 4);
    auto & leaf = top.subdesign("leaf", "u");
    auto & q = leaf.output("q", 4);
    top.connect([&] { y = q & s; });
    EXPECT_EQ(signals_of(leaf), "\t SIGNAL  wire_u_w_lg_q1w\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n"
                                "\t SIGNAL  wire_u_q\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n");
}

TEST_F(VhdlWires, SimulationsSeeHowACustomOutputStarts)
{
    top_design top;
    auto & cell = self_writing(top, "u");
    for (auto * port : {&cell.output("q"), &cell.output("r", 1), &cell.output("s", 4), &cell.output("other")})
        port->set_used();
    EXPECT_EQ(signals_of(cell), "\t SIGNAL  wire_u_other\t:\tSTD_LOGIC;\n"
                                "\t SIGNAL  wire_u_q\t:\tSTD_LOGIC\n"
                                "\t -- synopsys translate_off\n"
                                "\t\t\t := '1'\n"
                                "\t -- synopsys translate_on\n"
                                "\t ;\n"
                                "\t SIGNAL  wire_u_r\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0)\n"
                                "\t -- synopsys translate_off\n"
                                "\t\t\t := (OTHERS => '1')\n"
                                "\t -- synopsys translate_on\n"
                                "\t ;\n"
                                "\t SIGNAL  wire_u_s\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0)\n"
                                "\t -- synopsys translate_off\n"
                                "\t\t\t := (OTHERS => '1')\n"
                                "\t -- synopsys translate_on\n"
                                "\t ;\n");
    cell.set_simulate_mode();
    cell.initial_value = 0;
    EXPECT_EQ(signals_of(cell), "\t SIGNAL  wire_u_other\t:\tSTD_LOGIC;\n"
                                "\t SIGNAL  wire_u_q\t:\tSTD_LOGIC := '0';\n"
                                "\t SIGNAL  wire_u_r\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0) := (OTHERS => '0');\n"
                                "\t SIGNAL  wire_u_s\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0) := (OTHERS => '0');\n");
}

TEST_F(VhdlWires, WhatIsInsertedHasOnlyTheWiresOfItsHook)
{
    top_design top;
    auto & s = top.input("s");
    s.set_used();
    auto & y = top.output("y", 4);
    auto & cell = self_writing(top, "u");
    auto & q = cell.output("q", 4);
    cell.set_custom_subdesign_insert_mode();
    top.connect([&] { y = q & s; });
    EXPECT_EQ(signals_of(cell), "\t-- wires of u\n"
                                "\t SIGNAL  wire_u_w_lg_q1w\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n");
}

TEST_F(VhdlWires, TheHookRunsForEachSliceThatDiffers)
{
    top_design top;
    auto & array = self_writing(top, "arr", 2);
    array.set_custom_subdesign_insert_mode();
    array.set_as_master_array();
    array.set_as_heterogeneous_array();
    for (int i = 0; i < 2; ++i) {
        auto & slice = *new hooked(&array, "blk");
        slice.set_slice_index(i);
        slice.set_array_parent(&array);
        slice.set_use_custom_vhdl_output();
        slice.set_custom_subdesign_insert_mode();
        slice.set_instance_name("arr");
    }
    EXPECT_EQ(signals_of(array), "\t-- wires of arr\n"
                                 "\t-- wires of arr\n");
}

TEST_F(VhdlConstantWires, BitsShareOneWireOfEachKind)
{
    top_design top;
    auto & one = top.subdesign("leaf", "u");
    auto & two = top.subdesign("leaf", "v");
    std::vector<GNL_PORT *> low, high;
    for (auto * leaf : {&one, &two})
        for (int const width : {0, 1}) {
            low.push_back(&leaf->input("low" + std::to_string(width), width));
            high.push_back(&leaf->input("high" + std::to_string(width), width));
        }
    top.connect([&] {
        for (auto * port : low)
            *port = 0;
        for (auto * port : high)
            *port = 1;
    });
    signal_names known;
    EXPECT_EQ(signals_of(one, known), "\t SIGNAL  wire_vcc\t:\tSTD_LOGIC;\n"
                                      "\t SIGNAL  wire_vcc_vector\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n"
                                      "\t SIGNAL  wire_gnd\t:\tSTD_LOGIC;\n"
                                      "\t SIGNAL  wire_gnd_vector\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n");
    EXPECT_EQ(known, (signal_names{{"wire_gnd", "wire_gnd"},
                                   {"wire_gnd_vector", "wire_gnd_vector"},
                                   {"wire_vcc", "wire_vcc"},
                                   {"wire_vcc_vector", "wire_vcc_vector"}}));
    EXPECT_EQ(signals_of(two, known), "");
}

TEST_F(VhdlConstantWires, AWideConstantHasASignalOfItsOwn)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    auto & a = leaf.input("a", 4);
    top.connect([&] { a = 5; });
    signal_names known;
    EXPECT_EQ(signals_of(leaf, known), "\t SIGNAL  wire_u_a\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n");
    EXPECT_TRUE(known.empty());
}

TEST_F(VhdlConstantWires, TheSlicesOfAnArrayCutASignal)
{
    top_design top;
    auto & array = array_of(top, 3, 4);
    auto & one = top.subdesign("leaf", "u", 1).input("b");
    top.connect([&] {
        array.port("a") = 0x123;
        one = 1;
    });
    EXPECT_EQ(signals_of(array), "\t SIGNAL  wire_arr_a\t:\tSTD_LOGIC_VECTOR (11 DOWNTO 0);\n");
    EXPECT_EQ(signals_of(*one.get_parent()), "\t SIGNAL  wire_u_b\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n"
                                             "\t SIGNAL  wire_vcc_vector\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n");
}

TEST_F(VhdlConstantWires, ARemovedConstantLeavesNothing)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    auto & a = leaf.input("a", 4);
    top.connect([&] { a = 5; });
    a.remove_constant_driver();
    EXPECT_EQ(signals_of(leaf), "");
}

TEST_F(VhdlArrayWires, AreAsWideAsAllSlices)
{
    top_design top;
    auto & x = top.input("x", 12);
    auto & v = top.input("v", 3);
    for (auto * port : {&x, &v})
        port->set_used();
    auto & array = top.cell("arr", 3);
    auto & a = array.input("a", 4);
    auto & b = array.input("b");
    for (auto * port : {&array.output("p", 4), &array.output("q")})
        port->set_used();
    top.connect([&] {
        a = x;
        b = v;
    });
    EXPECT_EQ(signals_of(array), "\t SIGNAL  wire_arr_a\t:\tSTD_LOGIC_VECTOR (11 DOWNTO 0);\n"
                                 "\t SIGNAL  wire_arr_b\t:\tSTD_LOGIC_VECTOR (2 DOWNTO 0);\n"
                                 "\t SIGNAL  wire_arr_p\t:\tSTD_LOGIC_VECTOR (11 DOWNTO 0);\n"
                                 "\t SIGNAL  wire_arr_q\t:\tSTD_LOGIC_VECTOR (2 DOWNTO 0);\n");
    EXPECT_FALSE(array.has_unrolled_vhdl_loop());
}

TEST_F(VhdlArrayWires, ADriverOfOneSliceIsSharedDirectly)
{
    top_design top;
    auto & x = top.input("x", 4);
    x.set_used();
    auto & array = array_of(top, 3, 4);
    top.connect([&] { array.port("a") = x; });
    EXPECT_EQ(signals_of(array), "");
}

TEST_F(VhdlArrayWires, AnArrayOfOneIsLikeItsSlice)
{
    top_design top;
    auto & array = top.cell("arr", 1);
    for (auto * port : {&array.output("p", 4), &array.output("q"), &array.output("r", 1)})
        port->set_used();
    EXPECT_EQ(signals_of(array), "\t SIGNAL  wire_arr_p\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n"
                                 "\t SIGNAL  wire_arr_q\t:\tSTD_LOGIC;\n"
                                 "\t SIGNAL  wire_arr_r\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n");
}

TEST_F(VhdlArrayWires, SlicesWithConnectionsOfTheirOwnUnrollTheLoop)
{
    top_design top;
    auto & x = top.input("x");
    x.set_used();
    auto & p = top.output("p");
    auto & array = array_of(top, 2);
    top.connect([&] {
        array[0].port("a") = ~x;
        array[1].port("a") = x;
        p = array[1].port("y");
    });
    EXPECT_EQ(signals_of(array), "\t SIGNAL  wire_arr_0a\t:\tSTD_LOGIC;\n"
                                 "\t SIGNAL  wire_arr_1y\t:\tSTD_LOGIC;\n");
    EXPECT_TRUE(array.has_unrolled_vhdl_loop());
}

TEST_F(VhdlArrayWires, ASliceConnectedAsAWholeKeepsTheLoop)
{
    top_design top;
    auto & y = top.output("y", 2);
    auto & array = array_of(top, 2);
    array.create_slices();
    top.connect([&] { y = array.port("y"); });
    EXPECT_EQ(signals_of(array), "\t SIGNAL  wire_arr_y\t:\tSTD_LOGIC_VECTOR (1 DOWNTO 0);\n");
    EXPECT_FALSE(array.has_unrolled_vhdl_loop());
}

TEST_F(VhdlArrayWires, ConstantsOfSlicesAreSharedWhereTheyAreBits)
{
    top_design top;
    auto & bits = array_of(top, 2);
    auto & words = top.cell("words", 2);
    words.input("a", 4);
    words.declare_slice = [](design & of) { of.input("a", 4); };
    top.connect([&] {
        bits[0].port("a") = 1;
        bits[1].port("a") = 0;
        words[1].port("a") = 5;
    });
    signal_names known;
    EXPECT_EQ(signals_of(bits, known), "\t SIGNAL  wire_vcc\t:\tSTD_LOGIC;\n"
                                       "\t SIGNAL  wire_gnd\t:\tSTD_LOGIC;\n");
    EXPECT_EQ(signals_of(words, known), "\t SIGNAL  wire_words_1a\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n");
    EXPECT_EQ(known, (signal_names{{"wire_gnd", "wire_gnd"}, {"wire_vcc", "wire_vcc"}}));
}

TEST_F(VhdlArrayWires, ExpressionsOnSlicesAreSignals)
{
    top_design top;
    auto & s = top.input("s");
    s.set_used();
    auto & y = top.output("y", 4);
    auto & array = array_of(top, 2, 4);
    top.connect([&] { y = array[1].port("y") & s; });
    EXPECT_EQ(signals_of(array), "\t SIGNAL  wire_arr_1y\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n"
                                 "\t SIGNAL  wire_arr_w_lg_y1w\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n");
}

TEST_F(VhdlTwoDimensions, AConnectedInputOfACellHasASecondSignal)
{
    top_design top;
    auto & x = top.input("x", 12);
    x.set_used();
    auto & cell = top.cell("u");
    cell.integer("ROWS", 3);
    cell.integer("BITS", 4);
    auto & fixed = *new GNL_PORT_INPUT(&cell, "fixed", 3, 4);
    auto & by_name = *new GNL_PORT_INPUT(&cell, "by_name", std::string("ROWS"), "BITS");
    auto & held = *new GNL_PORT_INPUT(&cell, "held", 3, 4);
    new GNL_PORT_INPUT(&cell, "open", 3, 4);
    top.connect([&] {
        fixed = x;
        by_name = ~x;
        held = 5;
    });
    EXPECT_EQ(signals_of(cell), "\t SIGNAL  wire_u_by_name\t:\tSTD_LOGIC_VECTOR (11 DOWNTO 0);\n"
                                "\t SIGNAL  wire_u_by_name_2d\t:\tSTD_LOGIC_2D(2 DOWNTO 0, 3 DOWNTO 0);\n"
                                "\t SIGNAL  wire_u_fixed_2d\t:\tSTD_LOGIC_2D(2 DOWNTO 0, 3 DOWNTO 0);\n"
                                "\t SIGNAL  wire_u_held\t:\tSTD_LOGIC_VECTOR (11 DOWNTO 0);\n"
                                "\t SIGNAL  wire_u_held_2d\t:\tSTD_LOGIC_2D(2 DOWNTO 0, 3 DOWNTO 0);\n");
}

TEST_F(VhdlTwoDimensions, ASliceThatIsConnectedByItselfHasItsOwn)
{
    top_design top;
    auto & x = used_input(top, "x", 6);
    auto & arr = top.cell("arr", 2);
    auto const declare = [](design & of) {
        of.set_primitive();
        new GNL_PORT_INPUT(&of, "a", 3, 2);
    };
    declare(arr);
    arr.declare_slice = declare;
    top.connect([&] {
        arr[0].port("a") = x;
        arr[1].port("a") = 5;
    });
    auto const declared = declarations_of(top);
    EXPECT_EQ(declared.substr(0, declared.find("\t COMPONENT  ")),
              "\t type STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;\n"
              "\t SIGNAL  wire_arr_0a_2d\t:\tSTD_LOGIC_2D(2 DOWNTO 0, 1 DOWNTO 0);\n"
              "\t SIGNAL  wire_arr_1a_2d\t:\tSTD_LOGIC_2D(2 DOWNTO 0, 1 DOWNTO 0);\n"
              "\t SIGNAL  wire_arr_1a\t:\tSTD_LOGIC_VECTOR (5 DOWNTO 0);\n");
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR i IN 0 TO 2 GENERATE\n"
                                  "\t\tloop1 : FOR j IN 0 TO 1 GENERATE\n"
                                  "\t\t\twire_arr_0a_2d(i, j) <= x(i*2+j);\n"
                                  "\t\tEND GENERATE loop1;\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\twire_arr_1a <= \"000101\";\n"
                                  "\tloop2 : FOR i IN 0 TO 2 GENERATE\n"
                                  "\t\tloop3 : FOR j IN 0 TO 1 GENERATE\n"
                                  "\t\t\twire_arr_1a_2d(i, j) <= wire_arr_1a(i*2+j);\n"
                                  "\t\tEND GENERATE loop3;\n"
                                  "\tEND GENERATE loop2;\n"
                                  "\tarr_0 :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_arr_0a_2d\n"
                                  "\t  );\n"
                                  "\tarr_1 :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_arr_1a_2d\n"
                                  "\t  );\n");
}

TEST_F(VhdlTwoDimensions, TheTypeCanComeFromALibrary)
{
    top_design top;
    auto & x = top.input("x", 12);
    x.set_used();
    auto & cell = top.cell("u");
    cell.set_vhdl_library("qelvar_mf.qelvar_mf_components", true);
    auto & rows = *new GNL_PORT_INPUT(&cell, "rows", 3, 4);
    top.connect([&] { rows = x; });
    EXPECT_EQ(signals_of(cell), "\t SIGNAL  wire_u_rows_2d\t:\tQELVAR_MF_LOGIC_2D(2 DOWNTO 0, 3 DOWNTO 0);\n");
}

TEST_F(VhdlTwoDimensions, ADesignHasFlatPorts)
{
    top_design top;
    auto & x = top.input("x", 12);
    x.set_used();
    auto & leaf = top.subdesign("leaf", "u");
    auto & rows = *new GNL_PORT_INPUT(&leaf, "rows", 3, 4);
    top.connect([&] { rows = x; });
    EXPECT_EQ(signals_of(leaf), "");
    leaf.set_primitive();
    leaf.set_has_vhdl_used_port_parameter_only_component();
    EXPECT_EQ(signals_of(leaf), "");
}
