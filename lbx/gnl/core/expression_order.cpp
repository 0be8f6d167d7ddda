#include "lbx/gnl/core/expression_order.h"

#include <algorithm>
#include <iterator>

namespace gnl_detail {

void expression_order::set_run(slot which, std::uint32_t run)
{
    if (which >= m_run_of.size())
        m_run_of.resize(std::max<std::size_t>(which + std::size_t(1), 2 * m_run_of.size()), not_placed);
    m_run_of[which] = run;
}

bool expression_order::begin_placing(slot which)
{
    if (is_being_placed(which))
        return false;
    set_run(which, being_placed);
    return true;
}

void expression_order::renumber(std::size_t first_rank)
{
    for (std::size_t rank = first_rank; rank < m_sequence.size(); ++rank)
        m_rank[m_sequence[rank]] = rank;
}

void expression_order::split(std::size_t rank)
{
    auto const made = static_cast<std::uint32_t>(m_runs.size());
    m_runs.emplace_back();
    auto & full = m_runs[m_sequence[rank]];
    auto const middle = full.begin() + static_cast<std::ptrdiff_t>(full.size() / 2);
    m_runs[made].assign(middle, full.end());
    full.erase(middle, full.end());
    for (slot const moved : m_runs[made])
        set_run(moved, made);
    m_sequence.insert(m_sequence.begin() + static_cast<std::ptrdiff_t>(rank + 1), made);
    m_rank.push_back(0);
    renumber(rank + 1);
}

void expression_order::place(slot which)
{
    if (m_sequence.empty()) {
        refill({which});
        return;
    }
    auto run = std::partition_point(m_sequence.begin(), m_sequence.end(),
                                    [&](std::uint32_t number) { return m_before(m_runs[number].back(), which); });
    if (run == m_sequence.end())
        --run;
    auto & slots = m_runs[*run];
    slots.insert(std::partition_point(slots.begin(), slots.end(), [&](slot other) { return m_before(other, which); }),
                 which);
    set_run(which, *run);
    ++m_count;
    if (slots.size() > longest_run)
        split(static_cast<std::size_t>(run - m_sequence.begin()));
}

void expression_order::place_sorted(slot_list const & sorted)
{
    if (sorted.size() < m_count / 32) {
        for (slot const which : sorted)
            place(which);
        return;
    }
    auto const placed = all();
    slot_list merged;
    merged.reserve(placed.size() + sorted.size());
    std::merge(placed.begin(), placed.end(), sorted.begin(), sorted.end(), std::back_inserter(merged), m_before);
    refill(merged);
}

/// Runs are left half full, so that what comes later finds room.
void expression_order::refill(slot_list const & sorted)
{
    m_runs.clear();
    m_sequence.clear();
    m_count = sorted.size();
    for (std::size_t begin = 0; begin < sorted.size(); begin += longest_run / 2) {
        auto const end = std::min(begin + longest_run / 2, sorted.size());
        auto const number = static_cast<std::uint32_t>(m_runs.size());
        m_runs.emplace_back(sorted.begin() + static_cast<std::ptrdiff_t>(begin),
                            sorted.begin() + static_cast<std::ptrdiff_t>(end));
        m_sequence.push_back(number);
        for (std::size_t i = begin; i < end; ++i)
            set_run(sorted[i], number);
    }
    m_rank.resize(m_runs.size());
    renumber(0);
}

void expression_order::remove(slot which)
{
    if (!is_placed(which)) {
        if (is_being_placed(which))
            set_run(which, not_placed);
        return;
    }
    std::uint32_t const number = m_run_of[which];
    m_run_of[which] = not_placed;
    --m_count;
    auto & slots = m_runs[number];
    slots.erase(std::find(slots.begin(), slots.end(), which));
    if (!slots.empty())
        return;
    std::size_t const rank = m_rank[number];
    m_sequence.erase(m_sequence.begin() + static_cast<std::ptrdiff_t>(rank));
    renumber(rank);
}

bool expression_order::comes_before(slot a, slot b) const
{
    std::uint32_t const run_of_a = m_run_of[a], run_of_b = m_run_of[b];
    if (run_of_a != run_of_b)
        return m_rank[run_of_a] < m_rank[run_of_b];
    auto const & slots = m_runs[run_of_a];
    return *std::find_if(slots.begin(), slots.end(), [&](slot which) { return which == a || which == b; }) == a;
}

expression_order::slot_list expression_order::all() const
{
    slot_list slots;
    slots.reserve(m_count);
    for (std::uint32_t const number : m_sequence)
        slots.insert(slots.end(), m_runs[number].begin(), m_runs[number].end());
    return slots;
}

} // namespace gnl_detail
