#include "folder_lock.h"

#include <cerrno>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace lbxgen {

using gnl_detail::option_id;

namespace {

/// Whether the run makes one file, of the name given. In QHDL every design has a file of its own.
bool all_names_are_given(GNL_GENERATOR & top)
{
    if (!top.option_is_used(option_id::file) || !top.generate_single_output_file())
        return false;
    auto const file = top.option_value(option_id::file);
    auto const language = top.option_value(option_id::hdl_language);
    return file.ends_with(".v") || file.ends_with(".vhd") || file.ends_with(".tcl") || language == "Verilog"
           || language == "VHDL" || language == "TCL";
}

} // namespace

folder_lock::folder_lock(GNL_GENERATOR & top)
{
    if (all_names_are_given(top))
        return;
    auto const folder = top.get_directory_path();
    m_folder = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    while (m_folder >= 0 && ::flock(m_folder, LOCK_EX) != 0 && errno == EINTR)
        ;
}

folder_lock::~folder_lock()
{
    if (m_folder >= 0)
        ::close(m_folder);
}

} // namespace lbxgen
