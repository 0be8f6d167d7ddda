#include "gnl_port.h"

#include "gnl_generator.h"
#include "gnl_port_concat.h"
#include "gnl_port_logic.h"

#include "lbx/gnl/ports/reference_text.h"
#include "lbx/gnl/ports/saturated.h"
#include "lbx/gnl/writers/array_slices.h"

#include <algorithm>

using gnl_detail::port_place;

GNL_PORT::GNL_PORT(GNL_GENERATOR * parent, std::string const & name, int width, int width_2d)
    : GNL_ELEMENT(parent, name)
    , m_width(width)
{
    if (width_2d == 0)
        return;
    made_extras().width_2d = width_2d;
    change_width(gnl_detail::saturated(static_cast<long long>(width) * width_2d));
}

GNL_PORT::GNL_PORT(GNL_GENERATOR * parent, std::uint32_t late_number, int width)
    : GNL_ELEMENT(parent, late_number)
    , m_width(width)
{
}

GNL_PORT::GNL_PORT(GNL_PORT const & other)
    : GNL_ELEMENT(other)
    , m_width(other.m_width)
    , m_driver(other.m_driver)
    , m_extras(other.m_extras ? std::make_unique<extras>(*other.m_extras) : nullptr)
    , m_connection_level(other.m_connection_level)
    , m_driver_count(other.m_driver_count)
    , m_driven_by_constant(other.m_driven_by_constant)
    , m_create_vhdl_loop(other.m_create_vhdl_loop)
    , m_used(other.m_used)
    , m_signed(other.m_signed)
    , m_heterogeneous(other.m_heterogeneous)
    , m_vhdl_array_wire(other.m_vhdl_array_wire)
    , m_included_in_declaration(other.m_included_in_declaration)
    , m_use_parent_source_name(other.m_use_parent_source_name)
    , m_driver_removal_done(other.m_driver_removal_done)
{
}

GNL_PORT::extras::extras(extras const & other)
    : constant(other.constant ? std::make_unique<MLIB_UINTEGER>(*other.constant) : nullptr)
    , internal_options(other.internal_options)
    , slice_width(other.slice_width)
    , width_2d(other.width_2d)
{
}

GNL_PORT::~GNL_PORT() = default;

GNL_PORT::extras & GNL_PORT::made_extras()
{
    if (!m_extras)
        m_extras = std::make_unique<extras>();
    return *m_extras;
}

void GNL_PORT::set_constant(std::unique_ptr<MLIB_UINTEGER> constant)
{
    if (constant || m_extras)
        made_extras().constant = std::move(constant);
}

std::string GNL_PORT::generate_key_base(std::string const & name)
{
    return "PORT;" + name;
}

std::string GNL_PORT::generate_key() const
{
    return generate_key_base(get_name());
}

GNL_ELEMENT * GNL_PORT::find_object(std::string const & key) const
{
    return get_parent() ? get_parent()->find_port_object(key) : nullptr;
}

bool GNL_PORT::check_range_driver_validity(GNL_GENERATOR *)
{
    return true;
}

void GNL_PORT::set_create_vhdl_loop()
{
    if (is_vhdl())
        m_create_vhdl_loop = true;
}

bool GNL_PORT::is_std_logic_port()
{
    return get_width() == 0;
}

// ---- Use

bool GNL_PORT::is_used()
{
    GNL_GENERATOR * parent = get_parent();
    if (m_used || !parent)
        return m_used;
    if (parent->is_master_array()) {
        auto const ports = gnl_detail::array_slices(*parent).ports(get_name());
        return std::any_of(ports.begin(), ports.end(), [](GNL_PORT * port) { return port->check_is_used_flag(); });
    }
    GNL_PORT * on_array = port_place(*this).on_array();
    return on_array && on_array->check_is_used_flag();
}

bool GNL_PORT::declare_port()
{
    return m_driver_count > 0 || !is_wire() || !get_parent() || !get_parent()->allow_removal_of_optional_wires();
}

bool GNL_PORT::port_has_wire_in_custom_vhdl(GNL_GENERATOR * level)
{
    GNL_GENERATOR * parent = get_parent();
    if (!parent || !parent->uses_custom_vhdl_output() || m_driver_count < 1 || is_simple_port())
        return false;
    if (is_concat_port() && !parent->has_disabled_vhdl_concat_wires())
        return false;
    return need_to_create_vhdl_loop() && m_connection_level == level;
}

// ---- Drivers

void GNL_PORT::remove_driver()
{
    m_driver = nullptr;
    m_used = false;
    m_connection_level = nullptr;
}

void GNL_PORT::remove_constant_driver()
{
    set_constant(nullptr);
    m_used = false;
    m_connection_level = nullptr;
}

void GNL_PORT::replace_driver(GNL_PORT * driver)
{
    if (m_driver)
        m_driver->remove_port_as_driver();
    m_driver = driver;
    if (driver)
        driver->set_port_is_a_driver();
    set_constant(nullptr);
}

namespace {

/// The value may be the very constant that it replaces, so the new one is complete before the old one goes.
template <class VALUE> std::unique_ptr<MLIB_UINTEGER> constant_of_width(int width, VALUE const & value)
{
    auto constant = std::make_unique<MLIB_UINTEGER>(0U, width);
    *constant = value;
    return constant;
}

} // namespace

void GNL_PORT::replace_driver(int value)
{
    auto constant = constant_of_width(get_width(), value);
    replace_driver(static_cast<GNL_PORT *>(nullptr));
    set_constant(std::move(constant));
    m_driven_by_constant = true;
}

void GNL_PORT::replace_driver(MLIB_UINTEGER & value)
{
    auto constant = constant_of_width(get_width(), value);
    replace_driver(static_cast<GNL_PORT *>(nullptr));
    set_constant(std::move(constant));
    m_driven_by_constant = true;
}

bool GNL_PORT::check_port_has_valid_driver()
{
    if (m_driver)
        return true;
    GNL_PORT * on_array = port_place(*this).on_array();
    return on_array && on_array->check_port_has_valid_driver();
}

bool GNL_PORT::check_port_is_driven_by_constant()
{
    if (is_driven_by_constant())
        return true;
    GNL_PORT * on_array = port_place(*this).on_array();
    return on_array && on_array->check_port_is_driven_by_constant();
}

bool GNL_PORT::has_inverted_port_driver()
{
    if (!m_driver) {
        GNL_PORT * on_array = port_place(*this).on_array();
        return on_array && on_array->has_inverted_port_driver();
    }
    if (!m_driver->is_logic())
        return false;
    auto const & logic = static_cast<GNL_PORT_LOGIC const &>(*m_driver);
    GNL_PORT * operand = logic.get_first_operand();
    return logic.is_not_port() && operand && operand->is_simple_port() && (!is_vhdl() || operand->get_bus_width() < 2);
}

bool GNL_PORT::check_port_assignment(int low, int high)
{
    if (is_driven_by_constant())
        return false;
    if (!m_driver)
        return true;
    return !check_if_driven_at_bits(low, high);
}

bool GNL_PORT::check_if_driven_at_bits(int low, int high)
{
    if (!m_driver || !m_driver->is_concat_port())
        return m_driver != nullptr;
    // What was concatenated as a whole is repeated to fill a wider port, such as that of an array.
    auto & concat = static_cast<GNL_PORT_CONCAT &>(*m_driver);
    return concat.is_complete() || concat.has_bits_assigned(low, high);
}

// ---- Constants

unsigned GNL_PORT::constant_driving_value_as_int() const
{
    auto const * const constant = constant_driving_value_as_mlib_int();
    return constant ? constant->uint() : 0;
}

std::string GNL_PORT::constant_driving_value()
{
    auto const * const constant = constant_driving_value_as_mlib_int();
    return constant ? constant->as_bin_string() : std::string();
}

std::string GNL_PORT::constant_driving_value(int index)
{
    std::string const bits = constant_driving_value();
    long long const width = get_bus_width();
    long long const slice_width = get_original_width();
    long long const at = index;
    // The count stands as it is on purpose: at index 1 the text runs to the end of the constant.
    if (slice_width != 0 && slice_width != 1)
        return bits.substr(static_cast<std::size_t>(width - (at + 1) * slice_width),
                           static_cast<std::size_t>(width - slice_width * at));
    if (at > static_cast<long long>(bits.size()))
        return "0";
    return std::string(1, bits.at(static_cast<std::size_t>(width - at - 1)));
}

int GNL_PORT::get_port_constant_driving_value()
{
    GNL_PORT * port = this;
    while (!port->is_driven_by_constant()) {
        GNL_PORT * on_array = port_place(*port).on_array();
        if (!on_array)
            break;
        port = on_array;
    }
    return static_cast<int>(port->constant_driving_value_as_int());
}
