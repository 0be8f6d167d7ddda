#include "top_design.h"

using namespace gnl_test;

namespace {

using QhdlConnections = in_folder;

std::string connections(GNL_GENERATOR & design)
{
    return written(design, &GNL_GENERATOR::dump_qhdl_connections);
}

TEST_F(QhdlConnections, WithoutAnyAreAnEmptyBody)
{
    top_design top;
    top.output("y", 4);
    top.wire("w");
    EXPECT_EQ(connections(top), "BEGIN \nEND;\n");
}

TEST_F(QhdlConnections, DriveOutputsWiresAndBidirectionalPorts)
{
    top_design top;
    auto & a = top.input("a", 4);
    auto & s = top.input("s");
    a.set_used();
    s.set_used();
    auto & y = top.output("y", 4);
    auto & z = top.output("z");
    auto & w = top.wire("w", 2);
    auto & pad = top.bidir("pad", 2);
    top.connect([&] {
        w = a.range(2, 1);
        y = (w, a[3], s);
        z = a.bitwise_and() | !s;
        pad = w;
    });
    EXPECT_EQ(connections(top), "BEGIN \n"
                                "\tpad[] = w[];\n"
                                "\tw[] = a[2..1];\n"
                                "\ty[] = ( w[], a[3..3], s);\n"
                                "\tz = ((((a[0..0] & a[1..1]) & a[2..2]) & a[3..3]) # (! s));\n"
                                "END;\n");
}

TEST_F(QhdlConnections, ADriverThatIsNarrowerStandsAsItIs)
{
    top_design top;
    auto & a = top.input("a", 2);
    a.set_used();
    auto & y = top.output("y", 4);
    top.connect([&] { y = a; });
    EXPECT_EQ(connections(top), "BEGIN \n"
                                "\ty[] = a[];\n"
                                "END;\n");
}

TEST_F(QhdlConnections, ConstantsAreBits)
{
    top_design top;
    auto & y = top.output("y", 4);
    auto & zero = top.output("zero", 3);
    auto & one = top.output("one");
    auto & w = top.wire("w", 2);
    auto & pad = top.bidir("pad");
    auto & mixed = top.output("mixed", 4);
    w.set_port_is_a_driver();
    top.connect([&] {
        y = 5;
        zero = 0;
        one = 1;
        w = 3;
        pad = 0;
        mixed.range(3, 1) = 6;
        mixed[0] = pad;
    });
    EXPECT_EQ(connections(top), "BEGIN \n"
                                "\tmixed[] = ( B\"110\", pad);\n"
                                "\tone = B\"1\";\n"
                                "\tpad = B\"0\";\n"
                                "\tw[] = B\"11\";\n"
                                "\ty[] = B\"0101\";\n"
                                "\tzero[] = B\"000\";\n"
                                "END;\n");
}

TEST_F(QhdlConnections, DefaultsFillWhatNothingDrives)
{
    top_design top;
    auto & w = top.wire("w", 3);
    w.set_default_port_value(1);
    w.set_port_is_a_driver();
    auto & bit = top.wire("bit");
    bit.set_default_port_value(0);
    bit.set_port_is_a_driver();
    auto & one = top.wire("one", 1);
    one.set_default_port_value(1);
    one.set_port_is_a_driver();
    auto & y = top.output("y", 2);
    y.set_default_port_value(0);
    y.set_used();
    auto & spare = top.output("spare", 2);
    spare.set_default_port_value(0);
    EXPECT_EQ(connections(top), "BEGIN \n"
                                "\tbit = GND;\n"
                                "\tone[] = VCC;\n"
                                "\tw[] = B\"111\";\n"
                                "\ty[] = B\"00\";\n"
                                "END;\n");
}

TEST_F(QhdlConnections, ADefaultFillsTheBitsOfAWireThatNothingDrives)
{
    top_design top;
    auto & a = top.input("a");
    a.set_used();
    auto & w = top.wire("w", 4);
    w.set_default_port_value(1);
    w.set_port_is_a_driver();
    top.connect([&] { w[1] = a; });
    EXPECT_EQ(connections(top), "BEGIN \n"
                                "\tw[] = ( B\"11\", a, VCC);\n"
                                "END;\n");
}

TEST_F(QhdlConnections, InputsWithoutASourceTakeTheirDefault)
{
    top_design top;
    auto & y = top.output("y");
    auto & z = top.output("z", 2);
    auto & en = top.input("en", 0, 1);
    auto & bus = top.input("bus", 2, 0);
    top.connect([&] {
        y = en;
        z = bus;
    });
    EXPECT_EQ(connections(top), "BEGIN \n"
                                "\tbus[] = B\"00\";\n"
                                "\ten = VCC;\n"
                                "\ty = en;\n"
                                "\tz[] = bus[];\n"
                                "END;\n");
}

TEST_F(QhdlConnections, InputsThatAreHeldAtAConstantGoToTheirNode)
{
    top_design top;
    auto & y = top.output("y");
    auto & en = top.input("en", 0, 1);
    auto & mode = top.input("mode", 2, 0);
    en.set_constant_used();
    mode.set_constant_used();
    top.connect([&] { y = en; });
    EXPECT_EQ(connections(top), "BEGIN \n"
                                "\tconst_node_en = en;\n"
                                "\tconst_node_mode[] = mode[];\n"
                                "\ty = en;\n"
                                "END;\n");
}

TEST_F(QhdlConnections, AWireThatNobodyReadsIsLeftOut)
{
    top_design top("LBX_REMOVE_OPTIONAL_WIRES=ON");
    auto & a = top.input("a");
    a.set_used();
    auto & w = top.wire("w");
    top.connect([&] { w = a; });
    EXPECT_EQ(connections(top), "BEGIN \nEND;\n");
    top_design kept("LBX_REMOVE_OPTIONAL_WIRES=OFF");
    auto & b = kept.input("b");
    b.set_used();
    auto & v = kept.wire("v");
    kept.connect([&] { v = b; });
    EXPECT_EQ(connections(kept), "BEGIN \n"
                                 "\tv = b;\n"
                                 "END;\n");
}

/// What drives it from outside is another design's statement.
TEST_F(QhdlConnections, ABidirectionalPortIsDrivenByItsOwnBodyAlone)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u1");
    auto & io = leaf.bidir("io");
    top.connect([&] { io = 1; });
    EXPECT_EQ(connections(leaf), "BEGIN \nEND;\n");
}

TEST_F(QhdlConnections, ADriverFromElsewhereIsReported)
{
    top_design top, other;
    auto & stray = other.input("stray");
    auto & y = top.output("y");
    auto & z = top.output("z");
    y.replace_driver(&stray);
    y.set_connection_level(&top);
    top.connect([&] { z = 1; });
    std::string const reported =
        "GNL_INTERNAL_ERROR: Port object top|y is being driven by invalid port top|stray CAUSE : The port is driven at "
        "this level by a port whose parent is not in this design or one of its sub-designs. A port can be driven by "
        "only its parent's child ports or one of the sub-designs' child ports. ACTION : Make sure the parent of the "
        "driver port has its parent set correctly.";
    EXPECT_EQ(connections(top), "BEGIN \n"
                                "\tz = B\"1\";\n"
                                "\tASSERT (0) \n"
                                "\tREPORT \""
                                    + reported
                                    + "\"\n"
                                      "\tSEVERITY ERROR;\n"
                                      "END;\n");
    EXPECT_EQ(top.messages(), texts{"ERROR " + reported});
}

/// Text of its own stands before everything else; its other signals are connected all the same.
TEST_F(QhdlConnections, ADesignThatWritesItselfBeginsWithItsOwnText)
{
    struct self_writing : top_design
    {
        void dump_qhdl_custom_output(std::ostream & out, GNL_GENERATOR * parent) override
        {
            out << "\tv = " << (parent == this ? "own" : "other") << ";\n";
        }
    } top;
    top.set_use_custom_qhdl_output();
    auto & y = top.output("y");
    auto & a = top.subdesign("leaf", "u1").input("a");
    top.connect([&] {
        y = 1;
        a = 0;
    });
    EXPECT_EQ(connections(top), "BEGIN \n"
                                "\tv = own;\n"
                                "\tu1.a = B\"0\";\n"
                                "\ty = B\"1\";\n"
                                "END;\n");
}

TEST_F(QhdlConnections, WritingTwiceGivesTheSame)
{
    top_design top;
    auto & a = top.input("a", 4);
    a.set_used();
    auto & y = top.output("y", 4);
    top.connect([&] { y = !a; });
    auto const first = connections(top);
    EXPECT_EQ(first, "BEGIN \n"
                     "\ty[] = (! a[]);\n"
                     "END;\n");
    EXPECT_EQ(connections(top), first);
}

} // namespace
