#pragma once

#include "gnl_generator.h"

namespace gnl_detail {

/// Whether `driver` can be read in the text of `level`; reports it for `port` if not.
bool check_driver(GNL_GENERATOR & level, GNL_PORT & port, GNL_PORT & driver);

} // namespace gnl_detail
