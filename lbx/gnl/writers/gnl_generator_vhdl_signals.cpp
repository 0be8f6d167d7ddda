#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/one_slice_widths.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/vhdl_components.h"
#include "lbx/gnl/writers/vhdl_signals.h"
#include "lbx/gnl/writers/vhdl_text.h"

// The declarations of an architecture: its signals, then the components of its subdesigns.

using namespace gnl_detail;

namespace {

/// Only simulations see what the signal starts with; the semicolon is for everybody.
void write_initial_value(text_sink & text, int value, bool of_vector)
{
    text << "\n\t -- synopsys translate_off\n\t  := " << vhdl_level{value, of_vector}
         << "\n\t -- synopsys translate_on\n\t ";
}

void declare_wire(text_sink & text, GNL_WIRE & wire)
{
    int const width = wire.get_width();
    text << "\t SIGNAL  " << wire.get_vhdl_name() << " :\tSTD_LOGIC" << vector_suffix{width};
    if (wire.get_initial_value() != -1)
        write_initial_value(text, wire.get_initial_value(), width > 0);
    text << ";\n";
}

/// The design's own signals. Nothing is said of a port that the text doesn't know.
void declare_own_signal(text_sink & text, GNL_GENERATOR const & design, GNL_PORT & port)
{
    if (!port.is_simple_port()) {
        if (is_read_loop_signal(port, &design))
            declare_vhdl_signal(text, port.get_source_name(true), loop_signal_width(port)) << ";\n";
        return;
    }
    if (auto * wire = as_wire(port)) {
        if (!port.declare_port())
            return;
        declare_wire(text, *wire);
    } else if (auto * input = as_input(port); input != nullptr && is_default_signal(*input)) {
        declare_vhdl_signal(text, port.get_vhdl_name(), declared_slice_width(port)) << ";\n";
    } else if (!is_declared_port(port)) {
        return;
    }
    if (port.has_qelvar_internal_options())
        port.dump_qelvar_internal_options(text.stream());
}

bool has_2d_ports(GNL_GENERATOR & subdesign)
{
    for (GNL_PORT & port : subdesign.registry().ports())
        if (has_2d_signal(port))
            return true;
    return false;
}
/// Of the subdesign itself, or of a slice that is connected by itself.
bool has_2d_signals(GNL_GENERATOR & subdesign)
{
    if (has_2d_ports(subdesign))
        return true;
    array_slices const slices(subdesign);
    for (int i = 0; i < subdesign.get_array_width(); ++i)
        if (auto * slice = slices.at(i); slice != nullptr && has_2d_ports(*slice))
            return true;
    return false;
}

/// What joins the subdesigns to the design. A type stands before the first signal of it.
void declare_subdesign_signals(GNL_GENERATOR & design, std::ostream & out, signal_map & signals, signal_map & types)
{
    for (auto * subdesign : design.registry().subdesigns()) {
        if (has_2d_signals(*subdesign)) {
            text_sink text(out);
            declare_2d_type(*subdesign, text, types);
        }
        subdesign->dump_vhdl_wires(out, &design, signals);
    }
}

} // namespace

void GNL_GENERATOR::dump_vhdl_variables_and_subdesigns(std::ostream & out,
                                                       std::map<std::string, std::string, LESS_C_STRING> & signals)
{
    signal_map types;
    if (!uses_custom_subdesign_insert_mode()) {
        declare_subdesign_signals(*this, out, signals, types);
        text_sink text(out);
        for (auto * port : m_registry->ports_where(
                 [&](GNL_PORT & each) { return each.is_simple_port() || is_read_loop_signal(each, this); }))
            declare_own_signal(text, *this, *port);
    }
    write_components(*this, out, std::move(types));
    if (!uses_custom_vhdl_output())
        return;
    dump_vhdl_custom_wires(out);
    if (!uses_custom_subdesign_insert_mode())
        return;
    text_sink text(out);
    for (auto * port :
         m_registry->ports_where([&](GNL_PORT & each) { return each.port_has_wire_in_custom_vhdl(this); }))
        declare_vhdl_signal(text, port->get_source_name(true), port->get_bus_width()) << ";\n";
}
