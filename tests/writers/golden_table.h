#pragma once

// Tables of designs with golden files: each design is run in each language, and elsewhere all texts of one design are
// proven equal.

#include "golden_folder.h"

#include <tuple>

namespace gnl_test {

/// A design whose files stand in the folder of golden files, under its name and the ending of each language.
struct golden_design
{
    char const * name;
    std::unique_ptr<design> (*make)(std::string const & options);
    char const * options = "";       ///< more than the name of the file, each behind a comma
    char const * unproven = nullptr; ///< why the texts in the languages are not proven equal
    outside_cell cell = {};          ///< what it instantiates and no run writes
};

inline void PrintTo(golden_design const & shown, std::ostream * out)
{
    *out << shown.name;
}

/// The tests of a table.
///
///     class GoldenArrays : public in_table {};
///     TEST_P(GoldenArrays, AreAsTheyWere) { expect_golden(); }
///     IN_EACH_LANGUAGE_OF_TABLE(GoldenArrays, golden_arrays)
class in_table : public in_folder_with_parameter<std::tuple<golden_design, file_language>>
{
protected:
    void expect_golden()
    {
        auto const & [of, in] = GetParam();
        auto const top = of.make("LBX_FILE=top" + in.ending + of.options);
        EXPECT_TRUE(leaves_golden(*top, of.name, in));
        SKIP_WITHOUT(in.ending == ".vhd" ? "ghdl" : "iverilog");
        EXPECT_EQ(complaints_of_compiler(in, of.cell), "");
    }
    /// The same for tables of which the golden files hold no more than each run shows.
    void expect_shown()
    {
        auto const & [of, in] = GetParam();
        auto const top = of.make("LBX_FILE=top" + in.ending + of.options);
        EXPECT_TRUE(shows_golden(*top, of.name, in));
        SKIP_WITHOUT(in.ending == ".vhd" ? "ghdl" : "iverilog");
        EXPECT_EQ(complaints_of_compiler(in, of.cell), "");
    }
};

} // namespace gnl_test

#define IN_EACH_LANGUAGE_OF_TABLE(SUITE, TABLE)                                                                        \
    INSTANTIATE_TEST_SUITE_P(                                                                                          \
        In, SUITE, ::testing::Combine(::testing::ValuesIn(TABLE), ::testing::ValuesIn(gnl_test::file_languages)),      \
        [](auto const & of) { return std::string(std::get<1>(of.param).name) + "_" + std::get<0>(of.param).name; })
