// What a generation settles and asks besides writing: required ports and parameters, port widths, support, results.

#include "gnl_generator.h"

#include "lbx/gnl/core/driver_messages.h"
#include "lbx/gnl/core/element_registry.h"

#include <iostream>

using namespace gnl_detail;

namespace {

/// Reads the value, so that a missing one is reported. What is assigned an expression has its value in the written
/// design.
void demand_value(GNL_PARAMETER & parameter)
{
    if (parameter.uses_expr_assignment())
        return;
    if (parameter.is_integer_parameter())
        static_cast<GNL_PARAMETER_INTEGER &>(parameter).get_internal_value(true);
    else if (parameter.is_string_parameter())
        static_cast<GNL_PARAMETER_STRING &>(parameter).get_internal_value(true);
    else if (parameter.is_vector_parameter())
        static_cast<GNL_PARAMETER_VECTOR &>(parameter).get_value();
}

/// The phase in which port widths may change.
class width_update
{
public:
    explicit width_update(generator_state & state)
        : m_state(state)
    {
        m_state.in_update_port_widths = true;
    }
    ~width_update() { m_state.in_update_port_widths = false; }
    width_update(width_update const &) = delete;
    width_update & operator=(width_update const &) = delete;

private:
    generator_state & m_state;
};

} // namespace

bool GNL_GENERATOR::check_all_required_ports_and_parameters()
{
    initialize_param_list();
    set_vector_parameter_widths();
    // The options all have defaults, so that none of them can lack a value.
    for (auto * parameter : m_registry->declared_parameters())
        demand_value(*parameter);
    for (auto & port : m_registry->ports()) {
        if (!port.is_input() || port.get_default_value() != -1
            || static_cast<GNL_PORT_INPUT &>(port).are_all_bits_used())
            continue;
        if (!get_parent()) {
            port.set_used();
            continue;
        }
        report<driver_message::required_port>(*this, port.get_hierarchical_name());
        m_state.file_generation_off = true;
    }
    return !m_state.file_generation_off;
}

void GNL_GENERATOR::process_port_widths()
{
    width_update const update(m_state);
    reset_port_widths();
    multiply_array_port_widths();
}

void GNL_GENERATOR::settle_port_widths(std::string const & port_name)
{
    for (GNL_GENERATOR * level = this; level && !level->m_state.port_connections_made;) {
        level->initialize_param_list();
        if (level->get_parent())
            level->update_legacy_parameter_values();
        level->set_vector_parameter_widths(); // first: a value that waited for its width is no late assignment
        level->m_state.port_connections_made = true;
        level->process_port_widths();
        if (level->m_state.master_array) {
            for (int i = 0; i < level->m_state.array_width; ++i)
                if (auto * slice = level->get_array_slice(i); slice != level)
                    slice->made_port_connection(port_name);
            return;
        }
        if (level->m_state.slice_index < 0)
            return;
        level = level->m_state.array_parent;
    }
}

void GNL_GENERATOR::declared_late()
{
    // What a body declares for itself has the width that it was given.
    if (m_state.in_rtl_body || m_state.in_update_port_widths)
        return;
    m_state.port_connections_made = false;
    if (m_state.slice_index >= 0 && m_state.array_parent)
        m_state.array_parent->declared_late();
}

void GNL_GENERATOR::set_not_supported()
{
    m_state.not_supported = true;
    m_state.file_generation_off = true;
    get_file_name(); // the name of the file that is not wanted, before the entity takes its own name again
    auto * const top = get_top_level_parent();
    top->remove_from_list_of_subdesigns(get_entity_name());
    top->set_has_subdesign_as_not_supported();
    m_state.entity_name = get_name();
}

int GNL_GENERATOR::generator_result() const
{
    if (m_state.not_supported)
        return 2;
    if (m_state.subdesign_not_supported)
        return 3;
    return check_error_flag() ? 1 : 0;
}

bool GNL_GENERATOR::check_error_flag() const
{
    // The count is the process's; a subdesign needs no handler of its own to ask for it.
    return get_top_level_parent()->msg_handler().get_error_count() > 0;
}

char const * GNL_GENERATOR::get_simulation_library()
{
    set_simulation_library_mode();
    if (is_qhdl() || is_tcl())
        set_gen_language(GNL_VHDL);
    generate_subdesign(std::cout); // nothing is written in this mode
    auto & text = m_state.simulation_library_text;
    if (text.empty() && !check_error_flag())
        text = "no_simlib";
    reset_simulation_library_mode();
    return text.c_str();
}
