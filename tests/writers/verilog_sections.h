#pragma once

// Sections of Verilog text, written one at a time from a netlist that stands still.

#include "support.h"

namespace gnl_test {

class verilog_sections : public in_folder
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        design::set_gen_language(GNL_VERILOG);
    }
};

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

inline std::string wires_of(GNL_GENERATOR & subdesign)
{
    return written(subdesign, &GNL_GENERATOR::dump_verilog_wires, subdesign.get_parent());
}

inline std::string instance_of(GNL_GENERATOR & subdesign)
{
    std::ostringstream out;
    subdesign.dump_verilog_subdesign_description(subdesign.get_parent(), out);
    return out.str();
}

} // namespace gnl_test
