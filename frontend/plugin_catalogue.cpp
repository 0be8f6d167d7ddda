#include "plugin_catalogue.h"

#include "nearest_names.h"

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>
#include <system_error>

namespace lbxgen {

namespace fs = std::filesystem;

namespace {

/// What the loader says, without the name of the file in front, which the caller's line begins with.
std::string loader_message(fs::path const & file)
{
    char const * text = dlerror();
    std::string message = text ? text : "unknown reason";
    auto const prefix = file.string() + ": ";
    if (message.starts_with(prefix))
        message.erase(0, prefix.size());
    return message;
}

lbx::plugin_contents const & open_plugin(fs::path const & file)
{
    auto const name = file.string();
    if (!fs::is_regular_file(file))
        throw usage_error("plug-in " + name + " can't be loaded: no such file");
    void * handle = dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle)
        throw usage_error("plug-in " + name + " can't be loaded: " + loader_message(file));
    using entry = lbx::plugin_contents const * (*)();
    auto const contents = reinterpret_cast<entry>(dlsym(handle, "lbx_plugin"));
    if (!contents)
        throw usage_error("plug-in " + name + " can't be loaded: it does not hold LBX_PLUGIN");
    return *contents();
}

} // namespace

void plugin_catalogue::load(fs::path const & file)
{
    load(file, true);
}

void plugin_catalogue::load(fs::path const & file, bool named)
{
    auto const place = fs::absolute(file).lexically_normal();
    if (std::find(m_loaded.begin(), m_loaded.end(), place) != m_loaded.end())
        return;
    auto const & contents = open_plugin(place);
    if (contents.interface_version != lbx::plugin_interface || contents.library_version != get_lbx_gnl_version())
        throw usage_error("plug-in " + place.string() + " can't be loaded: it was built for version "
                          + contents.library_version + " of the library, this is " + get_lbx_gnl_version());
    m_loaded.push_back(place);
    for (auto const & entry : *contents.classes)
        if (!m_classes.emplace(entry.name, entry).second && named)
            throw usage_error("plug-in " + place.string() + " can't be loaded: a generator named " + entry.name
                              + " is there already");
}

void plugin_catalogue::load_folder(fs::path const & folder)
{
    std::vector<fs::path> files;
    std::error_code unreadable;
    for (auto const & entry : fs::directory_iterator(folder, unreadable))
        if (entry.path().extension() == ".so")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (auto const & file : files)
        load(file, false);
}

lbx::generator_class const & plugin_catalogue::find(std::string const & name) const
{
    auto const entry = m_classes.find(name);
    if (entry != m_classes.end())
        return entry->second;
    std::vector<std::string> names;
    for (auto const & known : m_classes)
        names.push_back(known.first);
    if (names.empty())
        throw usage_error("there is no generator " + name + ": no plug-in is loaded (use --plugin FILE)");
    throw usage_error("there is no generator " + name + did_you_mean(name, names));
}

std::vector<fs::path> plugin_folders()
{
    std::vector<fs::path> folders;
    if (char const * variable = std::getenv("LBX_PLUGIN_PATH")) {
        std::string const text = variable;
        for (std::size_t start = 0; start <= text.size();) {
            auto const end = std::min(text.find(':', start), text.size());
            if (end > start)
                folders.emplace_back(text.substr(start, end - start));
            start = end + 1;
        }
    }
    std::error_code unknown;
    auto const program = fs::read_symlink("/proc/self/exe", unknown);
    if (!unknown)
        folders.push_back(program.parent_path().parent_path() / LBXGEN_PLUGIN_FOLDER);
    return folders;
}

} // namespace lbxgen
