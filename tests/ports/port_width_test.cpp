#include "open_design.h"

namespace {

using namespace gnl_test;

class PortWidth : public in_folder
{
};

TEST_F(PortWidth, IsSettledByTheFirstLook)
{
    design top(nullptr, "top", "WIDTH=6");
    top.integer("WIDTH", 4);
    GNL_PORT_INPUT a(&top, "a", "WIDTH");
    EXPECT_EQ(a.get_default_width(), 0);
    EXPECT_EQ(a.get_width(), 6);
    EXPECT_EQ(a.get_default_width(), 6);
    EXPECT_EQ(a.get_original_width(), 6);
    EXPECT_TRUE(top.port_connections_made());
}

TEST_F(PortWidth, WithoutAParentIsAsGiven)
{
    GNL_PORT_INPUT a(nullptr, "a", 5);
    EXPECT_EQ(a.get_width(), 5);
    EXPECT_EQ(&a.set_width(7, true), &a);
    EXPECT_EQ(&a.set_width_safe(7, true), &a);
    EXPECT_EQ(a.get_width(), 5) << "a change is silently ignored";
}

TEST_F(PortWidth, IsNotChangedOutsideOfTheUpdate)
{
    design top(nullptr);
    auto & a = top.input("a", 4);
    EXPECT_EQ(&a.set_width(8, true), &a);
    EXPECT_EQ(a.get_width(), 4);
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(PortWidth, CanLeaveTheDeclaredWidth)
{
    design top(nullptr);
    auto & a = top.input("a", 4);
    a.set_width_safe(8, false);
    EXPECT_EQ(a.get_width(), 8);
    EXPECT_EQ(a.get_original_width(), 4);
    a.set_width_safe(6, true);
    EXPECT_EQ(a.get_width(), 6);
    EXPECT_EQ(a.get_original_width(), 6);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(PortWidth, IsNeverNegative)
{
    design top(nullptr);
    auto & a = top.input("a", 4);
    a.set_width_safe(-1, true);
    EXPECT_EQ(a.get_width(), 4);
    EXPECT_EQ(a.get_original_width(), 4);
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(PortWidth, IsDivisibleByWhatFillsIt)
{
    design top(nullptr);
    auto & bus = top.input("bus", 12);
    auto & scalar = top.input("scalar");
    EXPECT_TRUE(bus.is_divisible(12));
    EXPECT_TRUE(bus.is_divisible(4));
    EXPECT_TRUE(bus.is_divisible(1));
    EXPECT_FALSE(bus.is_divisible(5));
    EXPECT_FALSE(bus.is_divisible(24));
    EXPECT_TRUE(scalar.is_divisible(1));
    EXPECT_FALSE(scalar.is_divisible(2));
    EXPECT_FALSE(bus.is_divisible(0));
    EXPECT_FALSE(bus.is_divisible(-1));
}

} // namespace
