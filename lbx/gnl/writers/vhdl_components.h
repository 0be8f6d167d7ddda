#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/writers/vhdl_text.h"

#include <ostream>

namespace gnl_detail {

/// Declares the type of two-dimensional signals if one of the cell's ports needs it and it isn't in `types` yet.
void declare_2d_type(GNL_GENERATOR & cell, text_sink & text, signal_map & types);

/// Declares one component for each entity among the subdesigns, and the types that they need beyond `types`.
void write_components(GNL_GENERATOR & design, std::ostream & out, signal_map types);

} // namespace gnl_detail
