#include "gnl_port.h"

#include "gnl_generator.h"

#include "lbx/gnl/ports/port_messages.h"

using gnl_detail::port_message;
using gnl_detail::report;

void GNL_PORT::check_bidir_validity(GNL_GENERATOR *, bool, GNL_PORT *) {}

void GNL_PORT_BIDIR::check_bidir_validity(GNL_GENERATOR * parent_of_lhs, bool lhs_is_bidir, GNL_PORT * lhs)
{
    static constexpr int unused = 0;
    static constexpr int as_output = 1;
    static constexpr int as_bidir = 2;

    GNL_GENERATOR const * reporter = get_parent() ? get_parent() : parent_of_lhs;
    // Inside its own design a bidir may be read freely.
    if (!reporter || (parent_of_lhs && parent_of_lhs->current_connection_level() == get_parent()))
        return;
    if (!lhs_is_bidir) {
        if (m_bidir_usage == as_bidir)
            report<port_message::bidir_drives_bidir>(*reporter, get_hierarchical_name());
        else
            lock_bidir_port(as_output);
        return;
    }
    if (m_bidir_usage != unused) {
        report<port_message::bidir_in_use>(*reporter, get_hierarchical_name(),
                                           m_bidir_usage == as_bidir ? "bidir" : "other");
        return;
    }
    lock_bidir_port(as_bidir);
    set_driven_bidir_port(lhs);
}
