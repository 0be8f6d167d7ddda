#include "golden_designs.h"
#include "golden_run.h"

using namespace gnl_test;

namespace {

using GoldenVerilog = in_folder;
using GoldenVhdl = in_folder;
using GoldenQhdl = in_folder;

} // namespace

TEST_F(GoldenVerilog, FlatDesign)
{
    EXPECT_TRUE(writes_golden(*flat_design("LBX_FILE=top.v"), "flat.v"));
}

TEST_F(GoldenVerilog, TwoLevelDesign)
{
    EXPECT_TRUE(writes_golden(*two_level_design("LBX_FILE=top.v"), "two_level.v"));
}

TEST_F(GoldenVerilog, ArrayDesign)
{
    EXPECT_TRUE(writes_golden(*array_design("LBX_FILE=top.v"), "array.v"));
}

TEST_F(GoldenVerilog, ASecondRunWritesTheSame)
{
    array_design("LBX_FILE=top.v")->run();
    auto const first = file_text("top.v");
    EXPECT_NE(first, "");
    fs::remove("top.v");
    array_design("LBX_FILE=top.v")->run();
    EXPECT_EQ(file_text("top.v"), first);
}

TEST_F(GoldenVhdl, FlatDesign)
{
    EXPECT_TRUE(writes_golden(*flat_design("LBX_FILE=top.vhd"), "flat.vhd", "top.vhd"));
}

TEST_F(GoldenVhdl, TwoLevelDesign)
{
    EXPECT_TRUE(writes_golden(*two_level_design("LBX_FILE=top.vhd"), "two_level.vhd", "top.vhd"));
}

TEST_F(GoldenVhdl, ArrayDesign)
{
    EXPECT_TRUE(writes_golden(*array_design("LBX_FILE=top.vhd"), "array.vhd", "top.vhd"));
}

TEST_F(GoldenQhdl, FlatDesign)
{
    EXPECT_TRUE(writes_golden(*flat_design("LBX_FILE=top.tdf"), "flat.tdf", "top.tdf"));
}

TEST_F(GoldenQhdl, TwoLevelDesign)
{
    EXPECT_TRUE(writes_golden(*two_level_design("LBX_FILE=top.tdf"), "two_level.tdf", "top.tdf"));
}

TEST_F(GoldenQhdl, ArrayDesign)
{
    EXPECT_TRUE(writes_golden(*array_design("LBX_FILE=top.tdf"), "array.tdf", "top.tdf"));
}
