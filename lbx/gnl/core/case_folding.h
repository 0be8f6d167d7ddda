#pragma once

#include <string>
#include <string_view>

namespace gnl_detail {

/// A to Z as lower case, every other byte as it is; names and settings compare so, without a locale.
constexpr char folded(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

inline std::string folded(std::string_view text)
{
    std::string result(text);
    for (char & character : result)
        character = folded(character);
    return result;
}

constexpr bool equal_folded(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (folded(a[i]) != folded(b[i]))
            return false;
    return true;
}

} // namespace gnl_detail
