#include "lbx/gnl/core/slice_bidirs.h"

#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/array_slices.h"

namespace gnl_detail {
namespace {

/// Whether a subdesign's bidirectional port is connected in the design around it.
bool is_connected_at(GNL_PORT & port, GNL_GENERATOR const * level)
{
    if (static_cast<GNL_PORT_BIDIR const &>(port).is_locked_bidir_port() != 0)
        return true;
    return port.get_connection_level() == level && (port.get_driver() != nullptr || port.is_driven_by_constant());
}

} // namespace

void leave_bidirs_to_slices(GNL_GENERATOR & array)
{
    auto const * level = array.get_parent();
    array_slices const slices(array);
    for (GNL_PORT & port : array.registry().ports()) {
        if (!port.is_bidir() || !port.check_is_used_flag() || is_connected_at(port, level))
            continue;
        for (auto * of_slice : slices.ports(port.get_name()))
            if (of_slice->is_bidir() && is_connected_at(*of_slice, level))
                port.set_used(false);
    }
}

} // namespace gnl_detail
