#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/verilog_text.h"

// Connections of a cell that only some tools may see: the defaults of unused inputs, outside formal verification, and
// ports that only the simulation model has. The comma of each follows the connection before it across the guard lines.

using namespace gnl_detail;

namespace {

constexpr std::string_view start_of_guard = "\n\t`ifndef FORMAL_VERIFICATION"
                                            "\n\t// synopsys translate_off"
                                            "\n\t`endif\n";
constexpr std::string_view end_of_guard = "\n\t`ifndef FORMAL_VERIFICATION"
                                          "\n\t// synopsys translate_on"
                                          "\n\t`endif";

/// The ports of the cell, or of one slice of it, that are tied off.
std::vector<GNL_PORT *> tied_off_ports(GNL_GENERATOR & cell, int slice_index)
{
    std::vector<GNL_PORT *> ports;
    bool const of_slice = cell.is_master_array() && slice_index != -1;
    auto * slice = of_slice ? cell.get_array_slice(slice_index) : &cell;
    if (of_slice && slice == &cell)
        return ports;
    for (GNL_PORT & port : cell.registry().ports()) {
        if (!can_be_tied_off(port))
            continue;
        auto * candidate = of_slice ? slice->registry().find_port(port.get_name()) : &port;
        if (candidate != nullptr && candidate->is_input() && candidate->get_default_value() != -1
            && !candidate->is_used())
            ports.push_back(candidate);
    }
    return ports;
}

/// The value of a default; nothing, that is an open connection, for a default of 2.
void write_tie(text_sink & text, GNL_PORT const & port)
{
    int const value = port.get_default_value();
    if (value == 2)
        return;
    if (port.get_original_width() != 0)
        text << repeated_bit{port.get_original_width(), value == 1 ? 1 : 0};
    else
        text << "1'b" << value;
}

} // namespace

void GNL_GENERATOR::dump_verilog_default_input_port_connections(std::ostream & out, int slice_index)
{
    text_sink text(out);
    bool const guarded = !connect_default_input_ports_in_verilog() && !is_simulate_mode();
    if (guarded)
        text << start_of_guard;
    list_separator list(guarded ? "\t,\n\t." : ",\n\t.", ",\n\t.");
    for (auto const * port : tied_off_ports(*this, slice_index)) {
        text << list << port->get_name() << "(";
        write_tie(text, *port);
        text << ")";
    }
    if (guarded)
        text << end_of_guard;
    dump_verilog_simulation_only_ports(text.stream(), true);
}

void GNL_GENERATOR::dump_verilog_simulation_only_ports(std::ostream & out, bool guard)
{
    if (!is_primitive() || simulation_only_ports().empty())
        return;
    text_sink text(out);
    bool const guarded = guard && !is_simulate_mode();
    if (guarded)
        text << "\n\t// synopsys translate_off\n";
    list_separator list(guarded ? "\t,\n\t." : ",\n\t.", ",\n\t.");
    for (auto const & [name, value] : simulation_only_ports()) {
        if (get_port_object(name) != nullptr)
            continue;
        text << list << name << "(";
        if (!value.empty())
            text << "1'b" << value;
        text << ")";
    }
    // The end is marked whoever asked, unless the text is for a simulator.
    if (!is_simulate_mode())
        text << "\n\t// synopsys translate_on";
}
