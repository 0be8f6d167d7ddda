#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/verilog_instance.h"
#include "lbx/gnl/writers/verilog_text.h"

namespace gnl_detail {

void verilog_instance::open(std::string_view entity)
{
    m_text << "\t" << entity << "   " << m_instance.get_instance_name();
    if (m_slice_index != -1)
        m_text << "_" << m_slice_index;
    m_text << "\n\t( \n";
}

void verilog_instance::leave_output_open(GNL_PORT const & output)
{
    if (!m_instance.is_primitive() || !output.is_included_in_declaration())
        return;
    connect(output);
    end_connection();
}

void verilog_instance::close(GNL_GENERATOR & parameters_of)
{
    if (!m_instance.is_primitive()) {
        m_text << ");\n";
        return;
    }
    if (m_has_open_inputs)
        m_instance.dump_verilog_default_input_port_connections(m_text.stream(), m_slice_index);
    else
        m_instance.dump_verilog_simulation_only_ports(m_text.stream(), true);
    m_text << (m_instance.simulation_only_ports().empty() ? ");\n" : "\n\t);\n");
    parameters_of.dump_verilog_parameter_section(m_text.stream(), false, m_slice_index);
}

bool is_special_bidir(GNL_PORT_BIDIR & port, GNL_GENERATOR const & parent)
{
    int const usage = port.is_locked_bidir_port();
    return usage == 2 || (usage == 0 && driver_at(port, &parent) != nullptr);
}

bool has_bidir_net(GNL_PORT_BIDIR & port, GNL_GENERATOR const * parent)
{
    int const usage = port.is_locked_bidir_port();
    return usage == 1 || (usage == 0 && has_constant_at(port, parent));
}

void assign_bidir_net(assign_sequence & assign, text_sink & text, GNL_GENERATOR & parent, GNL_PORT & port)
{
    auto * bidir = as_bidir(port);
    if (bidir == nullptr || !has_bidir_net(*bidir, &parent))
        return;
    if (auto * driver = driver_at(port, &parent)) {
        if (!check_driver(parent, port, *driver))
            return;
        assign.to(port.get_source_name(true));
        write_driver(text, parent, *driver, port, port.get_width() != driver->get_width());
    } else if (has_constant_at(port, &parent)) {
        assign.to(port.get_source_name(true)) << parent.verilog_constant_text(port);
    }
}

namespace {

/// The statement of a subdesign that is neither an array nor written by hooks, and the assignments beside it.
class plain_instance
{
public:
    plain_instance(GNL_GENERATOR & subdesign, GNL_GENERATOR & parent, std::ostream & out)
        : m_subdesign(subdesign)
        , m_parent(parent)
        , m_text(out)
        , m_statement(subdesign, m_text, -1)
        , m_ports(subdesign.registry().ports())
    {
    }

    void write()
    {
        m_statement.open(m_subdesign.get_entity_name());
        for (GNL_PORT & port : m_ports) {
            if (port.is_input())
                connect_input(port);
            else if (port.is_output())
                connect_output(port);
            else if (auto * bidir = as_bidir(port))
                connect_bidir(*bidir);
        }
        m_statement.close(m_subdesign);
        if (m_subdesign.generate_structural_netlist())
            write_gates(m_text.stream(), m_subdesign, &m_parent);
        assign_bidirs();
    }

private:
    void connect_input(GNL_PORT & port)
    {
        if (!port.is_used()) {
            if (can_be_tied_off(port))
                m_statement.leave_input_open();
        } else if (has_constant(port)) {
            m_statement.connect(port) << m_parent.verilog_constant_text(port);
            m_statement.end_connection();
        } else if (auto * driver = port.get_driver(); driver != nullptr && check_driver(m_parent, port, *driver)) {
            m_statement.connect(port);
            write_driver(m_text, m_parent, *driver, port, bus_widths_differ(port, *driver));
            m_statement.end_connection();
        }
    }
    void connect_output(GNL_PORT & port)
    {
        if (!port.is_used()) {
            m_statement.leave_output_open(port);
            return;
        }
        m_statement.connect(port) << port.get_source_name(true);
        m_statement.end_connection();
    }
    void connect_bidir(GNL_PORT_BIDIR & port)
    {
        if (!port.is_used())
            return;
        m_statement.connect(port);
        if (is_special_bidir(port, m_parent))
            port.dump_special_driver_description(m_text.stream(), &m_parent, -1);
        else
            m_text << port.get_source_name(true);
        m_statement.end_connection();
    }
    void assign_bidirs()
    {
        assign_sequence assign(m_text);
        for (GNL_PORT & port : m_ports)
            if (port.is_used())
                assign_bidir_net(assign, m_text, m_parent, port);
        assign.close();
    }

    GNL_GENERATOR & m_subdesign;
    GNL_GENERATOR & m_parent;
    text_sink m_text;
    verilog_instance m_statement;
    element_walk<GNL_PORT> m_ports;
};

/// A subdesign that writes itself. The slices of an array go first, in order; a cell's hook then runs once more on the
/// array as a whole, while other arrays get their assignments.
void write_custom(GNL_GENERATOR & subdesign, GNL_GENERATOR & parent, std::ostream & out)
{
    bool const by_slices =
        subdesign.get_array_width() > 0 && (subdesign.is_master_array() || subdesign.is_heterogeneous_array());
    if (by_slices) {
        array_slices const slices(subdesign);
        for (int i = 0; i < subdesign.get_array_width(); ++i)
            if (auto * slice = slices.at(i))
                slice->dump_verilog_custom_output(out, &parent);
    }
    if (by_slices && !subdesign.is_primitive())
        subdesign.dump_verilog_subdesign_wire_connections(out, &parent);
    else
        subdesign.dump_verilog_custom_output(out, &parent);
}

} // namespace
} // namespace gnl_detail

void GNL_GENERATOR::dump_verilog_subdesign_description(GNL_GENERATOR * parent, std::ostream & out)
{
    if (uses_custom_verilog_output() && uses_custom_subdesign_insert_mode())
        gnl_detail::write_custom(*this, *parent, out);
    else if (get_array_width() > 0)
        gnl_detail::write_verilog_array(*this, *parent, out);
    else
        gnl_detail::plain_instance(*this, *parent, out).write();
}
