#pragma once

#include "gnl_port_range.h"

namespace gnl_detail {

/// What a range selects from in the end, through ranges of ranges.
struct range_base
{
    GNL_PORT * port = nullptr;                         ///< no range; null behind a range that could not be made
    GNL_PORT_OUTPUT_RANGE const * innermost = nullptr; ///< the range that stands directly on `port`
    long long low = 0;                                 ///< bit of `port` that is the lowest of the range
};

/// Chains of ranges can be 100,000 long; what was found for one range of a design is remembered for those on it.
range_base base_of(GNL_PORT_OUTPUT_RANGE const & range);

/// What `port` is or selects from; null for null.
inline GNL_PORT * base_port(GNL_PORT * port)
{
    return port && port->is_range_port() ? base_of(static_cast<GNL_PORT_OUTPUT_RANGE const &>(*port)).port : port;
}

} // namespace gnl_detail
