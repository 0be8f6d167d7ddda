#pragma once

// Sections of Verilog text, written one at a time from a netlist that stands still.

#include "top_design.h"

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
