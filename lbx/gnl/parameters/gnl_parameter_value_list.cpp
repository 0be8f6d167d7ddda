// The value lists of string parameters: tokens between "|", each a value or a value with aliases, "ON(YES,TRUE)".

#include "gnl_parameter.h"

#include "lbx/gnl/core/case_folding.h"

#include <string_view>

using gnl_detail::equal_folded;

namespace {

/// Cuts the first token off a list. A token loop ends at the first empty one, also in the middle of a list.
std::string_view cut_token(std::string_view & list)
{
    std::string_view const token = list.substr(0, list.find('|'));
    list.remove_prefix(token.size() < list.size() ? token.size() + 1 : list.size());
    return token;
}

/// Whether the token has an alias part: a "(" that is not its first character.
bool has_aliases(std::string_view token, std::size_t & opening)
{
    opening = token.find('(');
    return opening != std::string_view::npos && opening != 0;
}

bool names_value(std::string_view token, std::string_view value)
{
    std::size_t opening = 0;
    if (!has_aliases(token, opening))
        return equal_folded(token, value);
    if (equal_folded(token.substr(0, opening), value))
        return true;
    std::string_view aliases = token.substr(opening + 1);
    while (!aliases.empty()) {
        std::size_t const comma = aliases.find(',');
        if (comma == std::string_view::npos)
            return equal_folded(aliases.substr(0, aliases.size() - 1), value);
        if (equal_folded(aliases.substr(0, comma), value))
            return true;
        aliases.remove_prefix(comma + 1);
    }
    return false;
}

} // namespace

std::string GNL_PARAMETER_STRING::get_token(std::string const & list, int index)
{
    std::string_view rest = list;
    for (; index > 0 && !rest.empty(); --index)
        cut_token(rest);
    return std::string(cut_token(rest));
}

std::string GNL_PARAMETER_STRING::strip_alias_values(std::string const & token)
{
    std::size_t opening = 0;
    if (!has_aliases(token, opening) || token.find(')') != token.size() - 1)
        return token;
    return token.substr(0, opening);
}

bool GNL_PARAMETER_STRING::compare_alias_values(std::string const & token, std::string const & value)
{
    return names_value(token, value);
}

int GNL_PARAMETER_STRING::index_in_list(std::string_view value) const
{
    std::string_view rest = m_value_list;
    int index = 0;
    for (auto token = cut_token(rest); !token.empty(); token = cut_token(rest), ++index)
        if (names_value(token, value))
            return index;
    return -1;
}
