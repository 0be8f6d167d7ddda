#include "gnl_port.h"

#include "gnl_generator.h"
#include "gnl_port_concat.h"

#include "lbx/gnl/ports/connection_checks.h"
#include "lbx/gnl/ports/saturated.h"

#include <algorithm>

using gnl_detail::check_ranged;

namespace {

int bits_in(int high, int low)
{
    return gnl_detail::saturated(static_cast<long long>(high) - low + 1);
}

/// Places `source` at the bits `high` down to `low` of `sink`, repeated from the lowest bit on until they are filled.
void place_source(GNL_PORT_CONCAT & pieces, GNL_PORT & source, int high, int low, GNL_PORT & sink)
{
    long long const width = source.get_bus_width();
    if (width == bits_in(high, low)) {
        pieces.add_at_index(source, high, low, &sink);
        return;
    }
    // A range with its bounds in the wrong order has no bits to place.
    if (width < 1)
        return;
    // A range that reaches below bit 0 has been reported. What lies wholly below is left out: it may be billions of
    // pieces.
    long long const below = std::max(0LL, -static_cast<long long>(low)) / width * width;
    for (long long bit = low + below; bit <= high; bit += width)
        pieces.add_at_index(source, gnl_detail::saturated(bit + width - 1), static_cast<int>(bit), &sink);
}

/// The helper that carries a constant among the pieces of `sink`; it checks the value like any other port.
template <class VALUE> GNL_PORT & constant_piece(GNL_PORT & sink, VALUE & value, int high, int low)
{
    GNL_GENERATOR * parent = sink.get_parent();
    auto & piece = *new GNL_PORT(parent, parent->generate_wire_name(sink.get_name(), ""), bits_in(high, low));
    piece = value;
    return piece;
}

/// Brings the port's design up to date and checks the connection; false without a parent.
template <class SOURCE>
bool may_assign_bits(GNL_PORT & sink, SOURCE const & source, int high, int low, bool check_array_slices)
{
    GNL_GENERATOR * parent = sink.get_parent();
    if (!parent)
        return false;
    parent->made_port_connection(sink.get_name());
    return check_ranged(sink, source, high, low, check_array_slices);
}

} // namespace

GNL_PORT_CONCAT & GNL_PORT::driver_of_pieces(GNL_GENERATOR * level)
{
    m_connection_level = level;
    if (!m_driver) {
        m_driver = new GNL_PORT_CONCAT(get_parent(), m_width);
        m_driver->set_port_is_a_driver();
        if (gnl_detail::is_pin(*this))
            set_used();
    }
    return static_cast<GNL_PORT_CONCAT &>(*m_driver);
}

GNL_PORT & GNL_PORT::make_connection(GNL_PORT & rhs, int high, int low, GNL_GENERATOR * level, bool check_array_slices)
{
    if (!may_assign_bits(*this, rhs, high, low, check_array_slices))
        return *this;
    place_source(driver_of_pieces(level), rhs, high, low, *this);
    if (rhs.is_output() || rhs.is_bidir())
        rhs.set_used();
    gnl_detail::check_input_source(*this, rhs);
    rhs.set_port_is_a_driver();
    return *this;
}

GNL_PORT & GNL_PORT::make_connection(int value, int high, int low, GNL_GENERATOR * level, bool check_array_slices)
{
    if (may_assign_bits(*this, value, high, low, check_array_slices)) {
        GNL_PORT & piece = constant_piece(*this, value, high, low);
        driver_of_pieces(level).add_at_index(piece, high, low, this);
    }
    return *this;
}

GNL_PORT & GNL_PORT::make_connection(MLIB_UINTEGER & value, int high, int low, GNL_GENERATOR * level,
                                     bool check_array_slices)
{
    if (may_assign_bits(*this, value, high, low, check_array_slices)) {
        GNL_PORT & piece = constant_piece(*this, value, high, low);
        driver_of_pieces(level).add_at_index(piece, high, low, this);
    }
    return *this;
}
