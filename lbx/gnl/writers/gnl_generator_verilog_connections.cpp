#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/ports/constant_text.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/verilog_text.h"

using namespace gnl_detail;

namespace {

/// The statement that carries the connections of a design's own signals.
class unit_assignments
{
public:
    unit_assignments(GNL_GENERATOR & design, text_sink & text)
        : m_design(design)
        , m_text(text)
        , m_assign(text)
    {
    }

    void write()
    {
        for (GNL_PORT & port : m_design.registry().ports()) {
            if (port.is_wire())
                assign_wire(port);
            else if (port.is_output())
                assign_sink(port, port.get_name(), port.is_used());
            else if (auto * input = as_input(port))
                assign_input(*input);
            else if (port.is_bidir())
                assign_bidir(port);
        }
        m_assign.close();
    }

private:
    void assign_wire(GNL_PORT & wire)
    {
        if (wire.declare_port())
            assign_sink(wire, wire.get_source_name(false), true);
    }
    void assign_sink(GNL_PORT & port, std::string_view target, bool may_take_default)
    {
        if (auto * driver = port.get_driver()) {
            if (check_driver(m_design, port, *driver))
                assign_driver(port, target, *driver);
        } else if (has_constant(port)) {
            m_assign.to(target) << m_design.verilog_constant_text(port);
        } else if (may_take_default && port.get_default_value() != -1) {
            m_assign.to(target);
            write_default(m_text, port);
        }
    }
    void assign_input(GNL_PORT_INPUT & input)
    {
        if (!is_default_signal(input))
            return;
        m_assign.to(input.get_name());
        write_default(m_text, input);
    }
    void assign_bidir(GNL_PORT & port)
    {
        if (auto * driver = driver_at(port, &m_design)) {
            if (!port.has_special_bidir_driver())
                assign_driver(port, port.get_name(), *driver);
        } else if (has_constant_at(port, &m_design)) {
            m_assign.to(port.get_name()) << m_design.verilog_constant_text(port);
        }
    }
    void assign_driver(GNL_PORT & port, std::string_view target, GNL_PORT & driver)
    {
        m_assign.to(target);
        write_driver(m_text, m_design, driver, port, bus_widths_differ(port, driver));
    }

    GNL_GENERATOR & m_design;
    text_sink & m_text;
    assign_sequence m_assign;
};

} // namespace

std::string GNL_GENERATOR::verilog_constant_text(GNL_PORT & port) const
{
    return verilog_constant(port.constant_driving_value(), port.get_bus_width());
}

void GNL_GENERATOR::dump_verilog_port_connections(std::ostream & out)
{
    for (auto * subdesign : m_registry->subdesigns())
        subdesign->dump_verilog_subdesign_description(this, out);
    if (generate_structural_netlist())
        write_gates(out, *this, this);
    {
        text_sink text(out);
        unit_assignments(*this, text).write();
    }
    if (uses_custom_verilog_output())
        dump_verilog_custom_output(out, this);
    dump_error_messages(out);
}
