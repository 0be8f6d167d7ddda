#include "gnl_generator.h"

void GNL_GENERATOR::register_simulator(GNL_SIMULATOR * simulator)
{
    m_simulator.reset(simulator);
}
