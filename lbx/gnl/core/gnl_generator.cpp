#include "gnl_generator.h"

#include "giga_rules_validator.h"

#include "lbx/gnl/core/core_messages.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/front_end_lists.h"
#include "lbx/gnl/core/option_set.h"
#include "lbx/gnl/core/parameter_text_hold.h"
#include "lbx/gnl/core/subdesign_names.h"

using gnl_detail::core_message;
using gnl_detail::report;

std::string get_lbx_gnl_version()
{
    return LBX_VERSION;
}

GNL_GENERATOR::GNL_GENERATOR(GNL_GENERATOR * parent, std::string const & name, char const * parameter_list_text,
                             int array_width)
    : GNL_ELEMENT(parent, name)
    , m_registry(std::make_unique<gnl_detail::element_registry>(*this))
{
    m_state.parameter_list_text = parameter_list_text ? parameter_list_text : "";
    m_state.array_width = array_width;
    if (parent != this)
        return;
    parameter_text_hold const hold(*this);
    report<core_message::parent_is_itself>(*this, GNL_GENERATOR::get_hierarchical_name());
}

GNL_GENERATOR::GNL_GENERATOR(GNL_GENERATOR const & other)
    : GNL_ELEMENT(other)
    , m_state(other.m_state)
    , m_registry(std::make_unique<gnl_detail::element_registry>(*this))
{
}

GNL_GENERATOR::~GNL_GENERATOR()
{
    // What still stands in the registry is not destroyed by an author inside a body, even if an exception ended it.
    m_state.in_rtl_body = false;
    m_device_info.reset();
    m_msg_handler.reset();
    m_delete_list.clear();
    m_registry->delete_all();
    if (!get_parent())
        return;
    auto & named = get_top_level_parent()->m_state.subdesign_info;
    if (auto const known = named.find(m_state.entity_name); known != named.end() && known->second == this)
        named.erase(known);
}

// ---- Names

std::string GNL_GENERATOR::generate_key() const
{
    return generate_key_base(get_name(), m_state.instance_name, m_state.slice_index);
}

std::string GNL_GENERATOR::generate_key_base(std::string const & name, std::string const & instance_name,
                                             int slice_index)
{
    std::string key = "GNRTR;" + name + ";" + instance_name;
    if (slice_index >= 0)
        key += ";" + convert_int_to_string(slice_index);
    return key;
}

std::string GNL_GENERATOR::get_hierarchical_name() const
{
    if (!get_parent())
        return get_name();
    GNL_GENERATOR const * const array = m_state.slice_index >= 0 ? m_state.array_parent : nullptr;
    GNL_GENERATOR const * const above = array ? array->get_parent() : get_parent();
    std::string name = above ? above->get_hierarchical_name() + "|" : std::string();
    name += get_name() + " inst ";
    if (array)
        return name + array->get_instance_name() + "[" + convert_int_to_string(m_state.slice_index) + "]";
    return name + m_state.instance_name + (m_state.master_array ? " array" : "");
}

std::string GNL_GENERATOR::get_hierarchical_instance_name(GNL_GENERATOR * stop_at, bool with_entity) const
{
    if (!stop_at || !get_parent() || get_parent() == stop_at)
        return m_state.instance_name;
    std::string name = get_parent()->get_hierarchical_instance_name(stop_at, with_entity) + "|";
    if (with_entity && !m_state.primitive)
        name += get_entity_name() + ":";
    return name + m_state.instance_name;
}

// ---- Hooks

void GNL_GENERATOR::create_self_copy(GNL_GENERATOR *, int, std::string const &) {}

// ---- Plain settings

void GNL_GENERATOR::disable_custom_output()
{
    m_state.use_custom_verilog_output = false;
    m_state.use_custom_qhdl_output = false;
    m_state.custom_subdesign_insert_mode = false;
}

void GNL_GENERATOR::set_slice_index(int index)
{
    if (m_state.slice_index == index)
        return;
    m_state.slice_index = index;
    re_register();
}

void GNL_GENERATOR::set_as_heterogeneous_array()
{
    if (m_state.master_array && m_state.array_width > 0)
        m_state.heterogeneous_array = m_state.vhdl_unroll_loop = true;
}

void GNL_GENERATOR::set_as_heterogeneous_element()
{
    if (m_state.slice_index >= 0)
        m_state.heterogeneous_element = true;
}

void GNL_GENERATOR::set_vhdl_library(std::string const & library, bool no_component)
{
    m_state.vhdl_library = library;
    m_state.need_vhdl_component = !no_component;
}

GNL_DEVICE_INFO * GNL_GENERATOR::get_device_info() const
{
    if (!m_device_info)
        m_device_info = std::make_unique<GNL_DEVICE_INFO>(const_cast<GNL_GENERATOR *>(this));
    return m_device_info.get();
}

void GNL_GENERATOR::register_subdesign_info(std::string const & entity, GNL_GENERATOR * subdesign)
{
    get_top_level_parent()->m_state.subdesign_info[entity] = subdesign;
}

GNL_PARAMETER_EXPR & GNL_GENERATOR::keep_expression(std::unique_ptr<GNL_PARAMETER_EXPR> expression)
{
    m_expressions.push_back(std::move(expression));
    return *m_expressions.back();
}
