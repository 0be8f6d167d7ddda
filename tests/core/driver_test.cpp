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

std::string const no_file_cause =
    "The file cannot be created. The file already exists, and is write-protected, or there is not enough space.";

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

// ---- the other ways of writing

TEST_F(Driver, AnExternalStreamTakesTheTop)
{
    design top(nullptr, "top", "LBX_HDL_LANGUAGE=Verilog");
    top.set_use_external_ostream();
    top.dump = false;
    EXPECT_EQ(top.run(), "\n\n//top\n//\n\n\n" + copyright(GNL_VERILOG) + "\n\n");
    EXPECT_TRUE(files().empty());
}

TEST_F(Driver, AnExternalStreamTakesTheFixedInstanceLine)
{
    design top(nullptr, "top", "LBX_HDL_LANGUAGE=VHDL,LBX_MODULE_PREFIX=chip,LBXI_INSTANCE_NAME=core");
    top.set_use_external_ostream();
    top.dump = false;
    EXPECT_EQ(top.run(), "\n\n--top\n--\n--LBXI_INSTANCE_NAME=\"core\"\n\n\n" + copyright(GNL_VHDL) + "\n\n");
}

TEST_F(Driver, ABadExternalStreamIsReportedAndTheBodyDoesNotRun)
{
    design top(nullptr, "top", "LBX_HDL_LANGUAGE=Verilog");
    top.set_use_external_ostream();
    bool ran = false;
    top.body = [&](design &) { ran = true; };
    std::ostringstream stream;
    stream.setstate(std::ios::badbit);
    top.generate_subdesign(stream);
    EXPECT_FALSE(ran);
    EXPECT_EQ(
        top.messages(),
        texts{error("No valid output file stream exists at level top",
                    "In a single output file flow or a gigawizard flow (for VHDL and Verilog), the output file stream "
                    "is invalid.",
                    "The output file stream has either been closed before the call to dump_hdl () function was made, "
                    "or the output file stream was never created (there were problems in the creation of the file "
                    "stream).")});
    EXPECT_EQ(top.generator_result(), 1);
}

TEST_F(Driver, VerilogSideFileOfAQhdlRun)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    top.set_qhdl_not_supported();
    top.dump = false;
    int seen = -1;
    top.run([&](design &) { seen = GNL_ELEMENT::get_gen_language(); });
    EXPECT_EQ(seen, GNL_VERILOG);
    EXPECT_TRUE(GNL_ELEMENT::is_qhdl());
    EXPECT_EQ(files(),
              (std::map<std::string, std::string>{{"top.v", "//top\n//\n\n" + copyright(GNL_VERILOG)
                                                                + "\n"
                                                                  "// synthesis VERILOG_INPUT_VERSION VERILOG_2001\n"
                                                                  "// qelvar message_off 10463\n"
                                                                  "//VALID FILE\n"}}));
    EXPECT_STREQ(top.get_file_name(), "top.v");
}

TEST_F(Driver, VhdlSideFileOfAVerilogRun)
{
    fs::create_directory("out");
    design top(nullptr, "top", "LBX_FILE=top.v,LBX_OUTPUT_DIRECTORY=out");
    top.set_has_true_vhdl_parameter_array();
    top.dump = false;
    top.run();
    EXPECT_TRUE(GNL_ELEMENT::is_verilog());
    EXPECT_EQ(files(), (std::map<std::string, std::string>{
                           {"out/top.vhd", "--top\n--\n\n" + copyright(GNL_VHDL) + "\n--VALID FILE\n"}}));
    EXPECT_STREQ(top.get_file_name(), "out/top.vhd");
}

TEST_F(Driver, ATrueParameterArrayNeedsNoSideFileInVhdl)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd");
    top.set_has_true_vhdl_parameter_array();
    top.dump = false;
    top.run();
    EXPECT_EQ(file_text("top.vhd"), "--top\n--\n\n\n" + copyright(GNL_VHDL) + "\n\n--VALID FILE\n");
}

TEST_F(Driver, ASideFileThatCannotBeOpenedIsReportedWithItsPath)
{
    fs::create_directory("top.v");
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    top.set_qhdl_not_supported();
    bool ran = false;
    top.run([&](design &) { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_TRUE(GNL_ELEMENT::is_qhdl());
    EXPECT_EQ(top.messages(), texts{error("File top.v cannot be created.", no_file_cause)});
}

// ---- appending

TEST_F(Driver, AppendingKeepsWhatIsThereAndLeavesTheLegalTextOut)
{
    write_file("chip.v", "// mine\n");
    design top(nullptr, "top", "LBX_FILE=chip.v:a");
    top.dump = false;
    top.run();
    EXPECT_TRUE(top.is_append_mode());
    EXPECT_EQ(top.get_entity_name(), "chip_" + name_of("top"));
    EXPECT_EQ(file_text("chip.v"), "// mine\n"
                                   "//top\n"
                                   "//\n"
                                   "// synthesis VERILOG_INPUT_VERSION VERILOG_2001\n"
                                   "// qelvar message_off 10463\n"
                                   "\n"
                                   "//VALID FILE\n");
}

TEST_F(Driver, AppendingInVhdlTakesTheStemFromTheValue)
{
    design top(nullptr, "top", "LBX_FILE=chip.vhd:a");
    top.dump = false;
    top.run();
    EXPECT_EQ(top.get_entity_name(), "chip_" + name_of("top"));
    EXPECT_EQ(file_text("chip.vhd"), "--top\n--\n--VALID FILE\n");
}

TEST_F(Driver, TheMarkForAppendingHasNoCase)
{
    design top(nullptr, "top", "LBX_FILE=chip.v:A");
    top.dump = false;
    top.run();
    EXPECT_TRUE(top.is_append_mode());
    EXPECT_EQ(top.get_entity_name(), "chip_" + name_of("top"));
}

TEST_F(Driver, AppendingUnderAGivenName)
{
    design top(nullptr, "top", "LBX_FILE=chip.v:a:core");
    top.dump = false;
    top.run();
    EXPECT_TRUE(top.is_append_mode());
    EXPECT_EQ(top.get_entity_name(), "core");
    EXPECT_TRUE(file_text("chip.v").starts_with("//top\n//\n"));
}

TEST_F(Driver, AppendedNamesHaveNoDirectories)
{
    fs::create_directory("out");
    design top(nullptr, "top", "LBX_FILE=out/chip.v:a");
    top.dump = false;
    top.run();
    EXPECT_EQ(top.get_entity_name(), "chip_" + name_of("top"));
    EXPECT_TRUE(fs::exists("out/chip.v"));
}

TEST_F(Driver, AppendingInQhdlWritesBesideAndAppendsTheFunctionHeader)
{
    write_file("chip.tdf", "-- mine\n");
    design top(nullptr, "top", "LBX_FILE=chip.tdf:a");
    top.dump = false;
    top.run();
    auto const entity = "chip_" + name_of("top");
    EXPECT_EQ(top.get_entity_name(), entity);
    EXPECT_EQ(file_text(entity + ".tdf"), "--top\n--\n\n\n" + copyright(GNL_QHDL) + "\n\n--VALID FILE\n");
    EXPECT_TRUE(file_text("chip.tdf").starts_with("-- mine\n-- Lumenbox generated function header\n"));
}

TEST_F(Driver, TheFunctionHeaderComesAlsoAfterErrors)
{
    design top(nullptr, "top", "LBX_FILE=chip.tdf:a");
    top.dump = false;
    top.run([](design & self) { self.post_error_msg("broken"); });
    EXPECT_TRUE(file_text("chip.tdf").starts_with("-- Lumenbox generated function header\n"));
}

TEST_F(Driver, AnUnsupportedDesignGetsNoFunctionHeader)
{
    probe top(nullptr, "top", "LBX_FILE=chip.tdf:a");
    top.dump = false;
    top.run([&](design &) { top.set_not_supported(); });
    EXPECT_TRUE(files().empty());
}

TEST_F(Driver, AFunctionHeaderThatCannotBeAppendedIsReported)
{
    fs::create_directory("chip.tdf");
    design top(nullptr, "top", "LBX_FILE=chip.tdf:a");
    top.dump = false;
    top.run();
    EXPECT_EQ(top.messages(), texts{error("File chip.tdf cannot be created.", no_file_cause)});
}

// ---- support

TEST_F(Driver, AnUnsupportedTopHasNoFile)
{
    probe top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    top.run([&](design &) { top.set_not_supported(); });
    EXPECT_EQ(top.generator_result(), 2);
    EXPECT_TRUE(files().empty());
}

TEST_F(Driver, AnUnsupportedDesignLeavesWhatItsFileHeldBeforeAppending)
{
    write_file("chip.v", "// mine\n");
    probe top(nullptr, "top", "LBX_FILE=chip.v:a");
    top.dump = false;
    top.run([&](design &) { top.set_not_supported(); });
    EXPECT_EQ(files(), (std::map<std::string, std::string>{{"chip.v", "// mine\n"}}));
}

TEST_F(Driver, SetNotSupportedGivesTheNameBackAndTellsTheTop)
{
    design top(nullptr, "top");
    probe sub(&top, "sub");
    sub.set_entity_name("top_mg1");
    EXPECT_EQ(top.check_list_of_subdesigns("top_mg1", "sub"), 2);
    sub.set_not_supported();
    EXPECT_FALSE(sub.is_supported());
    EXPECT_FALSE(sub.generate_file());
    EXPECT_EQ(sub.get_entity_name(), "sub");
    EXPECT_STREQ(sub.get_file_name(), "top_mg1.tdf");
    EXPECT_EQ(top.check_list_of_subdesigns("top_mg1", "other"), 2);
    EXPECT_EQ(top.generator_result(), 3);
}

// ---- a cell as top

TEST_F(Driver, ACellCannotBeTheTop)
{
    design top(nullptr, "cell", "LBX_FILE=top.v");
    top.set_primitive();
    top.run();
    EXPECT_EQ(top.messages(),
              texts{error("Generator entity cell is specified as a primitive with no parent.",
                          "Top level entity is specified as a primitive or primitive has no parent. All primitive "
                          "objects in lumen box should have non-NULL parents and top level entities cannot be "
                          "primitives.",
                          "The constructor of the entity still has the set_primitive () function, or the parent of "
                          "the primitive object is set to NULL.")});
    EXPECT_EQ(top.get_entity_name(), "cell");
    EXPECT_TRUE(files().empty());
}

TEST_F(Driver, ABlackboxedTopIsToldAndNotSupported)
{
    design top(nullptr, "top", "LBX_FILE=top.v,LBX_AUTO_BLACKBOX=ALL");
    bool ran = false;
    top.run([&](design &) { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_EQ(top.messages(), texts{"INFO Top level generator entity top is blackboxed."});
    EXPECT_EQ(top.generator_result(), 2);
    EXPECT_TRUE(files().empty());
}

// ---- language of fixed prefixes and of designs without QHDL

TEST_F(Driver, AFixedPrefixMovesAQhdlRunToVerilog)
{
    design top(nullptr, "top", "LBX_MODULE_PREFIX=chip,LBXI_INSTANCE_NAME=core");
    top.dump = false;
    top.run();
    EXPECT_TRUE(GNL_ELEMENT::is_verilog());
    EXPECT_EQ(top.get_entity_name(), "chip_mg");
    EXPECT_TRUE(file_text("chip_mg.v").starts_with("//top\n//\n//LBXI_INSTANCE_NAME=\"core\"\n// synthesis "));
}

TEST_F(Driver, ADesignThatQhdlCannotHoldMovesItsRunToVerilog)
{
    design top(nullptr, "top");
    top.set_qhdl_unsupported(true);
    top.dump = false;
    top.run();
    EXPECT_TRUE(GNL_ELEMENT::is_verilog());
    EXPECT_TRUE(fs::exists(name_of("top") + ".v"));
}

TEST_F(Driver, ASubdesignThatQhdlCannotHoldIsWrittenInVerilogBesideItsQhdlParent)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    int in_child = -1;
    top.run([&](design & self) {
        auto & child = self.child("leaf", "u1");
        child.set_qhdl_unsupported(true);
        child.body = [&](design &) { in_child = GNL_ELEMENT::get_gen_language(); };
    });
    EXPECT_EQ(in_child, GNL_VERILOG);
    EXPECT_TRUE(GNL_ELEMENT::is_qhdl());
    EXPECT_TRUE(file_text("top_" + name_of("leaf") + ".v").ends_with("//VALID FILE\n"));
    EXPECT_TRUE(file_text("top.tdf").ends_with("--VALID FILE\n"));
}

// ---- counting runs

TEST_F(Driver, ACountingRunWritesNothing)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.body = [](design & self) { self.update_resource_map("lut", 3); };
    EXPECT_STREQ(top.get_resource_count(), "3 lut;");
    EXPECT_FALSE(top.is_in_resource_count_mode());
    EXPECT_FALSE(top.is_in_rtl_body());
    EXPECT_TRUE(files().empty());
}

TEST_F(Driver, ACountingRunCountsTheSubdesigns)
{
    design top(nullptr, "top");
    top.body = [](design & self) {
        for (char const * instance : {"u1", "u2"})
            self.child("leaf", instance).body = [](design & leaf) { leaf.update_resource_map("lut", 2); };
    };
    EXPECT_STREQ(top.get_resource_count(), "4 lut;");
}

TEST_F(Driver, AnAbortedCountingRunIsIgnored)
{
    design top(nullptr, "top");
    top.body = [](design & self) {
        self.update_resource_map("lut", 3);
        self.post_error_msg("broken");
        self.exit_if_error();
    };
    EXPECT_STREQ(top.get_resource_count(), "");
    EXPECT_FALSE(top.is_in_rtl_body());
}

TEST_F(Driver, ACountingRunAfterATclRunCountsAsQhdl)
{
    design first(nullptr, "top", "LBX_FILE=top.tcl");
    first.dump = false;
    first.run();
    design top(nullptr, "top");
    top.body = [](design & self) {
        self.child("leaf", "u1").body = [](design & leaf) { leaf.update_resource_map("lut", 2); };
    };
    EXPECT_STREQ(top.get_resource_count(), "2 lut;");
    EXPECT_TRUE(GNL_ELEMENT::is_qhdl());
}

TEST_F(Driver, SimulationLibraryOfADesignWithoutAny)
{
    design top(nullptr, "top");
    int seen = -1;
    top.body = [&](design &) { seen = GNL_ELEMENT::get_gen_language(); };
    EXPECT_STREQ(top.get_simulation_library(), "no_simlib");
    EXPECT_EQ(seen, GNL_VHDL);
    EXPECT_FALSE(top.is_in_simulation_library_mode());
    EXPECT_TRUE(files().empty());
}

TEST_F(Driver, SimulationLibraryAfterErrorsIsEmpty)
{
    design top(nullptr, "top");
    top.body = [](design & self) {
        self.post_error_msg("broken");
        self.child("leaf", "u1");
    };
    EXPECT_STREQ(top.get_simulation_library(), "");
}

TEST_F(Driver, SimulationLibrariesOfACellAsTop)
{
    design top(nullptr, "cell");
    top.set_primitive();
    top.set_vhdl_library("lpm.lpm_components", true);
    EXPECT_STREQ(top.get_simulation_library(), "lpm;");
}

// ---- runs after each other

TEST_F(Driver, TwoRunsDoNotInfluenceEachOther)
{
    auto const generate = [](char const * file) {
        design top(nullptr, "top", (std::string("LBX_FILE=") + file).c_str());
        auto & a = top.input("a");
        top.body = [&](design & self) {
            auto & child = self.child("leaf", "u1");
            auto & q = child.output("q");
            auto & d = child.input("d");
            child.body = [&](design &) { q = d; };
            d = a;
            top.output("y") = q;
        };
        top.run();
        return file_text(file);
    };
    auto const first = generate("top.v");
    {
        design bad(nullptr, "bad", "LBX_FILE=bad.vhd");
        bad.run([](design & self) { self.post_error_msg("broken"); });
    }
    EXPECT_EQ(generate("top.v"), first);
    EXPECT_TRUE(first.ends_with("//VALID FILE\n"));
}

} // namespace
