#include "top_design.h"

using namespace gnl_test;

namespace {

using QhdlParameters = in_folder;
using QhdlSubdesign = in_folder;

std::string parameters(GNL_GENERATOR & design)
{
    return written(design, &GNL_GENERATOR::dump_qhdl_top_level_parameter_section);
}

std::string pins(GNL_GENERATOR & design)
{
    return written(design, &GNL_GENERATOR::dump_qhdl_subdesign_section);
}

TEST_F(QhdlParameters, AreNotWrittenWithoutAnExposedOne)
{
    top_design top;
    top.integer("depth") = 4;
    top.integer("unused").set_as_parameterized();
    EXPECT_EQ(parameters(top), "");
}

TEST_F(QhdlParameters, StandWithTheirValues)
{
    top_design top("WIDTH=16,Mode=FAST");
    top.integer("WIDTH", 8).set_as_parameterized();
    top.string("Mode", "").set_as_parameterized();
    EXPECT_EQ(parameters(top), "PARAMETERS\n"
                               "(\n"
                               "\tMode = FAST,\n"
                               "\tWIDTH = 16\n"
                               ");\n");
}

TEST_F(QhdlSubdesign, ListsUsedPinsInOrderOfTheirNames)
{
    top_design top;
    top.input("words", 8).set_used();
    top.input("one", 1).set_used();
    top.input("Clk").set_used();
    top.input("unused");
    top.output("y", 4).set_used();
    top.output("spare");
    top.bidir("pad", 2).set_used();
    top.bidir("loose");
    top.wire("inner", 3);
    EXPECT_EQ(pins(top), "SUBDESIGN top\n"
                         "( \n"
                         "\tClk\t:\tinput;\n"
                         "\tone[0..0]\t:\tinput;\n"
                         "\tpad[1..0]\t:\tbidir;\n"
                         "\twords[7..0]\t:\tinput;\n"
                         "\ty[3..0]\t:\toutput;\n"
                         ") ");
}

TEST_F(QhdlSubdesign, ListsAnInputThatIsHeldAtAConstant)
{
    top_design top;
    top.input("en", 0, 1).set_constant_used();
    EXPECT_EQ(pins(top), "SUBDESIGN top\n"
                         "( \n"
                         "\ten\t:\tinput;\n"
                         ") ");
}

TEST_F(QhdlSubdesign, WithoutPinsIsEmpty)
{
    top_design top;
    top.set_entity_name("mg5k2");
    EXPECT_EQ(pins(top), "SUBDESIGN mg5k2\n"
                         "( \n"
                         ") ");
}

TEST_F(QhdlSubdesign, HasBothDimensionsOfAPinInOneRange)
{
    top_design top;
    (new GNL_PORT_INPUT(&top, "rows", 3, 4))->set_used();
    EXPECT_EQ(pins(top), "SUBDESIGN top\n"
                         "( \n"
                         "\trows[11..0]\t:\tinput;\n"
                         ") ");
}

} // namespace
