#include "qhdl_nodes.h"

#include "reference_text.h"

#include "lbx/gnl/writers/list_separator.h"

#include <algorithm>

namespace gnl_detail {

bool has_bidir_node(GNL_PORT const & port, GNL_GENERATOR const * level)
{
    return port.is_bidir() && port.get_parent() != level && port.get_connection_level() == level
           && (port.get_driver() || port.is_driven_by_constant());
}

bool has_output_node(GNL_PORT const & port)
{
    return port.is_output() && port_place(port).has_output_signals_in_qhdl();
}

namespace {

/// "[7..4]".
text_sink & write_bits(text_sink & text, int high, int low)
{
    return text << "[" << high << ".." << low << "]";
}

text_sink & write_name(text_sink & text, GNL_GENERATOR const & node_of, GNL_PORT const & port)
{
    return text << node_of.get_qhdl_port_extension() << port.get_name();
}

/// The array whose node holds the bits of this slice's port, null when the slice has a node of its own.
GNL_GENERATOR * shared_node_of(GNL_PORT const & port)
{
    port_place const place(port);
    auto * array = place.is_slice() ? port.get_parent()->get_array_parent() : nullptr;
    return array && !array->is_heterogeneous_array() ? array : nullptr;
}

bool has_nodes_of_slices(GNL_PORT const & port)
{
    port_place const place(port);
    return place.slices() > 0 && place.in_heterogeneous_array() && port.get_parent()->is_master_array();
}

/// The part of slice `index` among the bits `high` down to `low` of the whole, of which the slice's begin at `from`.
void write_part(text_sink & text, GNL_PORT & of_slice, int from, int high, int low)
{
    int const width = of_slice.get_width();
    write_name(text, *of_slice.get_parent(), of_slice);
    if (width > 0 && low <= from && high >= from + width - 1)
        write_qhdl_range(text, width, false);
    else if (width > 0)
        write_bits(text, std::min(high - from, width - 1), std::max(low - from, 0));
}

/// From the highest slice down. Only arrays whose slices are equally wide are read in parts.
void write_list(text_sink & text, GNL_PORT & port, int high, int low)
{
    auto & array = *port.get_parent();
    int const slice_width = std::max(port.get_original_width(), 1);
    bool const even = port.get_width() == slice_width * array.get_array_width();
    int const first = even ? high / slice_width : array.get_array_width() - 1;
    int const last = even ? low / slice_width : 0;
    int end = even ? (first + 1) * slice_width : port.get_width();
    list_separator list("( ", ", ");
    for (int i = first; i >= last; --i) {
        auto * of_slice = array.get_port_object_from_slice(i, port.get_name());
        if (!of_slice)
            continue;
        end -= of_slice->get_bus_width();
        text << list;
        write_part(text, *of_slice, end, high, low);
    }
    text << ")";
}

} // namespace

void write_output_node(text_sink & text, GNL_PORT & port, bool with_index)
{
    int const bits = port.get_bus_width();
    if (shared_node_of(port) || has_nodes_of_slices(port)) {
        write_output_node_bits(text, port, bits - 1, 0);
        return;
    }
    write_name(text, *port.get_parent(), port);
    // One node holds all slices of an array, also when a slice is a scalar.
    bool const of_array = port_place(port).slices() > 0 && port.get_original_width() > 0;
    if (port.get_width() != 0)
        write_qhdl_range(text, of_array ? port.get_original_width() : port.get_width(), with_index);
}

void write_output_node_bits(text_sink & text, GNL_PORT & port, int high, int low)
{
    if (has_nodes_of_slices(port)) {
        write_list(text, port, high, low);
    } else if (auto * array = shared_node_of(port)) {
        int const from = port.get_bus_width() * port.get_parent()->get_slice_index();
        write_bits(write_name(text, *array, port), from + high, from + low);
    } else {
        write_name(text, *port.get_parent(), port);
        if (port.get_width() != 0)
            write_bits(text, high, low);
    }
}

} // namespace gnl_detail
