#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/writers/verilog_text.h"

#include <string_view>

namespace gnl_detail {

/// One instance statement: of a plain subdesign, or of one slice of an array. Ports are connected by name.
///
///     verilog_instance statement(subdesign, text, -1);
///     statement.open(subdesign.get_entity_name());
///     statement.connect(port) << "data";
///     statement.end_connection();
///     statement.close(subdesign);
class verilog_instance
{
public:
    /// `slice_index` is -1 for what is no slice.
    verilog_instance(GNL_GENERATOR & instance, text_sink & text, int slice_index)
        : m_instance(instance)
        , m_text(text)
        , m_slice_index(slice_index)
    {
    }

    void open(std::string_view entity);
    /// Starts a connection; what is written next stands between its parentheses, up to `end_connection`.
    text_sink & connect(GNL_PORT const & port) { return m_text << m_list << "\t." << port.get_name() << "("; }
    void end_connection() { m_text << ")"; }

    /// An output that nobody reads is shown as open, on a cell only.
    void leave_output_open(GNL_PORT const & output);
    /// An input that is left open may be tied off behind the other connections, on a cell only.
    void leave_input_open() { m_has_open_inputs = true; }

    /// Ends the statement. The parameters of a cell follow it, those of `parameters_of`; a design has them built in.
    void close(GNL_GENERATOR & parameters_of);

private:
    GNL_GENERATOR & m_instance;
    text_sink & m_text;
    int m_slice_index;
    list_separator m_list{"", ",\n"};
    bool m_has_open_inputs = false;
};

/// Whether a subdesign's bidirectional port meets its driver, or the port that it drives, without a net of its own.
bool is_special_bidir(GNL_PORT_BIDIR & port, GNL_GENERATOR const & parent);

/// Whether a subdesign's bidirectional port has a net of its own at this level: it acts as an output there, or is held
/// by a constant.
bool has_bidir_net(GNL_PORT_BIDIR & port, GNL_GENERATOR const * parent);

/// Such a port is driven through its net, by an assignment beside the instance.
void assign_bidir_net(assign_sequence & assign, text_sink & text, GNL_GENERATOR & parent, GNL_PORT & port);

/// The instance statements of an array, one for each slice, and the assignments that feed them.
void write_verilog_array(GNL_GENERATOR & array, GNL_GENERATOR & parent, std::ostream & out);

} // namespace gnl_detail
