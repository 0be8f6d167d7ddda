#include "commands.h"

#include "equivalence_proof.h"
#include "messages.h"
#include "parameter_values.h"
#include "plugin_catalogue.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <ostream>
#include <sstream>
#include <system_error>
#include <unistd.h>

#include <nlohmann/json.hpp>

namespace lbxgen {

namespace fs = std::filesystem;

namespace {

/// A folder for files that nobody keeps.
class temporary_folder
{
public:
    temporary_folder()
    {
        auto pattern = (fs::temp_directory_path() / "lbxgen-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::system_error(errno, std::generic_category(), pattern);
        m_path = pattern;
    }
    ~temporary_folder()
    {
        std::error_code failed;
        fs::remove_all(m_path, failed);
    }
    temporary_folder(temporary_folder const &) = delete;
    temporary_folder & operator=(temporary_folder const &) = delete;

    fs::path const & path() const { return m_path; }

private:
    fs::path m_path;
};

struct written_language
{
    char const * option; ///< value of LBX_HDL_LANGUAGE
    char const * suffix;
};
constexpr written_language verilog{"Verilog", ".v"};
constexpr written_language vhdl{"VHDL", ".vhd"};
constexpr written_language qhdl{"QHDL", ".tdf"};

/// One design, written and proven.
class design_check
{
public:
    design_check(plugin_catalogue const & catalogue, request const & wanted, output const & out)
        : m_catalogue(catalogue)
        , m_wanted(wanted)
        , m_out(out)
    {
    }

    int run()
    {
        for (auto const & language : {verilog, vhdl, qhdl})
            if (int const result = write(language); result != fine)
                return result;
        std::string const written = "Verilog, VHDL and QHDL are written";
        if (m_has_bidirectional_ports)
            return conclude(not_supported, written + ", not proven: it has bidirectional ports");
        if (auto const missing = lbx_proof::missing_tools(); !missing.empty())
            return conclude(not_supported, written + ", not proven: " + listed(missing));
        return prove();
    }

private:
    fs::path file(written_language const & language) const { return m_folder.path() / (m_top + language.suffix); }

    /// Children go to the file of their design, so that one file is the whole design.
    int write(written_language const & language)
    {
        auto const top = m_catalogue.find(m_wanted.generator).make("");
        std::vector<parameter_value> values{{"LBX_HDL_LANGUAGE", language.option},
                                            {"LBX_OUTPUT_DIRECTORY", m_folder.path().string()},
                                            {"LBX_FILE", m_top + language.suffix},
                                            {"LBX_SINGLE_OUTPUT_FILE", "ON"}};
        for (auto const & text : m_wanted.parameters)
            values.push_back(parse_parameter_value(text));
        assign_values(*top, values);
        use_all_inputs(*top);
        std::ostringstream nowhere;
        top->generate_subdesign(nowhere);
        for (auto const & message : messages_of(*top))
            if (language.suffix == verilog.suffix || top->generator_result() != fine)
                print_message(m_out.messages, message, m_out.coloured);
        note_bidirectional_ports(*top);
        return top->generator_result();
    }

    void note_bidirectional_ports(GNL_GENERATOR & top)
    {
        std::map<std::string, GNL_PORT *, LESS_C_STRING> ports;
        top.get_port_objects(ports);
        for (auto const & entry : ports)
            m_has_bidirectional_ports = m_has_bidirectional_ports || entry.second->is_bidir();
    }

    static std::string listed(std::vector<std::string> const & tools)
    {
        std::string text;
        for (auto const & tool : tools)
            text += (text.empty() ? "" : ", ") + tool;
        return text + (tools.size() == 1 ? " is not installed" : " are not installed");
    }

    int prove()
    {
        using language = lbx_proof::design_text::language;
        auto const answers = lbx_proof::prove_equal(
            {{m_top, {language::verilog, {file(verilog)}, m_top}, {language::vhdl, {file(vhdl)}, m_top}}},
            m_folder.path());
        switch (answers.front().found) {
        case lbx_proof::verdict::equal:
            return conclude(fine, "Verilog and VHDL are proven equal; QHDL is written");
        case lbx_proof::verdict::different:
            return conclude(errors, "Verilog and VHDL differ: " + answers.front().reason);
        default:
            return conclude(errors, "not proven: " + answers.front().reason);
        }
    }

    int conclude(int status, std::string const & text) const
    {
        if (m_out.json)
            m_out.results << nlohmann::ordered_json{{"result", status}, {"text", text}}.dump(2) << "\n";
        else
            m_out.results << m_wanted.generator << ": " << text << "\n";
        return status;
    }

    plugin_catalogue const & m_catalogue;
    request const & m_wanted;
    output const & m_out;
    temporary_folder m_folder;
    std::string const m_top = "checked_design";
    bool m_has_bidirectional_ports = false;
};

} // namespace

int check(plugin_catalogue const & catalogue, request const & wanted, output const & out)
{
    return design_check(catalogue, wanted, out).run();
}

} // namespace lbxgen
