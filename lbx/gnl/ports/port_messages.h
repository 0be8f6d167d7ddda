#pragma once

#include "lbx/gnl/core/message_table.h"

namespace gnl_detail {

// What several messages of the ports have in common. The doubled blanks, missing apostrophes and missing blanks in the
// texts below are what users compare.

#define GNL_CAUSE_BODY_ONLY "An attempt has been made to make port connections outside of the rtl_body."
#define GNL_ACTION_BODY_ONLY "Make port connections inside rtl_body only."

#define GNL_CAUSE_ALREADY_ASSIGNED                                                                                     \
    "The port was already assigned a value (either a port or a constant value). The new value can not be reassigned."

#define GNL_CAUSE_HETEROGENEOUS                                                                                        \
    "Ports of heterogeneous arrays (arrays with different parameters assigned to different slices) cannot be "         \
    "assigned on the parent array object. If such arrays have different widths on the different slices, they can be "  \
    "assigned only on the individual slices."

#define GNL_CAUSE_WIDTHS                                                                                               \
    "The port widths are mismatched in the mentioned assignment. The port widths of the connected ports should match " \
    "or the LHS port width should be a multiple of the RHS port width."
#define GNL_ACTION_WIDTHS                                                                                              \
    "Check the port widths of the connected ports. Logical operation results in a port width equal to the larger of "  \
    "the two ports and concatenation results in a port width equal to the sum of the individual port widths. Double "  \
    "check for such cases."

#define GNL_CAUSE_CONSTANT "An illegal value exists for a constant wire or bus.  The value must be: 0 to 2^width - 1."

#define GNL_CAUSE_SOURCE_AS_SINK                                                                                       \
    "An attempt was made to use a source port as a sink. Input ports of subdesigns and output ports of self and "      \
    "their ranges can only be used on the LHS of a port assignment. Concatenated or logic objects cannot be used on "  \
    "the LHS of a port assignment."
#define GNL_CAUSE_SINK_AS_SOURCE                                                                                       \
    "An attempt was made to use a sink port as a source. Output ports of subdesigns and input ports of self and "      \
    "their ranges can only be used on the RHS of a port assignment. Concatenated and logic objects can also be used "  \
    "on the RHS of a port assignment."

#define GNL_CAUSE_UNCONNECTED                                                                                          \
    "An attempt was made to use an unconnected input port. The input port should either be connected or should have "  \
    "a default value."

#define GNL_CAUSE_NO_SUCH_BIT "An attempt was made to assign a bit that is not there in the port."

#define GNL_CAUSE_BIDIR                                                                                                \
    "Bidirectional ports of a sub-design can act either as a bidirectional port (can drive another bidir port only) "  \
    "or as an output port (true output port), but not as both."
#define GNL_ACTION_BIDIR "Change the connections to use either as a bidir port or as an output port."

#define GNL_CAUSE_BITS_ASSIGNED "The port range was already assigned a value. The new value can not be reassigned."
#define GNL_CAUSE_BITS_UNASSIGNED                                                                                      \
    "The port has been partially assigned. Some bits of the port are not assigned with a driver."

#define GNL_CAUSE_LOGIC_OPERAND                                                                                        \
    "This logic operation cannot be performed on the operand in the RHS. The operand cannot be used as a source "      \
    "object; the objects are mostly input ports of subdesigns or output ports of self."
#define GNL_ACTION_LOGIC_OPERAND                                                                                       \
    "Do not use output ports of generators on the RHS in the generator's rtl_body and do not use input ports of "      \
    "instantiated subdesigns in the RHS of the rtl_body."

/// Declared pins: widths, defaults and internal options.
#define GNL_PORT_MODEL_MESSAGES(X)                                                                                     \
    X(invalid_width_expression, "Invalid parameter {0} is used to specify the width of port {1}.",                     \
      "The parameter is being used to specify the width of a port. However the parameter does not exist or is a "      \
      "string parameter (only integer parameters can be used to specify widths of ports).",                            \
      "Use a valid integer parameter name to specify port widths.")                                                    \
    X(width_changed_outside, "Port {0}'s port width is being changed outside of update_port_widths() function.",       \
      "Port widths cannot be changed outside the update_port_widths function.",                                        \
      "Avoid changing the port widths. Port widths should be specified in the constructor itself.")                    \
    X(negative_width, "Port {0} has negative port width {1} set.",                                                     \
      "Illegal port width. Width must be 0 (for wire) or greater (for bus). The most likely causes of the error are "  \
      "either: the array width of the generator object is not set properly resulting in negative port widths, or "     \
      "the port width expression is illegal.",                                                                         \
      nullptr)                                                                                                         \
    X(default_outside_constructor,                                                                                     \
      "{0} port {1} is being specified a default value outside of the parent's constructor.",                          \
      "The default value for input ports can be set only in the parent's constructor.",                                \
      "Move the set_default_port_value () function to the parent of the port's constructor.")                          \
    X(internal_option_on_operator, "Port {0} has been assigned the qelvar internal option setting {1}",                \
      "An Qelvar internal option setting has been specified on an unsupported port type.",                             \
      "Qelvar internal option settings are supported only on input, output, bidir ports and wires.")                   \
    X(internal_option_on_primitive, "Port {0} has been assigned the qelvar internal option setting {1}",               \
      "An Qelvar internal option setting has been specified on a port of a primitive.",                                \
      "Qelvar internal option settings are supported only on input, output, bidir ports and wires of non-primitive "   \
      "entities.")

/// Assignments to whole ports and to their bits.
#define GNL_CONNECTION_MESSAGES(X)                                                                                     \
    X(array_port_assigned, "Heterogeneous port {0} is being assigned on the array parent object with {1}",             \
      GNL_CAUSE_HETEROGENEOUS, nullptr)                                                                                \
    X(array_port_assigned_constant,                                                                                    \
      "Heterogeneous port {0} is being assigned on the array parent object with the constant value {1}",               \
      GNL_CAUSE_HETEROGENEOUS, nullptr)                                                                                \
    X(assigned_again, "Port {0} has already been assigned {1}, and is again being assigned {2}",                       \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(assigned_again_constant,                                                                                         \
      "Port {0} has already been assigned {1}, and is again being assigned the constant value {2}",                    \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(constant_assigned_again,                                                                                         \
      "Port {0} has already been assigned  the constant value {1}, and is again being assigned {2}",                   \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(constant_assigned_again_constant,                                                                                \
      "Port {0} has already been assigned  the constant value {1}, and is again being assigned the constant value "    \
      "{2}",                                                                                                           \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(widths_mismatched,                                                                                               \
      "Port object {0} of width  {1} is being assigned the port {2} of width {3} which is illegal, as port widths "    \
      "dont match nor are multiples.",                                                                                 \
      GNL_CAUSE_WIDTHS, GNL_ACTION_WIDTHS)                                                                             \
    X(constant_too_wide, "Port object {0} of width {1} is being assigned a constant value of {2} which is illegal.",   \
      GNL_CAUSE_CONSTANT, nullptr)                                                                                     \
    X(assigned_outside_body, "Range object {0} is being assigned {1} outside of rtl_body.", GNL_CAUSE_BODY_ONLY,       \
      GNL_ACTION_BODY_ONLY)                                                                                            \
    X(constant_outside_body, "Port object {0} is being assigned the constant value {1} outside of rtl_body.",          \
      GNL_CAUSE_BODY_ONLY, GNL_ACTION_BODY_ONLY)                                                                       \
    X(assigned_in_slice,                                                                                               \
      "Port {0}is already assigned in one of the slices and is again being assigned on the master array with {1}",     \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(assigned_in_slice_constant,                                                                                      \
      "Port {0}is already assigned in one of the slices and is again being assigned on the master array with the "     \
      "constant value {1}",                                                                                            \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(assigned_in_slice_range,                                                                                         \
      "Port {0}is already assigned in one of the slices and is again being assigned on the master array with {1} in "  \
      "the range {2} to {3}",                                                                                          \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(assigned_in_slice_constant_range,                                                                                \
      "Port {0}is already assigned in one of the slices and is again being assigned on the master array with the "     \
      "constant value {1} in the range {2} to {3}",                                                                    \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(assigned_in_master,                                                                                              \
      "Port {0}is already assigned in the master array and is being again assigned on one of the slices with {1}",     \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(assigned_in_master_constant,                                                                                     \
      "Port {0}is already assigned in the master array and is being again assigned on one of the slices with the "     \
      "constant value {1}",                                                                                            \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(assigned_in_master_range,                                                                                        \
      "Port {0}is already assigned in the master array and is being again assigned on one of the slices with {1} in "  \
      "the range {2} to {3}",                                                                                          \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(assigned_in_master_constant_range,                                                                               \
      "Port {0}is already assigned in the master array and is being again assigned on one of the slices with the "     \
      "constant value {1} in the range {2} to {3}",                                                                    \
      GNL_CAUSE_ALREADY_ASSIGNED, nullptr)                                                                             \
    X(no_sink,                                                                                                         \
      "Port object {0} is being assigned {1}, but the port object can't be used on LHS in this connection level {2}",  \
      GNL_CAUSE_SOURCE_AS_SINK, nullptr)                                                                               \
    X(no_sink_for_constant,                                                                                            \
      "Port object {0} is being assigned the constant value {1}, but the port object can't be used on LHS in this "    \
      "connection level {2}",                                                                                          \
      GNL_CAUSE_SOURCE_AS_SINK, nullptr)                                                                               \
    X(no_source,                                                                                                       \
      "Port object {0} is being assigned to {1}, but the port object can't be used on RHS in this connection level "   \
      "{2}",                                                                                                           \
      GNL_CAUSE_SINK_AS_SOURCE, nullptr)                                                                               \
    X(unconnected_input,                                                                                               \
      "Input port {0} is being assigned to {1} but the input port has no default value and has not been connected.",   \
      GNL_CAUSE_UNCONNECTED, nullptr)                                                                                  \
    X(no_such_bit, "Port {0} of width {1} is being made an assignment of {2} in the range {3} to {4}",                 \
      GNL_CAUSE_NO_SUCH_BIT, nullptr)                                                                                  \
    X(no_such_bit_for_constant,                                                                                        \
      "Port {0} of width {1} is being made an assignment of constant value {2} in the range {3} to {4}",               \
      GNL_CAUSE_NO_SUCH_BIT, nullptr)                                                                                  \
    X(bidir_drives_bidir, "Bidir port {0} already drives bidir port(s).", GNL_CAUSE_BIDIR, GNL_ACTION_BIDIR)           \
    X(bidir_in_use, "Bidir port {0} already drives {1} port(s).", GNL_CAUSE_BIDIR, GNL_ACTION_BIDIR)

/// Ranges: making them, reading them and assigning to them. `assigned_outside_body` serves them too.
#define GNL_RANGE_MESSAGES(X)                                                                                          \
    X(range_out_of_bounds, "Port {0} is of width {1} but the range indices are ({2}, {3})",                            \
      "The range indices are illegal, either the higher index is more than the width of the port or the lower index "  \
      "is less than 0.",                                                                                               \
      nullptr)                                                                                                         \
    X(range_across_slices,                                                                                             \
      "Range operation is being performed on {0} but the range operation is illegal, as either the indices are "       \
      "illegal or the parent of the port is a heterogeneous array.",                                                   \
      "The range object has illegal indices for the array object. When a range operation is being performed on a "     \
      "port of an array object, the range indices should not start in the middle of one slice's port and end at the "  \
      "middle of another slice's port, that is, the range indices should be a multiple of the port width of a "        \
      "slice. Range operations cannot be performed on ports of heterogeneous arrays.",                                 \
      nullptr)                                                                                                         \
    X(array_port_range, "Heterogeneous port {0} is being assigned on the array parent object.",                        \
      GNL_CAUSE_HETEROGENEOUS, nullptr)                                                                                \
    X(range_order, "Range operation on port {0} has illegal range indices, high index is {1} but low index is {2}",    \
      "The higher index of the port is less than the lower index.", nullptr)                                           \
    X(unconnected_input_in_range,                                                                                      \
      "Range object {0} of input port {1} is being used, but the input port is not connected and has no default.",     \
      GNL_CAUSE_UNCONNECTED, nullptr)                                                                                  \
    X(range_widths_mismatched,                                                                                         \
      "Range object {0} of width  {1} is being assigned the port {2} of width {3} which is illegal, as port widths "   \
      "dont match nor are multiples.",                                                                                 \
      GNL_CAUSE_WIDTHS, GNL_ACTION_WIDTHS)                                                                             \
    X(range_no_sink,                                                                                                   \
      "Range object {0} is being assigned {1}, but the range object can't be used on LHS in this connection level "    \
      "{2}",                                                                                                           \
      GNL_CAUSE_SOURCE_AS_SINK, nullptr)                                                                               \
    X(range_constant_outside_body, "Range object {0} is being assigned the constant value {1} outside of rtl_body.",   \
      GNL_CAUSE_BODY_ONLY, GNL_ACTION_BODY_ONLY)                                                                       \
    X(range_constant_too_wide,                                                                                         \
      "Range object {0} of width {1} is being assigned a constant value of {2} which is illegal.", GNL_CAUSE_CONSTANT, \
      nullptr)                                                                                                         \
    X(range_no_sink_for_constant,                                                                                      \
      "Range object {0} is being assigned the constant value {1}, but the range object can't be used on LHS in this "  \
      "connection level {2}",                                                                                          \
      GNL_CAUSE_SOURCE_AS_SINK, nullptr)

/// Concatenations: making them, and the holes that show when they are written.
#define GNL_CONCAT_MESSAGES(X)                                                                                         \
    X(source_bits_assigned, "The source port {0} already has one or more bits in the range {1} to {2} assigned.",      \
      GNL_CAUSE_BITS_ASSIGNED, nullptr)                                                                                \
    X(concat_bits_assigned, "The concat port {0} already has one or more bits in the range {1} to {2} assigned.",      \
      GNL_CAUSE_BITS_ASSIGNED, nullptr)                                                                                \
    X(concat_outside_body, "Concat operation between {0} and {1} is being done outside of rtl_body.",                  \
      GNL_CAUSE_BODY_ONLY, GNL_ACTION_BODY_ONLY)                                                                       \
    X(no_concat_source,                                                                                                \
      "Concat operation cannot be performed on port {0} with {1}, as port cannot appear in the RHS at the level {2}",  \
      "The concat operation cannot be performed on the operand in the RHS. The operand cannot be used as a source "    \
      "object; the objects are mostly input ports of subdesigns or output ports of self. Concat operations are "       \
      "illegal on the LHS.",                                                                                           \
      "Do not use output ports of generators on the RHS in the generator's rtl_body and do not use input ports of "    \
      "instantiated subdesigns in RHS of the rtl_body and do not use concat operations on the LHS of a port "          \
      "assignment.")                                                                                                   \
    X(unconnected_input_in_concat,                                                                                     \
      "Input port {0} is being used in concat operation with {1} but the input port has no default value and has not " \
      "been connected.",                                                                                               \
      GNL_CAUSE_UNCONNECTED, nullptr)                                                                                  \
    X(concat_bits_unassigned, "Concat object {0} has bits in the range {1} to {2} unassigned.",                        \
      GNL_CAUSE_BITS_UNASSIGNED, nullptr)                                                                              \
    X(port_bits_unassigned, "Port object {0} has bits in the range {1} to {2} unassigned.", GNL_CAUSE_BITS_UNASSIGNED, \
      nullptr)

/// Expressions. Insert 0 of the binary operations is "AND", "OR" or "XOR".
#define GNL_LOGIC_MESSAGES(X)                                                                                          \
    X(logic_widths,                                                                                                    \
      "Logical operation {0} performed between {1} of width {2} and {3} of width {4} is illegal as the port widths "   \
      "dont match, and neither of the port widths are 1.",                                                             \
      "The port widths are mismatched in the logic operator. Port widths of the operands in a logic operation should " \
      "be the same or if the operands are of different widths, one of them must be 1 bit wide.",                       \
      nullptr)                                                                                                         \
    X(logic_outside_body, "Logical operation {0} between {1} and {2} is being done outside of rtl_body.",              \
      GNL_CAUSE_BODY_ONLY, GNL_ACTION_BODY_ONLY)                                                                       \
    X(no_logic_source,                                                                                                 \
      "Logical operation {0} cannot be performed on port {1} with {2}, as port cannot appear in the RHS at the level " \
      "{3}",                                                                                                           \
      GNL_CAUSE_LOGIC_OPERAND, GNL_ACTION_LOGIC_OPERAND)                                                               \
    X(unconnected_input_in_logic,                                                                                      \
      "Input port {0} is being used in logical operation {1} with {2} but the input port has no default value and "    \
      "has not been connected.",                                                                                       \
      GNL_CAUSE_UNCONNECTED, nullptr)                                                                                  \
    X(not_outside_body, "NOT operation on {0} is being done outside rtl_body.", GNL_CAUSE_BODY_ONLY,                   \
      GNL_ACTION_BODY_ONLY)                                                                                            \
    X(no_not_source,                                                                                                   \
      "Logical operation NOT cannot be performed on port {0}, as port cannot appear in the RHS at the level {1}",      \
      GNL_CAUSE_LOGIC_OPERAND, GNL_ACTION_LOGIC_OPERAND)                                                               \
    X(unconnected_input_in_not,                                                                                        \
      "Input port {0} is being used in logical operation NOT but the input port has no default value and has not "     \
      "been connected.",                                                                                               \
      GNL_CAUSE_UNCONNECTED, nullptr)                                                                                  \
    X(no_bus_to_reduce, "Logical operation bitwise {0} cannot be performed on port {1}, as port is not a bus ",        \
      "Bitwise operators can be used only on ports that are atleast 2 bits wide.",                                     \
      "Remove the bitwise operator function or check the bus width size.")

/// Writing references.
#define GNL_DESCRIPTION_MESSAGES(X)                                                                                    \
    X(bidir_to_non_bidir,                                                                                              \
      "Bidir port {0} is illegally connected to a non bidir port {1} through a bidir--bidir connection.",              \
      " A bidir port is driven by a range object that is not derived from a bidir port. This will generate an "        \
      "illegal bidir to bidir connection where one of them is as a result, a non bidir port..",                        \
      "Properly specify all bidir to bidir connections.")

#define GNL_PORT_MESSAGES(X)                                                                                           \
    GNL_PORT_MODEL_MESSAGES(X)                                                                                         \
    GNL_CONNECTION_MESSAGES(X)                                                                                         \
    GNL_RANGE_MESSAGES(X)                                                                                              \
    GNL_CONCAT_MESSAGES(X)                                                                                             \
    GNL_LOGIC_MESSAGES(X)                                                                                              \
    GNL_DESCRIPTION_MESSAGES(X)

GNL_MESSAGE_TABLE(port_message, GNL_PORT_MESSAGES)

} // namespace gnl_detail
