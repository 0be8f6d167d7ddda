// Every message of the ports: a design that raises it, and its exact text.

#include "open_design.h"

#include "lbx/gnl/ports/port_messages.h"

#include <algorithm>
#include <set>

namespace {

using namespace gnl_test;
using gnl_detail::port_message;

std::string const body_only = "An attempt has been made to make port connections outside of the rtl_body.";
std::string const make_in_body = "Make port connections inside rtl_body only.";
std::string const already = "The port was already assigned a value (either a port or a constant value). The new value "
                            "can not be reassigned.";
std::string const heterogeneous = "Ports of heterogeneous arrays (arrays with different parameters assigned to "
                                  "different slices) cannot be assigned on "
                                  "the parent array object. If such arrays have different widths on the different "
                                  "slices, they can be assigned only on "
                                  "the individual slices.";
std::string const mismatch = "The port widths are mismatched in the mentioned assignment. The port widths of the "
                             "connected ports should match or "
                             "the LHS port width should be a multiple of the RHS port width.";
std::string const check_widths =
    "Check the port widths of the connected ports. Logical operation results in a port width equal to the larger of "
    "the "
    "two ports and concatenation results in a port width equal to the sum of the individual port widths. Double check "
    "for such cases.";
std::string const bad_constant =
    "An illegal value exists for a constant wire or bus.  The value must be: 0 to 2^width - 1.";
std::string const source_as_sink =
    "An attempt was made to use a source port as a sink. Input ports of subdesigns and output ports of self and their "
    "ranges can only be used on the LHS of a port assignment. Concatenated or logic objects cannot be used on the LHS "
    "of "
    "a port assignment.";
std::string const sink_as_source =
    "An attempt was made to use a sink port as a source. Output ports of subdesigns and input ports of self and their "
    "ranges can only be used on the RHS of a port assignment. Concatenated and logic objects can also be used on the "
    "RHS "
    "of a port assignment.";
std::string const unconnected = "An attempt was made to use an unconnected input port. The input port should either be "
                                "connected or should have a default value.";
std::string const no_such_bit = "An attempt was made to assign a bit that is not there in the port.";
std::string const bidir_use =
    "Bidirectional ports of a sub-design can act either as a bidirectional port (can drive another bidir port only) or "
    "as an output port (true output port), but not as both.";
std::string const change_bidir = "Change the connections to use either as a bidir port or as an output port.";
std::string const bits_assigned = "The port range was already assigned a value. The new value can not be reassigned.";
std::string const bits_unassigned =
    "The port has been partially assigned. Some bits of the port are not assigned with a driver.";
std::string const logic_operand = "This logic operation cannot be performed on the operand in the RHS. The operand "
                                  "cannot be used as a source object; "
                                  "the objects are mostly input ports of subdesigns or output ports of self.";
std::string const use_other_operand =
    "Do not use output ports of generators on the RHS in the generator's rtl_body and do not use input ports of "
    "instantiated subdesigns in the RHS of the rtl_body.";
std::string const concat_operand = "The concat operation cannot be performed on the operand in the RHS. The operand "
                                   "cannot be used as a source object; "
                                   "the objects are mostly input ports of subdesigns or output ports of self. Concat "
                                   "operations are illegal on the LHS.";
std::string const use_other_concat_operand =
    "Do not use output ports of generators on the RHS in the generator's rtl_body and do not use input ports of "
    "instantiated subdesigns in RHS of the rtl_body and do not use concat operations on the LHS of a port assignment.";
std::string const bad_expression =
    "The parameter is being used to specify the width of a port. However the parameter does not exist or is a string "
    "parameter (only integer parameters can be used to specify widths of ports).";

std::string const in_slice = "is already assigned in one of the slices and is again being assigned on the master array";
std::string const in_master =
    "is already assigned in the master array and is being again assigned on one of the slices";

/// The message of the table's row `id` that `raise` posts on a design named top whose body runs.
struct scenario
{
    port_message id;
    std::function<void(open_design &)> raise;
    std::string expected;
};

/// An input named a that is not connected and has no default.
GNL_PORT & unfed_input(open_design & top, int width = 0)
{
    return *new GNL_PORT_INPUT(&top, "a", width);
}

/// An array whose slices have ports of 2 and 3 bits, and so no common width.
GNL_PORT & uneven_port(open_design & top)
{
    auto next_width = std::make_shared<int>(2);
    design & arr = top.child("cell", "arr", "", 2);
    GNL_PORT & d = arr.input("d", 2);
    arr.declare_slice = [next_width](design & slice) { slice.input("d", (*next_width)++); };
    arr[0];
    d.get_width();
    return d;
}

/// The port d of an array of 4 slices of 2 bits.
GNL_PORT & even_port(open_design & top)
{
    return top.array(4, [](design & slice) { slice.input("d", 2); }).port("d");
}

std::vector<scenario> model_scenarios()
{
    return {
        {port_message::invalid_width_expression,
         [](open_design & top) { (new GNL_PORT_INPUT(&top, "a", "2*("))->get_width(); },
         error("Invalid parameter 2*( is used to specify the width of port top|a.", bad_expression,
               "Use a valid integer parameter name to specify port widths.")},
        {port_message::width_changed_outside, [](open_design & top) { top.input("a", 4).set_width(8, true); },
         error("Port top|a's port width is being changed outside of update_port_widths() function.",
               "Port widths cannot be changed outside the update_port_widths function.",
               "Avoid changing the port widths. Port widths should be specified in the constructor itself.")},
        {port_message::negative_width, [](open_design & top) { top.input("a", 4).set_width_safe(-3, true); },
         error(
             "Port top|a has negative port width -3 set.",
             "Illegal port width. Width must be 0 (for wire) or greater (for bus). The most likely causes of the error "
             "are either: the array width of the generator object is not set properly resulting in negative port "
             "widths, or the port width expression is illegal.")},
        {port_message::default_outside_constructor, [](open_design & top) { top.input("a").set_default_port_value(1); },
         error("Input port top|a is being specified a default value outside of the parent's constructor.",
               "The default value for input ports can be set only in the parent's constructor.",
               "Move the set_default_port_value () function to the parent of the port's constructor.")},
        {port_message::default_outside_constructor,
         [](open_design & top) { top.output("y").set_default_port_value(1); },
         error("Output port top|y is being specified a default value outside of the parent's constructor.",
               "The default value for input ports can be set only in the parent's constructor.",
               "Move the set_default_port_value () function to the parent of the port's constructor.")},
        {port_message::internal_option_on_operator,
         [](open_design & top) { top.input("a", 4).range(1, 0).set_qelvar_internal_option("KEEP=ON"); },
         error("Port top|a|range--w_a_range1w has been assigned the qelvar internal option setting KEEP=ON",
               "An Qelvar internal option setting has been specified on an unsupported port type.",
               "Qelvar internal option settings are supported only on input, output, bidir ports and wires.")},
        {port_message::internal_option_on_primitive,
         [](open_design & top) {
             design & cell = top.child("cell", "u1");
             cell.set_primitive();
             cell.input("d").set_qelvar_internal_option("KEEP=ON");
         },
         error("Port top|cell inst u1|d has been assigned the qelvar internal option setting KEEP=ON",
               "An Qelvar internal option setting has been specified on a port of a primitive.",
               "Qelvar internal option settings are supported only on input, output, bidir ports and wires of "
               "non-primitive entities.")},
    };
}

std::vector<scenario> connection_scenarios()
{
    return {
        {port_message::array_port_assigned, [](open_design & top) { uneven_port(top) = top.input("x", 5); },
         error("Heterogeneous port top|cell inst arr array|d is being assigned on the array parent object with top|x",
               heterogeneous)},
        {port_message::array_port_assigned_constant, [](open_design & top) { uneven_port(top) = 3; },
         error("Heterogeneous port top|cell inst arr array|d is being assigned on the array parent object with the "
               "constant value 3",
               heterogeneous)},
        {port_message::assigned_again,
         [](open_design & top) {
             auto & y = top.output("y");
             y = top.wire("a");
             y = top.wire("b");
         },
         error("Port top|y has already been assigned top|a, and is again being assigned top|b", already)},
        {port_message::assigned_again_constant,
         [](open_design & top) {
             auto & y = top.output("y", 8);
             y = top.wire("b", 8);
             y = 10;
         },
         error("Port top|y has already been assigned top|b, and is again being assigned the constant value 10",
               already)},
        {port_message::constant_assigned_again,
         [](open_design & top) {
             auto & y = top.output("y", 8);
             y = 10;
             y = top.wire("b", 8);
         },
         error("Port top|y has already been assigned  the constant value 0A, and is again being assigned top|b",
               already)},
        {port_message::constant_assigned_again_constant,
         [](open_design & top) {
             auto & y = top.output("y", 8);
             y = 10;
             y = 11;
         },
         error("Port top|y has already been assigned  the constant value 0A, and is again being assigned the constant "
               "value 11",
               already)},
        {port_message::widths_mismatched, [](open_design & top) { top.output("y", 2) = top.wire("b", 8); },
         error("Port object top|y of width  2 is being assigned the port top|b of width 8 which is illegal, as port "
               "widths dont match nor are multiples.",
               mismatch, check_widths)},
        {port_message::constant_too_wide, [](open_design & top) { top.output("y", 4) = 16; },
         error("Port object top|y of width 4 is being assigned a constant value of 16 which is illegal.",
               bad_constant)},
        {port_message::assigned_outside_body,
         [](open_design & top) {
             top.set_out_of_rtl_body();
             top.output("y") = top.wire("b");
         },
         error("Range object top|y is being assigned top|b outside of rtl_body.", body_only, make_in_body)},
        {port_message::constant_outside_body,
         [](open_design & top) {
             top.set_out_of_rtl_body();
             top.output("y") = 1;
         },
         error("Port object top|y is being assigned the constant value 1 outside of rtl_body.", body_only,
               make_in_body)},
        {port_message::assigned_in_slice,
         [](open_design & top) {
             GNL_PORT & d = even_port(top);
             (*d.get_parent())[1].port("d") = 1;
             d = top.wire("x", 8);
         },
         error("Port top|cell inst arr array|d" + in_slice + " with top|x", already)},
        {port_message::assigned_in_slice_constant,
         [](open_design & top) {
             GNL_PORT & d = even_port(top);
             (*d.get_parent())[1].port("d") = 1;
             d = 5;
         },
         error("Port top|cell inst arr array|d" + in_slice + " with the constant value 5", already)},
        {port_message::assigned_in_slice_range,
         [](open_design & top) {
             GNL_PORT & d = even_port(top);
             (*d.get_parent())[1].port("d") = 1;
             d.range(3, 2) = top.wire("x", 2);
         },
         error("Port top|cell inst arr array|d" + in_slice + " with top|x in the range 3 to 2", already)},
        {port_message::assigned_in_slice_constant_range,
         [](open_design & top) {
             GNL_PORT & d = even_port(top);
             (*d.get_parent())[1].port("d") = 1;
             d.range(3, 2) = 2;
         },
         error("Port top|cell inst arr array|d" + in_slice + " with the constant value 2 in the range 3 to 2",
               already)},
        {port_message::assigned_in_master,
         [](open_design & top) {
             GNL_PORT & d = even_port(top);
             GNL_PORT & slice = (*d.get_parent())[1].port("d");
             d = 5;
             slice = top.wire("x", 2);
         },
         error("Port top|cell inst arr[1]|d" + in_master + " with top|x", already)},
        {port_message::assigned_in_master_constant,
         [](open_design & top) {
             GNL_PORT & d = even_port(top);
             GNL_PORT & slice = (*d.get_parent())[1].port("d");
             d = 5;
             slice = 2;
         },
         error("Port top|cell inst arr[1]|d" + in_master + " with the constant value 2", already)},
        {port_message::assigned_in_master_range,
         [](open_design & top) {
             GNL_PORT & d = even_port(top);
             GNL_PORT & slice = (*d.get_parent())[1].port("d");
             d = 5;
             slice.range(1, 1) = top.wire("x");
         },
         error("Port top|cell inst arr[1]|d" + in_master + " with top|x in the range 1 to 1", already)},
        {port_message::assigned_in_master_constant_range,
         [](open_design & top) {
             GNL_PORT & d = even_port(top);
             GNL_PORT & slice = (*d.get_parent())[1].port("d");
             d = 5;
             slice.range(1, 1) = 1;
         },
         error("Port top|cell inst arr[1]|d" + in_master + " with the constant value 1 in the range 1 to 1", already)},
        {port_message::no_sink, [](open_design & top) { top.input("a") = top.wire("b"); },
         error("Port object top|a is being assigned top|b, but the port object can't be used on LHS in this connection "
               "level top",
               source_as_sink)},
        {port_message::no_sink_for_constant, [](open_design & top) { top.input("a") = 1; },
         error("Port object top|a is being assigned the constant value 1, but the port object can't be used on LHS in "
               "this connection level top",
               source_as_sink)},
        {port_message::no_source, [](open_design & top) { top.output("y") = top.output("z"); },
         error("Port object top|z is being assigned to top|y, but the port object can't be used on RHS in this "
               "connection "
               "level top",
               sink_as_source)},
        {port_message::unconnected_input, [](open_design & top) { top.output("y") = unfed_input(top); },
         error("Input port top|a is being assigned to top|y but the input port has no default value and has not been "
               "connected.",
               unconnected)},
        {port_message::no_such_bit,
         [](open_design & top) { top.output("y", 8).make_connection(top.wire("b", 2), 8, 7, &top, true); },
         error("Port top|y of width 8 is being made an assignment of top|b in the range 8 to 7", no_such_bit)},
        {port_message::no_such_bit_for_constant,
         [](open_design & top) { top.output("y", 8).make_connection(3, 8, 7, &top, true); },
         error("Port top|y of width 8 is being made an assignment of constant value 3 in the range 8 to 7",
               no_such_bit)},
        {port_message::bidir_drives_bidir,
         [](open_design & top) {
             auto & p = top.child("cell", "u1").bidir("p");
             top.bidir("io") = p;
             top.output("y") = p;
         },
         error("Bidir port top|cell inst u1|p already drives bidir port(s).", bidir_use, change_bidir)},
        {port_message::bidir_in_use,
         [](open_design & top) {
             auto & p = top.child("cell", "u1").bidir("p");
             top.bidir("io") = p;
             top.bidir("jo") = p;
         },
         error("Bidir port top|cell inst u1|p already drives bidir port(s).", bidir_use, change_bidir)},
        {port_message::bidir_in_use,
         [](open_design & top) {
             auto & p = top.child("cell", "u1").bidir("p");
             top.output("y") = p;
             top.bidir("jo") = p;
         },
         error("Bidir port top|cell inst u1|p already drives other port(s).", bidir_use, change_bidir)},
    };
}

std::vector<scenario> range_scenarios()
{
    return {
        {port_message::range_out_of_bounds, [](open_design & top) { top.wire("b", 8).range(8, 0); },
         error("Port top|b is of width 8 but the range indices are (8, 0)",
               "The range indices are illegal, either the higher index is more than the width of the port or the lower "
               "index is less than 0.")},
        {port_message::range_across_slices,
         [](open_design & top) {
             GNL_PORT & d = even_port(top);
             d = top.wire("x", 8);
             d.range(2, 1);
         },
         error(
             "Range operation is being performed on top|cell inst arr|d but the range operation is illegal, as "
             "either the indices are illegal or the parent of the port is a heterogeneous array.",
             "The range object has illegal indices for the array object. When a range operation is being performed on "
             "a port of an array object, the range indices should not start in the middle of one slice's port and end "
             "at the middle of another slice's port, that is, the range indices should be a multiple of the port width "
             "of a slice. Range operations cannot be performed on ports of heterogeneous arrays.")},
        {port_message::array_port_range, [](open_design & top) { uneven_port(top).check_range_for_arrays(1, 0); },
         error("Heterogeneous port top|cell inst arr array|d is being assigned on the array parent object.",
               heterogeneous)},
        {port_message::range_order, [](open_design & top) { top.wire("b", 8).range(1, 3); },
         error("Range operation on port top|b has illegal range indices, high index is 1 but low index is 3",
               "The higher index of the port is less than the lower index.")},
        {port_message::unconnected_input_in_range,
         [](open_design & top) { top.output("y", 2) = unfed_input(top, 4).range(1, 0); },
         error("Range object top|a|range--w_a_range1w of input port top|a is being used, but the input port is not "
               "connected and has no default.",
               unconnected)},
        {port_message::range_widths_mismatched,
         [](open_design & top) { top.output("y", 8).range(1, 0) = top.wire("b", 3); },
         error("Range object top|y|range--w_y_range1w of width  2 is being assigned the port top|b of width 3 which is "
               "illegal, as port widths dont match nor are multiples.",
               mismatch, check_widths)},
        {port_message::range_no_sink, [](open_design & top) { top.input("a", 4).range(1, 0) = top.wire("b", 2); },
         error(
             "Range object top|a|range--w_a_range1w is being assigned top|b, but the range object can't be used on LHS "
             "in this connection level top",
             source_as_sink)},
        {port_message::assigned_outside_body,
         [](open_design & top) {
             auto & part = top.output("y", 4).range(1, 0);
             top.set_out_of_rtl_body();
             part = top.wire("b", 2);
         },
         error("Range object top|y|range--w_y_range1w is being assigned top|b outside of rtl_body.", body_only,
               make_in_body)},
        {port_message::range_constant_outside_body,
         [](open_design & top) {
             auto & part = top.output("y", 4).range(1, 0);
             top.set_out_of_rtl_body();
             part = 2;
         },
         error("Range object top|y|range--w_y_range1w is being assigned the constant value 2 outside of rtl_body.",
               body_only, make_in_body)},
        {port_message::range_constant_too_wide, [](open_design & top) { top.output("y", 4).range(1, 0) = 4; },
         error("Range object top|y|range--w_y_range1w of width 2 is being assigned a constant value of 4 which is "
               "illegal.",
               bad_constant)},
        {port_message::range_no_sink_for_constant, [](open_design & top) { top.input("a", 4).range(1, 0) = 2; },
         error(
             "Range object top|a|range--w_a_range1w is being assigned the constant value 2, but the range object can't "
             "be used on LHS in this connection level top",
             source_as_sink)},
    };
}

std::vector<scenario> concat_scenarios()
{
    return {
        {port_message::source_bits_assigned,
         [](open_design & top) {
             auto & y = top.output("y", 8);
             y.range(3, 0) = top.wire("b", 4);
             y.range(5, 2) = top.wire("c", 4);
         },
         error("The source port top|y already has one or more bits in the range 5 to 2 assigned.", bits_assigned)},
        {port_message::concat_bits_assigned,
         [](open_design & top) {
             auto & pieces = *new GNL_PORT_CONCAT(&top, 8);
             pieces.add_at_index(top.wire("b", 4), 3, 0, nullptr);
             pieces.add_at_index(top.wire("c", 4), 5, 2, nullptr);
         },
         error("The concat port CONCAT (top|b , ) already has one or more bits in the range 5 to 2 assigned.",
               bits_assigned)},
        {port_message::concat_outside_body,
         [](open_design & top) {
             auto & b = top.wire("b");
             auto & c = top.wire("c");
             top.set_out_of_rtl_body();
             (b, c);
         },
         error("Concat operation between top|b and top|c is being done outside of rtl_body.", body_only, make_in_body)},
        {port_message::no_concat_source, [](open_design & top) { (top.wire("b"), top.output("y")); },
         error("Concat operation cannot be performed on port top|y with top|b, as port cannot appear in the RHS at the "
               "level top",
               concat_operand, use_other_concat_operand)},
        {port_message::unconnected_input_in_concat, [](open_design & top) { (unfed_input(top), top.wire("b")); },
         error("Input port top|a is being used in concat operation with top|b but the input port has no default value "
               "and has not been connected.",
               unconnected)},
        {port_message::concat_bits_unassigned,
         [](open_design & top) {
             auto & pieces = *new GNL_PORT_CONCAT(&top, 8);
             pieces.add_at_index(top.wire("b", 4), 7, 4, nullptr);
             described(pieces, top);
         },
         error("Concat object CONCAT (top|b , ) has bits in the range 3 to 0 unassigned.", bits_unassigned)},
        {port_message::port_bits_unassigned,
         [](open_design & top) {
             auto & y = top.output("y", 8);
             y.range(3, 0) = top.wire("b", 4);
             described(*y.get_driver(), top, false, &y);
         },
         error("Port object top|y has bits in the range 7 to 3 unassigned.", bits_unassigned)},
    };
}

std::vector<scenario> logic_scenarios()
{
    return {
        {port_message::logic_widths, [](open_design & top) { top.wire("b", 8) & top.wire("c", 4); },
         error("Logical operation AND performed between top|b of width 8 and top|c of width 4 is illegal as the port "
               "widths dont match, and neither of the port widths are 1.",
               "The port widths are mismatched in the logic operator. Port widths of the operands in a logic operation "
               "should be the same or if the operands are of different widths, one of them must be 1 bit wide.")},
        {port_message::logic_outside_body,
         [](open_design & top) {
             auto & b = top.wire("b");
             auto & c = top.wire("c");
             top.set_out_of_rtl_body();
             b | c;
         },
         error("Logical operation OR between top|b and top|c is being done outside of rtl_body.", body_only,
               make_in_body)},
        {port_message::no_logic_source, [](open_design & top) { top.wire("b") ^ top.output("y"); },
         error(
             "Logical operation XOR cannot be performed on port top|y with top|b, as port cannot appear in the RHS at "
             "the level top",
             logic_operand, use_other_operand)},
        {port_message::unconnected_input_in_logic, [](open_design & top) { unfed_input(top) & top.wire("b"); },
         error("Input port top|a is being used in logical operation AND with top|b but the input port has no default "
               "value and has not been connected.",
               unconnected)},
        {port_message::not_outside_body,
         [](open_design & top) {
             auto & b = top.wire("b");
             top.set_out_of_rtl_body();
             !b;
         },
         error("NOT operation on top|b is being done outside rtl_body.", body_only, make_in_body)},
        {port_message::no_not_source, [](open_design & top) { ~top.output("y"); },
         error("Logical operation NOT cannot be performed on port top|y, as port cannot appear in the RHS at the level "
               "top",
               logic_operand, use_other_operand)},
        {port_message::unconnected_input_in_not, [](open_design & top) { ~unfed_input(top); },
         error(
             "Input port top|a is being used in logical operation NOT but the input port has no default value and has "
             "not been connected.",
             unconnected)},
        {port_message::no_bus_to_reduce, [](open_design & top) { top.wire("b", 1).bitwise_or(); },
         error("Logical operation bitwise OR cannot be performed on port top|b, as port is not a bus ",
               "Bitwise operators can be used only on ports that are atleast 2 bits wide.",
               "Remove the bitwise operator function or check the bus width size.")},
    };
}

std::vector<scenario> description_scenarios()
{
    return {
        {port_message::bidir_to_non_bidir,
         [](open_design & top) {
             auto & p = top.child("cell", "u1").bidir("p", 2);
             auto & part = top.wire("b", 4).range(1, 0);
             p.set_driven_bidir_port(&part);
             std::ostringstream out;
             p.dump_special_driver_description(out, &top, -1);
         },
         error("Bidir port top|cell inst u1|p is illegally connected to a non bidir port top|b|range--w_b_range1w "
               "through "
               "a bidir--bidir connection.",
               " A bidir port is driven by a range object that is not derived from a bidir port. This will generate an "
               "illegal bidir to bidir connection where one of them is as a result, a non bidir port..",
               "Properly specify all bidir to bidir connections.")},
    };
}

std::vector<scenario> all_scenarios()
{
    std::vector<scenario> all;
    for (auto const & group : {model_scenarios(), connection_scenarios(), range_scenarios(), concat_scenarios(),
                               logic_scenarios(), description_scenarios()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

class PortMessages : public in_folder_with_parameter<scenario>
{
};

TEST_P(PortMessages, HasItsText)
{
    open_design top(GNL_VERILOG);
    GetParam().raise(top);
    EXPECT_EQ(top.messages(), texts{GetParam().expected});
}

std::string name_of(testing::TestParamInfo<scenario> const & info)
{
    return std::string(text_of(info.param.id).id) + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(EachRow, PortMessages, testing::ValuesIn(all_scenarios()), name_of);

TEST(PortMessageTable, HasAScenarioForEachRow)
{
    std::set<std::string_view> raised;
    for (auto const & each : all_scenarios())
        raised.insert(text_of(each.id).id);
    for (auto const & row : gnl_detail::port_message_texts)
        EXPECT_TRUE(raised.contains(row.id)) << row.id << " is in the table but no test raises it";
}

} // namespace
