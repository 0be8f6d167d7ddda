// `dump_hdl`: from a finished netlist to the text of a design in each language.

#include "gnl_generator.h"

#include "gnl_simulator.h"

namespace {

/// Which mark tells a tool that the design comes from here: 0 none, else the number in it.
int lumenbox_tag(GNL_GENERATOR & design)
{
    if (!design.use_lumenbox_2_tag())
        return 1;
    return design.needs_lumenbox_tag() ? 2 : 0;
}

void write_verilog(GNL_GENERATOR & design, std::ostream & out)
{
    auto const comment = GNL_GENERATOR::comment_string();
    if (!design.is_simulate_mode())
        out << comment << "synopsys translate_off\n";
    out << "`timescale 1 ps / 1 ps\n";
    if (!design.is_simulate_mode())
        out << comment << "synopsys translate_on\n";
    design.dump_qelvar_internal_options(out, "");
    out << "module  ";
    design.dump_verilog_module_section(out);
    if (int const tag = lumenbox_tag(design); tag != 0)
        out << "/* synthesis synthesis_lumenbox=" << tag << " */";
    out << ";\n";
    design.dump_verilog_port_section(out);
    design.dump_verilog_top_level_parameter_section(out);
    design.dump_verilog_variables_section(out);
    design.dump_verilog_port_connections(out);
    out << "endmodule " << comment << design.get_entity_name() << "\n";
}

void write_vhdl(GNL_GENERATOR & design, std::ostream & out)
{
    auto const entity = design.get_entity_name();
    out << " LIBRARY ieee;\n USE ieee.std_logic_1164.all;\n\n";
    out << " ENTITY  " << entity << " IS \n";
    design.dump_vhdl_top_level_parameter_section(out);
    design.dump_vhdl_port_section(out);
    out << " END " << entity << ";\n\n ARCHITECTURE RTL OF " << entity << " IS\n\n";
    if (int const tag = lumenbox_tag(design); tag != 0)
        out << "\t ATTRIBUTE synthesis_lumenbox : natural;\n"
               "\t ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS "
            << tag << ";\n";
    design.dump_qelvar_internal_options(out, "");
    std::map<std::string, std::string, LESS_C_STRING> types;
    design.dump_vhdl_variables_and_subdesigns(out, types);
    design.dump_vhdl_connections(out, types);
    out << GNL_GENERATOR::comment_string() << entity << "\n";
}

void write_qhdl(GNL_GENERATOR & design, std::ostream & out)
{
    design.dump_qelvar_internal_options(out, "");
    design.dump_qhdl_top_level_parameter_section(out);
    design.dump_qhdl_subdesign_section(out);
    design.dump_qhdl_variables_section(out);
    design.dump_qhdl_connections(out);
}

void write_netlist(GNL_GENERATOR & design, std::ostream & out)
{
    if (design.allow_removal_of_optional_wires())
        design.prune_optional_wires();
    out << GNL_GENERATOR::comment_string() << "synthesis_resources = ";
    design.dump_resources(out);
    out << "\n";
    if (GNL_ELEMENT::is_verilog())
        write_verilog(design, out);
    else if (GNL_ELEMENT::is_vhdl())
        write_vhdl(design, out);
    else
        write_qhdl(design, out);
}

/// Whether the design stands in a file of others and is written into its parent's text, so that its name is nobody's.
bool leaves_its_name(GNL_GENERATOR & design)
{
    return design.uses_custom_subdesign_insert_mode() && design.get_parent() && !GNL_ELEMENT::is_qhdl()
           && design.generate_single_output_file();
}

} // namespace

void GNL_GENERATOR::dump_hdl(std::ostream & stream)
{
    if (m_state.not_supported)
        m_state.entity_name = get_name();
    if (m_state.vorlan_interface_mode)
        update_vorlan_interface_connections();
    dump_hdl_group_subdesign_slices(this);
    set_out_of_rtl_body();    // nothing connects any more
    made_port_connection(""); // nor may anything have connected, and widths be open
    transfer_from_list_to_map();
    set_subdesign_auto_generated_instance_names();
    if (!is_tcl()) {
        if (m_simulator) {
            m_simulator->create_simulation_objects();
            m_simulator->evaluate();
        }
        dump_hdl_generate_subdesigns(stream);
        if (m_simulator) {
            m_simulator->evaluate();
            set_in_rtl_body();
            m_simulator->initialize_generators_to_simulation_state();
            set_out_of_rtl_body();
        }
        get_primitive_subdesign_qelvar_internal_options();
        generate_timing_assignments();
    }
    if (m_state.simulation_library_mode)
        dump_simulation_libraries();
    else if (m_state.resource_count_mode)
        dump_resources(stream);
    else if (m_state.file_generation_off) {
        if (check_error_flag() && !get_parent() && !is_tcl())
            dump_error_file(stream);
    } else if (is_tcl())
        dump_tcl_port_interface(stream);
    else
        write_netlist(*this, stream);
    if (leaves_its_name(*this))
        get_top_level_parent()->remove_from_list_of_subdesigns(get_entity_name());
}
