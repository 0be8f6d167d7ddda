#pragma once

#include "gnl_port.h"

#include <string>

namespace gnl_detail {

/// The key of a range or an expression, which holds those of its operands: it is put together without recursion,
/// however deep the operands lie.
std::string operator_key(GNL_PORT const & port);

} // namespace gnl_detail
