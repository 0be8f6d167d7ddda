#include "gnl_port_logic.h"
#include "gnl_generator.h"
#include "operator_keys.h"

#include <vector>

// Expressions share their parts, so that the text of one can be exponentially longer than its objects, and they are as
// deep as their author made them. Whatever follows operands here therefore keeps a stack of its own, and passes each
// expression once.

namespace {

/// Rises with each exchange of an operand, which can change the answer of every expression above it.
std::uint32_t operand_epoch = 1;

std::string_view word_in_messages(int operation)
{
    switch (operation) {
    case GNL_PORT_LOGIC::and_operation:
        return " AND ";
    case GNL_PORT_LOGIC::or_operation:
        return " OR ";
    case GNL_PORT_LOGIC::xor_operation:
        return " EXOR ";
    default:
        return " UNKNOWN ";
    }
}

GNL_PORT_LOGIC * as_logic(GNL_PORT * port)
{
    return port && port->is_logic() ? static_cast<GNL_PORT_LOGIC *>(port) : nullptr;
}

/// The width of an expression: that of the operand with more bits, of the first on a tie.
int width_over(GNL_PORT * first, GNL_PORT * second)
{
    if (!first)
        return 0;
    bool const second_is_wider = second && second->get_bus_width() > first->get_bus_width();
    return second_is_wider ? second->get_width() : first->get_width();
}

} // namespace

GNL_PORT_LOGIC::GNL_PORT_LOGIC(GNL_GENERATOR * parent, int operation, GNL_PORT * first, GNL_PORT * second)
    : GNL_PORT(parent, late_name_number(parent), width_over(first, second))
    , m_operation(operation)
    , m_first_operand(first)
    , m_second_operand(second)
{
    if (!parent)
        set_name(get_wire_name_from_parent(nullptr, "lg", first ? first->get_name() : std::string()));
}

std::string GNL_PORT_LOGIC::make_late_name(std::uint32_t number) const
{
    return GNL_GENERATOR::numbered_wire_name("lg", m_first_operand ? m_first_operand->get_name() : std::string(),
                                             number);
}

std::string GNL_PORT_LOGIC::generate_key_base(std::string const & operation, std::string const & first,
                                              std::string const & second)
{
    std::string key = "LGC;" + operation + ";" + first;
    if (!second.empty())
        key += ";" + second;
    return key;
}

std::string GNL_PORT_LOGIC::generate_key() const
{
    return gnl_detail::operator_key(*this);
}

std::string GNL_PORT_LOGIC::get_hierarchical_name() const
{
    std::string name = m_first_operand ? m_first_operand->get_name() : std::string();
    if (m_second_operand)
        name.append(word_in_messages(m_operation)).append(m_second_operand->get_name());
    return name;
}

void GNL_PORT_LOGIC::replace_operand(GNL_PORT *& operand, GNL_PORT * port)
{
    if (operand)
        operand->remove_port_as_driver();
    operand = port;
    if (operand)
        operand->set_port_is_a_driver();
    ++operand_epoch;
}

void GNL_PORT_LOGIC::replace_first_operand(GNL_PORT * port)
{
    static_cast<void>(get_name()); // which holds that of the first one
    replace_operand(m_first_operand, port);
}

void GNL_PORT_LOGIC::replace_second_operand(GNL_PORT * port)
{
    replace_operand(m_second_operand, port);
}

void GNL_PORT_LOGIC::set_create_vhdl_loop()
{
    if (!is_vhdl())
        return;
    m_create_vhdl_loop = true;
    std::vector<GNL_PORT_LOGIC *> waiting{this};
    while (!waiting.empty()) {
        GNL_PORT_LOGIC const & next = *waiting.back();
        waiting.pop_back();
        for (GNL_PORT * const operand : {next.m_first_operand, next.m_second_operand}) {
            if (!operand || operand->is_simple_port() || operand->get_connection_level() != next.get_connection_level())
                continue;
            GNL_PORT_LOGIC * const logic = as_logic(operand);
            if (!logic)
                operand->set_create_vhdl_loop();
            else if (!logic->m_create_vhdl_loop) { // below one that is set, all are
                logic->m_create_vhdl_loop = true;
                waiting.push_back(logic);
            }
        }
    }
}

bool GNL_PORT_LOGIC::need_vhdl_index()
{
    if (get_bus_width() != 1 || is_not_port())
        return false;
    for (GNL_PORT * const operand : {m_first_operand, m_second_operand}) {
        if (!operand)
            continue;
        if (operand->is_range_port() || operand->is_logic() || operand->get_width() == 0)
            return false;
        if (operand->get_width() == 1 && operand->need_to_create_vhdl_loop())
            return false;
    }
    return true;
}

GNL_PORT_LOGIC * GNL_PORT_LOGIC::unsettled_operand() const
{
    GNL_PORT_LOGIC * const first = as_logic(m_first_operand);
    if (first && first->m_std_logic_epoch != operand_epoch)
        return first;
    GNL_PORT_LOGIC * const second = is_not_port() ? nullptr : as_logic(m_second_operand);
    return second && second->m_std_logic_epoch != operand_epoch ? second : nullptr;
}

void GNL_PORT_LOGIC::settle_std_logic()
{
    auto const answer_of = [](GNL_PORT & operand) {
        GNL_PORT_LOGIC const * const logic = as_logic(&operand);
        return logic ? logic->m_std_logic : operand.is_std_logic_port();
    };
    if (!m_first_operand)
        m_std_logic = get_width() == 0;
    else
        m_std_logic =
            answer_of(*m_first_operand) || (m_second_operand && !is_not_port() && answer_of(*m_second_operand));
    m_std_logic_epoch = operand_epoch;
}

bool GNL_PORT_LOGIC::is_std_logic_port()
{
    if (m_std_logic_epoch == operand_epoch)
        return m_std_logic;
    std::vector<GNL_PORT_LOGIC *> waiting{this};
    while (!waiting.empty()) {
        GNL_PORT_LOGIC & next = *waiting.back();
        if (GNL_PORT_LOGIC * const first = next.unsettled_operand())
            waiting.push_back(first);
        else {
            next.settle_std_logic();
            waiting.pop_back();
        }
    }
    return m_std_logic;
}
