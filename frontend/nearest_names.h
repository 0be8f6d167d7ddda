#pragma once

#include <string>
#include <vector>

namespace lbxgen {

/// The names nearest to a mistyped one, nearest first, at most three; none that differs in more than half its letters.
std::vector<std::string> nearest_names(std::string const & wrong, std::vector<std::string> const & names);

/// " (did you mean a, b or c?)", or "" when nothing is near.
std::string did_you_mean(std::string const & wrong, std::vector<std::string> const & names);

} // namespace lbxgen
