#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

using VhdlGenerics = vhdl_sections;
using VhdlPorts = vhdl_sections;
using VhdlFile = in_folder;

std::string generics(GNL_GENERATOR & design)
{
    return written(design, &GNL_GENERATOR::dump_vhdl_top_level_parameter_section);
}

std::string ports(GNL_GENERATOR & design)
{
    return written(design, &GNL_GENERATOR::dump_vhdl_port_section);
}

class sorted_design : public top_design
{
public:
    bool has_sorted_port_list() override { return true; }
    std::list<std::string> get_sorted_port_list() override { return {"y", "missing", "b", "idle", "a"}; }
};

/// What stands behind the notices at the top of the file.
std::string body(std::string const & text)
{
    auto const start = text.find("--synthesis_resources");
    return start == std::string::npos ? text : text.substr(start);
}

} // namespace

TEST_F(VhdlGenerics, HoldExposedParametersThatAreUsed)
{
    top_design top;
    top.integer("SIZE", 4).set_as_parameterized();
    top.string("MODE", "A|B", 1).set_as_parameterized();
    auto & quoted = top.integer("QUOTED", 7);
    quoted.set_as_parameterized();
    quoted.set_output_as_string_parameter();
    top.integer("UNUSED_ONE", 1).set_as_parameterized();
    top.integer("HIDDEN", 2) = 3;
    for (char const * name : {"SIZE", "QUOTED"})
        top.parameter_integer(name).get_parameter();
    top.parameter_string("MODE").get_parameter();
    EXPECT_EQ(generics(top), "\t GENERIC \n"
                             "\t (\n"
                             "\t\tMODE\t:\tSTRING := \"B\";\n"
                             "\t\tQUOTED\t:\tSTRING := \"7\";\n"
                             "\t\tSIZE\t:\tNATURAL := 4\n"
                             "\t );\n");
}

TEST_F(VhdlGenerics, AreNotThereWithoutExposedParameters)
{
    top_design top;
    top.integer("SIZE", 4) = 5;
    EXPECT_EQ(generics(top), "");
}

TEST_F(VhdlPorts, AScalarIsABitAndAWidthOfOneAVector)
{
    top_design top;
    for (auto * port : {&top.input("a"), &top.input("b", 1), &top.input("c", 8)})
        port->set_used();
    for (auto * port : {&top.output("x"), &top.output("y", 1), &top.output("z", 8)})
        port->set_used();
    for (auto * port : {&top.bidir("p"), &top.bidir("q", 1), &top.bidir("r", 8)})
        port->set_used();
    EXPECT_EQ(ports(top), "\t PORT \n"
                          "\t ( \n"
                          "\t\t a\t:\tIN  STD_LOGIC;\n"
                          "\t\t b\t:\tIN  STD_LOGIC_VECTOR (0 DOWNTO 0);\n"
                          "\t\t c\t:\tIN  STD_LOGIC_VECTOR (7 DOWNTO 0);\n"
                          "\t\t p\t:\tINOUT  STD_LOGIC;\n"
                          "\t\t q\t:\tINOUT  STD_LOGIC_VECTOR (0 DOWNTO 0);\n"
                          "\t\t r\t:\tINOUT  STD_LOGIC_VECTOR (7 DOWNTO 0);\n"
                          "\t\t x\t:\tOUT  STD_LOGIC;\n"
                          "\t\t y\t:\tOUT  STD_LOGIC_VECTOR (0 DOWNTO 0);\n"
                          "\t\t z\t:\tOUT  STD_LOGIC_VECTOR (7 DOWNTO 0)\n"
                          "\t ); \n");
}

TEST_F(VhdlPorts, ASignedScalarStaysABit)
{
    top_design top;
    std::vector<GNL_PORT *> const ports_of{&top.input("a"),     &top.input("b", 4, 0), &top.output("x"),
                                           &top.output("y", 1), &top.bidir("p"),       &top.bidir("q", 4)};
    for (auto * port : ports_of) {
        port->set_port_is_signed();
        port->set_used();
    }
    EXPECT_EQ(ports(top), "\t PORT \n"
                          "\t ( \n"
                          "\t\t a\t:\tIN  STD_LOGIC;\n"
                          "\t\t b\t:\tIN  SIGNED (3 DOWNTO 0) := (OTHERS => '0');\n"
                          "\t\t p\t:\tINOUT  STD_LOGIC;\n"
                          "\t\t q\t:\tINOUT  SIGNED (3 DOWNTO 0);\n"
                          "\t\t x\t:\tOUT  STD_LOGIC;\n"
                          "\t\t y\t:\tOUT  SIGNED (0 DOWNTO 0)\n"
                          "\t ); \n");
}

TEST_F(VhdlPorts, DefaultsOfInputsAreWritten)
{
    top_design top;
    for (auto * port : {&top.input("bit_0", 0, 0), &top.input("bit_1", 0, 1), &top.input("bit_z", 0, 2),
                        &top.input("bus_1", 4, 1), &top.input("bus_z", 4, 2), &top.input("one_0", 1, 0)})
        port->set_used();
    auto & y = top.output("y");
    y.set_default_port_value(1);
    y.set_used();
    EXPECT_EQ(ports(top), "\t PORT \n"
                          "\t ( \n"
                          "\t\t bit_0\t:\tIN  STD_LOGIC := '0';\n"
                          "\t\t bit_1\t:\tIN  STD_LOGIC := '1';\n"
                          "\t\t bit_z\t:\tIN  STD_LOGIC := 'Z';\n"
                          "\t\t bus_1\t:\tIN  STD_LOGIC_VECTOR (3 DOWNTO 0) := (OTHERS => '1');\n"
                          "\t\t bus_z\t:\tIN  STD_LOGIC_VECTOR (3 DOWNTO 0) := (OTHERS => 'Z');\n"
                          "\t\t one_0\t:\tIN  STD_LOGIC_VECTOR (0 DOWNTO 0) := (OTHERS => '0');\n"
                          "\t\t y\t:\tOUT  STD_LOGIC\n"
                          "\t ); \n");
}

TEST_F(VhdlPorts, HoldWhatIsUsedOrHeldAtAConstant)
{
    top_design top;
    top.input("idle");
    top.output("loose");
    top.bidir("open");
    top.wire("net").set_used();
    top.input("held", 0, 1).set_constant_used();
    top.input("a").set_used();
    EXPECT_EQ(ports(top), "\t PORT \n"
                          "\t ( \n"
                          "\t\t a\t:\tIN  STD_LOGIC;\n"
                          "\t\t held\t:\tIN  STD_LOGIC := '1'\n"
                          "\t ); \n");
}

TEST_F(VhdlPorts, NoDeclaredPortMeansNoClause)
{
    top_design top;
    top.input("idle");
    EXPECT_EQ(ports(top), "");
}

TEST_F(VhdlPorts, FollowTheOrderThatTheAuthorHasChosen)
{
    sorted_design top;
    for (GNL_PORT * port : std::vector<GNL_PORT *>{&top.input("a"), &top.input("b"), &top.output("y")})
        port->set_used();
    top.input("idle");
    EXPECT_EQ(ports(top), "\t PORT \n"
                          "\t ( \n"
                          "\t\t y\t:\tOUT  STD_LOGIC;\n"
                          "\t\t b\t:\tIN  STD_LOGIC;\n"
                          "\t\t a\t:\tIN  STD_LOGIC\n"
                          "\t ); \n");
}

TEST_F(VhdlPorts, ReservedNamesHaveAPrefix)
{
    top_design top;
    for (GNL_PORT * port : std::vector<GNL_PORT *>{&top.input("In"), &top.input("abs"), &top.output("out")})
        port->set_used();
    EXPECT_EQ(ports(top), "\t PORT \n"
                          "\t ( \n"
                          "\t\t a_abs\t:\tIN  STD_LOGIC;\n"
                          "\t\t a_In\t:\tIN  STD_LOGIC;\n"
                          "\t\t a_out\t:\tOUT  STD_LOGIC\n"
                          "\t ); \n");
}

TEST_F(VhdlPorts, TwoDimensionsAreFlat)
{
    top_design top;
    (new GNL_PORT_INPUT(&top, "rows", 3, 4))->set_used();
    EXPECT_EQ(ports(top), "\t PORT \n"
                          "\t ( \n"
                          "\t\t rows\t:\tIN  STD_LOGIC_VECTOR (11 DOWNTO 0)\n"
                          "\t ); \n");
}

TEST_F(VhdlPorts, WidthsOfParametersAreNumbers)
{
    top_design top;
    top.integer("WIDTH", 6);
    auto & a = *new GNL_PORT_INPUT(&top, "a", std::string("WIDTH*2"));
    EXPECT_EQ(a.get_width(), 12);
    a.set_used();
    EXPECT_EQ(ports(top), "\t PORT \n"
                          "\t ( \n"
                          "\t\t a\t:\tIN  STD_LOGIC_VECTOR (11 DOWNTO 0)\n"
                          "\t ); \n");
}

TEST_F(VhdlFile, IsAnEntityAndItsArchitecture)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd");
    auto & a = top.input("a");
    auto & y = top.output("y", 2);
    auto & net = top.wire("net", 2);
    top.run([&](design &) {
        net = a;
        y = ~net;
    });
    EXPECT_EQ(top.messages(), texts{});
    EXPECT_EQ(body(file_text("top.vhd")), "--synthesis_resources = \n"
                                          " LIBRARY ieee;\n"
                                          " USE ieee.std_logic_1164.all;\n"
                                          "\n"
                                          " ENTITY  top IS \n"
                                          "\t PORT \n"
                                          "\t ( \n"
                                          "\t\t a\t:\tIN  STD_LOGIC;\n"
                                          "\t\t y\t:\tOUT  STD_LOGIC_VECTOR (1 DOWNTO 0)\n"
                                          "\t ); \n"
                                          " END top;\n"
                                          "\n"
                                          " ARCHITECTURE RTL OF top IS\n"
                                          "\n"
                                          "\t ATTRIBUTE synthesis_lumenbox : natural;\n"
                                          "\t ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;\n"
                                          "\t SIGNAL  net :\tSTD_LOGIC_VECTOR (1 DOWNTO 0);\n"
                                          " BEGIN\n"
                                          "\n"
                                          "\tloop0 : FOR i IN 0 TO 1 GENERATE\n"
                                          "\t\tnet(i) <= a;\n"
                                          "\tEND GENERATE loop0;\n"
                                          "\ty <= (NOT net);\n"
                                          "\n"
                                          " END RTL; --top\n"
                                          "--VALID FILE\n");
}

TEST_F(VhdlFile, LeavesOutWhatAnEmptyDesignDoesNotHave)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd");
    top.run();
    EXPECT_EQ(body(file_text("top.vhd")), "--synthesis_resources = \n"
                                          " LIBRARY ieee;\n"
                                          " USE ieee.std_logic_1164.all;\n"
                                          "\n"
                                          " ENTITY  top IS \n"
                                          " END top;\n"
                                          "\n"
                                          " ARCHITECTURE RTL OF top IS\n"
                                          "\n"
                                          "\t ATTRIBUTE synthesis_lumenbox : natural;\n"
                                          "\t ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;\n"
                                          " BEGIN\n"
                                          "\n"
                                          "\n"
                                          " END RTL; --top\n"
                                          "--VALID FILE\n");
}

TEST_F(VhdlFile, IsTheSameWhenItIsWrittenAgain)
{
    auto const text_of = [] {
        design top(nullptr, "top", "LBX_FILE=top.vhd,LBX_FORCE_HDL_GENERATION=ON");
        auto & a = top.input("a", 4);
        auto & y = top.output("y", 8);
        top.run([&](design &) { y = (~a, a); });
        return file_text("top.vhd");
    };
    auto const first = text_of();
    EXPECT_NE(first.find(" ENTITY  top IS \n"), std::string::npos);
    EXPECT_EQ(text_of(), first);
}
