#pragma once

// Sections of VHDL text, written one at a time from a netlist that stands still.

#include "top_design.h"

namespace gnl_test {

class vhdl_sections : public in_folder
{
protected:
    void SetUp() override
    {
        in_folder::SetUp();
        design::set_gen_language(GNL_VHDL);
    }
};

using signal_names = std::map<std::string, std::string, LESS_C_STRING>;

/// What joins the subdesign to its design.
inline std::string signals_of(GNL_GENERATOR & subdesign, signal_names & known)
{
    std::ostringstream out;
    subdesign.dump_vhdl_wires(out, subdesign.get_parent(), known);
    return out.str();
}
inline std::string signals_of(GNL_GENERATOR & subdesign)
{
    signal_names known;
    return signals_of(subdesign, known);
}

/// Everything that the architecture declares.
inline std::string declarations_of(GNL_GENERATOR & design)
{
    signal_names known;
    std::ostringstream out;
    design.dump_vhdl_variables_and_subdesigns(out, known);
    return out.str();
}

} // namespace gnl_test
