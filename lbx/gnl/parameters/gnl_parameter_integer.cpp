#include "gnl_generator.h"

#include "lbx/gnl/parameters/parameter_messages.h"

using gnl_detail::parameter_message;
using gnl_detail::report;

GNL_PARAMETER_INTEGER::GNL_PARAMETER_INTEGER(GNL_GENERATOR * parent, std::string const & name, int default_value)
    : GNL_PARAMETER(parent, name)
    , m_default_value(default_value)
{
}

GNL_PARAMETER_INTEGER & GNL_PARAMETER_INTEGER::operator=(int value)
{
    if (!parameter_assign_error_check(convert_int_to_string(value)))
        return *this;
    m_value = value;
    m_value_changed = true;
    tell_parent();
    return *this;
}

GNL_PARAMETER_INTEGER & GNL_PARAMETER_INTEGER::operator=(GNL_PARAMETER_EXPR & expression)
{
    assign_expression(expression);
    return *this;
}

GNL_PARAMETER_INTEGER & GNL_PARAMETER_INTEGER::operator=(GNL_PARAMETER_INTEGER const & other)
{
    // Reading brings the other parameter's text in, so it is no const operation; what users see does not change.
    return *this = const_cast<GNL_PARAMETER_INTEGER &>(other).get_value();
}

int GNL_PARAMETER_INTEGER::get_value(bool)
{
    if (get_parent())
        get_parent()->initialize_param_list();
    if (!is_parameterized())
        return get_internal_value(true);
    if (get_parent())
        report<parameter_message::exposed_read>(*get_parent(), get_name());
    return -1;
}

int GNL_PARAMETER_INTEGER::get_internal_value(bool report_missing)
{
    bool const local = is_local();
    if (!local && is_inherit_only()) {
        int const value = get_parent()->get_parent()->get_inherited_integer_parameter_value(get_name());
        if (value == -1 && report_missing)
            report<parameter_message::no_inherited_value>(*get_parent(), get_name());
        return value;
    }
    if (m_value >= 0)
        return m_value;
    if (!local) {
        int const value = get_parent()->get_parent()->get_inherited_integer_parameter_value(get_name());
        if (value != -1)
            return value;
    }
    if (m_default_value >= 0)
        return m_default_value;
    if (report_missing && get_parent())
        report<parameter_message::no_value>(*get_parent(), get_name());
    return -1;
}
