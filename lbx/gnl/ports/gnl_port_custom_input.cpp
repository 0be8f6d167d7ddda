// What a cell that is written as statements shows of its inputs.
//
// A simple driver stands for itself. Any other driver of a control input (a clock, an enable) has the input's own wire,
// which the cell declares and assigns; only the inversion of a register's control input is folded into the statement,
// and in VHDL a single bit of a bus stands for itself. Data inputs show their driver inline, or, where the array is
// written slice by slice, by their own wire with the slice's index.

#include "reference_text.h"

using namespace gnl_detail;

namespace {

/// The slice that a text is for; none in the text of a whole cell.
struct wanted_slice
{
    int index;
    bool single;
};

class custom_input
{
public:
    custom_input(GNL_PORT_INPUT & input, GNL_GENERATOR * level, wanted_slice slice)
        : m_input(input)
        , m_level(level)
        , m_slice(slice)
        , m_source(source())
    {
    }

    void write(text_sink & text) const;
    /// Whether the text is a vector of one element, which compares with a string literal.
    bool is_one_element_vector() const;

private:
    bool is_data() const { return m_input.is_non_sensitive_custom_port(); }
    bool is_register_control() const;
    GNL_PORT & source() const;
    bool is_single_bit_range() const { return m_source.is_range_port() && m_source.get_bus_width() == 1; }
    bool shows_own_wire() const;
    bool means_a_bit() const;
    /// The input, if the driver is assembled from pieces that leave bits to the input's default; else null.
    GNL_PORT * target_of_holes() const;
    void write_slice_of(text_sink & text, port_signal const & signal, int width) const;

    GNL_PORT_INPUT & m_input;
    GNL_GENERATOR * m_level;
    wanted_slice m_slice;
    GNL_PORT & m_source;
};

bool equal_names(std::string_view a, std::string_view b)
{
    LESS_C_STRING const less;
    return !less(a, b) && !less(b, a);
}

bool custom_input::is_register_control() const
{
    return !is_data() && m_input.get_parent() && equal_names(m_input.get_parent()->get_name(), "dffe");
}

GNL_PORT & custom_input::source() const
{
    GNL_PORT & driver = *m_input.get_driver();
    if (is_register_control() && m_input.has_inverted_port_driver())
        return *static_cast<GNL_PORT_LOGIC &>(driver).get_first_operand();
    return driver;
}

bool custom_input::shows_own_wire() const
{
    if (m_source.is_simple_port())
        return false;
    if (is_data())
        return m_slice.single;
    return !(GNL_ELEMENT::is_vhdl() && is_single_bit_range());
}

bool custom_input::means_a_bit() const
{
    if (m_input.get_width() == 0)
        return true;
    if (is_data())
        return m_slice.single && port_place(m_input).slices() > 1;
    // A control input of one bit is compared as the vector that it is.
    return m_input.get_width() != 1;
}

GNL_PORT * custom_input::target_of_holes() const
{
    if (!m_source.is_concat_port())
        return nullptr;
    auto & concat = static_cast<GNL_PORT_CONCAT &>(m_source);
    int covered = 0;
    for (int i = 0; GNL_SUBCONCAT const * element = concat.get_concat_element(i); ++i)
        covered += element->high_index - element->low_index + 1;
    return covered < concat.get_bus_width() ? &m_input : nullptr;
}

void custom_input::write_slice_of(text_sink & text, port_signal const & signal, int width) const
{
    int const slice_width = m_input.get_original_width() > 0 ? m_input.get_original_width() : 1;
    // An array that is wider than its driver reads it again from the first bit.
    int const low = signal.low_bit + slice_width * m_slice.index % width;
    int const high = low + slice_width - 1;
    text << signal.name;
    if (GNL_ELEMENT::is_verilog())
        write_verilog_part(text, high, low);
    else if (slice_width > 1)
        write_vhdl_part(text, high, low);
    else
        text << "(" << low << ")";
}

void custom_input::write(text_sink & text) const
{
    bool const own_wire = shows_own_wire();
    int const width = own_wire ? m_input.get_width() : m_source.get_width();
    bool const by_slice = m_slice.single && width > 1 && (own_wire || m_source.is_simple_port());
    if (own_wire && by_slice)
        write_slice_of(text, {m_input.get_source_name(true), 0, true}, width);
    else if (own_wire)
        text << m_input.get_source_name(true);
    else if (by_slice)
        write_slice_of(text, signal_of(m_source, m_level), width);
    else {
        bool const with_index = GNL_ELEMENT::is_vhdl() && width == 1 && means_a_bit();
        m_source.dump_port_description(text.stream(), m_level, with_index, target_of_holes());
    }
}

bool custom_input::is_one_element_vector() const
{
    if (m_input.get_width() != 1)
        return false;
    if (shows_own_wire())
        return true;
    return m_source.is_simple_port() && m_source.get_width() == 1 && !means_a_bit()
           && signal_of(m_source, m_level).is_vector;
}

} // namespace

void GNL_PORT_INPUT::dump_custom_port_description(std::ostream & out, GNL_GENERATOR * level, int index, bool use_index)
{
    if (in_qhdl_style() || !check_port_has_valid_driver())
        return;
    if (m_driver) {
        text_sink text(out);
        custom_input(*this, level, {index, use_index && index >= 0}).write(text);
    } else if (GNL_PORT * const whole = port_place(*this).on_array(); whole && whole->is_input())
        static_cast<GNL_PORT_INPUT &>(*whole).dump_custom_port_description(out, level, port_place(*this).slice_index(),
                                                                           true);
}

void GNL_PORT_INPUT::dump_custom_constant_port_assignment(std::ostream & out, GNL_GENERATOR * level, int value,
                                                          bool use_index)
{
    if (!is_vhdl())
        return;
    bool const is_bit = get_original_width() <= 1 && check_port_has_valid_driver()
                        && !(m_driver && custom_input(*this, level, {0, use_index}).is_one_element_vector());
    char const quote = is_bit ? '\'' : '"';
    out << quote << value << quote;
}
