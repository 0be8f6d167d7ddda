#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

using VhdlSignals = vhdl_sections;

class hooked : public top_design
{
public:
    using top_design::top_design;
    void dump_vhdl_custom_wires(std::ostream & out) override { out << "\t-- wires of " << get_name() << "\n"; }
};

} // namespace

TEST_F(VhdlSignals, AreTheWiresThatDriveSomething)
{
    top_design top;
    for (auto * wire : {&top.wire("bit"), &top.wire("one", 1), &top.wire("eight", 8), &top.wire("Out", 2)})
        wire->set_port_is_a_driver();
    top.wire("idle");
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  bit :\tSTD_LOGIC;\n"
                                    "\t SIGNAL  eight :\tSTD_LOGIC_VECTOR (7 DOWNTO 0);\n"
                                    "\t SIGNAL  one :\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n"
                                    "\t SIGNAL  a_Out :\tSTD_LOGIC_VECTOR (1 DOWNTO 0);\n");
}

TEST_F(VhdlSignals, IdleWiresAreKeptWhenRemovalIsOff)
{
    top_design top("LBX_REMOVE_OPTIONAL_WIRES=OFF");
    top.wire("idle", 2);
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  idle :\tSTD_LOGIC_VECTOR (1 DOWNTO 0);\n");
}

TEST_F(VhdlSignals, OnlySimulationsSeeAnInitialValue)
{
    top_design top;
    auto & bit = top.wire("bit");
    auto & one = top.wire("one", 1);
    auto & eight = top.wire("eight", 8);
    bit.set_initial_value(1);
    one.set_initial_value(0);
    eight.set_initial_value(0);
    for (auto * wire : {&bit, &one, &eight})
        wire->set_port_is_a_driver();
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  bit :\tSTD_LOGIC\n"
                                    "\t -- synopsys translate_off\n"
                                    "\t  := '1'\n"
                                    "\t -- synopsys translate_on\n"
                                    "\t ;\n"
                                    "\t SIGNAL  eight :\tSTD_LOGIC_VECTOR (7 DOWNTO 0)\n"
                                    "\t -- synopsys translate_off\n"
                                    "\t  := (OTHERS => '0')\n"
                                    "\t -- synopsys translate_on\n"
                                    "\t ;\n"
                                    "\t SIGNAL  one :\tSTD_LOGIC_VECTOR (0 DOWNTO 0)\n"
                                    "\t -- synopsys translate_off\n"
                                    "\t  := (OTHERS => '0')\n"
                                    "\t -- synopsys translate_on\n"
                                    "\t ;\n");
}

TEST_F(VhdlSignals, AWireHasNoInitialValueOfItself)
{
    top_design top;
    EXPECT_EQ(top.wire("net").get_initial_value(), -1);
}

TEST_F(VhdlSignals, PortsAndWiresHaveTheirOptions)
{
    top_design top;
    auto & in = top.input("in");
    auto & y = top.output("y");
    auto & idle = top.output("idle");
    auto & net = top.wire("net");
    auto & loose = top.wire("loose");
    auto & held = top.input("held", 0, 1);
    for (GNL_PORT * port : std::vector<GNL_PORT *>{&in, &y, &idle, &net, &loose, &held})
        port->set_qelvar_internal_option("FAST=ON");
    net.set_qelvar_internal_option("");
    net.set_qelvar_internal_option("SLOW=OFF");
    net.set_port_is_a_driver();
    in.set_used();
    y.set_used();
    held.set_generate_constant_wire();
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  held\t:\tSTD_LOGIC;\n"
                                    "\t ATTRIBUTE QELVAR_ATTRIBUTE OF held : SIGNAL IS \"FAST=ON\";\n"
                                    "\t ATTRIBUTE QELVAR_ATTRIBUTE OF a_in : SIGNAL IS \"FAST=ON\";\n"
                                    "\t SIGNAL  net :\tSTD_LOGIC;\n"
                                    "\t ATTRIBUTE QELVAR_ATTRIBUTE OF net : SIGNAL IS \"FAST=ON;SLOW=OFF\";\n"
                                    "\t ATTRIBUTE QELVAR_ATTRIBUTE OF y : SIGNAL IS \"FAST=ON\";\n");
}

TEST_F(VhdlSignals, InputsThatAreFedByTheirDefaultAreSignals)
{
    top_design top;
    auto & a = top.input("a", 0, 1);
    auto & b = top.input("b", 1, 0);
    auto & c = top.input("c", 4, 0);
    auto & rows = *new GNL_PORT_INPUT(&top, "rows", 3, 4);
    auto & used = top.input("used", 0, 1);
    auto & held = top.input("held", 0, 1);
    for (auto * input : {&a, &b, &c, &rows, &used, &held})
        input->set_generate_constant_wire();
    used.set_used();
    held.set_constant_used();
    top.input("plain", 0, 1);
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  a\t:\tSTD_LOGIC;\n"
                                    "\t SIGNAL  b\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n"
                                    "\t SIGNAL  c\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n"
                                    "\t SIGNAL  rows\t:\tSTD_LOGIC_VECTOR (11 DOWNTO 0);\n");
}

TEST_F(VhdlSignals, ExpressionsOfMixedWidthsAreSignals)
{
    top_design top;
    auto & a = top.input("a", 4);
    auto & s = top.input("s");
    auto & t = top.input("t");
    auto & y = top.output("y", 4);
    auto & z = top.output("z");
    for (auto * port : {&a, &s, &t})
        port->set_used();
    top.connect([&] {
        y = a & s;
        z = s ^ t;
    });
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  wire_w_lg_a1w\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n");
}

TEST_F(VhdlSignals, AnExpressionOfOneBitIsAVector)
{
    top_design top;
    auto & s = top.input("s");
    auto & t = top.input("t");
    auto & y = top.output("y", 4);
    for (auto * port : {&s, &t})
        port->set_used();
    top.connect([&] { y = s & t; });
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  wire_w_lg_s1w\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n");
}

TEST_F(VhdlSignals, ConcatenationsAndRangesThatAreRepeatedAreSignals)
{
    top_design top;
    auto & a = top.input("a", 8);
    auto & s = top.input("s");
    for (GNL_PORT * port : std::vector<GNL_PORT *>{&a, &s})
        port->set_used();
    auto & x = top.output("x", 8);
    auto & y = top.output("y", 8);
    auto & z = top.output("z", 8);
    top.connect([&] {
        x = (s, a[0]);
        y = a.range(3, 0);
        z = a[7]; // a bit, unlike an expression of one bit
    });
    EXPECT_EQ(declarations_of(top),
              "\t SIGNAL  wire_" + x.get_driver()->get_name() + "\t:\tSTD_LOGIC_VECTOR (1 DOWNTO 0);\n\t SIGNAL  wire_"
                  + y.get_driver()->get_name() + "\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n\t SIGNAL  wire_"
                  + z.get_driver()->get_name() + "\t:\tSTD_LOGIC;\n");
}

TEST_F(VhdlSignals, WhatDrivesNothingIsNoSignal)
{
    top_design top;
    auto & a = top.input("a", 4);
    auto & s = top.input("s");
    for (GNL_PORT * port : std::vector<GNL_PORT *>{&a, &s})
        port->set_used();
    top.connect([&] { (void)(a & s); });
    EXPECT_EQ(declarations_of(top), "");
}

TEST_F(VhdlSignals, StandBehindThoseOfSubdesigns)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    leaf.output("q", 2).set_used();
    top.wire("net").set_port_is_a_driver();
    EXPECT_TRUE(declarations_of(top).starts_with("\t SIGNAL  wire_u_q\t:\tSTD_LOGIC_VECTOR (1 DOWNTO 0);\n"
                                                 "\t SIGNAL  net :\tSTD_LOGIC;\n"
                                                 "\t COMPONENT  leaf\n"));
}

TEST_F(VhdlSignals, ADesignWithItsOwnOutputAddsItsWires)
{
    hooked top;
    top.wire("net").set_port_is_a_driver();
    top.set_use_custom_vhdl_output();
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  net :\tSTD_LOGIC;\n"
                                    "\t-- wires of top\n");
}

TEST_F(VhdlSignals, ADesignThatIsInsertedHasOnlyTheWiresOfItsHook)
{
    hooked top;
    auto & a = top.input("a", 4);
    auto & s = top.input("s");
    auto & y = top.output("y", 4);
    auto & z = top.output("z", 4);
    top.wire("net").set_port_is_a_driver();
    top.set_use_custom_vhdl_output();
    top.set_custom_subdesign_insert_mode();
    for (GNL_PORT * port : std::vector<GNL_PORT *>{&a, &s})
        port->set_used();
    top.connect([&] {
        y = a & s;
        z = s & s;
    });
    EXPECT_EQ(declarations_of(top), "\t-- wires of top\n"
                                    "\t SIGNAL  wire_w_lg_a1w\t:\tSTD_LOGIC_VECTOR (3 DOWNTO 0);\n"
                                    "\t SIGNAL  wire_w_lg_s2w\t:\tSTD_LOGIC_VECTOR (0 DOWNTO 0);\n");
}
