// What a concatenation writes in each language, and the holes that show when it is written.

#include "language_texts.h"

using namespace gnl_test;

namespace {

constexpr char const * partial =
    "The port has been partially assigned. Some bits of the port are not assigned with a driver.";

class ConcatDescription : public in_folder
{
};

TEST_F(ConcatDescription, OfPortsAndRanges)
{
    expect_language_texts({"{a, b[3:2], s}", "( a & b(3 DOWNTO 2) & s)", "( a[], b[3..2], s)"}, [](open_design & top) {
        auto & all = (top.input("a", 8), top.input("b", 4).range(3, 2), top.input("s"));
        return described(all, top);
    });
}

TEST_F(ConcatDescription, HandsTheWishForAnIndexOn)
{
    expect_language_texts({"{a, s}", "( a(7 DOWNTO 0) & s)", "( a[7..0], s)"},
                          [](open_design & top) { return described((top.input("a", 8), top.input("s")), top, true); });
}

TEST_F(ConcatDescription, HandsItsTargetOn)
{
    expect_language_texts({"{a[3:1], b[0]}", "( a(3) & b(0))", "( a[3..1], b[0..0])"}, [](open_design & top) {
        auto & all = (top.input("a", 8).range(3, 1), top.input("b", 2)[0]);
        return described(all, top, false, &top.output("y"));
    });
}

TEST_F(ConcatDescription, OfExpressions)
{
    expect_language_texts({"{(a & b), s}", "( wire_w_lg_a1w(0) & s)", "( (a & b), s)"}, [](open_design & top) {
        auto & both = top.input("a") & top.input("b");
        return described((both, top.input("s")), top);
    });
}

TEST_F(ConcatDescription, OfAConcatenationInside)
{
    expect_language_texts({"{s, {a, b}}", "( s & ( a & b))", "( s, ( a[], b[]))"}, [](open_design & top) {
        GNL_PORT & inner = (top.input("a", 2), top.input("b", 2));
        return described((top.input("s"), inner), top);
    });
}

TEST_F(ConcatDescription, OfConstants)
{
    expect_language_texts(
        {"{a, 2'b10, {3{1'b1}}, 1'b0}", "( a & \"10\" & \"111\" & \"0\")", "( a[], B\"10\", B\"111\", B\"0\")"},
        [](open_design & top) {
            auto & y = top.output("y", 14);
            y.range(13, 6) = top.input("a", 8);
            y.range(5, 4) = 2;
            y.range(3, 1) = 7;
            y[0] = 0;
            return described(*y.get_driver(), top, false, &y);
        });
}

// ---- Repetition

TEST_F(ConcatDescription, TheSamePortSideBySideIsRepeatedInVerilog)
{
    expect_language_texts({"{{3{b}}, s}", "( b & b & b & s)", "( b[], b[], b[], s)"}, [](open_design & top) {
        auto & y = top.output("y", 7);
        y.range(6, 1) = top.input("b", 2);
        y[0] = top.input("s");
        return described(*y.get_driver(), top, false, &y);
    });
}

TEST_F(ConcatDescription, ARepetitionThatStandsAloneNeedsNoBracesOfItsOwn)
{
    expect_language_texts({"{3{b}}", "( b & b & b)", "( b[], b[], b[])"}, [](open_design & top) {
        auto & y = top.output("y", 6);
        y.range(5, 0) = top.input("b", 2);
        return described(*y.get_driver(), top, false, &y);
    });
}

TEST_F(ConcatDescription, EqualConstantsSideBySideAreWrittenOnceInVerilog)
{
    expect_language_texts(
        {"{{3{2'b10}}, 2'b01}", "( \"10\" & \"10\" & \"10\" & \"01\")", "( B\"10\", B\"10\", B\"10\", B\"01\")"},
        [](open_design & top) {
            auto & y = top.output("y", 8);
            y.range(7, 6) = 2;
            y.range(5, 4) = 2;
            y.range(3, 2) = 2;
            y.range(1, 0) = 1;
            return described(*y.get_driver(), top, false, &y);
        });
}

TEST_F(ConcatDescription, WritingItTwiceGivesTheSame)
{
    open_design top(GNL_VERILOG);
    auto & b = top.input("b", 2);
    auto & all = (b, b, top.input("s"));
    EXPECT_EQ(described(all, top), "{{2{b}}, s}");
    EXPECT_EQ(described(all, top), "{{2{b}}, s}");
    EXPECT_EQ(all.get_element_count(), 3);
}

TEST_F(ConcatDescription, PortsThatDoNotTouchAreNotTakenTogether)
{
    open_design top(GNL_VERILOG);
    auto & x = top.wire("x", 8);
    x.set_default_port_value(1);
    auto & b = top.input("b", 2);
    x.range(7, 6) = b;
    x.range(3, 2) = b;
    EXPECT_EQ(described(*x.get_driver(), top, false, &x), "{b, {2{1'b1}}, b, {2{1'b1}}}");
}

// A part before the only element makes it one of several.
TEST_F(ConcatDescription, ARepetitionBehindAFilledHoleHasBracesOfItsOwn)
{
    open_design top(GNL_VERILOG);
    auto & x = top.wire("x", 8);
    x.set_default_port_value(0);
    x.range(5, 0) = top.input("b", 2);
    EXPECT_EQ(described(*x.get_driver(), top, false, &x), "{{2{1'b0}}, {3{b}}}");
}

// ---- Holes

TEST_F(ConcatDescription, HolesUnderADefaultAreFilled)
{
    expect_language_texts({"{{2{1'b1}}, a, {1{1'b1}}, b, {3{1'b1}}}", "( \"11\" & a & \"1\" & b & \"111\")",
                           "( B\"11\", a[], VCC, b[], B\"111\")"},
                          [](open_design & top) {
                              auto & x = top.wire("x", 10);
                              x.set_default_port_value(1);
                              x.range(7, 6) = top.input("a", 2);
                              x.range(4, 3) = top.input("b", 2);
                              return described(*x.get_driver(), top, false, &x);
                          });
    expect_language_texts({"{{2{1'b0}}, a}", "( \"00\" & a)", "( B\"00\", a[])"}, [](open_design & top) {
        auto & d = top.child("leaf", "u1").input("d", 4, 0);
        d.range(1, 0) = top.input("a", 2);
        return described(*d.get_driver(), top, false, &d);
    });
}

/// Clean-up can put a narrower source in the place of a wire that repeated it.
TEST_F(ConcatDescription, APortThatIsNarrowerThanItsBitsIsRepeated)
{
    expect_language_texts({"{{3{s}}, {2{a}}}", "( s & s & s & a & a)", "( s, s, s, a[], a[])"}, [](open_design & top) {
        auto & pieces = *new GNL_PORT_CONCAT(&top, 7);
        pieces.add_at_index(top.input("s"), 6, 4, nullptr);
        pieces.add_at_index(top.input("a", 2), 3, 0, nullptr);
        return described(pieces, top);
    });
    expect_language_texts({"{3{s}}", "( s)", "( s)"}, [](open_design & top) {
        auto & pieces = *new GNL_PORT_CONCAT(&top, 3);
        pieces.add_at_index(top.input("s"), 2, 0, nullptr);
        return described(pieces, top);
    });
}

TEST_F(ConcatDescription, APortThatIsRepeatedAboveAHoleIsNotAlone)
{
    expect_language_texts({"{{2{s}}, {2{1'b0}}}", "( s & s & \"00\")", "( s, s, B\"00\")"}, [](open_design & top) {
        auto & w = top.wire("w", 4);
        w.set_default_port_value(0);
        w.range(3, 2) = top.input("s");
        return described(*w.get_driver(), top, false, &w);
    });
}

TEST_F(ConcatDescription, HolesAreReportedForTheTargetWhenTheyAreWritten)
{
    for (int const language : {GNL_VERILOG, GNL_VHDL, GNL_QHDL, GNL_TCL}) {
        open_design top(language);
        auto & y = top.output("y", 10);
        y.range(7, 6) = top.input("a", 2);
        y.range(4, 3) = top.input("b", 2);
        EXPECT_EQ(top.messages(), texts{});
        described(*y.get_driver(), top, false, &y);
        std::string const start = "Port object top|y has bits in the range ";
        EXPECT_EQ(top.messages(),
                  (texts{error(start + "9 to 7 unassigned.", partial), error(start + "5 to 4 unassigned.", partial),
                         error(start + "2 to 0 unassigned.", partial)}));
    }
}

TEST_F(ConcatDescription, TheTextGoesOnBehindAHole)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 10);
    y.range(7, 6) = top.input("a", 2);
    y.range(4, 3) = top.input("b", 2);
    EXPECT_EQ(described(*y.get_driver(), top, false, &y), "{a, b}");
}

TEST_F(ConcatDescription, HolesAreReportedForTheConcatenationWithoutATarget)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 10);
    y.range(7, 6) = top.input("a", 2);
    described(*y.get_driver(), top);
    std::string const start = "Concat object CONCAT (top|a , ) has bits in the range ";
    EXPECT_EQ(top.messages(),
              (texts{error(start + "9 to 7 unassigned.", partial), error(start + "5 to 0 unassigned.", partial)}));
}

TEST_F(ConcatDescription, TheDefaultOfAnOutputFillsNothing)
{
    open_design top(GNL_VERILOG);
    auto & leaf = top.child("leaf", "u1");
    auto & q = leaf.output("q", 4);
    q.set_default_port_value(1);
    leaf.set_in_rtl_body();
    q.range(3, 1) = 5;
    EXPECT_EQ(described(*q.get_driver(), leaf, false, &q), "{3'b101}");
    EXPECT_EQ(top.messages(),
              (texts{error("Port object top|leaf inst u1|q has bits in the range 0 to 0 unassigned.", partial)}));
}

// ---- Slices

TEST_F(ConcatDescription, NeighbouringSlicesOfAnArrayAreOneReferenceInQhdl)
{
    open_design top(GNL_QHDL);
    auto & cells = top.array(4, [](design & cell) {
        cell.output("q", 2);
        cell.output("s");
    });
    auto const q = [&](int slice) -> GNL_PORT & { return cells[slice].port("q"); };
    auto const s = [&](int slice) -> GNL_PORT & { return cells[slice].port("s"); };
    EXPECT_EQ(described((q(3), q(2), q(1)), top), "( arr[3..1].q[])");
    EXPECT_EQ(described((q(3), q(2), q(1)), top, true), "( arr[3..1].q[1..0])");
    EXPECT_EQ(described((s(1), s(0), q(3)), top), "( arr[1..0].s, arr[3].q[])");
    EXPECT_EQ(described((q(3), q(1), q(0)), top), "( arr[3].q[], arr[1..0].q[])");
    EXPECT_EQ(described((q(0), q(1)), top), "( arr[0].q[], arr[1].q[])");
    EXPECT_EQ(described((s(1), q(0)), top), "( arr[1].s, arr[0].q[])");
    EXPECT_EQ(described((q(3)[0], q(2)[0], q(1)[1]), top), "( arr[3..2].q[0..0], arr[1].q[1..1])");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(ConcatDescription, SlicesOfTwoArraysAreNotTakenTogether)
{
    open_design top(GNL_QHDL);
    auto & one = top.array(2, [](design & cell) { cell.output("s"); });
    auto & other = top.child("cell", "brr", "", 2);
    other.declare_slice = [](design & cell) { cell.output("s"); };
    other.output("s");
    EXPECT_EQ(described((one[1].port("s"), other[0].port("s")), top), "( arr[1].s, brr[0].s)");
}

TEST_F(ConcatDescription, NodesOfDrivenBidirsAreNotTakenTogether)
{
    open_design top(GNL_QHDL);
    auto & cells = top.array(2, [](design & cell) { cell.bidir("p"); });
    EXPECT_EQ(described((cells[1].port("p"), cells[0].port("p")), top), "( arr[1..0].p)");
    cells[1].port("p") = 1;
    EXPECT_EQ(described((cells[1].port("p"), cells[0].port("p")), top), "( arr1_p, arr[0].p)");
}

TEST_F(ConcatDescription, SlicesAreNotTakenTogetherInVerilogAndVhdl)
{
    open_design top(GNL_VERILOG);
    auto & cells = top.array(2, [](design & cell) { cell.output("s"); });
    EXPECT_EQ(described((cells[1].port("s"), cells[0].port("s")), top), "{wire_arr_1s[0:0], wire_arr_0s[0:0]}");
}

// ---- Depth and width

TEST_F(ConcatDescription, AHundredThousandConcatenationsDeep)
{
    constexpr int depth = 100000;
    open_design top(GNL_QHDL);
    auto & s = top.input("s");
    GNL_PORT * all = &s;
    for (int i = 0; i < depth; ++i) {
        auto & pieces = *new GNL_PORT_CONCAT(&top, i + 2);
        pieces.add_at_index(s, i + 1, i + 1, nullptr);
        pieces.add_at_index(*all, i, 0, nullptr);
        all = &pieces;
    }
    std::string expected;
    for (int i = 0; i < depth; ++i)
        expected += "( s, ";
    expected += "s" + std::string(depth, ')');
    EXPECT_TRUE(described(*all, top) == expected) << "too long to be shown";
    std::string const name = all->get_hierarchical_name();
    EXPECT_EQ(name.substr(0, 31), "CONCAT (top|s , CONCAT (top|s ,");
}

TEST_F(ConcatDescription, AWideOneIsWrittenAtOnce)
{
    open_design top(GNL_VERILOG);
    auto & i = top.input("i", 20000);
    auto & o = top.output("o", 20000);
    for (int bit = 0; bit < 20000; ++bit)
        o[bit] = i[19999 - bit];
    std::string const text = described(*o.get_driver(), top, false, &o);
    EXPECT_EQ(text.substr(0, 19), "{i[0], i[1], i[2], ");
    EXPECT_EQ(text.substr(text.size() - 11), ", i[19999]}");
}

} // namespace
