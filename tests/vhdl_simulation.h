#pragma once

// Runs a combinational VHDL entity in GHDL on given vectors.

#include "verilog_simulation.h"

namespace gnl_test {

/// A pin of the simulated entity. Unlike Verilog, VHDL tells a bit from a vector of one element.
struct vhdl_pin
{
    std::string name;
    int width; ///< 0 for a STD_LOGIC
};

/// The words that a pin's name gets a prefix for.
inline std::string vhdl_name(std::string const & name)
{
    return name == "in" || name == "out" || name == "abs" ? "a_" + name : name;
}

/// How the entity's text in `file` declares the pins.
inline std::vector<vhdl_pin> vhdl_pins(std::vector<pin> const & pins, std::string const & file,
                                       std::string const & entity)
{
    std::ifstream in(file, std::ios::binary);
    std::ostringstream whole;
    whole << in.rdbuf();
    std::string const all = whole.str();
    auto const start = all.find(" ENTITY  " + entity + " IS");
    auto const text = all.substr(start, all.find(" END " + entity, start) - start);
    std::vector<vhdl_pin> found;
    for (auto const & one : pins) {
        auto const name = vhdl_name(one.name);
        auto const at = text.find("\t\t " + name + "\t:\t");
        if (at == std::string::npos)
            throw std::runtime_error("no port " + name + " in " + text);
        auto const line = text.substr(at, text.find('\n', at) - at);
        found.push_back({name, line.find(" DOWNTO ") == std::string::npos ? 0 : one.width});
    }
    return found;
}

/// Simulates `entity` and answers the outputs for each vector of inputs, as `verilog_simulation` does. A component
/// without an entity is an error.
class vhdl_simulation
{
public:
    vhdl_simulation(std::string entity, std::vector<pin> inputs, std::vector<pin> outputs)
        : m_entity(std::move(entity))
        , m_inputs(std::move(inputs))
        , m_outputs(std::move(outputs))
    {
    }

    /// `files` in the order in which they are read; `top_file` is the one with the entity.
    std::vector<vector_of_pins> run(std::string const & files, std::string const & top_file,
                                    std::vector<vector_of_pins> const & stimulus) const
    {
        write_stimulus(stimulus);
        write_bench(vhdl_pins(m_inputs, top_file, m_entity), vhdl_pins(m_outputs, top_file, m_entity));
        command("ghdl -a --std=93c " + files + " bench.vhd");
        command("ghdl -e --std=93c bench");
        // Before the first vector has come in, an undefined value may run into a conversion.
        command("ghdl -r --std=93c bench --ieee-asserts=disable-at-0 --assert-level=error");
        return read_results(stimulus.size());
    }

private:
    /// The tool only warns of a component without an entity. What it also warns of is meant so: an output of an entity
    /// that none of its instances in a design reads isn't in its component.
    static void command(std::string const & line)
    {
        auto const result = run_command(line);
        bool const unbound = result.text.find("of component") != std::string::npos
                             && result.text.find("is not bound") != std::string::npos;
        if (result.status != 0 || unbound)
            throw std::runtime_error(line + ": " + result.text);
    }

    static int bits_of(std::vector<pin> const & pins)
    {
        int bits = 0;
        for (auto const & one : pins)
            bits += one.width;
        return bits;
    }

    void write_stimulus(std::vector<vector_of_pins> const & stimulus) const
    {
        std::ofstream out("stimulus.txt");
        for (auto const & values : stimulus) {
            for (auto const & input : m_inputs)
                out << binary(values.at(input.name), input.width);
            out << "\n";
        }
    }

    static void connect(std::ostream & out, std::vector<vhdl_pin> const & pins, char const * signal, int bits,
                        std::string & separator)
    {
        for (auto const & one : pins) {
            int const width = std::max(one.width, 1);
            out << separator << one.name << " => " << signal << "(" << bits - 1;
            if (one.width > 0)
                out << " downto " << bits - width;
            out << ")";
            bits -= width;
            separator = ", ";
        }
    }

    void write_bench(std::vector<vhdl_pin> const & inputs, std::vector<vhdl_pin> const & outputs) const
    {
        int const bits_in = bits_of(m_inputs);
        int const bits_out = bits_of(m_outputs);
        std::ofstream out("bench.vhd");
        out << "library ieee;\nuse ieee.std_logic_1164.all;\nuse std.textio.all;\nentity bench is\nend bench;\n"
            << "architecture test of bench is\n  signal v : std_logic_vector(" << bits_in - 1
            << " downto 0);\n  signal r : std_logic_vector(" << bits_out - 1
            << " downto 0);\nbegin\n  dut : entity work." << m_entity << " port map (";
        std::string separator;
        connect(out, inputs, "v", bits_in, separator);
        connect(out, outputs, "r", bits_out, separator);
        out << ");\n  process\n    file given : text open read_mode is \"stimulus.txt\";\n"
            << "    file found : text open write_mode is \"results.txt\";\n    variable l : line;\n"
            << "    variable s : string(1 to " << bits_in << ");\n    variable o : string(1 to " << bits_out
            << ");\n  begin\n    while not endfile(given) loop\n      readline(given, l);\n      read(l, s);\n"
            << "      for i in s'range loop\n        if s(i) = '1' then v(" << bits_in << " - i) <= '1'; else v("
            << bits_in << " - i) <= '0'; end if;\n      end loop;\n"
            << "      wait for 10 ns;\n      for i in o'range loop\n        case r(" << bits_out
            << " - i) is\n          when '0' | 'L' => o(i) := '0';\n          when '1' | 'H' => o(i) := '1';\n"
            << "          when others => o(i) := 'x';\n        end case;\n      end loop;\n"
            << "      write(l, o);\n      writeline(found, l);\n    end loop;\n    wait;\n  end process;\nend test;\n";
    }

    std::vector<vector_of_pins> read_results(std::size_t count) const
    {
        std::ifstream in("results.txt");
        std::vector<vector_of_pins> results;
        for (std::string line; results.size() < count && std::getline(in, line);) {
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
            throw std::runtime_error("the simulation ended early");
        return results;
    }

    std::string m_entity;
    std::vector<pin> m_inputs;
    std::vector<pin> m_outputs;
};

} // namespace gnl_test
