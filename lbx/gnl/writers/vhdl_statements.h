#pragma once

#include "lbx/gnl/ports/reference_text.h"
#include "lbx/gnl/writers/vhdl_text.h"

#include <string>

// Assignments in a VHDL architecture.
//
// A signal of one bit is a STD_LOGIC when it was declared without a width and a vector of one element when it was
// declared with a width of 1; the two don't fit each other. So where one bit is assigned or connected, it is asked of
// both sides which of the two they are, and "(0)" stands behind the one that is the vector.

namespace gnl_detail {

/// Whether what the text of `level` shows of a driver of one bit, without an index, is a vector of one element.
/// `target` is what it drives, null for nothing.
bool reads_as_vector(GNL_PORT & driver, GNL_GENERATOR const * level, GNL_PORT * target);

/// What a constant of `width` bits is written as: "'1'", "(OTHERS => '0')", "\"0101\"".
std::string vhdl_constant(std::string const & bits, int width);

/// A signal of which a statement needs a bit: its name, the bit with which it begins, whether it has an index at all.
/// An expression that is a signal of its own is that one.
port_signal bits_of_driver(GNL_PORT & driver, GNL_GENERATOR const * level);

/// "(i*4+3 DOWNTO i*4)", "(i)": what one of `slices` slices takes of a signal that holds `held` of them. A signal that
/// holds fewer is read again from its start. `index` is the slice's number, or -1 in a loop over `variable`.
struct slice_of_signal
{
    int width; ///< of one slice, 0 for a scalar
    int slices;
    int held;
    int index;
    std::string_view variable;
};
text_sink & operator<<(text_sink & text, slice_of_signal const & part);

/// The assignments that the text of one design is made of.
class vhdl_assignments
{
public:
    vhdl_assignments(GNL_GENERATOR & level, std::ostream & out)
        : m_level(level)
        , m_text(out)
    {
    }

    GNL_GENERATOR & level() const { return m_level; }
    text_sink & text() { return m_text; }

    /// What `level` shows of `driver`. `as_bit` asks for one bit also of a vector of one element.
    void write_driver(GNL_PORT & driver, GNL_PORT * target, bool as_bit);
    /// Lets `driver` drive the signal `name` of `width`, which stands for `target`. A driver that is narrower is
    /// stretched: each of its bits feeds as many neighbouring bits of the signal.
    void assign(std::string const & name, int width, GNL_PORT * target, GNL_PORT & driver);
    void assign(std::string const & name, std::string_view text) { m_text << "\t" << name << " <= " << text << ";\n"; }
    /// Gives each slice of the signal of an array the driver, which is as wide as one slice.
    void repeat(std::string const & name, int slice_width, int slices, GNL_PORT & driver);
    /// An expression, a range or a concatenation that is a signal of its own.
    void assign_loop_signal(GNL_PORT & port, int width);

private:
    void assign_bit(std::string const & name, bool is_vector, GNL_PORT * target, GNL_PORT & driver);
    void stretch(std::string const & name, int width, GNL_PORT & driver);

    GNL_GENERATOR & m_level;
    text_sink m_text;
};

/// What feeds the ports of a subdesign, and the expressions on its outputs that are signals of their own.
void write_vhdl_feeds(GNL_GENERATOR & subdesign, GNL_GENERATOR & level, std::ostream & out);

/// The instance statements of a subdesign: one, one for each slice, or one in a loop over the slices.
void write_vhdl_instances(GNL_GENERATOR & subdesign, GNL_GENERATOR & level, std::ostream & out,
                          signal_map const & signals);

} // namespace gnl_detail
