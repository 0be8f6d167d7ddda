// Integers of any width with unknown bits.

#include "mlib_uinteger.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

MLIB_UINTEGER from_bits(char const * digits, int bitwidth)
{
    MLIB_UINTEGER value(0, bitwidth);
    value.set_value_from_bin_string(digits);
    return value;
}

TEST(MlibUinteger, TextHasAsManyDigitsAsTheWidthAsksFor)
{
    MLIB_UINTEGER const value(5, 8);
    EXPECT_EQ(value.as_bin_string(), "00000101");
    EXPECT_EQ(value.as_hex_string(), "05");
    EXPECT_EQ(MLIB_UINTEGER(1, 1).as_bin_string(), "1");
    EXPECT_EQ(MLIB_UINTEGER(1, 1).as_hex_string(), "1");
    EXPECT_EQ(MLIB_UINTEGER(0x1ab, 9).as_hex_string(), "1AB");
}

TEST(MlibUinteger, DefaultsToAZeroOf32Bits)
{
    EXPECT_EQ(MLIB_UINTEGER().bitwidth(), 32);
    EXPECT_EQ(MLIB_UINTEGER().uint(), 0U);
}

TEST(MlibUinteger, WidthBelowOneReadsAsOne)
{
    EXPECT_EQ(MLIB_UINTEGER(1, 0).as_bin_string(), "1");
    EXPECT_EQ(MLIB_UINTEGER(3, -4).as_bin_string(), "1");
    MLIB_UINTEGER value(3, 8);
    value.set_bitwidth(0);
    EXPECT_EQ(value.as_bin_string(), "1");
}

TEST(MlibUinteger, ConstructionCutsToTheWidth)
{
    EXPECT_EQ(MLIB_UINTEGER(0x1ff, 8).as_hex_string(), "FF");
    EXPECT_EQ(MLIB_UINTEGER(0xffffffffU, 40).as_hex_string(), "00FFFFFFFF");
}

TEST(MlibUinteger, AssigningAnIntKeepsTheWidth)
{
    MLIB_UINTEGER value(0, 6);
    value = 100;
    EXPECT_EQ(value.bitwidth(), 6);
    EXPECT_EQ(value.uint(), 36U);
    value = -1;
    EXPECT_EQ(value.as_bin_string(), "111111");
}

TEST(MlibUinteger, ANegativeIntFillsAWideValue)
{
    MLIB_UINTEGER value(0, 130);
    value = -2;
    EXPECT_EQ(value.as_bin_string(), std::string(129, '1') + "0");
    value = 1;
    EXPECT_EQ(value.as_bin_string(), std::string(129, '0') + "1");
}

TEST(MlibUinteger, CopyingTakesWidthAndValue)
{
    MLIB_UINTEGER narrow(1, 4);
    narrow = from_bits("x01", 70);
    EXPECT_EQ(narrow.bitwidth(), 70);
    EXPECT_TRUE(narrow.is_x(2));
}

TEST(MlibUinteger, ChangingTheWidthCutsOrFillsAtTheTop)
{
    auto value = from_bits("1111", 4);
    value.set_bitwidth(66);
    EXPECT_EQ(value.as_bin_string(), std::string(62, '0') + "1111");
    value.set_bitwidth(2);
    EXPECT_EQ(value.as_bin_string(), "11");
    value.set_bitwidth(4);
    EXPECT_EQ(value.as_bin_string(), "0011"); // what was cut does not come back
}

TEST(MlibUinteger, BitsAreNumberedFromTheLeastSignificantEnd)
{
    auto const value = from_bits("100", 100);
    EXPECT_FALSE(value.bit(0));
    EXPECT_TRUE(value.bit(2));
    MLIB_UINTEGER wide(0, 100);
    wide.set_bit(99, true);
    EXPECT_TRUE(wide.bit(99));
    EXPECT_EQ(wide.as_hex_string(), "8" + std::string(24, '0'));
    wide.set_bit(99, false);
    EXPECT_TRUE(wide.is_all_zero());
}

TEST(MlibUinteger, BitsOutsideOfTheWidthReadFalseAndIgnoreWrites)
{
    MLIB_UINTEGER value(0, 3);
    value.set_bit(3, true);
    value.set_bit(-1, true);
    EXPECT_EQ(value.as_bin_string(), "000");
    EXPECT_FALSE(value.bit(3));
    EXPECT_FALSE(value.bit(-1));
    EXPECT_FALSE(value.is_x(3));
    EXPECT_FALSE(value.is_x(-1));
}

TEST(MlibUinteger, UnknownBitsShowInTheirDigits)
{
    auto const value = from_bits("1x00000X1", 9);
    EXPECT_EQ(value.as_bin_string(), "1x00000x1");
    EXPECT_EQ(value.as_hex_string(), "1XX");
    EXPECT_TRUE(value.is_x());
    EXPECT_TRUE(value.is_x(7));
    EXPECT_FALSE(value.is_x(0));
    EXPECT_FALSE(value.bit(7));
    EXPECT_EQ(value.uint(), 0x101U);
}

TEST(MlibUinteger, SettingABitMakesItKnown)
{
    auto value = from_bits("xx", 2);
    value.set_bit(0, true);
    EXPECT_EQ(value.as_bin_string(), "x1");
    value.set_bit(1, false);
    EXPECT_FALSE(value.is_x());
    EXPECT_EQ(value, MLIB_UINTEGER(1, 2));
}

TEST(MlibUinteger, ForceXMakesEveryBitUnknown)
{
    MLIB_UINTEGER value(0xff, 66);
    value.force_x();
    EXPECT_EQ(value.as_bin_string(), std::string(66, 'x'));
    EXPECT_EQ(value.as_hex_string(), std::string(17, 'X'));
    EXPECT_EQ(value.uint(), 0U);
    value = 3;
    EXPECT_FALSE(value.is_x());
}

TEST(MlibUinteger, DigitsAreCutAtTheTopAndForeignOnesReadAsZero)
{
    EXPECT_EQ(from_bits("11101", 3).as_bin_string(), "101");
    EXPECT_EQ(from_bits("1?z1", 4).as_bin_string(), "1001");
    EXPECT_EQ(from_bits("", 4).as_bin_string(), "0000");
    EXPECT_FALSE(from_bits("x1", 1).is_x()); // the unknown bit was cut
}

TEST(MlibUinteger, NewDigitsReplaceAllOldBits)
{
    auto value = from_bits("1x1x", 4);
    value.set_value_from_bin_string("1");
    EXPECT_EQ(value.as_bin_string(), "0001");
}

TEST(MlibUinteger, DecrementBorrowsThroughWordsAndWraps)
{
    MLIB_UINTEGER value(0, 70);
    value.set_bit(64, true);
    --value;
    EXPECT_EQ(value.as_hex_string(), "00FFFFFFFFFFFFFFFF");
    value = 0;
    --value;
    EXPECT_TRUE(value.is_all_ones());
    EXPECT_EQ(value.as_hex_string(), "3FFFFFFFFFFFFFFFFF");
}

TEST(MlibUinteger, DecrementOfAnUnknownValueIsUnknown)
{
    auto value = from_bits("1x", 2);
    --value;
    EXPECT_EQ(value.as_bin_string(), "xx");
}

TEST(MlibUinteger, AllZeroAndAllOnesNeedKnownBits)
{
    EXPECT_TRUE(from_bits("0", 64).is_all_zero());
    EXPECT_TRUE(from_bits(std::string(64, '1').c_str(), 64).is_all_ones());
    EXPECT_FALSE(from_bits("10", 2).is_all_ones());
    EXPECT_FALSE(from_bits("10", 2).is_all_zero());
    EXPECT_FALSE(from_bits("x0", 2).is_all_zero());
    EXPECT_FALSE(from_bits("x1", 2).is_all_ones());
}

TEST(MlibUinteger, EqualityIsStructural)
{
    EXPECT_EQ(from_bits("1x", 2), from_bits("1X", 2));
    EXPECT_NE(from_bits("1x", 2), from_bits("10", 2));
    EXPECT_NE(MLIB_UINTEGER(1, 2), MLIB_UINTEGER(1, 3));
    auto shrunk = from_bits("x1", 2);
    shrunk.set_bitwidth(1);
    EXPECT_EQ(shrunk, MLIB_UINTEGER(1, 1));
}

} // namespace
