// Clean-up of a netlist before it is written: what nothing reads, and automatically named wires.

#include "prune_support.h"

namespace {

using namespace gnl_test;

class Prune : public in_folder
{
};

// ---- What nothing reads

TEST_F(Prune, TakesAnUnreadWireOutOfTheCountOfItsDriverOnce)
{
    pruned_design top;
    auto & a = top.source("a");
    auto & w = top.wire("w");
    w = a;
    EXPECT_EQ(a.get_driver_count(), 2);
    top.prune_optional_wires();
    EXPECT_EQ(a.get_driver_count(), 1);
    EXPECT_FALSE(w.declare_port());
    EXPECT_EQ(w.get_driver(), &a);
    top.prune_optional_wires();
    EXPECT_EQ(a.get_driver_count(), 1);
}

TEST_F(Prune, KeepsEverythingWhenTheOptionIsOff)
{
    pruned_design top(GNL_VERILOG, "LBX_REMOVE_OPTIONAL_WIRES=off");
    auto & a = top.source("a");
    auto & w = top.wire("w");
    w = a;
    EXPECT_FALSE(top.remove_port_driver_for_port(&w));
    EXPECT_FALSE(w.driver_removal_done());
    EXPECT_EQ(a.get_driver_count(), 2);
    EXPECT_TRUE(w.declare_port());
}

TEST_F(Prune, ReleasesTheSourcesOfEachKindOfOperator)
{
    pruned_design top;
    auto & a = top.source("a", 4);
    auto & b = top.source("b", 4);
    GNL_PORT & part = a.range(1, 0);
    GNL_PORT & both = (a, b);
    GNL_PORT & logic = a & b;
    GNL_PORT & inverted = ~b;
    EXPECT_EQ(a.get_driver_count(), 4);
    EXPECT_EQ(b.get_driver_count(), 4);
    EXPECT_TRUE(top.remove_port_driver_for_port(&part));
    EXPECT_EQ(a.get_driver_count(), 3);
    EXPECT_TRUE(top.remove_port_driver_for_port(&both));
    EXPECT_EQ(a.get_driver_count(), 2);
    EXPECT_EQ(b.get_driver_count(), 3);
    EXPECT_TRUE(top.remove_port_driver_for_port(&logic));
    EXPECT_TRUE(top.remove_port_driver_for_port(&inverted));
    EXPECT_EQ(a.get_driver_count(), 1);
    EXPECT_EQ(b.get_driver_count(), 1);
    EXPECT_FALSE(top.remove_port_driver_for_port(&logic)) << "once only";
    EXPECT_EQ(a.get_driver_count(), 1);
}

TEST_F(Prune, HasNothingToReleaseForPinsAndUndrivenWires)
{
    pruned_design top;
    auto & a = top.input("a");
    auto & w = top.wire("w");
    auto & read = top.source("read");
    EXPECT_FALSE(top.remove_port_driver_for_port(nullptr));
    EXPECT_FALSE(top.remove_port_driver_for_port(&a));
    EXPECT_TRUE(a.driver_removal_done());
    EXPECT_FALSE(top.remove_port_driver_for_port(&w));
    EXPECT_TRUE(w.driver_removal_done());
    EXPECT_FALSE(top.remove_port_driver_for_port(&read));
    EXPECT_FALSE(read.driver_removal_done());
}

TEST_F(Prune, DoesNotComeBackToAnEarlierObject)
{
    pruned_design top;
    auto & a = top.source("a");
    auto & early = top.wire("early");
    auto & late = top.wire("late");
    early = a;
    late = early;
    top.prune_optional_wires();
    EXPECT_EQ(early.get_driver_count(), 0);
    EXPECT_FALSE(early.declare_port());
    EXPECT_EQ(a.get_driver_count(), 2) << "the earlier wire still counts";
}

TEST_F(Prune, FollowsAChainInTheOrderOfKeys)
{
    pruned_design top;
    auto & a = top.source("a");
    auto & early = top.wire("early");
    auto & late = top.wire("late");
    late = a;
    early = late;
    top.prune_optional_wires();
    EXPECT_EQ(late.get_driver_count(), 0);
    EXPECT_EQ(a.get_driver_count(), 1);
}

TEST_F(Prune, ReleasesUnreadExpressionsBeforeWires)
{
    pruned_design top;
    auto & a = top.source("a");
    auto & w = top.wire("w");
    w = a;
    w & a;
    EXPECT_EQ(w.get_driver_count(), 1);
    EXPECT_EQ(a.get_driver_count(), 3);
    top.prune_optional_wires();
    EXPECT_EQ(w.get_driver_count(), 0);
    EXPECT_EQ(a.get_driver_count(), 1);
}

TEST_F(Prune, ReleasesExpressionsOfExpressionsInTheOrderOfKeys)
{
    pruned_design top;
    auto & a = top.source("a");
    auto & b = top.source("b");
    auto & c = top.source("c");
    !(a & b);
    top.prune_optional_wires();
    EXPECT_EQ(a.get_driver_count(), 2) << "AND comes before NOT, when it is still read";
    auto & inverted = !c;
    inverted & b;
    top.prune_optional_wires();
    EXPECT_EQ(inverted.get_driver_count(), 0);
    EXPECT_EQ(c.get_driver_count(), 1) << "NOT comes after the AND that has read it";
}

TEST_F(Prune, ReleasesRangesOfRangesInTheOrderOfKeys)
{
    pruned_design top;
    auto & a = top.source("a", 8);
    auto & b = top.source("b", 8);
    auto & part = a.range(7, 4);
    part.range(1, 0);
    b.range(7, 4);
    top.prune_optional_wires();
    EXPECT_EQ(part.get_driver_count(), 0);
    EXPECT_EQ(a.get_driver_count(), 2) << "the range of a port comes before that of a range";
    EXPECT_EQ(b.get_driver_count(), 1);
}

// ---- Chains of automatically named wires

TEST_F(Prune, ReadsTheSourceThroughTwoWires)
{
    pruned_design top;
    auto & a = top.source("a", 8);
    auto & first = top.wire("", 8);
    auto & second = top.wire("", 8);
    auto & y = top.output("y", 8);
    first = a;
    second = first;
    y = second;
    top.prune_optional_wires();
    EXPECT_EQ(y.get_driver(), &a);
    EXPECT_FALSE(first.declare_port());
    EXPECT_FALSE(second.declare_port());
}

TEST_F(Prune, GoesByTheShapeOfTheNameAlone)
{
    pruned_design top;
    auto & a = top.source("a");
    auto & shaped = top.wire("w5w");
    auto & named = top.wire("wxw");
    auto & y = top.output("y");
    auto & z = top.output("z");
    shaped = a;
    named = a;
    y = shaped;
    z = named;
    top.prune_optional_wires();
    EXPECT_EQ(y.get_driver(), &a);
    EXPECT_EQ(z.get_driver(), &named);
}

TEST_F(Prune, OnlyAWireIsBypassed)
{
    pruned_design top;
    auto & a = top.bidir("w5w");
    auto & y = top.output("y");
    y = a;
    top.prune_optional_wires();
    EXPECT_EQ(y.get_driver(), &a);
}

TEST_F(Prune, AChainWithoutASourceGivesItsDirectDriver)
{
    pruned_design top;
    auto & first = top.wire("");
    auto & second = top.wire("");
    auto & third = top.wire("");
    auto & y = top.output("y");
    first = 1;
    second = first;
    third = second;
    y = third;
    EXPECT_EQ(top.get_non_auto_wire_driver(&y), &third);
    EXPECT_EQ(top.get_non_auto_wire_driver(&third), &second);
    EXPECT_EQ(top.get_non_auto_wire_driver(&first), nullptr);
    EXPECT_EQ(top.get_non_auto_wire_driver(nullptr), nullptr);
}

TEST_F(Prune, ACycleEndsAtItsFirstWire)
{
    pruned_design top;
    auto & first = top.wire("");
    auto & second = top.wire("");
    auto & y = top.output("y");
    first = second;
    second = first;
    y = first;
    EXPECT_EQ(top.get_non_auto_wire_driver(&y), &first);
    EXPECT_EQ(top.get_non_auto_wire_driver(&first), &second);
    top.prune_optional_wires();
    EXPECT_EQ(y.get_driver(), &first);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Prune, AWireThatDrivesItselfEndsTheSearchToo)
{
    pruned_design top;
    GNL_PORT & loop = top.wire("");
    GNL_PORT & itself = loop;
    auto & y = top.output("y");
    loop = itself;
    y = loop;
    EXPECT_EQ(top.get_non_auto_wire_driver(&y), &loop);
    top.prune_optional_wires();
    EXPECT_EQ(y.get_driver(), &loop);
}

/// A chain of `count` wires from `source`, and a reader of each wire.
struct long_chain
{
    long_chain(pruned_design & top, GNL_PORT & source, int count)
    {
        GNL_PORT * from = &source;
        for (int i = 0; i < count; ++i) {
            auto & link = top.wire("", 1);
            link = *from;
            auto & reader = top.output("y" + std::to_string(i), 1);
            reader = link;
            readers.push_back(&reader);
            expressions.push_back(&~link);
            expressions.back()->set_port_is_a_driver();
            from = &link;
        }
    }

    std::vector<GNL_PORT *> readers;
    std::vector<GNL_PORT_LOGIC *> expressions;
};

TEST_F(Prune, LongChainsWithManyReadersAreWalkedOnce)
{
    pruned_design top;
    auto & a = top.source("a", 1);
    long_chain const chain(top, a, 100000);
    top.prune_optional_wires();
    for (auto * reader : chain.readers)
        ASSERT_EQ(reader->get_driver(), &a);
    for (auto * expression : chain.expressions)
        ASSERT_EQ(expression->get_first_operand(), &a);
}

TEST_F(Prune, LongChainsFromAConstantAreWalkedOnce)
{
    pruned_design top;
    auto & constant = top.wire("", 1);
    constant = 1;
    long_chain const chain(top, constant, 50000);
    top.prune_optional_wires();
    for (auto * reader : chain.readers)
        ASSERT_TRUE(reader->get_driver() != nullptr || reader->is_driven_by_constant());
}

TEST_F(Prune, RemembersNoEndThatHasChangedMeanwhile)
{
    pruned_design top;
    auto & a = top.source("a", 8);
    auto & base = top.wire("w1w", 8);
    auto & last = top.wire("w4w", 4);
    auto & middle = top.wire("w3w", 4);
    auto & first = top.wire("w2w", 4);
    auto & later = top.wire("w5w", 4);
    auto & y = top.output("y", 4);
    auto & z = top.output("z", 4);
    base = a;
    last = base.range(3, 0);
    middle = last;
    first = middle;
    later = last;
    middle.set_port_is_a_driver();
    y = first;
    z = later;
    top.prune_optional_wires();
    // w2w and w3w are visited before w4w, whose range moves from w1w to a; w5w and the outputs after it.
    EXPECT_EQ(shown(first.get_driver()), "w1w[3:0]");
    EXPECT_EQ(shown(middle.get_driver()), "w1w[3:0]");
    EXPECT_EQ(shown(last.get_driver()), "a[3:0]");
    EXPECT_EQ(shown(later.get_driver()), "a[3:0]");
    EXPECT_EQ(shown(y.get_driver()), "w1w[3:0]");
    EXPECT_EQ(shown(z.get_driver()), "a[3:0]");
}

// ---- Constants and defaults

TEST_F(Prune, TakesOverAConstant)
{
    pruned_design top;
    auto & w = top.wire("", 4);
    auto & y = top.output("y", 4);
    w = 9;
    y = w;
    top.prune_optional_wires();
    EXPECT_EQ(y.get_driver(), nullptr);
    EXPECT_TRUE(y.is_driven_by_constant());
    EXPECT_EQ(y.constant_driving_value(), "1001");
    EXPECT_FALSE(w.declare_port());
}

TEST_F(Prune, RepeatsAConstantForAWiderReader)
{
    pruned_design top;
    auto & w = top.wire("", 2);
    auto & y = top.output("y", 8);
    w = 1;
    y = w;
    top.prune_optional_wires();
    EXPECT_EQ(y.constant_driving_value(), "01010101");
}

TEST_F(Prune, TakesOverADefault)
{
    pruned_design top;
    auto & one = top.wire("");
    auto & ones = top.wire("", 4);
    auto & zeros = top.wire("", 4);
    auto & nothing = top.wire("");
    one.set_default_port_value(1);
    ones.set_default_port_value(1);
    zeros.set_default_port_value(0);
    auto & x = top.output("x");
    auto & y = top.output("y", 4);
    auto & z = top.output("z", 4);
    auto & open = top.output("open");
    x = one;
    y = ones;
    z = zeros;
    open = nothing;
    top.prune_optional_wires();
    EXPECT_EQ(x.constant_driving_value(), "1");
    EXPECT_EQ(y.constant_driving_value(), "1111") << "a default stands for each bit";
    EXPECT_EQ(z.constant_driving_value(), "0000");
    EXPECT_EQ(open.get_driver(), &nothing);
}

// ---- Designs

TEST_F(Prune, PrimitivesArePrunedWithTheirParentAndDesignsAreNot)
{
    pruned_design top;
    auto & a = top.source("a");
    auto & w = top.wire("");
    w = a;
    design & cell = top.child("cell", "u1");
    cell.set_primitive();
    design & unit = top.child("unit", "u2");
    auto & cell_input = cell.input("d");
    auto & unit_input = unit.input("d");
    cell_input = w;
    unit_input = w;
    auto & cell_logic = *new GNL_PORT_LOGIC(&cell, GNL_PORT_LOGIC::not_operation, &w, nullptr);
    auto & unit_logic = *new GNL_PORT_LOGIC(&unit, GNL_PORT_LOGIC::not_operation, &w, nullptr);
    top.prune_optional_wires();
    EXPECT_EQ(cell_input.get_driver(), &a);
    EXPECT_EQ(cell_logic.get_first_operand(), &a);
    EXPECT_EQ(unit_input.get_driver(), &w);
    EXPECT_EQ(unit_logic.get_first_operand(), &w);
}

TEST_F(Prune, AWrittenDesignShowsOptionalWiresOnlyWhenAsked)
{
    auto const wires = [](char const * text) {
        design top(nullptr, "top", text);
        auto & a = top.input("a");
        auto & y = top.output("y");
        auto & dangling = top.wire("dangling");
        auto & w = top.wire("");
        top.run([&](design &) {
            dangling = a;
            w = a;
            y = w;
        });
        std::string const file = file_text("top.v");
        return std::string(file.find("dangling") != std::string::npos ? "dangling " : "")
               + (file.find("w1w") != std::string::npos ? "w1w " : "")
               + (file.find("\ty = a;\n") != std::string::npos ? "y = a" : "");
    };
    EXPECT_EQ(wires("LBX_FILE=top.v"), "y = a");
    EXPECT_EQ(wires("LBX_FILE=top.v,LBX_REMOVE_OPTIONAL_WIRES=OFF"), "dangling w1w ");
}

// ---- A driver found by name

TEST_F(Prune, ANamedDriverIsReplacedInEachKindOfPort)
{
    pruned_design top;
    auto & q = top.child("Cell", "u1").output("q", 4);
    auto & other = top.source("b", 4);
    auto & replacement = top.wire("replacement", 4);
    auto & y = top.output("y", 4);
    y = q;
    auto & part = q.range(1, 0);
    auto & both = (q, other);
    auto & logic = other & q;
    auto & inverted = ~q;
    int const reads = q.get_driver_count();

    top.remove_named_driver_from_port(&y, "cell", "Q", &replacement);
    EXPECT_EQ(y.get_driver(), &replacement);
    EXPECT_EQ(replacement.get_driver_count(), 1);
    EXPECT_EQ(q.get_driver_count(), reads - 1);

    top.remove_named_driver_from_port(&part, "CELL", "q", &replacement);
    EXPECT_EQ(shown(&part), "replacement[1:0]");
    EXPECT_EQ(replacement.get_driver_count(), 2);
    EXPECT_EQ(q.get_driver_count(), reads - 1) << "the count of the old base stays";

    top.remove_named_driver_from_port(&both, "cell", "q", &replacement);
    EXPECT_EQ(shown_elements(both), "replacement@7:4 b@3:0");
    EXPECT_EQ(replacement.get_driver_count(), 2) << "not counted as read";
    EXPECT_EQ(q.get_driver_count(), reads - 2);

    top.remove_named_driver_from_port(&logic, "cell", "q", &replacement);
    top.remove_named_driver_from_port(&inverted, "cell", "q", &replacement);
    EXPECT_EQ(logic.get_first_operand(), &other);
    EXPECT_EQ(logic.get_second_operand(), &replacement);
    EXPECT_EQ(inverted.get_first_operand(), &replacement);
    EXPECT_EQ(replacement.get_driver_count(), 4);
    EXPECT_EQ(q.get_driver_count(), reads - 4);
}

TEST_F(Prune, ADriverOfAnotherNameOrDesignStays)
{
    pruned_design top;
    auto & q = top.child("cell", "u1").output("q");
    auto & replacement = top.wire("replacement");
    auto & y = top.output("y");
    y = q;
    top.remove_named_driver_from_port(&y, "cell", "p", &replacement);
    top.remove_named_driver_from_port(&y, "unit", "q", &replacement);
    top.remove_named_driver_from_port(&y, "cell", "q", nullptr);
    top.remove_named_driver_from_port(nullptr, "cell", "q", &replacement);
    EXPECT_EQ(y.get_driver(), &q);
    EXPECT_EQ(replacement.get_driver_count(), 0);
}

} // namespace
