#include "concat_elements.h"
#include "gnl_generator.h"
#include "gnl_port_concat.h"
#include "gnl_port_range.h"
#include "made_port.h"
#include "port_messages.h"
#include "reference_text.h"
#include "saturated.h"

using gnl_detail::concat_elements;
using gnl_detail::make_port;
using gnl_detail::port_message;
using gnl_detail::report;
using gnl_detail::saturated;

namespace {

GNL_PORT_OUTPUT_RANGE * as_range(GNL_PORT & port)
{
    return port.is_range_port() ? static_cast<GNL_PORT_OUTPUT_RANGE *>(&port) : nullptr;
}

int plus(int bits, int more)
{
    return saturated(static_cast<long long>(bits) + more);
}

/// Whether the element shows its port once, bit by bit.
bool is_plain(GNL_SUBCONCAT const & element)
{
    return static_cast<long long>(element.high_index) - element.low_index + 1 == element.port->get_bus_width();
}

/// Whether two elements that touch are ranges of one port that touch there, so that one range shows both.
bool can_merge(GNL_SUBCONCAT const & upper, GNL_SUBCONCAT const & lower)
{
    auto const * const high = as_range(*upper.port);
    auto const * const low = as_range(*lower.port);
    return high && low && high->get_range_driver() && high->get_range_driver() == low->get_range_driver()
           && upper.low_index == plus(lower.high_index, 1) && high->get_low_index() == plus(low->get_high_index(), 1)
           && is_plain(upper) && is_plain(lower)
           && gnl_detail::can_select(*high->get_range_driver(), high->get_high_index(), low->get_low_index());
}

/// Makes one element of two; call only if they can be merged.
GNL_SUBCONCAT merged(GNL_SUBCONCAT const & upper, GNL_SUBCONCAT const & lower)
{
    auto const & high = *as_range(*upper.port);
    auto const & low = *as_range(*lower.port);
    auto & range = make_port<GNL_PORT_OUTPUT_RANGE>(high.get_parent(), high.get_range_driver(), high.get_high_index(),
                                                    low.get_low_index());
    return {&range, upper.high_index, lower.low_index};
}

void loop_if_logic(GNL_PORT & port)
{
    if (port.is_logic())
        port.set_create_vhdl_loop();
}

/// Puts an element where its bits are free: as part of its neighbours if it continues them. Gives back what it has
/// become.
GNL_SUBCONCAT place_element(concat_elements & elements, GNL_SUBCONCAT const & element)
{
    auto const where = elements.place_below(element.high_index);
    GNL_SUBCONCAT * const above = elements.above(where);
    GNL_SUBCONCAT * const below = elements.at(where);
    if (above && can_merge(*above, element)) {
        *above = merged(*above, element);
        if (!below || !can_merge(*above, *below))
            return *above;
        GNL_SUBCONCAT const whole = *above = merged(*above, *below);
        elements.erase(where);
        return whole;
    }
    if (below && can_merge(element, *below))
        return *below = merged(element, *below);
    elements.insert(where, element);
    return element;
}

} // namespace

void GNL_PORT_CONCAT::add_at_index(GNL_PORT & port, int high, int low, GNL_PORT * owner)
{
    loop_if_logic(port);
    if (!m_elements->holds_any(high, low))
        note_if_complete(place_element(*m_elements, {&port, high, low}));
    else if (auto const * const parent = get_parent()) {
        if (owner)
            report<port_message::source_bits_assigned>(*parent, owner->get_hierarchical_name(), high, low);
        else
            report<port_message::concat_bits_assigned>(*parent, get_hierarchical_name(), high, low);
    }
}

void GNL_PORT_CONCAT::note_if_complete(GNL_SUBCONCAT const & element)
{
    if (element.low_index == 0 && plus(element.high_index, 1) == m_width && m_width != 1
        && element.port->get_width() == m_width)
        m_complete = true;
}

void GNL_PORT_CONCAT::add_port_higher_end(GNL_PORT & port)
{
    loop_if_logic(port);
    int const width = plus(m_width, port.get_bus_width());
    GNL_SUBCONCAT const element{&port, plus(width, -1), m_width};
    GNL_SUBCONCAT * const highest = m_elements->highest();
    if (highest && can_merge(element, *highest))
        *highest = merged(element, *highest);
    else
        m_elements->push_highest(element);
    change_width(width);
}

void GNL_PORT_CONCAT::add_port_lower_end(GNL_PORT & port)
{
    loop_if_logic(port);
    int const added = port.get_bus_width();
    m_elements->raise(added);
    change_width(plus(m_width, added));
    GNL_SUBCONCAT const element{&port, plus(added, -1), 0};
    GNL_SUBCONCAT * const lowest = m_elements->lowest();
    if (lowest && can_merge(*lowest, element))
        *lowest = merged(*lowest, element);
    else
        m_elements->push_lowest(element);
}

bool GNL_PORT_CONCAT::has_bits_assigned(int low, int high)
{
    return m_elements->holds_any(high, low);
}

int GNL_PORT_CONCAT::get_elements_width()
{
    int const count = m_elements->size();
    if (count == 1) {
        GNL_PORT & port = *m_elements->highest()->port;
        GNL_PORT * const driver = as_range(port) ? as_range(port)->get_range_driver() : nullptr;
        if (driver && port.get_width() == 1 && (driver->is_range_port() || driver->get_width() == 0))
            m_need_index = true;
    }
    if (count != 1 || m_complete)
        return get_width();
    GNL_PORT & port = *m_elements->highest()->port;
    bool const in_array = port.get_parent() && port.get_parent()->get_array_width() > 0;
    return in_array ? port.get_width() : port.get_original_width();
}

GNL_SUBCONCAT * GNL_PORT_CONCAT::get_concat_element(int index) const
{
    return m_elements->at(index);
}

int GNL_PORT_CONCAT::get_element_count() const
{
    return m_elements->size();
}

bool GNL_PORT_CONCAT::element_is_range_port(int index)
{
    GNL_SUBCONCAT const * const element = get_concat_element(index);
    return element && element->port->is_range_port();
}

void GNL_PORT_CONCAT::replace_concat_element(int index, GNL_SUBCONCAT * element)
{
    std::unique_ptr<GNL_SUBCONCAT> const owned(element);
    if (GNL_SUBCONCAT * const replaced = get_concat_element(index); replaced && element)
        *replaced = *element;
}

void GNL_PORT_CONCAT::adjust_range_elements()
{
    concat_elements adjusted;
    for (int i = 0; i < m_elements->size(); ++i) {
        GNL_SUBCONCAT const & element = *m_elements->at(i);
        if (GNL_SUBCONCAT * const last = adjusted.lowest(); last && can_merge(*last, element))
            *last = merged(*last, element);
        else
            adjusted.push_lowest(element);
    }
    *m_elements = std::move(adjusted);
}
