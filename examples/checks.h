#pragma once

#include "gnl.h"

#include <string>

/// Reports a parameter value outside of `low` to `high`; follow it by `exit_if_error()` in the body.
inline void check_parameter(GNL_GENERATOR const & generator, std::string const & name, int value, int low, int high)
{
    if (value >= low && value <= high)
        return;
    auto const range = std::to_string(low) + " to " + std::to_string(high);
    generator.generator_error(name + " is " + std::to_string(value), ("It must be from " + range + ".").c_str(),
                              ("Choose a value from " + range + ".").c_str());
}
