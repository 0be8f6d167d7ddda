// Placing pieces in a concatenation: conflicts, merges, and what a partly assigned port knows of itself.

#include "concat_layout.h"
#include "open_design.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <numeric>
#include <random>
#include <vector>

using namespace gnl_test;

namespace {

constexpr char const * already = "The port range was already assigned a value. The new value can not be reassigned.";

class ConcatPieces : public in_folder
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        top.set_gen_language(GNL_VERILOG);
    }

    open_design top{GNL_VERILOG};
    GNL_PORT_INPUT & a = top.input("a", 8);
    GNL_PORT_INPUT & b = top.input("b", 2);
    GNL_PORT_OUTPUT & y = top.output("y", 16);
    GNL_PORT_CONCAT & pieces = *new GNL_PORT_CONCAT(&top, 16);
};

TEST_F(ConcatPieces, StartEmptyAndIncomplete)
{
    EXPECT_EQ(pieces.get_width(), 16);
    EXPECT_EQ(pieces.get_original_width(), 16);
    EXPECT_EQ(pieces.get_name(), "w1w");
    EXPECT_EQ(pieces.get_element_count(), 0);
    EXPECT_EQ(pieces.get_concat_element(0), nullptr);
    EXPECT_FALSE(pieces.is_complete());
    EXPECT_FALSE(pieces.has_bits_assigned(0, 15));
    EXPECT_FALSE(pieces.element_is_range_port(0));
    EXPECT_EQ(pieces.get_elements_width(), 16);
    EXPECT_EQ(pieces.get_hierarchical_name(), "CONCAT ()");
}

TEST_F(ConcatPieces, AreKeptFromTheHighestBitsDown)
{
    pieces.add_at_index(b, 3, 2, &y);
    pieces.add_at_index(b, 9, 8, &y);
    pieces.add_at_index(b, 6, 5, &y);
    EXPECT_EQ(layout(pieces), "b@9:8 b@6:5 b@3:2");
    EXPECT_EQ(pieces.get_concat_element(3), nullptr);
    EXPECT_EQ(pieces.get_concat_element(-1), nullptr);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(ConcatPieces, ABitIsAssignedOnce)
{
    pieces.add_at_index(b, 5, 4, &y);
    pieces.add_at_index(b, 4, 3, &y);
    pieces.add_at_index(b, 6, 5, &y);
    pieces.add_at_index(a, 8, 1, &y);
    pieces.add_at_index(b, 5, 4, nullptr);
    EXPECT_EQ(layout(pieces), "b@5:4");
    auto const message = [](std::string const & bits) {
        return error("The source port top|y already has one or more bits in the range " + bits + " assigned.", already);
    };
    EXPECT_EQ(
        top.messages(),
        (texts{message("4 to 3"), message("6 to 5"), message("8 to 1"),
               error("The concat port CONCAT (top|b , ) already has one or more bits in the range 5 to 4 assigned.",
                     already)}));
}

TEST_F(ConcatPieces, KnowWhichBitsAreAssigned)
{
    pieces.add_at_index(b, 5, 4, &y);
    EXPECT_TRUE(pieces.has_bits_assigned(4, 4));
    EXPECT_TRUE(pieces.has_bits_assigned(5, 9));
    EXPECT_TRUE(pieces.has_bits_assigned(0, 4));
    EXPECT_TRUE(pieces.has_bits_assigned(0, 15));
    EXPECT_FALSE(pieces.has_bits_assigned(0, 3));
    EXPECT_FALSE(pieces.has_bits_assigned(6, 15));
}

TEST_F(ConcatPieces, ARangeContinuesThePieceAbove)
{
    pieces.add_at_index(a.range(7, 6), 11, 10, &y);
    pieces.add_at_index(a.range(5, 3), 9, 7, &y);
    EXPECT_EQ(layout(pieces), "a[7:3]@11:7");
}

TEST_F(ConcatPieces, ARangeContinuesThePieceBelow)
{
    pieces.add_at_index(a.range(1, 0), 8, 7, &y);
    pieces.add_at_index(a.range(3, 2), 10, 9, &y);
    EXPECT_EQ(layout(pieces), "a[3:0]@10:7");
}

TEST_F(ConcatPieces, ARangeJoinsThePiecesOnBothSides)
{
    pieces.add_at_index(a.range(7, 6), 13, 12, &y);
    pieces.add_at_index(a.range(1, 0), 7, 6, &y);
    pieces.add_at_index(b, 1, 0, &y);
    pieces.add_at_index(a.range(5, 2), 11, 8, &y);
    EXPECT_EQ(layout(pieces), "a[7:0]@13:6 b@1:0");
}

TEST_F(ConcatPieces, RangesThatDoNotTouchBothHereAndThereStayApart)
{
    pieces.add_at_index(a.range(7, 6), 11, 10, &y);
    pieces.add_at_index(a.range(5, 5), 8, 8, &y);
    pieces.add_at_index(a.range(3, 3), 9, 9, &y);
    pieces.add_at_index(top.input("c", 8).range(4, 4), 7, 7, &y);
    EXPECT_EQ(layout(pieces), "a[7:6]@11:10 a[3:3]@9:9 a[5:5]@8:8 c[4:4]@7:7");
}

TEST_F(ConcatPieces, ARangeThatIsRepeatedStaysApart)
{
    pieces.add_at_index(a.range(3, 2), 15, 12, &y);
    pieces.add_at_index(a.range(1, 0), 11, 10, &y);
    EXPECT_EQ(layout(pieces), "a[3:2]@15:12 a[1:0]@11:10");
}

TEST_F(ConcatPieces, AreCompleteWhenOneElementCoversThemAll)
{
    auto & whole = top.input("whole", 16);
    auto & narrow = *new GNL_PORT_CONCAT(&top, 16);
    narrow.add_at_index(b, 15, 0, &y);
    EXPECT_FALSE(narrow.is_complete()) << "a repetition";
    pieces.add_at_index(whole.range(15, 8), 15, 8, &y);
    EXPECT_FALSE(pieces.is_complete());
    pieces.add_at_index(whole.range(7, 0), 7, 0, &y);
    EXPECT_TRUE(pieces.is_complete());
    auto & one = *new GNL_PORT_CONCAT(&top, 1);
    one.add_at_index(a[0], 0, 0, &y);
    EXPECT_FALSE(one.is_complete()) << "of one bit";
}

TEST_F(ConcatPieces, TheirWidthIsThatOfASinglePiece)
{
    pieces.add_at_index(b, 3, 2, &y);
    EXPECT_EQ(pieces.get_elements_width(), 2);
    pieces.add_at_index(b, 1, 0, &y);
    EXPECT_EQ(pieces.get_elements_width(), 16);
    EXPECT_EQ((a, b).get_elements_width(), 10);
    auto & cells = top.array(4, [](design & cell) { cell.output("q", 2); });
    auto & of_array = *new GNL_PORT_CONCAT(&top, 16);
    of_array.add_at_index(cells.port("q"), 7, 0, &y);
    EXPECT_EQ(of_array.get_elements_width(), 8) << "all slices";
    EXPECT_FALSE(pieces.need_index());
}

TEST_F(ConcatPieces, ASingleBitOfAScalarOrOfARangeNeedsAnIndex)
{
    auto const needs_index = [&](GNL_PORT & port) {
        auto & concat = *new GNL_PORT_CONCAT(&top, 4);
        concat.add_at_index(port, 0, 0, &y);
        EXPECT_FALSE(concat.need_index());
        EXPECT_EQ(concat.get_elements_width(), port.get_original_width());
        return concat.need_index();
    };
    auto & s = top.input("s");
    EXPECT_TRUE(needs_index(s[0]));
    EXPECT_TRUE(needs_index(a.range(3, 2)[0]));
    EXPECT_FALSE(needs_index(a[0]));
    EXPECT_FALSE(needs_index(s));
}

TEST_F(ConcatPieces, AnElementCanBeReplaced)
{
    pieces.add_at_index(b, 3, 2, &y);
    pieces.add_at_index(b, 1, 0, &y);
    pieces.replace_concat_element(1, new GNL_SUBCONCAT{&a[1], 1, 1});
    EXPECT_EQ(layout(pieces), "b@3:2 a[1:1]@1:1");
    EXPECT_TRUE(pieces.element_is_range_port(1));
    EXPECT_FALSE(pieces.element_is_range_port(0));
    pieces.replace_concat_element(2, new GNL_SUBCONCAT{&a, 7, 0});
    EXPECT_EQ(pieces.get_element_count(), 2);
}

TEST_F(ConcatPieces, RangesThatWereReplacedAreJoinedLater)
{
    for (int bit = 0; bit < 6; ++bit)
        pieces.add_at_index(bit == 2 ? static_cast<GNL_PORT &>(b) : a[7 - bit], bit, bit, &y);
    ASSERT_EQ(pieces.get_element_count(), 6);
    for (int i = 0; i < 6; ++i)
        if (i != 3)
            pieces.get_concat_element(i)->port = &a[7 - i];
    pieces.adjust_range_elements();
    EXPECT_EQ(layout(pieces), "a[7:5]@5:3 b@2:2 a[3:2]@1:0");
}

TEST_F(ConcatPieces, RangesWithAHoleBetweenThemAreNotJoinedLater)
{
    pieces.add_at_index(a[3], 9, 9, &y);
    pieces.add_at_index(a[2], 7, 7, &y);
    pieces.adjust_range_elements();
    EXPECT_EQ(layout(pieces), "a[3:3]@9:9 a[2:2]@7:7");
}

/// One entry for each bit: the port and its bit that drive it, as a plain list of bits.
using bit_map = std::vector<std::pair<GNL_PORT const *, int>>;

bit_map bits_of(GNL_PORT_CONCAT const & concat, int width)
{
    bit_map bits(static_cast<std::size_t>(width));
    int above = width;
    for (int i = 0; i < concat.get_element_count(); ++i) {
        GNL_SUBCONCAT const & element = *concat.get_concat_element(i);
        EXPECT_LT(element.high_index, above) << "elements never overlap";
        above = element.low_index;
        auto const & range = dynamic_cast<GNL_PORT_OUTPUT_RANGE const &>(*element.port);
        for (int bit = element.low_index; bit <= element.high_index; ++bit)
            bits[static_cast<std::size_t>(bit)] = {range.get_range_driver(),
                                                   range.get_low_index() + bit - element.low_index};
    }
    return bits;
}

TEST_F(ConcatPieces, EachBitHasItsSourceHoweverThePiecesWereJoined)
{
    char const * const given = std::getenv("GNL_TEST_SEED");
    unsigned const start = given ? static_cast<unsigned>(std::stoul(given)) : std::random_device()();
    SCOPED_TRACE("GNL_TEST_SEED=" + std::to_string(start));
    std::mt19937 random(start);
    auto const below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    constexpr int width = 64;
    GNL_PORT * const sources[] = {&top.input("p", width), &top.input("q", width)};
    for (int round = 0; round < 30; ++round) {
        auto & concat = *new GNL_PORT_CONCAT(&top, width);
        bit_map expected(width);
        for (int step = 0; step < 80; ++step) {
            int const low = below(width), high = std::min(width - 1, low + below(4));
            // Mostly bits that continue each other, so that many pieces join.
            int const shift = below(4) == 0 ? below(width - high) : 0;
            GNL_PORT & source = *sources[below(8) == 0];
            bool const taken = std::any_of(expected.begin() + low, expected.begin() + high + 1,
                                           [](auto const & bit) { return bit.first != nullptr; });
            ASSERT_EQ(concat.has_bits_assigned(low, high), taken) << high << " to " << low;
            if (taken)
                continue;
            concat.add_at_index(source.range(high + shift, low + shift), high, low, &y);
            for (int bit = low; bit <= high; ++bit)
                expected[static_cast<std::size_t>(bit)] = {&source, bit + shift};
        }
        ASSERT_EQ(bits_of(concat, width), expected) << "in round " << round;
        concat.adjust_range_elements();
        ASSERT_EQ(bits_of(concat, width), expected) << "in round " << round;
    }
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(ConcatPieces, AWideOutputIsAssignedBitByBitInAnyOrder)
{
    constexpr int width = 20000;
    auto & i = top.input("i", width);
    std::vector<int> order(width);
    std::iota(order.begin(), order.end(), 0);
    for (int round = 0; round < 2; ++round) {
        auto & o = top.output("o" + std::to_string(round), width);
        for (int const bit : order)
            o[bit] = i[width - 1 - bit];
        EXPECT_EQ(concat_of(o).get_element_count(), width);
        EXPECT_EQ(concat_of(o).get_concat_element(17)->high_index, width - 18);
        std::shuffle(order.begin(), order.end(), std::mt19937(1));
    }
    EXPECT_EQ(top.messages(), texts{});
}

} // namespace
