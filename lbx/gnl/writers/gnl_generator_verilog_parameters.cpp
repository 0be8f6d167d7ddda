#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/cell_parameters.h"
#include "lbx/gnl/writers/simulation_only_value.h"
#include "lbx/gnl/writers/text_sink.h"

using namespace gnl_detail;

namespace {

/// What stands in front of the parameter names of one instance.
std::string instance_prefix(GNL_GENERATOR const & instance, bool use_fixed_instance_name, int slice_index)
{
    if (use_fixed_instance_name)
        return "mg.";
    bool const is_slice = instance.get_slice_index() >= 0 && instance.get_array_parent() != nullptr;
    std::string prefix = is_slice ? instance.get_array_parent()->get_instance_name() : instance.get_instance_name();
    if (slice_index != -1)
        prefix += "_" + GNL_ELEMENT::convert_int_to_string(slice_index);
    return prefix + ".";
}

/// The `defparam` block of one instance. Parameters that are hints don't stand in it by themselves: they are collected
/// in one text, which closes the block.
class defparam_block
{
public:
    defparam_block(GNL_GENERATOR & instance, std::ostream & out, bool use_fixed_instance_name, int slice_index)
        : m_instance(instance)
        , m_text(out)
        , m_prefix(instance_prefix(instance, use_fixed_instance_name, slice_index))
        , m_slice_index(slice_index)
        , m_lower_case_values(instance.uses_lower_case_verilog_parameter_values())
    {
    }

    void write()
    {
        for (auto * parameter : m_instance.registry().declared_parameters())
            if (parameter->is_included_in_declaration() && parameter->is_used())
                assign(*parameter);
        for (GNL_PARAMETER_ARRAY & array : m_instance.registry().parameter_arrays())
            if (array.dump_verilog_parameter_array_assignment(m_text.stream(), m_list.started(), m_slice_index))
                m_list.set_started();
        if (tells_used_ports(m_instance))
            for (GNL_PORT & port : m_instance.registry().ports())
                if ((port.is_input() || port.is_output()) && port.is_used())
                    entry() << port.get_name() << "_port_used = \"used\"";
        if (m_instance.is_primitive())
            for (auto const & [name, value] : m_instance.simulation_only_parameters())
                assign_simulation_only(name, value);
        close();
    }

private:
    text_sink & entry() { return entry(m_prefix); }
    text_sink & entry(std::string const & prefix) { return m_text << m_list << "\t\t" << prefix; }
    std::string written_name(std::string const & name) const
    {
        return m_instance.preserves_parameter_case() ? name : folded(name);
    }

    void assign(GNL_PARAMETER & parameter)
    {
        if (collect_hint(m_instance, parameter, m_hint))
            return;
        if (parameter.is_integer_parameter())
            assign_integer(static_cast<GNL_PARAMETER_INTEGER &>(parameter));
        else if (parameter.is_string_parameter())
            assign_string(static_cast<GNL_PARAMETER_STRING &>(parameter));
        else if (parameter.is_vector_parameter())
            assign_vector(static_cast<GNL_PARAMETER_VECTOR &>(parameter));
    }
    void assign_integer(GNL_PARAMETER_INTEGER & parameter)
    {
        write_integer_value(entry() << written_name(parameter.get_name()) << " = ", parameter);
    }
    void assign_string(GNL_PARAMETER_STRING & parameter)
    {
        if (parameter.uses_expr_assignment()) {
            // The name is left out, and readers of these files count on it.
            entry() << " = " << parameter.get_expr_assignment();
        } else {
            auto const value = parameter.get_value(true);
            entry() << written_name(parameter.get_name()) << " = \"" << (m_lower_case_values ? folded(value) : value)
                    << "\"";
        }
    }
    void assign_vector(GNL_PARAMETER_VECTOR & parameter)
    {
        entry() << written_name(parameter.get_name()) << " = ";
        if (parameter.uses_binary_output()) {
            m_text << parameter.get_width() << "'b" << parameter.get_value().as_bin_string();
        } else {
            auto const digits = parameter.get_value().as_hex_string();
            m_text << static_cast<int>(digits.size()) * 4 << "'h" << digits;
        }
    }
    /// Like arrays, these are addressed by the instance's own name, whatever name is asked for.
    void assign_simulation_only(std::string const & name, std::string const & listed)
    {
        auto const value = simulation_only_value_of(m_instance, name, listed);
        std::string_view const quote = value.is_number ? "" : "\"";
        entry(instance_prefix(m_instance, false, m_slice_index))
            << written_name(name) << " = " << quote << value.text << quote;
    }

    void close()
    {
        if (m_list.started() && m_instance.is_primitive() && m_instance.use_lpm_type_output())
            entry() << "lpm_type = \"" << m_instance.get_primitive_name() << "\"";
        if (!m_hint.empty())
            entry() << "lpm_hint = \"" << m_hint << "\"";
        if (m_list.started())
            m_text << ";\n";
    }

    GNL_GENERATOR & m_instance;
    text_sink m_text;
    std::string m_prefix;
    int m_slice_index;
    bool m_lower_case_values;
    list_separator m_list{"\tdefparam\n", ",\n"};
    std::string m_hint;
};

} // namespace

void GNL_GENERATOR::add_to_lpm_hint_string(std::string & hint, std::string const & first,
                                           std::string const & second) const
{
    if (!hint.empty())
        hint += ", ";
    hint += first;
    if (!second.empty())
        hint += "=" + second;
}

void GNL_GENERATOR::dump_verilog_parameter_section(std::ostream & out, bool use_fixed_instance_name, int slice_index)
{
    defparam_block(*this, out, use_fixed_instance_name, slice_index).write();
}

void GNL_GENERATOR::dump_verilog_top_level_parameter_section(std::ostream & out)
{
    text_sink text(out);
    bool started = false;
    for (auto * parameter : m_registry->declared_parameters()) {
        if (!parameter->is_parameterized() || !parameter->is_used())
            continue;
        if (!started)
            text << "\n\n";
        started = true;
        // A string stands as it is: an author who exposes one quotes it if it has to be quoted.
        if (parameter->is_integer_parameter())
            text << "\tparameter\t" << parameter->get_name() << " = "
                 << static_cast<GNL_PARAMETER_INTEGER *>(parameter)->get_internal_value(true) << ";\n";
        else if (parameter->is_string_parameter())
            text << "\tparameter\t" << parameter->get_name() << " = "
                 << static_cast<GNL_PARAMETER_STRING *>(parameter)->get_internal_value(true) << ";\n";
    }
    if (started)
        text << "\n";
}
