// The three kinds of inheritance over three levels, with values given at each of them.

#include "support.h"

namespace {

using namespace gnl_test;

enum class kind { never, allowed, only };

/// Where the parameter has a value: at the top, in the middle, on the leaf itself.
struct levels
{
    kind of_leaf;
    bool top, middle, leaf;
    char const * expected; ///< which level the leaf reads: "top", "middle", "leaf", its "default", or "none"
    bool used;
};

void PrintTo(levels const & shown, std::ostream * out)
{
    *out << std::vector<char const *>{"never", "allowed", "only"}[static_cast<std::size_t>(shown.of_leaf)]
         << (shown.top ? " top" : "") << (shown.middle ? " middle" : "") << (shown.leaf ? " leaf" : "");
}

void set_kind(GNL_PARAMETER & parameter, kind of_parameter)
{
    if (of_parameter == kind::allowed)
        parameter.set_as_inherit_allowed();
    else if (of_parameter == kind::only)
        parameter.set_as_inherit_only();
}

/// Passes on what its subdesigns inherit.
class level : public design
{
public:
    level(level * above, std::string const & name, std::string const & text = "")
        : design(above, name, text.c_str())
    {
        set_instance_name("u_" + name);
        if (above)
            above->below = this;
    }
    void get_inheritable() override
    {
        if (below)
            below->tell_inheritable(*this);
    }
    level * below = nullptr;
};

class InheritanceLevels : public in_folder_with_parameter<levels>
{
};

std::vector<levels> const all_levels{
    {kind::never, false, false, false, "default", false},   {kind::never, true, false, false, "default", false},
    {kind::never, false, true, false, "default", false},    {kind::never, true, true, false, "default", false},
    {kind::never, false, false, true, "leaf", true},        {kind::never, true, true, true, "leaf", true},
    {kind::allowed, false, false, false, "default", false}, {kind::allowed, true, false, false, "top", true},
    {kind::allowed, false, true, false, "middle", true},    {kind::allowed, true, true, false, "middle", true},
    {kind::allowed, false, false, true, "leaf", true},      {kind::allowed, true, true, true, "leaf", true},
    {kind::only, false, false, false, "none", false},       {kind::only, true, false, false, "top", true},
    {kind::only, false, true, false, "middle", true},       {kind::only, true, true, false, "middle", true},
    {kind::only, false, false, true, "none", true},         {kind::only, true, false, true, "top", true},
};

int number_of(std::string const & level)
{
    std::map<std::string, int> const numbers{{"top", 8}, {"middle", 5}, {"leaf", 7}, {"default", 3}, {"none", -1}};
    return numbers.at(level);
}

std::string text_of(std::string const & level)
{
    return level == "none" ? "UNUSED" : level;
}

} // namespace

TEST_P(InheritanceLevels, OfAnInteger)
{
    auto const & row = GetParam();
    level top(nullptr, "top"), middle(&top, "middle"), leaf(&middle, "leaf");
    auto & read = leaf.integer("SIZE", number_of("default"));
    set_kind(read, row.of_leaf);
    if (row.top)
        top.integer("Size") = number_of("top");
    if (row.middle)
        middle.integer("size") = number_of("middle");
    if (row.leaf)
        read = number_of("leaf");
    EXPECT_EQ(read.get_internal_value(false), number_of(row.expected));
    EXPECT_EQ(read.is_used(), row.used);
}

TEST_P(InheritanceLevels, OfAString)
{
    auto const & row = GetParam();
    level top(nullptr, "top"), middle(&top, "middle"), leaf(&middle, "leaf");
    auto & read = leaf.string("MODE", "default|leaf", 0);
    set_kind(read, row.of_leaf);
    if (row.top)
        top.string("Mode", "top") = "top";
    if (row.middle)
        middle.string("mode", "middle") = "middle";
    if (row.leaf)
        read = "leaf";
    EXPECT_EQ(read.get_internal_value(false), text_of(row.expected));
    EXPECT_EQ(read.is_used(), row.used);
}

/// The same values, given as texts to levels that have no such parameter themselves: what stands in for the leaf's
/// takes them.
TEST_P(InheritanceLevels, OfTextsForALevelBelow)
{
    auto const & row = GetParam();
    auto const text = [](bool given, std::string const & name) {
        return given ? "SIZE=" + std::to_string(number_of(name)) + ",MODE=" + name : std::string();
    };
    level top(nullptr, "top", text(row.top, "top")), middle(&top, "middle", text(row.middle, "middle")),
        leaf(&middle, "leaf", text(row.leaf, "leaf"));
    auto & size = leaf.integer("SIZE", number_of("default"));
    auto & mode = leaf.string("MODE", "default|leaf|top|middle", 0);
    set_kind(size, row.of_leaf);
    set_kind(mode, row.of_leaf);
    for (level * read : {&top, &middle, &leaf})
        read->initialize_param_list();
    EXPECT_EQ(size.get_internal_value(false), number_of(row.expected));
    EXPECT_EQ(mode.get_internal_value(false), text_of(row.expected));
    EXPECT_EQ(size.is_used(), row.used);
    EXPECT_EQ(mode.is_used(), row.used);
    EXPECT_EQ(top.get_parameter_object("SIZE"), nullptr);
    EXPECT_EQ(top.messages(), texts{});
}

INSTANTIATE_TEST_SUITE_P(All, InheritanceLevels, ::testing::ValuesIn(all_levels));
