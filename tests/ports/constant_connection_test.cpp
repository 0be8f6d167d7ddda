// Assignments of a constant to a whole port. The exact messages are in port_messages_test.cpp.

#include "open_design.h"

namespace {

using namespace gnl_test;

class ConstantConnection : public in_folder
{
};

TEST_F(ConstantConnection, StoresValueLevelAndUse)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 4);
    auto & w = top.wire("w", 4);
    EXPECT_EQ(&(y = 5), &y);
    w = 15;
    EXPECT_EQ(y.constant_driving_value(), "0101");
    EXPECT_TRUE(y.is_driven_by_constant());
    EXPECT_EQ(y.get_connection_level(), &top);
    EXPECT_TRUE(y.check_is_used_flag());
    EXPECT_FALSE(w.check_is_used_flag());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(ConstantConnection, FitsAScalarWithZeroAndOneOnly)
{
    open_design top(GNL_VERILOG);
    auto & x = top.output("x");
    auto & y = top.output("y");
    auto & z = top.output("z");
    x = 0;
    y = 1;
    z = 2;
    EXPECT_EQ(x.constant_driving_value(), "0");
    EXPECT_EQ(y.constant_driving_value(), "1");
    EXPECT_FALSE(z.is_driven_by_constant());
    EXPECT_EQ(z.get_connection_level(), nullptr);
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(ConstantConnection, FitsABusUpToItsWidth)
{
    open_design top(GNL_VERILOG);
    auto const fits = [&](int width, int value) {
        GNL_PORT & port = top.wire("", width);
        return (port = value).is_driven_by_constant();
    };
    EXPECT_TRUE(fits(4, 15));
    EXPECT_FALSE(fits(4, 16));
    EXPECT_FALSE(fits(4, -1));
    EXPECT_FALSE(fits(1, 2));
    EXPECT_TRUE(fits(31, 0x7fffffff));
    EXPECT_FALSE(fits(31, -1));
    EXPECT_TRUE(fits(32, -1));
    EXPECT_TRUE(fits(40, -5));
}

TEST_F(ConstantConnection, OfAPortWithoutBitsIsZeroOrOne)
{
    open_design top(GNL_VERILOG);
    GNL_PORT plain(&top, "plain", -1);
    plain = 2;
    EXPECT_FALSE(plain.is_driven_by_constant());
    plain = 1;
    EXPECT_TRUE(plain.is_driven_by_constant());
}

TEST_F(ConstantConnection, OfAWideIntegerIsJudgedByItsWidthAlone)
{
    open_design top(GNL_VERILOG);
    MLIB_UINTEGER narrow(3, 2);
    MLIB_UINTEGER fitting(9, 4);
    MLIB_UINTEGER wide(1, 8);
    auto & x = top.output("x", 4);
    auto & y = top.output("y", 4);
    auto & z = top.output("z", 4);
    x = narrow;
    y = fitting;
    z = wide;
    EXPECT_EQ(x.constant_driving_value(), "0011");
    EXPECT_EQ(y.constant_driving_value(), "1001");
    EXPECT_FALSE(z.is_driven_by_constant());
    EXPECT_EQ(narrow.bitwidth(), 2) << "the caller's value is not touched";
    EXPECT_EQ(
        top.messages(),
        texts{error("Port object top|z of width 4 is being assigned a constant value of 01 which is illegal.",
                    "An illegal value exists for a constant wire or bus.  The value must be: 0 to 2^width - 1.")});
}

TEST_F(ConstantConnection, OfAWideIntegerIsNamedInHexadecimal)
{
    open_design top(GNL_VERILOG);
    MLIB_UINTEGER value(0xC5, 8);
    auto & y = top.output("y", 8);
    y = top.wire("b", 8);
    y = value;
    ASSERT_EQ(top.messages().size(), 1u);
    EXPECT_NE(top.messages()[0].find("is again being assigned the constant value C5"), std::string::npos);
}

TEST_F(ConstantConnection, KeepsTheFirstValue)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 4);
    y = 10;
    y = 11;
    EXPECT_EQ(y.constant_driving_value(), "1010");
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(ConstantConnection, IsReportedAsIllegalBeforeItsLevelIsLookedFor)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 4);
    top.set_out_of_rtl_body();
    y = 16;
    ASSERT_EQ(top.messages().size(), 1u);
    EXPECT_NE(top.messages()[0].find("which is illegal."), std::string::npos);
}

TEST_F(ConstantConnection, WithoutAParentDoesNothing)
{
    GNL_WIRE free(nullptr, "free");
    EXPECT_EQ(&(free = 1), &free);
    EXPECT_FALSE(free.is_driven_by_constant());
}

TEST_F(ConstantConnection, ToASourceIsRefused)
{
    open_design top(GNL_VERILOG);
    auto & q = top.child("cell", "u1").output("q");
    q = 1;
    EXPECT_FALSE(q.is_driven_by_constant());
    EXPECT_FALSE(q.check_is_used_flag());
    EXPECT_EQ(top.messages().size(), 1u);
}

} // namespace
