#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/ports/reference_text.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/qhdl_text.h"

using namespace gnl_detail;

namespace {

/// The statements of what is connected on `subdesign` itself and, for an array, of what its slices connect.
void connect_ports(std::ostream & out, GNL_GENERATOR & subdesign, GNL_GENERATOR & level)
{
    text_sink text(out);
    array_slices const slices(subdesign);
    for (GNL_PORT & port : subdesign.registry().ports()) {
        if (!port.check_is_used_flag())
            connect_qhdl_slices(text, slices.ports(port.get_name()), level);
        else if (!port_place(port).connected_as_whole())
            connect_qhdl_port(text, port, level);
    }
}

} // namespace

void GNL_GENERATOR::generate_connections_with_subdesign(std::ostream & out, GNL_GENERATOR * parent)
{
    if (get_array_width() > 0 && is_heterogeneous_array())
        connect_qhdl_heterogeneous_array(out, *this, *parent);
    else if (uses_custom_qhdl_output())
        dump_qhdl_custom_output(out, parent);
    else
        connect_ports(out, *this, *parent);
}
