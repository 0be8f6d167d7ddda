// The names of expressions and ranges: they are numbered when they are made, and spelt when somebody asks.

#include "open_design.h"

using namespace gnl_test;

namespace {

class LateName : public in_folder
{
};

TEST_F(LateName, NumbersFollowTheOrderOfMakingNotOfAsking)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a", 4);
    auto & b = top.input("b", 4);
    GNL_PORT & first = a & b;
    GNL_PORT & second = a[2];
    GNL_PORT & third = a | b;
    EXPECT_EQ(third.get_name(), "w_lg_a3w");
    EXPECT_EQ(second.get_name(), "w_a_range2w");
    EXPECT_EQ(first.get_name(), "w_lg_a1w");
}

TEST_F(LateName, HoldsTheOperandsNameOfThen)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a", 4);
    auto & b = top.input("b", 4);
    auto & logic = a & b;
    auto & range = a[0];
    a.change_name("x");
    EXPECT_EQ(logic.get_name(), "w_lg_a1w");
    EXPECT_EQ(range.get_name(), "w_a_range2w");
    EXPECT_EQ((a ^ b).get_name(), "w_lg_x3w");
}

TEST_F(LateName, OutlivesARenamedPortOfASubdesign)
{
    open_design top(GNL_VERILOG);
    auto & b = top.input("b", 4);
    auto & child = top.child("cell", "u");
    auto & q = child.output("q", 4);
    auto & logic = q & b;
    q.change_name("r");
    EXPECT_EQ(logic.get_name(), "w_lg_q1w");
}

TEST_F(LateName, OutlivesAnExchangedOperand)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a", 4);
    auto & b = top.input("b", 4);
    auto & logic = a & b;
    auto & range = a.range(2, 1);
    logic.replace_first_operand(&b);
    range.replace_range_driver(&b);
    EXPECT_EQ(logic.get_name(), "w_lg_a1w");
    EXPECT_EQ(range.get_name(), "w_a_range2w");
}

TEST_F(LateName, OfADeepExpressionTakesNoRecursion)
{
    open_design top(GNL_VERILOG);
    auto & b = top.input("b", 2);
    GNL_PORT * result = &top.input("a", 2);
    for (int i = 0; i < 100000; ++i)
        result = &(*result & b);
    // past 50 characters a name starts anew
    EXPECT_EQ(result->get_name().substr(0, 1), "w");
    EXPECT_LE(result->get_name().size(), 50u);
    EXPECT_NE(result->get_name().find("100000w"), std::string::npos);
}

TEST_F(LateName, WithoutAParentHasNoNumber)
{
    GNL_PORT a(nullptr, "a", 4);
    GNL_PORT b(nullptr, "b", 4);
    EXPECT_EQ(GNL_PORT_LOGIC(nullptr, GNL_PORT_LOGIC::and_operation, &a, &b).get_name(), "wire_lga0");
    EXPECT_EQ(GNL_PORT_OUTPUT_RANGE(nullptr, &a, 1, 0).get_name(), "wire_arange0");
    EXPECT_EQ(GNL_PORT_OUTPUT_RANGE(nullptr, nullptr, 1, 0).get_name(), "");
}

} // namespace
