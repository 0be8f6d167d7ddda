#pragma once

#include "lbx_plugin.h"

#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace lbxgen {

/// A wrong use of the program; its text is one clear line.
class usage_error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The generator classes of all loaded plug-ins, by name.
class plugin_catalogue
{
public:
    /// Loads a plug-in that the user has named; throws `usage_error` when it can't be used. A loaded plug-in stays for
    /// the life of the process, because its classes' code lies in it.
    void load(std::filesystem::path const & file);
    /// Loads every shared object of a folder in order of name; a folder that is not there holds none. A class whose
    /// name is there already stays hidden: what the user names comes before what is found, and early folders before
    /// late ones.
    void load_folder(std::filesystem::path const & folder);

    std::map<std::string, lbx::generator_class> const & classes() const { return m_classes; }
    /// Throws `usage_error` that names the nearest names.
    lbx::generator_class const & find(std::string const & name) const;

private:
    void load(std::filesystem::path const & file, bool named);

    std::map<std::string, lbx::generator_class> m_classes;
    std::vector<std::filesystem::path> m_loaded;
};

/// The folders in which plug-ins are looked for: those of the variable LBX_PLUGIN_PATH, then the installed one.
std::vector<std::filesystem::path> plugin_folders();

} // namespace lbxgen
