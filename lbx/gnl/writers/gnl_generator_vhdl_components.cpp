#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/vhdl_components.h"
#include "lbx/gnl/writers/vhdl_signals.h"

#include <algorithm>

namespace gnl_detail {
namespace {

/// Opens the component of an entity that has none yet.
bool open_component(std::ostream & out, std::string const & entity, signal_map & components)
{
    bool const is_new = components.emplace(entity, entity).second;
    if (is_new)
        out << "\t COMPONENT  " << entity << "\n";
    return is_new;
}

constexpr std::string_view end_of_component = "\t END COMPONENT;\n";

/// A cell has its parameters; any other subdesign has them built in.
void write_component_body(GNL_GENERATOR & subdesign, std::ostream & out)
{
    if (!is_vhdl_library_cell(subdesign)) {
        subdesign.dump_vhdl_port_section_for_wrapper(out);
    } else if (subdesign.has_vhdl_used_port_parameter_only_component()) {
        subdesign.dump_vhdl_generic_section_for_wrapper(out);
        subdesign.dump_vhdl_port_section_for_wrapper(out);
    } else {
        subdesign.dump_vhdl_generic_section_for_primitives(out);
        subdesign.dump_vhdl_port_section_for_primitives(out);
    }
}

class component_list
{
public:
    component_list(GNL_GENERATOR & design, std::ostream & out, signal_map types)
        : m_design(design)
        , m_out(out)
        , m_types(std::move(types))
        , m_planb(design.option_equals(option_id::eda_planb, "ON"))
    {
    }

    void write()
    {
        for (auto * subdesign : m_design.registry().subdesigns())
            if (has_component(*subdesign))
                declare(*subdesign);
    }

private:
    bool has_component(GNL_GENERATOR & subdesign) const
    {
        if (subdesign.uses_custom_vhdl_output() || subdesign.has_no_vhdl_component_declarations())
            return false;
        return !m_planb || !subdesign.is_primitive()
               || equal_folded(subdesign.get_name(), subdesign.get_primitive_name());
    }
    void declare(GNL_GENERATOR & subdesign)
    {
        if (subdesign.is_master_array() && !is_vhdl_library_cell(subdesign)
            && !subdesign.dump_vhdl_component_section_for_hetero_arrays(m_out, m_components, m_types))
            return;
        auto const entity = subdesign.get_entity_name();
        if (m_components.contains(entity))
            return;
        m_types = subdesign.dump_vhdl_array_type_declarations(m_out, std::move(m_types));
        open_component(m_out, entity, m_components);
        write_component_body(subdesign, m_out);
        m_out << end_of_component;
    }

    GNL_GENERATOR & m_design;
    std::ostream & m_out;
    signal_map m_components;
    signal_map m_types;
    bool m_planb;
};

/// Whether a cell's port has two dimensions in its component.
bool needs_2d_type(GNL_PORT & port)
{
    if (port.is_input() && is_2d_in_component(port))
        return true;
    return (port.is_input() || port.is_output()) && port.get_width_parameter_name() != nullptr
           && port.get_2d_width_parameter_name() != nullptr;
}

} // namespace

void declare_2d_type(GNL_GENERATOR & cell, text_sink & text, signal_map & types)
{
    // What has no component here comes from a library, with its types.
    if (!cell.is_primitive() || !cell.is_supported() || cell.has_no_vhdl_component_declarations())
        return;
    for (GNL_PORT & port : cell.registry().ports()) {
        if (!needs_2d_type(port))
            continue;
        if (types.emplace("std_logic_2d", "std_logic_2d").second)
            text << "\t type STD_LOGIC_2D is array (NATURAL RANGE <>, NATURAL RANGE <>) of STD_LOGIC;\n";
        return;
    }
}

void write_components(GNL_GENERATOR & design, std::ostream & out, signal_map types)
{
    component_list(design, out, std::move(types)).write();
}

} // namespace gnl_detail

using namespace gnl_detail;

std::map<std::string, std::string, LESS_C_STRING>
GNL_GENERATOR::dump_vhdl_array_type_declarations(std::ostream & out,
                                                 std::map<std::string, std::string, LESS_C_STRING> types)
{
    if (has_true_vhdl_parameter_array())
        for (GNL_PARAMETER_ARRAY & array : m_registry->parameter_arrays())
            types = array.dump_vhdl_type_declarations(out, std::move(types));
    text_sink text(out);
    declare_2d_type(*this, text, types);
    return types;
}

namespace {

/// Whether a slice is an entity that differs from that of its array. A slice that was never generated has none.
bool has_own_entity(GNL_GENERATOR & slice, std::string const & common_settings)
{
    return slice.is_heterogeneous_element()
           || (!slice.get_entity_name().empty() && !equal_folded(slice.dump_header(false), common_settings));
}

} // namespace

bool GNL_GENERATOR::dump_vhdl_component_section_for_hetero_arrays(
    std::ostream & out, std::map<std::string, std::string, LESS_C_STRING> & components,
    std::map<std::string, std::string, LESS_C_STRING> & types)
{
    if (is_vhdl_library_cell(*this)) {
        types = dump_vhdl_array_type_declarations(out, std::move(types));
        if (open_component(out, get_entity_name(), components)) {
            dump_vhdl_generic_section_for_hetero_arrays(out);
            dump_vhdl_port_section_for_arrays(out);
            out << end_of_component;
        }
        return false;
    }
    bool has_common_entity = false;
    auto const common_settings = dump_header(false);
    array_slices const slices(*this);
    for (int i = 0; i < get_array_width(); ++i) {
        auto * slice = slices.at(i);
        if (slice == nullptr || !has_own_entity(*slice, common_settings)) {
            has_common_entity = true;
            continue;
        }
        types = slice->dump_vhdl_array_type_declarations(out, std::move(types));
        if (open_component(out, slice->get_entity_name(), components)) {
            slice->dump_vhdl_port_section_for_wrapper(out);
            out << end_of_component;
        }
    }
    return has_common_entity;
}
