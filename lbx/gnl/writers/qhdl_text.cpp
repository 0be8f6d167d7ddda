#include "lbx/gnl/writers/qhdl_text.h"

#include "lbx/gnl/ports/constant_text.h"
#include "lbx/gnl/ports/description_writer.h"
#include "lbx/gnl/ports/reference_text.h"
#include "lbx/gnl/writers/driver_check.h"
#include "lbx/gnl/writers/port_kinds.h"

namespace gnl_detail {

text_sink & write_qhdl_declared(text_sink & text, GNL_PORT & port, GNL_GENERATOR & design)
{
    port.dump_port_description(text.stream(), &design, true, nullptr);
    return text;
}

text_sink & begin_qhdl_assignment(text_sink & text, GNL_PORT & sink, GNL_GENERATOR & level)
{
    text << "\t";
    sink.dump_port_description(text.stream(), &level, false, nullptr);
    return text << " = ";
}

GNL_PORT * usable_driver(GNL_PORT & sink, GNL_GENERATOR & level)
{
    auto * driver = driver_at(sink, &level);
    return driver != nullptr && check_driver(level, sink, *driver) ? driver : nullptr;
}

bool assign_qhdl_sink(text_sink & text, GNL_PORT & sink, GNL_GENERATOR & level)
{
    if (has_constant_at(sink, &level)) {
        begin_qhdl_assignment(text, sink, level);
        write_constant(text, sink.constant_driving_value(), sink.get_bus_width());
    } else if (auto * driver = usable_driver(sink, level)) {
        begin_qhdl_assignment(text, sink, level);
        write_reference(text, *driver, &level, false, &sink);
    } else {
        return false;
    }
    text << ";\n";
    return true;
}

namespace {

/// The port at the instance itself, as no reference shows it once it has a node.
void write_at_instance(text_sink & text, GNL_PORT & port)
{
    text << port.get_parent_instance_name();
    write_instance_subscript(text, port, true);
    text << "." << port.get_source_name(false);
    write_qhdl_range(text, shown_width(port), false);
}

/// What drives a bidirectional port goes to its node, and the node is joined to the instance.
void connect_bidir(text_sink & text, GNL_PORT_BIDIR & port, GNL_GENERATOR & level)
{
    if (!assign_qhdl_sink(text, port, level))
        return;
    if (port.is_qhdl_input_port()) {
        text << "\t";
        write_at_instance(text, port);
        text << " = ";
        port.dump_port_description(text.stream(), &level, false, nullptr);
    } else {
        begin_qhdl_assignment(text, port, level);
        write_at_instance(text, port);
    }
    text << ";\n";
}

} // namespace

void connect_qhdl_port(text_sink & text, GNL_PORT & port, GNL_GENERATOR & level)
{
    if (port.is_input())
        assign_qhdl_sink(text, port, level);
    else if (auto * bidir = as_bidir(port))
        connect_bidir(text, *bidir, level);
}

} // namespace gnl_detail
