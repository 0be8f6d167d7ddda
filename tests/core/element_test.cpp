// Names, keys and levels of elements and generators.

#include "support.h"

namespace {

using namespace gnl_test;

using Element = in_folder;

struct plain_copy : GNL_GENERATOR
{
    explicit plain_copy(GNL_GENERATOR const & other)
        : GNL_GENERATOR(other)
    {
    }
};

TEST_F(Element, AssignmentLeavesARegisteredElementWhatItIs)
{
    design one(nullptr, "one");
    design two(nullptr, "two");
    auto & a = one.vector("A", 0, 8);
    auto & b = two.vector("B", 0, 8);
    b = std::string("0x5");
    a = b;
    EXPECT_EQ(a.get_name(), "A");
    EXPECT_EQ(a.get_parent(), &one);
    EXPECT_EQ(one.get_parameter_object("A"), &a);
    EXPECT_EQ(one.get_parameter_object("B"), nullptr);
}

TEST_F(Element, CanBeGivenTheNameThatItHas)
{
    design top(nullptr);
    auto & a = top.input("a_name_that_is_too_long_for_a_string_of_its_own");
    a.change_name(a.get_name());
    EXPECT_EQ(a.get_name(), "a_name_that_is_too_long_for_a_string_of_its_own");
    EXPECT_EQ(top.get_port_object(a.get_name()), &a);
}

TEST_F(Element, ACopiedGeneratorTakesTheStateAndOwnsNothing)
{
    design top(nullptr);
    design source(&top, "cell", "A=1", 3);
    source.set_instance_name("u");
    source.set_vhdl_library("work.cells", true);
    source.input("a");
    plain_copy const copy(source);
    EXPECT_EQ(copy.get_name(), "cell");
    EXPECT_EQ(copy.get_parent(), &top);
    EXPECT_EQ(copy.get_instance_name(), "u");
    EXPECT_EQ(copy.get_vhdl_library(), "work.cells");
    EXPECT_EQ(copy.get_array_width(), 3);
    EXPECT_FALSE(copy.needs_vhdl_component());
    EXPECT_EQ(top.find_port_object("GNRTR;cell;u"), &source);
    EXPECT_NE(source.get_port_object("a"), nullptr);
    EXPECT_NE(copy.get_device_info(), source.get_device_info());
}

TEST_F(Element, ACopyRegistersWhenItIsNamed)
{
    design top(nullptr);
    design source(&top, "cell");
    source.set_instance_name("u1");
    plain_copy copy(source);
    copy.set_instance_name("u2");
    EXPECT_EQ(top.find_port_object("GNRTR;cell;u2"), &copy);
    EXPECT_EQ(top.find_port_object("GNRTR;cell;u1"), &source);
}

TEST_F(Element, HierarchicalNamesOfAnArrayAtTheTop)
{
    design array(nullptr, "cell", "", 2);
    array.set_instance_name("u");
    EXPECT_EQ(array.get_hierarchical_name(), "cell");
    EXPECT_EQ(array[1].get_hierarchical_name(), "cell inst u[1]");
}

TEST_F(Element, DeviceInfoKnowsItsGenerator)
{
    design top(nullptr);
    EXPECT_EQ(top.get_device_info()->get_generator(), &top);
    EXPECT_EQ(top.get_device_info(), top.get_device_info());
}

TEST_F(Element, AccessorsTakeNoNameForAnEmptyOne)
{
    design top(nullptr);
    char const * nothing = nullptr;
    EXPECT_EQ(top.port(nothing).get_name(), "");
    EXPECT_EQ(top.messages().size(), 1U);
}

TEST_F(Element, SubstitutesCanBeUsedLikeTheRealOnes)
{
    design top(nullptr);
    top.port("none") = top.port("neither");
    top.parameter_integer("NONE") = 3;
    top.parameter_string("NONE") = "text";
    top.parameter_vector("NONE") = 3;
    EXPECT_EQ(top.messages().size(), 5U);
}

TEST_F(Element, SlicesAreNotAmongTheSubdesignsByInstanceName)
{
    design top(nullptr);
    auto & array = top.child("cell", "u", "", 2);
    array[0];
    array.child("leaf", "inner");
    std::map<std::string, GNL_GENERATOR *, LESS_C_STRING> subdesigns;
    array.get_subdesign_generator_objects(subdesigns);
    ASSERT_EQ(subdesigns.size(), 1U);
    EXPECT_EQ(subdesigns.begin()->first, "inner");
}

TEST_F(Element, APortOfASliceSitsOnADirectSubdesign)
{
    design top(nullptr);
    auto & array = top.child("cell", "u", "", 2);
    array.declare_slice = [](design & slice) { slice.input("d"); };
    EXPECT_TRUE(top.is_child_of_subdesign(&array[1].port("d")));
    EXPECT_FALSE(top.is_child_of_subdesign(nullptr));
}

TEST_F(Element, DisablingCustomOutputLeavesTheVhdlFlag)
{
    design top(nullptr);
    top.set_use_custom_verilog_output();
    top.set_use_custom_vhdl_output();
    top.set_use_custom_qhdl_output();
    top.set_custom_subdesign_insert_mode();
    top.disable_custom_output();
    EXPECT_FALSE(top.uses_custom_verilog_output());
    EXPECT_TRUE(top.uses_custom_vhdl_output());
    EXPECT_FALSE(top.uses_custom_qhdl_output());
    EXPECT_FALSE(top.uses_custom_subdesign_insert_mode());
}

TEST_F(Element, VersionIsThatOfTheProject)
{
    EXPECT_NE(get_lbx_gnl_version(), "");
    EXPECT_NE(get_lbx_gnl_version().find('.'), std::string::npos);
}

} // namespace
