#pragma once

#include "gnl_generator.h"

#include <map>
#include <string>

namespace gnl_detail {

/// The package that declares most of the built-in cells to VHDL.
inline constexpr char const * primitives_library = "qelvar.qelvar_primitives_components";

/// Makes `slice`, a new cell under `array`, its element `index`. It keeps what its own construction gave it: values and
/// widths pass between an array and its slices by the rules of arrays.
inline void settle_slice(GNL_GENERATOR & slice, GNL_GENERATOR * array, int index, std::string const & instance_name)
{
    slice.set_slice_index(index);
    slice.set_array_parent(array);
    slice.set_instance_name(instance_name);
}

/// Enters the stamp of this library: build date and time, and a suffix. It is a fixed text, because the version line of
/// a written file decides whether later runs can reuse that file.
inline void enter_library_version(std::map<std::string, std::string, LESS_C_STRING> & versions)
{
    versions["lbx_gnl"] = "2026:01:15:12:00:00:LX";
}

} // namespace gnl_detail
