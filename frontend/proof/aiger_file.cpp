#include "aiger_file.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace lbx_proof {

bool aiger_file::read(std::filesystem::path const & file)
{
    m_file = file;
    std::ifstream in(file, std::ios::binary);
    std::ostringstream whole;
    whole << in.rdbuf();
    m_graph = whole.str();
    m_names.clear();
    std::istringstream header(m_graph);
    std::string format;
    std::size_t all = 0, inputs = 0, latches = 0, outputs = 0, gates = 0;
    if (!(header >> format >> all >> inputs >> latches >> outputs >> gates) || format != "aig" || latches != 0)
        return false;
    return find_names(outputs, gates, m_graph.find('\n') + 1);
}

/// Steps over the outputs and the gates; the lines behind them are names, up to one that is a comment.
bool aiger_file::find_names(std::size_t outputs, std::size_t gates, std::size_t at)
{
    for (std::size_t line = 0; line < outputs; ++line) {
        at = m_graph.find('\n', at);
        if (at++ == std::string::npos)
            return false;
    }
    for (std::size_t number = 0; number < 2 * gates; ++number) {
        while (at < m_graph.size() && (m_graph[at] & 0x80) != 0)
            ++at;
        ++at;
    }
    if (at > m_graph.size())
        return false;
    std::istringstream names(m_graph.substr(at));
    for (std::string line; std::getline(names, line) && !line.empty() && (line[0] == 'i' || line[0] == 'o');)
        m_names.push_back(line);
    m_graph.resize(at);
    return true;
}

void aiger_file::rename_ports(std::function<std::string(std::string const &)> const & rename)
{
    for (std::string & line : m_names) {
        std::size_t const begin = line.find(' ') + 1;
        std::size_t const end = std::min(line.find('[', begin), line.size());
        line.replace(begin, end - begin, rename(line.substr(begin, end - begin)));
    }
}

bool aiger_file::write() const
{
    std::ofstream out(m_file, std::ios::binary);
    out << m_graph;
    for (std::string const & line : m_names)
        out << line << '\n';
    return static_cast<bool>(out.flush());
}

std::vector<std::string> aiger_file::ports() const
{
    std::vector<std::string> found;
    for (std::string const & line : m_names)
        found.push_back((line[0] == 'i' ? "input " : "output ") + line.substr(line.find(' ') + 1));
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace lbx_proof
