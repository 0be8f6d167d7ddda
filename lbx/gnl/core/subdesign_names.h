#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace gnl_detail {

/// A seed as it stands in a name: base 32, least significant digit first, "0" to "9" and "a" to "v"; "" for 0.
std::string seed_digits(int seed);
/// The seed whose digits these are; none if there is no such seed.
std::optional<int> seed_of_digits(std::string_view digits);

/// The names of one stem, which differ in their seed alone, and the settings that have taken them.
///
/// A design tries the seeds from its own one upward until it meets one that is free or that its own settings have
/// taken. Seeds are sums of characters and lie close together, so trying each would cost as many steps as there are
/// designs. Here runs of taken seeds are jumped over, with the same result.
class seed_space
{
public:
    /// The first seed, not below `seed`, that is not known to be taken by other settings.
    int first_candidate(int seed, std::string const & settings) const;
    /// `settings` has the seed from now on; "" stands for settings that no design has.
    void take(int seed, std::string const & settings);
    void release(int seed);

private:
    std::map<int, int> m_runs; ///< first taken seed to the one behind the last
    std::unordered_map<std::string, std::set<int>> m_seeds;
    std::unordered_map<int, std::string const *> m_settings; ///< points to the keys of `m_seeds`
};

/// What a top generator knows of the names of its run: a cache beside its list of subdesigns and beside the files on
/// disk, which stay the truth. Settings are header lines with folded letters.
class subdesign_names
{
public:
    /// Names that begin with `stem` and end with `ending`; of files, with their folder.
    seed_space & space(std::string const & stem, std::string const & ending);
    /// The name belongs to `settings` from now on.
    void take(std::string_view name, std::string const & settings);
    /// Nobody has the name any more.
    void release(std::string_view name);

    /// A file that is being written: it has its name already, although it is not there yet.
    void file_begun(std::string const & path) { m_begun.insert(path); }
    bool is_begun(std::string const & path) const { return m_begun.contains(path); }
    /// A file that this run has completed: what a comparison with it gives stays valid until it is written again.
    void file_written(std::string const & path, std::string const & settings);
    void file_removed(std::string const & path);
    bool is_written(std::string const & path) const { return m_files.contains(path); }
    /// A design of this run has its text in the file, be it written now or reused.
    void use_file(std::string const & path, std::string const & settings) { m_users.try_emplace(path, settings); }
    bool is_used_by_other(std::string const & path, std::string const & settings) const
    {
        auto const user = m_users.find(path);
        return user != m_users.end() && user->second != settings;
    }
    /// The result of an earlier comparison with `question`, 0 without one.
    int known_result(std::string const & path, std::string const & question) const;
    void keep_result(std::string const & path, std::string const & question, int result);

private:
    struct name_pattern
    {
        std::string stem, ending;
        std::optional<int> seed_of(std::string_view name) const;
        // NOLINTNEXTLINE(modernize-use-nullptr): a false alarm on comparisons that the compiler writes
        auto operator<=>(name_pattern const &) const = default;
    };

    std::map<name_pattern, seed_space> m_spaces;
    std::unordered_set<std::string> m_begun;
    std::unordered_map<std::string, std::string> m_users;                          ///< path to settings
    std::unordered_map<std::string, std::unordered_map<std::string, int>> m_files; ///< path to results by question
};

} // namespace gnl_detail
