#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gnl_detail {

/// What a conversion takes from the argument list.
enum class argument_kind : std::uint8_t {
    none,               ///< no conversion names the argument: one machine word is skipped
    integer,            ///< int
    long_integer,       ///< 64 bits
    real,               ///< double
    address,            ///< a pointer that is only shown
    text,               ///< char const *
    wide_text,          ///< wchar_t const *
    counted_text,       ///< counted_string const *
    count_target,       ///< int *, takes the number of characters so far
    short_count_target, ///< short *, the same in 16 bits
};

/// The record of a "Z" conversion: a text that ends by its length.
struct counted_string
{
    std::uint16_t length;
    char const * text;
};

/// One argument with the type that it was read with. Asked for as something else it answers 0 or null, so that a format
/// that contradicts itself is never followed into memory.
struct format_argument
{
    argument_kind kind = argument_kind::none;
    std::int64_t number = 0;
    double real = 0;
    void * pointer = nullptr;

    std::int64_t as_number() const;
    double as_real() const { return kind == argument_kind::real ? real : static_cast<double>(as_number()); }
    /// The pointer if the argument is of exactly this kind.
    template <class TARGET> TARGET * as_pointer(argument_kind wanted) const
    {
        return kind == wanted ? static_cast<TARGET *>(pointer) : nullptr;
    }
};

/// Arguments in the order in which a format asks for them.
class argument_source
{
public:
    virtual ~argument_source() = default;
    virtual format_argument next(argument_kind kind) = 0;
};

/// Appends `format`, filled with arguments, to `out`: the conversions d i u o x X p c C s S Z e E f g G n, the flags
/// blank # + - 0, width and precision as digits or "*", the sizes h l ll I64 w. A floating value is always in
/// positional notation. Returns how many characters were appended, or -1 when a wide character could not be converted.
int stl_output(std::string & out, std::string_view format, argument_source & arguments);

/// The kinds that `format` would take, in order.
std::vector<argument_kind> argument_kinds_of(std::string_view format);

} // namespace gnl_detail
