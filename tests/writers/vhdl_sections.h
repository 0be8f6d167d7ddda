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

/// Everything between BEGIN and END. Names depend on the declarations, so these are written first.
inline std::string statements_of(GNL_GENERATOR & design)
{
    signal_names known;
    std::ostringstream declarations, out;
    design.dump_vhdl_variables_and_subdesigns(declarations, known);
    design.dump_vhdl_connections(out, known);
    std::string const text = out.str(), begin = " BEGIN\n\n", end = "\n END RTL; ";
    EXPECT_TRUE(text.starts_with(begin) && text.ends_with(end)) << text;
    return text.substr(begin.size(), text.size() - begin.size() - end.size());
}

/// An input that can be read because something outside drives it.
inline GNL_PORT & used_input(design & of, std::string const & name, int width = 0)
{
    auto & port = of.input(name, width);
    port.set_used();
    return port;
}

} // namespace gnl_test
