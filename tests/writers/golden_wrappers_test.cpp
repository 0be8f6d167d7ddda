// Whole runs with wrappers: designs of a few lines around a unit of a library.

#include "refused_texts.h"

using namespace gnl_test;

namespace {

class GoldenWrappers : public in_each_language
{
};

using GoldenVhdlWrappers = in_folder;

/// A unit of a library: it has no body of its own.
class unit : public GNL_GENERATOR
{
public:
    unit(GNL_GENERATOR * parent, std::string const & instance)
        : GNL_GENERATOR(parent, "unit")
        , d(this, "d", 4)
        , en(this, "en")
        , q(this, "q", 4)
        , spare(this, "spare")
        , depth(this, "DEPTH", 1)
    {
        en.set_default_port_value(1);
        set_instance_name(instance);
    }

    GNL_PORT_INPUT d, en;
    GNL_PORT_OUTPUT q, spare;
    GNL_PARAMETER_INTEGER depth;
};

/// What the wrappers know of it.
outside_cell const unit_cell{"module unit(d, q, spare);\n"
                             "\tparameter depth = 1, DEPTH = 1;\n" // names of parameters keep their case in QHDL
                             "\tinput [3:0] d;\n"
                             "\toutput [3:0] q;\n"
                             "\toutput spare;\n"
                             "\tassign q = d;\n"
                             "\tassign spare = d[0];\n"
                             "endmodule\n",
                             "library ieee;\n"
                             "use ieee.std_logic_1164.all;\n"
                             "entity unit is\n"
                             "  generic (DEPTH : natural; lpm_hint : string);\n"
                             "  port (d : in std_logic_vector(3 downto 0); q : out std_logic_vector(3 downto 0));\n"
                             "end unit;\n"
                             "architecture model of unit is\n"
                             "begin\n"
                             "  q <= d;\n"
                             "end model;\n",
                             "FUNCTION unit (d[3..0]) WITH (DEPTH) RETURNS (q[3..0], spare);"};

/// The wrapper lists outputs that nobody uses, and names a parameter of its own that it doesn't declare.
std::vector<refused_text> const refused_wrappers{
    {".v", ",\n\t.spare(spare)", "implicit definition of wire 'spare'", ""},
    {".tdf", "DEPTH = DEPTH", "expected a number, found \"DEPTH\"", "DEPTH = 3"},
};

/// A row of units from `d` to `q`, one for each depth.
std::unique_ptr<design> row_of_units(std::string const & options, std::vector<int> const & depths, bool cells)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    top->input("d", 4);
    top->output("q", 4);
    top->body = [depths, cells](design & of) {
        GNL_PORT * previous = &of.port("d");
        std::string instance = "u";
        for (int const depth : depths) {
            auto & part = *new unit(&of, instance);
            instance += "u";
            if (cells)
                part.set_primitive();
            part.depth = depth;
            part.d = *previous;
            previous = &part.q;
        }
        of.port("q") = *previous;
    };
    return top;
}

/// A cell that stands for another one, for tools of others.
class library_cell : public design
{
public:
    explicit library_cell(GNL_GENERATOR * parent)
        : design(parent, "lib_flop")
    {
        set_primitive();
        set_need_include_header();
        set_vhdl_library("work.cells", true);
        set_special_primitive_library("work.special_cells");
        input("clk");
        input("d", 4).set_planb_width("WIDTH");
        input("ena", 0, 1);
        output("q", 4).set_planb_width("WIDTH");
        integer("WIDTH") = 4;
        string("POWER", "LOW|HIGH", 0);
        set_instance_name("u");
    }
    std::string generate_primitive_name() override { return "flop"; }
};

/// The cell that it stands for. In VHDL its library tells of the ports in use as well.
outside_cell const special_cell{
    "module flop(clk, d, ena, q);\n"
    "\tparameter width = 1, WIDTH = 1;\n"
    "\tparameter clk_port_used = \"\", d_port_used = \"\", q_port_used = \"\", lpm_type = \"\";\n"
    "\tinput clk;\n"
    "\tinput [3:0] d;\n"
    "\tinput ena;\n"
    "\toutput reg [3:0] q;\n"
    "\talways @(posedge clk)\n"
    "\t\tif (ena)\n"
    "\t\t\tq <= d;\n"
    "endmodule\n",
    "library ieee;\n"
    "use ieee.std_logic_1164.all;\n"
    "package special_cells is\n"
    "  component flop\n"
    "    generic (WIDTH : natural; clk_port_used, d_port_used, ena_port_used, q_port_used : string := \"UNUSED\");\n"
    "    port (clk : in std_logic; d : in std_logic_vector(WIDTH-1 downto 0); ena : in std_logic := '1';\n"
    "          q : out std_logic_vector(WIDTH-1 downto 0));\n"
    "  end component;\n"
    "end special_cells;\n"
    "library ieee;\n"
    "use ieee.std_logic_1164.all;\n"
    "entity flop is\n"
    "  generic (WIDTH : natural; clk_port_used, d_port_used, ena_port_used, q_port_used : string);\n"
    "  port (clk : in std_logic; d : in std_logic_vector(WIDTH-1 downto 0); ena : in std_logic := '1';\n"
    "        q : out std_logic_vector(WIDTH-1 downto 0));\n"
    "end flop;\n"
    "architecture model of flop is\n"
    "begin\n"
    "  q <= d when rising_edge(clk) and ena = '1';\n"
    "end model;\n",
    "FUNCTION flop (clk, d[3..0], ena) WITH (WIDTH) RETURNS (q[3..0]);"};

std::unique_ptr<design> library_design(std::string const & options)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    top->input("clk");
    top->input("d", 4);
    top->output("q", 4);
    top->body = [](design & of) {
        auto & cell = *new library_cell(&of);
        cell.port("clk") = of.port("clk");
        cell.port("d") = of.port("d");
        of.port("q") = cell.port("q");
    };
    return top;
}

} // namespace

TEST_P(GoldenWrappers, AroundALibraryUnit)
{
    EXPECT_TRUE(shows_golden(*row_of_units(into_top(), {3}, false), "wrapper", GetParam()));
    SKIP_WITHOUT_COMPILER();
    EXPECT_EQ(complaints_beside(refused_wrappers, GetParam(), unit_cell), "");
}

/// Beside a design in another language than QHDL.
TEST_P(GoldenWrappers, ForToolsOfOthers)
{
    EXPECT_TRUE(leaves_golden(*library_design(into_top(",LBX_EDA_PLANB=ON")), "library_wrapper", GetParam()));
    SKIP_WITHOUT_COMPILER();
    EXPECT_EQ(complaints_of_compiler(GetParam(), special_cell), "");
    if (GetParam().ending == ".tdf")
        return;
    // No tool takes the name of the file as it stands, and the reader knows no parameters of the design itself.
    auto const rest = complaints_beside({{".tdf", "\"flop\".inc", "expected \";\", found \".\"", "\"flop.inc\""}},
                                        file_languages[2], {});
    EXPECT_TRUE(rest.ends_with("designs with parameters of their own are not known")) << rest;
}

IN_EACH_LANGUAGE(GoldenWrappers);

/// Equal cells share a wrapper.
TEST_F(GoldenVhdlWrappers, AroundCells)
{
    auto const top = row_of_units("LBX_FILE=top.vhd,LBX_VHDL_WRAPPERS=ON", {3, 3, 5}, true);
    EXPECT_TRUE(writes_golden(*top, "vhdl_wrappers.vhd", "top.vhd"));
    SKIP_WITHOUT("ghdl");
    EXPECT_EQ(complaints_of_compiler(file_languages[1], unit_cell), "");
}
