#include "random_trial.h"

#include <filesystem>
#include <sstream>

using gnl_test::pin;
using gnl_test::vector_of_pins;

namespace fs = std::filesystem;

namespace random_designs {

/// Vectors 0 to 3 are all zeros, all ones and the two alternations; of the others some are dense and some are sparse.
lanes trial::stimulus_bit(int index)
{
    lanes const a = m_random(), b = m_random();
    lanes const mixed = (a & 0xffffffff) | ((a & b) & 0xffff00000000) | ((a | b) & 0xffff000000000000);
    lanes const corners = 2U | (index % 2 != 0 ? 4U : 8U);
    return (mixed & ~lanes{15}) | corners;
}

void trial::set_up_inputs()
{
    int index = 0;
    for (auto const & input : m_design.top_kind().inputs) {
        bool const connected = input.default_value == -1 || m_random() % 2 == 0;
        m_is_pin.push_back(connected);
        bits values;
        for (int i = 0; i < width(input); ++i)
            values.push_back(connected ? stimulus_bit(index++) : input.default_value == 1 ? ~lanes{0} : lanes{0});
        m_inputs.push_back(std::move(values));
    }
}

/// How the text is written must not change what it means.
std::string trial::options(std::string const & extension) const
{
    auto const common = "LBX_OUTPUT_DIRECTORY=" + m_name + ",LBX_FILE=" + m_name + extension;
    switch (m_design.seed % 6) {
    case 0:
        if (extension == ".tdf")
            return common; // QHDL has no prefixes
        return common + ",LBX_SINGLE_OUTPUT_FILE=OFF,LBX_MODULE_PREFIX=" + m_name
               + ",LBXI_INSTANCE_NAME=" + m_name; // a file for each child
    case 1:
        return common + ",LBX_SINGLE_OUTPUT_FILE=ON,LBX_STRUCTURAL_NETLIST=ON";
    case 2:
        return common + ",LBX_SINGLE_OUTPUT_FILE=ON,LBX_REMOVE_OPTIONAL_WIRES=OFF";
    default:
        return common + ",LBX_SINGLE_OUTPUT_FILE=ON";
    }
}

std::string trial::generate(std::string const & extension) const
{
    fs::remove_all(m_name);
    fs::create_directory(m_name);
    auto const top = make_generator(m_design, options(extension));
    for (std::size_t i = 0; i < m_is_pin.size(); ++i)
        if (auto const & input = m_design.top_kind().inputs[i]; m_is_pin[i] && input.default_value != -1)
            top->set_port_to_used(input.name.c_str());
    std::ostringstream shared;
    top->generate_subdesign(shared);
    std::string wrong;
    top->reset_msg_list();
    while (top->move_to_next_msg())
        wrong += std::string(top->get_cur_msg()->get_msg_text()) + "\n";
    if (top->generator_result() != 0 && wrong.empty())
        wrong = "the result is " + std::to_string(top->generator_result());
    return wrong;
}

std::vector<pin> trial::pins(std::vector<declared_signal> const & of, std::vector<bool> const * chosen) const
{
    std::vector<pin> result;
    for (std::size_t i = 0; i < of.size(); ++i)
        if (!chosen || (*chosen)[i])
            result.push_back({m_name + "_" + of[i].name, width(of[i])});
    return result;
}

void trial::add_to_stimulus(std::vector<vector_of_pins> & stimulus) const
{
    auto const & inputs = m_design.top_kind().inputs;
    for (std::size_t i = 0; i < inputs.size(); ++i)
        for (std::size_t at = 0; at < vectors && m_is_pin[i]; ++at) {
            std::uint64_t value = 0;
            for (std::size_t bit = 0; bit < m_inputs[i].size(); ++bit)
                value |= ((m_inputs[i][bit] >> at) & 1U) << bit;
            stimulus[at][m_name + "_" + inputs[i].name] = value;
        }
}

void trial::instantiate(std::ostream & out) const
{
    char const * separator = "";
    out << "  " << m_name << " i" << m_name << "(";
    for (auto const & side : {input_pins(), output_pins()})
        for (auto const & each : side) {
            out << separator << "." << each.name.substr(m_name.size() + 1) << "(" << each.name << ")";
            separator = ", ";
        }
    out << ");\n";
}

std::string trial::compare(std::vector<vector_of_pins> const & results, description const & expected) const
{
    auto const values = evaluate(expected, m_inputs);
    auto const & outputs = m_design.top_kind().outputs;
    for (std::size_t i = 0; i < outputs.size(); ++i)
        for (std::size_t at = 0; at < vectors; ++at) {
            auto const found = results[at].at(m_name + "_" + outputs[i].name);
            for (std::size_t bit = 0; bit < values[i].size(); ++bit)
                if (((found >> bit) & 1U) != ((values[i][bit] >> at) & 1U))
                    return "bit " + std::to_string(bit) + " of output " + outputs[i].name + " in vector "
                           + std::to_string(at);
        }
    return "";
}

std::string trial::keep() const
{
    auto const place = fs::temp_directory_path() / ("lbx-random-" + m_name);
    std::error_code ignored;
    fs::remove_all(place, ignored);
    fs::copy(m_name, place, ignored);
    return place.string();
}

} // namespace random_designs
