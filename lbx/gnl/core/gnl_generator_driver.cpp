// The generation driver: from a constructed generator to the last byte written.
//
// `generate_subdesign` settles language, file and entity name, opens the output and calls `rtl_body`, which ends by
// calling `dump_hdl`, which generates the subdesigns before it writes: so a child's file, name and resources exist when
// its parent refers to it.

#include "gnl_generator.h"

#include "gnl_ofstream.h"
#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/design_file_writer.h"
#include "lbx/gnl/core/driver_messages.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/slice_bidirs.h"
#include "lbx/gnl/core/subdesign_names.h"
#include "lbx/gnl/writers/language_text.h"

#include <algorithm>
#include <exception>

using namespace gnl_detail;

/// One call of `generate_subdesign`.
class GNL_GENERATOR::generation_run
{
public:
    generation_run(GNL_GENERATOR & generator, std::ostream & stream)
        : m_generator(generator)
        , m_stream(stream)
        , m_top(generator.get_parent() == nullptr)
    {
    }
    generation_run(generation_run const &) = delete;
    generation_run & operator=(generation_run const &) = delete;
    /// However the run ends, nothing connects any more, and the design above goes on in its own language. A design that
    /// an exception has cut short is none that others could share.
    ~generation_run()
    {
        m_generator.set_out_of_rtl_body();
        if (!m_name.empty() && std::uncaught_exceptions() > m_exceptions)
            m_generator.get_top_level_parent()->remove_from_list_of_subdesigns(m_name);
        if (m_outer_language >= 0)
            set_gen_language(m_outer_language);
    }

    void count();
    void generate();

private:
    void generate_design();
    void generate_primitive();
    void generate_wrapper();
    void settle_language();
    void settle_append_mode();
    void settle_name(bool common_design);
    void move_to_verilog();
    bool may_be_written();
    void write_design();
    void append_function_header();
    void report_primitive_top();
    void count_libraries_of_primitive();

    GNL_GENERATOR & m_generator;
    std::ostream & m_stream;
    bool const m_top;
    int const m_exceptions = std::uncaught_exceptions();
    std::string m_name;          ///< the subdesign's name, if it is new
    int m_outer_language = -1;   ///< the language to return to, -1 if it has not changed
    bool m_checked_free = false; ///< the check for required ports and parameters has found nothing
};

void GNL_GENERATOR::generate_subdesign(std::ostream & stream)
{
    generation_run run(*this, stream);
    if (m_state.resource_count_mode || m_state.simulation_library_mode)
        run.count();
    else
        run.generate();
}

void GNL_GENERATOR::generation_run::count()
{
    // Nothing of a counting run is written in Tcl, whose runs have no subdesigns.
    if (m_top && is_tcl())
        set_gen_language(GNL_QHDL);
    m_generator.check_blackbox_list();
    m_generator.customize_declaration_from_parameters();
    if (m_generator.is_primitive()) {
        if (m_generator.m_state.simulation_library_mode && m_top)
            count_libraries_of_primitive();
        return;
    }
    m_generator.check_all_required_ports_and_parameters();
    if (m_top)
        m_generator.msg_handler().reset_error_count();
    m_generator.set_in_rtl_body();
    try {
        m_generator.rtl_body(m_stream);
    } catch (bool) {
        // The counts stand as they are.
    }
}

void GNL_GENERATOR::generation_run::count_libraries_of_primitive()
{
    auto & text = m_generator.m_state.simulation_library_text;
    for (auto const & [key, library] : m_generator.get_vhdl_library_list())
        text += library.substr(0, library.find('.')) + ";";
}

void GNL_GENERATOR::generation_run::generate()
{
    if (m_top) {
        set_gen_language(GNL_QHDL);
        m_generator.m_subdesign_names.reset();
    }
    m_generator.check_blackbox_list();
    if (m_generator.is_primitive())
        m_generator.set_entity_name(m_generator.get_primitive_name());
    if (m_generator.is_heterogeneous_array())
        for (int i = 0; i < m_generator.get_array_width(); ++i)
            if (auto * slice = m_generator.get_array_slice(i); slice != &m_generator)
                slice->customize_declaration_from_parameters();
    m_generator.customize_declaration_from_parameters();
    if (m_generator.is_primitive())
        generate_primitive();
    else
        generate_design();
}

void GNL_GENERATOR::generation_run::generate_design()
{
    if (m_top)
        settle_language();
    settle_append_mode();
    if (m_top)
        m_generator.msg_handler().reset_error_count();
    bool const common_design = !m_generator.is_master_array() || m_generator.generate_differing_slices(m_stream);
    if (m_top)
        m_generator.update_legacy_parameter_values();
    if (is_qhdl() && (m_generator.is_qhdl_unsupported() || m_generator.is_fixed_prefix_mode()))
        move_to_verilog();
    settle_name(common_design);
    if (common_design && may_be_written())
        write_design();
    if (m_generator.is_master_array())
        leave_bidirs_to_slices(m_generator);
    if (m_top && m_generator.is_append_mode() && is_qhdl() && m_generator.is_supported())
        append_function_header();
}

namespace {

/// Whether `name` ends in `extension`, or in `extension` and one character more.
bool has_extension(std::string_view name, std::string_view extension)
{
    return name.ends_with(extension)
           || (name.size() > extension.size() && name.substr(0, name.size() - 1).ends_with(extension));
}

} // namespace

void GNL_GENERATOR::generation_run::settle_language()
{
    bool const named = m_generator.option_is_used(option_id::file);
    if (!named && !m_generator.option_is_used(option_id::hdl_language))
        return;
    std::string const name = named ? m_generator.get_file_name() : "";
    auto const language = m_generator.option_value(option_id::hdl_language);
    if (has_extension(name, ".vh") || equal_folded(language, "VHDL"))
        set_gen_language(GNL_VHDL);
    else if (has_extension(name, ".v") || equal_folded(language, "Verilog"))
        set_gen_language(GNL_VERILOG);
    else if (name.ends_with(".tcl") || equal_folded(language, "TCL"))
        set_gen_language(GNL_TCL);
    else if (named && !has_extension(name, ".td"))
        report<driver_message::illegal_extension>(m_generator, name);
}

void GNL_GENERATOR::generation_run::settle_append_mode()
{
    if (!m_generator.option_is_used(option_id::file))
        return;
    auto const value = m_generator.option_value(option_id::file);
    if (value.size() < 2 || !equal_folded(std::string_view(value).substr(value.size() - 2), ":a"))
        return;
    m_generator.set_append_mode();
    // ".v:a", or ".vhd:a" and the like: the stem remains, without its folders, as it stands in names.
    std::size_t const ending = is_verilog() ? 4 : 6;
    auto const stem = value.substr(0, value.size() - std::min(ending, value.size()));
    m_generator.set_entity_add_on_name(stem.substr(stem.find_last_of("/\\") + 1));
}

void GNL_GENERATOR::generation_run::move_to_verilog()
{
    // The file of the design above is in QHDL, and stays so.
    if (!m_top)
        m_outer_language = get_gen_language();
    set_gen_language(GNL_VERILOG);
}

void GNL_GENERATOR::generation_run::settle_name(bool common_design)
{
    auto & top = *m_generator.get_top_level_parent();
    int const errors = top.msg_handler().get_error_count();
    bool const off_before = !m_generator.generate_file();
    auto name = m_generator.get_subdesign_name();
    m_checked_free = !m_top && top.msg_handler().get_error_count() == errors;
    m_generator.set_entity_name(name);
    if (m_top)
        m_generator.set_file_name(name + std::string(current_language_text().extension));
    if (m_top || off_before || !m_generator.generate_file())
        return;
    // A name for which nothing is written must not pass for a design that others with these settings can share.
    if (common_design)
        m_name = name;
    else
        top.remove_from_list_of_subdesigns(name);
}

bool GNL_GENERATOR::generation_run::may_be_written()
{
    // A second check would find what the first one has found; it is spared where that was nothing.
    return m_checked_free ? m_generator.generate_file() : m_generator.check_all_required_ports_and_parameters();
}

void GNL_GENERATOR::generation_run::write_design()
{
    auto const & state = m_generator.m_state;
    design_file_writer writer(m_generator);
    bool const one_file = m_generator.generate_single_output_file() || state.append_mode;
    bool const moved = m_outer_language >= 0;
    if (!is_vhdl() && state.true_vhdl_parameter_array)
        writer.write_side_file(GNL_VHDL);
    else if (is_qhdl() && state.qhdl_not_supported)
        writer.write_side_file(GNL_VERILOG);
    else if ((!one_file || is_qhdl() || moved || m_top) && (!state.use_external_ostream || !m_top))
        writer.write_own_file();
    else
        writer.write_to_shared_stream(m_stream);
}

void GNL_GENERATOR::generation_run::append_function_header()
{
    std::string const path = m_generator.get_file_name();
    GNL_OFSTREAM file(path.c_str(), GNL_OFSTREAM::append_mode);
    if (file.is_open() && file) {
        file << "-- Lumenbox generated function header\n";
        m_generator.generate_include_file(file);
        file.close();
        if (file)
            return;
    }
    report<driver_message::file_not_created>(m_generator, path);
}

void GNL_GENERATOR::generation_run::generate_primitive()
{
    m_generator.add_simulation_only_ports_and_parameters();
    if (is_vhdl() && !m_generator.is_vhdl_primitive() && m_generator.option_equals(option_id::vhdl_wrappers, "ON"))
        generate_wrapper();
    if (m_top)
        report_primitive_top();
    if (m_generator.uses_custom_output())
        m_generator.set_need_lumenbox_tag(false);
}

void GNL_GENERATOR::generation_run::generate_wrapper()
{
    bool const common_design = !m_generator.is_master_array() || m_generator.generate_differing_slices(m_stream);
    if (common_design) {
        m_generator.set_entity_name(m_generator.get_subdesign_name());
        if (m_generator.generate_file())
            design_file_writer(m_generator).run_body(m_stream);
    }
    if (m_generator.is_master_array() && m_generator.get_array_width() == 1)
        if (auto name = m_generator.get_array_slice(0)->get_entity_name(); !name.empty())
            m_generator.set_entity_name(name);
}

void GNL_GENERATOR::generation_run::report_primitive_top()
{
    m_generator.msg_handler().reset_error_count();
    auto const & name = m_generator.get_name();
    if (m_generator.is_full_blackbox_mode() && m_generator.mf_has_sim_model()) {
        m_generator.post_info_msg(("Top level generator entity " + name + " is blackboxed.").c_str());
        m_generator.set_not_supported();
    } else {
        report<driver_message::primitive_without_parent>(m_generator, name);
    }
}
