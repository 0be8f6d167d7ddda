#pragma once

#include "gnl_generator.h"

#include <utility>
#include <vector>

namespace gnl_detail {

/// The declared width of a port of one slice: bits in all its rows, 0 for a scalar.
int declared_slice_width(GNL_PORT const & port);

/// While it lives, the ports of an array have the width of one slice: the common design of an array is the design of
/// one slice, and its body must read the widths that it would read without an array.
class one_slice_widths
{
public:
    explicit one_slice_widths(GNL_GENERATOR & generator);
    ~one_slice_widths();
    one_slice_widths(one_slice_widths const &) = delete;
    one_slice_widths & operator=(one_slice_widths const &) = delete;

private:
    std::vector<std::pair<GNL_PORT *, int>> m_whole_widths;
};

} // namespace gnl_detail
