// Inheritance of parameter values.
//
// Two roads run in opposite directions. Names climb: each generator tells its parent which parameters its subdesigns
// can inherit, so that the top can be given their values from outside; a stand-in at each level takes such a value.
// Values are looked up from below: the nearest parameter of the name decides, then what was given for the name.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/leading_integer.h"
#include "lbx/gnl/core/option_set.h"

using gnl_detail::option_id;
using gnl_detail::option_set;

namespace {

/// What takes a value that is given for a parameter of a subdesign: an object of its kind without a value.
std::unique_ptr<GNL_PARAMETER> stand_in(GNL_PARAMETER const & parameter)
{
    if (parameter.is_integer_parameter())
        return std::make_unique<GNL_PARAMETER_INTEGER>(nullptr, parameter.get_name(), -1);
    auto const & list = static_cast<GNL_PARAMETER_STRING const &>(parameter).get_value_list();
    return std::make_unique<GNL_PARAMETER_STRING>(nullptr, parameter.get_name(), list, -1);
}

std::unique_ptr<GNL_PARAMETER_ARRAY> stand_in(GNL_PARAMETER_ARRAY const & array)
{
    if (array.is_integer_parameter_array())
        return std::make_unique<GNL_PARAMETER_INTEGER_ARRAY>(nullptr, array.get_name(), -1);
    auto const & list = static_cast<GNL_PARAMETER_STRING_ARRAY const &>(array).get_value_list();
    return std::make_unique<GNL_PARAMETER_STRING_ARRAY>(nullptr, array.get_name(), list, -1);
}

/// The entry of exactly this name in one of the two lists, null without one.
template <class LIST> auto * entry_of(LIST const & list, std::string const & name)
{
    auto const found = list.find(name);
    return found == list.end() ? nullptr : found->second.get();
}

/// How the two kinds that inherit are told apart and read.
struct integer_kind
{
    using value_type = int;
    static int none() { return -1; }
    static bool is_none(int value) { return value == -1; }
    static bool holds(GNL_PARAMETER const & parameter) { return parameter.is_integer_parameter(); }
    static int read(GNL_PARAMETER & parameter)
    {
        return static_cast<GNL_PARAMETER_INTEGER &>(parameter).get_value(true);
    }
};

struct string_kind
{
    using value_type = std::string;
    static std::string none() { return "UNUSED"; }
    static bool is_none(std::string const & value) { return gnl_detail::equal_folded(value, "UNUSED"); }
    static bool holds(GNL_PARAMETER const & parameter) { return parameter.is_string_parameter(); }
    static std::string read(GNL_PARAMETER & parameter)
    {
        return static_cast<GNL_PARAMETER_STRING &>(parameter).get_value(false);
    }
};

} // namespace

void GNL_GENERATOR::gather_inheritable()
{
    if (m_state.inheritable_gathered)
        return;
    m_state.inheritable_gathered = true;
    for (GNL_GENERATOR * subdesign : registry().subdesigns())
        subdesign->gather_inheritable();
    get_inheritable();
}

void GNL_GENERATOR::tell_inheritable(GNL_GENERATOR & target)
{
    merge_collected_inheritance_list(&target);
    collect_inheritable_parameters(&target);
}

void GNL_GENERATOR::collect_inheritable_parameters(GNL_GENERATOR * target)
{
    for (GNL_PARAMETER * parameter : registry().declared_parameters())
        if (!parameter->is_inherit_never() || target->exports_all_submodule_parameters())
            target->add_parameter_to_inheritance_list(parameter);
    for (GNL_PARAMETER_ARRAY & array : registry().parameter_arrays())
        if (!array.is_inherit_never())
            target->add_parameter_to_inheritance_array_list(&array);
}

void GNL_GENERATOR::merge_collected_inheritance_list(GNL_GENERATOR * target)
{
    for (auto const & [name, parameter] : m_inherited_parameters)
        target->add_parameter_to_inheritance_list(parameter.get());
    for (auto const & [name, array] : m_inherited_parameter_arrays)
        target->add_parameter_to_inheritance_array_list(array.get());
}

void GNL_GENERATOR::add_parameter_to_inheritance_list(GNL_PARAMETER * parameter)
{
    if (!parameter || parameter->is_vector_parameter())
        return; // vectors do not inherit
    if (GNL_PARAMETER * const own = get_parameter_object(parameter->get_name())) {
        if (own->is_inherit_never())
            own->set_as_inherit_allowed();
        return;
    }
    auto & entry = m_inherited_parameters[parameter->get_name()];
    if (!entry)
        entry = stand_in(*parameter);
}

void GNL_GENERATOR::add_parameter_to_inheritance_array_list(GNL_PARAMETER_ARRAY * array)
{
    if (!array)
        return;
    if (GNL_PARAMETER_ARRAY * const own = get_parameter_array_object(array->get_name())) {
        if (own->is_inherit_never())
            own->set_as_inherit_allowed();
        return;
    }
    auto & entry = m_inherited_parameter_arrays[array->get_name()];
    if (!entry)
        entry = stand_in(*array);
}

GNL_PARAMETER * GNL_GENERATOR::get_inherited_parameter_object(std::string const & name)
{
    return entry_of(m_inherited_parameters, name);
}

GNL_PARAMETER_ARRAY * GNL_GENERATOR::get_inherited_parameter_array_object(std::string const & name)
{
    return entry_of(m_inherited_parameter_arrays, name);
}

GNL_PARAMETER * GNL_GENERATOR::value_given_for(std::string const & name)
{
    // The text is not read for this: a subdesign may ask while the generators above are still being constructed.
    GNL_PARAMETER * const given = get_inherited_parameter_object(name);
    return given && (!get_parent() || given->value_changed()) ? given : nullptr;
}

template <class KIND> typename KIND::value_type GNL_GENERATOR::inherited_value(std::string const & name)
{
    for (GNL_GENERATOR * level = this; level; level = level->get_parent()) {
        GNL_PARAMETER * const own = level->get_parameter_object(name);
        bool const found = own && KIND::holds(*own);
        if (found) {
            auto value = KIND::read(*own);
            if (!KIND::is_none(value))
                return value;
        }
        if (GNL_PARAMETER * const given = level->value_given_for(name); given && KIND::holds(*given))
            return KIND::read(*given);
        if (found)
            break; // a parameter without a value ends the walk: it hides what stands further up
    }
    return KIND::none();
}

int GNL_GENERATOR::get_inherited_integer_parameter_value(std::string const & name)
{
    option_id id{};
    if (option_set::declares(name, id))
        return gnl_detail::row_of(id).integer ? gnl_detail::leading_integer(option_value(id)) : -1;
    return inherited_value<integer_kind>(name);
}

std::string GNL_GENERATOR::get_inherited_string_parameter_value(std::string const & name)
{
    option_id id{};
    if (option_set::declares(name, id))
        return gnl_detail::row_of(id).integer ? string_kind::none() : option_value(id);
    return inherited_value<string_kind>(name);
}

bool GNL_GENERATOR::check_parameter_is_used_in_parent(std::string const & name)
{
    option_id id{};
    bool const is_option = option_set::declares(name, id);
    GNL_GENERATOR * level = this;
    while (level->get_parent()) {
        level = level->get_parent();
        if (is_option)
            return level->option_is_used(id);
        if (GNL_PARAMETER * const own = level->get_parameter_object(name))
            return own->is_used();
        if (GNL_PARAMETER * const given = level->value_given_for(name))
            return given->is_used();
    }
    GNL_PARAMETER * const given = level->value_given_for(name);
    return given && given->is_used();
}

std::string GNL_GENERATOR::dump_inherited_parameter_header_info(std::string const & name)
{
    GNL_GENERATOR * const top = get_top_level_parent();
    GNL_PARAMETER * parameter = top->get_parameter_object(name);
    if (!parameter || !parameter->is_used()) {
        parameter = top->value_given_for(name);
        if (!parameter || !parameter->is_used_for_hash() || !parameter->is_used())
            return {};
    }
    if (parameter->is_string_parameter())
        return " " + name + "=\"" + static_cast<GNL_PARAMETER_STRING *>(parameter)->get_internal_value(true) + "\"";
    if (parameter->is_integer_parameter())
        return " " + name + "="
               + convert_int_to_string(static_cast<GNL_PARAMETER_INTEGER *>(parameter)->get_internal_value(true));
    return {};
}

void GNL_GENERATOR::collect_parameter_array_values(std::string const & name, std::map<int, std::string> & values)
{
    for (GNL_GENERATOR * level = this; level; level = level->get_parent()) {
        if (GNL_PARAMETER_ARRAY * const own = level->get_parameter_array_object(name))
            own->collect_values(values);
        if (GNL_PARAMETER_ARRAY * const given = level->get_inherited_parameter_array_object(name))
            given->collect_values(values);
    }
}
