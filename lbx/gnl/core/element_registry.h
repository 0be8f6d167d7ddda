#pragma once

#include "gnl_element.h"
#include "gnl_generator.h"

#include "lbx/gnl/core/growing_table.h"
#include "lbx/gnl/core/key_text.h"
#include "lbx/gnl/ports/range_base.h"

#include <array>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace gnl_detail {

class expression_order;

/// The elements of one kind in key order, as they were when the walk began: elements that are filed meanwhile do not
/// disturb it.
template <class ELEMENT> class element_walk
{
public:
    using list = std::vector<GNL_ELEMENT *>;
    explicit element_walk(std::shared_ptr<list const> elements)
        : m_elements(std::move(elements))
    {
    }

    class iterator
    {
    public:
        explicit iterator(list::const_iterator at)
            : m_at(at)
        {
        }
        ELEMENT & operator*() const { return *static_cast<ELEMENT *>(*m_at); }
        iterator & operator++()
        {
            ++m_at;
            return *this;
        }
        bool operator==(iterator const & other) const = default;

    private:
        list::const_iterator m_at;
    };
    iterator begin() const { return iterator(m_elements->begin()); }
    iterator end() const { return iterator(m_elements->end()); }
    bool empty() const { return m_elements->empty(); }
    std::size_t size() const { return m_elements->size(); }

private:
    std::shared_ptr<list const> m_elements;
};

std::uint32_t hash_of_logic(int operation, GNL_PORT const * first, GNL_PORT const * second);
std::uint32_t hash_of_range(GNL_PORT const * port, int high, int low, GNL_GENERATOR const * level);

/// The elements of one generator: those that wait for their key, and those that are filed.
///
/// To the outside it is a map ordered by key text. Inside, keys are never stored: an expression's key holds the keys of
/// its operands and would double with each level. Elements are found through one hash table, named ones by kind and
/// folded name, expressions and ranges by the identity of what they are made of; order is made when a walk asks for it,
/// by comparing keys without building them.
///
/// An element has a slot of its own from the moment it registers; slots are not used again.
class element_registry
{
public:
    explicit element_registry(GNL_GENERATOR & owner);
    ~element_registry();
    element_registry(element_registry const &) = delete;
    element_registry & operator=(element_registry const &) = delete;

    /// @name Filing
    /// Defined in core/element_registry.cpp. A registered element belongs to this registry's owner.
    /// @{
    void add_pending(GNL_ELEMENT & element);
    /// Files `element` under an explicit key, as a caller of `GNL_GENERATOR::insert` may ask.
    void file_under(GNL_ELEMENT & element, std::string const & key);
    /// Files an option of the owner, at any time; a parameter that the author gave the same name stays in front.
    void file_option(GNL_PARAMETER & option);
    /// Something in the element's key has changed.
    void file_again(GNL_ELEMENT & element);
    /// Makes the names that are late; looks at each element once over all calls.
    void make_late_names();
    /// Forgets the element wherever it is; never touches an entry that is another element's.
    void forget(GNL_ELEMENT & element);
    bool knows(GNL_ELEMENT const & element) const;
    bool empty() const { return m_count == 0; }
    /// Files what is pending. A generator without an instance name stays pending while another holds its key.
    void file_pending()
    {
        if (m_filed_end < m_entries.size())
            file_all_pending();
    }
    /// Deletes whatever is still held and is no parameter; parameters stay their author's and lose their parent.
    void delete_all();
    /// @}

    /// @name Look-up
    /// Defined in core/element_lookup.cpp. Each files what is pending first, and answers null without a hit.
    /// @{

    /// The element under exactly this key, whatever its kind.
    GNL_ELEMENT * find(std::string_view key);
    GNL_PORT * find_port(std::string_view name);
    GNL_PARAMETER * find_parameter(std::string_view name);
    /// A parameter as above; an option only if its object has been needed before.
    GNL_PARAMETER * find_declared_parameter(std::string_view name);
    GNL_PARAMETER_ARRAY * find_parameter_array(std::string_view name);
    GNL_GENERATOR * find_generator(std::string_view name, std::string_view instance_name, int slice_index);
    GNL_PORT_LOGIC * find_logic(int operation, GNL_PORT const * first, GNL_PORT const * second);
    /// The range that `range(high, low)` made of `port` at `level`.
    GNL_PORT_OUTPUT_RANGE * find_range(GNL_PORT const * port, int high, int low, GNL_GENERATOR const * level);
    /// Any port of the name, expressions and ranges included; the first in key order.
    GNL_PORT * find_port_of_any_kind(std::string_view name);
    /// The first generator in key order that has the instance name.
    GNL_GENERATOR * find_instance(std::string_view instance_name);
    /// @}

    /// @name Bases of ranges of ranges
    /// For `base_of` alone. Defined in core/element_lookup.cpp.
    /// @{

    /// Null when none is kept, or the range is no element of this registry.
    range_base const * known_range_base(GNL_PORT_OUTPUT_RANGE const & range) const;
    void keep_range_base(GNL_PORT_OUTPUT_RANGE const & range, range_base const & base);
    /// A range selects from something else now.
    void forget_range_bases();
    /// @}

    /// @name Walks
    /// In key order; each files what is pending first. Defined in core/element_walks.cpp.
    /// @{
    element_walk<GNL_GENERATOR> generators();
    /// Without the slices of the owner when it is an array master: what a design instantiates.
    std::vector<GNL_GENERATOR *> subdesigns();
    /// The generators without an instance name, those that wait for one included; equal keys in order of declaration.
    std::vector<GNL_GENERATOR *> unnamed_generators();
    element_walk<GNL_PORT_LOGIC> logic_ports();
    /// All parameters, the 18 options included.
    element_walk<GNL_PARAMETER> parameters();
    /// The parameters that the generator's author declared; options are never written.
    std::vector<GNL_PARAMETER *> declared_parameters();
    element_walk<GNL_PARAMETER_ARRAY> parameter_arrays();
    /// Declared pins, wires, concatenations and constants.
    element_walk<GNL_PORT> ports();
    element_walk<GNL_PORT_OUTPUT_RANGE> ranges();
    /// All ports of all kinds: expressions, then ports, then ranges.
    std::vector<GNL_PORT *> all_ports();
    /// Those of them that `wanted` accepts. A kind of which none is wanted is not put in order: that costs more than
    /// asking each.
    template <class WANTED> std::vector<GNL_PORT *> ports_where(WANTED wanted);
    /// The expressions and the ranges in no particular order, for whom order means nothing: making it takes longer than
    /// looking at each.
    template <class ELEMENT> class unordered_walk;
    unordered_walk<GNL_PORT_LOGIC> unordered_logic_ports();
    unordered_walk<GNL_PORT_OUTPUT_RANGE> unordered_ranges();
    /// Which of two expressions or ranges of one generator comes first, below 0 or above 0; 0 if that is not known yet.
    static int compare_places(GNL_PORT const & a, GNL_PORT const & b);
    /// @}

private:
    using slot = std::uint32_t;
    using slot_list = std::vector<slot>;

    class made_placing; // defined beside its only user

    enum class entry_state : std::uint8_t {
        pending,
        waiting, ///< a generator without an instance name whose key another one holds
        filed,
        shadowed, ///< another element has taken the key: held until the owner ends, and not found any more
        gone
    };
    struct entry
    {
        GNL_ELEMENT * element;
        std::uint32_t hash = 0;
        element_kind kind = element_kind::other;
        entry_state state = entry_state::pending;
    };

    using entry_table = growing_table<entry>;

    /// Slots by hash, with open addressing.
    class slot_table
    {
    public:
        static constexpr slot none = 0xffffffffU;

        /// The slot among those of `hash` that `match` accepts by its entry, or none.
        template <class MATCH> slot find(std::uint32_t hash, entry_table const & entries, MATCH match) const
        {
            if (m_places.empty())
                return none;
            for (std::size_t at = hash & mask();; at = (at + 1) & mask()) {
                if (m_places[at] == none)
                    return none;
                if (m_places[at] == removed)
                    continue;
                entry const & candidate = entries[m_places[at]];
                if (candidate.hash == hash && candidate.element && match(candidate))
                    return m_places[at];
            }
        }
        void add(slot added, std::uint32_t hash, entry_table const & entries);
        void remove(slot which, std::uint32_t hash);

    private:
        static constexpr slot removed = 0xfffffffeU;
        std::size_t mask() const { return m_places.size() - 1; }
        void place(slot placed, std::uint32_t hash);
        void grow(entry_table const & entries);

        slot_list m_places; ///< as many as a power of 2
        std::size_t m_taken = 0;
    };

    /// The filed elements of one kind in key order, brought up to date when a walk asks.
    struct kind_order
    {
        slot_list sorted;
        slot_list added; ///< filed since
        bool lost_some = false;
        std::shared_ptr<std::vector<GNL_ELEMENT *> const> elements; ///< of `sorted`
        std::unique_ptr<expression_order> made;                     ///< of expressions and ranges
    };

    /// Slots by a name that is not their key, entered when somebody asks.
    struct name_index
    {
        std::unordered_multimap<std::uint32_t, slot> slots;
        slot entered_end = 0;
    };

    /// What few generators need; a design has generators by the 100,000.
    struct seldom_needed
    {
        std::unordered_map<std::uint32_t, std::deque<slot>> waiting; ///< by hash, in order of declaration
        std::map<std::string, slot, LESS_C_STRING> by_explicit_key;
        std::unordered_map<slot, std::string> explicit_keys;
        std::unordered_map<slot, range_base> range_bases;
        name_index made_names;     ///< of expressions and ranges
        name_index instance_names; ///< of generators
        bool made_renamed = false; ///< an expression or a range has a name that an author chose
    };

    void add_entry(GNL_ELEMENT & element);
    void file_all_pending();
    void file(slot which);
    void enter(slot which);
    void shadow(slot which);
    void unfile(slot which);
    void wait_for_name(slot which);
    void release_waiting(std::uint32_t hash);
    std::uint32_t hash_of(entry const & filed) const;
    bool same_key(entry const & a, entry const & b) const;
    slot holder_of_key(slot which);

    seldom_needed & seldom();
    bool has_explicit_keys() const { return m_seldom && !m_seldom->by_explicit_key.empty(); }
    slot find_named(element_kind kind, key_text const & text) const;
    slot find_explicit(std::string const & key) const;
    template <class TYPE> TYPE * find_by_name(element_kind kind, std::string_view prefix, std::string_view name);
    slot find_by_text(std::string_view key);
    slot find_made(element_kind kind, std::string_view key);
    template <class MATCH> slot_list find_indexed(name_index & index, std::string_view name, MATCH has_name);
    GNL_PORT * find_made_by_name(std::string_view name);
    template <class TYPE> TYPE * element_at(slot which) const
    {
        return which == slot_table::none ? nullptr : static_cast<TYPE *>(m_entries[which].element);
    }

    std::shared_ptr<std::vector<GNL_ELEMENT *> const> elements_of(element_kind kind);
    kind_order & brought_up_to_date(element_kind kind);
    kind_order & order_of(element_kind kind);
    void sort_named(element_kind kind, kind_order & order) const;
    void sort_made(element_kind kind, kind_order & order);
    void sort_by_key_text(kind_order & order) const;
    std::string key_of(slot which) const;
    template <class TYPE> element_walk<TYPE> walk(element_kind kind) { return element_walk<TYPE>(elements_of(kind)); }

    template <class WANTED> bool holds_any(element_kind kind, WANTED wanted);

    GNL_GENERATOR & m_owner;
    entry_table m_entries; ///< by slot
    slot m_filed_end = 0;  ///< the first slot that has not been looked at
    slot m_count = 0;      ///< of all that is held
    slot m_named_end = 0;  ///< no name before this slot is late
    bool m_closing = false;
    slot_table m_table;
    std::array<slot, element_kind_count> m_filed_counts{};                ///< by kind
    std::array<std::unique_ptr<kind_order>, element_kind_count> m_orders; ///< null until the first walk
    std::unique_ptr<seldom_needed> m_seldom;
};

/// The elements of one kind in the order of their slots. Those that come while it is walked may be left out.
template <class ELEMENT> class element_registry::unordered_walk
{
public:
    unordered_walk(element_registry & registry, element_kind kind)
        : m_registry(registry)
        , m_kind(kind)
    {
        registry.file_pending();
        m_end = static_cast<slot>(registry.m_entries.size());
    }

    class iterator
    {
    public:
        iterator(unordered_walk const & walk, slot at)
            : m_walk(walk)
            , m_at(at)
        {
            skip_others();
        }
        ELEMENT & operator*() const { return *static_cast<ELEMENT *>(m_walk.m_registry.m_entries[m_at].element); }
        iterator & operator++()
        {
            ++m_at;
            skip_others();
            return *this;
        }
        bool operator==(iterator const & other) const { return m_at == other.m_at; }

    private:
        void skip_others()
        {
            while (m_at < m_walk.m_end && !m_walk.holds(m_at))
                ++m_at;
        }

        unordered_walk const & m_walk;
        slot m_at;
    };
    iterator begin() const { return iterator(*this, 0); }
    iterator end() const { return iterator(*this, m_end); }

private:
    bool holds(slot at) const
    {
        entry const & held = m_registry.m_entries[at];
        return held.kind == m_kind && held.state == entry_state::filed;
    }

    element_registry & m_registry;
    element_kind m_kind;
    slot m_end;
};

inline element_registry::unordered_walk<GNL_PORT_LOGIC> element_registry::unordered_logic_ports()
{
    return {*this, element_kind::logic};
}

inline element_registry::unordered_walk<GNL_PORT_OUTPUT_RANGE> element_registry::unordered_ranges()
{
    return {*this, element_kind::range};
}

template <class WANTED> bool element_registry::holds_any(element_kind kind, WANTED wanted)
{
    for (GNL_PORT & port : unordered_walk<GNL_PORT>(*this, kind))
        if (wanted(port))
            return true;
    return false;
}

template <class WANTED> std::vector<GNL_PORT *> element_registry::ports_where(WANTED wanted)
{
    std::vector<GNL_PORT *> found;
    for (auto const kind : {element_kind::logic, element_kind::port, element_kind::range})
        if (holds_any(kind, wanted))
            for (GNL_PORT & port : walk<GNL_PORT>(kind))
                if (wanted(port))
                    found.push_back(&port);
    return found;
}

} // namespace gnl_detail
