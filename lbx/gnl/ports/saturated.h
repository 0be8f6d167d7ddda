#pragma once

#include <limits>

namespace gnl_detail {

/// The nearest int. Bits that a caller made up, far outside any port, are reported where they appear and must not
/// overflow in what is computed from them afterwards.
constexpr int saturated(long long value)
{
    constexpr long long most = std::numeric_limits<int>::max();
    constexpr long long least = std::numeric_limits<int>::min();
    return static_cast<int>(value > most ? most : value < least ? least : value);
}

} // namespace gnl_detail
