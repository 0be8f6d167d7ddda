#include "qhdl/qhdl_lexer.h"

#include <algorithm>
#include <array>

namespace qhdl {
namespace {

bool is_digit(char character)
{
    return character >= '0' && character <= '9';
}

bool is_name_character(char character)
{
    return is_digit(character) || (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z')
           || character == '_';
}

class lexer
{
public:
    lexer(std::string const & file, std::string_view text)
        : m_file(file)
        , m_text(text)
    {
    }

    std::vector<word> run()
    {
        std::vector<word> words;
        for (skip_blanks(); m_at < m_text.size(); skip_blanks())
            words.push_back(next());
        words.push_back({word_kind::end, "", m_place});
        return words;
    }

private:
    char peek(std::size_t ahead = 0) const { return m_at + ahead < m_text.size() ? m_text[m_at + ahead] : '\0'; }

    char take()
    {
        char const character = m_text[m_at++];
        if (character == '\n')
            m_place = {m_place.line + 1, 1};
        else
            ++m_place.column;
        return character;
    }

    void skip_blanks()
    {
        for (;;) {
            if (peek() == '-' && peek(1) == '-')
                while (m_at < m_text.size() && peek() != '\n')
                    take();
            else if (m_at < m_text.size() && std::string_view(" \t\n").find(peek()) != std::string_view::npos)
                take();
            else
                return;
        }
    }

    word next()
    {
        place const at = m_place;
        if (peek() == '"')
            return {word_kind::string, quoted(), at};
        if ((peek() == 'B' || peek() == 'b') && peek(1) == '"') {
            take();
            return {word_kind::bits, binary_digits(at), at};
        }
        if (is_name_character(peek()))
            return name_or_number(at);
        return {word_kind::symbol, symbol(at), at};
    }

    std::string quoted()
    {
        place const at = m_place;
        take();
        std::string text;
        while (peek() != '"') {
            if (m_at >= m_text.size() || peek() == '\n')
                throw error(m_file, at, "the string has no end");
            text += take();
        }
        take();
        return text;
    }

    std::string binary_digits(place at)
    {
        auto digits = quoted();
        if (digits.empty() || digits.find_first_not_of("01") != std::string::npos)
            throw error(m_file, at, "\"" + digits + "\" are no binary digits");
        return digits;
    }

    word name_or_number(place at)
    {
        std::string text;
        while (is_name_character(peek()))
            text += take();
        bool const is_number = std::all_of(text.begin(), text.end(), is_digit);
        return {is_number ? word_kind::number : word_kind::name, text, at};
    }

    std::string symbol(place at)
    {
        if (peek() == '.' && peek(1) == '.') {
            take();
            take();
            return "..";
        }
        char const character = peek();
        if (std::string_view("()[],;:.=&#$!-").find(character) == std::string_view::npos)
            throw error(m_file, at, std::string("unknown character \"") + character + "\"");
        return {take()};
    }

    std::string const & m_file;
    std::string_view m_text;
    std::size_t m_at = 0;
    place m_place;
};

} // namespace

std::vector<word> words_of(std::string const & file, std::string_view text)
{
    return lexer(file, text).run();
}

std::string folded(std::string_view text)
{
    std::string lower(text);
    for (char & character : lower)
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    return lower;
}

} // namespace qhdl
