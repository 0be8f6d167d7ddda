#include "parameter_errors.h"

namespace {

using namespace gnl_test;

class StringParameter : public in_folder
{
protected:
    design top{nullptr};
};

TEST_F(StringParameter, HasTheDefaultTokenWithoutAliases)
{
    EXPECT_EQ(top.string("A", "ON|OFF", 1).get_value(), "OFF");
    EXPECT_EQ(top.string("B", "A|B(C,D)", 1).get_value(), "B");
    EXPECT_EQ(top.string("B2", "A|B(C,D)", 1).get_default_value(), "B");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(StringParameter, AliasSelectsItsToken)
{
    auto & p = top.string("P", "ON(YES,TRUE)|OFF", 1);
    p = "true";
    EXPECT_EQ(p.get_value(), "ON");
    EXPECT_EQ(p.get_value_list(), "ON(YES,TRUE)|OFF");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(StringParameter, UnlistedValueWarnsAndIsAppendedToAListWithADefault)
{
    auto & p = top.string("P", "A|B", 0);
    p = "C";
    EXPECT_EQ(p.get_value(), "C");
    EXPECT_EQ(p.get_value_list(), "A|B|C");
    EXPECT_TRUE(p.value_changed());
    EXPECT_EQ(top.messages(), texts{unlisted("top|P", "C", "A|B")});
    p = "c";
    EXPECT_EQ(p.get_value(), "C");
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(StringParameter, UnlistedValueWarnsAndReplacesAListWithoutADefault)
{
    auto & p = top.string("P", "A|B", -1);
    p = "C(D)";
    EXPECT_EQ(p.get_value_list(), "C(D)");
    EXPECT_EQ(p.get_value(), "C(D)") << "a free value has no aliases";
    EXPECT_EQ(top.messages(), texts{unlisted("top|P", "C(D)", "A|B")});
}

TEST_F(StringParameter, UnlistedValueIsAppendedBehindAnEmptyToken)
{
    auto & p = top.string("P", "A||B", 0);
    p = "B";
    EXPECT_EQ(p.get_value_list(), "A||B|B") << "the list ends at its empty token, so that B is not in it";
    EXPECT_EQ(p.get_value(), "B");
}

TEST_F(StringParameter, NoWarningWhereAnyValueIsExpected)
{
    auto & all = top.string("ALL", "A|B", 0);
    all.set_allow_all_values();
    all = "C";
    auto & only = top.string("ONLY", "A|B", 0);
    only.set_as_inherit_only();
    only = "C";
    auto & unused = top.string("NONE", "unused", 0);
    unused = "C";
    auto & empty = top.string("EMPTY", "", -1);
    empty = "C";
    GNL_PARAMETER_STRING parentless(nullptr, "FREE", "A|B", 0);
    parentless = "C";
    EXPECT_EQ(top.messages(), texts{});
    for (auto * p : {&all, &only, &unused, &empty, &parentless})
        EXPECT_EQ(p->get_value(), "C") << p->get_name();
}

TEST_F(StringParameter, UnusedThatIsNotListedChangesNothing)
{
    auto & p = top.string("P", "A|B", 1);
    p = "unused";
    EXPECT_EQ(p.get_value(), "B");
    EXPECT_EQ(p.get_value_list(), "A|B");
    EXPECT_FALSE(p.value_changed());
    auto & empty = top.string("EMPTY", "", -1);
    empty = "UNUSED";
    EXPECT_EQ(empty.get_value_list(), "");
    EXPECT_FALSE(empty.value_changed());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(StringParameter, UnusedThatIsListedIsSelectedAndStillNoValue)
{
    auto & p = top.string("P", "UNUSED|A", 1);
    p = "Unused";
    EXPECT_EQ(p.get_value(), "UNUSED");
    EXPECT_FALSE(p.value_changed());
    EXPECT_FALSE(p.is_used());
}

TEST_F(StringParameter, SelectingListedUnusedIsAnAssignmentAfterConnections)
{
    auto & p = top.string("P", "UNUSED|A", 1);
    top.input("d", 2).get_width();
    p = "UNUSED";
    EXPECT_EQ(top.messages(), texts{assigned_late("top|P", "top")});
}

TEST_F(StringParameter, EmptyListTakesTheFirstValueAsItIs)
{
    auto & p = top.string("P", "", -1);
    p = "X(Y)";
    EXPECT_EQ(p.get_value_list(), "X(Y)");
    EXPECT_EQ(p.get_value(), "X(Y)");
    p = "Z";
    EXPECT_EQ(p.get_value(), "Z");
    EXPECT_EQ(top.messages(), texts{unlisted("top|P", "Z", "X(Y)")});
}

TEST_F(StringParameter, FreeValueIsNoDefault)
{
    auto & p = top.string("P", "", 0);
    EXPECT_EQ(p.get_value(), "UNUSED");
    p = "Y";
    EXPECT_EQ(p.get_value(), "Y");
    EXPECT_EQ(p.get_default_value(), "");
}

TEST_F(StringParameter, MissingValueIsReportedOnRequest)
{
    auto & p = top.string("P", "A|B", -1);
    EXPECT_EQ(p.get_value(false), "UNUSED");
    EXPECT_EQ(top.messages(), texts{});
    EXPECT_EQ(p.get_value(true), "UNUSED");
    EXPECT_EQ(top.messages(), texts{no_value("P")});
}

TEST_F(StringParameter, DefaultBeyondTheListIsMissing)
{
    auto & p = top.string("P", "A|B", 2);
    EXPECT_EQ(p.get_value(), "UNUSED");
    EXPECT_EQ(p.get_default_value(), "");
    EXPECT_EQ(top.messages(), texts{no_value("P")});
}

TEST_F(StringParameter, EmptyValueInAListIsMissing)
{
    auto & p = top.string("P", "A|B", 0);
    p = "";
    EXPECT_EQ(p.get_value_list(), "A|B|");
    EXPECT_EQ(p.get_value(), "UNUSED");
    EXPECT_EQ(top.messages(), (texts{unlisted("top|P", "", "A|B"), no_value("P")}));
}

TEST_F(StringParameter, NullTextIsTheEmptyValue)
{
    auto & p = top.string("P", "", -1);
    p = static_cast<char const *>(nullptr);
    EXPECT_EQ(p.get_value(false), "UNUSED");
}

TEST_F(StringParameter, SafeChangeDoesTheSameInSilence)
{
    auto & p = top.string("P", "A(ALPHA)|B", 1);
    top.input("d", 2).get_width();
    p.safely_change_value("alpha");
    EXPECT_EQ(p.get_value(), "A");
    p.safely_change_value("C");
    EXPECT_EQ(p.get_value_list(), "A(ALPHA)|B|C");
    EXPECT_EQ(p.get_value(), "C");
    p.safely_change_value("UNUSED");
    EXPECT_EQ(p.get_value(), "C");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(StringParameter, DefaultMovesToAListedValueOnly)
{
    auto & p = top.string("P", "A(ALPHA)|B", -1);
    p.update_default_value("C");
    EXPECT_EQ(p.get_default_value_index(), -1);
    p.update_default_value("b");
    EXPECT_EQ(p.get_default_value_index(), 1);
    p.update_default_value("Alpha");
    EXPECT_EQ(p.get_value(), "A");
    EXPECT_FALSE(p.value_changed());
}

TEST_F(StringParameter, DefaultOfAnEmptyListBecomesTheList)
{
    auto & p = top.string("P", "", -1);
    p.update_default_value("UNUSED");
    EXPECT_EQ(p.get_value_list(), "");
    p.update_default_value("X");
    EXPECT_EQ(p.get_value_list(), "X");
    EXPECT_EQ(p.get_value(), "X");
    EXPECT_EQ(p.get_default_value(), "X");
}

TEST_F(StringParameter, TakesTheValueOfAnother)
{
    auto & from = top.string("FROM", "A(ALPHA)|B", 0);
    auto & to = top.string("TO", "B|A", 0);
    to = from;
    EXPECT_EQ(to.get_value(), "A");
    EXPECT_EQ(to.get_name(), "TO");
    EXPECT_EQ(to.get_value_list(), "B|A");
}

TEST_F(StringParameter, ComparesWithoutCase)
{
    auto & p = top.string("P", "Fast|Slow", 0);
    p = "SLOW";
    EXPECT_EQ(p.get_value(), "Slow");
    EXPECT_TRUE(p.comparenocase("sLOw"));
    EXPECT_FALSE(p.comparenocase("Slo"));
}

TEST_F(StringParameter, BytesAbove127PassThrough)
{
    auto & p = top.string("P", "", -1);
    p = "\xe4\xf6|\xff";
    EXPECT_EQ(p.get_value_list(), "\xe4\xf6|\xff");
    EXPECT_EQ(p.get_value(), "\xe4\xf6");
}

TEST_F(StringParameter, DeviceFamilyIsInheritOnlyInAnyCase)
{
    for (char const * name : {"DEVICE_FAMILY", "intended_device_family"}) {
        auto & family = top.string(name, "", -1);
        EXPECT_TRUE(family.is_inherit_only()) << name;
        EXPECT_FALSE(family.is_included_in_declaration()) << name;
    }
    EXPECT_TRUE(top.string("DEVICE_FAMILY_2", "", -1).is_inherit_never());
}

TEST_F(StringParameter, InheritedValueStandsBeforeTheDefault)
{
    auto & above = top.string("MODE", "A|B(BETA)", 0);
    auto & mode = top.child("sub", "u").string("MODE", "X|Y", 0);
    mode.set_as_inherit_allowed();
    above = "beta";
    EXPECT_EQ(mode.get_value(), "B");
    mode = "Y";
    EXPECT_EQ(mode.get_value(), "Y");
}

TEST_F(StringParameter, InheritOnlyWithoutAValueAboveIsReportedOnRequest)
{
    auto & mode = top.child("sub", "u").string("MODE", "X|Y", 0);
    mode.set_as_inherit_only();
    EXPECT_EQ(mode.get_value(false), "UNUSED");
    EXPECT_EQ(top.messages(), texts{});
    EXPECT_EQ(mode.get_value(true), "UNUSED");
    EXPECT_EQ(top.messages(), texts{no_inherited_value("MODE")});
}

struct token_case
{
    char const * list;
    int index;
    char const * token;
};

TEST(ValueList, TokensAreCutAtBars)
{
    for (auto const & [list, index, token] : {token_case{"A|BC|D", 0, "A"},
                                              {"A|BC|D", 1, "BC"},
                                              {"A|BC|D", 2, "D"},
                                              {"A|BC|D", 3, ""},
                                              {"A|BC|D", -4, "A"},
                                              {"A||D", 1, ""},
                                              {"A||D", 2, "D"},
                                              {"|A", 0, ""},
                                              {"|A", 1, "A"},
                                              {"A|", 1, ""},
                                              {"A|", 9, ""},
                                              {"", 0, ""},
                                              {"", 3, ""},
                                              {"ON(YES,TRUE)|OFF", 0, "ON(YES,TRUE)"}})
        EXPECT_EQ(GNL_PARAMETER_STRING::get_token(list, index), token) << list << " " << index;
}

TEST(ValueList, AliasPartIsStripped)
{
    std::map<std::string, std::string> const stripped = {
        {"ON(YES,TRUE)", "ON"}, {"ON", "ON"},   {"(ON)", "(ON)"}, {"A(B)C", "A(B)C"}, {"A(B)(C)", "A(B)(C)"},
        {"A()", "A"},           {"A(B", "A(B"}, {"", ""},         {"A)", "A)"}};
    for (auto const & [token, plain] : stripped)
        EXPECT_EQ(GNL_PARAMETER_STRING::strip_alias_values(token), plain) << token;
}

struct alias_case
{
    char const * token;
    char const * value;
    bool equal;
};

TEST(ValueList, AliasesAreComparedWithoutCase)
{
    for (auto const & [token, value, equal] : {alias_case{"ON(YES,TRUE)", "on", true},
                                               {"ON(YES,TRUE)", "Yes", true},
                                               {"ON(YES,TRUE)", "true", true},
                                               {"ON(YES,TRUE)", "YES,TRUE", false},
                                               {"ON(YES,TRUE)", "ON(YES,TRUE)", false},
                                               {"ON(YES,TRUE)", "TRUE)", false},
                                               {"ON(YES,TRUE)", "TRU", false},
                                               {"(ON)", "(on)", true},
                                               {"(ON)", "ON", false},
                                               {"OFF", "off", true},
                                               {"OFF", "OF", false},
                                               {"A(", "A", true},
                                               {"A(", "", false}})
        EXPECT_EQ(GNL_PARAMETER_STRING::compare_alias_values(token, value), equal) << token << " " << value;
}

} // namespace
