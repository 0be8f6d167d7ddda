#include "gnl_port_concat.h"

#include "description_writer.h"
#include "gnl_generator.h"
#include "gnl_port_range.h"
#include "port_messages.h"
#include "qhdl_nodes.h"
#include "range_base.h"
#include "reference_text.h"
#include "saturated.h"

#include "lbx/gnl/writers/list_separator.h"

using gnl_detail::description_writer;
using gnl_detail::list_separator;
using gnl_detail::port_message;
using gnl_detail::report;
using gnl_detail::saturated;

namespace {

std::string text_of(int value)
{
    return GNL_ELEMENT::convert_int_to_string(value);
}

bool is_constant_like(GNL_PORT & port, GNL_PORT & other)
{
    return port.is_driven_by_constant() && other.is_driven_by_constant()
           && port.constant_driving_value() == other.constant_driving_value();
}

/// What the bits without a driver of `target` read; "" without a default.
std::string default_bits(GNL_PORT * target, int count)
{
    if (!target || target->get_default_value() == -1 || (!target->is_input() && !target->is_wire()))
        return {};
    if (GNL_ELEMENT::is_verilog())
        return "{" + text_of(count) + "{1'b" + text_of(target->get_default_value()) + "}}";
    std::string const bits = target->is_wire()
                                 ? static_cast<GNL_WIRE *>(target)->get_default_value_as_string(count)
                                 : static_cast<GNL_PORT_INPUT *>(target)->get_default_value_as_string(count);
    return GNL_ELEMENT::is_vhdl() ? "\"" + bits + "\"" : bits;
}

/// Writes a concatenation from the highest bits down. Neighbours that the language can show as one are taken together.
class concat_describer
{
public:
    concat_describer(GNL_PORT_CONCAT & concat, description_writer & writer, GNL_GENERATOR * level, bool with_index,
                     GNL_PORT * target)
        : m_concat(concat)
        , m_writer(writer)
        , m_level(level)
        , m_target(target)
        , m_with_index(with_index)
    {
    }

    void describe()
    {
        int position = m_concat.get_bus_width();
        int const count = m_concat.get_element_count();
        m_writer.word(GNL_ELEMENT::is_verilog() ? "{" : "( ");
        for (int first = 0; first < count;) {
            GNL_SUBCONCAT run = element(first);
            GNL_SUBCONCAT last = run;
            int end = first + 1;
            for (; end < count && continues(last, element(end)); ++end)
                last = element(end);
            run.low_index = last.low_index;
            if (run.high_index != position - 1)
                hole(position - 1, run.high_index, position - run.high_index - 1);
            bool const alone = end - first == count && !m_list.started() && run.low_index == 0;
            separate();
            if (GNL_ELEMENT::is_verilog())
                repeated(run, alone);
            else if (end - first > 1)
                slices(run, last);
            else
                listed(run, alone);
            position = run.low_index;
            first = end;
        }
        if (position != 0)
            hole(position - 1, 0, position);
        m_writer.word(GNL_ELEMENT::is_verilog() ? "}" : ")");
    }

private:
    GNL_SUBCONCAT const & element(int index) const { return *m_concat.get_concat_element(index); }

    bool continues(GNL_SUBCONCAT const & upper, GNL_SUBCONCAT const & lower) const
    {
        if (GNL_ELEMENT::is_vhdl() || upper.low_index - 1 != lower.high_index)
            return false;
        if (GNL_ELEMENT::is_verilog())
            return upper.port == lower.port || is_constant_like(*upper.port, *lower.port);
        return are_neighbouring_slices(*upper.port, *lower.port);
    }

    /// Whether QHDL can show both through one subscript of their array.
    bool are_neighbouring_slices(GNL_PORT & upper, GNL_PORT & lower) const
    {
        GNL_GENERATOR const * const one = upper.get_parent();
        GNL_GENERATOR const * const next = lower.get_parent();
        return one && next && one->get_slice_index() > 0 && one->get_slice_index() - 1 == next->get_slice_index()
               && one->get_array_parent() && one->get_array_parent() == next->get_array_parent() && one != m_level
               && next != m_level && upper.get_width() == lower.get_width() && has_instance_reference(upper)
               && has_instance_reference(lower) && GNL_PORT::check_port_equivalence_across_hierarchies(&upper, &lower);
    }

    /// Signals of their own stand beside some instances, and have no subscript.
    bool has_instance_reference(GNL_PORT & port) const
    {
        GNL_PORT * const base = gnl_detail::base_port(&port);
        return base && !gnl_detail::has_bidir_node(*base, m_level) && !gnl_detail::has_output_node(*base);
    }

    /// Bits `high` down to `low` have no driver. The message is posted when its place in the text is reached: only then
    /// is it known that nothing more will be assigned.
    void hole(int high, int low, int count)
    {
        if (std::string const bits = default_bits(m_target, count); !bits.empty()) {
            separate();
            m_writer.text(bits);
            return;
        }
        m_writer.call([&concat = m_concat, target = m_target, high, low](std::ostream &) {
            if (!concat.get_parent())
                return;
            if (target)
                report<port_message::port_bits_unassigned>(*concat.get_parent(), target->get_hierarchical_name(), high,
                                                           low);
            else
                report<port_message::concat_bits_unassigned>(*concat.get_parent(), concat.get_hierarchical_name(), high,
                                                             low);
        });
    }

    void separate() { m_writer.word(m_list.next()); }

    static int times_of(GNL_SUBCONCAT const & run)
    {
        long long const bits = static_cast<long long>(run.high_index) - run.low_index + 1;
        return saturated(bits / run.port->get_bus_width());
    }

    /// Verilog repeats a port that is narrower than its bits. The repetition is a concatenation, which needs braces of
    /// its own unless it stands alone in the whole one.
    void repeated(GNL_SUBCONCAT const & run, bool alone)
    {
        int const times = times_of(run);
        if (times > 1)
            m_writer.text((alone ? "" : "{") + text_of(times) + "{");
        reference(*run.port, m_level);
        if (times > 1)
            m_writer.word(alone ? "}" : "}}");
    }

    /// The other languages have no repetition: a port that is narrower than its bits is listed as often as it fits. One
    /// that is alone is repeated by whoever reads the whole.
    void listed(GNL_SUBCONCAT const & run, bool alone)
    {
        reference(*run.port, m_level);
        for (int i = alone ? 1 : times_of(run); i > 1; --i) {
            separate();
            reference(*run.port, m_level);
        }
    }

    /// The same port of neighbouring slices, as seen from within one of them behind a subscript of the array.
    void slices(GNL_SUBCONCAT const & run, GNL_SUBCONCAT const & last)
    {
        GNL_GENERATOR * const parent = run.port->get_parent();
        m_writer.text(run.port->get_parent_instance_name() + "[" + text_of(parent->get_slice_index()) + ".."
                      + text_of(last.port->get_parent()->get_slice_index()) + "].");
        reference(*run.port, parent);
    }

    void reference(GNL_PORT & port, GNL_GENERATOR * level) { m_writer.port(port, level, m_with_index, m_target); }

    GNL_PORT_CONCAT & m_concat;
    description_writer & m_writer;
    GNL_GENERATOR * m_level;
    GNL_PORT * m_target;
    bool m_with_index;
    list_separator m_list{"", GNL_ELEMENT::is_vhdl() ? " & " : ", "};
};

} // namespace

void GNL_PORT_CONCAT::describe(description_writer & writer, GNL_GENERATOR * level, bool with_index, GNL_PORT * target)
{
    concat_describer(*this, writer, level, with_index, target).describe();
}

void GNL_PORT_CONCAT::dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index,
                                            GNL_PORT * target)
{
    description_writer(out).run(*this, level, with_index, target);
}
