#pragma once

#include "gnl_primitive.h"

// The register and latch cells will be declared here.
