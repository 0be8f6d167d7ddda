#pragma once

#include "gnl_element.h"

#include <memory>
#include <string>
#include <string_view>

namespace gnl_detail {

/// The text of an expression, shared by its handle and the parameters that it was assigned to.
struct expression_text
{
    /// The whole text, with the parentheses that are still owed at its front.
    std::string const & whole();

    std::string text;
    std::size_t owed_parentheses = 0; ///< put in front when the text is read, so that long sums stay cheap
};

} // namespace gnl_detail

/// The text of an exposed parameter's expression in the target language; written out, never evaluated.
///
///     depth = (width.get_parameter() + 1) * 2;      // "((WIDTH + 1) * 2)"
class GNL_PARAMETER_EXPR
{
public:
    explicit GNL_PARAMETER_EXPR(int language)
        : m_language(language)
        , m_text(std::make_shared<gnl_detail::expression_text>())
    {
    }
    /// Copies the text; what is added to a copy does not show in the original.
    GNL_PARAMETER_EXPR(GNL_PARAMETER_EXPR const & other);
    GNL_PARAMETER_EXPR & operator=(GNL_PARAMETER_EXPR const & other);

    /// An empty expression becomes `text`; any other one is put in parentheses together with `text`.
    void add_to_expression(std::string const & text);
    std::string const & get_expression() const { return m_text->whole(); }
    int get_language() const { return m_language; }

    /// Each appends its operation and returns this object.
    GNL_PARAMETER_EXPR & operator+(int value);
    GNL_PARAMETER_EXPR & operator-(int value);
    GNL_PARAMETER_EXPR & operator*(int value);
    GNL_PARAMETER_EXPR & operator/(int value);
    /// "%" in Verilog and Tcl, "MOD" in VHDL and QHDL.
    GNL_PARAMETER_EXPR & operator%(int value);

private:
    friend class GNL_PARAMETER;

    int m_language;
    std::shared_ptr<gnl_detail::expression_text> m_text; ///< never null
};

/// A named setting of a generator. Declared as a member of its generator, which does not own it.
class GNL_PARAMETER : public GNL_ELEMENT
{
public:
    GNL_PARAMETER(GNL_PARAMETER const & other);
    /// Takes the flags and the assigned expression, and no value. A parameter of a design keeps its parent and name.
    GNL_PARAMETER & operator=(GNL_PARAMETER const & other);
    ~GNL_PARAMETER() override;

    bool is_parameter() const final { return true; }
    std::string generate_key() const override;
    /// "PAR;" and the name.
    static std::string generate_key_base(std::string const & name);
    virtual bool is_string_parameter() const { return false; }
    virtual bool is_integer_parameter() const { return false; }
    virtual bool is_vector_parameter() const { return false; }
    /// Whether the parameter was given a value, here or (if it can inherit) above.
    virtual bool is_used();

    bool value_changed() const { return m_value_changed; }
    void set_not_used_for_hash() { m_used_for_hash = false; }
    bool is_used_for_hash() const { return m_used_for_hash; }
    /// Also takes the parameter out of the declaration; the other two setters do not bring it back.
    void set_as_inherit_only();
    void set_as_inherit_never();
    void set_as_inherit_allowed();
    bool is_inherit_only() const { return m_inherit_only; }
    bool is_inherit_never() const { return m_inherit_never; }
    bool is_inherit_allowed() const { return m_inherit_allowed; }
    void set_as_included_in_declaration() { m_included_in_declaration = true; }
    void set_as_not_included_in_declaration() { m_included_in_declaration = false; }
    bool is_included_in_declaration() const { return m_included_in_declaration; }
    void set_as_hidden_parameter() { m_hidden = true; }
    bool is_hidden_parameter() const { return m_hidden; }
    void set_as_true_hidden_parameter() { m_hidden = m_true_hidden = true; }
    bool is_true_hidden_parameter() const { return m_true_hidden; }
    void set_as_lpm_hint() { m_lpm_hint = true; }
    bool is_lpm_hint() const { return m_lpm_hint; }
    /// Exposes the parameter: it stays a parameter of the generated design and cannot be read here. String and integer
    /// parameters only; posts `cannot_be_exposed` for others.
    void set_as_parameterized();
    bool is_parameterized() const { return m_parameterized; }

    /// A handle to an exposed parameter, and the mark that it is used. The library keeps the handle as long as the
    /// design lives. What is added to it after it was assigned shows where it was assigned.
    GNL_PARAMETER_EXPR & get_parameter();
    GNL_PARAMETER_EXPR * get_expr() const { return m_expr; }
    bool uses_expr_assignment() const { return m_expr != nullptr; }
    /// The assigned expression's text, "" without one.
    std::string get_expr_assignment() const;

    /// Brings the parent's parameter text in, and answers whether an assignment may go on. Posts
    /// `inherit_only_in_body` and `expression_reassigned`.
    bool parameter_assign_error_check(std::string const & value_text);

    /// One of the 18 options that every generator has.
    bool is_option() const { return m_option; }

protected:
    GNL_PARAMETER(GNL_GENERATOR * parent, std::string const & name);

    /// Brings in what was given earlier: the parent's parameter text, and for a slice the values of its master.
    void settle_earlier_values();
    /// Whether the parameter is inherit-only and the body of the top generator has begun.
    bool is_assigned_too_late() const;
    void assign_expression(GNL_PARAMETER_EXPR & expression);
    /// Tells the parent that a value was assigned, see `GNL_GENERATOR::parameter_value_has_changed`.
    void tell_parent();
    /// Whether the value comes from here alone and never from above.
    bool is_local() const;

    bool m_value_changed : 1 = false;
    bool m_used : 1 = false;
    bool m_used_for_hash : 1 = true;
    bool m_inherit_only : 1 = false;
    bool m_inherit_never : 1 = true;
    bool m_inherit_allowed : 1 = false;
    bool m_included_in_declaration : 1 = true;
    bool m_hidden : 1 = false;
    bool m_true_hidden : 1 = false;
    bool m_lpm_hint : 1 = false;
    bool m_parameterized : 1 = false;
    bool m_option : 1 = false;
    GNL_PARAMETER_EXPR * m_expr = nullptr; ///< the assigned handle, kept by the top generator or by its maker
    std::shared_ptr<gnl_detail::expression_text> m_expr_text; ///< its text, which stays when the handle has gone

    friend class gnl_detail::option_set;
};

class GNL_PARAMETER_INTEGER : public GNL_PARAMETER
{
public:
    /// A default of -1 means that there is none; negative values count as not assigned.
    GNL_PARAMETER_INTEGER(GNL_GENERATOR * parent, std::string const & name, int default_value);
    GNL_PARAMETER_INTEGER(GNL_PARAMETER_INTEGER const & other) = default;

    bool is_integer_parameter() const override { return true; }
    GNL_PARAMETER_INTEGER & operator=(int value);
    GNL_PARAMETER_INTEGER & operator=(GNL_PARAMETER_EXPR & expression);
    GNL_PARAMETER_INTEGER & operator=(GNL_PARAMETER_INTEGER const & other);

    /// The value, from here, from above or the default. Posts `exposed_read` on an exposed parameter and `no_value` or
    /// `no_inherited_value` when there is none; the result is then -1.
    int get_value(bool report = true);
    /// The same without the test for an exposed parameter; `report` false posts nothing.
    int get_internal_value(bool report);
    int get_default_value() const { return m_default_value; }
    void update_default_value(int value) { m_default_value = value; }
    /// Stores and tells nobody.
    void safely_change_value(int value) { m_value = value; }
    void set_output_as_string_parameter() { m_output_as_string = true; }
    bool is_output_as_string_parameter() const { return m_output_as_string; }

private:
    int m_default_value;
    int m_value = -1;
    bool m_output_as_string = false;
};

/// A setting chosen from a list such as "ON(YES,TRUE)|OFF", or free text with an empty list. "UNUSED" means no value.
class GNL_PARAMETER_STRING : public GNL_PARAMETER
{
public:
    /// `default_index` counts the tokens of the list from 0; -1 means that there is no default. The names
    /// "DEVICE_FAMILY" and "INTENDED_DEVICE_FAMILY" are inherit-only.
    GNL_PARAMETER_STRING(GNL_GENERATOR * parent, std::string const & name, std::string const & value_list,
                         int default_index);
    GNL_PARAMETER_STRING(GNL_PARAMETER_STRING const & other) = default;

    bool is_string_parameter() const override { return true; }
    /// The value without its aliases, "UNUSED" when there is none; messages as for integers.
    virtual std::string get_value(bool report = true);
    virtual std::string get_internal_value(bool report);

    /// A value that is not in the list is a warning and widens the list.
    GNL_PARAMETER_STRING & operator=(char const * value);
    GNL_PARAMETER_STRING & operator=(std::string const & value);
    GNL_PARAMETER_STRING & operator=(GNL_PARAMETER_EXPR & expression);
    GNL_PARAMETER_STRING & operator=(GNL_PARAMETER_STRING const & other);

    std::string const & get_value_list() const { return m_value_list; }
    int get_default_value_index() const { return m_default_index; }
    void set_allow_all_values() { m_allow_all_values = true; }
    bool parameter_allows_all_values() const { return m_allow_all_values; }
    void update_default_value(std::string const & value);
    void safely_change_value(std::string const & value);
    /// "" without a default.
    std::string get_default_value() const;
    /// Whether the value equals `text`, case-insensitively.
    bool comparenocase(std::string const & text);
    /// The token at `index` of a "|"-separated list, aliases included; "" beyond the last, the first below 0.
    static std::string get_token(std::string const & list, int index);
    static std::string strip_alias_values(std::string const & token);
    static bool compare_alias_values(std::string const & token, std::string const & value);

private:
    /// The index of the token that names the value, -1 if none does.
    int index_in_list(std::string_view value) const;
    bool select_listed_value(std::string const & value);
    void warn_of_unlisted_value(std::string const & value) const;
    void take_unlisted_value(std::string const & value);
    /// Sets `value` to the selected or default token; false when there is none.
    bool take_own_value(std::string & value) const;

    std::string m_value_list;
    int m_default_index;
    int m_value_index = -1;
    bool m_from_value_list = true;
    bool m_allow_all_values = false;
};
