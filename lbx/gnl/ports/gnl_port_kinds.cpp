#include "gnl_port.h"

#include "gnl_generator.h"

#include "lbx/gnl/ports/port_messages.h"
#include "lbx/gnl/ports/reference_text.h"
#include "lbx/gnl/ports/saturated.h"
#include "lbx/gnl/writers/array_slices.h"

#include <algorithm>

using gnl_detail::port_message;
using gnl_detail::report;

namespace {

char const * text_or_null(std::string const & text)
{
    return text.empty() ? nullptr : text.c_str();
}

/// A pin that is declared after the first connection still has its width to get, from its expression or its array.
void tell_late_pin(GNL_GENERATOR * parent, bool has_expression)
{
    if (parent && parent->port_connections_made()
        && (has_expression || parent->get_array_width() > 0 || parent->get_slice_index() >= 0))
        parent->declared_late();
}

/// Only a default of 1 reads as a logic one.
std::string default_text(int default_value, int width)
{
    bool const is_one = default_value == 1;
    std::string bits(static_cast<std::size_t>(std::max(width, 1)), is_one ? '1' : '0');
    if (GNL_ELEMENT::is_verilog() || GNL_ELEMENT::is_vhdl())
        return bits;
    if (width > 1)
        return "B\"" + bits + "\"";
    return is_one ? "VCC" : "GND";
}

/// Whether the default of a pin may still be set; reports it otherwise.
bool may_set_default(GNL_PORT const & port, char const * kind)
{
    GNL_GENERATOR const * parent = port.get_parent();
    if (!parent || (!parent->is_in_update_port_widths() && !parent->is_in_rtl_body()))
        return true;
    report<port_message::default_outside_constructor>(*parent, kind, port.get_hierarchical_name());
    return false;
}

/// Whether the slice's bits are connected: on the slice itself, or among those that are connected on the array.
bool are_all_bits_used_on_slice(GNL_PORT & port)
{
    GNL_PORT * on_array = gnl_detail::port_place(port).on_array();
    if (!on_array)
        return false;
    if (on_array->is_driven_by_constant())
        return true;
    int const width = port.get_bus_width();
    int const index = port.get_parent()->get_slice_index();
    return on_array->check_if_driven_at_bits(width * index, width * (index + 1) - 1);
}

/// A connection on the array itself feeds every slice.
bool are_all_bits_of_pin_used(GNL_PORT & port)
{
    GNL_GENERATOR * parent = port.get_parent();
    if (port.check_is_used_flag() || !parent)
        return port.check_is_used_flag();
    if (!parent->is_master_array())
        return are_all_bits_used_on_slice(port);
    auto const ports = gnl_detail::array_slices(*parent).ports(port.get_name());
    return std::all_of(ports.begin(), ports.end(), [](GNL_PORT * slice) { return slice->check_is_used_flag(); });
}

/// The name under which a wire can be registered with `parent`.
std::string settled_wire_name(GNL_GENERATOR * parent, std::string const & name, int width, int width_2d)
{
    if (name.empty())
        return GNL_PORT::get_wire_name_from_parent(parent, "", "");
    return GNL_PORT::fix_wire_name(parent, name, gnl_detail::saturated(static_cast<long long>(width) + width_2d));
}

} // namespace

// ---- Inputs

GNL_PORT_INPUT::GNL_PORT_INPUT(GNL_GENERATOR * parent, std::string const & name, int width, int width_2d)
    : GNL_PORT(parent, name, width, width_2d)
{
    tell_late_pin(parent, false);
}

GNL_PORT_INPUT::GNL_PORT_INPUT(GNL_GENERATOR * parent, std::string const & name, std::string const & width_expression,
                               std::string const & width_2d_expression)
    : GNL_PORT(parent, name)
    , m_width_parameter_name(width_expression)
    , m_width_2d_parameter_name(width_2d_expression)
{
    tell_late_pin(parent, true);
}

void GNL_PORT_INPUT::set_default_port_value(int value)
{
    if (may_set_default(*this, "Input"))
        m_default_value = value;
}

std::string GNL_PORT_INPUT::get_default_value_as_string(int width) const
{
    return default_text(get_default_value(), width);
}

char const * GNL_PORT_INPUT::get_width_parameter_name() const
{
    return text_or_null(m_width_parameter_name);
}

char const * GNL_PORT_INPUT::get_2d_width_parameter_name() const
{
    return text_or_null(m_width_2d_parameter_name);
}

void GNL_PORT_INPUT::set_constant_used()
{
    m_constant_used = true;
    set_used(false);
}

bool GNL_PORT_INPUT::are_all_bits_used()
{
    return are_all_bits_of_pin_used(*this);
}

// ---- Outputs

GNL_PORT_OUTPUT::GNL_PORT_OUTPUT(GNL_GENERATOR * parent, std::string const & name, int width, int width_2d)
    : GNL_PORT(parent, name, width, width_2d)
{
    tell_late_pin(parent, false);
}

GNL_PORT_OUTPUT::GNL_PORT_OUTPUT(GNL_GENERATOR * parent, std::string const & name, std::string const & width_expression,
                                 std::string const & width_2d_expression)
    : GNL_PORT(parent, name)
    , m_width_parameter_name(width_expression)
    , m_width_2d_parameter_name(width_2d_expression)
{
    tell_late_pin(parent, true);
}

void GNL_PORT_OUTPUT::set_default_port_value(int value)
{
    if (may_set_default(*this, "Output"))
        m_default_value = value;
}

std::string GNL_PORT_OUTPUT::get_default_value_as_string(int width) const
{
    return default_text(get_default_value(), width);
}

char const * GNL_PORT_OUTPUT::get_width_parameter_name() const
{
    return text_or_null(m_width_parameter_name);
}

char const * GNL_PORT_OUTPUT::get_2d_width_parameter_name() const
{
    return text_or_null(m_width_2d_parameter_name);
}

bool GNL_PORT_OUTPUT::are_all_bits_used()
{
    return are_all_bits_of_pin_used(*this);
}

// ---- Bidirectional ports; their use is in gnl_port_bidir.cpp

GNL_PORT_BIDIR::GNL_PORT_BIDIR(GNL_GENERATOR * parent, std::string const & name, int width, int width_2d)
    : GNL_PORT(parent, name, width, width_2d)
{
    tell_late_pin(parent, false);
}

GNL_PORT_BIDIR::GNL_PORT_BIDIR(GNL_GENERATOR * parent, std::string const & name, std::string const & width_expression,
                               std::string const & width_2d_expression)
    : GNL_PORT(parent, name)
    , m_width_parameter_name(width_expression)
    , m_width_2d_parameter_name(width_2d_expression)
{
    tell_late_pin(parent, true);
}

char const * GNL_PORT_BIDIR::get_width_parameter_name() const
{
    return text_or_null(m_width_parameter_name);
}

char const * GNL_PORT_BIDIR::get_2d_width_parameter_name() const
{
    return text_or_null(m_width_2d_parameter_name);
}

// ---- Wires

GNL_WIRE::GNL_WIRE(GNL_GENERATOR * parent, std::string const & name, int width, int width_2d)
    : GNL_PORT(parent, settled_wire_name(parent, name, width, width_2d), width, width_2d)
{
}

std::string GNL_WIRE::get_default_value_as_string(int width) const
{
    return default_text(get_default_value(), width);
}
