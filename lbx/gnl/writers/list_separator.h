#pragma once

#include <ostream>
#include <string_view>

namespace gnl_detail {

/// Opener, separator and "was anything written" of a list whose entries are found while it is written: the opener
/// stands before the first entry, the separator before every other one.
///
///     list_separator list("\tdefparam\n", ",\n");
///     for (auto * parameter : parameters)
///         out << list << "\t\t" << parameter->get_name();
///     if (list.started())
///         out << ";\n";
class list_separator
{
public:
    constexpr list_separator(std::string_view opener, std::string_view separator)
        : m_opener(opener)
        , m_separator(separator)
    {
    }

    /// What stands before the next entry.
    constexpr std::string_view next()
    {
        auto const text = m_started ? m_separator : m_opener;
        m_started = true;
        return text;
    }
    constexpr bool started() const { return m_started; }
    /// For an entry that somebody else has written.
    constexpr void set_started() { m_started = true; }

private:
    std::string_view m_opener;
    std::string_view m_separator;
    bool m_started = false;
};

inline std::ostream & operator<<(std::ostream & out, list_separator & list)
{
    return out << list.next();
}

} // namespace gnl_detail
