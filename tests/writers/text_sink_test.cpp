#include "lbx/gnl/writers/text_sink.h"

#include <gtest/gtest.h>

#include <climits>
#include <sstream>
#include <string>

using namespace gnl_detail;

namespace {

template <class T>
concept can_be_written = requires(text_sink & text, T value)
{
    text << value;
};

// A character or a flag would be written as a number unseen.
static_assert(can_be_written<int> && can_be_written<std::string> && can_be_written<char const *>);
static_assert(!can_be_written<char> && !can_be_written<bool> && !can_be_written<long> && !can_be_written<double>);

} // namespace

TEST(TextSink, WritesTextsAndNumbers)
{
    std::ostringstream out;
    {
        text_sink text(out);
        text << "a" << std::string("b") << std::string_view("c") << 0 << "," << INT_MIN << "," << INT_MAX;
    }
    EXPECT_EQ(out.str(), "abc0,-2147483648,2147483647");
}

TEST(TextSink, HoldsTextBackUntilTheStreamIsAskedFor)
{
    std::ostringstream out;
    text_sink text(out);
    text << "a";
    EXPECT_EQ(out.str(), "");
    text.stream() << "b";
    EXPECT_EQ(out.str(), "ab");
}

TEST(TextSink, KeepsTheOrderOfTextsOfAnyLength)
{
    std::string expected;
    std::ostringstream out;
    {
        text_sink text(out);
        for (int length : {0, 1, 1023, 1, 1024, 5, 1025, 3, 5000, 700, 700}) {
            std::string const piece(static_cast<std::size_t>(length), static_cast<char>('a' + length % 26));
            text << piece << length;
            expected += piece + std::to_string(length);
        }
    }
    EXPECT_EQ(out.str(), expected);
}

TEST(TextSink, AFailureStaysInTheStream)
{
    struct : std::streambuf
    {
    } full;
    std::ostream out(&full);
    out.exceptions(std::ios::badbit);
    EXPECT_NO_THROW(text_sink(out) << "a");
    EXPECT_TRUE(out.bad());
    out.clear();
    EXPECT_THROW((text_sink(out) << "a").stream(), std::ios::failure);
}

TEST(ListSeparator, OpensOnceAndSeparatesTheRest)
{
    std::ostringstream out;
    list_separator list("<", ",");
    EXPECT_FALSE(list.started());
    out << list << 1 << list << 2 << list << 3;
    EXPECT_TRUE(list.started());
    EXPECT_EQ(out.str(), "<1,2,3");
}

TEST(ListSeparator, GoesOnWhereSomebodyElseBegan)
{
    std::ostringstream out;
    list_separator list("<", ",");
    list.set_started();
    out << list << 1;
    EXPECT_EQ(out.str(), ",1");
}
