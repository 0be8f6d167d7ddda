#pragma once

#include "gnl_parameter.h"

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

/// An indexed family of parameters under one name: element 3 of `COEF` is the parameter `COEF3`. The array owns its
/// elements.
class GNL_PARAMETER_ARRAY : public GNL_ELEMENT
{
public:
    ~GNL_PARAMETER_ARRAY() override;

    bool is_parameter_array() const final { return true; }
    std::string generate_key() const override;
    /// "PAR_ARY;" and the name.
    static std::string generate_key_base(std::string const & name);
    virtual bool is_string_parameter_array() const { return false; }
    virtual bool is_integer_parameter_array() const { return false; }
    /// "" without a default.
    virtual std::string get_default_value() const { return {}; }

    /// The VHDL type name.
    void set_array_type(std::string const & type) { m_array_type = type; }
    std::string const & get_array_type() const { return m_array_type; }
    void set_as_inherit_only();
    void set_as_inherit_never();
    void set_as_inherit_allowed();
    bool is_inherit_only() const { return m_inherit_only; }
    bool is_inherit_never() const { return m_inherit_never; }
    bool is_inherit_allowed() const { return m_inherit_allowed; }
    /// Fixed length; -1 for none.
    void set_array_width(int width) { m_array_width = width; }
    int get_array_width() const { return m_array_width; }

    /// "ARRAY_NATURAL_" or "ARRAY_STRING_" and the length.
    std::string generate_type_key() const;
    bool is_used();
    /// Adds the value of each element whose index is not in `target` yet.
    void collect_values(std::map<int, std::string> & target);

    /// @name Text
    /// Defined in parameters/gnl_parameter_array_text.cpp. Each writes the used elements in index order and returns
    /// whether anything has been written, `started` telling whether something was before.
    /// @{
    std::string generate_parameter_array_header_declarations();
    bool dump_qhdl_parameter_array_assignment(std::ostream & out, bool started, bool on_new_line);
    bool dump_verilog_parameter_array_assignment(std::ostream & out, bool started, int slice_index);
    bool dump_vhdl_parameter_array_assignment(std::ostream & out, bool started, bool true_array);
    bool dump_vhdl_generic_declaration(std::ostream & out, bool started, bool true_array);
    bool dump_vhdl_generic_declaration_for_arrays(std::ostream & out, bool started,
                                                  std::map<std::string, std::string, LESS_C_STRING> & known);
    std::map<std::string, std::string, LESS_C_STRING>
    dump_vhdl_type_declarations(std::ostream & out, std::map<std::string, std::string, LESS_C_STRING> known);
    /// @}

protected:
    GNL_PARAMETER_ARRAY(GNL_GENERATOR * parent, std::string const & name);
    GNL_PARAMETER_ARRAY(GNL_PARAMETER_ARRAY const & other);

    /// A new parentless element of the given name, without a value.
    virtual std::unique_ptr<GNL_PARAMETER> make_element(std::string const & name) const = 0;
    virtual void assign_element(GNL_PARAMETER & element, std::string const & value) const = 0;
    virtual std::string element_value(GNL_PARAMETER & element) const = 0;
    /// Makes an element for each value gathered so far.
    void construct_parameter_list();
    GNL_PARAMETER & element(int index);
    void copy_from(GNL_PARAMETER_ARRAY const & other);

    /// What a writer shows of an element.
    struct element_text
    {
        int index;
        std::string name;
        std::string value; ///< a number, an expression, or a quoted string
        bool declared;     ///< whether the element is included in declarations
    };
    /// The used elements that have a value, in index order, each value between `quote` if it is a string's.
    std::vector<element_text> used_elements(bool lower_case, char const * quote);
    /// The default as a writer shows it, "" without one.
    std::string default_text() const;
    bool declare_vhdl_generics(std::ostream & out, bool started, char const * opening, bool true_array,
                               std::map<std::string, std::string, LESS_C_STRING> * known);
    char const * vhdl_element_type() const;
    /// The type of a generic that is a whole array, "" if the array is unbound.
    std::string vhdl_type() const;

    std::map<int, std::unique_ptr<GNL_PARAMETER>> m_elements;
    std::map<int, std::string> m_values;
    std::string m_array_type;
    bool m_inherit_only = false;
    bool m_inherit_never = true;
    bool m_inherit_allowed = false;
    bool m_used = false;
    int m_array_width = -1;
};

class GNL_PARAMETER_INTEGER_ARRAY : public GNL_PARAMETER_ARRAY
{
public:
    /// Takes the values that the design above the parent has for the name.
    GNL_PARAMETER_INTEGER_ARRAY(GNL_GENERATOR * parent, std::string const & name, int default_value);
    GNL_PARAMETER_INTEGER_ARRAY(GNL_PARAMETER_INTEGER_ARRAY const & other);
    GNL_PARAMETER_INTEGER_ARRAY & operator=(GNL_PARAMETER_INTEGER_ARRAY const & other);

    bool is_integer_parameter_array() const override { return true; }
    std::string get_default_value() const override;
    int get_default_integer() const { return m_default_value; }
    /// The element at `index`, made if it is missing.
    GNL_PARAMETER_INTEGER & operator[](int index);

protected:
    std::unique_ptr<GNL_PARAMETER> make_element(std::string const & name) const override;
    void assign_element(GNL_PARAMETER & element, std::string const & value) const override;
    std::string element_value(GNL_PARAMETER & element) const override;

private:
    int m_default_value;
};

class GNL_PARAMETER_STRING_ARRAY : public GNL_PARAMETER_ARRAY
{
public:
    /// Takes the values that the parent has for the name.
    GNL_PARAMETER_STRING_ARRAY(GNL_GENERATOR * parent, std::string const & name, std::string const & value_list,
                               int default_index);
    GNL_PARAMETER_STRING_ARRAY(GNL_PARAMETER_STRING_ARRAY const & other);
    GNL_PARAMETER_STRING_ARRAY & operator=(GNL_PARAMETER_STRING_ARRAY const & other);

    bool is_string_parameter_array() const override { return true; }
    std::string get_default_value() const override;
    std::string const & get_value_list() const { return m_value_list; }
    int get_default_value_index() const { return m_default_index; }
    GNL_PARAMETER_STRING & operator[](int index);

protected:
    std::unique_ptr<GNL_PARAMETER> make_element(std::string const & name) const override;
    void assign_element(GNL_PARAMETER & element, std::string const & value) const override;
    std::string element_value(GNL_PARAMETER & element) const override;

private:
    std::string m_value_list;
    int m_default_index;
};
