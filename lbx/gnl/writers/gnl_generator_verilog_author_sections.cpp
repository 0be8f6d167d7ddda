#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/verilog_text.h"

// Writers for generator authors who put Verilog together themselves; the library doesn't call them.

using namespace gnl_detail;

namespace {

/// The driver, if it is a pin of `subdesign`.
GNL_PORT * driver_from(GNL_PORT const & port, GNL_GENERATOR const * subdesign)
{
    auto * driver = port.get_driver();
    return driver != nullptr && driver->get_parent() == subdesign && driver->is_simple_port() ? driver : nullptr;
}

void write_input_source(text_sink & text, GNL_GENERATOR & parent, GNL_PORT & input)
{
    if (auto * driver = input.get_driver())
        write_driver(text, parent, *driver, input);
    else if (has_constant(input))
        text << parent.verilog_constant_text(input);
    else if (input.get_default_value() != -1)
        text << input.get_width() << "'b" << input.get_default_value();
}

} // namespace

void GNL_GENERATOR::dump_verilog_subdesign_port_wires(std::ostream & out)
{
    text_sink text(out);
    for (GNL_PORT & port : m_registry->ports())
        if ((port.is_input() || port.is_output()) && port.is_used())
            declare_net(text, "\twire\t", {port.get_width(), "\t"}, port) << ";\n";
}

void GNL_GENERATOR::dump_verilog_subdesign_input_wire_connections(std::ostream & out, GNL_GENERATOR * parent)
{
    text_sink text(out);
    assign_sequence assign(text);
    for (GNL_PORT & port : m_registry->ports()) {
        if (!port.is_input() || !port.is_used())
            continue;
        assign.to(port.get_source_name(true));
        write_input_source(text, *parent, port);
    }
    assign.close();
}

void GNL_GENERATOR::dump_verilog_output_connections_with_subdesign(GNL_GENERATOR * subdesign, std::ostream & out)
{
    text_sink text(out);
    for (GNL_PORT & port : m_registry->ports()) {
        auto * driver = driver_from(port, subdesign);
        if (driver == nullptr)
            continue;
        if (port.is_input())
            text << ",\n\t." << port.get_name() << "(wire_" << subdesign->get_instance_name() << "_"
                 << driver->get_source_name(false) << ")";
        else if (port.is_wire())
            text << ",\n\t." << driver->get_source_name(false) << "(" << port.get_source_name(false) << ")";
    }
    text << ");\n";
}
