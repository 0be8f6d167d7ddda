#pragma once

#include "gnl_generator.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <sys/stat.h>

namespace lbxgen {

/// The files in the folders of a run as they were before it. A run that could not write a file leaves the old one, so
/// that a file which is there afterwards need not have been written.
class files_before
{
public:
    /// `top` has its options and has not run yet.
    explicit files_before(GNL_GENERATOR & top);
    /// Whether a file is there now that was not, or was another.
    bool has_written(std::string const & file) const;

private:
    void note_folder(std::filesystem::path const & folder);

    std::map<std::filesystem::path, struct ::stat> m_files;
};

/// What a run leaves.
struct run_results
{
    struct file
    {
        std::string name;
        bool written; ///< else it was there already with the same settings
    };
    std::vector<file> files;              ///< each once, subdesigns before the design that holds them
    std::vector<std::string> black_boxes; ///< entities that are used and not generated, each once
    std::vector<std::string> subdesigns;  ///< names of the designs below the top, as a black-box list takes them
};

/// What the run of `top` has left. Cells of the library are no black boxes: every tool knows them.
run_results results_of(GNL_GENERATOR & top, files_before const & before);

} // namespace lbxgen
