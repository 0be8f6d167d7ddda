#include "tool_designs.h"
#include "verilog_simulation.h"

using namespace gnl_test;

namespace {

/// One design and the options that it is generated with.
struct tried
{
    std::string name;
    std::unique_ptr<design> (*make)(std::string const & text);
    std::string options;
};

void PrintTo(tried const & shown, std::ostream * out)
{
    *out << shown.name;
}

std::vector<tried> all_designs()
{
    std::string const one_file = "LBX_FILE=top.v";
    std::string const structural = one_file + ",LBX_STRUCTURAL_NETLIST=ON";
    return {{"flat", flat_design, one_file},
            {"flat_structural", flat_design, structural},
            {"flat_with_all_wires", flat_design, one_file + ",LBX_REMOVE_OPTIONAL_WIRES=OFF"},
            {"two_level", two_level_design, one_file},
            {"two_level_structural", two_level_design, structural},
            {"array", array_design, one_file},
            {"bidir", bidir_design, one_file},
            {"declarations", declarations_design, one_file},
            {"ties", ties_design, one_file}};
}

class VerilogTools : public in_folder, public ::testing::WithParamInterface<tried>
{
protected:
    /// Writes top.v and the model of the cells beside it.
    void generate()
    {
        auto const top = GetParam().make(GetParam().options);
        top->run();
        ASSERT_EQ(top->messages(), texts{});
        std::ofstream("blk.v") << "`timescale 1 ps / 1 ps\n" << cell_model();
    }
};

/// What a simulator must find, whatever way the design is written.
std::vector<vector_of_pins> simulated(tried const & of, std::vector<pin> const & in, std::vector<pin> const & out,
                                      std::vector<vector_of_pins> const & stimulus)
{
    auto const top = of.make(of.options);
    top->run();
    std::ofstream("blk.v") << cell_model();
    return verilog_simulation("top", in, out).run("top.v blk.v", stimulus);
}

using VerilogMeaning = in_folder;

/// The compiler's words without those that our text draws on purpose: an input with a default is declared tri0 or tri1,
/// so that it may stay open, and the compiler then takes its port for one in both directions.
std::string complaints(std::string const & words)
{
    std::istringstream lines(words);
    std::string rest;
    for (std::string line; std::getline(lines, line);)
        if (!line.ends_with("is coerced to inout."))
            rest += line + "\n";
    return rest;
}

} // namespace

TEST_P(VerilogTools, ACompilerReadsIt)
{
    SKIP_WITHOUT("iverilog");
    ASSERT_NO_FATAL_FAILURE(generate());
    auto const result = run_command("iverilog -g2005 -Wall -Wno-timescale -s top -o top.vvp top.v blk.v");
    EXPECT_EQ(result.status, 0) << result.text << file_text("top.v");
    EXPECT_EQ(complaints(result.text), "") << file_text("top.v");
}

TEST_P(VerilogTools, ALinterIsContent)
{
    SKIP_WITHOUT("verilator");
    ASSERT_NO_FATAL_FAILURE(generate());
    // -Wno-DECLFILENAME: all modules of a design stand in one file.
    // -Wno-UNUSED: a model of a cell has parameters and pins that nobody reads.
    // -Wno-PINCONNECTEMPTY: an unused output of a cell is open on purpose.
    // -Wno-DEFPARAM: cells get their values in defparam blocks, which older tools read too.
    auto const result =
        run_command("verilator --lint-only -Wall -Wno-DECLFILENAME -Wno-UNUSED -Wno-PINCONNECTEMPTY -Wno-DEFPARAM "
                    "--top-module top top.v blk.v");
    EXPECT_EQ(result.status, 0) << result.text << file_text("top.v");
}

INSTANTIATE_TEST_SUITE_P(Designs, VerilogTools, ::testing::ValuesIn(all_designs()),
                         [](auto const & of) { return of.param.name; });

TEST_F(VerilogMeaning, OfTheFlatDesign)
{
    SKIP_WITHOUT("iverilog");
    std::vector<pin> const in{{"a", 4}, {"b", 4}, {"sel", 1}};
    std::vector<pin> const out{{"y", 4}, {"z", 1}};
    auto const stimulus = stimulus_for(in, test_seed());
    for (char const * options : {"LBX_FILE=top.v", "LBX_FILE=top.v,LBX_STRUCTURAL_NETLIST=ON"}) {
        auto const results = simulated({"flat", flat_design, options}, in, out, stimulus);
        for (std::size_t i = 0; i < stimulus.size(); ++i) {
            auto at = stimulus[i];
            auto const t = (at["a"] & at["b"]) | (at["sel"] != 0 ? 15U : 0U);
            auto const y = ((t & 3U) << 2U) | ((at["a"] >> 3U) << 1U) | at["sel"];
            auto const z = (t ^ (t >> 1U) ^ (t >> 2U) ^ (t >> 3U)) & 1U;
            ASSERT_EQ(results[i], (vector_of_pins{{"y", y}, {"z", z}})) << options;
        }
    }
}

TEST_F(VerilogMeaning, OfTheTwoLevelDesign)
{
    SKIP_WITHOUT("iverilog");
    std::vector<pin> const in{{"d", 4}, {"en", 1}};
    std::vector<pin> const out{{"q", 4}, {"full", 1}};
    auto const stimulus = stimulus_for(in, test_seed());
    auto const stage_of = [](std::uint64_t d, std::uint64_t en) { return (d & 14U) ^ (en != 0 ? 15U : 0U); };
    auto const results = simulated({"two_level", two_level_design, "LBX_FILE=top.v"}, in, out, stimulus);
    for (std::size_t i = 0; i < stimulus.size(); ++i) {
        auto at = stimulus[i];
        auto const q = stage_of(stage_of(stage_of(at["d"], at["en"]), 1) | at["d"], 1);
        ASSERT_EQ(results[i], (vector_of_pins{{"q", q}, {"full", q == 15 ? 1U : 0U}}));
    }
}

TEST_F(VerilogMeaning, OfTheArrayDesign)
{
    SKIP_WITHOUT("iverilog");
    std::vector<pin> const in{{"d", 6}, {"en", 1}};
    std::vector<pin> const out{{"q", 6}, {"x", 1}, {"y", 1}};
    auto const stimulus = stimulus_for(in, test_seed());
    auto const results = simulated({"array", array_design, "LBX_FILE=top.v"}, in, out, stimulus);
    for (std::size_t i = 0; i < stimulus.size(); ++i) {
        auto at = stimulus[i];
        auto const q = (at["d"] & 0x2aU) ^ (at["en"] != 0 ? 0x3fU : 0U);
        auto const x = (at["d"] & 15U) == 15 ? 1U : 0U;
        auto const y = (at["d"] & 3U) == 3 && at["en"] != 0 ? 1U : 0U;
        ASSERT_EQ(results[i], (vector_of_pins{{"q", q}, {"x", x}, {"y", y}}));
    }
}
