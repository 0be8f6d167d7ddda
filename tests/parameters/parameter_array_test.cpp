// Parameter arrays: elements, values from the text and from above, what the writers show of them.

#include "parameter_errors.h"

namespace {

using namespace gnl_test;
using known_texts = std::map<std::string, std::string, LESS_C_STRING>;
using values_by_index = std::map<int, std::string>;

class ParameterArray : public in_folder
{
protected:
    design top{nullptr};
};

TEST_F(ParameterArray, KeysAndKinds)
{
    GNL_PARAMETER_INTEGER_ARRAY coef(&top, "Coef", 5);
    GNL_PARAMETER_STRING_ARRAY tag(&top, "TAG", "HOT(H)|COLD", 0);
    EXPECT_EQ(coef.generate_key(), "PAR_ARY;Coef");
    EXPECT_EQ(GNL_PARAMETER_ARRAY::generate_key_base("x"), "PAR_ARY;x");
    EXPECT_TRUE(coef.is_parameter_array());
    EXPECT_FALSE(coef.is_parameter());
    EXPECT_TRUE(coef.is_integer_parameter_array());
    EXPECT_FALSE(coef.is_string_parameter_array());
    EXPECT_TRUE(tag.is_string_parameter_array());
    EXPECT_FALSE(tag.is_integer_parameter_array());
    EXPECT_EQ(top.get_parameter_array_object("COEF"), &coef);
    EXPECT_EQ(top.get_parameter_object("COEF"), nullptr);
    EXPECT_EQ(coef.get_default_value(), "5");
    EXPECT_EQ(tag.get_default_value(), "HOT");
    EXPECT_EQ(tag.get_value_list(), "HOT(H)|COLD");
    EXPECT_EQ(GNL_PARAMETER_INTEGER_ARRAY(nullptr, "x", -4).get_default_value(), "");
    EXPECT_EQ(GNL_PARAMETER_STRING_ARRAY(nullptr, "x", "A|B", -1).get_default_value(), "");
}

TEST_F(ParameterArray, MissingElementIsMadeWithTheDefault)
{
    GNL_PARAMETER_INTEGER_ARRAY a(&top, "a", 5);
    EXPECT_EQ(a[3].get_name(), "a3");
    EXPECT_EQ(a[3].get_value(), 5);
    EXPECT_EQ(a[3].get_parent(), nullptr);
    EXPECT_EQ(&a[3], &a[3]);
    GNL_PARAMETER_STRING_ARRAY tag(&top, "TAG", "HOT|COLD", 1);
    EXPECT_EQ(tag[0].get_name(), "TAG0");
    EXPECT_EQ(tag[0].get_value(), "COLD");
}

TEST_F(ParameterArray, IsUsedWithItsFirstAssignedElement)
{
    GNL_PARAMETER_INTEGER_ARRAY a(&top, "a", 5);
    EXPECT_FALSE(a.is_used());
    a[3];
    EXPECT_FALSE(a.is_used());
    a[4] = 0;
    EXPECT_TRUE(a.is_used());
}

TEST_F(ParameterArray, InheritsWhenItHasADefault)
{
    EXPECT_TRUE(GNL_PARAMETER_INTEGER_ARRAY(&top, "A", 0).is_inherit_allowed());
    EXPECT_TRUE(GNL_PARAMETER_INTEGER_ARRAY(&top, "B", -1).is_inherit_never());
    EXPECT_TRUE(GNL_PARAMETER_STRING_ARRAY(&top, "C", "X|Y", 0).is_inherit_allowed());
    EXPECT_TRUE(GNL_PARAMETER_STRING_ARRAY(&top, "D", "X|Y", -1).is_inherit_never());
    EXPECT_TRUE(GNL_PARAMETER_STRING_ARRAY(&top, "E", "", 0).is_inherit_never());
    GNL_PARAMETER_INTEGER_ARRAY a(&top, "F", 0);
    a.set_as_inherit_only();
    EXPECT_TRUE(a.is_inherit_only());
    EXPECT_FALSE(a.is_inherit_allowed());
    a.set_as_inherit_never();
    EXPECT_TRUE(a.is_inherit_never());
    EXPECT_FALSE(a.is_inherit_only());
}

TEST_F(ParameterArray, CollectsWhatHasAValueAndIsNotThereYet)
{
    GNL_PARAMETER_INTEGER_ARRAY a(&top, "a", -1);
    a[1] = 4;
    a[2] = 0;
    a[3] = -7;
    a[5] = 6;
    values_by_index values = {{5, "old"}};
    a.collect_values(values);
    EXPECT_EQ(values, (values_by_index{{1, "4"}, {2, "0"}, {5, "old"}}));
    GNL_PARAMETER_STRING_ARRAY tag(&top, "TAG", "HOT(H)|UNUSED|COLD", -1);
    tag[0] = "h";
    tag[1] = "UNUSED";
    tag[2];
    values.clear();
    tag.collect_values(values);
    EXPECT_EQ(values, (values_by_index{{0, "HOT"}}));
}

TEST_F(ParameterArray, CollectsDefaultsToo)
{
    GNL_PARAMETER_INTEGER_ARRAY a(&top, "a", 9);
    a[1];
    values_by_index values;
    a.collect_values(values);
    EXPECT_EQ(values, (values_by_index{{1, "9"}}));
}

TEST_F(ParameterArray, ElementsComeFromTheText)
{
    design with_text(nullptr, "top", "delay3=7,DELAY12=5,TAG0=hot");
    GNL_PARAMETER_INTEGER_ARRAY delay(&with_text, "DELAY", 1);
    GNL_PARAMETER_STRING_ARRAY tag(&with_text, "TAG", "", -1);
    EXPECT_EQ(delay[3].get_value(), 7);
    EXPECT_EQ(delay[12].get_value(), 5);
    EXPECT_EQ(delay[4].get_value(), 1);
    EXPECT_EQ(tag[0].get_value(), "hot");
    delay[3] = 8;
    EXPECT_EQ(delay[3].get_value(), 8);
}

TEST_F(ParameterArray, UseReadsTheTextFirst)
{
    design with_text(nullptr, "top", "delay3=7");
    GNL_PARAMETER_INTEGER_ARRAY delay(&with_text, "DELAY", 1);
    EXPECT_TRUE(delay.is_used());
}

TEST_F(ParameterArray, IntegersComeFromAboveTheGenerator)
{
    GNL_PARAMETER_INTEGER_ARRAY above(&top, "COEF", 1);
    above[2] = 20;
    above[3] = 30;
    auto & sub = top.child("sub", "u");
    GNL_PARAMETER_INTEGER_ARRAY middle(&sub, "COEF", 1);
    EXPECT_EQ(middle[2].get_value(), 20);
    middle[3] = 31;
    middle[4] = 41;
    auto & leaf = sub.child("leaf", "v");
    GNL_PARAMETER_INTEGER_ARRAY lowest(&leaf, "coef", 9);
    EXPECT_EQ(lowest[2].get_value(), 20);
    EXPECT_EQ(lowest[3].get_value(), 31);
    EXPECT_EQ(lowest[4].get_value(), 41);
    EXPECT_EQ(lowest[5].get_value(), 9);
    EXPECT_EQ(lowest[4].get_name(), "coef4");
}

TEST_F(ParameterArray, StringsComeFromTheGeneratorAndAbove)
{
    GNL_PARAMETER_STRING_ARRAY above(&top, "TAG", "", -1);
    above[2] = "two";
    auto & sub = top.child("sub", "u");
    auto & leaf = sub.child("leaf", "v");
    GNL_PARAMETER_STRING_ARRAY lowest(&leaf, "TAG", "", -1);
    EXPECT_EQ(lowest[2].get_value(), "two");
    EXPECT_EQ(lowest[3].get_value(false), "UNUSED");
}

TEST_F(ParameterArray, LevelsWithoutTheArrayArePassedOver)
{
    GNL_PARAMETER_INTEGER_ARRAY above(&top, "COEF", 1);
    above[2] = 20;
    auto & leaf = top.child("sub", "u").child("leaf", "v");
    GNL_PARAMETER_INTEGER_ARRAY lowest(&leaf, "COEF", 9);
    EXPECT_EQ(lowest[2].get_value(), 20);
}

TEST_F(ParameterArray, CopyOwnsItsElements)
{
    GNL_PARAMETER_INTEGER_ARRAY a(&top, "A", 1);
    a[2] = 5;
    a.set_array_width(4);
    a.set_array_type("my_type");
    GNL_PARAMETER_INTEGER_ARRAY copy(a);
    a[2] = 6;
    EXPECT_EQ(copy[2].get_value(), 5);
    EXPECT_EQ(copy.get_name(), "A");
    EXPECT_EQ(copy.get_array_width(), 4);
    EXPECT_EQ(copy.get_array_type(), "my_type");
    EXPECT_EQ(top.get_parameter_array_object("A"), &a);
}

TEST_F(ParameterArray, AssignedArrayKeepsItsName)
{
    GNL_PARAMETER_STRING_ARRAY a(&top, "A", "X|Y", 0);
    GNL_PARAMETER_STRING_ARRAY b(&top, "B", "", -1);
    a[2] = "Y";
    b = a;
    EXPECT_EQ(b.get_name(), "B");
    EXPECT_EQ(b[2].get_value(), "Y");
    EXPECT_EQ(b[2].get_name(), "B2");
    EXPECT_EQ(b[3].get_value(), "X");
    b = *&b;
    EXPECT_EQ(b[2].get_value(), "Y");
}

TEST_F(ParameterArray, TypeKeyHoldsKindAndLength)
{
    GNL_PARAMETER_STRING_ARRAY tag(&top, "TAG", "", -1);
    tag.set_array_width(4);
    EXPECT_EQ(tag.generate_type_key(), "ARRAY_STRING_4");
    GNL_PARAMETER_INTEGER_ARRAY coef(&top, "COEF", -1);
    EXPECT_EQ(coef.get_array_width(), -1);
    coef.set_array_width(12);
    EXPECT_EQ(coef.generate_type_key(), "ARRAY_NATURAL_12");
}

class ParameterArrayText : public ParameterArray
{
protected:
    void SetUp() override
    {
        ParameterArray::SetUp();
        coef[10] = 11;
        coef[2] = 5;
        coef[3];
        tag[1] = "cold";
        tag[0] = "Hot";
        sub.set_instance_name("u");
    }

    using writer = std::function<bool(std::ostream &, bool)>;
    /// What is written at the start of a block, "|", what is written behind something else; "!" for a wrong answer.
    static std::string text_of(writer const & write)
    {
        std::ostringstream text;
        bool right = write(text, false);
        text << "|";
        right = write(text, true) && right;
        return right ? text.str() : text.str() + "!";
    }

    design & sub = top.child("sub", "u");
    GNL_PARAMETER_INTEGER_ARRAY coef{&sub, "Coef", 1};
    GNL_PARAMETER_STRING_ARRAY tag{&sub, "Tag", "Hot|Cold", 0};
};

TEST_F(ParameterArrayText, Header)
{
    EXPECT_EQ(coef.generate_parameter_array_header_declarations(), " Coef2=5 Coef10=11");
    EXPECT_EQ(tag.generate_parameter_array_header_declarations(), " Tag0=Hot Tag1=Cold");
}

TEST_F(ParameterArrayText, QhdlAssignment)
{
    EXPECT_EQ(text_of([&](auto & out, bool started) {
                  return coef.dump_qhdl_parameter_array_assignment(out, started, false);
              }),
              "WITH ( \tCoef2 = 5,\n\tCoef10 = 11|,\n\tCoef2 = 5,\n\tCoef10 = 11");
    EXPECT_EQ(
        text_of([&](auto & out, bool started) { return tag.dump_qhdl_parameter_array_assignment(out, started, true); }),
        "\n\t\tWITH (\n\tTag0 = \"Hot\",\n\tTag1 = \"Cold\"|,\n\tTag0 = \"Hot\",\n\tTag1 = \"Cold\"");
}

TEST_F(ParameterArrayText, VerilogAssignment)
{
    EXPECT_EQ(text_of([&](auto & out, bool started) {
                  return coef.dump_verilog_parameter_array_assignment(out, started, -1);
              }),
              "\tdefparam\n\t\tu.coef2 = 5,\n\t\tu.coef10 = 11|,\n\t\tu.coef2 = 5,\n\t\tu.coef10 = 11");
    EXPECT_EQ(
        text_of([&](auto & out, bool started) { return tag.dump_verilog_parameter_array_assignment(out, started, 3); }),
        "\tdefparam\n\t\tu_3.tag0 = \"Hot\",\n\t\tu_3.tag1 = \"Cold\"|"
        ",\n\t\tu_3.tag0 = \"Hot\",\n\t\tu_3.tag1 = \"Cold\"");
}

TEST_F(ParameterArrayText, VerilogValuesInLowerCase)
{
    sub.set_use_lower_case_verilog_parameter_values();
    std::ostringstream out;
    tag.dump_verilog_parameter_array_assignment(out, true, -1);
    EXPECT_EQ(out.str(), ",\n\t\tu.tag0 = \"hot\",\n\t\tu.tag1 = \"cold\"");
}

TEST_F(ParameterArrayText, VhdlAssignmentOfElements)
{
    EXPECT_EQ(text_of([&](auto & out, bool started) {
                  return coef.dump_vhdl_parameter_array_assignment(out, started, false);
              }),
              "\t  GENERIC MAP (\n\t\tCoef2 => 5,\n\t\tCoef10 => 11|,\n\t\tCoef2 => 5,\n\t\tCoef10 => 11");
    EXPECT_EQ(text_of([&](auto & out, bool started) {
                  return tag.dump_vhdl_parameter_array_assignment(out, started, false);
              }),
              "\t  GENERIC MAP (\n\t\tTag0 => \"Hot\",\n\t\tTag1 => \"Cold\"|"
              ",\n\t\tTag0 => \"Hot\",\n\t\tTag1 => \"Cold\"");
}

TEST_F(ParameterArrayText, VhdlAssignmentOfTheWholeArray)
{
    EXPECT_EQ(text_of([&](auto & out, bool started) {
                  return coef.dump_vhdl_parameter_array_assignment(out, started, true);
              }),
              "\t  GENERIC MAP (\n\t\tCoef => ( 2 => 5,10 => 11, OTHERS => 1)|"
              ",\n\t\tCoef => ( 2 => 5,10 => 11, OTHERS => 1)");
    EXPECT_EQ(
        text_of([&](auto & out, bool started) { return tag.dump_vhdl_parameter_array_assignment(out, started, true); }),
        "\t  GENERIC MAP (\n\t\tTag => ( 0 => \"Hot\",1 => \"Cold\", OTHERS => \"Hot\")|"
        ",\n\t\tTag => ( 0 => \"Hot\",1 => \"Cold\", OTHERS => \"Hot\")");
}

TEST_F(ParameterArrayText, VhdlAssignmentWithoutADefaultHasNoOthers)
{
    GNL_PARAMETER_INTEGER_ARRAY bare(&sub, "BARE", -1);
    bare[0] = 4;
    std::ostringstream out;
    bare.dump_vhdl_parameter_array_assignment(out, true, true);
    EXPECT_EQ(out.str(), ",\n\t\tBARE => ( 0 => 4)");
}

TEST_F(ParameterArrayText, VhdlGenericsOfElements)
{
    EXPECT_EQ(
        text_of([&](auto & out, bool started) { return coef.dump_vhdl_generic_declaration(out, started, false); }),
        "\t GENERIC \n\t (\n\t\tCoef2\t:\tNATURAL := 1;\n\t\tCoef10\t:\tNATURAL := 1|"
        ";\n\t\tCoef2\t:\tNATURAL := 1;\n\t\tCoef10\t:\tNATURAL := 1");
    EXPECT_EQ(text_of([&](auto & out, bool started) { return tag.dump_vhdl_generic_declaration(out, started, false); }),
              "\t GENERIC \n\t (\n\t\tTag0\t:\tSTRING := \"Hot\";\n\t\tTag1\t:\tSTRING := \"Hot\"|"
              ";\n\t\tTag0\t:\tSTRING := \"Hot\";\n\t\tTag1\t:\tSTRING := \"Hot\"");
    GNL_PARAMETER_INTEGER_ARRAY bare(&sub, "BARE", -1);
    bare[0] = 4;
    std::ostringstream out;
    bare.dump_vhdl_generic_declaration(out, true, false);
    EXPECT_EQ(out.str(), ";\n\t\tBARE0\t:\tNATURAL");
}

TEST_F(ParameterArrayText, VhdlGenericOfTheWholeArray)
{
    coef.set_array_type("coef_type");
    EXPECT_EQ(text_of([&](auto & out, bool started) { return coef.dump_vhdl_generic_declaration(out, started, true); }),
              "\t GENERIC \n\t (\n\t\tCoef\t:\tcoef_type := (OTHERS => 1)|;\n\t\tCoef\t:\tcoef_type := (OTHERS => 1)");
    tag.set_array_width(2);
    EXPECT_EQ(text_of([&](auto & out, bool started) { return tag.dump_vhdl_generic_declaration(out, started, true); }),
              "\t GENERIC \n\t (\n\t\tTag\t:\tARRAY( NATURAL range<>) OF STRING := (OTHERS => \"Hot\")|"
              ";\n\t\tTag\t:\tARRAY( NATURAL range<>) OF STRING := (OTHERS => \"Hot\")");
}

TEST_F(ParameterArrayText, UnboundVhdlArrayWritesNothing)
{
    std::ostringstream out;
    EXPECT_FALSE(coef.dump_vhdl_generic_declaration(out, false, true));
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(top.messages(), texts{vhdl_array_unbound("Coef")});
}

TEST_F(ParameterArrayText, GenericsOfSlicesAreDeclaredOnce)
{
    known_texts known;
    std::ostringstream out;
    EXPECT_TRUE(coef.dump_vhdl_generic_declaration_for_arrays(out, false, known));
    EXPECT_EQ(out.str(), "\t  GENERIC \n\t (\n\t\tCoef2\t:\tNATURAL := 1;\n\t\tCoef10\t:\tNATURAL := 1");
    out.str("");
    coef[4] = 1;
    EXPECT_TRUE(coef.dump_vhdl_generic_declaration_for_arrays(out, true, known));
    EXPECT_EQ(out.str(), ";\n\t\tCoef4\t:\tNATURAL := 1");
}

TEST_F(ParameterArrayText, GenericOfAWholeArrayOfSlicesIsDeclaredOnce)
{
    sub.set_has_true_vhdl_parameter_array();
    coef.set_array_type("coef_type");
    known_texts known;
    std::ostringstream out;
    coef.dump_vhdl_generic_declaration_for_arrays(out, true, known);
    coef.dump_vhdl_generic_declaration_for_arrays(out, true, known);
    EXPECT_EQ(out.str(), ";\n\t\tCoef\t:\tcoef_type := (OTHERS => 1)");
}

TEST_F(ParameterArrayText, EachVhdlTypeIsDeclaredOnce)
{
    std::ostringstream out;
    EXPECT_EQ(coef.dump_vhdl_type_declarations(out, {}).size(), 0u);
    EXPECT_EQ(out.str(), "");
    coef.set_array_width(12);
    tag.set_array_width(2);
    auto known = coef.dump_vhdl_type_declarations(out, {});
    known = tag.dump_vhdl_type_declarations(out, known);
    known = coef.dump_vhdl_type_declarations(out, known);
    EXPECT_EQ(out.str(), "\t TYPE ARRAY_NATURAL_12 IS ARRAY ( 0 TO 11)  OF NATURAL;\n"
                         "\t TYPE ARRAY_STRING_2 IS ARRAY ( 0 TO 1)  OF STRING;\n");
    EXPECT_EQ(known.count("ARRAY_NATURAL_12") + known.count("ARRAY_STRING_2"), 2u);
}

TEST_F(ParameterArrayText, ElementsWithoutAValueOrDeclarationStayOut)
{
    GNL_PARAMETER_INTEGER_ARRAY bare(&sub, "BARE", -1);
    bare[0] = -3;
    bare[1] = 4;
    bare[1].set_as_not_included_in_declaration();
    std::ostringstream out;
    EXPECT_FALSE(bare.dump_verilog_parameter_array_assignment(out, false, -1));
    EXPECT_FALSE(bare.dump_qhdl_parameter_array_assignment(out, false, true));
    EXPECT_FALSE(bare.dump_vhdl_parameter_array_assignment(out, false, true));
    EXPECT_FALSE(bare.dump_vhdl_generic_declaration(out, false, true));
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(bare.generate_parameter_array_header_declarations(), " BARE1=4");
}

TEST_F(ParameterArrayText, ExpressionIsWrittenInPlaceOfTheValue)
{
    GNL_PARAMETER_INTEGER_ARRAY bare(&sub, "BARE", -1);
    bare[0] = top.integer("WIDTH", 4).get_parameter() + 1;
    std::ostringstream out;
    bare.dump_verilog_parameter_array_assignment(out, true, -1);
    EXPECT_EQ(out.str(), ",\n\t\tu.bare0 = (WIDTH + 1)");
}

} // namespace
