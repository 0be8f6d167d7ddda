#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/ports/reference_text.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/vhdl_signals.h"
#include "lbx/gnl/writers/vhdl_text.h"

#include <algorithm>

// The signals that join a subdesign to the design around it.

using namespace gnl_detail;

namespace {

/// What a simulation starts with. Synthesis doesn't see it, unless the text is for simulation alone.
void write_initial_value(text_sink & text, GNL_PORT & output, bool of_vector)
{
    auto & cell = *output.get_parent();
    int const value = cell.uses_custom_vhdl_output() ? cell.get_custom_vhdl_initial_value(output.get_name()) : -1;
    if (value == -1)
        return;
    vhdl_level const level{value, of_vector};
    if (cell.is_simulate_mode())
        text << " := " << level;
    else
        text << "\n\t -- synopsys translate_off\n\t\t\t := " << level << "\n\t -- synopsys translate_on\n\t ";
}

void declare_loop_signal(text_sink & text, GNL_PORT & port)
{
    declare_vhdl_signal(text, port.get_source_name(true), loop_signal_width(port)) << ";\n";
}

/// A constant that fits on a wire shared by the whole architecture, which is declared once, and a signal of its own
/// where the constant is wide or cut into slices.
void declare_constant(text_sink & text, GNL_PORT & input, signal_map & signals)
{
    if (constant_has_signal(input))
        declare_vhdl_signal(text, input.get_source_name(true), input.get_width()) << ";\n";
    std::string const shared(shared_constant_wire(input));
    if (!shared.empty() && signals.emplace(shared, shared).second)
        declare_vhdl_signal(text, shared, input.get_width()) << ";\n";
}

void declare_2d_signal(text_sink & text, GNL_PORT & input)
{
    bool const has_library_type =
        equal_folded(input.get_parent()->get_vhdl_library(), "qelvar_mf.qelvar_mf_components");
    auto const dimensions = dimensions_of(input);
    text << "\t SIGNAL  " << input.get_source_name(true) << "_2d\t:\t"
         << (has_library_type ? "QELVAR_MF_LOGIC_2D" : "STD_LOGIC_2D") << "(" << dimensions.rows - 1 << " DOWNTO 0, "
         << dimensions.row_width - 1 << " DOWNTO 0);\n";
}

class subdesign_signals
{
public:
    subdesign_signals(GNL_GENERATOR & subdesign, GNL_GENERATOR const * level, std::ostream & out, signal_map & signals)
        : m_subdesign(subdesign)
        , m_level(level)
        , m_text(out)
        , m_signals(signals)
        , m_slices(subdesign)
        , m_concat_signals(subdesign.has_disabled_vhdl_concat_wires())
    {
    }

    void write()
    {
        find_own_slices();
        for (auto * port : m_subdesign.registry().all_ports())
            declare(*port);
    }

private:
    /// Where the slices of an array have connections of their own, no loop can stand for all of them. The names of
    /// signals depend on it.
    void find_own_slices()
    {
        for (GNL_PORT & port : m_subdesign.registry().ports())
            if (is_left_to_slices(port)
                && std::ranges::any_of(m_slices.ports(port.get_name()),
                                       [](GNL_PORT const * of_slice) { return of_slice->check_is_used_flag(); })) {
                m_subdesign.set_vhdl_unroll_loop();
                return;
            }
    }
    bool is_left_to_slices(GNL_PORT const & port) const
    {
        return m_subdesign.is_master_array() && (port.is_input() || port.is_output() || port.is_bidir())
               && !port.check_is_used_flag();
    }

    void declare(GNL_PORT & port)
    {
        if (is_read_loop_signal(port, m_level))
            declare_loop_signal(m_text, port);
        else if (port.check_is_used_flag())
            declare_connected(port);
        else if (is_left_to_slices(port))
            for (auto * of_slice : m_slices.ports(port.get_name()))
                if (of_slice->check_is_used_flag())
                    declare_connected(*of_slice);
    }
    /// The constants of slices are declared behind the signals of the whole array.
    void declare_connected(GNL_PORT & port)
    {
        declare_signal(port);
        if (is_constant_input(port) && port.get_parent() == &m_subdesign)
            declare_constant(m_text, port, m_signals);
        if (has_2d_signal(port))
            declare_2d_signal(m_text, port);
    }
    void declare_signal(GNL_PORT & port)
    {
        if (port.is_output()) {
            int const width = vhdl_net_width(port);
            declare_vhdl_signal(m_text, port.get_source_name(true), width);
            write_initial_value(m_text, port, width > 0);
            m_text << ";\n";
        } else if (bidir_has_signal(port, m_level)) {
            declare_vhdl_signal(m_text, port.get_source_name(true), vhdl_net_width(port)) << ";\n";
        } else if (port.is_input() && port.get_connection_level() == m_level
                   && input_has_signal(port, m_concat_signals)) {
            declare_vhdl_signal(m_text, port.get_source_name(true), port.get_width()) << ";\n";
        }
    }

    GNL_GENERATOR & m_subdesign;
    GNL_GENERATOR const * m_level;
    text_sink m_text;
    signal_map & m_signals;
    array_slices m_slices;
    bool m_concat_signals;
};

void write_custom_wires(GNL_GENERATOR & subdesign, GNL_GENERATOR * level, std::ostream & out)
{
    subdesign.dump_vhdl_custom_wires(out);
    text_sink text(out);
    for (auto * port : subdesign.registry().all_ports())
        if (port->port_has_wire_in_custom_vhdl(level))
            declare_vhdl_signal(text, port->get_source_name(true), port->get_bus_width()) << ";\n";
}

} // namespace

void GNL_GENERATOR::dump_vhdl_wires(std::ostream & out, GNL_GENERATOR * parent,
                                    std::map<std::string, std::string, LESS_C_STRING> & signals)
{
    array_slices const slices(*this);
    if (!uses_custom_subdesign_insert_mode()) {
        subdesign_signals(*this, parent, out, signals).write();
        for (int i = 0; i < get_array_width(); ++i)
            if (auto * slice = slices.at(i))
                slice->dump_vhdl_wires_for_slice(out, parent, signals);
    }
    if (!uses_custom_vhdl_output())
        return;
    if (is_heterogeneous_array()) {
        for (int i = 0; i < get_array_width(); ++i)
            if (auto * slice = slices.at(i))
                slice->dump_vhdl_wires(out, parent, signals);
    } else if (uses_custom_subdesign_insert_mode()) {
        write_custom_wires(*this, parent, out);
    }
}

void GNL_GENERATOR::dump_vhdl_wires_for_slice(std::ostream & out, GNL_GENERATOR * parent,
                                              std::map<std::string, std::string, LESS_C_STRING> & signals)
{
    text_sink text(out);
    for (auto * port : m_registry->all_ports()) {
        if (is_read_loop_signal(*port, parent))
            declare_loop_signal(text, *port);
        else if (is_constant_input(*port) && port->check_is_used_flag() && !port_place(*port).connected_as_whole())
            declare_constant(text, *port, signals);
    }
}
