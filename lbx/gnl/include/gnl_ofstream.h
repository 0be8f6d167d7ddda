#pragma once

#include <fstream>
#include <memory>
#include <ostream>
#include <streambuf>
#include <string>

/// Buffer of a `GNL_OFSTREAM`: collects 524288 bytes and folds long lines when it is flushed.
///
/// With a character limit, a line is broken before a tab, a blank or one of "&,)(" that stands past the limit; a line
/// that begins with the comment character and holds it once more is never folded. The column starts anew at each
/// flush.
class GNL_STREAMBUF : public std::streambuf
{
public:
    GNL_STREAMBUF();
    ~GNL_STREAMBUF() override;

    /// Starts writing to `file`, which must outlive the writing. The buffer is allocated at the first call.
    void open(std::ostream * file);
    bool is_open() const { return m_open; }
    /// Flushes and stops writing; `free_buffer` gives the memory back. False when a write has failed.
    bool close(bool free_buffer);

    /// Column limit; 0 switches folding off.
    void set_char_limit(unsigned limit) { m_char_limit = limit; }
    /// First character of a comment line; a newline switches the detection off.
    void set_comment_char(char character) { m_comment_char = character; }

protected:
    int_type overflow(int_type character) override;
    int sync() override;
    std::streamsize xsputn(char const * text, std::streamsize count) override;

private:
    bool flush_buffer();

    std::ostream * m_file = nullptr;
    std::unique_ptr<char[]> m_buffer;
    bool m_open = false;
    unsigned m_char_limit = 0;
    char m_comment_char = '\n';
};

/// Output file. It is written beside its place and moved there when it closes without an error, so that a file that
/// was valid stays valid until its replacement is complete; appending goes to a copy in the same way. Whether the place
/// can be written is found out at opening: the stream is then in a failed state.
class GNL_OFSTREAM : public std::ostream
{
public:
    /// The values of the stream library: 1 input, 2 output, 8 append.
    enum MODE { input_mode = 1, output_mode = 2, append_mode = 8 };

    GNL_OFSTREAM();
    /// A null name defers the opening.
    GNL_OFSTREAM(char const * name, int mode);
    /// Closes the file if it is open; discards it when an exception is what ends the stream.
    ~GNL_OFSTREAM() override;

    void open(char const * name, int mode);
    /// Completes the file. A failure to write sets the bad state, and an existing file stays as it was.
    void close();
    void close(bool free_buffer);
    /// Drops what has been written; an existing file stays as it was.
    void discard();
    bool is_open() const { return m_streambuf.is_open(); }

    void set_char_limit(unsigned limit) { m_streambuf.set_char_limit(limit); }
    void set_comment_char(char character) { m_streambuf.set_comment_char(character); }

private:
    bool prepare(std::string const & name, int mode);
    void remove_temporary();

    GNL_STREAMBUF m_streambuf;
    std::ofstream m_file;
    std::string m_name;      ///< the file's place
    std::string m_temporary; ///< where it is written until it is complete; "" when it is written in place
    int m_exceptions_at_opening = 0;
};
