#pragma once

#include "gnl_port_concat.h"

#include <cstddef>
#include <vector>

namespace gnl_detail {

/// The elements of a concatenation, from the highest bits down.
///
/// A port of 100,000 bits is often assigned bit by bit, from either end or in any order, so the list is kept in chunks:
/// a new element moves the elements of one chunk at most, and a bit is found by two binary searches. Appending below
/// raises the bits of all that is there; each chunk takes that over when it is next looked at.
///
/// Pointers and places hold until the next change of the list.
class concat_elements
{
public:
    /// Where an element is, or would go.
    struct place
    {
        std::size_t chunk = 0;
        std::size_t offset = 0;
    };

    int size() const { return m_size; }
    bool empty() const { return m_size == 0; }

    /// The element at position `index` from the highest down; null outside the list. Quick for neighbouring indices.
    GNL_SUBCONCAT * at(int index);
    /// The highest element whose lowest bit is not above `bit`: where an element that ends in `bit` goes.
    place place_below(int bit);
    /// The element at `where`; null at the end.
    GNL_SUBCONCAT * at(place where);
    /// The element above `where`; null at the beginning.
    GNL_SUBCONCAT * above(place where);
    GNL_SUBCONCAT * highest() { return at(place{}); }
    GNL_SUBCONCAT * lowest() { return above(end()); }

    /// Whether an element holds one of the bits `high` down to `low`.
    bool holds_any(int high, int low);

    void insert(place where, GNL_SUBCONCAT const & element);
    void erase(place where);
    void push_highest(GNL_SUBCONCAT const & element) { insert(place{}, element); }
    void push_lowest(GNL_SUBCONCAT const & element) { insert(end(), element); }
    /// Moves all elements up by `bits`.
    void raise(int bits) { m_raised += bits; }

private:
    struct chunk
    {
        std::vector<GNL_SUBCONCAT> elements; ///< never empty
        long long raised = 0;                ///< how much of `m_raised` the elements have taken over
    };

    place end() const { return {m_chunks.size(), 0}; }
    chunk & current(std::size_t index);
    void split(std::size_t index);
    place room_at(place where);

    static constexpr std::size_t most_in_chunk = 128;

    std::vector<chunk> m_chunks;
    long long m_raised = 0;
    int m_size = 0;
    std::size_t m_seen_chunk = 0; ///< the chunk in which `at` found its last element
    int m_seen_first = 0;         ///< position of that chunk's first element
};

} // namespace gnl_detail
