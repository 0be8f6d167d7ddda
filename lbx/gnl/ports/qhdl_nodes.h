#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/writers/text_sink.h"

// QHDL reads most ports of a subdesign at its instance. Some have a node beside it instead, which the design around
// declares: the outputs of a cell that stands in the text as statements, and the bidirectional ports that are driven.

namespace gnl_detail {

/// Whether the bidirectional port of an instance is connected through a node beside it in the text of `level`: what
/// drives it in the body of `level` drives that node. A driver from within its own design doesn't count there.
bool has_bidir_node(GNL_PORT const & port, GNL_GENERATOR const * level);

/// Whether the port is an output of a cell that stands in the text as statements.
bool has_output_node(GNL_PORT const & port);

/// The reference to such an output, "[7..0]" or "[]" behind it as `with_index` asks.
///
/// Slices that are alike share the node of their array, slices that differ have a node each: a slice of the former is a
/// part of the array's node, the port of an array of the latter a list of the slices' nodes.
void write_output_node(text_sink & text, GNL_PORT & port, bool with_index);
/// The bits `high` down to `low` of such an output.
void write_output_node_bits(text_sink & text, GNL_PORT & port, int high, int low);

} // namespace gnl_detail
