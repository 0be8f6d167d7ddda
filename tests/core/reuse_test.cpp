#include "support.h"

#include <sys/stat.h>

namespace {

using gnl_test::design;

/// A design with a version line.
class versioned : public design
{
public:
    explicit versioned(GNL_GENERATOR * parent, char const * text = "")
        : design(parent, "top", text)
    {
    }
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override { versions["mod"] = "1.0"; }
    std::string dump_timing_assignments_header() override { return timing; }
    std::string timing;
};

constexpr char header[] = "top a b WIDTH=8";

class FileReuse : public gnl_test::in_folder
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        design::set_gen_language(GNL_VERILOG);
        version = versioned(nullptr).dump_version_header();
        ASSERT_NE(version, "");
    }
    static void put(std::string const & text) { std::ofstream("f.v", std::ios::binary) << text; }
    /// The answer to a file of this text.
    static int answer(std::string const & text, char const * options = "")
    {
        put(text);
        versioned top(nullptr, options);
        return top.are_files_same("f.v", header);
    }
    std::string file(std::string const & last = "//VALID FILE\n") const
    {
        return "//" + std::string(header) + "\n//" + version + "\n\n// notice\nmodule top;\nendmodule //top\n" + last;
    }

    std::string version;
};

TEST_F(FileReuse, SameSettingsSameVersionAndValid)
{
    EXPECT_EQ(answer(file()), 1);
}

TEST_F(FileReuse, NoFileIsDifferent)
{
    versioned top(nullptr);
    EXPECT_EQ(top.are_files_same("missing.v", header), 2);
}

TEST_F(FileReuse, WhatIsNoRegularFileIsDifferentAndIsNotWaitedFor)
{
    versioned top(nullptr);
    EXPECT_EQ(top.are_files_same(".", header), 2);
    ASSERT_EQ(::mkfifo("pipe", 0600), 0);
    EXPECT_EQ(top.are_files_same("pipe", header), 2);
    EXPECT_EQ(top.are_files_same("/dev/null", header), 2);
}

TEST_F(FileReuse, AnotherHeaderIsDifferent)
{
    auto text = file();
    text.replace(text.find("WIDTH=8"), 7, "WIDTH=9");
    EXPECT_EQ(answer(text), 2);
    EXPECT_EQ(answer("\n" + file()), 2);
}

TEST_F(FileReuse, LetterCaseOfTheHeaderDoesNotMatter)
{
    auto text = file();
    text.replace(text.find("WIDTH=8"), 7, "width=8");
    EXPECT_EQ(answer(text), 1);
}

TEST_F(FileReuse, AnErrorFileIsToldApart)
{
    EXPECT_EQ(answer(file("//ERROR FILE\n")), 3);
}

TEST_F(FileReuse, AnotherVersionIsToldApart)
{
    auto text = file();
    text.replace(text.find("1.0"), 3, "0.9");
    EXPECT_EQ(answer(text), 4);
}

TEST_F(FileReuse, AnErrorFileOfAnotherVersionIsAnErrorFile)
{
    auto text = file("//ERROR FILE\n");
    text.replace(text.find("1.0"), 3, "0.9");
    EXPECT_EQ(answer(text), 3);
}

TEST_F(FileReuse, ALineOfTheCommentMarkAloneIsNoVersion)
{
    put("//top\n//\nmodule top;\nendmodule //top\n//VALID FILE\n");
    design top(nullptr); // nothing in it has a version
    ASSERT_EQ(top.dump_version_header(), "");
    EXPECT_EQ(top.are_files_same("f.v", "top"), 4);
}

TEST_F(FileReuse, AnyOtherLastLineIsDifferent)
{
    EXPECT_EQ(answer(file("")), 2);
    EXPECT_EQ(answer(file("//valid file\n")), 2);
    EXPECT_EQ(answer(file("VALID FILE\n")), 2);
    EXPECT_EQ(answer(file("//VALID FILE \n")), 2);
    EXPECT_EQ(answer(file("//VALID FILE and more\n")), 2);
    EXPECT_EQ(answer(file("//VALID FILE\n\n\n")), 2);
    EXPECT_EQ(answer(file("\n//VALID FILE\n")), 2); // what ends the line before is taken for a line
    EXPECT_EQ(answer(file("//VALID FILE\n//ERROR FILE\n")), 3);
}

TEST_F(FileReuse, AnEmptyLineBehindTheLastLineDoesNotMatter)
{
    EXPECT_EQ(answer(file("//VALID FILE\n\n")), 1);
}

TEST_F(FileReuse, CarriageReturnsDoNotMatter)
{
    std::string text;
    for (char const c : file())
        text += c == '\n' ? std::string("\r\n") : std::string(1, c);
    EXPECT_EQ(answer(text), 1);
}

TEST_F(FileReuse, AFileThatIsCutOffAnywhereIsDifferent)
{
    auto const whole = file();
    for (std::size_t size = 0; size < whole.size(); ++size)
        ASSERT_EQ(answer(whole.substr(0, size)), 2) << size << " of " << whole.size() << " bytes";
}

TEST_F(FileReuse, AnAppendedFileThatIsCutOffIsDifferent)
{
    auto const whole = file() + "//other\n//" + version + "\nmodule other;\nendmodule //other\n//VALID FILE\n";
    auto const first = file().size();
    for (std::size_t size = first + 1; size < whole.size(); ++size)
        ASSERT_EQ(answer(whole.substr(0, size)), 2) << size << " of " << whole.size() << " bytes";
    EXPECT_EQ(answer(whole), 1);
}

TEST_F(FileReuse, TheFirstLinesAreNotTheLastLine)
{
    put("//VALID FILE\n");
    versioned top(nullptr);
    EXPECT_EQ(top.are_files_same("f.v", "VALID FILE"), 2);
    put("//01234567890123456789\n//VALID FILE\n");
    EXPECT_EQ(top.are_files_same("f.v", "01234567890123456789"), 2);
}

TEST_F(FileReuse, BinaryFilesAreDifferent)
{
    EXPECT_EQ(answer(""), 2);
    EXPECT_EQ(answer(std::string(100, '\0')), 2);
    EXPECT_EQ(answer(std::string(20000, '\xff')), 2);
    auto with_nul = file();
    with_nul.insert(with_nul.find('\n'), 1, '\0');
    EXPECT_EQ(answer(with_nul), 2);
}

TEST_F(FileReuse, AHeaderBeyondTheLineBufferIsDifferent)
{
    for (std::size_t const size : {std::size_t{8188}, std::size_t{8189}, std::size_t{8190}, std::size_t{20000}}) {
        std::string const long_header(size, 'h');
        put("//" + long_header + "\n//" + version + "\nmodule top;\nendmodule //top\n//VALID FILE\n");
        versioned top(nullptr);
        EXPECT_EQ(top.are_files_same("f.v", long_header), size <= 8189 ? 1 : 2) << size;
    }
}

TEST_F(FileReuse, ADesignWithTimingAssignmentsIsNeverReused)
{
    put(file());
    versioned top(nullptr);
    top.timing = "assignments";
    EXPECT_EQ(top.are_files_same("f.v", header), 2);
    put(file("//ERROR FILE\n"));
    EXPECT_EQ(top.are_files_same("f.v", header), 3);
}

// Fixed instance names

constexpr char fixed[] = "LBX_MODULE_PREFIX=pre,LBXI_INSTANCE_NAME=inst";

TEST_F(FileReuse, AFileOfTheSameFixedInstanceIsOverwritten)
{
    auto const other =
        "//other header\n//" + version + "\n//LBXI_INSTANCE_NAME=\"inst\"\nmodule x;\nendmodule //x\n//VALID FILE\n";
    EXPECT_EQ(answer(other, fixed), 4);
    EXPECT_EQ(answer(other), 2);
    EXPECT_EQ(answer("//other header\r\n//v\r\n//LBXI_INSTANCE_NAME=\"inst\"\r\n", fixed), 4);
    EXPECT_EQ(answer("//" + std::string(20000, 'h') + "\n//v\n//LBXI_INSTANCE_NAME=\"inst\"\n", fixed), 4);
}

TEST_F(FileReuse, AFileOfAnotherFixedInstanceIsDifferent)
{
    for (char const * third :
         {"//LBXI_INSTANCE_NAME=\"INST\"", "//LBXI_INSTANCE_NAME=\"in\"", "//", "", "LBXI_INSTANCE_NAME=\"inst\""})
        EXPECT_EQ(answer("//other header\n//" + version + "\n" + third + "\n//VALID FILE\n", fixed), 2) << third;
}

TEST_F(FileReuse, AFixedInstanceOfTheSameSettingsIsReused)
{
    auto text = file();
    text.insert(text.find("\n\n") + 1, "//LBXI_INSTANCE_NAME=\"inst\"\n");
    EXPECT_EQ(answer(text, fixed), 1);
}

// Resource counts

class ResourceCounts : public FileReuse
{
protected:
    void SetUp() override
    {
        FileReuse::SetUp();
        design::set_gen_language(GNL_QHDL);
    }
    /// What the top knows of `stem` after a file with this resource line has been looked at for a subdesign.
    std::string counts(std::string const & line, std::string const & name = "part.tdf",
                       std::string const & stem = "part", int expected = 1)
    {
        std::filesystem::create_directories("out.d");
        std::ofstream(name, std::ios::binary) << "--" << header << "\n--" << version << "\n\n-- notice\n"
                                              << line << "\nSUBDESIGN part\nEND;\n--VALID FILE\n";
        design top(nullptr);
        auto & sub = *new versioned(&top);
        sub.set_instance_name("s");
        EXPECT_EQ(sub.are_files_same(name, header), expected);
        EXPECT_EQ(sub.get_subdesign_resc_count(stem), "");
        return top.get_subdesign_resc_count(stem);
    }
};

TEST_F(ResourceCounts, AreTakenOverFromAReusedFile)
{
    EXPECT_EQ(counts("--synthesis_resources = lut 5 reg 8 "), "5 lut; 8 reg; ");
    EXPECT_EQ(counts("--synthesis_resources = lut 5\r"), "5 lut; ");
}

TEST_F(ResourceCounts, ANameMayHaveSeveralWords)
{
    EXPECT_EQ(counts("--synthesis_resources = block ram 2 m 4k 3 reg  7"), "2 block ram; 3 m 4k; 7 reg; ");
}

TEST_F(ResourceCounts, WhatHasNoNameOrNoCountIsLeftOut)
{
    EXPECT_EQ(counts("--synthesis_resources = "), "");
    EXPECT_EQ(counts("--synthesis_resources = 5 lut"), "");
    EXPECT_EQ(counts("--synthesis_resources = lut 5 reg"), "5 lut; ");
    EXPECT_EQ(counts("--nothing"), "");
}

TEST_F(ResourceCounts, AreFiledUnderTheBaseNameUpToItsFirstDot)
{
    EXPECT_EQ(counts("--synthesis_resources = lut 5", "out.d/part.x.tdf"), "5 lut; ");
    EXPECT_EQ(counts("--synthesis_resources = lut 5", ".tdf", ""), "");
}

TEST_F(ResourceCounts, ALongLineIsReadWhole)
{
    std::string line = "--synthesis_resources =";
    std::string expected;
    for (int i = 0; i < 2000; ++i) {
        line += " unit" + std::to_string(i) + "x 1";
        expected += "1 unit" + std::to_string(i) + "x; ";
    }
    EXPECT_EQ(counts(line), expected);
}

TEST_F(ResourceCounts, AreNotTakenFromAFileThatIsWrittenAnew)
{
    version = "VERSION_BEGIN of long ago";
    EXPECT_EQ(counts("--synthesis_resources = lut 5", "part.tdf", "part", 4), "");
}

TEST_F(ResourceCounts, AreTakenInQhdlAlone)
{
    design::set_gen_language(GNL_VHDL);
    EXPECT_EQ(counts("--synthesis_resources = lut 5"), "");
}

// The questions built on it

TEST_F(FileReuse, CurrentSettingsAreThoseOfTheHeader)
{
    versioned top(nullptr);
    EXPECT_EQ(top.check_if_file_matches_current_settings("f.v"), 0);
    put("//" + top.dump_header(true) + "\n//" + version + "\nmodule top;\nendmodule //top\n//VALID FILE\n");
    EXPECT_EQ(top.check_if_file_matches_current_settings("f.v"), 1);
    put(file());
    EXPECT_EQ(top.check_if_file_matches_current_settings("f.v"), 2);
    EXPECT_EQ(top.check_if_file_matches_current_settings("."), 2);
}

TEST_F(FileReuse, SubdesignsOfARunAreRememberedByName)
{
    design top(nullptr);
    EXPECT_EQ(top.check_list_of_subdesigns("mg1", "header A"), 2);
    EXPECT_EQ(top.check_list_of_subdesigns("mg1", "HEADER a"), 0);
    EXPECT_EQ(top.check_list_of_subdesigns("MG1", "header B"), 1);
    EXPECT_EQ(top.check_list_of_subdesigns("mg1", "header A"), 0);
    top.remove_from_list_of_subdesigns("Mg1");
    top.remove_from_list_of_subdesigns("nobody");
    EXPECT_EQ(top.check_list_of_subdesigns("mg1", "header B"), 2);
}

TEST_F(FileReuse, AListHoldsAKeyThatIsItsOwnValue)
{
    std::map<std::string, std::string, LESS_C_STRING> list;
    EXPECT_FALSE(GNL_GENERATOR::search_list(list, "a"));
    list["a"] = "A";
    list["b"] = "c";
    EXPECT_TRUE(GNL_GENERATOR::search_list(list, "A"));
    EXPECT_FALSE(GNL_GENERATOR::search_list(list, "b"));
    EXPECT_FALSE(GNL_GENERATOR::search_list(list, "c"));
}

} // namespace
