// The body of a generator that has none of its own: a wrapper around the entity of the same name.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"

using namespace gnl_detail;

namespace {

void write_verilog_wrapper(GNL_GENERATOR & wrapped, std::ostream & out)
{
    out << "module  ";
    wrapped.dump_verilog_module_section_for_wrapper(out);
    out << "/* synthesis synthesis_lumenbox=1 */;\n";
    wrapped.dump_verilog_port_section_for_wrapper(out);
    wrapped.dump_verilog_connections_for_subdesign_wrapper(out);
    wrapped.dump_verilog_parameter_section(out, true, -1);
    out << "\n\nendmodule\n";
}

void write_vhdl_wrapper(GNL_GENERATOR & wrapped, std::ostream & out)
{
    auto const entity = wrapped.get_entity_name();
    auto const & name = wrapped.get_name();
    out << " LIBRARY ieee;\n USE ieee.std_logic_1164.all;\n\n";
    if (!wrapped.needs_vhdl_component() || !wrapped.get_vhdl_library().empty())
        for (auto const & [key, library] : wrapped.get_vhdl_library_list()) {
            // Library work is there without a clause.
            if (auto const first = library.substr(0, library.find('.')); !equal_folded(first, "work"))
                out << " LIBRARY " << first << ";\n";
            out << " USE " << library << ".all;\n\n";
        }
    out << " ENTITY  " << entity << " IS \n";
    wrapped.dump_vhdl_port_section_for_wrapper(out);
    out << " END " << entity << ";\n\n ARCHITECTURE RTL OF " << entity << " IS\n\n"
        << "\t ATTRIBUTE synthesis_lumenbox : boolean;\n"
           "\t ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS true;\n"
        << "\t COMPONENT " << name << "\n";
    wrapped.dump_vhdl_generic_section_for_wrapper(out);
    wrapped.dump_vhdl_port_section_for_wrapper(out);
    out << "\t END COMPONENT;\n BEGIN\n\n \t" << name << "_component  :  " << name << "\n";
    wrapped.dump_vhdl_parameter_mappings_for_wrapper(out);
    wrapped.dump_vhdl_connections_for_wrapper(out);
    out << "\n END RTL;\n";
}

void write_qhdl_wrapper(GNL_GENERATOR & wrapped, std::ostream & out)
{
    out << "include \"" << wrapped.get_name() << ".inc\";\n\n";
    wrapped.dump_qhdl_subdesign_section(out);
    wrapped.dump_qhdl_variables_section_for_subdesign_wrapper(out, true);
    wrapped.dump_qhdl_connections_for_subdesign_wrapper(out);
    out << "\n"; // the line behind the body tells later runs whether the file is valid
}

} // namespace

void GNL_GENERATOR::rtl_body(std::ostream & stream)
{
    made_port_connection(""); // nothing connects here, and the sections need the widths
    if (is_verilog())
        write_verilog_wrapper(*this, stream);
    else if (is_vhdl())
        write_vhdl_wrapper(*this, stream);
    else
        write_qhdl_wrapper(*this, stream);
}
