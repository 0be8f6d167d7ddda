#include "gnl_port_range.h"

#include "gnl_generator.h"
#include "hierarchical_names.h"
#include "made_port.h"
#include "operator_keys.h"
#include "port_messages.h"
#include "range_base.h"
#include "reference_text.h"
#include "saturated.h"

#include "lbx/gnl/core/element_registry.h"

using gnl_detail::make_port;
using gnl_detail::port_message;
using gnl_detail::report;
using gnl_detail::saturated;

namespace {

int width_of(GNL_PORT const * driver, int high, int low)
{
    return driver ? saturated(static_cast<long long>(high) - low + 1) : 0;
}

/// The slices of a port count where the array is connected, not in the design of its slices: there it has the width of
/// one.
bool has_slices(GNL_GENERATOR const * parent)
{
    return parent && parent->get_array_width() > 0 && !parent->is_in_rtl_body();
}

/// A range of a port that has no bits to select from. It selects them from a wire, or from nothing when that failed,
/// and is found again by the port.
class indirect_range : public GNL_PORT_OUTPUT_RANGE
{
public:
    indirect_range(GNL_GENERATOR * parent, GNL_PORT & asked, GNL_GENERATOR * level, GNL_PORT * driver, int high,
                   int low)
        : GNL_PORT_OUTPUT_RANGE(parent, driver, high, low)
        , m_asked(asked)
    {
        set_made_level(level);
    }
    GNL_PORT * get_key_port() const override { return &m_asked; }

private:
    GNL_PORT & m_asked;
};

/// Makes a range that does not exist yet.
class range_maker
{
public:
    range_maker(GNL_PORT & port, int high, int low, GNL_GENERATOR * level)
        : m_port(port)
        , m_high(high)
        , m_low(low)
        , m_level(level)
    {
    }

    GNL_PORT_OUTPUT_RANGE & make()
    {
        mark_vector_of_one();
        if (m_high > m_port.get_bus_width() - 1 || m_low < 0)
            return out_of_bounds();
        if (!m_port.is_logic() && !m_port.is_concat_port() && m_port.check_range_for_arrays(m_high, m_low)
            && !is_cut_out_of_slices())
            return direct();
        return through_wire();
    }

private:
    /// VHDL takes an index of a vector only.
    void mark_vector_of_one()
    {
        GNL_GENERATOR const * const parent = m_port.get_parent();
        bool const in_array_of_one = parent && parent->get_array_width() == 1;
        if (m_port.is_output() && (m_port.get_width() == 0 || (in_array_of_one && m_port.get_original_width() == 0)))
            m_port.set_vhdl_array_wire();
    }

    /// A range of whole slices can hold bits that no single reference shows.
    bool is_cut_out_of_slices()
    {
        // In QHDL alone slices count. Ranges have their port's parent.
        if (!GNL_ELEMENT::is_qhdl() || !m_port.is_range_port() || !has_slices(m_port.get_parent()))
            return false;
        if (!m_port.check_rhs(m_level))
            return false;
        auto const base = gnl_detail::base_of(static_cast<GNL_PORT_OUTPUT_RANGE &>(m_port));
        return base.port
               && !gnl_detail::can_select(*base.port, saturated(m_high + base.low), saturated(m_low + base.low));
    }

    GNL_PORT_OUTPUT_RANGE & on_port()
    {
        auto & range = make_port<GNL_PORT_OUTPUT_RANGE>(m_port.get_parent(), &m_port, m_high, m_low);
        m_port.set_port_is_a_driver();
        return range;
    }

    GNL_PORT_OUTPUT_RANGE & out_of_bounds()
    {
        auto & range = on_port();
        if (auto const * const parent = m_port.get_parent())
            report<port_message::range_out_of_bounds>(*parent, m_port.get_hierarchical_name(), m_port.get_bus_width(),
                                                      m_high, m_low);
        return range;
    }

    GNL_PORT_OUTPUT_RANGE & direct()
    {
        auto & range = on_port();
        mark_used();
        return range;
    }

    GNL_PORT_OUTPUT_RANGE & through_wire()
    {
        if (m_port.check_rhs(m_level))
            return on_reading_wire();
        if (m_port.is_input())
            if (GNL_PORT * const wire = driving_wire())
                return on_wire(*wire);
        return failed();
    }

    GNL_PORT_OUTPUT_RANGE & on_reading_wire()
    {
        GNL_PORT & wire = new_wire();
        wire = m_port;
        m_port.set_port_is_a_driver();
        mark_used();
        return on_wire(wire);
    }

    /// The wire that drives a subdesign's input, which is assigned bit by bit; null when something else drives it.
    GNL_PORT * driving_wire()
    {
        if (GNL_PORT * const driver = m_port.get_driver())
            return driver->is_wire() && m_port.get_parent()->is_auto_generated_wire_name(driver->get_name()) ? driver
                                                                                                             : nullptr;
        GNL_WIRE & wire = new_wire();
        if (m_port.get_default_value() != -1)
            wire.set_default_port_value(m_port.get_default_value());
        m_port = wire;
        m_port.set_port_is_a_driver();
        return &wire;
    }

    GNL_WIRE & new_wire()
    {
        GNL_GENERATOR * at = m_port.get_connection_level();
        if (!at)
            at = m_level ? m_level : m_port.get_parent();
        return make_port<GNL_WIRE>(at, GNL_PORT::get_wire_name_from_parent(at, "", ""), m_port.get_width());
    }

    GNL_PORT_OUTPUT_RANGE & on_wire(GNL_PORT & wire)
    {
        wire.set_port_is_a_driver();
        return indirect(&wire);
    }

    GNL_PORT_OUTPUT_RANGE & failed()
    {
        if (auto const * const parent = m_port.get_parent())
            report<port_message::range_across_slices>(*parent, m_port.get_hierarchical_name());
        return indirect(nullptr);
    }

    GNL_PORT_OUTPUT_RANGE & indirect(GNL_PORT * driver)
    {
        return make_port<indirect_range>(m_port.get_parent(), m_port, m_level, driver, m_high, m_low);
    }

    void mark_used()
    {
        if (!m_port.is_input())
            m_port.set_used();
    }

    GNL_PORT & m_port;
    int m_high;
    int m_low;
    GNL_GENERATOR * m_level;
};

} // namespace

GNL_PORT_OUTPUT_RANGE & GNL_PORT::range(int high, int low)
{
    if (int const width_2d = get_2d_width(); width_2d > 0) {
        high = saturated((high + 1LL) * width_2d - 1);
        low = saturated(static_cast<long long>(low) * width_2d);
    }
    GNL_GENERATOR * const level = find_connection_level();
    if (GNL_GENERATOR * const parent = get_parent())
        if (GNL_PORT_OUTPUT_RANGE * const known = parent->registry().find_range(this, high, low, level)) {
            if (known->get_range_driver())
                known->get_range_driver()->set_port_is_a_driver();
            return *known;
        }
    return range_maker(*this, high, low, level).make();
}

GNL_PORT_OUTPUT_RANGE & GNL_PORT::operator[](int bit)
{
    return range(bit, bit);
}

bool GNL_PORT::check_range_for_arrays(int high, int low)
{
    GNL_GENERATOR const * const parent = get_parent();
    if (!has_slices(parent))
        return true;
    if (parent->is_heterogeneous_array() && is_heterogeneous_port()) {
        report<port_message::array_port_range>(*parent, get_hierarchical_name());
        return false;
    }
    if (get_original_width() < 1 || is_range_port())
        return true;
    return low % get_original_width() == 0 && (high + 1LL) % get_original_width() == 0;
}

GNL_PORT_OUTPUT_RANGE::GNL_PORT_OUTPUT_RANGE(GNL_GENERATOR * parent, GNL_PORT * driver, int high, int low)
    : GNL_PORT(parent, driver ? late_name_number(parent) : 0, width_of(driver, high, low))
    , m_high_index(high)
    , m_low_index(low)
    , m_range_driver(driver)
    , m_made_level(driver ? driver->find_connection_level() : nullptr)
{
    if (!parent && driver)
        set_name(get_wire_name_from_parent(nullptr, driver->get_name(), "range"));
    if (parent && driver && high < low)
        report<port_message::range_order>(*parent, driver->get_hierarchical_name(), high, low);
}

std::string GNL_PORT_OUTPUT_RANGE::make_late_name(std::uint32_t number) const
{
    return GNL_GENERATOR::numbered_wire_name(m_range_driver->get_name(), "range", number);
}

void GNL_PORT_OUTPUT_RANGE::replace_range_driver(GNL_PORT * driver)
{
    static_cast<void>(get_name()); // which holds that of the first one
    m_range_driver = driver;
    if (GNL_GENERATOR * parent = get_parent())
        parent->registry().forget_range_bases();
}

std::string GNL_PORT_OUTPUT_RANGE::generate_key_base(std::string const & base, int high, int low)
{
    return "RNG;" + base + ";" + convert_int_to_string(high) + ";" + convert_int_to_string(low);
}

std::string GNL_PORT_OUTPUT_RANGE::generate_key() const
{
    return gnl_detail::operator_key(*this);
}

std::string GNL_PORT_OUTPUT_RANGE::get_hierarchical_name() const
{
    return gnl_detail::operator_name(*this);
}

bool GNL_PORT_OUTPUT_RANGE::check_range_driver_validity(GNL_GENERATOR * level)
{
    GNL_PORT const * const driver = gnl_detail::base_of(*this).port;
    if (!driver)
        return true;
    bool const own = driver->get_parent() == level;
    return driver->is_input() ? own : !driver->is_output() || !own;
}

void GNL_PORT_OUTPUT_RANGE::set_range_port_used()
{
    auto const base = gnl_detail::base_of(*this);
    GNL_PORT * const driver = base.port;
    if (!driver)
        return;
    if (!driver->is_input())
        driver->set_used();
    else if (!driver->is_used()) {
        if (driver->get_default_value() != -1)
            driver->set_generate_constant_wire();
        else if (base.innermost->get_parent())
            report<port_message::unconnected_input_in_range>(*base.innermost->get_parent(),
                                                             base.innermost->get_hierarchical_name(),
                                                             driver->get_hierarchical_name());
    }
}

bool GNL_PORT_OUTPUT_RANGE::is_std_logic_port()
{
    return get_bus_width() == 1;
}
