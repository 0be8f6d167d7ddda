#include "lbx/gnl/core/positional_formatter.h"

#include <algorithm>

namespace gnl_detail {

namespace {

constexpr std::size_t longest_specification = 4095;

bool is_digit(char c)
{
    return c >= '0' && c <= '9';
}

/// Whether a conversion of the kind reads or writes where its argument points.
bool follows_pointer(argument_kind kind)
{
    return kind >= argument_kind::text;
}

/// What to read an argument as that is named as two kinds.
argument_kind safer_of(argument_kind first, argument_kind second)
{
    if (first == second || second == argument_kind::none)
        return first;
    if (first == argument_kind::none)
        return second;
    if (!follows_pointer(first))
        return first;
    return follows_pointer(second) ? argument_kind::address : second;
}

format_argument read_argument(argument_kind kind, std::va_list & list)
{
    format_argument argument;
    argument.kind = kind;
    switch (kind) {
    case argument_kind::none: // NOLINT(bugprone-branch-clone): each branch takes another type off the list
    case argument_kind::long_integer:
        argument.number = va_arg(list, long long);
        break;
    case argument_kind::integer:
        argument.number = va_arg(list, int);
        break;
    case argument_kind::real:
        argument.real = va_arg(list, double);
        break;
    default:
        argument.pointer = va_arg(list, void *);
        break;
    }
    return argument;
}

/// Hands out arguments from one place of the list on; what is beyond the list reads as nothing.
class arguments_from : public argument_source
{
public:
    arguments_from(std::vector<format_argument> const & arguments, std::size_t first)
        : m_arguments(arguments)
        , m_at(first)
    {
    }
    format_argument next(argument_kind) override
    {
        return m_at < m_arguments.size() ? m_arguments[m_at++] : format_argument{};
    }

private:
    std::vector<format_argument> const & m_arguments;
    std::size_t m_at;
};

} // namespace

positional_format::positional_format(std::string_view format)
{
    auto rest = format;
    while (!rest.empty()) {
        auto const plain = std::min(rest.find_first_of("%\r\n"), rest.size());
        add_literal(rest.substr(0, plain));
        rest.remove_prefix(plain);
        if (rest.size() < 2) {
            add_literal(rest);
            return;
        }
        if (rest[0] == '%' && rest[1] == '0')
            return;
        if (rest[0] == '%' && is_digit(rest[1])) {
            add_insert(rest);
            continue;
        }
        bool const line_end = rest.substr(0, 2) == "\r\n" || rest.substr(0, 2) == "\n\r";
        if (line_end)
            add_literal("\r\n");
        else
            add_literal(rest[0] == '%' ? rest.substr(1, 1) : rest.substr(0, 1));
        rest.remove_prefix(line_end || rest[0] == '%' ? 2 : 1);
    }
}

void positional_format::add_literal(std::string_view text)
{
    if (text.empty())
        return;
    if (m_pieces.empty() || m_pieces.back().argument != 0)
        m_pieces.emplace_back();
    m_pieces.back().text += text;
}

void positional_format::add_insert(std::string_view & rest)
{
    std::size_t const digits = rest.size() > 2 && is_digit(rest[2]) ? 2 : 1;
    piece insert;
    for (char const digit : rest.substr(1, digits))
        insert.argument = insert.argument * 10 + static_cast<std::size_t>(digit - '0');
    rest.remove_prefix(1 + digits);
    auto const end = !rest.empty() && rest[0] == '!' ? rest.find('!', 1) : std::string_view::npos;
    insert.has_specification = end != std::string_view::npos;
    insert.text = "%s";
    if (insert.has_specification) {
        if (end > 1)
            insert.text = ("%" + std::string(rest.substr(1, end - 1))).substr(0, longest_specification);
        rest.remove_prefix(end + 1);
    }
    ++m_insert_count;
    note_kinds(insert);
    m_pieces.push_back(std::move(insert));
}

void positional_format::note_kinds(piece const & insert)
{
    auto const taken = argument_kinds_of(insert.text);
    auto const last = insert.argument - 1 + taken.size();
    if (m_kinds.size() < last)
        m_kinds.resize(last, argument_kind::none);
    for (std::size_t i = 0; i < taken.size(); ++i) {
        auto & kind = m_kinds[insert.argument - 1 + i];
        kind = safer_of(kind, taken[i]);
    }
}

std::vector<format_argument> positional_format::read_arguments(std::va_list list) const
{
    std::va_list own;
    va_copy(own, list);
    std::vector<format_argument> arguments;
    arguments.reserve(m_kinds.size());
    for (auto const kind : m_kinds)
        arguments.push_back(read_argument(kind, own));
    va_end(own);
    return arguments;
}

std::string positional_format::text(std::vector<format_argument> const & arguments) const
{
    std::string text;
    for (piece const & part : m_pieces) {
        if (part.argument == 0) {
            text += part.text;
            continue;
        }
        arguments_from source(arguments, part.argument - 1);
        stl_output(text, part.text, source);
    }
    return text;
}

std::string positional_format::arguments_text(std::vector<format_argument> const & arguments) const
{
    std::string text;
    for (std::size_t argument = 1; argument <= m_insert_count; ++argument) {
        piece const * const insert = specified_insert(argument);
        if (!insert)
            continue;
        arguments_from source(arguments, argument - 1);
        stl_output(text, insert->text, source);
        text += ' ';
    }
    return text;
}

positional_format::piece const * positional_format::specified_insert(std::size_t argument) const
{
    for (piece const & part : m_pieces)
        if (part.argument == argument && part.has_specification)
            return &part;
    return nullptr;
}

} // namespace gnl_detail
