// From the structure of a design to a Verilog module. Every signal and every pin of an instance becomes a net; each of
// its bits is watched for being driven once and for being driven when it is read.

#include "qhdl/qhdl_reader.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace qhdl {
namespace {

using kind = variable_declaration::variable_kind;

enum class net_role {
    source,     ///< driven from elsewhere: an input of the design, an output of an instance
    sink,       ///< read elsewhere: an output of the design, an input of an instance
    inner,      ///< a wire or a node
    both_sides, ///< a bidirectional port
};

struct net
{
    std::string name; ///< in Verilog
    int width = declared_name::no_range;
    net_role role = net_role::inner;
    place at;
    std::vector<bool> driven;
    std::string joined_to; ///< the bits that a bidirectional pin of an instance meets instead of a net of its own

    bool is_bus() const { return width >= 0; }
    int bits() const { return is_bus() ? width : 1; }
};

using net_map = std::map<std::string, std::unique_ptr<net>>;

struct instance
{
    std::string name;
    variable_declaration const * declaration;
    function_header const * function;
    net_map pins;
};

/// Neighbouring bits of one net.
struct net_part
{
    net * of;
    int high;
    int low;
    place at;

    int width() const { return high - low + 1; }
    std::string text() const
    {
        if (!of->is_bus())
            return of->name;
        return of->name + "[" + std::to_string(high) + ":" + std::to_string(low) + "]";
    }
};

/// Verilog text and its number of bits.
struct value
{
    std::string text;
    int width;
};

std::string joined(std::vector<net_part> const & parts)
{
    std::string text;
    for (auto const & part : parts)
        text += (text.empty() ? "" : ", ") + part.text();
    return parts.size() == 1 ? text : "{" + text + "}";
}

int width_of(std::vector<net_part> const & parts)
{
    int width = 0;
    for (auto const & part : parts)
        width += part.width();
    return width;
}

std::string range_text(net const & declared)
{
    return declared.is_bus() ? "[" + std::to_string(declared.width - 1) + ":0] " : "";
}

class module_translator
{
public:
    module_translator(design const & translated, std::map<std::string, function_header const *> const & functions)
        : m_design(translated)
        , m_functions(functions)
    {
    }

    std::string run()
    {
        declare_pins();
        for (auto const & variable : m_design.variables)
            declare(variable);
        for (auto const & one : m_design.statements)
            join_pins(one);
        for (auto const & one : m_design.statements)
            assign(one);
        check_reads();
        check_sinks();
        return module_text();
    }

private:
    [[noreturn]] void fail(place at, std::string const & message) const { throw error(m_design.file, at, message); }

    // ---- declarations

    void declare_pins()
    {
        for (auto const & pin : m_design.header.pins) {
            auto const role = pin.direction == pin_direction::input    ? net_role::source
                              : pin.direction == pin_direction::output ? net_role::sink
                                                                       : net_role::both_sides;
            add_net(pin.declared, pin.declared.name, role);
        }
    }
    void declare(variable_declaration const & variable)
    {
        if (variable.kind == kind::instance)
            add_instances(variable);
        else
            add_net(variable.declared, variable.declared.name, net_role::inner);
    }

    static std::unique_ptr<net> make_net(declared_name const & declared, std::string name, net_role role)
    {
        auto made = std::make_unique<net>();
        made->name = std::move(name);
        made->width = declared.width;
        made->role = role;
        made->at = declared.at;
        made->driven.assign(static_cast<std::size_t>(made->bits()), role == net_role::source);
        return made;
    }
    void add_net(declared_name const & declared, std::string const & name, net_role role)
    {
        take_names(declared);
        m_nets[folded(declared.name)] = make_net(declared, name, role);
    }

    /// A bit of a bus is also known by the name of the bus with its number, so that "a1" can't stand beside "a[3..0]".
    void take_names(declared_name const & declared)
    {
        auto const name = folded(declared.name);
        take_name(name, declared);
        for (int bit = 0; bit < declared.width; ++bit)
            take_name(name + std::to_string(bit), declared);
    }
    void take_name(std::string const & name, declared_name const & declared)
    {
        if (!m_names.emplace(name, declared.at).second)
            fail(declared.at, "the name " + name + " is there already");
    }

    void add_instances(variable_declaration const & variable)
    {
        auto const function = m_functions.find(folded(variable.function));
        if (function == m_functions.end())
            fail(variable.declared.at, "there is no design or cell " + variable.function);
        take_names(variable.declared);
        auto const name = folded(variable.declared.name);
        auto const count = variable.declared.width;
        if (count == declared_name::no_range)
            m_instances[name] = make_instance(variable, *function->second, variable.declared.name);
        else
            m_arrays[name] = count;
        for (int i = 0; i < count; ++i)
            m_instances[name + std::to_string(i)] =
                make_instance(variable, *function->second, variable.declared.name + std::to_string(i));
    }
    instance make_instance(variable_declaration const & variable, function_header const & function,
                           std::string const & name) const
    {
        instance made{name, &variable, &function, {}};
        for (auto const & pin : function.pins) {
            if (pin.declared.width == declared_name::of_parameter)
                fail(variable.declared.at,
                     "the width of port " + pin.declared.name + " of " + function.name + " depends on a parameter");
            auto const role = pin.direction == pin_direction::input    ? net_role::sink
                              : pin.direction == pin_direction::output ? net_role::source
                                                                       : net_role::both_sides;
            // No name of the design has a "$".
            made.pins[folded(pin.declared.name)] = make_net(pin.declared, name + "$" + pin.declared.name, role);
            made.pins[folded(pin.declared.name)]->at = variable.declared.at;
        }
        return made;
    }

    // ---- references

    net_part part_of(net & of, std::optional<subscript> const & bits, place at, std::string const & shown) const
    {
        if (of.is_bus() != bits.has_value())
            fail(at, shown + (of.is_bus() ? " is a bus and needs a range" : " is one bit and has no range"));
        if (!bits || bits->all)
            return {&of, of.bits() - 1, 0, at};
        if (bits->high >= of.width)
            fail(bits->at, shown + " has " + std::to_string(of.width) + " bits");
        return {&of, bits->high, bits->low, at};
    }

    std::vector<net_part> parts_of(reference const & source)
    {
        if (source.pin.empty()) {
            auto const found = m_nets.find(folded(source.name));
            if (found == m_nets.end())
                fail(source.at, source.name + " is not declared");
            return {part_of(*found->second, source.index, source.at, source.name)};
        }
        std::vector<net_part> parts;
        for (auto * one : instances_of(source)) {
            auto const pin = one->pins.find(folded(source.pin));
            if (pin == one->pins.end())
                fail(source.at, one->function->name + " has no port " + source.pin);
            parts.push_back(part_of(*pin->second, source.bits, source.at, one->name + "." + source.pin));
        }
        return parts;
    }

    /// From the highest slice down. "u[2]" is "u2", whether that is one of an array or was declared alone.
    std::vector<instance *> instances_of(reference const & source)
    {
        auto const name = folded(source.name);
        auto const array = m_arrays.find(name);
        if (!source.index)
            return {&instance_named(source, array == m_arrays.end() ? name : "")};
        auto range = *source.index;
        if (range.all) {
            if (array == m_arrays.end())
                fail(source.at, source.name + " is no array");
            range.high = array->second - 1;
            range.low = 0;
        }
        std::vector<instance *> found;
        for (int i = range.high; i >= range.low; --i)
            found.push_back(&instance_named(source, name + std::to_string(i)));
        return found;
    }
    instance & instance_named(reference const & source, std::string const & name)
    {
        auto const found = m_instances.find(name);
        if (found == m_instances.end())
            fail(source.at, source.name + (name.empty() ? " is an array" : " is no such instance"));
        return found->second;
    }

    // ---- expressions

    value value_of(expression const & source)
    {
        switch (source.kind) {
        case expression_kind::reference:
            return read(source.source);
        case expression_kind::constant: {
            int const width = static_cast<int>(source.digits.size());
            return {std::to_string(width) + "'b" + source.digits, width};
        }
        case expression_kind::list:
            return list(source);
        case expression_kind::op_not: {
            auto const inverted = value_of(source.operands.front());
            return {"(~" + inverted.text + ")", inverted.width};
        }
        case expression_kind::op_and:
            return binary(source, " & ");
        case expression_kind::op_or:
            return binary(source, " | ");
        case expression_kind::op_xor:
            return binary(source, " ^ ");
        }
        fail(source.at, "unknown expression");
    }
    value read(reference const & source)
    {
        auto const parts = parts_of(source);
        for (auto const & part : parts)
            m_reads.push_back(part);
        return {joined(parts), width_of(parts)};
    }
    value list(expression const & source)
    {
        if (source.operands.size() == 1)
            return value_of(source.operands.front());
        value all{"", 0};
        for (auto const & operand : source.operands) {
            auto const one = value_of(operand);
            all.text += (all.text.empty() ? "{" : ", ") + one.text;
            all.width += one.width;
        }
        return {all.text + "}", all.width};
    }
    /// A single bit is combined with each bit of a bus.
    value binary(expression const & source, std::string const & symbol)
    {
        auto left = value_of(source.operands.front());
        auto right = value_of(source.operands.back());
        int const width = std::max(left.width, right.width);
        if (left.width != right.width && left.width != 1 && right.width != 1)
            fail(source.at,
                 "one side has " + std::to_string(left.width) + " bits and the other " + std::to_string(right.width));
        return {"(" + repeated(left, width) + symbol + repeated(right, width) + ")", width};
    }
    static std::string repeated(value const & one, int width)
    {
        if (one.width == width)
            return one.text;
        return "{" + std::to_string(width / one.width) + "{" + one.text + "}}";
    }

    // ---- statements

    static bool reads_a_pin(statement const & one)
    {
        return one.source.kind == expression_kind::reference && !one.source.source.pin.empty();
    }
    /// "node = u.io" puts the pin of an instance on the node, which others may drive as well.
    void join_pins(statement const & one)
    {
        if (!reads_a_pin(one))
            return;
        auto const pins = parts_of(one.source.source);
        auto const target = parts_of(one.target);
        if (pins.front().of->role != net_role::both_sides || target.size() != 1
            || target.front().of->role != net_role::inner)
            return;
        if (width_of(pins) != width_of(target))
            fail(one.target.at, "the node and the port differ in width");
        int high = target.front().high;
        for (auto const & pin : pins) {
            if (pin.width() != pin.of->bits() || !pin.of->joined_to.empty())
                fail(one.source.at, "a port meets one node, and whole");
            pin.of->joined_to = net_part{target.front().of, high, high - pin.width() + 1, {}}.text();
            high -= pin.width();
        }
        m_joined.insert({&one, target.front()});
    }

    void assign(statement const & one)
    {
        if (m_joined.contains(&one))
            return;
        auto const target = parts_of(one.target);
        for (auto const & part : target)
            drive(part);
        auto const source = value_of(one.source);
        int const width = width_of(target);
        bool const fits = one.source.is_level || source.width == width
                          || (one.source.kind != expression_kind::constant && width % source.width == 0);
        if (!fits)
            fail(one.target.at, std::to_string(width) + " bits are driven by " + std::to_string(source.width));
        m_assignments += "  assign " + joined(target) + " = " + repeated(source, width) + ";\n";
    }
    void drive(net_part const & part) const
    {
        if (part.of->role == net_role::source)
            fail(part.at, shown(*part.of) + " can't be driven");
        if (!part.of->joined_to.empty())
            fail(part.at, shown(*part.of) + " is driven by its node");
        for (int bit = part.low; bit <= part.high; ++bit) {
            if (part.of->driven[static_cast<std::size_t>(bit)])
                fail(part.at, shown(*part.of) + " is driven already");
            part.of->driven[static_cast<std::size_t>(bit)] = true;
        }
    }
    static std::string shown(net const & one)
    {
        auto name = one.name;
        if (auto const at = name.find('$'); at != std::string::npos)
            name[at] = '.';
        return name;
    }

    void check_reads() const
    {
        std::map<net const *, bool> of_pin;
        for (auto const & [of, node] : m_joined)
            of_pin[node.of] = true;
        for (auto const & part : m_reads) {
            if (part.of->role == net_role::sink)
                fail(part.at, shown(*part.of) + " can't be read");
            if (part.of->role == net_role::both_sides || of_pin.contains(part.of))
                continue;
            for (int bit = part.low; bit <= part.high; ++bit)
                if (!part.of->driven[static_cast<std::size_t>(bit)])
                    fail(part.at, shown(*part.of) + " is read, but not driven");
        }
    }
    void check_sinks() const
    {
        for (auto const & [name, one] : m_nets)
            check_sink(*one);
        for (auto const & [name, one] : m_instances)
            for (auto const & [pin, of] : one.pins)
                if (!is_open(one, *of))
                    check_sink(*of);
    }
    /// An input of a cell that nothing drives at all.
    static bool is_open(instance const & of, net const & pin)
    {
        return of.function->is_cell && pin.role == net_role::sink
               && std::find(pin.driven.begin(), pin.driven.end(), true) == pin.driven.end();
    }
    void check_sink(net const & one) const
    {
        if (one.role != net_role::sink)
            return;
        for (bool const driven : one.driven)
            if (!driven)
                fail(one.at, shown(one) + " is not driven");
    }

    // ---- text

    std::string module_text() const
    {
        std::string text = "module " + m_design.header.name + "(";
        std::string separator;
        for (auto const & pin : m_design.header.pins) {
            text += separator + pin.declared.name;
            separator = ", ";
        }
        text += ");\n";
        for (auto const & pin : m_design.header.pins) {
            auto const & one = *m_nets.at(folded(pin.declared.name));
            text += (one.role == net_role::source ? "  input "
                     : one.role == net_role::sink ? "  output "
                                                  : "  inout ")
                    + range_text(one) + one.name + ";\n";
        }
        for (auto const & [name, one] : m_nets)
            if (one->role == net_role::inner)
                text += "  wire " + range_text(*one) + one->name + ";\n";
        for (auto const & [name, one] : m_instances)
            text += instance_text(one);
        return text + m_assignments + "endmodule\n";
    }
    static std::string instance_text(instance const & one)
    {
        std::string nets;
        std::string pins;
        for (auto const & [name, of] : one.pins) {
            if (is_open(one, *of))
                continue;
            if (of->joined_to.empty())
                nets += "  wire " + range_text(*of) + of->name + ";\n";
            auto const pin = of->name.substr(one.name.size() + 1);
            pins += (pins.empty() ? "." : ", .") + pin + "(" + (of->joined_to.empty() ? of->name : of->joined_to) + ")";
        }
        std::string parameters;
        for (auto const & parameter : one.declaration->parameters) {
            std::string const quote = parameter.is_string ? "\"" : "";
            parameters.append(parameters.empty() ? " #(." : ", .").append(parameter.name);
            parameters.append("(").append(quote).append(parameter.value).append(quote).append(")");
        }
        if (!parameters.empty())
            parameters += ")";
        return nets + "  " + one.function->name + parameters + " " + one.name + " (" + pins + ");\n";
    }

    design const & m_design;
    std::map<std::string, function_header const *> const & m_functions;
    std::map<std::string, place> m_names;
    net_map m_nets;
    std::map<std::string, instance> m_instances; ///< those of arrays by their name and index
    std::map<std::string, int> m_arrays;         ///< their number of instances
    std::map<statement const *, net_part> m_joined;
    std::vector<net_part> m_reads;
    std::string m_assignments;
};

} // namespace

std::string verilog_module(design const & translated, std::map<std::string, function_header const *> const & functions)
{
    return module_translator(translated, functions).run();
}

} // namespace qhdl
