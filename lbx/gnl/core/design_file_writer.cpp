#include "lbx/gnl/core/design_file_writer.h"

#include "gnl_ofstream.h"
#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/driver_messages.h"
#include "lbx/gnl/core/language_scope.h"
#include "lbx/gnl/core/one_slice_widths.h"
#include "lbx/gnl/core/output_file.h"
#include "lbx/gnl/core/subdesign_names.h"
#include "lbx/gnl/writers/language_text.h"

using namespace gnl_detail;

namespace {

constexpr std::string_view input_version = " synthesis VERILOG_INPUT_VERSION VERILOG_2001\n";
constexpr std::string_view message_switch = " qelvar message_off 10463\n";

void write_verilog_directives(std::ostream & out)
{
    auto const comment = language_text_of(GNL_VERILOG).comment;
    out << comment << input_version << comment << message_switch;
}

} // namespace

GNL_GENERATOR::design_file_writer::design_file_writer(GNL_GENERATOR & generator)
    : m_generator(generator)
    , m_names(generator.get_top_level_parent()->subdesign_names())
{
}

void GNL_GENERATOR::design_file_writer::write_own_file()
{
    bool const append = m_generator.is_append_mode();
    // What a QHDL run appends to its file is the function header alone; the design stands beside it.
    bool const beside = append && is_qhdl();
    bool const appended = append && !beside;
    std::string const path = beside ? beside_others(".tdf") : m_generator.get_file_name();
    GNL_OFSTREAM file;
    if (!open(file, path, appended ? GNL_OFSTREAM::append_mode : GNL_OFSTREAM::output_mode,
              beside ? m_generator.get_entity_name() : path))
        return;
    if (!is_tcl())
        write_own_head(file);
    run_body(file);
    if (!is_tcl())
        write_last_line(file);
    // What others have appended stays when this design turns out not to be supported.
    if (appended && !m_generator.is_supported()) {
        file.discard();
        return;
    }
    close(file, path);
    remove_unwanted_file(path);
}

void GNL_GENERATOR::design_file_writer::write_own_head(std::ostream & out)
{
    write_settings_lines(out);
    if (!m_generator.is_append_mode())
        write_fixed_instance_line(out);
    if (is_verilog() && !m_generator.get_parent()) {
        write_verilog_directives(out);
        out << "\n";
    }
    if (!m_generator.is_append_mode() || is_qhdl())
        out << "\n\n" << m_generator.dump_copyright_header() << "\n\n";
}

void GNL_GENERATOR::design_file_writer::write_to_shared_stream(std::ostream & stream)
{
    bool const external_top = m_generator.uses_external_ostream() && !m_generator.get_parent();
    stream << "\n\n";
    write_settings_lines(stream);
    if (external_top) {
        if (!m_generator.is_append_mode())
            write_fixed_instance_line(stream);
        stream << "\n\n" << m_generator.dump_copyright_header() << "\n\n";
    }
    if (!stream) {
        report<driver_message::no_output_stream>(m_generator, m_generator.get_hierarchical_name());
        return;
    }
    run_body(stream);
    keep_resource_count();
}

void GNL_GENERATOR::design_file_writer::write_side_file(int language)
{
    language_scope const scope(&set_gen_language, language, get_gen_language());
    std::string const ending(current_language_text().extension);
    std::string const path = beside_others(ending);
    GNL_OFSTREAM file;
    if (!open(file, path, GNL_OFSTREAM::output_mode, path))
        return;
    write_side_head(file, language);
    run_body(file);
    write_last_line(file);
    close(file, path);
    if (!m_generator.is_append_mode() && !m_generator.get_parent())
        m_generator.set_full_file_name(m_generator.get_entity_name() + ending);
}

void GNL_GENERATOR::design_file_writer::write_side_head(std::ostream & out, int language)
{
    write_settings_lines(out);
    if (!m_generator.is_append_mode())
        write_fixed_instance_line(out);
    out << "\n";
    if (language == GNL_VERILOG || !m_generator.is_append_mode())
        out << m_generator.dump_copyright_header() << "\n";
    if (language == GNL_VERILOG)
        write_verilog_directives(out);
}

void GNL_GENERATOR::design_file_writer::run_body(std::ostream & out)
{
    one_slice_widths const widths(m_generator);
    m_generator.set_in_rtl_body();
    m_generator.m_state.assignments_frozen = true;
    try {
        m_generator.rtl_body(out);
    } catch (bool) {
        m_generator.set_out_of_rtl_body();
        m_generator.dump_error_file(out);
    }
}

void GNL_GENERATOR::design_file_writer::write_settings_lines(std::ostream & out)
{
    auto header = m_generator.dump_header(false);
    out << comment_string() << header << "\n" << comment_string() << m_generator.dump_version_header() << "\n";
    m_settings = folded(header);
}

void GNL_GENERATOR::design_file_writer::write_fixed_instance_line(std::ostream & out)
{
    if (m_generator.is_fixed_prefix_mode())
        out << comment_string() << "LBXI_INSTANCE_NAME=\"" << m_generator.option_value(option_id::instance_name)
            << "\"\n";
}

void GNL_GENERATOR::design_file_writer::write_last_line(std::ostream & out)
{
    out << comment_string() << (m_generator.check_error_flag() ? "ERROR FILE" : "VALID FILE") << "\n";
}

bool GNL_GENERATOR::design_file_writer::open(GNL_OFSTREAM & file, std::string const & path, int mode,
                                             std::string const & reported_name)
{
    file.open(path.c_str(), mode);
    if (!file.is_open() || !file) {
        report<driver_message::file_not_created>(m_generator, reported_name);
        return false;
    }
    auto const & text = current_language_text();
    file.set_char_limit(text.line_limit);
    file.set_comment_char(text.comment_char);
    m_names.file_begun(path);
    return true;
}

void GNL_GENERATOR::design_file_writer::close(GNL_OFSTREAM & file, std::string const & path)
{
    file.close();
    if (!file) {
        m_names.file_removed(path);
        report<driver_message::file_not_created>(m_generator, path);
        return;
    }
    m_names.file_written(path, m_settings);
    keep_resource_count();
}

void GNL_GENERATOR::design_file_writer::remove_unwanted_file(std::string const & path)
{
    bool const written_by_parent = is_qhdl() && m_generator.uses_custom_qhdl_output()
                                   && m_generator.uses_custom_subdesign_insert_mode() && m_generator.get_parent();
    if (m_generator.is_supported() && !written_by_parent)
        return;
    remove_output_file(path);
    m_names.file_removed(path);
}

void GNL_GENERATOR::design_file_writer::keep_resource_count()
{
    if (!m_generator.get_parent() || !m_generator.is_supported())
        return;
    // A later subdesign with the same settings has no body run of its own and counts from this text. Units keep their
    // divisor, so that both count alike.
    std::string text;
    for (auto const & [unit, count] : m_generator.m_state.resource_map)
        text += convert_int_to_string(count) + " " + unit + ";";
    if (!text.empty())
        m_generator.get_top_level_parent()->add_to_subdesign_resc_count_list(m_generator.get_entity_name(), text);
}

std::string GNL_GENERATOR::design_file_writer::beside_others(std::string const & ending)
{
    std::string const directory =
        m_generator.option_is_used(option_id::output_directory) ? m_generator.get_directory_path() : std::string();
    return directory + m_generator.get_entity_name() + ending;
}
