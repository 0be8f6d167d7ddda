#include "mlib_uinteger.h"

#include <algorithm>

namespace {

constexpr int word_bits = 64;

std::size_t words_for(int bitwidth)
{
    return static_cast<std::size_t>((bitwidth - 1) / word_bits) + 1;
}

std::size_t word_of(int index)
{
    return static_cast<std::size_t>(index / word_bits);
}

std::uint64_t mask_of(int index)
{
    return std::uint64_t(1) << (index % word_bits);
}

/// The bits of the highest word that a value of this width has.
std::uint64_t top_mask(int bitwidth)
{
    int const used = bitwidth % word_bits;
    return used == 0 ? ~std::uint64_t(0) : mask_of(used) - 1;
}

} // namespace

MLIB_UINTEGER::MLIB_UINTEGER(unsigned value, int bitwidth)
    : m_bitwidth(std::max(bitwidth, 1))
    , m_bits(words_for(m_bitwidth))
{
    m_bits[0] = value;
    clear_above_width();
}

MLIB_UINTEGER & MLIB_UINTEGER::operator=(int value)
{
    std::fill(m_bits.begin(), m_bits.end(), value < 0 ? ~std::uint64_t(0) : 0);
    m_bits[0] = static_cast<std::uint64_t>(std::int64_t(value));
    m_unknown.clear();
    clear_above_width();
    return *this;
}

void MLIB_UINTEGER::set_bitwidth(int bitwidth)
{
    m_bitwidth = std::max(bitwidth, 1);
    m_bits.resize(words_for(m_bitwidth));
    if (!m_unknown.empty())
        m_unknown.resize(m_bits.size());
    clear_above_width();
}

bool MLIB_UINTEGER::bit(int index) const
{
    return index >= 0 && index < m_bitwidth && (m_bits[word_of(index)] & mask_of(index)) != 0;
}

void MLIB_UINTEGER::set_bit(int index, bool value)
{
    if (index < 0 || index >= m_bitwidth)
        return;
    std::uint64_t const mask = mask_of(index);
    auto & word = m_bits[word_of(index)];
    word = value ? word | mask : word & ~mask;
    if (m_unknown.empty())
        return;
    m_unknown[word_of(index)] &= ~mask;
    clear_above_width();
}

bool MLIB_UINTEGER::is_x() const
{
    return !m_unknown.empty();
}

bool MLIB_UINTEGER::is_x(int index) const
{
    return index >= 0 && index < m_bitwidth && !m_unknown.empty() && (m_unknown[word_of(index)] & mask_of(index)) != 0;
}

void MLIB_UINTEGER::force_x()
{
    std::fill(m_bits.begin(), m_bits.end(), 0);
    m_unknown.assign(m_bits.size(), ~std::uint64_t(0));
    clear_above_width();
}

std::uint32_t MLIB_UINTEGER::uint() const
{
    return static_cast<std::uint32_t>(m_bits[0]);
}

std::string MLIB_UINTEGER::as_bin_string() const
{
    std::string digits;
    digits.reserve(static_cast<std::size_t>(m_bitwidth));
    for (int index = m_bitwidth - 1; index >= 0; --index)
        digits += is_x(index) ? 'x' : bit(index) ? '1' : '0';
    return digits;
}

std::string MLIB_UINTEGER::as_hex_string() const
{
    std::string digits;
    for (int low = (m_bitwidth - 1) / 4 * 4; low >= 0; low -= 4) {
        unsigned const shift = static_cast<unsigned>(low % word_bits);
        bool const unknown = !m_unknown.empty() && (m_unknown[word_of(low)] >> shift & 15) != 0;
        digits += unknown ? 'X' : "0123456789ABCDEF"[m_bits[word_of(low)] >> shift & 15];
    }
    return digits;
}

void MLIB_UINTEGER::set_value_from_bin_string(std::string const & digits)
{
    *this = 0;
    int index = 0;
    for (auto digit = digits.rbegin(); digit != digits.rend() && index < m_bitwidth; ++digit, ++index) {
        if (*digit == '1')
            m_bits[word_of(index)] |= mask_of(index);
        if (*digit != 'x' && *digit != 'X')
            continue;
        m_unknown.resize(m_bits.size());
        m_unknown[word_of(index)] |= mask_of(index);
    }
}

MLIB_UINTEGER & MLIB_UINTEGER::operator--()
{
    if (is_x()) { // a borrow from an unknown bit leaves nothing that is known
        force_x();
        return *this;
    }
    for (auto & word : m_bits)
        if (word-- != 0)
            break;
    clear_above_width();
    return *this;
}

bool MLIB_UINTEGER::is_all_zero() const
{
    return !is_x() && std::all_of(m_bits.begin(), m_bits.end(), [](std::uint64_t word) { return word == 0; });
}

bool MLIB_UINTEGER::is_all_ones() const
{
    return !is_x() && m_bits.back() == top_mask(m_bitwidth)
           && std::all_of(m_bits.begin(), m_bits.end() - 1,
                          [](std::uint64_t word) { return word == ~std::uint64_t(0); });
}

/// Keeps equal values equal in memory: no bits above the width, and no list of unknown bits without an unknown bit.
void MLIB_UINTEGER::clear_above_width()
{
    m_bits.back() &= top_mask(m_bitwidth);
    if (m_unknown.empty())
        return;
    m_unknown.back() &= top_mask(m_bitwidth);
    if (std::all_of(m_unknown.begin(), m_unknown.end(), [](std::uint64_t word) { return word == 0; }))
        m_unknown.clear();
}
