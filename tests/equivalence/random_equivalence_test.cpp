// Random designs mean the same in all three hardware languages: proven, not simulated.

#include "outside_tools.h"
#include "proof_test.h"
#include "qhdl/qhdl_reader.h"
#include "random/random_trial.h"
#include "support.h"

#include <iostream>
#include <map>
#include <vector>

using namespace gnl_test;
using namespace random_designs;
using lbx_proof::design_text;
using lbx_proof::question;
using lbx_proof::verdict;
using language = lbx_proof::design_text::language;

namespace {

constexpr int designs_in_a_run = 300;
constexpr int designs_in_a_batch = 30;

/// What a driver of two or more bits on a wider target means differs between the languages on purpose, and a signal
/// that feeds all slices of an array is one.
profile equal_in_all_languages(std::uint64_t seed)
{
    auto allowed = profile_for(seed);
    allowed.broadcasts = false;
    allowed.underscores_at_end = false;
    return allowed;
}

std::uint64_t seed_of_run()
{
    static auto const seed = [] {
        std::uint64_t const made = test_seed();
        std::cout << "LBX_TEST_SEED=" << made << std::endl;
        return made;
    }();
    return seed;
}

/// One design with its texts in three languages.
class translated_design
{
public:
    explicit translated_design(std::uint64_t seed)
        : m_trial(seed, equal_in_all_languages(seed))
    {
    }

    /// What was wrong, or "".
    std::string write()
    {
        for (char const * const extension : {".v", ".vhd", ".tdf"}) {
            if (auto const wrong = m_trial.generate(extension); !wrong.empty())
                return extension + (": " + wrong);
            fs::rename(m_trial.name(), folder(extension));
        }
        try {
            qhdl::reader designs;
            designs.add_folder(folder(".tdf"));
            std::ofstream(folder(".tdf") / "translated.v") << designs.verilog();
        } catch (std::exception const & wrong) {
            return wrong.what();
        }
        return "";
    }

    design_text verilog() const { return {language::verilog, files(".v", ".v"), m_trial.name()}; }
    design_text vhdl() const { return {language::vhdl, files(".vhd", ".vhd"), m_trial.name()}; }
    design_text qhdl() const { return {language::verilog, files(".tdf", ".v"), m_trial.name()}; }
    /// The Verilog with the lowest bit of one output inverted.
    design_text faulty() const;

    std::string name() const { return m_trial.name(); }
    /// Moves the texts to a place where they stay.
    std::string keep() const
    {
        auto const place = fs::temp_directory_path() / ("lbx-equivalence-" + m_trial.name());
        std::error_code ignored;
        fs::remove_all(place, ignored);
        fs::create_directories(place, ignored);
        for (char const * const extension : {".v", ".vhd", ".tdf"})
            fs::copy(folder(extension), place / folder(extension), ignored);
        return place.string();
    }

private:
    fs::path folder(std::string const & extension) const { return m_trial.name() + "_" + extension.substr(1); }
    std::vector<fs::path> files(std::string const & in, std::string const & extension) const
    {
        return files_with(folder(in), extension);
    }

    trial m_trial;
};

design_text translated_design::faulty() const
{
    auto const plain = [&](pin const & each) { return each.name.substr(m_trial.name().size() + 1); };
    auto const range = [](pin const & each) { return "[" + std::to_string(each.width - 1) + ":0] "; };
    auto const outputs = m_trial.output_pins();
    auto const & spoilt = outputs.front();
    std::string ports, declarations, connections;
    for (auto const & each : m_trial.input_pins()) {
        ports += plain(each) + ", ";
        declarations += "input " + range(each) + plain(each) + ";\n";
        connections += "." + plain(each) + "(" + plain(each) + "), ";
    }
    for (auto const & each : outputs) {
        ports += plain(each) + ", ";
        declarations += "output " + range(each) + plain(each) + ";\n";
        connections += "." + plain(each) + "(" + (each.name == spoilt.name ? "spoilt" : plain(each)) + "), ";
    }
    ports.resize(ports.size() - 2);
    connections.resize(connections.size() - 2);
    auto const file = fs::path(m_trial.name() + "_faulty.v");
    std::ofstream(file) << "module faulty(" << ports << ");\n"
                        << declarations << "wire " << range(spoilt) << "spoilt;\n"
                        << m_trial.name() << " i(" << connections << ");\n"
                        << "assign " << plain(spoilt) << " = spoilt ^ 1;\nendmodule\n";
    auto text = verilog();
    text.files.push_back(file);
    text.top = "faulty";
    return text;
}

class RandomEquivalence : public proof_test, public ::testing::WithParamInterface<int>
{
};

void expect_equal_in_batch(std::vector<translated_design> const & designs, std::vector<question> const & questions)
{
    fs::create_directory("proof");
    auto const answers = lbx_proof::prove_equal(questions, "proof");
    ASSERT_EQ(answers.size(), 2 * designs.size() + 1);
    for (std::size_t i = 0; i + 1 < answers.size(); ++i) {
        auto const & design = designs[i / 2];
        EXPECT_EQ(answers[i].found, verdict::equal)
            << "LBX_TEST_SEED=" << design.name().substr(1) << ", " << questions[i].name << ": " << answers[i].reason
            << "\n  the texts are kept in " << design.keep();
    }
    EXPECT_EQ(answers.back().found, verdict::different) << "the planted fault was not found: " << answers.back().reason;
}

} // namespace

TEST_P(RandomEquivalence, AllLanguagesMeanTheSame)
{
    auto const first = seed_of_run() + static_cast<std::uint64_t>(GetParam() * designs_in_a_batch);
    std::vector<translated_design> designs;
    std::vector<question> questions;
    for (std::uint64_t i = 0; i < designs_in_a_batch; ++i) {
        translated_design made(first + i);
        if (auto const wrong = made.write(); !wrong.empty()) {
            ADD_FAILURE() << "LBX_TEST_SEED=" << first + i << ": " << wrong << "\n  the texts are kept in "
                          << made.keep();
            continue;
        }
        questions.push_back({"VHDL", made.verilog(), made.vhdl()});
        questions.push_back({"QHDL", made.verilog(), made.qhdl()});
        designs.push_back(std::move(made));
    }
    ASSERT_FALSE(designs.empty());
    questions.push_back({"a planted fault", designs.front().verilog(), designs.front().faulty()});
    expect_equal_in_batch(designs, questions);
}

INSTANTIATE_TEST_SUITE_P(Batch, RandomEquivalence, ::testing::Range(0, designs_in_a_run / designs_in_a_batch));
