#include "golden.h"
#include "golden_designs.h"

#include <algorithm>

using namespace gnl_test;

namespace {

using GoldenVerilog = in_folder;

/// The file, with the legal notice left to its own tests.
std::string without_legal_notice(design & top, std::string text)
{
    auto const notice = top.dump_copyright_header();
    auto const at = text.find(notice);
    return at == std::string::npos ? text : text.replace(at, notice.size(), "// (legal notice)\n");
}

::testing::AssertionResult writes_golden(std::unique_ptr<design> top, std::string const & name)
{
    if (auto const shared = top->run(); !shared.empty())
        return ::testing::AssertionFailure() << "text on the shared stream: " << shared;
    if (auto const messages = top->messages(); !messages.empty())
        return ::testing::AssertionFailure() << messages.front();
    return matches_golden(fs::path(LBX_SOURCE_DIR) / "tests/writers/golden" / (name + ".v"),
                          without_legal_notice(*top, file_text("top.v")));
}

} // namespace

TEST_F(GoldenVerilog, FlatDesign)
{
    EXPECT_TRUE(writes_golden(flat_design("LBX_FILE=top.v"), "flat"));
}

TEST_F(GoldenVerilog, TwoLevelDesign)
{
    EXPECT_TRUE(writes_golden(two_level_design("LBX_FILE=top.v"), "two_level"));
}

TEST_F(GoldenVerilog, ArrayDesign)
{
    EXPECT_TRUE(writes_golden(array_design("LBX_FILE=top.v"), "array"));
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
