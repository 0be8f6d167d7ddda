#pragma once

#include "gnl_generator.h"

#include <string>
#include <vector>

namespace lbxgen {

/// A "NAME=value" of the command line.
struct parameter_value
{
    std::string name;
    std::string value;
};

/// Takes "NAME=value" apart; throws `usage_error` when it has no name, no "=" or no value.
parameter_value parse_parameter_value(std::string const & text);

/// Gives the generator its values. Throws `usage_error` for a parameter that it does not have, naming the nearest ones,
/// and for an integer that is none.
void assign_values(GNL_GENERATOR & generator, std::vector<parameter_value> const & values);

/// Marks every declared input as used: a design for the outside has all its inputs, also those that have a default.
void use_all_inputs(GNL_GENERATOR & generator);

/// The names of the generator's parameters and parameter arrays.
std::vector<std::string> parameter_names(GNL_GENERATOR & generator);

} // namespace lbxgen
