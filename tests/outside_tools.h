#pragma once

// Outside judges: whether a tool is there, and what a command says.

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <sys/wait.h>

namespace gnl_test {

/// How a command ended, and what it wrote to standard output and standard error together.
struct command_result
{
    int status = -1;
    std::string text;
};

inline command_result run_command(std::string const & command)
{
    command_result result;
    FILE * pipe = popen((command + " 2>&1").c_str(), "r");
    if (!pipe)
        return result;
    std::array<char, 4096> buffer{};
    while (auto const count = std::fread(buffer.data(), 1, buffer.size(), pipe))
        result.text.append(buffer.data(), count);
    int const ended = pclose(pipe);
    result.status = WIFEXITED(ended) ? WEXITSTATUS(ended) : 128;
    return result;
}

inline bool tool_is_there(std::string const & tool)
{
    return run_command("command -v " + tool).status == 0;
}

} // namespace gnl_test

/// Ends the test as skipped, visibly, when an outside tool is missing.
#define SKIP_WITHOUT(TOOL)                                                                                             \
    if (!gnl_test::tool_is_there(TOOL))                                                                                \
    GTEST_SKIP() << (TOOL) << " is not installed"
