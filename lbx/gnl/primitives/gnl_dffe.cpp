#include "gnl_dffe.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/primitives/cells.h"

#include <algorithm>

using gnl_detail::equal_folded;

GNL_DFFE::GNL_DFFE(GNL_GENERATOR * parent, int array_size)
    : GNL_GENERATOR(parent, "dffe", "", array_size)
    , m_clk(this, "clk")
    , m_ena(this, "ena")
    , m_clrn(this, "clrn")
    , m_prn(this, "prn")
    , m_d(this, "d")
    , m_aload(this, "aload")
    , m_adata(this, "adata")
    , m_sclr(this, "sclr")
    , m_sload(this, "sload")
    , m_q(this, "q")
    , m_power_up(this, "power_up", "high(on)|low(off)|dont_care", 2)
    , m_device_family(this, "DEVICE_FAMILY", "", -1)
    , m_is_wysiwyg(this, "is_wysiwyg", "true|false", 1)
{
    set_vhdl_primitive();
    dont_generate_file();
    set_primitive();
    process_port_widths();
    set_instance_basename("dffe");
    m_d.set_default_port_value(0);
    m_clrn.set_default_port_value(1);
    m_prn.set_default_port_value(1);
    m_ena.set_default_port_value(1);
    m_aload.set_default_port_value(0);
    m_adata.set_default_port_value(1);
    m_sclr.set_default_port_value(0);
    m_sload.set_default_port_value(0);
    m_q.set_use_verilog_reg();
    set_custom_subdesign_insert_mode();
    set_use_custom_verilog_output();
    set_use_custom_vhdl_output();
    set_no_include_declaration();
    m_d.set_non_sensitive_custom_port();
    m_adata.set_non_sensitive_custom_port();
    m_q.set_use_parent_source_name();
}

void GNL_DFFE::create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name)
{
    gnl_detail::settle_slice(*new GNL_DFFE(parent), parent, index, instance_name);
}

void GNL_DFFE::get_version(std::map<std::string, std::string, LESS_C_STRING> & versions)
{
    gnl_detail::enter_library_version(versions);
}

namespace {

/// A port answers for its array, whose slices it looks up, and so can't be asked through a const reference.
bool in_use(GNL_PORT const & port)
{
    return const_cast<GNL_PORT &>(port).is_used();
}

} // namespace

std::string GNL_DFFE::get_entity_name() const
{
    if (auto const & set = get_external_entity_name(); !set.empty())
        return set;
    if (in_use(m_sclr) || in_use(m_sload))
        return get_name() + "as";
    return in_use(m_aload) ? get_name() + "a" : get_name();
}

std::string GNL_DFFE::get_qelvar_internal_option()
{
    if (!m_power_up.is_used() || is_simulate_mode())
        return {};
    // "dont_care", when it was asked for, is a level as well.
    return m_power_up.comparenocase("HIGH") ? "POWER_UP_LEVEL=HIGH" : "POWER_UP_LEVEL=LOW";
}

int GNL_DFFE::get_custom_vhdl_initial_value(std::string const & port_name)
{
    if (!equal_folded(port_name, "Q"))
        return -1;
    return m_power_up.comparenocase("HIGH") ? 1 : 0;
}

// ---- Unrolling

namespace {

/// A control input that differs from bit to bit, or that only some slices connect.
bool control_requires_unroll(GNL_PORT & port)
{
    if (GNL_PORT * driver = port.get_driver(); driver && port.is_used()) {
        if (driver->get_width() > 1)
            return true;
        if (driver->get_bus_width() < port.get_bus_width() && !port.has_inverted_port_driver()
            && !driver->is_simple_port())
            return true;
    }
    return !port.check_is_used_flag() && port.is_used();
}

} // namespace

bool GNL_DFFE::any_control_requires_unroll()
{
    GNL_PORT * const controls[] = {&m_clk, &m_clrn, &m_prn, &m_aload, &m_sclr, &m_sload, &m_ena};
    return std::any_of(std::begin(controls), std::end(controls),
                       [](GNL_PORT * port) { return control_requires_unroll(*port); });
}

bool GNL_DFFE::dffe_requires_unroll()
{
    if (get_array_width() < 1)
        return false;
    if (any_control_requires_unroll() || !m_d.check_port_has_valid_driver())
        return true;
    if (is_vhdl() && m_adata.is_used() && m_adata.get_driver() && !m_adata.get_driver()->is_simple_port())
        return true;
    return (is_master_array() || is_heterogeneous_array()) && !m_q.check_is_used_flag();
}

// ---- Markers

GNL_DFFE & GNL_DFFE::whole_register()
{
    auto * whole = this;
    while (whole->get_slice_index() != -1) {
        auto * array = dynamic_cast<GNL_DFFE *>(whole->get_array_parent());
        if (!array || array == whole)
            break;
        whole = array;
    }
    return *whole;
}

int * GNL_DFFE::marker_of_slice(int index)
{
    auto const place = static_cast<std::size_t>(index);
    return m_marker_array && index >= 0 && place < m_marker_array->size() ? &(*m_marker_array)[place] : nullptr;
}

int GNL_DFFE::get_marker_count(int index)
{
    auto & whole = whole_register();
    if (index == -1)
        return whole.m_marker_count;
    if (!whole.m_marker_array) {
        auto const slices = static_cast<std::size_t>(std::max(whole.get_array_width(), 0));
        whole.m_marker_array.emplace(slices, whole.m_marker_count);
    }
    int const * marker = whole.marker_of_slice(index);
    return marker ? *marker : -1;
}

void GNL_DFFE::increment_marker_count(int index)
{
    auto & whole = whole_register();
    if (index != -1) {
        if (int * marker = whole.marker_of_slice(index))
            ++*marker;
        return;
    }
    ++whole.m_marker_count;
    if (whole.m_marker_array)
        for (int & marker : *whole.m_marker_array)
            ++marker;
}
