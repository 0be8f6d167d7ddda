#pragma once

// Compares everything that a run leaves behind with one golden file, and has a compiler read it.

#include "golden_run.h"
#include "outside_tools.h"

#include <algorithm>

namespace gnl_test {

/// All files below the working folder, by name.
inline std::vector<std::string> files_of_run()
{
    std::vector<std::string> files;
    for (auto const & entry : fs::recursive_directory_iterator("."))
        if (entry.is_regular_file())
            files.push_back(entry.path().lexically_relative(".").string());
    std::sort(files.begin(), files.end());
    return files;
}

/// The files of a run, each behind a line with its name, then what went to the shared stream and what was posted.
inline std::string left_by(design & top, std::string const & shared)
{
    std::string text;
    auto const add = [&](std::string const & name, std::string const & part) {
        text += "//==== " + name + " ====\n" + without_legal_notice(top, part);
    };
    for (auto const & file : files_of_run())
        add(file, file_text(file));
    if (!shared.empty())
        add("the shared stream", shared);
    for (auto const & message : top.messages())
        add("posted", "//" + message + "\n");
    return text;
}

/// Runs `top` and compares all that it leaves with the golden file of the name.
inline ::testing::AssertionResult leaves_golden(design & top, std::string const & golden)
{
    auto const shared = top.run();
    return matches_golden(fs::path(LBX_SOURCE_DIR) / "tests/writers/golden" / golden, left_by(top, shared));
}

/// What a compiler says of the Verilog files below the working folder with `unit` as the top; "" when it is content.
inline std::string complaints_of_compiler(std::string const & unit = "top")
{
    std::string files;
    for (auto const & file : files_of_run())
        if (file.ends_with(".v"))
            files += " " + file;
    auto const result = run_command("iverilog -g2005 -Wall -Wno-timescale -s " + unit + " -o top.vvp" + files);
    std::istringstream lines(result.text);
    std::string rest = result.status == 0 ? "" : "not compiled\n";
    for (std::string line; std::getline(lines, line);)
        if (!line.ends_with("is coerced to inout.")) // an input with a default is declared tri0 or tri1
            rest += line + "\n";
    return rest;
}

} // namespace gnl_test

/// The run leaves the golden file, and a compiler reads its text if there is one.
#define EXPECT_GOLDEN_THAT_COMPILES(TOP, GOLDEN)                                                                       \
    EXPECT_TRUE(gnl_test::leaves_golden(TOP, GOLDEN));                                                                 \
    SKIP_WITHOUT("iverilog");                                                                                          \
    EXPECT_EQ(gnl_test::complaints_of_compiler(), "")
