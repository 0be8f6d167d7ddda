#pragma once

#include "lbx/gnl/core/message_table.h"

namespace gnl_detail {

/// Every message of parameters and parameter arrays.
// clang-format off
#define PARAMETER_MESSAGES(X) \
    X(inherit_only_in_body, \
      "Inherit only parameter {0} is being assigned the value {1} inside rtl_body.", \
      PARAMETER_INHERIT_ONLY_CAUSE, PARAMETER_INHERIT_ONLY_ACTION) \
    X(vector_inherit_only_in_body, \
      "Inherit only parameter {0} is being assigned a value {1} inside rtl_body.", \
      PARAMETER_INHERIT_ONLY_CAUSE, PARAMETER_INHERIT_ONLY_ACTION) \
    X(expression_reassigned, \
      "Parameter {0} has already been assigned the expression {1} and cannot be reassigned with the value {2}", \
      "The parameter was already assigned an expression. The new value can not be reassigned.", \
      nullptr) \
    X(exposed_read, \
      "Parameter {0} is set to be an exposed parameter, and hence the function get_value() cannot be called on the " \
      "parameter.", \
      "An attempt was made to access the value of a parameter which is marked as parameterized. Exposed parameters " \
      "should use the get_parameter() function call and not get_value() function call.", \
      "Use get_parameter() function call or mark the parameter as a regular parameter.") \
    X(cannot_be_exposed, \
      "Parameter {0} cannot be set as a parameterized (exposed) parameter ", \
      "An attempt was made to set a parameter to be exposed (or parameterized). The parameter type is not supported " \
      "as an exposed parameter", \
      nullptr) \
    X(no_value, \
      "Parameter {0} has no default value and has not been assigned any value.", \
      "An attempt was made to access the value of a parameter which has no default, and has not been assigned a " \
      "value. All parameters should have a default value, or, if the parameter is a required parameter, an " \
      "assignment should be made.", \
      "Specify a value for the parameter or if the parameter is an optional parameter, specify a default value.") \
    X(no_inherited_value, \
      "Parameter {0} is inherit only and no assignment has been made to the parameter at the top level.", \
      "This inherit only parameter has no value assigned at the top level.", \
      nullptr) \
    X(illegal_vector_text, \
      "Vector parameter {0} is being assigned illegal string value {1}", \
      "String inputs assigned to vector parameters can be only hex strings (start with 0x) or binary strings (start " \
      "with 0b) or decimal strings.", \
      "Specify the correct identifier at the beginning of the string being assigned to the vector parameter.") \
    X(illegal_vector_width, \
      "Illegal width setting for Vector parameter {0}", \
      "The parameter is being used to specify the width of a vector parameter. But the parameter does not exist, or " \
      "is a string parameter. Only integer parameters can be used to specify widths of vector parameters.", \
      "Use a valid integer parameter name to specify vector parameter widths.") \
    X(vector_width_fixed, \
      "Vector parameter {0} doesn't allow it's width to be overridden.", \
      "The vector parameter has a fixed width specified. This width cannot be overridden. ", \
      " Declare the vector parameter with support for width override, or do not override the vector parameter's " \
      "width. ") \
    X(vector_not_assigned, \
      "Vector parameter {0} has not been assigned a value.", \
      "The vector parameter has not been assigned a value.", \
      "Vector parameters should always be assigned a value.") \
    X(vector_inherits, \
      "Vector parameter {0} allows inheritance, but vector parameters dont support inheritance.", \
      "Inheritance of values from parents are not supported for vector parameters.", \
      "Do not override the default inheritance of the vector parameter.") \
    X(vhdl_array_unbound, \
      "VHDL parameter array {0} has no array type specified and has no fixed length.", \
      "An illegal VHDL parameter array is unbound.", \
      "True VHDL style parameter arrays should be declared with a fixed length or should have the array type " \
      "specified.")

#define PARAMETER_INHERIT_ONLY_CAUSE \
    "When assigning a value to an inherit only parameter values can be assigned only at the top level, through the " \
    "lumen box interface or through the Tolvane II software. No explicit assignments can be made inside an rtl_body."
#define PARAMETER_INHERIT_ONLY_ACTION \
    "Remove assignments to inherit only parameters inside the rtl_body or change the inheritance type to inherit " \
    "allowed, if explicit assignments can be made to the parameter from inside the rtl_body."
// clang-format on

GNL_MESSAGE_TABLE(parameter_message, PARAMETER_MESSAGES)

} // namespace gnl_detail
