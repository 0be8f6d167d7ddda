#include "verilog_sections.h"

using namespace gnl_test;

namespace {

using VerilogModuleSection = verilog_sections;
using VerilogPortSection = verilog_sections;

std::string module_section(GNL_GENERATOR & design)
{
    return written(design, &GNL_GENERATOR::dump_verilog_module_section);
}

std::string port_section(GNL_GENERATOR & design)
{
    return written(design, &GNL_GENERATOR::dump_verilog_port_section);
}

/// Asks for an order of its own in the module header.
class sorted_design : public top_design
{
public:
    bool has_sorted_port_list() override { return true; }
    std::list<std::string> get_sorted_port_list() override { return {"y", "nowhere", "unused", "B", "a"}; }
};

} // namespace

TEST_F(VerilogModuleSection, ListsTheDeclaredPortsInNameOrderWithoutRegardToCase)
{
    top_design top;
    top.input("b").set_used();
    top.output("C").set_used();
    top.bidir("a").set_used();
    top.input("D").set_constant_used();
    EXPECT_EQ(module_section(top), "top\n"
                                   "\t( \n"
                                   "\ta,\n"
                                   "\tb,\n"
                                   "\tC,\n"
                                   "\tD) ");
}

TEST_F(VerilogModuleSection, LeavesOutUnusedPortsAndWhatIsNoPin)
{
    top_design top;
    auto & a = top.input("a", 4);
    top.input("idle");
    top.output("open");
    top.bidir("loose");
    auto & w = top.wire("w", 4);
    top.connect([&] { w = (a.range(1, 0), a.range(3, 2)); });
    a.set_used();
    w.set_used();
    EXPECT_EQ(module_section(top), "top\n"
                                   "\t( \n"
                                   "\ta) ");
}

TEST_F(VerilogModuleSection, IsEmptyWithoutDeclaredPorts)
{
    top_design top;
    EXPECT_EQ(module_section(top), "top\n"
                                   "\t( \n"
                                   ") ");
}

TEST_F(VerilogModuleSection, FollowsTheAuthorsOrderAndPassesOverUnknownNames)
{
    sorted_design top;
    top.input("a").set_used();
    top.input("b").set_used();
    top.input("unused");
    top.output("y").set_used();
    top.output("z").set_used();
    EXPECT_EQ(module_section(top), "top\n"
                                   "\t( \n"
                                   "\ty,\n"
                                   "\tb,\n"
                                   "\ta) ");
    EXPECT_EQ(port_section(top), "\tinput   a;\n"
                                 "\tinput   b;\n"
                                 "\toutput   y;\n"
                                 "\toutput   z;\n");
}

TEST_F(VerilogPortSection, ScalarHasNoRangeAndWidthOneHas)
{
    top_design top;
    top.input("a").set_used();
    top.input("b", 1).set_used();
    EXPECT_EQ(port_section(top), "\tinput   a;\n"
                                 "\tinput   [0:0]  b;\n");
}

TEST_F(VerilogPortSection, EachDirectionHasThreeBlanks)
{
    top_design top;
    top.input("a", 8).set_used();
    top.bidir("b", 8).set_used();
    top.output("c", 8).set_used();
    EXPECT_EQ(port_section(top), "\tinput   [7:0]  a;\n"
                                 "\tinout   [7:0]  b;\n"
                                 "\toutput   [7:0]  c;\n");
}

TEST_F(VerilogPortSection, SignedStandsBeforeTheRange)
{
    top_design top;
    auto & a = top.input("a", 4);
    auto & b = top.output("b");
    auto & c = top.input("c", 4);
    for (GNL_PORT * port : {static_cast<GNL_PORT *>(&a), static_cast<GNL_PORT *>(&b), static_cast<GNL_PORT *>(&c)})
        port->set_port_is_signed();
    a.set_used();
    b.set_used();
    c.set_constant_used();
    EXPECT_EQ(port_section(top), "\tinput   signed\t[3:0]  a;\n"
                                 "\toutput   signed\tb;\n"
                                 "\tinput   signed\t[3:0]  c;\n");
}

TEST_F(VerilogPortSection, AConstantUsedInputHasNoOptions)
{
    top_design top;
    auto & a = top.input("a");
    auto & b = top.input("b");
    a.set_qelvar_internal_option("X=1");
    a.set_qelvar_internal_option("Y=2");
    b.set_qelvar_internal_option("X=1");
    a.set_used();
    b.set_constant_used();
    EXPECT_EQ(port_section(top), "\tinput   a/* synthesis QELVAR_ATTRIBUTE=\"X=1;Y=2\" */;\n"
                                 "\tinput   b;\n");
}

TEST_F(VerilogPortSection, AnArrayDeclaresTheWidthOfOneSlice)
{
    top_design top;
    auto & arr = top.subdesign("leaf", "u", 3);
    auto & a = arr.input("a", 4);
    a.set_used();
    EXPECT_EQ(a.get_width(), 12);
    EXPECT_EQ(port_section(arr), "\tinput   [3:0]  a;\n");
}

TEST_F(VerilogPortSection, PullsOfDefaultsFollowAllDirectionsInOneGuard)
{
    top_design top;
    top.input("a", 0, 1).set_used();
    top.input("b", 4, 0).set_used();
    top.input("c", 0, 2).set_used();
    top.input("d").set_used();
    top.input("e", 1, 1).set_constant_used();
    top.input("idle", 0, 1);
    auto & y = top.output("y");
    y.set_default_port_value(1);
    y.set_used();
    EXPECT_EQ(port_section(top), "\tinput   a;\n"
                                 "\tinput   [3:0]  b;\n"
                                 "\tinput   c;\n"
                                 "\tinput   d;\n"
                                 "\tinput   [0:0]  e;\n"
                                 "\toutput   y;\n"
                                 "`ifndef QELVAR_RESERVED_TIS\n"
                                 "// synopsys translate_off\n"
                                 "`endif\n"
                                 "\ttri1   a;\n"
                                 "\ttri0   [3:0]  b;\n"
                                 "\ttri1   [0:0]  e;\n"
                                 "`ifndef QELVAR_RESERVED_TIS\n"
                                 "// synopsys translate_on\n"
                                 "`endif\n");
}
