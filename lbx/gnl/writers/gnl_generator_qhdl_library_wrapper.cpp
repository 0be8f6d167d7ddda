#include "gnl_generator.h"

#include "gnl_ofstream.h"
#include "lbx/gnl/core/driver_messages.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/language_scope.h"
#include "lbx/gnl/ports/reference_text.h"
#include "lbx/gnl/writers/qhdl_text.h"

#include <filesystem>

// A file by which tools of others find a library cell under the name of its entity: a design of that name around the
// cell. It asks which of its ports are connected, and connects those alone.

using namespace gnl_detail;

namespace {

bool is_pin(GNL_PORT const & port)
{
    return port.is_input() || port.is_output();
}

/// A bus is as wide as the text says that the port was given for this purpose.
void write_name(text_sink & text, GNL_PORT & port)
{
    text << port.get_name();
    if (shown_width(port) < 1)
        return;
    auto const width = port.get_planb_width();
    text << "[" << width << (width.empty() ? "" : "-1..0") << "]";
}

void connect_if_used(text_sink & text, GNL_PORT & port)
{
    text << "\tIF (USED(" << port.get_name() << ") & " << port.get_name() << "_port_used == \"USED\") GENERATE\n\t\t"
         << (port.is_input() ? "mg." : "");
    write_name(text, port);
    text << " = " << (port.is_input() ? "" : "mg.");
    write_name(text, port);
    text << ";\n\tEND GENERATE;\n";
}

void write_default_of(text_sink & text, GNL_PARAMETER & parameter)
{
    if (parameter.is_string_parameter()) {
        auto const value = static_cast<GNL_PARAMETER_STRING &>(parameter).get_default_value();
        if (!value.empty())
            text << " = \"" << value << "\"";
    } else if (parameter.is_integer_parameter()) {
        int const value = static_cast<GNL_PARAMETER_INTEGER &>(parameter).get_default_value();
        if (value != -1)
            text << " = " << value;
    }
}

void write_library_wrapper(GNL_GENERATOR & cell, std::ostream & out)
{
    auto const entity = cell.get_entity_name();
    out << "-- " << entity
        << "\n-- lumenbox generated header file for use with tolvane when compiling thrid party tools output\n";
    if (cell.generate_include_header())
        out << "include \"" << entity << "\".inc;\n";
    else
        cell.generate_include_file(out);
    cell.dump_qhdl_initial_parameter_section(out);
    cell.dump_qhdl_subdesign_section_for_wysiwyg(out);
    cell.dump_qhdl_variables_section_for_subdesign_wrapper(out);
    cell.dump_qhdl_connections_for_wysiwyg_wrapper(out);
}

} // namespace

void GNL_GENERATOR::dump_qhdl_library_wrapper()
{
    auto const entity = get_entity_name();
    auto const folder = option_is_used(option_id::output_directory) ? get_directory_path() : std::string();
    auto const path = folder + entity + ".tdf";
    std::error_code ignored;
    if (std::filesystem::exists(path, ignored))
        return;
    language_scope const scope(&set_gen_language, GNL_QHDL, get_gen_language());
    GNL_OFSTREAM out(path.c_str(), GNL_OFSTREAM::output_mode);
    if (out.is_open() && out) {
        write_library_wrapper(*this, out);
        out.close();
    }
    if (!out)
        report<driver_message::file_not_created>(*this, path);
}

void GNL_GENERATOR::dump_qhdl_initial_parameter_section(std::ostream & out)
{
    text_sink text(out);
    list_separator list("\nPARAMETERS \n(\n", ",\n");
    for (auto * parameter : m_registry->declared_parameters())
        if (parameter->is_included_in_declaration())
            write_default_of(text << list << "\t" << parameter->get_name(), *parameter);
    for (GNL_PORT const & port : m_registry->ports())
        if (is_pin(port))
            text << list << "\t" << port.get_name() << "_port_used = \"UNUSED\"";
    if (list.started())
        text << "\n);\n";
}

void GNL_GENERATOR::dump_qhdl_subdesign_section_for_wysiwyg(std::ostream & out)
{
    text_sink text(out);
    text << "SUBDESIGN " << get_entity_name() << "\n( \n";
    for (GNL_PORT & port : m_registry->ports())
        if (is_pin(port))
            write_qhdl_declared(text << "\t", port, *this) << (port.is_input() ? "\t:\tinput;\n" : "\t:\toutput;\n");
    text << ") ";
}

void GNL_GENERATOR::dump_qhdl_connections_for_wysiwyg_wrapper(std::ostream & out)
{
    text_sink text(out);
    text << "BEGIN \n";
    for (GNL_PORT & port : m_registry->ports())
        if (is_pin(port))
            connect_if_used(text, port);
    text << "END;";
}
