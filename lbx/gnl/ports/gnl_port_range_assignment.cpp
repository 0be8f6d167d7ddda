#include "gnl_port_range.h"

#include "connection_checks.h"
#include "gnl_generator.h"
#include "port_messages.h"
#include "range_base.h"
#include "saturated.h"

using gnl_detail::base_of;
using gnl_detail::constant_fits;
using gnl_detail::port_message;
using gnl_detail::report;
using gnl_detail::saturated;
using gnl_detail::source_text;

namespace {

/// The port that an assignment to a range ends in, and its bits there. There is none behind a range that could not be
/// made, which has been reported then.
struct range_target
{
    GNL_PORT * port;
    int high;
    int low;
    bool nested; ///< whether it was a range of a range
};

range_target target_of(GNL_PORT_OUTPUT_RANGE const & range)
{
    auto const base = base_of(range);
    long long const width_less_one = static_cast<long long>(range.get_high_index()) - range.get_low_index();
    return {base.port, saturated(base.low + width_less_one), saturated(base.low), base.innermost != &range};
}

/// A constant of either kind; the level of the statement has been found already.
template <class CONSTANT> void assign_constant(GNL_PORT_OUTPUT_RANGE & range, CONSTANT & value)
{
    GNL_GENERATOR const & parent = *range.get_parent();
    GNL_GENERATOR * const level = range.get_connection_level();
    std::string const name = range.get_hierarchical_name();
    range_target const target = target_of(range);
    if (!target.port)
        return;
    if (!level)
        return report<port_message::range_constant_outside_body>(parent, name, source_text(value));
    if (!constant_fits(range, value))
        return report<port_message::range_constant_too_wide>(parent, name, range.get_bus_width(), source_text(value));
    if (!target.port->check_lhs(level))
        return report<port_message::range_no_sink_for_constant>(parent, name, source_text(value),
                                                                level->get_hierarchical_name());
    target.port->make_connection(value, target.high, target.low, level, true);
}

void assign_port(GNL_PORT_OUTPUT_RANGE & range, GNL_PORT & rhs)
{
    GNL_GENERATOR const & parent = *range.get_parent();
    GNL_GENERATOR * const level = range.get_connection_level();
    range_target const target = target_of(range);
    if (!target.port)
        return;
    if (!level)
        return report<port_message::assigned_outside_body>(parent, range.get_hierarchical_name(),
                                                           rhs.get_hierarchical_name());
    bool const widths_differ = range.get_bus_width() != rhs.get_bus_width();
    if (widths_differ && !range.is_divisible(rhs.get_bus_width()))
        report<port_message::range_widths_mismatched>(parent, range.get_hierarchical_name(), range.get_bus_width(),
                                                      rhs.get_hierarchical_name(), rhs.get_bus_width());
    if (rhs.is_range_port()) {
        rhs.set_connection_level(level);
        rhs.set_range_port_used();
    }
    if (!target.port->check_lhs(level))
        return report<port_message::range_no_sink>(parent, range.get_hierarchical_name(), rhs.get_hierarchical_name(),
                                                   level->get_hierarchical_name());
    target.port->make_connection(rhs, target.high, target.low, level, true);
    GNL_PORT * const driver = target.port->get_driver();
    if (driver && (widths_differ || parent.get_array_width() > 0)) {
        driver->set_connection_level(level);
        if (target.nested)
            driver->set_create_vhdl_loop();
    }
}

} // namespace

GNL_PORT & GNL_PORT_OUTPUT_RANGE::operator=(GNL_PORT & rhs)
{
    if (!get_parent())
        return *this;
    m_connection_level = find_connection_level();
    assign_port(*this, rhs);
    if (rhs.is_bidir()) {
        bool const to_bidir = m_range_driver && m_range_driver->is_bidir();
        rhs.check_bidir_validity(get_parent(), to_bidir, this);
        if (to_bidir)
            m_range_driver->set_has_special_bidir_driver();
    }
    return *this;
}

GNL_PORT & GNL_PORT_OUTPUT_RANGE::operator=(int value)
{
    if (!get_parent())
        return *this;
    m_connection_level = find_connection_level();
    assign_constant(*this, value);
    return *this;
}

GNL_PORT & GNL_PORT_OUTPUT_RANGE::operator=(MLIB_UINTEGER & value)
{
    if (!get_parent())
        return *this;
    m_connection_level = find_connection_level();
    assign_constant(*this, value);
    return *this;
}
