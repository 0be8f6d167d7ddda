// An expression whose operands differ in width is a signal of its own in VHDL, which is assigned bit by bit. The signal
// is a vector also when the expression is a scalar.

#include "range_base.h"
#include "reference_text.h"
#include "saturated.h"

using namespace gnl_detail;

namespace {

std::string_view word_between(int operation)
{
    switch (operation) {
    case GNL_PORT_LOGIC::and_operation:
        return " AND ";
    case GNL_PORT_LOGIC::or_operation:
        return " OR ";
    default:
        return " XOR ";
    }
}

/// "(i+4)"; the variable alone at 0.
std::string shifted(std::string_view variable, int low)
{
    return low == 0 ? "(" + std::string(variable) + ")" : "(" + std::string(variable) + "+" + std::to_string(low) + ")";
}

/// The assignment of one bit of an expression, inside a loop over `variable` or, without one, alone.
class bit_assignment
{
public:
    bit_assignment(std::ostream & out, GNL_GENERATOR * level, std::string variable)
        : m_out(out)
        , m_level(level)
        , m_variable(std::move(variable))
    {
    }

    void write_operand(GNL_PORT & operand) const;

private:
    /// The index of a bit that stands `low` above the first of a signal.
    std::string index(int low) const
    {
        return m_variable.empty() ? "(" + std::to_string(low) + ")" : shifted(m_variable, low);
    }
    void write_range(GNL_PORT_OUTPUT_RANGE & range) const;
    void write_simple(GNL_PORT & port) const;

    std::ostream & m_out;
    GNL_GENERATOR * m_level;
    std::string m_variable;
};

void bit_assignment::write_operand(GNL_PORT & operand) const
{
    int const width = operand.get_width();
    if (operand.is_range_port())
        write_range(static_cast<GNL_PORT_OUTPUT_RANGE &>(operand));
    else if (operand.is_simple_port())
        write_simple(operand);
    else if (operand.need_to_create_vhdl_loop())
        m_out << operand.get_source_name(true) << (width > 1 ? index(0) : "(0)");
    else {
        operand.dump_port_description(m_out, m_level, true, nullptr);
        if (width > 1)
            m_out << index(0);
    }
}

/// A single bit stands for itself; more are reached through what the range is taken from.
void bit_assignment::write_range(GNL_PORT_OUTPUT_RANGE & range) const
{
    auto const base = base_of(range);
    if (base.port && range.get_width() > 1) {
        port_signal const signal = signal_of(*base.port, m_level);
        m_out << signal.name << index(saturated(signal.low_bit + base.low));
    } else
        range.dump_port_description(m_out, m_level, true, nullptr);
}

void bit_assignment::write_simple(GNL_PORT & port) const
{
    port_signal const signal = signal_of(port, m_level);
    if (port.get_width() > 1)
        m_out << signal.name << index(signal.low_bit);
    else
        port.dump_port_description(m_out, m_level, true, nullptr);
}

} // namespace

void GNL_PORT_LOGIC::dump_vhdl_for_generate_loop(std::ostream & out, GNL_GENERATOR * level)
{
    bool const in_loop = get_width() > 1;
    std::string const label = in_loop && get_parent() ? get_parent()->generate_loop_name() : std::string();
    std::string const variable = in_loop ? vhdl_loop_variable(level, "i") : std::string();
    if (in_loop)
        out << "\t" << label << " : FOR " << variable << " IN 0 TO " << get_bus_width() - 1 << " GENERATE \n\t";
    out << "\t" << get_source_name(true) << "(" << (in_loop ? variable : "0")
        << ") <= " << (is_not_port() ? "NOT " : "");

    bit_assignment const assignment(out, level, variable);
    if (m_first_operand)
        assignment.write_operand(*m_first_operand);
    if (m_second_operand && !is_not_port()) {
        out << word_between(m_operation);
        assignment.write_operand(*m_second_operand);
    }
    out << ";\n";
    if (in_loop)
        out << "\tEND GENERATE " << label << ";\n";
}
