// Expressions of great depth, and expressions that share so much that their text is far larger than they are.

#include "open_design.h"

using namespace gnl_test;

namespace {

class DeepExpression : public in_folder
{
};

constexpr int depth = 100000;

/// "((((a & b) & b) & b) ..." of `depth` operations.
GNL_PORT_LOGIC & deep(GNL_PORT & a, GNL_PORT & b)
{
    GNL_PORT_LOGIC * result = &(a & b);
    for (int i = 1; i < depth; ++i)
        result = &(*result & b);
    return *result;
}

TEST_F(DeepExpression, IsDescribed)
{
    open_design top(GNL_VERILOG);
    auto & logic = deep(top.input("a", 2), top.input("b", 2));
    std::string const text = described(logic, top);
    ASSERT_EQ(text.size(), depth * 6u + 1u);
    EXPECT_EQ(text.substr(depth - 2, 18), "((a & b) & b) & b)");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(DeepExpression, LeaningToTheRightIsDescribed)
{
    open_design top(GNL_VHDL);
    auto & a = top.input("a");
    GNL_PORT * result = &a;
    for (int i = 0; i < depth; ++i)
        result = &!*result;
    std::string const text = described(*result, top);
    EXPECT_EQ(text.size(), depth * 6u + 1u);
    EXPECT_EQ(text.substr(0, 12), "(NOT (NOT (N");
}

TEST_F(DeepExpression, AnswersItsQueries)
{
    open_design top(GNL_VHDL);
    auto & a = top.input("a", 1);
    auto & logic = deep(a, top.input("b", 1));
    EXPECT_FALSE(logic.is_std_logic_port());
    EXPECT_FALSE(logic.need_vhdl_index());
    logic.set_create_vhdl_loop();
    GNL_PORT const * bottom = &logic;
    while (static_cast<GNL_PORT_LOGIC const *>(bottom)->get_first_operand()->is_logic())
        bottom = static_cast<GNL_PORT_LOGIC const *>(bottom)->get_first_operand();
    EXPECT_TRUE(bottom->need_to_create_vhdl_loop());
    EXPECT_EQ(logic.get_hierarchical_name().substr(logic.get_hierarchical_name().size() - 6), " AND b");
}

TEST_F(DeepExpression, HasAKey)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a");
    GNL_PORT * result = &a;
    for (int i = 0; i < depth; ++i)
        result = &!*result;
    std::string const key = result->generate_key();
    EXPECT_EQ(key.substr(0, 16), "LGC;NOT;LGC;NOT;");
    EXPECT_EQ(key.size(), 8u * depth + 6u + depth * (1u + a.get_parent_key().size()));
}

TEST_F(DeepExpression, IsWrittenAsGates)
{
    open_design top(GNL_VERILOG, "LBX_STRUCTURAL_NETLIST=ON");
    auto & logic = deep(top.input("a"), top.input("b"));
    std::ostringstream out;
    logic.dump_structural_netlist(out, &top);
    EXPECT_TRUE(out.str() == "\tand(" + logic.get_name() + ", " + logic.get_first_operand()->get_name() + ", b);\n");
}

/// 60 times t = t ^ (t & b): no text of it could be written, nor walked.
GNL_PORT & shared(GNL_PORT & a, GNL_PORT & b)
{
    GNL_PORT * t = &(a & b);
    for (int i = 0; i < 60; ++i)
        t = &(*t ^ (*t & b));
    return *t;
}

TEST_F(DeepExpression, SharedPartsArePassedOnce)
{
    for (int const language : {GNL_VERILOG, GNL_VHDL}) {
        open_design top(language);
        auto & a = top.input("a", 1);
        auto & b = top.input("b", 1);
        auto & t = static_cast<GNL_PORT_LOGIC &>(shared(a, b));
        EXPECT_EQ(&shared(a, b), &t);
        EXPECT_FALSE(t.is_std_logic_port());
        t.set_create_vhdl_loop();
        EXPECT_EQ(t.get_first_operand()->need_to_create_vhdl_loop(), language == GNL_VHDL);
        (t & top.input("wide", 8)).set_create_vhdl_loop();
        static_cast<GNL_PORT_LOGIC &>(*t.get_first_operand()).replace_first_operand(&a);
        EXPECT_FALSE(t.is_std_logic_port());
        EXPECT_EQ(top.messages(), texts{});
    }
}

TEST_F(DeepExpression, ReductionOfAWideBus)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a", 10000);
    std::string const text = described(a.bitwise_xor(), top);
    EXPECT_EQ(text.substr(text.size() - 10), "^ a[9999])");
    EXPECT_EQ(top.messages(), texts{});
}

} // namespace
