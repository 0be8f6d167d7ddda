#include "reference_text.h"

using namespace gnl_detail;

namespace {

/// Whether the name of a slice's port needs the slice's index to differ from that of its neighbours.
bool slice_has_own_signal(GNL_PORT const & port)
{
    port_place const place(port);
    if (!place.is_slice() || place.connected_as_whole())
        return false;
    if (!GNL_ELEMENT::is_vhdl())
        return true;
    GNL_GENERATOR const * const array = port.get_parent()->get_array_parent();
    return array && array->has_unrolled_vhdl_loop() && (port.is_input() || port.is_output() || port.is_bidir());
}

} // namespace

std::string GNL_PORT::get_source_name(bool for_connection)
{
    bool const pin = is_input() || is_output() || is_bidir();
    bool const names_signal = for_connection && !is_wire() && (is_vhdl() || (is_verilog() && pin));
    if (!names_signal)
        return is_vhdl() && is_simple_port() ? get_vhdl_name() : get_name();

    std::string name = m_use_parent_source_name ? "" : "wire_";
    if (std::string const instance = get_parent_instance_name(); !instance.empty()) {
        name += instance;
        if (!m_use_parent_source_name)
            name += '_';
    }
    if (slice_has_own_signal(*this))
        name += std::to_string(get_parent()->get_slice_index());
    // Behind "wire_" and an instance no reserved word can arise.
    if (!m_use_parent_source_name)
        name += get_name();
    return name;
}
