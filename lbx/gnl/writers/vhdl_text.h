#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/writers/text_sink.h"

#include <map>
#include <string>
#include <string_view>

// The pieces that all VHDL sections are made of.

namespace gnl_detail {

/// The names of the signals that the sections of one architecture share.
using signal_map = std::map<std::string, std::string, LESS_C_STRING>;

/// What stands between STD_LOGIC and its range. The blank is uneven from section to section on purpose: users compare
/// these lines byte by byte.
inline constexpr std::string_view vector_of = "_VECTOR (", tight_vector_of = "_VECTOR(";

/// "_VECTOR (7 DOWNTO 0)"; nothing for a width of 0.
struct vector_suffix
{
    int width;
    std::string_view opener = vector_of;
};
inline text_sink & operator<<(text_sink & text, vector_suffix suffix)
{
    return suffix.width > 0 ? text << suffix.opener << suffix.width - 1 << " DOWNTO 0)" : text;
}

/// "(7 DOWNTO 4)", "(7)" for one bit.
struct vhdl_range
{
    int high;
    int low;
};
inline text_sink & operator<<(text_sink & text, vhdl_range range)
{
    text << "(" << range.high;
    if (range.high != range.low)
        text << " DOWNTO " << range.low;
    return text << ")";
}
/// What slice `slice` takes of a signal of the whole array.
inline vhdl_range vhdl_slice_range(int slice_width, int slice)
{
    return slice_width > 1 ? vhdl_range{slice_width * slice + slice_width - 1, slice_width * slice}
                           : vhdl_range{slice, slice};
}

/// "'1'", or "(OTHERS => '1')" for a vector; 2 is high impedance.
struct vhdl_level
{
    int value;
    bool of_vector;
};
inline text_sink & operator<<(text_sink & text, vhdl_level level)
{
    text << (level.of_vector ? "(OTHERS => '" : "'");
    if (level.value == 2)
        text << "Z";
    else
        text << level.value;
    return text << (level.of_vector ? "')" : "'");
}

/// Declares a signal of the design around a subdesign: "\t SIGNAL  wire_u1_q\t:\tSTD_LOGIC_VECTOR (7 DOWNTO 0)".
inline text_sink & declare_vhdl_signal(text_sink & text, std::string_view name, int width)
{
    return text << "\t SIGNAL  " << name << "\t:\tSTD_LOGIC" << vector_suffix{width};
}

} // namespace gnl_detail
