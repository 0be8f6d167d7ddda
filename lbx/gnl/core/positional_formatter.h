#pragma once

#include "lbx/gnl/core/printf_formatter.h"

#include <cstdarg>
#include <string>
#include <string_view>
#include <vector>

namespace gnl_detail {

/// A message format whose inserts name their argument by number:
///
///     positional_format format("%2!s! has %1!d! bits");
///     auto arguments = format.read_arguments(list);   // 8, "data"
///     format.text(arguments);                         // "data has 8 bits"
///
/// "%1" to "%99", alone for a text or with a printf conversion between two "!"; "%0" ends the format; "%" before
/// anything else stands for that character.
class positional_format
{
public:
    explicit positional_format(std::string_view format);

    /// The kinds of the arguments, from the first to the last that is named. An argument that is named as two things
    /// that cannot both be read safely is read as the one that is never followed into memory.
    std::vector<argument_kind> const & kinds() const { return m_kinds; }
    /// Reads every argument once, with its own type.
    std::vector<format_argument> read_arguments(std::va_list list) const;

    std::string text(std::vector<format_argument> const & arguments) const;
    /// The arguments alone, each by the first insert that gives it a conversion, each followed by a blank. As many
    /// arguments are looked for as the format has inserts.
    std::string arguments_text(std::vector<format_argument> const & arguments) const;

private:
    struct piece
    {
        std::string text;         ///< literal text, or the conversion with its "%"
        std::size_t argument = 0; ///< number of the first argument it takes, 0 for literal text
        bool has_specification = false;
    };

    void add_insert(std::string_view & rest);
    void add_literal(std::string_view text);
    void note_kinds(piece const & insert);
    piece const * specified_insert(std::size_t argument) const;

    std::vector<piece> m_pieces;
    std::vector<argument_kind> m_kinds;
    std::size_t m_insert_count = 0;
};

} // namespace gnl_detail
