#pragma once

#include <charconv>
#include <limits>
#include <string_view>
#include <system_error>

namespace gnl_detail {

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
