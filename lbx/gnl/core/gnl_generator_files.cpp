// Names of files and directories, as the options and the design's own name make them.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/writers/language_text.h"
#include "lbx_util.h"

#include <string_view>

#include <sys/stat.h>

using gnl_detail::equal_folded;
using gnl_detail::option_id;

namespace {

bool exists(std::string const & path)
{
    struct ::stat status
    {
    };
    return ::stat(path.c_str(), &status) == 0;
}

std::string before(std::string_view text, char separator)
{
    return std::string(text.substr(0, text.find(separator)));
}

/// Cuts the text up to `separator`, which goes too, off the front of `rest`.
std::string cut_field(std::string & rest, char separator)
{
    auto const end = rest.find(separator);
    auto field = rest.substr(0, end);
    rest = end == std::string::npos ? std::string() : rest.substr(end + 1);
    return field;
}

/// What `LBX_FILE` says: path/file.ext, path/file.ext:a to append, path/file.ext:a:entity to append under a name.
struct file_setting
{
    explicit file_setting(std::string const & value)
    {
        auto const backslash = value.rfind('\\');
        auto const separator = backslash != std::string::npos ? backslash : value.rfind('/');
        auto const start = separator == std::string::npos ? 0 : separator + 1;
        path = value.substr(0, start);
        auto rest = value.substr(start);
        file = cut_field(rest, ':');
        append = equal_folded(cut_field(rest, ':'), "a");
        entity = rest;
    }
    std::string stem() const { return before(file, '.'); }

    std::string path; ///< with the separator that ends it
    std::string file;
    std::string entity;
    bool append;
};

void assign_option(GNL_GENERATOR & generator, option_id id, std::string const & value)
{
    static_cast<GNL_PARAMETER_STRING &>(generator.option(id)) = value;
}

} // namespace

char const * GNL_GENERATOR::get_file_name()
{
    if (!m_state.full_file_name.empty() || is_primitive())
        return m_state.full_file_name.c_str();
    if (get_parent())
        set_full_file_name(get_entity_name() + std::string(gnl_detail::subdesign_extension()));
    else if (option_is_used(option_id::file)) {
        file_setting const setting(option_value(option_id::file));
        if (setting.append)
            set_append_mode();
        set_full_file_name(option_is_used(option_id::output_directory) ? setting.file : setting.path + setting.file);
    }
    return m_state.full_file_name.c_str();
}

void GNL_GENERATOR::set_full_file_name(std::string const & name)
{
    m_state.full_file_name = (option_is_used(option_id::output_directory) ? get_directory_path() : "") + name;
}

void GNL_GENERATOR::set_file_name(std::string const & name)
{
    // The driver names the file when parameters may be frozen already; that is no assignment of the author's.
    if (!option_is_used(option_id::file))
        static_cast<GNL_PARAMETER_STRING &>(option(option_id::file)).safely_change_value(name);
    if (get_parent())
        return;
    file_setting const setting(option_value(option_id::file));
    if (!setting.append) {
        m_state.entity_name = setting.stem();
        return;
    }
    set_append_mode();
    if (!is_qhdl())
        set_entity_add_on_name(setting.stem());
    if (!setting.entity.empty())
        m_state.entity_name = setting.entity;
}

std::string GNL_GENERATOR::get_directory_path()
{
    return add_trailing_slashes_to_directory_name(before(option_value(option_id::output_directory), ';'));
}

std::string GNL_GENERATOR::get_collision_check_directory_path()
{
    auto directories = option_value(option_id::output_directory);
    cut_field(directories, ';');
    return add_trailing_slashes_to_directory_name(directories);
}

void GNL_GENERATOR::set_directory_path(char const * path)
{
    if (path)
        assign_option(*this, option_id::output_directory, path);
}

bool GNL_GENERATOR::check_directory(std::string const & path) const
{
    return exists(path);
}

void GNL_GENERATOR::set_single_output_file()
{
    assign_option(*this, option_id::single_output_file, "ON");
}

void GNL_GENERATOR::set_different_output_files()
{
    assign_option(*this, option_id::single_output_file, "OFF");
}

std::string GNL_GENERATOR::search_file_paths_for_file(std::string const & name)
{
    if (name.empty())
        return {};
    if (exists(name))
        return name;
    if (auto in_output = get_directory_path() + name; exists(in_output))
        return in_output;
    auto paths = option_is_used(option_id::library_path) ? option_value(option_id::library_path) : std::string();
    while (!paths.empty())
        if (auto in_library = add_trailing_slashes_to_directory_name(cut_field(paths, ';')) + name; exists(in_library))
            return in_library;
    return {};
}
