#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/simulation_only_value.h"
#include "lbx/gnl/writers/text_sink.h"

// The generics of components. Each ends in the one that takes hints, for instances that have some.

using namespace gnl_detail;

namespace {

/// The blanks are uneven on purpose: users compare these lines byte by byte.
struct generic_words
{
    std::string_view opener, before_vector, closer;
};
constexpr generic_words component_words{"\t GENERIC \n\t (\n", " := ", "\n\t );\n"};
constexpr generic_words slices_words{"\t  GENERIC \n\t (\n", " :=", "\n\t  );\n"};

class component_generics
{
public:
    component_generics(std::ostream & out, generic_words const & words)
        : m_text(out)
        , m_words(words)
        , m_list(words.opener, ";\n")
    {
    }

    void declare(GNL_PARAMETER & parameter)
    {
        if (parameter.is_integer_parameter())
            declare_integer(static_cast<GNL_PARAMETER_INTEGER &>(parameter));
        else if (parameter.is_string_parameter())
            declare_string(static_cast<GNL_PARAMETER_STRING &>(parameter));
        else if (parameter.is_vector_parameter())
            declare_vector(static_cast<GNL_PARAMETER_VECTOR &>(parameter));
    }
    void declare(GNL_PARAMETER_ARRAY & array)
    {
        note(array.dump_vhdl_generic_declaration(m_text.stream(), m_list.started(), true));
    }
    /// As before, but leaves out what is `known`.
    void declare(GNL_PARAMETER_ARRAY & array, std::map<std::string, std::string, LESS_C_STRING> & known)
    {
        note(array.dump_vhdl_generic_declaration_for_arrays(m_text.stream(), m_list.started(), known));
    }
    void declare_simulation_only(GNL_GENERATOR & cell)
    {
        for (auto const & [name, listed] : cell.simulation_only_parameters()) {
            auto const value = simulation_only_value_of(cell, name, listed);
            if (value.is_number)
                entry(name) << "NATURAL := " << value.text;
            else
                declare_string(name, value.text);
        }
    }
    void declare_string(std::string_view name, std::string_view value)
    {
        entry(name) << "STRING := \"" << value << "\"";
    }

    void close()
    {
        declare_string("lpm_hint", "UNUSED");
        m_text << m_words.closer;
    }
    /// The name of the cell's function stands behind the hints.
    void close(std::string const & function)
    {
        declare_string("lpm_hint", "UNUSED");
        declare_string("lpm_type", function);
        m_text << m_words.closer;
    }

private:
    text_sink & entry(std::string_view name) { return m_text << m_list << "\t\t" << name << "\t:\t"; }
    void note(bool started)
    {
        if (started)
            m_list.set_started();
    }

    void declare_integer(GNL_PARAMETER_INTEGER const & parameter)
    {
        int const value = parameter.get_default_value();
        if (parameter.is_output_as_string_parameter())
            entry(parameter.get_name()) << "STRING := \"" << value << "\"";
        else if (value == -1) // none, and no natural number
            entry(parameter.get_name()) << "NATURAL";
        else
            entry(parameter.get_name()) << "NATURAL := " << value;
    }
    void declare_string(GNL_PARAMETER_STRING const & parameter)
    {
        if (!equal_folded(parameter.get_name(), "lpm_hint"))
            declare_string(parameter.get_name(), parameter.get_default_value());
    }
    void declare_vector(GNL_PARAMETER_VECTOR & parameter)
    {
        bool const has_default = parameter.has_default_value();
        if (parameter.is_vhdl_bit_vector()) {
            entry(parameter.get_name()) << "BIT_VECTOR" << m_words.before_vector << "X\""
                                        << (has_default ? parameter.get_default_value()->as_hex_string() : "0") << "\"";
            return;
        }
        int const width = parameter.get_width();
        auto const zeros = std::string(static_cast<std::size_t>(width > 0 ? width : 1), '0');
        entry(parameter.get_name()) << "STD_LOGIC_VECTOR(" << width - 1 << " DOWNTO 0)" << m_words.before_vector << "\""
                                    << (has_default ? parameter.get_default_value()->as_bin_string() : zeros) << "\"";
    }

    text_sink m_text;
    generic_words const & m_words;
    list_separator m_list;
};

void declare_of(GNL_GENERATOR & subdesign, component_generics & generics, bool used_only)
{
    for (auto * parameter : subdesign.registry().declared_parameters())
        if (parameter->is_included_in_declaration() && (!used_only || parameter->is_used()))
            generics.declare(*parameter);
    if (subdesign.has_true_vhdl_parameter_array())
        for (GNL_PARAMETER_ARRAY & array : subdesign.registry().parameter_arrays())
            generics.declare(array);
    if (subdesign.is_primitive())
        generics.declare_simulation_only(subdesign);
}

/// The parameters that at least one slice was given a value for.
std::map<std::string, GNL_PARAMETER *, LESS_C_STRING> used_in_slices(GNL_GENERATOR const & array,
                                                                     array_slices const & slices)
{
    std::map<std::string, GNL_PARAMETER *, LESS_C_STRING> parameters;
    for (int i = 0; i < array.get_array_width(); ++i)
        if (auto * slice = slices.at(i))
            for (auto * parameter : slice->registry().declared_parameters())
                if (parameter->is_included_in_declaration() && parameter->is_used())
                    parameters.emplace(parameter->get_name(), parameter);
    return parameters;
}

} // namespace

void GNL_GENERATOR::dump_vhdl_generic_section_for_wrapper(std::ostream & out)
{
    component_generics generics(out, component_words);
    declare_of(*this, generics, true);
    generics.close();
}

void GNL_GENERATOR::dump_vhdl_generic_section_for_primitives(std::ostream & out)
{
    component_generics generics(out, component_words);
    declare_of(*this, generics, false);
    if (use_lpm_type_output())
        generics.close(get_primitive_name());
    else
        generics.close();
}

void GNL_GENERATOR::dump_vhdl_generic_section_for_hetero_arrays(std::ostream & out)
{
    component_generics generics(out, slices_words);
    array_slices const slices(*this);
    for (auto const & [name, parameter] : used_in_slices(*this, slices))
        generics.declare(*parameter);
    std::map<std::string, std::string, LESS_C_STRING> known;
    for (int i = 0; has_true_vhdl_parameter_array() && i < get_array_width(); ++i)
        if (auto * slice = slices.at(i))
            for (GNL_PARAMETER_ARRAY & array : slice->registry().parameter_arrays())
                generics.declare(array, known);
    if (is_primitive())
        generics.declare_simulation_only(*this);
    generics.close();
}
