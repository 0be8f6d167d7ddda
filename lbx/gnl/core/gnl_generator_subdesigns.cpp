// The pass over the subdesigns of a design: each is generated, and what the design must declare for them is written.

#include "gnl_generator.h"

#include "giga_info.h"
#include "gnl_simulator.h"
#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/output_file.h"
#include "lbx/gnl/core/subdesign_names.h"

using namespace gnl_detail;

class GNL_GENERATOR::subdesign_pass
{
public:
    subdesign_pass(GNL_GENERATOR & design, std::ostream & out)
        : m_design(design)
        , m_top(*design.get_top_level_parent())
        , m_out(out)
        , m_vhdl_wrappers_off(design.option_equals(option_id::vhdl_wrappers, "OFF"))
        , m_planb(design.option_equals(option_id::eda_planb, "ON"))
    {
    }

    void run();

private:
    void generate(GNL_GENERATOR & subdesign);
    void generate_with_simulator(GNL_GENERATOR & subdesign);
    void count(GNL_GENERATOR & subdesign);
    void drop_unsupported(GNL_GENERATOR & subdesign);
    void declare(GNL_GENERATOR & subdesign);
    void declare_in_qhdl(GNL_GENERATOR & subdesign, std::string const & entity);
    void add_vhdl_libraries(GNL_GENERATOR & subdesign, bool renamed);
    void add_custom_library(GNL_GENERATOR const & generator);
    bool comes_from_library(GNL_GENERATOR const & subdesign) const;
    void write_libraries();
    bool counts_only() const
    {
        return m_design.is_in_resource_count_mode() || m_design.is_in_simulation_library_mode();
    }

    GNL_GENERATOR & m_design;
    GNL_GENERATOR & m_top;
    std::ostream & m_out;
    bool const m_vhdl_wrappers_off;
    bool const m_planb;
    string_map m_declared_includes;
    string_map m_vhdl_libraries;
    bool m_any_tag = false;
};

void GNL_GENERATOR::dump_hdl_generate_subdesigns(std::ostream & stream)
{
    if (is_vhdl())
        exclude_subdesigns_from_having_component_declarations();
    subdesign_pass(*this, stream).run();
}

void GNL_GENERATOR::subdesign_pass::run()
{
    for (auto * subdesign : m_design.registry().subdesigns()) {
        subdesign->transfer_from_list_to_map();
        generate(*subdesign);
        count(*subdesign);
        drop_unsupported(*subdesign);
        if (!counts_only())
            declare(*subdesign);
    }
    if (is_vhdl() && m_design.uses_custom_vhdl_output())
        add_custom_library(m_design);
    if (m_design.generate_file() && !counts_only())
        write_libraries();
    if (m_design.is_in_resource_count_mode() && !m_design.is_supported())
        m_design.count_total_subdesign_resources(m_design.m_state.resource_map);
    m_design.set_need_lumenbox_tag(m_any_tag || m_design.has_qelvar_internal_option_assignments());
}

void GNL_GENERATOR::subdesign_pass::generate(GNL_GENERATOR & subdesign)
{
    if (m_design.is_append_mode())
        subdesign.set_append_mode();
    if (m_design.is_in_resource_count_mode())
        subdesign.set_resource_count_mode();
    if (m_design.is_in_simulation_library_mode())
        subdesign.set_simulation_library_mode();
    if (m_design.simulator_exists() && !subdesign.is_primitive())
        generate_with_simulator(subdesign);
    else
        subdesign.generate_subdesign(m_out);
}

/// A subdesign that has no model of its own is evaluated by a simulator of its own, which starts from what this one
/// knows and tells what it has found.
void GNL_GENERATOR::subdesign_pass::generate_with_simulator(GNL_GENERATOR & subdesign)
{
    auto * const simulator = m_design.get_simulator();
    GNL_SIMULATOR * own = nullptr;
    if (auto * const known = simulator->get_simulator_for_generator(&subdesign);
        !known || !subdesign.evaluate_model(known)) {
        own = new GNL_SIMULATOR(&subdesign, nullptr);
        subdesign.register_simulator(own);
        own->update_stimulus_from_simulator(simulator);
    }
    subdesign.generate_subdesign(m_out);
    if (own)
        simulator->update_stimulus_from_simulator(own);
}

void GNL_GENERATOR::subdesign_pass::count(GNL_GENERATOR & subdesign)
{
    subdesign.count_total_subdesign_resources(m_design.m_state.resource_map);
    if (m_design.is_in_simulation_library_mode())
        subdesign.collect_simulation_libraries(m_design.m_state.simulation_library_map);
    if (subdesign.generate_file())
        m_top.register_subdesign_info(subdesign.get_entity_name(), &subdesign);
}

/// A subdesign that can't be generated stands as a black box, without a file.
void GNL_GENERATOR::subdesign_pass::drop_unsupported(GNL_GENERATOR & subdesign)
{
    if (subdesign.is_supported() || subdesign.is_primitive())
        return;
    subdesign.set_primitive();
    std::string const path = subdesign.get_file_name();
    remove_output_file(path);
    m_top.subdesign_names().file_removed(path);
}

void GNL_GENERATOR::subdesign_pass::declare(GNL_GENERATOR & subdesign)
{
    auto const entity = subdesign.get_entity_name();
    bool const renamed = subdesign.is_primitive() && m_planb && !equal_folded(entity, subdesign.get_name());
    if (is_qhdl())
        declare_in_qhdl(subdesign, entity);
    if (is_vhdl())
        add_vhdl_libraries(subdesign, renamed);
    if (renamed && !is_qhdl())
        subdesign.dump_qhdl_library_wrapper();
    if (is_vhdl() && subdesign.uses_custom_subdesign_insert_mode() && subdesign.uses_custom_vhdl_output())
        add_custom_library(subdesign);
    if (subdesign.needs_lumenbox_tag()
        || (subdesign.is_primitive() && subdesign.has_qelvar_internal_option_assignments()))
        m_any_tag = true;
}

void GNL_GENERATOR::subdesign_pass::declare_in_qhdl(GNL_GENERATOR & subdesign, std::string const & entity)
{
    bool const has_function = subdesign.is_primitive()
                                  ? !subdesign.generate_include_header() && !subdesign.no_include_declaration()
                                  : subdesign.is_supported();
    bool const inserted = subdesign.uses_custom_qhdl_output() && subdesign.uses_custom_subdesign_insert_mode();
    if (has_function && !inserted && m_declared_includes.emplace(entity, entity).second)
        subdesign.generate_include_file(m_out);
    if (subdesign.is_primitive() && subdesign.generate_include_header() && m_design.generate_file()
        && m_declared_includes.emplace(subdesign.get_name(), subdesign.get_name()).second)
        m_out << "include \"" << entity << ".inc\";\n";
}

/// Whether the cell is declared by a library, not by a component of the design.
bool GNL_GENERATOR::subdesign_pass::comes_from_library(GNL_GENERATOR const & subdesign) const
{
    return !subdesign.uses_custom_vhdl_output()
           && (!subdesign.needs_vhdl_component() || !subdesign.get_vhdl_library().empty())
           && (subdesign.is_vhdl_primitive() || (subdesign.is_primitive() && m_vhdl_wrappers_off));
}

void GNL_GENERATOR::subdesign_pass::add_vhdl_libraries(GNL_GENERATOR & subdesign, bool renamed)
{
    if (!comes_from_library(subdesign))
        return;
    bool const no_component = subdesign.has_no_vhdl_component_declarations();
    if (renamed) {
        m_design.add_to_vhdl_library_list(m_vhdl_libraries, subdesign.get_special_primitive_library(), no_component);
        return;
    }
    for (auto const & [key, library] : subdesign.get_vhdl_library_list())
        m_design.add_to_vhdl_library_list(m_vhdl_libraries, library, no_component);
}

void GNL_GENERATOR::subdesign_pass::add_custom_library(GNL_GENERATOR const & generator)
{
    if (auto const & library = generator.get_custom_vhdl_library(); !library.empty())
        m_vhdl_libraries.emplace(library, library);
}

void GNL_GENERATOR::subdesign_pass::write_libraries()
{
    m_out << "\n";
    for (auto const & [key, library] : m_vhdl_libraries) {
        // Library work is there without a clause.
        if (auto const name = key.substr(0, key.find('.')); !equal_folded(name, "work"))
            m_out << " LIBRARY " << name << ";\n";
        m_out << " USE " << library << ".all;\n\n";
    }
}

namespace {

std::string entity_or_name(GNL_GENERATOR const & subdesign)
{
    auto entity = subdesign.get_entity_name();
    return entity.empty() ? subdesign.get_name() : entity;
}

/// Whether the subdesign gets a component declaration that could disagree with another one of its entity.
bool declares_component(GNL_GENERATOR & subdesign)
{
    if (subdesign.uses_custom_vhdl_output() || subdesign.has_no_vhdl_component_declarations())
        return false;
    if (subdesign.is_primitive() && !equal_folded(subdesign.get_primitive_name(), subdesign.get_name())
        && subdesign.option_equals(option_id::eda_planb, "ON"))
        return false;
    bool const instantiated_cell = subdesign.is_primitive() && !subdesign.option_equals(option_id::vhdl_wrappers, "ON");
    return !subdesign.needs_vhdl_component() || subdesign.is_vhdl_primitive() || instantiated_cell;
}

/// Entities for which subdesigns need different declarations.
string_map conflicting_entities(GNL_GENERATOR & design)
{
    string_map declarations, conflicts;
    for (auto * subdesign : design.registry().subdesigns()) {
        if (!declares_component(*subdesign))
            continue;
        auto const entity = entity_or_name(*subdesign);
        auto const text = subdesign->get_declared_parameter_and_port_list();
        auto const [known, added] = declarations.emplace(entity, text);
        if (!added && !equal_folded(known->second, text))
            conflicts.emplace(entity, text);
    }
    return conflicts;
}

} // namespace

void GNL_GENERATOR::exclude_subdesigns_from_having_component_declarations()
{
    auto const conflicts = conflicting_entities(*this);
    if (conflicts.empty())
        return;
    for (auto * subdesign : m_registry->subdesigns()) {
        if (!conflicts.contains(entity_or_name(*subdesign)))
            continue;
        subdesign->set_use_no_vhdl_component_declarations();
        if (!subdesign->get_vhdl_library().empty())
            continue;
        GIGA_INFO info;
        info.set_function_name(subdesign->get_name(), "");
        if (!info.has_errors() && !info.get_vhdl_library().empty())
            subdesign->set_vhdl_library(info.get_vhdl_library(), true);
        else
            generator_warning("VHDL library declaration is needed for the subdesign entity.", subdesign->get_name(),
                              "");
    }
}
