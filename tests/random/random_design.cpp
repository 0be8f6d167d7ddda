#include "kind_maker.h"

#include <algorithm>

namespace random_designs {

profile profile_for(std::uint64_t seed)
{
    dice random(seed * 0x9e3779b97f4a7c15U);
    profile result;
    result.levels = random.one_in(6) ? 1 : random.between(2, 3);
    result.most_children = random.one_in(100) ? 200 : random.one_in(4) ? random.between(10, 25) : random.between(1, 8);
    if (result.most_children == 200)
        result.levels = 3;
    return result;
}

description random_design(std::uint64_t seed, profile const & allowed)
{
    dice random(seed);
    description result;
    result.seed = seed;
    // Kinds of the lowest level first: a kind may have children of all kinds before it.
    for (int level = allowed.levels; level >= 2; --level) {
        auto const below = result.kinds;
        int const kinds = random.between(1, 2);
        int const most = level == allowed.levels ? 0 : std::min(allowed.most_children / 2, 6);
        for (int i = 0; i < kinds; ++i) {
            auto const name = "part" + std::to_string(result.kinds.size());
            result.kinds.push_back(kind_maker(random, allowed, below, most).make(name, false));
        }
    }
    auto const below = result.kinds;
    auto top = kind_maker(random, allowed, below, allowed.most_children).make("whole", true);
    result.top = top.defaults;
    if (top.has_w)
        result.top.w = random.between(1, largest_w);
    if (top.has_k)
        result.top.k = random.pick(5);
    result.kinds.push_back(std::move(top));
    return result;
}

} // namespace random_designs
