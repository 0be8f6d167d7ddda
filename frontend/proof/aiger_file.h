#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace lbx_proof {

/// The names of the inputs and outputs in a binary AIGER file, a bit each: "a[3]".
///
/// The format is that of A. Biere, "The AIGER And-Inverter Graph (AIG) Format": a header line, the outputs' literals in
/// a line each, two numbers of 7 bits a byte for each gate, and then a line for each name.
class aiger_file
{
public:
    /// Reads `file`. False for a file that is not there or no combinational graph.
    bool read(std::filesystem::path const & file);
    /// Replaces each name, without its subscript, by what `rename` makes of it, and writes the file again.
    void rename_ports(std::function<std::string(std::string const &)> const & rename);
    bool write() const;
    /// Names of inputs and outputs in alphabetical order, with "input " or "output " in front.
    std::vector<std::string> ports() const;

private:
    bool find_names(std::size_t outputs, std::size_t gates, std::size_t at);

    std::filesystem::path m_file;
    std::string m_graph;              ///< all before the names
    std::vector<std::string> m_names; ///< "i0 a[0]"
};

} // namespace lbx_proof
