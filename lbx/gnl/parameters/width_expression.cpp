#include "lbx/gnl/parameters/width_expression.h"

#include <charconv>
#include <vector>

namespace gnl_detail {

namespace {

bool is_digit(char character)
{
    return character >= '0' && character <= '9';
}

bool is_letter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

enum class token_kind { end, integer, name, symbol };

struct token
{
    token_kind kind;
    std::string_view text;
};

/// Cuts the text into tokens, the longest match first.
class scanner
{
public:
    explicit scanner(std::string_view text)
        : m_rest(text)
    {
    }

    token next()
    {
        for (; !m_rest.empty(); m_rest.remove_prefix(1)) {
            if (std::size_t const length = name_length(); length > 0)
                return take(token_kind::name, length);
            if (std::size_t const length = digits_length(); length > 0)
                return take(token_kind::integer, length);
            if (std::string_view("()*+-/").find(m_rest.front()) != std::string_view::npos)
                return take(token_kind::symbol, 1);
        }
        return {token_kind::end, {}};
    }

private:
    std::size_t digits_length() const
    {
        std::size_t length = 0;
        while (length < m_rest.size() && is_digit(m_rest[length]))
            ++length;
        return length;
    }

    /// Digits, a letter, then letters, digits and "_"; 0 if that does not stand here.
    std::size_t name_length() const
    {
        std::size_t length = digits_length();
        if (length == m_rest.size() || !is_letter(m_rest[length]))
            return 0;
        while (length < m_rest.size()
               && (is_letter(m_rest[length]) || is_digit(m_rest[length]) || m_rest[length] == '_'))
            ++length;
        return length;
    }

    token take(token_kind kind, std::size_t length)
    {
        token const taken{kind, m_rest.substr(0, length)};
        m_rest.remove_prefix(length);
        return taken;
    }

    std::string_view m_rest;
};

class evaluator
{
public:
    explicit evaluator(std::function<int(std::string_view)> const & value_of)
        : m_value_of(value_of)
    {
    }

    std::optional<int> run(std::string_view text)
    {
        scanner tokens(text);
        for (token read = tokens.next(); read.kind != token_kind::end; read = tokens.next())
            if (!(m_operand_wanted ? take_operand(read) : take_operator(read)))
                return std::nullopt;
        if (m_operand_wanted || !apply_down_to(lowest) || !m_symbols.empty())
            return std::nullopt;
        return m_values.back();
    }

private:
    static constexpr int lowest = 1;
    /// How strongly a symbol binds; an open parenthesis lets nothing behind it apply.
    static int strength(char symbol) { return symbol == '(' ? 0 : symbol == '+' || symbol == '-' ? lowest : 2; }

    bool take_operand(token const & read)
    {
        if (read.kind == token_kind::symbol) {
            m_symbols.push_back('(');
            return read.text == "(";
        }
        int value = 0;
        if (read.kind == token_kind::name)
            value = m_value_of(read.text);
        else if (std::from_chars(read.text.data(), read.text.data() + read.text.size(), value).ec != std::errc())
            return false;
        m_values.push_back(value);
        m_operand_wanted = false;
        return true;
    }

    bool take_operator(token const & read)
    {
        if (read.kind != token_kind::symbol || read.text == "(")
            return false;
        char const symbol = read.text.front();
        if (symbol == ')') {
            if (!apply_down_to(lowest) || m_symbols.empty())
                return false;
            m_symbols.pop_back();
            return true;
        }
        if (!apply_down_to(strength(symbol)))
            return false;
        m_symbols.push_back(symbol);
        m_operand_wanted = true;
        return true;
    }

    /// Applies the waiting operators that bind at least so strongly.
    bool apply_down_to(int least)
    {
        while (!m_symbols.empty() && strength(m_symbols.back()) >= least) {
            int const right = m_values.back();
            m_values.pop_back();
            if (!apply(m_symbols.back(), m_values.back(), right))
                return false;
            m_symbols.pop_back();
        }
        return true;
    }

    /// left = left symbol right, as far as that fits 32 bits.
    static bool apply(char symbol, int & left, int right)
    {
        long long const a = left;
        long long const b = right;
        if (symbol == '/' && b == 0)
            return false;
        long long const result = symbol == '+' ? a + b : symbol == '-' ? a - b : symbol == '*' ? a * b : a / b;
        left = static_cast<int>(result);
        return left == result;
    }

    std::function<int(std::string_view)> const & m_value_of;
    std::vector<int> m_values;
    std::vector<char> m_symbols; ///< operators and open parentheses that wait for their right side
    bool m_operand_wanted = true;
};

} // namespace

std::optional<int> width_expression_value(std::string_view text, std::function<int(std::string_view)> const & value_of)
{
    return evaluator(value_of).run(text);
}

} // namespace gnl_detail
