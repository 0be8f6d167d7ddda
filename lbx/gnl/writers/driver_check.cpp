#include "lbx/gnl/writers/driver_check.h"

#include "lbx/gnl/writers/writer_messages.h"

namespace gnl_detail {

bool check_driver(GNL_GENERATOR & level, GNL_PORT & port, GNL_PORT & driver)
{
    // Most drivers are the design's own, and then no name has to be looked up.
    if (driver.get_parent() == &level || level.is_child_of_subdesign(&driver))
        return true;
    report<writer_message::invalid_driver>(level, port.get_hierarchical_name(), driver.get_hierarchical_name());
    return false;
}

} // namespace gnl_detail
