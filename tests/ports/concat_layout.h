#pragma once

// What a concatenation holds, as a text.

#include "support.h"

#include <string>

namespace gnl_test {

/// The elements from the highest bits down, each as "port@high:low", a range as "port[high:low]@high:low".
inline std::string layout(GNL_PORT_CONCAT const & concat)
{
    std::string all;
    for (int i = 0; i < concat.get_element_count(); ++i) {
        GNL_SUBCONCAT const & element = *concat.get_concat_element(i);
        std::string name = element.port->get_name();
        if (auto const * range = dynamic_cast<GNL_PORT_OUTPUT_RANGE const *>(element.port))
            name = range->get_range_driver()->get_name() + "[" + std::to_string(range->get_high_index()) + ":"
                   + std::to_string(range->get_low_index()) + "]";
        all += (all.empty() ? "" : " ") + name + "@" + std::to_string(element.high_index) + ":"
               + std::to_string(element.low_index);
    }
    return all;
}

inline GNL_PORT_CONCAT & concat_of(GNL_PORT & port)
{
    return dynamic_cast<GNL_PORT_CONCAT &>(*port.get_driver());
}

/// The layout of the pieces that drive `port`; "" without any.
inline std::string driver_layout(GNL_PORT & port)
{
    auto const * concat = dynamic_cast<GNL_PORT_CONCAT const *>(port.get_driver());
    return concat ? layout(*concat) : "";
}

} // namespace gnl_test
