#pragma once

#include "gnl_generator.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace gnl_detail {

/// Expressions or ranges of one generator in the order of their keys, by slot.
///
/// A key holds the keys of the operands, so that comparing two keys means comparing whole netlists. But operands exist
/// before what is made of them: each object is put in its place behind its operands, and from then on two operands are
/// compared by their places. Places are a list of short runs: finding one takes a comparison per doubling, and asking
/// which of two comes first takes their runs' ranks.
class expression_order
{
public:
    using slot = std::uint32_t;
    using slot_list = std::vector<slot>;
    using comparison = std::function<bool(slot, slot)>;

    /// Whether the first of two different slots comes before the second.
    explicit expression_order(comparison before)
        : m_before(std::move(before))
    {
    }

    bool is_placed(slot which) const { return run_of(which) < being_placed; }
    /// Marks `which` until it is placed; false if it was marked already.
    bool begin_placing(slot which);
    bool is_being_placed(slot which) const { return run_of(which) == being_placed; }
    void place(slot which);
    /// Places many, which come in order.
    void place_sorted(slot_list const & sorted);
    void remove(slot which);
    /// Both must be placed.
    bool comes_before(slot a, slot b) const;
    slot_list all() const;

private:
    static constexpr std::uint32_t not_placed = 0xffffffffU;
    static constexpr std::uint32_t being_placed = 0xfffffffeU;
    static constexpr std::size_t longest_run = 256;

    std::uint32_t run_of(slot which) const { return which < m_run_of.size() ? m_run_of[which] : not_placed; }
    void set_run(slot which, std::uint32_t run);
    void split(std::size_t rank);
    void renumber(std::size_t first_rank);
    void refill(slot_list const & sorted);

    comparison m_before;
    std::vector<slot_list> m_runs;         ///< by number; never empty while in the sequence
    std::vector<std::uint32_t> m_sequence; ///< numbers of runs in order
    std::vector<std::size_t> m_rank;       ///< place in the sequence by number of run
    std::vector<std::uint32_t> m_run_of;   ///< by slot
    std::size_t m_count = 0;
};

/// Compares keys of ports without building them: what a key text would spell out is visited only as far as two keys
/// are alike.
class expression_comparison
{
public:
    /// Below 0, 0 or above 0, as the key texts stand in order. With `inside` they are compared as parts of a longer
    /// key, where a ";" follows each.
    int compare(GNL_PORT const & a, GNL_PORT const & b, bool inside);

private:
    enum class aspect : std::uint8_t { key, parent_key, level_and_bits };
    struct question
    {
        GNL_PORT const * a;
        GNL_PORT const * b;
        aspect what;
        bool inside;
    };

    int answer(question const & asked);
    int compare_keys(question const & asked);
    int open(GNL_PORT_LOGIC const & a, GNL_PORT_LOGIC const & b, bool inside);
    int open(GNL_PORT_OUTPUT_RANGE const & a, GNL_PORT_OUTPUT_RANGE const & b, bool inside);
    void ask_operands(GNL_PORT const * a, GNL_PORT const * b, bool inside);

    std::vector<question> m_questions; ///< the next one last
};

/// Whether the keys of two neighbours in the order inside longer keys can stand the other way round by themselves.
bool keys_differ_at_end_only(GNL_PORT const & a, GNL_PORT const & b);

/// Whether the key of `port` is exactly this text, folded. Takes no longer than the text is.
bool has_key(GNL_PORT const & port, std::string_view key);

/// What settles most comparisons of two keys without following pointers: the bytes that an object's key begins with,
/// and the upper bit of the range that it begins with. It never contradicts the order inside longer keys.
struct key_hint
{
    /// `skipped` bytes of the leading names are the same in all objects that are compared.
    key_hint(GNL_PORT const & made, std::size_t skipped);
    /// Below 0, 0 when it can't tell, or above 0.
    int compare(key_hint const & other) const;

    std::uint64_t lead = 0;
    GNL_PORT const * base = nullptr; ///< of the range that the key begins with
    GNL_GENERATOR const * level = nullptr;
    std::uint64_t high_digits = 0;
};

/// The name that the key of an expression or a range begins with, if it begins with a named port's.
std::string_view leading_name(GNL_PORT const & made);

} // namespace gnl_detail
