// What was connected slice by slice moves up to the wide ports of an array before the design above is written.

#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"

using namespace gnl_detail;

class GNL_GENERATOR::slice_grouping
{
public:
    slice_grouping(GNL_GENERATOR & master, GNL_GENERATOR & level)
        : m_master(master)
        , m_level(level)
    {
    }

    void run()
    {
        for (auto & port : m_master.registry().ports()) {
            if (!port.is_input())
                continue;
            if (port.get_connection_level() == &m_level && port.is_used())
                move_up(port);
            else if (can_be_connected_whole(port)) {
                move_up(port);
                port.set_used();
                port.set_connection_level(&m_level);
            }
        }
    }

private:
    bool can_be_connected_whole(GNL_PORT & port);
    void move_up(GNL_PORT & port);
    void move_up(GNL_PORT & port, GNL_PORT & of_slice, int slice);

    GNL_GENERATOR & m_master;
    GNL_GENERATOR & m_level;
};

/// In QHDL a one-bit input is connected on the array if every slice has a source for it.
bool GNL_GENERATOR::slice_grouping::can_be_connected_whole(GNL_PORT & port)
{
    if (!is_qhdl() || port.get_original_width() != 0 || port.get_width_parameter_name() || port.check_is_used_flag()
        || port.get_driver())
        return false;
    for (int i = 0; i < m_master.get_array_width(); ++i) {
        auto * of_slice = m_master.get_port_object_from_slice(i, port.get_name());
        if (!of_slice || !of_slice->is_used() || !(of_slice->get_driver() || of_slice->is_driven_by_constant()))
            return false;
    }
    return true;
}

void GNL_GENERATOR::slice_grouping::move_up(GNL_PORT & port)
{
    for (int i = 0; i < m_master.get_array_width(); ++i)
        if (auto * of_slice = m_master.get_port_object_from_slice(i, port.get_name()))
            move_up(port, *of_slice, i);
}

void GNL_GENERATOR::slice_grouping::move_up(GNL_PORT & port, GNL_PORT & of_slice, int slice)
{
    int const width = of_slice.get_bus_width();
    int const high = (slice + 1) * width - 1;
    int const low = slice * width;
    if (!port.check_port_assignment(low, high))
        return; // moved up before
    if (auto * driver = of_slice.get_driver())
        port.make_connection(*driver, high, low, &m_level, false);
    else if (of_slice.is_driven_by_constant())
        port.make_connection(*of_slice.constant_driving_value_as_mlib_int(), high, low, &m_level, false);
}

void GNL_GENERATOR::group_input_assignments(GNL_GENERATOR * level)
{
    if (level)
        slice_grouping(*this, *level).run();
}

void GNL_GENERATOR::dump_hdl_group_subdesign_slices(GNL_GENERATOR * level)
{
    for (auto * subdesign : registry().subdesigns())
        if (subdesign->get_array_width() >= 1 && subdesign->is_master_array())
            subdesign->group_input_assignments(level);
}
