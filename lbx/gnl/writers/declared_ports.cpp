#include "lbx/gnl/writers/declared_ports.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/port_kinds.h"

std::vector<GNL_PORT *> gnl_detail::declared_ports(GNL_GENERATOR & design)
{
    std::vector<GNL_PORT *> ports;
    auto const add = [&](GNL_PORT & port) {
        if (is_declared_port(port))
            ports.push_back(&port);
    };
    if (design.has_sorted_port_list()) {
        for (auto const & name : design.get_sorted_port_list())
            if (auto * port = design.get_port_object(name))
                add(*port);
    } else {
        for (GNL_PORT & port : design.registry().ports())
            add(port);
    }
    return ports;
}
