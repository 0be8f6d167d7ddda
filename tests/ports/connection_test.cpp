// Assignments of a port to a port. The exact messages are in port_messages_test.cpp.

#include "open_design.h"

#include <type_traits>

namespace {

using namespace gnl_test;

class Connection : public in_folder
{
};

TEST_F(Connection, StoresDriverLevelAndUse)
{
    open_design top(GNL_VERILOG);
    auto & a = top.bidir("a", 8);
    auto & y = top.output("y", 8);
    EXPECT_EQ(&(y = a), &y);
    EXPECT_EQ(y.get_driver(), &a);
    EXPECT_EQ(y.get_connection_level(), &top);
    EXPECT_TRUE(y.check_is_used_flag());
    EXPECT_TRUE(a.check_is_used_flag());
    EXPECT_FALSE(y.is_driven_by_constant());
    EXPECT_EQ(a.get_driver_count(), 1);
    EXPECT_EQ(top.messages(), texts{});
}

// A generator is no source.
static_assert(!std::is_assignable_v<GNL_PORT &, GNL_GENERATOR &>);
static_assert(!std::is_assignable_v<GNL_PORT_INPUT &, GNL_GENERATOR &>);
static_assert(!std::is_assignable_v<GNL_PORT_OUTPUT &, GNL_GENERATOR &>);
static_assert(!std::is_assignable_v<GNL_PORT_BIDIR &, GNL_GENERATOR &>);
static_assert(!std::is_assignable_v<GNL_WIRE &, GNL_GENERATOR &>);

TEST_F(Connection, OfTwoPortsOfOneKindConnectsAndDoesNotCopy)
{
    open_design top(GNL_VERILOG);
    design & one = top.child("cell", "u1");
    design & two = top.child("cell", "u2");
    GNL_PORT_INPUT & d = one.input("d");
    GNL_PORT_INPUT & a = top.input("a");
    GNL_PORT_OUTPUT & y = top.output("y");
    GNL_PORT_OUTPUT & q = two.output("q");
    GNL_PORT_BIDIR & io = top.bidir("io");
    GNL_PORT_BIDIR & jo = top.bidir("jo");
    GNL_WIRE & v = top.wire("v");
    GNL_WIRE & w = top.wire("w");
    d = a;
    y = q;
    io = jo;
    v = w;
    EXPECT_EQ(d.get_driver(), &a);
    EXPECT_EQ(y.get_driver(), &q);
    EXPECT_EQ(io.get_driver(), &jo);
    EXPECT_EQ(v.get_driver(), &w);
    EXPECT_EQ(d.get_name(), "d");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Connection, MarksNoWireAsUsed)
{
    open_design top(GNL_VERILOG);
    auto & v = top.wire("v");
    auto & w = top.wire("w");
    w = v;
    EXPECT_FALSE(v.check_is_used_flag());
    EXPECT_FALSE(w.check_is_used_flag());
    EXPECT_EQ(v.get_driver_count(), 1);
}

TEST_F(Connection, OfASubdesignIsMadeAtTheLevelAroundIt)
{
    open_design top(GNL_VERILOG);
    design & cell = top.child("cell", "u1");
    auto & d = cell.input("d");
    auto & q = cell.output("q");
    auto & y = top.output("y");
    d = top.wire("a");
    y = q;
    EXPECT_EQ(d.get_connection_level(), &top);
    EXPECT_TRUE(d.check_is_used_flag());
    EXPECT_TRUE(q.check_is_used_flag());
    EXPECT_EQ(cell.input("e").find_connection_level(), &top);
    cell.set_in_rtl_body();
    EXPECT_EQ(d.find_connection_level(), &cell);
    EXPECT_EQ(GNL_WIRE(nullptr, "free").find_connection_level(), nullptr);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Connection, WithoutAParentDoesNothing)
{
    open_design top(GNL_VERILOG);
    auto & p = top.child("cell", "u1").bidir("p");
    GNL_PORT_BIDIR free(nullptr, "free");
    EXPECT_EQ(&(free = p), &free);
    EXPECT_EQ(&free.make_connection(p, 0, 0, &top, true), &free);
    EXPECT_EQ(free.get_driver(), nullptr);
    EXPECT_EQ(p.get_driver_count(), 0);
    EXPECT_EQ(p.is_locked_bidir_port(), 0);
}

TEST_F(Connection, RepeatsASourceThatDividesTheSink)
{
    open_design top(GNL_VERILOG);
    auto & two = top.wire("two", 2);
    auto & scalar = top.wire("scalar");
    auto & one = top.wire("one", 1);
    auto & y = top.output("y", 8);
    auto & z = top.output("z", 8);
    auto & s = top.output("s");
    y = two;
    z = scalar;
    s = one;
    EXPECT_EQ(y.get_driver(), &two);
    EXPECT_EQ(z.get_driver(), &scalar);
    EXPECT_EQ(s.get_driver(), &one);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Connection, IsMadeInSpiteOfMismatchedWidths)
{
    open_design top(GNL_VERILOG);
    auto & b = top.wire("b", 8);
    auto & y = top.output("y", 2);
    y = b;
    EXPECT_EQ(y.get_driver(), &b);
    EXPECT_TRUE(y.check_is_used_flag());
    EXPECT_EQ(b.get_driver_count(), 1);
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(Connection, IsRefusedOutsideOfABody)
{
    open_design top(GNL_VERILOG);
    auto & b = top.wire("b");
    auto & y = top.output("y");
    y.set_connection_level(&top);
    top.set_out_of_rtl_body();
    y = b;
    EXPECT_EQ(y.get_driver(), nullptr);
    EXPECT_EQ(y.get_connection_level(), nullptr);
    EXPECT_FALSE(y.check_is_used_flag());
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(Connection, KeepsTheFirstDriver)
{
    open_design top(GNL_VERILOG);
    auto & a = top.wire("a");
    auto & b = top.wire("b");
    auto & y = top.output("y");
    y = a;
    y = b;
    EXPECT_EQ(y.get_driver(), &a);
    EXPECT_EQ(b.get_driver_count(), 0);
    auto & z = top.output("z");
    z = 1;
    z = b;
    EXPECT_EQ(z.get_driver(), nullptr);
    EXPECT_EQ(top.messages().size(), 2u);
}

TEST_F(Connection, KeepsTheNameOfAPiecewiseDriverInItsRefusal)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 8);
    y.range(3, 0) = top.wire("b", 4);
    y = top.wire("c", 8);
    EXPECT_EQ(
        top.messages(),
        texts{error("Port top|y has already been assigned CONCAT (top|b , ), and is again being assigned top|c",
                    "The port was already assigned a value (either a port or a constant value). The new value can "
                    "not be reassigned.")});
}

// ---- Who may stand where

TEST_F(Connection, SourcesAndSinksDependOnTheLevel)
{
    open_design top(GNL_VERILOG);
    design & cell = top.child("cell", "u1");
    auto & w = top.wire("w", 2);
    auto const sides = [&](GNL_PORT & port) {
        return std::string(port.check_lhs(&top) ? "L" : "-") + (port.check_rhs(&top) ? "R" : "-");
    };
    EXPECT_EQ(sides(top.input("a")), "-R");
    EXPECT_EQ(sides(top.output("y")), "L-");
    EXPECT_EQ(sides(top.bidir("io")), "LR");
    EXPECT_EQ(sides(w), "LR");
    EXPECT_EQ(sides(cell.input("d")), "L-");
    EXPECT_EQ(sides(cell.output("q")), "-R");
    EXPECT_EQ(sides(cell.bidir("p")), "LR");
    EXPECT_EQ(sides(~w), "LR");
    EXPECT_EQ(sides((w, w)), "LR");
    EXPECT_EQ(sides(*new GNL_PORT(&top, "plain")), "LR");
    EXPECT_EQ(sides(w.range(0, 0)), "LR");
    EXPECT_EQ(sides(top.output("z", 2).range(0, 0)), "L-");
}

TEST_F(Connection, ReportsBothWrongSidesTheSinkFirst)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a");
    a = top.output("z");
    EXPECT_EQ(a.get_driver(), nullptr);
    ASSERT_EQ(top.messages().size(), 2u);
    EXPECT_NE(top.messages()[0].find("can't be used on LHS"), std::string::npos);
    EXPECT_NE(top.messages()[1].find("can't be used on RHS"), std::string::npos);
}

TEST_F(Connection, TakesAnExpressionOnTheLeft)
{
    open_design top(GNL_VERILOG);
    auto & b = top.wire("b");
    GNL_PORT & expression = top.wire("a") & b;
    expression = b;
    EXPECT_EQ(expression.get_driver(), &b);
    EXPECT_EQ(top.messages(), texts{});
}

// ---- Inputs as sources

TEST_F(Connection, OfAnUnfedInputNeedsADefault)
{
    open_design top(GNL_VERILOG);
    auto & late = static_cast<design &>(top).input("late");
    auto & y = top.output("y");
    y = late;
    EXPECT_EQ(y.get_driver(), &late);
    EXPECT_EQ(late.get_driver_count(), 1);
    EXPECT_FALSE(late.is_a_constant_wire());
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(Connection, OfAnUnfedInputWithADefaultMakesItAConstantWire)
{
    design top(nullptr);
    auto & one = top.input("one", 0, 1);
    auto & fed = top.input("fed", 0, 1);
    fed.set_used();
    top.set_in_rtl_body();
    top.output("y") = one;
    top.output("z") = fed;
    EXPECT_TRUE(one.is_a_constant_wire());
    EXPECT_FALSE(fed.is_a_constant_wire());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Connection, OfARangeSettlesItsLevelAndUse)
{
    open_design top(GNL_VERILOG);
    auto & q = top.child("cell", "u1").output("q", 4);
    auto & part = q.range(1, 0);
    part.set_connection_level(nullptr);
    q.set_used(false);
    top.output("y", 2) = part;
    EXPECT_EQ(part.get_connection_level(), &top);
    EXPECT_TRUE(q.check_is_used_flag());
    EXPECT_EQ(part.get_driver_count(), 1);
}

// ---- Loops in VHDL

TEST_F(Connection, OfDifferentWidthsNeedsALoopInVhdl)
{
    open_design top(GNL_VHDL);
    auto & a = top.wire("a", 8);
    auto & b = top.wire("b", 2);
    auto & one = top.wire("one", 1);
    auto & x = top.output("x", 8);
    auto & y = top.output("y", 8);
    auto & z = top.output("z", 8);
    auto & s = top.output("s");
    auto & part = a.range(5, 4);
    x = a;
    y = b;
    z = part;
    s = one;
    EXPECT_FALSE(x.need_to_create_vhdl_loop());
    EXPECT_TRUE(y.need_to_create_vhdl_loop());
    EXPECT_FALSE(b.need_to_create_vhdl_loop());
    EXPECT_TRUE(z.need_to_create_vhdl_loop());
    EXPECT_TRUE(part.need_to_create_vhdl_loop());
    EXPECT_FALSE(s.need_to_create_vhdl_loop());
}

TEST_F(Connection, OfAnArrayNeedsALoopUnlessSliceAndSourceFit)
{
    open_design top(GNL_VHDL);
    design & arr = top.array(4, [](design & slice) {
        slice.input("d", 2);
        slice.input("e", 2);
        slice.input("f");
        slice.input("g");
    });
    arr.port("d") = top.wire("v8", 8);
    arr.port("e") = top.wire("v2", 2);
    arr.port("f") = top.wire("v4", 4);
    arr.port("g") = top.wire("v");
    EXPECT_TRUE(arr.port("d").need_to_create_vhdl_loop());
    EXPECT_FALSE(arr.port("e").need_to_create_vhdl_loop());
    EXPECT_TRUE(arr.port("f").need_to_create_vhdl_loop());
    EXPECT_FALSE(arr.port("g").need_to_create_vhdl_loop());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Connection, OfAnArrayOfOneFitsItsSource)
{
    open_design top(GNL_VHDL);
    design & arr = top.array(1, [](design & slice) {
        slice.input("d", 2);
        slice.input("e");
        slice.input("f", 1);
    });
    arr.port("d") = top.wire("v2", 2);
    arr.port("e") = top.wire("v1", 1);
    arr.port("f") = top.wire("v");
    for (char const * name : {"d", "e", "f"})
        EXPECT_FALSE(arr.port(name).need_to_create_vhdl_loop()) << name;
}

// ---- Arrays

TEST_F(Connection, OfASliceRefusesALaterOneOfTheArray)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(4, [](design & slice) { slice.input("d", 2); });
    GNL_PORT & d = arr.port("d");
    arr[1].port("d") = top.wire("v", 2);
    EXPECT_FALSE(d.check_slices());
    EXPECT_TRUE(d.check_slices(1, 0));
    EXPECT_FALSE(d.check_slices(3, 2));
    d = top.wire("x", 8);
    EXPECT_EQ(d.get_driver(), nullptr);
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(Connection, OfAnArrayRefusesLaterOnesOfItsSlices)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(4, [](design & slice) { slice.input("d", 2); });
    auto & v = top.wire("v", 2);
    arr.port("d").range(5, 2) = top.wire("x", 4);
    EXPECT_TRUE(arr[0].port("d").check_slices());
    EXPECT_FALSE(arr[1].port("d").check_slices());
    EXPECT_FALSE(arr[2].port("d").check_slices(0, 0));
    arr[1].port("d") = v;
    arr[3].port("d") = v;
    EXPECT_EQ(arr[1].port("d").get_driver(), nullptr);
    EXPECT_EQ(arr[3].port("d").get_driver(), &v);
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(Connection, InTheBodyOfASliceIsFreeOfThoseAroundIt)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(2, [](design & slice) { slice.bidir("io", 2); });
    arr.port("io") = top.wire("x", 4);
    GNL_GENERATOR & slice = arr[0];
    slice.set_in_rtl_body();
    auto & inner = *new GNL_WIRE(&slice, "inner", 2);
    slice.port("io") = inner;
    EXPECT_EQ(slice.port("io").get_driver(), &inner);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Connection, OfAFreePortAndOfAPlainDesignHasNoSlicesToCheck)
{
    open_design top(GNL_VERILOG);
    EXPECT_TRUE(GNL_WIRE(nullptr, "free", 4).check_slices());
    EXPECT_TRUE(GNL_WIRE(nullptr, "free", 4).check_slices(1, 0));
    EXPECT_TRUE(top.wire("w", 4).check_slices());
    EXPECT_TRUE(top.wire("v", 4).check_slices(1, 0));
}

} // namespace
