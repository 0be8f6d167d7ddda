// The reference to a range in each language.

#include "language_texts.h"

using namespace gnl_test;

namespace {

class RangeDescription : public in_folder
{
};

TEST_F(RangeDescription, OfAPortOfTheDesign)
{
    expect_language_texts({"a[3:1] a[2]", "a(3 DOWNTO 1) a(2)", "a[3..1] a[2..2]"}, [](open_design & top) {
        auto & a = top.input("a", 8);
        return described(a.range(3, 1), top) + " " + described(a[2], top);
    });
    expect_language_texts({"v[0]", "v(0)", "v[0..0]"},
                          [](open_design & top) { return described(top.wire("v", 1)[0], top); });
}

TEST_F(RangeDescription, OfAScalarHasNoIndex)
{
    expect_language_texts({"s y", "s y", "s y"}, [](open_design & top) {
        return described(top.input("s")[0], top) + " " + described(top.output("y")[0], top);
    });
}

TEST_F(RangeDescription, OfAReservedWordInVhdl)
{
    expect_language_texts({"in[1]", "a_in(1)", "in[1..1]"},
                          [](open_design & top) { return described(top.input("in", 2)[1], top); });
}

TEST_F(RangeDescription, OfAnOutputOfASubdesign)
{
    expect_language_texts(
        {"wire_u1_q[3:1] wire_u1_q[2]", "wire_u1_q(3 DOWNTO 1) wire_u1_q(2)", "u1.q[3..1] u1.q[2..2]"},
        [](open_design & top) {
            auto & q = top.child("leaf", "u1").output("q", 8);
            return described(q.range(3, 1), top) + " " + described(q[2], top);
        });
}

// VHDL declares its signal as a vector of one element, because of the range.
TEST_F(RangeDescription, OfAScalarOutputOfASubdesign)
{
    expect_language_texts({"wire_u1_q", "wire_u1_q(0)", "u1.q"},
                          [](open_design & top) { return described(top.child("leaf", "u1").output("q")[0], top); });
}

TEST_F(RangeDescription, OfAnInputOfASubdesign)
{
    expect_language_texts({"wire_u1_d[3:1]", "wire_u1_d(3 DOWNTO 1)", "u1.d[3..1]"}, [](open_design & top) {
        return described(top.child("leaf", "u1").input("d", 8).range(3, 1), top);
    });
}

TEST_F(RangeDescription, OfABidirOfASubdesign)
{
    expect_language_texts({"wire_u1_p[3:1]", "wire_u1_p(3 DOWNTO 1)", "u1.p[3..1]"}, [](open_design & top) {
        return described(top.child("leaf", "u1").bidir("p", 8).range(3, 1), top);
    });
}

TEST_F(RangeDescription, OfADrivenBidirOfASubdesignIsThatOfItsNode)
{
    expect_language_texts({"wire_u1_p[3:1]", "wire_u1_p(3 DOWNTO 1)", "u1_p[3..1]"}, [](open_design & top) {
        auto & p = top.child("leaf", "u1").bidir("p", 8);
        p = top.input("a", 8);
        return described(p.range(3, 1), top);
    });
    expect_language_texts({"wire_u1_p[3:1]", "wire_u1_p(3 DOWNTO 1)", "u1_p[3..1]"}, [](open_design & top) {
        auto & p = top.child("leaf", "u1").bidir("p", 8);
        p = 5;
        return described(p.range(3, 1), top);
    });
}

TEST_F(RangeDescription, OfANodeOfASlice)
{
    open_design top(GNL_QHDL);
    auto & cells = top.array(4, [](design & cell) {
        cell.bidir("p", 2);
        cell.output("q", 2);
    });
    auto & p = cells[3].port("p");
    p = 1;
    EXPECT_EQ(described(p[1], top), "arr3_p[1..1]");
    EXPECT_EQ(described(p, top), "arr3_p[]");
    cells[3].set_custom_subdesign_insert_mode();
    cells[3].set_use_custom_qhdl_output();
    EXPECT_EQ(described(cells[3].port("q")[1], top), "arr_q[7..7]");
    EXPECT_EQ(described(cells[3].port("q"), top), "arr_q[7..6]");
}

TEST_F(RangeDescription, OfAnOutputOfACellThatQhdlWritesAsStatements)
{
    expect_language_texts({"wire_u1_q[3:1]", "wire_u1_q(3 DOWNTO 1)", "u1_q[3..1]"}, [](open_design & top) {
        auto & leaf = top.child("leaf", "u1");
        leaf.set_custom_subdesign_insert_mode();
        leaf.set_use_custom_qhdl_output();
        return described(leaf.output("q", 8).range(3, 1), top);
    });
}

TEST_F(RangeDescription, OfAnArray)
{
    expect_language_texts({"wire_arr_q[5:2]", "wire_arr_q(5 DOWNTO 2)", "arr[2..1].q[1..0]"}, [](open_design & top) {
        return described(top.array(4, [](design & cell) { cell.output("q", 2); }).port("q").range(5, 2), top);
    });
}

TEST_F(RangeDescription, OfAnArrayOfScalarsCountsSlices)
{
    expect_language_texts({"wire_arr_s[2:1]", "wire_arr_s(2 DOWNTO 1)", "arr[2..1].s"}, [](open_design & top) {
        return described(top.array(4, [](design & cell) { cell.output("s"); }).port("s").range(2, 1), top);
    });
}

TEST_F(RangeDescription, OfAnArrayOfCellsThatQhdlWritesAsStatementsCountsBits)
{
    open_design top(GNL_QHDL);
    auto & cells = top.array(4, [](design & cell) { cell.output("q", 2); });
    cells.set_custom_subdesign_insert_mode();
    cells.set_use_custom_qhdl_output();
    EXPECT_EQ(described(cells.port("q").range(5, 2), top), "arr_q[5..2]");
}

// Slices that differ have a node each.
TEST_F(RangeDescription, OfAnArrayOfDifferingCellsThatQhdlWritesAsStatementsIsAListOfTheirNodes)
{
    open_design top(GNL_QHDL);
    auto const declare = [](design & cell) {
        cell.output("q", 2);
        cell.output("s");
        cell.set_custom_subdesign_insert_mode();
        cell.set_use_custom_qhdl_output();
    };
    auto & cells = top.array(4, declare);
    cells.create_slices();
    cells.set_as_heterogeneous_array();
    EXPECT_EQ(described(cells.port("q").range(5, 2), top), "( arr2_q[], arr1_q[])");
    EXPECT_EQ(described(cells.port("s").range(2, 1), top), "( arr2_s, arr1_s)");
    EXPECT_EQ(described(cells[3].port("q")[1], top), "arr3_q[1..1]");
    EXPECT_EQ(described(cells[3].port("s")[0], top), "arr3_s");
}

TEST_F(RangeDescription, OfASlice)
{
    open_design top(GNL_QHDL);
    auto & cells = top.array(4, [](design & cell) { cell.output("q", 2); });
    EXPECT_EQ(described(cells[3].port("q").range(1, 1), top), "arr[3].q[1..1]");
}

// The signal of a slice is its own as long as the array's port is not connected as a whole.
TEST_F(RangeDescription, OfASliceInVerilog)
{
    open_design top(GNL_VERILOG);
    auto & cells = top.array(4, [](design & cell) {
        cell.output("q", 2);
        cell.output("s");
    });
    EXPECT_EQ(described(cells[3].port("q")[1], top), "wire_arr_3q[1]");
    cells.port("q").set_used();
    cells.port("s").set_used();
    EXPECT_EQ(described(cells[3].port("q")[1], top), "wire_arr_q[7]");
    EXPECT_EQ(described(cells[3].port("q").range(1, 0), top), "wire_arr_q[7:6]");
    EXPECT_EQ(described(cells[3].port("s")[0], top), "wire_arr_s[3]");
}

TEST_F(RangeDescription, OfARangeShowsTheBitsOfThePort)
{
    expect_language_texts({"a[6:5] a[6]", "a(6 DOWNTO 5) a(6)", "a[6..5] a[6..6]"}, [](open_design & top) {
        auto & part = top.input("a", 8).range(7, 4).range(2, 1);
        return described(part, top) + " " + described(part.range(1, 1), top);
    });
}

TEST_F(RangeDescription, WithBitsOfItsOwnSelectsWithinTheRange)
{
    expect_language_texts(
        {"a[4] a[6:5] a[7:4] a[5]", "a(4) a(6 DOWNTO 5) a(7 DOWNTO 4) a(5)", "a[4..4] a[6..5] a[7..4] a[5..5]"},
        [](open_design & top) {
            auto & part = top.input("a", 8).range(7, 4);
            std::ostringstream out;
            part.dump_port_description(out, &top, false, nullptr, 0, 0);
            out << " ";
            part.dump_port_description(out, &top, false, nullptr, 2, 1);
            out << " ";
            part.dump_port_description(out, &top, false, nullptr, -1, -1);
            out << " ";
            part.range(2, 1).dump_port_description(out, &top, false, nullptr, 0, 0);
            return out.str();
        });
}

TEST_F(RangeDescription, ATargetOfOneBitTakesABitInVhdl)
{
    open_design top(GNL_VHDL);
    auto & a = top.input("a", 8);
    auto & s = top.output("s");
    auto & b = top.output("b", 4);
    auto & d = top.child("leaf", "u1").input("d", 4);
    EXPECT_EQ(described(a.range(3, 1), top, false, &s), "a(3)");
    EXPECT_EQ(described(a.range(3, 1), top, false, &b), "a(3 DOWNTO 1)");
    EXPECT_EQ(described(a[2], top, false, &b), "a(2)");
    EXPECT_EQ(described(a[2], top, false, &d), "a(2 DOWNTO 2)");
    EXPECT_EQ(described(a.range(3, 1), top, false, &d), "a(3 DOWNTO 1)");
}

TEST_F(RangeDescription, ThroughAWireShowsTheWire)
{
    expect_language_texts({"w3w[5:2]", "w3w(5 DOWNTO 2)", "w3w[5..2]"}, [](open_design & top) {
        GNL_PORT & both = (top.input("a", 8), top.input("b", 8));
        top.generate_wire_name("", "");
        return described(both.range(5, 2), top);
    });
}

TEST_F(RangeDescription, AcrossTheSlicesOfAnArrayShowsTheWire)
{
    expect_language_texts({"w1w[2:1]", "w1w(2 DOWNTO 1)", "w1w[2..1]"}, [](open_design & top) {
        return described(top.array(4, [](design & cell) { cell.input("d", 2); }).port("d").range(2, 1), top);
    });
}

} // namespace
