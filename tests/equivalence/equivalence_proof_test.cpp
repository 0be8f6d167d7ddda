// The proof itself: it must find what is equal, what differs, and what it cannot tell.

#include "outside_tools.h"
#include "proof_test.h"
#include "support.h"

#include <string>
#include <vector>

using namespace gnl_test;
using lbx_proof::answer;
using lbx_proof::design_text;
using lbx_proof::question;
using lbx_proof::verdict;
using language = lbx_proof::design_text::language;

namespace {

class EquivalenceProof : public proof_test
{
protected:
    static design_text text(language written_in, std::string const & file, std::string const & content)
    {
        std::ofstream(file) << content;
        return {written_in, {file}, "top"};
    }
    static design_text verilog(std::string const & file, std::string const & content)
    {
        return text(language::verilog, file, content);
    }
    static std::vector<answer> ask(std::vector<question> const & questions)
    {
        fs::create_directory("proof");
        return lbx_proof::prove_equal(questions, "proof");
    }
};

char const * const exclusive_or = "module top(a, b, o); input [1:0] a; input b; output [1:0] o;\n"
                                  "assign o = a ^ {2{b}}; endmodule\n";

char const * const exclusive_or_in_vhdl =
    "LIBRARY ieee; USE ieee.std_logic_1164.all;\n"
    "ENTITY top IS PORT (b : IN STD_LOGIC; o : OUT STD_LOGIC_VECTOR(1 DOWNTO 0);\n"
    "  a : IN STD_LOGIC_VECTOR(1 DOWNTO 0) := (OTHERS => '0')); END top;\n"
    "ARCHITECTURE RTL OF top IS BEGIN g : FOR i IN 0 TO 1 GENERATE o(i) <= a(i) XOR b; END GENERATE g; END RTL;\n";

TEST_F(EquivalenceProof, FindsEqualDesignsEqualWhateverTheOrderOfTheirPorts)
{
    auto const answers =
        ask({{"one", verilog("a.v", exclusive_or), text(language::vhdl, "b.vhd", exclusive_or_in_vhdl)},
             {"two", verilog("c.v", exclusive_or),
              verilog("d.v", "module top(o, b, A); output [1:0] o; input [1:0] A; input b;\n"
                             "assign o = {(A[1] & ~b) | (~A[1] & b), A[0] ^ b}; endmodule\n")}});
    ASSERT_EQ(answers.size(), 2u);
    EXPECT_EQ(answers[0].found, verdict::equal) << answers[0].reason;
    EXPECT_EQ(answers[1].found, verdict::equal) << answers[1].reason;
}

TEST_F(EquivalenceProof, TellsACounterexample)
{
    auto const answers = ask({{"one", verilog("a.v", exclusive_or),
                               verilog("b.v", "module top(a, b, o); input [1:0] a; input b; output [1:0] o;\n"
                                              "assign o = a ^ {b, ~b}; endmodule\n")}});
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0].found, verdict::different);
    EXPECT_NE(answers[0].reason.find("Verification failed for at least 1 outputs:  o[0]"), std::string::npos)
        << answers[0].reason;
}

TEST_F(EquivalenceProof, ComparesPortsByNameFirst)
{
    auto const answers = ask({{"one", verilog("a.v", exclusive_or),
                               verilog("b.v", "module top(a, c, o); input [1:0] a; input c; output [1:0] o;\n"
                                              "assign o = a ^ {2{c}}; endmodule\n")},
                              {"two", verilog("c.v", exclusive_or),
                               verilog("d.v", "module top(a, b, o); input [2:0] a; input b; output [1:0] o;\n"
                                              "assign o = a[1:0] ^ {2{b}}; endmodule\n")}});
    ASSERT_EQ(answers.size(), 2u);
    EXPECT_EQ(answers[0].found, verdict::different);
    EXPECT_EQ(answers[0].reason, "the ports differ: input b; input c");
    EXPECT_EQ(answers[1].found, verdict::different);
    EXPECT_EQ(answers[1].reason, "the ports differ: input a[2]");
}

TEST_F(EquivalenceProof, ReadsConstantsOfMoreThan32Bits)
{
    std::string const digits = "101000000000000000000000000000000000001";
    auto const answers =
        ask({{"one", verilog("a.v", "module top(o); output [38:0] o; assign o = 39'b" + digits + "; endmodule\n"),
              text(language::vhdl, "b.vhd",
                   "LIBRARY ieee; USE ieee.std_logic_1164.all;\n"
                   "ENTITY top IS PORT (o : OUT STD_LOGIC_VECTOR(38 DOWNTO 0)); END top;\n"
                   "ARCHITECTURE RTL OF top IS BEGIN o <= \""
                       + digits + "\"; END RTL;\n")}});
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0].found, verdict::equal) << answers[0].reason;
}

TEST_F(EquivalenceProof, KnowsTheSpellingOfReservedWordsInVhdl)
{
    auto const answers =
        ask({{"one", verilog("a.v", "module top(in, out); input in; output out; assign out = ~in; endmodule\n"),
              text(language::vhdl, "b.vhd",
                   "LIBRARY ieee; USE ieee.std_logic_1164.all;\n"
                   "ENTITY top IS PORT (a_in : IN STD_LOGIC; a_out : OUT STD_LOGIC); END top;\n"
                   "ARCHITECTURE RTL OF top IS BEGIN a_out <= NOT a_in; END RTL;\n")}});
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0].found, verdict::equal) << answers[0].reason;
}

TEST_F(EquivalenceProof, ARefusedTextIsUnknownAndSpoilsNoOther)
{
    auto const answers = ask({{"one", verilog("a.v", "module top(; endmodule\n"), verilog("b.v", exclusive_or)},
                              {"two", verilog("c.v", exclusive_or), verilog("d.v", exclusive_or)},
                              {"three", verilog("e.v", exclusive_or), text(language::vhdl, "f.vhd", "ENTITY top IF\n")},
                              {"four", verilog("g.v", exclusive_or), {language::verilog, {"missing.v"}, "top"}}});
    ASSERT_EQ(answers.size(), 4u);
    EXPECT_EQ(answers[0].found, verdict::unknown);
    EXPECT_EQ(answers[0].reason.substr(0, 7), "Yosys: ") << answers[0].reason;
    EXPECT_EQ(answers[1].found, verdict::equal) << answers[1].reason;
    EXPECT_EQ(answers[2].found, verdict::unknown);
    EXPECT_EQ(answers[2].reason.substr(0, 6), "GHDL: ") << answers[2].reason;
    EXPECT_EQ(answers[3].found, verdict::unknown);
}

} // namespace
