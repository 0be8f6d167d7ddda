#pragma once

#include <string>

namespace lbx_proof {

/// How a command ended, and what it wrote to standard output and standard error together.
struct tool_result
{
    int status = -1;
    std::string text;
    bool succeeded() const { return status == 0; }
};

tool_result run_tool(std::string const & command);
bool is_installed(std::string const & tool);
/// `text` as one word of a shell command.
std::string quoted(std::string const & text);

} // namespace lbx_proof
