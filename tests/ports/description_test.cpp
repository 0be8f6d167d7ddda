// The reference to each kind of port: of the design itself, of a subdesign, of an array and of a slice.

#include "language_texts.h"

using namespace gnl_test;

namespace {

class PortDescription : public in_folder
{
};

TEST_F(PortDescription, InputOfTheDesign)
{
    expect_language_texts({"a  a", "a  a(7 DOWNTO 0)", "a[]  a[7..0]"},
                          [](open_design & top) { return both_forms(top.input("a", 8), top); });
    expect_language_texts({"v  v", "v  v(0)", "v[]  v[0..0]"},
                          [](open_design & top) { return both_forms(top.input("v", 1), top); });
    expect_language_texts({"s  s", "s  s", "s  s"}, [](open_design & top) { return both_forms(top.input("s"), top); });
}

TEST_F(PortDescription, InputOfASubdesign)
{
    expect_language_texts({".a  .a", "u1.a  u1.a(7 DOWNTO 0)", "u1.a[]  u1.a[7..0]"},
                          [](open_design & top) { return both_forms(top.child("leaf", "u1").input("a", 8), top); });
}

TEST_F(PortDescription, InputOfAnArrayShowsTheWidthOfASliceInQhdl)
{
    expect_language_texts({".a  .a", "arr[].a  arr[].a(31 DOWNTO 0)", "arr[].a[]  arr[].a[7..0]"},
                          [](open_design & top) {
                              return both_forms(top.array(4, [](design & cell) { cell.input("a", 8); }).port("a"), top);
                          });
    expect_language_texts({".s  .s", "arr[].s  arr[].s(3 DOWNTO 0)", "arr[].s  arr[].s"}, [](open_design & top) {
        return both_forms(top.array(4, [](design & cell) { cell.input("s"); }).port("s"), top);
    });
}

TEST_F(PortDescription, InputOfASlice)
{
    expect_language_texts(
        {".a  .a", "arr[2].a  arr[2].a(7 DOWNTO 0)", "arr[2].a[]  arr[2].a[7..0]"}, [](open_design & top) {
            return both_forms(top.array(4, [](design & cell) { cell.input("a", 8); })[2].port("a"), top);
        });
}

TEST_F(PortDescription, InputsAndOutputsOfAnUnevenArrayShowTheRangeOfTheSlices)
{
    open_design top(GNL_QHDL);
    auto & cells = top.array(4, [](design & cell) {
        cell.input("a", 8);
        cell.output("q", 8);
        cell.wire("w", 8);
        cell.bidir("io", 8);
    });
    cells.create_slices();
    cells.set_as_heterogeneous_array();
    EXPECT_EQ(described(cells.port("a"), top), "arr[3..0].a[]");
    EXPECT_EQ(described(cells.port("q"), top), "arr[3..0].q[]");
    EXPECT_EQ(described(cells.port("w"), top), "arr[].w[]");
    EXPECT_EQ(described(cells.port("io"), top), "arr[].io[]");
}

TEST_F(PortDescription, TwoDimensionalInputOfACellHasTwoSubscripts)
{
    open_design top(GNL_QHDL);
    auto & cell = top.child("cell", "u1");
    auto & rows = *new GNL_PORT_INPUT(&cell, "rows", 3, 4);
    EXPECT_EQ(both_forms(rows, top), "u1.rows[]  u1.rows[11..0]");
    cell.set_primitive();
    EXPECT_EQ(both_forms(rows, top), "u1.rows[][]  u1.rows[3..0][11..0]");
}

TEST_F(PortDescription, InputUpToAHigherSlice)
{
    open_design top(GNL_QHDL);
    auto & cells = top.array(4, [](design & cell) {
        cell.input("a", 8);
        cell.input("s");
    });
    auto const up_to = [&](char const * name, int high, bool with_index) {
        std::ostringstream out;
        static_cast<GNL_PORT_INPUT &>(cells[1].port(name)).dump_port_description(out, &top, with_index, high);
        return out.str();
    };
    EXPECT_EQ(up_to("a", 3, false), "arr[3..1].a[]");
    EXPECT_EQ(up_to("a", 3, true), "arr[3..1].a[7..0]");
    EXPECT_EQ(up_to("s", 2, true), "arr[2..1].s");
    EXPECT_EQ(up_to("a", 1, false), "arr[1].a[]");
    EXPECT_EQ(up_to("a", -1, false), "arr[1].a[]");
    top.set_gen_language(GNL_VERILOG);
    EXPECT_EQ(up_to("a", 3, false), ".a");
}

TEST_F(PortDescription, WireOfTheDesignAndOfASubdesign)
{
    expect_language_texts({"w  w", "w  w(3 DOWNTO 0)", "w[]  w[3..0]"},
                          [](open_design & top) { return both_forms(top.wire("w", 4), top); });
    expect_language_texts({".w  .w", "u1.w  u1.w(3 DOWNTO 0)", "u1.w[]  u1.w[3..0]"},
                          [](open_design & top) { return both_forms(top.child("leaf", "u1").wire("w", 4), top); });
    expect_language_texts(
        {".w  .w", "arr[2].w  arr[2].w(3 DOWNTO 0)", "arr[2].w[]  arr[2].w[3..0]"}, [](open_design & top) {
            return both_forms(top.array(4, [](design & cell) { cell.wire("w", 4); })[2].port("w"), top);
        });
}

TEST_F(PortDescription, OutputOfTheDesign)
{
    expect_language_texts({"q  q", "q  q(7 DOWNTO 0)", "q[]  q[7..0]"},
                          [](open_design & top) { return both_forms(top.output("q", 8), top); });
    expect_language_texts({"s  s", "s  s", "s  s"}, [](open_design & top) { return both_forms(top.output("s"), top); });
}

TEST_F(PortDescription, OutputOfASubdesignIsASignal)
{
    expect_language_texts({"wire_u1_q  wire_u1_q", "wire_u1_q  wire_u1_q(7 DOWNTO 0)", "u1.q[]  u1.q[7..0]"},
                          [](open_design & top) { return both_forms(top.child("leaf", "u1").output("q", 8), top); });
    expect_language_texts({"wire_u1_v  wire_u1_v", "wire_u1_v  wire_u1_v(0)", "u1.v[]  u1.v[0..0]"},
                          [](open_design & top) { return both_forms(top.child("leaf", "u1").output("v", 1), top); });
    expect_language_texts({"wire_u1_s  wire_u1_s", "wire_u1_s  wire_u1_s", "u1.s  u1.s"},
                          [](open_design & top) { return both_forms(top.child("leaf", "u1").output("s"), top); });
}

// Its signal is declared with one element.
TEST_F(PortDescription, ScalarOutputOfWhichARangeWasTakenIsABitInVhdl)
{
    expect_language_texts({"wire_u1_s  wire_u1_s", "wire_u1_s(0)  wire_u1_s(0)", "u1.s  u1.s"}, [](open_design & top) {
        auto & port = top.child("leaf", "u1").output("s");
        port.set_vhdl_array_wire();
        return both_forms(port, top);
    });
}

TEST_F(PortDescription, OutputOfAnArrayOfOneSlice)
{
    auto const scalar = [](design & cell) { cell.output("s"); };
    expect_language_texts({"wire_arr_s  wire_arr_s", "wire_arr_s  wire_arr_s", "arr[].s  arr[].s"},
                          [&](open_design & top) { return both_forms(top.array(1, scalar).port("s"), top); });
    expect_language_texts({"wire_arr_s  wire_arr_s", "wire_arr_s  wire_arr_s(0)", "arr[].s  arr[].s"},
                          [&](open_design & top) {
                              auto & port = top.array(1, scalar).port("s");
                              port.set_vhdl_array_wire();
                              return both_forms(port, top);
                          });
}

TEST_F(PortDescription, OutputOfAnArray)
{
    expect_language_texts({"wire_arr_q  wire_arr_q", "wire_arr_q  wire_arr_q(31 DOWNTO 0)", "arr[].q[]  arr[].q[7..0]"},
                          [](open_design & top) {
                              return both_forms(top.array(4, [](design & cell) { cell.output("q", 8); }).port("q"),
                                                top);
                          });
}

TEST_F(PortDescription, OutputOfASliceIsAPartOfTheArraysSignal)
{
    auto const declare = [](design & cell) {
        cell.output("q", 8);
        cell.output("s");
    };
    auto const slice_of_used = [&](open_design & top, char const * name) {
        auto & cells = top.array(4, declare);
        auto & port = cells[2].port(name);
        cells.port(name).set_used();
        return described(port, top);
    };
    expect_language_texts({"wire_arr_q[23:16]", "wire_arr_q(23 DOWNTO 16)", "arr[2].q[]"},
                          [&](open_design & top) { return slice_of_used(top, "q"); });
    expect_language_texts({"wire_arr_s[2:2]", "wire_arr_s(2)", "arr[2].s"},
                          [&](open_design & top) { return slice_of_used(top, "s"); });
}

TEST_F(PortDescription, OutputOfASliceIsItsOwnSignal)
{
    auto const declare = [](design & cell) {
        cell.output("q", 8);
        cell.output("s");
    };
    auto const own_slice = [&](open_design & top, char const * name) {
        auto & cells = top.array(4, declare);
        cells.set_vhdl_unroll_loop();
        return described(cells[2].port(name), top);
    };
    expect_language_texts({"wire_arr_2q[7:0]", "wire_arr_2q(7 DOWNTO 0)", "arr[2].q[]"},
                          [&](open_design & top) { return own_slice(top, "q"); });
    expect_language_texts({"wire_arr_2s[0:0]", "wire_arr_2s", "arr[2].s"},
                          [&](open_design & top) { return own_slice(top, "s"); });
}

TEST_F(PortDescription, OutputOfACellThatIsWrittenAsStatementsIsANodeInQhdl)
{
    open_design top(GNL_QHDL);
    auto & cell = top.child("cell", "u1");
    cell.set_custom_subdesign_insert_mode();
    auto & q = cell.output("q", 8);
    EXPECT_EQ(described(q, top), "u1.q[]");
    cell.set_use_custom_qhdl_output();
    EXPECT_EQ(both_forms(q, top), "u1_q[]  u1_q[7..0]");

    auto & cells = top.array(4, [](design & slice) {
        slice.set_custom_subdesign_insert_mode();
        slice.set_use_custom_qhdl_output();
        slice.output("s");
        slice.output("q", 2);
    });
    EXPECT_EQ(both_forms(cells.port("s"), top), "arr_s[]  arr_s[3..0]");
    EXPECT_EQ(described(cells.port("q"), top, true), "arr_q[1..0]");
    EXPECT_EQ(described(cells[2].port("q"), top), "arr_q[5..4]");
    EXPECT_EQ(described(cells[2].port("s"), top), "arr_s[2..2]");
    cells.set_as_heterogeneous_array(); // and each slice has a node
    EXPECT_EQ(described(cells[2].port("q"), top), "arr2_q[]");
    EXPECT_EQ(described(cells.port("s"), top), "( arr3_s, arr2_s, arr1_s, arr0_s)");
    EXPECT_EQ(described(cells.port("q"), top), "( arr3_q[], arr2_q[], arr1_q[], arr0_q[])");
}

TEST_F(PortDescription, BidirOfTheDesignAndOfASubdesign)
{
    expect_language_texts({"io  io", "io  io(7 DOWNTO 0)", "io[]  io[7..0]"},
                          [](open_design & top) { return both_forms(top.bidir("io", 8), top); });
    expect_language_texts({"wire_u1_io  wire_u1_io", "wire_u1_io  wire_u1_io", "u1.io[]  u1.io[7..0]"},
                          [](open_design & top) { return both_forms(top.child("leaf", "u1").bidir("io", 8), top); });
}

TEST_F(PortDescription, DrivenBidirOfASubdesignIsANodeInQhdl)
{
    open_design top(GNL_QHDL);
    auto & source = top.input("a", 8);
    auto & io = top.child("leaf", "u1").bidir("io", 8);
    io = source;
    EXPECT_EQ(both_forms(io, top), "u1_io[]  u1_io[7..0]");
    auto & tied = top.child("leaf", "u2").bidir("io");
    tied = 1;
    EXPECT_EQ(described(tied, top), "u2_io");
    auto & cells = top.array(4, [](design & cell) { cell.bidir("io", 8); });
    EXPECT_EQ(described(cells.port("io"), top), "arr[].io[]");
    cells[3].port("io") = source;
    EXPECT_EQ(described(cells[3].port("io"), top), "arr3_io[]");
}

TEST_F(PortDescription, BidirOfASlice)
{
    auto const text = [](open_design & top, char const * name, bool as_whole) {
        auto & cells = top.array(4, [](design & cell) {
            cell.bidir("io", 8);
            cell.bidir("s");
        });
        cells.set_vhdl_unroll_loop();
        auto & port = cells[2].port(name);
        cells.port(name).set_used(as_whole);
        return described(port, top);
    };
    expect_language_texts({"wire_arr_io[23:16]", "wire_arr_io(23 DOWNTO 16)", "arr[2].io[]"},
                          [&](open_design & top) { return text(top, "io", true); });
    expect_language_texts({"wire_arr_s[2:2]", "wire_arr_s(2)", "arr[2].s"},
                          [&](open_design & top) { return text(top, "s", true); });
    expect_language_texts({"wire_arr_2io[7:0]", "wire_arr_2io(7 DOWNTO 0)", "arr[2].io[]"},
                          [&](open_design & top) { return text(top, "io", false); });
    expect_language_texts({"wire_arr_2s[0:0]", "wire_arr_2s", "arr[2].s"},
                          [&](open_design & top) { return text(top, "s", false); });
}

/// A plain port of `width` bits that holds `value`.
GNL_PORT & constant(open_design & top, int width, int value)
{
    auto & made = *new GNL_PORT(&top, "k", width);
    made = value;
    return made;
}

TEST_F(PortDescription, Constants)
{
    expect_language_texts({"{4{1'b0}}", "\"0000\"", "B\"0000\""},
                          [](open_design & top) { return described(constant(top, 4, 0), top); });
    expect_language_texts({"{4{1'b1}}", "\"1111\"", "B\"1111\""},
                          [](open_design & top) { return described(constant(top, 4, 15), top); });
    expect_language_texts({"4'b0101", "\"0101\"", "B\"0101\""},
                          [](open_design & top) { return described(constant(top, 4, 5), top); });
    expect_language_texts({"1'b1", "\"1\"", "B\"1\""},
                          [](open_design & top) { return described(constant(top, 1, 1), top); });
    expect_language_texts({"1'b0", "\"0\"", "B\"0\""},
                          [](open_design & top) { return described(constant(top, 0, 0), top); });
    expect_language_texts({"", "", ""}, [](open_design & top) { return described(*new GNL_PORT(&top, "k", 4), top); });
}

TEST_F(PortDescription, ConstantWithoutAValueIsNothing)
{
    expect_language_texts({"", "", ""}, [](open_design & top) {
        auto & port = constant(top, 4, 5);
        port.remove_constant_driver();
        return described(port, top);
    });
}

TEST_F(PortDescription, LongConstantsAreCutInVhdl)
{
    open_design top(GNL_VHDL);
    EXPECT_EQ(described(constant(top, 1000, 0), top), "\"" + std::string(1000, '0') + "\"");
    auto & port = *new GNL_PORT(&top, "long", 2003);
    port = 5;
    EXPECT_EQ(described(port, top),
              "\"" + std::string(1000, '0') + "\"\n" + " & \"" + std::string(1000, '0') + "\"\n" + " & \"101\"\n");
    EXPECT_EQ(top.messages(), texts{});
}

} // namespace
