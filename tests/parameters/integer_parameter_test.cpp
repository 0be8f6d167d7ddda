#include "parameter_errors.h"

#include <climits>

namespace {

using namespace gnl_test;

class IntegerParameter : public in_folder
{
protected:
    design top{nullptr};
};

TEST_F(IntegerParameter, HasItsDefaultUntilItIsAssigned)
{
    auto & size = top.integer("SIZE", 7);
    EXPECT_EQ(size.get_value(), 7);
    EXPECT_FALSE(size.value_changed());
    size = 0;
    EXPECT_EQ(size.get_value(), 0);
    size = INT_MAX;
    EXPECT_EQ(size.get_value(), INT_MAX);
    EXPECT_EQ(size.get_default_value(), 7);
}

TEST_F(IntegerParameter, DefaultCanBeMoved)
{
    auto & size = top.integer("SIZE", 7);
    size.update_default_value(8);
    EXPECT_EQ(size.get_value(), 8);
    EXPECT_FALSE(size.value_changed());
}

TEST_F(IntegerParameter, NegativeValueCountsAsNotAssigned)
{
    auto & zero = top.integer("ZERO", 0);
    zero = -5;
    EXPECT_EQ(zero.get_value(), 0);
    EXPECT_TRUE(zero.value_changed());
    EXPECT_EQ(top.messages(), texts{});
    auto & none = top.integer("NONE", -1);
    none = INT_MIN;
    EXPECT_EQ(none.get_value(), -1);
    EXPECT_EQ(top.messages(), texts{no_value("NONE")});
}

TEST_F(IntegerParameter, ReadWithoutAnyValueIsReportedWhateverIsAsked)
{
    auto & size = top.integer("SIZE");
    EXPECT_EQ(size.get_value(false), -1);
    EXPECT_EQ(top.messages(), texts{no_value("SIZE")});
    EXPECT_EQ(size.get_internal_value(false), -1);
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(IntegerParameter, WithoutParentReportsNothing)
{
    GNL_PARAMETER_INTEGER size(nullptr, "SIZE", -1);
    EXPECT_EQ(size.get_value(), -1);
    size = 4;
    EXPECT_EQ(size.get_value(), 4);
    size.set_as_inherit_only();
    EXPECT_EQ(size.get_value(), 4);
}

TEST_F(IntegerParameter, SafeChangeTellsNobody)
{
    auto & size = top.integer("SIZE", 7);
    top.input("d", 4).get_width();
    size.safely_change_value(8);
    EXPECT_EQ(size.get_value(), 8);
    EXPECT_FALSE(size.value_changed());
    EXPECT_FALSE(size.is_used());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(IntegerParameter, TakesTheValueOfAnother)
{
    auto & from = top.integer("FROM", 12);
    auto & to = top.integer("TO", 1);
    to = from;
    EXPECT_EQ(to.get_value(), 12);
    EXPECT_EQ(to.get_name(), "TO");
    EXPECT_EQ(to.get_default_value(), 1);
}

TEST_F(IntegerParameter, ValueOfASubdesignIsItsOwnUnlessItMayInherit)
{
    top.integer("SIZE", 7) = 9;
    auto & size = top.child("sub", "u").integer("SIZE", 3);
    EXPECT_EQ(size.get_value(), 3);
    size.set_as_inherit_allowed();
    EXPECT_EQ(size.get_value(), 9);
    size = 5;
    EXPECT_EQ(size.get_value(), 5);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(IntegerParameter, InheritOnlyOfASubdesignIgnoresItsOwnValue)
{
    auto & above = top.integer("SIZE", -1);
    auto & size = top.child("sub", "u").integer("SIZE", 3);
    size = 5;
    size.set_as_inherit_only();
    EXPECT_EQ(size.get_internal_value(false), -1);
    above = 9;
    EXPECT_EQ(size.get_value(), 9);
}

} // namespace
