#pragma once

// Reads generated QHDL designs, checks them and writes them in Verilog, so that tools can judge them. What is not known
// or not right is an error: an undeclared name, a bus without "[]", widths that don't fit, a bit that is driven twice
// or read without being driven, an instance without all its inputs.

#include "qhdl/qhdl_parser.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace qhdl {

/// A set of designs that instantiate each other.
///
///     reader designs;
///     designs.add_folder(".");
///     std::ofstream("all.v") << designs.verilog();
class reader
{
public:
    /// `file` is "name.tdf"; the design in it must have that name.
    void add(std::string const & file, std::string_view text);
    /// All ".tdf" files of a folder; they must be complete and without errors.
    void add_folder(std::filesystem::path const & folder);
    /// A cell that designs may instantiate and that a module from elsewhere describes:
    /// "FUNCTION cell (a[3..0], ena) WITH (DEPTH) RETURNS (q);". Its inputs may stay open.
    void add_cell(std::string_view function);

    /// One module for each design, in the order of their names.
    std::string verilog() const;

private:
    std::map<std::string, design> m_designs;        ///< by folded name
    std::map<std::string, function_header> m_cells; ///< by folded name
};

/// The Verilog module of one design. `functions` are those that it may instantiate, by folded name.
std::string verilog_module(design const & translated, std::map<std::string, function_header const *> const & functions);

} // namespace qhdl
