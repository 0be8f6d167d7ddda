#include "gnl_generator.h"

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

/// What gate `gate` of `gates` reads from `operand`; a narrower operand serves several gates.
void write_gate_input(std::ostream & out, GNL_PORT & operand, GNL_GENERATOR * level, int gate, int gates)
{
    int const bit = static_cast<int>(static_cast<long long>(operand.get_bus_width()) * gate / gates);
    if (operand.is_range_port() && operand.get_width() > 1)
        static_cast<GNL_PORT_OUTPUT_RANGE &>(operand).dump_port_description(out, level, false, nullptr, bit, bit);
    else {
        operand.dump_port_description(out, level, false, nullptr);
        if (operand.get_width() > 0 && !operand.is_range_port())
            out << "[" << bit << "]";
    }
}

} // namespace

void GNL_PORT_LOGIC::dump_structural_netlist(std::ostream & out, GNL_GENERATOR * level)
{
    std::string const name = get_source_name(true);
    bool const is_bus = get_width() > 0;
    int const gates = get_bus_width();
    for (int gate = 0; gate < gates; ++gate) {
        out << "\t" << gate_of(m_operation) << name;
        if (is_bus)
            out << "[" << gate << "]";
        for (GNL_PORT * const operand : {m_first_operand, m_second_operand})
            if (operand) {
                out << ", ";
                write_gate_input(out, *operand, level, gate, gates);
            }
        out << ");\n";
    }
}
