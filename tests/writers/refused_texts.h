#pragma once

// Texts that are written as they are although a tool refuses them.

#include "golden_folder.h"

namespace gnl_test {

/// A text of a language that no tool reads, what is said of it, and what tools read in its place.
struct refused_text
{
    std::string ending; ///< of files in the language
    std::string text;
    std::string complaint;
    std::string readable;
};

/// What is said of the files of a run in the end, after each refused text was refused, in the order of the list, and
/// replaced in the one file that has it.
inline std::string complaints_beside(std::vector<refused_text> const & list, file_language const & in,
                                     outside_cell const & cell)
{
    auto complaints = complaints_of_compiler(in, cell);
    for (auto const & each : list) {
        if (each.ending != in.ending)
            continue;
        if (complaints.find(each.complaint) == std::string::npos)
            return "not refused: " + each.text + "\n" + complaints;
        int found = 0;
        for (auto const & file : files_of_run()) {
            auto text = file_text(file);
            auto const at = text.find(each.text);
            if (!file.ends_with(in.ending) || at == std::string::npos)
                continue;
            std::ofstream(file, std::ios::binary) << text.replace(at, each.text.size(), each.readable);
            ++found;
        }
        if (found != 1)
            return "in " + std::to_string(found) + " files: " + each.text;
        complaints = complaints_of_compiler(in, cell);
    }
    return complaints;
}

} // namespace gnl_test
