#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"

#include <filesystem>
#include <fstream>

using namespace gnl_detail;

namespace {

bool has_2d_port(GNL_GENERATOR & generator)
{
    for (auto & port : generator.registry().ports())
        if ((port.is_input() || port.is_output()) && port.get_width_parameter_name()
            && port.get_2d_width_parameter_name())
            return true;
    return false;
}

void for_each_slice(GNL_GENERATOR & array, void (GNL_GENERATOR::*change)())
{
    if (!array.is_master_array())
        return;
    for (int i = 0; i < array.get_array_width(); ++i)
        if (auto * slice = array.get_array_slice(i); slice != &array)
            (slice->*change)();
}

/// Applies one entry of a black-box list. False when it ends the list: an entry "-name" keeps the design, whatever
/// follows.
bool apply_entry(GNL_GENERATOR & generator, std::string const & entry)
{
    if (equal_folded(entry, generator.get_name())) {
        if (generator.get_parent() || generator.is_full_blackbox_mode())
            generator.set_blackbox_state();
    } else if (entry == "-" + generator.get_name()) {
        generator.reset_blackbox_state();
        return false;
    }
    return true;
}

void apply_file(GNL_GENERATOR & generator, std::string const & path)
{
    std::ifstream file(path);
    std::string line;
    while (std::getline(file, line)) {
        if (line.ends_with('\r'))
            line.pop_back();
        if (!apply_entry(generator, line))
            return;
    }
}

/// Entries are separated by "|"; an empty one ends the list.
void apply_list(GNL_GENERATOR & generator, std::string const & list)
{
    for (std::size_t start = 0; start < list.size();) {
        auto const end = std::min(list.find('|', start), list.size());
        if (end == start || !apply_entry(generator, list.substr(start, end - start)))
            return;
        start = end + 1;
    }
}

} // namespace

bool GNL_GENERATOR::is_blackbox_mode()
{
    return option_equals(option_id::auto_blackbox, "ON") || is_full_blackbox_mode();
}

bool GNL_GENERATOR::is_full_blackbox_mode()
{
    return option_equals(option_id::auto_blackbox, "ALL");
}

void GNL_GENERATOR::check_blackbox_list()
{
    if (option_is_used(option_id::auto_blackbox) && !is_primitive() && is_blackbox_mode() && mf_has_sim_model()
        && (get_parent() || is_full_blackbox_mode()))
        set_blackbox_state();
    if (!option_is_used(option_id::blackbox_list))
        return;
    auto const value = option_value(option_id::blackbox_list);
    if (equal_folded(value, "NONE"))
        return;
    std::error_code ignored;
    if (std::filesystem::is_regular_file(value, ignored))
        apply_file(*this, value);
    else // the whole list, of which the value is the selected entry
        apply_list(*this, static_cast<GNL_PARAMETER_STRING &>(get_top_level_parent()->option(option_id::blackbox_list))
                              .get_value_list());
}

void GNL_GENERATOR::set_blackbox_state()
{
    set_primitive();
    set_need_lumenbox_tag(false);
    if (is_vhdl() && has_2d_port(*this))
        set_use_no_vhdl_component_declarations();
    // Slices that differ are written as cells of their own.
    for_each_slice(*this, &GNL_GENERATOR::set_blackbox_state);
}

void GNL_GENERATOR::reset_blackbox_state()
{
    reset_primitive_state();
    set_need_lumenbox_tag(true);
    if (is_vhdl())
        m_state.no_vhdl_component_declarations = false;
    for_each_slice(*this, &GNL_GENERATOR::reset_blackbox_state);
}
