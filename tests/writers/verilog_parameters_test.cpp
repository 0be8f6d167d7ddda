#include "verilog_sections.h"

using namespace gnl_test;

namespace {

using VerilogParameterSection = verilog_sections;
using VerilogTopLevelParameterSection = verilog_sections;
using VerilogHint = verilog_sections;

std::string parameters(GNL_GENERATOR & instance, bool fixed_name = false, int slice_index = -1)
{
    return written(instance, &GNL_GENERATOR::dump_verilog_parameter_section, fixed_name, slice_index);
}

std::string top_level_parameters(GNL_GENERATOR & top)
{
    return written(top, &GNL_GENERATOR::dump_verilog_top_level_parameter_section);
}

/// A cell that stands for another one.
class renamed : public design
{
public:
    using design::design;
    std::string generate_primitive_name() override { return "other"; }
};

} // namespace

TEST_F(VerilogParameterSection, IsEmptyWithoutAValue)
{
    top_design top;
    auto & u = top.cell("u");
    u.integer("depth", 3);
    u.string("mode", "FAST|SLOW", 0);
    EXPECT_TRUE(u.use_lpm_type_output());
    EXPECT_EQ(parameters(u), "");
}

TEST_F(VerilogParameterSection, ListsIntegersAndStringsByNameInLowerCase)
{
    top_design top;
    auto & u = top.cell("u");
    u.integer("Width") = 8;
    u.string("MODE", "FAST|SLOW") = "SLOW";
    EXPECT_EQ(parameters(u), "\tdefparam\n"
                             "\t\tu.mode = \"SLOW\",\n"
                             "\t\tu.width = 8,\n"
                             "\t\tu.lpm_type = \"blk\";\n");
    u.set_preserve_parameter_case();
    u.set_use_lower_case_verilog_parameter_values();
    EXPECT_EQ(parameters(u), "\tdefparam\n"
                             "\t\tu.MODE = \"slow\",\n"
                             "\t\tu.Width = 8,\n"
                             "\t\tu.lpm_type = \"blk\";\n");
}

TEST_F(VerilogParameterSection, OnlyACellHasAType)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    leaf.integer("depth") = 1;
    EXPECT_EQ(parameters(leaf), "\tdefparam\n"
                                "\t\tu.depth = 1;\n");
    auto & cell = top.cell("v");
    cell.integer("depth") = 1;
    cell.disable_lpm_type_output();
    EXPECT_EQ(parameters(cell), "\tdefparam\n"
                                "\t\tv.depth = 1;\n");
}

TEST_F(VerilogParameterSection, LeavesOutWhatIsNotDeclaredAndTheOptions)
{
    top_design top("LBX_OUTPUT_DIRECTORY=.");
    auto & u = top.cell("u");
    auto & hidden = u.integer("hidden");
    hidden.set_as_not_included_in_declaration();
    hidden = 1;
    u.option(gnl_detail::option_id::output_directory);
    EXPECT_EQ(parameters(u), "");
}

TEST_F(VerilogParameterSection, AnIntegerMayBeWrittenAsAString)
{
    top_design top;
    auto & u = top.cell("u");
    auto & depth = u.integer("depth");
    depth.set_output_as_string_parameter();
    depth = 12;
    EXPECT_EQ(parameters(u), "\tdefparam\n"
                             "\t\tu.depth = \"12\",\n"
                             "\t\tu.lpm_type = \"blk\";\n");
}

TEST_F(VerilogParameterSection, ExpressionsStandAsTextAndAStringLosesItsName)
{
    top_design top;
    auto & width = top.integer("WIDTH", 8);
    width.set_as_parameterized();
    auto & u = top.cell("u");
    auto & quoted = u.integer("quoted");
    quoted.set_output_as_string_parameter();
    u.integer("depth") = width.get_parameter() + 1;
    quoted = width.get_parameter();
    u.string("style", "") = width.get_parameter();
    EXPECT_EQ(parameters(u), "\tdefparam\n"
                             "\t\tu.depth = (WIDTH + 1),\n"
                             "\t\tu.quoted = \"WIDTH\",\n"
                             "\t\tu. = WIDTH,\n"
                             "\t\tu.lpm_type = \"blk\";\n");
}

TEST_F(VerilogParameterSection, VectorsAreWrittenInWholeHexadecimalDigitsOrInBinary)
{
    top_design top;
    auto & u = top.cell("u");
    auto & digits = u.vector("DIGITS", 0, 9);
    auto & bits = u.vector("bits", 0, 5);
    bits.set_to_use_binary_output();
    digits = "0x0AF";
    bits = "0b00110";
    EXPECT_EQ(parameters(u), "\tdefparam\n"
                             "\t\tu.bits = 5'b00110,\n"
                             "\t\tu.digits = 12'h0AF,\n"
                             "\t\tu.lpm_type = \"blk\";\n");
}

TEST_F(VerilogParameterSection, ArraysContinueTheBlockInLowerCase)
{
    top_design top;
    auto & u = top.cell("u");
    u.set_preserve_parameter_case();
    GNL_PARAMETER_INTEGER_ARRAY taps(&u, "TAP", -1);
    GNL_PARAMETER_STRING_ARRAY words(&u, "Word", "", -1);
    taps[2] = 5;
    taps[0] = 3;
    taps[1];
    words[1] = "Yes";
    EXPECT_EQ(parameters(u), "\tdefparam\n"
                             "\t\tu.tap0 = 3,\n"
                             "\t\tu.tap2 = 5,\n"
                             "\t\tu.word1 = \"Yes\",\n"
                             "\t\tu.lpm_type = \"blk\";\n");
    auto & width = u.integer("Width");
    width = 4;
    u.set_use_lower_case_verilog_parameter_values();
    EXPECT_EQ(parameters(u, false, 2), "\tdefparam\n"
                                       "\t\tu_2.Width = 4,\n"
                                       "\t\tu_2.tap0 = 3,\n"
                                       "\t\tu_2.tap2 = 5,\n"
                                       "\t\tu_2.word1 = \"yes\",\n"
                                       "\t\tu_2.lpm_type = \"blk\";\n");
}

TEST_F(VerilogParameterSection, TheFixedNameIsNotForArrays)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    leaf.integer("depth") = 8;
    GNL_PARAMETER_INTEGER_ARRAY taps(&leaf, "tap", -1);
    taps[0] = 3;
    EXPECT_EQ(parameters(leaf, true), "\tdefparam\n"
                                      "\t\tmg.depth = 8,\n"
                                      "\t\tu.tap0 = 3;\n");
}

TEST_F(VerilogParameterSection, ASliceIsAddressedByTheArraysNameAndItsIndex)
{
    top_design top;
    auto & arr = top.cell("arr", 2);
    arr.declare_slice = [](design & slice) {
        slice.set_primitive();
        slice.integer("depth");
    };
    arr[1].assign_value_to_parameter("depth", "4");
    EXPECT_EQ(parameters(arr[1], false, 1), "\tdefparam\n"
                                            "\t\tarr_1.depth = 4,\n"
                                            "\t\tarr_1.lpm_type = \"blk\";\n");
    EXPECT_EQ(parameters(arr[1], true, 1), "\tdefparam\n"
                                           "\t\tmg.depth = 4,\n"
                                           "\t\tmg.lpm_type = \"blk\";\n");
}

TEST_F(VerilogParameterSection, HintsFollowTheTypeInOneText)
{
    top_design top;
    auto & u = top.cell("u");
    auto & depth = u.integer("Depth");
    auto & kind = u.string("KIND", "");
    depth.set_as_lpm_hint();
    kind.set_as_lpm_hint();
    depth = 7;
    kind = "Soft";
    u.string("LPM_HINT", "") = "A=1";
    EXPECT_EQ(parameters(u), "\tdefparam\n"
                             "\t\tu.lpm_hint = \"Depth=7, KIND=Soft, A=1\";\n");
    u.integer("width") = 4;
    EXPECT_EQ(parameters(u), "\tdefparam\n"
                             "\t\tu.width = 4,\n"
                             "\t\tu.lpm_type = \"blk\",\n"
                             "\t\tu.lpm_hint = \"Depth=7, KIND=Soft, A=1\";\n");
}

TEST_F(VerilogParameterSection, ACellThatStandsForAnotherTellsItsUsedPorts)
{
    top_design top("LBX_EDA_PLANB=ON");
    auto & u = *new renamed(&top, "blk");
    u.set_instance_name("u");
    u.input("A").set_used();
    u.input("idle");
    u.bidir("pad").set_used();
    u.output("q").set_used();
    EXPECT_EQ(parameters(u), "");
    u.set_primitive();
    EXPECT_EQ(parameters(u), "\tdefparam\n"
                             "\t\tu.A_port_used = \"used\",\n"
                             "\t\tu.q_port_used = \"used\",\n"
                             "\t\tu.lpm_type = \"other\";\n");
    u.change_name("OTHER");
    EXPECT_EQ(parameters(u), "");
}

TEST_F(VerilogParameterSection, UsedPortsAreToldOnRequestOnly)
{
    top_design top;
    auto & u = *new renamed(&top, "blk");
    u.set_instance_name("u");
    u.set_primitive();
    u.input("a").set_used();
    EXPECT_EQ(parameters(u), "");
}

TEST_F(VerilogParameterSection, SimulationOnlyParametersPreferTheObject)
{
    top_design top;
    auto & u = top.cell("u");
    auto & count = u.integer("count");
    auto & mode = u.string("mode", "");
    count.set_as_not_included_in_declaration();
    mode.set_as_not_included_in_declaration();
    count = 9;
    mode = "Fast";
    u.add_simulation_only_parameter("FREE", "Value");
    u.add_simulation_only_parameter("count", "1");
    u.add_simulation_only_parameter("mode", "slow");
    EXPECT_EQ(parameters(u, true), "\tdefparam\n"
                                   "\t\tu.count = 9,\n"
                                   "\t\tu.free = \"Value\",\n"
                                   "\t\tu.mode = \"Fast\",\n"
                                   "\t\tmg.lpm_type = \"blk\";\n");
    u.reset_primitive_state();
    EXPECT_EQ(parameters(u), "");
}

TEST_F(VerilogHint, JoinsNamesAndValues)
{
    top_design top;
    std::string hint;
    top.add_to_lpm_hint_string(hint, "A", "1");
    EXPECT_EQ(hint, "A=1");
    top.add_to_lpm_hint_string(hint, "B", "");
    EXPECT_EQ(hint, "A=1, B");
    top.add_to_lpm_hint_string(hint, "C", "3");
    EXPECT_EQ(hint, "A=1, B, C=3");
    std::string alone;
    top.add_to_lpm_hint_string(alone, "A", "");
    EXPECT_EQ(alone, "A");
}

TEST_F(VerilogTopLevelParameterSection, ShowsExposedParametersThatAreUsed)
{
    top_design top;
    auto & width = top.integer("WIDTH", 8);
    auto & mode = top.string("Mode", "");
    auto & spare = top.integer("spare", 3);
    auto & plain = top.integer("plain", 3);
    for (GNL_PARAMETER * parameter : {static_cast<GNL_PARAMETER *>(&width), static_cast<GNL_PARAMETER *>(&mode),
                                      static_cast<GNL_PARAMETER *>(&spare)})
        parameter->set_as_parameterized();
    EXPECT_EQ(top_level_parameters(top), "");
    width = 16;
    mode = "Fast";
    plain = 2;
    EXPECT_EQ(top_level_parameters(top), "\n"
                                         "\n"
                                         "\tparameter\tMode = Fast;\n"
                                         "\tparameter\tWIDTH = 16;\n"
                                         "\n");
}
