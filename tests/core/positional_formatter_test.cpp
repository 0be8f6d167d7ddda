#include "lbx/gnl/core/positional_formatter.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using gnl_detail::argument_kind;
using gnl_detail::positional_format;

struct texts
{
    std::string text;
    std::string arguments;
    bool operator==(texts const &) const = default;
};

texts both(char const * format, ...)
{
    positional_format const inserts(format);
    std::va_list list;
    va_start(list, format);
    auto const arguments = inserts.read_arguments(list);
    va_end(list);
    return {inserts.text(arguments), inserts.arguments_text(arguments)};
}

template <class... VALUES> std::string text(char const * format, VALUES... values)
{
    return both(format, values...).text;
}

TEST(PositionalFormatter, InsertsNameTheirArgumentByNumber)
{
    EXPECT_EQ(text("Depth %1!d! is above %2!d!", 7, 5), "Depth 7 is above 5");
    EXPECT_EQ(text("%2!s! has %1!d! bits", 8, "data"), "data has 8 bits");
    EXPECT_EQ(text("%1!d!-%1!d!", 3), "3-3");
}

TEST(PositionalFormatter, AnInsertWithoutSpecificationIsAText)
{
    EXPECT_EQ(text("%1 and %2", "a", "b"), "a and b");
    EXPECT_EQ(text("%1", static_cast<char const *>(nullptr)), "(null)");
}

TEST(PositionalFormatter, ALaterInsertMayNameAnEarlierArgument)
{
    EXPECT_EQ(text("%3!s! %1!s! %2!d! %1!s!", "a", 2, "c"), "c a 2 a");
}

TEST(PositionalFormatter, EachArgumentIsReadWithItsType)
{
    EXPECT_EQ(text("%1!.1f! %2!d! %3!lld! %4!s! %5!.2f! %6!S!", 1.5, -2, 1LL << 40, "t", 2.25, L"w"),
              "1.5 -2 1099511627776 t 2.25 w");
    EXPECT_EQ(text("%5!s! %4!.1f! %1!.1f!", 1.5, 2, 3, 4.5, "t"), "t 4.5 1.5");
}

TEST(PositionalFormatter, MoreThanTheRegistersHold)
{
    EXPECT_EQ(
        text("%12!d!%11!d!%10!d!%9!d!%8!d!%7!d!%6!d!%5!d!%4!d!%3!d!%2!d!%1!d!", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12),
        "121110987654321");
}

TEST(PositionalFormatter, AnArgumentThatIsNotNamedIsSkipped)
{
    EXPECT_EQ(text("%3!d!", 1, "two", 3), "3");
}

TEST(PositionalFormatter, NumbersHaveUpToTwoDigits)
{
    positional_format const format("%99!d!");
    EXPECT_EQ(format.kinds().size(), 99U);
    EXPECT_EQ(text("%10", "1", "2", "3", "4", "5", "6", "7", "8", "9", "ten"), "ten");
    EXPECT_EQ(text("%123", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "twelve"), "twelve3");
}

TEST(PositionalFormatter, ZeroEndsTheFormat)
{
    EXPECT_EQ(text("before%0after %1!s!"), "before");
    EXPECT_EQ(text("%0"), "");
    EXPECT_EQ(positional_format("%0%5!s!").kinds().size(), 0U);
}

TEST(PositionalFormatter, PercentBeforeAnythingElseStandsForThat)
{
    EXPECT_EQ(text("100%% sure"), "100% sure");
    EXPECT_EQ(text("%a%!"), "a!");
    EXPECT_EQ(text("100%"), "100%");
    EXPECT_EQ(text("%%1!s!"), "%1!s!");
}

TEST(PositionalFormatter, LineEndsInEitherOrderBecomeOnePair)
{
    EXPECT_EQ(text("a\r\nb\n\rc"), "a\r\nb\r\nc");
    EXPECT_EQ(text("a\rb\nc\n\nd\n"), "a\rb\nc\n\nd\n");
}

TEST(PositionalFormatter, ASpecificationThatDoesNotEndIsText)
{
    EXPECT_EQ(text("%1!d and more", "x"), "x!d and more");
    EXPECT_EQ(text("%1!", "x"), "x!");
}

TEST(PositionalFormatter, SpecificationsMayHoldTextAndStars)
{
    EXPECT_EQ(text("[%1!d bits!]", 8), "[8 bits]");
    EXPECT_EQ(text("[%1!*d!] %3!s!", 5, 42, "end"), "[   42] end");
    EXPECT_EQ(text("%1!!", "x"), "x"); // an empty conversion is none
}

TEST(PositionalFormatter, ALongSpecificationIsCut)
{
    std::string const filler(5000, 'x');
    auto const format = "%1!d" + filler + "!.";
    EXPECT_EQ(text(format.c_str(), 7), "7" + std::string(4093, 'x') + ".");
}

TEST(PositionalFormatter, ArgumentsAloneInTheirOrder)
{
    EXPECT_EQ(both("%2!s! has %1!d! bits", 8, "data"), (texts{"data has 8 bits", "8 data "}));
    EXPECT_EQ(both("no inserts"), (texts{"no inserts", ""}));
    EXPECT_EQ(both("%1!04d! and %1!d!", 7), (texts{"0007 and 7", "0007 "}));
}

TEST(PositionalFormatter, ArgumentsAreThoseWithASpecificationUpToTheNumberOfInserts)
{
    EXPECT_EQ(both("%1 and %2!d!", "a", 2), (texts{"a and 2", "2 "}));
    // One insert: only the first argument is looked for.
    EXPECT_EQ(both("%2!d!", 1, 2), (texts{"2", ""}));
}

TEST(PositionalFormatter, AnArgumentNamedAsTwoThingsIsNeverFollowedIntoMemory)
{
    EXPECT_EQ(text("%1!s! %1!d!", 42), "(null) 42");
    EXPECT_EQ(text("%1!d! %1!s!", 42), "42 (null)");
    EXPECT_EQ(text("%1!s! %1!S!", "abc"), "(null) (null)");
    EXPECT_EQ(text("%1!n!%1!s!", "abc"), "(null)");
}

TEST(PositionalFormatter, WithoutArgumentsEveryInsertIsNothing)
{
    positional_format const format("%1!s! %2!d! %3!f! %4");
    EXPECT_EQ(format.text({}), "(null) 0 0.000000 (null)");
}

TEST(PositionalFormatter, KindsAreKnownBeforeAnythingIsRead)
{
    using k = argument_kind;
    EXPECT_EQ(positional_format("%4!f! %1 %2!*lld!").kinds(),
              (std::vector{k::text, k::integer, k::long_integer, k::real}));
}

} // namespace
