#include "top_design.h"

using namespace gnl_test;

namespace {

using QhdlSubdesignConnections = in_folder;
using QhdlBidirs = in_folder;

std::string connections(GNL_GENERATOR & subdesign)
{
    return written(subdesign, &GNL_GENERATOR::generate_connections_with_subdesign, subdesign.get_parent());
}

TEST_F(QhdlSubdesignConnections, DriveTheInputs)
{
    top_design top;
    auto & x = top.input("x", 4);
    auto & s = top.input("s");
    x.set_used();
    s.set_used();
    auto & leaf = top.subdesign("leaf", "u1");
    auto & other = top.subdesign("leaf", "u2");
    auto & q = leaf.output("q", 2);
    auto & bus = other.input("bus", 4);
    auto & bit = other.input("bit");
    auto & logic = other.input("Logic", 4);
    auto & chained = other.input("chained", 2);
    top.connect([&] {
        bus = x;
        bit = x[2];
        logic = x & s;
        chained = q;
    });
    EXPECT_EQ(connections(other), "\tu2.bit = x[2..2];\n"
                                  "\tu2.bus[] = x[];\n"
                                  "\tu2.chained[] = u1.q[];\n"
                                  "\tu2.Logic[] = (x[] & s);\n");
    EXPECT_EQ(connections(leaf), "");
}

TEST_F(QhdlSubdesignConnections, DriveConstantInputsWithBits)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u1");
    auto & bus = leaf.input("bus", 4);
    auto & bit = leaf.input("bit");
    auto & one = leaf.input("one", 1);
    top.connect([&] {
        bus = 5;
        bit = 0;
        one = 1;
    });
    EXPECT_EQ(connections(leaf), "\tu1.bit = B\"0\";\n"
                                 "\tu1.bus[] = B\"0101\";\n"
                                 "\tu1.one[] = B\"1\";\n");
}

TEST_F(QhdlSubdesignConnections, LeaveOpenInputsOut)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u1");
    leaf.input("spare", 0, 1);
    leaf.input("marked", 0, 1).set_used();
    auto & removed = leaf.input("removed");
    top.connect([&] { removed = 1; });
    removed.remove_constant_driver();
    EXPECT_EQ(connections(leaf), "");
}

TEST_F(QhdlSubdesignConnections, ConnectPiecesAsAList)
{
    top_design top;
    auto & x = top.input("x", 4);
    x.set_used();
    auto & leaf = top.subdesign("leaf", "u1");
    auto & bus = leaf.input("bus", 4);
    auto & filled = leaf.input("filled", 4, 0);
    top.connect([&] {
        bus.range(3, 2) = x.range(1, 0);
        bus.range(1, 0) = 2;
        filled[2] = x[0];
    });
    EXPECT_EQ(connections(leaf), "\tu1.bus[] = ( x[1..0], B\"10\");\n"
                                 "\tu1.filled[] = ( GND, x[0..0], B\"00\");\n");
}

TEST_F(QhdlSubdesignConnections, ReportADriverFromElsewhere)
{
    top_design top, other;
    auto & stray = other.input("stray");
    auto & leaf = top.subdesign("leaf", "u1");
    auto & a = leaf.input("a");
    auto & b = leaf.input("b");
    a.replace_driver(&stray);
    a.set_connection_level(&top);
    a.set_used();
    top.connect([&] { b = 1; });
    EXPECT_EQ(connections(leaf), "\tu1.b = B\"1\";\n");
    EXPECT_EQ(top.messages(),
              texts{error("Port object top|leaf inst u1|a is being driven by invalid port top|stray",
                          "The port is driven at this level by a port whose parent is not in this design or one of its "
                          "sub-designs. A port can be driven by only its parent's child ports or one of the "
                          "sub-designs' child ports.",
                          "Make sure the parent of the driver port has its parent set correctly.")});
}

TEST_F(QhdlSubdesignConnections, AreLeftToACellThatWritesItself)
{
    struct gate : design
    {
        explicit gate(GNL_GENERATOR * parent)
            : design(parent, "gate")
        {
            set_use_custom_qhdl_output();
            set_instance_name("g");
        }
        void dump_qhdl_custom_output(std::ostream & out, GNL_GENERATOR * parent) override
        {
            out << "\t" << get_qhdl_port_extension() << "q = " << parent->get_name() << ";\n";
        }
    };
    top_design top;
    auto & cell = *new gate(&top);
    auto & a = cell.input("a");
    top.connect([&] { a = 1; });
    EXPECT_EQ(connections(cell), "\tg_q = top;\n");
}

// ---- bidirectional ports

TEST_F(QhdlBidirs, ThatAreDrivenGoThroughTheirNode)
{
    top_design top;
    auto & x = top.input("x", 2);
    x.set_used();
    auto & leaf = top.subdesign("leaf", "u1");
    auto & bit = leaf.bidir("bit");
    auto & bus = leaf.bidir("bus", 2);
    top.connect([&] {
        bit = 1;
        bus = x;
    });
    EXPECT_EQ(connections(leaf), "\tu1_bit = B\"1\";\n"
                                 "\tu1_bit = u1.bit;\n"
                                 "\tu1_bus[] = x[];\n"
                                 "\tu1_bus[] = u1.bus[];\n");
}

TEST_F(QhdlBidirs, ThatActAsInputsTakeTheirNode)
{
    top_design top;
    auto & x = top.input("x", 2);
    x.set_used();
    auto & leaf = top.subdesign("leaf", "u1");
    auto & bit = leaf.bidir("bit");
    auto & bus = leaf.bidir("bus", 2);
    bit.set_as_qhdl_input_port();
    bus.set_as_qhdl_input_port();
    top.connect([&] {
        bit = 0;
        bus = x;
    });
    EXPECT_EQ(connections(leaf), "\tu1_bit = B\"0\";\n"
                                 "\tu1.bit = u1_bit;\n"
                                 "\tu1_bus[] = x[];\n"
                                 "\tu1.bus[] = u1_bus[];\n");
}

TEST_F(QhdlBidirs, ThatAreReadAloneAreReadAtTheInstance)
{
    top_design top;
    auto & y = top.output("y", 2);
    auto & leaf = top.subdesign("leaf", "u1");
    auto & bus = leaf.bidir("bus", 2);
    top.connect([&] { y = bus; });
    EXPECT_EQ(connections(leaf), "");
    EXPECT_EQ(written(top, &GNL_GENERATOR::dump_qhdl_connections), "BEGIN \n"
                                                                   "\ty[] = u1.bus[];\n"
                                                                   "END;\n");
}

TEST_F(QhdlBidirs, ThatAreDrivenAndReadAreReadAtTheirNode)
{
    top_design top;
    auto & x = top.input("x", 2);
    x.set_used();
    auto & y = top.output("y", 2);
    auto & z = top.output("z");
    auto & leaf = top.subdesign("leaf", "u1");
    auto & bus = leaf.bidir("bus", 2);
    top.connect([&] {
        bus = x;
        y = bus;
        z = bus[1];
    });
    EXPECT_EQ(written(top, &GNL_GENERATOR::dump_qhdl_connections), "BEGIN \n"
                                                                   "\tu1_bus[] = x[];\n"
                                                                   "\tu1_bus[] = u1.bus[];\n"
                                                                   "\ty[] = u1_bus[];\n"
                                                                   "\tz = u1_bus[1..1];\n"
                                                                   "END;\n");
}

/// A driver from within the subdesign's own body is none around it.
TEST_F(QhdlBidirs, ThatDriveThemselvesHaveNoNode)
{
    top_design top;
    auto & y = top.output("y");
    auto & leaf = top.subdesign("leaf", "u1");
    auto & pad = leaf.bidir("pad");
    leaf.set_in_rtl_body();
    pad = 1;
    leaf.set_out_of_rtl_body();
    top.connect([&] { y = pad; });
    EXPECT_EQ(connections(leaf), "");
    EXPECT_EQ(written(top, &GNL_GENERATOR::dump_qhdl_connections), "BEGIN \n"
                                                                   "\ty = u1.pad;\n"
                                                                   "END;\n");
}

TEST_F(QhdlBidirs, OfTwoLevelsMeet)
{
    top_design top;
    auto & pad = top.bidir("pad", 2);
    auto & other = top.bidir("other", 2);
    auto & leaf = top.subdesign("leaf", "u1");
    auto & out = leaf.bidir("out", 2);
    auto & in = leaf.bidir("in", 2);
    top.connect([&] {
        pad = out;
        in = other;
    });
    EXPECT_EQ(written(top, &GNL_GENERATOR::dump_qhdl_connections), "BEGIN \n"
                                                                   "\tu1_in[] = other[];\n"
                                                                   "\tu1_in[] = u1.in[];\n"
                                                                   "\tpad[] = u1.out[];\n"
                                                                   "END;\n");
}

TEST_F(QhdlBidirs, OfAnArrayHaveOneNodeForAllSlices)
{
    top_design top;
    auto & x = top.input("x", 6);
    auto & s = top.input("s", 3);
    x.set_used();
    s.set_used();
    auto & row = top.subdesign("leaf", "row", 3);
    auto & bus = row.bidir("bus", 2);
    auto & bit = row.bidir("bit");
    top.connect([&] {
        bus = x;
        bit = s;
    });
    EXPECT_EQ(connections(row), "\trow_bit[] = s[];\n"
                                "\trow_bit[] = row[].bit;\n"
                                "\trow_bus[] = x[];\n"
                                "\trow_bus[] = row[].bus[];\n");
}

} // namespace
