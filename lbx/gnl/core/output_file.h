#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace gnl_detail {

/// Deletes a file that a run doesn't want after all; no file, and never a directory, is deleted without a name.
inline void remove_output_file(std::string const & path)
{
    std::error_code ignored;
    if (!path.empty() && !std::filesystem::is_directory(path, ignored))
        std::filesystem::remove(path, ignored);
}

} // namespace gnl_detail
