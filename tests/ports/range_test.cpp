// Making ranges: which object a range is, what it selects from, and what is reported.

#include "open_design.h"

#include <limits>

using namespace gnl_test;

namespace {

constexpr char const * bad_indices =
    "The range indices are illegal, either the higher index is more than the width of the port or the lower index is "
    "less than 0.";
constexpr char const * bad_order = "The higher index of the port is less than the lower index.";
constexpr char const * cut_slices =
    "The range object has illegal indices for the array object. When a range operation is being performed on a port of "
    "an array object, the range indices should not start in the middle of one slice's port and end at the middle of "
    "another slice's port, that is, the range indices should be a multiple of the port width of a slice. Range "
    "operations cannot be performed on ports of heterogeneous arrays.";

class Range : public in_folder
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        top.set_gen_language(GNL_VERILOG);
    }

    open_design top{GNL_VERILOG};
};

TEST_F(Range, EqualBoundsAtOneLevelAreOneObjectAndEachUseCounts)
{
    auto & a = top.input("a", 8);
    auto & first = a.range(3, 0);
    EXPECT_EQ(a.get_driver_count(), 1);
    EXPECT_EQ(&a.range(3, 0), &first);
    EXPECT_EQ(a.get_driver_count(), 2);
    EXPECT_NE(&a.range(3, 1), &first);
    EXPECT_NE(&top.input("b", 8).range(3, 0), &first);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Range, AnotherLevelHasRangesOfItsOwn)
{
    auto & leaf = top.child("leaf", "u1");
    auto & q = leaf.output("q", 8);
    auto & above = q.range(3, 0);
    leaf.set_in_rtl_body();
    auto & inside = q.range(3, 0);
    EXPECT_NE(&inside, &above);
    EXPECT_EQ(&q.range(3, 0), &inside);
    leaf.set_out_of_rtl_body();
    EXPECT_EQ(&q.range(3, 0), &above);
}

TEST_F(Range, KnowsItsPortItsBitsAndItsWidth)
{
    auto & a = top.input("a", 8);
    auto & part = a.range(6, 2);
    EXPECT_EQ(part.get_range_driver(), &a);
    EXPECT_EQ(part.get_high_index(), 6);
    EXPECT_EQ(part.get_low_index(), 2);
    EXPECT_EQ(part.get_width(), 5);
    EXPECT_EQ(part.get_original_width(), 5);
    EXPECT_EQ(part.get_2d_width(), 0);
    EXPECT_EQ(part.get_parent(), &top);
    EXPECT_EQ(part.get_driver(), nullptr);
    EXPECT_TRUE(part.is_range_port());
    EXPECT_EQ(&a[3], &a.range(3, 3));
}

TEST_F(Range, IsNamedAfterItsPortWithARunningNumber)
{
    EXPECT_EQ(top.input("a", 8).range(6, 2).get_name(), "w_a_range1w");
    auto & part = top.child("leaf", "u1").output("q", 8).range(1, 0);
    EXPECT_EQ(part.get_name(), "w_q_range2w");
    EXPECT_EQ(part.get_hierarchical_name(), "top|leaf inst u1|q|range--w_q_range2w");
    EXPECT_EQ(part.range(0, 0).get_hierarchical_name(),
              "top|leaf inst u1|q|range--w_q_range2w|range--w_w_q_range2w_range3w");
}

TEST_F(Range, TheKeyHoldsPortParentLevelAndBits)
{
    EXPECT_EQ(GNL_PORT_OUTPUT_RANGE::generate_key_base("base", 7, 4), "RNG;base;7;4");
    auto & a = top.input("a", 8);
    auto & part = a.range(5, 2);
    EXPECT_EQ(part.generate_key(), "RNG;PORT;a;GNRTR;top;;GNRTR;top;;5;2");
    EXPECT_EQ(part.range(1, 0).generate_key(), "RNG;RNG;PORT;a;GNRTR;top;;GNRTR;top;;5;2;GNRTR;top;;GNRTR;top;;1;0");
    EXPECT_EQ(top.find_port_object(part.generate_key()), &part);
}

TEST_F(Range, TheKeyOutsideOfAllBodiesHasNoLevel)
{
    design idle(nullptr, "idle");
    EXPECT_EQ(idle.input("a", 8).range(5, 2).generate_key(), "RNG;PORT;a;GNRTR;idle;;NULL;5;2");
}

TEST_F(Range, TheKeyOfAnExpressionsRangeIsThatOfTheExpression)
{
    auto & both = top.input("a", 8) & top.input("b", 8);
    EXPECT_EQ(both.range(5, 2).generate_key(),
              GNL_PORT_OUTPUT_RANGE::generate_key_base(both.generate_key() + ";GNRTR;top;;GNRTR;top;", 5, 2));
}

TEST_F(Range, ATwoDimensionalPortIsCutByRows)
{
    auto & m = *new GNL_PORT_INPUT(&top, "m", 3, 4);
    auto & rows = m.range(2, 1);
    EXPECT_EQ(rows.get_high_index(), 11);
    EXPECT_EQ(rows.get_low_index(), 4);
    EXPECT_EQ(m[0].get_high_index(), 3);
    EXPECT_EQ(m[0].get_low_index(), 0);
    EXPECT_EQ(&m.range(2, 1), &rows);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Range, BoundsOutsideThePortAreReportedAndStillGiveARange)
{
    auto & a = top.input("a", 8);
    auto & high = a.range(8, 0);
    EXPECT_EQ(high.get_range_driver(), &a);
    EXPECT_EQ(high.get_width(), 9);
    EXPECT_EQ(a.get_driver_count(), 1);
    EXPECT_EQ(a.range(2, -1).get_width(), 4);
    EXPECT_EQ(&a.range(8, 0), &high) << "found again, and not reported again";
    top.input("s").range(1, 0);
    EXPECT_EQ(top.messages(), (texts{error("Port top|a is of width 8 but the range indices are (8, 0)", bad_indices),
                                     error("Port top|a is of width 8 but the range indices are (2, -1)", bad_indices),
                                     error("Port top|s is of width 1 but the range indices are (1, 0)", bad_indices)}));
}

TEST_F(Range, BoundsInTheWrongOrderAreReported)
{
    auto & a = top.input("a", 8);
    auto & part = a.range(1, 3);
    EXPECT_EQ(part.get_width(), -1);
    EXPECT_EQ(part.get_range_driver(), &a);
    EXPECT_EQ(
        top.messages(),
        (texts{error("Range operation on port top|a has illegal range indices, high index is 1 but low index is 3",
                     bad_order)}));
}

TEST_F(Range, BoundsFarOutsideDoNotOverflow)
{
    constexpr int most = std::numeric_limits<int>::max(), least = std::numeric_limits<int>::min();
    auto & a = top.input("a", 8);
    EXPECT_EQ(a.range(most, least).get_width(), most);
    EXPECT_EQ(a.range(least, most).get_width(), least);
    EXPECT_EQ(a.range(most, 0).range(most, 3).range(5, least).range(3, 1).get_parent(), &top);
    EXPECT_EQ((new GNL_PORT_INPUT(&top, "m", 3, 4))->range(most, least).get_high_index(), most);
    EXPECT_FALSE(top.messages().empty());
}

TEST_F(Range, ARangeOfAScalarOutputMakesItAVectorOfOne)
{
    auto & y = top.output("y");
    auto & z = top.output("z", 4);
    auto & s = top.input("s");
    auto & w = top.wire("x");
    for (GNL_PORT * port : {static_cast<GNL_PORT *>(&y), static_cast<GNL_PORT *>(&z), static_cast<GNL_PORT *>(&s),
                            static_cast<GNL_PORT *>(&w)})
        (*port)[0];
    EXPECT_TRUE(y.is_vhdl_array_wire());
    EXPECT_FALSE(z.is_vhdl_array_wire());
    EXPECT_FALSE(s.is_vhdl_array_wire());
    EXPECT_FALSE(w.is_vhdl_array_wire());
}

TEST_F(Range, AScalarOutputOfAnArrayOfOneBecomesAVectorOfOneToo)
{
    auto & one = top.array(1, [](design & cell) {
        cell.output("q");
        cell.output("p", 2);
    });
    one.port("q")[0];
    one.port("p")[0];
    EXPECT_TRUE(one.port("q").is_vhdl_array_wire());
    EXPECT_FALSE(one.port("p").is_vhdl_array_wire());
}

TEST_F(Range, TakingOneMarksAllButInputsAsUsed)
{
    auto & leaf = top.child("leaf", "u1");
    auto & d = leaf.input("d", 4);
    auto & q = leaf.output("q", 4);
    auto & w = top.wire("x", 4);
    d.range(1, 0);
    q.range(1, 0);
    w.range(1, 0);
    EXPECT_FALSE(d.check_is_used_flag());
    EXPECT_TRUE(q.check_is_used_flag());
    EXPECT_TRUE(w.check_is_used_flag());
}

// ---- Through a wire

TEST_F(Range, OfAnExpressionIsTakenFromAWire)
{
    auto & both = top.input("a", 8) & top.input("b", 8);
    auto & part = both.range(3, 0);
    GNL_PORT & wire = *part.get_range_driver();
    EXPECT_TRUE(wire.is_wire());
    EXPECT_TRUE(top.is_auto_generated_wire_name(wire.get_name()));
    EXPECT_EQ(wire.get_width(), 8);
    EXPECT_EQ(wire.get_parent(), &top);
    EXPECT_EQ(wire.get_driver(), &both);
    EXPECT_EQ(wire.get_driver_count(), 1);
    EXPECT_EQ(both.get_driver_count(), 2) << "by the assignment and by the range";
    EXPECT_TRUE(both.check_is_used_flag());
    EXPECT_EQ(part.get_high_index(), 3);
    EXPECT_EQ(part.get_low_index(), 0);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Range, OfAnExpressionIsFoundAgain)
{
    auto & both = top.input("a", 8) & top.input("b", 8);
    auto & part = both.range(3, 0);
    EXPECT_EQ(&both.range(3, 0), &part);
    EXPECT_EQ(part.get_range_driver()->get_driver_count(), 2);
    EXPECT_NE(both.range(5, 4).get_range_driver(), part.get_range_driver()) << "each range has a wire of its own";
}

TEST_F(Range, OfAConcatenationIsTakenFromAWire)
{
    auto & both = (top.input("a", 4), top.input("b", 4));
    auto & part = both.range(5, 2);
    ASSERT_NE(part.get_range_driver(), nullptr);
    EXPECT_TRUE(part.get_range_driver()->is_wire());
    EXPECT_EQ(part.get_range_driver()->get_width(), 8);
    EXPECT_EQ(part.get_range_driver()->get_driver(), &both);
}

TEST_F(Range, OfAnExpressionOutsideOfTheBodyIsStillARange)
{
    design idle(nullptr, "idle");
    auto & both = idle.input("a", 8) & idle.input("b", 8);
    auto & part = both.range(3, 0);
    ASSERT_NE(part.get_range_driver(), nullptr);
    EXPECT_EQ(part.get_range_driver()->get_parent(), &idle);
    EXPECT_EQ(part.get_width(), 4);
    constexpr char const * cause = "An attempt has been made to make port connections outside of the rtl_body.";
    constexpr char const * action = "Make port connections inside rtl_body only.";
    EXPECT_EQ(idle.messages(),
              (texts{error("Logical operation AND between idle|a and idle|b is being done outside of rtl_body.", cause,
                           action),
                     error("Range object idle|" + part.get_range_driver()->get_name() + " is being assigned "
                               + both.get_hierarchical_name() + " outside of rtl_body.",
                           cause, action)}));
}

TEST_F(Range, OfWholeSlicesIsDirect)
{
    auto & cells = top.array(4, [](design & cell) { cell.input("d", 2); });
    GNL_PORT & d = cells.port("d");
    EXPECT_TRUE(d.check_range_for_arrays(3, 2));
    EXPECT_TRUE(d.check_range_for_arrays(7, 0));
    EXPECT_FALSE(d.check_range_for_arrays(2, 1));
    EXPECT_FALSE(d.check_range_for_arrays(2, 2));
    EXPECT_FALSE(d.check_range_for_arrays(3, 1));
    EXPECT_EQ(d.range(3, 2).get_range_driver(), &d);
    EXPECT_TRUE(d.range(3, 2).check_range_for_arrays(0, 0)) << "a range of a range";
    EXPECT_TRUE(cells[1].port("d").check_range_for_arrays(0, 0)) << "a slice";
}

TEST_F(Range, OfScalarSlicesIsAlwaysDirect)
{
    GNL_PORT & d = top.array(4, [](design & cell) { cell.input("d"); }).port("d");
    EXPECT_EQ(d.range(2, 1).get_range_driver(), &d);
    EXPECT_EQ(d[3].get_range_driver(), &d);
}

TEST_F(Range, AcrossSlicesOfAnInputSharesOneWireThatHasItsDefault)
{
    GNL_PORT & d = top.array(4, [](design & cell) { cell.input("d", 2, 1); }).port("d");
    auto & first = d.range(2, 1);
    GNL_PORT * const wire = first.get_range_driver();
    ASSERT_NE(wire, nullptr);
    EXPECT_TRUE(wire->is_wire());
    EXPECT_EQ(wire->get_width(), 8);
    EXPECT_EQ(wire->get_parent(), &top);
    EXPECT_EQ(wire->get_default_value(), 1);
    EXPECT_EQ(d.get_driver(), wire);
    EXPECT_EQ(d.range(4, 3).get_range_driver(), wire);
    EXPECT_EQ(&d.range(2, 1), &first);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Range, AcrossSlicesOfADrivenInputHasNothingToSelectFrom)
{
    auto & cells = top.array(4, [](design & cell) { cell.input("d", 2); });
    GNL_PORT & d = cells.port("d");
    d = top.input("x", 8);
    auto & failed = d.range(2, 1);
    EXPECT_EQ(failed.get_range_driver(), nullptr);
    EXPECT_EQ(failed.get_name(), "");
    EXPECT_EQ(failed.get_width(), 0);
    EXPECT_EQ(&d.range(2, 1), &failed);
    EXPECT_EQ(top.messages(),
              (texts{error("Range operation is being performed on top|cell inst arr|d but the range operation is "
                           "illegal, as either the indices are illegal or the parent of the port is a heterogeneous "
                           "array.",
                           cut_slices)}));
}

TEST_F(Range, WithoutADriverDoesNothingAndHarmsNothing)
{
    auto & cells = top.array(4, [](design & cell) { cell.input("d", 2); });
    GNL_PORT & d = cells.port("d");
    d = top.input("x", 8);
    auto & failed = d.range(2, 1);
    auto const posted = top.messages();
    EXPECT_TRUE(failed.check_range_driver_validity(&top));
    failed.set_range_port_used();
    failed = top.input("b", 2);
    failed = 1;
    MLIB_UINTEGER one(1u, 1);
    failed = one;
    failed = top.child("leaf", "u1").bidir("p");
    EXPECT_EQ(described(failed, top), "");
    EXPECT_EQ(described(failed.range(0, 0), top), "");
    EXPECT_EQ(failed.generate_key(), "RNG;PORT;d;GNRTR;cell;arr;GNRTR;top;;2;1");
    EXPECT_EQ(failed.get_hierarchical_name(), "");
    EXPECT_EQ(top.messages(), posted);
}

TEST_F(Range, AnOutputAcrossSlicesIsReadThroughAWire)
{
    GNL_PORT & q = top.array(4, [](design & cell) { cell.output("q", 2); }).port("q");
    GNL_PORT * const wire = q.range(2, 1).get_range_driver();
    ASSERT_NE(wire, nullptr);
    EXPECT_TRUE(wire->is_wire());
    EXPECT_EQ(wire->get_driver(), &q);
    EXPECT_EQ(wire->get_width(), 8);
    EXPECT_EQ(wire->get_parent(), &top) << "at the level of the statement";
    EXPECT_TRUE(q.check_is_used_flag());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Range, InTheDesignOfASliceIsDirect)
{
    auto & cells = top.array(4, [](design & cell) { cell.wire("x", 2); });
    cells.set_in_rtl_body();
    EXPECT_TRUE(cells.port("x").check_range_for_arrays(1, 1));
}

TEST_F(Range, OfAnUnevenPortIsReported)
{
    auto & cells = top.array(2, [](design & cell) { cell.input("d", 2 + (cell.get_slice_index() > 0)); });
    cells[0];
    GNL_PORT & d = cells.port("d");
    ASSERT_EQ(d.get_width(), 5);
    EXPECT_FALSE(d.check_range_for_arrays(1, 0));
    EXPECT_EQ(
        top.messages(),
        (texts{error("Heterogeneous port top|cell inst arr array|d is being assigned on the array parent object.",
                     "Ports of heterogeneous arrays (arrays with different parameters assigned to different "
                     "slices) cannot be assigned on the parent array object. If such arrays have different widths "
                     "on the different slices, they can be assigned only on the individual slices.")}));
}

// ---- Reading

TEST_F(Range, IsOnTheSideOfItsPort)
{
    auto & leaf = top.child("leaf", "u1");
    EXPECT_TRUE(top.input("a", 4).range(1, 0).check_range_driver_validity(&top));
    EXPECT_FALSE(leaf.input("d", 4).range(1, 0).check_range_driver_validity(&top));
    EXPECT_TRUE(leaf.output("q", 4).range(1, 0).check_range_driver_validity(&top));
    auto & z = top.output("z", 4);
    EXPECT_FALSE(z.range(1, 0).check_range_driver_validity(&top));
    EXPECT_FALSE(z.range(3, 0).range(1, 0).check_range_driver_validity(&top));
    EXPECT_TRUE(top.wire("x", 4).range(1, 0).check_range_driver_validity(&top));
    EXPECT_TRUE(top.bidir("io", 4).range(1, 0).check_range_driver_validity(&top));
}

TEST_F(Range, ReadingItUsesItsPort)
{
    auto & w = top.wire("x", 4);
    auto & part = w.range(3, 0).range(1, 0);
    w.set_used(false);
    part.set_range_port_used();
    EXPECT_TRUE(w.check_is_used_flag());
}

TEST_F(Range, ReadingAnUnconnectedInputIsReportedOrTakesItsDefault)
{
    open_design other(GNL_VERILOG, "", false);
    auto & late = other.design::input("late", 4);
    auto & e = other.design::input("e", 4, 1);
    auto & fed = other.input("fed", 4, 1);
    other.set_in_rtl_body();
    auto & part = late.range(1, 0).range(0, 0);
    for (GNL_PORT_OUTPUT_RANGE * read : {&part, &e.range(1, 0), &fed.range(1, 0)})
        read->set_range_port_used();
    EXPECT_FALSE(late.is_a_constant_wire());
    EXPECT_TRUE(e.is_a_constant_wire());
    EXPECT_FALSE(fed.is_a_constant_wire());
    EXPECT_EQ(other.messages(),
              (texts{error("Range object top|late|range--w_late_range1w of input port top|late is being used, but the "
                           "input port is not connected and has no default.",
                           "An attempt was made to use an unconnected input port. The input port should either be "
                           "connected or should have a default value.")}));
}

TEST_F(Range, OfOneBitIsALogicLevel)
{
    auto & a = top.input("a", 8);
    EXPECT_TRUE(a[3].is_std_logic_port());
    EXPECT_FALSE(a.range(3, 2).is_std_logic_port());
}

// ---- Without a parent, and very deep

TEST_F(Range, OfAPortWithoutAParentWorks)
{
    GNL_PORT free(nullptr, "free", 8);
    auto & part = free.range(3, 1);
    EXPECT_EQ(part.get_range_driver(), &free);
    EXPECT_EQ(part.get_width(), 3);
    EXPECT_EQ(part.get_name(), "wire_freerange0");
    EXPECT_EQ(part.generate_key(), "RNG;PORT;free;;NULL;3;1");
    free.range(9, 0);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Range, AHundredThousandRangesDeep)
{
    constexpr int depth = 100000;
    auto & a = top.input("a", 8);
    auto & y = top.output("y", 8);
    GNL_PORT * part = &a;
    GNL_PORT * sink = &y;
    for (int i = 0; i < depth; ++i) {
        part = &part->range(7, 0);
        sink = &sink->range(7, 0);
    }
    part = &part->range(6, 5);
    sink = &sink->range(2, 1);
    EXPECT_EQ(described(*part, top), "a[6:5]");
    EXPECT_TRUE(part->check_rhs(&top));
    part->set_range_port_used();
    static_cast<GNL_PORT_OUTPUT_RANGE &>(*sink) = *part;
    ASSERT_NE(y.get_driver(), nullptr);
    EXPECT_EQ(described(*y.get_driver(), top, false, &y).substr(0, 7), "{a[6:5]");
    EXPECT_EQ(part->get_hierarchical_name().substr(0, 25), "top|a|range--w_a_range1w|");
    EXPECT_EQ(part->generate_key().substr(0, 8), "RNG;RNG;");
}

TEST_F(Range, AHundredThousandRangesDeepEachAskedOnTheWay)
{
    auto & a = top.input("a", 8);
    GNL_PORT * part = &a;
    for (int i = 0; i < 100000; ++i) {
        part = &part->range(part->get_width() - 1, i % 25000 == 24999 ? 1 : 0);
        ASSERT_TRUE(part->check_rhs(&top));
        ASSERT_EQ(described(*part, top), "a[7:" + std::to_string((i + 1) / 25000) + "]");
    }
    EXPECT_EQ(part->get_width(), 4);
}

TEST_F(Range, AHundredThousandRangesDeepOnSlicesInQhdl)
{
    top.set_gen_language(GNL_QHDL);
    auto & array = top.child("cell", "u", "", 3);
    array.declare_slice = [](design & slice) { slice.output("q", 4); };
    array.declare_slice(array);
    GNL_PORT * part = &array.port("q");
    for (int i = 0; i < 100000; ++i)
        part = &part->range(11, 0);
    EXPECT_EQ(described(part->range(7, 4), top), "u[1..1].q[3..0]");
    EXPECT_EQ(part->range(6, 3).get_range_driver()->is_wire(), true) << "cut out of two slices";
}

TEST_F(Range, OfARangeFollowsItsExchangedDriver)
{
    auto & a = top.input("a", 8);
    auto & b = top.input("b", 8);
    auto & outer = a.range(6, 1);
    auto & middle = outer.range(4, 1);
    auto & inner = middle.range(2, 1);
    EXPECT_EQ(described(inner, top), "a[4:3]");
    outer.replace_range_driver(&b);
    EXPECT_EQ(described(inner, top), "b[4:3]");
    middle.replace_range_driver(&b.range(7, 3));
    EXPECT_EQ(described(inner, top), "b[6:5]");
    EXPECT_EQ(described(middle, top), "b[7:4]");
}

TEST_F(Range, OfExpressionsOfRangesFiftyThousandDeep)
{
    auto & a = top.input("a", 8);
    GNL_PORT * part = &a;
    for (int i = 0; i < 50000; ++i)
        part = &(*part ^ a).range(7, 0);
    EXPECT_EQ(part->generate_key().substr(0, 24), "RNG;LGC;XOR;RNG;LGC;XOR;");
    EXPECT_EQ(top.messages(), texts{});
}

} // namespace
