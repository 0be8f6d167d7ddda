#include "lbx/gnl/ports/concat_elements.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <numeric>
#include <random>
#include <vector>

namespace {

using gnl_detail::concat_elements;

/// An element without a port: the list never looks at it.
GNL_SUBCONCAT bits(int high, int low)
{
    return {nullptr, high, low};
}

/// Puts an element where its bits belong.
void place(concat_elements & elements, int high, int low)
{
    elements.insert(elements.place_below(high), bits(high, low));
}

using layout = std::vector<std::pair<int, int>>;

layout layout_of(concat_elements & elements)
{
    layout found;
    for (int i = 0; i < elements.size(); ++i)
        found.emplace_back(elements.at(i)->high_index, elements.at(i)->low_index);
    return found;
}

TEST(ConcatElements, AnEmptyListHoldsNothing)
{
    concat_elements elements;
    EXPECT_TRUE(elements.empty());
    EXPECT_EQ(elements.size(), 0);
    EXPECT_EQ(elements.at(0), nullptr);
    EXPECT_EQ(elements.highest(), nullptr);
    EXPECT_EQ(elements.lowest(), nullptr);
    EXPECT_FALSE(elements.holds_any(7, 0));
    EXPECT_EQ(elements.at(elements.place_below(3)), nullptr);
    EXPECT_EQ(elements.above(elements.place_below(3)), nullptr);
}

TEST(ConcatElements, AreKeptFromTheHighestBitsDown)
{
    concat_elements elements;
    place(elements, 3, 2);
    place(elements, 9, 8);
    place(elements, 1, 0);
    place(elements, 6, 5);
    EXPECT_EQ(layout_of(elements), (layout{{9, 8}, {6, 5}, {3, 2}, {1, 0}}));
    EXPECT_EQ(elements.highest()->high_index, 9);
    EXPECT_EQ(elements.lowest()->low_index, 0);
    EXPECT_EQ(elements.at(-1), nullptr);
    EXPECT_EQ(elements.at(4), nullptr);
}

TEST(ConcatElements, FindTheNeighboursOfAPlace)
{
    concat_elements elements;
    place(elements, 9, 8);
    place(elements, 3, 2);
    auto const between = elements.place_below(5);
    EXPECT_EQ(elements.above(between)->low_index, 8);
    EXPECT_EQ(elements.at(between)->high_index, 3);
    EXPECT_EQ(elements.above(elements.place_below(12)), nullptr);
    EXPECT_EQ(elements.at(elements.place_below(12))->high_index, 9);
    EXPECT_EQ(elements.at(elements.place_below(1)), nullptr);
}

TEST(ConcatElements, AreTakenWhereBitsOverlap)
{
    concat_elements elements;
    place(elements, 9, 8);
    place(elements, 3, 2);
    EXPECT_TRUE(elements.holds_any(8, 8));
    EXPECT_TRUE(elements.holds_any(9, 9));
    EXPECT_TRUE(elements.holds_any(12, 9));
    EXPECT_TRUE(elements.holds_any(8, 4));
    EXPECT_TRUE(elements.holds_any(2, 0));
    EXPECT_TRUE(elements.holds_any(20, 0));
    EXPECT_FALSE(elements.holds_any(7, 4));
    EXPECT_FALSE(elements.holds_any(1, 0));
    EXPECT_FALSE(elements.holds_any(20, 10));
}

TEST(ConcatElements, RiseTogetherAndWhatComesAfterStays)
{
    concat_elements elements;
    elements.push_lowest(bits(1, 0));
    elements.raise(3);
    elements.push_lowest(bits(2, 0));
    elements.raise(2);
    elements.push_lowest(bits(1, 0));
    EXPECT_EQ(layout_of(elements), (layout{{6, 5}, {4, 2}, {1, 0}}));
    EXPECT_TRUE(elements.holds_any(6, 6));
    elements.push_highest(bits(9, 7));
    elements.raise(1);
    EXPECT_EQ(layout_of(elements), (layout{{10, 8}, {7, 6}, {5, 3}, {2, 1}}));
}

TEST(ConcatElements, ChangesThroughAPointerStay)
{
    concat_elements elements;
    place(elements, 3, 2);
    elements.raise(4);
    elements.at(0)->low_index = 0;
    elements.raise(1);
    EXPECT_EQ(layout_of(elements), (layout{{8, 1}}));
}

TEST(ConcatElements, ACopyIsIndependent)
{
    concat_elements elements;
    place(elements, 3, 2);
    concat_elements copy = elements;
    copy.raise(2);
    place(copy, 1, 0);
    EXPECT_EQ(layout_of(elements), (layout{{3, 2}}));
    EXPECT_EQ(layout_of(copy), (layout{{5, 4}, {1, 0}}));
}

/// The same operations on a plain sorted list.
class model
{
public:
    bool holds_any(int high, int low) const
    {
        return std::any_of(m_elements.begin(), m_elements.end(),
                           [&](auto const & e) { return e.first >= low && e.second <= high; });
    }
    void place(int high, int low)
    {
        auto const at =
            std::find_if(m_elements.begin(), m_elements.end(), [&](auto const & e) { return e.second < low; });
        m_elements.insert(at, {high, low});
    }
    void raise(int by)
    {
        for (auto & [high, low] : m_elements) {
            high += by;
            low += by;
        }
    }
    layout & elements() { return m_elements; }

private:
    layout m_elements;
};

unsigned seed()
{
    char const * const given = std::getenv("GNL_TEST_SEED");
    return given ? static_cast<unsigned>(std::stoul(given)) : std::random_device()();
}

TEST(ConcatElements, BehaveLikeAPlainListUnderRandomOperations)
{
    unsigned const start = seed();
    SCOPED_TRACE("GNL_TEST_SEED=" + std::to_string(start));
    std::mt19937 random(start);
    auto const below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    concat_elements elements;
    model expected;
    for (int step = 0; step < 6000; ++step) {
        int const low = below(9000);
        int const high = low + below(3);
        switch (below(12)) {
        case 0:
            if (!expected.elements().empty()) {
                int const index = below(static_cast<int>(expected.elements().size()));
                auto const [removed_high, removed_low] = expected.elements()[static_cast<std::size_t>(index)];
                ASSERT_EQ(elements.at(index)->high_index, removed_high);
                elements.erase(elements.place_below(removed_high));
                expected.elements().erase(expected.elements().begin() + index);
            }
            break;
        case 1: {
            int const by = below(3);
            elements.raise(by);
            expected.raise(by);
            break;
        }
        case 2:
            elements.raise(2);
            elements.push_lowest(bits(1, 0));
            expected.raise(2);
            expected.place(1, 0);
            break;
        default:
            ASSERT_EQ(elements.holds_any(high, low), expected.holds_any(high, low)) << high << " to " << low;
            if (!expected.holds_any(high, low)) {
                place(elements, high, low);
                expected.place(high, low);
            }
        }
        ASSERT_EQ(elements.size(), static_cast<int>(expected.elements().size()));
        if (step % 500 == 0) {
            ASSERT_EQ(layout_of(elements), expected.elements()) << "at step " << step;
        }
    }
    EXPECT_EQ(layout_of(elements), expected.elements());
}

/// Places bits one by one in this order; a walk for each would take minutes.
void expect_all_placed(std::vector<int> const & order)
{
    concat_elements elements;
    for (int const bit : order)
        if (!elements.holds_any(bit, bit))
            place(elements, bit, bit);
    int last = static_cast<int>(order.size());
    for (int i = 0; i < elements.size(); ++i)
        last = elements.at(i)->high_index == last - 1 ? last - 1 : -1;
    EXPECT_EQ(last, 0) << "each bit is there, in order";
}

TEST(ConcatElements, AHundredThousandBitsComeInAnyOrder)
{
    std::vector<int> order(100000);
    std::iota(order.begin(), order.end(), 0);
    expect_all_placed(order);
    std::reverse(order.begin(), order.end());
    expect_all_placed(order);
    std::shuffle(order.begin(), order.end(), std::mt19937(1));
    expect_all_placed(order);
}

TEST(ConcatElements, AHundredThousandAreAppendedBelow)
{
    concat_elements elements;
    for (int i = 0; i < 100000; ++i) {
        elements.raise(1);
        elements.push_lowest(bits(0, 0));
    }
    EXPECT_EQ(elements.highest()->high_index, 99999);
    EXPECT_EQ(elements.at(50000)->high_index, 49999);
    EXPECT_EQ(elements.lowest()->high_index, 0);
}

} // namespace
