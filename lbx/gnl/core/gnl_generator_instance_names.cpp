// Names of instances, wires and loops. Their numbers are counted on the top generator, so that names stay unique across
// the subdesigns.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/core_messages.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/parameter_text_hold.h"

using gnl_detail::core_message;
using gnl_detail::report;

namespace {

constexpr std::size_t longest_wire_name = 50;

bool ends_in_digit(std::string const & text)
{
    return !text.empty() && text.back() >= '0' && text.back() <= '9';
}

} // namespace

int GNL_GENERATOR::generate_instance_id()
{
    return ++m_state.instance_counter;
}

std::string GNL_GENERATOR::generate_instance_name(std::string const & base)
{
    int number = generate_instance_id();
    if (get_parent())
        number = get_top_level_parent()->generate_instance_id();
    if (base.empty())
        return m_state.instance_basename + convert_int_to_string(number);
    return base + convert_int_to_string(number) + "a"; // so that the name does not end in a digit
}

int GNL_GENERATOR::get_wire_counter()
{
    return ++m_state.wire_counter;
}

std::string GNL_GENERATOR::generate_wire_name(std::string const & prefix, std::string const & suffix)
{
    return numbered_wire_name(prefix, suffix, static_cast<std::uint32_t>(get_top_level_parent()->get_wire_counter()));
}

std::string GNL_GENERATOR::numbered_wire_name(std::string const & prefix, std::string const & suffix,
                                              std::uint32_t number)
{
    std::string const digits = convert_int_to_string(static_cast<int>(number));
    std::string name = "w";
    if (!prefix.empty())
        name.append("_").append(prefix);
    if (!prefix.empty() && !suffix.empty())
        name.append("_").append(suffix);
    name.append(digits).append("w");
    return name.size() > longest_wire_name ? "w" + digits + "w" : name;
}

std::string GNL_GENERATOR::generate_loop_name()
{
    return "loop" + convert_int_to_string(get_top_level_parent()->m_state.loop_counter++);
}

bool GNL_GENERATOR::check_instance_name_collision(std::string const & text)
{
    GNL_GENERATOR const * const holder = m_registry->find_instance(text);
    if (!holder)
        return true;
    parameter_text_hold const hold(*this);
    report<core_message::instance_name_taken>(*this, text, holder->get_hierarchical_name());
    return false;
}

bool GNL_GENERATOR::check_wire_name_collision(std::string const & text)
{
    GNL_PORT const * const holder = m_registry->find_port_of_any_kind(text);
    if (!holder)
        return true;
    parameter_text_hold const hold(*this);
    report<core_message::wire_name_taken>(*this, text, holder->get_hierarchical_name());
    return false;
}

void GNL_GENERATOR::set_instance_name(std::string const & text)
{
    bool const reads_as_bit = is_qhdl() && m_state.array_width > 0 && ends_in_digit(text);
    std::string const name = reads_as_bit ? text + "a" : text;
    if (m_state.master_array)
        for (int i = 0; i < m_state.array_width; ++i)
            if (GNL_GENERATOR * const slice = get_array_slice(i); slice != this)
                slice->set_instance_name(name);
    m_state.instance_name = name;
    re_register();
}

void GNL_GENERATOR::set_subdesign_instance_name(std::string const & text, bool no_suffix)
{
    set_instance_name(m_state.array_width < 1 || no_suffix ? text : text + "a");
}

void GNL_GENERATOR::set_auto_generated_instance_name()
{
    set_instance_name(generate_instance_name("") + (m_state.array_width >= 1 ? "a" : ""));
}

void GNL_GENERATOR::set_subdesign_auto_generated_instance_names()
{
    for (GNL_GENERATOR * subdesign : m_registry->unnamed_generators())
        if (subdesign->get_slice_index() < 0)
            subdesign->set_auto_generated_instance_name();
}

std::string GNL_GENERATOR::get_subdesign_instance_name(std::string const & name)
{
    auto const & known = get_top_level_parent()->m_state.subdesign_info;
    auto const found = known.find(name);
    return found == known.end() ? std::string() : static_cast<GNL_GENERATOR *>(found->second)->get_instance_name();
}
