#pragma once

// Sections of a text, written one at a time from a netlist that stands still.

#include "support.h"

namespace gnl_test {

/// A top design that connects its ports without being generated.
class top_design : public design
{
public:
    explicit top_design(char const * text = "")
        : design(nullptr, "top", text)
    {
        set_entity_name("top");
    }

    /// Makes connections as the body of the design does.
    template <class STATEMENTS> void connect(STATEMENTS && statements)
    {
        initialize_param_list(); // options come before the body
        set_in_rtl_body();
        statements();
        set_out_of_rtl_body();
    }
    design & subdesign(std::string const & name, std::string const & instance, int array_width = 0)
    {
        auto & made = child(name, instance, "", array_width);
        made.set_entity_name(name);
        return made;
    }
    design & cell(std::string const & instance, int array_width = 0)
    {
        auto & made = subdesign("blk", instance, array_width);
        made.set_primitive();
        return made;
    }
};

/// What one section writer writes.
template <class... PARAMETERS, class... ARGUMENTS>
std::string written(GNL_GENERATOR & generator, void (GNL_GENERATOR::*section)(std::ostream &, PARAMETERS...),
                    ARGUMENTS... arguments)
{
    std::ostringstream out;
    (generator.*section)(out, arguments...);
    return out.str();
}

} // namespace gnl_test
