#pragma once

/// @file
/// How a shared object offers its generator classes to `lbxgen`.
///
///     class ADDER : public GNL_GENERATOR
///     {
///     public:
///         ADDER(GNL_GENERATOR * parent, char const * text);
///         ...
///     };
///     LBX_REGISTER_GENERATOR(ADDER, "adder", "Adds two numbers")
///
/// One source file of the plug-in, any, holds `LBX_PLUGIN`.

#include "gnl_generator.h"

#include <memory>
#include <string>
#include <vector>

namespace lbx {

/// Counts up when the layout of a plug-in's interface changes.
inline constexpr int plugin_interface = 1;

/// One generator class of a plug-in.
struct generator_class
{
    char const * name;
    char const * summary;
    /// Makes a top generator; `text` is its parameter text.
    std::unique_ptr<GNL_GENERATOR> (*make)(char const * text);
};

/// What a plug-in exports under the name `lbx_plugin`.
struct plugin_contents
{
    int interface_version;
    char const * library_version;
    std::vector<generator_class> const * classes;
};

namespace plugin_detail {

// Hidden, so that every plug-in has a list of its own.
[[gnu::visibility("hidden")]] inline std::vector<generator_class> & own_classes()
{
    static std::vector<generator_class> classes;
    return classes;
}

struct registration
{
    explicit registration(generator_class entry) { own_classes().push_back(entry); }
};

} // namespace plugin_detail
} // namespace lbx

/// Registers a generator class under `NAME`; its constructor takes (GNL_GENERATOR * parent, char const * text).
#define LBX_REGISTER_GENERATOR(CLASS, NAME, SUMMARY)                                                                   \
    static ::lbx::plugin_detail::registration const CLASS##_registration(                                              \
        {NAME, SUMMARY,                                                                                                \
         [](char const * text) -> std::unique_ptr<GNL_GENERATOR> { return std::make_unique<CLASS>(nullptr, text); }});

/// Makes the shared object a plug-in; once in each.
#define LBX_PLUGIN                                                                                                     \
    extern "C" [[gnu::visibility("default")]] ::lbx::plugin_contents const * lbx_plugin()                              \
    {                                                                                                                  \
        static std::string const version = get_lbx_gnl_version();                                                      \
        static ::lbx::plugin_contents const contents{::lbx::plugin_interface, version.c_str(),                         \
                                                     &::lbx::plugin_detail::own_classes()};                            \
        return &contents;                                                                                              \
    }
