#pragma once

// Runs a combinational Verilog module in Icarus Verilog on given vectors.

#include "outside_tools.h"

#include <cstdint>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace gnl_test {

/// A pin of the simulated module; at most 64 bits.
struct pin
{
    std::string name;
    int width;
};

using vector_of_pins = std::map<std::string, std::uint64_t>;

inline std::string binary(std::uint64_t value, int width)
{
    std::string digits;
    for (int bit = width - 1; bit >= 0; --bit)
        digits += (value >> bit) & 1U ? '1' : '0';
    return digits;
}

/// Simulates `module` and answers the outputs for each vector of inputs. Files are made in the working folder. Throws
/// with the tool's words when something does not compile or run; an output that is not 0 or 1 is an error too.
class verilog_simulation
{
public:
    verilog_simulation(std::string module, std::vector<pin> inputs, std::vector<pin> outputs)
        : m_module(std::move(module))
        , m_inputs(std::move(inputs))
        , m_outputs(std::move(outputs))
    {
    }

    std::vector<vector_of_pins> run(std::string const & files, std::vector<vector_of_pins> const & stimulus) const
    {
        write_stimulus(stimulus);
        write_bench(stimulus.size());
        auto const compiled = run_command("iverilog -g2005 -o bench.vvp bench.v " + files);
        if (compiled.status != 0)
            throw std::runtime_error("iverilog: " + compiled.text);
        auto const simulated = run_command("vvp -n bench.vvp");
        if (simulated.status != 0)
            throw std::runtime_error("vvp: " + simulated.text);
        return read_results(simulated.text, stimulus.size());
    }

private:
    void write_stimulus(std::vector<vector_of_pins> const & stimulus) const
    {
        std::ofstream out("stimulus.txt");
        for (auto const & values : stimulus) {
            for (auto const & input : m_inputs)
                out << binary(values.at(input.name), input.width);
            out << "\n";
        }
    }

    void write_bench(std::size_t count) const
    {
        int bits = 0;
        for (auto const & input : m_inputs)
            bits += input.width;
        std::ofstream out("bench.v");
        out << "`timescale 1 ps / 1 ps\nmodule bench;\n  reg [" << bits - 1 << ":0] stimulus [0:" << count - 1
            << "];\n  reg [" << bits - 1 << ":0] v;\n  integer i;\n";
        for (auto const & output : m_outputs)
            out << "  wire [" << output.width - 1 << ":0] " << output.name << ";\n";
        out << "  " << m_module << " dut (";
        int high = bits - 1;
        std::string separator;
        for (auto const & input : m_inputs) {
            out << separator << "." << input.name << "(v[" << high << ":" << high - input.width + 1 << "])";
            high -= input.width;
            separator = ", ";
        }
        std::string all;
        for (auto const & output : m_outputs) {
            out << separator << "." << output.name << "(" << output.name << ")";
            separator = ", ";
            all += (all.empty() ? "" : ", ") + output.name;
        }
        out << ");\n  initial begin\n    $readmemb(\"stimulus.txt\", stimulus);\n    for (i = 0; i < " << count
            << "; i = i + 1) begin\n      v = stimulus[i];\n      #10 $display(\"%b\", {" << all
            << "});\n    end\n    $finish;\n  end\nendmodule\n";
    }

    std::vector<vector_of_pins> read_results(std::string const & text, std::size_t count) const
    {
        std::vector<vector_of_pins> results;
        std::istringstream lines(text);
        std::string line;
        while (results.size() < count && std::getline(lines, line)) {
            if (line.find_first_not_of("01") != std::string::npos)
                throw std::runtime_error("output is not all 0 and 1: " + line);
            vector_of_pins values;
            std::size_t at = 0;
            for (auto const & output : m_outputs) {
                values[output.name] = std::stoull(line.substr(at, static_cast<std::size_t>(output.width)), nullptr, 2);
                at += static_cast<std::size_t>(output.width);
            }
            results.push_back(values);
        }
        if (results.size() != count)
            throw std::runtime_error("the simulation ended early: " + text);
        return results;
    }

    std::string m_module;
    std::vector<pin> m_inputs;
    std::vector<pin> m_outputs;
};

/// The seed of a randomised test: LBX_TEST_SEED, else a fresh one. Tests print it.
inline unsigned test_seed()
{
    char const * given = std::getenv("LBX_TEST_SEED");
    return given ? static_cast<unsigned>(std::stoul(given)) : std::random_device{}();
}

/// All vectors of up to 12 input bits, else `count` random ones.
inline std::vector<vector_of_pins> stimulus_for(std::vector<pin> const & inputs, unsigned seed,
                                                std::size_t count = 2000)
{
    int bits = 0;
    for (auto const & input : inputs)
        bits += input.width;
    bool const exhaustive = bits <= 12;
    std::mt19937_64 random(seed);
    std::vector<vector_of_pins> vectors;
    for (std::size_t i = 0; i < (exhaustive ? std::size_t{1} << bits : count); ++i) {
        std::uint64_t rest = i;
        vector_of_pins values;
        for (auto const & input : inputs) {
            std::uint64_t const mask = input.width >= 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << input.width) - 1;
            values[input.name] = (exhaustive ? rest : random()) & mask;
            rest >>= input.width < 64 ? input.width : 0;
        }
        vectors.push_back(values);
    }
    return vectors;
}

} // namespace gnl_test
