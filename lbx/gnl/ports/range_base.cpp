#include "range_base.h"

#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"

namespace gnl_detail {
namespace {

GNL_PORT_OUTPUT_RANGE const * range_below(GNL_PORT_OUTPUT_RANGE const & range)
{
    GNL_PORT const * const driver = range.get_range_driver();
    return driver && driver->is_range_port() ? static_cast<GNL_PORT_OUTPUT_RANGE const *>(driver) : nullptr;
}

} // namespace

range_base base_of(GNL_PORT_OUTPUT_RANGE const & range)
{
    std::vector<GNL_PORT_OUTPUT_RANGE const *> chain;
    GNL_PORT_OUTPUT_RANGE const * at = &range;
    element_registry * const registry = range.get_parent() ? &range.get_parent()->registry() : nullptr;
    range_base const * known = nullptr;
    for (auto const * below = range_below(*at); below && !known; below = range_below(*at)) {
        chain.push_back(at);
        at = below;
        known = registry ? registry->known_range_base(*at) : nullptr;
    }
    range_base base = known ? *known : range_base{at->get_range_driver(), at, at->get_low_index()};
    for (; !chain.empty(); chain.pop_back()) {
        base.low += chain.back()->get_low_index();
        if (registry)
            registry->keep_range_base(*chain.back(), base);
    }
    return base;
}

} // namespace gnl_detail
