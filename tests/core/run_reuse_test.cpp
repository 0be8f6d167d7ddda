// Whole runs over the files of earlier ones: what is reused, what is written again, and under which name.

#include "written_tree.h"

namespace {

using namespace gnl_test;

struct language
{
    char const * option;
    char const * ending;
    char const * comment;
};

class RunReuse : public in_folder_with_parameter<language>
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        versioned_leaf::version = "1";
    }

    /// Runs a row whose designs have a file each, all named by their settings; returns how many bodies have run.
    static int run(std::string const & options = "", int count = 3)
    {
        leaf_row row(std::string("LBX_SINGLE_OUTPUT_FILE=OFF,LBX_HDL_LANGUAGE=") + GetParam().option
                         + (options.empty() ? "" : "," + options),
                     count);
        int const before = leaf_row::bodies + versioned_leaf::bodies;
        row.run();
        EXPECT_EQ(row.messages(), texts{});
        return leaf_row::bodies + versioned_leaf::bodies - before;
    }
    static std::string top_option() { return std::string("LBX_FILE=top") + GetParam().ending; }
    static std::string top_file() { return std::string("top") + GetParam().ending; }
    static std::string last_line(char const * text) { return std::string(GetParam().comment) + text + "\n"; }
    static void mark_as_error(std::string const & name)
    {
        auto text = file_text(name);
        auto const valid = last_line("VALID FILE");
        ASSERT_TRUE(text.ends_with(valid));
        text.replace(text.size() - valid.size(), valid.size(), last_line("ERROR FILE"));
        write_file(name, text);
    }
};

TEST_P(RunReuse, ASecondRunWritesNothing)
{
    EXPECT_EQ(run(), 4);
    auto const first = written_files();
    EXPECT_EQ(first.size(), 4u);
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(written_files(), first);
}

TEST_P(RunReuse, ATopThatIsNamedIsWrittenAndItsSubdesignsAreReused)
{
    EXPECT_EQ(run(top_option()), 4);
    auto first = written_files();
    EXPECT_EQ(run(top_option()), 1);
    auto second = written_files();
    EXPECT_NE(std::get<::ino_t>(first[top_file()]), std::get<::ino_t>(second[top_file()]));
    EXPECT_EQ(std::get<std::string>(first[top_file()]), std::get<std::string>(second[top_file()]));
    first.erase(top_file());
    second.erase(top_file());
    EXPECT_EQ(first, second);
}

TEST_P(RunReuse, AnotherParameterValueTakesAnotherNameAndSharesWhatIsEqual)
{
    run();
    auto const first = written_files();
    EXPECT_EQ(run("", 4), 2); // the row and its fourth leaf
    auto const second = written_files();
    EXPECT_EQ(second.size(), 6u);
    for (auto const & [name, file] : first)
        EXPECT_EQ(second.at(name), file) << name;
}

TEST_P(RunReuse, AnotherVersionIsWrittenOverTheOldOne)
{
    run();
    auto const first = written_files();
    versioned_leaf::version = "2";
    EXPECT_EQ(run(), 4);
    auto const second = written_files();
    ASSERT_EQ(second.size(), first.size());
    for (auto const & [name, file] : first)
        EXPECT_NE(std::get<std::string>(second.at(name)), std::get<std::string>(file)) << name;
}

TEST_P(RunReuse, AnErrorFileIsWrittenAgainUnderItsName)
{
    run();
    auto const valid = written_texts();
    for (auto const & [name, text] : valid)
        mark_as_error(name);
    EXPECT_EQ(run(), 4);
    EXPECT_EQ(written_texts(), valid);
}

TEST_P(RunReuse, AnErrorFileOfASubdesignIsWrittenAgainUnderItsName)
{
    run(top_option());
    auto const valid = written_texts();
    for (auto const & [name, text] : valid)
        if (name != top_file())
            mark_as_error(name);
    EXPECT_EQ(run(top_option()), 4);
    EXPECT_EQ(written_texts(), valid);
}

TEST_P(RunReuse, AForcedRunWritesEverythingAgain)
{
    run();
    auto const first = written_files();
    EXPECT_EQ(run("LBX_FORCE_HDL_GENERATION=ON"), 4);
    auto const second = written_files();
    ASSERT_EQ(second.size(), first.size());
    for (auto const & [name, file] : first) {
        EXPECT_NE(std::get<::ino_t>(second.at(name)), std::get<::ino_t>(file)) << name;
        EXPECT_EQ(std::get<std::string>(second.at(name)), std::get<std::string>(file)) << name;
    }
}

TEST_P(RunReuse, AFileThatIsCutOffAnywhereIsLeftAndPassed)
{
    auto const options = std::string("LBX_HDL_LANGUAGE=") + GetParam().option;
    auto const generate = [&] {
        versioned_leaf top(nullptr, 2, options.c_str());
        int const before = versioned_leaf::bodies;
        top.run();
        return std::pair(std::string(top.get_file_name()), versioned_leaf::bodies - before);
    };
    auto const name = generate().first;
    auto const whole = file_text(name);
    ASSERT_EQ(generate(), std::pair(name, 0)) << "the whole file is reused";
    for (std::size_t size = 0; size < whole.size(); ++size) {
        write_file(name, whole.substr(0, size));
        auto const [other, bodies] = generate();
        ASSERT_NE(other, name) << size << " of " << whole.size() << " bytes";
        ASSERT_EQ(bodies, 1) << size << " of " << whole.size() << " bytes";
        ASSERT_EQ(file_text(name).size(), size);
        ASSERT_TRUE(file_text(other).ends_with(last_line("VALID FILE")));
        fs::remove(other);
    }
}

INSTANTIATE_TEST_SUITE_P(, RunReuse,
                         ::testing::Values(language{"Verilog", ".v", "//"}, language{"VHDL", ".vhd", "--"},
                                           language{"QHDL", ".tdf", "--"}),
                         [](auto const & test) { return std::string(test.param.option); });

} // namespace
