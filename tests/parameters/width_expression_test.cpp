// The small language in which port and vector widths are written.

#include "support.h"

namespace {

using namespace gnl_test;

class WidthExpression : public in_folder
{
protected:
    int value_of(char const * text) { return top.evaluate_port_width_expression(text); }

    design top{nullptr};
};

TEST_F(WidthExpression, OperatorsBindAsUsual)
{
    std::map<std::string, int> const values = {
        {"2+3*4", 14},   {"(2+3)*4", 20}, {"10-2-3", 5},    {"7/2", 3},
        {"100/10/5", 2}, {"2*3+4*5", 26}, {"((7))", 7},     {"8-(3-2)", 7},
        {"0", 0},        {"3-5", -2},     {"(3-10)/2", -3}, {"1 + \t2\n", 3},
        {"2*(3+4)", 14}, {"9/2*2", 8},    {"007", 7},       {"2147483647", 2147483647},
    };
    for (auto const & [text, value] : values)
        EXPECT_EQ(value_of(text.c_str()), value) << text;
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(WidthExpression, SyntaxErrorsGiveMinusOneAndNoMessage)
{
    top.integer("WIDTH", 8);
    for (auto const * text : {"", " ", "WIDTH+", "WIDTH WIDTH", "2 3", "-1", "+1", "(2", "2)", "()", "2**3", "2(3)",
                              ")", "(", "*", "2+*3", "$"})
        EXPECT_EQ(value_of(text), -1) << text;
    EXPECT_EQ(value_of(nullptr), -1);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(WidthExpression, DivisionByZeroAndOverflowGiveMinusOne)
{
    for (auto const * text :
         {"1/0", "4/(2-2)", "2147483647+1", "65536*65536", "2147483648", "0-2147483647-2", "(0-2147483647-1)/(0-1)"})
        EXPECT_EQ(value_of(text), -1) << text;
}

TEST_F(WidthExpression, NamesAreIntegerParametersInAnyCase)
{
    top.integer("WIDTH", 8);
    top.integer("1a", 3);
    top.integer("X", 5);
    top.integer("a_1", 6);
    EXPECT_EQ(value_of("width*2+1"), 17);
    EXPECT_EQ(value_of("1a"), 3);
    EXPECT_EQ(value_of("a_1"), 6);
    EXPECT_EQ(value_of("_X"), 5);    // a name does not begin with "_", which is passed over
    EXPECT_EQ(value_of("12_"), 12);  // nor does "_" belong to a number
    EXPECT_EQ(value_of("2.*#3"), 6); // foreign characters do not count
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(WidthExpression, AMissingNameIsReportedAndReadsMinusOne)
{
    top.string("MODE", "A|B", 0);
    EXPECT_EQ(value_of("NONE+3"), 2);
    EXPECT_EQ(value_of("MODE"), -1);
    auto const cause = "The parameter object does not exist or is of a different parameter type.";
    auto const action = "Lumen box parameter names are case insensitive. Check for spelling mistakes or for the use of "
                        "incorrect accessor functions (using parameter_integer () function for a string parameter or "
                        "vice versa).";
    EXPECT_EQ(top.messages(), (texts{error("No integer parameter object NONE exists in top", cause, action),
                                     error("No integer parameter object MODE exists in top", cause, action)}));
}

TEST_F(WidthExpression, NamesBeforeAnErrorAreRead)
{
    EXPECT_EQ(value_of("NONE+"), -1);
    EXPECT_EQ(top.messages().size(), 1U);
}

TEST_F(WidthExpression, DeepNestingIsNoDanger)
{
    for (std::size_t depth : {1000U, 1000000U}) {
        auto const text = std::string(depth, '(') + "5" + std::string(depth, ')');
        auto const value = value_of(text.c_str());
        EXPECT_TRUE(value == 5 || (depth > 1000 && value == -1)) << depth;
        EXPECT_EQ(value_of(std::string(depth, '(').c_str()), -1);
    }
    std::string sum = "1";
    for (int i = 0; i < 100000; ++i)
        sum += "+1";
    EXPECT_EQ(value_of(sum.c_str()), 100001);
}

using found_map = std::map<std::string, int, LESS_C_STRING>;

TEST_F(WidthExpression, DefaultsOfTheNamesInATextAreCollected)
{
    top.integer("WIDTH", 8);
    top.integer("DEPTH", 4);
    top.integer("OPEN");
    top.string("MODE", "A|B", 0);
    found_map found;
    EXPECT_TRUE(top.check_expression_for_width_parameters("width", found));
    EXPECT_EQ(found.size(), 1U);
    EXPECT_EQ(found["WIDTH"], 8);
    found.clear();
    EXPECT_TRUE(top.check_expression_for_width_parameters("2*WIDTH + DEPTH-OPEN\\MODE", found));
    EXPECT_EQ(found, (found_map{{"WIDTH", 8}, {"DEPTH", 4}}));
}

TEST_F(WidthExpression, TextsWithoutAUsableDefaultAnswerFalse)
{
    top.integer("OPEN");
    top.integer("WIDTH", 8);
    top.string("MODE", "A|B", 0);
    found_map found;
    for (auto const * text :
         {"OPEN", "MODE", "", "OPEN+3", "(WIDTH)", "WIDTH/2"}) // "(", ")" and "/" are part of a name
        EXPECT_FALSE(top.check_expression_for_width_parameters(text, found)) << text;
    EXPECT_EQ(found, found_map{});
    EXPECT_EQ(top.messages(), texts{});
}

} // namespace
