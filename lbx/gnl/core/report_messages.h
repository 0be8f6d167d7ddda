#pragma once

#include "lbx/gnl/core/message_table.h"

namespace gnl_detail {

/// Messages of the reporting itself: the limit of errors and the checks that an author writes into a body.
// clang-format off
#define REPORT_MESSAGES(X) \
    X(too_many_errors, \
      "Too many error messages. Message Limit Exceeded {0}", \
      nullptr, nullptr) \
    X(assertion_inside_body, \
      "Assertion failure inside rtl_body at {0}:{1}", \
      "The condition in GNL_ASSERT () failed.", nullptr) \
    X(assertion_outside_body, \
      "Assertion failure outside rtl_body at {0}:{1}", \
      "The condition in GNL_ASSERT () failed.", nullptr) \
    X(exit_outside_body, \
      " Wrong use of 'exit if error:' command : this can only be used inside the rtl_body", \
      nullptr, nullptr)
// clang-format on

GNL_MESSAGE_TABLE(report_message, REPORT_MESSAGES)

} // namespace gnl_detail
