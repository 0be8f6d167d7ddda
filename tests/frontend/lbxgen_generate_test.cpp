// `lbxgen generate`: one file or many, reuse, black boxes, and what is told of each file.

#include "lbxgen_support.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>

#include <sys/stat.h>

namespace {

using namespace gnl_test;
using json = nlohmann::json;

class LbxgenGenerate : public lbxgen_test
{
protected:
    /// The lines of a listing, sorted; file names that come from settings stand as "*.ending".
    static texts listing(command_result const & result)
    {
        texts lines;
        std::istringstream in(result.text);
        for (std::string line; std::getline(in, line);) {
            auto const name = line.find("\tmg");
            lines.push_back(name == std::string::npos ? line
                                                      : line.substr(0, name + 1) + "*" + line.substr(line.rfind('.')));
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    }
    /// Which file stands under which name; a file that is written again is another one.
    static std::map<std::string, ::ino_t> files()
    {
        std::map<std::string, ::ino_t> found;
        for (auto const & entry : fs::directory_iterator(".")) {
            struct ::stat status
            {
            };
            EXPECT_EQ(::stat(entry.path().c_str(), &status), 0);
            found[entry.path().filename().string()] = status.st_ino;
        }
        return found;
    }
};

// One file or many

TEST_F(LbxgenGenerate, OneFileHoldsAllDesigns)
{
    EXPECT_EQ(run_odd("generate bank COPIES=2 -o bank.v").text, "written\tbank.v\n");
    EXPECT_EQ(run_odd("generate bank COPIES=2 -o again.v --single-file").text, "written\tagain.v\n");
    EXPECT_EQ(files().size(), 2u);
}

TEST_F(LbxgenGenerate, SeparateFilesAreListedOnceEachWithTheTopLast)
{
    auto const generated = run_odd("generate bank COPIES=2 -o bank.vhd --separate-files");
    EXPECT_EQ(generated.status, 0);
    EXPECT_EQ(listing(generated), (texts{"written\t*.vhd", "written\tbank.vhd"})) << generated.text;
    EXPECT_TRUE(generated.text.ends_with("written\tbank.vhd\n"));
    EXPECT_EQ(files().size(), 2u);
}

TEST_F(LbxgenGenerate, QhdlDesignsHaveFilesOfTheirOwn)
{
    EXPECT_EQ(listing(run_odd("generate bank -o bank.tdf")), (texts{"written\t*.tdf", "written\tbank.tdf"}));
}

TEST_F(LbxgenGenerate, SlicesThatDifferHaveFilesOfTheirOwn)
{
    EXPECT_EQ(listing(run_odd("generate pair -o pair.v --separate-files")),
              (texts{"written\t*.v", "written\t*.v", "written\tpair.v"}));
    EXPECT_EQ(files().size(), 3u);
}

TEST_F(LbxgenGenerate, AFolderTakesAllFiles)
{
    fs::create_directory("out");
    auto const generated = run_odd("generate bank -d out -o bank.v --separate-files");
    EXPECT_EQ(std::count(generated.text.begin(), generated.text.end(), '\n'), 2) << generated.text;
    EXPECT_EQ(generated.text.find("written\tout/mg"), 0u) << generated.text;
    EXPECT_TRUE(generated.text.ends_with("\nwritten\tout/bank.v\n")) << generated.text;
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(LbxgenGenerate, OneFileAndManyExcludeEachOther)
{
    EXPECT_EQ(run_odd("generate bank --single-file --separate-files").status, 64);
}

TEST_F(LbxgenGenerate, AnEndingThatWouldOverruleTheLanguageIsTold)
{
    auto const failed = run_odd("generate bank -l verilog -o bank.vhd");
    EXPECT_EQ(failed.status, 64);
    EXPECT_EQ(failed.text, "error: the ending of bank.vhd makes it a vhdl file, but the language is to be verilog\n");
    EXPECT_EQ(run_odd("generate bank -l tcl -o bank.v").status, 64);
    EXPECT_EQ(run_odd("generate bank -l qhdl -o bank.v:a").status, 64);
    EXPECT_EQ(files().size(), 0u);
    EXPECT_EQ(run_odd("generate bank -l vhdl -o bank.v").text, "written\tbank.v\n");
    EXPECT_TRUE(file_text("bank.v").ends_with("--VALID FILE\n"));
    EXPECT_EQ(run_odd("generate bank -l verilog -o bank.text").text, "written\tbank.text\n");
}

// Reuse

TEST_F(LbxgenGenerate, SubdesignsThatAreThereAreReused)
{
    run_odd("generate bank COPIES=2 -o bank.v --separate-files");
    auto const before = files();
    auto const again = run_odd("generate bank COPIES=2 -o bank.v --separate-files");
    EXPECT_EQ(again.status, 0);
    EXPECT_EQ(listing(again), (texts{"reused\t*.v", "written\tbank.v"})) << again.text;
    for (auto const & [name, file] : files())
        EXPECT_EQ(file == before.at(name), name != "bank.v") << name;
}

TEST_F(LbxgenGenerate, ATopNamedByItsSettingsIsReused)
{
    run_odd("generate bank -l verilog --separate-files");
    auto const before = files();
    EXPECT_EQ(before.size(), 2u);
    EXPECT_EQ(listing(run_odd("generate bank -l verilog --separate-files")), texts{"reused\t*.v"});
    EXPECT_EQ(files(), before);
    EXPECT_EQ(listing(run_odd("generate bank -l verilog --separate-files WIDTH=5")),
              (texts{"written\t*.v", "written\t*.v"}));
    EXPECT_EQ(files().size(), 4u);
}

TEST_F(LbxgenGenerate, ForceWritesWhatIsThere)
{
    run_odd("generate bank -l verilog --separate-files");
    auto const before = files();
    EXPECT_EQ(listing(run_odd("generate bank -l verilog --separate-files --force")),
              (texts{"written\t*.v", "written\t*.v"}));
    auto const after = files();
    ASSERT_EQ(after.size(), before.size());
    for (auto const & [name, file] : after)
        EXPECT_NE(file, before.at(name)) << name;
}

TEST_F(LbxgenGenerate, StatesStandInTheJsonToo)
{
    run_odd("generate bank -o bank.v --separate-files");
    auto const result = json::parse(run_odd("--json generate bank -o bank.v --separate-files").text);
    ASSERT_EQ(result["files"].size(), 2u);
    EXPECT_EQ(result["files"][0]["state"], "reused");
    EXPECT_EQ(result["files"][1], json::parse(R"({"file":"bank.v","state":"written"})"));
}

// Black boxes

TEST_F(LbxgenGenerate, BlackBoxesAreListedOnce)
{
    auto const generated = run_odd("generate bank COPIES=3 -o bank.v --separate-files --blackbox CELL");
    EXPECT_EQ(generated.status, 0);
    EXPECT_EQ(generated.text, "written\tbank.v\nblack box\tcell\n");
    EXPECT_NE(file_text("bank.v").find("\tcell   cell_0_"), std::string::npos) << file_text("bank.v");
    EXPECT_EQ(json::parse(run_odd("--json generate bank -o b.v --blackbox cell").text)["black_boxes"],
              json::parse(R"(["cell"])"));
}

TEST_F(LbxgenGenerate, BlackBoxesAreGivenOneByOneOrInAFile)
{
    EXPECT_EQ(run_odd("generate bank --blackbox cell --blackbox=-other WIDTH=5 -o a.v").text,
              "written\ta.v\nblack box\tcell\n");
    EXPECT_EQ(run_odd("generate bank --blackbox=-cell --blackbox cell -o b.v").text, "written\tb.v\n");
    std::ofstream("boxes.txt") << "something\ncell\n";
    EXPECT_EQ(run_odd("generate bank --blackbox boxes.txt -o c.v").text, "written\tc.v\nblack box\tcell\n");
}

TEST_F(LbxgenGenerate, ABlackBoxThatIsNoSubdesignIsTold)
{
    auto const generated = run_odd("generate bank --blackbox sell -o bank.v");
    EXPECT_EQ(generated.status, 0);
    EXPECT_EQ(generated.text, "warning: bank has no subdesign sell to be a black box (did you mean cell?)\n"
                              "written\tbank.v\n");
    EXPECT_EQ(run_odd("generate bank --blackbox '' -o bank.v").text,
              "error: --blackbox needs a name that is not empty\n");
}

TEST_F(LbxgenGenerate, LibraryPathsReachTheGenerator)
{
    EXPECT_EQ(run_odd("generate bank --library-path a --library-path 'b c' WIDTH=5 -o bank.v").text,
              "written\tbank.v\n");
    EXPECT_EQ(run_odd("generate bank --library-path '' -o bank.v").text,
              "error: --library-path needs a name that is not empty\n");
}

// How a generation ends

TEST_F(LbxgenGenerate, AnUnsupportedDesignHasAStatusOfItsOwn)
{
    auto const top = run_odd("generate ending HOW=UNSUPPORTED -o top.v");
    EXPECT_EQ(top.status, 2);
    EXPECT_EQ(top.text, "");
    EXPECT_EQ(files().size(), 0u);
    auto const child = run_odd("generate parent HOW=UNSUPPORTED -o top.v --separate-files");
    EXPECT_EQ(child.status, 3);
    EXPECT_EQ(child.text, "written\ttop.v\nblack box\tending\n");
}

TEST_F(LbxgenGenerate, AnAbortedBodyLeavesAValidFileThatReports)
{
    auto const aborted = run_odd("generate ending HOW=ABORTED -o top.v");
    EXPECT_EQ(aborted.status, 0);
    EXPECT_EQ(aborted.text, "written\ttop.v\n");
}

TEST_F(LbxgenGenerate, EveryKindOfExceptionIsReported)
{
    EXPECT_EQ(run_odd("generate ending HOW=THROWING -o top.v").text,
              "error: ending ended with an exception: out of ideas\n");
    EXPECT_EQ(run_odd("generate ending HOW=THROWING_TEXT -o top.v").text,
              "error: ending ended with an exception: out of words\n");
    EXPECT_EQ(run_odd("generate ending HOW=THROWING_INT -o top.v").text,
              "error: ending ended with an exception: unknown exception\n");
    EXPECT_EQ(run_odd("generate parent HOW=THROWING -o top.v --separate-files").status, 1);
    EXPECT_EQ(run_odd("generate unborn").text, "error: ended with an exception: no memory of anything\n");
    EXPECT_EQ(run_odd("generate unborn").status, 1);
    EXPECT_EQ(files().size(), 0u);
}

TEST_F(LbxgenGenerate, AFileThatCannotBeWrittenIsNotListed)
{
    auto const width = std::string("bank WIDTH=64 COPIES=40 -o bank.v --force");
    ASSERT_EQ(run_odd("generate " + width).status, 0);
    auto const before = files();
    // The shell counts in blocks of 512 or 1024 bytes; the file is larger, and the messages are in a pipe.
    auto const failed = run_command(
        "ulimit -f 1; env -u LBX_PLUGIN_PATH '" LBXGEN_PROGRAM "' -p '" LBXGEN_ODD_GENERATORS "' generate " + width);
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.text, "error: File bank.v cannot be created.\n"
                           "  cause: The file cannot be created. The file already exists, and is write-protected, or "
                           "there is not enough space.\n");
    EXPECT_EQ(files(), before);
}

TEST_F(LbxgenGenerate, AFullDiskLeavesNothingBehind)
{
    auto const failed =
        run_command("ulimit -f 1; env -u LBX_PLUGIN_PATH '" LBXGEN_PROGRAM "' -p '" LBXGEN_ODD_GENERATORS
                    "' generate bank WIDTH=64 COPIES=40 -o bank.v --separate-files");
    EXPECT_EQ(failed.status, 1);
    EXPECT_NE(failed.text.find("error: File bank.v cannot be created.\n"), std::string::npos) << failed.text;
    EXPECT_EQ(failed.text.find("written\tbank.v"), std::string::npos) << failed.text;
    EXPECT_EQ(files().size(), 0u) << files().begin()->first;
}

TEST_F(LbxgenGenerate, MessagesAreColouredOnATerminalOnly)
{
    SKIP_WITHOUT("script");
    auto const plain = run_odd("generate bank COPIES=0 -o bank.v").text;
    EXPECT_TRUE(plain.starts_with("error: COPIES is 0\n")) << plain;
    auto const coloured = run_command("script -qec \"'" LBXGEN_PROGRAM "' -p '" LBXGEN_ODD_GENERATORS
                                      "' generate bank COPIES=0 -o bank.v\" /dev/null");
    EXPECT_EQ(coloured.status, 1);
    EXPECT_TRUE(coloured.text.starts_with("\033[1;31merror:\033[0m COPIES is 0\r\n")) << coloured.text;
}

TEST_F(LbxgenGenerate, ResultsThatCannotBeWrittenAreAnError)
{
    EXPECT_EQ(run("list >/dev/full").text, "");
    auto const failed = run_command("('" LBXGEN_PROGRAM "' -p '" LBXGEN_EXAMPLES "' list 2>&3 >/dev/full) 3>&1");
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.text, "error: the results can't be written to standard output\n");
}

// The list file

TEST_F(LbxgenGenerate, AListFileTakesTheListing)
{
    EXPECT_EQ(run_odd("generate bank -o bank.v --blackbox cell --list-file list").text, "");
    EXPECT_EQ(file_text("list"), "written\tbank.v\nblack box\tcell\n");
}

TEST_F(LbxgenGenerate, AListFileStandsForAGenerationThatWentWell)
{
    EXPECT_EQ(run_odd("generate bank COPIES=0 -o bank.v --list-file list").status, 1);
    EXPECT_FALSE(fs::exists("list"));
    auto const failed = run_odd("generate bank -o bank.v --list-file nowhere/list");
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.text, "error: the list can't be written to nowhere/list\n");
}

// Names are looked for in turn

TEST_F(LbxgenGenerate, RunsSideBySideInOneFolderKeepTheirSubdesigns)
{
    // Both cells' names begin with the same sum of characters.
    std::string const generate =
        "'" LBXGEN_PROGRAM "' -p '" LBXGEN_ODD_GENERATORS "' generate bank --separate-files -d ";
    for (int round = 0; round < 16; ++round) {
        auto const folder = "round" + std::to_string(round);
        fs::create_directory(folder);
        std::string commands;
        for (std::string const width : {"12", "21"})
            commands += generate + folder + " WIDTH=" + width + " -o bank" + width + ".v >/dev/null & ";
        ASSERT_EQ(run_command("(" + commands + "wait)").text, "");
        std::map<std::string, std::string> cell_of;
        for (auto const & entry : fs::directory_iterator(folder))
            if (auto const text = file_text(entry.path()); text.starts_with("//cell"))
                cell_of[text.substr(text.find("WIDTH=") + 6, 2)] = entry.path().stem().string();
        ASSERT_EQ(cell_of.size(), 2u) << folder;
        for (auto const & [width, cell] : cell_of)
            EXPECT_NE(file_text(folder + "/bank" + width + ".v").find("\t" + cell + "   cell_0_"), std::string::npos)
                << folder << ", WIDTH=" << width;
    }
}

} // namespace
