#include "gnl_port.h"

#include "gnl_generator.h"

#include "lbx/gnl/ports/connection_checks.h"

using gnl_detail::check_level_and_slices;
using gnl_detail::check_sink;
using gnl_detail::check_unassigned;
using gnl_detail::constant_fits;
using gnl_detail::port_message;
using gnl_detail::report;

namespace {

template <class VALUE> bool may_take_constant(GNL_PORT & sink, VALUE const & value)
{
    if (!check_unassigned(sink, value))
        return false;
    if (!constant_fits(sink, value)) {
        report<port_message::constant_too_wide>(*sink.get_parent(), sink.get_hierarchical_name(), sink.get_bus_width(),
                                                gnl_detail::source_text(value));
        return false;
    }
    return check_level_and_slices(sink, value) && check_sink(sink, value);
}

template <class VALUE> bool take_constant(GNL_PORT & sink, VALUE & value)
{
    GNL_GENERATOR * parent = sink.get_parent();
    if (!parent)
        return false;
    parent->made_port_connection(sink.get_name());
    if (!may_take_constant(sink, value))
        return false;
    sink.replace_driver(value);
    if (gnl_detail::is_pin(sink))
        sink.set_used();
    return true;
}

} // namespace

GNL_PORT & GNL_PORT::operator=(int value)
{
    take_constant(*this, value);
    return *this;
}

GNL_PORT & GNL_PORT::operator=(MLIB_UINTEGER & value)
{
    if (take_constant(*this, value))
        m_extras->constant->set_bitwidth(m_width);
    return *this;
}
