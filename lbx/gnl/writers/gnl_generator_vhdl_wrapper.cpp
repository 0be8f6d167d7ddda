#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/list_separator.h"
#include "lbx/gnl/writers/text_sink.h"

using namespace gnl_detail;

void GNL_GENERATOR::dump_vhdl_connections_for_wrapper(std::ostream & out)
{
    text_sink text(out);
    list_separator list("\t PORT MAP (\n", ",\n");
    for (GNL_PORT & port : m_registry->ports()) {
        bool const is_pin = port.is_input() || port.is_output() || port.is_bidir();
        if (is_pin && port.is_used())
            text << list << "\t\t" << port.get_vhdl_name() << " => " << port.get_vhdl_name();
    }
    // A unit without ports has no list of them, and its statement still needs an end.
    text << (list.started() ? "\n\t );\n" : "\t ;\n");
}
