#include "parameter_values.h"

#include "nearest_names.h"
#include "plugin_catalogue.h"

#include "lbx_util.h"

#include <charconv>
#include <map>

namespace lbxgen {

namespace {

bool is_int(std::string const & text)
{
    int value = 0;
    auto const * first = text.c_str() + (text.starts_with('+') ? 1 : 0);
    auto const * last = text.c_str() + text.size();
    auto const [end, error] = std::from_chars(first, last, value);
    return error == std::errc() && end == last;
}

void assign_value(GNL_GENERATOR & generator, parameter_value const & given)
{
    auto * parameter = generator.get_parameter_object(given.name);
    if (parameter && parameter->is_integer_parameter() && !is_int(given.value))
        throw usage_error("parameter " + given.name + " takes an integer, not '" + given.value + "'");
    if (!generator.assign_value_to_parameter(given.name, given.value))
        throw usage_error(generator.get_name() + " has no parameter " + given.name
                          + did_you_mean(given.name, parameter_names(generator)));
}

} // namespace

parameter_value parse_parameter_value(std::string const & text)
{
    auto const equals = text.find('=');
    if (equals == std::string::npos || equals == 0)
        throw usage_error("malformed parameter '" + text + "': it must have the form NAME=value");
    if (equals + 1 == text.size())
        throw usage_error("malformed parameter '" + text + "': it has no value");
    return {text.substr(0, equals), text.substr(equals + 1)};
}

std::vector<std::string> parameter_names(GNL_GENERATOR & generator)
{
    std::vector<std::string> names;
    for (char ** entry = generator.get_parameter_list(); **entry != '\0'; ++entry)
        names.emplace_back(*entry);
    return names;
}

void use_all_inputs(GNL_GENERATOR & generator)
{
    std::map<std::string, GNL_PORT *, LESS_C_STRING> ports;
    generator.get_port_objects(ports);
    for (auto const & entry : ports)
        if (entry.second->is_input())
            generator.set_port_to_used(entry.first.c_str());
}

void assign_values(GNL_GENERATOR & generator, std::vector<parameter_value> const & values)
{
    for (auto const & given : values)
        assign_value(generator, given);
}

} // namespace lbxgen
