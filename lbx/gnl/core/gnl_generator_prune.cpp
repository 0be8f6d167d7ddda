// Drops what drives nothing, and lets the readers of automatically named wires read the sources of those wires. Nothing
// is deleted: a wire that nobody reads any more is left out of the declarations by GNL_PORT::declare_port.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/ports/reference_text.h"

#include <unordered_map>

using gnl_detail::can_select;

namespace {

/// Follows chains of automatically named wires to their sources.
///
/// Every reader of a chain of 100,000 wires asks for its source, so what a chain ended in is remembered. While the
/// readers are rewired a wire can change its driver, and then only by becoming an end itself; a remembered end counts
/// as long as the last wire of the chain still has it as its driver.
class wire_sources
{
public:
    explicit wire_sources(GNL_GENERATOR const & naming)
        : m_naming(naming)
    {
    }

    bool is_automatic_wire(GNL_PORT const * port) const
    {
        return port && port->is_wire() && m_naming.is_auto_generated_wire_name(port->get_name());
    }

    /// What drives `port` beyond all automatically named wires. A chain without a source gives the direct driver, and
    /// so does a cycle, in which no wire is closer to a source than another.
    GNL_PORT * source_of(GNL_PORT const & port)
    {
        GNL_PORT * driver = port.get_driver();
        if (!is_automatic_wire(driver))
            return driver;
        GNL_PORT * source = end_of_chain(*driver);
        return source ? source : driver;
    }

private:
    /// Null pointers while the wires of a chain are looked at, and for good in a cycle.
    struct chain_end
    {
        GNL_PORT const * last_wire = nullptr;
        GNL_PORT * source = nullptr;

        bool holds() const { return !last_wire || last_wire->get_driver() == source; }
    };

    GNL_PORT * end_of_chain(GNL_PORT const & first)
    {
        m_path.clear();
        GNL_PORT const * wire = &first;
        for (GNL_PORT * next = nullptr; is_automatic_wire(next = wire->get_driver()); wire = next) {
            auto [found, is_new] = m_ends.try_emplace(wire);
            if (!is_new && found->second.holds())
                return remember(found->second);
            found->second = chain_end();
            m_path.push_back(&found->second);
        }
        return remember({wire, wire->get_driver()});
    }

    GNL_PORT * remember(chain_end end)
    {
        for (chain_end * wire : m_path)
            *wire = end;
        return end.source;
    }

    GNL_GENERATOR const & m_naming;
    std::unordered_map<GNL_PORT const *, chain_end> m_ends; ///< of wires that another one drives
    std::vector<chain_end *> m_path;
};

/// Takes an object that nothing reads out of the count of its sources, once. Answers whether it had any to be taken out
/// of; pins have none that could go.
bool release_sources(GNL_PORT & port)
{
    if (port.port_is_a_driver() || port.driver_removal_done())
        return false;
    port.set_driver_removal_done();
    auto const release = [](GNL_PORT * source) {
        if (source)
            source->remove_port_as_driver();
    };
    if (port.is_wire()) {
        release(port.get_driver());
        return port.get_driver() != nullptr;
    }
    if (port.is_range_port()) {
        release(static_cast<GNL_PORT_OUTPUT_RANGE &>(port).get_range_driver());
        return true;
    }
    if (port.is_concat_port()) {
        auto & concat = static_cast<GNL_PORT_CONCAT &>(port);
        for (int i = 0; GNL_SUBCONCAT const * element = concat.get_concat_element(i); ++i)
            release(element->port);
        return true;
    }
    if (port.is_logic()) {
        auto & logic = static_cast<GNL_PORT_LOGIC &>(port);
        release(logic.get_first_operand());
        release(logic.get_second_operand());
        return true;
    }
    return false;
}

/// The constant as a port of `width` bits reads it: repeated when the port is wider.
MLIB_UINTEGER repeated(MLIB_UINTEGER const & constant, int width)
{
    if (width <= constant.bitwidth())
        return constant;
    std::string const once = constant.as_bin_string();
    std::string bits;
    while (bits.size() < static_cast<std::size_t>(width))
        bits += once;
    MLIB_UINTEGER result(0, width);
    result.set_value_from_bin_string(bits);
    return result;
}

/// The bits of the constant that `reader` reads through a range, from its low end on and again. The bit at the high end
/// is never read, so the cycle has one bit less than the range: that is meant so.
MLIB_UINTEGER selected_bits(MLIB_UINTEGER const & constant, GNL_PORT_OUTPUT_RANGE const & range, GNL_PORT & reader)
{
    MLIB_UINTEGER result(0, reader.get_width());
    int from = range.get_low_index();
    for (int bit = 0; bit < reader.get_bus_width(); ++bit) {
        result.set_bit(bit, constant.bit(from));
        if (++from >= range.get_high_index())
            from = range.get_low_index();
    }
    return result;
}

/// Lets ports read the sources of automatically named wires instead of the wires.
class wire_bypass
{
public:
    explicit wire_bypass(GNL_GENERATOR & design)
        : m_design(design)
        , m_sources(design)
    {
    }

    wire_sources & sources() { return m_sources; }

    void prune(GNL_GENERATOR & design)
    {
        bypass_inside_expressions(design);
        bypass_drivers(design);
    }

    /// A declared pin or wire: bypasses the wire that drives it.
    void bypass_driver(GNL_PORT & port)
    {
        GNL_PORT * driver = port.get_driver();
        if (m_sources.is_automatic_wire(driver))
            bypass_wire(port, *driver);
        else if (driver && driver->is_range_port())
            bypass_range(port, static_cast<GNL_PORT_OUTPUT_RANGE &>(*driver));
    }

    /// A concatenation or an expression: bypasses the wires among what it is made of.
    void bypass_inside(GNL_PORT & port)
    {
        if (port.is_concat_port())
            bypass_elements(static_cast<GNL_PORT_CONCAT &>(port));
        else if (port.is_logic())
            bypass_operands(static_cast<GNL_PORT_LOGIC &>(port));
    }

private:
    /// No wire changes its driver here, so it doesn't matter which expression comes first. Concatenations make ranges,
    /// which take the next wire names.
    void bypass_inside_expressions(GNL_GENERATOR & design)
    {
        for (GNL_GENERATOR & cell : design.registry().generators())
            if (cell.is_primitive())
                prune(cell);
        for (GNL_PORT_LOGIC & logic : design.registry().unordered_logic_ports())
            bypass_operands(logic);
        for (GNL_PORT & port : design.registry().ports())
            if (port.is_concat_port())
                bypass_elements(static_cast<GNL_PORT_CONCAT &>(port));
    }

    /// One pass in key order: an object that loses its last reader to a later one stays in the counts of its sources.
    void bypass_drivers(GNL_GENERATOR & design)
    {
        bool const may_remove = design.allow_removal_of_optional_wires();
        auto & registry = design.registry();
        if (may_remove)
            release_unread(registry.unordered_logic_ports(), [&registry] { return registry.logic_ports(); });
        for (GNL_PORT & port : registry.ports())
            if ((!may_remove || !release_sources(port)) && port.is_simple_port())
                bypass_driver(port);
        if (may_remove)
            release_unread(registry.unordered_ranges(), [&registry] { return registry.ranges(); });
    }

    /// Operators of one kind. In which order they are released shows only where one that is unread was made of another:
    /// that one may become unread too. Most designs have no such thing and are spared the sorting.
    template <class OPERATORS, class WALK> static void release_unread(OPERATORS const & operators, WALK in_order)
    {
        bool shows_order = false;
        for (auto & one : operators)
            shows_order = shows_order || (!one.port_is_a_driver() && is_nested(one));
        if (shows_order)
            for (auto & one : in_order())
                release_sources(one);
        else
            for (auto & one : operators)
                release_sources(one);
    }

    static bool is_nested(GNL_PORT_LOGIC const & logic)
    {
        auto const is_expression = [](GNL_PORT const * operand) { return operand && operand->is_logic(); };
        return is_expression(logic.get_first_operand()) || is_expression(logic.get_second_operand());
    }
    static bool is_nested(GNL_PORT_OUTPUT_RANGE const & range)
    {
        return range.get_range_driver() && range.get_range_driver()->is_range_port();
    }

    /// Whether the bits of `wire` are the bits of `source`, which they aren't when the wire repeats a narrower source.
    static bool covers(GNL_PORT & source, GNL_PORT & wire) { return wire.get_bus_width() <= source.get_bus_width(); }

    GNL_PORT_OUTPUT_RANGE & make_range(GNL_PORT & source, int high, int low)
    {
        auto * range = new GNL_PORT_OUTPUT_RANGE(source.get_parent(), &source, high, low);
        if (!source.get_parent())
            m_design.add_to_gnl_delete_list(range);
        source.set_port_is_a_driver();
        return *range;
    }

    void bypass_wire(GNL_PORT & port, GNL_PORT & wire)
    {
        MLIB_UINTEGER const * constant = wire.constant_driving_value_as_mlib_int();
        if (wire.get_driver()) {
            port.replace_driver(m_sources.source_of(wire));
        } else if (wire.is_driven_by_constant() && constant) {
            MLIB_UINTEGER value = repeated(*constant, port.get_bus_width());
            port.replace_driver(value);
        } else if (wire.get_default_value() != -1) {
            // A default stands for each bit of a bus, and only 1 reads as a one.
            MLIB_UINTEGER value = repeated(MLIB_UINTEGER(wire.get_default_value() == 1, 1), port.get_bus_width());
            port.replace_driver(value);
        }
    }

    void bypass_range(GNL_PORT & port, GNL_PORT_OUTPUT_RANGE & range)
    {
        GNL_PORT * wire = range.get_range_driver();
        if (!m_sources.is_automatic_wire(wire))
            return;
        GNL_PORT * source = m_sources.source_of(*wire);
        if (source && source->is_simple_port()) {
            if (covers(*source, *wire) && can_select(*source, range.get_high_index(), range.get_low_index()))
                port.replace_driver(&make_range(*source, range.get_high_index(), range.get_low_index()));
        } else if (source && source->is_range_port() && covers(*source, *wire)) {
            bypass_range_of_range(port, range, static_cast<GNL_PORT_OUTPUT_RANGE &>(*source));
        } else if (MLIB_UINTEGER const * constant = wire->constant_driving_value_as_mlib_int()) {
            MLIB_UINTEGER value = selected_bits(*constant, range, port);
            port.replace_driver(value);
        }
    }

    void bypass_range_of_range(GNL_PORT & port, GNL_PORT_OUTPUT_RANGE & range, GNL_PORT_OUTPUT_RANGE & source)
    {
        GNL_PORT * base = source.get_range_driver();
        int const low = source.get_low_index();
        if (base && base->is_simple_port()
            && can_select(*base, low + range.get_high_index(), low + range.get_low_index()))
            port.replace_driver(&make_range(*base, low + range.get_high_index(), low + range.get_low_index()));
    }

    void bypass_operands(GNL_PORT_LOGIC & logic)
    {
        if (logic.need_to_create_vhdl_loop())
            return;
        GNL_PORT * first = source_of_operand(logic.get_first_operand());
        GNL_PORT * second = source_of_operand(logic.get_second_operand());
        if (!first && !second)
            return;
        // Expressions keep the order of the operands that they were made of.
        if (logic.get_parent())
            logic.get_parent()->registry().logic_ports();
        if (first)
            logic.replace_first_operand(first);
        if (second)
            logic.replace_second_operand(second);
    }

    /// Null when the operand stays. A wire that repeats a narrower source does: the expression would lose its width.
    GNL_PORT * source_of_operand(GNL_PORT * operand)
    {
        if (!m_sources.is_automatic_wire(operand) || !operand->get_driver())
            return nullptr;
        GNL_PORT * source = m_sources.source_of(*operand);
        return source->get_bus_width() == operand->get_bus_width() ? source : nullptr;
    }

    void bypass_elements(GNL_PORT_CONCAT & concat)
    {
        bool has_new_ranges = false;
        for (int i = 0; GNL_SUBCONCAT const * element = concat.get_concat_element(i); ++i)
            if (bypass_element(concat, i, *element))
                has_new_ranges = true;
        if (has_new_ranges)
            concat.adjust_range_elements();
        if (concat.need_to_create_vhdl_loop() && !concat.port_is_a_driver())
            concat.set_port_is_a_driver();
    }

    /// Whether a range may have come among the elements, which may then touch its neighbours.
    bool bypass_element(GNL_PORT_CONCAT & concat, int index, GNL_SUBCONCAT const & element)
    {
        GNL_PORT & port = *element.port;
        if (m_sources.is_automatic_wire(&port)) {
            GNL_PORT * source = m_sources.source_of(port);
            // VHDL has no bit of an expression, so a vector of one bit keeps its name.
            if (!source || (GNL_ELEMENT::is_vhdl() && source->is_logic() && source->get_width() == 1))
                return false;
            replace_element(concat, index, element, *source);
            return port.get_driver()->is_range_port();
        }
        if (!port.is_range_port())
            return false;
        auto & range = static_cast<GNL_PORT_OUTPUT_RANGE &>(port);
        GNL_PORT * wire = range.get_range_driver();
        GNL_PORT * source = m_sources.is_automatic_wire(wire) ? m_sources.source_of(*wire) : nullptr;
        if (!source || !source->is_simple_port() || !covers(*source, *wire)
            || !can_select(*source, range.get_high_index(), range.get_low_index()))
            return false;
        replace_element(concat, index, element, make_range(*source, range.get_high_index(), range.get_low_index()));
        return true;
    }

    static void replace_element(GNL_PORT_CONCAT & concat, int index, GNL_SUBCONCAT const & element, GNL_PORT & port)
    {
        port.set_port_is_a_driver();
        element.port->remove_port_as_driver();
        concat.replace_concat_element(index, new GNL_SUBCONCAT{&port, element.high_index, element.low_index});
    }

    GNL_GENERATOR & m_design;
    wire_sources m_sources;
};

} // namespace

void GNL_GENERATOR::prune_optional_wires()
{
    wire_bypass(*this).prune(*this);
}

bool GNL_GENERATOR::remove_port_driver_for_port(GNL_PORT * port)
{
    return port && allow_removal_of_optional_wires() && release_sources(*port);
}

void GNL_GENERATOR::replace_wire_port_driver(GNL_PORT * port)
{
    if (port)
        wire_bypass(*this).bypass_driver(*port);
}

void GNL_GENERATOR::modify_auto_sources(GNL_PORT * port)
{
    if (port)
        wire_bypass(*this).bypass_inside(*port);
}

GNL_PORT * GNL_GENERATOR::get_non_auto_wire_driver(GNL_PORT * port)
{
    return port ? wire_sources(*this).source_of(*port) : nullptr;
}

// ---- A driver found by name

namespace {

struct port_reference
{
    std::string const & generator_name;
    std::string const & port_name;

    bool means(GNL_PORT const * port) const
    {
        return port && port->get_parent() && gnl_detail::equal_folded(port->get_name(), port_name)
               && gnl_detail::equal_folded(port->get_parent()->get_name(), generator_name);
    }
};

/// Unlike with the other kinds, the replacement is not counted as read here: that is meant so.
void replace_elements(GNL_PORT_CONCAT & concat, port_reference const & old, GNL_PORT & replacement)
{
    for (int i = 0; GNL_SUBCONCAT const * element = concat.get_concat_element(i); ++i) {
        if (!old.means(element->port))
            continue;
        element->port->remove_port_as_driver();
        concat.replace_concat_element(i, new GNL_SUBCONCAT{&replacement, element->high_index, element->low_index});
    }
}

void replace_operands(GNL_PORT_LOGIC & logic, port_reference const & old, GNL_PORT & replacement)
{
    if (old.means(logic.get_first_operand()))
        logic.replace_first_operand(&replacement);
    if (old.means(logic.get_second_operand()))
        logic.replace_second_operand(&replacement);
}

/// The old base stays counted as read: that is meant so.
void replace_base(GNL_PORT_OUTPUT_RANGE & range, port_reference const & old, GNL_PORT & replacement)
{
    if (!old.means(range.get_range_driver()))
        return;
    replacement.set_port_is_a_driver();
    range.replace_range_driver(&replacement);
}

} // namespace

void GNL_GENERATOR::remove_named_driver_from_port(GNL_PORT * port, std::string const & generator_name,
                                                  std::string const & port_name, GNL_PORT * replacement)
{
    port_reference const old{generator_name, port_name};
    if (!port || !replacement)
        return;
    if (port->is_simple_port()) {
        if (old.means(port->get_driver()))
            port->replace_driver(replacement);
    } else if (port->is_range_port()) {
        replace_base(static_cast<GNL_PORT_OUTPUT_RANGE &>(*port), old, *replacement);
    } else if (port->is_concat_port()) {
        replace_elements(static_cast<GNL_PORT_CONCAT &>(*port), old, *replacement);
    } else if (port->is_logic()) {
        replace_operands(static_cast<GNL_PORT_LOGIC &>(*port), old, *replacement);
    }
}
