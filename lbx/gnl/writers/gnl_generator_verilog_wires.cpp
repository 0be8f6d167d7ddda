#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/verilog_instance.h"
#include "lbx/gnl/writers/verilog_text.h"

// The nets of a design: its own wires and, where their generators stand, those that join its subdesigns to it. The
// blanks behind "reg", "wire" and the ranges differ from section to section on purpose.

using namespace gnl_detail;

namespace {

/// The design's own signals.
void declare_signal(text_sink & text, GNL_PORT & port)
{
    if (auto const * wire = as_wire(port)) {
        if (!port.declare_port())
            return;
        text << (wire->uses_verilog_reg() ? "\treg  " : "\twire  ") << bus_range{port.get_width(), two_blanks}
             << port.get_name();
        write_port_options(text, port);
        text << ";\n";
    } else if (auto * input = as_input(port)) {
        if (is_default_signal(*input))
            text << "\twire " << bus_range{port.get_width(), two_blanks} << port.get_name() << ";\n";
    } else if (auto const * output = as_output(port)) {
        if (output->uses_verilog_reg() && port.is_used())
            declare_net(text, "\treg   ", {port.get_width(), three_blanks}, port) << ";\n";
    }
}

/// The nets that join one subdesign to the design around it.
class subdesign_nets
{
public:
    subdesign_nets(GNL_GENERATOR & subdesign, GNL_GENERATOR const * parent, text_sink & text)
        : m_subdesign(subdesign)
        , m_parent(parent)
        , m_text(text)
        , m_slices(subdesign)
        , m_is_array(subdesign.get_array_width() > 0)
        , m_custom(subdesign.uses_custom_verilog_output())
    {
    }

    void declare(GNL_PORT & port) const
    {
        if (port.check_is_used_flag())
            declare_result(port, bus_range{port.get_width(), three_blanks}, "\twire  ");
        if (port.is_input()) {
            if (m_is_array)
                declare_array_input(port);
            if (m_custom)
                declare_custom_input(port);
        }
        // What the array as a whole doesn't connect, its slices may.
        if (port.check_is_used_flag())
            return;
        if (!port.is_input())
            for (auto * of_slice : m_slices.ports(port.get_name()))
                declare_slice_result(*of_slice);
        else if (m_custom)
            for (auto * of_slice : m_slices.ports(port.get_name()))
                declare_custom_slice_input(*of_slice);
    }

private:
    /// The net of an output, or of a bidirectional port that acts as one.
    void declare_result(GNL_PORT & port, bus_range range, std::string_view bidir_opener) const
    {
        if (auto const * output = as_output(port))
            declare_net(m_text, output->uses_verilog_reg() ? "\treg   " : "\twire  ", range, port) << ";\n";
        else if (auto * bidir = as_bidir(port); bidir != nullptr && has_net(*bidir))
            declare_net(m_text, bidir_opener, range, port) << ";\n";
    }
    /// The instances of an array cut their bits out of the net, also where nobody connects it.
    bool has_net(GNL_PORT_BIDIR & port) const
    {
        return has_bidir_net(port, m_parent)
               || (m_is_array && port.is_locked_bidir_port() == 0 && driver_at(port, m_parent) == nullptr);
    }
    void declare_slice_result(GNL_PORT & port) const
    {
        if (port.is_used())
            declare_result(port, bus_range{port.get_bus_width(), three_blanks}, "\twire ");
    }

    /// The slices of an array cut their inputs out of one net, unless every slice shares the driver as it is.
    void declare_array_input(GNL_PORT & port) const
    {
        auto * driver = port.get_driver();
        if (driver == nullptr)
            return;
        bool const cut = driver->is_range_port() || driver->is_concat_port() || !widths_match(port, *driver);
        if (cut || (m_custom && !driver->is_simple_port()))
            declare_net(m_text, "\twire  ", {port.get_width(), three_blanks}, port) << ";\n";
    }

    /// Custom output reads what isn't a name of its own through a net, in an array through one for each slice.
    void declare_custom_input(GNL_PORT & port) const
    {
        auto * driver = port.get_driver();
        if (driver == nullptr || stands_for_itself(port, *driver))
            return;
        bus_range const range{port.get_original_width() > 0 ? port.get_width() : 0, three_blanks};
        if (!m_is_array)
            declare_net(m_text, "\twire  ", range, port) << ";\n";
        for (int i = 0; i < m_subdesign.get_array_width(); ++i)
            declare_net(m_text, "\twire  ", range, port) << "_" << i << ";\n";
    }
    /// This one declaration has no blank between range and name.
    void declare_custom_slice_input(GNL_PORT & port) const
    {
        auto * driver = port.get_driver();
        if (driver != nullptr && !stands_for_itself(port, *driver))
            declare_net(m_text, "\twire  ", {port.get_width(), no_blanks}, port) << ";\n";
    }
    static bool stands_for_itself(GNL_PORT const & port, GNL_PORT & driver)
    {
        return driver.is_simple_port() && widths_match(port, driver);
    }

    GNL_GENERATOR & m_subdesign;
    GNL_GENERATOR const * m_parent;
    text_sink & m_text;
    array_slices m_slices;
    bool m_is_array;
    bool m_custom;
};

} // namespace

void GNL_GENERATOR::dump_verilog_variables_section(std::ostream & out)
{
    out << "\n";
    for (auto * subdesign : m_registry->subdesigns())
        subdesign->dump_verilog_wires(out, this);

    text_sink text(out);
    if (generate_structural_netlist())
        declare_expression_nets(text, *this, this);
    for (GNL_PORT & port : m_registry->ports())
        declare_signal(text, port);
    if (uses_custom_verilog_output())
        dump_verilog_custom_wires(text.stream());
    text << "\n";
}

void GNL_GENERATOR::dump_verilog_wires(std::ostream & out, GNL_GENERATOR * parent)
{
    bool const structural = parent != nullptr && generate_structural_netlist();
    if (!uses_custom_subdesign_insert_mode()) {
        text_sink text(out);
        if (structural)
            declare_expression_nets(text, *this, parent);
        subdesign_nets const nets(*this, parent, text);
        for (GNL_PORT & port : m_registry->ports())
            nets.declare(port);
    } else if (uses_custom_verilog_output()) {
        // An array that isn't a cell has no wires of its own once its slices differ. A cell's hook runs once, and goes
        // through the slices itself.
        if (is_heterogeneous_array() && !is_primitive()) {
            for (int i = 0; i < get_array_width(); ++i)
                if (auto * slice = get_array_slice(i); slice != this)
                    slice->dump_verilog_wires(out, this);
        } else {
            dump_verilog_custom_wires(out);
        }
    }
    if (structural)
        for (int i = 0; i < get_array_width(); ++i)
            if (auto * slice = get_array_slice(i); slice != this)
                slice->dump_verilog_structural_netlist_wires(out, parent);
}

void GNL_GENERATOR::dump_verilog_structural_netlist_wires(std::ostream & out, GNL_GENERATOR * parent)
{
    text_sink text(out);
    declare_expression_nets(text, *this, parent);
}
