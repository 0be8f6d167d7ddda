// Parameter arrays as the writers show them: each used element that has a value, in index order.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/parameters/parameter_messages.h"
#include "lbx/gnl/writers/list_separator.h"

using gnl_detail::list_separator;

namespace {

/// A list that another writer may have begun.
list_separator list_after(bool started, std::string_view opening, std::string_view separator)
{
    list_separator list(opening, separator);
    if (started)
        list.set_started();
    return list;
}

} // namespace

std::vector<GNL_PARAMETER_ARRAY::element_text> GNL_PARAMETER_ARRAY::used_elements(bool lower_case, char const * quote)
{
    std::vector<element_text> texts;
    if (get_parent())
        get_parent()->initialize_param_list();
    for (auto const & [index, element] : m_elements) {
        if (!element->is_used())
            continue;
        element_text text{index, element->get_name(), {}, element->is_included_in_declaration()};
        if (element->uses_expr_assignment()) {
            text.value = element->get_expr_assignment();
        } else {
            text.value = element_value(*element);
            if (text.value.empty())
                continue;
            if (element->is_string_parameter())
                text.value = quote + (lower_case ? gnl_detail::folded(text.value) : text.value) + quote;
        }
        texts.push_back(std::move(text));
    }
    return texts;
}

std::string GNL_PARAMETER_ARRAY::default_text() const
{
    std::string const value = get_default_value();
    return is_string_parameter_array() ? '"' + value + '"' : value;
}

std::string GNL_PARAMETER_ARRAY::generate_parameter_array_header_declarations()
{
    std::string text;
    for (auto const & element : used_elements(false, ""))
        text += " " + element.name + "=" + element.value;
    return text;
}

bool GNL_PARAMETER_ARRAY::dump_qhdl_parameter_array_assignment(std::ostream & out, bool started, bool on_new_line)
{
    auto list = list_after(started, on_new_line ? "\n\t\tWITH (\n" : "WITH ( ", ",\n");
    for (auto const & element : used_elements(false, "\""))
        if (element.declared)
            out << list << "\t" << element.name << " = " << element.value;
    return list.started();
}

bool GNL_PARAMETER_ARRAY::dump_verilog_parameter_array_assignment(std::ostream & out, bool started, int slice_index)
{
    std::string prefix = get_parent_instance_name();
    if (slice_index != -1)
        prefix += "_" + convert_int_to_string(slice_index);
    bool const lower_case = get_parent() && get_parent()->uses_lower_case_verilog_parameter_values();
    auto list = list_after(started, "\tdefparam\n", ",\n");
    for (auto const & element : used_elements(lower_case, "\""))
        if (element.declared)
            out << list << "\t\t" << prefix << "." << gnl_detail::folded(element.name) << " = " << element.value;
    return list.started();
}

bool GNL_PARAMETER_ARRAY::dump_vhdl_parameter_array_assignment(std::ostream & out, bool started, bool true_array)
{
    auto list = list_after(started, "\t  GENERIC MAP (\n", ",\n");
    list_separator elements("", ",");
    for (auto const & element : used_elements(false, "\"")) {
        if (!element.declared)
            continue;
        if (!true_array) {
            out << list << "\t\t" << element.name << " => " << element.value;
            continue;
        }
        if (!elements.started())
            out << list << "\t\t" << get_name() << " => ( ";
        out << elements << convert_int_to_string(element.index) << " => " << element.value;
    }
    if (elements.started()) {
        if (is_string_parameter_array() || !get_default_value().empty())
            out << elements << " OTHERS => " << default_text();
        out << ")";
    }
    return list.started();
}

bool GNL_PARAMETER_ARRAY::dump_vhdl_generic_declaration(std::ostream & out, bool started, bool true_array)
{
    return declare_vhdl_generics(out, started, "\t GENERIC \n\t (\n", true_array, nullptr);
}

bool GNL_PARAMETER_ARRAY::dump_vhdl_generic_declaration_for_arrays(
    std::ostream & out, bool started, std::map<std::string, std::string, LESS_C_STRING> & known)
{
    bool const true_array = get_parent() && get_parent()->has_true_vhdl_parameter_array();
    return declare_vhdl_generics(out, started, "\t  GENERIC \n\t (\n", true_array, &known);
}

bool GNL_PARAMETER_ARRAY::declare_vhdl_generics(std::ostream & out, bool started, char const * opening, bool true_array,
                                                std::map<std::string, std::string, LESS_C_STRING> * known)
{
    auto list = list_after(started, opening, ";\n");
    auto const is_new = [known](std::string const & name) { return !known || known->emplace(name, name).second; };
    // An integer without a default is declared without one; a string's default can be empty.
    bool const has_default = is_string_parameter_array() || !get_default_value().empty();
    std::vector<element_text> elements = used_elements(false, "\"");
    std::erase_if(elements, [](element_text const & element) { return !element.declared; });
    if (!true_array) {
        for (auto const & element : elements)
            if (is_new(element.name))
                out << list << "\t\t" << element.name << "\t:\t" << vhdl_element_type()
                    << (has_default ? " := " + default_text() : "");
    } else if (!elements.empty() && is_new(get_name())) {
        if (std::string const type = vhdl_type(); !type.empty())
            out << list << "\t\t" << get_name() << "\t:\t" << type
                << (has_default ? " := (OTHERS => " + default_text() + ")" : "");
        else if (get_parent())
            gnl_detail::report<gnl_detail::parameter_message::vhdl_array_unbound>(*get_parent(), get_name());
    }
    return list.started();
}

char const * GNL_PARAMETER_ARRAY::vhdl_element_type() const
{
    return is_integer_parameter_array() ? "NATURAL" : "STRING";
}

std::string GNL_PARAMETER_ARRAY::vhdl_type() const
{
    if (!m_array_type.empty())
        return m_array_type;
    if (m_array_width == -1)
        return {};
    return std::string("ARRAY( NATURAL range<>) OF ") + vhdl_element_type();
}

std::map<std::string, std::string, LESS_C_STRING>
GNL_PARAMETER_ARRAY::dump_vhdl_type_declarations(std::ostream & out,
                                                 std::map<std::string, std::string, LESS_C_STRING> known)
{
    if (m_array_width == -1)
        return known;
    std::string const key = generate_type_key();
    if (known.emplace(key, key).second)
        out << "\t TYPE " << key << " IS ARRAY ( 0 TO " << convert_int_to_string(m_array_width - 1) << ")  OF "
            << vhdl_element_type() << ";\n";
    return known;
}
