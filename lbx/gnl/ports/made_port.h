#pragma once

#include "gnl_port.h"

#include <memory>
#include <utility>

namespace gnl_detail {

/// Keeps a port that has no parent to own it until the program ends: the operators hand out references to it.
void keep_free_port(std::unique_ptr<GNL_PORT> port);

/// Makes a port as the operators do: its parent owns it, if it has one.
template <class PORT, class... VALUES> PORT & make_port(GNL_GENERATOR * parent, VALUES &&... values)
{
    auto made = std::make_unique<PORT>(parent, std::forward<VALUES>(values)...);
    PORT & port = *made;
    if (parent)
        static_cast<void>(made.release());
    else
        keep_free_port(std::move(made));
    return port;
}

} // namespace gnl_detail
