#include "description_writer.h"
#include "reference_text.h"

using namespace gnl_detail;

namespace {

/// The subscripts behind an input's name in QHDL; a two-dimensional input of a cell has one for each dimension.
void write_qhdl_subscripts(text_sink & text, GNL_PORT_INPUT & port, bool with_index)
{
    if (port.get_width() == 0)
        return;
    GNL_GENERATOR const * const parent = port.get_parent();
    bool const has_rows = port.get_2d_width() > 0 || port.get_2d_width_parameter_name();
    if (parent && parent->is_primitive() && has_rows) {
        bool const rows_known = with_index && port.get_2d_width() > 0;
        write_qhdl_range(text, rows_known ? port.get_2d_width() : 1, rows_known);
    }
    write_qhdl_range(text, shown_width(port), with_index);
}

} // namespace

void GNL_PORT_INPUT::dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index,
                                           GNL_PORT * target)
{
    description_writer(out).run(*this, level, with_index, target);
}

void GNL_PORT_INPUT::describe(description_writer & writer, GNL_GENERATOR * level, bool with_index, GNL_PORT *)
{
    text_sink & text = writer.sink();
    if (get_parent() != level) {
        if (!is_verilog()) {
            text << get_parent_instance_name();
            write_instance_subscript(text, *this, true);
        }
        text << ".";
    }
    text << get_source_name(false);
    if (is_vhdl() && with_index)
        write_vhdl_range(text, get_width());
    else if (in_qhdl_style())
        write_qhdl_subscripts(text, *this, with_index);
}

void GNL_PORT_INPUT::dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, int high_slice)
{
    port_place const place(*this);
    if (!in_qhdl_style() || get_parent() == level || high_slice == -1 || place.slice_index() >= high_slice) {
        dump_port_description(out, level, with_index, nullptr);
        return;
    }
    text_sink text(out);
    text << get_parent_instance_name();
    if (place.is_slice())
        text << "[" << high_slice << ".." << place.slice_index() << "]";
    text << "." << get_source_name(false);
    write_qhdl_subscripts(text, *this, with_index);
}
