// The values that an instance gives to the generics of a cell.

#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

class VhdlGenericMap : public vhdl_sections
{
protected:
    static std::string map_of(GNL_GENERATOR & instance)
    {
        return written(instance, &GNL_GENERATOR::dump_vhdl_parameter_mappings_for_wrapper);
    }

    top_design top;
    design & cell = top.cell("u");
};

class renamed_cell : public design
{
public:
    using design::design;
    std::string generate_primitive_name() override { return "other"; }
};

/// A cell with arrays of parameters.
class cell_with_arrays : public design
{
public:
    explicit cell_with_arrays(GNL_GENERATOR * parent)
        : design(parent, "blk")
        , numbers(this, "COEF", 9)
        , names(this, "NAME", "A|B|C", 0)
    {
        set_primitive();
        set_instance_name("u");
    }

    GNL_PARAMETER_INTEGER_ARRAY numbers;
    GNL_PARAMETER_STRING_ARRAY names;
};

} // namespace

TEST_F(VhdlGenericMap, WithoutAnEntryIsNothing)
{
    cell.integer("idle", 3);
    EXPECT_EQ(map_of(cell), "");
}

TEST_F(VhdlGenericMap, HasTheNamesAsTheyAreSpelt)
{
    cell.integer("Width") = 4;
    cell.string("MODE", "FAST|SLOW", 0) = "SLOW";
    auto & number = cell.integer("number");
    number.set_output_as_string_parameter();
    number = 3;
    EXPECT_EQ(map_of(cell), "\t  GENERIC MAP (\n"
                            "\t\tMODE => \"SLOW\",\n"
                            "\t\tnumber => \"3\",\n"
                            "\t\tWidth => 4\n"
                            "\t  )\n");
}

TEST_F(VhdlGenericMap, LeavesHiddenParametersOut)
{
    auto & hidden = cell.integer("hidden");
    hidden.set_as_not_included_in_declaration();
    hidden = 1;
    cell.integer("shown") = 2;
    EXPECT_EQ(map_of(cell), "\t  GENERIC MAP (\n"
                            "\t\tshown => 2\n"
                            "\t  )\n");
}

TEST_F(VhdlGenericMap, VectorsAreBinaryUnlessTheyAreBitVectors)
{
    cell.vector("bits", 0, 6) = 10;
    auto & raw = cell.vector("raw", 0, 8);
    raw.set_as_vhdl_bit_vector();
    raw = 10;
    EXPECT_EQ(map_of(cell), "\t  GENERIC MAP (\n"
                            "\t\tbits => \"001010\",\n"
                            "\t\traw => X\"0A\"\n"
                            "\t  )\n");
}

TEST_F(VhdlGenericMap, ExpressionsStandForTheValue)
{
    auto & size = top.integer("SIZE", 3);
    size.set_as_parameterized();
    size = 3;
    auto & mode = top.string("MODE", "A|B", 0);
    mode.set_as_parameterized();
    mode = "A";
    cell.integer("width") = size.get_parameter();
    cell.string("kind", "A|B", 0) = mode.get_parameter();
    EXPECT_EQ(map_of(cell), "\t  GENERIC MAP (\n"
                            "\t\tkind => MODE,\n"
                            "\t\twidth => SIZE\n"
                            "\t  )\n");
}

TEST_F(VhdlGenericMap, HintsAreCollectedAtTheEnd)
{
    auto & depth = cell.integer("depth");
    depth.set_as_lpm_hint();
    depth = 7;
    auto & style = cell.string("style", "soft|hard", 0);
    style.set_as_lpm_hint();
    style = "hard";
    EXPECT_EQ(map_of(cell), "\t  GENERIC MAP (\n"
                            "\t\tlpm_hint => \"depth=7, style=hard\"\n"
                            "\t  )\n");
    cell.string("LPM_HINT", "UNUSED|FAST", 0) = "FAST";
    cell.integer("a") = 1;
    EXPECT_EQ(map_of(cell), "\t  GENERIC MAP (\n"
                            "\t\ta => 1,\n"
                            "\t\tlpm_hint => \"depth=7, FAST, style=hard\"\n"
                            "\t  )\n");
}

TEST_F(VhdlGenericMap, TrueArraysAreOneEntry)
{
    cell_with_arrays arrays(&top);
    arrays.numbers[2] = 5;
    arrays.numbers[0] = 1;
    arrays.names[1] = "C";
    EXPECT_EQ(map_of(arrays), "");
    arrays.set_has_true_vhdl_parameter_array();
    arrays.integer("z") = 1;
    EXPECT_EQ(map_of(arrays), "\t  GENERIC MAP (\n"
                              "\t\tz => 1,\n"
                              "\t\tCOEF => ( 0 => 1,2 => 5, OTHERS => 9),\n"
                              "\t\tNAME => ( 1 => \"C\", OTHERS => \"A\")\n"
                              "\t  )\n");
}

TEST_F(VhdlGenericMap, TellsWhichPortsAreUsedInCapitals)
{
    top_design planb("LBX_EDA_PLANB=ON");
    planb.initialize_param_list();
    auto & made = *new renamed_cell(&planb, "blk");
    made.set_primitive();
    made.input("a").set_used();
    made.input("b");
    made.output("q").set_used();
    made.bidir("io").set_used();
    EXPECT_EQ(map_of(made), "\t  GENERIC MAP (\n"
                            "\t\ta_port_used => \"USED\",\n"
                            "\t\tq_port_used => \"USED\"\n"
                            "\t  )\n");
    made.reset_primitive_state();
    EXPECT_EQ(map_of(made), "");
}

TEST_F(VhdlGenericMap, SimulationOnlyParametersFollow)
{
    cell.integer("w") = 2;
    cell.add_simulation_only_parameter("style", "soft");
    cell.add_simulation_only_parameter("w", "8");
    EXPECT_EQ(map_of(cell), "\t  GENERIC MAP (\n"
                            "\t\tw => 2,\n"
                            "\t\tstyle => \"soft\",\n"
                            "\t\tw => 2\n"
                            "\t  )\n");
    cell.reset_primitive_state();
    EXPECT_EQ(map_of(cell), "\t  GENERIC MAP (\n"
                            "\t\tw => 2\n"
                            "\t  )\n");
}
