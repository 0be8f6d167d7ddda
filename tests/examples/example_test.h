#pragma once

// An example generator with one setting of its parameters, and what is tried with each: it is generated as Verilog,
// as VHDL and QHDL, compiled, linted and simulated against a model.

#include "qhdl/qhdl_reader.h"
#include "support.h"
#include "verilog_simulation.h"
#include "vhdl_simulation.h"

#include "lbx_plugin.h"

extern "C" lbx::plugin_contents const * lbx_plugin();

namespace example_test {

using namespace gnl_test;

inline std::unique_ptr<GNL_GENERATOR> make_example(std::string const & name, std::string const & text)
{
    for (auto const & entry : *lbx_plugin()->classes)
        if (entry.name == name)
            return entry.make(text.c_str());
    return nullptr;
}

inline std::string messages_of(GNL_GENERATOR & top)
{
    std::string all;
    top.reset_msg_list();
    while (top.move_to_next_msg())
        all += std::string(top.get_cur_msg()->get_msg_text()) + "\n";
    return all;
}

/// One example with one setting of its parameters.
struct example
{
    std::string name;
    std::string parameters;
    std::vector<pin> inputs;
    std::vector<pin> outputs;
    std::function<vector_of_pins(vector_of_pins const &)> model;
};

inline void PrintTo(example const & shown, std::ostream * out)
{
    *out << shown.name << " " << shown.parameters;
}

inline std::uint64_t mask(int width)
{
    return width >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << width) - 1;
}

/// Generates into the working folder; the test fails when a message was posted.
inline void generate_cleanly(example const & tried, std::string const & more = "", std::string const & extension = ".v")
{
    auto const top = make_example(tried.name, "LBX_FILE=" + tried.name + extension + "," + tried.parameters + more);
    ASSERT_NE(top, nullptr);
    for (auto const & input : tried.inputs) // those with a default too
        ASSERT_TRUE(top->set_port_to_used(input.name.c_str()));
    std::ostringstream stream;
    top->generate_subdesign(stream);
    EXPECT_EQ(top->generator_result(), 0);
    EXPECT_EQ(messages_of(*top), "");
}

/// Compares what `simulate` makes of every vector with the model.
template <class SIMULATE> void compare_with_the_model(example const & tried, SIMULATE simulate)
{
    unsigned const seed = test_seed();
    SCOPED_TRACE("LBX_TEST_SEED=" + std::to_string(seed));
    auto const stimulus = stimulus_for(tried.inputs, seed);
    auto const results = simulate(stimulus);
    for (std::size_t i = 0; i < stimulus.size(); ++i)
        ASSERT_EQ(results[i], tried.model(stimulus[i])) << "vector " << i;
}

/// Simulates the generated Verilog files.
inline void simulate_like_the_model(example const & tried, std::string const & files)
{
    compare_with_the_model(tried, [&](std::vector<vector_of_pins> const & stimulus) {
        return verilog_simulation(tried.name, tried.inputs, tried.outputs).run(files, stimulus);
    });
}

/// Simulates the generated VHDL files of the working folder: all of the subdesigns, then the design itself.
inline void simulate_vhdl_like_the_model(example const & tried)
{
    std::string const top_file = tried.name + ".vhd";
    std::string files;
    for (auto const & entry : fs::directory_iterator("."))
        if (entry.path().filename() != top_file)
            files += entry.path().filename().string() + " ";
    files += top_file;
    compare_with_the_model(tried, [&](std::vector<vector_of_pins> const & stimulus) {
        return vhdl_simulation(tried.name, tried.inputs, tried.outputs).run(files, top_file, stimulus);
    });
}

/// Translates the generated QHDL files of the working folder and simulates what comes out.
inline void simulate_qhdl_like_the_model(example const & tried)
{
    qhdl::reader designs;
    designs.add_folder(".");
    std::ofstream("translated.v") << designs.verilog();
    simulate_like_the_model(tried, "translated.v");
}

/// What the linter says about the generated files, "" when it is content.
inline std::string linted(example const & tried, std::string const & files)
{
    // -Wno-DECLFILENAME: the file's name is the caller's choice.
    // -Wno-UNUSED: a carry or shifted-out bit that nobody reads is part of a regular structure.
    // -Wno-PINMISSING: an output that nobody reads is left out of its instance.
    // -Wno-TIMESCALEMOD: only generated files set a time scale.
    auto const result = run_command(
        "verilator --lint-only -Wall -Wno-DECLFILENAME -Wno-UNUSED -Wno-PINMISSING -Wno-TIMESCALEMOD --top-module "
        + tried.name + " " + files);
    return result.status == 0 ? "" : result.text;
}

} // namespace example_test
