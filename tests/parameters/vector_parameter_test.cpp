#include "parameter_errors.h"

namespace {

using namespace gnl_test;

class VectorParameter : public in_folder
{
protected:
    design top{nullptr};
};

/// `digit` repeated.
std::string row(int count, char digit)
{
    return std::string(static_cast<std::size_t>(count), digit);
}

TEST_F(VectorParameter, KindAndFirstState)
{
    GNL_PARAMETER_VECTOR p(&top, "P");
    EXPECT_TRUE(p.is_vector_parameter());
    EXPECT_FALSE(p.is_integer_parameter());
    EXPECT_EQ(p.get_width(), 32);
    EXPECT_EQ(p.get_default_value_as_int(), -1);
    EXPECT_FALSE(p.overrides_width());
    EXPECT_FALSE(p.uses_binary_output());
    EXPECT_FALSE(p.is_vhdl_bit_vector());
    EXPECT_EQ(p.get_width_parameter_name(), "");
    p.set_to_use_binary_output();
    p.set_as_vhdl_bit_vector();
    p.allow_width_override();
    EXPECT_TRUE(p.uses_binary_output());
    EXPECT_TRUE(p.is_vhdl_bit_vector());
    EXPECT_TRUE(p.overrides_width());
}

TEST_F(VectorParameter, EachNumberFormGivesTheSameValue)
{
    for (std::string const text : {"0b101", "5", "0x5", "0X05", "0B0101", "0005"}) {
        GNL_PARAMETER_VECTOR p(&top, "P", 0, 8);
        p = text;
        EXPECT_EQ(p.get_value().as_bin_string(), "00000101") << text;
    }
    auto & by_integer = top.vector("I", 0, 8);
    by_integer = 5;
    EXPECT_EQ(by_integer.get_value().as_bin_string(), "00000101");
    auto & by_value = top.vector("V", 0, 8);
    by_value = MLIB_UINTEGER(5, 3);
    EXPECT_EQ(by_value.get_value().as_bin_string(), "00000101");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(VectorParameter, FixedWidthKeepsTheLowBits)
{
    auto & p = top.vector("P", 0, 8);
    p = "0x1FF";
    EXPECT_EQ(p.get_value().as_hex_string(), "FF");
    EXPECT_EQ(p.get_width(), 8);
    p = 0x234;
    EXPECT_EQ(p.get_value().as_hex_string(), "34");
    p = MLIB_UINTEGER(0xabc, 12);
    EXPECT_EQ(p.get_value().as_hex_string(), "BC");
    EXPECT_EQ(p.get_value().bitwidth(), 8);
}

TEST_F(VectorParameter, OverrideWidthGrowsWithTheValue)
{
    auto & p = top.vector("P", 0, 4);
    p.allow_width_override();
    p = std::string("0x3");
    EXPECT_EQ(p.get_width(), 4);
    EXPECT_EQ(p.get_value().as_bin_string(), "0011");
    p = std::string("0x1FF");
    EXPECT_EQ(p.get_width(), 9);
    EXPECT_EQ(p.get_value().as_bin_string(), "111111111");
    p = MLIB_UINTEGER(0x3ff, 10);
    EXPECT_EQ(p.get_width(), 10);
    EXPECT_EQ(p.get_value().as_bin_string(), "1111111111");
    p = std::string("0x2");
    EXPECT_EQ(p.get_value().as_bin_string(), "0000000010");
}

TEST_F(VectorParameter, EveryWidthUpTo4096BitsInEveryNumberForm)
{
    for (int width = 1; width <= 4096; width = width < 140 ? width + 1 : width * 2 - 1) {
        GNL_PARAMETER_VECTOR p(nullptr, "P", 0, width);
        p = "0b1" + row(width - 1, '0');
        EXPECT_EQ(p.get_value().as_bin_string(), "1" + row(width - 1, '0'));
        p = "0x" + row((width + 3) / 4, 'f');
        EXPECT_EQ(p.get_value().as_bin_string(), row(width, '1'));
        p = std::string("1");
        EXPECT_EQ(p.get_value().as_bin_string(), row(width - 1, '0') + "1");
        p = MLIB_UINTEGER(1, 1);
        EXPECT_EQ(p.get_value().as_bin_string(), row(width - 1, '0') + "1");
        p = -1;
        EXPECT_EQ(p.get_value().as_bin_string(), row(width, '1'));
    }
}

TEST_F(VectorParameter, LongDecimalIsExact)
{
    auto & p = top.vector("P", 0, 96);
    p = std::string("18446744073709551616"); // 2 to the power of 64
    EXPECT_EQ(p.get_value().as_hex_string(), "000000010000000000000000");
}

TEST_F(VectorParameter, EmptyTextIsNoNewValue)
{
    auto & p = top.vector("P", 0, 8);
    p = 7;
    p = std::string();
    EXPECT_EQ(p.get_value().uint(), 7u);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(VectorParameter, IllegalTextIsReportedAndLeavesAnObject)
{
    auto & p = top.vector("P", 0, 8);
    p = "12Q";
    EXPECT_EQ(top.messages(), texts{illegal_vector_text("P", "12Q")});
    EXPECT_EQ(p.get_value().bitwidth(), 8);
    GNL_PARAMETER_VECTOR parentless(nullptr, "Q", 0, 8);
    parentless = "zz";
    EXPECT_EQ(parentless.get_value().bitwidth(), 8);
}

TEST_F(VectorParameter, DefaultsOfZeroAndOneFillTheWidth)
{
    EXPECT_EQ(top.vector("ONE", 1, 70).get_default_value()->as_bin_string(), row(70, '1'));
    EXPECT_EQ(top.vector("ZERO", 0, 70).get_default_value()->as_bin_string(), row(70, '0'));
    EXPECT_EQ(top.vector("ONE2", 1, 4).get_default_value_as_int(), 1);
    EXPECT_EQ(top.vector("ZERO2", 0, 4).get_default_value_as_int(), 0);
}

TEST_F(VectorParameter, OtherDefaultsAreValues)
{
    auto & p = top.vector("P", 0x1a5, 8);
    EXPECT_EQ(p.get_default_value()->as_hex_string(), "A5");
    EXPECT_EQ(p.get_default_value_as_int(), 0xa5);
    GNL_PARAMETER_VECTOR text(&top, "TEXT", "0xfff", 8);
    EXPECT_EQ(text.get_default_value()->as_hex_string(), "FF");
    EXPECT_EQ(text.get_width(), 8);
}

TEST_F(VectorParameter, DefaultCanBeReplaced)
{
    auto & p = top.vector("P", 0x3c, 8);
    p.set_default_value(1);
    EXPECT_EQ(p.get_default_value_as_int(), 1);
    EXPECT_EQ(p.get_default_value()->as_bin_string(), "11111111");
    p.set_default_value(6);
    EXPECT_EQ(p.get_default_value()->as_bin_string(), "00000110");
    EXPECT_EQ(p.get_default_value_as_int(), 6);
    auto & small = top.vector("SMALL", 0, 4);
    small.set_default_value(9);
    EXPECT_EQ(small.get_default_value()->as_bin_string(), "1001");
}

TEST_F(VectorParameter, WidthIsOverriddenOnce)
{
    auto & p = top.vector("P", 1, 8);
    p.allow_width_override();
    p = std::string("0x85");
    EXPECT_EQ(p.get_default_value()->as_bin_string(), "11111111");
    p.set_width(12);
    EXPECT_EQ(p.get_width(), 12);
    EXPECT_EQ(p.get_value().as_bin_string(), "000010000101");
    EXPECT_EQ(p.get_default_value()->as_bin_string(), "111111111111");
    EXPECT_EQ(top.messages(), texts{});
    p.set_width(13);
    EXPECT_EQ(p.get_width(), 12);
    EXPECT_EQ(top.messages(), texts{vector_width_fixed("P")});
}

TEST_F(VectorParameter, ValueWaitsForItsWidth)
{
    GNL_PARAMETER_VECTOR p(&top, "P", 1, "SIZE+1");
    EXPECT_EQ(p.get_width(), -1);
    EXPECT_TRUE(p.overrides_width());
    EXPECT_EQ(p.get_width_parameter_name(), "SIZE+1");
    p = std::string("0xFFF");
    EXPECT_TRUE(p.has_unassigned_value());
    EXPECT_FALSE(p.value_changed());
    top.integer("SIZE", 7);
    top.set_vector_parameter_widths();
    EXPECT_EQ(p.get_width(), 8);
    EXPECT_FALSE(p.has_unassigned_value());
    EXPECT_TRUE(p.value_changed());
    EXPECT_EQ(p.get_value().as_bin_string(), "11111111");
    EXPECT_EQ(p.get_default_value()->as_bin_string(), "11111111");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(VectorParameter, WaitingValuesOfEveryForm)
{
    top.integer("SIZE", 6);
    GNL_PARAMETER_VECTOR integer(&top, "I", 0, "SIZE");
    GNL_PARAMETER_VECTOR negative(&top, "N", 0, "SIZE");
    GNL_PARAMETER_VECTOR value(&top, "V", 0, "SIZE");
    integer = 5;
    negative = -2;
    value = MLIB_UINTEGER(0x2b, 6);
    top.set_vector_parameter_widths();
    EXPECT_EQ(integer.get_value().as_bin_string(), "000101");
    EXPECT_EQ(negative.get_value().as_bin_string(), "111110");
    EXPECT_EQ(value.get_value().as_bin_string(), "101011");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(VectorParameter, TextDefaultWaitsForItsWidthToo)
{
    top.integer("SIZE", 4);
    GNL_PARAMETER_VECTOR p(&top, "P", "0x5A", "SIZE");
    EXPECT_EQ(p.get_width(), -1);
    top.set_vector_parameter_widths();
    EXPECT_EQ(p.get_width(), 4);
    EXPECT_EQ(p.get_default_value()->as_bin_string(), "1010");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(VectorParameter, WidthExpressionThatIsNoWidthIsReported)
{
    GNL_PARAMETER_VECTOR p(&top, "P", 0, "2-3");
    top.set_vector_parameter_widths();
    EXPECT_EQ(top.messages(), texts{illegal_vector_width("P")});
    EXPECT_EQ(p.get_width(), -1);
    EXPECT_GE(p.get_value().bitwidth(), 1);
}

TEST_F(VectorParameter, ReadingAnUnassignedVectorIsReportedAndGivesZero)
{
    auto & p = top.vector("P", 1, 8);
    EXPECT_EQ(p.get_value().as_bin_string(), "00000000");
    EXPECT_EQ(top.messages(), texts{vector_not_assigned("P")});
}

TEST_F(VectorParameter, AssignmentAfterConnectionsIsReportedAndKept)
{
    auto & p = top.vector("P", 0, 8);
    top.input("d", 2).get_width();
    p = 3;
    EXPECT_EQ(top.messages(), texts{assigned_late("top|P", "top")});
    EXPECT_EQ(p.get_value().uint(), 3u);
}

TEST_F(VectorParameter, WaitingValueIsNoAssignmentAfterConnections)
{
    top.dump = false;
    top.run([](design & self) {
        auto & sub = self.child("sub", "u");
        auto & size = sub.integer("SIZE", 4);
        GNL_PARAMETER_VECTOR p(&sub, "P", 0, "SIZE");
        p = 9;
        sub.input("d", 2) = self.wire("w", 2);
        EXPECT_EQ(p.get_width(), size.get_value());
        EXPECT_EQ(p.get_value().as_bin_string(), "1001");
    });
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(VectorParameter, TakesItsValueFromTheText)
{
    design with_text(nullptr, "top", "INIT=0x2C");
    auto & p = with_text.vector("INIT", 0, 8);
    EXPECT_EQ(p.get_value().as_hex_string(), "2C");
    EXPECT_EQ(with_text.messages(), texts{});
}

TEST_F(VectorParameter, ExplicitAssignmentComesAfterTheText)
{
    design with_text(nullptr, "top", "INIT=0x2C");
    auto & p = with_text.vector("INIT", 0, 8);
    p = 1;
    EXPECT_EQ(p.get_value().as_hex_string(), "01");
}

TEST_F(VectorParameter, CopyOwnsItsValues)
{
    auto & p = top.vector("P", 0x33, 8);
    p = 5;
    p.set_to_use_binary_output();
    GNL_PARAMETER_VECTOR copy(p);
    p = 6;
    p.set_default_value(0);
    EXPECT_EQ(copy.get_value().uint(), 5u);
    EXPECT_EQ(copy.get_default_value()->as_hex_string(), "33");
    EXPECT_TRUE(copy.uses_binary_output());
    GNL_PARAMETER_VECTOR assigned(nullptr, "Q");
    assigned = copy;
    copy = 7;
    EXPECT_EQ(assigned.get_value().uint(), 5u);
    EXPECT_EQ(assigned.get_width(), 8);
    assigned = *&assigned;
    EXPECT_EQ(assigned.get_value().uint(), 5u);
}

TEST_F(VectorParameter, AssignedVectorKeepsItsPlaceInTheRegistry)
{
    auto & a = top.vector("A", 0, 8);
    auto & b = top.vector("B", 0, 4);
    a = 5;
    b = a;
    EXPECT_EQ(top.get_parameter_object("B"), &b);
    EXPECT_EQ(top.get_parameter_object("A"), &a);
    EXPECT_EQ(b.get_width(), 8);
    EXPECT_EQ(b.get_value().uint(), 5u);
}

/// Its vector has an illegal default, and stands in front of another member.
class unfinished : public design
{
public:
    unfinished()
        : design(nullptr, "top", "SIZE=5")
    {
    }
    GNL_PARAMETER_VECTOR init{this, "INIT", "0xQQ", 8};
    GNL_PARAMETER_INTEGER size{this, "SIZE", 1};
};

TEST_F(VectorParameter, IllegalDefaultDoesNotCostLaterMembersTheirText)
{
    unfinished generator;
    EXPECT_EQ(generator.messages(), texts{illegal_vector_text("INIT", "0xQQ")});
    EXPECT_EQ(generator.size.get_value(), 5);
}

} // namespace
