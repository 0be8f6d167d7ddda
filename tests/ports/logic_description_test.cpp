// The text of an expression in each language.

#include "open_design.h"

using namespace gnl_test;

namespace {

class LogicDescription : public in_folder
{
};

/// The text of what `make` builds, in the order Verilog, VHDL, QHDL; Tcl must be as QHDL.
texts in_each_language(std::function<GNL_PORT &(open_design &)> const & make, bool with_index = false)
{
    texts all;
    for (int const language : {GNL_VERILOG, GNL_VHDL, GNL_QHDL, GNL_TCL}) {
        open_design top(language);
        all.push_back(described(make(top), top, with_index));
        EXPECT_EQ(top.messages(), texts{});
    }
    EXPECT_EQ(all[3], all[2]);
    all.pop_back();
    return all;
}

TEST_F(LogicDescription, Operators)
{
    using top_type = open_design;
    EXPECT_EQ(in_each_language([](top_type & top) -> GNL_PORT & { return !top.input("a"); }),
              (texts{"(~ a)", "(NOT a)", "(! a)"}));
    EXPECT_EQ(in_each_language([](top_type & top) -> GNL_PORT & { return top.input("a") & top.input("b"); }),
              (texts{"(a & b)", "(a AND b)", "(a & b)"}));
    EXPECT_EQ(in_each_language([](top_type & top) -> GNL_PORT & { return top.input("a") | top.input("b"); }),
              (texts{"(a | b)", "(a OR b)", "(a # b)"}));
    EXPECT_EQ(in_each_language([](top_type & top) -> GNL_PORT & { return top.input("a") ^ top.input("b"); }),
              (texts{"(a ^ b)", "(a XOR b)", "(a $ b)"}));
}

TEST_F(LogicDescription, NestedExpressionsKeepTheirOrder)
{
    EXPECT_EQ(in_each_language([](open_design & top) -> GNL_PORT & {
                  auto & a = top.input("a", 4);
                  auto & b = top.input("b", 4);
                  return ((a & b) | !a) ^ (b & !(a | b));
              }),
              (texts{"(((a & b) | (~ a)) ^ (b & (~ (a | b))))", "(((a AND b) OR (NOT a)) XOR (b AND (NOT (a OR b))))",
                     "(((a[] & b[]) # (! a[])) $ (b[] & (! (a[] # b[]))))"}));
}

TEST_F(LogicDescription, IndexIsPassedDown)
{
    EXPECT_EQ(in_each_language(
                  [](open_design & top) -> GNL_PORT & {
                      auto & a = top.input("a", 4);
                      auto & b = top.input("b", 4);
                      return (a & !b);
                  },
                  true),
              (texts{"(a & (~ b))", "(a(3 DOWNTO 0) AND (NOT b(3 DOWNTO 0)))", "(a[3..0] & (! b[3..0]))"}));
}

TEST_F(LogicDescription, NarrowOperandIsRepeatedInVerilog)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a", 8);
    auto & s = top.input("s");
    auto & v = top.input("v", 1);
    EXPECT_EQ(described(a & s, top), "(a & {8{s}})");
    EXPECT_EQ(described(v | a, top), "({8{v}} | a)");
    EXPECT_EQ(described(s ^ v, top), "(s ^ v)");
    EXPECT_EQ(described(a & !(s | v), top), "(a & {8{(~ (s | v))}})");
    EXPECT_EQ(described((a & s) & a[0], top), "((a & {8{s}}) & {8{a[0]}})");
}

TEST_F(LogicDescription, OneBitBusIsIndexedBesideABitInVhdl)
{
    open_design top(GNL_VHDL);
    auto & s = top.input("s");
    auto & v = top.input("v", 1);
    auto & w = top.input("w", 1);
    auto & a = top.input("a", 4);
    EXPECT_EQ(described(s & v, top), "(s AND v(0))");
    EXPECT_EQ(described(v & s, top), "(v(0) AND s)");
    EXPECT_EQ(described(v & w, top), "(v AND w)");
    EXPECT_EQ(described(v & w, top, true), "(v(0) AND w(0))");
    EXPECT_EQ(described(v & a[2], top), "(v(0) AND a(2))");
    EXPECT_EQ(described(w & !a[2], top), "(w(0) AND (NOT a(2)))");
}

TEST_F(LogicDescription, ExpressionWithALoopIsASignalInVhdl)
{
    open_design top(GNL_VHDL);
    auto & a = top.input("a", 4);
    auto & s = top.input("s");
    auto & mixed = a & s;
    EXPECT_EQ(both_forms(mixed, top), "wire_w_lg_a1w  wire_w_lg_a1w(3 DOWNTO 0)");
    EXPECT_EQ(described(mixed | a, top), "(wire_w_lg_a1w OR a)");

    auto & one = !top.input("v", 1);
    one.set_create_vhdl_loop();
    EXPECT_EQ(both_forms(one, top), "wire_w_lg_v3w  wire_w_lg_v3w(0)");
}

// The signal of a scalar has one element, and whoever names it means that.
TEST_F(LogicDescription, ScalarExpressionWithALoopIsTheBitOfItsSignalInVhdl)
{
    open_design top(GNL_VHDL);
    auto & s = top.input("s");
    auto & t = top.input("t");
    auto & bit = s & t;
    bit & top.input("a", 4);
    EXPECT_EQ(both_forms(bit, top), "wire_w_lg_s1w(0)  wire_w_lg_s1w(0)");
    EXPECT_EQ(described(bit | t, top), "(wire_w_lg_s1w(0) OR t)");
}

TEST_F(LogicDescription, ExpressionOfAStructuralNetlistIsANet)
{
    open_design top(GNL_VERILOG, "LBX_STRUCTURAL_NETLIST=ON");
    auto & a = top.input("a", 4);
    auto & s = top.input("s");
    auto & v = top.input("v", 1);
    EXPECT_EQ(both_forms(a & s, top), "w_lg_a1w  w_lg_a1w[3..0]");
    EXPECT_EQ(both_forms(!v, top), "w_lg_v2w  w_lg_v2w[0..0]");
    EXPECT_EQ(both_forms(!s, top), "w_lg_s3w  w_lg_s3w");
}

TEST_F(LogicDescription, OperandsOfASubdesign)
{
    EXPECT_EQ(
        in_each_language([](open_design & top) -> GNL_PORT & {
            auto & q = top.child("leaf", "u1").output("q", 4);
            return q & q.range(3, 0);
        }),
        (texts{"(wire_u1_q & wire_u1_q[3:0])", "(wire_u1_q AND wire_u1_q(3 DOWNTO 0))", "(u1.q[] & u1.q[3..0])"}));
}

TEST_F(LogicDescription, TargetReachesTheOperands)
{
    open_design top(GNL_VHDL);
    auto & a = top.input("a", 8);
    auto & bits = top.output("bits", 2);
    auto & fed = top.child("leaf", "u1").input("fed", 1);
    EXPECT_EQ(described(!a[2], top, false, &bits), "(NOT a(2))");
    EXPECT_EQ(described(!a[2], top, false, &fed), "(NOT a(2 DOWNTO 2))");
}

} // namespace
