// String parameters: assignment and reading. The list syntax is in gnl_parameter_value_list.cpp.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/parameters/parameter_messages.h"

#include <algorithm>
#include <array>

using gnl_detail::equal_folded;
using gnl_detail::parameter_message;
using gnl_detail::report;

namespace {

/// The value that stands for no value.
constexpr std::string_view no_value = "UNUSED";

/// Parameters that describe the device of the whole design, so that only the top can set them.
constexpr std::array<std::string_view, 2> inherit_only_names = {"DEVICE_FAMILY", "INTENDED_DEVICE_FAMILY"};

} // namespace

GNL_PARAMETER_STRING::GNL_PARAMETER_STRING(GNL_GENERATOR * parent, std::string const & name,
                                           std::string const & value_list, int default_index)
    : GNL_PARAMETER(parent, name)
    , m_value_list(value_list)
    , m_default_index(default_index)
{
    if (std::any_of(inherit_only_names.begin(), inherit_only_names.end(),
                    [&](std::string_view listed) { return equal_folded(listed, name); }))
        set_as_inherit_only();
}

GNL_PARAMETER_STRING & GNL_PARAMETER_STRING::operator=(char const * value)
{
    return *this = std::string(value ? value : "");
}

GNL_PARAMETER_STRING & GNL_PARAMETER_STRING::operator=(std::string const & value)
{
    if (!parameter_assign_error_check(value))
        return *this;
    bool const listed = select_listed_value(value);
    if (!listed && equal_folded(value, no_value))
        return *this;
    if (!listed) {
        warn_of_unlisted_value(value);
        take_unlisted_value(value);
    }
    tell_parent();
    return *this;
}

GNL_PARAMETER_STRING & GNL_PARAMETER_STRING::operator=(GNL_PARAMETER_EXPR & expression)
{
    assign_expression(expression);
    return *this;
}

GNL_PARAMETER_STRING & GNL_PARAMETER_STRING::operator=(GNL_PARAMETER_STRING const & other)
{
    // Reading brings the other parameter's text in, so it is no const operation; what users see does not change.
    return *this = const_cast<GNL_PARAMETER_STRING &>(other).get_value(true);
}

void GNL_PARAMETER_STRING::safely_change_value(std::string const & value)
{
    if (!select_listed_value(value) && !equal_folded(value, no_value))
        take_unlisted_value(value);
}

bool GNL_PARAMETER_STRING::select_listed_value(std::string const & value)
{
    int const index = index_in_list(value);
    if (index < 0)
        return false;
    m_value_index = index;
    if (!equal_folded(value, no_value))
        m_value_changed = true;
    return true;
}

void GNL_PARAMETER_STRING::warn_of_unlisted_value(std::string const & value) const
{
    if (m_value_list.empty() || is_inherit_only() || !get_parent() || equal_folded(m_value_list, no_value)
        || m_allow_all_values)
        return;
    get_parent()->generator_warning(" The parameter value is not one of the pre-specified values in the value list.",
                                    get_hierarchical_name(),
                                    "The value assigned is " + value + " and the valid value list is " + m_value_list);
}

void GNL_PARAMETER_STRING::take_unlisted_value(std::string const & value)
{
    if (m_value_list.empty() || m_default_index == -1) {
        m_from_value_list = false;
        m_value_list = value;
        m_value_index = 0;
    } else {
        m_value_index = static_cast<int>(std::count(m_value_list.begin(), m_value_list.end(), '|')) + 1;
        m_value_list += '|' + value;
    }
    m_value_changed = true;
}

void GNL_PARAMETER_STRING::update_default_value(std::string const & value)
{
    if (!m_value_list.empty()) {
        int const index = index_in_list(value);
        if (index >= 0)
            m_default_index = index;
    } else if (!equal_folded(value, no_value)) {
        m_value_list = value;
        m_default_index = 0;
    }
}

std::string GNL_PARAMETER_STRING::get_value(bool report_missing)
{
    if (get_parent())
        get_parent()->initialize_param_list();
    if (!is_parameterized())
        return get_internal_value(report_missing);
    if (get_parent())
        report<parameter_message::exposed_read>(*get_parent(), get_name());
    return std::string(no_value);
}

std::string GNL_PARAMETER_STRING::get_internal_value(bool report_missing)
{
    bool const local = is_local();
    std::string value(no_value);
    bool missing = false;
    if (!local && (is_inherit_only() || m_value_index == -1))
        value = get_parent()->get_parent()->get_inherited_string_parameter_value(get_name());
    if (!local && is_inherit_only()) {
        if (report_missing && equal_folded(value, no_value))
            report<parameter_message::no_inherited_value>(*get_parent(), get_name());
    } else if (equal_folded(value, no_value)) {
        missing = !take_own_value(value);
    }
    if (missing && report_missing && get_parent())
        report<parameter_message::no_value>(*get_parent(), get_name());
    if (m_from_value_list && !equal_folded(value, no_value))
        return strip_alias_values(value);
    return value;
}

bool GNL_PARAMETER_STRING::take_own_value(std::string & value) const
{
    int const index = m_value_index != -1 ? m_value_index : m_default_index;
    if (index == -1)
        return false;
    if (m_value_list.empty())
        return true;
    std::string token = get_token(m_value_list, index);
    if (token.empty())
        return false;
    value = std::move(token);
    return true;
}

std::string GNL_PARAMETER_STRING::get_default_value() const
{
    if (m_default_index == -1 || !m_from_value_list)
        return {};
    return strip_alias_values(get_token(m_value_list, m_default_index));
}

bool GNL_PARAMETER_STRING::comparenocase(std::string const & text)
{
    return equal_folded(get_value(true), text);
}
