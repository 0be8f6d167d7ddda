#include "equivalence_proof.h"

#include "aiger_file.h"
#include "tool_runner.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <iterator>
#include <map>

namespace lbx_proof {

namespace fs = std::filesystem;

namespace {

std::string first_line(std::string const & text)
{
    return text.substr(0, text.find('\n'));
}

/// The first line that tells an error, else the first of all.
std::string complaint(std::string const & text)
{
    for (std::string const sign : {"ERROR", "error", "Error"})
        if (std::size_t const at = text.find(sign); at != std::string::npos) {
            std::size_t const begin = text.rfind('\n', at);
            return first_line(text.substr(begin == std::string::npos ? 0 : begin + 1));
        }
    return first_line(text);
}

/// The name that both languages can agree on: words that VHDL reserves stand there with "a_" in front.
std::string common_name(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) { return std::tolower(c); });
    static constexpr std::array<char const *, 3> reserved = {"in", "out", "abs"};
    bool const is_reserved = std::find(reserved.begin(), reserved.end(), name) != reserved.end();
    return is_reserved ? "a_" + name : name;
}

/// GHDL 2 writes the digits of a constant of more than 32 bits as a string, which Verilog takes for letters.
std::string with_wide_constants(std::string const & verilog)
{
    std::string text;
    std::size_t at = 0;
    for (std::size_t quote = verilog.find('"'); quote != std::string::npos; quote = verilog.find('"', at)) {
        std::size_t const end = verilog.find('"', quote + 1);
        if (end == std::string::npos)
            break;
        std::string const digits = verilog.substr(quote + 1, end - quote - 1);
        bool const is_constant = !digits.empty() && digits.find_first_not_of("01xzXZ") == std::string::npos;
        text += verilog.substr(at, quote - at);
        text += is_constant ? std::to_string(digits.size()) + "'b" + digits : '"' + digits + '"';
        at = end + 1;
    }
    return text + verilog.substr(std::min(at, verilog.size()));
}

std::string file_text(fs::path const & file)
{
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// One design on its way to an and-inverter graph.
class graph
{
public:
    graph(design_text const & design, fs::path const & stem)
        : m_design(design)
        , m_stem(stem)
    {
    }

    /// Verilog files of the design; VHDL goes through GHDL.
    void make_verilog()
    {
        if (m_design.written_in == design_text::language::verilog) {
            m_verilog = m_design.files;
            return;
        }
        fs::path const work = m_stem.string() + "_work";
        fs::create_directories(work);
        std::string const options = " --std=93c --workdir=" + quoted(work.string()) + " ";
        std::string analyse = "ghdl -a" + options;
        for (fs::path const & file : m_design.files)
            analyse += quoted(file.string()) + " ";
        tool_result result = run_tool(analyse);
        fs::path const verilog = m_stem.string() + "_synthesised.v";
        if (result.succeeded())
            result = run_tool("ghdl synth" + options + "--out=verilog " + quoted(m_design.top) + " >"
                              + quoted(verilog.string()));
        if (result.succeeded()) {
            std::string const text = with_wide_constants(file_text(verilog));
            std::ofstream(verilog, std::ios::binary) << text;
            m_verilog = {verilog};
        } else
            m_complaint = "GHDL: " + complaint(result.text);
        fs::remove_all(work);
    }

    std::string script() const
    {
        std::string text = "design -reset\n";
        for (fs::path const & file : m_verilog)
            text += "read_verilog \"" + file.string() + "\"\n";
        return text + "hierarchy -check -top " + m_design.top + "\nproc\nflatten\nopt_clean\n"
               + "simplemap\naigmap\nopt_clean\nwrite_aiger -symbols \"" + file().string() + "\"\n";
    }

    /// Takes the graph that a run of the script made.
    bool load()
    {
        if (!m_names.read(file()))
            return false;
        m_names.rename_ports(common_name);
        return m_loaded = m_names.write();
    }

    void load_alone()
    {
        fs::path const script_file = m_stem.string() + ".ys";
        std::ofstream(script_file) << script();
        tool_result const result = run_tool("yosys -q -s " + quoted(script_file.string()));
        if (!result.succeeded() || !load())
            m_complaint = "Yosys: " + complaint(result.text);
    }

    bool is_waiting() const { return !m_verilog.empty() && !m_loaded; }
    bool is_loaded() const { return m_loaded; }
    std::string const & problem() const { return m_complaint; }
    std::vector<std::string> ports() const { return m_names.ports(); }
    fs::path file() const { return m_stem.string() + ".aig"; }

private:
    design_text const & m_design;
    fs::path m_stem;
    std::vector<fs::path> m_verilog;
    std::string m_complaint;
    aiger_file m_names;
    bool m_loaded = false;
};

/// All graphs by one run of Yosys; where it stops, each that is left in a run of its own.
void make_graphs(std::vector<graph> & graphs, fs::path const & folder)
{
    std::string script;
    for (graph & made : graphs) {
        made.make_verilog();
        if (made.is_waiting())
            script += made.script();
    }
    fs::path const script_file = folder / "all.ys";
    std::ofstream(script_file) << script;
    run_tool("yosys -q -s " + quoted(script_file.string()));
    for (graph & made : graphs)
        if (made.is_waiting() && !made.load())
            made.load_alone();
}

std::string differing_ports(graph const & first, graph const & second)
{
    auto const a = first.ports(), b = second.ports();
    std::vector<std::string> only;
    std::set_symmetric_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(only));
    std::string text = "the ports differ:";
    for (std::string const & port : only)
        text += " " + port + ";";
    text.pop_back();
    return text;
}

std::string marker(std::size_t index)
{
    return "question " + std::to_string(index) + " ";
}

answer answer_of(std::string const & text)
{
    if (text.find("Networks are equivalent") != std::string::npos)
        return {verdict::equal, {}};
    std::size_t const at = text.find("Networks are NOT EQUIVALENT");
    if (at == std::string::npos)
        return {verdict::unknown, "the checker says: " + first_line(text)};
    std::string reason = text.substr(at);
    std::replace(reason.begin(), reason.end(), '\n', ' ');
    return {verdict::different, reason};
}

/// Compares graphs whose ports are the same.
void compare_graphs(std::vector<answer> & answers, std::vector<std::size_t> const & asked,
                    std::vector<graph> const & graphs, fs::path const & folder)
{
    std::string script;
    for (std::size_t const i : asked)
        script += "echo " + marker(i) + "\ncec " + graphs[2 * i].file().string() + " "
                  + graphs[2 * i + 1].file().string() + "\n";
    fs::path const script_file = folder / "all.abc";
    std::ofstream(script_file) << script;
    std::string const text = run_tool("yosys-abc -f " + quoted(script_file.string())).text;
    for (std::size_t const i : asked) {
        std::size_t const begin = text.find("\n" + marker(i));
        std::size_t const end = text.find("\nquestion ", begin == std::string::npos ? begin : begin + 1);
        answers[i] = answer_of(begin == std::string::npos ? text : text.substr(begin, end - begin));
    }
}

} // namespace

std::vector<std::string> missing_tools()
{
    std::vector<std::string> missing;
    for (char const * const tool : {"ghdl", "yosys", "yosys-abc"})
        if (!is_installed(tool))
            missing.emplace_back(tool);
    return missing;
}

std::vector<answer> prove_equal(std::vector<question> const & questions, fs::path const & folder)
{
    std::vector<graph> graphs;
    for (std::size_t i = 0; i < questions.size(); ++i) {
        graphs.emplace_back(questions[i].first, folder / ("design" + std::to_string(i) + "a"));
        graphs.emplace_back(questions[i].second, folder / ("design" + std::to_string(i) + "b"));
    }
    make_graphs(graphs, folder);
    std::vector<answer> answers(questions.size());
    std::vector<std::size_t> asked;
    for (std::size_t i = 0; i < questions.size(); ++i) {
        graph const & first = graphs[2 * i];
        graph const & second = graphs[2 * i + 1];
        if (!first.is_loaded() || !second.is_loaded())
            answers[i] = {verdict::unknown, first.is_loaded() ? second.problem() : first.problem()};
        else if (first.ports() != second.ports())
            answers[i] = {verdict::different, differing_ports(first, second)};
        else
            asked.push_back(i);
    }
    compare_graphs(answers, asked, graphs, folder);
    return answers;
}

} // namespace lbx_proof
