#include "support.h"

namespace {

using gnl_test::design;
using gnl_test::texts;

class FileNames : public gnl_test::in_folder
{
};

/// A generator that shows its full file name's setter.
class named_design : public design
{
public:
    using design::design;
    using design::set_full_file_name;
};

std::string file_name_of(std::string const & text)
{
    design top(nullptr, "top", text.c_str());
    return top.get_file_name();
}

TEST_F(FileNames, ATopTakesItsFileOption)
{
    EXPECT_EQ(file_name_of("LBX_FILE=top.v"), "top.v");
    EXPECT_EQ(file_name_of("LBX_FILE=a/b/top.v"), "a/b/top.v");
    EXPECT_EQ(file_name_of("LBX_FILE=./top.v"), "./top.v");
    EXPECT_EQ(file_name_of("LBX_FILE=top"), "top");
}

TEST_F(FileNames, ATopWithoutTheOptionHasNoNameYet)
{
    design top(nullptr);
    EXPECT_STREQ(top.get_file_name(), "");
    top.set_file_name("top.v");
    EXPECT_STREQ(top.get_file_name(), "top.v");
}

TEST_F(FileNames, TheOutputDirectoryReplacesThePath)
{
    EXPECT_EQ(file_name_of("LBX_FILE=a/b/top.v,LBX_OUTPUT_DIRECTORY=out"), "out/top.v");
    EXPECT_EQ(file_name_of("LBX_FILE=top.v,LBX_OUTPUT_DIRECTORY=out/"), "out/top.v");
    EXPECT_EQ(file_name_of("LBX_FILE=top.v,LBX_OUTPUT_DIRECTORY=out;other"), "out/top.v");
    EXPECT_EQ(file_name_of("LBX_FILE=a\\b\\top.v,LBX_OUTPUT_DIRECTORY=out"), "out/top.v");
}

TEST_F(FileNames, ABackslashEndsThePathBeforeAnySlashDoes)
{
    EXPECT_EQ(file_name_of("LBX_FILE=a/b\\c/top.v,LBX_OUTPUT_DIRECTORY=out"), "out/c/top.v");
    EXPECT_EQ(file_name_of("LBX_FILE=c:\\work\\top.v"), "c:\\work\\top.v");
    EXPECT_EQ(file_name_of("LBX_FILE=a:b/top.v"), "a:b/top.v");
}

TEST_F(FileNames, WhatFollowsTheFileNameIsCutOff)
{
    EXPECT_EQ(file_name_of("LBX_FILE=a/top.v:a"), "a/top.v");
    EXPECT_EQ(file_name_of("LBX_FILE=a/top.v:a:entity"), "a/top.v");
    EXPECT_EQ(file_name_of("LBX_FILE=a/top.v:x"), "a/top.v");
}

TEST_F(FileNames, TheMarkForAppendingSetsTheMode)
{
    for (auto const & [text, appends] : std::map<std::string, bool>{{"LBX_FILE=top.v", false},
                                                                    {"LBX_FILE=top.v:a", true},
                                                                    {"LBX_FILE=top.v:A:entity", true},
                                                                    {"LBX_FILE=top.v:ab", false},
                                                                    {"LBX_FILE=top.v:x:a", false}}) {
        SCOPED_TRACE(text);
        design top(nullptr, "top", text.c_str());
        top.get_file_name();
        EXPECT_EQ(top.is_append_mode(), appends);
    }
}

TEST_F(FileNames, ASubdesignIsNamedByEntityAndLanguage)
{
    std::map<int, std::string> const names{
        {GNL_QHDL, "part.tdf"}, {GNL_VERILOG, "part.v"}, {GNL_VHDL, "part.vhd"}, {GNL_TCL, "part.tdf"}};
    for (auto const & [language, name] : names) {
        design::set_gen_language(language);
        design top(nullptr);
        design & sub = top.child("sub", "s");
        sub.set_entity_name("part");
        EXPECT_EQ(sub.get_file_name(), name);
    }
}

TEST_F(FileNames, ASubdesignStandsInTheOutputDirectory)
{
    design::set_gen_language(GNL_VERILOG);
    design top(nullptr, "top", "LBX_OUTPUT_DIRECTORY=out;other");
    design & sub = top.child("sub", "s");
    sub.set_entity_name("part");
    EXPECT_STREQ(sub.get_file_name(), "out/part.v");
}

TEST_F(FileNames, APrimitiveHasNoFile)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    design & sub = top.child("sub", "s");
    sub.set_entity_name("part");
    sub.set_primitive();
    EXPECT_STREQ(sub.get_file_name(), "");
}

TEST_F(FileNames, TheNameIsMadeOnce)
{
    design::set_gen_language(GNL_VERILOG);
    design top(nullptr);
    design & sub = top.child("sub", "s");
    sub.set_entity_name("part");
    EXPECT_STREQ(sub.get_file_name(), "part.v");
    sub.set_entity_name("other");
    EXPECT_STREQ(sub.get_file_name(), "part.v");
}

TEST_F(FileNames, TheFullNameTakesTheOutputDirectory)
{
    named_design in_place(nullptr, "top");
    in_place.set_full_file_name("side.v");
    EXPECT_STREQ(in_place.get_file_name(), "side.v");
    named_design in_directory(nullptr, "top", "LBX_OUTPUT_DIRECTORY=out");
    in_directory.set_full_file_name("side.v");
    EXPECT_STREQ(in_directory.get_file_name(), "out/side.v");
}

struct names
{
    std::string file, entity, add_on;
    bool append;
    bool operator==(names const &) const = default;
};

std::ostream & operator<<(std::ostream & out, names const & n)
{
    return out << n.file << " " << n.entity << " " << n.add_on << " " << n.append;
}

names after_setting(std::string const & text, std::string const & name = "made.v", int language = GNL_VERILOG)
{
    design::set_gen_language(language);
    design top(nullptr, "top", text.c_str());
    top.set_entity_name("before");
    top.set_file_name(name);
    EXPECT_EQ(top.messages(), texts{});
    bool const append = top.is_append_mode();
    top.set_append_mode(); // shows the add-on name
    return {top.get_file_name(), top.get_entity_name(), top.get_add_on_name(), append};
}

TEST_F(FileNames, SettingTheNameNamesTheEntity)
{
    EXPECT_EQ(after_setting(""), (names{"made.v", "made", "", false}));
    EXPECT_EQ(after_setting("", "made"), (names{"made", "made", "", false}));
    EXPECT_EQ(after_setting("", "made.b.v"), (names{"made.b.v", "made", "", false}));
}

TEST_F(FileNames, AGivenFileOptionStays)
{
    EXPECT_EQ(after_setting("LBX_FILE=given.v"), (names{"given.v", "given", "", false}));
}

TEST_F(FileNames, TheEntityHasNoDirectories)
{
    EXPECT_EQ(after_setting("LBX_FILE=a/given.v"), (names{"a/given.v", "given", "", false}));
    EXPECT_EQ(after_setting("LBX_FILE=./given.v"), (names{"./given.v", "given", "", false}));
    EXPECT_EQ(after_setting("LBX_FILE=../x.y/given.v"), (names{"../x.y/given.v", "given", "", false}));
}

TEST_F(FileNames, AppendingKeepsTheEntityUnlessOneIsGiven)
{
    EXPECT_EQ(after_setting("LBX_FILE=given.v:a"), (names{"given.v", "before", "given", true}));
    EXPECT_EQ(after_setting("LBX_FILE=given.v:A:part"), (names{"given.v", "part", "given", true}));
    EXPECT_EQ(after_setting("LBX_FILE=given:a"), (names{"given", "before", "given", true}));
    EXPECT_EQ(after_setting("LBX_FILE=given.tdf:a:part", "made.tdf", GNL_QHDL), (names{"given.tdf", "part", "", true}));
}

TEST_F(FileNames, AnythingElseBehindTheColonIsNoMark)
{
    EXPECT_EQ(after_setting("LBX_FILE=given.v:x:part"), (names{"given.v", "given", "", false}));
}

TEST_F(FileNames, ASubdesignsOptionNamesNoEntity)
{
    design top(nullptr);
    design & sub = top.child("sub", "s");
    sub.set_entity_name("before");
    sub.set_file_name("made.v");
    EXPECT_EQ(sub.get_entity_name(), "before");
    EXPECT_EQ(sub.option_value(gnl_detail::option_id::file), "made.v");
}

TEST_F(FileNames, NamingTheFileIsNoAssignmentAfterConnections)
{
    design top(nullptr);
    auto & y = top.output("y");
    top.set_in_rtl_body();
    y = 1;
    top.set_file_name("made.v");
    EXPECT_EQ(top.messages(), texts{});
    EXPECT_STREQ(top.get_file_name(), "made.v");
    top.set_directory_path("out"); // whereas this is one
    EXPECT_EQ(top.messages().size(), 1U);
}

// Directories

TEST_F(FileNames, TheOutputDirectoryIsTheFirstOfItsPaths)
{
    auto const directories_of = [](std::string const & text) {
        design top(nullptr, "top", text.c_str());
        return std::pair(top.get_directory_path(), top.get_collision_check_directory_path());
    };
    using pair = std::pair<std::string, std::string>;
    EXPECT_EQ(directories_of(""), pair("./", ""));
    EXPECT_EQ(directories_of("LBX_OUTPUT_DIRECTORY=out"), pair("out/", ""));
    EXPECT_EQ(directories_of("LBX_OUTPUT_DIRECTORY=out/"), pair("out/", ""));
    EXPECT_EQ(directories_of("LBX_OUTPUT_DIRECTORY=out;other"), pair("out/", "other/"));
    EXPECT_EQ(directories_of("LBX_OUTPUT_DIRECTORY=out;"), pair("out/", ""));
    EXPECT_EQ(directories_of("LBX_OUTPUT_DIRECTORY=out;a;b"), pair("out/", "a;b/"));
}

TEST_F(FileNames, ASubdesignHasTheDirectoriesOfItsTop)
{
    design top(nullptr, "top", "LBX_OUTPUT_DIRECTORY=out;other");
    design & sub = top.child("sub", "s");
    EXPECT_EQ(sub.get_directory_path(), "out/");
    EXPECT_EQ(sub.get_collision_check_directory_path(), "other/");
}

TEST_F(FileNames, TheDirectoryCanBeSet)
{
    design top(nullptr);
    top.set_directory_path("out");
    EXPECT_EQ(top.get_directory_path(), "out/");
    top.set_directory_path(nullptr);
    EXPECT_EQ(top.get_directory_path(), "out/");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(FileNames, ADirectoryIsThereOrNot)
{
    design top(nullptr);
    EXPECT_TRUE(top.check_directory("."));
    EXPECT_FALSE(top.check_directory("missing"));
    EXPECT_FALSE(top.check_directory(""));
}

TEST_F(FileNames, OneFileOrMany)
{
    design top(nullptr);
    EXPECT_TRUE(top.generate_single_output_file());
    top.set_different_output_files();
    EXPECT_FALSE(top.generate_single_output_file());
    top.set_single_output_file();
    EXPECT_TRUE(top.generate_single_output_file());
}

TEST_F(FileNames, AFileIsSearchedHereThenInTheOutputDirectoryThenInTheLibraries)
{
    for (char const * folder : {"out", "lib1", "lib2"}) {
        std::filesystem::create_directory(folder);
        std::ofstream(std::string(folder) + "/in_" + folder) << "x";
    }
    for (char const * place : {"here", "out/here", "out/twice", "lib1/twice", "lib1/third", "lib2/third"})
        std::ofstream(place) << "x";
    design top(nullptr, "top", "LBX_OUTPUT_DIRECTORY=out,LBX_LIBRARY_PATH=lib1;;lib2/");
    EXPECT_EQ(top.search_file_paths_for_file("here"), "here");
    EXPECT_EQ(top.search_file_paths_for_file("twice"), "out/twice");
    EXPECT_EQ(top.search_file_paths_for_file("third"), "lib1/third");
    EXPECT_EQ(top.search_file_paths_for_file("in_out"), "out/in_out");
    EXPECT_EQ(top.search_file_paths_for_file("in_lib1"), "lib1/in_lib1");
    EXPECT_EQ(top.search_file_paths_for_file("in_lib2"), "lib2/in_lib2");
    EXPECT_EQ(top.search_file_paths_for_file("nowhere"), "");
    EXPECT_EQ(top.search_file_paths_for_file(""), "");
}

} // namespace
