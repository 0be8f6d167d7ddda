// A subdesign in the text of the design around it: what feeds it, then its instance, or what its hook writes instead.

#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/vhdl_signals.h"
#include "lbx/gnl/writers/vhdl_statements.h"

namespace gnl_detail {
namespace {

/// Expressions on the outputs of a subdesign that stands in the text as statements of its own. Anywhere else they
/// belong to what feeds the subdesign.
void write_custom_signals(GNL_GENERATOR & subdesign, GNL_GENERATOR & level, std::ostream & out)
{
    vhdl_assignments assign(level, out);
    for (GNL_PORT * port : subdesign.registry().all_ports())
        if (port->port_has_wire_in_custom_vhdl(&level))
            assign.assign_loop_signal(*port, port->get_bus_width());
}

void write_slice_feeds(GNL_GENERATOR & array, GNL_GENERATOR & level, std::ostream & out, signal_map & signals)
{
    array_slices const slices(array);
    for (int i = 0; i < array.get_array_width(); ++i)
        if (auto * slice = slices.at(i))
            slice->dump_vhdl_for_loop_for_slices(out, &level, !array.has_unrolled_vhdl_loop(), signals);
}

/// The hook runs once, on each slice where slices differ.
void write_custom(GNL_GENERATOR & subdesign, GNL_GENERATOR & level, std::ostream & out, signal_map & signals)
{
    if (subdesign.is_heterogeneous_array()) {
        array_slices const slices(subdesign);
        for (int i = 0; i < subdesign.get_array_width(); ++i)
            if (auto * slice = slices.at(i))
                slice->dump_vhdl_subdesign_connection(&level, out, signals);
    } else {
        if (subdesign.is_master_array() && !subdesign.uses_custom_subdesign_insert_mode())
            write_slice_feeds(subdesign, level, out, signals);
        subdesign.dump_vhdl_custom_output(out, &level);
    }
    if (subdesign.uses_custom_subdesign_insert_mode())
        write_custom_signals(subdesign, level, out);
}

} // namespace
} // namespace gnl_detail

void GNL_GENERATOR::dump_vhdl_subdesign_connection(GNL_GENERATOR * parent, std::ostream & out,
                                                   std::map<std::string, std::string, LESS_C_STRING> & signals)
{
    if (!uses_custom_subdesign_insert_mode())
        gnl_detail::write_vhdl_feeds(*this, *parent, out);
    if (uses_custom_vhdl_output()) {
        gnl_detail::write_custom(*this, *parent, out, signals);
        return;
    }
    if (is_master_array())
        gnl_detail::write_slice_feeds(*this, *parent, out, signals);
    gnl_detail::write_vhdl_instances(*this, *parent, out, signals);
}
