// Behind BEGIN: the assignments of a design's own signals, then its subdesigns.

#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/driver_check.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/vhdl_signals.h"
#include "lbx/gnl/writers/vhdl_statements.h"

#include <array>
#include <sstream>

using namespace gnl_detail;

namespace {

struct shared_wire
{
    std::string_view name;
    std::string_view value;
};
constexpr std::array<shared_wire, 4> shared_wires{{
    {"wire_gnd", "'0'"},
    {"wire_gnd_vector", "\"0\""},
    {"wire_vcc", "'1'"},
    {"wire_vcc_vector", "\"1\""},
}};

/// The constants that the inputs of subdesigns share; they stand among the names of other signals.
void assign_shared_wires(text_sink & text, signal_map const & signals)
{
    for (auto const & [key, name] : signals)
        for (auto const & wire : shared_wires)
            if (key == wire.name)
                text << "\t" << wire.name << " <= " << wire.value << ";\n";
}

class own_assignments
{
public:
    own_assignments(GNL_GENERATOR & design, std::ostream & out)
        : m_design(design)
        , m_assign(design, out)
    {
    }

    void write()
    {
        for (GNL_PORT * port : m_design.registry().ports_where(
                 [&](GNL_PORT & each) { return each.is_simple_port() || is_read_loop_signal(each, &m_design); })) {
            if (port->is_wire())
                assign_wire(*port);
            else if (port->is_output())
                assign_sink(*port, port->get_driver(), has_constant(*port), port->is_used());
            else if (port->is_bidir())
                assign_bidir(*port);
            else if (auto * input = as_input(*port))
                assign_input(*input);
            else if (is_read_loop_signal(*port, &m_design))
                m_assign.assign_loop_signal(*port, loop_signal_width(*port));
        }
    }

private:
    void assign_wire(GNL_PORT & wire)
    {
        if (wire.declare_port())
            assign_sink(wire, wire.get_driver(), has_constant(wire), true);
    }
    void assign_bidir(GNL_PORT & port)
    {
        auto * driver = driver_at(port, &m_design);
        if (driver == nullptr || !port.has_special_bidir_driver())
            assign_sink(port, driver, has_constant_at(port, &m_design), false);
        else if (driver->is_concat_port())
            assign_pieces(port, static_cast<GNL_PORT_CONCAT &>(*driver));
    }
    /// The pieces that meet a subdesign's bidirectional port do so in its instance; the others are assigned.
    void assign_pieces(GNL_PORT & port, GNL_PORT_CONCAT & pieces)
    {
        for (int i = 0; i < pieces.get_element_count(); ++i) {
            auto const & piece = *pieces.get_concat_element(i);
            if (piece.port->is_bidir() || !check_driver(m_design, port, *piece.port))
                continue;
            std::ostringstream name;
            text_sink(name) << port.get_source_name(false) << vhdl_range{piece.high_index, piece.low_index};
            int const bits = piece.high_index - piece.low_index + 1;
            m_assign.assign(name.str(), bits == 1 ? 0 : bits, nullptr, *piece.port);
        }
    }
    void assign_sink(GNL_PORT & port, GNL_PORT * driver, bool is_constant, bool may_take_default)
    {
        auto const name = port.get_source_name(false);
        if (driver != nullptr) {
            if (check_driver(m_design, port, *driver))
                m_assign.assign(name, port.get_width(), &port, *driver);
        } else if (is_constant) {
            m_assign.assign(name, m_design.vhdl_constant_text(port));
        } else if (may_take_default && port.get_default_value() != -1) {
            assign_default(port);
        }
    }
    void assign_input(GNL_PORT_INPUT & input)
    {
        if (is_default_signal(input))
            assign_default(input);
    }
    void assign_default(GNL_PORT & port)
    {
        m_assign.text() << "\t" << port.get_vhdl_name()
                        << " <= " << vhdl_level{port.get_default_value(), port.get_width() > 0} << ";\n";
    }

    GNL_GENERATOR & m_design;
    vhdl_assignments m_assign;
};

} // namespace

std::string GNL_GENERATOR::vhdl_constant_text(GNL_PORT & port) const
{
    return vhdl_constant(port.constant_driving_value(), port.get_width());
}

void GNL_GENERATOR::dump_vhdl_zero_index(std::ostream & out, GNL_PORT * port, GNL_PORT * driver, GNL_GENERATOR * parent)
{
    if (port != nullptr && driver != nullptr && port->get_width() == 1 && driver->get_bus_width() == 1
        && !reads_as_vector(*driver, parent, port))
        out << "(0)";
}

void GNL_GENERATOR::dump_vhdl_connections(std::ostream & out,
                                          std::map<std::string, std::string, LESS_C_STRING> & signals)
{
    out << " BEGIN\n\n";
    if (!uses_custom_subdesign_insert_mode()) {
        {
            text_sink text(out);
            assign_shared_wires(text, signals);
        }
        own_assignments(*this, out).write();
        for (auto * subdesign : m_registry->subdesigns())
            subdesign->dump_vhdl_subdesign_connection(this, out, signals);
        dump_error_messages(out);
    }
    if (uses_custom_vhdl_output())
        dump_vhdl_custom_output(out, this);
    out << "\n END RTL; ";
}
