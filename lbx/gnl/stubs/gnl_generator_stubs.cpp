#include "gnl_generator.h"

// Stub files are not built yet.

void GNL_GENERATOR::generate_include_file(std::ostream &) {}

bool GNL_GENERATOR::generate_stub_files()
{
    return false;
}
