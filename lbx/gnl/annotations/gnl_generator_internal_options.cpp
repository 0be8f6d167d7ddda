#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"

#include <algorithm>

namespace {

/// Literals longer than this are broken at the next option.
constexpr std::size_t longest_literal = 1600;

/// How the options of a design stand in a language's text.
struct option_line
{
    std::string_view opener, break_text, closer;
};

constexpr option_line verilog_line{"(* QELVAR_ATTRIBUTE = {\"", ";\",\n\t\t\"", "\"} *)\n"};
constexpr option_line vhdl_line{"\t ATTRIBUTE QELVAR_ATTRIBUTE OF ", ";\" & \n\t \"", "\";\n\n"};
constexpr option_line qhdl_line{"OPTIONS QELVAR_INTERNAL_OPTION = \"", "\";\nOPTIONS QELVAR_INTERNAL_OPTION = \"",
                                "\";\n\n"};
constexpr std::string_view vhdl_declaration = "\t ATTRIBUTE QELVAR_ATTRIBUTE : string;\n";

/// Joins the options by ";", breaking the literal where it has grown long. The length counts the options alone.
void write_options(std::ostream & out, std::vector<std::string> const & options, std::string_view break_text)
{
    std::size_t length = 0;
    bool first = true;
    for (auto const & option : options) {
        if (option.empty())
            continue;
        if (!first && length < longest_literal) {
            out << ";";
        } else if (!first) {
            out << break_text;
            length = 0;
        }
        out << option;
        length += option.size();
        first = false;
    }
}

void write_attribute(std::ostream & out, std::string const & attribute)
{
    if (GNL_ELEMENT::is_verilog())
        out << "(* " << attribute << " *)\n";
    else
        out << "\t ATTRIBUTE " << attribute << " : boolean;\n\t ATTRIBUTE " << attribute
            << " OF RTL : ARCHITECTURE IS true;\n";
}

std::string addressed_to(std::string const & instance, std::string const & option)
{
    return "{-to " + instance + "} " + option;
}

} // namespace

void GNL_GENERATOR::set_qelvar_internal_option(std::string const & option)
{
    m_state.internal_options.push_back(option);
}

void GNL_GENERATOR::set_hdl_attribute(std::string const & text, bool internal)
{
    (internal ? m_state.internal_options : m_state.hdl_attributes).push_back(text);
}

void GNL_GENERATOR::remove_qelvar_internal_option(std::string const & option)
{
    std::erase(m_state.internal_options, option);
}

void GNL_GENERATOR::dump_qelvar_internal_options(std::ostream & out, std::string const & target)
{
    if (m_state.internal_options.empty()) {
        if (is_vhdl() && m_state.use_internal_option)
            out << vhdl_declaration;
    } else {
        auto const & line = is_verilog() ? verilog_line : is_vhdl() ? vhdl_line : qhdl_line;
        if (is_vhdl() && !is_primitive())
            out << vhdl_declaration;
        out << line.opener;
        if (is_vhdl())
            out << (target.empty() ? std::string("RTL : ARCHITECTURE") : target) << " IS \"";
        write_options(out, m_state.internal_options, line.break_text);
        out << line.closer;
    }
    if (is_verilog() || is_vhdl())
        for (auto const & attribute : m_state.hdl_attributes)
            if (!attribute.empty())
                write_attribute(out, attribute);
}

std::string GNL_GENERATOR::dump_qelvar_internal_options_as_string() const
{
    std::string text;
    for (auto const & option : m_state.internal_options) {
        if (option.empty())
            continue;
        if (!text.empty())
            text += ";";
        text += option;
    }
    return text;
}

void GNL_GENERATOR::export_qelvar_internal_options_to_parent(GNL_GENERATOR * to)
{
    if (!to)
        to = get_parent();
    if (!to || is_tcl() || uses_custom_output())
        return;
    int const slices = get_array_width();
    // Verilog writes an array of one with "_0", VHDL as a plain instance.
    bool const numbered = (is_verilog() && slices > 0) || (is_vhdl() && slices > 1);
    std::string const own_name = m_state.slice_index >= 0
                                     ? get_instance_name() + convert_int_to_string(m_state.slice_index)
                                     : get_instance_name();
    for (auto const & option : m_state.internal_options) {
        if (option.empty())
            continue;
        if (is_heterogeneous_array()) {
            for (int i = 0; i < slices; ++i)
                to->set_qelvar_internal_option(addressed_to(get_array_slice(i)->get_instance_name(), option));
        } else if (numbered) {
            for (int i = 0; i < slices; ++i)
                to->set_qelvar_internal_option(
                    addressed_to(get_instance_name() + "_" + convert_int_to_string(i), option));
            if (is_vhdl()) {
                if (!is_master_array())
                    create_slices();
                set_vhdl_unroll_loop();
            }
        } else {
            to->set_qelvar_internal_option(addressed_to(own_name, option));
        }
    }
    if (is_heterogeneous_array())
        for (int i = 0; i < slices; ++i)
            if (auto * slice = get_array_slice(i); slice != this)
                slice->export_qelvar_internal_options_to_parent(to);
}

void GNL_GENERATOR::get_primitive_subdesign_qelvar_internal_options()
{
    for (auto & subdesign : registry().generators())
        if (subdesign.is_primitive() && subdesign.get_array_parent() != this)
            subdesign.export_qelvar_internal_options_to_parent(nullptr);
}
