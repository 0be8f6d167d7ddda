#pragma once

#include <charconv>
#include <limits>
#include <string_view>
#include <system_error>

namespace gnl_detail {

/// A to Z as lower case, any other byte as it is.
constexpr char folded(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

/// Case-insensitive equality, the one that `LESS_C_STRING` orders by.
constexpr bool equal_names(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (folded(a[i]) != folded(b[i]))
            return false;
    return true;
}

/// The decimal integer at the front of `text`, behind white space and a sign; 0 when there is none. A value beyond 32
/// bits gives the nearest that fits.
inline int leading_integer(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || (text.front() >= '\t' && text.front() <= '\r')))
        text.remove_prefix(1);
    bool const negative = !text.empty() && text.front() == '-';
    if (!text.empty() && text.front() == '+' && (text.size() < 2 || text[1] != '-'))
        text.remove_prefix(1);
    int value = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc::result_out_of_range)
        value = negative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return value;
}

} // namespace gnl_detail
