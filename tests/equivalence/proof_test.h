#pragma once

#include "equivalence_proof.h"
#include "support.h"

namespace gnl_test {

/// Tests that need the tools of the proof; they end as skipped, visibly, where one is missing.
class proof_test : public in_folder
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        for (auto const & tool : lbx_proof::missing_tools())
            GTEST_SKIP() << tool << " is not installed";
    }

    static void expect_equal(std::vector<lbx_proof::question> const & questions)
    {
        fs::create_directory("proof");
        auto const answers = lbx_proof::prove_equal(questions, "proof");
        ASSERT_EQ(answers.size(), questions.size());
        for (std::size_t i = 0; i < answers.size(); ++i)
            EXPECT_EQ(answers[i].found, lbx_proof::verdict::equal) << questions[i].name << ": " << answers[i].reason;
    }
};

inline std::vector<fs::path> files_with(fs::path const & folder, std::string const & extension)
{
    std::vector<fs::path> found;
    for (auto const & entry : fs::directory_iterator(folder))
        if (entry.path().extension() == extension)
            found.push_back(entry.path());
    return found;
}

} // namespace gnl_test
