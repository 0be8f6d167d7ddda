// Every message of registry, accessors, arrays and names, raised once, with its exact text.

#include "support.h"

#include "lbx/gnl/core/core_messages.h"

namespace {

using namespace gnl_test;

using CoreMessages = in_folder;

struct scenario
{
    std::function<void(design & top)> raise;
    std::string expected;
};

std::string const no_parameter_cause = "The parameter object does not exist or is of a different parameter type.";
std::string const no_parameter_action =
    "Lumen box parameter names are case insensitive. Check for spelling mistakes or for the use of incorrect accessor "
    "functions (using parameter_integer () function for a string parameter or vice versa).";

/// By the name of the row that the scenario raises.
std::map<std::string_view, scenario> const scenarios = {
    {"parent_is_itself",
     {[](design & top) { top.insert(&top, ""); },
      error("Parent of generator object top is itself.", "A generator object is marked as its own parent.",
            "If the generator is the top level object, use NULL as parent, or else use the immediate top level design "
            "as parent.")}},
    {"parameter_in_body",
     {[](design & top) {
          GNL_PARAMETER_INTEGER late(nullptr, "LATE", 1);
          top.run([&](design &) { top.insert(&late, ""); });
      },
      error("Parameter LATE is being created inside rtl_body of top",
            "In a lumen box, parameter objects of a generator cannot be created in heap (using new) inside the rtl "
            "body.",
            "The parameter objects of a generator should be declared as member objects of the generator class.")}},
    {"destroyed_in_body",
     {[](design & top) { top.run([&](design &) { delete &top.wire("scratch"); }); },
      error("Lumenbox element top|scratch is being destroyed inside the rtl_body of top",
            "Removing a lumen box element (either through explicit delete or by going out of scope) while inside the "
            "rtl body is illegal.",
            "All dynamically created lumen box elements that have a valid parent will be automatically handled during "
            "destruction. Deletion of other objects (if needed) should be done in the destructor and not inside the "
            "rtl body.")}},
    {"no_port",
     {[](design & top) { top.port("NONE"); },
      error("No port object NONE exists in top",
            "The port object does not exist in the gigafunction.   This results in an attempt to use the port () "
            "accessor function on a non-existent port name.",
            "Lumen box port names are case insensitive. Check for spelling mistakes in declaration or usage.")}},
    {"no_integer_parameter",
     {[](design & top) { top.parameter_integer("NONE"); },
      error("No integer parameter object NONE exists in top", no_parameter_cause, no_parameter_action)}},
    {"no_string_parameter",
     {[](design & top) { top.parameter_string("NONE"); },
      error("No string parameter object NONE exists in top", no_parameter_cause, no_parameter_action)}},
    {"no_vector_parameter",
     {[](design & top) { top.parameter_vector("NONE"); },
      error("No parameter object NONE exists in top", no_parameter_cause, no_parameter_action)}},
    {"not_an_array",
     {[](design & top) { top[0]; },
      error("Generator top is not an array object, but the array indexing operator is being used on it.",
            "An array indexing operator [] can be used only on array objects.",
            "A generator object has been declared as a non-array object. Either change the declaration or do not use "
            "the array indexing operator.")}},
    {"slice_out_of_range",
     {[](design & top) { top.child("cell", "u", "", 2)[2]; },
      error("Array width of generator object  top|cell inst u is 2 but the slice index is 2",
            "Trying to access the index of an array that is greater than the width of the array or less than 0 is "
            "illegal.")}},
    {"assigned_after_connections",
     {[](design & top) {
          auto & size = top.integer("SIZE", 1);
          top.input("a").get_width();
          size = 2;
      },
      error("Parameter top|SIZE has been assigned a value after port connections are made to the generator top.",
            "In a lumen box, all parameter assignments should be made before making port connections.",
            "Make all parameter assignments before making port connections.")}},
    {"instance_name_taken",
     {[](design & top) {
          top.child("cell", "u1");
          top.check_instance_name_collision("U1");
      },
      error("Instance name U1 is already being specified as the instance name for generator top|cell inst u1.",
            "Same instance name has been used for multiple entries.",
            "Use different instance names or do not specify the instance name and let lumenbox auto-generate instance "
            "names.")}},
    {"wire_name_taken",
     {[](design & top) {
          top.wire("net");
          top.check_wire_name_collision("Net");
      },
      error("Wire name Net is already being specified as the wire name for port top|net.",
            "Same wire name has been used for multiple entries.",
            "Use different wire names or do not specify the wire name and let lumenbox auto-generate wire names.")}},
};

TEST_F(CoreMessages, EachHasItsText)
{
    for (auto const & [id, scenario] : scenarios) {
        design top(nullptr, "top", "LBX_FILE=top.v");
        top.dump = false;
        scenario.raise(top);
        EXPECT_EQ(top.messages(), texts{scenario.expected}) << id;
        EXPECT_EQ(top.get_port_object("more"), nullptr);
        EXPECT_EQ(top.input("more").get_name(), "more"); // the design is still usable
    }
}

TEST_F(CoreMessages, EachHasAScenario)
{
    for (auto const & message : gnl_detail::core_message_texts)
        EXPECT_EQ(scenarios.count(message.id), 1U) << message.id;
    EXPECT_EQ(scenarios.size(), std::size(gnl_detail::core_message_texts));
}

} // namespace
