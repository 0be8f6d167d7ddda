#include "gnl_generator.h"

// The statements are not built yet: a VHDL design has its declarations and no text of these.

void GNL_GENERATOR::dump_vhdl_connections(std::ostream &, std::map<std::string, std::string, LESS_C_STRING> &) {}

void GNL_GENERATOR::dump_vhdl_parameter_mappings_for_wrapper(std::ostream &) {}

void GNL_GENERATOR::dump_vhdl_connections_for_wrapper(std::ostream &) {}
