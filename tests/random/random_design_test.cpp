// What the random designs are made of: a generator that never makes something tests nothing of it.

#include "random_design.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

using namespace random_designs;

namespace {

/// How often each thing occurs in many designs.
class inventory
{
public:
    inventory()
    {
        for (std::uint64_t seed = 1; seed <= 500; ++seed)
            count(random_design(seed));
    }

    int of(std::string const & thing) const
    {
        auto const found = m_counts.find(thing);
        return found == m_counts.end() ? 0 : found->second;
    }
    int most_children() const { return m_most_children; }
    int children() const { return m_children; }

private:
    void count(description const & design)
    {
        auto const children = design.top_kind().designs_below;
        m_children += children;
        m_most_children = std::max(m_most_children, children);
        if (children == 0)
            ++m_counts["flat design"];
        for (auto const & each : design.kinds)
            count(each, design);
    }
    void count(kind const & of, description const & design)
    {
        for (auto const & node : of.expressions)
            ++m_counts["operation " + std::to_string(static_cast<int>(node.op))];
        for (auto const & each : of.statements)
            count(each, of, design);
        m_counts["width over W"] += of.has_w ? 1 : 0;
        m_counts["vector parameter"] += of.mask_width > 0 ? 1 : 0;
        for (auto const & made : of.children) {
            ++m_counts[made.array_width == 0 ? "child" : made.array_width == 1 ? "array of one" : "array"];
            m_counts["child without a name"] += made.instance.empty() ? 1 : 0;
            m_counts["child of a child"] += &of != &design.kinds.back() ? 1 : 0;
            m_counts["parameters as text"] += made.given.as_text ? 1 : 0;
            m_counts["parameter passed on"] += made.given.gives_k && made.given.passes_k ? 1 : 0;
            for (std::size_t pin = 0; pin < design.kinds[static_cast<std::size_t>(made.kind)].inputs.size(); ++pin)
                m_counts["open input"] += is_open(of, made, static_cast<int>(pin)) ? 1 : 0;
        }
    }
    static bool is_open(kind const & of, child const & made, int pin)
    {
        auto const object = static_cast<int>(&made - of.children.data());
        return std::none_of(of.statements.begin(), of.statements.end(), [&](statement const & each) {
            return each.sink == statement::target::child_input && each.object == object && each.pin == pin;
        });
    }
    void count(statement const & each, kind const & of, description const & design)
    {
        auto const & first = each.choices[0];
        m_counts["choice by a parameter"] += each.choices.size() > 1 ? 1 : 0;
        m_counts["constant"] += first.what == source::form::number ? 1 : 0;
        m_counts["vector as a constant"] += first.what == source::form::mask ? 1 : 0;
        m_counts["output driven when it is read"] += each.only_if_used ? 1 : 0;
        m_counts["piece"] += each.whole ? 0 : 1;
        auto const width = each.width.at(1);
        auto const from = first.what != source::form::expression
                              ? width
                              : of.expressions[static_cast<std::size_t>(first.expression)].width.at(1);
        m_counts["repeated bit"] += from == 1 && width > 1 ? 1 : 0;
        if (each.sink != statement::target::child_input)
            return;
        auto const & made = of.children[static_cast<std::size_t>(each.object)];
        if (made.array_width > 1)
            count_for_array(each, from, made, design);
    }
    void count_for_array(statement const & each, int from, child const & made, description const & design)
    {
        auto const & pin = design.kinds[static_cast<std::size_t>(made.kind)].inputs[static_cast<std::size_t>(each.pin)];
        ++m_counts[each.slice >= 0 ? "input of a slice" : each.whole ? "input of a whole array" : "slices as a range"];
        if (pin.width.factor != 0 || pin.width.offset == 1 || each.slice >= 0)
            return;
        m_counts["one bus for all slices"] += each.whole && from == pin.width.offset ? 1 : 0;
        m_counts["range across slices"] += !each.whole && (each.high.offset + 1) % pin.width.offset != 0 ? 1 : 0;
    }

    std::map<std::string, int> m_counts;
    int m_children = 0;
    int m_most_children = 0;
};

} // namespace

TEST(RandomDesign, EveryThingOccursOften)
{
    inventory const all;
    for (int op = 0; op <= static_cast<int>(operation::reduce_xor); ++op)
        EXPECT_GE(all.of("operation " + std::to_string(op)), 20) << op;
    for (char const * thing : {"flat design",
                               "width over W",
                               "vector parameter",
                               "child",
                               "array of one",
                               "array",
                               "child without a name",
                               "child of a child",
                               "parameters as text",
                               "parameter passed on",
                               "open input",
                               "choice by a parameter",
                               "constant",
                               "vector as a constant",
                               "output driven when it is read",
                               "piece",
                               "repeated bit",
                               "input of a slice",
                               "input of a whole array",
                               "slices as a range",
                               "one bus for all slices",
                               "range across slices"})
        EXPECT_GE(all.of(thing), 20) << thing;
}

TEST(RandomDesign, MostAreSmallAndSomeAreLarge)
{
    inventory const all;
    EXPECT_GE(all.most_children(), 150);
    EXPECT_LE(all.most_children(), 200);
    EXPECT_LE(all.children() / 500, 15);
}

TEST(RandomDesign, ASeedMakesOneDesign)
{
    auto const one = random_design(5), again = random_design(5), other = random_design(6);
    ASSERT_EQ(one.kinds.size(), again.kinds.size());
    auto const shape = [](description const & of) {
        std::string text;
        for (auto const & each : of.kinds)
            for (auto const & node : each.expressions)
                text += std::to_string(static_cast<int>(node.op)) + ":" + std::to_string(node.width.offset) + " ";
        return text;
    };
    EXPECT_EQ(shape(one), shape(again));
    EXPECT_NE(shape(one), shape(other));
}

TEST(RandomDesign, AFlatProfileHasNoChildren)
{
    for (std::uint64_t seed = 1; seed <= 50; ++seed) {
        auto const flat = random_design(seed, {8, 1, true, true});
        EXPECT_EQ(flat.kinds.size(), 1U);
        EXPECT_TRUE(flat.top_kind().children.empty());
    }
}

TEST(RandomDesign, AProfileWithoutArraysMakesNone)
{
    for (std::uint64_t seed = 1; seed <= 50; ++seed)
        for (auto const & each : random_design(seed, {8, 3, false, true}).kinds)
            for (auto const & made : each.children)
                EXPECT_EQ(made.array_width, 0);
}
