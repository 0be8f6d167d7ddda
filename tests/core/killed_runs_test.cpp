// Runs that are killed: whatever the moment, each file under a final name is complete.

#include "verilog_simulation.h"
#include "written_tree.h"

#include <chrono>
#include <csignal>
#include <iostream>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace gnl_test;

constexpr int leaves = 24;
constexpr int rounds = 34; ///< in each of three languages
class KilledRuns : public in_folder_with_parameter<char const *>
{
protected:
    using duration = std::chrono::microseconds;

    void SetUp() override
    {
        in_folder::SetUp();
        versioned_leaf::version = "1";
    }

    /// A run into the folder "out", in a process of its own; the process.
    static ::pid_t start()
    {
        auto const child = ::fork();
        if (child == 0) {
            run();
            ::_exit(0);
        }
        EXPECT_GT(child, 0);
        return child;
    }
    static void run()
    {
        leaf_row row("LBX_SINGLE_OUTPUT_FILE=OFF,LBX_OUTPUT_DIRECTORY=out,LBX_FILE=row" + std::string(GetParam()),
                     leaves);
        row.run();
    }
    /// Whether the process was killed before it had ended.
    static bool ended_by_signal(::pid_t child)
    {
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        return WIFSIGNALED(status);
    }
    /// An undisturbed run into a fresh folder: its files, and how long it takes.
    static std::pair<std::map<std::string, std::string>, duration> undisturbed()
    {
        empty_folder();
        auto const begin = std::chrono::steady_clock::now();
        EXPECT_FALSE(ended_by_signal(start()));
        auto const end = std::chrono::steady_clock::now();
        return {written_texts("out"), std::chrono::duration_cast<duration>(end - begin)};
    }
    static void empty_folder()
    {
        fs::remove_all("out");
        fs::create_directory("out");
    }
    /// What the library's own test says to a file, asked with the settings that its first line tells.
    static int reuse_code(std::string const & name, std::string const & text)
    {
        auto const settings = text.substr(2, text.find('\n') - 2);
        // Neither under the other: a design's version holds those of the designs below.
        leaf_row row("", leaves);
        versioned_leaf leaf(nullptr, 1);
        GNL_GENERATOR & design = name.starts_with("row") ? static_cast<GNL_GENERATOR &>(row) : leaf;
        return design.are_files_same("out/" + name, settings);
    }

    /// Kills many runs over `older` files, each at another moment.
    static void kill_many(std::map<std::string, std::string> const & older,
                          std::map<std::string, std::string> const & complete, duration whole_run);
};

void KilledRuns::kill_many(std::map<std::string, std::string> const & older,
                           std::map<std::string, std::string> const & complete, duration whole_run)
{
    auto const seed = test_seed();
    std::cout << "LBX_TEST_SEED=" << seed << std::endl;
    std::mt19937 random(seed);
    std::uniform_int_distribution<long> moment(0, static_cast<long>(whole_run.count()));
    int killed = 0;
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE("round " + std::to_string(round) + " of seed " + std::to_string(seed));
        empty_folder();
        for (auto const & [name, text] : older)
            write_file("out/" + name, text);
        auto const child = start();
        ::usleep(static_cast<::useconds_t>(moment(random)));
        ::kill(child, SIGKILL);
        killed += ended_by_signal(child);
        auto const left = written_texts("out");
        for (auto const & [name, text] : older)
            EXPECT_TRUE(left.contains(name)) << name;
        for (auto const & [name, text] : left) {
            ASSERT_TRUE(complete.contains(name)) << name;
            bool const is_new = text == complete.at(name);
            ASSERT_TRUE(is_new || (older.contains(name) && text == older.at(name))) << name << ":\n" << text;
            EXPECT_EQ(reuse_code(name, text), is_new ? 1 : 4) << name;
        }
        // The next run goes on from there.
        EXPECT_FALSE(ended_by_signal(start()));
        ASSERT_EQ(written_texts("out"), complete);
    }
    EXPECT_GT(killed, 0) << "no run was killed before its end";
}

TEST_P(KilledRuns, LeaveCompleteFilesInAFreshFolder)
{
    auto const [complete, whole_run] = undisturbed();
    ASSERT_EQ(complete.size(), leaves + 1u);
    kill_many({}, complete, whole_run);
}

TEST_P(KilledRuns, LeaveOldFilesOrCompleteNewOnes)
{
    versioned_leaf::version = "0";
    auto const older = undisturbed().first;
    versioned_leaf::version = "1";
    auto const [complete, whole_run] = undisturbed();
    ASSERT_EQ(complete.size(), leaves + 1u);
    ASSERT_EQ(older.size(), complete.size());
    for (auto const & [name, text] : older)
        ASSERT_NE(text, complete.at(name)) << name;
    kill_many(older, complete, whole_run);
}

INSTANTIATE_TEST_SUITE_P(, KilledRuns, ::testing::Values(".v", ".vhd", ".tdf"),
                         [](auto const & test) { return std::string(test.param).substr(1); });

} // namespace
