#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/writers/text_sink.h"

#include <string>

namespace gnl_detail {

/// QHDL and whatever follows it: all but Verilog and VHDL.
inline bool in_qhdl_style()
{
    return !GNL_ELEMENT::is_verilog() && !GNL_ELEMENT::is_vhdl();
}

/// Where a port stands when its parent is an array or a slice of one.
class port_place
{
public:
    explicit port_place(GNL_PORT const & port);

    /// How many slices the parent has, 0 when it is no array.
    int slices() const { return m_parent ? m_parent->get_array_width() : 0; }
    bool in_heterogeneous_array() const { return m_parent && m_parent->is_heterogeneous_array(); }
    bool is_slice() const { return slice_index() >= 0; }
    int slice_index() const { return m_parent ? m_parent->get_slice_index() : -1; }
    /// Whether the parent is one of two or more slices.
    bool among_slices() const;
    /// The port of the same name on the array, null when the parent is no slice.
    GNL_PORT * on_array() const;
    /// Whether the array's port of this name is connected as a whole, so that a slice is a part of its signal.
    bool connected_as_whole() const;
    /// Whether the parent stands in the text as statements of its own, with its outputs in signals of the parent's name
    /// instead of an instance.
    bool has_output_signals_in_qhdl() const;

private:
    GNL_GENERATOR * array() const { return is_slice() ? m_parent->get_array_parent() : nullptr; }

    GNL_PORT const & m_port;
    GNL_GENERATOR * m_parent;
};

/// The subscript of an instance in QHDL: "[]" for a whole array, its range where slices differ and `range_if_uneven`
/// asks for it, the index of a slice.
void write_instance_subscript(text_sink & text, GNL_PORT const & port, bool range_if_uneven);

/// Whether one reference can show the bits `high` down to `low` of `port`. QHDL selects slices of an array and then
/// bits in each of them: the bits of one slice, or whole slices.
bool can_select(GNL_PORT const & port, int high, int low);

/// "[", `width` - 1, "..0]", or "[]" without `with_index`; nothing for a width below 1.
void write_qhdl_range(text_sink & text, int width, bool with_index);

/// The width that a QHDL reference shows: of one slice in an array.
int shown_width(GNL_PORT & port);

/// "(", `width` - 1, " DOWNTO 0)", "(0)" for one bit, nothing for a scalar.
void write_vhdl_range(text_sink & text, int width);

/// "[", `high`, ":", `low`, "]".
void write_verilog_part(text_sink & text, int high, int low);

/// "(", `high`, " DOWNTO ", `low`, ")".
void write_vhdl_part(text_sink & text, int high, int low);

/// The signal of a declared pin or wire as Verilog and VHDL know it, apart from any index, and the bit of it with which
/// the port begins: a slice of an array that is connected as a whole is a part of the array's signal.
struct port_signal
{
    std::string name;
    int low_bit = 0;
    /// Whether a bit of the signal is reached by an index. An array's signal is a vector also when its slices are
    /// scalars, and a scalar of which a range was taken is a vector of one element in VHDL.
    bool is_vector = false;
};
port_signal signal_of(GNL_PORT & port, GNL_GENERATOR const * level);

/// The variable of a generate loop in the VHDL text of `level`: `letter`, with "loop_" in front as long as it would
/// hide a signal of that name.
std::string vhdl_loop_variable(GNL_GENERATOR * level, std::string const & letter);

/// What follows the signal of a slice's port in Verilog and VHDL: its part of the whole array's signal, or the range of
/// its own one. In VHDL `with_index` asks for the index of a single bit.
void write_slice_part(text_sink & text, GNL_PORT & port, bool with_index);

} // namespace gnl_detail
