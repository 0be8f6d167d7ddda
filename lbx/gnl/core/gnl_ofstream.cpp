// The way of a file to its place: it is written beside it and moved there when it is complete.

#include "gnl_ofstream.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t longest_file_name = 255;
constexpr int most_links = 40;
constexpr int most_tries = 1000;
constexpr ::mode_t new_file_mode = 438; // read and write for all, cut by the process's mask

/// Where a name leads in the end: moving a file onto a link would replace the link.
bool follow_links(fs::path & place)
{
    std::error_code error;
    for (int links = 0; fs::is_symlink(fs::symlink_status(place, error)); ++links) {
        auto const target = fs::read_symlink(place, error);
        if (error || links == most_links)
            return false;
        place = place.parent_path() / target; // an absolute target stands for itself
    }
    return true;
}

bool can_be_rewritten(fs::path const & place)
{
    int const file = ::open(place.c_str(), O_WRONLY | O_CLOEXEC);
    if (file >= 0)
        ::close(file);
    return file >= 0;
}

/// Makes an empty file of an unused name beside `place`; "" when that fails.
std::string make_file_beside(fs::path const & place)
{
    static unsigned long number = 0;
    auto const base = "." + place.filename().string();
    for (int tries = 0; tries < most_tries; ++tries) {
        auto const tail = "." + std::to_string(::getpid()) + "." + std::to_string(++number) + ".tmp";
        auto const name = place.parent_path() / (base.substr(0, longest_file_name - tail.size()) + tail);
        int const file = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, new_file_mode);
        if (file >= 0) {
            ::close(file);
            return name.string();
        }
        if (errno != EEXIST)
            break;
    }
    return {};
}

/// A file that replaces another is as accessible as that was. Ownership can be given away by a privileged process only.
bool take_access_over(std::string const & file, struct ::stat const & old)
{
    struct ::stat made
    {
    };
    if (::stat(file.c_str(), &made) != 0)
        return false;
    if ((made.st_uid != old.st_uid || made.st_gid != old.st_gid) && ::chown(file.c_str(), old.st_uid, old.st_gid) != 0)
        errno = 0;
    return ::chmod(file.c_str(), old.st_mode & 07777) == 0;
}

bool copy_contents(std::string const & from, std::string const & to)
{
    std::ifstream in(from, std::ios::binary);
    std::ofstream out(to, std::ios::binary);
    std::array<char, 65536> block;
    while (in.read(block.data(), block.size()) || in.gcount() > 0)
        out.write(block.data(), in.gcount());
    bool const whole = in.eof() && !in.bad();
    out.close();
    return whole && out.good();
}

} // namespace

GNL_OFSTREAM::GNL_OFSTREAM()
    : std::ostream(nullptr)
{
    rdbuf(&m_streambuf);
}

GNL_OFSTREAM::GNL_OFSTREAM(char const * name, int mode)
    : GNL_OFSTREAM()
{
    if (name)
        open(name, mode);
}

GNL_OFSTREAM::~GNL_OFSTREAM()
{
    if (!is_open())
        return;
    try {
        // What an exception cuts short is not complete.
        if (std::uncaught_exceptions() > m_exceptions_at_opening)
            discard();
        else
            close(true);
    } catch (...) {
        // Thrown by a caller's exception mask; the state was theirs to ask for before.
    }
}

void GNL_OFSTREAM::open(char const * name, int mode)
{
    if (!name || is_open() || (mode & (output_mode | append_mode)) == 0 || !prepare(name, mode)) {
        setstate(failbit);
        return;
    }
    m_exceptions_at_opening = std::uncaught_exceptions();
    m_streambuf.open(&m_file);
    clear();
}

/// Finds out whether the place can be written, and opens the file that is written first.
bool GNL_OFSTREAM::prepare(std::string const & name, int mode)
{
    auto const open_mode = std::ios::binary | ((mode & append_mode) != 0 ? std::ios::app : std::ios::out);
    struct ::stat old
    {
    };
    bool const exists = ::stat(name.c_str(), &old) == 0;
    if ((!exists && errno != ENOENT) || (exists && S_ISDIR(old.st_mode)))
        return false;
    m_file.clear();
    m_temporary.clear();
    if (exists && !S_ISREG(old.st_mode)) {
        // A device or a pipe takes the text as it comes.
        m_file.open(name, open_mode);
        return m_file.is_open();
    }
    std::error_code error;
    fs::path place = fs::absolute(name, error);
    if (error || !follow_links(place) || !place.has_filename() || (exists && !can_be_rewritten(place)))
        return false;
    m_name = place.string();
    m_temporary = make_file_beside(place);
    if (m_temporary.empty())
        return false;
    bool const copied = !exists || (mode & append_mode) == 0 || copy_contents(m_name, m_temporary);
    m_file.open(m_temporary, open_mode);
    if (m_file.is_open() && copied && (!exists || take_access_over(m_temporary, old)))
        return true;
    m_file.close();
    remove_temporary();
    return false;
}

void GNL_OFSTREAM::remove_temporary()
{
    if (!m_temporary.empty())
        ::unlink(m_temporary.c_str());
    m_temporary.clear();
}

void GNL_OFSTREAM::close()
{
    close(false);
}

void GNL_OFSTREAM::close(bool free_buffer)
{
    if (!is_open()) {
        m_streambuf.close(free_buffer);
        return;
    }
    bool written = m_streambuf.close(free_buffer) && !fail();
    m_file.close();
    written = written && !m_file.fail();
    if (written && !m_temporary.empty())
        written = ::rename(m_temporary.c_str(), m_name.c_str()) == 0;
    if (written)
        m_temporary.clear();
    else {
        remove_temporary();
        setstate(badbit);
    }
}

void GNL_OFSTREAM::discard()
{
    if (!is_open())
        return;
    m_file.setstate(std::ios::badbit); // the buffer's last flush goes nowhere
    m_streambuf.close(true);
    m_file.close();
    remove_temporary();
}
