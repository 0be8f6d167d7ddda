// The references in the text of cells that are written as statements.

#include "open_design.h"

using namespace gnl_test;

namespace {

class CustomDescription : public in_folder
{
};

constexpr int both_languages[] = {GNL_VERILOG, GNL_VHDL};

/// What a cell's text shows of `port` for slice `index`; -1 for the whole cell.
template <class PORT> std::string shown(PORT & port, GNL_GENERATOR & level, int index = -1)
{
    std::ostringstream out;
    port.dump_custom_port_description(out, &level, index, index >= 0);
    return out.str();
}

GNL_PORT_INPUT & input_of(GNL_GENERATOR & cell, char const * name)
{
    return static_cast<GNL_PORT_INPUT &>(cell.port(name));
}

GNL_PORT_OUTPUT & output_of(GNL_GENERATOR & cell, char const * name)
{
    return static_cast<GNL_PORT_OUTPUT &>(cell.port(name));
}

/// The level in a comparison with the port.
std::string level_text(GNL_PORT_INPUT & port, GNL_GENERATOR & level, bool by_slice = false)
{
    std::ostringstream out;
    port.dump_custom_constant_port_assignment(out, &level, 1, by_slice);
    return out.str();
}

/// A cell with the control input "c" and the data input "d".
void declare_inputs(design & cell)
{
    cell.input("c");
    cell.input("d").set_non_sensitive_custom_port();
}

design & cell_of(open_design & top, std::string const & name = "cell")
{
    design & made = top.child(name, "u1");
    declare_inputs(made);
    return made;
}

TEST_F(CustomDescription, OutputInVerilog)
{
    open_design top(GNL_VERILOG);
    auto & cell = top.child("cell", "u1");
    auto & s = cell.output("s");
    auto & q = cell.output("q", 4);
    EXPECT_EQ(shown(s, top), "wire_u1_s");
    EXPECT_EQ(shown(s, top, 2), "wire_u1_s[2:2]");
    EXPECT_EQ(shown(q, top, 1), "wire_u1_q[7:4]");
    std::ostringstream out;
    q.dump_custom_port_description(out, &top, 1, false);
    q.dump_custom_port_description(out << " ", &top, -1, true);
    EXPECT_EQ(out.str(), "wire_u1_q wire_u1_q");
}

TEST_F(CustomDescription, OutputInVhdl)
{
    open_design top(GNL_VHDL);
    auto & cell = top.child("cell", "u1");
    auto & s = cell.output("s");
    EXPECT_EQ(shown(s, top, 2), "wire_u1_s");
    EXPECT_EQ(shown(cell.output("q", 4), top, 1), "wire_u1_q(7 DOWNTO 4)");
    EXPECT_EQ(shown(cell.output("v", 1), top, 0), "wire_u1_v(0)");
    s.set_vhdl_array_wire();
    EXPECT_EQ(shown(s, top, 0), "wire_u1_s(0)");
    EXPECT_EQ(shown(s, top), "wire_u1_s");
    auto & cells = top.array(4, [](design & slice) { slice.output("s"); });
    EXPECT_EQ(shown(output_of(cells, "s"), top, 2), "wire_arr_s(2)");
    EXPECT_EQ(shown(output_of(cells, "s"), top), "wire_arr_s");
}

TEST_F(CustomDescription, OutputOfASliceIsAPartOfTheArraysSignal)
{
    for (auto const & [language, bit, part, own] :
         {std::tuple{GNL_VERILOG, "wire_arr_s[2:2]", "wire_arr_q[11:8]", "wire_arr_2q"},
          std::tuple{GNL_VHDL, "wire_arr_s(2)", "wire_arr_q(11 DOWNTO 8)", "wire_arr_2q"}}) {
        open_design top(language);
        auto & cells = top.array(4, [](design & slice) {
            slice.output("s");
            slice.output("q", 4);
        });
        auto & slice = cells[2];
        cells.set_vhdl_unroll_loop();
        EXPECT_EQ(shown(output_of(slice, "q"), top), own);
        cells.port("s").set_used();
        cells.port("q").set_used();
        EXPECT_EQ(shown(output_of(slice, "s"), top), bit);
        EXPECT_EQ(shown(output_of(slice, "q"), top), part);
    }
}

TEST_F(CustomDescription, NothingIsWrittenInQhdl)
{
    open_design top(GNL_QHDL);
    auto & cell = cell_of(top);
    cell.port("c") = top.input("a");
    EXPECT_EQ(shown(cell.output("q"), top), "");
    EXPECT_EQ(shown(input_of(cell, "c"), top), "");
    EXPECT_EQ(level_text(input_of(cell, "c"), top), "");
}

TEST_F(CustomDescription, InputWithoutADriverShowsNothing)
{
    open_design top(GNL_VERILOG);
    EXPECT_EQ(shown(input_of(cell_of(top), "c"), top), "");
}

TEST_F(CustomDescription, SimpleDriverStandsForItself)
{
    for (int const language : both_languages) {
        open_design top(language);
        auto & cell = cell_of(top);
        cell.port("c") = top.input("a");
        cell.port("d") = top.child("leaf", "u2").output("q");
        EXPECT_EQ(shown(input_of(cell, "c"), top), "a");
        EXPECT_EQ(shown(input_of(cell, "d"), top), "wire_u2_q");
    }
}

TEST_F(CustomDescription, SimpleDriverOfAnArrayIsReadSliceBySlice)
{
    for (auto const & [language, bit, again] :
         {std::tuple{GNL_VERILOG, "a[3:3]", "n[1:1]"}, std::tuple{GNL_VHDL, "a(3)", "n(1)"}}) {
        open_design top(language);
        auto & cells = top.array(8, declare_inputs);
        cells.port("c") = top.input("a", 8);
        cells.port("d") = top.input("n", 4);
        EXPECT_EQ(shown(input_of(cells, "c"), top, 3), bit);
        EXPECT_EQ(shown(input_of(cells, "d"), top, 5), again);
        EXPECT_EQ(shown(input_of(cells, "c"), top), "a");
    }
}

TEST_F(CustomDescription, WideSlicesReadParts)
{
    for (auto const & [language, part] : {std::tuple{GNL_VERILOG, "a[7:4]"}, std::tuple{GNL_VHDL, "a(7 DOWNTO 4)"}}) {
        open_design top(language);
        auto & cells = top.array(2, [](design & slice) { slice.input("d", 4); });
        cells.port("d") = top.input("a", 8);
        EXPECT_EQ(shown(input_of(cells, "d"), top, 1), part);
    }
}

TEST_F(CustomDescription, DriverThatIsASliceOfAnotherArray)
{
    for (auto const & [language, bit] :
         {std::tuple{GNL_VERILOG, "wire_arr_q[13:13]"}, std::tuple{GNL_VHDL, "wire_arr_q(13)"}}) {
        open_design top(language);
        auto & others = top.array(4, [](design & slice) { slice.output("q", 4); });
        auto & source = others[3].port("q");
        others.port("q").set_used();
        auto & cells = top.child("leaf", "u2", "", 4);
        declare_inputs(cells);
        cells.port("c") = source;
        EXPECT_EQ(shown(input_of(cells, "c"), top, 1), bit);
    }
}

TEST_F(CustomDescription, ExpressionOnAControlInputHasTheInputsWire)
{
    for (int const language : both_languages) {
        open_design top(language);
        auto & cell = cell_of(top);
        cell.port("c") = top.input("a") & top.input("b");
        EXPECT_EQ(shown(input_of(cell, "c"), top), "wire_u1_c");
    }
}

TEST_F(CustomDescription, ExpressionOnADataInputStandsInline)
{
    for (auto const & [language, text] : {std::tuple{GNL_VERILOG, "(a & b)"}, std::tuple{GNL_VHDL, "(a AND b)"}}) {
        open_design top(language);
        auto & cell = cell_of(top);
        cell.port("d") = top.input("a") & top.input("b");
        EXPECT_EQ(shown(input_of(cell, "d"), top), text);
    }
}

TEST_F(CustomDescription, ExpressionOnAnArrayThatIsWrittenSliceBySliceHasTheInputsWire)
{
    for (auto const & [language, data, control] : {std::tuple{GNL_VERILOG, "wire_arr_d[2:2]", "wire_arr_c[2:2]"},
                                                   std::tuple{GNL_VHDL, "wire_arr_d(2)", "wire_arr_c(2)"}}) {
        open_design top(language);
        auto & cells = top.array(4, declare_inputs);
        auto & both = top.input("a", 4) & top.input("b", 4);
        cells.port("c") = both;
        cells.port("d") = both;
        EXPECT_EQ(shown(input_of(cells, "d"), top, 2), data);
        EXPECT_EQ(shown(input_of(cells, "c"), top, 2), control);
    }
}

TEST_F(CustomDescription, InversionIsFoldedForControlInputsOfARegisterOnly)
{
    open_design top(GNL_VERILOG);
    auto & inverted = !top.input("a");
    auto & control = cell_of(top, "DFFE");
    control.port("c") = inverted;
    control.port("d") = inverted;
    EXPECT_EQ(shown(input_of(control, "c"), top), "a");
    EXPECT_EQ(shown(input_of(control, "d"), top), "(~ a)");
    auto & buffer = top.child("tri", "u3");
    declare_inputs(buffer);
    buffer.port("c") = inverted;
    EXPECT_EQ(shown(input_of(buffer, "c"), top), "wire_u3_c");
}

TEST_F(CustomDescription, OneBitOfABusOnAControlInput)
{
    for (auto const & [language, control, data] :
         {std::tuple{GNL_VERILOG, "wire_u1_c", "a[3]"}, std::tuple{GNL_VHDL, "a(3)", "a(3)"}}) {
        open_design top(language);
        auto & cell = cell_of(top);
        auto & bit = top.input("a", 8)[3];
        cell.port("c") = bit;
        cell.port("d") = bit;
        EXPECT_EQ(shown(input_of(cell, "c"), top), control);
        EXPECT_EQ(shown(input_of(cell, "c"), top, 2), control);
        EXPECT_EQ(shown(input_of(cell, "d"), top), data);
    }
}

TEST_F(CustomDescription, SliceWithoutADriverReadsThroughTheArray)
{
    for (auto const & [language, bit] : {std::tuple{GNL_VERILOG, "a[2:2]"}, std::tuple{GNL_VHDL, "a(2)"}}) {
        open_design top(language);
        auto & cells = top.array(4, declare_inputs);
        auto & slice = cells[2];
        EXPECT_EQ(shown(input_of(slice, "c"), top), "");
        cells.port("c") = top.input("a", 4);
        EXPECT_EQ(shown(input_of(slice, "c"), top), bit);
        EXPECT_EQ(level_text(input_of(slice, "c"), top), language == GNL_VHDL ? "'1'" : "");
    }
}

TEST_F(CustomDescription, SliceWithItsOwnDriverShowsIt)
{
    open_design top(GNL_VERILOG);
    auto & cells = top.array(4, declare_inputs);
    cells[2].port("c") = top.input("a");
    cells[1].port("c") = top.input("x") & top.input("y");
    EXPECT_EQ(shown(input_of(cells[2], "c"), top, 0), "a");
    EXPECT_EQ(shown(input_of(cells[1], "c"), top, 0), "wire_arr_1c");
}

TEST_F(CustomDescription, OneBitBusIsIndexedWhereABitIsMeantInVhdl)
{
    open_design top(GNL_VHDL);
    auto & v = top.input("v", 1);
    auto & w = top.input("w", 1);
    auto & cell = cell_of(top);
    cell.port("c") = v;
    cell.port("d") = v & w;
    EXPECT_EQ(shown(input_of(cell, "c"), top), "v(0)");
    EXPECT_EQ(shown(input_of(cell, "d"), top), "(v(0) AND w(0))");
    EXPECT_EQ(level_text(input_of(cell, "c"), top), "'1'");

    auto & wide = top.child("wide", "u2");
    auto & control = wide.input("c", 1);
    control = v;
    EXPECT_EQ(shown(control, top), "v");
    EXPECT_EQ(level_text(control, top), "\"1\"");
}

TEST_F(CustomDescription, LevelsInVhdl)
{
    open_design top(GNL_VHDL);
    auto & cell = top.child("cell", "u1");
    auto & open = cell.input("open");
    auto & scalar = cell.input("scalar");
    auto & bus = cell.input("bus", 4);
    auto & on_bit = cell.input("on_bit", 1);
    auto & on_wire = cell.input("on_wire", 1);
    scalar = top.input("s");
    bus = top.input("b", 4);
    on_bit = top.input("b2", 4)[1];
    on_wire = top.input("x", 1) & top.input("y", 1);
    EXPECT_EQ(level_text(open, top), "\"1\"");
    EXPECT_EQ(level_text(scalar, top), "'1'");
    EXPECT_EQ(level_text(bus, top), "\"1\"");
    EXPECT_EQ(level_text(on_bit, top), "'1'");
    EXPECT_EQ(level_text(on_wire, top), "\"1\"");
    EXPECT_EQ(shown(on_wire, top), "wire_u1_on_wire");
}

TEST_F(CustomDescription, HolesInADataInputTakeItsDefault)
{
    open_design top(GNL_VERILOG, "", false);
    auto & cell = top.child("cell", "u1");
    auto & d = cell.input("d", 4, 1);
    d.set_non_sensitive_custom_port();
    top.set_in_rtl_body();
    d.range(3, 2) = top.input("a", 2);
    EXPECT_EQ(shown(d, top), "{a, {2{1'b1}}}");
    EXPECT_EQ(top.messages(), texts{});
}

} // namespace
