#include "gnl_generator.h"

// The VHDL sections are not built yet: a VHDL design file has its frame and no text of these.

void GNL_GENERATOR::dump_vhdl_port_section(std::ostream &) {}

void GNL_GENERATOR::dump_vhdl_top_level_parameter_section(std::ostream &) {}

void GNL_GENERATOR::dump_vhdl_variables_and_subdesigns(std::ostream &,
                                                       std::map<std::string, std::string, LESS_C_STRING> &)
{
}

void GNL_GENERATOR::dump_vhdl_connections(std::ostream &, std::map<std::string, std::string, LESS_C_STRING> &) {}

void GNL_GENERATOR::dump_vhdl_port_section_for_wrapper(std::ostream &) {}

void GNL_GENERATOR::dump_vhdl_generic_section_for_wrapper(std::ostream &) {}

void GNL_GENERATOR::dump_vhdl_parameter_mappings_for_wrapper(std::ostream &) {}

void GNL_GENERATOR::dump_vhdl_connections_for_wrapper(std::ostream &) {}
