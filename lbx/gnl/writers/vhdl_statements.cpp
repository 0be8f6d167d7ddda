#include "lbx/gnl/writers/vhdl_statements.h"

#include "lbx/gnl/ports/description_writer.h"
#include "lbx/gnl/ports/range_base.h"
#include "lbx/gnl/ports/saturated.h"
#include "lbx/gnl/writers/vhdl_signals.h"

#include <algorithm>

namespace gnl_detail {
namespace {

/// The only element of a concatenation, null when it has none or several.
GNL_PORT * only_element(GNL_PORT & port)
{
    if (!port.is_concat_port())
        return nullptr;
    auto & concat = static_cast<GNL_PORT_CONCAT &>(port);
    return concat.get_element_count() == 1 ? concat.get_concat_element(0)->port : nullptr;
}

bool is_plain_constant(GNL_PORT const & port)
{
    return !port.is_simple_port() && !port.is_logic() && !port.is_range_port() && !port.is_concat_port();
}

bool has_all_bits(GNL_PORT_CONCAT & concat)
{
    int covered = 0;
    for (int i = 0; i < concat.get_element_count(); ++i)
        covered += concat.get_concat_element(i)->high_index - concat.get_concat_element(i)->low_index + 1;
    return covered == concat.get_bus_width();
}

/// A slice's part of the signal of an array is reached by an index also when it is one bit.
bool is_part_of_array(GNL_PORT & port, GNL_GENERATOR const * level)
{
    port_place const place(port);
    return port.get_parent() != level && place.among_slices() && place.connected_as_whole();
}

bool simple_reads_as_vector(GNL_PORT & port, GNL_GENERATOR const * level)
{
    return port.get_width() == 1 && !is_part_of_array(port, level) && signal_of(port, level).is_vector;
}

/// A range shows a vector only to the input of a subdesign that is declared with a width.
bool range_reads_as_vector(GNL_PORT & range, GNL_GENERATOR const * level, GNL_PORT const * target)
{
    if (target == nullptr || target->get_original_width() <= 0 || target->get_parent() == level)
        return false;
    GNL_PORT * const base = base_port(&range);
    return base != nullptr && signal_of(*base, level).is_vector;
}

/// Whether the expression is written in place, where its operands have to be bits to fit each other.
bool is_expression_in_place(GNL_PORT const & port)
{
    return port.is_logic() && !port.need_to_create_vhdl_loop();
}

} // namespace

bool reads_as_vector(GNL_PORT & driver, GNL_GENERATOR const * level, GNL_PORT * target)
{
    if (driver.is_simple_port())
        return simple_reads_as_vector(driver, level);
    if (driver.is_range_port())
        return range_reads_as_vector(driver, level, target);
    if (driver.is_logic())
        return driver.need_to_create_vhdl_loop() && driver.get_width() == 1;
    auto * element = only_element(driver);
    return element == nullptr || element->is_concat_port() || reads_as_vector(*element, level, target);
}

std::string vhdl_constant(std::string const & bits, int width)
{
    if (bits.empty())
        return {};
    if (width == 0)
        return "'" + bits + "'";
    bool const uniform = std::ranges::all_of(bits, [&](char bit) { return bit == bits.front(); });
    if (uniform && (bits.front() == '0' || bits.front() == '1'))
        return std::string("(OTHERS => '") + bits.front() + "')";
    return "\"" + bits + "\"";
}

port_signal bits_of_driver(GNL_PORT & driver, GNL_GENERATOR const * level)
{
    if (is_loop_signal(driver, level))
        return {driver.get_source_name(true), 0, loop_signal_width(driver) > 0};
    if (!driver.is_range_port())
        return signal_of(driver, level);
    auto const base = base_of(static_cast<GNL_PORT_OUTPUT_RANGE &>(driver));
    if (base.port == nullptr)
        return {};
    port_signal signal = signal_of(*base.port, level);
    signal.low_bit = saturated(signal.low_bit + base.low);
    return signal;
}

text_sink & operator<<(text_sink & text, slice_of_signal const & part)
{
    bool const again = part.held > 0 && part.held < part.slices;
    if (part.index >= 0)
        return text << vhdl_slice_range(part.width, again ? part.index % part.held : part.index);
    std::string variable(part.variable);
    if (again)
        variable += " mod " + GNL_ELEMENT::convert_int_to_string(part.held);
    if (part.width <= 1)
        return text << "(" << variable << ")";
    if (again)
        variable = "(" + variable + ")";
    return text << "(" << variable << "*" << part.width << "+" << part.width - 1 << " DOWNTO " << variable << "*"
                << part.width << ")";
}

void vhdl_assignments::write_driver(GNL_PORT & driver, GNL_PORT * target, bool as_bit)
{
    if (auto * element = only_element(driver); as_bit && element != nullptr && is_plain_constant(*element))
        m_text << "( '" << element->constant_driving_value() << "')";
    else
        write_reference(m_text, driver, &m_level, as_bit, as_bit ? nullptr : target);
}

void vhdl_assignments::assign(std::string const & name, int width, GNL_PORT * target, GNL_PORT & driver)
{
    int const bits = std::max(width, 1);
    int const driver_bits = driver.get_bus_width();
    bool const has_bits = driver.is_simple_port() || driver.is_range_port() || is_loop_signal(driver, &m_level);
    if (bits == 1 && driver_bits == 1) {
        assign_bit(name, width == 1, target, driver);
    } else if (driver_bits < bits && (has_bits || driver_bits == 1)) {
        stretch(name, bits, driver);
    } else {
        m_text << "\t" << name;
        if (driver_bits < bits)
            m_text << "(" << driver_bits - 1 << " DOWNTO 0)";
        m_text << " <= ";
        write_reference(m_text, driver, &m_level, driver_bits > bits, target);
        m_text << ";\n";
    }
}

void vhdl_assignments::assign_bit(std::string const & name, bool is_vector, GNL_PORT * target, GNL_PORT & driver)
{
    bool const driver_is_vector = !is_expression_in_place(driver) && reads_as_vector(driver, &m_level, target);
    m_text << "\t" << name << (is_vector && !driver_is_vector ? "(0)" : "") << " <= ";
    write_driver(driver, target, !(is_vector && driver_is_vector));
    m_text << ";\n";
}

void vhdl_assignments::stretch(std::string const & name, int width, GNL_PORT & driver)
{
    auto const label = m_level.generate_loop_name();
    auto const variable = vhdl_loop_variable(&m_level, "i");
    int const driver_bits = driver.get_bus_width();
    m_text << "\t" << label << " : FOR " << variable << " IN 0 TO " << width - 1 << " GENERATE\n\t\t" << name << "("
           << variable << ") <= ";
    if (driver.is_simple_port() || driver.is_range_port() || is_loop_signal(driver, &m_level)) {
        auto const signal = bits_of_driver(driver, &m_level);
        m_text << signal.name;
        if (driver_bits > 1) {
            m_text << "(" << variable << "/" << width / driver_bits;
            if (signal.low_bit != 0)
                m_text << "+" << signal.low_bit;
            m_text << ") ";
        } else if (signal.is_vector) {
            m_text << "(" << signal.low_bit << ")";
        }
    } else {
        write_driver(driver, nullptr, true);
    }
    m_text << ";\n\tEND GENERATE " << label << ";\n";
}

void vhdl_assignments::repeat(std::string const & name, int slice_width, int slices, GNL_PORT & driver)
{
    auto const label = m_level.generate_loop_name();
    auto const variable = vhdl_loop_variable(&m_level, "i");
    m_text << "\t" << label << " : FOR " << variable << " IN 0 TO " << slices - 1 << " GENERATE\n\t\t" << name
           << slice_of_signal{slice_width, slices, slices, -1, variable} << " <= ";
    write_driver(driver, nullptr, slice_width <= 1);
    m_text << ";\n\tEND GENERATE " << label << ";\n";
}

void vhdl_assignments::assign_loop_signal(GNL_PORT & port, int width)
{
    // The pieces of a port that leave bits to its default are read by that port alone, which fills them in.
    if (port.is_concat_port() && !has_all_bits(static_cast<GNL_PORT_CONCAT &>(port)))
        return;
    if (port.is_logic())
        static_cast<GNL_PORT_LOGIC &>(port).dump_vhdl_for_generate_loop(m_text.stream(), &m_level);
    else if (port.get_bus_width() == 1)
        assign_bit(port.get_source_name(true), width > 0, nullptr, port);
    else
        assign(port.get_source_name(true), width, nullptr, port);
}

} // namespace gnl_detail
