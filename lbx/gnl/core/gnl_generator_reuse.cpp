// Whether a file that is there already can stand for the design that would be written.
//
// A file of ours begins with its header line and version line and ends in "VALID FILE" or "ERROR FILE". What can't be
// read so, whatever it holds, counts as another design's.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/subdesign_names.h"

#include <filesystem>
#include <fstream>
#include <limits>
#include <string_view>
#include <system_error>

namespace fs = std::filesystem;

using gnl_detail::equal_folded;
using gnl_detail::option_id;

namespace {

enum match { no_file = 0, reusable = 1, different = 2, error_file = 3, outdated = 4 };

constexpr std::streamsize line_buffer = 8192; // its last byte ends the text
constexpr std::streamsize last_line_buffer = 14;
constexpr std::streamoff end_of_file_part = 15; // the last line, its line end and what ends the line before
constexpr std::size_t comment_mark = 2;
constexpr std::string_view resources_mark = "synthesis_resources = ";

void drop_carriage_return(std::string & line)
{
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
}

/// The text behind the comment mark; a line that holds no more than the mark stays as it is.
std::string_view without_comment_mark(std::string_view line)
{
    return line.size() > comment_mark ? line.substr(comment_mark) : line;
}

/// An existing file, read piece by piece; reading on after a failure gives empty lines.
class existing_file
{
public:
    /// Only a regular file is opened: a pipe would keep us waiting.
    explicit existing_file(std::string const & name)
    {
        std::error_code error;
        if (fs::is_regular_file(name, error))
            m_in.open(name, std::ios::binary);
    }
    bool is_open() const { return m_in.is_open(); }

    /// The next line; what goes beyond the line buffer is cut off.
    std::string line()
    {
        auto text = part_of_line(line_buffer);
        if (m_cut) {
            m_in.clear();
            m_in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
        }
        return text;
    }

    /// The last line, if it begins behind what has been read, is short and its line end is there: without it the file
    /// has been cut off.
    std::string last_line()
    {
        m_in.clear(); // the end may have been reached
        std::streamoff const read = m_in.tellg();
        m_in.seekg(-1, std::ios::end);
        bool const ended = m_in.get() == '\n';
        m_in.seekg(-end_of_file_part, std::ios::end);
        part_of_line(last_line_buffer);
        bool const behind = m_in.tellg() >= read;
        auto const text = part_of_line(last_line_buffer);
        return ended && behind ? text : std::string();
    }

    /// What follows `mark` in the first line that holds it; "" when there is none.
    std::string text_behind(std::string_view mark)
    {
        m_in.clear();
        m_in.seekg(0);
        for (std::string text; std::getline(m_in, text);)
            if (auto const at = text.find(mark); at != std::string::npos) {
                drop_carriage_return(text);
                return text.substr(at + mark.size());
            }
        return {};
    }

private:
    std::string part_of_line(std::streamsize buffer_size)
    {
        std::string text(static_cast<std::size_t>(buffer_size), '\0');
        m_in.getline(text.data(), buffer_size);
        auto const count = m_in.gcount();
        m_cut = m_in.fail() && !m_in.bad() && count == buffer_size - 1;
        bool const line_end_counted = count > 0 && m_in.good();
        text.resize(static_cast<std::size_t>(line_end_counted ? count - 1 : count));
        drop_carriage_return(text);
        return text;
    }

    std::ifstream m_in;
    bool m_cut = false;
};

/// Cuts the next word off the front of `rest`.
std::string_view cut_word(std::string_view & rest)
{
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    auto const word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(word.size());
    return word;
}

bool is_number(std::string_view word)
{
    return !word.empty() && word.find_first_not_of("0123456789") == std::string_view::npos;
}

/// "lut 5 block ram 2" as "5 lut; 2 block ram; ".
std::string count_text(std::string_view resources)
{
    std::string counts;
    std::string name;
    for (auto word = cut_word(resources); !word.empty(); word = cut_word(resources))
        if (!is_number(word))
            name += (name.empty() ? "" : " ") + std::string(word);
        else if (!name.empty()) {
            counts += std::string(word) + " " + name + "; ";
            name.clear();
        }
    return counts;
}

/// Name of the design that a file holds: its base name up to the first ".".
std::string stem_of(std::string const & file)
{
    auto const base = file.substr(file.find_last_of("/\\") + 1);
    return base.substr(0, base.find('.'));
}

match match_of_last_line(std::string_view last, bool same_version)
{
    if (last == "ERROR FILE")
        return error_file;
    if (last != "VALID FILE")
        return different;
    return same_version ? reusable : outdated;
}

} // namespace

int GNL_GENERATOR::are_files_same(std::string const & file, std::string const & header)
{
    existing_file existing(file);
    if (!existing.is_open())
        return different;
    auto const first = existing.line();
    auto const second = existing.line();
    auto const version = dump_version_header();
    auto const third = is_fixed_prefix_mode() ? existing.line() : std::string();
    if (!equal_folded(without_comment_mark(first), header)) {
        bool const same_instance =
            is_fixed_prefix_mode() && third.size() > comment_mark
            && third.substr(comment_mark) == "LBXI_INSTANCE_NAME=\"" + option_value(option_id::instance_name) + "\"";
        return same_instance ? outdated : different;
    }
    bool const same_version = second.size() > comment_mark && without_comment_mark(second) == version;
    auto const result = match_of_last_line(without_comment_mark(existing.last_line()), same_version);
    if (result != reusable)
        return result;
    if (!dump_timing_assignments_header().empty())
        return different; // such a design is never reused
    if (is_qhdl()) {
        auto const counts = count_text(existing.text_behind(resources_mark));
        auto const stem = stem_of(file);
        if (!counts.empty() && !stem.empty())
            get_top_level_parent()->add_to_subdesign_resc_count_list(stem, counts);
    }
    return reusable;
}

int GNL_GENERATOR::check_if_file_matches_current_settings(std::string const & file)
{
    return check_directory(file) ? are_files_same(file, dump_header(true)) : no_file;
}

int GNL_GENERATOR::check_list_of_subdesigns(std::string const & name, std::string const & header)
{
    auto const [entry, is_new] = m_state.list_of_subdesigns.try_emplace(name, header);
    if (is_new)
        return 2;
    return equal_folded(entry->second, header) ? 0 : 1;
}

void GNL_GENERATOR::remove_from_list_of_subdesigns(std::string const & name)
{
    m_state.list_of_subdesigns.erase(name);
    if (m_subdesign_names)
        m_subdesign_names->release(gnl_detail::folded(name));
}

bool GNL_GENERATOR::search_list(std::map<std::string, std::string, LESS_C_STRING> const & list, std::string const & key)
{
    auto const entry = list.find(key);
    return entry != list.end() && equal_folded(entry->second, key);
}
