// Arrays of generators: their slices, what passes between a master and its slices, and the widths of a master's ports.

#include "gnl_generator.h"

#include "lbx/gnl/core/core_messages.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/one_slice_widths.h"

#include <algorithm>

using gnl_detail::core_message;
using gnl_detail::report;

GNL_GENERATOR & GNL_GENERATOR::operator[](int index)
{
    if (m_state.array_width == 0) {
        report<core_message::not_an_array>(*this, get_hierarchical_name());
        return *this;
    }
    if (index < 0 || index >= m_state.array_width)
        return *get_array_slice(index);
    if (!m_state.master_array)
        create_slices();
    GNL_GENERATOR & slice = *get_array_slice(index);
    if (m_state.port_connections_made && &slice != this)
        slice.made_port_connection("INITIALIZE");
    return slice;
}

void GNL_GENERATOR::create_slices()
{
    initialize_param_list();
    for (int i = 0; i < m_state.array_width; ++i) {
        create_self_copy(this, i, m_state.instance_name);
        if (GNL_GENERATOR * const slice = get_array_slice(i); slice != this)
            slice->fill_slice_parameters();
    }
    m_state.master_array = true;
}

GNL_GENERATOR * GNL_GENERATOR::get_array_slice(int index)
{
    if (index < 0 || index >= m_state.array_width) {
        report<core_message::slice_out_of_range>(*this, get_hierarchical_name(), m_state.array_width, index);
        return this;
    }
    GNL_GENERATOR * const slice = m_registry->find_generator(get_name(), m_state.instance_name, index);
    return slice && slice->get_array_parent() == this ? slice : this;
}

GNL_PORT * GNL_GENERATOR::get_port_object_from_slice(int index, std::string const & name)
{
    GNL_GENERATOR * const slice = get_array_slice(index);
    return slice == this ? nullptr : slice->get_port_object(name);
}

// ---- Parameters

namespace {

/// The value as text that every kind of parameter reads back.
std::string value_text(GNL_PARAMETER & parameter)
{
    if (parameter.is_vector_parameter())
        return "0x" + static_cast<GNL_PARAMETER_VECTOR &>(parameter).get_value().as_hex_string();
    if (parameter.is_integer_parameter())
        return GNL_ELEMENT::convert_int_to_string(
            static_cast<GNL_PARAMETER_INTEGER &>(parameter).get_internal_value(false));
    return static_cast<GNL_PARAMETER_STRING &>(parameter).get_internal_value(false);
}

/// Gives `target` what `source` was given. A value outside of the list was warned of when the master got it, so a slice
/// takes it in silence.
void pass_value(GNL_PARAMETER & source, GNL_GENERATOR & slice)
{
    GNL_PARAMETER * const target = slice.registry().find_declared_parameter(source.get_name());
    if (GNL_PARAMETER_EXPR * const expression = source.get_expr()) {
        if (target && target->is_integer_parameter())
            static_cast<GNL_PARAMETER_INTEGER &>(*target) = *expression;
        else if (target && target->is_string_parameter())
            static_cast<GNL_PARAMETER_STRING &>(*target) = *expression;
    } else if (target && target->is_string_parameter() && source.is_string_parameter())
        static_cast<GNL_PARAMETER_STRING &>(*target).safely_change_value(value_text(source));
    else
        slice.assign_value_to_parameter(source.get_name(), value_text(source));
}

} // namespace

void GNL_GENERATOR::take_value_of_master(GNL_PARAMETER & parameter)
{
    // Slices read inherit-only parameters from above, as their master does.
    if (parameter.is_inherit_only())
        return;
    initialize_param_list();
    if (m_state.own_parameters.count(parameter.get_name()) != 0)
        return;
    m_state.slice_parameters_filled = true;
    m_state.taking_master_values = true;
    pass_value(parameter, *this);
    m_state.taking_master_values = false;
}

void GNL_GENERATOR::assign_parameter_values_to_slice(int index)
{
    GNL_GENERATOR * const slice = get_array_slice(index);
    if (slice == this)
        return;
    for (GNL_PARAMETER * parameter : m_registry->declared_parameters())
        if (parameter->value_changed())
            slice->take_value_of_master(*parameter);
}

void GNL_GENERATOR::fill_slice_parameters()
{
    if (m_state.slice_index < 0 || !m_state.array_parent || m_state.slice_parameters_filled)
        return;
    m_state.slice_parameters_filled = true;
    m_state.array_parent->assign_parameter_values_to_slice(m_state.slice_index);
}

void GNL_GENERATOR::update_heterogeneous_slices(std::string const & name, std::string const &)
{
    GNL_PARAMETER * const parameter = m_registry->find_declared_parameter(name);
    if (!parameter)
        return;
    for (int i = 0; i < m_state.array_width; ++i)
        if (GNL_GENERATOR * const slice = get_array_slice(i); slice != this)
            slice->take_value_of_master(*parameter);
}

void GNL_GENERATOR::parameter_value_has_changed(std::string const & name, std::string const &,
                                                std::string const & new_value)
{
    if (m_state.port_connections_made || m_state.assignments_frozen) {
        report<core_message::assigned_after_connections>(*this, get_hierarchical_name() + "|" + name,
                                                         get_hierarchical_name());
        return;
    }
    if (m_state.master_array)
        update_heterogeneous_slices(name, new_value);
    if (m_state.slice_index < 0 || m_state.taking_master_values)
        return;
    m_state.own_parameters.insert(name);
    if (m_state.array_parent)
        m_state.array_parent->set_as_heterogeneous_array();
    set_as_heterogeneous_element();
}

// ---- Ports

void GNL_GENERATOR::multiply_array_port_widths()
{
    if (m_state.array_width <= 0)
        return;
    for (GNL_PORT & port : m_registry->ports()) {
        if (!port.is_simple_port())
            continue;
        int const even = std::max(gnl_detail::declared_slice_width(port), 1) * m_state.array_width;
        int sum = 0;
        if (m_state.master_array)
            for (int i = 0; i < m_state.array_width; ++i)
                if (GNL_PORT * const on_slice = get_port_object_from_slice(i, port.get_name()))
                    sum += on_slice->get_bus_width();
        if (sum != 0 && sum != even) {
            set_as_heterogeneous_array();
            port.set_as_heterogeneous_port();
        }
        port.set_width(sum != 0 ? sum : even, false);
    }
}

bool GNL_GENERATOR::check_slices_for_port_assignment(std::string const & port_name, int slice_width, int low, int high)
{
    if (!m_state.master_array)
        return true;
    int const first = slice_width != 0 ? low / slice_width : low;
    int const last = std::min(slice_width != 0 ? high / slice_width : high, m_state.array_width - 1);
    for (int i = std::max(first, 0); i <= last; ++i) {
        GNL_PORT const * const port = get_port_object_from_slice(i, port_name);
        // In the body of the array's own design, connections that were made around it belong to another level.
        bool const same_level = port && (!m_state.in_rtl_body || port->get_connection_level() == this);
        if (same_level && (port->get_driver() || port->is_driven_by_constant()))
            return false;
    }
    return true;
}

bool GNL_GENERATOR::check_parent_for_port_assignment(std::string const & port_name, int slice_width, int low, int high)
{
    GNL_GENERATOR const * const array = m_state.slice_index >= 0 ? m_state.array_parent : nullptr;
    GNL_PORT * const port = array ? array->m_registry->find_port(port_name) : nullptr;
    if (!port || (m_state.in_rtl_body && port->get_connection_level() != this))
        return true;
    int const first_bit = std::max(slice_width, 1) * m_state.slice_index;
    return port->check_port_assignment(first_bit + std::min(low, high), first_bit + std::max(low, high));
}
