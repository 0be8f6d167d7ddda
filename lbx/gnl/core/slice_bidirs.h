#pragma once

class GNL_GENERATOR;

namespace gnl_detail {

/// The body of the common design marks the array's bidirectional ports as used. Where only the slices connect such a
/// port, each its own, that must not read as a connection of the array as a whole.
void leave_bidirs_to_slices(GNL_GENERATOR & array);

} // namespace gnl_detail
