// Assignments to some bits of a port. The exact messages are in port_messages_test.cpp.

#include "open_design.h"

namespace {

using namespace gnl_test;

/// The pieces of a port, highest first, each as "port@high:low".
std::string pieces_of(GNL_PORT & port)
{
    auto * concat = dynamic_cast<GNL_PORT_CONCAT *>(port.get_driver());
    if (!concat)
        return "no concat";
    std::string text;
    for (int i = 0; auto const * element = concat->get_concat_element(i); ++i)
        text += (i == 0 ? "" : " ") + element->port->get_name() + "@" + std::to_string(element->high_index) + ":"
                + std::to_string(element->low_index);
    return text;
}

class RangedConnection : public in_folder
{
};

TEST_F(RangedConnection, CollectsPiecesInAConcat)
{
    open_design top(GNL_VERILOG);
    auto & b = top.wire("b", 4);
    auto & c = top.wire("c", 2);
    auto & y = top.output("y", 8);
    EXPECT_EQ(&y.make_connection(b, 3, 0, &top, true), &y);
    GNL_PORT * concat = y.get_driver();
    EXPECT_EQ(pieces_of(y), "b@3:0");
    EXPECT_EQ(concat->get_width(), 8);
    EXPECT_EQ(concat->get_driver_count(), 1);
    EXPECT_EQ(b.get_driver_count(), 1);
    EXPECT_EQ(y.get_connection_level(), &top);
    EXPECT_TRUE(y.check_is_used_flag());
    y.set_used(false);
    y.make_connection(c, 7, 6, &top, true);
    EXPECT_EQ(y.get_driver(), concat);
    EXPECT_EQ(pieces_of(y), "c@7:6 b@3:0");
    EXPECT_EQ(concat->get_driver_count(), 1);
    EXPECT_FALSE(y.check_is_used_flag()) << "only the first piece marks the port";
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangedConnection, RepeatsANarrowSource)
{
    open_design top(GNL_VERILOG);
    auto & b = top.wire("b", 2);
    auto & y = top.output("y", 8);
    y.make_connection(b, 6, 1, &top, true);
    EXPECT_EQ(pieces_of(y), "b@6:5 b@4:3 b@2:1");
    EXPECT_EQ(b.get_driver_count(), 1);
}

TEST_F(RangedConnection, DoesNotCheckThatTheSourceDividesTheRange)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 8);
    y.make_connection(top.wire("b", 2), 2, 0, &top, true);
    EXPECT_EQ(pieces_of(y), "b@3:2 b@1:0");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangedConnection, OfBoundsInTheWrongOrderPlacesNothing)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 8);
    y.make_connection(top.wire("b", 2), 1, 3, &top, true);
    EXPECT_EQ(pieces_of(y), "");
    auto & z = top.output("z", 8);
    z.make_connection(top.wire("c", 8).range(1, 3), 3, 0, &top, true);
    EXPECT_EQ(pieces_of(z), "");
}

TEST_F(RangedConnection, BelowBitZeroIsCutShort)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 8);
    y.make_connection(top.wire("b", 2), 3, -2000000000, &top, true);
    EXPECT_EQ(pieces_of(y), "b@3:2 b@1:0");
}

TEST_F(RangedConnection, BeyondThePortIsRefused)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 8);
    y.make_connection(top.wire("b", 2), 8, 7, &top, true);
    y.make_connection(3, 8, 7, &top, true);
    MLIB_UINTEGER value(3, 2);
    y.make_connection(value, 8, 7, &top, true);
    EXPECT_EQ(y.get_driver(), nullptr);
    EXPECT_FALSE(y.check_is_used_flag());
    ASSERT_EQ(top.messages().size(), 3u);
    EXPECT_NE(top.messages()[2].find("an assignment of constant value 3 in the range 8 to 7"), std::string::npos);
}

TEST_F(RangedConnection, AfterAWholeDriverIsRefused)
{
    open_design top(GNL_VERILOG);
    auto & c = top.wire("c", 8);
    auto & y = top.output("y", 8);
    y = c;
    y.make_connection(top.wire("b", 4), 3, 0, &top, true);
    y.make_connection(5, 7, 4, &top, true);
    EXPECT_EQ(y.get_driver(), &c);
    EXPECT_EQ(top.messages().size(), 2u);
}

TEST_F(RangedConnection, AfterAWholeConstantIsTakenInAddition)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 8);
    y = 0;
    y.make_connection(top.wire("b", 4), 3, 0, &top, true);
    EXPECT_EQ(pieces_of(y), "b@3:0");
    EXPECT_TRUE(y.is_driven_by_constant());
    EXPECT_EQ(y.constant_driving_value(), "00000000");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangedConnection, OfAConstantGoesThroughAPlainHelper)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 8);
    y.make_connection(9, 5, 2, &top, true);
    MLIB_UINTEGER wide(1, 2);
    y.make_connection(wide, 7, 6, &top, true);
    EXPECT_EQ(pieces_of(y), "w_y3w@7:6 w_y1w@5:2") << "the concat takes number 2";
    GNL_PORT & helper = *top.get_port_object("w_y1w");
    EXPECT_FALSE(helper.is_simple_port());
    EXPECT_EQ(helper.get_width(), 4);
    EXPECT_EQ(helper.constant_driving_value(), "1001");
    EXPECT_EQ(helper.get_driver_count(), 0);
    EXPECT_EQ(top.get_port_object("w_y3w")->constant_driving_value(), "01");
    EXPECT_TRUE(y.check_is_used_flag());
    EXPECT_FALSE(y.is_driven_by_constant());
    EXPECT_EQ(y.get_connection_level(), &top);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangedConnection, OfAConstantThatDoesNotFitIsReportedByTheHelper)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 8);
    y.make_connection(16, 3, 0, &top, true);
    EXPECT_EQ(pieces_of(y), "w_y1w@3:0");
    EXPECT_EQ(
        top.messages(),
        texts{error("Port object top|w_y1w of width 4 is being assigned a constant value of 16 which is illegal.",
                    "An illegal value exists for a constant wire or bus.  The value must be: 0 to 2^width - 1.")});
}

TEST_F(RangedConnection, OfASourceMarksItsUse)
{
    design top(nullptr);
    auto & one = top.input("one", 0, 1);
    auto & open = top.input("open");
    auto & y = top.output("y", 4);
    auto & q = top.child("cell", "u1").output("q");
    top.set_in_rtl_body();
    y.make_connection(one, 0, 0, &top, true);
    y.make_connection(open, 1, 1, &top, true);
    y.make_connection(q, 2, 2, &top, true);
    EXPECT_TRUE(one.is_a_constant_wire());
    EXPECT_FALSE(open.is_a_constant_wire());
    EXPECT_TRUE(q.check_is_used_flag());
    ASSERT_EQ(top.messages().size(), 1u);
    EXPECT_NE(top.messages()[0].find("Input port top|open is being assigned to top|y but"), std::string::npos);
}

TEST_F(RangedConnection, ChecksSlicesOnlyIfAsked)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(2, [](design & slice) { slice.input("d", 2); });
    auto & v = top.wire("v", 2);
    arr[0].port("d") = v;
    GNL_PORT & d = arr.port("d");
    d.make_connection(v, 1, 0, &top, true);
    EXPECT_EQ(d.get_driver(), nullptr);
    EXPECT_EQ(top.messages().size(), 1u);
    d.make_connection(v, 1, 0, &top, false);
    EXPECT_EQ(pieces_of(d), "v@1:0");
    EXPECT_EQ(top.messages().size(), 1u);
}

} // namespace
