// What a front-end asks and tells by name: lists of parameters and ports, ports to use, ports to hold at a constant.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/front_end_lists.h"

using gnl_detail::equal_folded;
using gnl_detail::option_id;

namespace {

using texts = std::vector<std::string>;

constexpr char index_mark[] = "[index]";

std::string with_list(std::string const & name, std::string const & value_list)
{
    return value_list.empty() ? name : name + "=" + value_list;
}

std::string with_list(GNL_PARAMETER const & parameter)
{
    if (!parameter.is_string_parameter())
        return parameter.get_name();
    return with_list(parameter.get_name(), static_cast<GNL_PARAMETER_STRING const &>(parameter).get_value_list());
}

std::string with_list(GNL_PARAMETER_ARRAY const & array)
{
    std::string name = array.get_name() + index_mark;
    if (!array.is_string_parameter_array())
        return name;
    return with_list(name, static_cast<GNL_PARAMETER_STRING_ARRAY const &>(array).get_value_list());
}

} // namespace

GNL_GENERATOR::front_end_lists & GNL_GENERATOR::lists()
{
    if (!m_front_end_lists)
        m_front_end_lists = std::make_unique<front_end_lists>();
    return *m_front_end_lists;
}

char ** GNL_GENERATOR::get_parameter_list()
{
    auto & list = lists().parameters;
    if (list)
        return list->entries();
    initialize_param_list(); // which gathers what the subdesigns inherit
    texts names;
    for (GNL_PARAMETER & parameter : registry().parameters())
        names.push_back(parameter.get_name());
    for (GNL_PARAMETER_ARRAY & array : registry().parameter_arrays())
        names.push_back(array.get_name());
    for (auto const & entry : m_inherited_parameters)
        names.push_back(entry.first);
    for (auto const & entry : m_inherited_parameter_arrays)
        names.push_back(entry.first + index_mark);
    return list.emplace(std::move(names)).entries();
}

char ** GNL_GENERATOR::get_parameter_list_with_values()
{
    auto & list = lists().parameters_with_values;
    if (list)
        return list->entries();
    initialize_param_list();
    texts entries;
    for (GNL_PARAMETER & parameter : registry().parameters())
        entries.push_back(with_list(parameter));
    for (GNL_PARAMETER_ARRAY & array : registry().parameter_arrays())
        entries.push_back(with_list(array));
    for (auto const & entry : m_inherited_parameters)
        entries.push_back(with_list(*entry.second));
    for (auto const & entry : m_inherited_parameter_arrays)
        entries.push_back(with_list(*entry.second));
    return list.emplace(std::move(entries)).entries();
}

char ** GNL_GENERATOR::get_hidden_parameter_list()
{
    auto & list = lists().hidden_parameters;
    if (list)
        return list->entries();
    initialize_param_list();
    texts entries;
    for (GNL_PARAMETER & parameter : registry().parameters())
        if (parameter.is_hidden_parameter())
            entries.push_back(with_list(parameter));
    return list.emplace(std::move(entries)).entries();
}

char ** GNL_GENERATOR::get_port_list()
{
    auto & list = lists().ports;
    if (list)
        return list->entries();
    texts names;
    for (GNL_PORT & port : registry().ports())
        if (port.is_input() || port.is_output() || port.is_bidir())
            names.push_back(port.get_name());
    return list.emplace(std::move(names)).entries();
}

bool GNL_GENERATOR::set_port_to_used(char const * name)
{
    if (!name || !*name)
        return true;
    GNL_PORT * const port = get_port_object(name);
    if (port)
        port->set_used();
    return port != nullptr;
}

bool GNL_GENERATOR::set_port_to_constant_value(char const * text)
{
    if (!text || !*text)
        return true;
    std::string_view const whole = text;
    auto const equals = whole.find('=');
    if (equals == std::string_view::npos)
        return set_port_to_used(text);
    auto const level = whole.substr(equals + 1);
    bool const high = equal_folded(level, "VCC");
    if (!high && !equal_folded(level, "GND"))
        return false;
    if (equals == 0)
        return true;
    GNL_PORT * const port = get_port_object(std::string(whole.substr(0, equals)));
    if (!port)
        return false;
    bool const at_default = port->is_input() && port->get_default_value() == (high ? 1 : 0);
    if (at_default && option_equals(option_id::declare_all_connected_ports, "ON"))
        static_cast<GNL_PORT_INPUT *>(port)->set_constant_used();
    else
        port->set_used();
    return true;
}
