#include "gnl_port.h"

#include "gnl_generator.h"

#include "lbx/gnl/ports/connection_checks.h"
#include "lbx/gnl/ports/reference_text.h"

using gnl_detail::check_level_and_slices;
using gnl_detail::check_sink;
using gnl_detail::check_unassigned;
using gnl_detail::port_message;
using gnl_detail::report;

GNL_GENERATOR * GNL_PORT::find_connection_level() const
{
    GNL_GENERATOR * parent = get_parent();
    if (!parent || parent->is_in_rtl_body())
        return parent;
    return parent->current_connection_level();
}

bool GNL_PORT::check_lhs(GNL_GENERATOR * level)
{
    // Logic objects and concatenations pass: their own checks come when they are written.
    if (is_input())
        return !same_as_parent(level);
    return !is_output() || same_as_parent(level);
}

bool GNL_PORT::check_rhs(GNL_GENERATOR * level)
{
    if (is_input())
        return same_as_parent(level);
    if (is_output())
        return !same_as_parent(level);
    return check_range_driver_validity(level);
}

// ---- Arrays

namespace {

/// The array's port of the same name, null when the array can't conflict: inside the body of a slice the connections
/// that were made around it belong to another level.
GNL_PORT * port_of_array_beside(GNL_PORT const & port)
{
    GNL_GENERATOR const * slice = port.get_parent();
    GNL_PORT * on_array = gnl_detail::port_place(port).on_array();
    if (on_array && slice->is_in_rtl_body() && on_array->get_connection_level() != slice)
        return nullptr;
    return on_array;
}

} // namespace

bool GNL_PORT::check_slices()
{
    GNL_GENERATOR * parent = get_parent();
    if (!parent)
        return true;
    if (parent->is_master_array())
        return parent->check_slices_for_port_assignment(get_name(), get_original_width(), 0, get_width() - 1);
    if (parent->get_slice_index() < 0)
        return true;
    return check_slices(get_bus_width() - 1, 0);
}

bool GNL_PORT::check_slices(int high, int low)
{
    GNL_GENERATOR * parent = get_parent();
    if (!parent)
        return true;
    if (parent->is_master_array())
        return parent->check_slices_for_port_assignment(get_name(), get_original_width(), low, high);
    if (parent->get_slice_index() < 0)
        return true;
    GNL_PORT * on_array = port_of_array_beside(*this);
    int const first_bit = get_bus_width() * parent->get_slice_index();
    return !on_array || on_array->check_port_assignment(first_bit + low, first_bit + high);
}

// ---- A port on the right

namespace gnl_detail {

void check_input_source(GNL_PORT & sink, GNL_PORT & source)
{
    if (!source.is_input() || source.is_used())
        return;
    if (source.get_default_value() != -1)
        source.set_generate_constant_wire();
    else
        report<port_message::unconnected_input>(*sink.get_parent(), source.get_hierarchical_name(),
                                                sink.get_hierarchical_name());
}

} // namespace gnl_detail

namespace {

void check_widths(GNL_PORT & sink, GNL_PORT & source)
{
    if (!sink.is_divisible(source.get_bus_width()))
        report<port_message::widths_mismatched>(*sink.get_parent(), sink.get_hierarchical_name(), sink.get_bus_width(),
                                                source.get_hierarchical_name(), source.get_bus_width());
}

/// Whether `source` may be read at the connection level of `sink`; reports it otherwise.
bool check_source(GNL_PORT & sink, GNL_PORT & source)
{
    GNL_GENERATOR * level = sink.get_connection_level();
    if (source.check_rhs(level))
        return true;
    report<port_message::no_source>(*sink.get_parent(), source.get_hierarchical_name(), sink.get_hierarchical_name(),
                                    level->get_hierarchical_name());
    return false;
}

/// Whether VHDL has to write the connection bit by bit or slice by slice.
bool needs_vhdl_loop(GNL_PORT & sink, GNL_PORT & source)
{
    int const slices = sink.get_parent()->get_array_width();
    if (sink.get_bus_width() == source.get_bus_width()
        && (slices < 1 || !sink.get_parent()->not_equal_widths(sink.get_original_width(), source.get_width())))
        return false;
    return slices == 0 || (slices >= 1 && sink.get_original_width() != source.get_original_width());
}

/// Everything that must hold before `source` becomes the driver of `sink`. Mismatched widths are reported only: the
/// connection is made all the same, so that one run shows as many errors as possible.
bool may_connect(GNL_PORT & sink, GNL_PORT & source)
{
    if (!check_unassigned(sink, source))
        return false;
    check_widths(sink, source);
    if (!check_level_and_slices(sink, source))
        return false;
    bool const sink_is_right = check_sink(sink, source);
    bool const source_is_right = check_source(sink, source);
    return sink_is_right && source_is_right;
}

} // namespace

GNL_PORT & GNL_PORT::operator=(GNL_PORT & rhs)
{
    GNL_GENERATOR * parent = get_parent();
    if (!parent)
        return *this;
    parent->made_port_connection(get_name());
    if (may_connect(*this, rhs)) {
        m_driver = &rhs;
        if (rhs.is_range_port())
            rhs.set_connection_level(m_connection_level);
        if (needs_vhdl_loop(*this, rhs)) {
            set_create_vhdl_loop();
            if (!rhs.is_simple_port())
                rhs.set_create_vhdl_loop();
        }
        if (gnl_detail::is_pin(*this))
            set_used();
        if (rhs.is_output() || rhs.is_bidir())
            rhs.set_used();
        gnl_detail::check_input_source(*this, rhs);
        if (rhs.is_range_port())
            rhs.set_range_port_used();
        rhs.set_port_is_a_driver();
    }
    if (rhs.is_bidir()) {
        rhs.check_bidir_validity(parent, is_bidir(), this);
        if (is_bidir())
            set_has_special_bidir_driver();
    }
    return *this;
}
