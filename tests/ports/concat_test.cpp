// The comma operators.

#include "concat_layout.h"
#include "open_design.h"

#include <limits>

using namespace gnl_test;

namespace {

constexpr char const * no_source =
    "The concat operation cannot be performed on the operand in the RHS. The operand cannot be used as a source "
    "object; the objects are mostly input ports of subdesigns or output ports of self. Concat operations are illegal "
    "on the LHS.";
constexpr char const * no_source_action =
    "Do not use output ports of generators on the RHS in the generator's rtl_body and do not use input ports of "
    "instantiated subdesigns in RHS of the rtl_body and do not use concat operations on the LHS of a port assignment.";
constexpr char const * unconnected =
    "An attempt was made to use an unconnected input port. The input port should either be connected or should have a "
    "default value.";

class Concat : public in_folder
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        top.set_gen_language(GNL_VERILOG);
    }

    open_design top{GNL_VERILOG};
    GNL_PORT_INPUT & a = top.input("a", 4);
    GNL_PORT_INPUT & b = top.input("b", 2);
    GNL_PORT_INPUT & s = top.input("s");
};

TEST_F(Concat, IsDeclaredWithTheWidthOfItsFirstTwoOperands)
{
    auto & all = ((a, b), s);
    EXPECT_EQ(all.get_width(), 7);
    EXPECT_EQ(all.get_original_width(), 6);
    all.add_port_higher_end(b);
    EXPECT_EQ(all.get_width(), 9);
    EXPECT_EQ(all.get_original_width(), 6);
}

TEST_F(Concat, HoldsTheLeftOperandAtTheHighEnd)
{
    auto & both = (a, b);
    EXPECT_EQ(layout(both), "a@5:2 b@1:0");
    EXPECT_EQ(both.get_width(), 6);
    EXPECT_EQ(both.get_original_width(), 6);
    EXPECT_EQ(both.get_2d_width(), 0);
    EXPECT_TRUE(both.is_concat_port());
    EXPECT_TRUE(both.is_complete());
    EXPECT_EQ(both.get_connection_level(), &top);
    EXPECT_EQ(both.get_parent(), &top);
    EXPECT_EQ(both.get_name(), "w_a_b1w");
    EXPECT_EQ(a.get_driver_count(), 1);
    EXPECT_EQ(b.get_driver_count(), 1);
    EXPECT_EQ(both.get_driver_count(), 0);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Concat, GrowsAtTheLowEnd)
{
    auto & both = (a, b);
    auto & all = (both, s);
    EXPECT_EQ(&all, &both);
    EXPECT_EQ(layout(all), "a@6:3 b@2:1 s@0:0");
    EXPECT_EQ(all.get_width(), 7);
    EXPECT_EQ(s.get_driver_count(), 1);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Concat, GrowsAtTheHighEnd)
{
    auto & both = (a, b);
    auto & all = (s, both);
    EXPECT_EQ(&all, &both);
    EXPECT_EQ(layout(all), "s@6:6 a@5:2 b@1:0");
    EXPECT_EQ(all.get_width(), 7);
    EXPECT_EQ(all.get_driver_count(), 1);
    EXPECT_EQ(s.get_driver_count(), 1);
}

TEST_F(Concat, OfTwoTakesTheElementsOfTheLeftOneBelow)
{
    auto & left = (a, b);
    auto & right = (s, a);
    auto & all = (left, right);
    EXPECT_EQ(&all, &right);
    EXPECT_EQ(layout(all), "s@10:10 a@9:6 a@5:2 b@1:0");
    EXPECT_EQ(layout(left), "a@5:2 b@1:0");
}

TEST_F(Concat, OfItselfHoldsItsElementsTwice)
{
    auto & both = (a.range(1, 0), a.range(3, 2));
    auto & twice = (both, both);
    EXPECT_EQ(layout(twice), "a[1:0]@7:6 a[3:0]@5:2 a[3:2]@1:0");
    EXPECT_EQ(twice.get_width(), 8);
}

TEST_F(Concat, ListsTheNamesOfItsElements)
{
    EXPECT_EQ((a, s, a[0]).get_hierarchical_name(), "CONCAT (top|a , top|s , top|a|range--w_a_range2w , )");
}

// ---- Constants

TEST_F(Concat, TakesAConstantOfTheWidthOfItsNaturalLogarithm)
{
    auto & all = (a, 3, 1, 0, 7);
    EXPECT_EQ(all.get_element_count(), 5);
    std::string bits;
    for (int i = 1; i < 5; ++i) {
        GNL_PORT & constant = *all.get_concat_element(i)->port;
        bits += constant.get_name() + "=" + std::to_string(constant.get_width()) + "'"
                + constant.constant_driving_value() + " ";
    }
    EXPECT_EQ(bits, "w_a1w=2'11 w_w_a_w_a1w2w3w=1'1 w_w_a_w_a1w2w4w=0'0 w_w_a_w_a1w2w5w=3'111 ");
}

TEST_F(Concat, RefusesAConstantWhoseHighestBitDoesNotFit)
{
    auto & all = (a, 4);
    EXPECT_EQ(all.get_width(), 6);
    (a, -1);
    (a, std::numeric_limits<int>::max());
    EXPECT_EQ(
        top.messages(),
        (texts{error("Port object top|w_a1w of width 2 is being assigned a constant value of 4 which is illegal.",
                     "An illegal value exists for a constant wire or bus.  The value must be: 0 to 2^width - 1."),
               error("Port object top|w_a3w of width 1 is being assigned a constant value of -1 which is illegal.",
                     "An illegal value exists for a constant wire or bus.  The value must be: 0 to 2^width - 1."),
               error("Port object top|w_a5w of width 22 is being assigned a constant value of 2147483647 which "
                     "is illegal.",
                     "An illegal value exists for a constant wire or bus.  The value must be: 0 to 2^width - "
                     "1.")}));
}

// ---- Ranges that continue each other

TEST_F(Concat, TwoRangesThatContinueEachOtherAreOne)
{
    auto & all = (a.range(3, 2), a.range(1, 0));
    EXPECT_EQ(layout(all), "a[3:0]@3:0");
    EXPECT_EQ(all.get_width(), 4);
    EXPECT_EQ(&a.range(3, 0), all.get_concat_element(0)->port) << "equal ranges at one level are one object";
}

TEST_F(Concat, RangesInTheOtherOrderOrOfOtherPortsStayTwo)
{
    EXPECT_EQ(layout((a.range(1, 0), a.range(3, 2))), "a[1:0]@3:2 a[3:2]@1:0");
    EXPECT_EQ(layout((a.range(3, 3), a.range(1, 0))), "a[3:3]@2:2 a[1:0]@1:0");
    auto & c = top.input("c", 4);
    EXPECT_EQ(layout((a.range(3, 2), c.range(1, 0))), "a[3:2]@3:2 c[1:0]@1:0");
}

TEST_F(Concat, ARangeContinuesTheOneAtTheLowEnd)
{
    EXPECT_EQ(layout((b, a.range(3, 2), a.range(1, 0))), "b@5:4 a[3:0]@3:0");
}

TEST_F(Concat, ARangeContinuesTheOneAtTheHighEnd)
{
    auto & low = (a.range(1, 0), b);
    EXPECT_EQ(layout((a.range(3, 2), low)), "a[3:0]@5:2 b@1:0");
}

// ---- Operands

TEST_F(Concat, MarksItsOperandsAsUsed)
{
    auto & w = top.wire("w", 2);
    auto & q = top.child("leaf", "u1").output("q", 2);
    auto & x = top.wire("x", 4);
    auto & part = x.range(1, 0);
    x.set_used(false);
    (w, q, part, (w & q));
    EXPECT_TRUE(w.check_is_used_flag());
    EXPECT_TRUE(q.check_is_used_flag());
    EXPECT_TRUE(x.check_is_used_flag());
    EXPECT_FALSE(part.check_is_used_flag());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Concat, AnUnconnectedInputWithADefaultBecomesAConstant)
{
    open_design other(GNL_VERILOG, "", false);
    auto & e = other.design::input("e", 4, 1);
    auto & fed = other.input("fed", 4, 1);
    other.set_in_rtl_body();
    (e, fed);
    EXPECT_TRUE(e.is_a_constant_wire());
    EXPECT_FALSE(e.check_is_used_flag());
    EXPECT_FALSE(fed.is_a_constant_wire());
    EXPECT_EQ(other.messages(), texts{});
}

TEST_F(Concat, AnUnconnectedInputIsReported)
{
    auto & late = top.design::input("late", 2);
    (late, a);
    (a, late);
    auto & both = (a, b);
    (both, late);
    auto & other = (a, b);
    (late, other);
    auto const message = [](std::string const & with) {
        return error("Input port top|late is being used in concat operation with " + with
                         + " but the input port has no default value and has not been connected.",
                     unconnected);
    };
    EXPECT_EQ(top.messages(),
              (texts{message("top|a"), message("top|a"), message("CONCAT (top|a , top|b , top|late , )"),
                     message("CONCAT (top|late , top|a , top|b , )")}));
}

TEST_F(Concat, APortThatIsNoSourceIsReportedAndStillGivesAConcat)
{
    auto & y = top.output("y", 2);
    auto & d = top.child("leaf", "u1").input("d", 3);
    auto & both = (y, d);
    EXPECT_EQ(layout(both), "y@4:3 d@2:0");
    EXPECT_EQ(both.get_connection_level(), nullptr);
    EXPECT_EQ(y.get_driver_count(), 0);
    EXPECT_FALSE(y.check_is_used_flag());
    auto & good = (a, b);
    EXPECT_EQ(layout((good, y)), "w_a_b2w@7:2 y@1:0");
    EXPECT_EQ(layout((y, good)), "y@7:6 w_a_b2w@5:0");
    EXPECT_EQ(layout(good), "a@5:2 b@1:0");
    auto const message = [](std::string const & bad, std::string const & with) {
        return error("Concat operation cannot be performed on port " + bad + " with " + with
                         + ", as port cannot appear in the RHS at the level top",
                     no_source, no_source_action);
    };
    std::string const name = "CONCAT (top|a , top|b , )";
    EXPECT_EQ(top.messages(), (texts{message("top|y", "top|leaf inst u1|d"), message("top|leaf inst u1|d", "top|y"),
                                     message("top|y", name), message("top|y", name)}));
}

TEST_F(Concat, OutsideOfTheBodyIsReportedAndStillGivesAConcat)
{
    auto & inside = (a, b);
    top.set_out_of_rtl_body();
    auto & both = (a, b);
    EXPECT_EQ(layout(both), "a@5:2 b@1:0");
    EXPECT_EQ(both.get_connection_level(), nullptr);
    EXPECT_EQ((inside, s).get_width(), 7);
    EXPECT_EQ((s, inside).get_width(), 7);
    EXPECT_EQ(inside.get_width(), 6);
    auto const message = [](std::string const & high, std::string const & low) {
        return error("Concat operation between " + high + " and " + low + " is being done outside of rtl_body.",
                     "An attempt has been made to make port connections outside of the rtl_body.",
                     "Make port connections inside rtl_body only.");
    };
    std::string const name = "CONCAT (top|a , top|b , )";
    EXPECT_EQ(top.messages(), (texts{message("top|a", "top|b"), message(name, "top|s"), message("top|s", name)}));
}

TEST_F(Concat, OfPortsWithoutAParentWorks)
{
    GNL_PORT one(nullptr, "one", 2), two(nullptr, "two", 3);
    auto & both = (one, two);
    EXPECT_EQ(layout(both), "one@4:3 two@2:0");
    EXPECT_EQ(both.get_name(), "wire_onetwo0");
    EXPECT_EQ((one, 1).get_width(), 3);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Concat, AnExpressionInItNeedsALoopInVhdl)
{
    open_design vhdl(GNL_VHDL);
    auto & c = vhdl.input("c", 2);
    auto & d = vhdl.input("d", 2);
    auto & first = c & d;
    auto & second = c | d;
    auto & third = c ^ d;
    auto & both = (first, second);
    (third, both);
    EXPECT_TRUE(first.has_create_vhdl_loop());
    EXPECT_TRUE(second.has_create_vhdl_loop());
    EXPECT_TRUE(third.has_create_vhdl_loop());
}

TEST_F(Concat, AssigningOneToAnotherConnectsAndTakesTheElementsOver)
{
    auto & one = (a, b);
    auto & two = (b, a);
    one = two;
    EXPECT_EQ(one.get_driver(), &two);
    EXPECT_EQ(layout(one), "b@5:4 a@3:0");
    GNL_PORT_CONCAT pieces(nullptr, 6);
    EXPECT_FALSE(pieces.is_complete());
    two.set_need_index();
    pieces = two;
    EXPECT_EQ(layout(pieces), "b@5:4 a@3:0");
    EXPECT_TRUE(pieces.is_complete());
    EXPECT_TRUE(pieces.need_index());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Concat, AHundredThousandOperandsAreQuick)
{
    GNL_PORT * all = &(s, b);
    for (int i = 0; i < 50000; ++i)
        all = &(*all, s);
    for (int i = 0; i < 50000; ++i)
        all = &(s, static_cast<GNL_PORT_CONCAT &>(*all));
    auto & concat = static_cast<GNL_PORT_CONCAT &>(*all);
    EXPECT_EQ(concat.get_width(), 100003);
    EXPECT_EQ(concat.get_element_count(), 100002);
    EXPECT_EQ(concat.get_concat_element(0)->high_index, 100002);
    EXPECT_EQ(concat.get_concat_element(50001)->port, &b);
    EXPECT_EQ(concat.get_concat_element(50001)->high_index, 50001);
    EXPECT_EQ(concat.get_concat_element(100001)->low_index, 0);
}

} // namespace
