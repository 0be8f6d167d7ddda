// Whole runs of designs of several levels, in each language.

#include "golden_hierarchy_designs.h"

using namespace gnl_test;

namespace {

class GoldenHierarchies : public in_table
{
};

class GoldenRuns : public in_each_language
{
};

/// A design that can tell that it is not supported.
class box : public design
{
public:
    using design::design;
    using GNL_GENERATOR::set_not_supported;
};

} // namespace

TEST_P(GoldenHierarchies, LeaveTheirFiles)
{
    expect_golden();
}

IN_EACH_LANGUAGE_OF_TABLE(GoldenHierarchies, golden_hierarchies);

class GoldenFixedPrefixes : public in_table
{
};

TEST_P(GoldenFixedPrefixes, LeaveTheirFiles)
{
    auto const & [of, in] = GetParam();
    auto const top = of.make("LBX_FILE=top" + in.ending + of.options);
    EXPECT_TRUE(leaves_golden(*top, of.name, in));
    SKIP_WITHOUT(in.ending == ".vhd" ? "ghdl" : "iverilog");
    auto const files = files_of_run(in.ending) + (in.ending == ".tdf" ? files_of_run(".v") : "");
    EXPECT_EQ(in.ending == ".vhd" ? vhdl_complaints(files, "top") : verilog_complaints(files, "top"), "");
}

IN_EACH_LANGUAGE_OF_TABLE(GoldenFixedPrefixes, golden_fixed_prefixes);

TEST_P(GoldenRuns, AStreamOfTheCallerTakesTheWholeRun)
{
    auto const top = two_levels(into_top(), {1, 2});
    top->set_use_external_ostream();
    EXPECT_TRUE(leaves_golden(*top, "external_stream", GetParam()));
}

TEST_P(GoldenRuns, TheTextOfAStreamCompiles)
{
    SKIP_WITHOUT_COMPILER();
    auto const top = two_levels(into_top(), {1, 2});
    top->set_use_external_ostream();
    auto const text = top->run();
    std::ofstream("top" + GetParam().ending) << text;
    EXPECT_EQ(complaints_of_compiler(GetParam()), "");
}

class GoldenAppending : public in_each_language
{
};

TEST_P(GoldenAppending, ToWhatIsThere)
{
    bool const verilog = GetParam().ending == ".v";
    std::ofstream("both" + GetParam().ending)
        << (verilog ? "module other;\nendmodule\n" : "entity other is\nend other;\n");
    EXPECT_TRUE(
        leaves_golden(*two_levels("LBX_FILE=both" + GetParam().ending + ":a:top", {1, 1, 2}), "appended", GetParam()));
    SKIP_WITHOUT_COMPILER();
    EXPECT_EQ(complaints_of_compiler(GetParam()), "");
}

// A QHDL run appends a header and no design.
INSTANTIATE_TEST_SUITE_P(In, GoldenAppending, ::testing::Values(file_languages[0], file_languages[1]),
                         [](auto const & of) { return std::string(of.param.name); });

/// A name is avoided whatever the language of the file in the second folder.
TEST_P(GoldenRuns, NamesOfASecondFolderAreAvoided)
{
    fs::create_directory("out");
    fs::create_directory("taken");
    std::ofstream("taken/mgpa4.tdf") << "-- the first stage would have this name\n";
    std::ofstream("taken/mgqa4.vhd") << "-- the second one, or the first with the next number\n";
    auto const top = two_levels(into_top(",LBX_SINGLE_OUTPUT_FILE=OFF,LBX_OUTPUT_DIRECTORY=out;taken"), {1, 2});
    EXPECT_TRUE(leaves_golden(*top, "second_folder", GetParam()));
    fs::remove_all("taken");
    SKIP_WITHOUT_COMPILER();
    EXPECT_EQ(complaints_of_compiler(GetParam()), "");
}

/// It stands as a box of its own name; its model comes from elsewhere.
TEST_P(GoldenRuns, AChildThatIsNotSupported)
{
    auto const top = made_top(into_top(",LBX_SINGLE_OUTPUT_FILE=OFF"));
    top->body = [](design & of) {
        auto & made = *new box(&of, "box");
        made.set_instance_name("u1");
        auto & in = made.input("d", 4);
        auto & out = made.output("q", 4);
        made.integer("DEPTH", 2) = 3;
        made.body = [&made](design & own) {
            own.port("q") = own.port("d");
            made.set_not_supported();
        };
        auto & last = stage(of, "u2", 4, 1);
        in = of.port("d");
        last.port("d") = out;
        of.port("q") = last.port("q");
    };
    EXPECT_TRUE(leaves_golden(*top, "not_supported", GetParam()));
    EXPECT_EQ(top->generator_result(), 3);
    SKIP_WITHOUT_COMPILER();
    outside_cell const cell{"module box(d, q);\n"
                            "\tparameter depth = 1, DEPTH = 1;\n" // names of parameters keep their case in QHDL
                            "\tparameter lpm_type = \"box\";\n"
                            "\tinput [3:0] d;\n"
                            "\toutput [3:0] q;\n"
                            "\tassign q = d;\n"
                            "endmodule\n",
                            "library ieee;\n"
                            "use ieee.std_logic_1164.all;\n"
                            "entity box is\n"
                            "  generic (depth : natural := 1; lpm_hint : string := \"UNUSED\";\n"
                            "           lpm_type : string := \"box\");\n"
                            "  port (d : in std_logic_vector(3 downto 0); q : out std_logic_vector(3 downto 0));\n"
                            "end box;\n"
                            "architecture model of box is\nbegin\n  q <= d;\nend model;\n",
                            "FUNCTION box (d[3..0]) WITH (DEPTH) RETURNS (q[3..0]);"};
    EXPECT_EQ(complaints_of_compiler(GetParam(), cell), "");
}

TEST_P(GoldenRuns, AChildWithoutARequiredPort)
{
    auto const top = made_top(into_top());
    top->body = [](design & of) {
        auto & last = stage(of, "u1", 4, 1);
        of.port("q") = last.port("q");
    };
    EXPECT_TRUE(leaves_golden(*top, "required_port", GetParam()));
    EXPECT_EQ(top->generator_result(), 1);
    SKIP_WITHOUT_COMPILER();
    outside_cell const missing{"module top_mgg61(q);\n\toutput [3:0] q;\nendmodule\n", // it got no text
                               "library ieee;\n"
                               "use ieee.std_logic_1164.all;\n"
                               "entity top_mgg61 is\n"
                               "  port (q : out std_logic_vector(3 downto 0));\n"
                               "end top_mgg61;\n"
                               "architecture model of top_mgg61 is\nbegin\nend model;\n",
                               "FUNCTION mgg61 () RETURNS (q[3..0]);"};
    expect_error_in_text(complaints_of_compiler(GetParam(), missing), "is a required port");
}

IN_EACH_LANGUAGE(GoldenRuns);
