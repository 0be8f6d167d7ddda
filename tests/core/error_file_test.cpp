#include "support.h"

namespace {

using gnl_test::design;

/// A design that shows what it writes when its body is given up.
class failed_design : public design
{
public:
    failed_design()
        : design(nullptr, "top")
    {
        set_entity_name("top");
    }
    std::string messages_text()
    {
        std::ostringstream out;
        dump_error_messages(out);
        return out.str();
    }
    std::string file_text()
    {
        std::ostringstream out;
        dump_error_file(out);
        return out.str();
    }
};

class ErrorFile : public gnl_test::in_folder
{
};

TEST_F(ErrorFile, VerilogMessages)
{
    design::set_gen_language(GNL_VERILOG);
    failed_design top;
    EXPECT_EQ(top.messages_text(), "");
    top.post_warning_msg("careful");
    EXPECT_EQ(top.messages_text(), "\tinitial/*synthesis enable_verilog_initial_construct*/\n"
                                   " \tbegin\n"
                                   "\t\t$display(\"Warning: careful\");\n"
                                   "\tend\n");
    top.post_error_msg("broken");
    top.post_info_msg("told");
    EXPECT_EQ(top.messages_text(), "\tinitial/*synthesis enable_verilog_initial_construct*/\n"
                                   " \tbegin\n"
                                   "\t\t$display(\"Warning: careful\");\n"
                                   "\t\t$display(\"Error: broken\");\n"
                                   "\t\t$display(\"Info: told\");\n"
                                   "\tend\n");
}

TEST_F(ErrorFile, VhdlMessages)
{
    design::set_gen_language(GNL_VHDL);
    failed_design top;
    EXPECT_EQ(top.messages_text(), "");
    top.post_error_msg("broken");
    top.post_warning_msg("careful");
    top.post_info_msg("told");
    EXPECT_EQ(top.messages_text(), "\tASSERT  FALSE \n"
                                   "\tREPORT \"broken\"\n"
                                   "\tSEVERITY ERROR;\n"
                                   "\tASSERT  FALSE \n"
                                   "\tREPORT \"careful\"\n"
                                   "\tSEVERITY WARNING;\n"
                                   "\tASSERT  FALSE \n"
                                   "\tREPORT \"told\"\n"
                                   "\tSEVERITY NOTE;\n");
}

TEST_F(ErrorFile, QhdlMessages)
{
    design::set_gen_language(GNL_QHDL);
    failed_design top;
    top.post_error_msg("broken");
    top.post_info_msg("told");
    EXPECT_EQ(top.messages_text(), "\tASSERT (0) \n"
                                   "\tREPORT \"broken\"\n"
                                   "\tSEVERITY ERROR;\n"
                                   "\tASSERT (0) \n"
                                   "\tREPORT \"told\"\n"
                                   "\tSEVERITY INFO;\n");
}

TEST_F(ErrorFile, MessagesThatWouldEndTheirStringAreEscaped)
{
    failed_design top;
    top.post_error_msg("say \"a\\b\"\nthen\rstop \xe9");
    design::set_gen_language(GNL_VERILOG);
    EXPECT_EQ(top.messages_text(), "\tinitial/*synthesis enable_verilog_initial_construct*/\n"
                                   " \tbegin\n"
                                   "\t\t$display(\"Error: say \\\"a\\\\b\\\"\\nthen\\015stop \xe9\");\n"
                                   "\tend\n");
    design::set_gen_language(GNL_VHDL);
    EXPECT_EQ(top.messages_text(), "\tASSERT  FALSE \n"
                                   "\tREPORT \"say \"\"a\\b\"\"\" & LF & \"then\" & CR & \"stop \xe9\"\n"
                                   "\tSEVERITY ERROR;\n");
    design::set_gen_language(GNL_QHDL);
    EXPECT_EQ(top.messages_text(), "\tASSERT (0) \n"
                                   "\tREPORT \"say \"\"a\\b\"\" then stop \xe9\"\n"
                                   "\tSEVERITY ERROR;\n");
}

TEST_F(ErrorFile, WritingTwiceGivesTheSameText)
{
    design::set_gen_language(GNL_VERILOG);
    failed_design top;
    top.post_error_msg("broken");
    auto const first = top.messages_text();
    EXPECT_EQ(top.messages_text(), first);
}

TEST_F(ErrorFile, ASubdesignsMessagesStandInTheTopsFile)
{
    design::set_gen_language(GNL_VHDL);
    failed_design top;
    top.child("sub", "s").post_error_msg("below");
    EXPECT_EQ(top.messages_text(), "\tASSERT  FALSE \n"
                                   "\tREPORT \"below\"\n"
                                   "\tSEVERITY ERROR;\n");
}

TEST_F(ErrorFile, VerilogDesignHasItsPortsAndReports)
{
    design::set_gen_language(GNL_VERILOG);
    failed_design top;
    top.input("a", 4).set_used();
    top.output("y").set_used();
    top.post_error_msg("broken");
    EXPECT_EQ(top.file_text(), "module top\n"
                               "\t( \n"
                               "\ta,\n"
                               "\ty) /* synthesis synthesis_lumenbox=1 */;\n"
                               "\tinput   [3:0]  a;\n"
                               "\toutput   y;\n"
                               "\tinitial/*synthesis enable_verilog_initial_construct*/\n"
                               " \tbegin\n"
                               "\t\t$display(\"Error: broken\");\n"
                               "\tend\n"
                               "endmodule \n");
}

TEST_F(ErrorFile, VhdlDesignWithoutPorts)
{
    design::set_gen_language(GNL_VHDL);
    failed_design top;
    top.post_error_msg("broken");
    EXPECT_EQ(top.file_text(), " LIBRARY ieee;\n"
                               " USE ieee.std_logic_1164.all;\n"
                               "\n"
                               " ENTITY  top IS \n"
                               " END top;\n"
                               "\n"
                               " ARCHITECTURE RTL OF top IS\n"
                               "\t ATTRIBUTE synthesis_lumenbox : boolean;\n"
                               "\t ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS true;\n"
                               "\n"
                               " BEGIN\n"
                               "\tASSERT  FALSE \n"
                               "\tREPORT \"broken\"\n"
                               "\tSEVERITY ERROR;\n"
                               "\n"
                               " END RTL; \n");
}

TEST_F(ErrorFile, QhdlDesignFollowsItsDeclaration)
{
    design::set_gen_language(GNL_QHDL);
    failed_design top;
    top.post_error_msg("broken");
    std::ostringstream declaration;
    top.dump_qhdl_subdesign_section(declaration);
    EXPECT_EQ(top.file_text(), declaration.str()
                                   + "BEGIN \n"
                                     "\tASSERT (0) \n"
                                     "\tREPORT \"broken\"\n"
                                     "\tSEVERITY ERROR;\n"
                                     "END;\n");
}

TEST_F(ErrorFile, AnAbortedBodyLeavesAFileThatReports)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a");
    auto & y = top.output("y");
    top.run([&](design & self) {
        y = a;
        self.generator_error("no way on", nullptr, nullptr);
        self.exit_if_error();
    });
    EXPECT_EQ(top.generator_result(), 1);
    auto const text = gnl_test::file_text("top.v");
    EXPECT_EQ(text.substr(text.find("module ")), "module top\n"
                                                 "\t( \n"
                                                 "\ta,\n"
                                                 "\ty) /* synthesis synthesis_lumenbox=1 */;\n"
                                                 "\tinput   a;\n"
                                                 "\toutput   y;\n"
                                                 "\tinitial/*synthesis enable_verilog_initial_construct*/\n"
                                                 " \tbegin\n"
                                                 "\t\t$display(\"Error: GNL_INTERNAL_ERROR: no way on\");\n"
                                                 "\tend\n"
                                                 "endmodule \n"
                                                 "//ERROR FILE\n");
}

} // namespace
