#include "gnl_generator.h"

void GNL_GENERATOR::add_simulation_only_port(std::string const & name, std::string const & value)
{
    m_state.simulation_only_ports[name] = value;
}

void GNL_GENERATOR::add_simulation_only_parameter(std::string const & name, std::string const & value)
{
    m_state.simulation_only_parameters[name] = value;
}

// The function information that would name simulation-only items and libraries of cells is not built yet.

void GNL_GENERATOR::add_simulation_only_ports_and_parameters() {}

void GNL_GENERATOR::collect_simulation_libraries(std::map<std::string, std::string, LESS_C_STRING> &) {}

void GNL_GENERATOR::dump_simulation_libraries() {}
