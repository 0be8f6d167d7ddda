#pragma once

// Splits QHDL text into words. What no word can start with is an error.

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace qhdl {

/// Where something stands in a file; both count from 1.
struct place
{
    int line = 1;
    int column = 1;
};

/// Text that the reader doesn't take: "top.tdf:3:5: unexpected \"]\"".
class error : public std::runtime_error
{
public:
    error(std::string const & file, place at, std::string const & message)
        : std::runtime_error(file + ":" + std::to_string(at.line) + ":" + std::to_string(at.column) + ": " + message)
    {
    }
};

enum class word_kind {
    name,
    number,
    string, ///< without its quotes
    bits,   ///< the digits of B"0101"
    symbol,
    end
};

struct word
{
    word_kind kind = word_kind::end;
    std::string text;
    place at;
};

/// The words of `text`, without comments; the last one is of kind `end`.
std::vector<word> words_of(std::string const & file, std::string_view text);

/// Letters in lower case: names and keywords differ in more than case.
std::string folded(std::string_view text);

} // namespace qhdl
