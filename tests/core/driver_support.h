#pragma once

#include "support.h"

namespace gnl_test {

/// A design whose internals that a subclass may use are open to tests.
class probe : public design
{
public:
    using design::design;
    using GNL_GENERATOR::check_all_required_ports_and_parameters;
    using GNL_GENERATOR::exclude_subdesigns_from_having_component_declarations;
    using GNL_GENERATOR::process_port_widths;
    using GNL_GENERATOR::set_not_supported;
};

/// The copyright lines as they stand in a file of `language`.
inline std::string copyright(int language)
{
    design any(nullptr, "any");
    int const before = GNL_ELEMENT::get_gen_language();
    any.set_gen_language(language);
    auto text = any.dump_copyright_header();
    any.set_gen_language(before);
    return text;
}

/// The name that these settings give, counted independently of the library: "mg" and the sum of the folded characters,
/// five bits to a digit, the lowest first.
inline std::string name_of(std::string const & header, unsigned more = 0)
{
    unsigned seed = more;
    for (char const letter : header) {
        auto const character = static_cast<unsigned char>(letter);
        seed += character >= 'A' && character <= 'Z' ? character + 32u : character;
    }
    std::string name = "mg";
    for (; seed > 0; seed >>= 5)
        name += "0123456789abcdefghijklmnopqrstuv"[seed & 31u];
    return name;
}

/// The files of the working folder, by relative path.
inline std::map<std::string, std::string> files()
{
    std::map<std::string, std::string> found;
    for (auto const & entry : fs::recursive_directory_iterator("."))
        if (entry.is_regular_file())
            found[fs::relative(entry.path(), ".").string()] = file_text(entry.path());
    return found;
}

inline void write_file(fs::path const & path, std::string const & text)
{
    std::ofstream(path, std::ios::binary) << text;
}

/// The cause of every message about a file that can't be written.
inline std::string const no_file_cause =
    "The file cannot be created. The file already exists, and is write-protected, or there is not enough space.";

} // namespace gnl_test
