#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// An unsigned integer of any width whose bits can be unknown.
///
/// Bits are numbered from 0 at the least significant end. A width below 1 reads as 1. Copying takes value and width;
/// assigning an `int` keeps the width and cuts the value to it (a negative value is taken in two's complement).
///
///     MLIB_UINTEGER value(5, 8);      // 8 bits
///     value.as_bin_string();          // "00000101"
///     value.as_hex_string();          // "05"
class MLIB_UINTEGER
{
public:
    /// A value of `bitwidth` bits, all known, of which the low 32 take `value`.
    explicit MLIB_UINTEGER(unsigned value = 0, int bitwidth = 32);

    /// Keeps the width; bits above 31 take the sign of `value`. All bits become known.
    MLIB_UINTEGER & operator=(int value);

    int bitwidth() const { return m_bitwidth; }
    /// Cuts from the top or fills with known zeros.
    void set_bitwidth(int bitwidth);

    /// The bit at `index`; false outside the width.
    bool bit(int index) const;
    /// Sets the bit, which becomes known; an index outside the width is ignored.
    void set_bit(int index, bool value);

    /// Whether any bit is unknown.
    bool is_x() const;
    /// Whether the bit at `index` is unknown.
    bool is_x(int index) const;
    /// Makes every bit unknown.
    void force_x();

    /// The low 32 bits; unknown bits read as 0.
    std::uint32_t uint() const;
    /// Exactly `bitwidth()` digits, most significant first, "x" for an unknown bit.
    std::string as_bin_string() const;
    /// One upper-case digit for each started group of four bits, "X" for a group with an unknown bit.
    std::string as_hex_string() const;
    /// Reads binary digits, most significant first; keeps the width and cuts or zero-fills at the top. "x" and "X" are
    /// unknown bits, any other character reads as 0.
    void set_value_from_bin_string(std::string const & digits);

    /// Subtracts one, wrapping at the width.
    MLIB_UINTEGER & operator--();

    /// Whether all bits are known and 0, or known and 1.
    bool is_all_zero() const;
    bool is_all_ones() const;

    /// Structural: equal widths and equal bits, an unknown bit equal to an unknown bit only.
    friend bool operator==(MLIB_UINTEGER const & a, MLIB_UINTEGER const & b) = default;

private:
    void clear_above_width();

    int m_bitwidth;
    std::vector<std::uint64_t> m_bits;    ///< values, 64 to a word
    std::vector<std::uint64_t> m_unknown; ///< 1 for an unknown bit; empty while all are known
};
