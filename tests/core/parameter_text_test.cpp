// The parameter text: the scanner, hints, instance names, and the assignment of one value by name.

#include "support.h"

namespace {

using namespace gnl_test;

class ParameterText : public in_folder
{
};

struct scan_case
{
    char const * text;
    char const * result;
    char const * result_ignoring_failures;
};

void PrintTo(scan_case const & of, std::ostream * out)
{
    *out << of.text;
}

/// The values that a text gives the free string parameters A, B and C, "-" for none, and whether it was accepted.
std::string scanned(char const * text, bool ignore_failures)
{
    design top(nullptr);
    GNL_PARAMETER_STRING * const parameters[] = {&top.string("A", ""), &top.string("B", ""), &top.string("C", "")};
    bool const accepted = top.init_param_list_from_string(text, ignore_failures);
    std::string result;
    for (auto * parameter : parameters)
        result += parameter->value_changed() ? "[" + parameter->get_value() + "]" : "-";
    EXPECT_EQ(top.messages(), texts{});
    return result + (accepted ? " yes" : " no");
}

class ScannedText : public in_folder_with_parameter<scan_case>
{
};

TEST_P(ScannedText, IsReadAsItAlwaysWas)
{
    auto const & [text, result, result_ignoring_failures] = GetParam();
    EXPECT_EQ(scanned(text, false), result);
    EXPECT_EQ(scanned(text, true), result_ignoring_failures);
}

INSTANTIATE_TEST_SUITE_P(Pairs, ScannedText,
                         ::testing::Values(scan_case{"A=1", "[1]-- yes", "[1]-- yes"},
                                           scan_case{"a=1,b=Two", "[1][Two]- yes", "[1][Two]- yes"},
                                           scan_case{"C=3,A=1,B=2", "[1][2][3] yes", "[1][2][3] yes"},
                                           scan_case{"=A=1", "[1]-- yes", "[1]-- yes"},
                                           scan_case{"A==1", "[1]-- yes", "[1]-- yes"},
                                           scan_case{"A=x=y", "[x=y]-- yes", "[x=y]-- yes"},
                                           scan_case{"A=x=y,B=1", "[x=y][1]- yes", "[x=y][1]- yes"},
                                           scan_case{"A=1;B=2", "[1;B=2]-- yes", "[1;B=2]-- yes"},
                                           scan_case{"A=\xe4\xff", "[\xe4\xff]-- yes", "[\xe4\xff]-- yes"}));

INSTANTIATE_TEST_SUITE_P(Commas, ScannedText,
                         ::testing::Values(scan_case{"A=1,2,B=3", "[1,2][3]- yes", "[1,2][3]- yes"},
                                           scan_case{"A=1,2,3,B=4", "[1,2,3][4]- yes", "[1,2,3][4]- yes"},
                                           scan_case{"A=1,2,3", "[1,2,3]-- yes", "[1,2,3]-- yes"},
                                           scan_case{"A=1,2,3,B=4,5,C=6", "[1,2,3][4,5][6] yes", "[1,2,3][4,5][6] yes"},
                                           scan_case{"A=1,B=2,3,4", "[1][2,3,4]- yes", "[1][2,3,4]- yes"},
                                           scan_case{"A=1,", "[1,]-- yes", "[1,]-- yes"},
                                           scan_case{"A=1,,B=2", "[1,][2]- yes", "[1,][2]- yes"},
                                           scan_case{"A=1,2,,B=3", "[1,2,][3]- yes", "[1,2,][3]- yes"},
                                           scan_case{",,,A=1", "[1]-- yes", "[1]-- yes"},
                                           scan_case{"A=,,B=2", "[,][2]- yes", "[,][2]- yes"},
                                           scan_case{"B=1,A", "-[1,A]- yes", "-[1,A]- yes"}));

INSTANTIATE_TEST_SUITE_P(QuotesAndBlanks, ScannedText,
                         ::testing::Values(scan_case{"A=\"1,2\",B=3", "[1,2][3]- yes", "[1,2][3]- yes"},
                                           scan_case{"A=\"hello world\",B=\"x\"", "[hello world][x]- yes",
                                                     "[hello world][x]- yes"},
                                           scan_case{"A=\"  abc\"", "[abc]-- yes", "[abc]-- yes"},
                                           scan_case{"\"A=1\"", "[1]-- yes", "[1]-- yes"},
                                           scan_case{"A=\"abc\" ,B=1", "[abc\"][1]- yes", "[abc\"][1]- yes"},
                                           scan_case{"A=\"1,C=2\",B=3", "[1][3][2] yes", "[1][3][2] yes"},
                                           scan_case{"A=1,\"2\",B=3", "[2][3]- yes", "[2][3]- yes"},
                                           scan_case{"\"A\"=1,B=2", "[1][2]- yes", "[1][2]- yes"},
                                           scan_case{"B=2,\"A\"=1", "-[2]- no", "-[2]- yes"},
                                           scan_case{"   A = 1 , B = 2", "[1]-- no", "[1]-- yes"},
                                           scan_case{"A=1,B =2", "[1][2]- yes", "[1][2]- yes"},
                                           scan_case{"A=a b, c d ,B=1", "[a b, c d][1]- yes", "[a b, c d][1]- yes"},
                                           scan_case{"A=1, B=2", "[1][2]- yes", "[1][2]- yes"}));

INSTANTIATE_TEST_SUITE_P(
    Failures, ScannedText,
    ::testing::Values(scan_case{"A=", "--- no", "--- no"}, scan_case{"A=,B=1", "--- no", "-[1]- no"},
                      scan_case{"A=\"\",B=1", "--- no", "-[1]- no"}, scan_case{"A= ,B=1", "--- no", "-[1]- no"},
                      scan_case{"A=\"  \",B=1", "--- no", "-[1]- no"},
                      scan_case{"A=1,B=,C=3", "[1]-- no", "[1]-[3] no"},
                      scan_case{"A=1,NOPE=2,B=3", "[1]-- no", "[1][3]- yes"}, scan_case{"A", "--- no", "--- no"},
                      scan_case{"A,B=2", "--- no", "--- yes"}, scan_case{"   ", "--- no", "--- no"},
                      scan_case{",", "--- no", "--- no"}, scan_case{"=", "--- no", "--- no"},
                      scan_case{"\"", "--- no", "--- no"}, scan_case{"==", "--- no", "--- yes"}));

TEST_F(ParameterText, NothingIsAccepted)
{
    EXPECT_EQ(scanned(nullptr, false), "--- yes");
    EXPECT_EQ(scanned("", false), "--- yes");
}

TEST_F(ParameterText, IsReadOnceAndBeforeAnyAssignment)
{
    design top(nullptr, "top", "WIDTH=9");
    auto & width = top.integer("WIDTH", 1);
    width = 4;
    EXPECT_EQ(width.get_value(), 4);
    top.initialize_param_list();
    EXPECT_EQ(width.get_value(), 4);
}

TEST_F(ParameterText, ComesBeforeAValueForASubdesignOrAnArray)
{
    design top(nullptr, "top", "SIZE=9,COEF2=9");
    auto & sub = top.child("sub", "u");
    auto & size = sub.integer("SIZE", 1);
    size.set_as_inherit_allowed();
    sub.collect_inheritable_parameters(&top);
    GNL_PARAMETER_INTEGER_ARRAY coef(&top, "COEF", 1);
    EXPECT_TRUE(top.assign_value_to_parameter("SIZE", "4"));
    EXPECT_TRUE(top.assign_value_to_array_parameter("COEF2", "5"));
    EXPECT_EQ(size.get_value(), 4);
    EXPECT_EQ(coef[2].get_value(), 5);
}

// Hints

TEST_F(ParameterText, HintTakesTheRemainder)
{
    design top(nullptr);
    auto & hint = top.string("LPM_HINT", "");
    auto & a = top.integer("A", 0);
    auto & b = top.integer("B", 0);
    auto & c = top.integer("C", 0);
    EXPECT_TRUE(top.init_param_list_from_string("C=1,lpm_hint=A=5,B=6,C=3", false));
    EXPECT_EQ(hint.get_value(), "A=5,B=6,C=3");
    EXPECT_EQ((std::vector<int>{a.get_value(), b.get_value(), c.get_value()}), (std::vector<int>{5, 6, 3}));
}

TEST_F(ParameterText, HintEndsAtItsClosingQuote)
{
    design top(nullptr);
    auto & hint = top.string("LPM_HINT", "");
    auto & a = top.integer("A", 0);
    auto & c = top.integer("C", 0);
    EXPECT_TRUE(top.init_param_list_from_string("LPM_HINT=\"A=5,B=6\",C=3", false));
    EXPECT_EQ(hint.get_value(), "A=5,B=6");
    EXPECT_EQ(a.get_value(), 5);
    EXPECT_EQ(c.get_value(), 0) << "what follows a hint is lost with it";
}

TEST_F(ParameterText, HintOfOnePairLeavesTheLastPairToTheText)
{
    design top(nullptr);
    auto & hint = top.string("LPM_HINT", "");
    auto & a = top.integer("A", 0);
    auto & b = top.integer("B", 0);
    EXPECT_TRUE(top.init_param_list_from_string("LPM_HINT=A=5,B=6", false));
    EXPECT_EQ(hint.get_value(), "A=5");
    EXPECT_EQ(a.get_value(), 5);
    EXPECT_EQ(b.get_value(), 6);
}

TEST_F(ParameterText, LastHintGetsTheCommaThatJoinsItWithNothing)
{
    design top(nullptr);
    auto & hint = top.string("LPM_HINT", "");
    EXPECT_TRUE(top.init_param_list_from_string("LPM_HINT=A=5", false));
    EXPECT_EQ(hint.get_value(), "A=5,");
}

TEST_F(ParameterText, EmptyHintIsPassedOver)
{
    design top(nullptr);
    auto & a = top.integer("A", 0);
    EXPECT_TRUE(top.init_param_list_from_string("LPM_HINT=,A=4", false));
    EXPECT_EQ(a.get_value(), 4);
    EXPECT_TRUE(top.init_param_list_from_string("LPM_HINT", false));
}

TEST_F(ParameterText, HintThatIsAParameterIgnoresUnknownNames)
{
    design known(nullptr);
    known.string("LPM_HINT", "");
    auto & b = known.integer("B", 0);
    EXPECT_TRUE(known.init_param_list_from_string("LPM_HINT=\"NOPE=5,B=6\",C=1", false));
    EXPECT_EQ(b.get_value(), 6);
    design unknown(nullptr);
    auto & lost = unknown.integer("B", 0);
    EXPECT_TRUE(unknown.init_param_list_from_string("LPM_HINT=\"NOPE=5,B=6\",C=1", false));
    EXPECT_EQ(lost.get_value(), 0);
}

TEST_F(ParameterText, HintAssignedByNameIsReadToo)
{
    design top(nullptr);
    auto & a = top.integer("A", 0);
    EXPECT_TRUE(top.assign_value_to_parameter("Lpm_Hint", "A=5"));
    EXPECT_EQ(a.get_value(), 5);
}

TEST_F(ParameterText, HintsInHintsOfAnyDepth)
{
    std::string text;
    for (int i = 0; i < 40000; ++i)
        text += "lpm_hint=";
    for (int i = 1000; i > 0; --i)
        text += "lpm_hint=B=" + std::to_string(i) + ",";
    text += "A=1";
    design top(nullptr);
    auto & a = top.integer("A", 0);
    auto & b = top.integer("B", 0);
    EXPECT_TRUE(top.init_param_list_from_string(text.c_str(), false));
    EXPECT_EQ(a.get_value(), 1);
    EXPECT_EQ(b.get_value(), 1) << "the innermost one is read last";
}

// Long texts

/// A text of `size` characters made of one piece leaves a generator that can be asked.
void expect_scanned(std::string const & piece, std::size_t size)
{
    std::string text;
    while (text.size() < size)
        text += piece;
    design top(nullptr);
    top.string("A", "").set_allow_all_values();
    auto & b = top.integer("B", 7);
    top.init_param_list_from_string(text.c_str(), true);
    bool const gives_b = piece.find("B=") != std::string::npos;
    EXPECT_EQ(b.get_value() != 7, gives_b) << piece;
}

TEST_F(ParameterText, TextsOfAMillionCharacters)
{
    for (char const * const piece : {"B=1,", "B=1,2,", "A=1;", ",", "=", "\"", " ", "x", "x=", "x,", "x,=",
                                     "lpm_hint=B=1,", "lpm_hint=B=1 ,", "lpm_hint=\"B=1,B=2\",", "B=\",", "=\" ,"})
        expect_scanned(piece, 1000000);
}

TEST_F(ParameterText, LongValueIsWhole)
{
    std::string value;
    for (int i = 0; i < 200000; ++i)
        value += (i ? "," : "") + std::to_string(i);
    EXPECT_EQ(scanned(("A=" + value + ",B=1").c_str(), false), "[" + value + "][1]- yes");
}

// Instance names

TEST_F(ParameterText, InstanceNameOfAPlainGenerator)
{
    design top(nullptr);
    design one(&top, "sub", "A=1,INAME=adder1,B=2");
    design two(&top, "sub", "iname_nochange=adder2");
    auto & a = one.integer("A", 0);
    auto & b = one.integer("B", 0);
    EXPECT_EQ(a.get_value() * 10 + b.get_value(), 12);
    two.initialize_param_list();
    EXPECT_EQ(one.get_instance_name(), "adder1");
    EXPECT_EQ(two.get_instance_name(), "adder2");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(ParameterText, InstanceNameOfAnArrayGetsASuffix)
{
    design top(nullptr);
    design marked(&top, "sub", "iname=adder", 4);
    design kept(&top, "sub", "iname_nochange=taken", 4);
    marked.initialize_param_list();
    kept.initialize_param_list();
    EXPECT_EQ(marked.get_instance_name(), "addera");
    EXPECT_EQ(kept.get_instance_name(), "taken");
}

TEST_F(ParameterText, InstanceNameThatIsTakenIsReportedAndReplaced)
{
    design top(nullptr);
    design one(&top, "sub", "iname=adder");
    design two(&top, "sub", "iname=Adder");
    one.initialize_param_list();
    two.initialize_param_list();
    EXPECT_EQ(one.get_instance_name(), "adder");
    EXPECT_EQ(two.get_instance_name(), "sd1");
    EXPECT_EQ(top.messages(),
              texts{error("Instance name Adder is already being specified as the instance name for generator top|sub "
                          "inst adder.",
                          "Same instance name has been used for multiple entries.",
                          "Use different instance names or do not specify the instance name and let lumenbox "
                          "auto-generate instance names.")});
}

TEST_F(ParameterText, EmptyInstanceNameIsNoName)
{
    design top(nullptr);
    design one(&top, "sub", "iname=");
    one.initialize_param_list();
    EXPECT_EQ(one.get_instance_name(), "sd1");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(ParameterText, MissingInstanceNameIsMade)
{
    design top(nullptr);
    design one(&top, "sub");
    design array(&top, "sub", "", 4);
    one.initialize_param_list();
    array.initialize_param_list();
    top.initialize_param_list();
    EXPECT_EQ(one.get_instance_name(), "sd1");
    EXPECT_EQ(array.get_instance_name(), "sd2a");
    EXPECT_EQ(top.get_instance_name(), "");
}

// One value

TEST_F(ParameterText, AssignmentByKind)
{
    design top(nullptr);
    auto & width = top.integer("WIDTH", 8);
    auto & mode = top.string("MODE", "FAST|SLOW", 0);
    auto & init = top.vector("INIT", 0, 8);
    EXPECT_TRUE(top.assign_value_to_parameter("width", "12"));
    EXPECT_TRUE(top.assign_value_to_parameter("Mode", "slow"));
    EXPECT_TRUE(top.assign_value_to_parameter("INIT", "0x2C"));
    EXPECT_FALSE(top.assign_value_to_parameter("NOPE", "1"));
    EXPECT_FALSE(top.assign_value_to_parameter("", "1"));
    EXPECT_EQ(width.get_value(), 12);
    EXPECT_EQ(mode.get_value(), "SLOW");
    EXPECT_EQ(init.get_value().uint(), 0x2cu);
}

TEST_F(ParameterText, IntegersAreReadFromTheFront)
{
    std::map<std::string, int> const read = {{"12ab", 12}, {"ab", 0},   {" \t7", 7}, {"+5", 5},
                                             {"+-5", 0},   {"0x10", 0}, {"", 0},     {"99999999999", 2147483647}};
    for (auto const & [text, value] : read) {
        design top(nullptr);
        auto & width = top.integer("WIDTH", 8);
        EXPECT_TRUE(top.assign_value_to_parameter("WIDTH", text));
        EXPECT_EQ(width.get_value(), value) << text;
    }
    design top(nullptr);
    auto & width = top.integer("WIDTH", 8);
    EXPECT_TRUE(top.assign_value_to_parameter("WIDTH", "-3"));
    EXPECT_EQ(width.get_value(), 8);
    EXPECT_TRUE(top.assign_value_to_parameter("WIDTH", "-99999999999"));
    EXPECT_EQ(width.get_value(), 8);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(ParameterText, NamesThatAreNoArrayElements)
{
    design top(nullptr);
    GNL_PARAMETER_INTEGER_ARRAY delay(&top, "DELAY", 1);
    for (std::string const name : {"DELAY", "3", "", "OTHER3", "DELAY3X", "ELAY3"})
        EXPECT_FALSE(top.assign_value_to_array_parameter(name, "1")) << name;
    EXPECT_TRUE(top.assign_value_to_array_parameter("delay03", "4"));
    EXPECT_EQ(delay[3].get_value(), 4);
}

TEST_F(ParameterText, ScalarComesBeforeTheArrayElement)
{
    design top(nullptr);
    GNL_PARAMETER_INTEGER_ARRAY delay(&top, "DELAY", 1);
    auto & scalar = top.integer("DELAY3", 2);
    EXPECT_TRUE(top.assign_value_to_parameter("DELAY3", "9"));
    EXPECT_EQ(scalar.get_value(), 9);
    EXPECT_EQ(delay[3].get_value(), 1);
}

TEST_F(ParameterText, ListOfAssignments)
{
    design top(nullptr);
    auto & width = top.integer("WIDTH", 8);
    auto & mode = top.string("MODE", "");
    auto & kept = top.integer("KEPT", 8);
    std::string entries[] = {"NOPE=1", "WI DTH = 1 2", "MODE=a=b = c d", "KEPT", ""};
    std::vector<char *> list;
    for (auto & entry : entries)
        list.push_back(entry.data());
    top.assign_parameter_values(list.data());
    top.assign_parameter_values(nullptr);
    EXPECT_EQ(width.get_value(), 12);
    EXPECT_EQ(mode.get_value(), "cd");
    EXPECT_EQ(kept.get_value(), 8);
}

} // namespace
