// Slices of arrays: their parameters, widths and connections.

#include "support.h"

#include "lbx/gnl/core/element_registry.h"

namespace {

using namespace gnl_test;

using Arrays = in_folder;

/// An array of cells with an input d and an output q of `width`, an integer SIZE and a string MODE.
design & array_of(design & parent, int count, std::string const & width = "0")
{
    auto & array = parent.child("cell", "u", "", count);
    array.declare_slice = [width](design & slice) {
        if (width == "SIZE") {
            new GNL_PORT_INPUT(&slice, "d", std::string("SIZE"));
            new GNL_PORT_OUTPUT(&slice, "q", std::string("SIZE"));
        } else {
            slice.input("d", std::stoi(width));
            slice.output("q", std::stoi(width));
        }
        slice.integer("SIZE", 2);
        slice.string("MODE", "SLOW|FAST", 0);
    };
    array.declare_slice(array);
    array.dump = parent.dump;
    return array;
}

/// Runs `body` inside the body of a top generator and returns its messages.
texts in_body(std::function<void(design &)> const & body)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    top.run(body);
    return top.messages();
}

std::string const too_late = "has been assigned a value after port connections are made to the generator ";
std::string const too_late_cause =
    "In a lumen box, all parameter assignments should be made before making port connections.";
std::string const too_late_action = "Make all parameter assignments before making port connections.";

TEST_F(Arrays, ANegativeArrayWidthIsOutOfRangeForEveryIndex)
{
    design top(nullptr);
    auto & array = top.child("cell", "u", "", -2);
    EXPECT_EQ(&array[0], &array);
    EXPECT_EQ(top.messages(),
              (texts{error("Array width of generator object  top|cell inst u is -2 but the slice index is 0",
                           "Trying to access the index of an array that is greater than the width of the array or less "
                           "than 0 is illegal.")}));
}

TEST_F(Arrays, AClassThatMakesNoSlicesLeavesTheMaster)
{
    class bare : public GNL_GENERATOR
    {
    public:
        explicit bare(GNL_GENERATOR * parent)
            : GNL_GENERATOR(parent, "bare", "", 3)
            , size(this, "SIZE", 1)
        {
        }
        GNL_PARAMETER_INTEGER size;
    };
    design top(nullptr);
    bare array(&top);
    array.size = 4;
    EXPECT_EQ(&array[2], &array);
    EXPECT_TRUE(array.is_master_array());
    array.size = 5;
    EXPECT_EQ(array.get_port_object_from_slice(1, "d"), nullptr);
    EXPECT_FALSE(array.is_heterogeneous_array());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Arrays, ASliceThatIsGivenNothingIsLikeItsMaster)
{
    design top(nullptr);
    auto & array = array_of(top, 2);
    array.parameter_integer("SIZE") = 7;
    array[0];
    array.parameter_string("MODE") = "FAST";
    EXPECT_EQ(array[1].parameter_integer("SIZE").get_value(), 7);
    EXPECT_EQ(array[1].parameter_string("MODE").get_value(), "FAST");
    EXPECT_FALSE(array.is_heterogeneous_array());
    EXPECT_FALSE(array[1].is_heterogeneous_element());
}

TEST_F(Arrays, OwnValuesSurviveALaterAssignmentToTheMaster)
{
    design top(nullptr);
    auto & array = array_of(top, 3);
    array[1].parameter_integer("size") = 5;
    array.parameter_integer("SIZE") = 9;
    array.parameter_string("MODE") = "FAST";
    EXPECT_EQ(array[0].parameter_integer("SIZE").get_value(), 9);
    EXPECT_EQ(array[1].parameter_integer("SIZE").get_value(), 5);
    EXPECT_EQ(array[1].parameter_string("MODE").get_value(), "FAST"); // only SIZE is its own
    EXPECT_EQ(array[2].parameter_integer("SIZE").get_value(), 9);
}

TEST_F(Arrays, TheParameterTextOfTheMasterReachesTheSlices)
{
    design top(nullptr);
    auto & array = *new design(&top, "cell", "iname=row,SIZE=6,MODE=FAST", 2);
    array.declare_slice = [](design & slice) {
        slice.integer("SIZE", 2);
        slice.string("MODE", "SLOW|FAST", 0);
    };
    array.declare_slice(array);
    EXPECT_EQ(array[1].parameter_integer("SIZE").get_value(), 6);
    EXPECT_EQ(array[1].parameter_string("MODE").get_value(), "FAST");
    EXPECT_EQ(array[1].get_instance_name(), "rowa");
    EXPECT_FALSE(array.is_heterogeneous_array());
}

TEST_F(Arrays, AValueOutsideOfTheListIsWarnedOfOnce)
{
    design top(nullptr);
    auto & array = array_of(top, 3);
    array.parameter_string("MODE") = "TURBO";
    array[0];
    EXPECT_EQ(array[2].parameter_string("MODE").get_value(), "TURBO");
    array.parameter_string("MODE") = "WARP";
    EXPECT_EQ(array[2].parameter_string("MODE").get_value(), "WARP");
    EXPECT_EQ(top.messages().size(), 2U);
}

TEST_F(Arrays, InheritOnlyParametersOfSlicesAreLeftAlone)
{
    EXPECT_EQ(in_body([](design & top) {
                  auto & array = top.child("cell", "u", "DEVICE_FAMILY=any", 2);
                  array.declare_slice = [](design & slice) { slice.string("DEVICE_FAMILY", "any|other", 1); };
                  array.declare_slice(array);
                  array[1];
              }).size(),
              1U); // the assignment to the master itself
}

TEST_F(Arrays, ExpressionsReachTheSlices)
{
    design top(nullptr);
    auto & exposed = top.integer("DEPTH", 4);
    exposed.set_as_parameterized();
    auto & array = array_of(top, 2);
    array.parameter_integer("SIZE") = exposed.get_parameter() + 1;
    EXPECT_EQ(array[1].parameter_integer("SIZE").get_expr_assignment(), "(DEPTH + 1)");
    EXPECT_FALSE(array.is_heterogeneous_array());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Arrays, AnAssignmentAfterTheFirstConnectionIsReportedWithTheHierarchicalName)
{
    auto const messages = in_body([](design & top) {
        auto & child = top.child("cell", "u");
        auto & size = child.integer("SIZE", 1);
        auto & d = child.input("d");
        d = 1;
        size = 4;
    });
    EXPECT_EQ(messages, (texts{error("Parameter top|cell inst u|SIZE " + too_late + "top|cell inst u.", too_late_cause,
                                     too_late_action)}));
}

TEST_F(Arrays, WidthsMultiplyOnceHoweverOftenTheyAreSetUp)
{
    struct repeated : design
    {
        using design::design;
        using GNL_GENERATOR::process_port_widths;
    };
    design top(nullptr);
    repeated array(&top, "cell", "", 4);
    array.input("d", 3);
    array.input("s");
    new GNL_PORT_INPUT(&array, "m", 2, 5);
    for (int i = 0; i < 3; ++i) {
        array.process_port_widths();
        EXPECT_EQ(array.port("d").get_default_width(), 12);
        EXPECT_EQ(array.port("s").get_default_width(), 4);
        EXPECT_EQ(array.port("m").get_default_width(), 40);
        EXPECT_EQ(array.port("m").get_original_width(), 2);
    }
    EXPECT_FALSE(array.port("d").is_heterogeneous_port());
}

TEST_F(Arrays, UnevenWidthsMarkPortAndArray)
{
    in_body([](design & top) {
        auto & array = array_of(top, 3, "SIZE");
        array[2].parameter_integer("SIZE") = 1;
        EXPECT_EQ(array.port("d").get_width(), 5);
        EXPECT_TRUE(array.port("d").is_heterogeneous_port());
        EXPECT_TRUE(array.has_unrolled_vhdl_loop());
    });
}

TEST_F(Arrays, OnlyTheSlicesOfTheBitsInQuestionConflict)
{
    in_body([](design & top) {
        auto & a = top.wire("a", 2);
        auto & array = array_of(top, 3, "2");
        array[1].port("d") = a;
        EXPECT_TRUE(array.check_slices_for_port_assignment("d", 2, 0, 1));
        EXPECT_FALSE(array.check_slices_for_port_assignment("d", 2, 1, 2));
        EXPECT_FALSE(array.check_slices_for_port_assignment("D", 2, 0, 5));
        EXPECT_TRUE(array.check_slices_for_port_assignment("d", 2, 4, 5));
        EXPECT_FALSE(array.check_slices_for_port_assignment("d", 0, 1, 1)); // bits of scalars are slices
        EXPECT_TRUE(array.check_slices_for_port_assignment("d", 0, 2, 100));
        EXPECT_TRUE(array.check_slices_for_port_assignment("none", 2, 0, 5));
        EXPECT_TRUE(array[0].check_slices_for_port_assignment("d", 2, 0, 1)); // no master
    });
}

TEST_F(Arrays, AConstantOnASliceConflictsToo)
{
    in_body([](design & top) {
        auto & array = array_of(top, 2);
        array[1].port("d") = 1;
        EXPECT_FALSE(array.check_slices_for_port_assignment("d", 0, 0, 1));
    });
}

TEST_F(Arrays, ConnectionsAroundTheArrayDoNotConflictInsideItsOwnBody)
{
    in_body([](design & top) {
        auto & array = array_of(top, 2);
        array[1].port("d") = 1;
        array.set_in_rtl_body();
        EXPECT_TRUE(array.check_slices_for_port_assignment("d", 0, 0, 1));
        array.set_out_of_rtl_body();
    });
}

TEST_F(Arrays, ASliceAsksForTheBitsOfItsOwnOnTheMaster)
{
    in_body([](design & top) {
        auto & a = top.wire("a", 2);
        auto & array = array_of(top, 3, "2");
        auto & slice = array[1];
        array.port("d").range(3, 2) = a;
        EXPECT_FALSE(slice.check_parent_for_port_assignment("d", 2, 0, 1));
        EXPECT_FALSE(slice.check_parent_for_port_assignment("d", 2, 1, 0)); // in either order
        EXPECT_TRUE(array[0].check_parent_for_port_assignment("d", 2, 0, 1));
        EXPECT_TRUE(array[2].check_parent_for_port_assignment("d", 2, 0, 1));
        EXPECT_TRUE(slice.check_parent_for_port_assignment("none", 2, 0, 1));
        EXPECT_TRUE(array.check_parent_for_port_assignment("d", 2, 0, 1));
        slice.set_in_rtl_body();
        EXPECT_TRUE(slice.check_parent_for_port_assignment("d", 2, 0, 1));
        slice.set_out_of_rtl_body();
    });
}

TEST_F(Arrays, ManySlicesAreMadeNamedAndConnectedInOneGo)
{
    auto const messages = in_body([](design & top) {
        auto & a = top.wire("a");
        auto & array = array_of(top, 10000);
        array.parameter_integer("SIZE") = 3;
        for (int i = 0; i < 10000; ++i)
            array[i].port("d") = a;
        array.set_instance_name("row");
        EXPECT_EQ(array[9999].get_instance_name(), "row");
        EXPECT_EQ(array.registry().generators().size(), 10000U);
    });
    EXPECT_EQ(messages, texts{});
}

// ---- Grouping

TEST_F(Arrays, GroupingFillsWhatTheMasterLeftOpen)
{
    auto const messages = in_body([](design & top) {
        auto & a = top.wire("a", 2);
        auto & b = top.wire("b", 2);
        auto & array = array_of(top, 3, "2");
        array[0];
        array.port("d").range(1, 0) = a;
        array[1].port("d") = b;
        array[2].port("d") = 2;
        top.dump_hdl_group_subdesign_slices(&top);
        auto & d = array.port("d");
        EXPECT_EQ(
            d.get_driver()->get_hierarchical_name(),
            "CONCAT ("
                + static_cast<GNL_PORT_CONCAT *>(d.get_driver())->get_concat_element(0)->port->get_hierarchical_name()
                + " , top|b , top|a , )");
        auto * constant = static_cast<GNL_PORT_CONCAT *>(d.get_driver())->get_concat_element(0)->port;
        EXPECT_EQ(constant->constant_driving_value(), "10");
        top.dump_hdl_group_subdesign_slices(&top); // nothing is joined twice
    });
    EXPECT_EQ(messages, texts{});
}

TEST_F(Arrays, WideConstantsOfSlicesKeepAllTheirBits)
{
    auto const messages = in_body([](design & top) {
        auto & a = top.wire("a", 40);
        auto & array = array_of(top, 2, "40");
        array[0];
        array.port("d").range(39, 0) = a;
        MLIB_UINTEGER value(0, 40);
        value.set_bit(39, true);
        value.set_bit(31, true);
        array[1].port("d") = value;
        array.group_input_assignments(&top);
        auto * constant = static_cast<GNL_PORT_CONCAT *>(array.port("d").get_driver())->get_concat_element(0)->port;
        EXPECT_EQ(constant->constant_driving_value_as_mlib_int()->as_hex_string(), "8080000000");
    });
    EXPECT_EQ(messages, texts{});
}

TEST_F(Arrays, GroupingAtAnotherLevelChangesNothing)
{
    in_body([](design & top) {
        auto & a = top.input("a");
        auto & array = array_of(top, 2);
        array[0];
        array.port("d").range(0, 0) = a;
        array[1].port("d") = a;
        array.group_input_assignments(&array);
        EXPECT_FALSE(static_cast<GNL_PORT_CONCAT *>(array.port("d").get_driver())->has_bits_assigned(1, 1));
    });
}

TEST_F(Arrays, InQhdlFullyConnectedScalarsAreJoined)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    auto & a = top.input("a");
    top.dump = false;
    top.run([&](design &) {
        auto & array = array_of(top, 3);
        array[0].port("d") = a;
        array[1].port("d") = 1;
        top.dump_hdl_group_subdesign_slices(&top);
        EXPECT_EQ(array.port("d").get_driver(), nullptr);
        EXPECT_FALSE(array.port("d").check_is_used_flag());
        EXPECT_EQ(a.get_driver_count(), 1); // the attempt left no trace
        array[2].port("d") = a;
        top.dump_hdl_group_subdesign_slices(&top);
        auto & d = array.port("d");
        ASSERT_NE(d.get_driver(), nullptr);
        EXPECT_EQ(static_cast<GNL_PORT_CONCAT *>(d.get_driver())->get_element_count(), 3);
        EXPECT_TRUE(d.check_is_used_flag());
        EXPECT_EQ(d.get_connection_level(), &top);
    });
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Arrays, OneBitBusesAreNoScalarsToJoin)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    auto & a = top.input("a", 1);
    top.dump = false;
    top.run([&](design &) {
        auto & array = array_of(top, 1, "1");
        array[0].port("d") = a;
        top.dump_hdl_group_subdesign_slices(&top);
        EXPECT_EQ(array.port("d").get_driver(), nullptr);
    });
}

} // namespace
