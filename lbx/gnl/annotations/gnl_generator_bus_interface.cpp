#include "gnl_generator.h"

// Bus interface connections are not built yet.

void GNL_GENERATOR::update_vorlan_interface_connections() {}
