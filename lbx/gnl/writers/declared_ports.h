#pragma once

#include "gnl_generator.h"

#include <vector>

namespace gnl_detail {

/// The declared ports of a design: in the order that its author has chosen, else in that of the registry.
std::vector<GNL_PORT *> declared_ports(GNL_GENERATOR & design);

} // namespace gnl_detail
