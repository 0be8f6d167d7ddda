#include "top_design.h"

using namespace gnl_test;

namespace {

using QhdlWithClause = in_folder;

std::string clause(GNL_GENERATOR & cell, bool in_variable)
{
    return written(cell, &GNL_GENERATOR::dump_qhdl_parameter_section, in_variable);
}

TEST_F(QhdlWithClause, WithoutAParameterEndsTheVariableAlone)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.integer("unused");
    cell.integer("hidden").set_as_not_included_in_declaration();
    cell.parameter_integer("hidden") = 4;
    EXPECT_EQ(clause(cell, true), ";\n");
    EXPECT_EQ(clause(cell, false), "");
}

TEST_F(QhdlWithClause, HoldsNumbersStringsAndVectors)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.integer("Depth") = 12;
    cell.string("mode", "SLOW|FAST") = "FAST";
    auto & digits = cell.vector("digits", 0, 9);
    digits = "0x0AF";
    auto & bits = cell.vector("bits", 0, 5);
    bits.set_to_use_binary_output();
    bits = "0b00110";
    EXPECT_EQ(clause(cell, true), "\n"
                                  "\t\tWITH (\n"
                                  "\t\t\tbits = \"00110\",\n"
                                  "\t\t\tDepth = 12,\n"
                                  "\t\t\tdigits = \"0AF\",\n"
                                  "\t\t\tmode = \"FAST\"\n"
                                  "\t\t);\n");
}

TEST_F(QhdlWithClause, OutsideAVariableStandsInOneLine)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.integer("DEPTH") = 12;
    cell.string("MODE", "") = "FAST";
    EXPECT_EQ(clause(cell, false), "WITH ( \t\tDEPTH = 12,\t\tMODE = \"FAST\") \n");
}

TEST_F(QhdlWithClause, HoldsExpressionsAsText)
{
    top_design top;
    auto & width = top.integer("WIDTH", 8);
    width.set_as_parameterized();
    auto & cell = top.cell("u");
    cell.integer("DEPTH") = width.get_parameter() % 3;
    cell.string("STYLE", "") = width.get_parameter();
    EXPECT_EQ(clause(cell, true), "\n"
                                  "\t\tWITH (\n"
                                  "\t\t\tDEPTH = (WIDTH MOD 3),\n"
                                  "\t\t\tSTYLE = WIDTH\n"
                                  "\t\t);\n");
}

TEST_F(QhdlWithClause, HoldsParameterArraysBehindTheOthers)
{
    top_design top;
    auto & cell = top.cell("u");
    GNL_PARAMETER_INTEGER_ARRAY coefficients(&cell, "COEF", -1);
    coefficients[0] = 5;
    coefficients[2] = 7;
    EXPECT_EQ(clause(cell, true), "\n"
                                  "\t\tWITH (\n"
                                  "\tCOEF0 = 5,\n"
                                  "\tCOEF2 = 7\n"
                                  "\t\t);\n");
    cell.integer("WIDTH") = 3;
    EXPECT_EQ(clause(cell, true), "\n"
                                  "\t\tWITH (\n"
                                  "\t\t\tWIDTH = 3,\n"
                                  "\tCOEF0 = 5,\n"
                                  "\tCOEF2 = 7\n"
                                  "\t\t);\n");
}

TEST_F(QhdlWithClause, AnEntryTellsWhetherOneHasBeenWritten)
{
    top_design top;
    auto & cell = top.cell("u");
    auto & depth = cell.integer("DEPTH");
    std::ostringstream out;
    EXPECT_FALSE(cell.dump_qhdl_parameter_assignment(out, &depth, false, true));
    EXPECT_TRUE(cell.dump_qhdl_parameter_assignment(out, &depth, true, true));
    EXPECT_EQ(out.str(), "");
    depth = 4;
    EXPECT_TRUE(cell.dump_qhdl_parameter_assignment(out, &depth, true, true));
    EXPECT_EQ(out.str(), ",\n\t\t\tDEPTH = 4");
}

} // namespace
