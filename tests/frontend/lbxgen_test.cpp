// The command-line front-end as a user sees it: results, messages and exit status.

#include "lbxgen_support.h"

#include <nlohmann/json.hpp>

#include <string>

namespace {

using namespace gnl_test;
using json = nlohmann::json;

using Lbxgen = lbxgen_test;

TEST_F(Lbxgen, ListsTheClassesWithTheirSummaries)
{
    auto const listed = run("list");
    EXPECT_EQ(listed.status, 0);
    EXPECT_NE(listed.text.find("parity_tree         Even or odd parity of WIDTH bits\n"), std::string::npos)
        << listed.text;
}

TEST_F(Lbxgen, ListsAsJson)
{
    auto const listed = run("list --json");
    auto const classes = json::parse(listed.text);
    EXPECT_GE(classes.size(), 8u);
    EXPECT_EQ(classes[0]["name"], "array_multiplier");
    EXPECT_EQ(classes[0]["summary"], "Multiplier of WIDTH by WIDTH bits of full-adder children");
}

TEST_F(Lbxgen, ListsParametersWithoutTheOptions)
{
    auto const listed = run("parameters parity_tree");
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.text, "NAME    TYPE     DEFAULT  VALUES\n"
                           "PARITY  string   EVEN     EVEN|ODD\n"
                           "WIDTH   integer  8        -\n");
    EXPECT_NE(run("parameters parity_tree --all").text.find("LBX_SINGLE_OUTPUT_FILE"), std::string::npos);
}

TEST_F(Lbxgen, ListsParametersAsJson)
{
    EXPECT_EQ(json::parse(run("parameters parity_tree --json").text),
              json::parse(R"([{"name":"PARITY","type":"string","default":"EVEN","values":"EVEN|ODD"},
                              {"name":"WIDTH","type":"integer","default":8}])"));
}

TEST_F(Lbxgen, ListsPortsAsTheyAreWithTheParameters)
{
    auto const listed = run("ports ripple_carry_adder WIDTH=5");
    EXPECT_EQ(listed.status, 0);
    EXPECT_EQ(listed.text, "NAME  DIRECTION  WIDTH  DEFAULT\n"
                           "a     input      5      -\n"
                           "b     input      5      -\n"
                           "cin   input      0      0\n"
                           "cout  output     0      -\n"
                           "sum   output     5      -\n");
}

TEST_F(Lbxgen, GeneratesAndListsTheFile)
{
    auto const generated = run("generate ripple_carry_adder WIDTH=4 -o adder.v");
    EXPECT_EQ(generated.status, 0);
    EXPECT_EQ(generated.text, "written\tadder.v\n");
    EXPECT_TRUE(file_text("adder.v").ends_with("//VALID FILE\n"));
}

TEST_F(Lbxgen, WritesIntoTheFolderInTheLanguageAskedFor)
{
    fs::create_directory("out");
    auto const generated = run("generate ripple_carry_adder WIDTH=2 -d out -o adder.tcl -l tcl");
    EXPECT_EQ(generated.status, 0);
    EXPECT_EQ(generated.text, "written\tout/adder.tcl\n");
    EXPECT_EQ(file_text("out/adder.tcl"), "set {intrfc_port(a)} {input 2}\n"
                                          "set {intrfc_port(b)} {input 2}\n"
                                          "set {intrfc_port(cin)} {input 0}\n"
                                          "set {intrfc_port(cout)} {output 0}\n"
                                          "set {intrfc_port(sum)} {output 2}\n");
}

TEST_F(Lbxgen, GeneratesWithJson)
{
    auto const result = json::parse(run("--json generate parity_tree -o p.v").text);
    EXPECT_EQ(result["result"], 0);
    EXPECT_EQ(result["messages"], json::array());
    EXPECT_EQ(result["files"], json::parse(R"([{"file":"p.v","state":"written"}])"));
    EXPECT_EQ(result["black_boxes"], json::array());
}

TEST_F(Lbxgen, ErrorsHaveCauseAndActionOnLinesOfTheirOwn)
{
    auto const failed = run("generate decoder ADDRESS_WIDTH=20 -o d.v");
    EXPECT_EQ(failed.status, 1);
    EXPECT_NE(failed.text.find("error: ADDRESS_WIDTH is 20\n"
                               "  cause: It must be from 1 to 16.\n"
                               "  action: Choose a value from 1 to 16.\n"),
              std::string::npos)
        << failed.text;
}

TEST_F(Lbxgen, WarnsAboutAnUnlistedValue)
{
    auto const warned = run("generate parity_tree PARITY=SOME -o p.v");
    EXPECT_EQ(warned.status, 0);
    EXPECT_NE(warned.text.find("warning: ( The parameter value is not one of the pre-specified values in the value "
                               "list.) parity_tree|PARITY The value assigned is SOME and the valid value list is "
                               "EVEN|ODD\n"),
              std::string::npos)
        << warned.text;
}

TEST_F(Lbxgen, AnUnknownClassNamesTheNearest)
{
    auto const failed = run("generate parity_trea -o p.v");
    EXPECT_EQ(failed.status, 64);
    EXPECT_EQ(failed.text, "error: there is no generator parity_trea (did you mean parity_tree?)\n");
}

TEST_F(Lbxgen, AnUnknownParameterNamesTheNearest)
{
    auto const failed = run("generate parity_tree WIDHT=4 -o p.v");
    EXPECT_EQ(failed.status, 64);
    EXPECT_TRUE(failed.text.starts_with("error: parity_tree has no parameter WIDHT (did you mean WIDTH"))
        << failed.text;
    EXPECT_FALSE(fs::exists("p.v"));
}

TEST_F(Lbxgen, MalformedParametersAreOneClearLineEach)
{
    EXPECT_EQ(run("generate parity_tree WIDTH").text,
              "error: malformed parameter 'WIDTH': it must have the form NAME=value\n");
    EXPECT_EQ(run("generate parity_tree =4").text,
              "error: malformed parameter '=4': it must have the form NAME=value\n");
    EXPECT_EQ(run("generate parity_tree WIDTH=").text, "error: malformed parameter 'WIDTH=': it has no value\n");
    EXPECT_EQ(run("generate parity_tree WIDTH=4x").text, "error: parameter WIDTH takes an integer, not '4x'\n");
    EXPECT_EQ(run("generate parity_tree WIDTH=99999999999").text,
              "error: parameter WIDTH takes an integer, not '99999999999'\n");
    EXPECT_EQ(run("generate parity_tree WIDTH=4x").status, 64);
}

TEST_F(Lbxgen, PlugInsThatCannotBeLoadedAreOneClearLineEach)
{
    EXPECT_EQ(run_bare("-p nowhere.so list").status, 64);
    EXPECT_EQ(run_bare("-p nowhere.so list").text,
              "error: plug-in " + fs::absolute("nowhere.so").string() + " can't be loaded: no such file\n");
    std::ofstream("text.so") << "no shared object\n";
    auto const failed = run_bare("-p text.so list");
    EXPECT_EQ(failed.status, 64);
    EXPECT_EQ(failed.text, "error: plug-in " + fs::absolute("text.so").string() + " can't be loaded: file too short\n");
    EXPECT_EQ(run_bare("list").text, "info: no plug-in is loaded; use --plugin FILE or set LBX_PLUGIN_PATH\n");
    EXPECT_EQ(run_bare("generate adder").text,
              "error: there is no generator adder: no plug-in is loaded (use --plugin FILE)\n");
}

TEST_F(Lbxgen, ANamedPlugInComesBeforeThoseOfFolders)
{
    fs::create_directory("folder");
    fs::copy_file(LBXGEN_EXAMPLES, "folder/a.so");
    fs::copy_file(LBXGEN_ODD_GENERATORS, "folder/b.so");
    fs::copy_file(LBXGEN_ODD_GENERATORS, "folder/c.so");
    auto const listed = run_command("LBX_PLUGIN_PATH=folder '" LBXGEN_PROGRAM "' -p '" LBXGEN_EXAMPLES "' list");
    EXPECT_EQ(listed.status, 0) << listed.text;
    EXPECT_NE(listed.text.find("decoder"), std::string::npos) << listed.text;
    EXPECT_NE(listed.text.find("bank"), std::string::npos) << listed.text;
    fs::copy_file(LBXGEN_EXAMPLES, "same.so");
    EXPECT_EQ(run("-p same.so list").text, "error: plug-in " + fs::absolute("same.so").string()
                                               + " can't be loaded: a generator named array_multiplier is there "
                                                 "already\n");
}

TEST_F(Lbxgen, APlugInOptionTakesOneValueWhereverItStands)
{
    EXPECT_EQ(run_bare("generate ripple_carry_adder -p '" LBXGEN_EXAMPLES "' WIDTH=4 -o adder.v").text,
              "written\tadder.v\n");
}

TEST_F(Lbxgen, PlugInsAreFoundInFolders)
{
    auto const folder = fs::path(LBXGEN_EXAMPLES).parent_path().string();
    auto const listed = run_command("LBX_PLUGIN_PATH=/nowhere:" + folder + " '" LBXGEN_PROGRAM "' list");
    EXPECT_EQ(listed.status, 0);
    EXPECT_NE(listed.text.find("decoder"), std::string::npos) << listed.text;
}

TEST_F(Lbxgen, WrongUsageIsTold)
{
    EXPECT_EQ(run("").status, 64);
    EXPECT_EQ(run("frobnicate").status, 64);
    EXPECT_EQ(run("generate").status, 64);
    EXPECT_EQ(run("generate decoder -l cobol").status, 64);
    EXPECT_EQ(run("--help").status, 0);
    EXPECT_EQ(run("--version").status, 0);
}

TEST_F(Lbxgen, AnUnwritablePlaceIsReported)
{
    auto const failed = run("generate parity_tree -d nowhere -o p.v");
    EXPECT_EQ(failed.status, 1);
    EXPECT_NE(failed.text.find("error: File nowhere/p.v cannot be created.\n"
                               "  cause: The file cannot be created. The file already exists, and is "
                               "write-protected, or there is not enough space.\n"),
              std::string::npos)
        << failed.text;
}

TEST_F(Lbxgen, AnExceptionThatLeavesTheLibraryIsReported)
{
    auto const failed = run("generate decoder ADDRESS_WIDTH=20 LBX_THROW_EXCEPTION_ON_ERROR=ON -o d.v");
    EXPECT_EQ(failed.status, 1);
    EXPECT_NE(failed.text.find("error: decoder ended with an exception: GNL_INTERNAL_ERROR: ADDRESS_WIDTH is 20 "),
              std::string::npos)
        << failed.text;
    EXPECT_FALSE(fs::exists("d.v"));
}

TEST_F(Lbxgen, ManPageAndCompletionAreWellFormed)
{
    EXPECT_EQ(run_command("bash -n '" LBX_SOURCE_DIR "/frontend/lbxgen.bash'").status, 0);
    auto const completed = run_command(
        "bash -c \"source '" LBX_SOURCE_DIR "/frontend/lbxgen.bash'; COMP_WORDS=('" LBXGEN_PROGRAM
        "' -p '" LBXGEN_EXAMPLES
        "' generate par); COMP_CWORD=4; compopt() { :; }; _lbxgen; printf '%s\\\\n' \\\"\\${COMPREPLY[@]}\\\"\"");
    EXPECT_EQ(completed.text, "parity_tree\n");
}

TEST_F(Lbxgen, ManPageAndCompletionKnowAllOptions)
{
    auto manual = file_text(LBX_SOURCE_DIR "/frontend/lbxgen.1");
    std::erase(manual, '\\');
    auto const completion = file_text(LBX_SOURCE_DIR "/frontend/lbxgen.bash");
    for (std::string const command : {"", "list ", "parameters ", "ports ", "generate "}) {
        auto const help = run_bare(command + "--help").text;
        int options = 0;
        for (auto at = help.find("--"); at != std::string::npos; at = help.find("--", at + 2), ++options) {
            auto const option = help.substr(at, help.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at) - at);
            EXPECT_NE(completion.find(option), std::string::npos) << option;
            EXPECT_NE(manual.find(option), std::string::npos) << option;
        }
        EXPECT_GT(options, 0) << help;
    }
}

} // namespace
