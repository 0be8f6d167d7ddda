#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/ports/port_messages.h"

#include <string>

namespace gnl_detail {

// What the forms of assignment have in common: a port or a constant on the right, a whole port or some bits of it on
// the left. Each check reports what it refuses. Names are made for messages only.

/// The messages about one kind of right side.
struct connection_messages
{
    port_message heterogeneous;
    port_message assigned_again;
    port_message constant_assigned_again;
    port_message outside_body;
    port_message no_sink;
    port_message no_such_bit;
    port_message in_slice;
    port_message in_master;
    port_message range_in_slice;
    port_message range_in_master;
};

inline constexpr connection_messages messages_about_ports = {
    .heterogeneous = port_message::array_port_assigned,
    .assigned_again = port_message::assigned_again,
    .constant_assigned_again = port_message::constant_assigned_again,
    .outside_body = port_message::assigned_outside_body,
    .no_sink = port_message::no_sink,
    .no_such_bit = port_message::no_such_bit,
    .in_slice = port_message::assigned_in_slice,
    .in_master = port_message::assigned_in_master,
    .range_in_slice = port_message::assigned_in_slice_range,
    .range_in_master = port_message::assigned_in_master_range,
};

inline constexpr connection_messages messages_about_constants = {
    .heterogeneous = port_message::array_port_assigned_constant,
    .assigned_again = port_message::assigned_again_constant,
    .constant_assigned_again = port_message::constant_assigned_again_constant,
    .outside_body = port_message::constant_outside_body,
    .no_sink = port_message::no_sink_for_constant,
    .no_such_bit = port_message::no_such_bit_for_constant,
    .in_slice = port_message::assigned_in_slice_constant,
    .in_master = port_message::assigned_in_master_constant,
    .range_in_slice = port_message::assigned_in_slice_constant_range,
    .range_in_master = port_message::assigned_in_master_constant_range,
};

/// The right side of a connection as its messages name it.
inline std::string source_text(GNL_PORT const & port)
{
    return port.get_hierarchical_name();
}
inline std::string source_text(int value)
{
    return GNL_ELEMENT::convert_int_to_string(value);
}
inline std::string source_text(MLIB_UINTEGER const & value)
{
    return value.as_hex_string();
}

/// Whether the constant fits the port. Nothing is checked from 32 bits on: every int fits there.
inline bool constant_fits(GNL_PORT & sink, int value)
{
    int const width = sink.get_width();
    if (width >= 32 || value == 0 || value == 1)
        return true;
    // A scalar, and a port of no bits at all, take 0 and 1 alone.
    return width > 0 && value >= 0 && static_cast<unsigned>(value) < 1U << width;
}
/// A wide constant is judged by its width alone, whatever its bits are.
inline bool constant_fits(GNL_PORT & sink, MLIB_UINTEGER const & value)
{
    return value.bitwidth() <= sink.get_bus_width();
}

template <class SOURCE> inline constexpr connection_messages messages_about = messages_about_constants;
template <> inline constexpr connection_messages messages_about<GNL_PORT> = messages_about_ports;

/// A declared pin, which a connection marks as used; a wire is not.
inline bool is_pin(GNL_PORT const & port)
{
    return port.is_output() || port.is_input() || port.is_bidir();
}

/// Reports that `sink` already has a driver or a constant.
template <class SOURCE> void report_assigned_again(GNL_PORT & sink, SOURCE const & source)
{
    GNL_GENERATOR const & parent = *sink.get_parent();
    if (GNL_PORT const * driver = sink.get_driver()) {
        report<messages_about<SOURCE>.assigned_again>(parent, sink.get_hierarchical_name(),
                                                      driver->get_hierarchical_name(), source_text(source));
        return;
    }
    MLIB_UINTEGER const * constant = sink.constant_driving_value_as_mlib_int();
    report<messages_about<SOURCE>.constant_assigned_again>(parent, sink.get_hierarchical_name(),
                                                           constant ? constant->as_hex_string() : std::string(),
                                                           source_text(source));
}

/// Whether `sink` may be assigned as a whole and nothing has been assigned to it yet.
template <class SOURCE> bool check_unassigned(GNL_PORT & sink, SOURCE const & source)
{
    GNL_GENERATOR const & parent = *sink.get_parent();
    // In the common design of the slices the port is that of one slice.
    if (sink.is_heterogeneous_port() && parent.is_heterogeneous_array() && !parent.is_in_rtl_body()) {
        report<messages_about<SOURCE>.heterogeneous>(parent, sink.get_hierarchical_name(), source_text(source));
        return false;
    }
    if (!sink.get_driver() && !sink.is_driven_by_constant())
        return true;
    report_assigned_again(sink, source);
    return false;
}

/// Stores the level at which `sink` is connected, and answers whether there is one and no side of an array has the
/// port already.
template <class SOURCE> bool check_level_and_slices(GNL_PORT & sink, SOURCE const & source)
{
    GNL_GENERATOR const & parent = *sink.get_parent();
    sink.set_connection_level(sink.find_connection_level());
    if (!sink.get_connection_level()) {
        report<messages_about<SOURCE>.outside_body>(parent, sink.get_hierarchical_name(), source_text(source));
        return false;
    }
    if (sink.check_slices())
        return true;
    if (parent.is_master_array())
        report<messages_about<SOURCE>.in_slice>(parent, sink.get_hierarchical_name(), source_text(source));
    else
        report<messages_about<SOURCE>.in_master>(parent, sink.get_hierarchical_name(), source_text(source));
    return false;
}

/// Whether `sink` may be driven at its connection level.
template <class SOURCE> bool check_sink(GNL_PORT & sink, SOURCE const & source)
{
    GNL_GENERATOR * level = sink.get_connection_level();
    if (sink.check_lhs(level))
        return true;
    report<messages_about<SOURCE>.no_sink>(*sink.get_parent(), sink.get_hierarchical_name(), source_text(source),
                                           level->get_hierarchical_name());
    return false;
}

/// Whether the bits `high` down to `low` of `sink` may be assigned.
template <class SOURCE>
bool check_ranged(GNL_PORT & sink, SOURCE const & source, int high, int low, bool check_array_slices)
{
    constexpr connection_messages const & messages = messages_about<SOURCE>;
    GNL_GENERATOR const & parent = *sink.get_parent();
    if (check_array_slices && !sink.check_slices(high, low)) {
        if (parent.is_master_array())
            report<messages.range_in_slice>(parent, sink.get_hierarchical_name(), source_text(source), high, low);
        else
            report<messages.range_in_master>(parent, sink.get_hierarchical_name(), source_text(source), high, low);
        return false;
    }
    if (high > sink.get_bus_width() - 1) {
        report<messages.no_such_bit>(parent, sink.get_hierarchical_name(), sink.get_bus_width(), source_text(source),
                                     high, low);
        return false;
    }
    // A constant on the whole port is no obstacle: the bits come in addition to it.
    if (!sink.get_driver() || sink.get_driver()->is_concat_port())
        return true;
    report_assigned_again(sink, source);
    return false;
}

/// Settles what `source` needs to be read by `sink`: an input that is not fed stands for its default, and one without a
/// default is reported.
void check_input_source(GNL_PORT & sink, GNL_PORT & source);

} // namespace gnl_detail
