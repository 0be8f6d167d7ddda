#include "random_generator.h"

#include <algorithm>

namespace random_designs {

namespace {

std::string binary_digits(std::uint64_t value, int width)
{
    std::string digits;
    for (int bit = width - 1; bit >= 0; --bit)
        digits += ((value >> bit) & 1U) != 0 ? '1' : '0';
    return digits;
}

std::string expression_over_w(size width)
{
    auto text = width.factor == 1 ? std::string("W") : std::to_string(width.factor) + "*W";
    return width.offset == 0 ? text : text + "+" + std::to_string(width.offset);
}

class random_generator : public GNL_GENERATOR
{
public:
    random_generator(GNL_GENERATOR * parent, description const & all, int of, std::string const & text,
                     int array_width = 0)
        : GNL_GENERATOR(parent, all.kinds[static_cast<std::size_t>(of)].name, text.c_str(), array_width)
        , m_all(all)
        , m_index(of)
        , m_kind(all.kinds[static_cast<std::size_t>(of)])
    {
        declare_parameters();
        declare_pins();
    }

    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
    {
        auto & slice = *new random_generator(parent, m_all, m_index, "");
        slice.set_slice_index(index);
        slice.set_array_parent(parent);
        slice.set_instance_name(instance_name);
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        read_parameters();
        for (auto const & wire : m_kind.wires)
            m_wires.push_back(new GNL_WIRE(this, wire.name, declared_width(wire)));
        for (auto const & made : m_kind.children)
            add_child(made);
        for (auto const & each : m_kind.statements)
            execute(each);
        dump_hdl(out);
    }

private:
    void declare_parameters();
    void declare_pins();
    void read_parameters();
    void add_child(child const & made);
    void give_settings(random_generator & to, child_settings const & given) const;
    std::string settings_text(kind const & made, child_settings const & given) const;

    int declared_width(declared_signal const & of) const { return of.scalar ? 0 : of.width.at(m_with.w); }
    GNL_GENERATOR & child_object(int object, int slice)
    {
        auto & made = *m_children[static_cast<std::size_t>(object)];
        return slice < 0 ? made : made[slice];
    }
    kind const & kind_of_child(int object) const
    {
        return m_all.kinds[static_cast<std::size_t>(m_kind.children[static_cast<std::size_t>(object)].kind)];
    }

    void execute(statement const & to);
    GNL_PORT & sink_of(statement const & to);
    GNL_PORT & value(int index);
    GNL_PORT & binary(operation op, GNL_PORT & first, GNL_PORT & second);
    GNL_PORT & concat(expression const & of);

    description const & m_all;
    int m_index;
    kind const & m_kind;
    settings m_with; ///< as the library's parameters tell
    std::unique_ptr<GNL_PARAMETER_INTEGER> m_w, m_k;
    std::unique_ptr<GNL_PARAMETER_STRING> m_mode;
    std::unique_ptr<GNL_PARAMETER_VECTOR> m_mask;
    std::vector<GNL_PORT_INPUT *> m_inputs;
    std::vector<GNL_PORT_OUTPUT *> m_outputs;
    std::vector<GNL_WIRE *> m_wires;
    std::vector<random_generator *> m_children;
};

void random_generator::declare_parameters()
{
    if (m_kind.has_w)
        m_w = std::make_unique<GNL_PARAMETER_INTEGER>(this, "W", m_kind.defaults.w);
    if (m_kind.has_k)
        m_k = std::make_unique<GNL_PARAMETER_INTEGER>(this, "K", m_kind.defaults.k);
    if (m_kind.has_mode)
        m_mode = std::make_unique<GNL_PARAMETER_STRING>(this, "MODE", "AND|OR|XOR|NAND", m_kind.defaults.mode);
    if (m_kind.mask_width > 0)
        m_mask = std::make_unique<GNL_PARAMETER_VECTOR>(this, "MASK", 0, m_kind.mask_width);
}

void random_generator::declare_pins()
{
    for (auto const & pin : m_kind.inputs) {
        m_inputs.push_back(pin.width.factor == 0 ? new GNL_PORT_INPUT(this, pin.name, pin.scalar ? 0 : pin.width.offset)
                                                 : new GNL_PORT_INPUT(this, pin.name, expression_over_w(pin.width)));
        if (pin.default_value != -1)
            m_inputs.back()->set_default_port_value(pin.default_value);
    }
    for (auto const & pin : m_kind.outputs)
        m_outputs.push_back(pin.width.factor == 0
                                ? new GNL_PORT_OUTPUT(this, pin.name, pin.scalar ? 0 : pin.width.offset)
                                : new GNL_PORT_OUTPUT(this, pin.name, expression_over_w(pin.width)));
}

void random_generator::read_parameters()
{
    if (m_w)
        m_with.w = m_w->get_value();
    if (m_k)
        m_with.k = m_k->get_value();
    if (m_mode)
        m_with.mode =
            static_cast<int>(std::find(std::begin(modes), std::end(modes), m_mode->get_value()) - std::begin(modes));
}

// ---- Children

void random_generator::add_child(child const & made)
{
    auto const & of = m_all.kinds[static_cast<std::size_t>(made.kind)];
    auto * const object = new random_generator(
        this, m_all, made.kind, made.given.as_text ? settings_text(of, made.given) : std::string(), made.array_width);
    if (!made.instance.empty())
        object->set_instance_name(made.instance);
    if (!made.given.as_text)
        give_settings(*object, made.given);
    m_children.push_back(object);
}

void random_generator::give_settings(random_generator & to, child_settings const & given) const
{
    if (given.gives_w)
        *to.m_w = given.w.at(m_with.w);
    if (given.gives_k)
        *to.m_k = given.values.k + (given.passes_k ? m_with.k : 0);
    if (given.gives_mode)
        *to.m_mode = modes[given.passes_mode ? m_with.mode : given.values.mode];
    if (given.gives_mask)
        *to.m_mask = "0b" + binary_digits(given.values.mask, to.m_kind.mask_width);
}

std::string random_generator::settings_text(kind const & made, child_settings const & given) const
{
    std::string text;
    auto const add = [&text](std::string const & name, std::string const & value) {
        text += (text.empty() ? "" : ",") + name + "=" + value;
    };
    if (given.gives_w)
        add("W", std::to_string(given.w.at(m_with.w)));
    if (given.gives_k)
        add("K", std::to_string(given.values.k + (given.passes_k ? m_with.k : 0)));
    if (given.gives_mode)
        add("MODE", modes[given.passes_mode ? m_with.mode : given.values.mode]);
    if (given.gives_mask)
        add("MASK", "0b" + binary_digits(given.values.mask, made.mask_width));
    return text;
}

// ---- Statements

void random_generator::execute(statement const & to)
{
    auto & sink = sink_of(to);
    if (to.only_if_used && !sink.is_used())
        return;
    auto const & chosen = to.choices[static_cast<std::size_t>(m_with.k) % to.choices.size()];
    auto const assign = [&](auto & target) {
        switch (chosen.what) {
        case source::form::number:
            target = static_cast<int>(number_for(chosen, m_with, target.get_bus_width()));
            break;
        case source::form::mask:
            target = m_mask->get_value();
            break;
        case source::form::expression:
            target = value(chosen.expression);
            break;
        }
    };
    if (to.whole)
        assign(sink);
    else
        assign(sink.range(to.high.at(m_with.w), to.low.at(m_with.w)));
}

GNL_PORT & random_generator::sink_of(statement const & to)
{
    auto const object = static_cast<std::size_t>(to.object);
    switch (to.sink) {
    case statement::target::output:
        return *m_outputs[object];
    case statement::target::wire:
        return *m_wires[object];
    case statement::target::child_input:
        break;
    }
    auto const & pin = kind_of_child(to.object).inputs[static_cast<std::size_t>(to.pin)];
    return child_object(to.object, to.slice).port(pin.name);
}

GNL_PORT & random_generator::value(int index)
{
    auto const & of = m_kind.expressions[static_cast<std::size_t>(index)];
    auto const operand = [&](std::size_t i) -> GNL_PORT & { return value(of.operands[i]); };
    switch (of.op) {
    case operation::input:
        return *m_inputs[static_cast<std::size_t>(of.object)];
    case operation::wire:
        return *m_wires[static_cast<std::size_t>(of.object)];
    case operation::child_output:
        return child_object(of.object, of.slice)
            .port(kind_of_child(of.object).outputs[static_cast<std::size_t>(of.pin)].name);
    case operation::range: {
        int const high = of.high.at(m_with.w);
        int const low = of.low.at(m_with.w);
        return high == low ? operand(0)[low] : operand(0).range(high, low);
    }
    case operation::invert:
        return ~operand(0);
    case operation::reduce_and:
        return operand(0).bitwise_and();
    case operation::reduce_or:
        return operand(0).bitwise_or();
    case operation::reduce_xor:
        return operand(0).bitwise_xor();
    case operation::number: // only among the operands of a concatenation
    case operation::concat:
        return concat(of);
    default:
        break;
    }
    auto & first = operand(0);
    return binary(of.op, first, operand(1));
}

GNL_PORT & random_generator::binary(operation op, GNL_PORT & first, GNL_PORT & second)
{
    static constexpr operation by_mode[] = {operation::bits_and, operation::bits_or, operation::bits_xor,
                                            operation::bits_and};
    bool const inverted = op == operation::by_mode && m_with.mode == 3;
    if (op == operation::by_mode)
        op = by_mode[m_with.mode];
    auto & made = op == operation::bits_and  ? first & second
                  : op == operation::bits_or ? first | second
                                             : first ^ second;
    return inverted ? ~made : made;
}

/// From the right only what an author would write so: numbers stand on the right of a comma, and a concatenation on the
/// left of another one goes to its lower end, which is a matter of its own.
GNL_PORT & random_generator::concat(expression const & of)
{
    auto const part = [&](int index) -> expression const & {
        return m_kind.expressions[static_cast<std::size_t>(index)];
    };
    auto const is_number = [&](int index) { return part(index).op == operation::number; };
    std::vector<int> const & parts = of.operands;
    bool const from_right = of.built_from_right && std::none_of(parts.begin(), parts.end(), [&](int index) {
                                return is_number(index) || part(index).op == operation::concat;
                            });
    if (!from_right) {
        GNL_PORT * joined = &value(parts[0]);
        for (std::size_t i = 1; i < parts.size(); ++i)
            joined = is_number(parts[i]) ? &(*joined, part(parts[i]).value) : &(*joined, value(parts[i]));
        return *joined;
    }
    auto & high = value(parts[parts.size() - 2]);
    GNL_PORT_CONCAT * joined = &(high, value(parts.back()));
    for (std::size_t i = parts.size() - 2; i-- > 0;)
        joined = &(value(parts[i]), *joined);
    return *joined;
}

} // namespace

std::unique_ptr<GNL_GENERATOR> make_generator(description const & of, std::string const & options)
{
    auto text = options;
    if (of.top_kind().has_w)
        text += ",W=" + std::to_string(of.top.w);
    if (of.top_kind().has_k)
        text += ",K=" + std::to_string(of.top.k);
    if (of.top_kind().mask_width > 0)
        text += ",MASK=0b" + binary_digits(of.top.mask, of.top_kind().mask_width);
    return std::make_unique<random_generator>(nullptr, of, static_cast<int>(of.kinds.size()) - 1, text);
}

} // namespace random_designs
