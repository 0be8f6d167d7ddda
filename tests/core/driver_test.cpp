// What one call of `generate_subdesign` does with a single design: language, file, frame, body, result.

#include "driver_support.h"

#include <stdexcept>

namespace {

using namespace gnl_test;

class Driver : public in_folder
{
};

struct language_case
{
    char const * text;
    int language;
    bool illegal;
};

class DriverLanguage : public in_folder_with_parameter<language_case>
{
};

std::string const illegal_cause = "The file name has an illegal extension.";
std::string const illegal_action = "Specify a valid file extension. The  valid file extensions are .vh*(for VHDL), "
                                   ".v*(for Verilog) and .td*(for QHDL).";

TEST_P(DriverLanguage, FollowsFileNameAndOption)
{
    design top(nullptr, "top", GetParam().text);
    top.dump = false;
    int seen = -1;
    top.run([&](design &) { seen = GNL_ELEMENT::get_gen_language(); });
    EXPECT_EQ(seen, GetParam().language);
    EXPECT_EQ(top.messages().size(), GetParam().illegal ? 1u : 0u);
    EXPECT_EQ(top.generator_result(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    All, DriverLanguage,
    ::testing::Values(language_case{"", GNL_QHDL, false}, language_case{"LBX_HDL_LANGUAGE=QHDL", GNL_QHDL, false},
                      language_case{"LBX_HDL_LANGUAGE=Verilog", GNL_VERILOG, false},
                      language_case{"LBX_HDL_LANGUAGE=VHDL", GNL_VHDL, false},
                      language_case{"LBX_HDL_LANGUAGE=TCL", GNL_TCL, false},
                      language_case{"LBX_FILE=x.v", GNL_VERILOG, false},
                      language_case{"LBX_FILE=x.vo", GNL_VERILOG, false},
                      language_case{"LBX_FILE=x.vh", GNL_VHDL, false}, language_case{"LBX_FILE=x.vhd", GNL_VHDL, false},
                      language_case{"LBX_FILE=x.vhx", GNL_VHDL, false}, language_case{"LBX_FILE=x.tcl", GNL_TCL, false},
                      language_case{"LBX_FILE=x.td", GNL_QHDL, false}, language_case{"LBX_FILE=x.tdf", GNL_QHDL, false},
                      language_case{"LBX_FILE=x.v,LBX_HDL_LANGUAGE=VHDL", GNL_VHDL, false},
                      language_case{"LBX_FILE=x.tcl,LBX_HDL_LANGUAGE=Verilog", GNL_VERILOG, false},
                      language_case{"LBX_FILE=x.vhdl,LBX_HDL_LANGUAGE=VHDL", GNL_VHDL, false},
                      language_case{"LBX_FILE=x.vhdl", GNL_QHDL, true}, language_case{"LBX_FILE=x.V", GNL_QHDL, true},
                      language_case{"LBX_FILE=x", GNL_QHDL, true}, language_case{"LBX_FILE=x.v:a", GNL_VERILOG, false},
                      language_case{"LBX_FILE=x.vhd:a:y", GNL_VHDL, false}));

TEST_F(Driver, IllegalExtensionIsReportedAndTheRunGoesOnInQhdl)
{
    design top(nullptr, "top", "LBX_FILE=x.vhdl");
    top.dump = false;
    top.run();
    EXPECT_EQ(top.messages(),
              (texts{error("File name x.vhdl has illegal file extension.", illegal_cause, illegal_action)}));
    EXPECT_TRUE(file_text("x.vhdl").ends_with("--VALID FILE\n"));
}

TEST_F(Driver, WithoutAFileTheNameComesFromTheSettings)
{
    design top(nullptr, "top");
    top.dump = false;
    top.run();
    EXPECT_EQ(top.get_entity_name(), name_of("top"));
    EXPECT_EQ(top.get_file_name(), name_of("top") + ".tdf");
    EXPECT_EQ(files().size(), 1u);
    EXPECT_TRUE(fs::exists(name_of("top") + ".tdf"));
}

TEST_F(Driver, FrameOfAVerilogFile)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    top.run();
    EXPECT_EQ(file_text("top.v"), "//top\n"
                                  "//\n"
                                  "// synthesis VERILOG_INPUT_VERSION VERILOG_2001\n"
                                  "// qelvar message_off 10463\n"
                                  "\n"
                                  "\n"
                                  "\n" + copyright(GNL_VERILOG)
                                      + "\n"
                                        "\n"
                                        "//VALID FILE\n");
}

TEST_F(Driver, FrameOfAVhdlFile)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd");
    top.dump = false;
    top.run();
    EXPECT_EQ(file_text("top.vhd"), "--top\n--\n\n\n" + copyright(GNL_VHDL) + "\n\n--VALID FILE\n");
}

TEST_F(Driver, FrameOfAQhdlFile)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    top.dump = false;
    top.run();
    EXPECT_EQ(file_text("top.tdf"), "--top\n--\n\n\n" + copyright(GNL_QHDL) + "\n\n--VALID FILE\n");
}

TEST_F(Driver, TclFileHasNoFrame)
{
    design top(nullptr, "top", "LBX_FILE=top.tcl");
    top.dump = false;
    top.run();
    ASSERT_TRUE(fs::exists("top.tcl"));
    EXPECT_EQ(file_text("top.tcl"), "");
}

TEST_F(Driver, FixedInstanceLineStandsBehindTheVersionLine)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd,LBX_MODULE_PREFIX=chip,LBXI_INSTANCE_NAME=core");
    top.dump = false;
    top.run();
    EXPECT_EQ(file_text("top.vhd"),
              "--top\n--\n--LBXI_INSTANCE_NAME=\"core\"\n\n\n" + copyright(GNL_VHDL) + "\n\n--VALID FILE\n");
}

class versioned : public design
{
public:
    using design::design;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override
    {
        versions["maker"] = version;
    }
    std::string version = "7";
};

TEST_F(Driver, VersionLineHoldsTheModules)
{
    versioned top(nullptr, "top", "LBX_FILE=top.tdf");
    top.dump = false;
    top.run();
    EXPECT_TRUE(file_text("top.tdf").starts_with("--top\n--" + top.dump_version_header() + "\n\n\n-- "));
    EXPECT_TRUE(top.dump_version_header().ends_with(" maker 7  VERSION_END"));
}

TEST_F(Driver, SmallDesignInVerilog)
{
    design top(nullptr, "half_adder", "LBX_FILE=half_adder.v");
    auto & a = top.input("a");
    auto & b = top.input("b");
    auto & sum = top.output("sum");
    auto & carry = top.output("carry");
    top.run([&](design &) {
        sum = a ^ b;
        carry = a & b;
    });
    EXPECT_EQ(top.messages(), texts{});
    EXPECT_EQ(file_text("half_adder.v"), "//half_adder a b\n"
                                         "//\n"
                                         "// synthesis VERILOG_INPUT_VERSION VERILOG_2001\n"
                                         "// qelvar message_off 10463\n"
                                         "\n"
                                         "\n"
                                         "\n" + copyright(GNL_VERILOG)
                                             + "\n"
                                               "\n"
                                               "\n"
                                               "//synthesis_resources = \n"
                                               "//synopsys translate_off\n"
                                               "`timescale 1 ps / 1 ps\n"
                                               "//synopsys translate_on\n"
                                               "module  half_adder\n"
                                               "\t( \n"
                                               "\ta,\n"
                                               "\tb,\n"
                                               "\tcarry,\n"
                                               "\tsum) /* synthesis synthesis_lumenbox=1 */;\n"
                                               "\tinput   a;\n"
                                               "\tinput   b;\n"
                                               "\toutput   carry;\n"
                                               "\toutput   sum;\n"
                                               "\n"
                                               "\n"
                                               "\tassign\n"
                                               "\t\tcarry = (a & b),\n"
                                               "\t\tsum = (a ^ b);\n"
                                               "endmodule //half_adder\n"
                                               "//VALID FILE\n");
}

TEST_F(Driver, AnErrorInTheBodyMakesAnErrorFile)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd");
    top.dump = false;
    top.run([](design & self) { self.post_error_msg("broken"); });
    EXPECT_EQ(file_text("top.vhd"), "--top\n--\n\n\n" + copyright(GNL_VHDL) + "\n\n--ERROR FILE\n");
    EXPECT_EQ(top.generator_result(), 1);
}

TEST_F(Driver, ErrorsFromBeforeTheRunDoNotCount)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd");
    top.dump = false;
    top.post_error_msg("before");
    top.run();
    EXPECT_TRUE(file_text("top.vhd").ends_with("--VALID FILE\n"));
    EXPECT_EQ(top.generator_result(), 0);
    EXPECT_EQ(top.messages(), texts{"ERROR before"});
}

TEST_F(Driver, AnAbortedBodyIsFollowedByADesignThatReports)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a");
    top.run([&](design & self) {
        self.post_error_msg("broken");
        self.exit_if_error();
        a.set_used(false);
    });
    EXPECT_TRUE(a.check_is_used_flag());
    auto const text = file_text("top.v");
    EXPECT_EQ(text.substr(text.find("module")), "module top\n"
                                                "\t( \n"
                                                "\ta) /* synthesis synthesis_lumenbox=1 */;\n"
                                                "\tinput   a;\n"
                                                "\tinitial/*synthesis enable_verilog_initial_construct*/\n"
                                                " \tbegin\n"
                                                "\t\t$display(\"Error: broken\");\n"
                                                "\tend\n"
                                                "endmodule \n"
                                                "//ERROR FILE\n");
    EXPECT_FALSE(top.is_in_rtl_body());
}

TEST_F(Driver, TheBodyRunsWithFrozenParametersAndEndsOutside)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    EXPECT_FALSE(top.parameter_assignments_frozen());
    top.run([](design & self) {
        EXPECT_TRUE(self.is_in_rtl_body());
        EXPECT_TRUE(self.parameter_assignments_frozen());
    });
    EXPECT_FALSE(top.is_in_rtl_body());
    EXPECT_TRUE(top.rtl_body_begun());
}

TEST_F(Driver, TheFileIsNotThereBeforeItIsComplete)
{
    write_file("top.v", "old\n");
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    top.run([](design &) { EXPECT_EQ(file_text("top.v"), "old\n"); });
    EXPECT_TRUE(file_text("top.v").ends_with("//VALID FILE\n"));
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(Driver, DirectoriesAreNoPartOfTheDesignName)
{
    fs::create_directory("out");
    design top(nullptr, "top", "LBX_FILE=out/chip.v");
    top.dump = false;
    top.run();
    EXPECT_EQ(top.get_entity_name(), "chip");
    EXPECT_TRUE(fs::exists("out/chip.v"));
}

TEST_F(Driver, OutputDirectoryTakesTheFile)
{
    fs::create_directory("out");
    design top(nullptr, "top", "LBX_HDL_LANGUAGE=VHDL,LBX_OUTPUT_DIRECTORY=out");
    top.dump = false;
    top.run();
    EXPECT_TRUE(fs::exists("out/" + name_of("top") + ".vhd"));
}

TEST_F(Driver, NamingTheFileIsNoAssignmentAfterConnections)
{
    design top(nullptr, "top");
    top.input("a", 3);
    top.dump = false;
    top.port("a").get_width();
    top.run();
    EXPECT_EQ(top.messages(), texts{});
}

// ---- files that can't be written

TEST_F(Driver, AFileThatCannotBeOpenedIsReportedAndTheBodyDoesNotRun)
{
    design top(nullptr, "top", "LBX_FILE=missing/top.v");
    bool ran = false;
    top.run([&](design &) { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_EQ(top.messages(), texts{error("File missing/top.v cannot be created.", no_file_cause)});
    EXPECT_EQ(top.generator_result(), 1);
    EXPECT_TRUE(files().empty());
}

TEST_F(Driver, ADirectoryInTheWayIsReportedBeforeTheBodyRuns)
{
    fs::create_directory("top.v");
    design top(nullptr, "top", "LBX_FILE=top.v");
    bool ran = false;
    top.run([&](design &) { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_EQ(top.messages(), texts{error("File top.v cannot be created.", no_file_cause)});
}

TEST_F(Driver, AWriteThatFailsAtTheEndIsReported)
{
    if (!fs::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full";
    fs::create_symlink("/dev/full", "top.v");
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    top.run();
    EXPECT_EQ(top.messages(), texts{error("File top.v cannot be created.", no_file_cause)});
    EXPECT_EQ(top.generator_result(), 1);
}

TEST_F(Driver, AppendedQhdlNamesTheEntityAloneWhenItsFileCannotBeCreated)
{
    design top(nullptr, "top", "LBX_FILE=chip.tdf:a,LBX_OUTPUT_DIRECTORY=missing");
    bool ran = false;
    top.run([&](design &) { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_EQ(top.messages(), (texts{error("File chip_" + name_of("top") + " cannot be created.", no_file_cause),
                                     error("File missing/chip.tdf cannot be created.", no_file_cause)}));
}

// ---- exceptions

TEST_F(Driver, AnErrorThatIsThrownLeavesTheOldFileAndAUsableGenerator)
{
    write_file("top.v", "old\n");
    design top(nullptr, "top", "LBX_FILE=top.v,LBX_THROW_EXCEPTION_ON_ERROR=ON");
    top.dump = false;
    top.body = [](design & self) { self.generator_error("broken", nullptr, nullptr); };
    std::string text;
    try {
        top.run();
    } catch (char * thrown) {
        text = thrown;
        delete[] thrown;
    }
    EXPECT_EQ(text, "GNL_INTERNAL_ERROR: broken");
    EXPECT_EQ(files(), (std::map<std::string, std::string>{{"top.v", "old\n"}}));
    EXPECT_FALSE(top.is_in_rtl_body());
    top.run([](design &) {});
    EXPECT_TRUE(file_text("top.v").ends_with("//VALID FILE\n"));
}

TEST_F(Driver, AnExceptionOfAChildLeavesNoFileAtAll)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    design * child = nullptr;
    top.body = [&](design & self) {
        child = &self.child("leaf", "u1");
        child->body = [](design &) { throw std::runtime_error("out of ideas"); };
    };
    EXPECT_THROW(top.run(), std::runtime_error);
    EXPECT_TRUE(files().empty());
    EXPECT_FALSE(top.is_in_rtl_body());
    EXPECT_FALSE(child->is_in_rtl_body());
}

TEST_F(Driver, AnExceptionInsideASideFileRestoresTheLanguage)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    top.set_qhdl_not_supported();
    top.body = [](design &) { throw std::runtime_error("out of ideas"); };
    EXPECT_THROW(top.run(), std::runtime_error);
    EXPECT_TRUE(GNL_ELEMENT::is_qhdl());
}

TEST_F(Driver, ADesignThatAnExceptionHasCutShortIsNotShared)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    int runs = 0;
    top.body = [&](design & self) {
        for (char const * instance : {"u1", "u2"})
            self.child("leaf", instance).body = [&](design &) {
                ++runs;
                throw std::runtime_error("out of ideas");
            };
    };
    EXPECT_THROW(top.run(), std::runtime_error);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(top.check_list_of_subdesigns("top_" + name_of("leaf"), "leaf"), 2);
}

} // namespace
