// lbxgen check: one line tells whether the languages mean the same.

#include "lbxgen_support.h"

#include <nlohmann/json.hpp>

namespace {

using namespace gnl_test;

class LbxgenCheck : public lbxgen_test
{
protected:
    static bool tools_are_there()
    {
        return tool_is_there("ghdl") && tool_is_there("yosys") && tool_is_there("yosys-abc");
    }
};

TEST_F(LbxgenCheck, ProvesADesign)
{
    if (!tools_are_there())
        GTEST_SKIP() << "the tools of the proof are not installed";
    auto const checked = run("check carry_select_adder WIDTH=6 BLOCK=2");
    EXPECT_EQ(checked.text, "carry_select_adder: Verilog and VHDL are proven equal; QHDL is written\n");
    EXPECT_EQ(checked.status, 0);
    EXPECT_TRUE(fs::is_empty(".")) << "its files are nobody's";
}

TEST_F(LbxgenCheck, TellsTheResultAsJson)
{
    if (!tools_are_there())
        GTEST_SKIP() << "the tools of the proof are not installed";
    EXPECT_EQ(nlohmann::json::parse(run("check parity_tree --json").text),
              nlohmann::json::parse(R"({"result":0,"text":"Verilog and VHDL are proven equal; QHDL is written"})"));
}

TEST_F(LbxgenCheck, FindsADifference)
{
    if (!tools_are_there())
        GTEST_SKIP() << "the tools of the proof are not installed";
    auto const checked = run_odd("check stretched");
    EXPECT_EQ(checked.text.substr(0, 63), "stretched: Verilog and VHDL differ: Networks are NOT EQUIVALENT")
        << checked.text;
    EXPECT_NE(checked.text.find("y[1]"), std::string::npos) << checked.text;
    EXPECT_EQ(checked.status, 1);
}

TEST_F(LbxgenCheck, TellsWhichToolsAreMissing)
{
    fs::create_directory("empty");
    auto const without =
        run_command("PATH=\"$PWD/empty\" '" LBXGEN_PROGRAM "' --plugin '" LBXGEN_EXAMPLES "' check parity_tree");
    EXPECT_EQ(
        without.text,
        "parity_tree: Verilog, VHDL and QHDL are written, not proven: ghdl, yosys, yosys-abc are not installed\n");
    EXPECT_EQ(without.status, 2);
}

TEST_F(LbxgenCheck, LeavesBidirectionalPortsUnproven)
{
    auto const checked = run("check bus_adapter");
    EXPECT_EQ(checked.text,
              "bus_adapter: Verilog, VHDL and QHDL are written, not proven: it has bidirectional ports\n");
    EXPECT_EQ(checked.status, 2);
}

TEST_F(LbxgenCheck, ReportsWhatIsWrongWithTheDesign)
{
    auto const checked = run("check array_multiplier WIDTH=1");
    EXPECT_EQ(checked.text, "error: WIDTH is 1\n"
                            "  cause: It must be from 2 to 64.\n"
                            "  action: Choose a value from 2 to 64.\n");
    EXPECT_EQ(checked.status, 1);
    EXPECT_EQ(run("check no_such_class").status, 64);
    EXPECT_EQ(run("check").status, 64);
}

TEST_F(LbxgenCheck, AnExceptionIsReported)
{
    auto const checked = run_odd("check ending HOW=THROWING");
    EXPECT_EQ(checked.status, 1) << checked.text;
    EXPECT_EQ(checked.text.substr(0, 7), "error: ") << checked.text;
}

} // namespace
