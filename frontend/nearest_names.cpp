#include "nearest_names.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace lbxgen {

namespace {

char folded(char letter)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
}

/// Levenshtein's distance (1965) without regard to case, in the two-row form.
std::size_t edit_distance(std::string const & a, std::string const & b)
{
    std::vector<std::size_t> previous(b.size() + 1);
    std::vector<std::size_t> current(b.size() + 1);
    std::iota(previous.begin(), previous.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        current[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            std::size_t const replaced = previous[j] + (folded(a[i]) != folded(b[j]));
            current[j + 1] = std::min({previous[j + 1] + 1, current[j] + 1, replaced});
        }
        std::swap(previous, current);
    }
    return previous[b.size()];
}

} // namespace

std::vector<std::string> nearest_names(std::string const & wrong, std::vector<std::string> const & names)
{
    std::vector<std::pair<std::size_t, std::string>> near;
    for (auto const & name : names) {
        auto const distance = edit_distance(wrong, name);
        if (distance <= std::max<std::size_t>(1, std::max(wrong.size(), name.size()) / 2))
            near.emplace_back(distance, name);
    }
    std::sort(near.begin(), near.end());
    if (near.size() > 3)
        near.resize(3);
    std::vector<std::string> result;
    for (auto const & candidate : near)
        result.push_back(candidate.second);
    return result;
}

std::string did_you_mean(std::string const & wrong, std::vector<std::string> const & names)
{
    auto const near = nearest_names(wrong, names);
    if (near.empty())
        return {};
    std::string text = " (did you mean ";
    for (std::size_t i = 0; i < near.size(); ++i)
        text += (i == 0 ? "" : i + 1 == near.size() ? " or " : ", ") + near[i];
    return text + "?)";
}

} // namespace lbxgen
