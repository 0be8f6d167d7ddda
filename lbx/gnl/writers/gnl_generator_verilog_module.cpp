#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/declared_ports.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/verilog_text.h"

using namespace gnl_detail;

namespace {

std::string_view direction_word(GNL_PORT const & port)
{
    if (port.is_input())
        return "\tinput   ";
    return port.is_output() ? "\toutput   " : "\tinout   ";
}

void declare_direction(text_sink & text, GNL_PORT & port)
{
    text << direction_word(port);
    if (port.is_signed())
        text << "signed\t";
    text << bus_range{port.get_original_width(), two_blanks} << port.get_name();
    if (port.is_used())
        write_port_options(text, port);
    text << ";\n";
}

/// What a simulator sees on an input that nobody drives; synthesis doesn't see these lines.
void declare_pulls(text_sink & text, element_walk<GNL_PORT> const & ports)
{
    list_separator guard("`ifndef QELVAR_RESERVED_TIS\n// synopsys translate_off\n`endif\n", "");
    for (GNL_PORT & port : ports) {
        int const level = port.is_input() ? port.get_default_value() : -1;
        if ((level == 0 || level == 1) && is_declared_port(port))
            text << guard << "\ttri" << level << "   " << bus_range{port.get_original_width(), two_blanks}
                 << port.get_name() << ";\n";
    }
    if (guard.started())
        text << "`ifndef QELVAR_RESERVED_TIS\n// synopsys translate_on\n`endif\n";
}

} // namespace

void GNL_GENERATOR::dump_verilog_module_section(std::ostream & out)
{
    text_sink text(out);
    text << get_entity_name() << "\n\t( \n";
    list_separator list("", ",\n");
    for (auto const * port : declared_ports(*this))
        text << list << "\t" << port->get_name();
    text << ") ";
}

void GNL_GENERATOR::dump_verilog_port_section(std::ostream & out)
{
    text_sink text(out);
    auto const ports = m_registry->ports();
    for (GNL_PORT & port : ports)
        if (is_declared_port(port))
            declare_direction(text, port);
    declare_pulls(text, ports);
}
