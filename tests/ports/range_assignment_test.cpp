// Assignments to ranges: where they end, and what is reported.

#include "open_design.h"

#include "concat_layout.h"

#include <limits>

using namespace gnl_test;

namespace {

constexpr char const * outside = "An attempt has been made to make port connections outside of the rtl_body.";
constexpr char const * outside_action = "Make port connections inside rtl_body only.";
constexpr char const * source_as_sink =
    "An attempt was made to use a source port as a sink. Input ports of subdesigns and output ports of self and their "
    "ranges can only be used on the LHS of a port assignment. Concatenated or logic objects cannot be used on the LHS "
    "of a port assignment.";
constexpr char const * bad_constant =
    "An illegal value exists for a constant wire or bus.  The value must be: 0 to 2^width - 1.";

class RangeAssignment : public in_folder
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        top.set_gen_language(GNL_VERILOG);
    }

    open_design top{GNL_VERILOG};
};

TEST_F(RangeAssignment, PlacesThePortAtTheBitsOfItsTarget)
{
    auto & a = top.input("a", 8);
    auto & y = top.output("y", 8);
    y.range(3, 0) = a.range(7, 4);
    y.range(7, 4) = top.input("b", 4);
    EXPECT_EQ(driver_layout(y), "b@7:4 a[7:4]@3:0");
    EXPECT_EQ(a.range(7, 4).get_connection_level(), &top);
    EXPECT_EQ(y.get_connection_level(), &top);
    EXPECT_EQ(y.range(3, 0).get_connection_level(), &top);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangeAssignment, ANarrowPortIsRepeated)
{
    auto & y = top.output("y", 8);
    y.range(5, 0) = top.input("b", 2);
    EXPECT_EQ(driver_layout(y), "b@5:4 b@3:2 b@1:0");
    EXPECT_EQ(y.get_driver()->get_connection_level(), &top);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangeAssignment, ARangeOfARangeEndsInThePort)
{
    auto & y = top.output("y", 8);
    auto & b = top.input("b", 2);
    y.range(7, 4).range(2, 1) = b;
    y.range(3, 0).range(3, 2).range(1, 0) = b;
    y.range(3, 0).range(1, 0) = 2;
    MLIB_UINTEGER one(1u, 1);
    y.range(7, 4).range(0, 0) = one;
    EXPECT_EQ(concat_of(y).get_element_count(), 4);
    EXPECT_EQ(concat_of(y).get_concat_element(0)->high_index, 6);
    EXPECT_EQ(concat_of(y).get_concat_element(1)->high_index, 4);
    EXPECT_EQ(concat_of(y).get_concat_element(1)->low_index, 4);
    EXPECT_EQ(concat_of(y).get_concat_element(2)->high_index, 3);
    EXPECT_EQ(concat_of(y).get_concat_element(2)->low_index, 2);
    EXPECT_EQ(concat_of(y).get_concat_element(3)->high_index, 1);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangeAssignment, ARepetitionThroughARangeOfARangeNeedsALoopInVhdl)
{
    open_design vhdl(GNL_VHDL);
    auto & y = vhdl.output("y", 8);
    auto & z = vhdl.output("z", 8);
    auto & b = vhdl.input("b", 2);
    y.range(7, 4).range(3, 0) = b;
    z.range(7, 4) = b;
    EXPECT_TRUE(y.get_driver()->has_create_vhdl_loop());
    EXPECT_FALSE(z.get_driver()->has_create_vhdl_loop());
    EXPECT_EQ(y.get_driver()->get_connection_level(), &vhdl);
    EXPECT_EQ(z.get_driver()->get_connection_level(), &vhdl);
}

TEST_F(RangeAssignment, OutsideOfTheBodyIsReported)
{
    auto & part = top.output("y", 4).range(1, 0);
    auto & b = top.input("b", 2);
    top.set_out_of_rtl_body();
    part = b;
    part = 2;
    MLIB_UINTEGER two(2u, 2);
    part = two;
    EXPECT_EQ(part.get_connection_level(), nullptr);
    EXPECT_EQ(top.port("y").get_driver(), nullptr);
    std::string const name = "Range object top|y|range--w_y_range1w is being assigned ";
    EXPECT_EQ(top.messages(),
              (texts{error(name + "top|b outside of rtl_body.", outside, outside_action),
                     error(name + "the constant value 2 outside of rtl_body.", outside, outside_action),
                     error(name + "the constant value 2 outside of rtl_body.", outside, outside_action)}));
}

TEST_F(RangeAssignment, WidthsThatDoNotFitAreReportedAndConnectedAllTheSame)
{
    auto & y = top.output("y", 8);
    y.range(1, 0) = top.input("b", 4);
    EXPECT_TRUE(y.get_driver() && y.get_driver()->is_concat_port());
    EXPECT_EQ(
        top.messages(),
        (texts{error("Range object top|y|range--w_y_range1w of width  2 is being assigned the port top|b of width 4 "
                     "which is illegal, as port widths dont match nor are multiples.",
                     "The port widths are mismatched in the mentioned assignment. The port widths of the connected "
                     "ports should match or the LHS port width should be a multiple of the RHS port width.",
                     "Check the port widths of the connected ports. Logical operation results in a port width equal "
                     "to the larger of the two ports and concatenation results in a port width equal to the sum of "
                     "the individual port widths. Double check for such cases.")}));
}

TEST_F(RangeAssignment, ASourceIsNoSink)
{
    auto & b = top.input("b", 2);
    auto & a = top.input("a", 4);
    auto & q = top.child("leaf", "u1").output("q", 4);
    a.range(1, 0) = b;
    a.range(3, 0).range(1, 0) = b;
    q.range(1, 0) = 1;
    q.range(3, 0).range(1, 0) = 1;
    MLIB_UINTEGER ten(10u, 4);
    q.range(3, 0) = ten;
    EXPECT_EQ(a.get_driver(), nullptr);
    EXPECT_EQ(q.get_driver(), nullptr);
    std::string const middle = " is being assigned ";
    std::string const end = ", but the range object can't be used on LHS in this connection level top";
    std::string const a1 = "Range object top|a|range--w_a_range1w", q4 = "Range object top|leaf inst u1|q|range--";
    EXPECT_EQ(
        top.messages(),
        (texts{error(a1 + middle + "top|b" + end, source_as_sink),
               error("Range object top|a|range--w_a_range2w|range--w_w_a_range2w_range3w" + middle + "top|b" + end,
                     source_as_sink),
               error(q4 + "w_q_range4w" + middle + "the constant value 1" + end, source_as_sink),
               error(q4 + "w_q_range5w|range--w_w_q_range5w_range6w" + middle + "the constant value 1" + end,
                     source_as_sink),
               error(q4 + "w_q_range5w" + middle + "the constant value A" + end, source_as_sink)}));
}

TEST_F(RangeAssignment, AConstantThatDoesNotFitIsRefused)
{
    auto & y = top.output("y", 64);
    auto & part = y.range(3, 0);
    part = 16;
    part = -1;
    part = std::numeric_limits<int>::min();
    MLIB_UINTEGER wide(1u, 5);
    part = wide;
    EXPECT_EQ(y.get_driver(), nullptr);
    std::string const start = "Range object top|y|range--w_y_range1w of width 4 is being assigned a constant value of ";
    EXPECT_EQ(top.messages(), (texts{error(start + "16 which is illegal.", bad_constant),
                                     error(start + "-1 which is illegal.", bad_constant),
                                     error(start + "-2147483648 which is illegal.", bad_constant),
                                     error(start + "01 which is illegal.", bad_constant)}));
}

TEST_F(RangeAssignment, ConstantsThatFitAreTaken)
{
    auto & y = top.output("y", 64);
    y.range(3, 0) = 15;
    y.range(34, 4) = 0x7fffffff;
    MLIB_UINTEGER narrow(1u, 2);
    y.range(39, 36) = narrow;
    y[35] = 1;
    EXPECT_EQ(concat_of(y).get_element_count(), 4);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangeAssignment, AWideConstantIsNotChecked)
{
    auto & y = top.output("y", 64);
    y.range(31, 0) = -1;
    EXPECT_EQ(concat_of(y).get_concat_element(0)->port->constant_driving_value(), std::string(32, '1'));
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangeAssignment, OfBoundsInTheWrongOrderIsHarmless)
{
    auto & y = top.output("y", 8);
    y.range(1, 3) = top.input("b", 2);
    y.range(1, 3) = 5;
    y.range(1, 3) = top.port("b").range(0, 1);
    y = top.port("b").range(1, 2);
    EXPECT_FALSE(top.messages().empty());
}

TEST_F(RangeAssignment, ASubdesignsInputIsDrivenBitByBit)
{
    auto & d = top.child("leaf", "u1").input("d", 4);
    auto & b = top.input("b", 2);
    d.range(3, 2) = b;
    d[0] = 1;
    EXPECT_TRUE(d.check_is_used_flag());
    EXPECT_EQ(driver_layout(d).substr(0, 5), "b@3:2");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangeAssignment, AnAssignmentAcrossSlicesGoesToTheirWire)
{
    GNL_PORT & d = top.array(4, [](design & cell) { cell.input("d", 2); }).port("d");
    d.range(2, 1) = top.input("b", 2);
    ASSERT_NE(d.get_driver(), nullptr);
    EXPECT_EQ(driver_layout(*d.get_driver()), "b@2:1");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangeAssignment, ABidirOfASubdesignDrivesABidirThroughARange)
{
    auto & p = top.child("leaf", "u1").bidir("p", 2);
    auto & io = top.bidir("io", 4);
    auto & part = io.range(2, 1);
    part = p;
    EXPECT_EQ(p.is_locked_bidir_port(), 2);
    EXPECT_EQ(p.get_driven_bidir_port(), &part);
    EXPECT_TRUE(io.has_special_bidir_driver());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangeAssignment, ABidirOfASubdesignDrivesARangeOfAnythingElseAsAnOutput)
{
    auto & p = top.child("leaf", "u1").bidir("p", 2);
    top.wire("x", 4).range(2, 1) = p;
    EXPECT_EQ(p.is_locked_bidir_port(), 1);
    EXPECT_EQ(p.get_driven_bidir_port(), nullptr);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(RangeAssignment, TheUseOfABidirIsCheckedAlsoAfterAnError)
{
    auto & p = top.child("leaf", "u1").bidir("p", 2);
    top.input("a", 4).range(1, 0) = p;
    EXPECT_EQ(p.is_locked_bidir_port(), 1);
    EXPECT_EQ(top.messages().size(), 1U);
}

TEST_F(RangeAssignment, WithoutAParentDoesNothing)
{
    GNL_PORT free(nullptr, "free", 8);
    free.range(1, 0) = top.input("b", 2);
    free.range(1, 0) = 1;
    MLIB_UINTEGER one(1u, 1);
    free.range(1, 0) = one;
    EXPECT_EQ(free.get_driver(), nullptr);
    EXPECT_EQ(top.messages(), texts{});
}

} // namespace
