#include "constant_text.h"
#include "description_writer.h"
#include "reference_text.h"

using namespace gnl_detail;

void GNL_PORT::dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, GNL_PORT * target)
{
    description_writer(out).run(*this, level, with_index, target);
}

void GNL_PORT::dump_structural_netlist(std::ostream &, GNL_GENERATOR *) {}

void GNL_PORT::describe(description_writer & writer, GNL_GENERATOR * level, bool with_index, GNL_PORT *)
{
    text_sink & text = writer.sink();
    if (!is_simple_port()) {
        if (is_driven_by_constant())
            write_constant(text, constant_driving_value(), get_bus_width());
        return;
    }
    if (get_parent() != level) {
        if (!is_verilog()) {
            text << get_parent_instance_name();
            write_instance_subscript(text, *this, false);
        }
        text << ".";
    }
    text << get_source_name(false);
    if (is_vhdl() && with_index)
        write_vhdl_range(text, get_width());
    else if (in_qhdl_style() && get_width() != 0)
        write_qhdl_range(text, shown_width(*this), with_index);
}
