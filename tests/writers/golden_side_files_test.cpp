// Whole runs that write a design in another language than that of the run: Verilog, where QHDL can't say it, and VHDL,
// where only its parameter arrays can.

#include "golden_file_designs.h"

using namespace gnl_test;

namespace {

using GoldenSideFiles = in_folder;

class GoldenVhdlSideFiles : public in_each_language
{
};

/// A level around a cell that takes its coefficients as one array. They are given to the level, and the cell has them
/// from there.
std::unique_ptr<design> filter_with_array(std::string const & options)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    auto & d = top->input("d", 4);
    auto & q = top->output("q", 4);
    auto arrays = std::make_shared<kept_arrays>();
    top->body = [&d, &q, arrays](design & of) {
        auto & filter = of.child("filter", "u");
        auto & in = filter.input("d", 4);
        auto & out = filter.output("q", 4);
        filter.set_has_true_vhdl_parameter_array();
        auto & given = arrays->numbers(filter, 0);
        given[1] = 5;
        given[3] = 9;
        filter.body = [&in, &out, arrays](design & level) {
            auto & cell = *new GNL_PRIMITIVE(&level, "fir", "iname=u_fir");
            auto & into = *cell.add_input_port_to_primitive("d", 4, -1);
            auto & from = *cell.add_output_port_to_primitive("q", 4, -1);
            cell.set_primitive_vhdl_library("work.filters");
            cell.set_has_true_vhdl_parameter_array();
            arrays->numbers(cell, 0).set_array_type("coefficients");
            into = in;
            out = from;
        };
        in = d;
        q = out;
    };
    return top;
}

/// The package with the array's type, and the cell.
constexpr char filter_package[] = "package filters is\n"
                                  "  type coefficients is array (0 to 3) of natural;\n"
                                  "end filters;\n"
                                  "library ieee;\n"
                                  "use ieee.std_logic_1164.all;\n"
                                  "use work.filters.all;\n"
                                  "entity fir is\n"
                                  "  generic (COEF : coefficients; lpm_hint : string);\n"
                                  "  port (d : in std_logic_vector(3 downto 0);\n"
                                  "        q : out std_logic_vector(3 downto 0));\n"
                                  "end fir;\n"
                                  "architecture model of fir is\n"
                                  "begin\n"
                                  "  assert COEF(0) = 0 and COEF(1) = 5 and COEF(2) = 0 and COEF(3) = 9\n"
                                  "    report \"other coefficients\" severity failure;\n"
                                  "  q <= d;\n"
                                  "end model;\n";

/// A design in the language of the run, for the one in VHDL.
std::string module_of(std::string const & name)
{
    return "module " + name + "(d, q);\n\tinput [3:0] d;\n\toutput [3:0] q;\n\tassign q = d;\nendmodule\n";
}

} // namespace

TEST_F(GoldenSideFiles, AVerilogSideFileOfAQhdlRun)
{
    auto const top = flat_design("LBX_FILE=top.tdf");
    top->set_qhdl_not_supported();
    EXPECT_TRUE(writes_golden(*top, "side_file.v"));
    EXPECT_FALSE(fs::exists("top.tdf"));
    SKIP_WITHOUT("iverilog");
    EXPECT_EQ(verilog_complaints(" top.v", "top"), "");
}

TEST_P(GoldenVhdlSideFiles, HoldDesignsWithParameterArrays)
{
    auto const & in = GetParam();
    EXPECT_TRUE(leaves_golden(*filter_with_array(into_top()), "vhdl_side_file", in));
    SKIP_WITHOUT_COMPILER();
    SKIP_WITHOUT("ghdl");
    std::string unit = "top";
    if (in.ending != ".vhd") {
        unit = fs::path(files_of_run(".vhd").substr(1)).stem().string();
        outside_cell const filter{module_of(unit), "", "FUNCTION " + unit + " (d[3..0]) RETURNS (q[3..0]);"};
        EXPECT_EQ(complaints_of_compiler(in, filter), "");
    }
    std::ofstream("filters.vhd") << filter_package;
    EXPECT_EQ(vhdl_complaints(files_of_run(".vhd"), unit), "");
}

IN_EACH_LANGUAGE(GoldenVhdlSideFiles);
