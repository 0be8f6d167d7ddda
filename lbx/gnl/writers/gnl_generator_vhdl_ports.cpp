#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/one_slice_widths.h"
#include "lbx/gnl/ports/connection_checks.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/vhdl_signals.h"
#include "lbx/gnl/writers/vhdl_text.h"

#include <algorithm>

// The port lists of components, and of the entity of a wrapper. A list without an entry isn't written at all: an empty
// one can't be read.

using namespace gnl_detail;

namespace {

list_separator component_ports()
{
    return {"\t PORT\n\t ( \n", ";\n"};
}

bool has_default(GNL_PORT & port)
{
    return port.is_input() && port.get_default_value() != -1;
}

// ---- By the widths of the ports

void declare_fixed_port(text_sink & text, GNL_PORT & port, std::string_view direction)
{
    int const width = declared_slice_width(port);
    text << "\t\t" << port.get_vhdl_name() << "\t:\t" << direction << "  STD_LOGIC"
         << vector_suffix{width, tight_vector_of};
    if (has_default(port))
        text << " := " << vhdl_level{port.get_default_value(), width > 0};
}

std::string_view direction_of(GNL_PORT const & port)
{
    if (port.is_input())
        return "IN";
    return port.is_output() ? "OUT" : "INOUT";
}

// ---- By the parameters of a cell

/// The highest index that an expression over parameters leads to. A parameter that the component doesn't show is fixed
/// by its default.
std::string high_index(GNL_GENERATOR & cell, char const * expression)
{
    auto const * parameter = cell.registry().find_parameter(expression);
    if (parameter != nullptr && parameter->is_integer_parameter() && !parameter->is_included_in_declaration()) {
        int const width = static_cast<GNL_PARAMETER_INTEGER const *>(parameter)->get_default_value();
        if (width != -1)
            return GNL_ELEMENT::convert_int_to_string(width - 1);
    }
    return std::string(expression) + "-1";
}

class cell_port
{
public:
    cell_port(GNL_PORT & port, text_sink & text)
        : m_port(port)
        , m_text(text)
        , m_cell(*port.get_parent())
        , m_width_expression(port.get_width_parameter_name())
        , m_row_expression(port.get_2d_width_parameter_name())
    {
    }

    void declare() const
    {
        m_text << "\t\t" << m_port.get_vhdl_name() << "\t:\t" << direction_of(m_port) << " STD_LOGIC";
        write_range();
        if (!has_default(m_port))
            return;
        bool const of_vector = m_width_expression != nullptr || m_port.get_original_width() > 0;
        vhdl_level const level{m_port.get_default_value(), of_vector};
        if (has_rows())
            m_text << " := (OTHERS => " << level << ")";
        else
            m_text << " := " << level;
    }

private:
    /// The instance connects an input by a signal of the same two dimensions.
    bool has_fixed_rows() const { return m_port.is_input() && m_port.get_2d_width() > 0; }
    bool has_rows() const { return m_width_expression != nullptr ? m_row_expression != nullptr : has_fixed_rows(); }

    void write_range() const
    {
        if (m_width_expression == nullptr && has_fixed_rows()) {
            m_text << "_2D(" << m_port.get_original_width() - 1 << " DOWNTO 0, " << m_port.get_2d_width() - 1
                   << " DOWNTO 0)";
        } else if (m_width_expression == nullptr) {
            m_text << vector_suffix{declared_slice_width(m_port), tight_vector_of};
        } else {
            m_text << (has_rows() ? "_2D(" : "_VECTOR(") << high_index(m_cell, m_width_expression) << " DOWNTO 0";
            if (has_rows())
                m_text << ", " << high_index(m_cell, m_row_expression) << " DOWNTO 0";
            m_text << ")";
        }
    }

    GNL_PORT & m_port;
    text_sink & m_text;
    GNL_GENERATOR & m_cell;
    char const * m_width_expression;
    char const * m_row_expression;
};

// ---- Of arrays

class array_port
{
public:
    array_port(GNL_PORT & port, text_sink & text)
        : m_port(port)
        , m_text(text)
        , m_width_expression(port.get_width_parameter_name())
        , m_row_expression(port.get_2d_width_parameter_name())
    {
    }

    /// A bidirectional port is an input here where parameters give its width, and an output where they don't. The mix
    /// is known, and kept.
    void declare() const
    {
        if (m_width_expression == nullptr) {
            declare_fixed_port(m_text, m_port, m_port.is_input() ? "IN" : "OUT");
            return;
        }
        m_text << "\t\t" << m_port.get_vhdl_name() << "\t:\t" << (m_port.is_output() ? "OUT" : "IN") << " STD_LOGIC"
               << (m_row_expression != nullptr ? "_2D(" : "_VECTOR(") << m_width_expression << "-1 DOWNTO 0";
        if (m_row_expression != nullptr)
            m_text << ", " << m_row_expression << "-1 DOWNTO 0";
        m_text << ")";
        if (has_default(m_port))
            m_text << " := (OTHERS => " << vhdl_level{m_port.get_default_value(), m_port.get_original_width() > 0}
                   << ")";
    }

private:
    GNL_PORT & m_port;
    text_sink & m_text;
    char const * m_width_expression;
    char const * m_row_expression;
};

bool is_driven(GNL_PORT & port)
{
    return port.get_driver() != nullptr || port.is_driven_by_constant();
}

/// Whether the array, or one of its slices, connects the port.
bool is_connected(GNL_PORT & port, array_slices const & slices)
{
    if (!is_pin(port) || !port.is_used())
        return false;
    return !port.is_input() || is_driven(port)
           || std::ranges::any_of(slices.ports(port.get_name()), [](GNL_PORT * slice) { return is_driven(*slice); });
}

} // namespace

void GNL_GENERATOR::dump_vhdl_port_section_for_wrapper(std::ostream & out)
{
    text_sink text(out);
    auto list = component_ports();
    for (GNL_PORT & port : m_registry->ports()) {
        if (!is_pin(port) || !port.is_used() || (is_heterogeneous_element() && slice_may_lack(port)))
            continue;
        text << list;
        declare_fixed_port(text, port, direction_of(port));
    }
    if (list.started())
        text << "\n\t ); ";
}

void GNL_GENERATOR::dump_vhdl_port_section_for_primitives(std::ostream & out)
{
    text_sink text(out);
    auto list = component_ports();
    for (GNL_PORT & port : m_registry->ports()) {
        if (!is_pin(port) || !port.is_included_in_declaration())
            continue;
        text << list;
        cell_port(port, text).declare();
    }
    if (list.started())
        text << "\n\t ); ";
}

void GNL_GENERATOR::dump_vhdl_port_section_for_arrays(std::ostream & out)
{
    // An array of one slice that was made is written as that slice.
    if (get_array_width() < 1 || (is_master_array() && get_array_width() == 1)) {
        dump_vhdl_port_section_for_wrapper(out);
        return;
    }
    text_sink text(out);
    auto list = component_ports();
    array_slices const slices(*this);
    for (GNL_PORT & port : m_registry->ports()) {
        if (!is_connected(port, slices))
            continue;
        text << list;
        array_port(port, text).declare();
    }
    if (list.started())
        text << "\n\t ); \n";
}
