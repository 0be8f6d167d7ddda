// Expressions of a given width over the signals that a random kind has so far.

#include "kind_maker.h"

namespace random_designs {

int kind_maker::add(expression made)
{
    m_kind.expressions.push_back(std::move(made));
    return static_cast<int>(m_kind.expressions.size()) - 1;
}

/// A cut that leaves at least a bit on both sides for every W. Neither part has a negative offset: any such width can
/// be put together from single bits and the first input.
std::optional<size> kind_maker::split(size width)
{
    std::vector<size> cuts;
    for (int i = 1; i <= width.offset - (width.factor > 0 ? 0 : 1); ++i)
        cuts.push_back({0, i});
    if (width.factor > 1 || (width.factor == 1 && width.offset > 0))
        cuts.insert(cuts.end(), 2, {1, 0});
    if (cuts.empty())
        return std::nullopt;
    return m_random.any_of(cuts);
}

/// A signal of the width, or a part of one; else a concatenation of such.
int kind_maker::leaf_or_part(size width)
{
    std::vector<int> fitting;
    for (int const index : m_sources)
        if (room(m_kind.expressions[static_cast<std::size_t>(index)].width, width) >= 0)
            fitting.push_back(index);
    if (fitting.empty())
        return concat_of(width, 0);
    auto const chosen = m_random.any_of(fitting);
    auto const whole = m_kind.expressions[static_cast<std::size_t>(chosen)].width;
    if (whole == width)
        return chosen;
    expression part;
    part.op = operation::range;
    part.operands = {chosen};
    part.width = width;
    part.low = m_random.one_in(2) ? whole - width : size{0, m_random.pick(room(whole, width) + 1)};
    part.high = part.low + width - one_bit;
    return add(part);
}

int kind_maker::expression_of(size width, int depth)
{
    if (depth <= 0 || m_random.one_in(4))
        return leaf_or_part(width);
    if (width.least() > 1 && split(width) && m_random.one_in(5))
        return concat_of(width, depth - 1);
    return operation_of(width, depth - 1);
}

std::vector<operation> kind_maker::operations_for(size width) const
{
    std::vector<operation> possible{operation::invert, operation::bits_and, operation::bits_or, operation::bits_xor,
                                    operation::range};
    if (m_kind.has_mode)
        possible.insert(possible.end(), 3, operation::by_mode);
    if (width == one_bit)
        possible.insert(possible.end(), {operation::reduce_and, operation::reduce_or, operation::reduce_xor});
    return possible;
}

int kind_maker::operation_of(size width, int depth)
{
    expression made;
    made.op = m_random.any_of(operations_for(width));
    made.width = width;
    switch (made.op) {
    case operation::range: { // of an expression, or of a range
        auto const more = size{0, m_random.between(1, 3)};
        auto const cut = size{0, m_random.pick(more.offset + 1)};
        made.operands = {expression_of(width + more, depth)};
        made.low = cut;
        made.high = made.low + width - one_bit;
        break;
    }
    case operation::reduce_and:
    case operation::reduce_or:
    case operation::reduce_xor:
        made.operands = {bus(depth)};
        break;
    case operation::invert:
        made.operands = {expression_of(width, depth)};
        break;
    default:
        made.operands = {expression_of(width, depth), expression_of(m_random.one_in(4) ? one_bit : width, depth)};
        if (m_random.one_in(2))
            std::swap(made.operands[0], made.operands[1]);
        break;
    }
    return add(made);
}

/// Something of at least two bits.
int kind_maker::bus(int depth)
{
    auto const width = size{0, m_random.between(2, 6)};
    return expression_of(m_kind.has_w && m_random.one_in(3) ? size{1, 1} : width, depth);
}

int kind_maker::concat_of(size width, int depth)
{
    std::vector<int> parts;
    auto rest = width;
    for (auto cut = split(rest); cut && (parts.size() < 5 || rest.factor > 0 || depth == 0); cut = split(rest)) {
        bool const number = !parts.empty() && cut->factor == 0 && cut->offset <= 3 && m_random.one_in(8);
        parts.push_back(number ? number_operand(cut->offset) : leaf_or_part(*cut));
        rest = rest - *cut;
        if (depth > 0 && parts.size() > 1 && m_random.one_in(2))
            break;
    }
    if (parts.empty())
        return leaf_or_part(width);
    parts.push_back(leaf_or_part(rest));
    expression made;
    made.op = operation::concat;
    made.operands = parts;
    made.width = width;
    made.built_from_right = m_random.one_in(3);
    return add(made);
}

/// The values whose width as a constant operand is `width`.
int kind_maker::number_operand(int width)
{
    expression made;
    made.op = operation::number;
    made.width = {0, width};
    made.value = width == 1 ? m_random.pick(2) : width == 2 ? m_random.between(2, 3) : 7;
    return add(made);
}

} // namespace random_designs
