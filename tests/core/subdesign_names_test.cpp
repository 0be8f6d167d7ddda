#include "lbx/gnl/core/subdesign_names.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace {

using gnl_detail::seed_digits;
using gnl_detail::seed_of_digits;
using gnl_detail::seed_space;

TEST(SeedDigits, LowestDigitFirst)
{
    EXPECT_EQ(seed_digits(0), "");
    EXPECT_EQ(seed_digits(9), "9");
    EXPECT_EQ(seed_digits(10), "a");
    EXPECT_EQ(seed_digits(31), "v");
    EXPECT_EQ(seed_digits(32), "01");
    EXPECT_EQ(seed_digits(1000), "8v"); // 31 * 32 + 8
}

TEST(SeedDigits, AreReadBack)
{
    for (int seed : {0, 1, 9, 10, 31, 32, 1000, 1024, 65535, 2147483647})
        EXPECT_EQ(seed_of_digits(seed_digits(seed)), seed);
}

TEST(SeedDigits, OtherTextIsNoSeed)
{
    for (char const * text : {"0", "10", "w", "A", "-", "8v_", "vvvvvvv", "88888888"})
        EXPECT_EQ(seed_of_digits(text), std::nullopt) << text;
}

TEST(SeedSpace, AFreeSeedIsTheFirstCandidate)
{
    seed_space space;
    EXPECT_EQ(space.first_candidate(7, "a"), 7);
}

TEST(SeedSpace, RunsOfOtherSettingsAreJumpedOver)
{
    seed_space space;
    for (int seed : {5, 7, 6, 9})
        space.take(seed, std::to_string(seed));
    EXPECT_EQ(space.first_candidate(4, "a"), 4);
    EXPECT_EQ(space.first_candidate(5, "a"), 8);
    EXPECT_EQ(space.first_candidate(7, "a"), 8);
    EXPECT_EQ(space.first_candidate(9, "a"), 10);
}

TEST(SeedSpace, OwnSettingsAreACandidate)
{
    seed_space space;
    space.take(5, "a");
    space.take(6, "b");
    EXPECT_EQ(space.first_candidate(5, "b"), 6);
    EXPECT_EQ(space.first_candidate(6, "a"), 7);
    EXPECT_EQ(space.first_candidate(5, "c"), 7);
}

TEST(SeedSpace, AReleasedSeedIsFreeAgain)
{
    seed_space space;
    for (int seed = 5; seed < 9; ++seed)
        space.take(seed, std::to_string(seed));
    space.release(6);
    space.release(12);
    EXPECT_EQ(space.first_candidate(5, "a"), 6);
    EXPECT_EQ(space.first_candidate(5, "6"), 6);
    EXPECT_EQ(space.first_candidate(7, "a"), 9);
    EXPECT_EQ(space.first_candidate(5, "8"), 6);
}

TEST(SeedSpace, SettingsWithoutATextMatchNobody)
{
    seed_space space;
    space.take(5, "");
    EXPECT_EQ(space.first_candidate(5, ""), 6);
}

/// Jumping gives what probing seed by seed gives, whatever is taken and released in between.
TEST(SeedSpace, AgreesWithProbing)
{
    std::mt19937 random(20);
    auto const below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
    seed_space space;
    std::map<int, std::string> taken;
    for (int step = 0; step < 20000; ++step) {
        auto const settings = std::to_string(below(40));
        int const start = below(60);
        int probed = start;
        while (taken.contains(probed) && taken[probed] != settings)
            ++probed;
        ASSERT_EQ(space.first_candidate(start, settings), probed) << step;
        if (below(3) == 0 && !taken.empty()) {
            auto entry = std::next(taken.begin(), below(static_cast<unsigned>(taken.size())));
            space.release(entry->first);
            taken.erase(entry);
        } else {
            space.take(probed, settings);
            taken[probed] = settings;
        }
    }
}

TEST(SubdesignNames, NamesFindTheirSpace)
{
    gnl_detail::subdesign_names names;
    auto & listed = names.space("top_mg", "");
    auto & files = names.space("out/mg", ".v");
    names.take("top_mg5", "a");
    names.take("out/mg5.v", "b");
    names.take("other_mg5", "c");
    EXPECT_EQ(listed.first_candidate(5, "x"), 6);
    EXPECT_EQ(listed.first_candidate(5, "a"), 5);
    EXPECT_EQ(files.first_candidate(5, "b"), 5);
    EXPECT_EQ(files.first_candidate(5, "a"), 6);
    names.release("top_mg5");
    EXPECT_EQ(listed.first_candidate(5, "x"), 5);
    EXPECT_EQ(files.first_candidate(5, "x"), 6);
}

TEST(SubdesignNames, ResultsHoldUntilTheFileIsWrittenAgain)
{
    gnl_detail::subdesign_names names;
    names.keep_result("a.v", "q", 1);
    EXPECT_EQ(names.known_result("a.v", "q"), 0);
    names.file_written("a.v", "a");
    EXPECT_TRUE(names.is_written("a.v"));
    names.keep_result("a.v", "q", 1);
    EXPECT_EQ(names.known_result("a.v", "q"), 1);
    EXPECT_EQ(names.known_result("a.v", "other"), 0);
    names.file_written("a.v", "a");
    EXPECT_EQ(names.known_result("a.v", "q"), 0);
    names.file_removed("a.v");
    EXPECT_FALSE(names.is_written("a.v"));
}

} // namespace
