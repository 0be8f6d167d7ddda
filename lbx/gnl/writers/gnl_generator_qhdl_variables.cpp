#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/ports/qhdl_nodes.h"
#include "lbx/gnl/ports/reference_text.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/qhdl_text.h"

#include <sstream>

// What a design declares for itself: its subdesigns, which are variables of a function, the nodes that stand beside
// them, and its own wires.

using namespace gnl_detail;

namespace {

/// Whether the subdesign stands in the text as statements of its own instead of a variable.
bool is_written_as_statements(GNL_GENERATOR const & subdesign)
{
    return subdesign.uses_custom_subdesign_insert_mode() && subdesign.uses_custom_qhdl_output();
}

/// An array that differs from slice to slice has a variable for each; the others have one with a range.
class variable_section
{
public:
    variable_section(GNL_GENERATOR & design, std::ostream & out)
        : m_design(design)
        , m_text(out)
    {
    }

    void write()
    {
        if (m_design.uses_custom_qhdl_output()) {
            note_written(m_design.dump_qhdl_custom_wires(m_text.stream(), false));
        } else {
            for (auto * subdesign : m_design.registry().subdesigns())
                declare(*subdesign);
            for (GNL_PORT & port : m_design.registry().ports())
                declare_signal(port);
        }
        if (m_entries.started())
            m_text << "\n";
    }

private:
    text_sink & entry() { return m_text << m_entries; }
    void note_written(bool written)
    {
        if (written)
            m_entries.set_started();
    }

    void declare(GNL_GENERATOR & subdesign)
    {
        bool const differs = subdesign.get_array_width() > 0 && subdesign.is_heterogeneous_array();
        if (!is_written_as_statements(subdesign)) {
            if (differs)
                declare_slices(subdesign);
            else
                declare_instance(subdesign);
        }
        if (subdesign.uses_custom_qhdl_output()) {
            bool const written = m_entries.started();
            note_written(differs ? subdesign.dump_qhdl_custom_wires_for_heterogeneous_arrays(m_text.stream(), written)
                                 : subdesign.dump_qhdl_custom_wires(m_text.stream(), written));
        }
        declare_bidir_nodes(subdesign);
    }

    void declare_instance(GNL_GENERATOR & subdesign)
    {
        entry() << subdesign.get_instance_name();
        write_qhdl_range(m_text, subdesign.get_array_width(), true);
        write_function(subdesign.get_entity_name(), subdesign);
    }

    void declare_slices(GNL_GENERATOR & array)
    {
        array_slices const slices(array);
        for (int i = 0; i < array.get_array_width(); ++i) {
            entry() << array.get_instance_name() << i;
            auto * slice = slices.at(i);
            bool const has_own = slice != nullptr && slice->is_heterogeneous_element();
            auto const own_entity = has_own ? slice->get_entity_name() : std::string();
            write_function(own_entity.empty() ? array.get_entity_name() : own_entity, has_own ? *slice : array);
        }
    }

    /// A design has its parameters built in; those of a cell follow its name.
    void write_function(std::string_view entity, GNL_GENERATOR & parameters_of)
    {
        m_text << " : " << entity;
        if (parameters_of.is_primitive())
            parameters_of.dump_qhdl_parameter_section(m_text.stream(), true);
        else
            m_text << ";\n";
    }

    void declare_bidir_nodes(GNL_GENERATOR & subdesign)
    {
        std::ostringstream nodes;
        subdesign.dump_qhdl_bidirectional_wires(nodes, &m_design);
        // Each line brings its own tab.
        if (auto const lines = nodes.str(); !lines.empty())
            entry() << std::string_view(lines).substr(1);
    }

    void declare_signal(GNL_PORT & port)
    {
        if (port.is_wire()) {
            if (port.declare_port())
                declare_as(port, "", "\t: WIRE;\n");
        } else if (auto * input = as_input(port)) {
            if (is_default_signal(*input))
                declare_as(port, "", "\t: WIRE;\n");
            else if (input->is_constant_used_port())
                declare_as(port, "const_node_", "\t: NODE;\n");
        }
    }
    void declare_as(GNL_PORT & port, std::string_view prefix, std::string_view kind)
    {
        write_qhdl_declared(entry() << prefix, port, m_design) << kind;
    }

    GNL_GENERATOR & m_design;
    text_sink m_text;
    list_separator m_entries{"VARIABLE \n\t", "\t"};
};

void declare_node(text_sink & text, GNL_PORT & port)
{
    text << "\t" << port.get_parent()->get_qhdl_port_extension() << port.get_name();
    write_qhdl_range(text, port.get_width(), true);
    text << "\t:\tNODE;\n";
}

} // namespace

void GNL_GENERATOR::dump_qhdl_variables_section(std::ostream & out)
{
    variable_section(*this, out).write();
}

void GNL_GENERATOR::dump_qhdl_bidirectional_wires(std::ostream & out, GNL_GENERATOR * parent)
{
    text_sink text(out);
    array_slices const slices(*this);
    for (GNL_PORT & port : m_registry->ports()) {
        if (!port.is_bidir())
            continue;
        declare_node(text, port);
        // A slice has a node only where it is connected by itself.
        if (!port.check_is_used_flag())
            for (auto * of_slice : slices.ports(port.get_name()))
                if (has_bidir_node(*of_slice, parent))
                    declare_node(text, *of_slice);
    }
}

bool GNL_GENERATOR::dump_qhdl_custom_wires_for_heterogeneous_arrays(std::ostream & out, bool variable_written)
{
    for (int i = 0; i < get_array_width(); ++i)
        if (auto * slice = get_array_slice(i); slice != this)
            variable_written = slice->dump_qhdl_custom_wires(out, variable_written);
    return variable_written;
}

std::string GNL_GENERATOR::get_qhdl_port_extension() const
{
    bool const is_slice = m_state.slice_index >= 0 && m_state.array_parent != nullptr;
    auto name = is_slice ? m_state.array_parent->get_instance_name() : get_instance_name();
    if (m_state.slice_index >= 0)
        name += convert_int_to_string(m_state.slice_index);
    return name + "_";
}
