#include "gnl_generator.h"

// The QHDL sections are not built yet: a QHDL design file has its frame and no text of these.

void GNL_GENERATOR::dump_qhdl_top_level_parameter_section(std::ostream &) {}

void GNL_GENERATOR::dump_qhdl_subdesign_section(std::ostream &) {}

void GNL_GENERATOR::dump_qhdl_variables_section(std::ostream &) {}

void GNL_GENERATOR::dump_qhdl_connections(std::ostream &) {}

void GNL_GENERATOR::dump_qhdl_connections_for_subdesign_wrapper(std::ostream &) {}

void GNL_GENERATOR::dump_qhdl_library_wrapper() {}
