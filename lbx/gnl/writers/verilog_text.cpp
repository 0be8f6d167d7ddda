#include "lbx/gnl/writers/verilog_text.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/ports/description_writer.h"
#include "lbx/gnl/writers/port_kinds.h"

namespace gnl_detail {

text_sink & write_default(text_sink & text, GNL_PORT & port)
{
    int const bit = port.get_default_value();
    return port.get_width() > 1 ? text << repeated_bit{port.get_bus_width(), bit} : text << "1'b" << bit;
}

text_sink & declare_net(text_sink & text, std::string_view opener, bus_range range, GNL_PORT & port)
{
    return text << opener << range << port.get_source_name(true);
}

void write_port_options(text_sink & text, GNL_PORT & port)
{
    if (port.has_qelvar_internal_options())
        port.dump_qelvar_internal_options(text.stream());
}

void write_driver(text_sink & text, GNL_GENERATOR & level, GNL_PORT & driver, GNL_PORT & target)
{
    write_reference(text, driver, &level, false, &target);
}

void write_driver(text_sink & text, GNL_GENERATOR & level, GNL_PORT & driver, GNL_PORT & target, bool repeated)
{
    if (repeated)
        text << "{" << target.get_bus_width() / driver.get_bus_width() << "{";
    write_driver(text, level, driver, target);
    if (repeated)
        text << "}}";
}

void declare_expression_nets(text_sink & text, GNL_GENERATOR & owner, GNL_GENERATOR const * level)
{
    for (GNL_PORT_LOGIC & expression : owner.registry().logic_ports())
        if (expression.get_connection_level() == level)
            declare_net(text, "\twire  ", {expression.get_width(), two_blanks}, expression) << ";\n";
}

void write_gates(std::ostream & out, GNL_GENERATOR & owner, GNL_GENERATOR * level)
{
    for (GNL_PORT_LOGIC & expression : owner.registry().logic_ports())
        if (expression.get_connection_level() == level)
            expression.dump_structural_netlist(out, level);
}

} // namespace gnl_detail
