#pragma once

// Builds a described design with the library's classes, as an author would write it.

#include "random_design.h"

#include "gnl.h"

#include <memory>
#include <string>

namespace random_designs {

/// The top generator; `options` is put in front of its parameters. `of` must live as long.
std::unique_ptr<GNL_GENERATOR> make_generator(description const & of, std::string const & options);

} // namespace random_designs
