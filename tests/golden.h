#pragma once

// Whole texts are compared with files that were read by eye before they were committed. A difference shows line, column
// and both bytes. With LBX_UPDATE_GOLDEN=1 in the environment the file is rewritten, and the test still fails, so that
// the change is seen and reviewed.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

namespace gnl_test {

/// A byte as a reader names it.
inline std::string shown_byte(std::string const & text, std::size_t at)
{
    if (at >= text.size())
        return "end of text";
    switch (text[at]) {
    case '\n':
        return "\"\\n\"";
    case '\t':
        return "\"\\t\"";
    case '\r':
        return "\"\\r\"";
    default:
        break;
    }
    auto const byte = static_cast<unsigned char>(text[at]);
    if (byte >= 0x20 && byte < 0x7f)
        return std::string("\"") + text[at] + "\"";
    std::ostringstream hexadecimal;
    hexadecimal << "0x" << std::hex << static_cast<unsigned>(byte);
    return hexadecimal.str();
}

/// The whole line in which `at` stands.
inline std::string shown_line(std::string const & text, std::size_t at)
{
    auto const from = std::min(at, text.size());
    auto const start = from == 0 ? 0 : text.rfind('\n', from - 1) + 1;
    return text.substr(start, text.find('\n', start) - start);
}

/// Success if the texts are equal, else where and how they differ first.
inline ::testing::AssertionResult same_text(std::string const & expected, std::string const & actual)
{
    if (expected == actual)
        return ::testing::AssertionSuccess();
    auto const shorter = std::min(expected.size(), actual.size());
    std::size_t at = 0;
    while (at < shorter && expected[at] == actual[at])
        ++at;
    auto const before = actual.begin() + static_cast<std::ptrdiff_t>(at);
    auto const line = 1 + std::count(actual.begin(), before, '\n');
    auto const last_end = at == 0 ? std::string::npos : actual.rfind('\n', at - 1);
    auto const column = last_end == std::string::npos ? at + 1 : at - last_end;
    return ::testing::AssertionFailure() << "line " << line << ", column " << column << ": expected "
                                         << shown_byte(expected, at) << ", found " << shown_byte(actual, at)
                                         << "\nexpected line: " << shown_line(expected, at)
                                         << "\nfound line:    " << shown_line(actual, at);
}

inline ::testing::AssertionResult matches_golden(std::filesystem::path const & file, std::string const & text)
{
    char const * const update = std::getenv("LBX_UPDATE_GOLDEN");
    if (update != nullptr && std::string(update) == "1") {
        if (file.has_parent_path())
            std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
        return ::testing::AssertionFailure()
               << file << " has been rewritten: read it, and run the test again without LBX_UPDATE_GOLDEN";
    }
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return ::testing::AssertionFailure() << file << " can't be read";
    std::string const expected{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    auto result = same_text(expected, text);
    return result ? result : result << "\nin " << file.string();
}

} // namespace gnl_test
