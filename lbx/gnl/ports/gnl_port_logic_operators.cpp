#include "made_port.h"
#include "port_messages.h"

#include "lbx/gnl/core/element_registry.h"

using namespace gnl_detail;

namespace {

char const * operation_name(int operation)
{
    switch (operation) {
    case GNL_PORT_LOGIC::and_operation:
        return "AND";
    case GNL_PORT_LOGIC::or_operation:
        return "OR";
    default:
        return "XOR";
    }
}

GNL_PORT_LOGIC * find_equal(GNL_PORT const & first, int operation, GNL_PORT const * second)
{
    GNL_GENERATOR const * const parent = first.get_parent();
    return parent ? parent->registry().find_logic(operation, &first, second) : nullptr;
}

GNL_PORT_LOGIC & make_logic(GNL_PORT & first, int operation, GNL_PORT * second)
{
    return make_port<GNL_PORT_LOGIC>(first.get_parent(), operation, &first, second);
}

/// Whether an input that is read has nothing to read from: neither a connection nor a default. A default is turned into
/// a signal for it.
bool is_unconnected(GNL_PORT & operand)
{
    if (!operand.is_input() || operand.is_used())
        return false;
    if (operand.get_default_value() == -1)
        return true;
    operand.set_generate_constant_wire();
    return false;
}

/// What happens to each port that becomes an operand.
void mark_read(GNL_PORT & operand)
{
    if (operand.is_output() || operand.is_bidir())
        operand.set_used();
}

void ask_for_loop_unless_simple(GNL_PORT & operand)
{
    if (!operand.is_simple_port())
        operand.set_create_vhdl_loop();
}

/// Makes one binary expression.
class binary_operation
{
public:
    binary_operation(GNL_PORT & first, int operation, GNL_PORT & second)
        : m_first(first)
        , m_second(second)
        , m_operation(operation)
    {
    }

    GNL_PORT_LOGIC & make()
    {
        if (GNL_PORT_LOGIC * const equal = find_equal(m_first, m_operation, &m_second))
            return *equal;
        GNL_GENERATOR * const level = widths_fit() ? operand_level() : nullptr;
        GNL_PORT_LOGIC & made = make_logic(m_first, m_operation, &m_second);
        if (level)
            connect(made, level);
        return made;
    }

private:
    GNL_GENERATOR const * parent() const { return m_first.get_parent(); }
    bool widths_fit();
    /// The level of the statement; null when it is refused.
    GNL_GENERATOR * operand_level();
    bool check_source(GNL_PORT & operand, GNL_PORT & other, GNL_GENERATOR * level);
    void connect(GNL_PORT_LOGIC & made, GNL_GENERATOR * level);
    void decide_vhdl_loop(GNL_PORT_LOGIC & made);
    void read(GNL_PORT & operand, GNL_PORT & other);

    GNL_PORT & m_first;
    GNL_PORT & m_second;
    int m_operation;
};

bool binary_operation::widths_fit()
{
    bool const one_is_a_bit = m_first.get_bus_width() == 1 || m_second.get_bus_width() == 1;
    if (one_is_a_bit || m_first.get_bus_width() == m_second.get_bus_width())
        return true;
    if (parent())
        report<port_message::logic_widths>(*parent(), operation_name(m_operation), m_first.get_hierarchical_name(),
                                           m_first.get_bus_width(), m_second.get_hierarchical_name(),
                                           m_second.get_bus_width());
    return false;
}

GNL_GENERATOR * binary_operation::operand_level()
{
    if (!parent())
        return nullptr;
    GNL_GENERATOR * const level = m_first.find_connection_level();
    if (!level) {
        report<port_message::logic_outside_body>(*parent(), operation_name(m_operation),
                                                 m_first.get_hierarchical_name(), m_second.get_hierarchical_name());
        return nullptr;
    }
    bool const first_is_source = check_source(m_first, m_second, level);
    bool const second_is_source = check_source(m_second, m_first, level);
    return first_is_source && second_is_source ? level : nullptr;
}

bool binary_operation::check_source(GNL_PORT & operand, GNL_PORT & other, GNL_GENERATOR * level)
{
    if (operand.check_rhs(level))
        return true;
    report<port_message::no_logic_source>(*parent(), operation_name(m_operation), operand.get_hierarchical_name(),
                                          other.get_hierarchical_name(), level->get_hierarchical_name());
    return false;
}

void binary_operation::connect(GNL_PORT_LOGIC & made, GNL_GENERATOR * level)
{
    made.set_connection_level(level);
    decide_vhdl_loop(made);
    for (GNL_PORT * const operand : {&m_first, &m_second})
        if (operand->is_range_port())
            operand->set_connection_level(level);
    if (m_first.is_range_port() && m_first.get_width() == 1 && m_second.is_logic())
        made.set_create_vhdl_loop();
    read(m_first, m_second);
    m_first.set_range_port_used();
    m_second.set_range_port_used();
    read(m_second, m_first);
    m_second.set_port_is_a_driver();
    m_first.set_port_is_a_driver();
}

void binary_operation::decide_vhdl_loop(GNL_PORT_LOGIC & made)
{
    if (m_first.get_bus_width() != m_second.get_bus_width()) {
        made.set_create_vhdl_loop();
        ask_for_loop_unless_simple(m_first);
        ask_for_loop_unless_simple(m_second);
    } else if (m_first.get_width() != m_second.get_width())
        made.set_special_logic_port();
    else
        for (GNL_PORT * const operand : {&m_first, &m_second})
            if (operand->is_special_logic_port())
                operand->set_create_vhdl_loop();
}

void binary_operation::read(GNL_PORT & operand, GNL_PORT & other)
{
    mark_read(operand);
    if (is_unconnected(operand))
        report<port_message::unconnected_input_in_logic>(*parent(), operand.get_hierarchical_name(),
                                                         operation_name(m_operation), other.get_hierarchical_name());
}

/// The level of a NOT; null when it is refused.
GNL_GENERATOR * not_level(GNL_PORT & operand)
{
    GNL_GENERATOR const * const parent = operand.get_parent();
    if (!parent)
        return nullptr;
    GNL_GENERATOR * const level = operand.find_connection_level();
    if (!level)
        report<port_message::not_outside_body>(*parent, operand.get_hierarchical_name());
    else if (!operand.check_rhs(level))
        report<port_message::no_not_source>(*parent, operand.get_hierarchical_name(), level->get_hierarchical_name());
    else
        return level;
    return nullptr;
}

void connect_not(GNL_PORT_LOGIC & made, GNL_PORT & operand, GNL_GENERATOR * level)
{
    made.set_connection_level(level);
    if (operand.is_range_port())
        operand.set_connection_level(level);
    mark_read(operand);
    operand.set_range_port_used();
    if (is_unconnected(operand))
        report<port_message::unconnected_input_in_not>(*operand.get_parent(), operand.get_hierarchical_name());
    if (made.get_width() != operand.get_width()) {
        made.set_create_vhdl_loop();
        ask_for_loop_unless_simple(operand);
    }
    operand.set_port_is_a_driver();
}

/// The bits of `port` as a bus without rows: in a two-dimensional port an index counts rows.
GNL_PORT & flat(GNL_PORT & port)
{
    int const row = port.get_2d_width();
    return row > 0 ? port.range(port.get_bus_width() / row - 1, 0) : port;
}

GNL_PORT_LOGIC & reduce(GNL_PORT & port, int operation)
{
    if (port.get_width() < 2) {
        if (port.get_parent())
            report<port_message::no_bus_to_reduce>(*port.get_parent(), operation_name(operation),
                                                   port.get_hierarchical_name());
        return make_logic(port, operation, &port);
    }
    GNL_PORT & bus = flat(port);
    GNL_PORT * result = &bus.range(0, 0);
    for (int bit = 1; bit < port.get_bus_width(); ++bit)
        result = &binary_operation(*result, operation, bus.range(bit, bit)).make();
    return static_cast<GNL_PORT_LOGIC &>(*result);
}

} // namespace

GNL_PORT_LOGIC & GNL_PORT::operator&(GNL_PORT & rhs)
{
    return binary_operation(*this, GNL_PORT_LOGIC::and_operation, rhs).make();
}

GNL_PORT_LOGIC & GNL_PORT::operator|(GNL_PORT & rhs)
{
    return binary_operation(*this, GNL_PORT_LOGIC::or_operation, rhs).make();
}

GNL_PORT_LOGIC & GNL_PORT::operator^(GNL_PORT & rhs)
{
    return binary_operation(*this, GNL_PORT_LOGIC::xor_operation, rhs).make();
}

GNL_PORT_LOGIC & GNL_PORT::operator!()
{
    if (GNL_PORT_LOGIC * const equal = find_equal(*this, GNL_PORT_LOGIC::not_operation, nullptr))
        return *equal;
    GNL_GENERATOR * const level = not_level(*this);
    GNL_PORT_LOGIC & made = make_logic(*this, GNL_PORT_LOGIC::not_operation, nullptr);
    if (level)
        connect_not(made, *this, level);
    return made;
}

GNL_PORT_LOGIC & GNL_PORT::operator~()
{
    return !*this;
}

GNL_PORT_LOGIC & GNL_PORT::bitwise_and()
{
    return reduce(*this, GNL_PORT_LOGIC::and_operation);
}

GNL_PORT_LOGIC & GNL_PORT::bitwise_or()
{
    return reduce(*this, GNL_PORT_LOGIC::or_operation);
}

GNL_PORT_LOGIC & GNL_PORT::bitwise_xor()
{
    return reduce(*this, GNL_PORT_LOGIC::xor_operation);
}
