// Whole files of the ways in which a run departs from one module for each design: black boxes, wrappers, side files,
// gates instead of expressions, parameters from above.

#include "golden_designs.h"
#include "golden_run.h"

using namespace gnl_test;

namespace {

using GoldenFiles = in_folder;

/// A stage, which a run may box, and an inverter behind it.
std::unique_ptr<design> boxes_design(std::string const & options)
{
    auto top = std::make_unique<design>(nullptr, "top", ("LBX_FILE=top.v," + options).c_str());
    auto & d = top->input("d", 4);
    auto & q = top->output("q", 4);
    top->body = [&](design & of) {
        auto & first = stage(of, "u1", 4, 1);
        auto & second = of.child("inv", "u2");
        auto & in = second.input("d", 4);
        auto & out = second.output("q", 4);
        second.body = [&](design &) { out = ~in; };
        first.port("d") = d;
        in = first.port("q");
        q = out;
    };
    return top;
}

/// A library unit: it has no body of its own.
class unit : public GNL_GENERATOR
{
public:
    unit(GNL_GENERATOR * parent, std::string const & instance)
        : GNL_GENERATOR(parent, "unit")
        , d(this, "d", 4)
        , en(this, "en")
        , q(this, "q", 4)
        , spare(this, "spare")
        , depth(this, "DEPTH", 1)
    {
        en.set_default_port_value(1);
        set_instance_name(instance);
    }

    GNL_PORT_INPUT d, en;
    GNL_PORT_OUTPUT q, spare;
    GNL_PARAMETER_INTEGER depth;
};

/// A level that holds a cell whose parameters are given further up.
void cell_with_inherited_parameters(design & middle)
{
    auto & cell = *new GNL_PRIMITIVE(&middle, "fir", "iname=u_fir");
    auto & in = *cell.add_input_port_to_primitive("d", 4, -1);
    auto & out = *cell.add_output_port_to_primitive("q", 4, -1);
    auto & rate = *cell.add_integer_parameter_to_primitive("RATE");
    rate.set_as_inherit_allowed();
    auto & mode = *cell.add_string_parameter_to_primitive("MODE");
    mode.set_as_inherit_allowed();
    *cell.add_integer_parameter_to_primitive("SIZE") = 4;
    in = middle.port("d");
    middle.port("q") = out;
}

} // namespace

TEST_F(GoldenFiles, ABoxOfAList)
{
    EXPECT_TRUE(writes_golden(*boxes_design("LBX_BLACKBOX_LIST=Stage"), "listed_box.v"));
}

TEST_F(GoldenFiles, ABoxOfAFile)
{
    std::ofstream("boxes.txt") << "other\r\nSTAGE\r\n";
    EXPECT_TRUE(writes_golden(*boxes_design("LBX_BLACKBOX_LIST=boxes.txt"), "listed_box.v"));
}

TEST_F(GoldenFiles, AutomaticBoxes)
{
    EXPECT_TRUE(writes_golden(*boxes_design("LBX_AUTO_BLACKBOX=ON"), "automatic_boxes.v"));
}

TEST_F(GoldenFiles, AWrapperAroundALibraryUnit)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & d = top.input("d", 4);
    auto & q = top.output("q", 4);
    top.body = [&](design &) {
        auto & part = *new unit(&top, "u");
        part.depth = 3;
        part.d = d;
        q = part.q;
    };
    EXPECT_TRUE(writes_golden(top, "wrapper.v"));
}

TEST_F(GoldenFiles, AVerilogSideFileOfAQhdlRun)
{
    auto const top = flat_design("LBX_FILE=top.tdf");
    top->set_qhdl_not_supported();
    EXPECT_TRUE(writes_golden(*top, "side_file.v"));
    EXPECT_FALSE(fs::exists("top.tdf"));
}

TEST_F(GoldenFiles, GatesInsteadOfExpressions)
{
    design top(nullptr, "top", "LBX_FILE=top.v,LBX_STRUCTURAL_NETLIST=ON");
    auto & a = top.input("a", 2);
    auto & b = top.input("b", 2);
    auto & s = top.input("s");
    auto & y = top.output("y", 2);
    auto & z = top.output("z");
    top.body = [&](design &) {
        y = (a & b) | s;
        z = !s;
    };
    EXPECT_TRUE(writes_golden(top, "gates.v"));
}

TEST_F(GoldenFiles, ParametersFromAbove)
{
    design top(nullptr, "top", "LBX_FILE=top.v,RATE=48,MODE=SLOW,COEF2=5,COEF0=3,WORD1=Late");
    auto & d = top.input("d", 4);
    auto & q = top.output("q", 4);
    top.integer("RATE", 44);
    top.string("MODE", "FAST|SLOW", 0);
    GNL_PARAMETER_INTEGER_ARRAY const given_numbers(&top, "COEF", -1);
    GNL_PARAMETER_STRING_ARRAY const given_words(&top, "WORD", "", -1);
    std::unique_ptr<GNL_PARAMETER_INTEGER_ARRAY> numbers;
    std::unique_ptr<GNL_PARAMETER_STRING_ARRAY> words;
    top.body = [&](design &) {
        auto & middle = top.child("middle", "u");
        auto & in = middle.input("d", 4);
        auto & out = middle.output("q", 4);
        middle.body = [&](design & of) {
            cell_with_inherited_parameters(of);
            std::map<std::string, GNL_GENERATOR *, LESS_C_STRING> cells;
            of.get_subdesign_generator_objects(cells);
            numbers = std::make_unique<GNL_PARAMETER_INTEGER_ARRAY>(cells.at("u_fir"), "COEF", -1);
            words = std::make_unique<GNL_PARAMETER_STRING_ARRAY>(cells.at("u_fir"), "WORD", "", -1);
        };
        in = d;
        q = out;
    };
    EXPECT_TRUE(writes_golden(top, "parameters_from_above.v"));
}
