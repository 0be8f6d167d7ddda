#pragma once

#include <string>

/// Folds a to z to upper case, byte by byte and without a locale.
std::string to_upper_case(std::string text);
