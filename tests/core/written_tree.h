#pragma once

// A hierarchy whose files can be reused, and what stands in a folder.

#include "driver_support.h"

#include <tuple>

#include <sys/stat.h>

namespace gnl_test {

/// An inverter of SIZE bits. Only files of generators with a version are reused.
class versioned_leaf : public design
{
public:
    versioned_leaf(GNL_GENERATOR * parent, int size, char const * text = "")
        : design(parent, "leaf", text)
        , SIZE(this, "SIZE", 1)
        , d(this, "d", "SIZE")
        , q(this, "q", "SIZE")
    {
        if (size != 1)
            SIZE = size;
        body = [this](design &) {
            ++bodies;
            q = ~d;
        };
    }
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override
    {
        versions["leaf"] = version;
    }

    static inline int bodies = 0; ///< how many have run
    static inline std::string version = "1";

    GNL_PARAMETER_INTEGER SIZE;
    GNL_PORT_INPUT d;
    GNL_PORT_OUTPUT q;
};

/// COUNT leaves of 1 bit, 2 bits and so on, each a design of its own.
class leaf_row : public design
{
public:
    leaf_row(std::string const & options, int count)
        : design(nullptr, "row", "")
        , COUNT(this, "COUNT", -1)
        , d(this, "d", "COUNT")
    {
        for (std::size_t start = 0; start < options.size();) {
            auto const end = std::min(options.find(',', start), options.size());
            auto const option = options.substr(start, end - start);
            auto const equals = option.find('=');
            assign_value_to_parameter(option.substr(0, equals), option.substr(equals + 1));
            start = end + 1;
        }
        COUNT = count;
        for (int i = 0; i < count; ++i)
            output("q" + std::to_string(i), i + 1);
        body = [this](design &) {
            ++bodies;
            for (int i = 0; i < COUNT.get_value(); ++i) {
                auto & leaf = *new versioned_leaf(this, i + 1); // owned by this generator
                leaf.set_instance_name("leaf_" + std::to_string(i) + "_");
                leaf.d = d.range(i, 0);
                port("q" + std::to_string(i)) = leaf.q;
            }
        };
    }
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override
    {
        versions["row"] = versioned_leaf::version;
    }

    static inline int bodies = 0; ///< how many have run

    GNL_PARAMETER_INTEGER COUNT;
    GNL_PORT_INPUT d;
};

/// Which file stands under a name, when it was written and what it holds.
using written_file = std::tuple<::ino_t, long, long, std::string>;

/// The complete files of a folder; what is still being written, or was when its process ended, begins with a dot.
inline std::map<std::string, written_file> written_files(fs::path const & folder = ".")
{
    std::map<std::string, written_file> found;
    for (auto const & entry : fs::directory_iterator(folder)) {
        auto const name = entry.path().filename().string();
        struct ::stat status
        {
        };
        if (!name.starts_with('.') && ::stat(entry.path().c_str(), &status) == 0)
            found[name] = {status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec, file_text(entry.path())};
    }
    return found;
}

/// The same without what a second run changes by writing the same text.
inline std::map<std::string, std::string> written_texts(fs::path const & folder = ".")
{
    std::map<std::string, std::string> found;
    for (auto const & [name, file] : written_files(folder))
        found[name] = std::get<std::string>(file);
    return found;
}

} // namespace gnl_test
