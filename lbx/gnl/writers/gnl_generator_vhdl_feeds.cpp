// What feeds a subdesign in the text of the design around it. Most inputs read their driver in the port map; the others
// read a signal of their own, which is assigned here.

#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/one_slice_widths.h"
#include "lbx/gnl/writers/driver_check.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/vhdl_signals.h"
#include "lbx/gnl/writers/vhdl_statements.h"

#include <algorithm>

namespace gnl_detail {
namespace {

class subdesign_feeds
{
public:
    subdesign_feeds(GNL_GENERATOR & subdesign, GNL_GENERATOR & level, std::ostream & out)
        : m_subdesign(subdesign)
        , m_level(level)
        , m_assign(level, out)
        , m_concat_signals(subdesign.has_disabled_vhdl_concat_wires())
    {
    }

    void write()
    {
        for (GNL_PORT * port : m_subdesign.registry().all_ports())
            if (port->is_simple_port())
                feed(*port);
            else
                write_expression(*port);
    }
    /// Of a slice: what the array doesn't connect as a whole.
    void write_of_slice(bool expressions_alone)
    {
        for (GNL_PORT * port : m_subdesign.registry().all_ports())
            if (!port->is_simple_port())
                write_expression(*port);
            else if (!expressions_alone && !port_place(*port).connected_as_whole())
                feed(*port);
    }

private:
    void write_expression(GNL_PORT & port)
    {
        if (is_read_loop_signal(port, &m_level))
            m_assign.assign_loop_signal(port, loop_signal_width(port));
    }
    void feed(GNL_PORT & port)
    {
        if (port.get_connection_level() != &m_level)
            return;
        if (port.is_bidir())
            feed_bidir(port);
        else if (port.is_input())
            feed_input(port);
    }

    void feed_bidir(GNL_PORT & port)
    {
        if (!bidir_has_signal(port, &m_level))
            return;
        auto const name = port.get_source_name(true);
        int const width = vhdl_net_width(port);
        if (auto * driver = port.get_driver()) {
            if (check_driver(m_level, port, *driver))
                m_assign.assign(name, width, &port, *driver);
        } else if (has_constant(port)) {
            m_assign.assign(name, vhdl_constant(port.constant_driving_value(), width));
        }
    }

    void feed_input(GNL_PORT & port)
    {
        if (auto * driver = port.get_driver(); driver != nullptr && input_has_signal(port, m_concat_signals)) {
            if (!check_driver(m_level, port, *driver))
                return;
            feed_signal(port, *driver);
        } else if (is_constant_input(port) && port.get_width() > 1) {
            m_assign.assign(port.get_source_name(true), m_level.vhdl_constant_text(port));
        }
        if (has_2d_signal(port))
            feed_rows(port);
    }
    void feed_signal(GNL_PORT & port, GNL_PORT & driver)
    {
        auto const name = port.get_source_name(true);
        int const slices = m_subdesign.get_array_width();
        int const slice_width = declared_slice_width(port);
        bool const is_stretched =
            port.need_to_create_vhdl_loop() && (driver.is_simple_port() || driver.is_range_port());
        bool const shared = slices > 1 && !is_stretched && driver.get_bus_width() == std::max(slice_width, 1);
        if (shared)
            m_assign.repeat(name, slice_width, slices, driver);
        else
            m_assign.assign(name, port.get_width(), &port, driver);
    }

    /// The signal in two dimensions, row by row from the flat one.
    void feed_rows(GNL_PORT & port)
    {
        auto const dimensions = dimensions_of(port);
        auto const flat = flat_signal(port);
        auto const rows = m_level.generate_loop_name();
        auto const bits = m_level.generate_loop_name();
        auto const i = vhdl_loop_variable(&m_level, "i");
        auto const j = vhdl_loop_variable(&m_level, "j");
        auto & text = m_assign.text();
        text << "\t" << rows << " : FOR " << i << " IN 0 TO " << dimensions.rows - 1 << " GENERATE\n\t\t" << bits
             << " : FOR " << j << " IN 0 TO " << dimensions.row_width - 1 << " GENERATE\n\t\t\t"
             << port.get_source_name(true) << "_2d(" << i << ", " << j << ") <= " << flat.name;
        if (flat.is_vector) {
            text << "(" << i << "*" << dimensions.row_width << "+" << j;
            if (flat.low_bit != 0)
                text << "+" << flat.low_bit;
            text << ")";
        }
        text << ";\n\t\tEND GENERATE " << bits << ";\n\tEND GENERATE " << rows << ";\n";
    }
    port_signal flat_signal(GNL_PORT & port)
    {
        auto * driver = port.get_driver();
        if (driver != nullptr && !input_has_signal(port, m_concat_signals))
            return bits_of_driver(*driver, &m_level);
        if (driver == nullptr && port.get_width() <= 1)
            return {std::string(shared_constant_wire(port)), 0, port.get_width() == 1};
        return {port.get_source_name(true), 0, true};
    }

    GNL_GENERATOR & m_subdesign;
    GNL_GENERATOR & m_level;
    vhdl_assignments m_assign;
    bool m_concat_signals;
};

} // namespace

void write_vhdl_feeds(GNL_GENERATOR & subdesign, GNL_GENERATOR & level, std::ostream & out)
{
    subdesign_feeds(subdesign, level, out).write();
}

} // namespace gnl_detail

void GNL_GENERATOR::dump_vhdl_for_loop_for_slices(std::ostream & out, GNL_GENERATOR * parent, bool in_loop,
                                                  std::map<std::string, std::string, LESS_C_STRING> &)
{
    gnl_detail::subdesign_feeds(*this, *parent, out).write_of_slice(in_loop);
}
