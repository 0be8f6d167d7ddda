// Runs in one process, one after the other: whatever the first was and however it ended, the second gives what it gives
// in a process of its own.

#include "written_tree.h"

#include <stdexcept>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace gnl_test;

/// A run before the one that is looked at. It writes to the folder "first".
struct first_run
{
    char const * name;
    void (*go)();
};

/// A row of two leaves, in the folder.
std::string run_row(std::string const & folder, std::string const & options)
{
    fs::create_directory(folder);
    leaf_row row("LBX_OUTPUT_DIRECTORY=" + folder + "," + options, 2);
    auto stream = row.run();
    for (auto const & message : row.messages())
        stream += message + "\n";
    return stream + "result " + std::to_string(row.generator_result()) + "\n";
}

/// A top with a child, whose bodies do what the lambdas say, in the folder "first".
void run_bodies(std::string const & options, std::function<void(design &)> const & of_top,
                std::function<void(design &)> const & of_child = {})
{
    design top(nullptr, "top", ("LBX_OUTPUT_DIRECTORY=first," + options).c_str());
    auto & q = top.output("q");
    try {
        top.run([&](design & self) {
            auto & child = self.child("leaf", "u1");
            auto & y = child.output("y");
            child.body = [&](design & own) {
                y = 1;
                if (of_child)
                    of_child(own);
            };
            q = y;
            if (of_top)
                of_top(self);
        });
    } catch (std::runtime_error const &) {
    } catch (char * text) {
        delete[] text;
    }
}

void abort_body(design &)
{
    throw false;
}
void throw_error(design &)
{
    throw std::runtime_error("broken");
}
void post_error(design & self)
{
    self.post_error_msg("broken");
}
void post_many_errors(design & self)
{
    for (int i = 0; i < 100; ++i)
        self.generator_error("broken " + std::to_string(i), "", "");
}

std::vector<first_run> const first_runs{
    {"TheSameInVerilog", [] { run_row("first", "LBX_FILE=row.v"); }},
    {"TheSameInVhdl", [] { run_row("first", "LBX_FILE=row.vhd"); }},
    {"TheSameInQhdl", [] { run_row("first", "LBX_FILE=row.tdf"); }},
    {"TheSameInTcl", [] { run_row("first", "LBX_FILE=row.tcl"); }},
    {"TheSameInSeparateFiles", [] { run_row("first", "LBX_FILE=row.v,LBX_SINGLE_OUTPUT_FILE=OFF"); }},
    {"TheSameWithAPrefix", [] { run_row("first", "LBX_FILE=row.v,LBX_MODULE_PREFIX=p,LBXI_INSTANCE_NAME=i"); }},
    {"TheSameAppended", [] { run_row("first", "LBX_FILE=row.v:a"); }},
    {"TheSameWithBlackBoxes", [] { run_row("first", "LBX_FILE=row.v,LBX_BLACKBOX_LIST=leaf"); }},
    {"TheSameWithAnIllegalName", [] { run_row("first", "LBX_FILE=row.xyz"); }},
    {"AnotherDesign", [] { run_bodies("LBX_FILE=other.vhd", {}); }},
    {"AnError", [] { run_bodies("LBX_FILE=other.v", post_error); }},
    {"TooManyErrors", [] { run_bodies("LBX_FILE=other.v,LBX_MAX_ERROR_MESSAGES=3", post_many_errors); }},
    {"AnAbort", [] { run_bodies("LBX_FILE=other.vhd", abort_body); }},
    {"AnAbortOfAChild", [] { run_bodies("LBX_FILE=other.v,LBX_SINGLE_OUTPUT_FILE=OFF", {}, abort_body); }},
    {"AnException", [] { run_bodies("LBX_FILE=other.vhd", throw_error); }},
    {"AnExceptionOfAChild", [] { run_bodies("LBX_FILE=other.tdf", {}, throw_error); }},
    {"AnErrorThatIsThrown",
     [] { run_bodies("LBX_FILE=other.v,LBX_THROW_EXCEPTION_ON_ERROR=ON", {}, post_many_errors); }},
    {"AFolderThatIsNotThere",
     [] {
         design top(nullptr, "top", "LBX_FILE=nowhere/top.v");
         top.run();
     }},
    {"ACellAsTop",
     [] {
         design top(nullptr, "top", "LBX_FILE=first/top.v");
         top.set_primitive();
         top.run();
     }},
    {"ACountingRun",
     [] {
         leaf_row row("LBX_FILE=row.v", 2);
         row.get_resource_count();
     }},
    {"ALibraryRun",
     [] {
         leaf_row row("LBX_FILE=row.v", 2);
         row.get_simulation_library();
     }},
    {"AGeneratorThatNeverRuns",
     [] {
         leaf_row row("LBX_FILE=row.tcl", 2);
         row.post_error_msg("broken");
     }},
};

class RepeatedRuns : public in_folder_with_parameter<first_run>
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        fs::create_directory("first");
    }
};

/// What the run gives in a process that has run nothing in this test.
void run_alone(std::string const & options)
{
    auto const child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        write_file("alone.txt", run_row("alone", options));
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
}

TEST_P(RepeatedRuns, DoNotInfluenceWhatFollows)
{
    for (std::string const options :
         {"LBX_FILE=row.v", "LBX_FILE=row.v,LBX_SINGLE_OUTPUT_FILE=OFF", "LBX_FILE=row.vhd",
          "LBX_FILE=row.vhd,LBX_SINGLE_OUTPUT_FILE=OFF", "LBX_FILE=row.tdf", "LBX_FILE=row.tcl",
          "LBX_HDL_LANGUAGE=Verilog", "LBX_BLACKBOX_LIST=leaf,LBX_FILE=row.v"}) {
        SCOPED_TRACE(options);
        run_alone(options);
        GetParam().go();
        EXPECT_EQ(run_row("after", options), file_text("alone.txt"));
        EXPECT_EQ(written_texts("after"), written_texts("alone"));
        EXPECT_FALSE(written_texts("after").empty());
        for (char const * folder : {"alone", "after", "first"})
            fs::remove_all(folder);
        fs::create_directory("first");
    }
}

INSTANTIATE_TEST_SUITE_P(, RepeatedRuns, ::testing::ValuesIn(first_runs),
                         [](auto const & test) { return std::string(test.param.name); });

} // namespace
