#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/one_slice_widths.h"
#include "lbx/gnl/writers/declared_ports.h"
#include "lbx/gnl/writers/vhdl_text.h"

using namespace gnl_detail;

namespace {

void declare_generic(text_sink & text, GNL_PARAMETER_INTEGER & parameter)
{
    int const value = parameter.get_internal_value(true);
    text << "\t\t" << parameter.get_name();
    if (parameter.is_output_as_string_parameter())
        text << "\t:\tSTRING := \"" << value << "\"";
    else
        text << "\t:\tNATURAL := " << value;
}

void declare_generic(text_sink & text, GNL_PARAMETER_STRING & parameter)
{
    text << "\t\t" << parameter.get_name() << "\t:\tSTRING := \"" << parameter.get_internal_value(true) << "\"";
}

std::string_view direction_word(GNL_PORT const & port)
{
    if (port.is_input())
        return "\t:\tIN  ";
    return port.is_output() ? "\t:\tOUT  " : "\t:\tINOUT  ";
}

void declare_entity_port(text_sink & text, GNL_PORT & port)
{
    int const width = declared_slice_width(port);
    text << "\t\t " << port.get_vhdl_name() << direction_word(port);
    if (port.is_signed() && width > 0)
        text << "SIGNED (" << width - 1 << " DOWNTO 0)";
    else
        text << "STD_LOGIC" << vector_suffix{width};
    if (port.is_input() && port.get_default_value() != -1)
        text << " := " << vhdl_level{port.get_default_value(), width > 0};
}

} // namespace

void GNL_GENERATOR::dump_vhdl_top_level_parameter_section(std::ostream & out)
{
    text_sink text(out);
    list_separator list("\t GENERIC \n\t (\n", ";\n");
    for (auto * parameter : m_registry->declared_parameters()) {
        if (!parameter->is_parameterized() || !parameter->is_used())
            continue;
        text << list;
        if (parameter->is_integer_parameter())
            declare_generic(text, static_cast<GNL_PARAMETER_INTEGER &>(*parameter));
        else if (parameter->is_string_parameter())
            declare_generic(text, static_cast<GNL_PARAMETER_STRING &>(*parameter));
    }
    if (list.started())
        text << "\n\t );\n";
}

void GNL_GENERATOR::dump_vhdl_port_section(std::ostream & out)
{
    text_sink text(out);
    // A design without ports has no clause at all: an empty one can't be read.
    list_separator list("\t PORT \n\t ( \n", ";\n");
    for (auto * port : declared_ports(*this)) {
        text << list;
        declare_entity_port(text, *port);
    }
    if (list.started())
        text << "\n\t ); \n";
}
