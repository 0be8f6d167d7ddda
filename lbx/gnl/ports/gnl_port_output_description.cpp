#include "description_writer.h"
#include "qhdl_nodes.h"
#include "reference_text.h"

using namespace gnl_detail;

namespace {

void describe_in_qhdl(text_sink & text, GNL_PORT_OUTPUT & port, GNL_GENERATOR const * level, bool with_index)
{
    bool const outside = port.get_parent() != level;
    if (outside && has_output_node(port)) {
        write_output_node(text, port, with_index);
        return;
    }
    if (outside) {
        text << port.get_parent_instance_name();
        write_instance_subscript(text, port, true);
        text << ".";
    }
    text << port.get_source_name(false);
    if (port.get_width() != 0)
        write_qhdl_range(text, shown_width(port), with_index);
}

/// The index behind the signal of an output in VHDL. A scalar of which a range was taken is declared with one element,
/// and whoever names the scalar means that bit.
void write_vhdl_index(text_sink & text, GNL_PORT_OUTPUT & port, bool with_index)
{
    bool const is_vector = signal_of(port, nullptr).is_vector;
    if (is_vector && (with_index || port.get_width() == 0))
        write_vhdl_range(text, port.get_bus_width());
}

/// An output of a subdesign, which is a signal of the design around it.
void describe_signal(text_sink & text, GNL_PORT_OUTPUT & port, bool with_index)
{
    text << port.get_source_name(true);
    if (port_place(port).among_slices())
        write_slice_part(text, port, with_index);
    else if (GNL_ELEMENT::is_vhdl())
        write_vhdl_index(text, port, with_index);
}

/// Slice `slice` of `width` bits each, by the rules of a cell's own text. `is_vector` says whether a single bit is
/// reached by an index.
void write_custom_part(text_sink & text, int width, int slice, bool is_vector)
{
    int const low = width * slice;
    int const high = low + width - 1;
    if (GNL_ELEMENT::is_verilog())
        write_verilog_part(text, high, low);
    else if (width > 1)
        write_vhdl_part(text, high, low);
    else if (is_vector)
        text << "(" << slice << ")";
}

} // namespace

void GNL_PORT_OUTPUT::dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index,
                                            GNL_PORT * target)
{
    description_writer(out).run(*this, level, with_index, target);
}

void GNL_PORT_OUTPUT::describe(description_writer & writer, GNL_GENERATOR * level, bool with_index, GNL_PORT *)
{
    text_sink & text = writer.sink();
    if (in_qhdl_style())
        describe_in_qhdl(text, *this, level, with_index);
    else if (get_parent() != level)
        describe_signal(text, *this, with_index);
    else {
        text << get_source_name(false);
        if (is_vhdl() && with_index)
            write_vhdl_range(text, get_width());
    }
}

void GNL_PORT_OUTPUT::dump_custom_port_description(std::ostream & out, GNL_GENERATOR *, int index, bool use_index)
{
    if (in_qhdl_style())
        return;
    text_sink text(out);
    text << get_source_name(true);
    port_place const place(*this);
    int const width = get_original_width() > 0 ? get_original_width() : 1;
    if (use_index && index >= 0)
        write_custom_part(text, width, index, get_original_width() > 0 || place.slices() > 1 || m_vhdl_array_wire);
    else if (place.connected_as_whole())
        write_custom_part(text, width, place.slice_index(), true);
}
