// A printf that appends to a string: a state machine over the classes of the format's characters.
//
// It takes its arguments from a source instead of an argument list. One source only notes which kinds are asked for, so
// that a caller can learn the types of all arguments before it reads the first one.

#include "lbx/gnl/core/printf_formatter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <cmath>
#include <cwchar>

namespace gnl_detail {

namespace {

/// Fields are cut to this, so that a stray width cannot eat the memory.
constexpr int widest_field = 32767;
constexpr std::size_t longest_digits = 512;
constexpr int default_real_precision = 6;
constexpr int address_digits = 2 * static_cast<int>(sizeof(void *));

enum char_class {
    other_class,
    percent_class,
    dot_class,
    star_class,
    zero_class,
    digit_class,
    flag_class,
    size_class,
    type_class
};
enum state { normal, percent, flag, width, dot, precision, size, type };

constexpr char_class class_of(char c)
{
    switch (c) {
    case '%':
        return percent_class;
    case '.':
        return dot_class;
    case '*':
        return star_class;
    case '0':
        return zero_class;
    default:
        break;
    }
    if (c >= '1' && c <= '9')
        return digit_class;
    if (std::string_view(" #+-").find(c) != std::string_view::npos)
        return flag_class;
    if (std::string_view("hlIw").find(c) != std::string_view::npos)
        return size_class;
    return std::string_view("diuoxXpcCsSZeEfgGn").find(c) != std::string_view::npos ? type_class : other_class;
}

/// The next state, by state and class of the character.
// clang-format off
constexpr std::array<std::array<state, 9>, 8> next_state{{
    // other   percent  dot     star       zero       digit      flag    size    type
    {normal,  percent, normal, normal,    normal,    normal,    normal, normal, normal}, // normal
    {normal,  normal,  dot,    width,     flag,      width,     flag,   size,   type},   // percent
    {normal,  normal,  dot,    width,     flag,      width,     flag,   size,   type},   // flag
    {normal,  normal,  dot,    normal,    width,     width,     normal, size,   type},   // width
    {normal,  normal,  normal, precision, precision, precision, normal, size,   type},   // dot
    {normal,  normal,  normal, normal,    precision, precision, normal, size,   type},   // precision
    {normal,  normal,  normal, normal,    normal,    normal,    normal, size,   type},   // size
    {normal,  percent, normal, normal,    normal,    normal,    normal, normal, normal}, // type
}};
// clang-format on

/// One conversion as it is collected between "%" and its type.
struct field
{
    bool blank = false;
    bool alternate = false;
    bool plus = false;
    bool left = false;
    bool zeros = false;
    bool is_short = false;
    bool is_long = false; ///< 64 bits, and wide for texts
    bool is_wide = false;
    int width = 0;
    int precision = -1;

    void set_flag(char c)
    {
        blank = blank || c == ' ';
        alternate = alternate || c == '#';
        plus = plus || c == '+';
        left = left || c == '-';
        zeros = zeros || c == '0';
    }
    void set_width(int value)
    {
        left = left || value < 0;
        width = std::min(value < 0 ? -std::max(value, -widest_field) : value, widest_field);
    }
    void set_precision(int value) { precision = value < 0 ? -1 : std::min(value, widest_field); }
};

int with_digit(int value, char digit)
{
    return std::min(value * 10 + (digit - '0'), widest_field);
}

class formatter
{
public:
    formatter(std::string & out, std::string_view format, argument_source & arguments)
        : m_out(out)
        , m_start(out.size())
        , m_format(format)
        , m_arguments(arguments)
    {
    }

    int run()
    {
        state now = normal;
        bool pending = false; // a "%" whose conversion has not come yet
        while (m_at < m_format.size()) {
            char const c = m_format[m_at++];
            now = next_state[now][class_of(c)];
            if (now == size && !take_size(c))
                now = normal; // an "I" that stands for itself
            if (now == normal) {
                if (pending)
                    write_field({}, std::string_view(&c, 1));
                else
                    m_out += c;
                pending = false;
                m_field = {};
            } else
                pending = now != type;
            take(now, c);
        }
        return m_failed ? -1 : written();
    }

private:
    void take(state now, char c)
    {
        switch (now) {
        case percent:
            m_field = {};
            break;
        case flag:
            m_field.set_flag(c);
            break;
        case width:
            if (c == '*')
                m_field.set_width(next_integer());
            else
                m_field.width = with_digit(m_field.width, c);
            break;
        case dot:
            m_field.precision = 0;
            break;
        case precision:
            if (c == '*')
                m_field.set_precision(next_integer());
            else
                m_field.precision = with_digit(std::max(m_field.precision, 0), c);
            break;
        case type:
            write_conversion(c);
            m_field = {};
            break;
        default:
            break;
        }
    }

    /// Whether the character, with what follows, is a size.
    bool take_size(char c)
    {
        if (c == 'I') {
            if (m_format.substr(m_at, 2) != "64")
                return false;
            m_at += 2;
        }
        m_field.is_short = m_field.is_short || c == 'h';
        m_field.is_long = m_field.is_long || c == 'l' || c == 'I';
        m_field.is_wide = m_field.is_wide || c == 'w';
        return true;
    }

    void write_conversion(char c)
    {
        switch (c) {
        case 'd':
        case 'i':
            return write_signed();
        case 'u':
            return write_unsigned(10, false);
        case 'o':
            return write_unsigned(8, false);
        case 'x':
        case 'X':
            return write_unsigned(16, c == 'X');
        case 'p':
            return write_address();
        case 'c':
        case 'C':
            return wide_wanted(c == 'C') ? write_wide_character() : write_character();
        case 's':
        case 'S':
            return wide_wanted(c == 'S') ? write_wide_text() : write_text();
        case 'Z':
            return write_counted_text();
        case 'n':
            return store_count();
        default:
            return write_real(c);
        }
    }

    bool wide_wanted(bool wide_type) const
    {
        return wide_type ? !m_field.is_short : m_field.is_long || m_field.is_wide;
    }

    int written() const { return static_cast<int>(std::min<std::size_t>(m_out.size() - m_start, INT_MAX)); }
    std::int64_t next_number(argument_kind kind) { return m_arguments.next(kind).as_number(); }
    int next_integer() { return static_cast<int>(next_number(argument_kind::integer)); }

    void write_signed()
    {
        std::int64_t value = m_field.is_long ? next_number(argument_kind::long_integer) : next_integer();
        if (m_field.is_short)
            value = static_cast<std::int16_t>(value);
        auto const magnitude = value < 0 ? 0U - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
        write_digits(sign_text(value < 0), digits_of(magnitude, 10, false));
    }

    void write_unsigned(int base, bool upper)
    {
        auto value = m_field.is_long ? static_cast<std::uint64_t>(next_number(argument_kind::long_integer))
                                     : static_cast<std::uint32_t>(next_integer());
        if (m_field.is_short)
            value = static_cast<std::uint16_t>(value);
        auto digits = digits_of(value, base, upper);
        if (m_field.alternate && base == 8 && (digits.empty() || digits.front() != '0'))
            digits.insert(0, "0");
        bool const marked = m_field.alternate && base == 16 && value != 0;
        write_digits(marked ? (upper ? "0X" : "0x") : "", digits);
    }

    void write_address()
    {
        auto const value = static_cast<std::uint64_t>(next_number(argument_kind::address));
        m_field.precision = address_digits;
        write_digits(m_field.alternate ? "0X" : "", digits_of(value, 16, true));
    }

    std::string_view sign_text(bool negative) const
    {
        return negative ? "-" : m_field.plus ? "+" : m_field.blank ? " " : "";
    }

    /// At least as many digits as the precision; the value 0 with precision 0 has none.
    std::string digits_of(std::uint64_t value, int base, bool upper) const
    {
        std::array<char, 24> buffer;
        auto const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, base).ptr;
        std::string digits(buffer.data(), end);
        if (value == 0 && m_field.precision == 0)
            digits.clear();
        if (upper)
            std::transform(digits.begin(), digits.end(), digits.begin(),
                           [](char c) { return c >= 'a' ? static_cast<char>(c - 32) : c; });
        auto const wanted = static_cast<std::size_t>(std::max(m_field.precision, 0));
        if (digits.size() < wanted)
            digits.insert(0, wanted - digits.size(), '0');
        return digits;
    }

    void write_digits(std::string_view prefix, std::string_view digits)
    {
        if (m_field.precision >= 0)
            m_field.zeros = false;
        write_field(prefix, digits);
    }

    void write_real(char c)
    {
        bool const general = c == 'g' || c == 'G';
        double const value = m_arguments.next(argument_kind::real).as_real();
        auto text = std::isfinite(value) ? positional_digits(std::fabs(value), general)
                                         : std::string(std::isnan(value) ? "nan" : "inf");
        if (!std::isfinite(value)) {
            m_field.zeros = false;
            if (c == 'E' || c == 'G')
                std::transform(text.begin(), text.end(), text.begin(),
                               [](char l) { return static_cast<char>(l - 32); });
        }
        write_field(sign_text(std::signbit(value) && !std::isnan(value)), text);
    }

    std::string positional_digits(double value, bool general) const
    {
        int decimals = m_field.precision < 0 ? default_real_precision : m_field.precision;
        if (general && decimals == 0)
            decimals = 1;
        decimals = std::min(decimals, static_cast<int>(longest_digits));
        std::array<char, 1024> buffer; // 309 digits before the point, 512 behind it
        auto const end =
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals).ptr;
        std::string text(buffer.data(), end);
        if (text.size() > longest_digits)
            text.resize(longest_digits);
        auto const point = text.find('.');
        if (general && !m_field.alternate && point != std::string::npos) {
            text.erase(text.find_last_not_of('0') + 1);
            if (text.back() == '.')
                text.pop_back();
        }
        if (m_field.alternate && point == std::string::npos)
            text += '.';
        return text;
    }

    void write_character()
    {
        auto const c = static_cast<char>(next_integer());
        write_field({}, std::string_view(&c, 1));
    }

    void write_wide_character()
    {
        auto const wide = static_cast<wchar_t>(next_integer());
        write_field({}, narrow({&wide, 1}));
    }

    void write_text()
    {
        auto const * text = m_arguments.next(argument_kind::text).as_pointer<char const>(argument_kind::text);
        if (!text)
            return write_missing();
        // A text with a precision need not end within it.
        write_field({}, m_field.precision < 0
                            ? std::string_view(text)
                            : std::string_view(text, std::find(text, text + m_field.precision, '\0')));
    }

    void write_wide_text()
    {
        auto const * text =
            m_arguments.next(argument_kind::wide_text).as_pointer<wchar_t const>(argument_kind::wide_text);
        if (!text)
            return write_missing();
        auto const length = m_field.precision < 0
                                ? std::wcslen(text)
                                : static_cast<std::size_t>(std::find(text, text + m_field.precision, L'\0') - text);
        write_field({}, narrow({text, length}));
    }

    void write_counted_text()
    {
        auto const kind = argument_kind::counted_text;
        auto const * record = m_arguments.next(kind).as_pointer<counted_string const>(kind);
        if (!record || !record->text)
            return write_missing();
        write_field({}, clipped({record->text, record->length}));
    }

    void write_missing() { write_field({}, clipped("(null)")); }

    std::string_view clipped(std::string_view text) const
    {
        return m_field.precision < 0 ? text : text.substr(0, static_cast<std::size_t>(m_field.precision));
    }

    /// The characters in the multibyte encoding in force. One that has none there becomes "?" and fails the output.
    std::string narrow(std::wstring_view text)
    {
        std::string narrowed;
        std::mbstate_t shift{};
        for (wchar_t const wide : text) {
            std::array<char, MB_LEN_MAX> bytes;
            auto const count = std::wcrtomb(bytes.data(), wide, &shift);
            if (count != static_cast<std::size_t>(-1)) {
                narrowed.append(bytes.data(), count);
                continue;
            }
            narrowed += '?';
            shift = {};
            m_failed = true;
        }
        return narrowed;
    }

    void store_count()
    {
        auto const kind = m_field.is_short ? argument_kind::short_count_target : argument_kind::count_target;
        auto const argument = m_arguments.next(kind);
        if (auto * target = argument.as_pointer<short>(argument_kind::short_count_target); target && m_field.is_short)
            *target = static_cast<short>(written());
        if (auto * target = argument.as_pointer<int>(argument_kind::count_target); target && !m_field.is_short)
            *target = written();
    }

    /// Prefix and text, filled up to the width: with blanks in front, zeros behind the prefix, or blanks behind.
    void write_field(std::string_view prefix, std::string_view text)
    {
        auto const used = prefix.size() + text.size();
        auto const wanted = static_cast<std::size_t>(m_field.width);
        auto const missing = wanted > used ? wanted - used : 0;
        bool const zeros = m_field.zeros && !m_field.left;
        if (!zeros && !m_field.left)
            m_out.append(missing, ' ');
        m_out += prefix;
        if (zeros)
            m_out.append(missing, '0');
        m_out += text;
        if (m_field.left)
            m_out.append(missing, ' ');
    }

    std::string & m_out;
    std::size_t const m_start;
    std::string_view const m_format;
    argument_source & m_arguments;
    std::size_t m_at = 0;
    field m_field;
    bool m_failed = false;
};

class kind_recorder : public argument_source
{
public:
    format_argument next(argument_kind kind) override
    {
        kinds.push_back(kind);
        return {};
    }
    std::vector<argument_kind> kinds;
};

} // namespace

std::int64_t format_argument::as_number() const
{
    switch (kind) {
    case argument_kind::none:
    case argument_kind::integer:
    case argument_kind::long_integer:
        return number;
    case argument_kind::address:
        return static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(pointer));
    default:
        return 0;
    }
}

int stl_output(std::string & out, std::string_view format, argument_source & arguments)
{
    return formatter(out, format, arguments).run();
}

std::vector<argument_kind> argument_kinds_of(std::string_view format)
{
    kind_recorder recorder;
    std::string discarded;
    stl_output(discarded, format, recorder);
    return std::move(recorder.kinds);
}

} // namespace gnl_detail
