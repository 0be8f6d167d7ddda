// How values come down a hierarchy and how names climb it.

#include "parameter_errors.h"

namespace {

using namespace gnl_test;

class Inheritance : public in_folder
{
};

/// Top, subdesign and leaf; each passes on what its subdesigns inherit.
class telling : public design
{
public:
    using design::design;
    void get_inheritable() override
    {
        ++told;
        for (telling * child : children)
            child->tell_inheritable(*this);
    }
    telling & telling_child(std::string const & name, char const * text = "")
    {
        auto & made = *new telling(this, name, text);
        made.set_instance_name("u_" + name);
        children.push_back(&made);
        return made;
    }
    using GNL_GENERATOR::get_inherited_parameter_array_object;
    using GNL_GENERATOR::get_inherited_parameter_object;

    int told = 0;
    std::vector<telling *> children;
};

TEST_F(Inheritance, IntegerComesDownThreeLevels)
{
    design top(nullptr);
    auto & leaf = top.child("sub", "u").child("leaf", "v");
    auto & size = leaf.integer("SIZE", 3);
    size.set_as_inherit_allowed();
    EXPECT_EQ(size.get_value(), 3);
    top.integer("Size", 8);
    EXPECT_EQ(size.get_value(), 8);
}

TEST_F(Inheritance, StringComesDownThreeLevels)
{
    design top(nullptr);
    auto & leaf = top.child("sub", "u").child("leaf", "v");
    auto & mode = leaf.string("MODE", "A|B", 0);
    mode.set_as_inherit_allowed();
    EXPECT_EQ(mode.get_value(), "A");
    top.string("MODE", "X|Y", 1);
    EXPECT_EQ(mode.get_value(), "Y");
}

TEST_F(Inheritance, NearestParameterDecides)
{
    design top(nullptr);
    auto & sub = top.child("sub", "u");
    auto & size = sub.child("leaf", "v").integer("SIZE", 3);
    size.set_as_inherit_allowed();
    top.integer("SIZE", 8);
    sub.integer("SIZE", 5);
    EXPECT_EQ(size.get_value(), 5);
}

TEST_F(Inheritance, ParameterWithoutAValueEndsTheWalk)
{
    design top(nullptr);
    auto & sub = top.child("sub", "u");
    auto & leaf = sub.child("leaf", "v");
    top.integer("SIZE", 8);
    top.string("MODE", "A|B", 1);
    sub.integer("SIZE", -1);
    sub.string("MODE", "A|B", -1);
    EXPECT_EQ(leaf.get_inherited_integer_parameter_value("SIZE"), -1);
    EXPECT_EQ(leaf.get_inherited_string_parameter_value("MODE"), "UNUSED");
}

TEST_F(Inheritance, ParameterOfAnotherKindIsPassedOver)
{
    design top(nullptr);
    auto & sub = top.child("sub", "u");
    top.integer("SIZE", 8);
    sub.string("SIZE", "A|B", 1);
    EXPECT_EQ(sub.get_inherited_integer_parameter_value("SIZE"), 8);
    EXPECT_EQ(sub.get_inherited_string_parameter_value("SIZE"), "B");
    EXPECT_EQ(top.get_inherited_string_parameter_value("SIZE"), "UNUSED");
}

TEST_F(Inheritance, MayInheritMeansUsedWhenUsedAbove)
{
    design top(nullptr);
    auto & above = top.integer("SIZE", 8);
    auto & size = top.child("sub", "u").child("leaf", "v").integer("SIZE", 3);
    EXPECT_FALSE(size.is_used());
    size.set_as_inherit_allowed();
    EXPECT_FALSE(size.is_used());
    above = 9;
    EXPECT_TRUE(size.is_used());
}

TEST_F(Inheritance, ExportLetsEveryParameterInherit)
{
    design top(nullptr);
    top.integer("SIZE", 8) = 9;
    top.string("MODE", "A|B", 0) = "B";
    auto & sub = top.child("sub", "u");
    auto & size = sub.integer("SIZE", 3);
    auto & mode = sub.string("MODE", "A|B", 0);
    EXPECT_EQ(size.get_value(), 3);
    EXPECT_FALSE(size.is_used());
    top.set_export_all_submodule_parameters();
    EXPECT_EQ(size.get_value(), 9);
    EXPECT_EQ(mode.get_value(), "B");
    EXPECT_TRUE(size.is_used());
}

TEST_F(Inheritance, ExportLeavesOptionsOut)
{
    telling top(nullptr, "top", "LBX_FILE=top.v");
    auto & sub = top.telling_child("sub");
    top.set_export_all_submodule_parameters();
    sub.collect_inheritable_parameters(&top);
    EXPECT_TRUE(top.inherited_parameters().empty());
    EXPECT_TRUE(top.parameter_string("LBX_FILE").is_inherit_never());
    EXPECT_EQ(sub.parameter_string("LBX_FILE").get_value(false), "UNUSED");
    EXPECT_FALSE(sub.parameter_string("LBX_FILE").is_used());
}

TEST_F(Inheritance, ParentsOwnParameterServesItsSubdesign)
{
    telling top(nullptr, "top");
    auto & own = top.integer("SIZE", 8);
    auto & sub = top.telling_child("sub");
    sub.integer("size", 3).set_as_inherit_allowed();
    sub.collect_inheritable_parameters(&top);
    EXPECT_TRUE(own.is_inherit_allowed());
    EXPECT_TRUE(top.inherited_parameters().empty());
}

TEST_F(Inheritance, OnlyWhatMayInheritClimbs)
{
    telling top(nullptr, "top");
    auto & sub = top.telling_child("sub");
    sub.integer("NEVER", 3);
    sub.integer("ALLOWED", 3).set_as_inherit_allowed();
    sub.string("DEVICE_FAMILY", "", -1);
    sub.vector("VECTOR", 0, 4).set_as_inherit_allowed();
    GNL_PARAMETER_INTEGER_ARRAY coef(&sub, "COEF", 1);
    GNL_PARAMETER_INTEGER_ARRAY bare(&sub, "BARE", -1);
    sub.collect_inheritable_parameters(&top);
    texts names;
    for (auto const & entry : top.inherited_parameters())
        names.push_back(entry.first);
    for (auto const & entry : top.inherited_parameter_arrays())
        names.push_back(entry.first);
    EXPECT_EQ(names, (texts{"ALLOWED", "DEVICE_FAMILY", "COEF"}));
}

TEST_F(Inheritance, StandInAtTheTopHasTheListAndNoDefault)
{
    telling top(nullptr, "top");
    auto & sub = top.telling_child("sub");
    sub.string("MODE", "A|B", 1).set_as_inherit_allowed();
    sub.integer("SIZE", 3).set_as_inherit_allowed();
    sub.collect_inheritable_parameters(&top);
    auto * mode = dynamic_cast<GNL_PARAMETER_STRING *>(top.get_inherited_parameter_object("mode"));
    ASSERT_NE(mode, nullptr);
    EXPECT_EQ(mode->get_value_list(), "A|B");
    EXPECT_EQ(mode->get_default_value_index(), -1);
    EXPECT_EQ(mode->get_parent(), nullptr);
    auto * size = dynamic_cast<GNL_PARAMETER_INTEGER *>(top.get_inherited_parameter_object("SIZE"));
    ASSERT_NE(size, nullptr);
    EXPECT_EQ(size->get_default_value(), -1);
    EXPECT_EQ(top.get_inherited_parameter_object("SIZ"), nullptr);
}

TEST_F(Inheritance, ValueFromTheTextOfTheTopReachesALeaf)
{
    telling top(nullptr, "top", "MODE=b,SIZE=12,DEVICE_FAMILY=Ellia");
    auto & leaf = top.telling_child("sub").telling_child("leaf");
    auto & mode = leaf.string("MODE", "A|B", 0);
    auto & size = leaf.integer("SIZE", 3);
    auto & family = leaf.string("DEVICE_FAMILY", "", -1);
    mode.set_as_inherit_allowed();
    size.set_as_inherit_allowed();
    top.initialize_param_list();
    EXPECT_EQ(mode.get_value(), "B");
    EXPECT_EQ(size.get_value(), 12);
    EXPECT_EQ(family.get_value(), "Ellia");
    EXPECT_TRUE(mode.is_used());
    EXPECT_TRUE(size.is_used());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Inheritance, ValueFromTheTextOfALevelBetweenReachesItsLeaf)
{
    telling top(nullptr, "top", "SIZE=12");
    auto & given = top.telling_child("one", "SIZE=7");
    auto & one = given.telling_child("leaf").integer("SIZE", 3);
    auto & two = top.telling_child("two").telling_child("leaf").integer("SIZE", 3);
    one.set_as_inherit_allowed();
    two.set_as_inherit_allowed();
    top.initialize_param_list();
    given.initialize_param_list();
    EXPECT_EQ(one.get_value(), 7);
    EXPECT_EQ(two.get_value(), 12);
    EXPECT_TRUE(one.is_used());
}

/// Reads an inherited value in its constructor, while its parent is still being constructed.
class early_reader : public design
{
public:
    explicit early_reader(GNL_GENERATOR * parent)
        : design(parent, "early", "iname=u")
    {
        size.set_as_inherit_allowed();
        seen = size.get_value();
    }
    GNL_PARAMETER_INTEGER size{this, "SIZE", 3};
    int seen = 0;
};

class unfinished_top : public design
{
public:
    unfinished_top()
        : design(nullptr, "top", "DEPTH=5")
    {
    }
    early_reader early{this};
    GNL_PARAMETER_INTEGER depth{this, "DEPTH", 1};
};

TEST_F(Inheritance, EarlyReadDoesNotCostLaterMembersTheirText)
{
    unfinished_top top;
    EXPECT_EQ(top.early.seen, 3);
    EXPECT_EQ(top.depth.get_value(), 5);
}

TEST_F(Inheritance, ArrayElementFromTheTextGoesToTheStandIn)
{
    telling top(nullptr, "top", "COEF3=7,TAG1=x");
    auto & leaf = top.telling_child("sub").telling_child("leaf");
    GNL_PARAMETER_INTEGER_ARRAY coef(&leaf, "COEF", 1);
    GNL_PARAMETER_STRING_ARRAY tag(&leaf, "TAG", "p|q", 0);
    top.initialize_param_list();
    std::map<int, std::string> values;
    leaf.collect_parameter_array_values("COEF", values);
    EXPECT_EQ(values, (std::map<int, std::string>{{3, "7"}}));
    auto * given = top.get_inherited_parameter_array_object("tag");
    ASSERT_NE(given, nullptr);
    EXPECT_EQ(given->generate_parameter_array_header_declarations(), " TAG1=x");
}

TEST_F(Inheritance, EveryGeneratorTellsOnceChildrenFirst)
{
    telling top(nullptr, "top");
    auto & sub = top.telling_child("sub");
    auto & leaf = sub.telling_child("leaf");
    leaf.integer("SIZE", 3).set_as_inherit_allowed();
    top.initialize_param_list();
    EXPECT_NE(top.get_inherited_parameter_object("SIZE"), nullptr);
    sub.initialize_param_list();
    leaf.initialize_param_list();
    EXPECT_EQ((std::vector<int>{top.told, sub.told, leaf.told}), (std::vector<int>{1, 1, 1}));
}

TEST_F(Inheritance, HeaderNamesWhatTheTopWasGiven)
{
    telling top(nullptr, "top", "MODE=B,SIZE=12");
    auto & sub = top.telling_child("sub");
    auto & leaf = sub.telling_child("leaf");
    leaf.string("MODE", "A|B", 0).set_as_inherit_allowed();
    leaf.integer("SIZE", 3).set_as_inherit_allowed();
    leaf.integer("IDLE", 3).set_as_inherit_allowed();
    top.initialize_param_list();
    EXPECT_EQ(leaf.dump_inherited_parameter_header_info("MODE"), " MODE=\"B\"");
    EXPECT_EQ(sub.dump_inherited_parameter_header_info("SIZE"), " SIZE=12");
    EXPECT_EQ(top.dump_inherited_parameter_header_info("IDLE"), "");
    EXPECT_EQ(top.dump_inherited_parameter_header_info("NOPE"), "");
    top.get_inherited_parameter_object("SIZE")->set_not_used_for_hash();
    EXPECT_EQ(sub.dump_inherited_parameter_header_info("SIZE"), "");
}

TEST_F(Inheritance, HeaderNamesTheTopsOwnUsedParameter)
{
    telling top(nullptr, "top", "SIZE=12");
    auto & sub = top.telling_child("sub");
    top.integer("SIZE", 1);
    top.string("MODE", "A|B", 0);
    EXPECT_EQ(sub.dump_inherited_parameter_header_info("SIZE"), " SIZE=12");
    EXPECT_EQ(sub.dump_inherited_parameter_header_info("MODE"), "");
    top.parameter_string("MODE") = "B";
    EXPECT_EQ(sub.dump_inherited_parameter_header_info("MODE"), " MODE=\"B\"");
}

TEST_F(Inheritance, SliceInheritsFromItsMaster)
{
    design top(nullptr);
    auto & array = top.child("cell", "u", "", 3);
    auto & master = array.integer("SIZE", 4);
    array.declare_slice = [](design & slice) { slice.integer("SIZE", 1).set_as_inherit_allowed(); };
    master = 6;
    EXPECT_EQ(array[1].parameter_integer("SIZE").get_value(), 6);
    array[2].parameter_integer("SIZE") = 9;
    master = 7;
    EXPECT_EQ(array[1].parameter_integer("SIZE").get_value(), 7);
    EXPECT_EQ(array[2].parameter_integer("SIZE").get_value(), 9);
    EXPECT_EQ(top.messages(), texts{});
}

} // namespace
