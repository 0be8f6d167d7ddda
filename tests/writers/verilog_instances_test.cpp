#include "verilog_sections.h"

using namespace gnl_test;

namespace {

using VerilogInstance = verilog_sections;

class hooked : public design
{
public:
    using design::design;
    void dump_verilog_custom_output(std::ostream & out, GNL_GENERATOR * parent) override
    {
        out << "\t// " << get_instance_name() << "[" << get_slice_index() << "] in " << parent->get_name() << "\n";
    }
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
    {
        auto & slice = *new hooked(parent, get_name());
        slice.set_slice_index(index);
        slice.set_array_parent(parent);
        slice.input("a");
        slice.set_instance_name(instance_name);
    }
};

hooked & self_writing(top_design & top, std::string const & instance, int array_width = 0)
{
    auto & made = *new hooked(&top, "blk", "", array_width);
    made.set_instance_name(instance);
    made.set_entity_name("blk");
    made.set_use_custom_verilog_output();
    made.set_custom_subdesign_insert_mode();
    return made;
}

} // namespace

TEST_F(VerilogInstance, ConnectsPortsByName)
{
    top_design top;
    auto & x = top.input("x", 4);
    x.set_used();
    auto & leaf = top.subdesign("leaf", "u1");
    leaf.set_entity_name("leaf_7");
    auto & a = leaf.input("A", 4);
    leaf.output("q", 4).set_used();
    leaf.output("r");
    leaf.input("idle", 0, 1);
    leaf.integer("depth") = 4;
    top.connect([&] { a = x; });
    EXPECT_EQ(instance_of(leaf), "\tleaf_7   u1\n"
                                 "\t( \n"
                                 "\t.A(x),\n"
                                 "\t.q(wire_u1_q));\n");
}

TEST_F(VerilogInstance, WithoutConnectionsHasEmptyParentheses)
{
    top_design top;
    EXPECT_EQ(instance_of(top.subdesign("leaf", "u")), "\tleaf   u\n"
                                                       "\t( \n"
                                                       ");\n");
}

TEST_F(VerilogInstance, RepeatsNarrowDriversAndWritesConstants)
{
    top_design top;
    auto & bit = top.input("bit");
    auto & one = top.input("one", 1);
    auto & x = top.input("x", 4);
    for (GNL_PORT_INPUT * input : {&bit, &one, &x})
        input->set_used();
    auto & u = top.subdesign("leaf", "u");
    auto & a = u.input("a", 8);
    auto & b = u.input("b", 8);
    auto & c = u.input("c");
    auto & d = u.input("d", 1);
    auto & e = u.input("e", 2);
    auto & f = u.input("f", 4);
    auto & g = u.input("g");
    auto & h = u.input("h", 4);
    top.connect([&] {
        a = bit;
        b = x;
        c = one;
        d = bit;
        e = x.range(2, 1);
        f = 5;
        g = 0;
        h = 15;
    });
    EXPECT_EQ(instance_of(u), "\tleaf   u\n"
                              "\t( \n"
                              "\t.a({8{bit}}),\n"
                              "\t.b({2{x}}),\n"
                              "\t.c(one),\n"
                              "\t.d(bit),\n"
                              "\t.e(x[2:1]),\n"
                              "\t.f(4'b0101),\n"
                              "\t.g(1'b0),\n"
                              "\t.h({4{1'b1}}));\n");
}

TEST_F(VerilogInstance, ADriverThatTakesTheConstantsPlaceIsConnected)
{
    top_design top;
    auto & x = top.input("x");
    x.set_used();
    auto & u = top.subdesign("leaf", "u");
    auto & a = u.input("a");
    top.connect([&] { a = 1; });
    a.replace_driver(&x);
    EXPECT_EQ(instance_of(u), "\tleaf   u\n"
                              "\t( \n"
                              "\t.a(x));\n");
}

TEST_F(VerilogInstance, AnUnusedOutputIsOpenOnACellOnly)
{
    top_design top;
    auto & u = top.cell("u");
    u.output("left_out").set_as_not_included_in_declaration();
    u.output("q");
    u.output("r").set_used();
    EXPECT_EQ(instance_of(u), "\tblk   u\n"
                              "\t( \n"
                              "\t.q(),\n"
                              "\t.r(wire_u_r));\n");
}

TEST_F(VerilogInstance, ACellHasItsParametersBehindIt)
{
    top_design top;
    auto & x = top.input("x");
    x.set_used();
    auto & u = top.cell("u");
    auto & a = u.input("a");
    u.integer("depth") = 4;
    top.connect([&] { a = x; });
    EXPECT_EQ(instance_of(u), "\tblk   u\n"
                              "\t( \n"
                              "\t.a(x));\n"
                              "\tdefparam\n"
                              "\t\tu.depth = 4,\n"
                              "\t\tu.lpm_type = \"blk\";\n");
}

TEST_F(VerilogInstance, BidirectionalPortsMeetWhatTheyDriveOrTheirNet)
{
    top_design top;
    auto & x = top.input("x");
    x.set_used();
    auto & pad = top.bidir("pad", 4);
    auto & y = top.output("y");
    auto & u = top.subdesign("leaf", "u");
    auto & a = u.bidir("a", 2);
    auto & b = u.bidir("b");
    auto & c = u.bidir("c");
    auto & d = u.bidir("d");
    auto & e = u.bidir("e", 4);
    u.bidir("idle");
    e.lock_bidir_port(1);
    top.connect([&] {
        pad.range(3, 2) = a;
        y = b;
        c = x;
        d = x;
        e = x;
    });
    d.lock_bidir_port(1);
    EXPECT_EQ(instance_of(u), "\tleaf   u\n"
                              "\t( \n"
                              "\t.a(pad[3:2]),\n"
                              "\t.b(wire_u_b),\n"
                              "\t.c(x),\n"
                              "\t.d(wire_u_d),\n"
                              "\t.e(wire_u_e));\n"
                              "\tassign\n"
                              "\t\twire_u_d = x,\n"
                              "\t\twire_u_e = {4{x}};\n");
}

TEST_F(VerilogInstance, AConstantDrivesTheNetOfABidirectionalPort)
{
    top_design top;
    auto & u = top.subdesign("leaf", "u");
    auto & a = u.bidir("a", 4);
    top.connect([&] { a = 5; });
    a.lock_bidir_port(1);
    EXPECT_EQ(instance_of(u), "\tleaf   u\n"
                              "\t( \n"
                              "\t.a(wire_u_a));\n"
                              "\tassign\n"
                              "\t\twire_u_a = 4'b0101;\n");
}

TEST_F(VerilogInstance, AConstantIsNotLostWhereNobodyReadsTheBidirectionalPort)
{
    top_design top;
    auto & u = top.subdesign("leaf", "u");
    auto & a = u.bidir("a", 4);
    auto & b = u.bidir("b");
    top.connect([&] {
        a = 5;
        b = 1;
    });
    EXPECT_EQ(instance_of(u), "\tleaf   u\n"
                              "\t( \n"
                              "\t.a(wire_u_a),\n"
                              "\t.b(wire_u_b));\n"
                              "\tassign\n"
                              "\t\twire_u_a = 4'b0101,\n"
                              "\t\twire_u_b = 1'b1;\n");
    EXPECT_EQ(wires_of(u), "\twire  [3:0]   wire_u_a;\n"
                           "\twire  wire_u_b;\n");
}

TEST_F(VerilogInstance, WhatABidirectionalPortDoesInItsOwnDesignIsNotSeenAround)
{
    top_design top;
    auto & u = top.subdesign("leaf", "u");
    auto & x = u.input("x");
    x.set_used();
    auto & driven = u.bidir("driven");
    auto & held = u.bidir("held");
    u.set_in_rtl_body();
    driven = x;
    held = 1;
    u.set_out_of_rtl_body();
    held.lock_bidir_port(1);
    x.set_used(false);
    EXPECT_EQ(instance_of(u), "\tleaf   u\n"
                              "\t( \n"
                              "\t.driven(wire_u_driven),\n"
                              "\t.held(wire_u_held));\n");
}

TEST_F(VerilogInstance, GatesOfAStructuralNetlistFollowIt)
{
    top_design top("LBX_STRUCTURAL_NETLIST=ON");
    auto & x = top.input("x");
    x.set_used();
    auto & y = top.output("y");
    auto & u = top.cell("u");
    auto & q = u.output("q");
    top.connect([&] { y = q & x; });
    EXPECT_EQ(instance_of(u), "\tblk   u\n"
                              "\t( \n"
                              "\t.q(wire_u_q));\n"
                              "\tand(w_lg_q1w, wire_u_q, x);\n");
}

TEST_F(VerilogInstance, AHookTakesThePlaceOfTheStatement)
{
    top_design top;
    EXPECT_EQ(instance_of(self_writing(top, "u")), "\t// u[-1] in top\n");
}

TEST_F(VerilogInstance, WithoutInsertModeAHookIsNotAsked)
{
    top_design top;
    auto & u = *new hooked(&top, "blk");
    u.set_instance_name("u");
    u.set_entity_name("blk");
    u.set_use_custom_verilog_output();
    EXPECT_EQ(instance_of(u), "\tblk   u\n"
                              "\t( \n"
                              ");\n");
}

TEST_F(VerilogInstance, ACellsHookRunsOnEachSliceAndThenOnTheArray)
{
    top_design top;
    auto & arr = self_writing(top, "arr", 2);
    arr.set_primitive();
    EXPECT_EQ(instance_of(arr), "\t// arr[-1] in top\n");
    arr[0];
    EXPECT_EQ(instance_of(arr), "\t// arr[0] in top\n"
                                "\t// arr[1] in top\n"
                                "\t// arr[-1] in top\n");
}

TEST_F(VerilogInstance, ADesignsHookRunsOnEachSliceAndAssignmentsFollow)
{
    top_design top;
    auto & x = top.input("x");
    x.set_used();
    auto & arr = self_writing(top, "arr", 2);
    auto & a = arr.input("a");
    arr[0];
    top.connect([&] { a = !x; });
    EXPECT_EQ(instance_of(arr), "\t// arr[0] in top\n"
                                "\t// arr[1] in top\n"
                                "\tassign\n"
                                "\t\twire_arr_a = {2{(~ x)}},\n"
                                "\t\twire_arr_a_0 = wire_arr_a[0:0],\n"
                                "\t\twire_arr_a_1 = wire_arr_a[1:1];\n");
}
