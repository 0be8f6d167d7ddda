// The options that every generator has: what they are, where their values come from, and that unread ones cost nothing.

#include "support.h"

#include "lbx/gnl/core/option_set.h"

namespace {

using namespace gnl_test;
using gnl_detail::option_count;
using gnl_detail::option_id;
using gnl_detail::option_set;

struct expected_option
{
    char const * name;
    char const * list;
    int default_index;
    char const * value;
    bool hashed;
    bool hidden;
    bool inherit_only;
    bool declared;
};

expected_option const expected_options[] = {
    {"LBX_HDL_LANGUAGE", "QHDL|VHDL|Verilog|TCL", 0, "QHDL", false, true, true, true},
    {"LBX_OUTPUT_DIRECTORY", ".", 0, ".", false, true, true, true},
    {"LBX_LIBRARY_PATH", ".", 0, ".", false, true, true, true},
    {"LBX_SINGLE_OUTPUT_FILE", "ON|OFF", 0, "ON", true, true, true, true},
    {"LBX_FORCE_HDL_GENERATION", "ON|OFF", 1, "OFF", false, true, true, true},
    {"LBX_FILE", "", -1, "UNUSED", false, true, false, false},
    {"LBX_MAX_ERROR_MESSAGES", nullptr, 0, "50", false, true, true, false},
    {"LBX_VHDL_WRAPPERS", "ON|OFF", 1, "OFF", false, true, true, true},
    {"LBX_EDA_PLANB", "ON|OFF", 1, "OFF", false, true, true, true},
    {"LBX_NO_VHDL_SUBDES_CONCAT_WIRES", "ON|OFF", 1, "OFF", false, true, true, true},
    {"LBX_DECLARE_ALL_CONNECTED_PORTS", "ON|OFF", 0, "ON", true, true, true, false},
    {"LBX_BLACKBOX_LIST", "NONE", 0, "NONE", false, true, true, false},
    {"LBX_AUTO_BLACKBOX", "ON|OFF|ALL", 1, "OFF", true, true, true, false},
    {"LBX_THROW_EXCEPTION_ON_ERROR", "ON|OFF", 1, "OFF", false, true, true, false},
    {"LBX_STRUCTURAL_NETLIST", "ON|OFF", 1, "OFF", true, true, true, false},
    {"LBX_REMOVE_OPTIONAL_WIRES", "ON|OFF", 0, "ON", false, false, true, false},
    {"LBX_MODULE_PREFIX", "UNUSED", 0, "UNUSED", false, false, true, false},
    {"LBXI_INSTANCE_NAME", "UNUSED", 0, "UNUSED", false, false, true, false},
};

class Options : public in_folder
{
};

class EachOption : public in_folder_with_parameter<int>
{
protected:
    option_id id() const { return static_cast<option_id>(GetParam()); }
    expected_option const & expected() const { return expected_options[GetParam()]; }
    /// What the object answers, a number in decimal.
    static std::string value_of(GNL_PARAMETER & option)
    {
        if (option.is_integer_parameter())
            return std::to_string(static_cast<GNL_PARAMETER_INTEGER &>(option).get_value());
        return static_cast<GNL_PARAMETER_STRING &>(option).get_value(false);
    }
    /// A value that no option has by default.
    std::string other_value() const { return expected().list ? "ALL" : "7"; }
};

TEST_P(EachOption, IsAsTabled)
{
    design top(nullptr);
    GNL_PARAMETER * const option = top.get_parameter_object(expected().name);
    ASSERT_NE(option, nullptr);
    EXPECT_EQ(option->get_name(), expected().name);
    EXPECT_EQ(option->get_parent(), &top);
    EXPECT_EQ(option->is_used_for_hash(), expected().hashed);
    EXPECT_EQ(option->is_hidden_parameter(), expected().hidden);
    EXPECT_EQ(option->is_inherit_only(), expected().inherit_only);
    EXPECT_EQ(option->is_inherit_never(), !expected().inherit_only);
    EXPECT_EQ(option->is_included_in_declaration(), expected().declared);
    EXPECT_TRUE(option->is_option());
    EXPECT_FALSE(option->is_used());
    EXPECT_EQ(value_of(*option), expected().value);
    if (expected().list) {
        auto & text = static_cast<GNL_PARAMETER_STRING &>(*option);
        EXPECT_EQ(text.get_value_list(), expected().list);
        EXPECT_EQ(text.get_default_value_index(), expected().default_index);
    } else {
        EXPECT_EQ(static_cast<GNL_PARAMETER_INTEGER &>(*option).get_default_value(), 50);
    }
    EXPECT_EQ(top.messages(), texts{});
}

TEST_P(EachOption, IsDeclaredInAnyCase)
{
    std::string name = expected().name;
    option_id found{};
    EXPECT_TRUE(option_set::declares(name, found));
    EXPECT_EQ(found, id());
    for (char & c : name)
        c = static_cast<char>(std::tolower(c));
    EXPECT_TRUE(option_set::declares(name, found));
    EXPECT_EQ(found, id());
    EXPECT_FALSE(option_set::declares(name + "_", found));
    EXPECT_FALSE(option_set::declares(name.substr(1), found));
}

TEST_P(EachOption, AnswersTheSameWithAndWithoutItsObject)
{
    for (int level_with_value = -1; level_with_value < 3; ++level_with_value) {
        auto const text = [&](int level) {
            return level == level_with_value ? expected().name + ("=" + other_value()) : std::string();
        };
        design top(nullptr, "top", text(0).c_str());
        design & sub = top.child("sub", "u", text(1).c_str());
        design & leaf = sub.child("leaf", "v", text(2).c_str());
        for (design * level : {&leaf, &sub, &top}) {
            std::string const value = level->option_value(id());
            bool const used = level->option_is_used(id());
            EXPECT_TRUE(level->option_equals(id(), value));
            EXPECT_FALSE(level->option_equals(id(), value + "X"));
            GNL_PARAMETER & object = level->option(id());
            EXPECT_EQ(value_of(object), value) << level->get_name() << level_with_value;
            EXPECT_EQ(object.is_used(), used) << level->get_name() << level_with_value;
            EXPECT_EQ(level->option_value(id()), value) << level->get_name() << level_with_value;
            EXPECT_EQ(level->option_is_used(id()), used) << level->get_name() << level_with_value;
        }
    }
}

TEST_P(EachOption, ComesFromTheTopOrFromItself)
{
    bool const from_top = expected().inherit_only;
    design top(nullptr, "top", (expected().name + ("=" + other_value())).c_str());
    design & leaf = top.child("sub", "u").child("leaf", "v");
    EXPECT_EQ(leaf.option_value(id()), from_top ? other_value() : expected().value);
    EXPECT_EQ(leaf.option_is_used(id()), from_top);
    design other(nullptr);
    design & given = other.child("sub", "u", (expected().name + ("=" + other_value())).c_str());
    EXPECT_EQ(given.option_value(id()), from_top ? expected().value : other_value());
    EXPECT_TRUE(given.option_is_used(id()));
    EXPECT_FALSE(other.option_is_used(id()));
}

TEST_P(EachOption, IsTheSameObjectEachTime)
{
    design top(nullptr);
    GNL_PARAMETER & option = top.option(id());
    EXPECT_EQ(&top.option(id()), &option);
    EXPECT_EQ(top.get_parameter_object(expected().name), &option);
    EXPECT_EQ(top.find_port_object(std::string("PAR;") + expected().name), &option);
}

TEST_P(EachOption, IsMadeInsideABodyWithoutAMessage)
{
    design top(nullptr);
    top.dump = false;
    GNL_PARAMETER * option = nullptr;
    top.run([&](design & self) { option = self.get_parameter_object(expected().name); });
    EXPECT_NE(option, nullptr);
    EXPECT_EQ(top.messages(), texts{});
}

INSTANTIATE_TEST_SUITE_P(All, EachOption, ::testing::Range(0, option_count));

TEST_F(Options, ReadingMakesNoObject)
{
    option_set options;
    design top(nullptr);
    for (int i = 0; i < option_count; ++i)
        EXPECT_FALSE(options.made(static_cast<option_id>(i)));
    options.make_all(top);
    for (int i = 0; i < option_count; ++i)
        EXPECT_TRUE(options.made(static_cast<option_id>(i)));
}

TEST_F(Options, LimitThatIsNegativeIsTheDefault)
{
    design top(nullptr, "top", "LBX_MAX_ERROR_MESSAGES=-3");
    EXPECT_EQ(top.option_value(option_id::max_error_messages), "50");
    EXPECT_TRUE(top.option_is_used(option_id::max_error_messages));
}

TEST_F(Options, ComparisonFoldsCase)
{
    design top(nullptr, "top", "LBX_OUTPUT_DIRECTORY=Out");
    EXPECT_TRUE(top.option_equals(option_id::output_directory, "oUT"));
    EXPECT_TRUE(top.option_equals(option_id::single_output_file, "on"));
    EXPECT_FALSE(top.option_equals(option_id::single_output_file, "o"));
}

TEST_F(Options, InheritanceKindOfAnOptionCanBeChanged)
{
    design top(nullptr, "top", "LBX_EDA_PLANB=ON");
    design & sub = top.child("sub", "u");
    sub.option(option_id::eda_planb).set_as_inherit_never();
    EXPECT_EQ(sub.option_value(option_id::eda_planb), "OFF");
    EXPECT_FALSE(sub.option_is_used(option_id::eda_planb));
}

TEST_F(Options, Queries)
{
    design top(nullptr);
    EXPECT_TRUE(top.generate_single_output_file());
    EXPECT_TRUE(top.has_disabled_vhdl_concat_wires());
    EXPECT_TRUE(top.allow_removal_of_optional_wires());
    EXPECT_FALSE(top.generate_structural_netlist());
    EXPECT_FALSE(top.forced_file_generation());
    design other(nullptr, "top",
                 "LBX_SINGLE_OUTPUT_FILE=OFF,LBX_NO_VHDL_SUBDES_CONCAT_WIRES=ON,LBX_REMOVE_OPTIONAL_WIRES=OFF,"
                 "LBX_STRUCTURAL_NETLIST=ON,LBX_FORCE_HDL_GENERATION=ON");
    EXPECT_FALSE(other.generate_single_output_file());
    EXPECT_FALSE(other.has_disabled_vhdl_concat_wires());
    EXPECT_FALSE(other.allow_removal_of_optional_wires());
    EXPECT_FALSE(other.generate_structural_netlist()) << "only in Verilog";
    EXPECT_TRUE(other.forced_file_generation());
    design::set_gen_language(GNL_VERILOG);
    EXPECT_TRUE(other.generate_structural_netlist());
    design with_file(nullptr, "top", "LBX_FILE=top.v");
    EXPECT_TRUE(with_file.forced_file_generation());
    EXPECT_FALSE(with_file.child("sub", "u").forced_file_generation());
}

TEST_F(Options, ErrorWhileTheTextIsReadFindsItsLimit)
{
    // The text assigns an inherit-only parameter in a body: the error is posted in the middle of the text, and asks for
    // options that the text gives only later.
    design top(nullptr, "top", "LBX_MAX_ERROR_MESSAGES=3");
    top.dump = false;
    top.run([](design & self) {
        auto & sub = self.child("sub", "u", "LBX_EDA_PLANB=ON,LBX_VHDL_WRAPPERS=ON");
        sub.initialize_param_list();
    });
    EXPECT_EQ(top.messages().size(), 2u);
}

TEST_F(Options, OptionThatIsExposedCanStillBeReadForAnError)
{
    design top(nullptr);
    top.option(option_id::max_error_messages).set_as_parameterized();
    top.integer("SIZE").get_value();
    EXPECT_EQ(top.messages().size(), 1u);
    EXPECT_EQ(top.option_value(option_id::max_error_messages), "50");
}

TEST_F(Options, OptionsAreAskedForAsOftenAsAWalkNeedsThem)
{
    design top(nullptr, "top", "LBX_REMOVE_OPTIONAL_WIRES=OFF");
    auto & sub = top.child("sub", "u");
    int allowed = 0;
    for (int i = 0; i < 300000; ++i)
        allowed += sub.allow_removal_of_optional_wires();
    EXPECT_EQ(allowed, 0);
}

} // namespace
