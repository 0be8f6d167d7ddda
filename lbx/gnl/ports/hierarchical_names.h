#pragma once

#include "gnl_port.h"

#include <string>

namespace gnl_detail {

/// The hierarchical name of a range or a concatenation, which holds those of its operands: it is put together without
/// recursion, however deep the operands lie.
std::string operator_name(GNL_PORT const & port);

} // namespace gnl_detail
