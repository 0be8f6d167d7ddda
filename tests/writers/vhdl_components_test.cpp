#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

using VhdlComponents = vhdl_sections;
using VhdlSliceComponents = vhdl_sections;
using VhdlTypes = vhdl_sections;

/// What stands in a component of a cell without parameters and ports.
std::string const bare_cell = "\t GENERIC \n"
                              "\t (\n"
                              "\t\tlpm_hint\t:\tSTRING := \"UNUSED\";\n"
                              "\t\tlpm_type\t:\tSTRING := \"blk\"\n"
                              "\t );\n";

std::string types_of(GNL_GENERATOR & subdesign, signal_names & types)
{
    std::ostringstream out;
    types = subdesign.dump_vhdl_array_type_declarations(out, types);
    return out.str();
}
std::string types_of(GNL_GENERATOR & subdesign)
{
    signal_names types;
    return types_of(subdesign, types);
}

struct slice_components
{
    bool needs_common;
    std::string text;
};
slice_components components_of(GNL_GENERATOR & array, signal_names & components)
{
    std::ostringstream out;
    signal_names types;
    bool const needs_common = array.dump_vhdl_component_section_for_hetero_arrays(out, components, types);
    return {needs_common, out.str()};
}
slice_components components_of(GNL_GENERATOR & array)
{
    signal_names components;
    return components_of(array, components);
}

class renamed_cell : public design
{
public:
    using design::design;
    std::string generate_primitive_name() override { return "real_cell"; }
};

/// An array of three slices of one input each.
design & array_of_leaves(top_design & top)
{
    auto & array = top.subdesign("leaf", "u", 3);
    auto const declare = [](design & of) {
        of.input("a", 2).set_used();
        of.integer("depth", 2);
    };
    declare(array);
    array.declare_slice = declare;
    return array;
}

} // namespace

TEST_F(VhdlComponents, ASubdesignHasItsUsedPortsAndNoGenerics)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    leaf.input("a").set_used();
    leaf.input("idle");
    leaf.integer("width", 8) = 3;
    EXPECT_EQ(declarations_of(top), "\t COMPONENT  leaf\n"
                                    "\t PORT\n"
                                    "\t ( \n"
                                    "\t\ta\t:\tIN  STD_LOGIC\n"
                                    "\t ); \t END COMPONENT;\n");
}

TEST_F(VhdlComponents, ACellHasGenericsAndAllItsPorts)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.input("a");
    cell.integer("width", 8);
    EXPECT_EQ(declarations_of(top), "\t COMPONENT  blk\n"
                                    "\t GENERIC \n"
                                    "\t (\n"
                                    "\t\twidth\t:\tNATURAL := 8;\n"
                                    "\t\tlpm_hint\t:\tSTRING := \"UNUSED\";\n"
                                    "\t\tlpm_type\t:\tSTRING := \"blk\"\n"
                                    "\t );\n"
                                    "\t PORT\n"
                                    "\t ( \n"
                                    "\t\ta\t:\tIN STD_LOGIC\n"
                                    "\t ); \t END COMPONENT;\n");
}

TEST_F(VhdlComponents, ACellCanBeCutDownToWhatIsUsed)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.set_has_vhdl_used_port_parameter_only_component();
    cell.input("a");
    auto & b = cell.input("b");
    cell.integer("width", 8);
    cell.integer("depth", 2) = 3;
    top.connect([&] { b = 1; });
    EXPECT_TRUE(declarations_of(top).ends_with("\t COMPONENT  blk\n"
                                               "\t GENERIC \n"
                                               "\t (\n"
                                               "\t\tdepth\t:\tNATURAL := 2;\n"
                                               "\t\tlpm_hint\t:\tSTRING := \"UNUSED\"\n"
                                               "\t );\n"
                                               "\t PORT\n"
                                               "\t ( \n"
                                               "\t\tb\t:\tIN  STD_LOGIC\n"
                                               "\t ); \t END COMPONENT;\n"));
}

TEST_F(VhdlComponents, WithWrappersACellIsAnEntityLikeAnyOther)
{
    top_design top("LBX_VHDL_WRAPPERS=ON");
    auto & wrapped = top.cell("u");
    wrapped.input("a").set_used();
    wrapped.input("b");
    EXPECT_EQ(declarations_of(top), "\t COMPONENT  blk\n"
                                    "\t PORT\n"
                                    "\t ( \n"
                                    "\t\ta\t:\tIN  STD_LOGIC\n"
                                    "\t ); \t END COMPONENT;\n");
    wrapped.set_vhdl_primitive(); // needs no wrapper
    EXPECT_EQ(declarations_of(top), "\t COMPONENT  blk\n" + bare_cell
                                        + "\t PORT\n"
                                          "\t ( \n"
                                          "\t\ta\t:\tIN STD_LOGIC;\n"
                                          "\t\tb\t:\tIN STD_LOGIC\n"
                                          "\t ); \t END COMPONENT;\n");
}

TEST_F(VhdlComponents, OneEntityHasOneComponent)
{
    top_design top;
    top.cell("u1");
    top.cell("u2");
    top.subdesign("Leaf", "u3").set_entity_name("BLK"); // names differ in case alone
    EXPECT_EQ(declarations_of(top), "\t COMPONENT  blk\n" + bare_cell + "\t END COMPONENT;\n");
}

TEST_F(VhdlComponents, TheEntityNamesTheComponent)
{
    top_design top;
    top.subdesign("leaf", "u").set_entity_name("leaf_12");
    EXPECT_EQ(declarations_of(top), "\t COMPONENT  leaf_12\n\t END COMPONENT;\n");
}

TEST_F(VhdlComponents, SomeSubdesignsHaveNone)
{
    top_design top;
    top.cell("u1").set_use_custom_vhdl_output();
    top.subdesign("leaf", "u2").set_use_no_vhdl_component_declarations();
    EXPECT_EQ(declarations_of(top), "");
}

TEST_F(VhdlComponents, ExclusionCanBeTakenBack)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    leaf.set_use_no_vhdl_component_declarations(true);
    leaf.set_use_no_vhdl_component_declarations(false);
    EXPECT_EQ(declarations_of(top), "\t COMPONENT  leaf\n\t END COMPONENT;\n");
}

TEST_F(VhdlComponents, ARenamedCellHasNoneWherePlanbIsOn)
{
    for (char const * text : {"LBX_EDA_PLANB=ON", "LBX_EDA_PLANB=OFF"}) {
        top_design top(text);
        auto & cell = *new renamed_cell(&top, "blk");
        cell.set_instance_name("u");
        cell.set_entity_name("blk");
        cell.set_primitive();
        cell.disable_lpm_type_output();
        EXPECT_EQ(declarations_of(top) == "", std::string(text) == "LBX_EDA_PLANB=ON") << declarations_of(top);
    }
}

TEST_F(VhdlComponents, FollowAllSignals)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    leaf.output("y").set_used();
    top.wire("net").set_port_is_a_driver();
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  wire_u_y\t:\tSTD_LOGIC;\n"
                                    "\t SIGNAL  net :\tSTD_LOGIC;\n"
                                    "\t COMPONENT  leaf\n"
                                    "\t PORT\n"
                                    "\t ( \n"
                                    "\t\ty\t:\tOUT  STD_LOGIC\n"
                                    "\t ); \t END COMPONENT;\n");
}

TEST_F(VhdlComponents, AnArrayHasTheComponentOfOneSlice)
{
    top_design top;
    top.subdesign("leaf", "u", 4).input("a", 2).set_used();
    EXPECT_TRUE(declarations_of(top).ends_with("\t COMPONENT  leaf\n"
                                               "\t PORT\n"
                                               "\t ( \n"
                                               "\t\ta\t:\tIN  STD_LOGIC_VECTOR(1 DOWNTO 0)\n"
                                               "\t ); \t END COMPONENT;\n"));
}

TEST_F(VhdlSliceComponents, SlicesThatAreAlikeNeedOnlyTheCommonOne)
{
    top_design top;
    auto & array = array_of_leaves(top);
    array.create_slices();
    auto const found = components_of(array);
    EXPECT_TRUE(found.needs_common);
    EXPECT_EQ(found.text, "");
}

TEST_F(VhdlSliceComponents, ASliceThatDiffersHasItsOwn)
{
    top_design top;
    auto & array = array_of_leaves(top);
    array[1].parameter_integer("depth") = 5;
    array[1].set_entity_name("leaf_1");
    auto const found = components_of(array);
    EXPECT_TRUE(found.needs_common);
    EXPECT_EQ(found.text, "\t COMPONENT  leaf_1\n"
                          "\t PORT\n"
                          "\t ( \n"
                          "\t\ta\t:\tIN  STD_LOGIC_VECTOR(1 DOWNTO 0)\n"
                          "\t ); \t END COMPONENT;\n");
}

TEST_F(VhdlSliceComponents, ASliceThatDiffersInItsSettingsHasItsOwn)
{
    top_design top;
    auto & array = array_of_leaves(top);
    array.create_slices();
    (new GNL_PORT_INPUT(&array[0], "extra"))->set_used();
    array[0].set_entity_name("leaf_0");
    ASSERT_FALSE(array[0].is_heterogeneous_element());
    auto const found = components_of(array);
    EXPECT_TRUE(found.needs_common);
    EXPECT_EQ(found.text, "\t COMPONENT  leaf_0\n"
                          "\t PORT\n"
                          "\t ( \n"
                          "\t\ta\t:\tIN  STD_LOGIC_VECTOR(1 DOWNTO 0);\n"
                          "\t\textra\t:\tIN  STD_LOGIC\n"
                          "\t ); \t END COMPONENT;\n");
}

TEST_F(VhdlSliceComponents, TheCommonOneIsLeftOutWhenAllSlicesDiffer)
{
    top_design top;
    auto & array = array_of_leaves(top);
    for (int i = 0; i < 3; ++i) {
        array[i].parameter_integer("depth") = 5;
        array[i].set_entity_name(i == 0 ? "leaf_0" : "leaf_1");
    }
    std::string const ports = "\t PORT\n"
                              "\t ( \n"
                              "\t\ta\t:\tIN  STD_LOGIC_VECTOR(1 DOWNTO 0)\n"
                              "\t ); ";
    auto const found = components_of(array);
    EXPECT_FALSE(found.needs_common);
    EXPECT_EQ(found.text, "\t COMPONENT  leaf_0\n" + ports + "\t END COMPONENT;\n\t COMPONENT  leaf_1\n" + ports
                              + "\t END COMPONENT;\n");
    EXPECT_TRUE(declarations_of(top).ends_with(found.text));
}

TEST_F(VhdlSliceComponents, WhatIsDeclaredIsNotDeclaredAgain)
{
    top_design top;
    auto & array = array_of_leaves(top);
    array[1].parameter_integer("depth") = 5;
    array[1].set_entity_name("leaf_1");
    signal_names components{{"LEAF_1", "LEAF_1"}};
    EXPECT_EQ(components_of(array, components).text, "");
}

TEST_F(VhdlSliceComponents, AnArrayWithoutSlicesHasNone)
{
    top_design top;
    auto const found = components_of(top.subdesign("leaf", "u"));
    EXPECT_FALSE(found.needs_common);
    EXPECT_EQ(found.text, "");
}

TEST_F(VhdlSliceComponents, AnArrayOfCellsHasOneForAllSlices)
{
    top_design top;
    auto & array = top.cell("u", 2);
    auto const declare = [](design & of) {
        of.output("y").set_used();
        of.integer("depth", 2);
    };
    declare(array);
    array.declare_slice = declare;
    array[1].parameter_integer("depth") = 5;
    signal_names components;
    auto const found = components_of(array, components);
    EXPECT_FALSE(found.needs_common);
    EXPECT_EQ(found.text, "\t COMPONENT  blk\n"
                          "\t  GENERIC \n"
                          "\t (\n"
                          "\t\tdepth\t:\tNATURAL := 2;\n"
                          "\t\tlpm_hint\t:\tSTRING := \"UNUSED\"\n"
                          "\t  );\n"
                          "\t PORT\n"
                          "\t ( \n"
                          "\t\ty\t:\tOUT  STD_LOGIC\n"
                          "\t ); \n"
                          "\t END COMPONENT;\n");
    auto const again = components_of(array, components);
    EXPECT_FALSE(again.needs_common);
    EXPECT_EQ(again.text, "");
}

TEST_F(VhdlTypes, APortOfTwoDimensionsNeedsOneType)
{
    std::string const line = "\t type STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;\n";
    top_design top;
    auto & cell = top.cell("u");
    new GNL_PORT_INPUT(&cell, "a", std::string("W"), "D");
    new GNL_PORT_OUTPUT(&cell, "y", std::string("W"), "D");
    signal_names types;
    EXPECT_EQ(types_of(cell, types), line);
    EXPECT_EQ(types, (signal_names{{"std_logic_2d", "std_logic_2d"}}));
    EXPECT_EQ(types_of(cell, types), "");
    auto & fixed = top.subdesign("fixed", "v");
    fixed.set_primitive();
    new GNL_PORT_INPUT(&fixed, "a", 3, 4);
    EXPECT_EQ(types_of(fixed), line);
}

TEST_F(VhdlTypes, NoTypeIsNeededWithoutSuchAComponent)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    new GNL_PORT_INPUT(&leaf, "a", std::string("W"), "D");
    EXPECT_EQ(types_of(leaf), "");
    auto & library_cell = top.cell("v");
    new GNL_PORT_INPUT(&library_cell, "a", std::string("W"), "D");
    library_cell.set_use_no_vhdl_component_declarations();
    EXPECT_EQ(types_of(library_cell), "");
    auto & flat = top.subdesign("flat", "w");
    flat.set_primitive();
    new GNL_PORT_INPUT(&flat, "a", std::string("W"));
    new GNL_PORT_BIDIR(&flat, "p", std::string("W"), "D");
    EXPECT_EQ(types_of(flat), "");
}

TEST_F(VhdlTypes, ParameterArraysHaveTypes)
{
    top_design top;
    auto & cell = top.cell("u");
    GNL_PARAMETER_INTEGER_ARRAY coefficients(&cell, "COEF", 7);
    GNL_PARAMETER_STRING_ARRAY names(&cell, "NAMES", "a|b", 1);
    coefficients.set_array_width(4);
    names.set_array_width(2);
    EXPECT_EQ(types_of(cell), "");
    cell.set_has_true_vhdl_parameter_array();
    EXPECT_EQ(types_of(cell), "\t TYPE ARRAY_NATURAL_4 IS ARRAY ( 0 TO 3)  OF NATURAL;\n"
                              "\t TYPE ARRAY_STRING_2 IS ARRAY ( 0 TO 1)  OF STRING;\n");
    signal_names types{{"array_natural_4", ""}, {"ARRAY_STRING_2", ""}};
    EXPECT_EQ(types_of(cell, types), "");
}

TEST_F(VhdlTypes, StandBeforeTheFirstSignalOfTheirType)
{
    top_design top;
    auto & x = top.input("x", 12);
    x.set_used();
    auto & first = top.subdesign("a_leaf", "a");
    first.output("y").set_used();
    auto & cell = top.cell("u");
    auto & rows = *new GNL_PORT_INPUT(&cell, "rows", 3, 4);
    top.connect([&] { rows = x; });
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  wire_a_y\t:\tSTD_LOGIC;\n"
                                    "\t type STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;\n"
                                    "\t SIGNAL  wire_u_rows_2d\t:\tSTD_LOGIC_2D(2 DOWNTO 0, 3 DOWNTO 0);\n"
                                    "\t COMPONENT  a_leaf\n"
                                    "\t PORT\n"
                                    "\t ( \n"
                                    "\t\ty\t:\tOUT  STD_LOGIC\n"
                                    "\t ); \t END COMPONENT;\n"
                                    "\t COMPONENT  blk\n"
                                        + bare_cell
                                        + "\t PORT\n"
                                          "\t ( \n"
                                          "\t\trows\t:\tIN STD_LOGIC_2D(2 DOWNTO 0, 3 DOWNTO 0)\n"
                                          "\t ); \t END COMPONENT;\n");
}
