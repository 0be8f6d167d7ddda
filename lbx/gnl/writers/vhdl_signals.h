#pragma once

#include "gnl_generator.h"

#include <string_view>

// Which signals stand between a VHDL design and its subdesigns. What declares them and what connects them asks the same
// questions here, so that nothing is read that isn't declared.

namespace gnl_detail {

/// Whether a subdesign is instantiated as a cell of a library, with generics; any other one is an entity that has its
/// parameters built in.
bool is_vhdl_library_cell(GNL_GENERATOR & subdesign);

/// Whether `port`, an expression, a range or a concatenation, is a signal of its own in the text of `level`, because
/// somebody needs its bits one by one.
bool is_loop_signal(GNL_PORT const & port, GNL_GENERATOR const * level);
/// Whether it is written. What nobody reads may be made of wires that were taken out.
inline bool is_read_loop_signal(GNL_PORT const & port, GNL_GENERATOR const * level)
{
    return port.port_is_a_driver() && is_loop_signal(port, level);
}
/// The width of that signal: a vector also for one bit, but a range of one bit is a bit (0).
int loop_signal_width(GNL_PORT & port);

/// The width of the signal that stands for an output or a bidirectional port of a subdesign: a vector where somebody
/// takes a range of it, too.
int vhdl_net_width(GNL_PORT & port);

/// Whether a subdesign's input reads its driver through a signal: where it takes the driver bit by bit, and where an
/// instance can't show the driver in its port map. `concat_signals` is the `has_disabled_vhdl_concat_wires` of the
/// subdesign.
bool input_has_signal(GNL_PORT & input, bool concat_signals);

/// Whether a constant drives the input and nothing else does.
bool is_constant_input(GNL_PORT & port);
/// Whether a constant input has a signal of its own. A wide one has, and so has one that the slices of an array cut.
bool constant_has_signal(GNL_PORT & input);
/// The wire that the constant inputs of a width of 0 or 1 share in one architecture: "wire_vcc", "wire_gnd", or with
/// "_vector" for a vector of one element. Other widths have none: "".
std::string_view shared_constant_wire(GNL_PORT & input);

/// Whether a subdesign's bidirectional port has a signal in the text of `level`; without one it meets the port on the
/// other side directly.
bool bidir_has_signal(GNL_PORT & bidir, GNL_GENERATOR const * level);

/// Whether an input of a cell has a second signal, of a two-dimensional type.
bool has_2d_signal(GNL_PORT & port);
/// Whether the type of the port in its cell's component has two dimensions.
bool is_2d_in_component(GNL_PORT const & port);
/// How many rows a two-dimensional port has, and how many bits a row.
struct port_dimensions
{
    int rows;
    int row_width;
};
port_dimensions dimensions_of(GNL_PORT & port);

} // namespace gnl_detail
