// What a front-end asks and tells by name: lists of parameters and ports, ports to use or to hold at a constant.

#include "support.h"

#include <algorithm>

namespace {

using namespace gnl_test;

class FrontEndLists : public in_folder
{
};

texts entries_of(char ** list)
{
    texts entries;
    for (; **list; ++list)
        entries.push_back(*list);
    return entries;
}

texts const all_options = {"LBX_AUTO_BLACKBOX",
                           "LBX_BLACKBOX_LIST",
                           "LBX_DECLARE_ALL_CONNECTED_PORTS",
                           "LBX_EDA_PLANB",
                           "LBX_FILE",
                           "LBX_FORCE_HDL_GENERATION",
                           "LBX_HDL_LANGUAGE",
                           "LBX_LIBRARY_PATH",
                           "LBX_MAX_ERROR_MESSAGES",
                           "LBX_MODULE_PREFIX",
                           "LBX_NO_VHDL_SUBDES_CONCAT_WIRES",
                           "LBX_OUTPUT_DIRECTORY",
                           "LBX_REMOVE_OPTIONAL_WIRES",
                           "LBX_SINGLE_OUTPUT_FILE",
                           "LBX_STRUCTURAL_NETLIST",
                           "LBX_THROW_EXCEPTION_ON_ERROR",
                           "LBX_VHDL_WRAPPERS",
                           "LBXI_INSTANCE_NAME"};

TEST_F(FrontEndLists, ParametersInRegistryOrderThenArraysThenInherited)
{
    design top(nullptr);
    top.integer("zed", 1);
    top.string("Alpha", "A|B", 0);
    top.input("clk");
    GNL_PARAMETER_INTEGER_ARRAY delay(&top, "DELAY", 0);
    auto & sub = top.child("sub", "u");
    sub.string("A_MODE", "FAST|SLOW", 0).set_as_inherit_allowed();
    GNL_PARAMETER_INTEGER_ARRAY taps(&sub, "TAPS", 0);
    sub.collect_inheritable_parameters(&top);
    texts expected = {"Alpha"};
    expected.insert(expected.end(), all_options.begin(), all_options.end());
    for (char const * name : {"zed", "DELAY", "A_MODE", "TAPS[index]"})
        expected.push_back(name);
    EXPECT_EQ(entries_of(top.get_parameter_list()), expected);
    EXPECT_STREQ(top.get_parameter_list()[expected.size()], "");
}

TEST_F(FrontEndLists, ValuesStandBehindStringsThatHaveAList)
{
    design top(nullptr);
    top.string("MODE", "FAST(QUICK)|SLOW", 0);
    top.string("FREE", "");
    top.integer("SIZE", 4);
    GNL_PARAMETER_STRING_ARRAY tag(&top, "TAG", "HOT|COLD", 0);
    GNL_PARAMETER_STRING_ARRAY note(&top, "NOTE", "", -1);
    GNL_PARAMETER_INTEGER_ARRAY delay(&top, "DELAY", 0);
    auto & sub = top.child("sub", "u");
    sub.string("A_MODE", "P|Q", 0).set_as_inherit_allowed();
    sub.integer("A_SIZE", 0).set_as_inherit_allowed();
    GNL_PARAMETER_STRING_ARRAY below(&sub, "BELOW", "R|S", 0);
    sub.collect_inheritable_parameters(&top);
    texts entries = entries_of(top.get_parameter_list_with_values());
    std::erase_if(entries, [](std::string const & entry) { return entry.starts_with("LBX"); });
    EXPECT_EQ(entries, (texts{"FREE", "MODE=FAST(QUICK)|SLOW", "SIZE", "DELAY[index]", "NOTE[index]",
                              "TAG[index]=HOT|COLD", "A_MODE=P|Q", "A_SIZE", "BELOW[index]=R|S"}));
}

TEST_F(FrontEndLists, OptionsAreListedWithTheirValues)
{
    design top(nullptr);
    texts const entries = entries_of(top.get_parameter_list_with_values());
    EXPECT_EQ(entries.size(), all_options.size());
    for (char const * entry : {"LBX_AUTO_BLACKBOX=ON|OFF|ALL", "LBX_FILE", "LBX_MAX_ERROR_MESSAGES",
                               "LBX_HDL_LANGUAGE=QHDL|VHDL|Verilog|TCL", "LBXI_INSTANCE_NAME=UNUSED"})
        EXPECT_EQ(std::count(entries.begin(), entries.end(), entry), 1) << entry;
}

TEST_F(FrontEndLists, HiddenParametersAlone)
{
    design top(nullptr);
    top.string("SECRET", "X|Y", 0).set_as_hidden_parameter();
    top.integer("SECRET_SIZE", 0).set_as_true_hidden_parameter();
    top.string("OPEN", "X|Y", 0);
    texts entries = entries_of(top.get_hidden_parameter_list());
    EXPECT_EQ(entries.size(), 17u) << "15 of the 18 options are hidden";
    std::erase_if(entries, [](std::string const & entry) { return entry.starts_with("LBX_"); });
    EXPECT_EQ(entries, (texts{"SECRET=X|Y", "SECRET_SIZE"}));
}

TEST_F(FrontEndLists, PortsArePinsAlone)
{
    design top(nullptr);
    top.output("q");
    top.wire("w");
    top.input("D");
    top.bidir("pad");
    EXPECT_EQ(entries_of(top.get_port_list()), (texts{"D", "pad", "q"}));
    design empty(nullptr);
    EXPECT_STREQ(empty.get_port_list()[0], "");
}

TEST_F(FrontEndLists, AreBuiltOnce)
{
    design top(nullptr);
    top.input("clk");
    char ** const lists[] = {top.get_parameter_list(), top.get_parameter_list_with_values(),
                             top.get_hidden_parameter_list(), top.get_port_list()};
    top.integer("LATE", 1).set_as_hidden_parameter();
    top.input("late");
    EXPECT_EQ(top.get_parameter_list(), lists[0]);
    EXPECT_EQ(top.get_parameter_list_with_values(), lists[1]);
    EXPECT_EQ(top.get_hidden_parameter_list(), lists[2]);
    EXPECT_EQ(top.get_port_list(), lists[3]);
    EXPECT_EQ(entries_of(lists[3]), texts{"clk"});
}

TEST_F(FrontEndLists, PortIsSetToUsed)
{
    design top(nullptr);
    auto & q = top.output("q");
    top.integer("WIDTH", 1);
    EXPECT_TRUE(top.set_port_to_used(nullptr));
    EXPECT_TRUE(top.set_port_to_used(""));
    EXPECT_FALSE(top.set_port_to_used("nope"));
    EXPECT_FALSE(top.set_port_to_used("WIDTH"));
    EXPECT_FALSE(q.is_used());
    EXPECT_TRUE(top.set_port_to_used("Q"));
    EXPECT_TRUE(q.is_used());
}

TEST_F(FrontEndLists, PortAtItsDefaultIsNoPinOfTheDesign)
{
    design top(nullptr);
    auto & high = top.input("high", 0, 1);
    auto & low = top.input("low", 0, 0);
    top.set_port_to_used("high");
    EXPECT_TRUE(top.set_port_to_constant_value("high=vcc"));
    EXPECT_TRUE(top.set_port_to_constant_value("LOW=GND"));
    for (auto * port : {&high, &low}) {
        EXPECT_TRUE(port->is_constant_used_port());
        EXPECT_FALSE(port->is_used());
    }
}

TEST_F(FrontEndLists, PortAtAnotherConstantIsUsed)
{
    design top(nullptr);
    auto & high = top.input("high", 0, 1);
    auto & bare = top.input("bare");
    auto & q = top.output("q");
    EXPECT_TRUE(top.set_port_to_constant_value("high=GND"));
    EXPECT_TRUE(top.set_port_to_constant_value("bare=VCC"));
    EXPECT_TRUE(top.set_port_to_constant_value("q=GND"));
    EXPECT_TRUE(high.is_used());
    EXPECT_FALSE(high.is_constant_used_port());
    EXPECT_TRUE(bare.is_used());
    EXPECT_TRUE(q.is_used());
}

TEST_F(FrontEndLists, PortAtItsDefaultIsUsedWhenNotAllAreDeclared)
{
    design top(nullptr, "top", "LBX_DECLARE_ALL_CONNECTED_PORTS=OFF");
    auto & high = top.input("high", 0, 1);
    EXPECT_TRUE(top.set_port_to_constant_value("high=VCC"));
    EXPECT_TRUE(high.is_used());
    EXPECT_FALSE(high.is_constant_used_port());
}

TEST_F(FrontEndLists, FormsOfAPortConstant)
{
    design top(nullptr);
    auto & a = top.input("a", 0, 1);
    EXPECT_TRUE(top.set_port_to_constant_value(nullptr));
    EXPECT_TRUE(top.set_port_to_constant_value(""));
    EXPECT_FALSE(top.set_port_to_constant_value("nope"));
    EXPECT_FALSE(top.set_port_to_constant_value("nope=GND"));
    EXPECT_FALSE(top.set_port_to_constant_value("a=1"));
    EXPECT_FALSE(top.set_port_to_constant_value("a="));
    EXPECT_TRUE(top.set_port_to_constant_value("=GND"));
    EXPECT_FALSE(top.set_port_to_constant_value("=1"));
    EXPECT_FALSE(a.is_used());
    EXPECT_TRUE(top.set_port_to_constant_value("a"));
    EXPECT_TRUE(a.is_used());
}

} // namespace
