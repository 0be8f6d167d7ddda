// The small utilities of the sibling libraries.

#include "ccl_ver.h"
#include "giga_info.h"
#include "giga_stl.h"
#include "lbx_util.h"

#include <gtest/gtest.h>

#include <map>

namespace {

TEST(LbxUtil, IntegersPrintInPlainDecimal)
{
    EXPECT_EQ(lbx_int_to_string(0), "0");
    EXPECT_EQ(lbx_int_to_string(2147483647), "2147483647");
    EXPECT_EQ(lbx_int_to_string(-2147483647 - 1), "-2147483648");
}

TEST(LbxUtil, TokensAreCutAtAnySeparator)
{
    std::string text = " +WIDTH*2";
    EXPECT_EQ(lbx_get_token(text, "* +-\\", false), "WIDTH");
    EXPECT_EQ(text, "2");
    EXPECT_EQ(lbx_get_token(text, "* +-\\", false), "2");
    EXPECT_EQ(text, "");
    EXPECT_EQ(lbx_get_token(text, "* +-\\", false), "");
}

TEST(LbxUtil, TheSeparatorCanStay)
{
    std::string text = "a;b";
    EXPECT_EQ(lbx_get_token(text, ";", true), "a");
    EXPECT_EQ(text, ";b");
}

TEST(LbxUtil, OnlySeparatorsLeaveNothing)
{
    std::string text = ";;;";
    EXPECT_EQ(lbx_get_token(text, ";", true), "");
    EXPECT_EQ(text, "");
}

TEST(LbxUtil, IntegerTextsHaveDigitsAndOneSign)
{
    for (auto const * text : {"0", "12", "-3", "+4", "007"})
        EXPECT_TRUE(lbx_is_integer_value(text)) << text;
    for (auto const * text : {"", "-", "+", "1a", " 1", "--1", "1.0"})
        EXPECT_FALSE(lbx_is_integer_value(text)) << text;
}

TEST(LbxUtil, NumericTextsBecomeBinaryDigits)
{
    std::map<std::string, std::string> const legal = {
        {"0x1FF", "111111111"},
        {"0X1ff", "111111111"},
        {"0b101", "101"},
        {"0B0101", "101"},
        {"5", "101"},
        {"0x5", "101"},
        {"0", "0"},
        {"000", "0"},
        {"0x0", "0"},
        {"4294967296", "1" + std::string(32, '0')},
        {"18446744073709551616", "1" + std::string(64, '0')},
        {"1000000007", "111011100110101100101000000111"},
    };
    for (auto const & [text, expected] : legal) {
        std::string digits = "left over";
        EXPECT_TRUE(lbx_convert_numeric_string_to_binary_format(text, digits)) << text;
        EXPECT_EQ(digits, expected) << text;
    }
}

TEST(LbxUtil, DigitsBeforeAnIllegalCharacterStillCount)
{
    std::map<std::string, std::string> const illegal = {
        {"12z", "1100"}, {"0x1G", "1"}, {"0b12", "1"}, {"", ""}, {"0x", ""}, {"-5", ""}, {"1F", "1"},
    };
    for (auto const & [text, expected] : illegal) {
        std::string digits = "left over";
        EXPECT_FALSE(lbx_convert_numeric_string_to_binary_format(text, digits)) << text;
        EXPECT_EQ(digits, expected) << text;
    }
}

TEST(LbxUtil, LongDecimalsAreExact)
{
    // 2 to the power of 4000, by doubling.
    std::string decimal = "1";
    for (int i = 0; i < 4000; ++i) {
        int carry = 0;
        for (auto digit = decimal.rbegin(); digit != decimal.rend(); ++digit) {
            int const twice = 2 * (*digit - '0') + carry;
            *digit = static_cast<char>('0' + twice % 10);
            carry = twice / 10;
        }
        if (carry != 0)
            decimal.insert(decimal.begin(), '1');
    }
    std::string digits;
    EXPECT_TRUE(lbx_convert_numeric_string_to_binary_format(decimal, digits));
    EXPECT_EQ(digits, "1" + std::string(4000, '0'));
}

TEST(LbxUtil, DirectoriesGetOneSlash)
{
    EXPECT_EQ(add_trailing_slashes_to_directory_name("out"), "out/");
    EXPECT_EQ(add_trailing_slashes_to_directory_name("out/"), "out/");
    EXPECT_EQ(add_trailing_slashes_to_directory_name(""), "");
}

TEST(GigaStl, UpperCaseIsWithoutALocale)
{
    EXPECT_EQ(to_upper_case("aZ_9-\xe4"), "AZ_9-\xe4");
}

TEST(CclVer, TextsFitTheFirstLinesOfFiles)
{
    for (auto const & text :
         {ver_get_version(), ver_get_build_number_string(), ver_get_build_date(), ver_get_copyright_string()}) {
        EXPECT_NE(text, "");
        EXPECT_EQ(text.find('\n'), std::string::npos) << text;
    }
    EXPECT_EQ(ver_get_service_pack(), "");
}

TEST(GigaInfo, NothingIsKnownOfAnyFunction)
{
    GIGA_INFO info;
    info.set_function_name("adder", "");
    EXPECT_TRUE(info.has_errors());
    EXPECT_EQ(info.get_vhdl_library(), "");
}

} // namespace
