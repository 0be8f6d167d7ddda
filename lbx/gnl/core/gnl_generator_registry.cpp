#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/core_messages.h"
#include "lbx/gnl/core/element_registry.h"

using gnl_detail::core_message;
using gnl_detail::equal_folded;
using gnl_detail::report;

// ---- Registry

void GNL_GENERATOR::insert(GNL_ELEMENT * element, std::string const & key)
{
    if (!element)
        return;
    if (element == this)
        report<core_message::parent_is_itself>(*this, get_hierarchical_name());
    else if (m_state.in_rtl_body && key.empty() && element->is_parameter())
        report<core_message::parameter_in_body>(*this, element->get_hierarchical_name(), get_hierarchical_name());
    else if (key.empty())
        m_registry->add_pending(*element);
    else
        m_registry->file_under(*element, key);
}

void GNL_GENERATOR::remove(GNL_ELEMENT * element, std::string const &, bool destroying)
{
    if (!element)
        return;
    if (element == this) {
        report<core_message::parent_is_itself>(*this, get_hierarchical_name());
        return;
    }
    if (m_registry->empty())
        return;
    // First, so that the element is gone even if the report ends the body.
    std::string const name = destroying && m_state.in_rtl_body ? element->get_hierarchical_name() : std::string();
    m_registry->forget(*element);
    if (destroying && m_state.in_rtl_body)
        report<core_message::destroyed_in_body>(*this, name, get_hierarchical_name());
}

void GNL_GENERATOR::transfer_from_list_to_map()
{
    m_registry->file_pending();
}

GNL_ELEMENT * GNL_GENERATOR::find_port_object(std::string const & key)
{
    return m_registry->find(key);
}

GNL_PORT * GNL_GENERATOR::get_port_object(std::string const & name)
{
    return m_registry->find_port(name);
}

GNL_PARAMETER * GNL_GENERATOR::get_parameter_object(std::string const & name)
{
    return m_registry->find_parameter(name);
}

GNL_PARAMETER_ARRAY * GNL_GENERATOR::get_parameter_array_object(std::string const & name)
{
    return m_registry->find_parameter_array(name);
}

void GNL_GENERATOR::get_port_objects(std::map<std::string, GNL_PORT *, LESS_C_STRING> & ports)
{
    for (GNL_PORT * port : m_registry->all_ports())
        ports[port->get_name()] = port;
}

void GNL_GENERATOR::get_subdesign_generator_objects(std::map<std::string, GNL_GENERATOR *, LESS_C_STRING> & subdesigns)
{
    for (GNL_GENERATOR * subdesign : m_registry->subdesigns())
        subdesigns[subdesign->get_instance_name()] = subdesign;
}

bool GNL_GENERATOR::is_child_of_subdesign(GNL_PORT * port)
{
    GNL_GENERATOR const * const parent = port ? port->get_parent() : nullptr;
    if (!parent)
        return false;
    if (parent == this && equal_folded(port->get_parent_instance_name(), m_state.instance_name))
        return true;
    return m_registry->find_generator(parent->get_name(), parent->get_instance_name(), -1) != nullptr;
}

void GNL_GENERATOR::add_to_gnl_delete_list(GNL_ELEMENT * element)
{
    if (element && element != this)
        m_delete_list.emplace_back(element);
}

// ---- Guarded accessors

namespace {

/// Reports that an object is missing, and hands out one that the generator owns in its place.
template <core_message MISSING, class OBJECT>
OBJECT & substitute(GNL_GENERATOR & generator, std::unique_ptr<OBJECT> made)
{
    OBJECT & object = *made;
    generator.add_to_gnl_delete_list(made.release());
    report<MISSING>(generator, object.get_name(), generator.get_hierarchical_name());
    return object;
}

std::string text_of_name(char const * name)
{
    return name ? name : "";
}

} // namespace

GNL_PORT & GNL_GENERATOR::port(char const * name)
{
    std::string const wanted = text_of_name(name);
    if (GNL_PORT * const found = m_registry->find_port(wanted))
        return *found;
    return substitute<core_message::no_port>(*this, std::make_unique<GNL_PORT_INPUT>(nullptr, wanted));
}

GNL_PARAMETER_INTEGER & GNL_GENERATOR::parameter_integer(char const * name)
{
    std::string const wanted = text_of_name(name);
    if (auto * const found = m_registry->find_parameter(wanted); found && found->is_integer_parameter())
        return static_cast<GNL_PARAMETER_INTEGER &>(*found);
    return substitute<core_message::no_integer_parameter>(*this,
                                                          std::make_unique<GNL_PARAMETER_INTEGER>(nullptr, wanted, -1));
}

GNL_PARAMETER_STRING & GNL_GENERATOR::parameter_string(char const * name)
{
    std::string const wanted = text_of_name(name);
    if (auto * const found = m_registry->find_parameter(wanted); found && found->is_string_parameter())
        return static_cast<GNL_PARAMETER_STRING &>(*found);
    return substitute<core_message::no_string_parameter>(
        *this, std::make_unique<GNL_PARAMETER_STRING>(nullptr, wanted, "", -1));
}

GNL_PARAMETER_VECTOR & GNL_GENERATOR::parameter_vector(char const * name)
{
    std::string const wanted = text_of_name(name);
    if (auto * const found = m_registry->find_parameter(wanted); found && found->is_vector_parameter())
        return static_cast<GNL_PARAMETER_VECTOR &>(*found);
    return substitute<core_message::no_vector_parameter>(*this,
                                                         std::make_unique<GNL_PARAMETER_VECTOR>(nullptr, wanted));
}

// ---- Names and levels

GNL_GENERATOR * GNL_GENERATOR::get_top_level_parent()
{
    GNL_GENERATOR * top = this;
    while (top->get_parent())
        top = top->get_parent();
    return top;
}

GNL_GENERATOR const * GNL_GENERATOR::get_top_level_parent() const
{
    GNL_GENERATOR const * top = this;
    while (top->get_parent())
        top = top->get_parent();
    return top;
}

GNL_GENERATOR * GNL_GENERATOR::current_connection_level()
{
    GNL_GENERATOR * level = this;
    while (level && !level->m_state.in_rtl_body)
        level = level->get_parent();
    return level;
}

bool GNL_GENERATOR::not_equal_widths(int a, int b) const
{
    auto const is_bit = [](int width) { return width == 0 || width == 1; };
    return a != b && !(is_bit(a) && is_bit(b));
}

bool GNL_GENERATOR::is_auto_generated_wire_name(std::string const & name) const
{
    if (name.size() < 3 || name.front() != 'w' || name.back() != 'w')
        return false;
    char const before_last = name[name.size() - 2];
    return before_last >= '0' && before_last <= '9';
}

bool GNL_GENERATOR::is_lpm_function() const
{
    return equal_folded(m_state.vhdl_library, "lpm.lpm_components");
}

bool GNL_GENERATOR::uses_custom_output() const
{
    switch (get_gen_language()) {
    case GNL_QHDL:
        return m_state.use_custom_qhdl_output;
    case GNL_VERILOG:
        return m_state.use_custom_verilog_output;
    case GNL_VHDL:
        return m_state.use_custom_vhdl_output;
    default:
        return false;
    }
}

bool GNL_GENERATOR::use_lumenbox_2_tag()
{
    return m_state.append_mode && is_full_blackbox_mode();
}
