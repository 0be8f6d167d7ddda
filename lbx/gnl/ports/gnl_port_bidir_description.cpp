#include "description_writer.h"
#include "port_messages.h"
#include "qhdl_nodes.h"
#include "reference_text.h"

using namespace gnl_detail;

namespace {

/// A bidir of an instance that is driven stands behind a node of its own, which is named without a subscript. An array
/// has one node for all slices.
void describe_in_qhdl(text_sink & text, GNL_PORT_BIDIR & port, GNL_GENERATOR const * level, bool with_index)
{
    bool const is_node = has_bidir_node(port, level);
    if (is_node) {
        text << port.get_parent()->get_qhdl_port_extension();
    } else if (port.get_parent() != level) {
        text << port.get_parent_instance_name();
        write_instance_subscript(text, port, false);
        text << ".";
    }
    text << port.get_source_name(false);
    if (port.get_width() != 0)
        write_qhdl_range(text, is_node ? port.get_width() : shown_width(port), with_index);
}

void describe_signal(text_sink & text, GNL_PORT_BIDIR & port, bool with_index)
{
    text << port.get_source_name(true);
    if (port_place(port).among_slices())
        write_slice_part(text, port, with_index);
    else if (GNL_ELEMENT::is_vhdl() && with_index && port.get_bus_width() == 1 && signal_of(port, nullptr).is_vector)
        text << "(0)";
}

/// The bits of an own bidir that a subdesign's bidir drives.
void write_driven_bits(std::ostream & out, GNL_PORT_OUTPUT_RANGE const & range)
{
    text_sink text(out);
    text << range.get_range_driver()->get_source_name(false);
    if (GNL_ELEMENT::is_verilog())
        write_verilog_part(text, range.get_high_index(), range.get_low_index());
    else if (range.get_low_index() < range.get_high_index())
        write_vhdl_part(text, range.get_high_index(), range.get_low_index());
    else
        text << "(" << range.get_high_index() << ")";
}

} // namespace

void GNL_PORT_BIDIR::dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index,
                                           GNL_PORT * target)
{
    description_writer(out).run(*this, level, with_index, target);
}

void GNL_PORT_BIDIR::describe(description_writer & writer, GNL_GENERATOR * level, bool with_index, GNL_PORT *)
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

void GNL_PORT_BIDIR::dump_special_driver_description(std::ostream & out, GNL_GENERATOR * level, int index)
{
    if (in_qhdl_style())
        return;
    if (!m_driven_bidir_port) {
        if (m_bidir_usage == 0 && m_driver)
            m_driver->dump_port_description(out, level, false, this);
        return;
    }
    GNL_PORT & driven = *m_driven_bidir_port;
    if (driven.is_range_port()) {
        auto const & range = static_cast<GNL_PORT_OUTPUT_RANGE const &>(driven);
        GNL_PORT const * const source = range.get_range_driver();
        if (source && source->is_bidir() && source->get_parent() == level)
            write_driven_bits(out, range);
        else if (get_parent())
            report<port_message::bidir_to_non_bidir>(*get_parent(), get_hierarchical_name(),
                                                     driven.get_hierarchical_name());
    } else if (driven.is_bidir()) {
        driven.dump_port_description(out, level, false, this);
        if (!is_vhdl())
            return;
        bool const one_slice = port_place(*this).slices() == 1;
        if (driven.get_original_width() == 1 && get_original_width() == 0 && one_slice)
            out << "(0)";
        else if (index != -1)
            out << "(" << index << ")";
    }
}
