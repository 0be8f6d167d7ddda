// Cells in whole runs, in each language: cells that are declared at run time, and cells that write themselves.

#include "golden_cell_designs.h"
#include "refused_texts.h"

using namespace gnl_test;

namespace {

class GoldenCells : public in_table
{
};

/// Models of the memory, of which only QHDL is told everything under its name, and of the taps.
outside_cell const run_time_models{
    "module ram_block(addr, ce, mask, mode, parity, q, probe, trace);\n"
    "\tparameter bits = 0, BITS = 0, depth = 1, DEPTH = 1, HINTED = 0, init = 0, INIT = 0, lpm_hint = \"\";\n"
    "\tparameter nwords = 1, NWORDS = 1, speed = \"\", SPEED = \"\", width = \"\", WIDTH = 1;\n"
    "\tparameter coef0 = 0, COEF0 = 0, coef3 = 0, COEF3 = 0, label1 = \"\", LABEL1 = \"\";\n"
    "\tparameter latency = 0, sim_file = \"\";\n"
    "\tinput [3:0] addr;\n"
    "\tinput ce;\n"
    "\tinput [1:0] mask;\n"
    "\tinput mode;\n"
    "\toutput parity;\n"
    "\toutput [7:0] q;\n"
    "\toutput probe;\n"
    "\tinput trace;\n"
    "\tassign parity = ^addr;\n"
    "\tassign q = {addr, addr};\n"
    "\tassign probe = ce;\n"
    "endmodule\n"
    "module tap_cell(a, en, o);\n"
    "\tparameter Kind = \"\";\n"
    "\tinput a, en;\n"
    "\toutput o;\n"
    "\tassign o = a;\n"
    "endmodule\n",
    "library ieee;\n"
    "use ieee.std_logic_1164.all;\n"
    "entity ram_block is\n"
    "  generic (BITS : std_logic_vector(4 downto 0); DEPTH, HINTED : natural;\n"
    "           INIT : std_logic_vector(11 downto 0); NWORDS : natural; SPEED, UNSET, WIDTH : string;\n"
    "           LATENCY : natural; SIM_FILE : string; lpm_hint : string);\n"
    "  port (addr : in std_logic_vector(3 downto 0); ce : in std_logic := '1';\n"
    "        mask : in std_logic_vector(1 downto 0) := \"00\"; mode : in std_logic := 'Z';\n"
    "        parity : out std_logic; q : out std_logic_vector(2*DEPTH-1 downto 0));\n"
    "end ram_block;\n"
    "architecture model of ram_block is\n"
    "begin\n"
    "  parity <= addr(0) xor addr(1) xor addr(2) xor addr(3);\n"
    "  q <= addr & addr;\n"
    "end model;\n"
    "library ieee;\n"
    "use ieee.std_logic_1164.all;\n"
    "entity tap_cell is\n"
    "  generic (Kind, lpm_hint : string);\n"
    "  port (a : in std_logic; en : in std_logic := '1'; o : out std_logic);\n"
    "end tap_cell;\n"
    "architecture model of tap_cell is\n"
    "begin\n"
    "  o <= a;\n"
    "end model;\n",
    "FUNCTION ram_block (addr[3..0], ce, mask[1..0], mode) WITH (BITS, DEPTH, HINTED, INIT, lpm_hint, NWORDS, SPEED, "
    "WIDTH, COEF0, COEF3, LABEL1) RETURNS (parity, q[7..0]);\n"
    "FUNCTION tap_cell (a, en) WITH (Kind) RETURNS (o);"};

/// An input that floats by default is left open. The value of a hint stands among the hints, and a natural generic has
/// no default to fall back to. The reader of QHDL knows no parameters of the design itself.
std::vector<refused_text> const refused_cells{
    {".v", ".mode()", "dangling input port 4 (mode) floating", ".mode(1'bz)"},
    {".vhd", "HINTED\t:\tNATURAL;", "no actual for constant interface \"hinted\"", "HINTED\t:\tNATURAL := 0;"},
    {".tdf", "(N * 2)", "unknown character \"*\"", "12"},
    {".tdf", "PARAMETERS\n(\n\tN = 6\n);\n", "designs with parameters of their own are not known", ""},
};

class GoldenRunTimeCells : public in_each_language
{
};

} // namespace

TEST_P(GoldenCells, AreAsTheyWere)
{
    expect_shown();
}

IN_EACH_LANGUAGE_OF_TABLE(GoldenCells, golden_cells);

TEST_P(GoldenRunTimeCells, HaveEveryKindOfPortAndParameter)
{
    EXPECT_TRUE(shows_golden(*run_time_cells(into_top(",N=6")), "run_time_cells", GetParam()));
    SKIP_WITHOUT_COMPILER();
    EXPECT_EQ(complaints_beside(refused_cells, GetParam(), run_time_models), "");
}

IN_EACH_LANGUAGE(GoldenRunTimeCells);
