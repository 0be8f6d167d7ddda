#pragma once

// Runs a design and compares the file that it writes with its golden file.

#include "golden.h"
#include "support.h"

namespace gnl_test {

/// The text with the legal notice, which has tests of its own, in one word.
inline std::string without_legal_notice(design & top, std::string text)
{
    int const language = design::get_gen_language();
    for (int const tried : {GNL_QHDL, GNL_VERILOG}) {
        design::set_gen_language(tried); // the notice stands behind the comment marks of the file
        auto const notice = top.dump_copyright_header();
        if (auto const at = text.find(notice); at != std::string::npos)
            text.replace(at, notice.size(), design::comment_string() + std::string(" (legal notice)\n"));
    }
    design::set_gen_language(language);
    return text;
}

/// Runs `top` and compares `written`, one of the files of the run, with the golden file of the name.
inline ::testing::AssertionResult writes_golden(design & top, std::string const & golden,
                                                std::string const & written = "top.v")
{
    if (auto const shared = top.run(); !shared.empty())
        return ::testing::AssertionFailure() << "text on the shared stream: " << shared;
    if (auto const messages = top.messages(); !messages.empty())
        return ::testing::AssertionFailure() << messages.front();
    return matches_golden(fs::path(LBX_SOURCE_DIR) / "tests/writers/golden" / golden,
                          without_legal_notice(top, file_text(written)));
}

} // namespace gnl_test
