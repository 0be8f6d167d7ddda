#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/verilog_text.h"
#include "lbx/gnl/writers/wrapper_ports.h"

// The wrapper: a thin module around a library unit that has the same ports.

using namespace gnl_detail;

namespace {

class wrapper_ports
{
public:
    explicit wrapper_ports(GNL_GENERATOR & design)
        : m_slices(design)
        , m_ports(design.registry().ports())
    {
    }

    std::vector<GNL_PORT *> declared() const
    {
        std::vector<GNL_PORT *> ports;
        for (GNL_PORT & port : m_ports)
            if (is_pin(port) && port.is_used() && (!port.is_input() || is_driven_somewhere(port, m_slices)))
                ports.push_back(&port);
        return ports;
    }
    /// Those of the instance inside: unlike the wrapper's own, its outputs needn't be used.
    std::vector<GNL_PORT *> connected() const
    {
        std::vector<GNL_PORT *> ports;
        for (GNL_PORT & port : m_ports)
            if (port.is_output() || (port.is_bidir() && port.is_used())
                || (port.is_input() && is_driven_somewhere(port, m_slices)))
                ports.push_back(&port);
        return ports;
    }

private:
    static bool is_pin(GNL_PORT const & port) { return port.is_input() || port.is_output() || port.is_bidir(); }

    array_slices m_slices;
    element_walk<GNL_PORT> m_ports;
};

std::string_view wrapper_direction(GNL_PORT const & port)
{
    if (port.is_input())
        return "\tinput   ";
    return port.is_output() ? "\toutput " : "\tinout ";
}

} // namespace

void GNL_GENERATOR::dump_verilog_module_section_for_wrapper(std::ostream & out)
{
    text_sink text(out);
    text << get_entity_name() << "\n\t( \n";
    list_separator list("", ",\n");
    for (auto const * port : wrapper_ports(*this).declared())
        text << list << "\t" << port->get_name();
    text << ") ";
}

void GNL_GENERATOR::dump_verilog_port_section_for_wrapper(std::ostream & out)
{
    text_sink text(out);
    for (auto const * port : wrapper_ports(*this).declared())
        text << wrapper_direction(*port) << bus_range{port->get_original_width(), two_blanks} << port->get_name()
             << ";\n";
}

void GNL_GENERATOR::dump_verilog_connections_for_subdesign_wrapper(std::ostream & out)
{
    text_sink text(out);
    text << "\t" << get_name() << "\tmg (\n";
    list_separator list("", ",\n");
    for (auto const * port : wrapper_ports(*this).connected())
        text << list << "\t." << port->get_name() << "(" << port->get_name() << ")";
    text << "); \n";
}
