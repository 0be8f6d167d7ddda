#include "gnl_port_range.h"

#include "description_writer.h"
#include "gnl_generator.h"
#include "qhdl_nodes.h"
#include "range_base.h"
#include "reference_text.h"
#include "saturated.h"

#include "lbx/gnl/writers/text_sink.h"

using gnl_detail::base_of;
using gnl_detail::port_place;
using gnl_detail::port_signal;
using gnl_detail::saturated;
using gnl_detail::signal_of;
using gnl_detail::text_sink;

namespace {

/// What a range shows in the end: bits of a port that is no range.
struct shown_bits
{
    GNL_PORT_OUTPUT_RANGE const * range; ///< the innermost range of the chain
    int high;
    int low;
};

/// The bits `first` down to `second` of `range`, or all of it when `first` is negative.
shown_bits bits_of(GNL_PORT_OUTPUT_RANGE const & range, int first, int second)
{
    auto const base = base_of(range);
    if (first >= 0)
        return {base.innermost, saturated(base.low + first), saturated(base.low + second)};
    long long const width_less_one = static_cast<long long>(range.get_high_index()) - range.get_low_index();
    return {base.innermost, saturated(base.low + width_less_one), saturated(base.low)};
}

void write_verilog(text_sink & text, shown_bits const & bits, GNL_GENERATOR const * level)
{
    port_signal const signal = signal_of(*bits.range->get_range_driver(), level);
    text << signal.name;
    if (!signal.is_vector)
        return;
    text << "[" << saturated(static_cast<long long>(bits.high) + signal.low_bit);
    if (bits.high != bits.low)
        text << ":" << saturated(static_cast<long long>(bits.low) + signal.low_bit);
    text << "]";
}

/// A target of one bit takes a bit and no vector of one element, and an array of such targets takes several. The input
/// of a subdesign takes what it was given.
bool is_one_bit_in_vhdl(shown_bits const & bits, GNL_GENERATOR const * level, GNL_PORT const * target)
{
    if (target && target->get_original_width() <= 0 && target->get_default_width() <= 1)
        return true;
    return bits.high == bits.low && (!target || target->get_original_width() <= 0 || target->get_parent() == level);
}

void write_vhdl(text_sink & text, shown_bits const & bits, GNL_GENERATOR const * level, GNL_PORT const * target)
{
    port_signal const signal = signal_of(*bits.range->get_range_driver(), level);
    text << signal.name;
    if (!signal.is_vector)
        return;
    text << "(" << saturated(static_cast<long long>(bits.high) + signal.low_bit);
    if (!is_one_bit_in_vhdl(bits, level, target))
        text << " DOWNTO " << saturated(static_cast<long long>(bits.low) + signal.low_bit);
    text << ")";
}

/// How QHDL reaches a port of a subdesign: its instance and the slices that the bits lie in.
void write_instance(text_sink & text, shown_bits const & bits)
{
    GNL_PORT & port = *bits.range->get_range_driver();
    port_place const place(*bits.range);
    text << port.get_parent_instance_name();
    if (place.is_slice())
        text << "[" << place.slice_index() << "]";
    else if (int const width = port.get_original_width(); place.slices() > 0 && width < 1)
        text << "[" << bits.high << ".." << bits.low << "]";
    else if (place.slices() > 0)
        text << "[" << bits.high / width << ".." << bits.low / width << "]";
    text << ".";
}

void write_qhdl(text_sink & text, shown_bits const & bits, GNL_GENERATOR const * level)
{
    GNL_PORT & port = *bits.range->get_range_driver();
    bool const outside = port.get_parent() != level;
    if (outside && gnl_detail::has_output_node(port)) {
        gnl_detail::write_output_node_bits(text, port, bits.high, bits.low);
        return;
    }
    bool const is_bidir_node = gnl_detail::has_bidir_node(port, level);
    if (is_bidir_node)
        text << port.get_parent()->get_qhdl_port_extension();
    else if (outside)
        write_instance(text, bits);
    text << port.get_source_name(bits.range->get_parent() != level);
    if (port.get_width() == 0)
        return;
    int const width = port.get_original_width();
    // The node of an array holds the bits of all slices.
    bool const within_slice = port_place(*bits.range).slices() > 0 && !is_bidir_node;
    if (!within_slice)
        text << "[" << bits.high << ".." << bits.low << "]";
    else if (width > 0)
        text << "[" << bits.high % width << ".." << bits.low % width << "]";
}

void write_bits(text_sink & text, shown_bits const & bits, GNL_GENERATOR const * level, GNL_PORT const * target)
{
    if (!bits.range->get_range_driver())
        return;
    if (GNL_ELEMENT::is_verilog())
        write_verilog(text, bits, level);
    else if (GNL_ELEMENT::is_vhdl())
        write_vhdl(text, bits, level, target);
    else
        write_qhdl(text, bits, level);
}

} // namespace

void GNL_PORT_OUTPUT_RANGE::describe(gnl_detail::description_writer & writer, GNL_GENERATOR * level, bool,
                                     GNL_PORT * target)
{
    write_bits(writer.sink(), bits_of(*this, -1, -1), level, target);
}

void GNL_PORT_OUTPUT_RANGE::dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool, GNL_PORT * target)
{
    text_sink text(out);
    write_bits(text, bits_of(*this, -1, -1), level, target);
}

void GNL_PORT_OUTPUT_RANGE::dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool, GNL_PORT * target,
                                                  int first, int second)
{
    text_sink text(out);
    write_bits(text, bits_of(*this, first, second), level, target);
}
