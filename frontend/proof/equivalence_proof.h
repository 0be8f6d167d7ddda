#pragma once

// Proves that two texts of one design, in Verilog or VHDL, mean the same, with tools that know nothing of this library:
// GHDL turns VHDL into Verilog, Yosys turns Verilog into an and-inverter graph, and the checker that comes with Yosys
// compares two such graphs.

#include <filesystem>
#include <string>
#include <vector>

namespace lbx_proof {

/// A design of any number of files of one language.
struct design_text
{
    enum class language { verilog, vhdl };
    language written_in = language::verilog;
    std::vector<std::filesystem::path> files; ///< in the order of their use: what is instantiated first
    std::string top;                          ///< name of the top module or entity
};

struct question
{
    std::string name; ///< of the design, for the answer's text
    design_text first;
    design_text second;
};

enum class verdict {
    equal,
    different,
    unknown ///< a tool refused one of the texts
};

struct answer
{
    verdict found = verdict::unknown;
    std::string reason; ///< unless equal: the ports that differ, a counterexample, or the tool's words
};

/// The tools that a proof needs and this machine lacks, by the names of their programs.
std::vector<std::string> missing_tools();

/// Answers all questions, in their order. Combinational designs without bidirectional ports only: others are unknown.
///
/// Ports are compared by name first, without regard to case and as VHDL can spell them. The working files go to
/// `folder`, which must exist. A tool is started once for many designs where it allows that.
std::vector<answer> prove_equal(std::vector<question> const & questions, std::filesystem::path const & folder);

} // namespace lbx_proof
