#pragma once

// What a described design must do, computed without the library.

#include "random_design.h"

#include <cstdint>
#include <vector>

namespace random_designs {

/// One bit of a signal in 64 tried vectors at once.
using lanes = std::uint64_t;
/// A signal, least significant bit first.
using bits = std::vector<lanes>;

/// The outputs of the top for its inputs, in the order of declaration.
std::vector<bits> evaluate(description const & of, std::vector<bits> const & inputs);

} // namespace random_designs
