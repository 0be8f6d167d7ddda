// Finding elements, by key, by name, or by what they are made of.

#include "lbx/gnl/core/element_registry.h"

#include "lbx/gnl/core/expression_order.h"
#include "lbx/gnl/core/option_set.h"

#include <algorithm>

namespace gnl_detail {

element_registry::slot element_registry::find_named(element_kind kind, key_text const & text) const
{
    return m_table.find(text.hash(kind), m_entries, [&](entry const & candidate) {
        return candidate.kind == kind && named_key(kind, *candidate.element).text().compare(text) == 0;
    });
}

element_registry::slot element_registry::find_explicit(std::string const & key) const
{
    if (!has_explicit_keys())
        return slot_table::none;
    auto const found = m_seldom->by_explicit_key.find(key);
    return found == m_seldom->by_explicit_key.end() ? slot_table::none : found->second;
}

template <class TYPE>
TYPE * element_registry::find_by_name(element_kind kind, std::string_view prefix, std::string_view name)
{
    file_pending();
    slot const found = find_named(kind, key_text(name));
    if (found != slot_table::none || !has_explicit_keys())
        return element_at<TYPE>(found);
    slot const under_key = find_explicit(std::string(prefix).append(name));
    bool const is_meant = under_key != slot_table::none && m_entries[under_key].kind == kind
                          && equal_folded(m_entries[under_key].element->get_name(), name);
    return is_meant ? element_at<TYPE>(under_key) : nullptr;
}

GNL_PORT * element_registry::find_port(std::string_view name)
{
    return find_by_name<GNL_PORT>(element_kind::port, "PORT;", name);
}

GNL_PARAMETER * element_registry::find_parameter(std::string_view name)
{
    if (auto * const found = find_by_name<GNL_PARAMETER>(element_kind::parameter, "PAR;", name))
        return found;
    option_id id{};
    return option_set::declares(name, id) && !m_closing ? &m_owner.option(id) : nullptr;
}

GNL_PARAMETER * element_registry::find_declared_parameter(std::string_view name)
{
    return find_by_name<GNL_PARAMETER>(element_kind::parameter, "PAR;", name);
}

GNL_PARAMETER_ARRAY * element_registry::find_parameter_array(std::string_view name)
{
    return find_by_name<GNL_PARAMETER_ARRAY>(element_kind::parameter_array, "PAR_ARY;", name);
}

GNL_GENERATOR * element_registry::find_generator(std::string_view name, std::string_view instance_name, int slice_index)
{
    file_pending();
    return element_at<GNL_GENERATOR>(find_named(element_kind::generator, key_text(name, instance_name, slice_index)));
}

GNL_PORT_LOGIC * element_registry::find_logic(int operation, GNL_PORT const * first, GNL_PORT const * second)
{
    file_pending();
    auto const hash = hash_of_logic(operation, first, second);
    return element_at<GNL_PORT_LOGIC>(m_table.find(hash, m_entries, [&](entry const & candidate) {
        if (candidate.kind != element_kind::logic)
            return false;
        auto const & logic = static_cast<GNL_PORT_LOGIC const &>(*candidate.element);
        return logic.get_operation() == operation && logic.get_first_operand() == first
               && logic.get_second_operand() == second;
    }));
}

GNL_PORT_OUTPUT_RANGE * element_registry::find_range(GNL_PORT const * port, int high, int low,
                                                     GNL_GENERATOR const * level)
{
    file_pending();
    auto const hash = hash_of_range(port, high, low, level);
    return element_at<GNL_PORT_OUTPUT_RANGE>(m_table.find(hash, m_entries, [&](entry const & candidate) {
        if (candidate.kind != element_kind::range)
            return false;
        auto const & range = static_cast<GNL_PORT_OUTPUT_RANGE const &>(*candidate.element);
        return range.get_key_port() == port && range.get_made_level() == level && range.get_high_index() == high
               && range.get_low_index() == low;
    }));
}

// ---- Keys

namespace {

/// Cuts `prefix` off the front of `key`, if it begins with it.
bool cut_prefix(std::string_view & key, std::string_view prefix)
{
    if (!equal_folded(key.substr(0, prefix.size()), prefix))
        return false;
    key.remove_prefix(prefix.size());
    return true;
}

} // namespace

/// Expressions and ranges are looked for one by one: their keys are not kept.
element_registry::slot element_registry::find_made(element_kind kind, std::string_view key)
{
    auto const & order = brought_up_to_date(kind);
    auto const found = std::find_if(order.sorted.begin(), order.sorted.end(), [&](slot candidate) {
        return has_key(static_cast<GNL_PORT const &>(*m_entries[candidate].element), key);
    });
    return found == order.sorted.end() ? slot_table::none : *found;
}

element_registry::slot element_registry::find_by_text(std::string_view key)
{
    file_pending();
    slot found = find_explicit(std::string(key));
    std::string_view rest = key;
    if (found != slot_table::none)
        return found;
    if (cut_prefix(rest, "PORT;"))
        found = find_named(element_kind::port, key_text(rest));
    else if (cut_prefix(rest, "PAR;"))
        found = find_named(element_kind::parameter, key_text(rest));
    else if (cut_prefix(rest, "PAR_ARY;"))
        found = find_named(element_kind::parameter_array, key_text(rest));
    else if (cut_prefix(rest, "GNRTR;"))
        found = find_named(element_kind::generator, key_text(rest));
    else if (cut_prefix(rest, "LGC;"))
        found = find_made(element_kind::logic, key);
    else if (cut_prefix(rest, "RNG;"))
        found = find_made(element_kind::range, key);
    return found != slot_table::none ? found : find_named(element_kind::other, key_text(key));
}

GNL_ELEMENT * element_registry::find(std::string_view key)
{
    if (auto * const found = element_at<GNL_ELEMENT>(find_by_text(key)))
        return found;
    // An option answers to its key although its object may not have been needed yet.
    return cut_prefix(key, "PAR;") ? find_parameter(key) : nullptr;
}

// ---- Names that are not keys

template <class MATCH>
element_registry::slot_list element_registry::find_indexed(name_index & index, std::string_view name, MATCH has_name)
{
    auto const hash = key_text(name).hash(element_kind::other);
    slot_list found;
    auto const [first, last] = index.slots.equal_range(hash);
    for (auto candidate = first; candidate != last; ++candidate) {
        entry const & filed = m_entries[candidate->second];
        if (filed.state == entry_state::filed && has_name(filed))
            found.push_back(candidate->second);
    }
    return found;
}

GNL_PORT * element_registry::find_made_by_name(std::string_view name)
{
    // The names that expressions and ranges are given have a shape of their own, which few others have.
    bool const may_be_made = name.empty() || m_owner.is_auto_generated_wire_name(std::string(name));
    if (!may_be_made && !(m_seldom && m_seldom->made_renamed))
        return nullptr;
    auto & index = seldom().made_names;
    for (; index.entered_end < m_entries.size(); ++index.entered_end) {
        entry const & filed = m_entries[index.entered_end];
        if (filed.element && (filed.kind == element_kind::logic || filed.kind == element_kind::range))
            index.slots.emplace(key_text(filed.element->get_name()).hash(element_kind::other), index.entered_end);
    }
    auto const found =
        find_indexed(index, name, [&](entry const & filed) { return equal_folded(filed.element->get_name(), name); });
    auto const first = std::min_element(found.begin(), found.end(), [&](slot a, slot b) {
        return m_entries[a].kind < m_entries[b].kind || (m_entries[a].kind == m_entries[b].kind && a < b);
    });
    return first == found.end() ? nullptr : element_at<GNL_PORT>(*first);
}

GNL_PORT * element_registry::find_port_of_any_kind(std::string_view name)
{
    GNL_PORT * const named = find_port(name);
    GNL_PORT * const made = find_made_by_name(name);
    return made && (!named || made->is_logic()) ? made : named;
}

GNL_GENERATOR * element_registry::find_instance(std::string_view instance_name)
{
    file_pending();
    auto & index = seldom().instance_names;
    for (; index.entered_end < m_entries.size(); ++index.entered_end) {
        entry const & filed = m_entries[index.entered_end];
        if (filed.element && filed.kind == element_kind::generator)
            index.slots.emplace(key_text(static_cast<GNL_GENERATOR const &>(*filed.element).get_instance_name())
                                    .hash(element_kind::other),
                                index.entered_end);
    }
    auto const found = find_indexed(index, instance_name, [&](entry const & filed) {
        return equal_folded(static_cast<GNL_GENERATOR const &>(*filed.element).get_instance_name(), instance_name);
    });
    auto const first = std::min_element(found.begin(), found.end(), [&](slot a, slot b) {
        return named_key(element_kind::generator, *m_entries[a].element)
                   .text()
                   .compare(named_key(element_kind::generator, *m_entries[b].element).text())
               < 0;
    });
    return first == found.end() ? nullptr : element_at<GNL_GENERATOR>(*first);
}

range_base const * element_registry::known_range_base(GNL_PORT_OUTPUT_RANGE const & range) const
{
    if (!m_seldom || !knows(range))
        return nullptr;
    auto const found = m_seldom->range_bases.find(range.m_slot);
    return found == m_seldom->range_bases.end() ? nullptr : &found->second;
}

void element_registry::keep_range_base(GNL_PORT_OUTPUT_RANGE const & range, range_base const & base)
{
    if (knows(range))
        seldom().range_bases[range.m_slot] = base;
}

void element_registry::forget_range_bases()
{
    if (m_seldom)
        m_seldom->range_bases.clear();
}

} // namespace gnl_detail
