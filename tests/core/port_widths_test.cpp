// The widths of pins from their expressions.

#include "support.h"

#include <map>
#include <sstream>

namespace {

using namespace gnl_test;

class PortWidths : public in_folder
{
protected:
    static std::string invalid(std::string const & expression, std::string const & port)
    {
        return error("Invalid parameter " + expression + " is used to specify the width of port " + port + ".",
                     "The parameter is being used to specify the width of a port. However the parameter does not exist "
                     "or is a string parameter (only integer parameters can be used to specify widths of ports).",
                     "Use a valid integer parameter name to specify port widths.");
    }
    static std::string missing(std::string const & parameter)
    {
        return error("No integer parameter object " + parameter + " exists in top",
                     "The parameter object does not exist or is of a different parameter type.",
                     "Lumen box parameter names are case insensitive. Check for spelling mistakes or for the use of "
                     "incorrect accessor functions (using parameter_integer () function for a string parameter or vice "
                     "versa).");
    }
};

TEST_F(PortWidths, ComeFromExpressionsForAllPins)
{
    design top(nullptr);
    top.integer("WIDTH", 6);
    GNL_PORT_INPUT a(&top, "a", "WIDTH");
    GNL_PORT_OUTPUT y(&top, "y", "2*(WIDTH+1)");
    GNL_PORT_BIDIR io(&top, "io", "WIDTH/2");
    GNL_PORT_INPUT fixed(&top, "fixed", 3);
    EXPECT_EQ(a.get_width(), 6);
    EXPECT_EQ(y.get_width(), 14);
    EXPECT_EQ(y.get_original_width(), 14);
    EXPECT_EQ(io.get_width(), 3);
    EXPECT_EQ(fixed.get_width(), 3);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(PortWidths, MultiplyWithTheSecondDimension)
{
    design top(nullptr);
    top.integer("WIDTH", 6);
    top.integer("ROWS", 4);
    GNL_PORT_INPUT a(&top, "a", "WIDTH", "ROWS");
    EXPECT_EQ(a.get_width(), 24);
    EXPECT_EQ(a.get_original_width(), 24);
}

TEST_F(PortWidths, StayWhenTheExpressionHasNoValue)
{
    design top(nullptr);
    top.string("TEXT", "ON|OFF", 0);
    GNL_PORT_INPUT a(&top, "a", "NOWHERE", "ALSO_NOWHERE");
    GNL_PORT_INPUT b(&top, "b", "TEXT");
    EXPECT_EQ(a.get_width(), 0);
    EXPECT_EQ(b.get_width(), 0);
    EXPECT_EQ(top.messages(),
              (texts{missing("NOWHERE"), invalid("NOWHERE", "top|a"), missing("TEXT"), invalid("TEXT", "top|b")}));
}

TEST_F(PortWidths, StayOneDimensionalWhenTheSecondHasNoValue)
{
    design top(nullptr);
    top.integer("WIDTH", 6);
    GNL_PORT_INPUT a(&top, "a", "WIDTH", "NOWHERE");
    EXPECT_EQ(a.get_width(), 6);
    EXPECT_EQ(top.messages(), (texts{missing("NOWHERE"), invalid("NOWHERE", "top|a")}));
}

TEST_F(PortWidths, StayOneDimensionalWhenTheProductIsTooLarge)
{
    design top(nullptr);
    top.integer("WIDTH", 100000);
    GNL_PORT_INPUT a(&top, "a", "WIDTH", "WIDTH");
    EXPECT_EQ(a.get_width(), 100000);
    EXPECT_EQ(top.messages(), texts{invalid("WIDTH", "top|a")});
}

TEST_F(PortWidths, FollowAnExpressionThatAnOutputWasGivenLater)
{
    design top(nullptr);
    top.integer("WIDTH", 6);
    GNL_PORT_OUTPUT y(&top, "y", 2);
    y.set_width_parameter_name("WIDTH");
    EXPECT_EQ(y.get_width(), 6);
}

TEST_F(PortWidths, MultiplyWithTheArrayOnce)
{
    design top(nullptr);
    design arr(&top, "cell", "", 4);
    arr.integer("WIDTH", 6);
    GNL_PORT_INPUT a(&arr, "a", "WIDTH");
    GNL_PORT_INPUT s(&arr, "s");
    EXPECT_EQ(a.get_width(), 24);
    EXPECT_EQ(a.get_original_width(), 6);
    EXPECT_EQ(s.get_width(), 4);
    EXPECT_EQ(s.get_original_width(), 0);
}

/// A design whose ports have no width before its parameters are read, and that nothing connects.
struct open_design : design
{
    explicit open_design(char const * text)
        : design(nullptr, "top", text)
        , y(this, "y", "WIDTH")
    {
        integer("WIDTH", 6);
        y.set_used();
    }
    GNL_PORT_OUTPUT y;
};

TEST_F(PortWidths, AreSettledForADesignThatConnectsNothing)
{
    for (auto const & [file, line] : std::map<std::string, std::string>{
             {"top.v", "\toutput   [5:0]  y;\n"}, {"top.vhd", " y\t:\tOUT  STD_LOGIC_VECTOR (5 DOWNTO 0)\n"}}) {
        open_design top(("LBX_FILE=" + file).c_str());
        top.run();
        EXPECT_NE(file_text(file).find(line), std::string::npos) << file_text(file);
    }
}

TEST_F(PortWidths, AreSettledForABodyThatIsGivenUpBeforeItConnects)
{
    for (auto const & [file, line] : std::map<std::string, std::string>{
             {"top.v", "\toutput   [5:0]  y;\n"}, {"top.vhd", " y\t:\tOUT  STD_LOGIC_VECTOR (5 DOWNTO 0)\n"}}) {
        open_design top(("LBX_FILE=" + file).c_str());
        top.run([](design & self) {
            self.post_error_msg("no");
            self.exit_if_error();
        });
        EXPECT_NE(file_text(file).find(line), std::string::npos) << file_text(file);
    }
}

TEST_F(PortWidths, AreSettledForAWrapper)
{
    struct wrapped : GNL_GENERATOR
    {
        explicit wrapped(char const * text)
            : GNL_GENERATOR(nullptr, "blk", text)
            , WIDTH(this, "WIDTH", 6)
            , y(this, "y", "WIDTH")
        {
            y.set_used();
        }
        GNL_PARAMETER_INTEGER WIDTH;
        GNL_PORT_OUTPUT y;
    };
    for (auto const & [file, line] : std::map<std::string, std::string>{
             {"top.v", "\toutput [5:0]  y;\n"}, {"top.vhd", "\t\ty\t:\tOUT  STD_LOGIC_VECTOR(5 DOWNTO 0)\n"}}) {
        wrapped top(("LBX_FILE=" + file).c_str());
        std::ostringstream stream;
        top.generate_subdesign(stream);
        EXPECT_NE(file_text(file).find(line), std::string::npos) << file_text(file);
    }
}

} // namespace
