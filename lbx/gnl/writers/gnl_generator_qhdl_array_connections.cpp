#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/array_slices.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/qhdl_text.h"

// Arrays of which slices are connected one by one. Neighbours that take the same driver share a statement.

namespace gnl_detail {
namespace {

int slice_of(GNL_PORT const & port)
{
    return port.get_parent()->get_slice_index();
}

/// The statements of one input of the slices, from the lowest slice up.
class slice_inputs
{
public:
    slice_inputs(text_sink & text, GNL_GENERATOR & level)
        : m_text(text)
        , m_level(level)
    {
    }

    void write(std::vector<GNL_PORT *> const & ports)
    {
        for (std::size_t first = 0; first < ports.size();) {
            auto & port = *ports[first];
            auto last = first;
            if (!has_constant_at(port, &m_level))
                while (last + 1 < ports.size() && continues(*ports[last], *ports[last + 1]))
                    ++last;
            if (last == first)
                assign_qhdl_sink(m_text, port, m_level);
            else
                assign_run(port, *ports[last]);
            first = last + 1;
        }
    }

private:
    /// A constant has the bits of one slice, so that each slice has its own.
    bool continues(GNL_PORT & port, GNL_PORT & next) const
    {
        auto * driver = driver_at(port, &m_level);
        auto * of_next = driver_at(next, &m_level);
        return driver != nullptr && of_next != nullptr && !has_constant_at(next, &m_level)
               && slice_of(port) + 1 == slice_of(next) && port.get_width() == next.get_width()
               && GNL_PORT::check_port_equality_across_hierarchies(driver, of_next);
    }
    void assign_run(GNL_PORT & lowest, GNL_PORT const & highest)
    {
        auto * driver = usable_driver(lowest, m_level);
        if (driver == nullptr)
            return;
        m_text << "\t";
        static_cast<GNL_PORT_INPUT &>(lowest).dump_port_description(m_text.stream(), &m_level, false,
                                                                    slice_of(highest));
        m_text << " = ";
        driver->dump_port_description(m_text.stream(), &m_level, false, &lowest);
        m_text << ";\n";
    }

    text_sink & m_text;
    GNL_GENERATOR & m_level;
};

} // namespace

void connect_qhdl_slices(text_sink & text, std::vector<GNL_PORT *> const & of_slices, GNL_GENERATOR & level)
{
    std::vector<GNL_PORT *> inputs;
    for (auto * port : of_slices) {
        if (!port->check_is_used_flag())
            continue;
        if (port->is_input())
            inputs.push_back(port);
        else
            connect_qhdl_port(text, *port, level);
    }
    slice_inputs(text, level).write(inputs);
}

void connect_qhdl_heterogeneous_array(std::ostream & out, GNL_GENERATOR & array, GNL_GENERATOR & level)
{
    array_slices const slices(array);
    for (int i = 0; i < array.get_array_width(); ++i)
        if (auto * slice = slices.at(i))
            slice->generate_connections_with_subdesign(out, &level);
    // What was connected on the array is in none of its slices. Custom output of a slice looks it up itself.
    if (array.uses_custom_qhdl_output())
        return;
    text_sink text(out);
    for (GNL_PORT & port : array.registry().ports())
        if (port.check_is_used_flag())
            connect_qhdl_port(text, port, level);
}

} // namespace gnl_detail
