#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/writers/driver_check.h"
#include "lbx/gnl/writers/text_sink.h"

#include <string_view>

// The pieces that all Verilog sections are made of.

namespace gnl_detail {

/// The blanks behind a range. They are uneven from section to section on purpose: users compare these lines byte by
/// byte.
inline constexpr std::string_view no_blanks, two_blanks = "  ", three_blanks = "   ";

/// "[7:0]" and the blanks behind it; nothing for a width of 0.
struct bus_range
{
    int width;
    std::string_view blanks;
};
inline text_sink & operator<<(text_sink & text, bus_range range)
{
    return range.width > 0 ? text << "[" << range.width - 1 << ":0]" << range.blanks : text;
}

/// "[7:4]".
struct bit_range
{
    int high;
    int low;
};
inline text_sink & operator<<(text_sink & text, bit_range range)
{
    return text << "[" << range.high << ":" << range.low << "]";
}
/// What slice `slice` takes of a signal of the whole array.
inline bit_range slice_range(int slice_width, int slice)
{
    return slice_width > 1 ? bit_range{slice_width * slice + slice_width - 1, slice_width * slice}
                           : bit_range{slice, slice};
}

/// "{8{1'b0}}".
struct repeated_bit
{
    int count;
    int bit;
};
inline text_sink & operator<<(text_sink & text, repeated_bit bits)
{
    return text << "{" << bits.count << "{1'b" << bits.bit << "}}";
}

/// The bits of a port's default.
text_sink & write_default(text_sink & text, GNL_PORT & port);

/// Declares the net of a port as the design around it knows it.
text_sink & declare_net(text_sink & text, std::string_view opener, bus_range range, GNL_PORT & port);
/// The options that stand behind the name in a declaration.
void write_port_options(text_sink & text, GNL_PORT & port);

/// What the statement of `level` shows of `driver` when it drives `target`.
void write_driver(text_sink & text, GNL_GENERATOR & level, GNL_PORT & driver, GNL_PORT & target);
/// The same, repeated as often as it fits into the target if `repeated` holds.
void write_driver(text_sink & text, GNL_GENERATOR & level, GNL_PORT & driver, GNL_PORT & target, bool repeated);
inline bool bus_widths_differ(GNL_PORT & port, GNL_PORT & driver)
{
    return port.get_bus_width() != driver.get_bus_width();
}

/// One `assign` statement; without an assignment nothing is written.
class assign_sequence
{
public:
    explicit assign_sequence(text_sink & text)
        : m_text(text)
    {
    }
    /// Starts an assignment; what is written next is its source.
    text_sink & to(std::string_view target) { return m_text << m_list << "\t\t" << target << " = "; }
    void close()
    {
        if (m_list.started())
            m_text << ";\n";
    }

private:
    text_sink & m_text;
    list_separator m_list{"\tassign\n", ",\n"};
};

/// Structural netlists: the nets and the gates of those expressions of `owner` that were made at `level`.
void declare_expression_nets(text_sink & text, GNL_GENERATOR & owner, GNL_GENERATOR const * level);
void write_gates(std::ostream & out, GNL_GENERATOR & owner, GNL_GENERATOR * level);

} // namespace gnl_detail
