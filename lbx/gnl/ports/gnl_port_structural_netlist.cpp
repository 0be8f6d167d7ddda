#include "gnl_generator.h"
#include "reference_text.h"

#include <string>
#include <vector>

namespace {

char const * gate_of(int operation)
{
    switch (operation) {
    case GNL_PORT_LOGIC::not_operation:
        return "not(";
    case GNL_PORT_LOGIC::and_operation:
        return "and(";
    case GNL_PORT_LOGIC::or_operation:
        return "or(";
    default:
        return "xor(";
    }
}

struct bit_of_port
{
    GNL_PORT * port;
    int bit;
};

/// A concatenation can't be indexed, so a gate reads the signal that the bit comes from. Lowest bit first; what is
/// concatenated in turn is taken apart too.
std::vector<bit_of_port> bits_of(GNL_PORT_CONCAT & concat)
{
    std::vector<bit_of_port> bits;
    std::vector<GNL_PORT *> pending{&concat};
    while (!pending.empty()) {
        GNL_PORT & next = *pending.back();
        pending.pop_back();
        if (!next.is_concat_port()) {
            for (int bit = 0; bit < next.get_bus_width(); ++bit)
                bits.push_back({&next, bit});
            continue;
        }
        auto const & parts = static_cast<GNL_PORT_CONCAT &>(next);
        for (int i = 0; i < parts.get_element_count(); ++i) {
            auto const & part = *parts.get_concat_element(i);
            int const width = part.high_index - part.low_index + 1;
            pending.insert(pending.end(), static_cast<std::size_t>(width / part.port->get_bus_width()), part.port);
        }
    }
    return bits;
}

/// A constant without a signal of its own, as concatenations hold them.
bool is_constant(GNL_PORT & port)
{
    return !port.is_simple_port() && port.is_driven_by_constant();
}

/// Whether the description of `port` is a part of a signal already, which can't be indexed again.
bool is_part_of_signal(GNL_PORT & port, GNL_GENERATOR const * level)
{
    bool const outside = (port.is_output() || port.is_bidir()) && port.get_parent() != level;
    return outside && gnl_detail::port_place(port).among_slices();
}

void write_bit(std::ostream & out, GNL_PORT & port, GNL_GENERATOR * level, int bit)
{
    if (is_constant(port)) {
        std::string const digits = port.constant_driving_value();
        out << "1'b" << digits[digits.size() - 1 - static_cast<std::size_t>(bit)];
    } else if (port.is_range_port() && port.get_width() > 1)
        static_cast<GNL_PORT_OUTPUT_RANGE &>(port).dump_port_description(out, level, false, nullptr, bit, bit);
    else if (port.get_width() > 0 && is_part_of_signal(port, level)) {
        auto const signal = gnl_detail::signal_of(port, level);
        out << signal.name << "[" << signal.low_bit + bit << "]";
    } else {
        port.dump_port_description(out, level, false, nullptr);
        if (port.get_width() > 0 && !port.is_range_port())
            out << "[" << bit << "]";
    }
}

/// What the gates of one expression read from an operand; a narrower operand serves several gates.
class gate_input
{
public:
    gate_input(GNL_PORT & operand, int gates)
        : m_operand(operand)
        , m_width(operand.get_bus_width())
        , m_gates(gates)
    {
        if (operand.is_concat_port())
            m_bits = bits_of(static_cast<GNL_PORT_CONCAT &>(operand));
    }

    void write(std::ostream & out, GNL_GENERATOR * level, int gate) const
    {
        int const bit = static_cast<int>(static_cast<long long>(m_width) * gate / m_gates);
        auto const read = m_bits.empty() ? bit_of_port{&m_operand, bit} : m_bits[static_cast<std::size_t>(bit)];
        write_bit(out, *read.port, level, read.bit);
    }

private:
    GNL_PORT & m_operand;
    int m_width;
    int m_gates;
    std::vector<bit_of_port> m_bits; ///< of a concatenation
};

} // namespace

void GNL_PORT_LOGIC::dump_structural_netlist(std::ostream & out, GNL_GENERATOR * level)
{
    std::string const name = get_source_name(true);
    bool const is_bus = get_width() > 0;
    int const gates = get_bus_width();
    std::vector<gate_input> inputs;
    for (GNL_PORT * const operand : {m_first_operand, m_second_operand})
        if (operand)
            inputs.emplace_back(*operand, gates);
    for (int gate = 0; gate < gates; ++gate) {
        out << "\t" << gate_of(m_operation) << name;
        if (is_bus)
            out << "[" << gate << "]";
        for (gate_input const & input : inputs) {
            out << ", ";
            input.write(out, level, gate);
        }
        out << ");\n";
    }
}
