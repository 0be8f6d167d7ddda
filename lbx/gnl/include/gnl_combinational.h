#pragma once

#include "gnl_primitive.h"

// The combinational cells will be declared here.
