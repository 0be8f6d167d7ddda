#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/cell_parameters.h"
#include "lbx/gnl/writers/list_separator.h"
#include "lbx/gnl/writers/simulation_only_value.h"
#include "lbx/gnl/writers/text_sink.h"

using namespace gnl_detail;

namespace {

/// The values that one instance gives to the generics of a library's cell. Parameters that are hints don't stand in it
/// by themselves: they are collected in one text, which closes the map.
class generic_map
{
public:
    generic_map(GNL_GENERATOR & instance, std::ostream & out)
        : m_instance(instance)
        , m_text(out)
    {
    }

    void write()
    {
        for (auto * parameter : m_instance.registry().declared_parameters())
            if (parameter->is_included_in_declaration() && parameter->is_used())
                assign(*parameter);
        if (m_instance.has_true_vhdl_parameter_array())
            for (GNL_PARAMETER_ARRAY & array : m_instance.registry().parameter_arrays())
                if (array.dump_vhdl_parameter_array_assignment(m_text.stream(), m_list.started(), true))
                    m_list.set_started();
        if (tells_used_ports(m_instance))
            for (GNL_PORT & port : m_instance.registry().ports())
                if ((port.is_input() || port.is_output()) && port.is_used())
                    entry(port.get_name())
                        << "_port_used => \"USED\""; // Verilog has it in small letters, as users know
        if (m_instance.is_primitive())
            for (auto const & [name, value] : m_instance.simulation_only_parameters())
                assign_simulation_only(name, value);
        if (!m_hint.empty())
            entry("lpm_hint") << " => \"" << m_hint << "\"";
        if (m_list.started())
            m_text << "\n\t  )\n";
    }

private:
    text_sink & entry(std::string const & name) { return m_text << m_list << "\t\t" << name; }

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
        write_integer_value(entry(parameter.get_name()) << " => ", parameter);
    }
    void assign_string(GNL_PARAMETER_STRING & parameter)
    {
        if (parameter.uses_expr_assignment())
            entry(parameter.get_name()) << " => " << parameter.get_expr_assignment();
        else
            entry(parameter.get_name()) << " => \"" << parameter.get_value(true) << "\"";
    }
    void assign_vector(GNL_PARAMETER_VECTOR & parameter)
    {
        auto const & value = parameter.get_value();
        if (parameter.is_vhdl_bit_vector())
            entry(parameter.get_name()) << " => X\"" << value.as_hex_string() << "\"";
        else
            entry(parameter.get_name()) << " => \"" << value.as_bin_string() << "\"";
    }
    void assign_simulation_only(std::string const & name, std::string const & listed)
    {
        auto const value = simulation_only_value_of(m_instance, name, listed);
        std::string_view const quote = value.is_number ? "" : "\"";
        entry(name) << " => " << quote << value.text << quote;
    }

    GNL_GENERATOR & m_instance;
    text_sink m_text;
    list_separator m_list{"\t  GENERIC MAP (\n", ",\n"};
    std::string m_hint;
};

} // namespace

void GNL_GENERATOR::dump_vhdl_parameter_mappings_for_wrapper(std::ostream & out)
{
    generic_map(*this, out).write();
}
