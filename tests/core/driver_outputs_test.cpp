// Where a design goes that is not simply the file of its run: streams of the caller, side files, files that are
// appended to, and nowhere when it is not supported.

#include "driver_support.h"

namespace {

using namespace gnl_test;

class DriverOutputs : public in_folder
{
};

// ---- the other ways of writing

TEST_F(DriverOutputs, AnExternalStreamTakesTheTop)
{
    design top(nullptr, "top", "LBX_HDL_LANGUAGE=Verilog");
    top.set_use_external_ostream();
    top.dump = false;
    EXPECT_EQ(top.run(), "\n\n//top\n//\n\n\n" + copyright(GNL_VERILOG) + "\n\n");
    EXPECT_TRUE(files().empty());
}

TEST_F(DriverOutputs, AnExternalStreamTakesTheFixedInstanceLine)
{
    design top(nullptr, "top", "LBX_HDL_LANGUAGE=VHDL,LBX_MODULE_PREFIX=chip,LBXI_INSTANCE_NAME=core");
    top.set_use_external_ostream();
    top.dump = false;
    EXPECT_EQ(top.run(), "\n\n--top\n--\n--LBXI_INSTANCE_NAME=\"core\"\n\n\n" + copyright(GNL_VHDL) + "\n\n");
}

TEST_F(DriverOutputs, ABadExternalStreamIsReportedAndTheBodyDoesNotRun)
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

TEST_F(DriverOutputs, VerilogSideFileOfAQhdlRun)
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

TEST_F(DriverOutputs, VhdlSideFileOfAVerilogRun)
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

TEST_F(DriverOutputs, ATrueParameterArrayNeedsNoSideFileInVhdl)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd");
    top.set_has_true_vhdl_parameter_array();
    top.dump = false;
    top.run();
    EXPECT_EQ(file_text("top.vhd"), "--top\n--\n\n\n" + copyright(GNL_VHDL) + "\n\n--VALID FILE\n");
}

TEST_F(DriverOutputs, ASideFileThatCannotBeOpenedIsReportedWithItsPath)
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

TEST_F(DriverOutputs, AppendingKeepsWhatIsThereAndLeavesTheLegalTextOut)
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

TEST_F(DriverOutputs, AppendingInVhdlTakesTheStemFromTheValue)
{
    design top(nullptr, "top", "LBX_FILE=chip.vhd:a");
    top.dump = false;
    top.run();
    EXPECT_EQ(top.get_entity_name(), "chip_" + name_of("top"));
    EXPECT_EQ(file_text("chip.vhd"), "--top\n--\n--VALID FILE\n");
}

TEST_F(DriverOutputs, TheMarkForAppendingHasNoCase)
{
    design top(nullptr, "top", "LBX_FILE=chip.v:A");
    top.dump = false;
    top.run();
    EXPECT_TRUE(top.is_append_mode());
    EXPECT_EQ(top.get_entity_name(), "chip_" + name_of("top"));
}

TEST_F(DriverOutputs, AppendingUnderAGivenName)
{
    design top(nullptr, "top", "LBX_FILE=chip.v:a:core");
    top.dump = false;
    top.run();
    EXPECT_TRUE(top.is_append_mode());
    EXPECT_EQ(top.get_entity_name(), "core");
    EXPECT_TRUE(file_text("chip.v").starts_with("//top\n//\n"));
}

TEST_F(DriverOutputs, AppendedNamesHaveNoDirectories)
{
    fs::create_directory("out");
    design top(nullptr, "top", "LBX_FILE=out/chip.v:a");
    top.dump = false;
    top.run();
    EXPECT_EQ(top.get_entity_name(), "chip_" + name_of("top"));
    EXPECT_TRUE(fs::exists("out/chip.v"));
}

TEST_F(DriverOutputs, AppendingInQhdlWritesBesideAndAppendsTheFunctionHeader)
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

TEST_F(DriverOutputs, TheFunctionHeaderComesAlsoAfterErrors)
{
    design top(nullptr, "top", "LBX_FILE=chip.tdf:a");
    top.dump = false;
    top.run([](design & self) { self.post_error_msg("broken"); });
    EXPECT_TRUE(file_text("chip.tdf").starts_with("-- Lumenbox generated function header\n"));
}

TEST_F(DriverOutputs, AnUnsupportedDesignGetsNoFunctionHeader)
{
    probe top(nullptr, "top", "LBX_FILE=chip.tdf:a");
    top.dump = false;
    top.run([&](design &) { top.set_not_supported(); });
    EXPECT_TRUE(files().empty());
}

TEST_F(DriverOutputs, AFunctionHeaderThatCannotBeAppendedIsReported)
{
    fs::create_directory("chip.tdf");
    design top(nullptr, "top", "LBX_FILE=chip.tdf:a");
    top.dump = false;
    top.run();
    EXPECT_EQ(top.messages(), texts{error("File chip.tdf cannot be created.", no_file_cause)});
}

// ---- support

TEST_F(DriverOutputs, AnUnsupportedTopHasNoFile)
{
    probe top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    top.run([&](design &) { top.set_not_supported(); });
    EXPECT_EQ(top.generator_result(), 2);
    EXPECT_TRUE(files().empty());
}

TEST_F(DriverOutputs, AnUnsupportedDesignLeavesWhatItsFileHeldBeforeAppending)
{
    write_file("chip.v", "// mine\n");
    probe top(nullptr, "top", "LBX_FILE=chip.v:a");
    top.dump = false;
    top.run([&](design &) { top.set_not_supported(); });
    EXPECT_EQ(files(), (std::map<std::string, std::string>{{"chip.v", "// mine\n"}}));
}

TEST_F(DriverOutputs, SetNotSupportedGivesTheNameBackAndTellsTheTop)
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

} // namespace
