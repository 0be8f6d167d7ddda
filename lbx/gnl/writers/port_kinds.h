#pragma once

#include "gnl_port.h"

namespace gnl_detail {

/// The port as the kind that it says it is, null if it is another.
inline GNL_PORT_INPUT * as_input(GNL_PORT & port)
{
    return port.is_input() ? static_cast<GNL_PORT_INPUT *>(&port) : nullptr;
}
inline GNL_PORT_OUTPUT * as_output(GNL_PORT & port)
{
    return port.is_output() ? static_cast<GNL_PORT_OUTPUT *>(&port) : nullptr;
}
inline GNL_PORT_BIDIR * as_bidir(GNL_PORT & port)
{
    return port.is_bidir() ? static_cast<GNL_PORT_BIDIR *>(&port) : nullptr;
}
inline GNL_WIRE * as_wire(GNL_PORT & port)
{
    return port.is_wire() ? static_cast<GNL_WIRE *>(&port) : nullptr;
}

/// Whether the port is a pin of the written design: used, or an input that is held at a constant from outside.
inline bool is_declared_port(GNL_PORT & port)
{
    if (auto const * input = as_input(port))
        return port.is_used() || input->is_constant_used_port();
    return (port.is_output() || port.is_bidir()) && port.is_used();
}

/// Whether the input has become a local signal that is fed by its default.
inline bool is_default_signal(GNL_PORT_INPUT & input)
{
    return input.is_a_constant_wire() && !input.is_used() && !input.is_constant_used_port();
}

/// Whether an input is left open and has a default that may be written in its place.
inline bool can_be_tied_off(GNL_PORT & port)
{
    return port.is_input() && port.get_default_value() != -1 && port.is_included_in_declaration();
}

/// Whether a constant drives the port. The flag alone outlives the constant when a driver takes its place.
inline bool has_constant(GNL_PORT & port)
{
    return port.is_driven_by_constant() && port.constant_driving_value_as_mlib_int() != nullptr;
}

/// A bidirectional port can be connected inside its own design and around it; only what was connected in the body of
/// `level` belongs into the text of `level`.
inline GNL_PORT * driver_at(GNL_PORT & port, GNL_GENERATOR const * level)
{
    return port.get_connection_level() == level ? port.get_driver() : nullptr;
}
inline bool has_constant_at(GNL_PORT & port, GNL_GENERATOR const * level)
{
    return port.get_connection_level() == level && has_constant(port);
}

/// Whether the declared width of a slice's port fits the driver, so that it stands for itself; a scalar and a bus of
/// one bit fit each other.
inline bool widths_match(GNL_PORT const & port, GNL_PORT & driver)
{
    int const declared = port.get_original_width();
    int const width = driver.get_width();
    return declared == width || (declared == 0 && width == 1) || (declared == 1 && width == 0);
}

} // namespace gnl_detail
