#include "lbx/gnl/core/printf_formatter.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace {

using gnl_detail::argument_kind;
using gnl_detail::format_argument;

class listed_arguments : public gnl_detail::argument_source
{
public:
    explicit listed_arguments(std::vector<format_argument> arguments)
        : m_arguments(std::move(arguments))
    {
    }
    format_argument next(argument_kind) override
    {
        return m_at < m_arguments.size() ? m_arguments[m_at++] : format_argument{};
    }

private:
    std::vector<format_argument> m_arguments;
    std::size_t m_at = 0;
};

format_argument of(int value)
{
    return {argument_kind::integer, value, 0, nullptr};
}
format_argument of(long long value)
{
    return {argument_kind::long_integer, value, 0, nullptr};
}
format_argument of(double value)
{
    return {argument_kind::real, 0, value, nullptr};
}
format_argument of(char const * value)
{
    return {argument_kind::text, 0, 0, const_cast<char *>(value)};
}
format_argument of(wchar_t const * value)
{
    return {argument_kind::wide_text, 0, 0, const_cast<wchar_t *>(value)};
}
format_argument of(gnl_detail::counted_string const * value)
{
    return {argument_kind::counted_text, 0, 0, const_cast<gnl_detail::counted_string *>(value)};
}
format_argument of(int * target)
{
    return {argument_kind::count_target, 0, 0, target};
}
format_argument of(short * target)
{
    return {argument_kind::short_count_target, 0, 0, target};
}
format_argument of(void * address)
{
    return {argument_kind::address, 0, 0, address};
}

template <class... VALUES> std::string formatted(std::string const & format, VALUES... values)
{
    listed_arguments arguments({of(values)...});
    std::string out;
    int const count = gnl_detail::stl_output(out, format, arguments);
    EXPECT_EQ(count, static_cast<int>(out.size()));
    return out;
}

TEST(PrintfFormatter, CopiesWhatIsNoConversion)
{
    EXPECT_EQ(formatted("plain"), "plain");
    EXPECT_EQ(formatted(""), "");
    EXPECT_EQ(formatted("a%%b"), "a%b");
}

TEST(PrintfFormatter, AppendsAndCountsOnlyWhatItAppends)
{
    listed_arguments arguments({of(42)});
    std::string out = "before ";
    EXPECT_EQ(gnl_detail::stl_output(out, "%d", arguments), 2);
    EXPECT_EQ(out, "before 42");
}

TEST(PrintfFormatter, SignedNumbers)
{
    EXPECT_EQ(formatted("%d", 42), "42");
    EXPECT_EQ(formatted("%i", -42), "-42");
    EXPECT_EQ(formatted("%+d", 42), "+42");
    EXPECT_EQ(formatted("% d", 42), " 42");
    EXPECT_EQ(formatted("% d", -42), "-42");
    EXPECT_EQ(formatted("%+ d", 42), "+42");
    EXPECT_EQ(formatted("%d", std::numeric_limits<int>::min()), "-2147483648");
}

TEST(PrintfFormatter, SizesCutAndWiden)
{
    EXPECT_EQ(formatted("%hd", 65537), "1");
    EXPECT_EQ(formatted("%hd", 65535), "-1");
    EXPECT_EQ(formatted("%hu", -1), "65535");
    EXPECT_EQ(formatted("%u", -1), "4294967295");
    EXPECT_EQ(formatted("%lld", std::numeric_limits<long long>::min()), "-9223372036854775808");
    EXPECT_EQ(formatted("%I64d", 1LL << 40), "1099511627776");
    EXPECT_EQ(formatted("%ld", 1LL << 40), "1099511627776");
    EXPECT_EQ(formatted("%llu", -1LL), "18446744073709551615");
    EXPECT_EQ(formatted("%I64x", -1LL), "ffffffffffffffff");
}

TEST(PrintfFormatter, AnIWithoutItsNumberStandsForItself)
{
    EXPECT_EQ(formatted("%Id", 42), "Id");
    EXPECT_EQ(formatted("%I32d", 42), "I32d");
    EXPECT_EQ(formatted("%I6"), "I6");
}

TEST(PrintfFormatter, OtherBases)
{
    EXPECT_EQ(formatted("%o", 8), "10");
    EXPECT_EQ(formatted("%#o", 8), "010");
    EXPECT_EQ(formatted("%#o", 0), "0");
    EXPECT_EQ(formatted("%#.0o", 0), "0");
    EXPECT_EQ(formatted("%#.4o", 8), "0010");
    EXPECT_EQ(formatted("%x", 0xBEEF), "beef");
    EXPECT_EQ(formatted("%X", 0xBEEF), "BEEF");
    EXPECT_EQ(formatted("%#x", 0xBEEF), "0xbeef");
    EXPECT_EQ(formatted("%#X", 0xBEEF), "0XBEEF");
    EXPECT_EQ(formatted("%#x", 0), "0");
}

TEST(PrintfFormatter, WidthFillsFromTheLeft)
{
    EXPECT_EQ(formatted("[%5d]", 42), "[   42]");
    EXPECT_EQ(formatted("[%-5d]", 42), "[42   ]");
    EXPECT_EQ(formatted("[%05d]", 42), "[00042]");
    EXPECT_EQ(formatted("[%05d]", -42), "[-0042]");
    EXPECT_EQ(formatted("[%-05d]", 42), "[42   ]");
    EXPECT_EQ(formatted("[%#08x]", 0xBEEF), "[0x00beef]");
    EXPECT_EQ(formatted("[%2d]", 12345), "[12345]");
}

TEST(PrintfFormatter, PrecisionIsDigitsAndSwitchesZeroFillingOff)
{
    EXPECT_EQ(formatted("[%.4d]", 42), "[0042]");
    EXPECT_EQ(formatted("[%06.4d]", 42), "[  0042]");
    EXPECT_EQ(formatted("[%.0d]", 0), "[]");
    EXPECT_EQ(formatted("[%.d]", 0), "[]");
    EXPECT_EQ(formatted("[%3.0d]", 0), "[   ]");
    EXPECT_EQ(formatted("[%+.0d]", 0), "[+]");
    EXPECT_EQ(formatted("[%.0d]", 7), "[7]");
}

TEST(PrintfFormatter, StarsTakeArguments)
{
    EXPECT_EQ(formatted("[%*d]", 5, 42), "[   42]");
    EXPECT_EQ(formatted("[%*d]", -5, 42), "[42   ]");
    EXPECT_EQ(formatted("[%.*d]", 4, 42), "[0042]");
    EXPECT_EQ(formatted("[%.*d]", -4, 42), "[42]");
    EXPECT_EQ(formatted("[%*.*s]", 5, 2, "abc"), "[   ab]");
    EXPECT_EQ(formatted("%*d", std::numeric_limits<int>::min(), 1).size(), 32767U);
}

TEST(PrintfFormatter, FieldsAreCutToASizeThatFitsInMemory)
{
    EXPECT_EQ(formatted("%99999999999d", 1).size(), 32767U);
    EXPECT_EQ(formatted("%.99999999999d", 1).size(), 32767U);
}

TEST(PrintfFormatter, Texts)
{
    EXPECT_EQ(formatted("%s", "abc"), "abc");
    EXPECT_EQ(formatted("[%5s]", "abc"), "[  abc]");
    EXPECT_EQ(formatted("[%-5s]", "abc"), "[abc  ]");
    EXPECT_EQ(formatted("[%.2s]", "abc"), "[ab]");
    EXPECT_EQ(formatted("[%.5s]", "abc"), "[abc]");
    EXPECT_EQ(formatted("%s", static_cast<char const *>(nullptr)), "(null)");
    EXPECT_EQ(formatted("%c", static_cast<int>('x')), "x");
    EXPECT_EQ(formatted("[%3c]", static_cast<int>('x')), "[  x]");
    EXPECT_EQ(formatted("%c", 0), std::string(1, '\0'));
}

TEST(PrintfFormatter, ATextWithAPrecisionNeedsNoEnd)
{
    char const open_ended[3] = {'a', 'b', 'c'};
    EXPECT_EQ(formatted("%.3s", static_cast<char const *>(open_ended)), "abc");
}

TEST(PrintfFormatter, WideTexts)
{
    EXPECT_EQ(formatted("%S", L"abc"), "abc");
    EXPECT_EQ(formatted("%ls", L"abc"), "abc");
    EXPECT_EQ(formatted("%ws", L"abc"), "abc");
    EXPECT_EQ(formatted("%hS", "abc"), "abc");
    EXPECT_EQ(formatted("[%.2S]", L"abc"), "[ab]");
    EXPECT_EQ(formatted("[%.1S]", L""), "[]");
    EXPECT_EQ(formatted("%C", static_cast<int>(L'x')), "x");
    EXPECT_EQ(formatted("%lc", static_cast<int>(L'x')), "x");
    EXPECT_EQ(formatted("%hC", static_cast<int>('x')), "x");
    EXPECT_EQ(formatted("%S", static_cast<wchar_t const *>(nullptr)), "(null)");
}

TEST(PrintfFormatter, AWideCharacterWithoutAnEncodingFailsTheOutput)
{
    ASSERT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    listed_arguments arguments({of(L"a\u20ACb")});
    std::string out;
    EXPECT_EQ(gnl_detail::stl_output(out, "%S!", arguments), -1);
    EXPECT_EQ(out, "a?b!");
}

TEST(PrintfFormatter, CountedTexts)
{
    gnl_detail::counted_string const two{2, "abc"};
    gnl_detail::counted_string const none{2, nullptr};
    EXPECT_EQ(formatted("[%4Z]", &two), "[  ab]");
    EXPECT_EQ(formatted("[%.1Z]", &two), "[a]");
    EXPECT_EQ(formatted("%Z", &none), "(null)");
    EXPECT_EQ(formatted("%Z", static_cast<gnl_detail::counted_string const *>(nullptr)), "(null)");
}

TEST(PrintfFormatter, TheCountSoFarIsStored)
{
    int count = -1;
    short short_count = -1;
    EXPECT_EQ(formatted("abc%nde%hn", &count, &short_count), "abcde");
    EXPECT_EQ(count, 3);
    EXPECT_EQ(short_count, 5);
    EXPECT_EQ(formatted("abc%n", static_cast<int *>(nullptr)), "abc");
}

TEST(PrintfFormatter, FloatingValuesAreAlwaysPositional)
{
    EXPECT_EQ(formatted("%f", 3.25), "3.250000");
    EXPECT_EQ(formatted("%e", 12345.678), "12345.678000");
    EXPECT_EQ(formatted("%E", 12345.678), "12345.678000");
    EXPECT_EQ(formatted("%f", -0.5), "-0.500000");
    EXPECT_EQ(formatted("%.2f", 0.001), "0.00");
    EXPECT_EQ(formatted("%.3f", 0.0625), "0.062");
    EXPECT_EQ(formatted("%.0f", 3.0), "3");
    EXPECT_EQ(formatted("%#.0f", 3.0), "3.");
    EXPECT_EQ(formatted("%f", 1e20), "100000000000000000000.000000");
    EXPECT_EQ(formatted("%e", 1e-5), "0.000010");
    EXPECT_EQ(formatted("[%8.2f]", -1.5), "[   -1.50]");
    EXPECT_EQ(formatted("[%08.2f]", -1.5), "[-0001.50]");
    EXPECT_EQ(formatted("%+.1f", 1.0), "+1.0");
}

TEST(PrintfFormatter, GeneralFormDropsTrailingZeros)
{
    EXPECT_EQ(formatted("%g", 0.5), "0.5");
    EXPECT_EQ(formatted("%g", 100000.0), "100000");
    EXPECT_EQ(formatted("%g", 1e7), "10000000");
    EXPECT_EQ(formatted("%G", 0.0), "0");
    EXPECT_EQ(formatted("%#g", 0.5), "0.500000");
    EXPECT_EQ(formatted("%.0g", 0.25), "0.2");
}

TEST(PrintfFormatter, LongDigitStringsAreCut)
{
    EXPECT_EQ(formatted("%.600f", 1.0).size(), 512U);
    EXPECT_EQ(formatted("%.300f", 1e300).size(), 512U);
    EXPECT_EQ(formatted("%.0f", 1e308).size(), 309U);
}

TEST(PrintfFormatter, ValuesThatAreNoNumbers)
{
    EXPECT_EQ(formatted("%f", std::numeric_limits<double>::infinity()), "inf");
    EXPECT_EQ(formatted("[%06f]", -std::numeric_limits<double>::infinity()), "[  -inf]");
    EXPECT_EQ(formatted("%G", std::numeric_limits<double>::quiet_NaN()), "NAN");
}

TEST(PrintfFormatter, AddressesHaveAllTheirDigits)
{
    EXPECT_EQ(formatted("%p", reinterpret_cast<void *>(0xBEEFU)), "000000000000BEEF");
}

TEST(PrintfFormatter, AnUnknownConversionIsAFieldOfItself)
{
    EXPECT_EQ(formatted("[%q]"), "[q]");
    EXPECT_EQ(formatted("[%4q]"), "[   q]");
    EXPECT_EQ(formatted("[%-4q]"), "[q   ]");
    EXPECT_EQ(formatted("%q%d", 5), "q5");
    EXPECT_EQ(formatted("%5"), "");
}

TEST(PrintfFormatter, AnArgumentOfAnotherKindIsNeverFollowed)
{
    EXPECT_EQ(formatted("%s", 42), "(null)");
    EXPECT_EQ(formatted("%S", "abc"), "(null)");
    EXPECT_EQ(formatted("%d", "abc"), "0");
    EXPECT_EQ(formatted("%f", 2), "2.000000");
    EXPECT_EQ(formatted("%n", 42), "");
    EXPECT_EQ(formatted("%d%s"), "0(null)");
}

TEST(PrintfFormatter, TellsTheKindsItWouldTake)
{
    using k = argument_kind;
    EXPECT_EQ(gnl_detail::argument_kinds_of("%*.*d %s %lld %g %hn%n %S %Z %p %C %% %q"),
              (std::vector{k::integer, k::integer, k::integer, k::text, k::long_integer, k::real, k::short_count_target,
                           k::count_target, k::wide_text, k::counted_text, k::address, k::integer}));
}

} // namespace
