// Every message of parameters, raised once, with its exact text.

#include "parameter_errors.h"

#include "lbx/gnl/parameters/parameter_messages.h"

namespace {

using namespace gnl_test;
using gnl_detail::parameter_message;

struct scenario
{
    void (*raise)(design & top);
    std::string expected;
};

void read_a_whole_vhdl_array(design & top)
{
    GNL_PARAMETER_INTEGER_ARRAY taps(&top, "TAPS", 0);
    taps[1] = 3;
    std::ostringstream out;
    taps.dump_vhdl_generic_declaration(out, false, true);
}

std::map<parameter_message, scenario> const scenarios = {
    {parameter_message::inherit_only_in_body,
     {[](design & top) {
          auto & size = top.integer("SIZE", 1);
          size.set_as_inherit_only();
          top.run([&](design &) { size = 4; });
      },
      inherit_only_in_body("SIZE", "4")}},
    {parameter_message::vector_inherit_only_in_body,
     {[](design & top) {
          auto & init = top.vector("INIT", 0, 8);
          init = 1;
          top.run([&](design &) {
              init.set_as_inherit_only();
              init = std::string("0x3");
          });
      },
      vector_inherit_only_in_body("INIT", "0x3")}},
    {parameter_message::expression_reassigned,
     {[](design & top) {
          auto & depth = top.integer("DEPTH", 1);
          depth = top.integer("SIZE", 1).get_parameter() + 1;
          depth = 6;
      },
      expression_reassigned("DEPTH", "(SIZE + 1)", "6")}},
    {parameter_message::exposed_read,
     {[](design & top) {
          auto & size = top.integer("SIZE", 1);
          size.set_as_parameterized();
          size.get_value();
      },
      exposed_read("SIZE")}},
    {parameter_message::cannot_be_exposed,
     {[](design & top) { top.vector("INIT", 0, 8).set_as_parameterized(); }, cannot_be_exposed("INIT")}},
    {parameter_message::no_value, {[](design & top) { top.integer("SIZE").get_value(); }, no_value("SIZE")}},
    {parameter_message::no_inherited_value,
     {[](design & top) {
          auto & size = top.child("sub", "u").integer("SIZE", 5);
          size.set_as_inherit_only();
          size.get_value();
      },
      no_inherited_value("SIZE")}},
    {parameter_message::illegal_vector_text,
     {[](design & top) { top.vector("INIT", 0, 8) = std::string("0xG1"); }, illegal_vector_text("INIT", "0xG1")}},
    {parameter_message::illegal_vector_width,
     {[](design & top) { top.vector("INIT", 0, -1) = 1; }, illegal_vector_width("INIT")}},
    {parameter_message::vector_width_fixed,
     {[](design & top) { top.vector("INIT", 0, 8).set_width(9); }, vector_width_fixed("INIT")}},
    {parameter_message::vector_not_assigned,
     {[](design & top) { top.vector("INIT", 0, 8).get_value(); }, vector_not_assigned("INIT")}},
    {parameter_message::vector_inherits,
     {[](design & top) {
          auto & init = top.vector("INIT", 0, 8);
          init = 1;
          init.set_as_inherit_allowed();
          init.get_value();
      },
      vector_inherits("INIT")}},
    {parameter_message::vhdl_array_unbound, {read_a_whole_vhdl_array, vhdl_array_unbound("TAPS")}},
};

class ParameterMessages : public in_folder_with_parameter<int>
{
};

TEST_P(ParameterMessages, IsRaisedWithItsText)
{
    auto const id = static_cast<parameter_message>(GetParam());
    auto const found = scenarios.find(id);
    ASSERT_NE(found, scenarios.end()) << "no scenario for " << text_of(id).id;
    design top(nullptr);
    top.dump = false;
    found->second.raise(top);
    EXPECT_EQ(top.messages(), texts{found->second.expected});
}

INSTANTIATE_TEST_SUITE_P(All, ParameterMessages,
                         ::testing::Range(0, static_cast<int>(std::size(gnl_detail::parameter_message_texts))));

} // namespace
