// The buffer of an output file, and the folding of long lines.
//
// Folding works on the buffer as a whole. A line up to the limit can hold no fold, and nearly every line is one, so
// lines are found with memchr, and in a longer one the search for a safe character starts where the limit is passed. A
// buffer is written at once, folded or not.

#include "gnl_ofstream.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t buffer_size = 524288;

bool may_fold_before(char c)
{
    return c == ' ' || c == ',' || c == '(' || c == ')' || c == '&' || c == '\t';
}

/// Writes text with its long lines folded.
class line_folder
{
public:
    line_folder(std::ostream & out, unsigned limit, char comment_char)
        : m_out(out)
        , m_limit(limit)
        , m_comment_char(comment_char)
    {
    }

    void write(char const * text, char const * end)
    {
        m_taken = text;
        for (char const * line = text; line < end;) {
            auto const * newline =
                static_cast<char const *>(std::memchr(line, '\n', static_cast<std::size_t>(end - line)));
            char const * const line_end = newline ? newline : end;
            if (auto const size = static_cast<std::size_t>(line_end - line); size > m_limit)
                fold(line, size);
            line = newline ? newline + 1 : end;
        }
        if (m_folded.empty())
            m_out.write(text, end - text);
        else {
            take_up_to(end);
            m_out.write(m_folded.data(), static_cast<std::streamsize>(m_folded.size()));
        }
    }

private:
    void fold(char const * line, std::size_t size)
    {
        if (m_comment_char != '\n' && *line == m_comment_char)
            if (void const * const comment = std::memchr(line + 1, m_comment_char, size - 1))
                size = static_cast<std::size_t>(static_cast<char const *>(comment) - line);
        // The character that a line is broken before has column 1 of the next.
        for (std::size_t at = m_limit; at < size; ++at)
            if (may_fold_before(line[at])) {
                take_up_to(line + at);
                m_folded += '\n';
                at += m_limit - 1;
            }
    }

    void take_up_to(char const * end)
    {
        m_folded.append(m_taken, end);
        m_taken = end;
    }

    std::ostream & m_out;
    unsigned const m_limit;
    char const m_comment_char;
    char const * m_taken = nullptr;
    std::string m_folded; ///< what comes before m_taken; "" as long as nothing is folded
};

} // namespace

GNL_STREAMBUF::GNL_STREAMBUF() = default;

GNL_STREAMBUF::~GNL_STREAMBUF()
{
    close(true);
}

void GNL_STREAMBUF::open(std::ostream * file)
{
    if (!m_buffer)
        m_buffer = std::make_unique_for_overwrite<char[]>(buffer_size);
    m_file = file;
    m_open = true;
    setp(m_buffer.get(), m_buffer.get() + buffer_size);
}

bool GNL_STREAMBUF::close(bool free_buffer)
{
    bool const written = !m_open || flush_buffer();
    m_open = false;
    m_file = nullptr;
    setp(nullptr, nullptr);
    if (free_buffer)
        m_buffer.reset();
    return written;
}

bool GNL_STREAMBUF::flush_buffer()
{
    if (m_char_limit == 0)
        m_file->write(pbase(), pptr() - pbase());
    else
        line_folder(*m_file, m_char_limit, m_comment_char).write(pbase(), pptr());
    setp(m_buffer.get(), m_buffer.get() + buffer_size);
    return m_file->good();
}

GNL_STREAMBUF::int_type GNL_STREAMBUF::overflow(int_type character)
{
    if (!m_open || (pptr() == epptr() && !flush_buffer()))
        return traits_type::eof();
    if (!traits_type::eq_int_type(character, traits_type::eof()))
        sputc(traits_type::to_char_type(character));
    return traits_type::not_eof(character);
}

int GNL_STREAMBUF::sync()
{
    return !m_open || (flush_buffer() && m_file->flush()) ? 0 : -1;
}

std::streamsize GNL_STREAMBUF::xsputn(char const * text, std::streamsize count)
{
    std::streamsize done = 0;
    while (m_open && done < count) {
        if (pptr() == epptr() && !flush_buffer())
            break;
        auto const piece = std::min<std::streamsize>(count - done, epptr() - pptr());
        std::memcpy(pptr(), text + done, static_cast<std::size_t>(piece));
        pbump(static_cast<int>(piece));
        done += piece;
    }
    return done;
}
