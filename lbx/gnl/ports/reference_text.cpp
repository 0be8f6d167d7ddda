#include "reference_text.h"

namespace gnl_detail {

port_place::port_place(GNL_PORT const & port)
    : m_port(port)
    , m_parent(port.get_parent())
{
}

bool port_place::among_slices() const
{
    GNL_GENERATOR const * const all = array();
    return all && all->get_array_width() > 1;
}

GNL_PORT * port_place::on_array() const
{
    GNL_GENERATOR * const all = array();
    return all ? all->get_port_object(m_port.get_name()) : nullptr;
}

bool port_place::connected_as_whole() const
{
    GNL_PORT const * const whole = on_array();
    return whole && whole->check_is_used_flag();
}

bool port_place::has_output_signals_in_qhdl() const
{
    return m_parent && m_parent->uses_custom_subdesign_insert_mode() && m_parent->uses_custom_qhdl_output();
}

void write_instance_subscript(text_sink & text, GNL_PORT const & port, bool range_if_uneven)
{
    port_place const place(port);
    if (place.slices() >= 1 && range_if_uneven && place.in_heterogeneous_array())
        text << "[" << place.slices() - 1 << "..0]";
    else if (place.slices() >= 1)
        text << "[]";
    else if (place.is_slice())
        text << "[" << place.slice_index() << "]";
}

bool can_select(GNL_PORT const & port, int high, int low)
{
    int const width = port.get_original_width();
    GNL_GENERATOR const * const array = port.get_parent();
    if (!GNL_ELEMENT::is_qhdl() || width < 2 || low < 0 || !array || array->get_array_width() == 0
        || array->is_in_rtl_body())
        return true;
    return high / width == low / width || (low % width == 0 && (high + 1LL) % width == 0);
}

void write_qhdl_range(text_sink & text, int width, bool with_index)
{
    if (width < 1)
        return;
    if (with_index)
        text << "[" << width - 1 << "..0]";
    else
        text << "[]";
}

int shown_width(GNL_PORT & port)
{
    return port_place(port).slices() >= 1 ? port.get_original_width() : port.get_width();
}

void write_vhdl_range(text_sink & text, int width)
{
    if (width > 1)
        write_vhdl_part(text, width - 1, 0);
    else if (width == 1)
        text << "(0)";
}

void write_verilog_part(text_sink & text, int high, int low)
{
    text << "[" << high << ":" << low << "]";
}

void write_vhdl_part(text_sink & text, int high, int low)
{
    text << "(" << high << " DOWNTO " << low << ")";
}

port_signal signal_of(GNL_PORT & port, GNL_GENERATOR const * level)
{
    bool const outside = port.get_parent() != level && port.is_simple_port();
    port_signal signal{port.get_source_name(outside), 0, port.get_width() > 0};
    if (!outside || port.is_input() || port.is_wire())
        return signal;
    port_place const place(port);
    if (place.among_slices() && place.connected_as_whole()) {
        signal.low_bit = port.get_bus_width() * place.slice_index();
        signal.is_vector = true;
    } else if (GNL_ELEMENT::is_vhdl() && place.slices() <= 1 && port.get_original_width() < 1)
        signal.is_vector = port.is_vhdl_array_wire();
    return signal;
}

std::string vhdl_loop_variable(GNL_GENERATOR * level, std::string const & letter)
{
    std::string name = letter;
    while (level && level->get_port_object(name))
        name.insert(0, "loop_");
    return name;
}

void write_slice_part(text_sink & text, GNL_PORT & port, bool with_index)
{
    port_place const place(port);
    int const width = port.get_bus_width();
    bool const of_array = place.connected_as_whole();
    int const low = of_array ? width * place.slice_index() : 0;
    if (GNL_ELEMENT::is_verilog())
        write_verilog_part(text, low + width - 1, low);
    else if (width > 1)
        write_vhdl_part(text, low + width - 1, low);
    else if (of_array || (with_index && signal_of(port, nullptr).is_vector))
        text << "(" << low << ")";
}

} // namespace gnl_detail
