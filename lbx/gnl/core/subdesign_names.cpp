#include "lbx/gnl/core/subdesign_names.h"

#include <algorithm>
#include <limits>

namespace gnl_detail {

std::string seed_digits(int seed)
{
    constexpr std::string_view digits = "0123456789abcdefghijklmnopqrstuv";
    std::string text;
    for (; seed > 0; seed >>= 5)
        text += digits[static_cast<std::size_t>(seed & 31)];
    return text;
}

std::optional<int> seed_of_digits(std::string_view digits)
{
    if (digits.size() > 7)
        return std::nullopt;
    long long seed = 0;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        bool const decimal = *digit >= '0' && *digit <= '9';
        if (!decimal && (*digit < 'a' || *digit > 'v'))
            return std::nullopt;
        seed = seed * 32 + (decimal ? *digit - '0' : *digit - 'a' + 10);
    }
    // A leading zero stands in no name.
    if (seed > std::numeric_limits<int>::max() || (!digits.empty() && digits.back() == '0'))
        return std::nullopt;
    return static_cast<int>(seed);
}

int seed_space::first_candidate(int seed, std::string const & settings) const
{
    int candidate = seed;
    if (auto run = m_runs.upper_bound(seed); run != m_runs.begin())
        candidate = std::max(seed, std::prev(run)->second);
    if (auto const known = m_seeds.find(settings); known != m_seeds.end())
        if (auto const own = known->second.lower_bound(seed); own != known->second.end())
            candidate = std::min(candidate, *own);
    return candidate;
}

void seed_space::take(int seed, std::string const & settings)
{
    if (auto const holder = m_settings.find(seed); holder != m_settings.end() && *holder->second == settings)
        return;
    release(seed);
    if (!settings.empty()) {
        auto const known = m_seeds.try_emplace(settings).first;
        known->second.insert(seed);
        m_settings[seed] = &known->first;
    }
    int first = seed;
    int end = seed + 1;
    auto next = m_runs.lower_bound(seed);
    if (next != m_runs.begin() && std::prev(next)->second == seed) {
        first = std::prev(next)->first;
        m_runs.erase(std::prev(next));
    }
    if (next != m_runs.end() && next->first == end) {
        end = next->second;
        m_runs.erase(next);
    }
    m_runs[first] = end;
}

void seed_space::release(int seed)
{
    auto run = m_runs.upper_bound(seed);
    if (run == m_runs.begin() || std::prev(run)->second <= seed)
        return;
    --run;
    auto const [first, end] = *run;
    m_runs.erase(run);
    if (first < seed)
        m_runs[first] = seed;
    if (seed + 1 < end)
        m_runs[seed + 1] = end;
    if (auto const holder = m_settings.find(seed); holder != m_settings.end()) {
        auto const known = m_seeds.find(*holder->second);
        m_settings.erase(holder);
        known->second.erase(seed);
        if (known->second.empty())
            m_seeds.erase(known);
    }
}

std::optional<int> subdesign_names::name_pattern::seed_of(std::string_view name) const
{
    if (name.size() < stem.size() + ending.size() || !name.starts_with(stem) || !name.ends_with(ending))
        return std::nullopt;
    return seed_of_digits(name.substr(stem.size(), name.size() - stem.size() - ending.size()));
}

seed_space & subdesign_names::space(std::string const & stem, std::string const & ending)
{
    return m_spaces[{stem, ending}];
}

void subdesign_names::take(std::string_view name, std::string const & settings)
{
    for (auto & [pattern, seeds] : m_spaces)
        if (auto const seed = pattern.seed_of(name))
            seeds.take(*seed, settings);
}

void subdesign_names::release(std::string_view name)
{
    for (auto & [pattern, seeds] : m_spaces)
        if (auto const seed = pattern.seed_of(name))
            seeds.release(*seed);
}

void subdesign_names::file_written(std::string const & path, std::string const & settings)
{
    m_begun.erase(path);
    m_files[path].clear();
    take(path, settings);
}

void subdesign_names::file_removed(std::string const & path)
{
    m_begun.erase(path);
    m_files.erase(path);
    m_users.erase(path);
    release(path);
}

int subdesign_names::known_result(std::string const & path, std::string const & question) const
{
    auto const file = m_files.find(path);
    if (file == m_files.end())
        return 0;
    auto const result = file->second.find(question);
    return result == file->second.end() ? 0 : result->second;
}

void subdesign_names::keep_result(std::string const & path, std::string const & question, int result)
{
    if (auto const file = m_files.find(path); file != m_files.end())
        file->second[question] = result;
}

} // namespace gnl_detail
