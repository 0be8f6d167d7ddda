// Names of instances, wires and loops, and their collisions.

#include "support.h"

namespace {

using namespace gnl_test;

using InstanceNames = in_folder;

std::string instance_taken(std::string const & text, std::string const & holder)
{
    return error("Instance name " + text + " is already being specified as the instance name for generator " + holder
                     + ".",
                 "Same instance name has been used for multiple entries.",
                 "Use different instance names or do not specify the instance name and let lumenbox auto-generate "
                 "instance names.");
}

std::string wire_taken(std::string const & text, std::string const & holder)
{
    return error("Wire name " + text + " is already being specified as the wire name for port " + holder + ".",
                 "Same wire name has been used for multiple entries.",
                 "Use different wire names or do not specify the wire name and let lumenbox auto-generate wire names.");
}

TEST_F(InstanceNames, NumbersAreCountedOnTheTop)
{
    design top(nullptr);
    auto & sub = top.child("sub", "u1");
    auto & leaf = sub.child("leaf", "u2");
    EXPECT_EQ(leaf.generate_instance_name(""), "sd1");
    EXPECT_EQ(sub.generate_instance_name("adder"), "adder2a");
    EXPECT_EQ(top.generate_instance_name(""), "sd3");
    EXPECT_EQ(top.generate_instance_id(), 4);
    leaf.set_instance_basename("reg");
    EXPECT_EQ(leaf.generate_instance_name(""), "reg5");
    EXPECT_EQ(leaf.generate_instance_id(), 3); // its own, which counted each of its names too
}

TEST_F(InstanceNames, WireNamesHaveFourForms)
{
    design top(nullptr);
    auto & sub = top.child("sub", "u1");
    EXPECT_EQ(sub.generate_wire_name("", ""), "w1w");
    EXPECT_EQ(top.generate_wire_name("lg", ""), "w_lg2w");
    EXPECT_EQ(top.generate_wire_name("a", "b"), "w_a_b3w");
    EXPECT_EQ(top.generate_wire_name("", "b"), "w4w");
    EXPECT_EQ(top.get_wire_counter(), 5);
}

TEST_F(InstanceNames, AWireNameOfMoreThan50CharactersIsReplaced)
{
    design top(nullptr);
    EXPECT_EQ(top.generate_wire_name(std::string(46, 'x'), ""), "w_" + std::string(46, 'x') + "1w");
    EXPECT_EQ(top.generate_wire_name(std::string(47, 'x'), ""), "w2w");
}

TEST_F(InstanceNames, LoopsAreNumberedFromZero)
{
    design top(nullptr);
    auto & sub = top.child("sub", "u1");
    EXPECT_EQ(sub.generate_loop_name(), "loop0");
    EXPECT_EQ(top.generate_loop_name(), "loop1");
}

TEST_F(InstanceNames, AnInstanceNameThatIsTakenIsReported)
{
    design top(nullptr);
    top.child("cell", "Taken");
    EXPECT_TRUE(top.check_instance_name_collision("free"));
    EXPECT_FALSE(top.check_instance_name_collision("tAKEN"));
    EXPECT_EQ(top.messages(), (texts{instance_taken("tAKEN", "top|cell inst Taken")}));
}

TEST_F(InstanceNames, TheFirstHolderInKeyOrderIsNamed)
{
    design top(nullptr);
    top.child("zeta", "u");
    top.child("alpha", "u");
    EXPECT_FALSE(top.check_instance_name_collision("u"));
    EXPECT_EQ(top.messages(), (texts{instance_taken("u", "top|alpha inst u")}));
}

TEST_F(InstanceNames, AnOldInstanceNameIsFreeAgain)
{
    design top(nullptr);
    auto & child = top.child("cell", "old");
    EXPECT_FALSE(top.check_instance_name_collision("old"));
    child.set_instance_name("fresh");
    EXPECT_TRUE(top.check_instance_name_collision("old"));
    EXPECT_FALSE(top.check_instance_name_collision("fresh"));
}

TEST_F(InstanceNames, AWireNameThatIsTakenIsReportedAndReplaced)
{
    design top(nullptr);
    top.input("data");
    auto & wire = top.wire("DATA");
    EXPECT_EQ(wire.get_name(), "w1w");
    EXPECT_EQ(top.messages(), (texts{wire_taken("DATA", "top|data")}));
    EXPECT_TRUE(top.check_wire_name_collision("free"));
}

TEST_F(InstanceNames, ExpressionsAndRangesHoldTheirNamesToo)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a", 4);
    top.dump = false;
    top.run([&](design &) {
        auto & inverse = !a;
        auto & part = a.range(1, 0);
        EXPECT_FALSE(top.check_wire_name_collision(inverse.get_name()));
        EXPECT_FALSE(top.check_wire_name_collision(part.get_name()));
        auto & later = a & a;
        EXPECT_FALSE(top.check_wire_name_collision(later.get_name()));
        later.change_name("renamed");
        EXPECT_FALSE(top.check_wire_name_collision("RENAMED"));
        EXPECT_TRUE(top.check_wire_name_collision("w_lg3w"));
    });
    EXPECT_EQ(top.messages().size(), 4U);
}

TEST_F(InstanceNames, MemberWiresThatCollideDoNotReadTheParameterTextEarly)
{
    class colliding : public design
    {
    public:
        colliding()
            : design(nullptr, "top", "SIZE=5")
            , a(this, "a")
            , again(this, "a")
            , size(this, "SIZE", 1)
        {
        }
        GNL_WIRE a, again;
        GNL_PARAMETER_INTEGER size;
    };
    colliding top;
    EXPECT_EQ(top.size.get_value(), 5);
    EXPECT_EQ(top.messages().size(), 1U);
}

TEST_F(InstanceNames, ArraysGetALetterBehindTheirName)
{
    design top(nullptr);
    auto & array = *new design(&top, "cell", "", 3);
    array.set_auto_generated_instance_name();
    EXPECT_EQ(array.get_instance_name(), "sd1a");
    array.set_subdesign_instance_name("row", false);
    EXPECT_EQ(array.get_instance_name(), "rowa");
    array.set_subdesign_instance_name("row", true);
    EXPECT_EQ(array.get_instance_name(), "row");
    auto & single = *new design(&top, "cell");
    single.set_subdesign_instance_name("row", false);
    EXPECT_EQ(single.get_instance_name(), "row");
}

TEST_F(InstanceNames, InQhdlAnArrayNameDoesNotEndInADigit)
{
    design top(nullptr);
    auto & array = top.child("cell", "u1", "", 2);
    EXPECT_EQ(array.get_instance_name(), "u1a");
    auto & slice = array[1];
    array.set_instance_name("v2");
    EXPECT_EQ(array.get_instance_name(), "v2a");
    EXPECT_EQ(slice.get_instance_name(), "v2a"); // the name that its array looks for
    EXPECT_EQ(&array[1], &slice);
    EXPECT_EQ(top.child("cell", "u1").get_instance_name(), "u1");
    top.set_gen_language(GNL_VERILOG);
    EXPECT_EQ(top.child("cell", "w1", "", 2).get_instance_name(), "w1");
}

TEST_F(InstanceNames, OnlyGeneratorsWithoutANameAreNamed)
{
    design top(nullptr);
    auto & named = top.child("cell", "u");
    auto & unnamed = *new design(&top, "cell");
    auto & array = top.child("row", "r", "", 1);
    auto & slice = array[0];
    slice.set_instance_name("");
    array.set_subdesign_auto_generated_instance_names();
    top.set_subdesign_auto_generated_instance_names();
    EXPECT_EQ(named.get_instance_name(), "u");
    EXPECT_EQ(unnamed.get_instance_name(), "sd1");
    EXPECT_EQ(slice.get_instance_name(), "");
}

TEST_F(InstanceNames, InstancesAreFoundByTheirEntity)
{
    design top(nullptr);
    auto & sub = top.child("sub", "u1");
    auto * leaf = &sub.child("leaf", "u2");
    leaf->set_entity_name("leaf_entity");
    sub.register_subdesign_info("leaf_entity", leaf);
    EXPECT_EQ(top.get_subdesign_instance_name("LEAF_entity"), "u2");
    EXPECT_EQ(leaf->get_subdesign_instance_name("leaf_entity"), "u2");
    EXPECT_EQ(top.get_subdesign_instance_name("leaf"), "");
    delete leaf;
    EXPECT_EQ(top.get_subdesign_instance_name("leaf_entity"), "");
}

TEST_F(InstanceNames, CollisionsAreFoundAmongManyInstances)
{
    design top(nullptr);
    for (int i = 0; i < 20000; ++i) {
        auto const name = "u" + std::to_string(i);
        EXPECT_TRUE(top.check_instance_name_collision(name));
        top.child("cell", name);
        top.wire("net" + std::to_string(i));
    }
    EXPECT_EQ(top.messages(), texts{});
}

} // namespace
