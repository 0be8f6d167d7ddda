// Filing: from the pending list under a key, and out again.

#include "lbx/gnl/core/element_registry.h"

#include "lbx/gnl/core/expression_order.h"

#include <algorithm>

namespace gnl_detail {

element_kind kind_of(GNL_ELEMENT const & element)
{
    if (element.is_port()) {
        auto const & port = static_cast<GNL_PORT const &>(element);
        return port.is_logic() ? element_kind::logic : port.is_range_port() ? element_kind::range : element_kind::port;
    }
    if (element.is_parameter())
        return element_kind::parameter;
    if (element.is_generator())
        return element_kind::generator;
    return element.is_parameter_array() ? element_kind::parameter_array : element_kind::other;
}

namespace {

/// Mixes the identities of what an expression or a range is made of.
std::uint32_t hash_of_parts(element_kind kind, void const * first, void const * second, int number, int other_number)
{
    auto sum = std::uint64_t(reinterpret_cast<std::uintptr_t>(first)) * 0x9e3779b97f4a7c15U;
    sum = (sum ^ sum >> 29 ^ std::uint64_t(reinterpret_cast<std::uintptr_t>(second))) * 0xbf58476d1ce4e5b9U;
    sum = (sum ^ sum >> 31 ^ std::uint64_t(static_cast<std::uint32_t>(number)) << 32
           ^ static_cast<std::uint32_t>(other_number))
          * 0x94d049bb133111ebU;
    return static_cast<std::uint32_t>(sum >> 32 ^ sum) + static_cast<std::uint32_t>(kind);
}

} // namespace

std::uint32_t hash_of_logic(int operation, GNL_PORT const * first, GNL_PORT const * second)
{
    return hash_of_parts(element_kind::logic, first, second, operation, 0);
}

std::uint32_t hash_of_range(GNL_PORT const * port, int high, int low, GNL_GENERATOR const * level)
{
    return hash_of_parts(element_kind::range, port, level, high, low);
}

// ---- The table

void element_registry::slot_table::add(slot added, std::uint32_t hash, entry_table const & entries)
{
    if (m_taken + m_taken / 2 >= m_places.size())
        grow(entries);
    place(added, hash);
}

void element_registry::slot_table::place(slot placed, std::uint32_t hash)
{
    std::size_t at = hash & mask();
    while (m_places[at] != none)
        at = (at + 1) & mask();
    m_places[at] = placed;
    ++m_taken;
}

/// Makes room, and drops the marks of what was removed.
void element_registry::slot_table::grow(entry_table const & entries)
{
    slot_list kept;
    for (slot const which : m_places)
        if (which != none && which != removed)
            kept.push_back(which);
    std::size_t size = 8;
    while (2 * size < 5 * (kept.size() + 1)) // twice as many when all are kept
        size *= 2;
    m_places.assign(size, none);
    m_taken = 0;
    for (slot const which : kept)
        place(which, entries[which].hash);
}

void element_registry::slot_table::remove(slot which, std::uint32_t hash)
{
    for (std::size_t at = hash & mask(); m_places[at] != none; at = (at + 1) & mask())
        if (m_places[at] == which) {
            m_places[at] = removed;
            return;
        }
}

// ---- In

element_registry::element_registry(GNL_GENERATOR & owner)
    : m_owner(owner)
{
}

element_registry::~element_registry() = default;

element_registry::seldom_needed & element_registry::seldom()
{
    if (!m_seldom)
        m_seldom = std::make_unique<seldom_needed>();
    return *m_seldom;
}

void element_registry::add_entry(GNL_ELEMENT & element)
{
    if (element.m_parent && element.m_parent->m_registry)
        element.m_parent->m_registry->forget(element);
    element.m_parent = &m_owner;
    element.m_slot = static_cast<slot>(m_entries.size());
    m_entries.push_back({&element});
    ++m_count;
}

void element_registry::add_pending(GNL_ELEMENT & element)
{
    add_entry(element);
}

void element_registry::file_all_pending()
{
    while (m_filed_end < m_entries.size()) {
        slot const next = m_filed_end++;
        if (m_entries[next].state == entry_state::pending)
            file(next);
    }
}

std::uint32_t element_registry::hash_of(entry const & filed) const
{
    switch (filed.kind) {
    case element_kind::logic: {
        auto const & logic = static_cast<GNL_PORT_LOGIC const &>(*filed.element);
        return hash_of_logic(logic.get_operation(), logic.get_first_operand(), logic.get_second_operand());
    }
    case element_kind::range: {
        auto const & range = static_cast<GNL_PORT_OUTPUT_RANGE const &>(*filed.element);
        return hash_of_range(range.get_key_port(), range.get_high_index(), range.get_low_index(),
                             range.get_made_level());
    }
    default:
        return named_key(filed.kind, *filed.element).text().hash(filed.kind);
    }
}

bool element_registry::same_key(entry const & a, entry const & b) const
{
    if (a.hash != b.hash || a.kind != b.kind)
        return false;
    if (a.kind == element_kind::logic) {
        auto const & x = static_cast<GNL_PORT_LOGIC const &>(*a.element);
        auto const & y = static_cast<GNL_PORT_LOGIC const &>(*b.element);
        return x.get_operation() == y.get_operation() && x.get_first_operand() == y.get_first_operand()
               && x.get_second_operand() == y.get_second_operand();
    }
    if (a.kind == element_kind::range) {
        auto const & x = static_cast<GNL_PORT_OUTPUT_RANGE const &>(*a.element);
        auto const & y = static_cast<GNL_PORT_OUTPUT_RANGE const &>(*b.element);
        return x.get_key_port() == y.get_key_port() && x.get_made_level() == y.get_made_level()
               && x.get_high_index() == y.get_high_index() && x.get_low_index() == y.get_low_index();
    }
    return named_key(a.kind, *a.element).text().compare(named_key(b.kind, *b.element).text()) == 0;
}

/// Who has the key of the element in that slot now.
element_registry::slot element_registry::holder_of_key(slot which)
{
    entry const & wanted = m_entries[which];
    slot const found =
        m_table.find(wanted.hash, m_entries, [&](entry const & candidate) { return same_key(candidate, wanted); });
    if (found != slot_table::none || !has_explicit_keys())
        return found;
    return find_explicit(wanted.element->generate_key());
}

void element_registry::file(slot which)
{
    entry & filed = m_entries[which];
    filed.kind = kind_of(*filed.element);
    filed.hash = hash_of(filed);
    slot const holder = holder_of_key(which);
    if (holder != slot_table::none) {
        if (filed.kind == element_kind::generator
            && static_cast<GNL_GENERATOR const &>(*filed.element).get_instance_name().empty()) {
            wait_for_name(which);
            return;
        }
        shadow(holder);
    }
    m_table.add(which, filed.hash, m_entries);
    enter(which);
}

/// Tells the walks.
void element_registry::enter(slot which)
{
    entry & filed = m_entries[which];
    filed.state = entry_state::filed;
    ++m_filed_counts[static_cast<std::size_t>(filed.kind)];
    if (auto const & order = m_orders[static_cast<std::size_t>(filed.kind)])
        order->added.push_back(which);
}

void element_registry::file_under(GNL_ELEMENT & element, std::string const & key)
{
    file_pending();
    add_entry(element);
    slot const which = m_filed_end++;
    if (equal_folded(key, element.generate_key())) {
        file(which);
        return;
    }
    m_entries[which].kind = kind_of(element);
    if (slot const holder = find_by_text(key); holder != slot_table::none)
        shadow(holder);
    seldom().by_explicit_key[key] = which;
    seldom().explicit_keys[which] = key;
    enter(which);
}

void element_registry::file_option(GNL_PARAMETER & option)
{
    auto const * const given_by_author = find_declared_parameter(option.get_name());
    add_entry(option);
    if (!given_by_author)
        return;
    m_entries[option.m_slot].state = entry_state::shadowed;
    m_entries[option.m_slot].kind = element_kind::parameter;
}

void element_registry::file_again(GNL_ELEMENT & element)
{
    if (!knows(element)) {
        add_entry(element);
        return;
    }
    entry const & known = m_entries[element.m_slot];
    if (known.state == entry_state::pending)
        return;
    if (known.kind == element_kind::logic || known.kind == element_kind::range)
        seldom().made_renamed = true;
    add_entry(element);
}

void element_registry::make_late_names()
{
    for (; m_named_end < m_entries.size(); ++m_named_end)
        if (GNL_ELEMENT const * const element = m_entries[m_named_end].element)
            static_cast<void>(element->get_name());
}

void element_registry::wait_for_name(slot which)
{
    m_entries[which].state = entry_state::waiting;
    seldom().waiting[m_entries[which].hash].push_back(which);
}

// ---- Out

void element_registry::shadow(slot which)
{
    unfile(which);
    m_entries[which].state = entry_state::shadowed;
}

/// Takes a filed element out from under its key.
void element_registry::unfile(slot which)
{
    entry const & filed = m_entries[which];
    --m_filed_counts[static_cast<std::size_t>(filed.kind)];
    if (auto const & order = m_orders[static_cast<std::size_t>(filed.kind)]) {
        order->lost_some = true;
        if (order->made && !m_closing)
            order->made->remove(which);
    }
    if (m_seldom)
        if (auto const key = m_seldom->explicit_keys.find(which); key != m_seldom->explicit_keys.end()) {
            m_seldom->by_explicit_key.erase(key->second);
            m_seldom->explicit_keys.erase(key);
            return;
        }
    if (!m_closing)
        m_table.remove(which, filed.hash);
}

/// The key of a generator without an instance name is free: the next in order of declaration takes it.
void element_registry::release_waiting(std::uint32_t hash)
{
    auto const found = m_seldom->waiting.find(hash);
    if (found == m_seldom->waiting.end())
        return;
    auto queue = std::move(found->second);
    m_seldom->waiting.erase(found);
    for (; !queue.empty(); queue.pop_front()) {
        slot const next = queue.front();
        if (m_entries[next].state != entry_state::waiting)
            continue;
        file(next);
        if (m_entries[next].state == entry_state::filed) {
            queue.pop_front();
            break;
        }
    }
    auto & still_waiting = m_seldom->waiting[hash];
    still_waiting.insert(still_waiting.end(), queue.begin(), queue.end());
}

bool element_registry::knows(GNL_ELEMENT const & element) const
{
    return element.m_slot < m_entries.size() && m_entries[element.m_slot].element == &element;
}

void element_registry::forget(GNL_ELEMENT & element)
{
    if (!knows(element))
        return;
    slot const which = element.m_slot;
    element.m_slot = GNL_ELEMENT::unregistered;
    entry & forgotten = m_entries[which];
    bool const was_filed = forgotten.state == entry_state::filed;
    if (was_filed)
        unfile(which);
    forgotten.element = nullptr;
    forgotten.state = entry_state::gone;
    --m_count;
    if (was_filed && !m_closing && forgotten.kind == element_kind::generator && m_seldom)
        release_waiting(forgotten.hash);
}

void element_registry::delete_all()
{
    m_closing = true;
    for (std::size_t i = m_entries.size(); i-- > 0;) {
        GNL_ELEMENT * const element = m_entries[i].element;
        if (!element)
            continue;
        if (!element->is_parameter()) {
            delete element;
            continue;
        }
        forget(*element);
        element->m_parent = nullptr;
    }
}

} // namespace gnl_detail
