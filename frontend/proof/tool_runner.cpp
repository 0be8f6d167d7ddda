#include "tool_runner.h"

#include <array>
#include <cstdio>
#include <sys/wait.h>

namespace lbx_proof {

tool_result run_tool(std::string const & command)
{
    tool_result result;
    FILE * const pipe = popen(("(" + command + ") 2>&1 </dev/null").c_str(), "r");
    if (!pipe)
        return result;
    std::array<char, 4096> buffer{};
    while (auto const count = std::fread(buffer.data(), 1, buffer.size(), pipe))
        result.text.append(buffer.data(), count);
    int const ended = pclose(pipe);
    result.status = WIFEXITED(ended) ? WEXITSTATUS(ended) : 128;
    return result;
}

bool is_installed(std::string const & tool)
{
    return run_tool("command -v " + quoted(tool)).succeeded();
}

std::string quoted(std::string const & text)
{
    std::string word = "'";
    for (char const c : text)
        if (c == '\'')
            word += "'\\''";
        else
            word += c;
    return word + "'";
}

} // namespace lbx_proof
