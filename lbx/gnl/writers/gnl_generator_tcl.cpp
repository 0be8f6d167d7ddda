#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/text_sink.h"

using namespace gnl_detail;

namespace {

/// How a script calls the direction; "" for what is no pin.
std::string_view tcl_direction(GNL_PORT const & port)
{
    if (port.is_bidir())
        return "bidir";
    if (port.is_output())
        return "output";
    return port.is_input() ? "input" : "";
}

} // namespace

void GNL_GENERATOR::dump_tcl_port_interface(std::ostream & out)
{
    text_sink text(out);
    for (GNL_PORT & port : m_registry->ports())
        if (auto const direction = tcl_direction(port); !direction.empty() && port.is_used())
            text << "set {intrfc_port(" << port.get_name() << ")} {" << direction << " " << port.get_width() << "}\n";
}
