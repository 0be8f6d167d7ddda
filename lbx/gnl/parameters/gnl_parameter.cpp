// What all parameters share: registration, the three kinds of inheritance, assignment checks, exposing.

#include "gnl_generator.h"

#include "lbx/gnl/parameters/parameter_messages.h"

using gnl_detail::parameter_message;
using gnl_detail::report;

namespace {

/// Owns the handles of parameters that have no generator to own them.
GNL_PARAMETER_EXPR & keep_for_the_process(std::unique_ptr<GNL_PARAMETER_EXPR> expression)
{
    static std::vector<std::unique_ptr<GNL_PARAMETER_EXPR>> pool;
    pool.push_back(std::move(expression));
    return *pool.back();
}

} // namespace

std::string const & gnl_detail::expression_text::whole()
{
    text.insert(0, owed_parentheses, '(');
    owed_parentheses = 0;
    return text;
}

GNL_PARAMETER_EXPR::GNL_PARAMETER_EXPR(GNL_PARAMETER_EXPR const & other)
    : m_language(other.m_language)
    , m_text(std::make_shared<gnl_detail::expression_text>(*other.m_text))
{
}

GNL_PARAMETER_EXPR & GNL_PARAMETER_EXPR::operator=(GNL_PARAMETER_EXPR const & other)
{
    m_language = other.m_language;
    m_text = std::make_shared<gnl_detail::expression_text>(*other.m_text);
    return *this;
}

void GNL_PARAMETER_EXPR::add_to_expression(std::string const & text)
{
    if (m_text->text.empty()) {
        m_text->text = text;
        return;
    }
    m_text->text += text;
    m_text->text += ')';
    ++m_text->owed_parentheses;
}

GNL_PARAMETER_EXPR & GNL_PARAMETER_EXPR::operator+(int value)
{
    add_to_expression(" + " + GNL_ELEMENT::convert_int_to_string(value));
    return *this;
}

GNL_PARAMETER_EXPR & GNL_PARAMETER_EXPR::operator-(int value)
{
    add_to_expression(" - " + GNL_ELEMENT::convert_int_to_string(value));
    return *this;
}

GNL_PARAMETER_EXPR & GNL_PARAMETER_EXPR::operator*(int value)
{
    add_to_expression(" * " + GNL_ELEMENT::convert_int_to_string(value));
    return *this;
}

GNL_PARAMETER_EXPR & GNL_PARAMETER_EXPR::operator/(int value)
{
    add_to_expression(" / " + GNL_ELEMENT::convert_int_to_string(value));
    return *this;
}

GNL_PARAMETER_EXPR & GNL_PARAMETER_EXPR::operator%(int value)
{
    bool const by_sign = m_language == GNL_VERILOG || m_language == GNL_TCL;
    add_to_expression((by_sign ? " % " : " MOD ") + GNL_ELEMENT::convert_int_to_string(value));
    return *this;
}

GNL_PARAMETER::GNL_PARAMETER(GNL_GENERATOR * parent, std::string const & name)
    : GNL_ELEMENT(parent, name, parameter_tag())
{
    if (parent && parent->port_connections_made())
        parent->declared_late();
}

GNL_PARAMETER::GNL_PARAMETER(GNL_PARAMETER const & other) = default;

GNL_PARAMETER & GNL_PARAMETER::operator=(GNL_PARAMETER const & other) = default;

GNL_PARAMETER::~GNL_PARAMETER() = default;

std::string GNL_PARAMETER::generate_key() const
{
    return generate_key_base(get_name());
}

std::string GNL_PARAMETER::generate_key_base(std::string const & name)
{
    return "PAR;" + name;
}

void GNL_PARAMETER::set_as_inherit_only()
{
    m_inherit_only = true;
    m_inherit_never = m_inherit_allowed = false;
    m_included_in_declaration = false;
}

void GNL_PARAMETER::set_as_inherit_never()
{
    m_inherit_never = true;
    m_inherit_only = m_inherit_allowed = false;
}

void GNL_PARAMETER::set_as_inherit_allowed()
{
    m_inherit_allowed = true;
    m_inherit_only = m_inherit_never = false;
}

bool GNL_PARAMETER::is_local() const
{
    GNL_GENERATOR const * const above = get_parent() ? get_parent()->get_parent() : nullptr;
    return !above || (m_inherit_never && (m_option || !above->exports_all_submodule_parameters()));
}

bool GNL_PARAMETER::is_used()
{
    if (get_parent())
        get_parent()->initialize_param_list();
    if (m_used)
        return true;
    if (m_value_changed)
        m_used = true;
    else if (get_parent() && !(m_inherit_never && is_local()))
        m_used = get_parent()->check_parameter_is_used_in_parent(get_name());
    return m_used;
}

void GNL_PARAMETER::settle_earlier_values()
{
    if (!get_parent())
        return;
    get_parent()->initialize_param_list();
    if (get_parent()->get_slice_index() >= 0)
        get_parent()->fill_slice_parameters();
}

bool GNL_PARAMETER::is_assigned_too_late() const
{
    return m_inherit_only && get_parent() && get_parent()->get_top_level_parent()->rtl_body_begun();
}

bool GNL_PARAMETER::parameter_assign_error_check(std::string const & value_text)
{
    settle_earlier_values();
    if (is_assigned_too_late()) {
        report<parameter_message::inherit_only_in_body>(*get_parent(), get_name(), value_text);
        return false;
    }
    if (m_expr) {
        if (get_parent())
            report<parameter_message::expression_reassigned>(*get_parent(), get_name(), get_expr_assignment(),
                                                             value_text);
        return false;
    }
    return true;
}

void GNL_PARAMETER::tell_parent()
{
    if (get_parent())
        get_parent()->parameter_value_has_changed(get_name(), get_hierarchical_name(), generate_key());
}

void GNL_PARAMETER::set_as_parameterized()
{
    if (is_string_parameter() || is_integer_parameter())
        m_parameterized = true;
    else if (get_parent())
        report<parameter_message::cannot_be_exposed>(*get_parent(), get_name());
}

GNL_PARAMETER_EXPR & GNL_PARAMETER::get_parameter()
{
    auto expression = std::make_unique<GNL_PARAMETER_EXPR>(get_gen_language());
    expression->add_to_expression(get_name());
    if (!is_used())
        m_used = true;
    if (!get_parent())
        return keep_for_the_process(std::move(expression));
    return get_parent()->get_top_level_parent()->keep_expression(std::move(expression));
}

std::string GNL_PARAMETER::get_expr_assignment() const
{
    return m_expr_text ? m_expr_text->whole() : std::string();
}

void GNL_PARAMETER::assign_expression(GNL_PARAMETER_EXPR & expression)
{
    if (!parameter_assign_error_check(expression.get_expression()))
        return;
    m_expr = &expression;
    m_expr_text = expression.m_text;
    m_value_changed = true;
    tell_parent();
}
