#pragma once

#include "gnl_port.h"

#include <string>
#include <string_view>

namespace gnl_detail {

/// The key of a range or an expression, which holds those of its operands: it is put together without recursion,
/// however deep the operands lie.
std::string operator_key(GNL_PORT const & port);

/// The word in the key of an expression that stands for its operation, a `GNL_PORT_LOGIC::OPERATION`.
std::string_view operation_key_word(int operation);

} // namespace gnl_detail
