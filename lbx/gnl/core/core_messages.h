#pragma once

#include "lbx/gnl/core/message_table.h"

namespace gnl_detail {

/// Every message of the design core: registry, accessors, arrays, names and the generation driver.
// clang-format off
#define CORE_MESSAGES(X) \
    X(parent_is_itself, \
      "Parent of generator object {0} is itself.", \
      "A generator object is marked as its own parent.", \
      "If the generator is the top level object, use NULL as parent, or else use the immediate top level design as " \
      "parent.") \
    X(parameter_in_body, \
      "Parameter {0} is being created inside rtl_body of {1}", \
      "In a lumen box, parameter objects of a generator cannot be created in heap (using new) inside the rtl body.", \
      "The parameter objects of a generator should be declared as member objects of the generator class.") \
    X(destroyed_in_body, \
      "Lumenbox element {0} is being destroyed inside the rtl_body of {1}", \
      "Removing a lumen box element (either through explicit delete or by going out of scope) while inside the rtl " \
      "body is illegal.", \
      "All dynamically created lumen box elements that have a valid parent will be automatically handled during " \
      "destruction. Deletion of other objects (if needed) should be done in the destructor and not inside the rtl " \
      "body.") \
    X(no_port, \
      "No port object {0} exists in {1}", \
      "The port object does not exist in the gigafunction.   This results in an attempt to use the port () accessor " \
      "function on a non-existent port name.", \
      "Lumen box port names are case insensitive. Check for spelling mistakes in declaration or usage.") \
    X(no_integer_parameter, \
      "No integer parameter object {0} exists in {1}", \
      CORE_NO_PARAMETER_CAUSE, CORE_NO_PARAMETER_ACTION) \
    X(no_string_parameter, \
      "No string parameter object {0} exists in {1}", \
      CORE_NO_PARAMETER_CAUSE, CORE_NO_PARAMETER_ACTION) \
    X(no_vector_parameter, \
      "No parameter object {0} exists in {1}", \
      CORE_NO_PARAMETER_CAUSE, CORE_NO_PARAMETER_ACTION) \
    X(not_an_array, \
      "Generator {0} is not an array object, but the array indexing operator is being used on it.", \
      "An array indexing operator [] can be used only on array objects.", \
      "A generator object has been declared as a non-array object. Either change the declaration or do not use the " \
      "array indexing operator.") \
    X(slice_out_of_range, \
      "Array width of generator object  {0} is {1} but the slice index is {2}", \
      "Trying to access the index of an array that is greater than the width of the array or less than 0 is illegal.", \
      nullptr) \
    X(assigned_after_connections, \
      "Parameter {0} has been assigned a value after port connections are made to the generator {1}.", \
      "In a lumen box, all parameter assignments should be made before making port connections.", \
      "Make all parameter assignments before making port connections.") \
    X(instance_name_taken, \
      "Instance name {0} is already being specified as the instance name for generator {1}.", \
      "Same instance name has been used for multiple entries.", \
      "Use different instance names or do not specify the instance name and let lumenbox auto-generate instance names.") \
    X(wire_name_taken, \
      "Wire name {0} is already being specified as the wire name for port {1}.", \
      "Same wire name has been used for multiple entries.", \
      "Use different wire names or do not specify the wire name and let lumenbox auto-generate wire names.")

#define CORE_NO_PARAMETER_CAUSE "The parameter object does not exist or is of a different parameter type."
#define CORE_NO_PARAMETER_ACTION \
    "Lumen box parameter names are case insensitive. Check for spelling mistakes or for the use of incorrect accessor " \
    "functions (using parameter_integer () function for a string parameter or vice versa)."
// clang-format on

GNL_MESSAGE_TABLE(core_message, CORE_MESSAGES)

} // namespace gnl_detail
