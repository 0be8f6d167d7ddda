// The comment lines at the top of each file: they record by what and with which settings it was made, and a later run
// compares them with its own.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/option_set.h"

#include "ccl_ver.h"

#include <array>

using namespace gnl_detail;

/// The line of settings: a deterministic function of the parameter values and the used ports.
class GNL_GENERATOR::header_line
{
public:
    header_line(GNL_GENERATOR & generator, bool for_file)
        : m_generator(generator)
        , m_array(generator.get_slice_index() >= 0 && !generator.is_heterogeneous_element()
                      ? generator.get_array_parent()
                      : nullptr)
        , m_for_file(for_file)
        , m_text(generator.get_name())
    {
    }

    std::string text()
    {
        add_parameters();
        for (auto & array : m_generator.registry().parameter_arrays())
            m_text += array.generate_parameter_array_header_declarations();
        for (auto & port : m_generator.registry().ports())
            add_port(port);
        add_inherited();
        if (auto const options = m_generator.dump_qelvar_internal_options_as_string(); !options.empty())
            m_text += " QELVAR_INTERNAL_OPTIONS=" + options;
        return std::move(m_text);
    }

private:
    /// The options that change what is written, in name order.
    static constexpr std::array hashed_options{option_id::auto_blackbox, option_id::declare_all_connected_ports,
                                               option_id::single_output_file, option_id::structural_netlist};

    void add_parameters();
    void add_parameter(GNL_PARAMETER & parameter);
    void add_integer(GNL_PARAMETER_INTEGER & parameter, GNL_PARAMETER * of_array);
    void add_string(GNL_PARAMETER_STRING & parameter, GNL_PARAMETER * of_array);
    void add_vector(GNL_PARAMETER & parameter, GNL_PARAMETER * of_array);
    void add_port(GNL_PORT & port);
    void add_inherited();
    void add_option(option_id id) { add(row_of(id).name, "=\"", m_generator.option_value(id), "\""); }
    bool takes_part(option_id id);
    /// The value that a slice takes from its array, null for anything but a slice like the others.
    GNL_PARAMETER * parameter_of_array(GNL_PARAMETER const & parameter) const
    {
        return m_array ? m_array->get_parameter_object(parameter.get_name()) : nullptr;
    }
    void add(std::string_view name, std::string_view opener, std::string_view value, std::string_view closer = "")
    {
        m_text += ' ';
        m_text.append(name).append(opener).append(value).append(closer);
    }

    GNL_GENERATOR & m_generator;
    GNL_GENERATOR * const m_array; ///< of a slice that is alike
    bool const m_for_file;
    std::string m_text;
};

bool GNL_GENERATOR::header_line::takes_part(option_id id)
{
    auto const * const object = m_generator.m_options ? m_generator.m_options->find(id) : nullptr;
    return (!object || object->is_used_for_hash()) && m_generator.option_is_used(id);
}

void GNL_GENERATOR::header_line::add_parameters()
{
    auto option = hashed_options.begin();
    auto const add_options_before = [&](std::string const * name) {
        for (; option != hashed_options.end() && (!name || LESS_C_STRING()(row_of(*option).name, *name)); ++option)
            if (takes_part(*option))
                add_option(*option);
    };
    for (auto * parameter : m_generator.registry().declared_parameters()) {
        add_options_before(&parameter->get_name());
        if (parameter->is_used_for_hash())
            add_parameter(*parameter);
    }
    add_options_before(nullptr);
}

void GNL_GENERATOR::header_line::add_parameter(GNL_PARAMETER & parameter)
{
    GNL_PARAMETER * of_array = nullptr;
    if (!parameter.is_used()) {
        of_array = parameter_of_array(parameter);
        if (!of_array || !of_array->is_used())
            return;
    }
    if (parameter.is_vector_parameter())
        add_vector(parameter, of_array);
    else if (parameter.is_integer_parameter())
        add_integer(static_cast<GNL_PARAMETER_INTEGER &>(parameter), of_array);
    else if (parameter.is_string_parameter())
        add_string(static_cast<GNL_PARAMETER_STRING &>(parameter), of_array);
}

void GNL_GENERATOR::header_line::add_integer(GNL_PARAMETER_INTEGER & parameter, GNL_PARAMETER * of_array)
{
    auto & source =
        of_array && of_array->is_integer_parameter() ? static_cast<GNL_PARAMETER_INTEGER &>(*of_array) : parameter;
    // An expression has its value in the written design alone.
    bool const expects_value = !source.uses_expr_assignment();
    add(parameter.get_name(), "=", convert_int_to_string(source.get_internal_value(expects_value)));
}

void GNL_GENERATOR::header_line::add_string(GNL_PARAMETER_STRING & parameter, GNL_PARAMETER * of_array)
{
    if (of_array && of_array->is_string_parameter()) {
        add(parameter.get_name(), "=", static_cast<GNL_PARAMETER_STRING &>(*of_array).get_internal_value(true));
        return;
    }
    auto value = parameter.get_internal_value(!parameter.uses_expr_assignment());
    if (m_for_file && equal_folded(parameter.get_name(), "DEVICE_FAMILY"))
        value = m_generator.get_device_info()->get_translated_device_family_name(value);
    add(parameter.get_name(), "=\"", value, "\"");
}

void GNL_GENERATOR::header_line::add_vector(GNL_PARAMETER & parameter, GNL_PARAMETER * of_array)
{
    auto & source = of_array && of_array->is_vector_parameter() ? *of_array : parameter;
    add(parameter.get_name(), "=", static_cast<GNL_PARAMETER_VECTOR &>(source).get_value().as_hex_string());
}

void GNL_GENERATOR::header_line::add_port(GNL_PORT & port)
{
    if (!port.is_input() && !port.is_output() && !port.is_bidir())
        return;
    if (port.is_used()) {
        m_text += ' ';
        m_text += port.get_name();
    } else if (port.is_input() && static_cast<GNL_PORT_INPUT &>(port).is_constant_used_port()) {
        int const constant = port.get_default_value();
        add(port.get_name(), "(", constant == 0 ? "gnd" : constant == 1 ? "vcc" : "", ")");
    }
}

void GNL_GENERATOR::header_line::add_inherited()
{
    for (auto const & [name, parameter] : m_generator.inherited_parameters())
        m_text += m_generator.dump_inherited_parameter_header_info(name);
    for (auto const & [name, array] : m_generator.inherited_parameter_arrays())
        if (array)
            m_text += array->generate_parameter_array_header_declarations();
}

std::string GNL_GENERATOR::dump_header(bool for_file)
{
    if (!get_parent()) {
        update_legacy_parameter_values();
        check_all_required_ports_and_parameters();
        customize_declaration_from_parameters();
    }
    return header_line(*this, for_file).text();
}

std::string GNL_GENERATOR::get_declared_parameter_and_port_list()
{
    std::string text;
    for (auto const * parameter : m_registry->declared_parameters())
        if (parameter->is_included_in_declaration())
            text += " " + parameter->get_name();
    for (auto const & port : m_registry->ports())
        if (port.is_input() || port.is_output() || port.is_bidir())
            text += " " + port.get_name();
    return text;
}

namespace {

using version_map = std::map<std::string, std::string, LESS_C_STRING>;

/// Asks the design and all subdesigns below it, without recursion: hierarchies can be deep.
version_map versions_of(GNL_GENERATOR & design)
{
    version_map versions;
    std::vector<GNL_GENERATOR *> waiting{&design};
    while (!waiting.empty()) {
        auto * const next = waiting.back();
        waiting.pop_back();
        next->get_version(versions);
        for (auto * subdesign : next->registry().subdesigns())
            waiting.push_back(subdesign);
    }
    return versions;
}

/// The system's version and those of the modules, each with a blank behind it; "" without any module.
std::string version_fields(GNL_GENERATOR & design)
{
    auto const versions = versions_of(design);
    if (versions.empty())
        return {};
    auto text = ver_get_version();
    if (auto const service_pack = ver_get_service_pack(); !service_pack.empty())
        text += "SP" + service_pack;
    text += " ";
    for (auto const & [name, version] : versions)
        if (name != "_")
            text.append(name).append(" ").append(version).append(" ");
    return text;
}

} // namespace

void GNL_GENERATOR::get_version(std::map<std::string, std::string, LESS_C_STRING> &) {}

std::string GNL_GENERATOR::dump_version_header()
{
    auto const fields = version_fields(*this);
    return fields.empty() ? fields : "VERSION_BEGIN " + fields + " VERSION_END";
}

std::string GNL_GENERATOR::get_version_string()
{
    return m_state.version_text = version_fields(*this);
}

std::string GNL_GENERATOR::get_tolvane_version()
{
    m_state.tolvane_version_text =
        "Version " + ver_get_version() + " " + ver_get_build_number_string() + " " + ver_get_build_date();
    return m_state.tolvane_version_text;
}

std::string GNL_GENERATOR::dump_copyright_header()
{
    return std::string(comment_string()) + " " + ver_get_copyright_string() + "\n" + dump_copyright_header_legal_text();
}

namespace {

constexpr std::array<std::string_view, 12> legal_notice{
    "This file was written by a design generator from the settings in its first",
    "line. Running the generator again with other settings replaces it, so changes",
    "that are made here by hand will be lost.",
    "",
    "The text of this file may be used, copied, changed and passed on together with",
    "the design that it belongs to. The terms of the generator itself and of the",
    "library that it is built on are those of their own licenses.",
    "",
    "The file is provided as it is, without warranty of any kind, express or",
    "implied, including the warranties of merchantability and of fitness for a",
    "particular purpose. In no event shall the authors of the generator be liable",
    "for any claim or damage that arises from the use of this file.",
};

} // namespace

std::string GNL_GENERATOR::dump_copyright_header_legal_text()
{
    std::string text;
    for (auto const line : legal_notice)
        text.append(comment_string()).append("  ").append(line).append("\n");
    return text;
}
