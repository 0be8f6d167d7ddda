#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/verilog_instance.h"
#include "lbx/gnl/writers/verilog_text.h"

#include <algorithm>

// An array is written as one instance for each slice. What was connected on the array as a whole is cut into slices;
// what wasn't is taken from the slices' own ports.

namespace gnl_detail {
namespace {

/// Whether the slices cut their bits out of a net of the array, instead of sharing the driver.
bool is_cut(GNL_PORT const & port, GNL_PORT & driver)
{
    return driver.is_range_port() || driver.is_concat_port() || !widths_match(port, driver);
}

/// The bits of a constant as a literal of the slice's declared width.
text_sink & write_slice_constant(text_sink & text, int slice_width, std::string const & bits)
{
    if (slice_width > 0)
        return text << slice_width << "'b" << bits;
    return text << "1'b" << bits;
}

class array_instances
{
public:
    array_instances(GNL_GENERATOR & array, GNL_GENERATOR & parent, std::ostream & out)
        : m_array(array)
        , m_parent(parent)
        , m_text(out)
        , m_slices(array)
        , m_ports(array.registry().ports())
    {
    }

    void write()
    {
        bool const structural = m_array.generate_structural_netlist();
        for (int i = 0; i < m_array.get_array_width(); ++i) {
            write_slice(i);
            if (auto * slice = m_slices.at(i); structural && slice != nullptr)
                slice->dump_verilog_structural_netlist_connections(m_text.stream(), &m_parent);
        }
        m_array.dump_verilog_subdesign_wire_connections(m_text.stream(), &m_parent);
    }

private:
    void write_slice(int index)
    {
        auto * slice = m_slices.at(index);
        bool const differs = slice != nullptr && slice->is_heterogeneous_element();
        bool const has_entity = differs && m_array.is_heterogeneous_array() && !m_array.is_primitive();

        verilog_instance statement(m_array, m_text, index);
        statement.open(has_entity ? slice->get_entity_name() : m_array.get_entity_name());
        for (GNL_PORT & port : m_ports) {
            if (has_entity && lacks(port, index))
                continue;
            if (port.check_is_used_flag())
                connect_whole(statement, port, index);
            else if (m_array.is_master_array())
                connect_of_slice(statement, port, index);
            else
                leave_open(statement, port);
        }
        statement.close(differs ? *slice : m_array);
    }

    /// Whether a slice's own design lacks a port that the array has: the common design drives it because another
    /// slice's is read.
    bool lacks(GNL_PORT & port, int index)
    {
        auto const * of_slice = m_slices.port(index, port.get_name());
        return !port.is_input() && port.get_connection_level() == &m_array && of_slice != nullptr
               && !of_slice->check_is_used_flag();
    }

    /// A port that is connected on the array as a whole.
    void connect_whole(verilog_instance & statement, GNL_PORT & port, int index)
    {
        if (port.is_input()) {
            connect_whole_input(statement, port, index);
        } else if (port.is_output()) {
            connect_net(statement, port, index);
        } else if (auto * bidir = as_bidir(port)) {
            if (is_special_bidir(*bidir, m_parent))
                connect_special(statement, *bidir, index);
            else
                connect_net(statement, port, index);
        }
    }
    void connect_whole_input(verilog_instance & statement, GNL_PORT & port, int index)
    {
        if (auto * driver = port.get_driver(); driver != nullptr && is_cut(port, *driver)) {
            connect_net(statement, port, index);
        } else if (driver != nullptr) {
            statement.connect(port);
            write_driver(m_text, m_parent, *driver, port);
            statement.end_connection();
        } else if (has_constant(port)) {
            write_slice_constant(statement.connect(port), port.get_original_width(),
                                 port.constant_driving_value(index));
            statement.end_connection();
        }
    }
    void connect_net(verilog_instance & statement, GNL_PORT & port, int index)
    {
        statement.connect(port) << port.get_source_name(true) << slice_range(port.get_original_width(), index);
        statement.end_connection();
    }
    void connect_special(verilog_instance & statement, GNL_PORT_BIDIR & port, int index)
    {
        statement.connect(port);
        port.dump_special_driver_description(m_text.stream(), &m_parent, -1);
        write_special_range(port, index);
        statement.end_connection();
    }
    /// A signal that is wider than a slice is cut, and taken again from its start when it holds fewer slices than the
    /// array.
    void write_special_range(GNL_PORT_BIDIR & port, int index)
    {
        int const slice_width = port.get_original_width();
        auto * met = port.is_locked_bidir_port() == 2 ? port.get_driven_bidir_port() : port.get_driver();
        if (met == nullptr || !met->is_simple_port() || met->get_width() <= slice_width)
            return;
        int const slices = met->get_width() / std::max(slice_width, 1);
        m_text << slice_range(slice_width, index % slices);
    }

    /// A port that the array as a whole doesn't connect: what the slice's own port of the name says.
    void connect_of_slice(verilog_instance & statement, GNL_PORT & port, int index)
    {
        auto * of_slice = m_slices.port(index, port.get_name());
        if (of_slice == nullptr)
            return;
        if (of_slice->is_input())
            connect_slice_input(statement, *of_slice);
        else if (auto * bidir = as_bidir(*of_slice))
            connect_slice_bidir(statement, port, *bidir);
        else if (of_slice->is_output() && of_slice->is_used())
            connect_slice_net(statement, *of_slice);
        else if (of_slice->is_output())
            statement.leave_output_open(*of_slice);
    }
    void connect_slice_input(verilog_instance & statement, GNL_PORT & port)
    {
        if (auto * driver = port.get_driver()) {
            statement.connect(port);
            write_driver(m_text, m_parent, *driver, port, port.get_bus_width() != driver->get_bus_width());
            statement.end_connection();
        } else if (has_constant(port)) {
            write_slice_constant(statement.connect(port), port.get_original_width(), port.constant_driving_value());
            statement.end_connection();
        } else {
            statement.leave_input_open();
        }
    }
    void connect_slice_bidir(verilog_instance & statement, GNL_PORT & port, GNL_PORT_BIDIR & of_slice)
    {
        auto * whole = as_bidir(port);
        auto * described = is_special_bidir(of_slice, m_parent) ? &of_slice : whole;
        if (described != nullptr && is_special_bidir(*described, m_parent)) {
            statement.connect(of_slice);
            described->dump_special_driver_description(m_text.stream(), &m_parent, -1);
            statement.end_connection();
        } else if (of_slice.is_used()) {
            connect_slice_net(statement, of_slice);
        }
    }
    void connect_slice_net(verilog_instance & statement, GNL_PORT & port)
    {
        statement.connect(port) << port.get_source_name(true) << bus_range{port.get_bus_width(), no_blanks};
        statement.end_connection();
    }

    /// An array without slices: nobody connects the port at all.
    static void leave_open(verilog_instance & statement, GNL_PORT & port)
    {
        if (can_be_tied_off(port))
            statement.leave_input_open();
        else if (port.is_output())
            statement.leave_output_open(port);
    }

    GNL_GENERATOR & m_array;
    GNL_GENERATOR & m_parent;
    text_sink m_text;
    array_slices m_slices;
    element_walk<GNL_PORT> m_ports;
};

/// The statement that feeds the nets of an array, or of a subdesign with custom output.
class net_assignments
{
public:
    net_assignments(GNL_GENERATOR & subdesign, GNL_GENERATOR & parent, text_sink & text)
        : m_subdesign(subdesign)
        , m_parent(parent)
        , m_text(text)
        , m_assign(text)
        , m_slices(subdesign)
        , m_is_array(subdesign.get_array_width() > 0)
        , m_custom(subdesign.uses_custom_verilog_output())
    {
    }

    void write()
    {
        for (GNL_PORT & port : m_subdesign.registry().ports()) {
            if (!port.check_is_used_flag())
                assign_of_slices(port);
            else if (port.is_input())
                assign_input(port);
            else
                assign_bidir_net(m_assign, m_text, m_parent, port);
        }
        m_assign.close();
    }

private:
    void assign_input(GNL_PORT & port)
    {
        auto * driver = port.get_driver();
        if (driver == nullptr || !check_driver(m_parent, port, *driver))
            return;
        bool const custom = m_custom && !driver->is_simple_port();
        if (custom || (m_is_array && is_cut(port, *driver)))
            assign(port, *driver);
        if (custom && m_is_array)
            feed_slices(port);
    }
    void assign(GNL_PORT & port, GNL_PORT & driver)
    {
        m_assign.to(port.get_source_name(true));
        write_driver(m_text, m_parent, driver, port, port.get_width() != driver.get_width());
    }
    /// Both indices are the slice's, whatever its width.
    void feed_slices(GNL_PORT & port)
    {
        auto const net = port.get_source_name(true);
        for (int i = 0; i < m_subdesign.get_array_width(); ++i)
            m_assign.to(net + "_" + GNL_ELEMENT::convert_int_to_string(i)) << net << bit_range{i, i};
    }
    void assign_of_slices(GNL_PORT & port)
    {
        if (port.is_input() && !m_custom)
            return;
        for (auto * of_slice : m_slices.ports(port.get_name())) {
            if (!of_slice->is_input())
                assign_bidir_net(m_assign, m_text, m_parent, *of_slice);
            else if (auto * driver = of_slice->get_driver();
                     driver != nullptr && check_driver(m_parent, *of_slice, *driver) && !driver->is_simple_port())
                assign(*of_slice, *driver);
        }
    }

    GNL_GENERATOR & m_subdesign;
    GNL_GENERATOR & m_parent;
    text_sink & m_text;
    assign_sequence m_assign;
    array_slices m_slices;
    bool m_is_array;
    bool m_custom;
};

} // namespace

void write_verilog_array(GNL_GENERATOR & array, GNL_GENERATOR & parent, std::ostream & out)
{
    array_instances(array, parent, out).write();
}

} // namespace gnl_detail

void GNL_GENERATOR::dump_verilog_subdesign_wire_connections(std::ostream & out, GNL_GENERATOR * parent)
{
    if (generate_structural_netlist())
        gnl_detail::write_gates(out, *this, parent);
    gnl_detail::text_sink text(out);
    gnl_detail::net_assignments(*this, *parent, text).write();
}

void GNL_GENERATOR::dump_verilog_structural_netlist_connections(std::ostream & out, GNL_GENERATOR * parent)
{
    gnl_detail::write_gates(out, *this, parent);
}
