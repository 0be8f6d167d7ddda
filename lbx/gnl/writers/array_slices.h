#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"

#include <string>
#include <vector>

namespace gnl_detail {

/// Whether the design of a slice that differs from the others may lack a port: an output that nobody reads, which the
/// design of the others drives.
inline bool slice_may_lack(GNL_PORT const & of_slice)
{
    return of_slice.is_output() && !of_slice.check_is_used_flag();
}

/// The slices of an array by index, looked up once. An array that was never indexed has none, and a slice can be
/// missing when an author's class doesn't make it.
class array_slices
{
public:
    explicit array_slices(GNL_GENERATOR & array)
    {
        if (!array.is_master_array())
            return;
        m_slices.reserve(static_cast<std::size_t>(array.get_array_width()));
        for (int i = 0; i < array.get_array_width(); ++i) {
            auto * slice = array.get_array_slice(i);
            m_slices.push_back(slice == &array ? nullptr : slice);
        }
    }

    GNL_GENERATOR * at(int index) const
    {
        auto const place = static_cast<std::size_t>(index);
        return place < m_slices.size() ? m_slices[place] : nullptr;
    }
    /// The port of that name on the slice, null if there is none.
    GNL_PORT * port(int index, std::string const & name) const
    {
        auto * slice = at(index);
        return slice == nullptr ? nullptr : slice->registry().find_port(name);
    }
    /// The ports of that name on all the slices that have one.
    std::vector<GNL_PORT *> ports(std::string const & name) const
    {
        std::vector<GNL_PORT *> found;
        for (auto * slice : m_slices)
            if (auto * port = slice == nullptr ? nullptr : slice->registry().find_port(name))
                found.push_back(port);
        return found;
    }

private:
    std::vector<GNL_GENERATOR *> m_slices;
};

} // namespace gnl_detail
