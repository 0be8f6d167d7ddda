#include "gnl_ofstream.h"
#include "support.h"

#include <algorithm>
#include <csignal>
#include <stdexcept>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using gnl_test::file_text;

class OutputFile : public gnl_test::in_folder
{
protected:
    /// Names in the folder, sorted: what has been left beside the file, too.
    static std::vector<std::string> folder()
    {
        std::vector<std::string> names;
        for (auto const & entry : fs::directory_iterator("."))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    static void put(std::string const & name, std::string const & text) { std::ofstream(name) << text; }
    static unsigned mode_of(std::string const & name)
    {
        struct ::stat status
        {
        };
        ::stat(name.c_str(), &status);
        return status.st_mode & 07777;
    }
};

using names = std::vector<std::string>;

TEST_F(OutputFile, AppearsUnderItsNameWhenItIsComplete)
{
    GNL_OFSTREAM out("a.v", 2);
    ASSERT_TRUE(out.is_open());
    ASSERT_TRUE(out.good());
    out << "text " << 42 << "\n" << std::flush;
    EXPECT_FALSE(fs::exists("a.v"));
    out.close();
    EXPECT_FALSE(out.is_open());
    EXPECT_TRUE(out.good());
    EXPECT_EQ(file_text("a.v"), "text 42\n");
    EXPECT_EQ(folder(), names{"a.v"});
}

TEST_F(OutputFile, ReplacesAnExistingFileOnlyWhenItIsComplete)
{
    put("a.v", "old");
    GNL_OFSTREAM out("a.v", 2);
    out << "new";
    EXPECT_EQ(file_text("a.v"), "old");
    out.close();
    EXPECT_EQ(file_text("a.v"), "new");
    EXPECT_EQ(folder(), names{"a.v"});
}

TEST_F(OutputFile, AppendsToACopy)
{
    put("a.v", "old\n");
    GNL_OFSTREAM out("a.v", 8);
    out << "new\n" << std::flush;
    EXPECT_EQ(file_text("a.v"), "old\n");
    out.close();
    EXPECT_EQ(file_text("a.v"), "old\nnew\n");
    EXPECT_EQ(folder(), names{"a.v"});
}

TEST_F(OutputFile, AppendsALargeFileWhole)
{
    std::string const old(300001, 'x');
    put("a.v", old);
    GNL_OFSTREAM("a.v", 8) << "new";
    EXPECT_TRUE(file_text("a.v") == old + "new");
}

TEST_F(OutputFile, AppendingToNothingMakesAFile)
{
    GNL_OFSTREAM("a.v", 8) << "new";
    EXPECT_EQ(file_text("a.v"), "new");
}

TEST_F(OutputFile, ANullNameDefersTheOpening)
{
    GNL_OFSTREAM out(nullptr, 2);
    EXPECT_FALSE(out.is_open());
    out.open("a.v", 2);
    out << "text";
    out.close();
    EXPECT_EQ(file_text("a.v"), "text");
}

TEST_F(OutputFile, OneStreamWritesManyFiles)
{
    GNL_OFSTREAM out;
    for (char const * name : {"a.v", "b.v"}) {
        out.open(name, 2);
        out << name;
        out.close(false);
    }
    out.open("c.v", 2);
    out << "c";
    out.close(true);
    EXPECT_EQ(file_text("a.v") + file_text("b.v") + file_text("c.v"), "a.vb.vc");
}

TEST_F(OutputFile, AFailedOpeningIsForgottenByTheNextThatSucceeds)
{
    GNL_OFSTREAM out("missing/a.v", 2);
    EXPECT_TRUE(out.fail());
    out.open("a.v", 2);
    EXPECT_TRUE(out.good());
    out << "text";
    out.close();
    EXPECT_EQ(file_text("a.v"), "text");
}

TEST_F(OutputFile, TheEndOfTheStreamClosesTheFile)
{
    GNL_OFSTREAM("a.v", 2) << "text";
    EXPECT_EQ(file_text("a.v"), "text");
}

TEST_F(OutputFile, AnExceptionThatEndsTheStreamLeavesTheOldFile)
{
    put("a.v", "old");
    try {
        GNL_OFSTREAM out("a.v", 2);
        out << "half";
        throw std::runtime_error("body");
    } catch (std::runtime_error const &) {
    }
    EXPECT_EQ(file_text("a.v"), "old");
    EXPECT_EQ(folder(), names{"a.v"});
}

TEST_F(OutputFile, AStreamUsedWhileAnotherExceptionIsOnItsWayIsComplete)
{
    struct writes_at_its_end
    {
        ~writes_at_its_end() { GNL_OFSTREAM("a.v", 2) << "text"; }
    };
    try {
        writes_at_its_end const writer;
        throw std::runtime_error("body");
    } catch (std::runtime_error const &) {
    }
    EXPECT_EQ(file_text("a.v"), "text");
}

TEST_F(OutputFile, DiscardingLeavesTheOldFile)
{
    put("a.v", "old");
    GNL_OFSTREAM out("a.v", 2);
    out << "new";
    out.discard();
    EXPECT_FALSE(out.is_open());
    EXPECT_EQ(file_text("a.v"), "old");
    EXPECT_EQ(folder(), names{"a.v"});
    out.discard();
    out.close();
    EXPECT_EQ(file_text("a.v"), "old");
}

TEST_F(OutputFile, AFailedStreamReplacesNothing)
{
    put("a.v", "old");
    GNL_OFSTREAM out("a.v", 2);
    out << "new";
    out.setstate(std::ios::failbit);
    out.close();
    EXPECT_TRUE(out.bad());
    EXPECT_EQ(file_text("a.v"), "old");
    EXPECT_EQ(folder(), names{"a.v"});
}

TEST_F(OutputFile, AFileThatTheSystemCutsOffReplacesNothing)
{
    put("a.v", "old");
    struct ::rlimit old_limit
    {
    };
    ::getrlimit(RLIMIT_FSIZE, &old_limit);
    auto const old_handler = std::signal(SIGXFSZ, SIG_IGN);
    struct ::rlimit const limit{1000000, old_limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    GNL_OFSTREAM out("a.v", 2);
    out << std::string(1000001, 'x');
    out.close();
    ::setrlimit(RLIMIT_FSIZE, &old_limit);
    std::signal(SIGXFSZ, old_handler);
    EXPECT_TRUE(out.bad());
    EXPECT_EQ(file_text("a.v"), "old");
    EXPECT_EQ(folder(), names{"a.v"});
}

TEST_F(OutputFile, AKilledProcessLeavesTheOldFile)
{
    put("a.v", "old");
    auto const child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        GNL_OFSTREAM out("a.v", 2);
        out << std::string(2000000, 'x') << std::flush;
        ::kill(::getpid(), SIGKILL);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(file_text("a.v"), "old");
}

TEST_F(OutputFile, PlacesThatCannotBeWrittenAreFoundOutAtOpening)
{
    fs::create_directory("folder");
    put("file", "text");
    for (char const * name : {"folder", "folder/", "missing/a.v", "file/a.v", "", "./", "."}) {
        SCOPED_TRACE(name);
        GNL_OFSTREAM out(name, 2);
        EXPECT_TRUE(out.fail());
        EXPECT_FALSE(out.is_open());
    }
    EXPECT_TRUE(GNL_OFSTREAM(std::string(300, 'x').c_str(), 2).fail());
    EXPECT_TRUE(GNL_OFSTREAM("in.v", 1).fail());
    EXPECT_EQ(folder(), (names{"file", "folder"}));
}

TEST_F(OutputFile, ASecondOpeningFailsAndLeavesTheFirstFileAlone)
{
    GNL_OFSTREAM out("a.v", 2);
    out.open("b.v", 2);
    EXPECT_TRUE(out.fail());
    out.clear();
    out << "text";
    out.close();
    EXPECT_EQ(file_text("a.v"), "text");
    EXPECT_EQ(folder(), names{"a.v"});
    out.open(nullptr, 2);
    EXPECT_TRUE(out.fail());
}

TEST_F(OutputFile, WritingToNoFileFails)
{
    GNL_OFSTREAM out;
    out << "text";
    EXPECT_TRUE(out.bad());
}

TEST_F(OutputFile, WhatTheProcessMayNotWriteIsFoundOutAtOpening)
{
    put("protected.v", "old");
    fs::permissions("protected.v", fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    fs::create_directory("closed");
    fs::permissions("closed",
                    fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read | fs::perms::others_exec);
    fs::permissions(".", fs::perms::all);
    bool const privileged = ::geteuid() == 0; // who may do everything has to become somebody else
    ASSERT_EQ(privileged ? ::seteuid(65534) : 0, 0);
    bool const protected_fails = GNL_OFSTREAM("protected.v", 2).fail();
    bool const closed_fails = GNL_OFSTREAM("closed/a.v", 2).fail();
    ASSERT_EQ(privileged ? ::seteuid(0) : 0, 0);
    fs::permissions("closed", fs::perms::owner_all);
    EXPECT_TRUE(protected_fails);
    EXPECT_TRUE(closed_fails);
    EXPECT_EQ(file_text("protected.v"), "old");
    EXPECT_EQ(folder(), (names{"closed", "protected.v"}));
}

TEST_F(OutputFile, ANewFileIsAsAccessibleAsTheProcessAllows)
{
    auto const mask = ::umask(027);
    GNL_OFSTREAM("a.v", 2) << "text";
    ::umask(0);
    GNL_OFSTREAM("b.v", 2) << "text";
    ::umask(mask);
    EXPECT_EQ(mode_of("a.v"), 0640U);
    EXPECT_EQ(mode_of("b.v"), 0666U);
}

TEST_F(OutputFile, AnExistingFileKeepsItsMode)
{
    for (unsigned const mode : {0600U, 0755U, 0664U}) {
        put("a.v", "old");
        ::chmod("a.v", mode);
        GNL_OFSTREAM("a.v", 2) << "new";
        EXPECT_EQ(mode_of("a.v"), mode);
        GNL_OFSTREAM("a.v", 8) << "er";
        EXPECT_EQ(mode_of("a.v"), mode);
        EXPECT_EQ(file_text("a.v"), "newer");
    }
}

TEST_F(OutputFile, AnExistingFileKeepsItsOwner)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only a privileged process gives files away";
    put("a.v", "old");
    ASSERT_EQ(::chown("a.v", 1234, 4321), 0);
    GNL_OFSTREAM("a.v", 2) << "new";
    struct ::stat status
    {
    };
    ::stat("a.v", &status);
    EXPECT_EQ(status.st_uid, 1234U);
    EXPECT_EQ(status.st_gid, 4321U);
}

TEST_F(OutputFile, ALinkStaysALink)
{
    fs::create_directory("far");
    put("far/a.v", "old");
    fs::create_symlink("far/a.v", "link.v");
    fs::create_symlink("link.v", "second.v");
    GNL_OFSTREAM("second.v", 2) << "new";
    EXPECT_TRUE(fs::is_symlink("link.v"));
    EXPECT_TRUE(fs::is_symlink("second.v"));
    EXPECT_EQ(file_text("far/a.v"), "new");
}

TEST_F(OutputFile, ALinkToNothingGetsItsFile)
{
    fs::create_symlink("target.v", "link.v");
    GNL_OFSTREAM("link.v", 2) << "new";
    EXPECT_TRUE(fs::is_symlink("link.v"));
    EXPECT_EQ(file_text("target.v"), "new");
}

TEST_F(OutputFile, LinksInACircleFail)
{
    fs::create_symlink("b.v", "a.v");
    fs::create_symlink("a.v", "b.v");
    EXPECT_TRUE(GNL_OFSTREAM("a.v", 2).fail());
}

TEST_F(OutputFile, ADeviceIsWrittenInPlace)
{
    GNL_OFSTREAM out("/dev/null", 2);
    EXPECT_TRUE(out.good());
    out << "text";
    out.close();
    EXPECT_TRUE(out.good());
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(OutputFile, AFullDeviceIsFoundOutAtClosing)
{
    if (!fs::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full here";
    for (std::size_t const size : {std::size_t{1}, std::size_t{2000000}}) {
        GNL_OFSTREAM out("/dev/full", 2);
        EXPECT_TRUE(out.good());
        out << std::string(size, 'x');
        out.close();
        EXPECT_TRUE(out.bad());
    }
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(OutputFile, APipeIsWrittenInPlace)
{
    ASSERT_EQ(::mkfifo("pipe", 0600), 0);
    int const reader = ::open("pipe", O_RDWR | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    GNL_OFSTREAM("pipe", 2) << "text";
    char received[16] = {};
    EXPECT_EQ(::read(reader, received, sizeof received), 4);
    ::close(reader);
    EXPECT_STREQ(received, "text");
    EXPECT_TRUE(fs::is_fifo("pipe"));
}

TEST_F(OutputFile, NamesUpToTheLongestWork)
{
    for (std::size_t const length : {std::size_t{1}, std::size_t{240}, std::size_t{255}}) {
        std::string const name(length, 'n');
        GNL_OFSTREAM(name.c_str(), 2) << "text";
        EXPECT_EQ(file_text(name), "text");
        fs::remove(name);
    }
    EXPECT_EQ(folder(), names{});
}

TEST_F(OutputFile, TheFileGoesWhereItWasOpened)
{
    fs::create_directory("folder");
    GNL_OFSTREAM out("a.v", 2);
    out << "text";
    fs::current_path("folder");
    out.close();
    fs::current_path("..");
    EXPECT_EQ(file_text("a.v"), "text");
}

TEST_F(OutputFile, TwoStreamsOfOnePlaceDoNotMix)
{
    GNL_OFSTREAM first("a.v", 2);
    GNL_OFSTREAM second("a.v", 2);
    first << "first";
    second << "second";
    second.close();
    EXPECT_EQ(file_text("a.v"), "second");
    first.close();
    EXPECT_EQ(file_text("a.v"), "first");
    EXPECT_EQ(folder(), names{"a.v"});
}

TEST_F(OutputFile, FoldsLongLines)
{
    GNL_OFSTREAM out("a.v", 2);
    out.set_char_limit(5);
    out.set_comment_char('/');
    out << "abcdef ghi\n//abcdef ghi\n";
    out.close();
    EXPECT_EQ(file_text("a.v"), "abcdef\n ghi\n//abcdef ghi\n");
}

} // namespace
