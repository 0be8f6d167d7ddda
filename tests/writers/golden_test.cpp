#include "golden.h"
#include "support.h"

using namespace gnl_test;

namespace {

/// Clears the update switch, which an outer run may have set, and brings it back.
class Golden : public in_folder
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        if (char const * update = std::getenv("LBX_UPDATE_GOLDEN"))
            m_update = update;
        unsetenv("LBX_UPDATE_GOLDEN");
        std::ofstream("golden.v") << "module a\n\t( \n";
    }
    void TearDown() override
    {
        if (m_update.empty())
            unsetenv("LBX_UPDATE_GOLDEN");
        else
            setenv("LBX_UPDATE_GOLDEN", m_update.c_str(), 1);
        in_folder::TearDown();
    }

private:
    std::string m_update;
};

std::string shown(::testing::AssertionResult const & result)
{
    return result ? "equal" : result.message();
}

} // namespace

TEST_F(Golden, EqualTextsMatch)
{
    EXPECT_EQ(shown(matches_golden("golden.v", "module a\n\t( \n")), "equal");
}

TEST_F(Golden, ADifferenceShowsLineColumnAndBothBytes)
{
    EXPECT_EQ(shown(matches_golden("golden.v", "module a\n    ( \n")),
              "line 2, column 1: expected \"\\t\", found \" \"\n"
              "expected line: \t( \n"
              "found line:        ( \n"
              "in golden.v");
    EXPECT_EQ(shown(same_text("ab\x01", "abc")), "line 1, column 3: expected 0x1, found \"c\"\n"
                                                 "expected line: ab\x01\n"
                                                 "found line:    abc");
}

TEST_F(Golden, TheEndOfATextIsADifference)
{
    EXPECT_EQ(shown(same_text("a\nb\n", "a\nb")), "line 2, column 2: expected \"\\n\", found end of text\n"
                                                  "expected line: b\n"
                                                  "found line:    b");
    EXPECT_EQ(shown(same_text("a", "a\r")), "line 1, column 2: expected end of text, found \"\\r\"\n"
                                            "expected line: a\n"
                                            "found line:    a\r");
    EXPECT_EQ(shown(same_text("", "\n")), "line 1, column 1: expected end of text, found \"\\n\"\n"
                                          "expected line: \n"
                                          "found line:    ");
}

TEST_F(Golden, AMissingFileFails)
{
    EXPECT_EQ(shown(matches_golden("nowhere.v", "")), "\"nowhere.v\" can't be read");
}

TEST_F(Golden, AnUpdateRewritesTheFileAndStillFails)
{
    setenv("LBX_UPDATE_GOLDEN", "1", 1);
    EXPECT_EQ(shown(matches_golden("golden.v", "new\n")),
              "\"golden.v\" has been rewritten: read it, and run the test again without LBX_UPDATE_GOLDEN");
    EXPECT_EQ(file_text("golden.v"), "new\n");
    unsetenv("LBX_UPDATE_GOLDEN");
    EXPECT_EQ(shown(matches_golden("golden.v", "new\n")), "equal");
}
