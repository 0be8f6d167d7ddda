#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/qhdl_text.h"

// What a design shows to those around it: its parameters and its pins.

using namespace gnl_detail;

namespace {

std::string_view pin_direction(GNL_PORT const & port)
{
    if (port.is_input())
        return "\t:\tinput;\n";
    return port.is_output() ? "\t:\toutput;\n" : "\t:\tbidir;\n";
}

} // namespace

void GNL_GENERATOR::dump_qhdl_top_level_parameter_section(std::ostream & out)
{
    text_sink text(out);
    list_separator list("PARAMETERS\n(\n", ",\n");
    for (auto * parameter : m_registry->declared_parameters()) {
        if (!parameter->is_parameterized() || !parameter->is_used())
            continue;
        text << list << "\t" << parameter->get_name();
        // A string stands as it is: an author who exposes one quotes it if it has to be quoted.
        if (parameter->is_string_parameter())
            text << " = " << static_cast<GNL_PARAMETER_STRING *>(parameter)->get_internal_value(true);
        else if (parameter->is_integer_parameter())
            text << " = " << static_cast<GNL_PARAMETER_INTEGER *>(parameter)->get_internal_value(true);
    }
    if (list.started())
        text << "\n);\n";
}

void GNL_GENERATOR::dump_qhdl_subdesign_section(std::ostream & out)
{
    text_sink text(out);
    text << "SUBDESIGN " << get_entity_name() << "\n( \n";
    for (GNL_PORT & port : m_registry->ports())
        if (is_declared_port(port))
            write_qhdl_declared(text << "\t", port, *this) << pin_direction(port);
    text << ") "; // what follows goes on in this line
}
