#pragma once

#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace random_designs {

/// Numbers that are the same on every machine, which the standard's distributions are not.
class dice
{
public:
    explicit dice(std::uint64_t seed)
        : m_random(seed)
    {
    }

    /// From 0 to `count` - 1.
    int pick(int count) { return static_cast<int>(m_random() % static_cast<std::uint64_t>(count)); }
    int between(int least, int most) { return least + pick(most - least + 1); }
    bool one_in(int count) { return pick(count) == 0; }
    std::uint64_t word() { return m_random(); }
    template <class T> T const & any_of(std::vector<T> const & values)
    {
        return values[static_cast<std::size_t>(pick(static_cast<int>(values.size())))];
    }
    template <class T> void shuffle(std::vector<T> & values)
    {
        for (auto i = static_cast<int>(values.size()) - 1; i > 0; --i)
            std::swap(values[static_cast<std::size_t>(i)], values[static_cast<std::size_t>(pick(i + 1))]);
    }

private:
    std::mt19937_64 m_random;
};

} // namespace random_designs
