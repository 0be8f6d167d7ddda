#include "lbx/gnl/writers/vhdl_signals.h"

#include "lbx/gnl/core/one_slice_widths.h"
#include "lbx/gnl/ports/range_base.h"
#include "lbx/gnl/writers/port_kinds.h"

#include <algorithm>

namespace gnl_detail {

bool is_vhdl_library_cell(GNL_GENERATOR & subdesign)
{
    return subdesign.is_vhdl_primitive()
           || (subdesign.is_primitive() && subdesign.option_equals(option_id::vhdl_wrappers, "OFF"));
}

bool is_loop_signal(GNL_PORT const & port, GNL_GENERATOR const * level)
{
    return !port.is_simple_port() && port.need_to_create_vhdl_loop() && port.get_connection_level() == level;
}

int loop_signal_width(GNL_PORT & port)
{
    int const width = port.get_bus_width();
    return port.is_range_port() && width == 1 ? 0 : width;
}

int vhdl_net_width(GNL_PORT & port)
{
    if (port.get_parent()->get_array_width() > 1)
        return port.get_width();
    int const width = declared_slice_width(port);
    return width < 1 && port.is_vhdl_array_wire() ? 1 : width;
}

bool input_has_signal(GNL_PORT & input, bool concat_signals)
{
    auto * driver = input.get_driver();
    if (driver == nullptr || input.need_to_create_vhdl_loop())
        return driver != nullptr;
    int const slices = input.get_parent()->get_array_width();
    if (driver->is_concat_port() || driver->is_logic())
        return concat_signals || slices > 1; // slices cut a signal, an expression has none
    // What repeated a narrow driver may have been a wire that was taken out.
    return slices < 1 && driver->get_bus_width() < input.get_bus_width();
}

bool is_constant_input(GNL_PORT & port)
{
    return port.is_input() && port.get_driver() == nullptr && port.is_driven_by_constant();
}

bool constant_has_signal(GNL_PORT & input)
{
    return input.get_parent()->get_array_width() > 0 || input.get_width() > 1;
}

std::string_view shared_constant_wire(GNL_PORT & input)
{
    auto const * value = input.constant_driving_value_as_mlib_int();
    bool const high = value != nullptr && input.constant_driving_value().find('1') != std::string::npos;
    switch (input.get_width()) {
    case 0:
        return high ? "wire_vcc" : "wire_gnd";
    case 1:
        return high ? "wire_vcc_vector" : "wire_gnd_vector";
    default:
        return {};
    }
}

namespace {

/// Whether a subdesign's bidirectional port drives one of the design itself, and no other subdesign's.
bool drives_own_bidir(GNL_PORT_BIDIR const & bidir, GNL_GENERATOR const * level)
{
    GNL_PORT const * const driven = base_port(bidir.get_driven_bidir_port());
    return driven == nullptr || driven->get_parent() == level;
}

} // namespace

bool bidir_has_signal(GNL_PORT & bidir, GNL_GENERATOR const * level)
{
    auto const * port = as_bidir(bidir);
    if (port == nullptr)
        return false;
    if (port->is_locked_bidir_port() == 2)
        return !drives_own_bidir(*port, level);
    auto const * driver = driver_at(bidir, level);
    return port->is_locked_bidir_port() == 1 || driver == nullptr || !driver->is_bidir();
}

namespace {

bool has_two_dimensions(GNL_PORT const & port)
{
    return port.get_2d_width() > 0 || port.get_2d_width_parameter_name() != nullptr;
}

} // namespace

bool is_2d_in_component(GNL_PORT const & port)
{
    auto * cell = port.get_parent();
    return has_two_dimensions(port) && cell->is_primitive() && !cell->has_vhdl_used_port_parameter_only_component()
           && is_vhdl_library_cell(*cell);
}

bool has_2d_signal(GNL_PORT & port)
{
    return port.is_input() && (port.get_driver() != nullptr || has_constant(port)) && is_2d_in_component(port)
           && port.get_width() > 0;
}

port_dimensions dimensions_of(GNL_PORT & port)
{
    auto const * expression = port.get_2d_width_parameter_name();
    int const row_width = std::max(
        1, expression != nullptr ? port.get_parent()->evaluate_port_width_expression(expression) : port.get_2d_width());
    return {port.get_width() / row_width, row_width};
}

} // namespace gnl_detail
