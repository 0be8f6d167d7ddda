// Message formats: any bytes, with arguments that can be read as whatever the format asks for.

#include "fuzz_design.h"

#include "lbx/gnl/core/positional_formatter.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace {

using gnl_detail::argument_kind;
using gnl_detail::format_argument;

/// Memory that serves as text, wide text, counted text and target of a count: a short text that ends, and as a counted
/// text one of any length.
struct any_pointee
{
    gnl_detail::counted_string record;
    std::array<char, 65536> counted;
};

any_pointee & pointee()
{
    static any_pointee memory;
    memory.counted.fill('c');
    memory.record = {3, memory.counted.data()};
    return memory;
}

std::vector<format_argument> arguments_for(gnl_detail::positional_format const & format)
{
    std::vector<format_argument> arguments;
    for (auto const kind : format.kinds()) {
        auto const number = static_cast<std::int64_t>(arguments.size()) * -1234567;
        arguments.push_back({kind, number, static_cast<double>(number) * 1e200, &pointee()});
    }
    return arguments;
}

constexpr std::size_t passed_arguments = 24;

std::unique_ptr<GNL_MSG_POST> post_with_arguments(char const * format)
{
    void * const p = &pointee();
    return std::unique_ptr<GNL_MSG_POST>(gnl_msg_interface->create_gnl_msg_e(format, 0, p, p, p, p, p, p, p, p, p, p, p,
                                                                             p, p, p, p, p, p, p, p, p, p, p, p, p));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::string const text = std::string(reinterpret_cast<char const *>(data), size).c_str();
    gnl_detail::positional_format const format(text);
    auto const formatted = format.text(arguments_for(format));
    FUZZ_CHECK(format.text(arguments_for(format)) == formatted);
    format.arguments_text(arguments_for(format));

    GNL_MSG_E post;
    post.fill_args(text.c_str());
    FUZZ_CHECK(text.find('/') != std::string::npos || post.get_msg_help_id().empty());
    if (format.kinds().size() <= passed_arguments) {
        auto const filled = post_with_arguments(text.c_str());
        FUZZ_CHECK(text.find('/') != std::string::npos || filled->get_format() == text);
    }
    return 0;
}
