// Numbered rows that are never copied once there are many.

#include "lbx/gnl/core/growing_table.h"

#include <gtest/gtest.h>

namespace {

using gnl_detail::growing_table;

TEST(GrowingTable, IsEmptyAtFirst)
{
    EXPECT_EQ(growing_table<int>().size(), 0U);
}

TEST(GrowingTable, HoldsEachRowUnderItsNumber)
{
    growing_table<int> table;
    for (int i = 0; i < 5000; ++i) {
        table.push_back(7 * i);
        ASSERT_EQ(table.size(), static_cast<std::size_t>(i) + 1);
    }
    growing_table<int> const & read = table;
    for (std::size_t i = 0; i < read.size(); ++i)
        ASSERT_EQ(read[i], 7 * static_cast<int>(i));
}

TEST(GrowingTable, RowsChangeInPlace)
{
    growing_table<int> table;
    for (int i = 0; i < 3000; ++i)
        table.push_back(0);
    for (std::size_t const at : {0U, 1023U, 1024U, 2047U, 2048U, 2999U})
        table[at] = 1;
    int ones = 0;
    for (std::size_t i = 0; i < table.size(); ++i)
        ones += table[i];
    EXPECT_EQ(ones, 6);
}

/// The rows of a big table stay where they are.
TEST(GrowingTable, ManyRowsAreNotMoved)
{
    growing_table<int> table;
    for (int i = 0; i < 1025; ++i)
        table.push_back(i);
    int const * const last = &table[1024];
    for (int i = 0; i < 100000; ++i)
        table.push_back(i);
    EXPECT_EQ(&table[1024], last);
}

} // namespace
