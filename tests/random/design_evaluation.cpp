#include "design_evaluation.h"

#include <optional>
#include <stdexcept>

namespace random_designs {

settings settings_of(child const & of, kind const & made, settings const & around)
{
    settings result = made.defaults;
    auto const & given = of.given;
    if (given.gives_w)
        result.w = given.w.at(around.w);
    if (given.gives_k)
        result.k = given.values.k + (given.passes_k ? around.k : 0);
    if (given.gives_mode)
        result.mode = given.passes_mode ? around.mode : given.values.mode;
    if (given.gives_mask)
        result.mask = given.values.mask;
    return result;
}

namespace {

lanes lane_of(bool value)
{
    return value ? ~lanes{0} : lanes{0};
}

bits number(std::uint64_t value, int width)
{
    bits result(static_cast<std::size_t>(width));
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i] = lane_of(i < 64 && ((value >> i) & 1U) != 0);
    return result;
}

/// One instance. Signals are computed when they are asked for, so that the order of statements does not matter.
class instance
{
public:
    instance(description const & all, kind const & of, settings const & with, std::vector<bits> inputs)
        : m_all(all)
        , m_kind(of)
        , m_with(with)
        , m_inputs(std::move(inputs))
        , m_wires(of.wires.size())
        , m_children(of.children.size())
    {
    }

    bits output(int index) const
    {
        auto const & pin = m_kind.outputs[static_cast<std::size_t>(index)];
        return assembled(statement::target::output, index, 0, pin.width.at(m_with.w), 0);
    }

private:
    /// What the statements about one sink give it; bits that no statement assigns have `open`. `slice_width` is that of
    /// one slice of an array.
    bits assembled(statement::target sink, int object, int pin, int width, lanes open, int slice_width = 0) const;
    bits value_of(source const & of, int width) const;
    bits value(int expression) const;
    bits binary(operation op, int first, int second) const;
    bits reduced(operation op, int operand) const;
    bits child_output(expression const & of) const;
    bits wire(int index) const;
    /// The slices of a child, or the one child.
    std::vector<instance> const & instances(int index) const;
    std::vector<instance> made_instances(int index) const;

    description const & m_all;
    kind const & m_kind;
    settings m_with;
    std::vector<bits> m_inputs;
    mutable std::vector<std::optional<bits>> m_wires;
    mutable std::vector<std::vector<instance>> m_children;
};

bits instance::assembled(statement::target sink, int object, int pin, int width, lanes open, int slice_width) const
{
    bits result(static_cast<std::size_t>(width), open);
    for (auto const & assigned : m_kind.statements) {
        if (assigned.sink != sink || assigned.object != object || assigned.pin != pin)
            continue;
        auto low = assigned.whole ? 0 : assigned.low.at(m_with.w);
        auto count = assigned.whole ? width : assigned.high.at(m_with.w) - low + 1;
        if (assigned.slice >= 0) {
            low += assigned.slice * slice_width;
            count = assigned.whole ? slice_width : count;
        }
        auto const chosen = static_cast<std::size_t>(m_with.k) % assigned.choices.size();
        auto const source = value_of(assigned.choices[chosen], count);
        for (int i = 0; i < count; ++i)
            result.at(static_cast<std::size_t>(low + i)) = source[static_cast<std::size_t>(i) % source.size()];
    }
    return result;
}

bits instance::value_of(source const & of, int width) const
{
    switch (of.what) {
    case source::form::number:
        return number(number_for(of, m_with, width), width);
    case source::form::mask:
        return number(m_with.mask, width);
    case source::form::expression:
        break;
    }
    return value(of.expression);
}

bits instance::value(int index) const
{
    auto const & of = m_kind.expressions[static_cast<std::size_t>(index)];
    switch (of.op) {
    case operation::input:
        return m_inputs[static_cast<std::size_t>(of.object)];
    case operation::wire:
        return wire(of.object);
    case operation::child_output:
        return child_output(of);
    case operation::number:
        return number(static_cast<std::uint64_t>(of.value), of.width.at(m_with.w));
    case operation::range: {
        auto const whole = value(of.operands[0]);
        return {whole.begin() + of.low.at(m_with.w), whole.begin() + of.high.at(m_with.w) + 1};
    }
    case operation::concat: {
        bits result;
        for (auto operand = of.operands.rbegin(); operand != of.operands.rend(); ++operand) {
            auto const part = value(*operand);
            result.insert(result.end(), part.begin(), part.end());
        }
        return result;
    }
    case operation::invert: {
        auto result = value(of.operands[0]);
        for (auto & bit : result)
            bit = ~bit;
        return result;
    }
    case operation::bits_and:
    case operation::bits_or:
    case operation::bits_xor:
    case operation::by_mode:
        return binary(of.op, of.operands[0], of.operands[1]);
    case operation::reduce_and:
    case operation::reduce_or:
    case operation::reduce_xor:
        break;
    }
    return reduced(of.op, of.operands[0]);
}

bits instance::binary(operation op, int first, int second) const
{
    auto const a = value(first);
    auto const b = value(second);
    bool inverted = false;
    if (op == operation::by_mode) {
        static constexpr operation by_mode[] = {operation::bits_and, operation::bits_or, operation::bits_xor,
                                                operation::bits_and};
        inverted = m_with.mode == 3;
        op = by_mode[m_with.mode];
    }
    bits result(std::max(a.size(), b.size()));
    for (std::size_t i = 0; i < result.size(); ++i) {
        auto const x = a[i % a.size()];
        auto const y = b[i % b.size()];
        auto const bit = op == operation::bits_and ? x & y : op == operation::bits_or ? x | y : x ^ y;
        result[i] = inverted ? ~bit : bit;
    }
    return result;
}

bits instance::reduced(operation op, int operand) const
{
    auto const all = value(operand);
    auto result = all[0];
    for (std::size_t i = 1; i < all.size(); ++i)
        result = op == operation::reduce_and  ? result & all[i]
                 : op == operation::reduce_or ? result | all[i]
                                              : result ^ all[i];
    return {result};
}

bits instance::wire(int index) const
{
    auto & known = m_wires[static_cast<std::size_t>(index)];
    if (!known)
        known = assembled(statement::target::wire, index, 0,
                          m_kind.wires[static_cast<std::size_t>(index)].width.at(m_with.w), 0);
    return *known;
}

bits instance::child_output(expression const & of) const
{
    auto const & made = instances(of.object);
    if (of.slice >= 0)
        return made[static_cast<std::size_t>(of.slice)].output(of.pin);
    bits result;
    for (auto const & slice : made) {
        auto const part = slice.output(of.pin);
        result.insert(result.end(), part.begin(), part.end());
    }
    return result;
}

std::vector<instance> const & instance::instances(int index) const
{
    auto & known = m_children[static_cast<std::size_t>(index)];
    if (known.empty())
        known = made_instances(index);
    return known;
}

std::vector<instance> instance::made_instances(int index) const
{
    auto const & of = m_kind.children[static_cast<std::size_t>(index)];
    auto const & made = m_all.kinds[static_cast<std::size_t>(of.kind)];
    auto const with = settings_of(of, made, m_with);
    int const slices = of.array_width > 0 ? of.array_width : 1;
    std::vector<std::vector<bits>> inputs(static_cast<std::size_t>(slices));
    for (std::size_t pin = 0; pin < made.inputs.size(); ++pin) {
        auto const & input = made.inputs[pin];
        int const width = input.width.at(with.w);
        auto const all = assembled(statement::target::child_input, index, static_cast<int>(pin), width * slices,
                                   lane_of(input.default_value == 1), width);
        for (int i = 0; i < slices; ++i)
            inputs[static_cast<std::size_t>(i)].emplace_back(all.begin() + i * width, all.begin() + (i + 1) * width);
    }
    std::vector<instance> result;
    for (auto & of_slice : inputs)
        result.emplace_back(m_all, made, with, std::move(of_slice));
    return result;
}

} // namespace

std::vector<bits> evaluate(description const & of, std::vector<bits> const & inputs)
{
    instance const top(of, of.top_kind(), of.top, inputs);
    std::vector<bits> outputs;
    for (std::size_t i = 0; i < of.top_kind().outputs.size(); ++i)
        outputs.push_back(top.output(static_cast<int>(i)));
    return outputs;
}

} // namespace random_designs
