#include "gnl_port_concat.h"

#include "concat_elements.h"
#include "gnl_generator.h"
#include "hierarchical_names.h"
#include "made_port.h"
#include "port_messages.h"

#include <cmath>
#include <vector>

using gnl_detail::make_port;
using gnl_detail::port_message;
using gnl_detail::report;

namespace {

/// Whether `operand` can be put together with `other` at `level`; reports it if not.
bool check_operand(GNL_PORT & operand, GNL_PORT const & other, GNL_GENERATOR * level)
{
    if (operand.check_rhs(level))
        return true;
    if (auto const * const parent = operand.get_parent() ? operand.get_parent() : other.get_parent())
        report<port_message::no_concat_source>(*parent, operand.get_hierarchical_name(), other.get_hierarchical_name(),
                                               level->get_hierarchical_name());
    return false;
}

/// The level of a comma between the two; null outside of all bodies, which is reported.
GNL_GENERATOR * level_of(GNL_PORT const & high, GNL_PORT const & low)
{
    GNL_GENERATOR * const level = high.find_connection_level();
    if (!level && high.get_parent())
        report<port_message::concat_outside_body>(*high.get_parent(), high.get_hierarchical_name(),
                                                  low.get_hierarchical_name());
    return level;
}

/// Notes that `operand` is read, together with `other`.
void take_operand(GNL_PORT & operand, GNL_PORT const & other)
{
    if (operand.is_range_port())
        operand.set_range_port_used();
    else if (!operand.is_input())
        operand.set_used();
    else if (!operand.is_used()) {
        if (operand.get_default_value() != -1)
            operand.set_generate_constant_wire();
        else if (auto const * const parent = operand.get_parent())
            report<port_message::unconnected_input_in_concat>(*parent, operand.get_hierarchical_name(),
                                                              other.get_hierarchical_name());
    }
    operand.set_port_is_a_driver();
}

GNL_PORT_CONCAT & concat_of(GNL_PORT & high, GNL_PORT & low)
{
    return make_port<GNL_PORT_CONCAT>(high.get_parent(), high, low);
}

/// The width of a constant in a concatenation, from the natural logarithm, as users have always seen it.
int constant_width(int value)
{
    return value > 0 ? static_cast<int>(std::log(value + 1.0)) + 1 : 0;
}

} // namespace

GNL_PORT_CONCAT::GNL_PORT_CONCAT(GNL_GENERATOR * parent, GNL_PORT & high, GNL_PORT & low)
    : GNL_PORT(parent, get_wire_name_from_parent(parent, high.get_name(), low.get_name()))
    , m_elements(std::make_unique<gnl_detail::concat_elements>())
    , m_complete(true)
{
    add_port_lower_end(high);
    add_port_lower_end(low);
    declare_width(m_width);
}

GNL_PORT_CONCAT::GNL_PORT_CONCAT(GNL_GENERATOR * parent, int width)
    : GNL_PORT(parent, get_wire_name_from_parent(parent, "", ""), width)
    , m_elements(std::make_unique<gnl_detail::concat_elements>())
{
}

GNL_PORT_CONCAT::~GNL_PORT_CONCAT() = default;

std::string GNL_PORT_CONCAT::get_hierarchical_name() const
{
    return gnl_detail::operator_name(*this);
}

GNL_PORT_CONCAT & GNL_PORT_CONCAT::operator=(GNL_PORT_CONCAT & rhs)
{
    GNL_PORT::operator=(rhs);
    if (&rhs != this) {
        *m_elements = *rhs.m_elements;
        m_complete = rhs.m_complete;
        m_need_index = rhs.m_need_index;
    }
    return *this;
}

// It does not know the name of this operator.
// clang-format off

GNL_PORT_CONCAT & GNL_PORT::operator,(GNL_PORT & low)
{
    GNL_GENERATOR * const level = level_of(*this, low);
    if (!level)
        return concat_of(*this, low);
    bool const high_fits = check_operand(*this, low, level);
    bool const low_fits = check_operand(low, *this, level);
    GNL_PORT_CONCAT & concat = concat_of(*this, low);
    if (!high_fits || !low_fits)
        return concat;
    concat.set_connection_level(level);
    take_operand(*this, low);
    take_operand(low, *this);
    return concat;
}

GNL_PORT_CONCAT & GNL_PORT::operator,(GNL_PORT_CONCAT & low)
{
    GNL_GENERATOR * const level = level_of(*this, low);
    if (!level || !check_operand(*this, low, level))
        return concat_of(*this, low);
    low.add_port_higher_end(*this);
    take_operand(*this, low);
    low.set_port_is_a_driver();
    return low;
}

GNL_PORT_CONCAT & GNL_PORT::operator,(int value)
{
    GNL_GENERATOR * const parent = get_parent();
    auto & constant =
        make_port<GNL_PORT>(parent, get_wire_name_from_parent(parent, get_name(), ""), constant_width(value));
    constant = value;
    return operator,(constant);
}

GNL_PORT_CONCAT & GNL_PORT_CONCAT::operator,(GNL_PORT & low)
{
    GNL_GENERATOR * const level = level_of(*this, low);
    if (!level || !check_operand(low, *this, level))
        return concat_of(*this, low);
    add_port_lower_end(low);
    take_operand(low, *this);
    return *this;
}

/// The elements of the left operand go below those of the right one, which is how users have always seen it.
GNL_PORT_CONCAT & GNL_PORT_CONCAT::operator,(GNL_PORT_CONCAT & low)
{
    std::vector<GNL_PORT *> ports;
    ports.reserve(static_cast<std::size_t>(get_element_count()));
    for (int i = 0; i < get_element_count(); ++i)
        ports.push_back(get_concat_element(i)->port);
    for (GNL_PORT * const port : ports)
        low.add_port_lower_end(*port);
    return low;
}

// clang-format on
