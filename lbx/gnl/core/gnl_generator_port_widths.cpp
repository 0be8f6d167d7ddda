#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/ports/port_messages.h"

#include <limits>

using gnl_detail::port_message;
using gnl_detail::report;

namespace {

/// The value of a port's width expression. One that has no value, or gives a port that is too wide to count, is
/// reported and answers -1.
int evaluated_width(GNL_GENERATOR & generator, GNL_PORT const & port, char const * expression, int factor)
{
    int const value = generator.evaluate_port_width_expression(expression);
    long long const width = static_cast<long long>(value) * factor;
    if (value >= 0 && width <= std::numeric_limits<int>::max())
        return static_cast<int>(width);
    report<port_message::invalid_width_expression>(generator, expression, port.get_hierarchical_name());
    return -1;
}

} // namespace

void GNL_GENERATOR::reset_port_widths()
{
    for (GNL_PORT & port : registry().ports()) {
        char const * expression = port.get_width_parameter_name();
        if (!expression)
            continue;
        int width = evaluated_width(*this, port, expression, 1);
        if (width < 0)
            continue;
        if (char const * second = port.get_2d_width_parameter_name())
            if (int const product = evaluated_width(*this, port, second, width); product >= 0)
                width = product;
        port.set_width(width, true);
    }
}
