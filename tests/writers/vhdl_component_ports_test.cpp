#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

using VhdlWrapperPorts = vhdl_sections;
using VhdlCellPorts = vhdl_sections;
using VhdlArrayPorts = vhdl_sections;

std::string wrapper_ports(GNL_GENERATOR & subdesign)
{
    return written(subdesign, &GNL_GENERATOR::dump_vhdl_port_section_for_wrapper);
}
std::string cell_ports(GNL_GENERATOR & subdesign)
{
    return written(subdesign, &GNL_GENERATOR::dump_vhdl_port_section_for_primitives);
}
std::string array_ports(GNL_GENERATOR & subdesign)
{
    return written(subdesign, &GNL_GENERATOR::dump_vhdl_port_section_for_arrays);
}

/// Ports whose widths are given by parameters.
GNL_PORT & wide_input(design & of, std::string const & name, std::string const & width, std::string const & rows = "")
{
    return *new GNL_PORT_INPUT(&of, name, width, rows);
}
GNL_PORT & wide_output(design & of, std::string const & name, std::string const & width, std::string const & rows = "")
{
    return *new GNL_PORT_OUTPUT(&of, name, width, rows);
}
GNL_PORT & wide_bidir(design & of, std::string const & name, std::string const & width, std::string const & rows = "")
{
    return *new GNL_PORT_BIDIR(&of, name, width, rows);
}
GNL_PORT & with_default(GNL_PORT & input, int value)
{
    static_cast<GNL_PORT_INPUT &>(input).set_default_port_value(value);
    return input;
}

} // namespace

TEST_F(VhdlWrapperPorts, AreThoseThatAreUsed)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    for (GNL_PORT * port :
         std::vector<GNL_PORT *>{&leaf.input("a"), &leaf.input("b", 1), &leaf.input("In", 8), &leaf.output("x"),
                                 &leaf.output("y", 1), &leaf.output("z", 8), &leaf.bidir("p"), &leaf.bidir("q", 4)})
        port->set_used();
    leaf.input("idle");
    leaf.output("loose");
    leaf.bidir("open");
    leaf.wire("net").set_used();
    EXPECT_EQ(wrapper_ports(leaf), "\t PORT\n"
                                   "\t ( \n"
                                   "\t\ta\t:\tIN  STD_LOGIC;\n"
                                   "\t\tb\t:\tIN  STD_LOGIC_VECTOR(0 DOWNTO 0);\n"
                                   "\t\ta_In\t:\tIN  STD_LOGIC_VECTOR(7 DOWNTO 0);\n"
                                   "\t\tp\t:\tINOUT  STD_LOGIC;\n"
                                   "\t\tq\t:\tINOUT  STD_LOGIC_VECTOR(3 DOWNTO 0);\n"
                                   "\t\tx\t:\tOUT  STD_LOGIC;\n"
                                   "\t\ty\t:\tOUT  STD_LOGIC_VECTOR(0 DOWNTO 0);\n"
                                   "\t\tz\t:\tOUT  STD_LOGIC_VECTOR(7 DOWNTO 0)\n"
                                   "\t ); ");
}

TEST_F(VhdlWrapperPorts, HaveTheDefaultsOfInputs)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    for (auto * port : {&leaf.input("bit_1", 0, 1), &leaf.input("bit_z", 0, 2), &leaf.input("bus_0", 4, 0),
                        &leaf.input("bus_z", 4, 2), &leaf.input("one_1", 1, 1)})
        port->set_used();
    EXPECT_EQ(wrapper_ports(leaf), "\t PORT\n"
                                   "\t ( \n"
                                   "\t\tbit_1\t:\tIN  STD_LOGIC := '1';\n"
                                   "\t\tbit_z\t:\tIN  STD_LOGIC := 'Z';\n"
                                   "\t\tbus_0\t:\tIN  STD_LOGIC_VECTOR(3 DOWNTO 0) := (OTHERS => '0');\n"
                                   "\t\tbus_z\t:\tIN  STD_LOGIC_VECTOR(3 DOWNTO 0) := (OTHERS => 'Z');\n"
                                   "\t\tone_1\t:\tIN  STD_LOGIC_VECTOR(0 DOWNTO 0) := (OTHERS => '1')\n"
                                   "\t ); ");
}

TEST_F(VhdlWrapperPorts, AreThoseOfOneSlice)
{
    top_design top;
    auto & array = top.subdesign("leaf", "u", 3);
    auto & a = array.input("a", 4);
    auto & rows = *new GNL_PORT_INPUT(&array, "rows", 3, 4);
    ASSERT_EQ(a.get_width(), 12);
    for (GNL_PORT * port : std::vector<GNL_PORT *>{&a, &rows, &array.output("y")})
        port->set_used();
    EXPECT_EQ(wrapper_ports(array), "\t PORT\n"
                                    "\t ( \n"
                                    "\t\ta\t:\tIN  STD_LOGIC_VECTOR(3 DOWNTO 0);\n"
                                    "\t\trows\t:\tIN  STD_LOGIC_VECTOR(11 DOWNTO 0);\n"
                                    "\t\ty\t:\tOUT  STD_LOGIC\n"
                                    "\t ); ");
}

TEST_F(VhdlWrapperPorts, NoUsedPortMeansNoList)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    leaf.input("idle");
    EXPECT_EQ(wrapper_ports(leaf), "");
}

TEST_F(VhdlCellPorts, AreAllThatTheDeclarationIncludes)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.input("a");
    cell.input("b", 8).set_used();
    cell.output("x");
    cell.output("Out", 1);
    cell.bidir("p");
    cell.bidir("q", 4);
    cell.input("secret").set_as_not_included_in_declaration();
    cell.wire("net");
    EXPECT_EQ(cell_ports(cell), "\t PORT\n"
                                "\t ( \n"
                                "\t\ta\t:\tIN STD_LOGIC;\n"
                                "\t\tb\t:\tIN STD_LOGIC_VECTOR(7 DOWNTO 0);\n"
                                "\t\ta_Out\t:\tOUT STD_LOGIC_VECTOR(0 DOWNTO 0);\n"
                                "\t\tp\t:\tINOUT STD_LOGIC;\n"
                                "\t\tq\t:\tINOUT STD_LOGIC_VECTOR(3 DOWNTO 0);\n"
                                "\t\tx\t:\tOUT STD_LOGIC\n"
                                "\t ); ");
}

TEST_F(VhdlCellPorts, HaveWidthsByParameters)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.integer("WIDTH", 8);
    cell.integer("DEPTH", 4);
    wide_input(cell, "a", "WIDTH");
    wide_input(cell, "b", "2*(WIDTH+1)");
    wide_output(cell, "x", "WIDTH");
    wide_output(cell, "y", "DEPTH", "WIDTH");
    wide_bidir(cell, "p", "WIDTH");
    EXPECT_EQ(cell_ports(cell), "\t PORT\n"
                                "\t ( \n"
                                "\t\ta\t:\tIN STD_LOGIC_VECTOR(WIDTH-1 DOWNTO 0);\n"
                                "\t\tb\t:\tIN STD_LOGIC_VECTOR(2*(WIDTH+1)-1 DOWNTO 0);\n"
                                "\t\tp\t:\tINOUT STD_LOGIC_VECTOR(WIDTH-1 DOWNTO 0);\n"
                                "\t\tx\t:\tOUT STD_LOGIC_VECTOR(WIDTH-1 DOWNTO 0);\n"
                                "\t\ty\t:\tOUT STD_LOGIC_2D(DEPTH-1 DOWNTO 0, WIDTH-1 DOWNTO 0)\n"
                                "\t ); ");
}

TEST_F(VhdlCellPorts, AHiddenParameterIsFixedByItsDefault)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.integer("HIDDEN", 8).set_as_not_included_in_declaration();
    cell.integer("OPEN").set_as_not_included_in_declaration();
    cell.string("TEXT", "8", 0).set_as_not_included_in_declaration();
    wide_input(cell, "a", "hidden");
    wide_input(cell, "b", "OPEN");
    wide_input(cell, "c", "TEXT");
    wide_input(cell, "d", "UNKNOWN");
    wide_input(cell, "e", "HIDDEN", "HIDDEN");
    wide_input(cell, "f", "UNKNOWN", "HIDDEN");
    EXPECT_EQ(cell_ports(cell), "\t PORT\n"
                                "\t ( \n"
                                "\t\ta\t:\tIN STD_LOGIC_VECTOR(7 DOWNTO 0);\n"
                                "\t\tb\t:\tIN STD_LOGIC_VECTOR(OPEN-1 DOWNTO 0);\n"
                                "\t\tc\t:\tIN STD_LOGIC_VECTOR(TEXT-1 DOWNTO 0);\n"
                                "\t\td\t:\tIN STD_LOGIC_VECTOR(UNKNOWN-1 DOWNTO 0);\n"
                                "\t\te\t:\tIN STD_LOGIC_2D(7 DOWNTO 0, 7 DOWNTO 0);\n"
                                "\t\tf\t:\tIN STD_LOGIC_2D(UNKNOWN-1 DOWNTO 0, 7 DOWNTO 0)\n"
                                "\t ); ");
}

TEST_F(VhdlCellPorts, HaveTheDefaultsOfInputs)
{
    top_design top;
    auto & cell = top.cell("u");
    cell.integer("WIDTH", 8);
    cell.input("bit_0", 0, 0);
    cell.input("bit_z", 0, 2);
    cell.input("bus_1", 4, 1);
    with_default(wide_input(cell, "wide_0", "WIDTH"), 0);
    with_default(wide_input(cell, "wide_z", "WIDTH"), 2);
    with_default(wide_input(cell, "rows_1", "WIDTH", "WIDTH"), 1);
    EXPECT_EQ(cell_ports(cell),
              "\t PORT\n"
              "\t ( \n"
              "\t\tbit_0\t:\tIN STD_LOGIC := '0';\n"
              "\t\tbit_z\t:\tIN STD_LOGIC := 'Z';\n"
              "\t\tbus_1\t:\tIN STD_LOGIC_VECTOR(3 DOWNTO 0) := (OTHERS => '1');\n"
              "\t\trows_1\t:\tIN STD_LOGIC_2D(WIDTH-1 DOWNTO 0, WIDTH-1 DOWNTO 0) := (OTHERS => (OTHERS => '1'));\n"
              "\t\twide_0\t:\tIN STD_LOGIC_VECTOR(WIDTH-1 DOWNTO 0) := (OTHERS => '0');\n"
              "\t\twide_z\t:\tIN STD_LOGIC_VECTOR(WIDTH-1 DOWNTO 0) := (OTHERS => 'Z')\n"
              "\t ); ");
}

TEST_F(VhdlCellPorts, AnInputOfFixedRowsHasTwoDimensions)
{
    top_design top;
    auto & cell = top.cell("u");
    new GNL_PORT_INPUT(&cell, "a", 3, 4);
    with_default(*new GNL_PORT_INPUT(&cell, "b", 3, 4), 0);
    new GNL_PORT_OUTPUT(&cell, "y", 3, 4);
    EXPECT_EQ(cell_ports(cell), "\t PORT\n"
                                "\t ( \n"
                                "\t\ta\t:\tIN STD_LOGIC_2D(2 DOWNTO 0, 3 DOWNTO 0);\n"
                                "\t\tb\t:\tIN STD_LOGIC_2D(2 DOWNTO 0, 3 DOWNTO 0) := (OTHERS => (OTHERS => '0'));\n"
                                "\t\ty\t:\tOUT STD_LOGIC_VECTOR(11 DOWNTO 0)\n"
                                "\t ); ");
}

TEST_F(VhdlCellPorts, AreThoseOfOneSlice)
{
    top_design top;
    auto & array = top.cell("u", 3);
    ASSERT_EQ(array.input("a", 4).get_width(), 12);
    array.output("y");
    EXPECT_EQ(cell_ports(array), "\t PORT\n"
                                 "\t ( \n"
                                 "\t\ta\t:\tIN STD_LOGIC_VECTOR(3 DOWNTO 0);\n"
                                 "\t\ty\t:\tOUT STD_LOGIC\n"
                                 "\t ); ");
}

TEST_F(VhdlCellPorts, NoPortMeansNoList)
{
    top_design top;
    EXPECT_EQ(cell_ports(top.cell("u")), "");
}

TEST_F(VhdlArrayPorts, AreThoseThatAreConnected)
{
    top_design top;
    auto & array = top.cell("u", 3);
    auto & d = top.input("d");
    d.set_used();
    auto & driven = array.input("driven", 4);
    auto & held = array.input("held");
    auto & open = array.input("open");
    for (GNL_PORT * port : std::vector<GNL_PORT *>{&open, &array.output("x"), &array.output("y", 2), &array.bidir("p"),
                                                   &array.bidir("q", 2)})
        port->set_used();
    array.output("idle");
    top.connect([&] {
        driven = d;
        held = 5;
    });
    EXPECT_EQ(array_ports(array), "\t PORT\n"
                                  "\t ( \n"
                                  "\t\tdriven\t:\tIN  STD_LOGIC_VECTOR(3 DOWNTO 0);\n"
                                  "\t\theld\t:\tIN  STD_LOGIC;\n"
                                  "\t\tp\t:\tOUT  STD_LOGIC;\n"
                                  "\t\tq\t:\tOUT  STD_LOGIC_VECTOR(1 DOWNTO 0);\n"
                                  "\t\tx\t:\tOUT  STD_LOGIC;\n"
                                  "\t\ty\t:\tOUT  STD_LOGIC_VECTOR(1 DOWNTO 0)\n"
                                  "\t ); \n");
}

TEST_F(VhdlArrayPorts, HaveWidthsByParameters)
{
    top_design top;
    auto & array = top.cell("u", 2);
    array.integer("WIDTH", 4);
    array.integer("DEPTH", 2).set_as_not_included_in_declaration();
    auto & a = with_default(wide_input(array, "a", "WIDTH"), 1);
    auto & b = with_default(wide_input(array, "b", "DEPTH", "WIDTH"), 2);
    auto & c = array.input("c", 2, 0);
    for (GNL_PORT * port :
         std::vector<GNL_PORT *>{&wide_output(array, "x", "WIDTH"), &wide_output(array, "y", "DEPTH", "WIDTH"),
                                 &wide_bidir(array, "p", "WIDTH"), &wide_bidir(array, "q", "DEPTH", "WIDTH")})
        port->set_used();
    top.connect([&] {
        a = 0;
        b = 0;
        c = 0;
    });
    EXPECT_EQ(array_ports(array),
              "\t PORT\n"
              "\t ( \n"
              "\t\ta\t:\tIN STD_LOGIC_VECTOR(WIDTH-1 DOWNTO 0) := (OTHERS => (OTHERS => '1'));\n"
              "\t\tb\t:\tIN STD_LOGIC_2D(DEPTH-1 DOWNTO 0, WIDTH-1 DOWNTO 0) := (OTHERS => (OTHERS => 'Z'));\n"
              "\t\tc\t:\tIN  STD_LOGIC_VECTOR(1 DOWNTO 0) := (OTHERS => '0');\n"
              "\t\tp\t:\tIN STD_LOGIC_VECTOR(WIDTH-1 DOWNTO 0);\n"
              "\t\tq\t:\tIN STD_LOGIC_2D(DEPTH-1 DOWNTO 0, WIDTH-1 DOWNTO 0);\n"
              "\t\tx\t:\tOUT STD_LOGIC_VECTOR(WIDTH-1 DOWNTO 0);\n"
              "\t\ty\t:\tOUT STD_LOGIC_2D(DEPTH-1 DOWNTO 0, WIDTH-1 DOWNTO 0)\n"
              "\t ); \n");
}

TEST_F(VhdlArrayPorts, AnInputMayBeConnectedOnItsSlices)
{
    top_design top;
    auto & array = top.cell("u", 2);
    array.input("a");
    array.declare_slice = [](design & slice) { slice.input("a"); };
    top.connect([&] { array[1].port("a") = 1; });
    EXPECT_EQ(array_ports(array), "\t PORT\n"
                                  "\t ( \n"
                                  "\t\ta\t:\tIN  STD_LOGIC\n"
                                  "\t ); \n");
}

TEST_F(VhdlArrayPorts, WhatIsNoArrayOfSeveralSlicesHasThePortsOfAWrapper)
{
    top_design top;
    auto & single = top.cell("u");
    single.input("a", 2).set_used();
    auto & master = top.subdesign("other", "v", 1);
    master.input("a", 2).set_used();
    master.declare_slice = [](design & slice) { slice.input("a", 2); };
    master.create_slices();
    std::string const expected = "\t PORT\n"
                                 "\t ( \n"
                                 "\t\ta\t:\tIN  STD_LOGIC_VECTOR(1 DOWNTO 0)\n"
                                 "\t ); ";
    EXPECT_EQ(array_ports(single), expected);
    EXPECT_EQ(array_ports(master), expected);
}
