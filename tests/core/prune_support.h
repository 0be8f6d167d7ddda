#pragma once

// A design whose clean-up is run step by step, and what its netlist looks like then.

#include "support.h"

#include <gtest/gtest.h>

namespace gnl_test {

/// A design whose body runs, with the steps of the clean-up.
class pruned_design : public design
{
public:
    explicit pruned_design(int language = GNL_VERILOG, char const * text = "")
        : design(nullptr, "top", text)
    {
        set_gen_language(language);
        initialize_param_list();
        set_in_rtl_body();
    }
    using GNL_GENERATOR::get_non_auto_wire_driver;
    using GNL_GENERATOR::modify_auto_sources;
    using GNL_GENERATOR::remove_named_driver_from_port;
    using GNL_GENERATOR::replace_wire_port_driver;

    GNL_WIRE & source(std::string const & name, int width = 0)
    {
        auto & made = wire(name, width);
        made.set_port_is_a_driver();
        return made;
    }
};

/// "base[high:low]" of a range, the name of any other port, "-" for none.
inline std::string shown(GNL_PORT * port)
{
    auto * range = dynamic_cast<GNL_PORT_OUTPUT_RANGE *>(port);
    if (!range)
        return port ? port->get_name() : "-";
    return shown(range->get_range_driver()) + "[" + std::to_string(range->get_high_index()) + ":"
           + std::to_string(range->get_low_index()) + "]";
}

/// The elements of a concatenation, highest first, each as "port@high:low".
inline std::string shown_elements(GNL_PORT & port)
{
    auto & concat = dynamic_cast<GNL_PORT_CONCAT &>(port);
    std::string text;
    for (int i = 0; auto const * element = concat.get_concat_element(i); ++i)
        text += (i == 0 ? "" : " ") + shown(element->port) + "@" + std::to_string(element->high_index) + ":"
                + std::to_string(element->low_index);
    return text;
}

} // namespace gnl_test
