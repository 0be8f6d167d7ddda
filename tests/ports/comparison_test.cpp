// Comparisons of ports of different designs.

#include "open_design.h"

namespace {

using namespace gnl_test;

bool equivalent(GNL_PORT * a, GNL_PORT * b)
{
    return GNL_PORT::check_port_equivalence_across_hierarchies(a, b);
}

bool equal(GNL_PORT * a, GNL_PORT * b)
{
    return GNL_PORT::check_port_equality_across_hierarchies(a, b);
}

/// Two cells of one class and the ports of the design around them.
class Comparison : public in_folder
{
protected:
    Comparison()
    {
        for (design * cell : {&one, &two, &other}) {
            cell->wire("p", 4);
            cell->wire("q", 4);
            cell->set_in_rtl_body();
        }
    }

    open_design top{GNL_VERILOG};
    GNL_PORT & x = top.wire("x", 4);
    GNL_PORT & y = top.wire("y", 4);
    design & one = top.child("cell", "u1");
    design & two = top.child("CELL", "u2");
    design & other = top.child("other", "u3");
};

TEST_F(Comparison, NullIsLikeNullOnly)
{
    EXPECT_TRUE(equivalent(nullptr, nullptr));
    EXPECT_FALSE(equivalent(&x, nullptr));
    EXPECT_FALSE(equivalent(nullptr, &x));
    EXPECT_TRUE(equal(nullptr, nullptr));
    EXPECT_FALSE(equal(&x, nullptr));
    EXPECT_FALSE(equal(nullptr, &x));
}

TEST_F(Comparison, PortsOfOneDesignAreEquivalentToThemselvesOnly)
{
    EXPECT_TRUE(equivalent(&x, &x));
    EXPECT_FALSE(equivalent(&x, &y));
    GNL_WIRE const & original = static_cast<GNL_WIRE &>(x);
    GNL_WIRE copy(original);
    EXPECT_FALSE(equivalent(&x, &copy));
}

TEST_F(Comparison, SimplePortsAreEquivalentByNameInDesignsOfOneName)
{
    EXPECT_TRUE(equivalent(&one.port("p"), &two.port("p")));
    EXPECT_FALSE(equivalent(&one.port("p"), &two.port("q")));
    EXPECT_FALSE(equivalent(&one.port("p"), &other.port("p")));
    GNL_WIRE free(nullptr, "p");
    EXPECT_FALSE(equivalent(&one.port("p"), &free));
    EXPECT_FALSE(equivalent(&free, &one.port("p")));
}

TEST_F(Comparison, RangesAreEquivalentByBitsAndBase)
{
    EXPECT_TRUE(equivalent(&one.port("p").range(2, 1), &two.port("p").range(2, 1)));
    EXPECT_FALSE(equivalent(&one.port("p").range(2, 1), &two.port("p").range(2, 0)));
    EXPECT_FALSE(equivalent(&one.port("p").range(2, 1), &two.port("p").range(3, 1)));
    EXPECT_FALSE(equivalent(&one.port("p").range(2, 1), &two.port("q").range(2, 1)));
    EXPECT_FALSE(equivalent(&one.port("p").range(2, 1), &two.port("p")));
}

TEST_F(Comparison, OperatorsAreNeverEquivalentAcrossDesigns)
{
    EXPECT_FALSE(equivalent(&~one.port("p"), &~two.port("p")));
    EXPECT_FALSE(equivalent(&(one.port("p"), one.port("q")), &(two.port("p"), two.port("q"))));
}

TEST_F(Comparison, PortsOfOneDesignAreEqualByIdentityOrSimpleName)
{
    EXPECT_TRUE(equal(&x, &x));
    EXPECT_FALSE(equal(&x, &y));
    GNL_WIRE const & original = static_cast<GNL_WIRE &>(x);
    GNL_WIRE copy(original);
    EXPECT_TRUE(equal(&x, &copy));
    EXPECT_FALSE(equal(&(x & y), &(y & x)));
    EXPECT_TRUE(equal(&(x & y), &(x & y)));
}

/// An expression whose parent is `cell` and whose operands belong to the design around.
GNL_PORT & operation(GNL_GENERATOR & cell, int operation, GNL_PORT & first, GNL_PORT * second)
{
    return *new GNL_PORT_LOGIC(&cell, operation, &first, second);
}

TEST_F(Comparison, ExpressionsAreEqualByOperationAndOperands)
{
    auto const both = [&](GNL_GENERATOR & cell, int kind) { return &operation(cell, kind, x, &y); };
    auto const and_operation = GNL_PORT_LOGIC::and_operation;
    EXPECT_TRUE(equal(both(one, and_operation), both(two, and_operation)));
    EXPECT_TRUE(equal(both(one, and_operation), both(other, and_operation))) << "names of designs do not count";
    EXPECT_FALSE(equal(both(one, and_operation), both(two, GNL_PORT_LOGIC::or_operation)));
    EXPECT_FALSE(equal(both(one, and_operation), &operation(two, and_operation, y, &x)));
    auto const inverted = [&](GNL_GENERATOR & cell) {
        return &operation(cell, GNL_PORT_LOGIC::not_operation, x, nullptr);
    };
    EXPECT_TRUE(equal(inverted(one), inverted(two)));
    EXPECT_FALSE(equal(&~one.port("p"), &~two.port("p"))) << "simple ports of two designs";
}

TEST_F(Comparison, RangesAreEqualByBitsAndBase)
{
    auto const part = [&](GNL_GENERATOR & cell, int high, int low) {
        return new GNL_PORT_OUTPUT_RANGE(&cell, &x, high, low);
    };
    EXPECT_TRUE(equal(part(one, 2, 1), part(two, 2, 1)));
    EXPECT_FALSE(equal(part(one, 2, 1), part(two, 3, 1)));
    EXPECT_FALSE(equal(part(one, 2, 1), part(two, 2, 0)));
    EXPECT_FALSE(equal(part(one, 2, 1), new GNL_PORT_OUTPUT_RANGE(&two, &y, 2, 1)));
    EXPECT_FALSE(equal(part(one, 2, 1), &operation(two, GNL_PORT_LOGIC::and_operation, x, &y)));
}

TEST_F(Comparison, ConcatsAreEqualElementByElement)
{
    auto const concat = [](GNL_GENERATOR & cell, GNL_PORT & high, GNL_PORT & low) {
        return new GNL_PORT_CONCAT(&cell, high, low);
    };
    EXPECT_TRUE(equal(concat(one, x, y), concat(two, x, y)));
    EXPECT_FALSE(equal(concat(one, x, y), concat(two, y, x)));
    auto * longer = concat(two, x, y);
    longer->add_port_lower_end(x);
    EXPECT_FALSE(equal(concat(one, x, y), longer));
    EXPECT_FALSE(equal(longer, concat(one, x, y)));
    EXPECT_TRUE(equal(new GNL_PORT_CONCAT(&one, 8), new GNL_PORT_CONCAT(&two, 8)));
}

TEST_F(Comparison, SharedExpressionsAreComparedOnce)
{
    auto const doubled = [&](GNL_GENERATOR & cell) {
        GNL_PORT * expression = &operation(cell, GNL_PORT_LOGIC::and_operation, x, &y);
        for (int i = 0; i < 200; ++i)
            expression = &operation(cell, GNL_PORT_LOGIC::xor_operation, *expression, expression);
        return expression;
    };
    EXPECT_TRUE(equal(doubled(one), doubled(two)));
}

TEST_F(Comparison, DeepChainsDoNotRecurse)
{
    auto const chain = [&](GNL_GENERATOR & cell) {
        GNL_PORT * port = &x;
        for (int i = 0; i < 100000; ++i)
            port = new GNL_PORT_OUTPUT_RANGE(&cell, port, 3, 0);
        return port;
    };
    EXPECT_TRUE(equal(chain(one), chain(two)));
}

} // namespace
