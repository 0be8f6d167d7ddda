#include "verilog_sections.h"

using namespace gnl_test;

namespace {

using VerilogArray = verilog_sections;
using VerilogArrayOfSlices = verilog_sections;
using VerilogWireConnections = verilog_sections;

std::string wire_connections(GNL_GENERATOR & subdesign)
{
    return written(subdesign, &GNL_GENERATOR::dump_verilog_subdesign_wire_connections, subdesign.get_parent());
}

} // namespace

TEST_F(VerilogArray, IsWrittenAsOneInstanceForEachSlice)
{
    top_design top;
    auto & x = top.input("x");
    x.set_used();
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto & a = arr.input("a");
    arr.output("q", 4).set_used();
    arr.output("r").set_used();
    top.connect([&] { a = x; });
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.a(x),\n"
                                "\t.q(wire_arr_q[3:0]),\n"
                                "\t.r(wire_arr_r[0:0]));\n"
                                "\tleaf   arr_1\n"
                                "\t( \n"
                                "\t.a(x),\n"
                                "\t.q(wire_arr_q[7:4]),\n"
                                "\t.r(wire_arr_r[1:1]));\n");
}

TEST_F(VerilogArray, OfOneSliceIsNumberedToo)
{
    top_design top;
    auto & arr = top.subdesign("leaf", "arr", 1);
    arr.output("q", 1).set_used();
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[0:0]));\n");
}

TEST_F(VerilogArray, SharesDriversOfASlicesWidthAndCutsOthers)
{
    top_design top;
    auto & whole = top.input("whole", 8);
    auto & slice = top.input("slice", 4);
    auto & bit = top.input("bit");
    for (GNL_PORT_INPUT * input : {&whole, &slice, &bit})
        input->set_used();
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto & a = arr.input("a", 4);
    auto & b = arr.input("b", 4);
    auto & c = arr.input("c", 4);
    auto & d = arr.input("d", 1);
    auto & e = arr.input("e", 4);
    auto & f = arr.input("f");
    top.connect([&] {
        a = whole;
        b = slice;
        c = whole.range(5, 2);
        d = bit;
        e = slice & bit;
        f = (bit, bit);
    });
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.a(wire_arr_a[3:0]),\n"
                                "\t.b(slice),\n"
                                "\t.c(wire_arr_c[3:0]),\n"
                                "\t.d(bit),\n"
                                "\t.e((slice & {4{bit}})),\n"
                                "\t.f(wire_arr_f[0:0]));\n"
                                "\tleaf   arr_1\n"
                                "\t( \n"
                                "\t.a(wire_arr_a[7:4]),\n"
                                "\t.b(slice),\n"
                                "\t.c(wire_arr_c[7:4]),\n"
                                "\t.d(bit),\n"
                                "\t.e((slice & {4{bit}})),\n"
                                "\t.f(wire_arr_f[1:1]));\n"
                                "\tassign\n"
                                "\t\twire_arr_a = whole,\n"
                                "\t\twire_arr_c = {2{whole[5:2]}},\n"
                                "\t\twire_arr_f = {2{bit}};\n");
}

TEST_F(VerilogArray, CutsTheBitsOfConstants)
{
    top_design top;
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto & bit = arr.input("bit");
    auto & one = arr.input("one", 1);
    auto & bus = arr.input("bus", 2);
    top.connect([&] {
        bit = 2;
        one = 1;
        bus = 6;
    });
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.bit(1'b0),\n"
                                "\t.bus(2'b10),\n"
                                "\t.one(1'b1));\n"
                                "\tleaf   arr_1\n"
                                "\t( \n"
                                "\t.bit(1'b1),\n"
                                "\t.bus(2'b01),\n"
                                "\t.one(1'b0));\n");
}

TEST_F(VerilogArray, BidirectionalPortsMeetTheirPartOfWhatTheyDrive)
{
    top_design top;
    auto & pads = top.bidir("pads", 4);
    auto & bus = top.bidir("bus", 8);
    auto & y = top.output("y", 2);
    auto & whole = top.input("whole", 4);
    auto & slice = top.input("slice", 2);
    auto & bit = top.input("bit");
    for (GNL_PORT_INPUT * input : {&whole, &slice, &bit})
        input->set_used();
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto & a = arr.bidir("a", 2);
    auto & b = arr.bidir("b", 2);
    auto & c = arr.bidir("c");
    auto & d = arr.bidir("d", 2);
    auto & e = arr.bidir("e", 2);
    auto & f = arr.bidir("f");
    arr.bidir("idle");
    top.connect([&] {
        pads = a;
        bus.range(5, 2) = b;
        y = c;
        d = whole;
        e = slice;
        f = bit;
    });
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.a(pads[1:0]),\n"
                                "\t.b(bus[5:2]),\n"
                                "\t.c(wire_arr_c[0:0]),\n"
                                "\t.d(whole[1:0]),\n"
                                "\t.e(slice),\n"
                                "\t.f(bit));\n"
                                "\tleaf   arr_1\n"
                                "\t( \n"
                                "\t.a(pads[3:2]),\n"
                                "\t.b(bus[5:2]),\n"
                                "\t.c(wire_arr_c[1:1]),\n"
                                "\t.d(whole[3:2]),\n"
                                "\t.e(slice),\n"
                                "\t.f(bit));\n");
}

TEST_F(VerilogArray, ACellHasItsParametersBehindEachSlice)
{
    top_design top;
    auto & arr = top.cell("arr", 2);
    arr.output("q").set_used();
    arr.output("open");
    arr.output("hidden").set_as_not_included_in_declaration();
    arr.integer("depth") = 4;
    EXPECT_EQ(instance_of(arr), "\tblk   arr_0\n"
                                "\t( \n"
                                "\t.open(),\n"
                                "\t.q(wire_arr_q[0:0]));\n"
                                "\tdefparam\n"
                                "\t\tarr_0.depth = 4,\n"
                                "\t\tarr_0.lpm_type = \"blk\";\n"
                                "\tblk   arr_1\n"
                                "\t( \n"
                                "\t.open(),\n"
                                "\t.q(wire_arr_q[1:1]));\n"
                                "\tdefparam\n"
                                "\t\tarr_1.depth = 4,\n"
                                "\t\tarr_1.lpm_type = \"blk\";\n");
}

TEST_F(VerilogArrayOfSlices, ConnectsWhatTheSlicesConnect)
{
    top_design top;
    auto & x = top.input("x", 4);
    auto & bit = top.input("bit");
    x.set_used();
    bit.set_used();
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto const declare = [](design & slice) {
        slice.input("a", 4);
        slice.input("b", 4);
        slice.input("c");
        slice.output("q");
        slice.output("r", 4);
        slice.wire("w");
    };
    declare(arr);
    arr.declare_slice = declare;
    top.connect([&] {
        arr[0].port("a") = x;
        arr[1].port("a") = x & bit;
        arr[0].port("b") = 5;
        arr[1].port("b") = 15;
        arr[0].port("c") = 1;
        arr[1].port("c") = bit;
    });
    arr[0].port("q").set_used();
    arr[1].port("r").set_used();
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.a(x),\n"
                                "\t.b(4'b0101),\n"
                                "\t.c(1'b1),\n"
                                "\t.q(wire_arr_0q[0:0]));\n"
                                "\tleaf   arr_1\n"
                                "\t( \n"
                                "\t.a((x & {4{bit}})),\n"
                                "\t.b(4'b1111),\n"
                                "\t.c(bit),\n"
                                "\t.r(wire_arr_1r[3:0]));\n");
}

TEST_F(VerilogArrayOfSlices, ANarrowDriverOfASliceIsRepeated)
{
    top_design top;
    auto & bit = top.input("bit");
    bit.set_used();
    auto & arr = top.subdesign("leaf", "arr", 1);
    arr.input("a", 4);
    arr.declare_slice = [](design & slice) { slice.input("a", 4); };
    top.connect([&] { arr[0].port("a") = bit; });
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.a({4{bit}}));\n");
}

TEST_F(VerilogArrayOfSlices, BidirectionalPortsOfSlices)
{
    top_design top;
    auto & pad = top.bidir("pad");
    auto & bit = top.input("bit");
    bit.set_used();
    auto & y = top.output("y");
    auto & arr = top.subdesign("leaf", "arr", 3);
    auto const declare = [](design & slice) { slice.bidir("io"); };
    declare(arr);
    arr.declare_slice = declare;
    top.connect([&] {
        pad = arr[0].port("io");
        y = arr[1].port("io");
        arr[2].port("io") = bit;
    });
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.io(pad));\n"
                                "\tleaf   arr_1\n"
                                "\t( \n"
                                "\t.io(wire_arr_1io[0:0]));\n"
                                "\tleaf   arr_2\n"
                                "\t( \n"
                                "\t.io(bit));\n");
}

TEST_F(VerilogArrayOfSlices, UnevenConstantsHaveTheSlicesWidth)
{
    top_design top;
    auto & arr = top.subdesign("leaf", "arr", 2);
    arr.input("a", 1);
    arr.declare_slice = [](design & slice) { slice.input("a", slice.get_slice_index() + 2); };
    top.connect([&] {
        arr[0].port("a") = 2;
        arr[1].port("a") = 5;
    });
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.a(2'b10));\n"
                                "\tleaf   arr_1\n"
                                "\t( \n"
                                "\t.a(3'b101));\n");
}

TEST_F(VerilogArrayOfSlices, ADifferingDesignHasItsOwnEntity)
{
    top_design top;
    auto & arr = top.subdesign("leaf", "arr", 2);
    arr.output("q").set_used();
    arr.declare_slice = [](design & slice) { slice.output("q"); };
    arr[1].set_entity_name("leaf_2");
    arr[1].set_as_heterogeneous_element();
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[0:0]));\n"
                                "\tleaf   arr_1\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[1:1]));\n");
    arr.set_as_heterogeneous_array();
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[0:0]));\n"
                                "\tleaf_2   arr_1\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[1:1]));\n");
}

TEST_F(VerilogArrayOfSlices, ADifferingCellHasItsOwnParameters)
{
    top_design top;
    auto & arr = top.cell("arr", 2);
    arr.integer("depth") = 4;
    arr.output("q").set_used();
    arr.declare_slice = [](design & slice) {
        slice.set_primitive();
        slice.set_entity_name("other");
        slice.integer("depth");
        slice.output("q");
    };
    arr[1].assign_value_to_parameter("depth", "9");
    EXPECT_TRUE(arr[1].is_heterogeneous_element());
    EXPECT_EQ(instance_of(arr), "\tblk   arr_0\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[0:0]));\n"
                                "\tdefparam\n"
                                "\t\tarr_0.depth = 4,\n"
                                "\t\tarr_0.lpm_type = \"blk\";\n"
                                "\tblk   arr_1\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[1:1]));\n"
                                "\tdefparam\n"
                                "\t\tarr_1.depth = 9,\n"
                                "\t\tarr_1.lpm_type = \"blk\";\n");
}

TEST_F(VerilogArrayOfSlices, AnUnusedOutputOfACellsSliceIsOpen)
{
    top_design top;
    auto & arr = top.cell("arr", 2);
    arr.output("q");
    arr.declare_slice = [](design & slice) { slice.output("q"); };
    arr[1].port("q").set_used();
    EXPECT_EQ(instance_of(arr), "\tblk   arr_0\n"
                                "\t( \n"
                                "\t.q());\n"
                                "\tblk   arr_1\n"
                                "\t( \n"
                                "\t.q(wire_arr_1q[0:0]));\n");
}

TEST_F(VerilogArrayOfSlices, GatesOfAStructuralNetlistFollowTheirSlice)
{
    top_design top("LBX_STRUCTURAL_NETLIST=ON");
    auto & y = top.output("y");
    auto & arr = top.subdesign("leaf", "arr", 2);
    arr.output("q");
    arr.declare_slice = [](design & slice) { slice.output("q"); };
    top.connect([&] { y = !arr[0].port("q"); });
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.q(wire_arr_0q[0:0]));\n"
                                "\tnot(w_lg_q1w, wire_arr_0q[0:0]);\n"
                                "\tleaf   arr_1\n"
                                "\t( \n"
                                ");\n");
    EXPECT_EQ(written(arr[0], &GNL_GENERATOR::dump_verilog_structural_netlist_connections, &top),
              "\tnot(w_lg_q1w, wire_arr_0q[0:0]);\n");
}

TEST_F(VerilogWireConnections, AreEmptyForSharedDrivers)
{
    top_design top;
    auto & slice = top.input("slice", 4);
    slice.set_used();
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto & a = arr.input("a", 4);
    auto & b = arr.input("b", 4);
    top.connect([&] {
        a = slice;
        b = ~slice;
    });
    EXPECT_EQ(wire_connections(arr), "");
}

TEST_F(VerilogWireConnections, CustomOutputFeedsANetForEachSlice)
{
    top_design top;
    auto & slice = top.input("slice", 4);
    auto & bit = top.input("bit");
    slice.set_used();
    bit.set_used();
    auto & arr = top.subdesign("leaf", "arr", 2);
    arr.set_use_custom_verilog_output();
    auto & a = arr.input("a", 4);
    auto & b = arr.input("b");
    auto & c = arr.input("c", 4);
    top.connect([&] {
        a = ~slice;
        b = bit;
        c = bit;
    });
    EXPECT_EQ(wire_connections(arr), "\tassign\n"
                                     "\t\twire_arr_a = {2{(~ slice)}},\n"
                                     "\t\twire_arr_a_0 = wire_arr_a[0:0],\n"
                                     "\t\twire_arr_a_1 = wire_arr_a[1:1],\n"
                                     "\t\twire_arr_c = {8{bit}};\n");
}

TEST_F(VerilogWireConnections, APlainSubdesignWithCustomOutputFeedsItsExpressions)
{
    top_design top;
    auto & bus = top.input("bus", 4);
    bus.set_used();
    auto & u = top.subdesign("leaf", "u");
    u.set_use_custom_verilog_output();
    auto & a = u.input("a", 4);
    auto & b = u.input("b", 4);
    auto & c = u.input("c", 4);
    top.connect([&] {
        a = ~bus;
        b = bus;
        c = bus.range(1, 0);
    });
    EXPECT_EQ(wire_connections(u), "\tassign\n"
                                   "\t\twire_u_a = (~ bus),\n"
                                   "\t\twire_u_c = {2{bus[1:0]}};\n");
}

TEST_F(VerilogWireConnections, ExpressionsOfSlicesAreFedWithCustomOutputOnly)
{
    top_design top;
    auto & bus = top.input("bus", 4);
    auto & bit = top.input("bit");
    bus.set_used();
    bit.set_used();
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto const declare = [](design & slice) { slice.input("a", 4); };
    declare(arr);
    arr.declare_slice = declare;
    top.connect([&] {
        arr[0].port("a") = bus;
        arr[1].port("a") = !bit;
    });
    EXPECT_EQ(wire_connections(arr), "");
    arr.set_use_custom_verilog_output();
    EXPECT_EQ(wire_connections(arr), "\tassign\n"
                                     "\t\twire_arr_1a = {4{(~ bit)}};\n");
}

TEST_F(VerilogWireConnections, DriveTheNetsOfBidirectionalPorts)
{
    top_design top;
    auto & bit = top.input("bit");
    bit.set_used();
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto & whole = arr.bidir("whole");
    auto & held = arr.bidir("held", 2);
    arr.bidir("io");
    arr.declare_slice = [](design & slice) {
        slice.bidir("whole");
        slice.bidir("held", 2);
        slice.bidir("io");
    };
    top.connect([&] {
        whole = bit;
        held = 5;
        arr[1].port("io") = bit;
    });
    whole.lock_bidir_port(1);
    held.lock_bidir_port(1);
    static_cast<GNL_PORT_BIDIR &>(arr[1].port("io")).lock_bidir_port(1);
    std::string const expected = "\tassign\n"
                                 "\t\twire_arr_held = 4'b0101,\n"
                                 "\t\twire_arr_1io = bit,\n"
                                 "\t\twire_arr_whole = {2{bit}};\n";
    EXPECT_EQ(wire_connections(arr), expected);
    arr.set_use_custom_verilog_output();
    EXPECT_EQ(wire_connections(arr), expected);
}

TEST_F(VerilogWireConnections, ConstantsHoldBidirectionalPortsThatNobodyReads)
{
    top_design top;
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto & held = arr.bidir("held", 2);
    arr.bidir("io");
    arr.bidir("loose", 2).set_used();
    arr.declare_slice = [](design & slice) {
        slice.bidir("held", 2);
        slice.bidir("io");
        slice.bidir("loose", 2);
    };
    top.connect([&] {
        held = 5;
        arr[1].port("io") = 1;
    });
    EXPECT_EQ(wires_of(arr), "\twire  [3:0]   wire_arr_held;\n"
                             "\twire [0:0]   wire_arr_1io;\n"
                             "\twire  [3:0]   wire_arr_loose;\n");
    EXPECT_EQ(instance_of(arr), "\tleaf   arr_0\n"
                                "\t( \n"
                                "\t.held(wire_arr_held[1:0]),\n"
                                "\t.loose(wire_arr_loose[1:0]));\n"
                                "\tleaf   arr_1\n"
                                "\t( \n"
                                "\t.held(wire_arr_held[3:2]),\n"
                                "\t.io(wire_arr_1io[0:0]),\n"
                                "\t.loose(wire_arr_loose[3:2]));\n"
                                "\tassign\n"
                                "\t\twire_arr_held = 4'b0101,\n"
                                "\t\twire_arr_1io = 1'b1;\n");
}

TEST_F(VerilogWireConnections, StartWithTheGatesOfAStructuralNetlist)
{
    top_design top("LBX_STRUCTURAL_NETLIST=ON");
    auto & whole = top.input("whole", 2);
    whole.set_used();
    auto & y = top.output("y", 2);
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto & a = arr.input("a");
    auto & q = arr.output("q");
    top.connect([&] {
        a = whole;
        y = ~q;
    });
    EXPECT_EQ(wire_connections(arr), "\tnot(w_lg_q1w[0], wire_arr_q[0]);\n"
                                     "\tnot(w_lg_q1w[1], wire_arr_q[1]);\n"
                                     "\tassign\n"
                                     "\t\twire_arr_a = whole;\n");
}
