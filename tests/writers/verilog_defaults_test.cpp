#include "verilog_sections.h"

using namespace gnl_test;

namespace {

using VerilogDefaults = verilog_sections;
using VerilogSimulationOnlyPorts = verilog_sections;

std::string defaults(GNL_GENERATOR & cell, int slice_index = -1)
{
    return written(cell, &GNL_GENERATOR::dump_verilog_default_input_port_connections, slice_index);
}

std::string simulation_only(GNL_GENERATOR & cell, bool guard)
{
    return written(cell, &GNL_GENERATOR::dump_verilog_simulation_only_ports, guard);
}

design & cell_with_defaults(top_design & top)
{
    auto & u = top.cell("u");
    u.input("a", 0, 1);
    u.input("b", 4, 0);
    u.input("c", 1, 1);
    u.input("d", 0, 2);
    u.input("e");
    u.input("f", 0, 1).set_as_not_included_in_declaration();
    u.input("g", 0, 1).set_used();
    u.input("h", 0, 0);
    return u;
}

} // namespace

TEST_F(VerilogDefaults, AreHiddenFromFormalVerification)
{
    top_design top;
    EXPECT_EQ(defaults(cell_with_defaults(top)), "\n\t`ifndef FORMAL_VERIFICATION"
                                                 "\n\t// synopsys translate_off"
                                                 "\n\t`endif\n"
                                                 "\t,\n"
                                                 "\t.a(1'b1),\n"
                                                 "\t.b({4{1'b0}}),\n"
                                                 "\t.c({1{1'b1}}),\n"
                                                 "\t.d(),\n"
                                                 "\t.h(1'b0)"
                                                 "\n\t`ifndef FORMAL_VERIFICATION"
                                                 "\n\t// synopsys translate_on"
                                                 "\n\t`endif");
}

TEST_F(VerilogDefaults, AreShownToSynthesisOnRequestAndToSimulators)
{
    std::string const shown = ",\n"
                              "\t.a(1'b1),\n"
                              "\t.b({4{1'b0}}),\n"
                              "\t.c({1{1'b1}}),\n"
                              "\t.d(),\n"
                              "\t.h(1'b0)";
    top_design asked;
    auto & u = cell_with_defaults(asked);
    u.set_connect_default_input_ports_in_verilog_for_synthesis();
    EXPECT_EQ(defaults(u), shown);
    top_design simulated;
    auto & v = cell_with_defaults(simulated);
    v.set_simulate_mode();
    EXPECT_EQ(defaults(v), shown);
}

TEST_F(VerilogDefaults, FollowTheConnectionsOfACell)
{
    top_design top;
    auto & x = top.input("x");
    x.set_used();
    auto & u = top.cell("u");
    auto & a = u.input("a");
    u.input("ena", 0, 1);
    top.connect([&] { a = x; });
    EXPECT_EQ(instance_of(u), "\tblk   u\n"
                              "\t( \n"
                              "\t.a(x)"
                              "\n\t`ifndef FORMAL_VERIFICATION"
                              "\n\t// synopsys translate_off"
                              "\n\t`endif\n"
                              "\t,\n"
                              "\t.ena(1'b1)"
                              "\n\t`ifndef FORMAL_VERIFICATION"
                              "\n\t// synopsys translate_on"
                              "\n\t`endif);\n");
    u.reset_primitive_state();
    EXPECT_EQ(instance_of(u), "\tblk   u\n"
                              "\t( \n"
                              "\t.a(x));\n");
}

TEST_F(VerilogDefaults, OfAnArrayAreThoseOfTheSlice)
{
    top_design top;
    auto & x = top.input("x");
    x.set_used();
    auto & arr = top.cell("arr", 2);
    auto const declare = [](design & slice) { slice.input("ena", 0, 1); };
    declare(arr);
    arr.output("q").set_used();
    arr.set_simulate_mode();
    EXPECT_EQ(instance_of(arr), "\tblk   arr_0\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[0:0]),\n"
                                "\t.ena(1'b1));\n"
                                "\tblk   arr_1\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[1:1]),\n"
                                "\t.ena(1'b1));\n");
    arr.declare_slice = declare;
    top.connect([&] { arr[0].port("ena") = x; });
    EXPECT_EQ(instance_of(arr), "\tblk   arr_0\n"
                                "\t( \n"
                                "\t.ena(x),\n"
                                "\t.q(wire_arr_q[0:0]));\n"
                                "\tblk   arr_1\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[1:1]),\n"
                                "\t.ena(1'b1));\n");
    EXPECT_EQ(defaults(arr, 0), "");
    EXPECT_EQ(defaults(arr, 1), ",\n"
                                "\t.ena(1'b1)");
}

TEST_F(VerilogSimulationOnlyPorts, StandInAGuardOfTheirOwn)
{
    top_design top;
    auto & u = top.cell("u");
    u.input("real");
    u.add_simulation_only_port("devclrn", "1");
    u.add_simulation_only_port("real", "1");
    u.add_simulation_only_port("regout", "");
    EXPECT_EQ(simulation_only(u, true), "\n\t// synopsys translate_off\n"
                                        "\t,\n"
                                        "\t.devclrn(1'b1),\n"
                                        "\t.regout()"
                                        "\n\t// synopsys translate_on");
    EXPECT_EQ(simulation_only(u, false), ",\n"
                                         "\t.devclrn(1'b1),\n"
                                         "\t.regout()"
                                         "\n\t// synopsys translate_on");
    u.set_simulate_mode();
    EXPECT_EQ(simulation_only(u, true), ",\n"
                                        "\t.devclrn(1'b1),\n"
                                        "\t.regout()");
    u.reset_primitive_state();
    EXPECT_EQ(simulation_only(u, true), "");
}

TEST_F(VerilogSimulationOnlyPorts, PutTheEndOfTheStatementOnALineOfItsOwn)
{
    top_design top;
    auto & u = top.cell("u");
    u.output("q").set_used();
    u.integer("depth") = 4;
    u.add_simulation_only_port("devclrn", "1");
    EXPECT_EQ(instance_of(u), "\tblk   u\n"
                              "\t( \n"
                              "\t.q(wire_u_q)"
                              "\n\t// synopsys translate_off\n"
                              "\t,\n"
                              "\t.devclrn(1'b1)"
                              "\n\t// synopsys translate_on"
                              "\n\t);\n"
                              "\tdefparam\n"
                              "\t\tu.depth = 4,\n"
                              "\t\tu.lpm_type = \"blk\";\n");
}

TEST_F(VerilogSimulationOnlyPorts, FollowTheDefaults)
{
    top_design top;
    auto & u = top.cell("u");
    u.output("q").set_used();
    u.input("ena", 0, 1);
    u.add_simulation_only_port("devclrn", "1");
    EXPECT_EQ(instance_of(u), "\tblk   u\n"
                              "\t( \n"
                              "\t.q(wire_u_q)"
                              "\n\t`ifndef FORMAL_VERIFICATION"
                              "\n\t// synopsys translate_off"
                              "\n\t`endif\n"
                              "\t,\n"
                              "\t.ena(1'b1)"
                              "\n\t`ifndef FORMAL_VERIFICATION"
                              "\n\t// synopsys translate_on"
                              "\n\t`endif"
                              "\n\t// synopsys translate_off\n"
                              "\t,\n"
                              "\t.devclrn(1'b1)"
                              "\n\t// synopsys translate_on"
                              "\n\t);\n");
}

TEST_F(VerilogSimulationOnlyPorts, StandBehindEachSlice)
{
    top_design top;
    auto & arr = top.cell("arr", 2);
    arr.output("q").set_used();
    arr.set_simulate_mode();
    arr.add_simulation_only_port("devpor", "0");
    EXPECT_EQ(instance_of(arr), "\tblk   arr_0\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[0:0]),\n"
                                "\t.devpor(1'b0)"
                                "\n\t);\n"
                                "\tblk   arr_1\n"
                                "\t( \n"
                                "\t.q(wire_arr_q[1:1]),\n"
                                "\t.devpor(1'b0)"
                                "\n\t);\n");
}
