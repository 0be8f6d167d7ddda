// Clean-up inside of ranges, concatenations and expressions: each reads the sources of the wires that it was made of.

#include "prune_support.h"

namespace {

using namespace gnl_test;

class PruneOperators : public in_folder
{
};

// ---- Ranges

TEST_F(PruneOperators, ARangeOfAWireBecomesOneOfItsSource)
{
    pruned_design top;
    auto & a = top.source("a", 8);
    auto & w = top.wire("", 8);
    auto & y = top.output("y", 3);
    w = a;
    y = w.range(4, 2);
    top.prune_optional_wires();
    EXPECT_EQ(shown(y.get_driver()), "a[4:2]");
    EXPECT_EQ(y.get_driver()->get_driver_count(), 1);
}

TEST_F(PruneOperators, ARangeOfAWireOfARangeIsMoved)
{
    pruned_design top;
    auto & a = top.source("a", 16);
    auto & w = top.wire("", 8);
    auto & y = top.output("y", 3);
    w = a.range(11, 4);
    y = w.range(4, 2);
    top.prune_optional_wires();
    EXPECT_EQ(shown(y.get_driver()), "a[8:6]");
}

TEST_F(PruneOperators, ARangeOfAWireThatRepeatsItsSourceStays)
{
    pruned_design top;
    auto & two = top.source("two", 2);
    auto & four = top.source("four", 4);
    auto & repeated = top.wire("w1w", 8);
    auto & repeated_range = top.wire("w2w", 8);
    auto & y = top.output("y", 3);
    auto & z = top.output("z", 3);
    repeated = two;
    repeated_range = four.range(1, 0);
    y = repeated.range(4, 2);
    z = repeated_range.range(4, 2);
    top.prune_optional_wires();
    EXPECT_EQ(shown(y.get_driver()), "w1w[4:2]");
    EXPECT_EQ(shown(z.get_driver()), "w2w[4:2]");
}

TEST_F(PruneOperators, ARangeOfAnExpressionStays)
{
    pruned_design top;
    auto & a = top.source("a", 8);
    auto & y = top.output("y", 3);
    y = (a & top.source("b", 8)).range(4, 2);
    std::string const before = shown(y.get_driver());
    top.prune_optional_wires();
    EXPECT_EQ(shown(y.get_driver()), before);
}

TEST_F(PruneOperators, ARangeOfAConstantReadsItsBitsInACycle)
{
    pruned_design top;
    auto & w = top.wire("", 8);
    auto & y = top.output("y", 3);
    auto & bit = top.output("z");
    w = 0x14;
    y = w.range(4, 2);
    bit = w[4];
    top.prune_optional_wires();
    EXPECT_EQ(y.constant_driving_value(), "101") << "the bits 2, 3, 2";
    EXPECT_EQ(bit.constant_driving_value(), "1");
    EXPECT_EQ(y.get_driver(), nullptr);
}

// ---- Concatenations

TEST_F(PruneOperators, AnElementReadsItsSource)
{
    pruned_design top;
    auto & a = top.source("a", 4);
    auto & b = top.source("b", 4);
    auto & w = top.wire("", 4);
    auto & y = top.output("y", 8);
    w = a;
    y = (w, b);
    int const reads = a.get_driver_count();
    top.modify_auto_sources(y.get_driver());
    EXPECT_EQ(shown_elements(*y.get_driver()), "a@7:4 b@3:0");
    EXPECT_EQ(a.get_driver_count(), reads + 1);
    EXPECT_EQ(w.get_driver_count(), 0);
}

TEST_F(PruneOperators, ElementsOnConstantsAndOpenWiresStay)
{
    pruned_design top;
    auto & constant = top.wire("", 4);
    auto & open = top.wire("", 4);
    constant = 3;
    auto & both = (constant, open);
    top.modify_auto_sources(&both);
    EXPECT_EQ(shown_elements(both), "w1w@7:4 w2w@3:0");
}

TEST_F(PruneOperators, NeighbouringRangesOfOneSourceAreMerged)
{
    pruned_design top;
    auto & a = top.source("a", 8);
    auto & high = top.wire("", 4);
    auto & whole = top.wire("", 8);
    high = a.range(7, 4);
    whole = a;
    auto & both = (high, whole.range(3, 0));
    top.modify_auto_sources(&both);
    EXPECT_EQ(shown_elements(both), "a[7:0]@7:0");
}

TEST_F(PruneOperators, ARangeElementOfARepeatedSourceStays)
{
    pruned_design top;
    auto & a = top.source("a", 2);
    auto & w = top.wire("w1w", 8);
    w = a;
    auto & both = (w.range(4, 2), top.source("b"));
    top.modify_auto_sources(&both);
    EXPECT_EQ(shown_elements(both), "w1w[4:2]@3:1 b@0:0");
}

TEST_F(PruneOperators, AnExpressionOfOneBitKeepsItsWireInVhdl)
{
    for (int const language : {GNL_VERILOG, GNL_VHDL}) {
        pruned_design top(language);
        auto & w = top.wire("w1w", 1);
        w = top.source("a", 1) & top.source("c", 1);
        auto & both = (w, top.source("b"));
        top.modify_auto_sources(&both);
        EXPECT_EQ(shown_elements(both), (language == GNL_VHDL ? "w1w" : w.get_driver()->get_name()) + "@1:1 b@0:0");
    }
}

TEST_F(PruneOperators, AnUnreadConcatWithALoopCountsAsReadInVhdl)
{
    pruned_design top(GNL_VHDL);
    auto & looped = (top.source("a"), top.source("b"));
    auto & plain = (top.source("c"), top.source("d"));
    looped.set_create_vhdl_loop();
    top.modify_auto_sources(&looped);
    top.modify_auto_sources(&plain);
    EXPECT_EQ(looped.get_driver_count(), 1);
    EXPECT_EQ(plain.get_driver_count(), 0);
    top.modify_auto_sources(&looped);
    EXPECT_EQ(looped.get_driver_count(), 1);
}

// ---- Expressions

TEST_F(PruneOperators, OperandsReadTheirSources)
{
    pruned_design top;
    auto & a = top.source("a", 4);
    auto & b = top.source("b", 4);
    auto & v = top.wire("", 4);
    auto & w = top.wire("", 4);
    v = a;
    w = b;
    auto & logic = v ^ w;
    auto & inverted = ~w;
    top.modify_auto_sources(&logic);
    top.modify_auto_sources(&inverted);
    EXPECT_EQ(logic.get_first_operand(), &a);
    EXPECT_EQ(logic.get_second_operand(), &b);
    EXPECT_EQ(inverted.get_first_operand(), &b);
    EXPECT_EQ(v.get_driver_count(), 0);
    EXPECT_EQ(w.get_driver_count(), 0);
    EXPECT_EQ(a.get_driver_count(), 3);
    EXPECT_EQ(b.get_driver_count(), 4);
}

TEST_F(PruneOperators, AnOperandThatRepeatsItsSourceStays)
{
    pruned_design top;
    auto & w = top.wire("", 8);
    w = top.source("a", 2);
    auto & inverted = ~w;
    top.modify_auto_sources(&inverted);
    EXPECT_EQ(inverted.get_first_operand(), &w);
}

TEST_F(PruneOperators, AnExpressionWithALoopStaysInVhdl)
{
    pruned_design top(GNL_VHDL);
    auto & w = top.wire("", 4);
    w = top.source("a", 4);
    auto & looped = w & top.source("b");
    ASSERT_TRUE(looped.need_to_create_vhdl_loop());
    top.modify_auto_sources(&looped);
    EXPECT_EQ(looped.get_first_operand(), &w);
}

TEST_F(PruneOperators, OtherPortsHaveNothingToModify)
{
    pruned_design top;
    auto & w = top.wire("");
    auto & y = top.output("y");
    w = top.source("a");
    y = w;
    top.modify_auto_sources(&y);
    top.modify_auto_sources(nullptr);
    EXPECT_EQ(y.get_driver(), &w);
    top.replace_wire_port_driver(&y);
    top.replace_wire_port_driver(nullptr);
    EXPECT_EQ(shown(y.get_driver()), "a");
}

} // namespace
