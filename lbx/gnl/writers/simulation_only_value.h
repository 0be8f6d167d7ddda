#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"

#include <string>

namespace gnl_detail {

/// The value of a parameter that only simulations know.
struct simulation_only_value
{
    std::string text;
    bool is_number;
};

/// A parameter object of the name knows the value better than the list, which has `listed`.
inline simulation_only_value simulation_only_value_of(GNL_GENERATOR & cell, std::string const & name,
                                                      std::string const & listed)
{
    auto * parameter = cell.registry().find_parameter(name);
    if (parameter != nullptr && parameter->is_integer_parameter())
        return {GNL_ELEMENT::convert_int_to_string(static_cast<GNL_PARAMETER_INTEGER *>(parameter)->get_value(true)),
                true};
    if (parameter != nullptr && parameter->is_string_parameter())
        return {static_cast<GNL_PARAMETER_STRING *>(parameter)->get_value(true), false};
    return {listed, false};
}

} // namespace gnl_detail
