#pragma once

#include "gnl_element.h"

#include <array>
#include <string_view>

namespace gnl_detail {

/// What the languages differ in by words.
struct language_text
{
    std::string_view comment;   ///< stands before a comment line
    std::string_view extension; ///< of a top design's file
    char comment_char;          ///< first character of a comment line
    unsigned line_limit;        ///< longest line of a file, 0 for any
};

/// One row for each language, in selector order.
inline constexpr std::array<language_text, 4> language_texts{{
    {"--", ".tdf", '\n', 0},
    {"//", ".v", '/', 2048},
    {"--", ".vhd", '-', 2048},
    {"--", ".tcl", '\n', 0},
}};

constexpr language_text const & language_text_of(int language)
{
    return language_texts[static_cast<std::size_t>(language)];
}
inline language_text const & current_language_text()
{
    return language_text_of(GNL_ELEMENT::get_gen_language());
}

/// Extension of a subdesign's file. Tcl has none; should one be asked for, it is named as in QHDL.
inline std::string_view subdesign_extension()
{
    return language_text_of(GNL_ELEMENT::is_tcl() ? GNL_QHDL : GNL_ELEMENT::get_gen_language()).extension;
}

} // namespace gnl_detail
