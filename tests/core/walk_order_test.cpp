// Walks go in the order of the key texts, although no walk builds one.

#include "support.h"

#include "lbx/gnl/core/element_registry.h"

#include <algorithm>
#include <random>

namespace {

using namespace gnl_test;

using WalkOrder = in_folder;

template <class WALK> texts keys_of(WALK const & walk)
{
    texts keys;
    for (auto & element : walk)
        keys.push_back(element.generate_key());
    return keys;
}

texts sorted(texts keys)
{
    std::stable_sort(keys.begin(), keys.end(), LESS_C_STRING());
    return keys;
}

void expect_key_order(design & top)
{
    auto & registry = top.registry();
    auto const in_order = [](texts const & keys) { EXPECT_EQ(keys, sorted(keys)); };
    in_order(keys_of(registry.generators()));
    in_order(keys_of(registry.logic_ports()));
    in_order(keys_of(registry.parameters()));
    in_order(keys_of(registry.ports()));
    in_order(keys_of(registry.ranges()));
}

/// A top generator that runs `body` as its body and writes nothing.
void in_body(std::function<void(design &)> const & body)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    top.run(body);
}

TEST_F(WalkOrder, NamesThatBeginAlikeEndFirst)
{
    design top(nullptr);
    for (auto const * name :
         {"t1", "T12", "t", "t_1", "t-", "t10", "wire_with_a_long_name_2", "wire_with_a_long_name_10"})
        top.wire(name);
    texts names;
    for (auto & port : top.registry().ports())
        names.push_back(port.get_name());
    EXPECT_EQ(names,
              (texts{"t", "t-", "t1", "t10", "T12", "t_1", "wire_with_a_long_name_10", "wire_with_a_long_name_2"}));
}

TEST_F(WalkOrder, AnInstanceNameStandsBehindASemicolon)
{
    design top(nullptr);
    top.child("cell1", "a");
    top.child("cell", "b");
    top.child("cell", "B2");
    top.child("cell-", "z");
    EXPECT_EQ(keys_of(top.registry().generators()),
              (texts{"GNRTR;cell-;z", "GNRTR;cell1;a", "GNRTR;cell;b", "GNRTR;cell;B2"}));
}

TEST_F(WalkOrder, SlicesGoByTheTextOfTheirIndex)
{
    design top(nullptr);
    auto & array = top.child("cell", "u", "", 12);
    array[0];
    texts indices;
    for (auto & slice : array.registry().generators())
        indices.push_back(std::to_string(slice.get_slice_index()));
    EXPECT_EQ(indices, (texts{"0", "1", "10", "11", "2", "3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ(array.registry().subdesigns().size(), 0U);
    EXPECT_EQ(top.registry().subdesigns().size(), 1U);
}

TEST_F(WalkOrder, ElementsThatCameSinceTheLastWalkAreMerged)
{
    design top(nullptr);
    for (int i = 0; i < 50; ++i) {
        top.wire("n" + std::to_string(i * 37 % 50));
        expect_key_order(top);
    }
    EXPECT_EQ(top.registry().ports().size(), 50U);
}

TEST_F(WalkOrder, AWalkIsNotDisturbedByWhatIsFiledMeanwhile)
{
    design top(nullptr);
    top.wire("a");
    top.wire("b");
    int count = 0;
    for (auto & port : top.registry().ports()) {
        top.wire("new_" + port.get_name());
        top.get_port_object("a");
        ++count;
    }
    EXPECT_EQ(count, 2);
    EXPECT_EQ(top.registry().ports().size(), 4U);
}

TEST_F(WalkOrder, DestroyedElementsLeaveTheWalk)
{
    design top(nullptr);
    auto wire = std::make_unique<GNL_WIRE>(&top, "b");
    top.wire("a");
    top.wire("c");
    EXPECT_EQ(top.registry().ports().size(), 3U);
    wire.reset();
    texts names;
    for (auto & port : top.registry().ports())
        names.push_back(port.get_name());
    EXPECT_EQ(names, (texts{"a", "c"}));
}

TEST_F(WalkOrder, OperandNamesInsideAKeyEndInASemicolonWhichStandsBehindDigits)
{
    in_body([](design & top) {
        auto & x = top.wire("x");
        auto & t1 = top.wire("t1");
        auto & t12 = top.wire("t12");
        t1 & x;
        t12 & x;
        x & t1;
        x & t12;
        !t1;
        !t12;
        EXPECT_EQ(
            keys_of(top.registry().logic_ports()),
            (texts{"LGC;AND;PORT;t12;GNRTR;top;;PORT;x;GNRTR;top;", "LGC;AND;PORT;t1;GNRTR;top;;PORT;x;GNRTR;top;",
                   "LGC;AND;PORT;x;GNRTR;top;;PORT;t12;GNRTR;top;", "LGC;AND;PORT;x;GNRTR;top;;PORT;t1;GNRTR;top;",
                   "LGC;NOT;PORT;t12;GNRTR;top;", "LGC;NOT;PORT;t1;GNRTR;top;"}));
    });
}

TEST_F(WalkOrder, BitsOfARangeAreTexts)
{
    in_body([](design & top) {
        auto & bus = top.wire("bus", 200);
        for (int high : {12, 1, 100, 15})
            for (int low : {0, 10, 1})
                if (high >= low)
                    bus.range(high, low);
        auto const keys = keys_of(top.registry().ranges());
        ASSERT_EQ(keys.size(), 11U);
        EXPECT_EQ(keys, sorted(keys));
        EXPECT_EQ(keys.front(), "RNG;PORT;bus;GNRTR;top;;GNRTR;top;;100;0");
        EXPECT_EQ(keys.back(), "RNG;PORT;bus;GNRTR;top;;GNRTR;top;;1;1");
    });
}

TEST_F(WalkOrder, OperandsOfSubdesignsGoByTheNamesOfTheirParents)
{
    in_body([](design & top) {
        auto & x = top.wire("x");
        for (auto const * instance : {"u1", "u12", "U"}) {
            auto & q = top.child("cell", instance).output("q", 4);
            x & q;
            x & q[2];
            x & !q;
        }
        expect_key_order(top);
        EXPECT_EQ(top.registry().logic_ports().size(), 9U);
    });
}

TEST_F(WalkOrder, AllPortsAreExpressionsThenPortsThenRanges)
{
    in_body([](design & top) {
        auto & a = top.wire("a", 2);
        auto & range = a[1];
        auto & logic = !a;
        EXPECT_EQ(top.registry().all_ports(), (std::vector<GNL_PORT *>{&logic, &a, &range}));
    });
}

/// Random netlists of expressions and ranges, some of them deep, with a walk now and then.
TEST_F(WalkOrder, IsThatOfTheKeyTextsForRandomNetlists)
{
    for (unsigned seed = 1; seed <= 12; ++seed)
        in_body([seed](design & top) {
            std::mt19937 random(seed);
            auto const below = [&](std::size_t count) { return random() % count; };
            std::vector<GNL_PORT *> ports;
            for (auto const * name : {"a", "a1", "A12", "b", "wide_name_1", "wide_name_12", "wide_name_2", "z"})
                ports.push_back(&top.wire(name, 12));
            auto & sub = top.child("cell", "u" + std::to_string(seed));
            ports.push_back(&sub.output("a", 12));
            for (int i = 0; i < 150; ++i) {
                // Mostly recent operands, so that chains get long.
                auto & x = *ports[below(3) == 0 ? below(ports.size()) : ports.size() - 1 - below(4)];
                auto & y = *ports[below(ports.size())];
                if (x.generate_key().size() + y.generate_key().size() > 20000)
                    continue;
                switch (below(6)) {
                case 0:
                    ports.push_back(&(x & y));
                    break;
                case 1:
                    ports.push_back(&(y | x));
                    break;
                case 2:
                    ports.push_back(&(x ^ y));
                    break;
                case 3:
                    ports.push_back(&!x);
                    break;
                default:
                    if (x.is_logic() || x.get_width() != 12)
                        break;
                    int const low = static_cast<int>(below(12));
                    x.range(low + static_cast<int>(below(static_cast<std::size_t>(12 - low))), low);
                }
                if (below(40) == 0)
                    expect_key_order(top);
            }
            expect_key_order(top);
            auto const keys = keys_of(sub.registry().logic_ports());
            EXPECT_EQ(keys, sorted(keys)) << "seed " << seed;
        });
}

// Walking down each of these chains for each comparison would take hours.

TEST_F(WalkOrder, ChainsDownTheFirstOperandAreOrderedWithoutWalkingDownThem)
{
    in_body([](design & top) {
        auto & a = top.wire("a");
        auto & b = top.wire("b");
        GNL_PORT * chain = &a;
        for (int i = 0; i < 100000; ++i)
            chain = i % 2 == 0 ? &(*chain & b) : &(*chain ^ b);
        auto const walk = top.registry().logic_ports();
        ASSERT_EQ(walk.size(), 100000U);
        // The deepest of those that begin with AND has the longest run of "LGC;AND;LGC;XOR;".
        EXPECT_EQ(&*walk.begin(), static_cast<GNL_PORT_LOGIC *>(chain)->get_first_operand());
    });
}

TEST_F(WalkOrder, ChainsDownTheSecondOperandAreOrderedWithoutWalkingDownThem)
{
    in_body([](design & top) {
        auto & a = top.wire("a");
        GNL_PORT * chain = &top.wire("b");
        for (int i = 0; i < 100000; ++i)
            chain = &(a & *chain);
        auto const walk = top.registry().logic_ports();
        ASSERT_EQ(walk.size(), 100000U);
        EXPECT_EQ(&*walk.begin(), chain);
    });
}

TEST_F(WalkOrder, ChainsOfRangesAreOrdered)
{
    in_body([](design & top) {
        GNL_PORT * chain = &top.wire("a", 100);
        for (int i = 0; i < 100000; ++i)
            chain = &chain->range(99, 0);
        auto const walk = top.registry().ranges();
        ASSERT_EQ(walk.size(), 100000U);
        // "PORT;" comes before "RNG;", so that the range on the wire comes first and the deepest one last.
        GNL_PORT const * last = nullptr;
        for (auto & range : walk)
            last = &range;
        EXPECT_TRUE((*walk.begin()).get_range_driver()->is_wire());
        EXPECT_EQ(last, chain);
    });
}

} // namespace
