// The options that every generator has.
//
// They answer as parameter objects would, but without making them: an inherit-only option has the value that the top
// generator has, an unassigned one its default. Reading posts nothing, so an error can ask for its own limit.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/option_set.h"

using gnl_detail::option_id;
using gnl_detail::row_of;

namespace {

/// The option's value as its object has it, a number in decimal.
std::string object_value(GNL_PARAMETER & option)
{
    if (option.is_integer_parameter())
        return GNL_ELEMENT::convert_int_to_string(
            static_cast<GNL_PARAMETER_INTEGER &>(option).get_internal_value(false));
    return static_cast<GNL_PARAMETER_STRING &>(option).get_internal_value(false);
}

} // namespace

GNL_PARAMETER & GNL_GENERATOR::option(option_id id)
{
    if (!m_options)
        m_options = std::make_unique<gnl_detail::option_set>();
    return m_options->get(*this, id);
}

GNL_PARAMETER * GNL_GENERATOR::deciding_option(option_id id)
{
    for (GNL_GENERATOR * level = this;; level = level->get_parent()) {
        level->initialize_param_list();
        GNL_PARAMETER * const object = level->m_options ? level->m_options->find(id) : nullptr;
        bool const from_above = object ? object->is_inherit_only() : row_of(id).inherit_only;
        if (!from_above || !level->get_parent())
            return object;
    }
}

bool GNL_GENERATOR::option_is_used(option_id id)
{
    for (GNL_GENERATOR * level = this; level; level = level->get_parent()) {
        level->initialize_param_list();
        auto const * options = level->m_options.get();
        if (options && options->given(id))
            return true;
        GNL_PARAMETER const * const object = options ? options->find(id) : nullptr;
        if (object ? object->is_inherit_never() : !row_of(id).inherit_only)
            return false;
    }
    return false;
}

std::string GNL_GENERATOR::option_value(option_id id)
{
    GNL_PARAMETER * const object = deciding_option(id);
    return object ? object_value(*object) : std::string(row_of(id).default_value());
}

bool GNL_GENERATOR::option_equals(option_id id, std::string_view text)
{
    if (GNL_PARAMETER * const object = deciding_option(id))
        return gnl_detail::equal_folded(object_value(*object), text);
    return gnl_detail::equal_folded(row_of(id).default_value(), text);
}

bool GNL_GENERATOR::generate_single_output_file()
{
    return option_equals(option_id::single_output_file, "ON");
}

bool GNL_GENERATOR::has_disabled_vhdl_concat_wires()
{
    // The sense is the one that users of the option rely on: "OFF", the default, disables the wires.
    return option_equals(option_id::no_vhdl_subdes_concat_wires, "OFF");
}

bool GNL_GENERATOR::allow_removal_of_optional_wires()
{
    return option_equals(option_id::remove_optional_wires, "ON");
}

bool GNL_GENERATOR::generate_structural_netlist()
{
    return is_verilog() && option_equals(option_id::structural_netlist, "ON");
}

bool GNL_GENERATOR::forced_file_generation()
{
    return option_equals(option_id::force_hdl_generation, "ON") || option_is_used(option_id::file);
}
