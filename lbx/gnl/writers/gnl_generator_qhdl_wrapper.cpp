#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/text_sink.h"
#include "lbx/gnl/writers/wrapper_ports.h"

// The wrapper: a thin design around a library unit that has the same ports, as the variable "mg".

using namespace gnl_detail;

void GNL_GENERATOR::dump_qhdl_variables_section_for_subdesign_wrapper(std::ostream & out, bool used_only)
{
    text_sink text(out);
    text << "VARIABLE \n\tmg : " << get_name() << " WITH (\n";
    list_separator entries("", ", \n");
    for (auto * parameter : m_registry->declared_parameters())
        if (parameter->is_included_in_declaration() && (!used_only || parameter->is_used()))
            text << entries << "\t\t" << parameter->get_name() << " = " << parameter->get_name();
    text << ");\n";
}

void GNL_GENERATOR::dump_qhdl_connections_for_subdesign_wrapper(std::ostream & out)
{
    text_sink text(out);
    array_slices const slices(*this);
    auto const name = [&](GNL_PORT & port) { port.dump_port_description(text.stream(), this, false, nullptr); };
    text << "BEGIN \n";
    for (GNL_PORT & port : m_registry->ports()) {
        bool const in = port.is_input() && is_driven_somewhere(port, slices);
        if (!in && !(port.is_output() && port.is_used()))
            continue;
        text << (in ? "\tmg." : "\t");
        name(port);
        text << (in ? " = " : " = mg.");
        name(port);
        text << ";\n";
    }
    text << "END;";
}
