// Pins, children and assignments of a random kind; its expressions are made in kind_maker_expressions.cpp.

#include "kind_maker.h"

#include <algorithm>

namespace random_designs {

kind kind_maker::make(std::string const & name, bool is_top)
{
    m_kind.name = name;
    declare_parameters();
    declare_pins();
    int const items = m_random.between(1, 5);
    for (int i = 0; i < items; ++i)
        if (m_random.one_in(2))
            add_wire();
        else
            add_child();
    while (is_top && m_allowed.most_children > 50 && m_kind.designs_below < m_most_children * 9 / 10)
        if (!add_child())
            break;
    for (std::size_t i = 0; i < m_kind.outputs.size(); ++i) {
        statement to;
        to.sink = statement::target::output;
        to.object = static_cast<int>(i);
        to.width = m_kind.outputs[i].width;
        to.only_if_used = !is_top && m_random.one_in(4);
        assign(to);
    }
    m_random.shuffle(m_kind.statements);
    return m_kind;
}

void kind_maker::declare_parameters()
{
    m_kind.has_w = m_random.one_in(3);
    m_kind.has_k = m_random.one_in(2);
    m_kind.has_mode = m_random.one_in(3);
    m_kind.mask_width = m_random.one_in(4) ? m_random.between(1, m_random.one_in(4) ? 40 : 6) : 0;
    if (m_kind.has_w)
        m_kind.defaults.w = m_random.between(1, largest_w);
    if (m_kind.has_k)
        m_kind.defaults.k = m_random.pick(4);
    if (m_kind.has_mode)
        m_kind.defaults.mode = m_random.pick(4);
    if (m_kind.mask_width > 0)
        m_kind.defaults.mask = m_random.word() & ((std::uint64_t{1} << m_kind.mask_width) - 1);
}

declared_signal kind_maker::declared(std::string const & name)
{
    static std::vector<int> const widths{1, 2, 2, 3, 4, 4, 5, 8};
    declared_signal made;
    made.name = name;
    made.width = {0, m_random.one_in(25) ? m_random.between(30, 40) : m_random.any_of(widths)};
    if (m_random.one_in(3)) {
        made.width = one_bit;
        made.scalar = true;
    } else if (m_kind.has_w && m_random.one_in(2))
        made.width = {m_random.between(1, 2), m_random.one_in(3) ? 1 : 0};
    return made;
}

void kind_maker::declare_pins()
{
    static std::vector<std::string> const input_names{"a", "b7", "Data", "in", "abs", "x_1"};
    static std::vector<std::string> const output_names{"q", "y0", "out", "Sum", "r_2", "full"};
    auto const first_input = static_cast<std::size_t>(m_random.pick(6));
    int const inputs = m_random.between(1, 4);
    for (int i = 0; i < inputs; ++i) {
        auto pin = declared(input_names[(first_input + static_cast<std::size_t>(i)) % 6]);
        if (i == 0 && m_kind.has_w)
            pin = {pin.name, {1, 0}}; // what any width over W can be put together from
        else if (m_random.one_in(3))
            pin.default_value = m_random.pick(2);
        expression read;
        read.object = i;
        read.width = pin.width;
        m_kind.inputs.push_back(pin);
        m_sources.push_back(add(read));
    }
    auto const first_output = static_cast<std::size_t>(m_random.pick(6));
    int const outputs = m_random.between(1, 3);
    for (int i = 0; i < outputs; ++i)
        m_kind.outputs.push_back(declared(output_names[(first_output + static_cast<std::size_t>(i)) % 6]));
}

std::string kind_maker::name_end()
{
    return !m_random.one_in(2) ? "" : m_allowed.underscores_at_end ? "_" : "s";
}

void kind_maker::add_wire()
{
    auto const index = static_cast<int>(m_kind.wires.size());
    auto const made = declared("t" + std::to_string(index) + name_end());
    m_kind.wires.push_back(made);
    statement to;
    to.object = index;
    to.width = made.width;
    assign(to);
    expression read;
    read.op = operation::wire;
    read.object = index;
    read.width = made.width;
    m_sources.push_back(add(read));
}

// ---- Children

child_settings kind_maker::settings_for(kind const & made)
{
    child_settings given;
    given.as_text = m_random.one_in(3);
    // A width that follows the one around has no default to fall back to: what is connected depends on it.
    given.gives_w = made.has_w;
    given.w = m_kind.has_w && m_random.one_in(2) ? size{1, 0} : size{0, m_random.between(1, largest_w)};
    given.gives_k = made.has_k && !m_random.one_in(3);
    given.passes_k = m_kind.has_k && m_random.one_in(3);
    given.values.k = m_random.pick(4);
    given.gives_mode = made.has_mode && !m_random.one_in(3);
    given.passes_mode = m_kind.has_mode && m_random.one_in(3);
    given.values.mode = m_random.pick(4);
    given.gives_mask = made.mask_width > 0; // the default of a vector is for declarations alone
    if (made.mask_width > 0)
        given.values.mask = m_random.word() & ((std::uint64_t{1} << made.mask_width) - 1);
    return given;
}

/// The width of a child's pin in terms of the W around.
size kind_maker::slice_width(child const & made, size width) const
{
    return {width.factor * made.given.w.factor, width.factor * made.given.w.offset + width.offset};
}

/// False when there is no room for another one.
bool kind_maker::add_child()
{
    if (m_below.empty())
        return false;
    child made;
    made.kind = m_random.pick(static_cast<int>(m_below.size()));
    auto const & of = m_below[static_cast<std::size_t>(made.kind)];
    if (m_allowed.arrays && m_random.one_in(3))
        made.array_width = m_random.between(1, 4);
    int const more = std::max(made.array_width, 1) * (1 + of.designs_below);
    if (m_kind.designs_below + more > m_most_children)
        return false;
    m_kind.designs_below += more;
    auto const object = static_cast<int>(m_kind.children.size());
    if (!m_random.one_in(5))
        made.instance = "u" + std::to_string(object) + name_end();
    made.given = settings_for(of);
    m_kind.children.push_back(made);
    connect(made, object);
    for (std::size_t pin = 0; pin < of.outputs.size(); ++pin)
        for (int slice = -1; slice < made.array_width; ++slice) {
            expression read;
            read.op = operation::child_output;
            read.object = object;
            read.pin = static_cast<int>(pin);
            read.slice = slice;
            read.width = slice_width(made, of.outputs[pin].width);
            if (slice == -1)
                read.width = std::max(made.array_width, 1) * read.width;
            if (!m_random.one_in(4))
                m_sources.push_back(add(read));
        }
    return true;
}

void kind_maker::connect(child const & made, int object)
{
    auto const & of = m_below[static_cast<std::size_t>(made.kind)];
    for (std::size_t pin = 0; pin < of.inputs.size(); ++pin) {
        if (of.inputs[pin].default_value != -1 && m_random.one_in(2))
            continue;
        statement to;
        to.sink = statement::target::child_input;
        to.object = object;
        to.pin = static_cast<int>(pin);
        to.width = slice_width(made, of.inputs[pin].width);
        if (made.array_width > 0)
            connect_array_input(to, made.array_width);
        else
            assign(to);
    }
}

void kind_maker::connect_array_input(statement to, int slices)
{
    auto const one = to.width;
    switch (m_random.pick(6)) {
    case 0: // one signal for all slices
        if (m_allowed.broadcasts || one == one_bit) {
            to.choices = {{source::form::expression, expression_of(one, 2), 0}};
            to.width = slices * one;
            m_kind.statements.push_back(to);
            break;
        }
        [[fallthrough]];
    case 1:
        connect_slices(to, 0, slices - 1);
        break;
    case 2: { // the lower slices as one range, the upper one by one
        int const cut = m_random.between(1, slices);
        connect_slices(to, cut, slices - 1);
        to.whole = cut == slices && m_random.one_in(2);
        to.low = {0, 0};
        to.high = cut * one - one_bit;
        to.width = cut * one;
        if (to.whole)
            assign(to);
        else
            assign_whole(to);
        break;
    }
    case 3:
        if (one.factor == 0 && one.offset > 1 && slices > 1) {
            connect_across_slices(to, slices);
            break;
        }
        [[fallthrough]];
    default:
        to.width = slices * one;
        assign_whole(to);
        break;
    }
}

void kind_maker::connect_slices(statement to, int first, int last)
{
    for (int i = first; i <= last; ++i) {
        to.slice = i;
        assign(to);
    }
}

/// Two pieces whose border lies within a slice.
void kind_maker::connect_across_slices(statement to, int slices)
{
    int const width = to.width.offset;
    int const cut = m_random.pick(slices) * width + m_random.between(1, width - 1);
    to.whole = false;
    to.low = {0, 0};
    to.high = {0, cut - 1};
    to.width = {0, cut};
    assign_whole(to);
    to.low = {0, cut};
    to.high = {0, slices * width - 1};
    to.width = {0, slices * width - cut};
    assign_whole(to);
}

// ---- Assignments

void kind_maker::assign(statement to)
{
    to.high = to.width - one_bit;
    if (to.width.least() > 1 && m_random.one_in(4))
        assign_pieces(to);
    else
        assign_whole(to);
}

void kind_maker::assign_whole(statement const & to)
{
    auto made = to;
    do
        made.choices.push_back(source_for(to));
    while (m_kind.has_k && made.choices.size() < 3 && m_random.one_in(3));
    m_kind.statements.push_back(made);
}

void kind_maker::assign_pieces(statement const & to)
{
    auto piece = to;
    piece.whole = false;
    auto const low_part = split(to.width);
    if (!low_part) {
        assign_whole(to);
        return;
    }
    piece.low = {0, 0};
    piece.high = *low_part - one_bit;
    piece.width = *low_part;
    assign_whole(piece);
    piece.low = *low_part;
    piece.high = to.width - one_bit;
    piece.width = to.width - *low_part;
    assign_whole(piece);
}

/// A constant on a whole array of buses is left out: the digits of a slice run on into those of the slices below, on
/// purpose, and a language's own rule of cutting too long a literal decides what that means.
bool kind_maker::takes_constants(statement const & to) const
{
    if (to.sink != statement::target::child_input || to.slice >= 0 || !to.whole)
        return true;
    auto const & made = m_kind.children[static_cast<std::size_t>(to.object)];
    return made.array_width <= 1 || to.width == made.array_width * one_bit;
}

source kind_maker::source_for(statement const & to)
{
    auto const width = to.width;
    source made;
    int const chosen = m_random.pick(12);
    switch (chosen <= 1 && !takes_constants(to) ? 2 : chosen) {
    case 0:
        made.what = source::form::number;
        made.value = m_random.one_in(3) ? m_random.pick(2) * 0x3fffffff : m_random.pick(1 << 20);
        return made;
    case 1:
        if (m_kind.mask_width > 0 && m_kind.mask_width <= width.least()) {
            made.what = source::form::mask;
            return made;
        }
        [[fallthrough]];
    case 2: // repeated
        made.expression = expression_of(one_bit, 2);
        return made;
    default:
        made.expression = expression_of(width, m_random.between(0, 3));
        return made;
    }
}

} // namespace random_designs
