#include "gnl_generator.h"

#include "lbx/gnl/core/leading_integer.h"
#include "lbx/gnl/core/parameter_text_hold.h"
#include "lbx/gnl/parameters/parameter_messages.h"
#include "lbx_util.h"

#include <algorithm>

using gnl_detail::parameter_message;
using gnl_detail::report;

namespace {

std::unique_ptr<MLIB_UINTEGER> copy_of(std::unique_ptr<MLIB_UINTEGER> const & value)
{
    return value ? std::make_unique<MLIB_UINTEGER>(*value) : nullptr;
}

bool is_small(int default_value)
{
    return default_value >= -1 && default_value <= 1;
}

} // namespace

GNL_PARAMETER_VECTOR::GNL_PARAMETER_VECTOR(GNL_GENERATOR * parent, std::string const & name)
    : GNL_PARAMETER(parent, name)
{
}

GNL_PARAMETER_VECTOR::GNL_PARAMETER_VECTOR(GNL_GENERATOR * parent, std::string const & name, int default_value,
                                           int width)
    : GNL_PARAMETER(parent, name)
    , m_vector_width(width)
{
    set_first_default(default_value, width);
}

GNL_PARAMETER_VECTOR::GNL_PARAMETER_VECTOR(GNL_GENERATOR * parent, std::string const & name, int default_value,
                                           std::string const & width_name)
    : GNL_PARAMETER(parent, name)
    , m_width_override(true)
    , m_width_parameter_name(width_name)
    , m_vector_width(-1)
{
    set_first_default(default_value, 32);
}

GNL_PARAMETER_VECTOR::GNL_PARAMETER_VECTOR(GNL_GENERATOR * parent, std::string const & name,
                                           std::string const & default_text, int width)
    : GNL_PARAMETER(parent, name)
    , m_default_vector(std::make_unique<MLIB_UINTEGER>(0U, width))
    , m_vector_width(width)
{
    set_first_default(default_text);
}

GNL_PARAMETER_VECTOR::GNL_PARAMETER_VECTOR(GNL_GENERATOR * parent, std::string const & name,
                                           std::string const & default_text, std::string const & width_name)
    : GNL_PARAMETER(parent, name)
    , m_width_override(true)
    , m_width_parameter_name(width_name)
    , m_default_vector(std::make_unique<MLIB_UINTEGER>())
    , m_vector_width(-1)
{
    set_first_default(default_text);
    m_vector_width = -1; // the default has a width of its own until that of the parameter is known
}

GNL_PARAMETER_VECTOR::GNL_PARAMETER_VECTOR(GNL_PARAMETER_VECTOR const & other)
    : GNL_PARAMETER(other)
{
    copy_fields(other);
}

GNL_PARAMETER_VECTOR & GNL_PARAMETER_VECTOR::operator=(GNL_PARAMETER_VECTOR const & other)
{
    if (this == &other)
        return *this;
    GNL_PARAMETER::operator=(other);
    copy_fields(other);
    return *this;
}

void GNL_PARAMETER_VECTOR::copy_fields(GNL_PARAMETER_VECTOR const & other)
{
    m_width_override = other.m_width_override;
    m_binary_output = other.m_binary_output;
    m_vhdl_bit_vector = other.m_vhdl_bit_vector;
    m_width_parameter_name = other.m_width_parameter_name;
    m_vector_value = copy_of(other.m_vector_value);
    m_default_vector = copy_of(other.m_default_vector);
    m_vector_width = other.m_vector_width;
    m_default_small = other.m_default_small;
    m_unassigned_value = other.m_unassigned_value;
}

void GNL_PARAMETER_VECTOR::set_first_default(int default_value, int width)
{
    if (is_small(default_value))
        m_default_small = default_value;
    else {
        m_default_vector = std::make_unique<MLIB_UINTEGER>(0U, width);
        *m_default_vector = default_value;
    }
}

void GNL_PARAMETER_VECTOR::set_first_default(std::string const & text)
{
    if (!get_parent()) {
        assign_string_value(text, false);
        return;
    }
    GNL_GENERATOR::parameter_text_hold const hold(*get_parent());
    assign_string_value(text, false);
}

bool GNL_PARAMETER_VECTOR::may_assign(std::string const & text)
{
    settle_earlier_values();
    if (is_assigned_too_late()) {
        report<parameter_message::vector_inherit_only_in_body>(*get_parent(), get_name(), text);
        return false;
    }
    if (m_vector_width != -1)
        return true;
    if (!m_width_parameter_name.empty())
        m_unassigned_value = text;
    else if (get_parent())
        report<parameter_message::illegal_vector_width>(*get_parent(), get_name());
    return false;
}

void GNL_PARAMETER_VECTOR::finish_assignment()
{
    m_value_changed = true;
    tell_parent();
}

GNL_PARAMETER_VECTOR & GNL_PARAMETER_VECTOR::operator=(int value)
{
    if (!may_assign(convert_int_to_string(value)))
        return *this;
    own_value() = value;
    finish_assignment();
    return *this;
}

GNL_PARAMETER_VECTOR & GNL_PARAMETER_VECTOR::operator=(MLIB_UINTEGER value)
{
    if (!may_assign("0x" + value.as_hex_string()))
        return *this;
    if (m_width_override)
        m_vector_width = std::max(m_vector_width, value.bitwidth());
    own_value() = value;
    own_value().set_bitwidth(m_vector_width);
    finish_assignment();
    return *this;
}

GNL_PARAMETER_VECTOR & GNL_PARAMETER_VECTOR::operator=(std::string const & text)
{
    if (!may_assign(text))
        return *this;
    assign_string_value(text, true);
    finish_assignment();
    return *this;
}

void GNL_PARAMETER_VECTOR::assign_string_value(std::string const & text, bool to_value)
{
    if (text.empty())
        return;
    std::string digits;
    bool const legal = lbx_convert_numeric_string_to_binary_format(text, digits);
    if (!digits.empty()) {
        int const needed = static_cast<int>(digits.size());
        if (needed > m_vector_width && (m_width_override || m_vector_width == -1))
            m_vector_width = needed;
        auto & target = to_value ? m_vector_value : m_default_vector;
        if (!target)
            target = std::make_unique<MLIB_UINTEGER>(0U, m_vector_width);
        target->set_bitwidth(m_vector_width);
        target->set_value_from_bin_string(digits); // which keeps the low digits of what does not fit
    }
    if (!legal && get_parent())
        report<parameter_message::illegal_vector_text>(*get_parent(), get_name(), text);
}

void GNL_PARAMETER_VECTOR::assign_unassigned_value()
{
    std::string const text = std::move(m_unassigned_value);
    m_unassigned_value.clear();
    if (text.empty())
        return;
    if (text.front() == '-' && lbx_is_integer_value(text))
        own_value() = gnl_detail::leading_integer(text);
    else
        assign_string_value(text, true);
    finish_assignment();
}

void GNL_PARAMETER_VECTOR::set_width(int width)
{
    if (!m_width_override) {
        if (get_parent())
            report<parameter_message::vector_width_fixed>(*get_parent(), get_name());
        return;
    }
    m_width_override = false;
    m_vector_width = width;
    if (m_default_small != -1)
        m_default_vector.reset(); // made anew at the right width when it is asked for
    for (auto * value : {m_vector_value.get(), m_default_vector.get()})
        if (value)
            value->set_bitwidth(width);
}

MLIB_UINTEGER & GNL_PARAMETER_VECTOR::own_value()
{
    if (!m_vector_value)
        m_vector_value = std::make_unique<MLIB_UINTEGER>(0U, m_vector_width);
    return *m_vector_value;
}

MLIB_UINTEGER & GNL_PARAMETER_VECTOR::get_value()
{
    if (GNL_GENERATOR * const parent = get_parent()) {
        if (!is_used())
            report<parameter_message::vector_not_assigned>(*parent, get_name());
        if (!is_inherit_never())
            report<parameter_message::vector_inherits>(*parent, get_name());
        if (m_width_override && parent->is_in_rtl_body())
            parent->made_port_connection(get_name());
    }
    return own_value();
}

MLIB_UINTEGER * GNL_PARAMETER_VECTOR::get_default_value()
{
    if (!m_default_vector) {
        m_default_vector = std::make_unique<MLIB_UINTEGER>(0U, m_vector_width);
        if (m_default_small == 1)
            --*m_default_vector;
        else
            *m_default_vector = m_default_small;
    }
    return m_default_vector.get();
}

int GNL_PARAMETER_VECTOR::get_default_value_as_int() const
{
    return m_default_vector ? static_cast<int>(m_default_vector->uint()) : m_default_small;
}

void GNL_PARAMETER_VECTOR::set_default_value(int value)
{
    if (value == 0 || value == 1) {
        m_default_small = value;
        m_default_vector.reset();
        return;
    }
    m_default_small = -1;
    if (!m_default_vector)
        m_default_vector = std::make_unique<MLIB_UINTEGER>(0U, m_vector_width);
    *m_default_vector = value;
}
