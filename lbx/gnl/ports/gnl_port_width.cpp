#include "gnl_port.h"

#include "gnl_generator.h"

#include "lbx/gnl/ports/port_messages.h"

using gnl_detail::port_message;
using gnl_detail::report;

int GNL_PORT::get_width()
{
    if (GNL_GENERATOR * parent = get_parent(); parent && !parent->port_connections_made())
        parent->made_port_connection(get_name());
    return m_width;
}

int GNL_PORT::get_bus_width()
{
    int const width = get_width();
    return width == 0 ? 1 : width;
}

bool GNL_PORT::is_divisible(int bus_width)
{
    int const own = get_bus_width();
    if (own <= bus_width)
        return own == bus_width;
    // A range with its bounds in the wrong order has no bits to repeat.
    return bus_width > 0 && own % bus_width == 0;
}

GNL_PORT & GNL_PORT::set_width(int width, bool set_original)
{
    GNL_GENERATOR const * parent = get_parent();
    if (!parent)
        return *this;
    if (parent->is_in_update_port_widths())
        return set_width_safe(width, set_original);
    report<port_message::width_changed_outside>(*parent, get_hierarchical_name());
    return *this;
}

GNL_PORT & GNL_PORT::set_width_safe(int width, bool set_original)
{
    GNL_GENERATOR const * parent = get_parent();
    if (!parent)
        return *this;
    if (width < 0) {
        report<port_message::negative_width>(*parent, get_hierarchical_name(), width);
        return *this;
    }
    if (set_original)
        declare_width(width);
    else
        change_width(width);
    return *this;
}

void GNL_PORT::declare_width(int width)
{
    m_width = width;
    if (m_extras)
        m_extras->slice_width.reset();
}

void GNL_PORT::change_width(int width)
{
    if (width != m_width)
        made_extras().slice_width = get_original_width();
    m_width = width;
}
