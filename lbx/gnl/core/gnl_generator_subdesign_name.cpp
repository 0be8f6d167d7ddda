#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/leading_integer.h"
#include "lbx/gnl/core/subdesign_names.h"
#include "lbx/gnl/writers/language_text.h"

#include <fstream>
#include <optional>

using namespace gnl_detail;

namespace {

/// Whether an option of this kind says something.
bool is_given(GNL_GENERATOR & generator, option_id id)
{
    if (!generator.option_is_used(id))
        return false;
    auto const value = generator.option_value(id);
    return !value.empty() && !equal_folded(value, "UNUSED");
}

int sum_of_characters(std::string const & folded_text)
{
    unsigned sum = 0;
    for (char const character : folded_text)
        sum += static_cast<unsigned char>(character);
    return static_cast<int>(sum & 0x7fffffffU);
}

/// The settings that the first line of a file tells, folded; none if it has no such line.
std::optional<std::string> settings_in_file(std::string const & path)
{
    std::ifstream file(path, std::ios::binary);
    std::string line;
    if (!std::getline(file, line))
        return std::nullopt;
    if (line.ends_with('\r'))
        line.pop_back();
    return folded(line.size() > 2 ? line.substr(2) : line);
}

} // namespace

/// The search for the name of one design: from a seed upward to the first name that is free or that a design with the
/// same settings has.
class GNL_GENERATOR::subdesign_naming
{
public:
    subdesign_naming(GNL_GENERATOR & generator, std::string header)
        : m_generator(generator)
        , m_top(*generator.get_top_level_parent())
        , m_header(std::move(header))
        , m_settings(folded(m_header))
        , m_fixed(generator.is_fixed_prefix_mode())
        , m_seed(m_fixed ? 0 : sum_of_characters(m_settings))
        , m_stem(m_fixed ? fixed_stem() : generator.generate_name_from_value(0))
    {
    }

    std::string find();

private:
    std::string fixed_stem() const;
    bool is_listed() const;
    std::string find_in_list();
    std::string find_in_folder();
    void pass_collisions();
    std::string name(int seed) const;
    /// The top's name stands in no list, and its file is not there before it is complete.
    bool is_name_of_top(std::string const & name) const
    {
        return m_generator.get_parent() && equal_folded(name, m_top.get_entity_name());
    }
    /// A cell's wrapper has no file: it stands in the text of the design above. The list tells of those of this run.
    bool is_wrapper() const { return m_generator.is_primitive() && m_generator.get_parent() != nullptr; }
    bool is_listed_wrapper(std::string const & name) const
    {
        return is_wrapper() && m_top.m_state.list_of_subdesigns.contains(name);
    }
    void take_in_folder(std::string const & name, std::string const & path);
    int compare_with_file(std::string const & path);
    void note_other_file(seed_space & space, std::string const & path) const;
    /// Moves on to the next seed that has a chance. Numbers behind a fixed name are tried one by one.
    void skip_taken(seed_space const & space)
    {
        if (!m_fixed)
            m_seed = space.first_candidate(m_seed, m_settings);
    }

    GNL_GENERATOR & m_generator;
    GNL_GENERATOR & m_top;
    std::string m_header;
    std::string m_settings; ///< the header, folded
    bool m_fixed;
    int m_seed;
    std::string m_stem; ///< what stands before the seed
};

std::string GNL_GENERATOR::get_subdesign_name()
{
    check_all_required_ports_and_parameters();
    auto name = subdesign_naming(*this, dump_header(true)).find();
    if (!m_state.file_generation_off || m_state.resource_count_mode || !get_parent())
        return name;
    // A design that is reused has no body run that counts; its text does.
    auto const counts = get_top_level_parent()->get_subdesign_resc_count(name);
    for (std::size_t start = 0; start < counts.size();) {
        auto const end = std::min(counts.find(';', start), counts.size());
        auto const first = std::min(counts.find_first_not_of(' ', start), end);
        auto const entry = counts.substr(first, end - first);
        if (auto const blank = entry.find(' '); blank != std::string::npos)
            update_resource_map(entry.substr(blank + 1), leading_integer(entry));
        start = end + 1;
    }
    return name;
}

std::string GNL_GENERATOR::subdesign_naming::find()
{
    auto const add_on = [this] { return m_top.get_add_on_name() + "_"; };
    if (is_qhdl()) {
        if (m_generator.is_append_mode())
            m_stem = add_on() + m_stem;
        return find_in_folder();
    }
    if (!is_listed())
        return find_in_folder();
    if (!m_fixed)
        m_stem = add_on() + m_stem;
    return find_in_list();
}

std::string GNL_GENERATOR::subdesign_naming::fixed_stem() const
{
    auto stem = m_generator.get_fixed_prefix_name();
    if (m_generator.get_parent() && m_top.get_fixed_prefix_name() != m_top.get_entity_name())
        stem = m_top.get_entity_name() + "_" + stem;
    return stem;
}

/// Whether the name must be unique in the run, because the design goes to a file with others.
bool GNL_GENERATOR::subdesign_naming::is_listed() const
{
    return m_generator.is_append_mode()
           || (m_generator.get_parent() && !m_generator.uses_custom_subdesign_insert_mode()
               && m_generator.generate_single_output_file());
}

std::string GNL_GENERATOR::subdesign_naming::find_in_list()
{
    auto & space = m_top.subdesign_names().space(folded(m_stem), "");
    auto found = m_stem;
    for (;; ++m_seed) {
        skip_taken(space);
        if (!m_fixed)
            found = name(m_seed);
        else if (m_seed > 0)
            found += convert_int_to_string(m_seed); // the numbers add up: "p_mg", "p_mg1", "p_mg12"
        if (is_name_of_top(found))
            continue;
        int const result = m_top.check_list_of_subdesigns(found, m_header);
        space.take(m_seed, result == 1 ? folded(m_top.m_state.list_of_subdesigns[found]) : m_settings);
        if (result == 0 && m_generator.dump_timing_assignments_header().empty())
            m_generator.dont_generate_file();
        else if (result != 2)
            continue;
        return found;
    }
}

std::string GNL_GENERATOR::subdesign_naming::find_in_folder()
{
    pass_collisions();
    std::string const ending(subdesign_extension());
    std::string const folder =
        m_generator.option_is_used(option_id::output_directory) ? m_generator.get_directory_path() : std::string();
    auto & space = m_top.subdesign_names().space(folder + m_stem, ending);
    for (;; ++m_seed) {
        skip_taken(space);
        auto found = name(m_seed);
        auto const path = std::string(folder).append(found).append(ending);
        if (is_listed_wrapper(found)) {
            if (m_top.check_list_of_subdesigns(found, m_header) != 0)
                continue;
            m_generator.dont_generate_file();
            return found;
        }
        if (is_name_of_top(found) || m_top.subdesign_names().is_begun(path))
            continue;
        // An instance may overwrite its file of an earlier run, but not that of another design of this run.
        if (m_fixed && m_top.subdesign_names().is_used_by_other(path, m_settings))
            continue;
        int const result = compare_with_file(path);
        if (result == 2) {
            note_other_file(space, path);
            continue;
        }
        if (result == 1 && !m_generator.forced_file_generation())
            m_generator.dont_generate_file();
        take_in_folder(found, path);
        return found;
    }
}

void GNL_GENERATOR::subdesign_naming::take_in_folder(std::string const & name, std::string const & path)
{
    if (is_wrapper()) {
        m_top.check_list_of_subdesigns(name, m_header);
        m_top.subdesign_names().file_begun(path); // no design gets the name either
    } else if (m_generator.get_parent()) {
        m_top.subdesign_names().use_file(path, m_settings);
    }
}

/// Moves on to a name that no file in the folder of names to avoid has.
void GNL_GENERATOR::subdesign_naming::pass_collisions()
{
    auto const folder = m_generator.get_collision_check_directory_path();
    if (folder.empty())
        return;
    auto & space = m_top.subdesign_names().space(folder + m_stem, "");
    for (;; ++m_seed) {
        skip_taken(space);
        auto const path = folder + name(m_seed);
        bool const taken = m_generator.check_directory(path + ".tdf") || m_generator.check_directory(path + ".v")
                           || m_generator.check_directory(path + ".vhd");
        if (!taken)
            return;
        space.take(m_seed, "");
    }
}

std::string GNL_GENERATOR::subdesign_naming::name(int seed) const
{
    if (m_fixed)
        return seed == 0 ? m_stem : m_stem + convert_int_to_string(seed);
    return m_stem + seed_digits(seed);
}

/// 0 when there is no such file, else as `are_files_same`. A file of this run is read once for each question.
int GNL_GENERATOR::subdesign_naming::compare_with_file(std::string const & path)
{
    auto & names = m_top.subdesign_names();
    bool const written = names.is_written(path);
    if (!written && !m_generator.check_directory(path))
        return 0;
    if (!written || m_fixed || !m_generator.dump_timing_assignments_header().empty())
        return m_generator.are_files_same(path, m_header);
    auto const question = m_settings + '\n' + m_generator.dump_version_header();
    if (int const known = names.known_result(path, question); known != 0)
        return known;
    int const result = m_generator.are_files_same(path, m_header);
    names.keep_result(path, question, result);
    return result;
}

/// A file with other settings is not read again for designs that its settings don't match either.
void GNL_GENERATOR::subdesign_naming::note_other_file(seed_space & space, std::string const & path) const
{
    if (auto const settings = settings_in_file(path); settings && *settings != m_settings)
        space.take(m_seed, *settings);
}

gnl_detail::subdesign_names & GNL_GENERATOR::subdesign_names()
{
    if (!m_subdesign_names)
        m_subdesign_names = std::make_unique<gnl_detail::subdesign_names>();
    return *m_subdesign_names;
}

std::string GNL_GENERATOR::generate_name_from_value(int seed) const
{
    auto const & base = m_state.instance_basename;
    return (equal_folded(base, "sd") ? std::string("mg") : base + "_") + seed_digits(seed);
}

bool GNL_GENERATOR::is_fixed_prefix_mode()
{
    return is_given(*this, option_id::module_prefix)
           && (m_state.append_mode || is_given(*this, option_id::instance_name));
}

std::string GNL_GENERATOR::get_fixed_prefix_name()
{
    auto const & base = m_state.instance_basename;
    return option_value(option_id::module_prefix) + "_" + (equal_folded(base, "sd") ? std::string("mg") : base);
}
