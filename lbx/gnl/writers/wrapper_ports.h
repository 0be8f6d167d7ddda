#pragma once

#include "gnl_port.h"

#include "lbx/gnl/writers/array_slices.h"

#include <algorithm>

namespace gnl_detail {

/// Whether an input of what is wrapped has a source; an array's input may be driven slice by slice.
inline bool is_driven_somewhere(GNL_PORT & port, array_slices const & slices)
{
    auto const is_driven = [](GNL_PORT & one) {
        return one.check_port_has_valid_driver() || one.check_port_is_driven_by_constant();
    };
    return is_driven(port) || std::ranges::any_of(slices.ports(port.get_name()), [&](GNL_PORT * of_slice) {
               return is_driven(*of_slice);
           });
}

} // namespace gnl_detail
