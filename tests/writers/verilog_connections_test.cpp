#include "verilog_sections.h"

using namespace gnl_test;

namespace {

using VerilogConnections = verilog_sections;
using VerilogConstantText = verilog_sections;

std::string connections(GNL_GENERATOR & design)
{
    return written(design, &GNL_GENERATOR::dump_verilog_port_connections);
}

class hooked : public top_design
{
public:
    using top_design::top_design;
    void dump_verilog_custom_output(std::ostream & out, GNL_GENERATOR * parent) override
    {
        out << "\t// written for " << parent->get_name() << "\n";
    }
};

/// A wire with a description of its own.
class described : public GNL_WIRE
{
public:
    using GNL_WIRE::GNL_WIRE;
    using GNL_WIRE::operator=;
    void dump_port_description(std::ostream & out, GNL_GENERATOR *, bool, GNL_PORT *) override
    {
        out << "`" << get_name();
    }
};

} // namespace

TEST_F(VerilogConnections, ReadAnAuthorsWireAsItDescribesItself)
{
    top_design top;
    auto & y = top.output("y", 2);
    y.set_used();
    auto & macro = *new described(&top, "macro", 2);
    auto & a = top.input("a", 2);
    a.set_used();
    top.connect([&] {
        macro = a;
        y = macro;
    });
    EXPECT_NE(connections(top).find("y = `macro"), std::string::npos);
}

TEST_F(VerilogConnections, AreEmptyWithoutAssignments)
{
    top_design top;
    top.input("a").set_used();
    top.output("y").set_used();
    EXPECT_EQ(connections(top), "");
}

TEST_F(VerilogConnections, AssignSignalsInNameOrderInOneStatement)
{
    top_design top;
    auto & a = top.input("a", 4);
    auto & bit = top.input("bit");
    a.set_used();
    bit.set_used();
    auto & y = top.output("y", 4);
    auto & one = top.output("one", 1);
    auto & w = top.wire("W", 4);
    auto & idle = top.wire("idle", 4);
    auto & wide = top.wire("wide", 8);
    top.connect([&] {
        w = a & ~a;
        idle = a;
        y = w;
        one = bit;
        wide = a;
    });
    wide.set_port_is_a_driver();
    EXPECT_EQ(connections(top), "\tassign\n"
                                "\t\tone = bit,\n"
                                "\t\tW = (a & (~ a)),\n"
                                "\t\twide = {2{a}},\n"
                                "\t\ty = W;\n");
}

TEST_F(VerilogConnections, KeepIdleWiresWhenRemovalIsOff)
{
    top_design top("LBX_REMOVE_OPTIONAL_WIRES=OFF");
    auto & a = top.input("a");
    a.set_used();
    auto & idle = top.wire("idle");
    top.connect([&] { idle = a; });
    EXPECT_EQ(connections(top), "\tassign\n"
                                "\t\tidle = a;\n");
}

TEST_F(VerilogConnections, WriteConstants)
{
    top_design top;
    auto & bit = top.output("bit");
    auto & ones = top.output("ones", 4);
    auto & mixed = top.output("mixed", 4);
    auto & zero = top.wire("zero", 40);
    zero.set_port_is_a_driver();
    top.connect([&] {
        bit = 1;
        ones = 15;
        mixed = 5;
        zero = 0;
    });
    EXPECT_EQ(connections(top), "\tassign\n"
                                "\t\tbit = 1'b1,\n"
                                "\t\tmixed = 4'b0101,\n"
                                "\t\tones = {4{1'b1}},\n"
                                "\t\tzero = {40{1'b0}};\n");
}

TEST_F(VerilogConnections, TakeDefaultsOfWiresAndUsedOutputs)
{
    top_design top;
    auto & bit = top.wire("bit");
    auto & bus = top.wire("bus", 4);
    for (GNL_WIRE * wire : {&bit, &bus}) {
        wire->set_default_port_value(1);
        wire->set_port_is_a_driver();
    }
    auto & one = top.output("one", 1);
    auto & unused = top.output("unused");
    one.set_default_port_value(0);
    unused.set_default_port_value(0);
    one.set_used();
    EXPECT_EQ(connections(top), "\tassign\n"
                                "\t\tbit = 1'b1,\n"
                                "\t\tbus = {4{1'b1}},\n"
                                "\t\tone = 1'b0;\n");
}

TEST_F(VerilogConnections, FeedInputsThatNobodyDrives)
{
    top_design top;
    auto & a = top.input("a", 0, 1);
    auto & b = top.input("b", 4, 0);
    auto & used = top.input("used", 0, 1);
    auto & held = top.input("held", 0, 1);
    for (GNL_PORT_INPUT * input : {&a, &b, &used, &held})
        input->set_generate_constant_wire();
    used.set_used();
    held.set_constant_used();
    EXPECT_EQ(connections(top), "\tassign\n"
                                "\t\ta = 1'b1,\n"
                                "\t\tb = {4{1'b0}};\n");
}

TEST_F(VerilogConnections, DriveBidirectionalPorts)
{
    top_design top;
    auto & a = top.input("a");
    a.set_used();
    auto & driven = top.bidir("driven");
    auto & held = top.bidir("held", 4);
    auto & pad = top.bidir("pad");
    auto & wide = top.bidir("wide", 2);
    auto & u = top.cell("u");
    auto & io = u.bidir("io");
    top.connect([&] {
        driven = a;
        held = 3;
        pad = io;
        wide = a;
    });
    EXPECT_EQ(connections(top), "\tblk   u\n"
                                "\t( \n"
                                "\t.io(pad));\n"
                                "\tassign\n"
                                "\t\tdriven = a,\n"
                                "\t\theld = 4'b0011,\n"
                                "\t\twide = {2{a}};\n");
}

TEST_F(VerilogConnections, ABidirectionalPortThatIsDrivenFromAroundStaysAsItIs)
{
    top_design top;
    auto & a = top.input("a");
    a.set_used();
    auto & leaf = top.subdesign("leaf", "u");
    auto & driven = leaf.bidir("driven");
    auto & held = leaf.bidir("held");
    top.connect([&] {
        driven = a;
        held = 1;
    });
    EXPECT_EQ(connections(leaf), "");
}

TEST_F(VerilogConnections, WriteSubdesignsGatesAssignmentsAndHooksInThisOrder)
{
    hooked top("LBX_STRUCTURAL_NETLIST=ON");
    auto & a = top.input("a");
    auto & b = top.input("b");
    a.set_used();
    b.set_used();
    auto & y = top.output("y");
    auto & u2 = top.cell("u2");
    auto & u1 = top.cell("u1");
    auto & d1 = u1.input("d");
    auto & d2 = u2.input("d");
    top.connect([&] {
        d1 = a;
        d2 = b;
        y = a & b;
    });
    top.set_use_custom_verilog_output();
    EXPECT_EQ(connections(top), "\tblk   u1\n"
                                "\t( \n"
                                "\t.d(a));\n"
                                "\tblk   u2\n"
                                "\t( \n"
                                "\t.d(b));\n"
                                "\tand(w_lg_a1w, a, b);\n"
                                "\tassign\n"
                                "\t\ty = w_lg_a1w;\n"
                                "\t// written for top\n");
}

TEST_F(VerilogConnections, CloseWithTheMessages)
{
    top_design top;
    top.post_warning_msg("Mind the gap.");
    EXPECT_EQ(connections(top), "\tinitial/*synthesis enable_verilog_initial_construct*/\n"
                                " \tbegin\n"
                                "\t\t$display(\"Warning: Mind the gap.\");\n"
                                "\tend\n");
}

TEST_F(VerilogConnections, AreTheSameWhenWrittenAgain)
{
    top_design top;
    auto & a = top.input("a", 4);
    a.set_used();
    auto & y = top.output("y", 4);
    auto & arr = top.cell("arr", 2);
    auto & d = arr.input("d", 2);
    auto & q = arr.output("q", 2);
    top.connect([&] {
        d = (a.range(1, 0), a.range(3, 2));
        y = q;
    });
    auto const first = connections(top);
    EXPECT_NE(first, "");
    EXPECT_EQ(connections(top), first);
}

TEST_F(VerilogConstantText, FollowsTheWidthAndTheBits)
{
    top_design top;
    auto const text_of = [&](int width, int value) {
        GNL_PORT port(&top, "port", width);
        port.replace_driver(value);
        return top.verilog_constant_text(port);
    };
    EXPECT_EQ(text_of(0, 1), "1'b1");
    EXPECT_EQ(text_of(1, 0), "1'b0");
    EXPECT_EQ(text_of(2, 2), "2'b10");
    EXPECT_EQ(text_of(8, 5), "8'b00000101");
    EXPECT_EQ(text_of(8, 0), "{8{1'b0}}");
    EXPECT_EQ(text_of(8, 255), "{8{1'b1}}");
    GNL_PORT open(&top, "open", 4);
    EXPECT_EQ(top.verilog_constant_text(open), "");
}

TEST_F(VerilogConstantText, HoldsManyBits)
{
    top_design top;
    GNL_PORT port(&top, "port", 70);
    MLIB_UINTEGER value(1, 70);
    value.set_bit(69, true);
    port.replace_driver(value);
    EXPECT_EQ(top.verilog_constant_text(port), "70'b1" + std::string(68, '0') + "1");
}
