#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/writers/text_sink.h"

#include <vector>

// The pieces that all QHDL sections are made of. A section of pins and signals gives the range of a bus, a statement
// names the whole bus by "[]".

namespace gnl_detail {

/// The reference to a pin or a signal of `design` in the section that declares it.
text_sink & write_qhdl_declared(text_sink & text, GNL_PORT & port, GNL_GENERATOR & design);

/// Starts a statement of `level` that drives `sink`: what is written next is its source.
text_sink & begin_qhdl_assignment(text_sink & text, GNL_PORT & sink, GNL_GENERATOR & level);

/// The statement that drives `sink` from what was connected to it in the body of `level`, a constant or a port. False
/// when nothing was, or the driver is of no use there, which is reported.
bool assign_qhdl_sink(text_sink & text, GNL_PORT & sink, GNL_GENERATOR & level);

/// What drives `sink` in the body of `level`, null when it is nothing or of no use there, which is reported.
GNL_PORT * usable_driver(GNL_PORT & sink, GNL_GENERATOR & level);

/// The statements of an input or a bidirectional port of a subdesign, nothing for others.
void connect_qhdl_port(text_sink & text, GNL_PORT & port, GNL_GENERATOR & level);

/// The statements of a port that an array as a whole doesn't connect, but its slices may.
void connect_qhdl_slices(text_sink & text, std::vector<GNL_PORT *> const & of_slices, GNL_GENERATOR & level);

/// The statements of an array whose slices differ.
void connect_qhdl_heterogeneous_array(std::ostream & out, GNL_GENERATOR & array, GNL_GENERATOR & level);

} // namespace gnl_detail
