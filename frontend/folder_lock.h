#pragma once

#include "gnl_generator.h"

namespace lbxgen {

/// Keeps other runs of this program out of the output folder.
///
/// The name of a subdesign's file is the first free one that its settings lead to. Two runs that look for one at the
/// same time could find the same free name for different designs, and each would overwrite what the other refers to.
/// The system gives the lock back however the process ends.
class folder_lock
{
public:
    /// Waits until the folder is free. Takes no lock when all files of the run have names that the user has given, so
    /// that such runs go side by side, and none on a folder that can't be opened, which the run itself reports.
    explicit folder_lock(GNL_GENERATOR & top);
    ~folder_lock();
    folder_lock(folder_lock const &) = delete;
    folder_lock & operator=(folder_lock const &) = delete;

private:
    int m_folder = -1;
};

} // namespace lbxgen
