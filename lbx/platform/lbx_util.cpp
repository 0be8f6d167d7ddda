#include "lbx_util.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <vector>

std::string lbx_int_to_string(int value)
{
    char digits[12];
    return std::string(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

std::string lbx_get_token(std::string & text, std::string const & separators, bool keep_separator)
{
    std::size_t const begin = text.find_first_not_of(separators);
    if (begin == std::string::npos) {
        text.clear();
        return {};
    }
    std::size_t const end = text.find_first_of(separators, begin);
    std::string token = text.substr(begin, end - begin);
    text.erase(0, end == std::string::npos || keep_separator ? end : end + 1);
    return token;
}

bool lbx_is_integer_value(std::string const & text)
{
    std::size_t const first = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    return text.size() > first && text.find_first_not_of("0123456789", first) == std::string::npos;
}

namespace {

/// The value of a digit in any base up to 16; 16 for anything else.
unsigned digit_value(char digit)
{
    if (digit >= '0' && digit <= '9')
        return static_cast<unsigned>(digit - '0');
    char const letter = static_cast<char>(digit | 0x20);
    return letter >= 'a' && letter <= 'f' ? static_cast<unsigned>(letter - 'a') + 10 : 16;
}

/// The digits of `text` in the given base, up to the first illegal one.
std::string legal_digits(std::string const & text, std::size_t first, unsigned base)
{
    std::size_t end = first;
    while (end < text.size() && digit_value(text[end]) < base)
        ++end;
    return text.substr(first, end - first);
}

std::string binary_of_hex(std::string const & digits)
{
    std::string binary;
    for (char digit : digits)
        for (unsigned bit = 8; bit != 0; bit >>= 1)
            binary += digit_value(digit) & bit ? '1' : '0';
    return binary;
}

std::string binary_of_decimal(std::string const & digits)
{
    std::vector<std::uint32_t> words; // least significant first
    for (std::size_t at = 0; at < digits.size();) {
        // Nine digits at a time, the most that fit a word, so that long numbers take few passes.
        std::uint64_t factor = 1, carry = 0;
        for (std::size_t end = std::min(at + 9, digits.size()); at < end; ++at) {
            factor *= 10;
            carry = carry * 10 + digit_value(digits[at]);
        }
        for (auto & word : words) {
            carry += word * factor;
            word = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        if (carry != 0)
            words.push_back(static_cast<std::uint32_t>(carry));
    }
    std::string binary;
    for (auto word = words.rbegin(); word != words.rend(); ++word)
        for (std::uint32_t bit = 0x80000000U; bit != 0; bit >>= 1)
            binary += *word & bit ? '1' : '0';
    return binary;
}

} // namespace

bool lbx_convert_numeric_string_to_binary_format(std::string const & text, std::string & binary_digits)
{
    char const mark = text.size() > 1 && text[0] == '0' ? static_cast<char>(text[1] | 0x20) : '\0';
    std::size_t const first = mark == 'x' || mark == 'b' ? 2 : 0;
    std::string const digits = legal_digits(text, first, mark == 'x' ? 16 : mark == 'b' ? 2 : 10);
    std::string const binary = mark == 'x' ? binary_of_hex(digits) : mark == 'b' ? digits : binary_of_decimal(digits);
    std::size_t const first_one = binary.find('1');
    if (first_one != std::string::npos)
        binary_digits = binary.substr(first_one);
    else
        binary_digits = digits.empty() ? "" : "0";
    return !digits.empty() && digits.size() == text.size() - first;
}

std::string add_trailing_slashes_to_directory_name(std::string const & name)
{
    return name.empty() || name.back() == '/' ? name : name + "/";
}
