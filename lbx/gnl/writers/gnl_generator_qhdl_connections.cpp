#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/port_kinds.h"
#include "lbx/gnl/writers/qhdl_text.h"

using namespace gnl_detail;

namespace {

/// The statements of a design's own signals.
class signal_statements
{
public:
    signal_statements(GNL_GENERATOR & design, std::ostream & out)
        : m_design(design)
        , m_text(out)
    {
    }

    void write()
    {
        for (GNL_PORT & port : m_design.registry().ports()) {
            if (auto * input = as_input(port))
                assign_input(*input);
            else if (auto * wire = as_wire(port))
                assign_wire(*wire);
            else if (auto * output = as_output(port))
                assign(*output, output->is_used());
            else if (port.is_bidir())
                assign_qhdl_sink(m_text, port, m_design);
        }
    }

private:
    void assign_input(GNL_PORT_INPUT & input)
    {
        if (is_default_signal(input))
            assign_default(input);
        else if (input.is_constant_used_port())
            assign_constant_node(input);
    }
    /// An input that is held at a constant from outside is read by its name; the node beside it is for the tool.
    void assign_constant_node(GNL_PORT_INPUT & input)
    {
        m_text << "\tconst_node_";
        input.dump_port_description(m_text.stream(), &m_design, false, nullptr);
        m_text << " = ";
        input.dump_port_description(m_text.stream(), &m_design, false, nullptr);
        m_text << ";\n";
    }
    void assign_wire(GNL_WIRE & wire)
    {
        if (wire.declare_port())
            assign(wire, true);
    }
    template <class SINK> void assign(SINK & sink, bool may_take_default)
    {
        bool const connected = sink.get_driver() != nullptr || has_constant(sink);
        if (connected)
            assign_qhdl_sink(m_text, sink, m_design);
        else if (may_take_default && sink.get_default_value() != -1)
            assign_default(sink);
    }
    template <class SINK> void assign_default(SINK & sink)
    {
        begin_qhdl_assignment(m_text, sink, m_design) << sink.get_default_value_as_string(sink.get_width()) << ";\n";
    }

    GNL_GENERATOR & m_design;
    text_sink m_text;
};

} // namespace

void GNL_GENERATOR::dump_qhdl_connections(std::ostream & out)
{
    out << "BEGIN \n";
    if (uses_custom_qhdl_output())
        dump_qhdl_custom_output(out, this);
    for (auto * subdesign : m_registry->subdesigns())
        subdesign->generate_connections_with_subdesign(out, this);
    signal_statements(*this, out).write();
    dump_error_messages(out);
    out << "END;\n";
}
