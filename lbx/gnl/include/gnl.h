#pragma once

/// @file
/// Everything a generator author needs.

#include "gnl_combinational.h"
#include "gnl_device_info.h"
#include "gnl_dffe.h"
#include "gnl_element.h"
#include "gnl_generator.h"
#include "gnl_message.h"
#include "gnl_ofstream.h"
#include "gnl_parameter.h"
#include "gnl_parameter_array.h"
#include "gnl_parameter_vector.h"
#include "gnl_port.h"
#include "gnl_port_concat.h"
#include "gnl_port_logic.h"
#include "gnl_port_range.h"
#include "gnl_primitive.h"
#include "gnl_simulator.h"
#include "gnl_timing_assignment.h"
