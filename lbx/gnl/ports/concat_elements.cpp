#include "concat_elements.h"

#include "saturated.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace gnl_detail {

GNL_SUBCONCAT * concat_elements::at(int index)
{
    if (index < 0 || index >= m_size)
        return nullptr;
    while (index < m_seen_first)
        m_seen_first -= static_cast<int>(m_chunks[--m_seen_chunk].elements.size());
    while (index - m_seen_first >= static_cast<int>(m_chunks[m_seen_chunk].elements.size()))
        m_seen_first += static_cast<int>(m_chunks[m_seen_chunk++].elements.size());
    return &current(m_seen_chunk).elements[static_cast<std::size_t>(index - m_seen_first)];
}

concat_elements::place concat_elements::place_below(int bit)
{
    auto const chunk_at = std::partition_point(m_chunks.begin(), m_chunks.end(), [&](chunk const & c) {
        return c.elements.back().low_index + (m_raised - c.raised) > bit;
    });
    if (chunk_at == m_chunks.end())
        return end();
    auto const index = static_cast<std::size_t>(chunk_at - m_chunks.begin());
    auto const & elements = current(index).elements;
    auto const element_at = std::partition_point(elements.begin(), elements.end(),
                                                 [&](GNL_SUBCONCAT const & e) { return e.low_index > bit; });
    return {index, static_cast<std::size_t>(element_at - elements.begin())};
}

GNL_SUBCONCAT * concat_elements::at(place where)
{
    return where.chunk < m_chunks.size() ? &current(where.chunk).elements[where.offset] : nullptr;
}

GNL_SUBCONCAT * concat_elements::above(place where)
{
    if (where.offset > 0)
        return &current(where.chunk).elements[where.offset - 1];
    return where.chunk > 0 ? &current(where.chunk - 1).elements.back() : nullptr;
}

bool concat_elements::holds_any(int high, int low)
{
    GNL_SUBCONCAT const * const element = at(place_below(high));
    return element && (element->low_index == high || element->high_index >= low);
}

void concat_elements::insert(place where, GNL_SUBCONCAT const & element)
{
    place const room = room_at(where);
    auto & elements = current(room.chunk).elements;
    elements.insert(elements.begin() + static_cast<std::ptrdiff_t>(room.offset), element);
    ++m_size;
    m_seen_chunk = 0;
    m_seen_first = 0;
}

void concat_elements::erase(place where)
{
    auto & elements = current(where.chunk).elements;
    elements.erase(elements.begin() + static_cast<std::ptrdiff_t>(where.offset));
    if (elements.empty())
        m_chunks.erase(m_chunks.begin() + static_cast<std::ptrdiff_t>(where.chunk));
    --m_size;
    m_seen_chunk = 0;
    m_seen_first = 0;
}

/// The chunk with its elements where they are now.
concat_elements::chunk & concat_elements::current(std::size_t index)
{
    chunk & found = m_chunks[index];
    if (long long const by = m_raised - found.raised; by != 0) {
        for (GNL_SUBCONCAT & element : found.elements) {
            element.high_index = saturated(element.high_index + by);
            element.low_index = saturated(element.low_index + by);
        }
        found.raised = m_raised;
    }
    return found;
}

/// Moves the lower half of a chunk into one of its own.
void concat_elements::split(std::size_t index)
{
    chunk & upper = current(index);
    auto const half = upper.elements.begin() + static_cast<std::ptrdiff_t>(upper.elements.size() / 2);
    chunk lower;
    lower.raised = m_raised;
    lower.elements.assign(half, upper.elements.end());
    upper.elements.erase(half, upper.elements.end());
    m_chunks.insert(m_chunks.begin() + static_cast<std::ptrdiff_t>(index) + 1, std::move(lower));
}

/// A chunk that can take one more element at `where`. At the border of two chunks the upper one takes it if it can. At
/// both ends of the list a full chunk stays full, so that elements that come in order fill their chunks.
concat_elements::place concat_elements::room_at(place where)
{
    auto const is_full = [&](std::size_t index) { return m_chunks[index].elements.size() >= most_in_chunk; };
    if (where.offset == 0 && where.chunk > 0 && !is_full(where.chunk - 1))
        return {where.chunk - 1, m_chunks[where.chunk - 1].elements.size()};
    if (where.chunk < m_chunks.size() && !is_full(where.chunk))
        return where;
    if (where.offset == 0) {
        chunk fresh;
        fresh.raised = m_raised;
        m_chunks.insert(m_chunks.begin() + static_cast<std::ptrdiff_t>(where.chunk), std::move(fresh));
        return {where.chunk, 0};
    }
    split(where.chunk);
    std::size_t const kept = m_chunks[where.chunk].elements.size();
    return where.offset <= kept ? where : place{where.chunk + 1, where.offset - kept};
}

} // namespace gnl_detail
