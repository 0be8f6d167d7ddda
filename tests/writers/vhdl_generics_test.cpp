#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

using VhdlComponentGenerics = vhdl_sections;
using VhdlSliceGenerics = vhdl_sections;

std::string of_cell(GNL_GENERATOR & cell)
{
    return written(cell, &GNL_GENERATOR::dump_vhdl_generic_section_for_primitives);
}
std::string of_wrapper(GNL_GENERATOR & cell)
{
    return written(cell, &GNL_GENERATOR::dump_vhdl_generic_section_for_wrapper);
}
std::string of_slices(GNL_GENERATOR & array)
{
    return written(array, &GNL_GENERATOR::dump_vhdl_generic_section_for_hetero_arrays);
}

/// The generics that stand in front of those that every cell has.
std::string own_generics(GNL_GENERATOR & cell)
{
    static std::string const opener = "\t GENERIC \n\t (\n";
    static std::string const closer = "\t\tlpm_hint\t:\tSTRING := \"UNUSED\"\n\t );\n";
    auto const text = of_wrapper(cell);
    EXPECT_TRUE(text.starts_with(opener) && text.ends_with(closer)) << text;
    return text.substr(opener.size(), text.size() - opener.size() - closer.size());
}

} // namespace

TEST_F(VhdlComponentGenerics, AlwaysTakeHints)
{
    top_design top;
    auto & cell = top.cell("u");
    EXPECT_EQ(of_cell(cell), "\t GENERIC \n"
                             "\t (\n"
                             "\t\tlpm_hint\t:\tSTRING := \"UNUSED\";\n"
                             "\t\tlpm_type\t:\tSTRING := \"blk\"\n"
                             "\t );\n");
    EXPECT_EQ(of_wrapper(cell), "\t GENERIC \n"
                                "\t (\n"
                                "\t\tlpm_hint\t:\tSTRING := \"UNUSED\"\n"
                                "\t );\n");
    cell.disable_lpm_type_output();
    EXPECT_EQ(of_cell(cell), of_wrapper(cell));
}

TEST_F(VhdlComponentGenerics, OfACellAreAllThatTheDeclarationIncludes)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.disable_lpm_type_output();
    cell.integer("Width", 8) = 3;
    cell.integer("idle", 9);
    cell.integer("open");
    cell.integer("number", 5).set_output_as_string_parameter();
    cell.integer("secret", 1).set_as_not_included_in_declaration();
    cell.string("MODE", "FAST|SLOW", 1) = "FAST";
    cell.string("text", "");
    EXPECT_EQ(of_cell(cell), "\t GENERIC \n"
                             "\t (\n"
                             "\t\tidle\t:\tNATURAL := 9;\n"
                             "\t\tMODE\t:\tSTRING := \"SLOW\";\n"
                             "\t\tnumber\t:\tSTRING := \"5\";\n"
                             "\t\topen\t:\tNATURAL;\n"
                             "\t\ttext\t:\tSTRING := \"\";\n"
                             "\t\tWidth\t:\tNATURAL := 8;\n"
                             "\t\tlpm_hint\t:\tSTRING := \"UNUSED\"\n"
                             "\t );\n");
}

TEST_F(VhdlComponentGenerics, OfAWrapperAreThoseThatAreUsed)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.integer("width", 8) = 3;
    cell.integer("idle", 9);
    cell.string("MODE", "FAST|SLOW", 1) = "FAST";
    auto & secret = cell.integer("secret", 1);
    secret.set_as_not_included_in_declaration();
    secret = 2;
    EXPECT_EQ(own_generics(cell), "\t\tMODE\t:\tSTRING := \"SLOW\";\n"
                                  "\t\twidth\t:\tNATURAL := 8;\n");
}

TEST_F(VhdlComponentGenerics, AHintParameterHasNoEntryOfItsOwn)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.string("LPM_Hint", "", -1) = "FAST=ON";
    EXPECT_EQ(own_generics(cell), "");
}

TEST_F(VhdlComponentGenerics, VectorsShowTheBitsOfTheirDefaults)
{
    top_design top;
    auto & cell = top.cell("u");
    auto & bits = cell.vector("bits", 10, 8);
    auto & ones = cell.vector("ones", 1, 4);
    auto & none = cell.vector("none", -1, 4);
    auto & raw = cell.vector("raw", 10, 8);
    auto & raw_none = cell.vector("raw_none", -1, 8);
    raw.set_as_vhdl_bit_vector();
    raw_none.set_as_vhdl_bit_vector();
    for (auto * vector : {&bits, &ones, &none, &raw, &raw_none})
        *vector = 3;
    EXPECT_EQ(own_generics(cell), "\t\tbits\t:\tSTD_LOGIC_VECTOR(7 DOWNTO 0) := \"00001010\";\n"
                                  "\t\tnone\t:\tSTD_LOGIC_VECTOR(3 DOWNTO 0) := \"0000\";\n"
                                  "\t\tones\t:\tSTD_LOGIC_VECTOR(3 DOWNTO 0) := \"1111\";\n"
                                  "\t\traw\t:\tBIT_VECTOR := X\"0A\";\n"
                                  "\t\traw_none\t:\tBIT_VECTOR := X\"0\";\n");
}

TEST_F(VhdlComponentGenerics, ArraysAreDeclaredWhereTheyAreTrueArrays)
{
    top_design top;
    auto & cell = top.cell("u");
    GNL_PARAMETER_INTEGER_ARRAY coefficients(&cell, "COEF", 7);
    GNL_PARAMETER_STRING_ARRAY names(&cell, "NAMES", "a|b", 1);
    coefficients.set_array_type("coef_type");
    names.set_array_width(4);
    coefficients[0] = 1;
    names[2] = "a";
    EXPECT_EQ(own_generics(cell), "");
    cell.set_has_true_vhdl_parameter_array();
    cell.integer("width", 8) = 3;
    EXPECT_EQ(own_generics(cell), "\t\twidth\t:\tNATURAL := 8;\n"
                                  "\t\tCOEF\t:\tcoef_type := (OTHERS => 7);\n"
                                  "\t\tNAMES\t:\tARRAY( NATURAL range<>) OF STRING := (OTHERS => \"b\");\n");
}

TEST_F(VhdlComponentGenerics, AnArrayCanBeTheFirst)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.set_has_true_vhdl_parameter_array();
    GNL_PARAMETER_INTEGER_ARRAY coefficients(&cell, "COEF", 7);
    coefficients.set_array_type("coef_type");
    coefficients[0] = 1;
    EXPECT_EQ(own_generics(cell), "\t\tCOEF\t:\tcoef_type := (OTHERS => 7);\n");
}

TEST_F(VhdlComponentGenerics, SimulationOnlyParametersOfACellFollow)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.integer("depth", 2).set_as_not_included_in_declaration();
    cell.add_simulation_only_parameter("style", "soft");
    cell.add_simulation_only_parameter("depth", "9");
    cell.integer("width", 8) = 3;
    EXPECT_EQ(own_generics(cell), "\t\twidth\t:\tNATURAL := 8;\n"
                                  "\t\tdepth\t:\tNATURAL := 2;\n"
                                  "\t\tstyle\t:\tSTRING := \"soft\";\n");
    cell.reset_primitive_state();
    EXPECT_EQ(own_generics(cell), "\t\twidth\t:\tNATURAL := 8;\n");
}

TEST_F(VhdlComponentGenerics, OptionsAreNeverThere)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.option(gnl_detail::option_id::module_prefix);
    cell.init_param_list_from_string("LBX_MODULE_PREFIX=chip", false);
    EXPECT_EQ(own_generics(cell), "");
}

TEST_F(VhdlSliceGenerics, AreThoseThatASliceUses)
{
    top_design top;
    auto & array = top.cell("u", 3);
    auto const declare = [](design & of) {
        of.integer("depth", 2);
        of.integer("idle", 9);
        of.string("MODE", "FAST|SLOW", 1);
        of.vector("bits", 10, 8);
        of.vector("raw", 10, 8).set_as_vhdl_bit_vector();
    };
    declare(array);
    array.declare_slice = declare;
    array[0].parameter_integer("depth") = 4;
    array[2].parameter_string("MODE") = "FAST";
    array[2].parameter_vector("bits") = 1;
    array[2].parameter_vector("raw") = 1;
    EXPECT_EQ(of_slices(array), "\t  GENERIC \n"
                                "\t (\n"
                                "\t\tbits\t:\tSTD_LOGIC_VECTOR(7 DOWNTO 0) :=\"00001010\";\n"
                                "\t\tdepth\t:\tNATURAL := 2;\n"
                                "\t\tMODE\t:\tSTRING := \"SLOW\";\n"
                                "\t\traw\t:\tBIT_VECTOR :=X\"0A\";\n"
                                "\t\tlpm_hint\t:\tSTRING := \"UNUSED\"\n"
                                "\t  );\n");
}

TEST_F(VhdlSliceGenerics, ShowAnArrayParameterOnce)
{
    top_design top;
    auto & array = top.cell("u", 2);
    array.set_has_true_vhdl_parameter_array();
    array.create_slices();
    std::vector<std::unique_ptr<GNL_PARAMETER_INTEGER_ARRAY>> coefficients;
    for (int i = 0; i < 2; ++i) {
        array[i].set_has_true_vhdl_parameter_array();
        coefficients.push_back(std::make_unique<GNL_PARAMETER_INTEGER_ARRAY>(&array[i], "COEF", 7));
        coefficients.back()->set_array_type("coef_type");
        (*coefficients.back())[0] = i;
    }
    EXPECT_EQ(of_slices(array), "\t  GENERIC \n"
                                "\t (\n"
                                "\t\tCOEF\t:\tcoef_type := (OTHERS => 7);\n"
                                "\t\tlpm_hint\t:\tSTRING := \"UNUSED\"\n"
                                "\t  );\n");
}
