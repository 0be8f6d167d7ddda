#pragma once

#include <functional>
#include <optional>
#include <string_view>

namespace gnl_detail {

/// The value of a width expression: integers and names joined by + - * / and parentheses, in signed 32-bit arithmetic.
/// `value_of` gives the value of a name; names are asked as they are met, also before an error. Nothing for a syntax
/// error, a division by zero or an overflow. Characters outside of the language are passed over.
///
/// Evaluated by operator precedence with two stacks (Dijkstra, 1961), so that no nesting is too deep.
std::optional<int> width_expression_value(std::string_view text, std::function<int(std::string_view)> const & value_of);

} // namespace gnl_detail
