#include "gnl_port.h"

#include "gnl_generator.h"
#include "gnl_port_concat.h"
#include "gnl_port_logic.h"
#include "gnl_port_range.h"

#include "lbx/gnl/core/case_folding.h"

#include <cstddef>
#include <functional>
#include <unordered_set>
#include <utility>
#include <vector>

using gnl_detail::equal_folded;

namespace {

bool same_bits(GNL_PORT_OUTPUT_RANGE const & a, GNL_PORT_OUTPUT_RANGE const & b)
{
    return a.get_high_index() == b.get_high_index() && a.get_low_index() == b.get_low_index();
}

/// Compares the structure of two ports.
///
/// Two ports are equal when no pair of parts that stand at the same place differs, so the pairs can be looked at in any
/// order and each once: expressions share their operands, and as trees they would double with each level.
class structure_comparison
{
public:
    bool equal(GNL_PORT * a, GNL_PORT * b)
    {
        expect_equal(a, b);
        while (!m_open.empty()) {
            auto const [left, right] = m_open.back();
            m_open.pop_back();
            if (!compare(left, right))
                return false;
        }
        return true;
    }

private:
    using port_pair = std::pair<GNL_PORT *, GNL_PORT *>;
    struct pair_hash
    {
        std::size_t operator()(port_pair const & pair) const
        {
            std::hash<GNL_PORT *> const hash;
            return hash(pair.first) * 31 + hash(pair.second);
        }
    };

    void expect_equal(GNL_PORT * a, GNL_PORT * b)
    {
        if (m_seen.emplace(a, b).second)
            m_open.emplace_back(a, b);
    }

    bool compare(GNL_PORT * a, GNL_PORT * b)
    {
        if (!a || !b)
            return a == b;
        if (a->get_parent() == b->get_parent())
            return a == b || (a->is_simple_port() && b->is_simple_port() && equal_folded(a->get_name(), b->get_name()));
        if (a->is_logic() && b->is_logic())
            return compare(static_cast<GNL_PORT_LOGIC &>(*a), static_cast<GNL_PORT_LOGIC &>(*b));
        if (a->is_concat_port() && b->is_concat_port())
            return compare(static_cast<GNL_PORT_CONCAT &>(*a), static_cast<GNL_PORT_CONCAT &>(*b));
        if (a->is_range_port() && b->is_range_port())
            return compare(static_cast<GNL_PORT_OUTPUT_RANGE &>(*a), static_cast<GNL_PORT_OUTPUT_RANGE &>(*b));
        return false;
    }

    bool compare(GNL_PORT_LOGIC & a, GNL_PORT_LOGIC & b)
    {
        if (a.get_operation() != b.get_operation())
            return false;
        expect_equal(a.get_first_operand(), b.get_first_operand());
        expect_equal(a.get_second_operand(), b.get_second_operand());
        return true;
    }

    bool compare(GNL_PORT_CONCAT & a, GNL_PORT_CONCAT & b)
    {
        if (a.get_element_count() != b.get_element_count())
            return false;
        for (int i = 0; i < a.get_element_count(); ++i) {
            GNL_SUBCONCAT const & left = *a.get_concat_element(i);
            GNL_SUBCONCAT const & right = *b.get_concat_element(i);
            if (left.high_index != right.high_index || left.low_index != right.low_index)
                return false;
            expect_equal(left.port, right.port);
        }
        return true;
    }

    bool compare(GNL_PORT_OUTPUT_RANGE & a, GNL_PORT_OUTPUT_RANGE & b)
    {
        expect_equal(a.get_range_driver(), b.get_range_driver());
        return same_bits(a, b);
    }

    std::vector<port_pair> m_open;
    std::unordered_set<port_pair, pair_hash> m_seen;
};

} // namespace

bool GNL_PORT::check_port_equality_across_hierarchies(GNL_PORT * a, GNL_PORT * b)
{
    return structure_comparison().equal(a, b);
}

bool GNL_PORT::check_port_equivalence_across_hierarchies(GNL_PORT * a, GNL_PORT * b)
{
    for (;;) {
        if (!a || !b || a->get_parent() == b->get_parent())
            return a == b;
        if (!a->get_parent() || !b->get_parent()
            || !equal_folded(a->get_parent()->get_name(), b->get_parent()->get_name()))
            return false;
        if (a->is_simple_port() && b->is_simple_port())
            return equal_folded(a->get_name(), b->get_name());
        if (!a->is_range_port() || !b->is_range_port())
            return false;
        auto const & left = static_cast<GNL_PORT_OUTPUT_RANGE const &>(*a);
        auto const & right = static_cast<GNL_PORT_OUTPUT_RANGE const &>(*b);
        if (!same_bits(left, right))
            return false;
        a = left.get_range_driver();
        b = right.get_range_driver();
    }
}
