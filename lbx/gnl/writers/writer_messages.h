#pragma once

#include "lbx/gnl/core/message_table.h"

namespace gnl_detail {

#define WRITER_MESSAGES(X)                                                                                             \
    X(invalid_driver, "Port object {0} is being driven by invalid port {1}",                                           \
      "The port is driven at this level by a port whose parent is not in this design or one of its sub-designs. A "    \
      "port can be driven by only its parent's child ports or one of the sub-designs' child ports.",                   \
      "Make sure the parent of the driver port has its parent set correctly.")

GNL_MESSAGE_TABLE(writer_message, WRITER_MESSAGES)

} // namespace gnl_detail
