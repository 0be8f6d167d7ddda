#pragma once

// Random hierarchical designs as plain data. A description says nothing about how it is built: random_generator.h
// builds it with the library's classes, design_evaluation.h computes what it must do. The same seed gives the same
// design everywhere.

#include <cstdint>
#include <string>
#include <vector>

namespace random_designs {

/// The largest value that a kind's parameter W takes; the smallest is 1.
inline constexpr int largest_w = 5;

/// A number of bits, or the index of a bit, as it depends on W: factor * W + offset.
struct size
{
    int factor = 0;
    int offset = 0;

    int at(int w) const { return factor * w + offset; }
    /// The smallest value over all W.
    int least() const { return factor < 0 ? at(largest_w) : at(1); }
    friend bool operator==(size, size) = default;
    friend size operator+(size a, size b) { return {a.factor + b.factor, a.offset + b.offset}; }
    friend size operator-(size a, size b) { return {a.factor - b.factor, a.offset - b.offset}; }
    friend size operator*(int n, size a) { return {n * a.factor, n * a.offset}; }
};

/// A declared pin or wire. A scalar has width 1 and no index.
struct declared_signal
{
    std::string name;
    size width;
    bool scalar = false;
    int default_value = -1; ///< of an input that may stay open; -1 for none
};

enum class operation {
    input,        ///< own input `object`
    wire,         ///< own wire `object`
    child_output, ///< output `pin` of child `object`, of one slice if `slice` is not -1
    number,       ///< a constant among the operands of a concatenation
    range,        ///< bits `high` down to `low` of the operand
    concat,       ///< the first operand holds the highest bits
    invert,
    bits_and,
    bits_or,
    bits_xor, ///< two operands of equal width, or one of them a single bit
    by_mode,  ///< as the parameter MODE says: and, or, xor, or the inverse of and
    reduce_and,
    reduce_or,
    reduce_xor
};

/// One node of an expression; operands are indices into `kind::expressions`.
struct expression
{
    operation op = operation::input;
    size width;
    std::vector<int> operands;
    int object = 0;
    int pin = 0;
    int slice = -1;
    int value = 0;
    size high;
    size low;
    bool built_from_right = false; ///< of a concatenation: (a, (b, c)) instead of ((a, b), c)
};

/// What may be assigned.
struct source
{
    enum class form {
        expression,
        number, ///< (K * value + value), cut to the sink
        mask    ///< the parameter MASK
    };
    form what = form::expression;
    int expression = 0;
    int value = 0;
};

/// One assignment. A source narrower than the sink is repeated.
struct statement
{
    enum class target {
        output,     ///< own output `object`
        wire,       ///< own wire `object`
        child_input ///< input `pin` of child `object`: of the whole array, or of one slice
    };
    target sink = target::wire;
    int object = 0;
    int pin = 0;
    int slice = -1;
    bool whole = true; ///< the whole sink, else bits `high` down to `low`
    size high;
    size low;
    size width;                  ///< of the assigned bits
    std::vector<source> choices; ///< the parameter K, modulo their number, chooses one
    bool only_if_used = false;   ///< an output that is driven only when somebody reads it
};

/// The parameters of one instance. A value that is not given is the kind's default.
struct settings
{
    int w = 1;
    int k = 0;
    int mode = 0;
    std::uint64_t mask = 0;
};

/// How a child gets its settings from those of the design around it.
struct child_settings
{
    bool gives_w = false, gives_k = false, gives_mode = false, gives_mask = false;
    size w;                ///< over the W around
    bool passes_k = false; ///< the K around is added to `values.k`
    bool passes_mode = false;
    settings values;
    bool as_text = false; ///< in the parameter text of the constructor, else by assignment
};

struct child
{
    int kind = 0;
    std::string instance; ///< "" leaves the name to the library
    int array_width = 0;  ///< 0 for a single child
    child_settings given;
};

/// One class of generators.
struct kind
{
    std::string name;
    bool has_w = false, has_k = false, has_mode = false;
    int mask_width = 0; ///< 0 without a parameter MASK
    settings defaults;
    std::vector<declared_signal> inputs, outputs, wires;
    std::vector<child> children;
    std::vector<expression> expressions;
    std::vector<statement> statements; ///< in the order of the author's code, which is none in particular
    int designs_below = 0;             ///< instances at all levels below
};

/// The last kind is the top.
struct description
{
    std::uint64_t seed = 0;
    std::vector<kind> kinds;
    settings top;

    kind const & top_kind() const { return kinds.back(); }
};

/// What a description may hold. Everything that is off is off because a language or a test asks for it.
struct profile
{
    int most_children = 8; ///< at all levels together
    int levels = 3;        ///< 1 is a flat design
    bool arrays = true;
    bool broadcasts = true;         ///< one signal of a slice's width for all slices of an array
    bool underscores_at_end = true; ///< in names of wires and instances, which VHDL refuses
};

/// The profile that belongs to a seed when a test does not choose: mostly small, one in a hundred of 200 children, one
/// in six flat.
profile profile_for(std::uint64_t seed);

/// A driver of two or more bits is never put on a wider target, except that one signal may feed all slices of an array:
/// what such a driver means differs between the languages on purpose.
description random_design(std::uint64_t seed, profile const & allowed);
inline description random_design(std::uint64_t seed)
{
    return random_design(seed, profile_for(seed));
}

/// The names of the values of MODE, in their order.
inline constexpr char const * modes[] = {"AND", "OR", "XOR", "NAND"};

/// The value of a numeric source.
inline std::uint64_t number_for(source const & of, settings const & with, int width)
{
    auto const value = static_cast<std::uint64_t>(of.value) * (static_cast<std::uint64_t>(with.k) + 1);
    return width < 30 ? value & ((std::uint64_t{1} << width) - 1) : value & 0x3fffffff;
}

/// The settings of `of` in a design with the settings `around`.
settings settings_of(child const & of, kind const & made, settings const & around);

} // namespace random_designs
