#include "lbx/gnl/core/one_slice_widths.h"

#include "lbx/gnl/core/element_registry.h"

namespace gnl_detail {

int declared_slice_width(GNL_PORT const & port)
{
    int const rows = port.get_2d_width();
    return rows > 0 ? port.get_original_width() * rows : port.get_original_width();
}

one_slice_widths::one_slice_widths(GNL_GENERATOR & generator)
{
    if (generator.get_array_width() < 1)
        return;
    generator.made_port_connection("");
    for (auto & port : generator.registry().ports())
        if (port.is_simple_port() && port.get_default_width() != declared_slice_width(port)) {
            m_whole_widths.emplace_back(&port, port.get_default_width());
            port.set_width_safe(declared_slice_width(port), false);
        }
}

one_slice_widths::~one_slice_widths()
{
    for (auto const & [port, width] : m_whole_widths)
        port->set_width_safe(width, false);
}

} // namespace gnl_detail
