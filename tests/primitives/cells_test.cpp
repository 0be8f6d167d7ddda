#include "support.h"

using namespace gnl_test;

namespace {

/// What a constructor leaves behind, as far as the flags can tell.
struct cell_flags
{
    bool primitive, no_file, vhdl_primitive, custom_insert, verilog_hook, vhdl_hook, qhdl_hook, lpm_type, no_include;
    bool operator==(cell_flags const & other) const = default;
};

struct pin
{
    std::string name;
    bool input;
    int default_value = -1;
    bool operator==(pin const & other) const = default;
};

/// A row of the table of cells.
struct cell_row
{
    std::string name, prefix, library;
    cell_flags flags;
    std::vector<pin> pins; ///< in order of name, as the registry walks them
    bool sized_at_construction;
    std::function<GNL_GENERATOR *(GNL_GENERATOR *, int)> make;
    std::function<std::unique_ptr<GNL_GENERATOR>(GNL_GENERATOR &)> copy;
};

std::ostream & operator<<(std::ostream & out, cell_row const & row)
{
    return out << row.name;
}

template <class CELL> cell_row row_of(cell_row row)
{
    row.make = [](GNL_GENERATOR * parent, int size) -> GNL_GENERATOR * {
        if constexpr (std::is_constructible_v<CELL, GNL_GENERATOR *, char const *, int>)
            return new CELL(parent, "", size);
        else
            return new CELL(parent, size);
    };
    row.copy = [](GNL_GENERATOR & cell) -> std::unique_ptr<GNL_GENERATOR> {
        return std::make_unique<CELL>(static_cast<CELL const &>(cell));
    };
    return row;
}

constexpr bool in = true, out = false;
std::string const library = "qelvar.qelvar_primitives_components";

std::vector<cell_row> all_cells()
{
    return {
        row_of<GNL_DFFE>({"dffe",
                          "dffe",
                          "",
                          {true, true, true, true, true, true, false, true, true},
                          {{"adata", in, 1},
                           {"aload", in, 0},
                           {"clk", in},
                           {"clrn", in, 1},
                           {"d", in, 0},
                           {"ena", in, 1},
                           {"prn", in, 1},
                           {"q", out},
                           {"sclr", in, 0},
                           {"sload", in, 0}},
                          true,
                          {},
                          {}}),
        row_of<GNL_LATCH>({"latch",
                           "latch",
                           library,
                           {true, false, true, false, false, false, false, true, false},
                           {{"D", in}, {"ENA", in, 1}, {"Q", out}},
                           false,
                           {},
                           {}}),
        row_of<GNL_MUX21>({"mux21",
                           "mux21",
                           "",
                           {true, false, false, true, true, true, true, false, false},
                           {{"dataa", in}, {"datab", in}, {"dataout", out}, {"outputselect", in}},
                           false,
                           {},
                           {}}),
        row_of<GNL_TRI>({"TRI",
                         "tri_buf",
                         library,
                         {true, false, true, true, true, true, false, true, false},
                         {{"in", in}, {"oe", in}, {"out", out}},
                         false,
                         {},
                         {}}),
        row_of<GNL_LCELL>({"lcell",
                           "le",
                           "qelvar_mf.qelvar_mf_components",
                           {true, true, true, false, false, false, false, true, false},
                           {{"in", in}, {"out", out}},
                           true,
                           {},
                           {}}),
        row_of<GNL_SOFT>({"soft",
                          "sft",
                          library,
                          {true, true, true, false, false, false, false, true, false},
                          {{"in", in}, {"out", out}},
                          true,
                          {},
                          {}}),
        row_of<GNL_CASCADE>({"cascade",
                             "csc",
                             library,
                             {true, false, true, false, false, false, false, true, false},
                             {{"in", in}, {"out", out}},
                             true,
                             {},
                             {}}),
        row_of<GNL_CARRY_SUM>({"carry_sum",
                               "cs",
                               library,
                               {true, true, true, false, false, false, false, true, false},
                               {{"cin", in}, {"cout", out}, {"sin", in}, {"sout", out}},
                               true,
                               {},
                               {}}),
    };
}

cell_flags flags_of(GNL_GENERATOR const & cell)
{
    return {cell.is_primitive(),
            !cell.generate_file(),
            cell.is_vhdl_primitive(),
            cell.uses_custom_subdesign_insert_mode(),
            cell.uses_custom_verilog_output(),
            cell.uses_custom_vhdl_output(),
            cell.uses_custom_qhdl_output(),
            cell.use_lpm_type_output(),
            cell.no_include_declaration()};
}

std::vector<pin> pins_of(GNL_GENERATOR & cell)
{
    std::vector<pin> pins;
    std::map<std::string, GNL_PORT *, LESS_C_STRING> ports;
    cell.get_port_objects(ports);
    for (auto const & [name, port] : ports)
        pins.push_back({port->get_name(), port->is_input(), port->get_default_value()});
    return pins;
}

/// The widths as they stand, which asks nothing to be settled.
std::vector<int> widths_of(GNL_GENERATOR & cell)
{
    std::vector<int> widths;
    std::map<std::string, GNL_PORT *, LESS_C_STRING> ports;
    cell.get_port_objects(ports);
    for (auto const & [name, port] : ports)
        widths.push_back(port->get_default_width());
    return widths;
}

using EachCell = in_folder_with_parameter<cell_row>;

} // namespace

TEST_P(EachCell, IsDeclaredAsTabled)
{
    auto const & row = GetParam();
    design top(nullptr);
    auto & cell = *row.make(&top, 0);
    EXPECT_EQ(cell.get_name(), row.name);
    EXPECT_EQ(cell.get_instance_basename(), row.prefix);
    EXPECT_EQ(cell.get_vhdl_library(), row.library);
    EXPECT_EQ(cell.needs_vhdl_component(), row.library.empty());
    EXPECT_TRUE(flags_of(cell) == row.flags);
    EXPECT_TRUE(pins_of(cell) == row.pins);
    EXPECT_EQ(widths_of(cell), std::vector<int>(row.pins.size(), 0));
    EXPECT_EQ(cell.get_instance_name(), "");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_P(EachCell, AnArrayHasItsWidthsAtOnceOrWhenItIsSettled)
{
    auto const & row = GetParam();
    design top(nullptr);
    auto & cell = *row.make(&top, 5);
    EXPECT_EQ(widths_of(cell), std::vector<int>(row.pins.size(), row.sized_at_construction ? 5 : 0));
    EXPECT_FALSE(cell.is_in_update_port_widths());
    EXPECT_FALSE(cell.port_connections_made());
    cell.made_port_connection("");
    EXPECT_EQ(widths_of(cell), std::vector<int>(row.pins.size(), 5)); // once, however often
}

TEST_P(EachCell, MakesSlicesOfItsOwnKind)
{
    auto const & row = GetParam();
    design top(nullptr);
    auto & array = *row.make(&top, 3);
    array.set_instance_name("u");
    auto & slice = array[2];
    ASSERT_NE(&slice, &array);
    EXPECT_EQ(typeid(slice), typeid(array));
    EXPECT_EQ(slice.get_name(), row.name);
    EXPECT_EQ(slice.get_array_width(), 0);
    EXPECT_EQ(slice.get_slice_index(), 2);
    EXPECT_EQ(slice.get_array_parent(), &array);
    EXPECT_EQ(slice.get_parent(), &array);
    EXPECT_EQ(slice.get_instance_name(), "u");
    EXPECT_EQ(slice.get_hierarchical_name(), "top|" + row.name + " inst u[2]");
    EXPECT_EQ(widths_of(slice), std::vector<int>(row.pins.size(), 0));
    EXPECT_TRUE(flags_of(slice) == row.flags);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_P(EachCell, NamesTheLibraryThatBuiltIt)
{
    design top(nullptr);
    std::map<std::string, std::string, LESS_C_STRING> versions{{"other", "1"}};
    GetParam().make(&top, 0)->get_version(versions);
    EXPECT_EQ(versions.size(), 2U);
    // year:month:day:hour:minute:second and a suffix
    EXPECT_EQ(versions["lbx_gnl"], "2026:01:15:12:00:00:LX");
}

TEST_P(EachCell, ACopyIsACellByItself)
{
    auto const & row = GetParam();
    design top(nullptr);
    auto & cell = *row.make(&top, 2);
    cell.set_instance_name("u");
    cell.set_qelvar_internal_option("a=b");
    {
        auto const copy = row.copy(cell);
        GNL_GENERATOR const & copied = *copy;
        EXPECT_EQ(typeid(copied), typeid(cell));
        EXPECT_EQ(copied.get_name(), row.name);
        EXPECT_EQ(copied.get_instance_name(), "u");
        EXPECT_EQ(copied.get_array_width(), 2);
        EXPECT_EQ(copied.dump_qelvar_internal_options_as_string(), "a=b");
        EXPECT_TRUE(flags_of(copied) == row.flags);
    }
    EXPECT_TRUE(pins_of(cell) == row.pins); // the copy took nothing with it
    EXPECT_EQ(top.messages(), texts{});
}

TEST_P(EachCell, InsideABodyNeedsNoPermission)
{
    design top(nullptr, "top", "LBX_FILE=top.tcl");
    auto & a = top.input("a");
    top.run([&](design &) {
        auto & cell = *GetParam().make(&top, 0);
        for (auto const & pin : GetParam().pins)
            if (pin.input)
                cell.port(pin.name) = a;
    });
    EXPECT_EQ(top.messages(), texts{});
}

INSTANTIATE_TEST_SUITE_P(All, EachCell, ::testing::ValuesIn(all_cells()),
                         [](auto const & parameter) { return parameter.param.name; });

namespace {

using Cells = in_folder;

}

TEST_F(Cells, LogicCellAndSoftBufferTellTheirPortNames)
{
    EXPECT_EQ(GNL_LCELL::get_in_port_name(), "in");
    EXPECT_EQ(GNL_LCELL::get_out_port_name(), "out");
    EXPECT_EQ(GNL_SOFT::get_in_port_name(), "in");
    EXPECT_EQ(GNL_SOFT::get_out_port_name(), "out");
}

TEST_F(Cells, DataInputsAreNoSensitiveOnes)
{
    design top(nullptr);
    auto const is_data = [](GNL_GENERATOR & cell, char const * name) {
        return static_cast<GNL_PORT_INPUT &>(cell.port(name)).is_non_sensitive_custom_port();
    };
    GNL_DFFE reg(&top);
    for (auto const * name : {"d", "adata"})
        EXPECT_TRUE(is_data(reg, name)) << name;
    for (auto const * name : {"clk", "ena", "clrn", "prn", "aload", "sclr", "sload"})
        EXPECT_FALSE(is_data(reg, name)) << name;
    GNL_TRI buffer(&top);
    EXPECT_TRUE(is_data(buffer, "in"));
    EXPECT_FALSE(is_data(buffer, "oe"));
}

TEST_F(Cells, TriStateBufferIndexesItsOwnKind)
{
    design top(nullptr);
    auto & array = *new GNL_TRI(&top, 2);
    array.set_instance_name("u");
    GNL_TRI & slice = array[1];
    EXPECT_EQ(slice.get_slice_index(), 1);
    EXPECT_EQ(&array[1], &slice);
    auto & single = *new GNL_TRI(&top);
    single.set_instance_name("v");
    EXPECT_EQ(&single[0], &single);
    EXPECT_EQ(top.messages(), texts{error("Generator top|TRI inst v is not an array object, but the array indexing "
                                          "operator is being used on it.",
                                          "An array indexing operator [] can be used only on array objects.",
                                          "A generator object has been declared as a non-array object. Either change "
                                          "the declaration or do not use the array indexing operator.")});
}

TEST_F(Cells, MultiplexerTakesATextAndKeepsItsName)
{
    design top(nullptr);
    GNL_MUX21 mux(&top, "iname=m1", 0);
    mux.initialize_param_list();
    EXPECT_EQ(mux.get_instance_name(), "m1");
    mux.set_entity_name("other");
    EXPECT_EQ(mux.get_entity_name(), "mux21");
    EXPECT_EQ(mux.get_external_entity_name(), "other");
}

TEST_F(Cells, DisablingCustomOutputLeavesTheVhdlFlag)
{
    design top(nullptr);
    GNL_MUX21 mux(&top);
    mux.disable_custom_output();
    EXPECT_FALSE(mux.uses_custom_subdesign_insert_mode());
    EXPECT_FALSE(mux.uses_custom_verilog_output());
    EXPECT_TRUE(mux.uses_custom_vhdl_output());
    EXPECT_FALSE(mux.uses_custom_qhdl_output());
}

TEST_F(Cells, StampStandsInTheVersionLineOfADesign)
{
    design top(nullptr);
    top.child("leaf", "u");
    EXPECT_EQ(top.dump_version_header(), "");
    GNL_SOFT const buffer(&top);
    EXPECT_EQ(top.dump_version_header(), "VERSION_BEGIN 1.0 lbx_gnl 2026:01:15:12:00:00:LX  VERSION_END");
}

TEST_F(Cells, AnArrayIsConnectedInTheBodyThatMakesIt)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & d = top.input("d", 3);
    auto & one = top.input("one");
    auto & q = top.output("q", 3);
    top.run([&](design &) {
        auto & cells = *new GNL_LCELL(&top, 3);
        cells.port("in") = d;
        q = cells.port("out");
        auto & by_slice = *new GNL_SOFT(&top, 2);
        by_slice[0].port("in") = one;
        by_slice[1].port("in") = d[1];
    });
    EXPECT_EQ(top.messages(), texts{});
}
