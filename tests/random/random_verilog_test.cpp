// Random designs, generated as Verilog, do in a simulator what their descriptions say.

#include "random_trial.h"

#include "support.h"

#include <algorithm>
#include <iostream>
#include <set>

using namespace gnl_test;
using namespace random_designs;

namespace {

constexpr int designs_in_a_run = 500;
constexpr int designs_in_a_batch = 50; // starting a compiler costs more than compiling a small design

/// One run of compiler and simulator for all of the trials.
std::vector<vector_of_pins> simulate(std::vector<trial> const & trials)
{
    std::vector<pin> inputs{{"unread", 1}}, outputs; // a stimulus needs an input, which a design may lack
    std::vector<vector_of_pins> stimulus(vectors, {{"unread", 0}});
    std::string files = "together.v";
    for (auto const & each : trials) {
        for (auto const & input : each.input_pins())
            inputs.push_back(input);
        for (auto const & output : each.output_pins())
            outputs.push_back(output);
        each.add_to_stimulus(stimulus);
        files += " " + each.name() + "/*.v";
    }
    std::ofstream out("together.v");
    out << "`timescale 1 ps / 1 ps\nmodule together(";
    for (auto const & input : inputs)
        out << "input [" << input.width - 1 << ":0] " << input.name << ",\n";
    char const * separator = "";
    for (auto const & output : outputs) {
        out << separator << "output [" << output.width - 1 << ":0] " << output.name;
        separator = ",\n";
    }
    out << ");\n";
    for (auto const & each : trials)
        each.instantiate(out);
    out << "endmodule\n";
    out.close();
    return verilog_simulation("together", inputs, outputs).run(files, stimulus);
}

/// What a trial that does not do what it must says: its seed, what differs and where its text is.
std::string complaint(trial const & of, std::string const & wrong)
{
    return "LBX_TEST_SEED=" + of.name().substr(1) + ": " + wrong + "\n  the text is kept in " + of.keep();
}

/// The trial alone, for what can't be told from a run of many.
std::string simulate_alone(trial const & of)
{
    try {
        return of.compare(simulate({of}), of.described());
    } catch (std::runtime_error const & wrong) {
        return wrong.what();
    }
}

/// The complaints about all trials.
texts simulate_and_compare(std::vector<trial> const & trials)
{
    texts complaints;
    std::vector<vector_of_pins> results;
    try {
        results = simulate(trials);
    } catch (std::runtime_error const &) {
        // one of them is not even compiled, or leaves an output unknown
    }
    for (auto const & each : trials)
        if (auto const wrong = results.empty() ? simulate_alone(each) : each.compare(results, each.described());
            !wrong.empty())
            complaints.push_back(complaint(each, wrong));
    return complaints;
}

/// Generates `count` designs and simulates them; what is wrong with them.
texts try_designs(std::uint64_t seed, int count)
{
    texts complaints;
    std::vector<trial> trials;
    for (int i = 0; i < count; ++i) {
        trial made(seed + static_cast<std::uint64_t>(i));
        if (auto const wrong = made.generate(".v"); !wrong.empty())
            complaints.push_back(complaint(made, wrong));
        else
            trials.push_back(std::move(made));
    }
    auto const differences = simulate_and_compare(trials);
    complaints.insert(complaints.end(), differences.begin(), differences.end());
    return complaints;
}

class RandomVerilog : public in_folder, public ::testing::WithParamInterface<int>
{
};

/// One seed for the whole run: each design's own seed counts up from it, so that a failing design is the first one of a
/// run with its seed.
std::uint64_t seed_of_run()
{
    static auto const seed = [] {
        std::uint64_t const made = test_seed();
        std::cout << "LBX_TEST_SEED=" << made << std::endl;
        return made;
    }();
    return seed;
}

} // namespace

TEST_P(RandomVerilog, DoesWhatTheDescriptionSays)
{
    SKIP_WITHOUT("iverilog");
    auto const first = seed_of_run() + static_cast<std::uint64_t>(GetParam() * designs_in_a_batch);
    for (auto const & wrong : try_designs(first, designs_in_a_batch))
        ADD_FAILURE() << wrong;
}

INSTANTIATE_TEST_SUITE_P(Batch, RandomVerilog, ::testing::Range(0, designs_in_a_run / designs_in_a_batch));

// ---- Whether the test can fail

namespace {

using RandomVerilogControl = in_folder;

/// The first output's expression turned into its inverse; false if the output is a constant.
bool invert_output(description & of)
{
    auto & top = of.kinds.back();
    for (auto & each : top.statements) {
        auto & chosen = each.choices[static_cast<std::size_t>(of.top.k) % each.choices.size()];
        if (each.sink != statement::target::output || chosen.what != source::form::expression)
            continue;
        expression inverse;
        inverse.op = operation::invert;
        inverse.operands = {chosen.expression};
        chosen.expression = static_cast<int>(top.expressions.size());
        top.expressions.push_back(inverse);
        return true;
    }
    return false;
}

/// Every "and" of all kinds turned into an "or".
void change_operations(description & of)
{
    for (auto & each : of.kinds)
        for (auto & node : each.expressions)
            if (node.op == operation::bits_and)
                node.op = operation::bits_or;
}

} // namespace

TEST_F(RandomVerilogControl, AWrongEvaluationIsNoticed)
{
    SKIP_WITHOUT("iverilog");
    std::vector<trial> trials;
    for (std::uint64_t seed = 1; seed <= 30; ++seed) {
        trials.emplace_back(seed);
        ASSERT_EQ(trials.back().generate(".v"), "");
    }
    auto const results = simulate(trials);
    int inverted = 0, changed = 0;
    for (auto const & each : trials) {
        EXPECT_EQ(each.compare(results, each.described()), "");
        auto wrong = each.described();
        if (invert_output(wrong)) {
            ++inverted;
            EXPECT_NE(each.compare(results, wrong), "") << each.name();
        }
        wrong = each.described();
        change_operations(wrong);
        changed += each.compare(results, wrong).empty() ? 0 : 1;
    }
    EXPECT_GE(inverted, 20);
    EXPECT_GE(changed, 10) << "an operation deep in a design is often masked, but not always";
}

TEST_F(RandomVerilogControl, TextThatDoesNotCompileIsNoticedAndKept)
{
    SKIP_WITHOUT("iverilog");
    std::vector<trial> trials;
    for (std::uint64_t seed = 3; seed <= 4; ++seed) {
        trials.emplace_back(seed);
        ASSERT_EQ(trials.back().generate(".v"), "");
    }
    std::ofstream("r3/r3.v", std::ios::app) << "module\n";
    auto const complaints = simulate_and_compare(trials);
    ASSERT_EQ(complaints.size(), 1U);
    EXPECT_EQ(complaints[0].substr(0, 27), "LBX_TEST_SEED=3: iverilog: ");
    auto const kept = complaints[0].substr(complaints[0].rfind(' ') + 1);
    EXPECT_EQ(file_text(fs::path(kept) / "r3.v"), file_text("r3/r3.v"));
    fs::remove_all(kept);
}
