// Whole runs that depart from one text for each design, in each language: black boxes, gates instead of expressions,
// parameters from above.

#include "golden_file_designs.h"

using namespace gnl_test;

namespace {

class GoldenFiles : public in_table
{
};

class GoldenBoxFile : public in_each_language
{
};

} // namespace

TEST_P(GoldenFiles, AreAsTheyWere)
{
    expect_shown();
}

IN_EACH_LANGUAGE_OF_TABLE(GoldenFiles, golden_files);

TEST_P(GoldenBoxFile, NamesTheBoxesAsAListDoes)
{
    std::ofstream("boxes.txt") << "other\r\nSTAGE\r\n";
    fs::create_directory("run");
    fs::current_path("run");
    EXPECT_TRUE(shows_golden(*boxes(into_top(",LBX_BLACKBOX_LIST=../boxes.txt")), "listed_box", GetParam()));
}

IN_EACH_LANGUAGE(GoldenBoxFile);
