// Whole designs in an outside VHDL tool: it reads them, and they do there what their Verilog does in another tool.

#include "tool_designs.h"
#include "vhdl_simulation.h"

using namespace gnl_test;

namespace {

/// One design with its pins.
struct tried
{
    std::string name;
    std::unique_ptr<design> (*make)(std::string const & text);
    std::string options;
    std::vector<pin> inputs;
    std::vector<pin> outputs;
};

void PrintTo(tried const & shown, std::ostream * out)
{
    *out << shown.name;
}

/// A model of the cell "blk".
std::string cell_entity()
{
    return "library ieee;\n"
           "use ieee.std_logic_1164.all;\n"
           "entity blk is\n"
           "  generic (Depth : natural := 1; lpm_hint : string := \"UNUSED\"; lpm_type : string := \"blk\");\n"
           "  port (a : in std_logic_vector(3 downto 0); ena : in std_logic := '1'; o, spare : out std_logic);\n"
           "end blk;\n"
           "architecture model of blk is\n"
           "begin\n"
           "  o <= a(0) and a(1) and a(2) and a(3) and ena;\n"
           "  spare <= a(0) xor a(1) xor a(2) xor a(3);\n"
           "end model;\n";
}

/// Scalars and buses of one bit on all sides, and everything that lies in one bit.
std::unique_ptr<design> one_bit_design(std::string const & text)
{
    auto top = std::make_unique<design>(nullptr, "top", text.c_str());
    auto & a = top->input("a", 4);
    auto & s = top->input("s");
    auto & v = top->input("v", 1);
    auto & y = top->output("y", 12);
    auto & b = top->output("b");
    auto & c = top->output("c", 1);
    auto & d = top->output("d", 1);
    auto & e = top->output("e");
    top->body = [&](design & of) {
        auto & leaf = of.child("leaf", "u");
        auto const declare = [](design & made) {
            made.input("i");
            made.input("j", 1);
            made.output("p");
            made.output("q", 1);
        };
        declare(leaf);
        auto const body = [](design & made) {
            made.port("p") = !made.port("j");
            made.port("q") = made.port("i") ^ made.port("j");
        };
        leaf.body = body;
        auto & arr = of.child("leaf", "arr", "", 2);
        declare(arr);
        arr.declare_slice = declare;
        arr.body = body;
        leaf.port("i") = v;
        leaf.port("j") = s;
        arr[0].port("i") = a[1];
        arr[0].port("j") = leaf.port("p");
        arr[1].port("i") = leaf.port("q");
        arr[1].port("j") = a[2] & s;
        b = v & a[0];
        c = s | v;
        d[0] = a[3];
        e[0] = v;
        y[0] = leaf.port("p");
        y[1] = leaf.port("q");
        y[2] = arr[0].port("p");
        y[3] = arr[0].port("q");
        y[4] = arr[1].port("p") & arr[1].port("q");
        y[5] = !v;
        y[6] = !s ^ v;
        y[7] = 1;
        y.range(11, 8) = (a & v) ^ !s;
    };
    return top;
}

/// Drivers that are narrower than what they drive, one bit each.
std::unique_ptr<design> spread_design(std::string const & text)
{
    auto top = std::make_unique<design>(nullptr, "top", text.c_str());
    auto & a = top->input("a", 4);
    auto & s = top->input("s");
    auto & v = top->input("v", 1);
    auto & p = top->output("p", 3);
    auto & q = top->output("q", 3);
    auto & r = top->output("r", 3);
    auto & y = top->output("y", 6);
    top->body = [&](design & of) {
        auto & net = of.wire("", 3);
        auto & leaf = of.child("leaf", "u", "", 2);
        auto const declare = [](design & made) {
            made.input("i", 3);
            made.input("j");
            made.input("k", 3);
            made.output("q", 3);
        };
        declare(leaf);
        leaf.declare_slice = declare;
        leaf.body = [](design & made) { made.port("q") = (made.port("i") & made.port("j")) ^ made.port("k"); };
        p = v;
        q = a[2];
        net = s & v;
        r = net;
        leaf.port("i") = a.range(3, 1);
        leaf.port("j") = !s;
        leaf.port("k") = (s, v, a[0]);
        y = leaf.port("q");
    };
    return top;
}

/// Constants of all widths, and inputs that fall back to their defaults.
std::unique_ptr<design> constants_design(std::string const & text)
{
    auto top = std::make_unique<design>(nullptr, "top", text.c_str());
    auto & x = top->input("x", 4);
    auto & y = top->output("y", 4);
    auto & z = top->output("z", 8);
    auto & w = top->output("w", 33);
    auto & open = top->input("local", 2, 1);
    top->body = [&](design & of) {
        auto const make = [&](std::string const & instance, int slices) -> design & {
            auto & leaf = of.child("leaf", instance, "", slices);
            leaf.input("a", 4);
            leaf.input("b");
            leaf.input("c", 1);
            leaf.output("q", 4);
            leaf.body = [](design & made) { made.port("q") = (made.port("a") & made.port("b")) | made.port("c"); };
            return leaf;
        };
        auto & one = make("one", 0);
        auto & two = make("two", 2);
        auto & three = make("three", 1);
        one.port("a") = 6;
        one.port("b") = 1;
        one.port("c") = 0;
        two.port("a") = 0x5a;
        two.port("b") = 2;
        two.port("c") = 0;
        three.port("a") = 15;
        three.port("b") = 1;
        three.port("c") = 0;
        y = (one.port("q") ^ x) & three.port("q");
        z = two.port("q") ^ (open, x, open);
        w = 0;
    };
    return top;
}

std::vector<tried> all_designs()
{
    std::string const all_wires = ",LBX_REMOVE_OPTIONAL_WIRES=OFF";
    std::vector<pin> const flat_in{{"a", 4}, {"b", 4}, {"sel", 1}}, flat_out{{"y", 4}, {"z", 1}};
    std::vector<pin> const bit_in{{"a", 4}, {"s", 1}, {"v", 1}};
    std::vector<pin> const bit_out{{"y", 12}, {"b", 1}, {"c", 1}, {"d", 1}, {"e", 1}};
    std::vector<pin> const spread_out{{"p", 3}, {"q", 3}, {"r", 3}, {"y", 6}};
    return {{"flat", flat_design, "", flat_in, flat_out},
            {"flat_with_all_wires", flat_design, all_wires, flat_in, flat_out},
            {"two_level", two_level_design, "", {{"d", 4}, {"en", 1}}, {{"q", 4}, {"full", 1}}},
            {"array", array_design, "", {{"d", 6}, {"en", 1}}, {{"q", 6}, {"x", 1}, {"y", 1}}},
            {"ties", ties_design, "", {{"a", 4}}, {{"y", 1}}},
            {"one_bit", one_bit_design, "", bit_in, bit_out},
            {"one_bit_with_all_wires", one_bit_design, all_wires, bit_in, bit_out},
            {"spread", spread_design, "", bit_in, spread_out},
            {"spread_with_all_wires", spread_design, all_wires, bit_in, spread_out},
            {"constants", constants_design, "", {{"x", 4}}, {{"y", 4}, {"z", 8}, {"w", 33}}}};
}

void generate(tried const & of, std::string const & file)
{
    auto const top = of.make("LBX_FILE=" + file + of.options);
    top->run();
    ASSERT_EQ(top->messages(), texts{});
}

class VhdlTools : public in_folder_with_parameter<tried>
{
};

using VhdlReading = in_folder;

} // namespace

TEST_P(VhdlTools, DoesWhatTheVerilogDoes)
{
    SKIP_WITHOUT("ghdl");
    SKIP_WITHOUT("iverilog");
    auto const & of = GetParam();
    unsigned const seed = test_seed();
    SCOPED_TRACE("LBX_TEST_SEED=" + std::to_string(seed));
    auto const stimulus = stimulus_for(of.inputs, seed);
    ASSERT_NO_FATAL_FAILURE(generate(of, "top.v"));
    std::ofstream("blk.v") << "`timescale 1 ps / 1 ps\n" << cell_model();
    auto const expected = verilog_simulation("top", of.inputs, of.outputs).run("top.v blk.v", stimulus);
    ASSERT_NO_FATAL_FAILURE(generate(of, "top.vhd"));
    std::ofstream("blk.vhd") << cell_entity();
    auto const found = vhdl_simulation("top", of.inputs, of.outputs).run("blk.vhd top.vhd", "top.vhd", stimulus);
    for (std::size_t i = 0; i < stimulus.size(); ++i)
        ASSERT_EQ(found[i], expected[i]) << "vector " << i << "\n" << file_text("top.vhd");
}

INSTANTIATE_TEST_SUITE_P(Designs, VhdlTools, ::testing::ValuesIn(all_designs()),
                         [](auto const & of) { return of.param.name; });

/// Analysed and elaborated: a pad that nobody drives from outside has no value to compare.
TEST_F(VhdlReading, OfBidirectionalPorts)
{
    SKIP_WITHOUT("ghdl");
    auto const top = bidir_design("LBX_FILE=top.vhd");
    top->run();
    ASSERT_EQ(top->messages(), texts{});
    auto const result = run_command("ghdl -a --std=93c top.vhd && ghdl -e --std=93c top");
    EXPECT_EQ(result.status, 0) << result.text << file_text("top.vhd");
    EXPECT_EQ(result.text, "");
}
