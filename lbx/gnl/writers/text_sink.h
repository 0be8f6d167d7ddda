#pragma once

#include "lbx/gnl/writers/list_separator.h"

#include <array>
#include <charconv>
#include <concepts>
#include <ostream>
#include <string_view>

namespace gnl_detail {

/// Collects the small pieces of a section and hands them to its stream in larger ones: a formatted insertion costs more
/// than most pieces are long.
///
///     text_sink text(out);
///     text << "\twire  " << bus_range{8, two_blanks} << "data" << ";\n";
///     port.dump_port_description(text.stream(), level, false, nullptr);
class text_sink
{
public:
    explicit text_sink(std::ostream & out)
        : m_out(out)
    {
    }
    text_sink(text_sink const &) = delete;
    text_sink & operator=(text_sink const &) = delete;
    /// Hands over what is left. A stream that throws keeps its failed state, which its owner asks for.
    ~text_sink()
    {
        try {
            flush();
        } catch (...) {
        }
    }

    text_sink & operator<<(std::string_view text)
    {
        if (text.size() > m_buffer.size() - m_used)
            flush();
        if (text.size() > m_buffer.size()) {
            m_out.write(text.data(), static_cast<std::streamsize>(text.size()));
            return *this;
        }
        m_used += text.copy(m_buffer.data() + m_used, text.size()); // an empty text may point nowhere
        return *this;
    }
    /// Numbers alone: a character or a flag would become one unseen.
    template <std::same_as<int> INT> text_sink & operator<<(INT value)
    {
        std::array<char, 12> digits;
        auto const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
        return *this << std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data()));
    }
    text_sink & operator<<(list_separator & list) { return *this << list.next(); }

    /// The stream, for what writes to one itself; everything written so far is in it.
    std::ostream & stream()
    {
        flush();
        return m_out;
    }

private:
    void flush()
    {
        auto const used = m_used;
        m_used = 0;
        if (used != 0)
            m_out.write(m_buffer.data(), static_cast<std::streamsize>(used));
    }

    std::ostream & m_out;
    std::size_t m_used = 0;
    std::array<char, 1024> m_buffer;
};

} // namespace gnl_detail
