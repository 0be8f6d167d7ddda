#include "support.h"

using namespace gnl_test;

namespace {

using Register = in_folder;

/// The name that the cell has when these inputs are connected.
std::string name_with(std::vector<std::string> const & inputs)
{
    design top(nullptr);
    GNL_DFFE cell(&top);
    for (auto const & input : inputs)
        cell.port(input).set_used();
    return cell.get_entity_name();
}

/// Answers `question` of an array of `size` registers in a body that has connected it.
bool unrolls(int size, std::function<void(GNL_DFFE &, design &)> const & connect, char const * file = "top.v")
{
    design top(nullptr, "top", ("LBX_FILE=" + std::string(file)).c_str());
    top.input("a");
    top.input("b");
    top.input("x", 4);
    bool answer = false;
    top.run([&](design &) {
        auto & cell = *new GNL_DFFE(&top, size);
        cell.set_instance_name("u");
        connect(cell, top);
        answer = cell.dffe_requires_unroll();
        top.dump = false;
    });
    EXPECT_EQ(top.messages(), texts{});
    return answer;
}

/// Clock, data and output connected as a whole.
void connect_whole(GNL_DFFE & cell, design & top)
{
    cell.port("clk") = top.port("a");
    cell.port("d") = top.port("x");
    cell.port("q").set_used();
}

} // namespace

TEST_F(Register, HasThreeParametersOfItsOwn)
{
    design top(nullptr);
    GNL_DFFE cell(&top);
    EXPECT_EQ(cell.parameter_string("power_up").get_value_list(), "high(on)|low(off)|dont_care");
    EXPECT_EQ(cell.parameter_string("power_up").get_default_value(), "dont_care");
    EXPECT_EQ(cell.parameter_string("is_wysiwyg").get_value_list(), "true|false");
    EXPECT_EQ(cell.parameter_string("is_wysiwyg").get_default_value(), "false");
    EXPECT_EQ(cell.parameter_string("DEVICE_FAMILY").get_value_list(), "");
    EXPECT_EQ(cell.parameter_string("DEVICE_FAMILY").get_default_value_index(), -1);
    EXPECT_TRUE(cell.parameter_string("DEVICE_FAMILY").is_inherit_only());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Register, OutputIsAVerilogRegisterUnderTheNameOfItsArray)
{
    design top(nullptr);
    GNL_DFFE cell(&top);
    auto const & q = static_cast<GNL_PORT_OUTPUT &>(cell.port("q"));
    EXPECT_TRUE(q.uses_verilog_reg());
    EXPECT_TRUE(q.uses_parent_source_name());
    EXPECT_FALSE(cell.port("d").uses_parent_source_name());
}

TEST_F(Register, IsNamedByTheInputsInUse)
{
    EXPECT_EQ(name_with({}), "dffe");
    EXPECT_EQ(name_with({"clk", "d", "ena", "clrn", "prn", "adata"}), "dffe");
    EXPECT_EQ(name_with({"aload"}), "dffea");
    EXPECT_EQ(name_with({"sclr"}), "dffeas");
    EXPECT_EQ(name_with({"sload"}), "dffeas");
    EXPECT_EQ(name_with({"aload", "sload"}), "dffeas");
}

TEST_F(Register, AnEntityNameThatWasSetStands)
{
    design top(nullptr);
    GNL_DFFE cell(&top);
    cell.port("sload").set_used();
    cell.set_entity_name("mine");
    EXPECT_EQ(cell.get_entity_name(), "mine");
}

TEST_F(Register, InstanceNameIsItsOwn)
{
    design top(nullptr);
    GNL_DFFE cell(&top);
    cell.set_dffe_instance_name("count");
    EXPECT_EQ(cell.get_instance_name(), "count");
}

TEST_F(Register, PowerUpLevelIsAnInternalOptionWhenItWasAskedFor)
{
    auto const option = [](char const * value) {
        design top(nullptr);
        GNL_DFFE cell(&top);
        if (value)
            cell.parameter_string("power_up") = value;
        return cell.get_qelvar_internal_option();
    };
    EXPECT_EQ(option(nullptr), "");
    EXPECT_EQ(option("high"), "POWER_UP_LEVEL=HIGH");
    EXPECT_EQ(option("HIGH"), "POWER_UP_LEVEL=HIGH");
    EXPECT_EQ(option("on"), "POWER_UP_LEVEL=HIGH");
    EXPECT_EQ(option("low"), "POWER_UP_LEVEL=LOW");
    EXPECT_EQ(option("dont_care"), "POWER_UP_LEVEL=LOW");
}

TEST_F(Register, ASimulatedDesignHasNoPowerUpOption)
{
    design top(nullptr);
    GNL_DFFE cell(&top);
    cell.parameter_string("power_up") = "high";
    cell.set_simulate_mode();
    EXPECT_EQ(cell.get_qelvar_internal_option(), "");
}

TEST_F(Register, InitialValueIsThatOfTheOutput)
{
    design top(nullptr);
    GNL_DFFE cell(&top);
    EXPECT_EQ(cell.get_custom_vhdl_initial_value("q"), 0);
    cell.parameter_string("power_up") = "High";
    EXPECT_EQ(cell.get_custom_vhdl_initial_value("q"), 1);
    EXPECT_EQ(cell.get_custom_vhdl_initial_value("Q"), 1);
    EXPECT_EQ(cell.get_custom_vhdl_initial_value("d"), -1);
    EXPECT_EQ(cell.get_custom_vhdl_initial_value(""), -1);
}

// ---- Unrolling

TEST_F(Register, ASingleRegisterIsNeverUnrolled)
{
    EXPECT_FALSE(unrolls(0, [](GNL_DFFE &, design &) {}));
}

TEST_F(Register, AnArrayThatIsConnectedAsAWholeIsNotUnrolled)
{
    EXPECT_FALSE(unrolls(4, connect_whole));
    EXPECT_FALSE(unrolls(4, [](GNL_DFFE & cell, design & top) {
        connect_whole(cell, top);
        cell.port("clrn") = !top.port("b"); // is folded into the text
    }));
}

TEST_F(Register, AControlThatDiffersFromBitToBitUnrolls)
{
    for (auto const * name : {"clk", "clrn", "prn", "aload", "sclr", "sload", "ena"})
        EXPECT_TRUE(unrolls(4, [&](GNL_DFFE & cell, design & top) {
            cell.port("d") = top.port("x");
            cell.port("q").set_used();
            cell.port(name) = top.port("x");
        })) << name;
}

TEST_F(Register, AControlThatIsRepeatedExpressionUnrolls)
{
    EXPECT_TRUE(unrolls(4, [](GNL_DFFE & cell, design & top) {
        connect_whole(cell, top);
        cell.port("ena") = top.port("a") & top.port("b");
    }));
    // An array of one has nothing to repeat.
    EXPECT_FALSE(unrolls(1, [](GNL_DFFE & cell, design & top) {
        cell.port("d") = top.port("a");
        cell.port("q").set_used();
        cell.port("ena") = top.port("a") & top.port("b");
    }));
}

TEST_F(Register, AControlOfSomeSlicesUnrolls)
{
    EXPECT_TRUE(unrolls(4, [](GNL_DFFE & cell, design & top) {
        connect_whole(cell, top);
        cell[2].port("ena") = top.port("b");
    }));
}

TEST_F(Register, DataThatIsNotDrivenUnrolls)
{
    EXPECT_TRUE(unrolls(4, [](GNL_DFFE & cell, design & top) {
        cell.port("clk") = top.port("a");
        cell.port("q").set_used();
    }));
}

TEST_F(Register, LoadDataThatIsNoNameUnrollsInVhdl)
{
    auto const connect = [](GNL_DFFE & cell, design & top) {
        connect_whole(cell, top);
        cell.port("aload") = top.port("b");
        cell.port("adata") = ~top.port("x");
    };
    EXPECT_FALSE(unrolls(4, connect, "top.v"));
    EXPECT_TRUE(unrolls(4, connect, "top.vhd"));
}

TEST_F(Register, OutputsOfSlicesUnroll)
{
    EXPECT_TRUE(unrolls(4, [](GNL_DFFE & cell, design & top) {
        cell.port("clk") = top.port("a");
        cell.port("d") = top.port("x");
        cell[1].port("q").set_used();
    }));
}

// ---- Markers

TEST_F(Register, MarkersOfSlicesStartWithTheCountOfTheWhole)
{
    design top(nullptr);
    GNL_DFFE cell(&top, 3);
    EXPECT_EQ(cell.get_marker_count(-1), 0);
    cell.increment_marker_count(1); // nobody has asked about slices yet
    cell.increment_marker_count(-1);
    EXPECT_FALSE(cell.has_marker_array());
    EXPECT_EQ(cell.get_marker_count(1), 1);
    EXPECT_TRUE(cell.has_marker_array());
    cell.increment_marker_count(1);
    cell.increment_marker_count(-1);
    EXPECT_EQ(cell.get_marker_count(0), 2);
    EXPECT_EQ(cell.get_marker_count(1), 3);
    EXPECT_EQ(cell.get_marker_count(-1), 2);
}

TEST_F(Register, ASliceThatDoesNotExistHasNoMarkerAndStillMakesTheOthers)
{
    design top(nullptr);
    GNL_DFFE cell(&top, 3);
    EXPECT_EQ(cell.get_marker_count(3), -1);
    EXPECT_TRUE(cell.has_marker_array());
    EXPECT_EQ(cell.get_marker_count(-2), -1);
    cell.increment_marker_count(3);
    cell.increment_marker_count(-2);
    EXPECT_EQ(cell.get_marker_count(2), 0);
}

TEST_F(Register, ASliceAnswersForItsArray)
{
    design top(nullptr);
    auto & cell = *new GNL_DFFE(&top, 2);
    cell.set_instance_name("u");
    auto & slice = static_cast<GNL_DFFE &>(cell[1]);
    slice.increment_marker_count(-1);
    EXPECT_EQ(cell.get_marker_count(-1), 1);
    EXPECT_EQ(slice.get_marker_count(0), 1);
    EXPECT_TRUE(cell.has_marker_array());
    EXPECT_FALSE(slice.has_marker_array());
}

TEST_F(Register, ACopyCountsByItself)
{
    design top(nullptr);
    GNL_DFFE cell(&top, 2);
    cell.get_marker_count(0);
    GNL_DFFE copy(cell);
    copy.increment_marker_count(0);
    copy.increment_marker_count(-1);
    EXPECT_EQ(copy.get_marker_count(0), 2);
    EXPECT_EQ(cell.get_marker_count(0), 0);
    EXPECT_EQ(cell.get_marker_count(-1), 0);
}
