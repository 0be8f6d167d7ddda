// The road of a message: built here, handed up to the top generator, counted against its limit and stored.

#include "gnl_generator.h"

#include "lbx/gnl/core/report_messages.h"

#include <cstdlib>
#include <cstring>

using gnl_detail::option_id;
using gnl_detail::report;
using gnl_detail::report_message;

namespace {

constexpr int default_error_limit = 50;

/// True for the outermost of nested calls. Reading an option can itself post an error (it may bring the parameter text
/// in), and that error reads the same option.
class outermost_call
{
public:
    explicit outermost_call(bool & busy)
        : m_busy(busy)
        , m_outermost(!busy)
    {
        m_busy = true;
    }
    ~outermost_call()
    {
        if (m_outermost)
            m_busy = false;
    }
    outermost_call(outermost_call const &) = delete;
    outermost_call & operator=(outermost_call const &) = delete;
    explicit operator bool() const { return m_outermost; }

private:
    bool & m_busy;
    bool const m_outermost;
};

/// Options take their values at the first read, so the queries are not const; reporting is, for the user's sake.
GNL_GENERATOR & reader(GNL_GENERATOR const & generator)
{
    return const_cast<GNL_GENERATOR &>(generator);
}

bool raises_errors(GNL_GENERATOR const & generator)
{
    static bool busy = false;
    outermost_call const outermost(busy);
    return outermost && reader(generator).option_equals(option_id::throw_exception_on_error, "ON");
}

/// The limit of a top generator; a negative value counts as not set.
int error_limit(GNL_GENERATOR const & top)
{
    static bool busy = false;
    outermost_call const outermost(busy);
    int const limit = outermost ? std::atoi(reader(top).option_value(option_id::max_error_messages).c_str()) : -1;
    return limit < 0 ? default_error_limit : limit;
}

/// How far the errors of a top generator are beyond its limit; negative while one more is admitted.
int errors_beyond_limit(GNL_GENERATOR const & top)
{
    int const limit = error_limit(top);
    return top.msg_handler().get_error_count() - limit;
}

[[noreturn]] void abort_body()
{
    throw false;
}

/// Stores the last error there will be, which tells why the list ends, and ends the body.
void close_error_list(GNL_GENERATOR const & top)
{
    auto const limit = GNL_ELEMENT::convert_int_to_string(top.msg_handler().get_error_count());
    top.msg_handler().post_error_msg(
        gnl_detail::fill_inserts(text_of(report_message::too_many_errors).text, {limit}).c_str());
    if (top.is_in_rtl_body())
        abort_body();
}

/// The catcher owns the text and frees it with delete[].
[[noreturn]] void raise_text(std::string const & text)
{
    auto * const raised = new char[text.size() + 1];
    std::memcpy(raised, text.c_str(), text.size() + 1);
    throw raised; // NOLINT(misc-throw-by-value-catch-by-reference): front-ends catch the text
}

void post_or_raise(GNL_GENERATOR const & generator, std::string const & text)
{
    if (raises_errors(generator))
        raise_text(text);
    generator.post_error_msg(text.c_str());
}

std::string sourced_text(char const * kind, char const * source, std::string const & name, std::string const & text)
{
    return std::string(kind) + ": (" + (source ? source : "") + ") " + name + " " + text;
}

} // namespace

GNL_MSG_HANDLER & GNL_GENERATOR::msg_handler() const
{
    if (!m_msg_handler)
        m_msg_handler = std::make_unique<GNL_MSG_HANDLER>();
    return *m_msg_handler;
}

void GNL_GENERATOR::reset_msg_list()
{
    if (m_msg_handler)
        m_msg_handler->reset_msg_list();
}

bool GNL_GENERATOR::move_to_next_msg()
{
    return m_msg_handler && m_msg_handler->move_to_next_msg();
}

GNL_MSG * GNL_GENERATOR::get_cur_msg()
{
    return m_msg_handler ? m_msg_handler->get_cur_msg() : nullptr;
}

void GNL_GENERATOR::generator_error(std::string const & message, char const * cause, char const * action) const
{
    std::string text = "GNL_INTERNAL_ERROR: " + message;
    if (cause || action)
        text += std::string(" CAUSE : ") + (cause ? cause : "(null)");
    if (cause && action)
        text += std::string(" ACTION : ") + action;
    post_or_raise(*this, text);
}

void GNL_GENERATOR::generator_error(char const * source, std::string const & name, std::string const & text) const
{
    post_or_raise(*this, sourced_text("GNL_INTERNAL_ERROR", source, name, text));
}

void GNL_GENERATOR::generator_warning(char const * source, std::string const & name, std::string const & text) const
{
    post_warning_msg(sourced_text("GNL_INTERNAL_WARNING", source, name, text).c_str());
}

void GNL_GENERATOR::generator_info(char const * source, std::string const & name, std::string const & text) const
{
    post_info_msg(sourced_text("GNL_INTERNAL_INFO", source, name, text).c_str());
}

void GNL_GENERATOR::post_error_msg(char const * text) const
{
    if (get_parent())
        return get_parent()->post_error_msg(text);
    int const beyond = errors_beyond_limit(*this);
    if (beyond < 0)
        msg_handler().post_error_msg(text);
    else if (beyond == 0)
        close_error_list(*this);
}

void GNL_GENERATOR::post_warning_msg(char const * text) const
{
    if (get_parent())
        get_parent()->post_warning_msg(text);
    else
        msg_handler().post_warning_msg(text);
}

void GNL_GENERATOR::post_info_msg(char const * text) const
{
    if (get_parent())
        get_parent()->post_info_msg(text);
    else
        msg_handler().post_info_msg(text);
}

void GNL_GENERATOR::post_msg(GNL_MSG_POST * const post) const
{
    if (!post)
        return;
    if (get_parent())
        return get_parent()->post_msg(post);
    int const beyond = post->is_error_msg() ? errors_beyond_limit(*this) : -1;
    if (beyond < 0)
        return msg_handler().post_msg(post);
    if (beyond > 0)
        return; // stays the caller's
    delete post;
    close_error_list(*this);
}

void GNL_GENERATOR::gnl_msg_assert(bool condition, GNL_MSG_POST * const post) const
{
    if (condition)
        post_msg(post);
    else
        delete post;
}

void GNL_GENERATOR::gnl_assert_check(bool ok, int line, char const * file) const
{
    if (ok)
        return;
    std::string const place = file ? file : "";
    if (!is_in_rtl_body())
        return report<report_message::assertion_outside_body>(*this, place, line);
    report<report_message::assertion_inside_body>(*this, place, line);
    abort_body();
}

void GNL_GENERATOR::exit_if_error() const
{
    if (get_top_level_parent()->msg_handler().get_error_count() < 1)
        return;
    if (is_in_rtl_body())
        abort_body();
    generator_info(text_of(report_message::exit_outside_body).text.data(), get_hierarchical_name(), "");
}
