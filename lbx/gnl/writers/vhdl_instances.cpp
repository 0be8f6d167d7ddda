// Instance statements. An array is a loop over its slices as long as all of them are connected alike; slices that
// differ, or that have connections of their own, are written one by one.

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/one_slice_widths.h"
#include "lbx/gnl/ports/description_writer.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/driver_check.h"
#include "lbx/gnl/writers/list_separator.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/vhdl_signals.h"
#include "lbx/gnl/writers/vhdl_statements.h"

#include <algorithm>

namespace gnl_detail {
namespace {

/// Which slice a statement is for: `index` of `slices`, or -1 in a loop over `variable`. What is no array has no
/// slices.
struct instance_place
{
    int slices = 0;
    int index = -1;
    std::string_view variable = {};

    slice_of_signal part(int width, int held) const { return {width, slices, held, index, variable}; }
};

/// One instance statement.
class instance_statement
{
public:
    instance_statement(GNL_GENERATOR & level, text_sink & text, signal_map const & signals)
        : m_level(level)
        , m_text(text)
        , m_signals(signals)
    {
    }

    void open(std::string_view indent, std::string_view instance, int number, std::string_view entity)
    {
        m_text << indent << instance;
        if (number >= 0)
            m_text << "_" << number;
        m_text << " :  " << entity << "\n";
    }
    /// A cell of a library takes its values from the instance; a design has them built in.
    void map_generics(GNL_GENERATOR & of) { of.dump_vhdl_parameter_mappings_for_wrapper(m_text.stream()); }
    void connect(GNL_PORT & port, instance_place place)
    {
        if (port.is_input())
            connect_input(port, place);
        else if (port.is_output() || (port.is_bidir() && bidir_has_signal(port, &m_level)))
            connect_signal(port, port.get_source_name(true), vhdl_net_width(port) > 0, place);
        else if (auto * bidir = as_bidir(port))
            connect_joined(*bidir, place);
    }
    /// A statement without ports has no list of them, and still needs an end.
    void close() { m_text << (m_list.started() ? "\n\t  );\n" : "\t  ;\n"); }

private:
    text_sink & formal(GNL_PORT const & port, bool one_bit_of_vector)
    {
        return m_text << m_list << "\t\t" << port.get_vhdl_name() << (one_bit_of_vector ? "(0) => " : " => ");
    }

    void connect_input(GNL_PORT & port, instance_place place)
    {
        auto * driver = port.get_driver();
        if (has_2d_signal(port))
            formal(port, false) << port.get_source_name(true) << "_2d";
        else if (driver != nullptr && input_has_signal(port, port.get_parent()->has_disabled_vhdl_concat_wires()))
            connect_signal(port, port.get_source_name(true), port.get_width() > 0, place);
        else if (driver != nullptr)
            connect_driver(port, *driver, place);
        else if (has_constant(port))
            connect_constant(port, place);
    }

    /// To the signal of the port, of which a slice takes its part.
    void connect_signal(GNL_PORT & port, std::string const & name, bool is_vector, instance_place place)
    {
        int const width = declared_slice_width(port);
        if (place.slices > 1)
            formal(port, width == 1) << name << place.part(width, place.slices);
        else
            formal(port, false) << name << (is_vector && width == 0 ? "(0)" : "");
    }

    void connect_driver(GNL_PORT & port, GNL_PORT & driver, instance_place place)
    {
        int const width = declared_slice_width(port);
        int const bits = std::max(width, 1);
        if (place.slices > 1 && !driver.is_range_port() && driver.get_bus_width() > bits) {
            formal(port, width == 1);
            write_driver(driver, &port, false);
            m_text << place.part(width, driver.get_bus_width() / bits);
        } else if (bits == 1 && driver.get_bus_width() == 1) {
            connect_bit(port, driver, width == 1);
        } else {
            formal(port, false);
            write_driver(driver, &port, false);
        }
    }
    void connect_bit(GNL_PORT & port, GNL_PORT & driver, bool is_vector)
    {
        bool const in_place = driver.is_logic() && !driver.need_to_create_vhdl_loop();
        bool const whole = is_vector && !in_place && reads_as_vector(driver, &m_level, &port);
        formal(port, is_vector && !whole);
        write_driver(driver, &port, !whole);
    }
    void write_driver(GNL_PORT & driver, GNL_PORT * target, bool as_bit)
    {
        write_reference(m_text, driver, &m_level, as_bit, as_bit ? nullptr : target);
    }

    void connect_constant(GNL_PORT & port, instance_place place)
    {
        bool const of_array = port.get_parent()->get_array_width() > 0;
        auto const shared = std::string(shared_constant_wire(port));
        if (of_array && port.get_width() > 1)
            connect_signal(port, port.get_source_name(true), true, place);
        else if (!shared.empty() && m_signals.contains(shared))
            connect_signal(port, shared, port.get_width() == 1, {});
        else
            formal(port, false) << vhdl_constant(port.constant_driving_value(), declared_slice_width(port));
    }

    /// To the bidirectional port on the other side, without a signal in between.
    void connect_joined(GNL_PORT_BIDIR & port, instance_place place)
    {
        auto * other = port.is_locked_bidir_port() == 2 ? port.get_driven_bidir_port() : port.get_driver();
        if (other == nullptr)
            return;
        int const width = declared_slice_width(port);
        int const bits = std::max(width, 1);
        bool const is_cut = place.slices > 1 && other->is_simple_port() && other->get_bus_width() > bits;
        bool const is_bit = bits == 1 && !is_cut && other->get_bus_width() == 1;
        bool const shows_vector = is_bit && other->is_simple_port() && reads_as_vector(*other, &m_level, &port);
        formal(port, width == 1 && (is_cut || (is_bit && !shows_vector)));
        // An array of one slice gets the index together with the name.
        bool const has_index = width == 0 && other->get_original_width() == 1 && place.slices == 1;
        port.dump_special_driver_description(m_text.stream(), &m_level, -1);
        if (is_cut)
            m_text << place.part(width, other->get_bus_width() / bits);
        else if (width == 0 && shows_vector && !has_index)
            m_text << "(0)";
    }

    GNL_GENERATOR & m_level;
    text_sink & m_text;
    signal_map const & m_signals;
    list_separator m_list{"\t  PORT MAP ( \n", ",\n"};
};

class subdesign_instances
{
public:
    subdesign_instances(GNL_GENERATOR & subdesign, GNL_GENERATOR & level, std::ostream & out,
                        signal_map const & signals)
        : m_subdesign(subdesign)
        , m_level(level)
        , m_text(out)
        , m_signals(signals)
        , m_slices(subdesign)
        , m_is_cell(is_vhdl_library_cell(subdesign))
    {
        for (GNL_PORT & port : subdesign.registry().ports())
            if (is_pin(port) && has_valid_driver(port))
                m_ports.push_back(&port);
    }

    void write()
    {
        if (m_subdesign.get_array_width() < 1)
            write_plain();
        else if (m_subdesign.is_heterogeneous_array() || m_subdesign.has_unrolled_vhdl_loop())
            for (int i = 0; i < m_subdesign.get_array_width(); ++i)
                write_slice(i);
        else
            write_array();
    }

private:
    static bool is_pin(GNL_PORT const & port) { return port.is_input() || port.is_output() || port.is_bidir(); }
    /// What is driven through a signal is looked at where that is assigned.
    bool has_valid_driver(GNL_PORT & port)
    {
        auto * driver = port.is_input() && port.check_is_used_flag() ? port.get_driver() : nullptr;
        return driver == nullptr || input_has_signal(port, m_subdesign.has_disabled_vhdl_concat_wires())
               || check_driver(m_level, port, *driver);
    }

    void write_plain()
    {
        instance_statement statement(m_level, m_text, m_signals);
        // One slice of an array that is written by itself has the array's name.
        statement.open("\t", m_subdesign.get_instance_name(), m_subdesign.get_slice_index(),
                       m_subdesign.get_entity_name());
        write_body(statement, m_subdesign, {});
    }
    void write_array()
    {
        int const slices = m_subdesign.get_array_width();
        auto const label = slices > 1 ? m_level.generate_loop_name() : std::string();
        auto const variable = vhdl_loop_variable(&m_level, "i");
        if (slices > 1)
            m_text << "\t" << label << " : FOR " << variable << " IN 0 TO " << slices - 1 << " GENERATE \n";
        instance_statement statement(m_level, m_text, m_signals);
        statement.open(slices > 1 ? "\t  " : "\t", m_subdesign.get_instance_name(), -1, m_subdesign.get_entity_name());
        auto * first = m_slices.at(0);
        bool const differs = first != nullptr && first->is_heterogeneous_element();
        write_body(statement, differs ? *first : m_subdesign, {slices, -1, variable});
        if (slices > 1)
            m_text << "\tEND GENERATE " << label << ";\n";
    }
    void write_slice(int index)
    {
        auto * slice = m_slices.at(index);
        bool const differs = slice != nullptr && slice->is_heterogeneous_element();
        instance_statement statement(m_level, m_text, m_signals);
        // A slice of a cell that is instantiated by its own name was never generated and has no entity.
        auto const own_entity = differs ? slice->get_entity_name() : std::string();
        statement.open("\t", m_subdesign.get_instance_name(), index,
                       own_entity.empty() ? m_subdesign.get_entity_name() : own_entity);
        write_body(statement, differs ? *slice : m_subdesign, {m_subdesign.get_array_width(), index},
                   differs && !m_subdesign.is_primitive());
    }

    void write_body(instance_statement & statement, GNL_GENERATOR & parameters_of, instance_place place,
                    bool has_own_design = false)
    {
        if (m_is_cell)
            statement.map_generics(parameters_of);
        for (auto * port : m_ports) {
            if (auto * own = has_own_design ? m_slices.port(place.index, port->get_name()) : nullptr;
                own != nullptr && slice_may_lack(*own))
                continue;
            if (port->check_is_used_flag())
                statement.connect(*port, place);
            else if (place.index >= 0)
                connect_of_slice(statement, *port, place.index);
        }
        statement.close();
    }
    /// A port that the array as a whole doesn't connect: what the slice's own port of the name says.
    void connect_of_slice(instance_statement & statement, GNL_PORT const & port, int index)
    {
        auto * of_slice = m_slices.port(index, port.get_name());
        if (of_slice != nullptr && of_slice->check_is_used_flag() && has_valid_driver(*of_slice))
            statement.connect(*of_slice, {});
    }

    GNL_GENERATOR & m_subdesign;
    GNL_GENERATOR & m_level;
    text_sink m_text;
    signal_map const & m_signals;
    array_slices m_slices;
    std::vector<GNL_PORT *> m_ports;
    bool m_is_cell;
};

} // namespace

void write_vhdl_instances(GNL_GENERATOR & subdesign, GNL_GENERATOR & level, std::ostream & out,
                          signal_map const & signals)
{
    subdesign_instances(subdesign, level, out, signals).write();
}

} // namespace gnl_detail
