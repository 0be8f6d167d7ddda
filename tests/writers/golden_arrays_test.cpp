// Whole runs of designs with arrays, in each language.

#include "golden_array_designs.h"

using namespace gnl_test;

namespace {

class GoldenArrays : public in_table
{
};

} // namespace

TEST_P(GoldenArrays, LeaveTheirFiles)
{
    expect_golden();
}

IN_EACH_LANGUAGE_OF_TABLE(GoldenArrays, golden_arrays);

class GoldenConflicts : public in_each_language
{
};

TEST_P(GoldenConflicts, StandInTheFile)
{
    EXPECT_TRUE(leaves_golden(*array_conflicts(into_top()), "array_conflicts", GetParam()));
    SKIP_WITHOUT_COMPILER();
    expect_error_in_text(complaints_of_compiler(GetParam()), "already assigned in the master array");
}

IN_EACH_LANGUAGE(GoldenConflicts);
