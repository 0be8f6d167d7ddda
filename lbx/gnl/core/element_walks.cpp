// Walks in key order. Order is made when a walk asks for it, and only of what came since the last one.

#include "lbx/gnl/core/element_registry.h"

#include "lbx/gnl/core/expression_order.h"
#include "lbx/gnl/core/option_set.h"

#include <algorithm>
#include <iterator>

namespace gnl_detail {

element_registry::kind_order & element_registry::order_of(element_kind kind)
{
    auto & order = m_orders[static_cast<std::size_t>(kind)];
    if (order)
        return *order;
    order = std::make_unique<kind_order>();
    for (slot which = 0; which < m_filed_end; ++which)
        if (m_entries[which].kind == kind && m_entries[which].state == entry_state::filed)
            order->added.push_back(which);
    return *order;
}

/// Most generators lack most kinds.
std::shared_ptr<std::vector<GNL_ELEMENT *> const> element_registry::elements_of(element_kind kind)
{
    static auto const none = std::make_shared<std::vector<GNL_ELEMENT *> const>();
    file_pending();
    return m_filed_counts[static_cast<std::size_t>(kind)] == 0 ? none : brought_up_to_date(kind).elements;
}

element_registry::kind_order & element_registry::brought_up_to_date(element_kind kind)
{
    file_pending();
    auto & order = order_of(kind);
    if (order.elements && order.added.empty() && !order.lost_some)
        return order;
    auto const is_lost = [this](slot which) { return m_entries[which].state != entry_state::filed; };
    if (order.lost_some) {
        std::erase_if(order.sorted, is_lost);
        std::erase_if(order.added, is_lost);
    }
    if (kind == element_kind::logic || kind == element_kind::range)
        sort_made(kind, order);
    else
        sort_named(kind, order);
    order.added.clear();
    order.lost_some = false;
    if (has_explicit_keys())
        sort_by_key_text(order);
    std::vector<GNL_ELEMENT *> elements;
    elements.reserve(order.sorted.size());
    for (slot const which : order.sorted)
        elements.push_back(m_entries[which].element);
    order.elements = std::make_shared<std::vector<GNL_ELEMENT *> const>(std::move(elements));
    return order;
}

// ---- Named elements

namespace {

std::size_t common_bytes(std::string_view a, std::string_view b, std::size_t most)
{
    std::size_t count = 0;
    while (count < most && count < a.size() && count < b.size() && folded(a[count]) == folded(b[count]))
        ++count;
    return count;
}

/// Eight folded bytes of a key text, the first one highest.
std::uint64_t eight_bytes(key_text const & text, std::size_t skipped)
{
    key_text::reader bytes(text);
    for (std::size_t i = 0; i < skipped; ++i)
        bytes.next();
    std::uint64_t number = 0;
    for (int i = 0; i < 8; ++i)
        number = number << 8 | bytes.next();
    return number;
}

} // namespace

void element_registry::sort_named(element_kind kind, kind_order & order) const
{
    auto const text_before = [&](slot a, slot b) {
        named_key const x(kind, *m_entries[a].element), y(kind, *m_entries[b].element);
        return x.text().compare(y.text()) < 0;
    };
    // Eight bytes behind what all names have in common settle most comparisons without following a pointer.
    struct hinted
    {
        std::uint64_t bytes;
        slot which;
    };
    std::size_t skipped = kind == element_kind::other ? 0 : ~std::size_t(0);
    for (slot const which : order.added)
        skipped = std::min(skipped, common_bytes(m_entries[order.added.front()].element->get_name(),
                                                 m_entries[which].element->get_name(), skipped));
    std::vector<hinted> added;
    added.reserve(order.added.size());
    for (slot const which : order.added)
        added.push_back({eight_bytes(named_key(kind, *m_entries[which].element).text(), skipped), which});
    std::sort(added.begin(), added.end(), [&](hinted const & a, hinted const & b) {
        return a.bytes != b.bytes ? a.bytes < b.bytes : text_before(a.which, b.which);
    });
    std::transform(added.begin(), added.end(), order.added.begin(), [](hinted const & one) { return one.which; });
    slot_list merged;
    merged.reserve(order.sorted.size() + order.added.size());
    std::merge(order.sorted.begin(), order.sorted.end(), order.added.begin(), order.added.end(),
               std::back_inserter(merged), text_before);
    order.sorted = std::move(merged);
}

std::string element_registry::key_of(slot which) const
{
    if (auto const key = m_seldom->explicit_keys.find(which); key != m_seldom->explicit_keys.end())
        return key->second;
    return m_entries[which].element->generate_key();
}

/// Elements under keys of a caller's stand anywhere.
void element_registry::sort_by_key_text(kind_order & order) const
{
    std::vector<std::pair<std::string, slot>> keys;
    bool has_explicit = false;
    for (slot const which : order.sorted)
        has_explicit = has_explicit || m_seldom->explicit_keys.count(which) != 0;
    if (!has_explicit)
        return;
    for (slot const which : order.sorted)
        keys.emplace_back(key_of(which), which);
    std::stable_sort(keys.begin(), keys.end(),
                     [](auto const & a, auto const & b) { return LESS_C_STRING()(a.first, b.first); });
    std::transform(keys.begin(), keys.end(), order.sorted.begin(), [](auto const & key) { return key.second; });
}

// ---- Expressions and ranges

int element_registry::compare_places(GNL_PORT const & a, GNL_PORT const & b)
{
    if (!a.get_parent() || a.get_parent() != b.get_parent())
        return 0;
    auto const & registry = *a.get_parent()->m_registry;
    if (!registry.knows(a) || !registry.knows(b))
        return 0;
    slot const which = a.m_slot, other = b.m_slot;
    auto const & order = registry.m_orders[static_cast<std::size_t>(registry.m_entries[which].kind)];
    if (!order || !order->made || !order->made->is_placed(which) || !order->made->is_placed(other))
        return 0;
    return order->made->comes_before(which, other) ? -1 : 1;
}

/// The order in which expressions or ranges are placed: as parts of longer keys.
class element_registry::made_placing
{
public:
    made_placing(element_registry & registry, element_kind kind)
        : m_registry(registry)
        , m_kind(kind)
    {
    }

    void place(slot_list const & added)
    {
        slot_list simple;
        slot_list nested;
        for (slot const which : added)
            if (!order(m_registry, m_kind).is_placed(which))
                (is_simple(made(m_registry, which)) ? simple : nested).push_back(which);
        place_simple(simple);
        for (slot const which : nested)
            place_with_operands(made(m_registry, which));
    }

    /// As the keys stand by themselves.
    slot_list in_final_order()
    {
        auto slots = order(m_registry, m_kind).all();
        for (auto first = slots.begin(); first != slots.end();) {
            auto last = first + 1;
            while (last != slots.end() && keys_differ_at_end_only(made(m_registry, *first), made(m_registry, *last)))
                ++last;
            if (last - first > 1)
                std::stable_sort(first, last, [&](slot a, slot b) {
                    return m_compare.compare(made(m_registry, a), made(m_registry, b), false) < 0;
                });
            first = last;
        }
        return slots;
    }

private:
    static GNL_PORT const & made(element_registry const & registry, slot which)
    {
        return static_cast<GNL_PORT const &>(*registry.m_entries[which].element);
    }

    /// The operands whose keys an object's key holds.
    static std::array<GNL_PORT const *, 2> operands(GNL_PORT const & port)
    {
        if (port.is_range_port())
            return {static_cast<GNL_PORT_OUTPUT_RANGE const &>(port).get_key_port(), nullptr};
        auto const & logic = static_cast<GNL_PORT_LOGIC const &>(port);
        return {logic.get_first_operand(), logic.get_second_operand()};
    }

    static bool is_made(GNL_PORT const * port) { return port && (port->is_logic() || port->is_range_port()); }

    /// Whether the object is made of named ports, or of ranges of such: then its key is short.
    static bool is_simple(GNL_PORT const & port)
    {
        for (GNL_PORT const * operand : operands(port))
            if (is_made(operand) && (operand->is_logic() || is_made(operands(*operand)[0])))
                return false;
        return true;
    }

    static expression_order & order(element_registry & registry, element_kind kind)
    {
        auto & of_kind = registry.order_of(kind);
        if (!of_kind.made)
            of_kind.made = std::make_unique<expression_order>(
                [&registry, comparison = expression_comparison()](slot a, slot b) mutable {
                    int const result = comparison.compare(made(registry, a), made(registry, b), true);
                    return result != 0 ? result < 0 : a < b;
                });
        return *of_kind.made;
    }

    void place_simple(slot_list const & added)
    {
        struct hinted
        {
            key_hint hint;
            slot which;
        };
        std::string_view const first_name =
            added.empty() ? std::string_view() : leading_name(made(m_registry, added.front()));
        std::size_t skipped = ~std::size_t(0);
        for (slot const which : added)
            skipped = std::min(skipped, common_bytes(first_name, leading_name(made(m_registry, which)), skipped));
        std::vector<hinted> sorted;
        sorted.reserve(added.size());
        for (slot const which : added)
            sorted.push_back({key_hint(made(m_registry, which), skipped), which});
        std::sort(sorted.begin(), sorted.end(), [&](hinted const & a, hinted const & b) {
            if (int const result = a.hint.compare(b.hint))
                return result < 0;
            int const result = m_compare.compare(made(m_registry, a.which), made(m_registry, b.which), true);
            return result != 0 ? result < 0 : a.which < b.which;
        });
        slot_list slots;
        slots.reserve(sorted.size());
        for (hinted const & one : sorted)
            slots.push_back(one.which);
        order(m_registry, m_kind).place_sorted(slots);
    }

    /// Places what `port` is made of, wherever it is registered, and then `port`.
    void place_with_operands(GNL_PORT const & port)
    {
        std::vector<GNL_PORT const *> open = {&port};
        while (!open.empty()) {
            GNL_PORT const & next = *open.back();
            auto * const its_order = unplaced_in(next);
            if (!its_order) {
                open.pop_back();
                continue;
            }
            if (its_order->begin_placing(next.m_slot)) {
                for (GNL_PORT const * operand : operands(next))
                    if (is_made(operand))
                        if (auto * const operand_order = unplaced_in(*operand);
                            operand_order && !operand_order->is_being_placed(operand->m_slot))
                            open.push_back(operand);
                continue;
            }
            open.pop_back();
            its_order->place(next.m_slot);
        }
    }

    /// The order in which `port` is to be placed; null if it has its place, or can't have one.
    static expression_order * unplaced_in(GNL_PORT const & port)
    {
        if (!port.get_parent())
            return nullptr;
        auto & registry = *port.get_parent()->m_registry;
        if (!registry.knows(port))
            return nullptr;
        registry.file_pending();
        if (registry.m_entries[port.m_slot].state != entry_state::filed)
            return nullptr;
        auto & its_order = order(registry, registry.m_entries[port.m_slot].kind);
        return its_order.is_placed(port.m_slot) ? nullptr : &its_order;
    }

    element_registry & m_registry;
    element_kind m_kind;
    expression_comparison m_compare;
};

void element_registry::sort_made(element_kind kind, kind_order & order)
{
    made_placing placing(*this, kind);
    placing.place(order.added);
    order.sorted = placing.in_final_order();
}

// ---- The walks

element_walk<GNL_GENERATOR> element_registry::generators()
{
    return walk<GNL_GENERATOR>(element_kind::generator);
}

std::vector<GNL_GENERATOR *> element_registry::subdesigns()
{
    std::vector<GNL_GENERATOR *> found;
    for (GNL_GENERATOR & generator : generators())
        if (generator.get_array_parent() != &m_owner)
            found.push_back(&generator);
    return found;
}

std::vector<GNL_GENERATOR *> element_registry::unnamed_generators()
{
    std::vector<GNL_GENERATOR *> found;
    file_pending();
    for (slot at = 0; at < m_entries.size(); ++at) {
        entry const & held = m_entries[at];
        if (held.kind == element_kind::generator
            && (held.state == entry_state::filed || held.state == entry_state::waiting)) {
            auto & generator = static_cast<GNL_GENERATOR &>(*held.element);
            if (generator.get_instance_name().empty())
                found.push_back(&generator);
        }
    }
    std::stable_sort(found.begin(), found.end(), [](GNL_GENERATOR const * a, GNL_GENERATOR const * b) {
        named_key const x(element_kind::generator, *a), y(element_kind::generator, *b);
        return x.text().compare(y.text()) < 0;
    });
    return found;
}

element_walk<GNL_PORT_LOGIC> element_registry::logic_ports()
{
    return walk<GNL_PORT_LOGIC>(element_kind::logic);
}

element_walk<GNL_PARAMETER> element_registry::parameters()
{
    for (int i = 0; i < option_count; ++i)
        m_owner.option(static_cast<option_id>(i));
    return walk<GNL_PARAMETER>(element_kind::parameter);
}

std::vector<GNL_PARAMETER *> element_registry::declared_parameters()
{
    std::vector<GNL_PARAMETER *> found;
    for (GNL_PARAMETER & parameter : walk<GNL_PARAMETER>(element_kind::parameter))
        if (!parameter.is_option())
            found.push_back(&parameter);
    return found;
}

element_walk<GNL_PARAMETER_ARRAY> element_registry::parameter_arrays()
{
    return walk<GNL_PARAMETER_ARRAY>(element_kind::parameter_array);
}

element_walk<GNL_PORT> element_registry::ports()
{
    return walk<GNL_PORT>(element_kind::port);
}

element_walk<GNL_PORT_OUTPUT_RANGE> element_registry::ranges()
{
    return walk<GNL_PORT_OUTPUT_RANGE>(element_kind::range);
}

std::vector<GNL_PORT *> element_registry::all_ports()
{
    std::vector<GNL_PORT *> found;
    for (auto const kind : {element_kind::logic, element_kind::port, element_kind::range})
        for (GNL_PORT & port : walk<GNL_PORT>(kind))
            found.push_back(&port);
    return found;
}

} // namespace gnl_detail
