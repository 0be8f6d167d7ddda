#include "lbx/gnl/core/expression_order.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/ports/operator_keys.h"

#include <algorithm>
#include <charconv>

namespace gnl_detail {

namespace {

int folded_byte(std::string_view text, std::size_t at)
{
    return static_cast<unsigned char>(folded(text[at]));
}

/// Compares parts of keys. With `inside` a ";" follows each, which stands behind the digits.
int compare_texts(std::string_view a, std::string_view b, bool inside)
{
    std::size_t const common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i)
        if (int const difference = folded_byte(a, i) - folded_byte(b, i))
            return difference;
    if (a.size() == b.size())
        return 0;
    bool const a_ends = a.size() == common;
    int const rest = folded_byte(a_ends ? b : a, common);
    bool const end_is_first = !inside || rest >= ';';
    return a_ends == end_is_first ? -1 : 1;
}

class decimal
{
public:
    explicit decimal(int value)
        : m_size(static_cast<std::size_t>(std::to_chars(m_digits, m_digits + sizeof m_digits, value).ptr - m_digits))
    {
    }
    std::string_view text() const { return {m_digits, m_size}; }

private:
    char m_digits[12];
    std::size_t m_size;
};

GNL_PORT_LOGIC const & as_logic(GNL_PORT const & port)
{
    return static_cast<GNL_PORT_LOGIC const &>(port);
}

GNL_PORT_OUTPUT_RANGE const & as_range(GNL_PORT const & port)
{
    return static_cast<GNL_PORT_OUTPUT_RANGE const &>(port);
}

/// "LGC;", "PORT;", "RNG;" in their order, behind nothing at all.
unsigned kind_rank(GNL_PORT const * port)
{
    return !port ? 0U : port->is_logic() ? 1U : port->is_range_port() ? 3U : 2U;
}

int compare_generators(GNL_GENERATOR const * a, GNL_GENERATOR const * b, std::string_view none, bool inside)
{
    if (a == b)
        return 0;
    return compare_texts(a ? a->generate_key() : std::string(none), b ? b->generate_key() : std::string(none), inside);
}

int compare_level_and_bits(GNL_PORT_OUTPUT_RANGE const & a, GNL_PORT_OUTPUT_RANGE const & b, bool inside)
{
    if (int const result = compare_generators(a.get_made_level(), b.get_made_level(), "NULL", true))
        return result;
    if (int const result = compare_texts(decimal(a.get_high_index()).text(), decimal(b.get_high_index()).text(), true))
        return result;
    return compare_texts(decimal(a.get_low_index()).text(), decimal(b.get_low_index()).text(), inside);
}

} // namespace

int expression_comparison::compare(GNL_PORT const & a, GNL_PORT const & b, bool inside)
{
    m_questions.clear();
    m_questions.push_back({&a, &b, aspect::key, inside});
    while (!m_questions.empty()) {
        question const next = m_questions.back();
        m_questions.pop_back();
        if (int const result = answer(next))
            return result;
    }
    return 0;
}

int expression_comparison::answer(question const & asked)
{
    if (asked.a == asked.b)
        return 0;
    switch (asked.what) {
    case aspect::key:
        return compare_keys(asked);
    case aspect::parent_key:
        return compare_generators(asked.a ? asked.a->get_parent() : nullptr, asked.b ? asked.b->get_parent() : nullptr,
                                  "", asked.inside);
    default:
        return compare_level_and_bits(as_range(*asked.a), as_range(*asked.b), asked.inside);
    }
}

int expression_comparison::compare_keys(question const & asked)
{
    unsigned const rank = kind_rank(asked.a), other_rank = kind_rank(asked.b);
    if (rank != other_rank)
        return rank < other_rank ? -1 : 1;
    if (rank == kind_rank(nullptr))
        return 0;
    if (!asked.a->is_logic() && !asked.a->is_range_port())
        return compare_texts(asked.a->get_name(), asked.b->get_name(), asked.inside);
    if (asked.inside)
        if (int const result = element_registry::compare_places(*asked.a, *asked.b))
            return result;
    return asked.a->is_logic() ? open(as_logic(*asked.a), as_logic(*asked.b), asked.inside)
                               : open(as_range(*asked.a), as_range(*asked.b), asked.inside);
}

int expression_comparison::open(GNL_PORT_LOGIC const & a, GNL_PORT_LOGIC const & b, bool inside)
{
    if (a.get_operation() != b.get_operation())
        return compare_texts(operation_key_word(a.get_operation()), operation_key_word(b.get_operation()), true);
    bool const has_second = a.get_second_operand() || b.get_second_operand();
    if (has_second)
        ask_operands(a.get_second_operand(), b.get_second_operand(), inside);
    ask_operands(a.get_first_operand(), b.get_first_operand(), has_second || inside);
    return 0;
}

int expression_comparison::open(GNL_PORT_OUTPUT_RANGE const & a, GNL_PORT_OUTPUT_RANGE const & b, bool inside)
{
    m_questions.push_back({&a, &b, aspect::level_and_bits, inside});
    ask_operands(a.get_key_port(), b.get_key_port(), true);
    return 0;
}

void expression_comparison::ask_operands(GNL_PORT const * a, GNL_PORT const * b, bool inside)
{
    m_questions.push_back({a, b, aspect::parent_key, inside});
    m_questions.push_back({a, b, aspect::key, true});
}

bool keys_differ_at_end_only(GNL_PORT const & a, GNL_PORT const & b)
{
    if (a.is_range_port())
        return as_range(a).get_key_port() == as_range(b).get_key_port()
               && as_range(a).get_made_level() == as_range(b).get_made_level()
               && as_range(a).get_high_index() == as_range(b).get_high_index();
    auto const & x = as_logic(a);
    auto const & y = as_logic(b);
    if (x.get_operation() != y.get_operation())
        return false;
    bool const has_second = x.get_second_operand() || y.get_second_operand();
    if (has_second && x.get_first_operand() != y.get_first_operand())
        return false;
    GNL_PORT const * const last_of_x = has_second ? x.get_second_operand() : x.get_first_operand();
    GNL_PORT const * const last_of_y = has_second ? y.get_second_operand() : y.get_first_operand();
    constexpr unsigned named = 2;
    return kind_rank(last_of_x) == named && kind_rank(last_of_y) == named
           && equal_folded(last_of_x->get_name(), last_of_y->get_name());
}

// ---- Hints

namespace {

/// The range that a key begins with, behind an operation or by itself; null if it doesn't begin with one.
GNL_PORT_OUTPUT_RANGE const * leading_range(GNL_PORT const & made)
{
    GNL_PORT const * const first = made.is_logic() ? as_logic(made).get_first_operand() : &made;
    return first && first->is_range_port() ? &as_range(*first) : nullptr;
}

/// The port behind the first prefixes of a key.
GNL_PORT const * leading_port(GNL_PORT const & made)
{
    if (auto const * range = leading_range(made))
        return range->get_key_port();
    return made.is_logic() ? as_logic(made).get_first_operand() : nullptr;
}

/// What stands in front of the first name: operation, kind of operand, and kind of what a range was made of.
unsigned leading_kinds(GNL_PORT const & made)
{
    unsigned operation = 0;
    if (made.is_logic()) {
        auto const word = operation_key_word(as_logic(made).get_operation());
        operation = word == "AND" ? 0U : word == "NOT" ? 1U : word == "OR" ? 2U : word == "XOR" ? 4U : 3U;
    }
    auto const * range = leading_range(made);
    unsigned const first = made.is_logic() ? kind_rank(as_logic(made).get_first_operand()) : 0U;
    return operation << 4 | first << 2 | (range ? kind_rank(range->get_key_port()) : 0U);
}

/// Up to `count` bytes of a text and the ";" behind it, the first one highest.
std::uint64_t bytes_of(std::string_view text, std::size_t from, std::size_t count)
{
    std::uint64_t bytes = 0;
    for (std::size_t at = from; at < from + count; ++at) {
        unsigned const byte = at < text.size()    ? static_cast<unsigned>(folded_byte(text, at))
                              : at == text.size() ? static_cast<unsigned>(';')
                                                  : 0U;
        bytes = bytes << 8 | byte;
    }
    return bytes;
}

} // namespace

std::string_view leading_name(GNL_PORT const & made)
{
    GNL_PORT const * const port = leading_port(made);
    constexpr unsigned named = 2;
    return kind_rank(port) == named ? std::string_view(port->get_name()) : std::string_view();
}

key_hint::key_hint(GNL_PORT const & made, std::size_t skipped)
    : lead(std::uint64_t(leading_kinds(made)) << 56)
{
    constexpr unsigned named = 2;
    if (kind_rank(leading_port(made)) == named)
        lead |= bytes_of(leading_name(made), skipped, 7);
    if (auto const * range = leading_range(made)) {
        base = range->get_key_port();
        level = range->get_made_level();
        high_digits = bytes_of(decimal(range->get_high_index()).text(), 0, 8);
    }
}

int key_hint::compare(key_hint const & other) const
{
    if (lead != other.lead)
        return lead < other.lead ? -1 : 1;
    if (!base || base != other.base || level != other.level || high_digits == other.high_digits)
        return 0;
    return high_digits < other.high_digits ? -1 : 1;
}

// ---- Key texts

namespace {

/// Takes a key text apart along a port.
class key_match
{
public:
    explicit key_match(std::string_view key)
        : m_rest(key)
    {
    }

    bool matches(GNL_PORT const & port)
    {
        m_parts.push_back({&port, ""});
        while (!m_parts.empty()) {
            part const next = std::move(m_parts.back());
            m_parts.pop_back();
            if (!take(next.text) || (next.port && !take_key(*next.port)))
                return false;
        }
        return m_rest.empty();
    }

private:
    /// A text, then the key of a port if there is one.
    struct part
    {
        GNL_PORT const * port;
        std::string text;
    };

    bool take(std::string_view text)
    {
        if (!equal_folded(m_rest.substr(0, text.size()), text))
            return false;
        m_rest.remove_prefix(text.size());
        return true;
    }

    bool take_key(GNL_PORT const & port)
    {
        if (port.is_logic()) {
            auto const & logic = as_logic(port);
            push_operand(logic.get_second_operand(), ";");
            push_operand(logic.get_first_operand(), "");
            return take("LGC;") && take(operation_key_word(logic.get_operation())) && take(";");
        }
        if (!port.is_range_port())
            return take(port.generate_key());
        auto const & range = as_range(port);
        GNL_GENERATOR const * const level = range.get_made_level();
        GNL_PORT const * const base = range.get_key_port();
        m_parts.push_back({nullptr, ";" + (base ? base->get_parent_key() : std::string()) + ";"
                                        + (level ? level->generate_key() : "NULL") + ";"
                                        + std::string(decimal(range.get_high_index()).text()) + ";"
                                        + std::string(decimal(range.get_low_index()).text())});
        m_parts.push_back({base, ""});
        return take("RNG;");
    }

    void push_operand(GNL_PORT const * operand, char const * separator)
    {
        if (!operand)
            return;
        m_parts.push_back({nullptr, ";" + operand->get_parent_key()});
        m_parts.push_back({operand, separator});
    }

    std::string_view m_rest;
    std::vector<part> m_parts; ///< the next one last
};

} // namespace

bool has_key(GNL_PORT const & port, std::string_view key)
{
    return key_match(key).matches(port);
}

} // namespace gnl_detail
