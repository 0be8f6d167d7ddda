// Every example means the same in all three hardware languages, with several settings of its parameters.

#include "examples/example_test.h"
#include "proof_test.h"

#include <set>
#include <utility>
#include <vector>

using namespace gnl_test;
using example_test::make_example;
using lbx_proof::design_text;
using lbx_proof::question;
using lbx_proof::verdict;
using language = lbx_proof::design_text::language;

namespace {

using setting = std::pair<char const *, char const *>; ///< example and its parameters

setting const settings[] = {
    {"array_multiplier", "WIDTH=2"},
    {"array_multiplier", "WIDTH=5"},
    {"barrel_rotator", "LOG2_WIDTH=1"},
    {"barrel_rotator", "LOG2_WIDTH=3"},
    {"binary_to_gray", "WIDTH=1"},
    {"binary_to_gray", "WIDTH=13"},
    {"carry_select_adder", "WIDTH=8,BLOCK=3"},
    {"carry_select_adder", "WIDTH=16,BLOCK=4"},
    {"crc_step", "WIDTH=8,DATA_WIDTH=1,POLYNOMIAL=7"},
    {"crc_step", "WIDTH=16,DATA_WIDTH=8,POLYNOMIAL=4129"},
    {"crossbar", "WIDTH=1,OUTPUTS=3"},
    {"crossbar", "WIDTH=3,SELECT_WIDTH=2"},
    {"decoder", "ADDRESS_WIDTH=1"},
    {"decoder", "ADDRESS_WIDTH=4"},
    {"gray_to_binary", "WIDTH=2"},
    {"gray_to_binary", "WIDTH=13"},
    {"parity_tree", "WIDTH=1"},
    {"parity_tree", "WIDTH=9"},
    {"population_counter", "WIDTH=1"},
    {"population_counter", "WIDTH=6"},
    {"population_counter", "WIDTH=15"},
    {"ripple_carry_adder", "WIDTH=1"},
    {"ripple_carry_adder", "WIDTH=12"},
    {"sorting_network", "COUNT=2,WIDTH=1"},
    {"sorting_network", "COUNT=4,WIDTH=3"},
};

class ExampleEquivalence : public proof_test
{
protected:
    /// Generates with all inputs as pins; the folder of its files.
    static fs::path generate(setting const & with, std::size_t index, std::string const & extension)
    {
        auto const folder = "design" + std::to_string(index) + "_" + extension.substr(1);
        fs::create_directory(folder);
        auto const top = make_example(with.first, "LBX_OUTPUT_DIRECTORY=" + folder + ",LBX_FILE=" + with.first
                                                      + extension + "," + with.second);
        std::map<std::string, GNL_PORT *, LESS_C_STRING> ports;
        top->get_port_objects(ports);
        for (auto const & port : ports)
            if (port.second->is_input())
                top->set_port_to_used(port.first.c_str());
        std::ostringstream stream;
        top->generate_subdesign(stream);
        EXPECT_EQ(example_test::messages_of(*top), "") << with.first << " " << with.second;
        return folder;
    }

    static design_text text(setting const & with, fs::path const & folder, std::string const & extension)
    {
        return {extension == ".vhd" ? language::vhdl : language::verilog, files_with(folder, extension), with.first};
    }

    static design_text translated(setting const & with, fs::path const & folder)
    {
        qhdl::reader designs;
        designs.add_folder(folder);
        std::ofstream(folder / "translated.v") << designs.verilog();
        return text(with, folder, ".v");
    }
};

TEST_F(ExampleEquivalence, AllLanguagesMeanTheSame)
{
    std::vector<question> questions;
    for (std::size_t i = 0; i < std::size(settings); ++i) {
        setting const & with = settings[i];
        auto const name = std::string(with.first) + " " + with.second;
        auto const verilog = text(with, generate(with, i, ".v"), ".v");
        questions.push_back({name + " VHDL", verilog, text(with, generate(with, i, ".vhd"), ".vhd")});
        questions.push_back({name + " QHDL", verilog, translated(with, generate(with, i, ".tdf"))});
    }
    expect_equal(questions);
}

/// The bus adapter drives a bidirectional pad, which the proof cannot judge: its tests simulate it.
TEST_F(ExampleEquivalence, NoOtherExampleIsLeftOut)
{
    std::set<std::string> proven{"bus_adapter"}, all;
    for (setting const & each : settings)
        proven.insert(each.first);
    for (auto const & entry : *lbx_plugin()->classes)
        all.insert(entry.name);
    EXPECT_EQ(proven, all);
}

} // namespace
