#include "gnl_message.h"

#include "lbx/gnl/core/positional_formatter.h"

#include <algorithm>

namespace {

constexpr std::string_view help_mark = "/";

std::string text_or_nothing(char const * text)
{
    return text ? text : "";
}

/// Makes a post of its class and fills it from a variable argument list that starts behind `format`.
template <class POST> GNL_MSG_POST * filled_post(char const * format, std::va_list args)
{
    auto post = std::make_unique<POST>();
    post->fill_args(format, args);
    return post.release();
}

} // namespace

GNL_MSG::GNL_MSG(int type, char const * text, char const * help_id)
    : m_help_id(help_id ? std::make_unique<std::string>(help_id) : nullptr)
    , m_text(text_or_nothing(text))
    , m_type(type)
{
}

char const * GNL_MSG::get_msg_type() const
{
    switch (m_type) {
    case error_type:
        return "ERROR";
    case warning_type:
        return "WARNING";
    case info_type:
        return "INFO";
    case debug_type:
        return "DEBUG";
    default:
        return "";
    }
}

GNL_MSG * GNL_ERROR_MSG::create_error_msg(char const * text)
{
    return new GNL_ERROR_MSG(text);
}

GNL_MSG * GNL_WARNING_MSG::create_warning_msg(char const * text)
{
    return new GNL_WARNING_MSG(text);
}

GNL_MSG * GNL_INFO_MSG::create_info_msg(char const * text)
{
    return new GNL_INFO_MSG(text);
}

char const * const GNL_MSG_POST::msg_post_type_strings[4] = {"Error", "Info", "Warning", "Debug"};

void GNL_MSG_POST::fill_args(char const * format, std::va_list args)
{
    auto const text = text_or_nothing(format);
    gnl_detail::positional_format const inserts(text);
    fill_from(text, inserts, inserts.read_arguments(args));
}

void GNL_MSG_POST::fill_args(char const * format)
{
    auto const text = text_or_nothing(format);
    fill_from(text, gnl_detail::positional_format(text), {});
}

void GNL_MSG_POST::fill_from(std::string const & format, gnl_detail::positional_format const & inserts,
                             std::vector<gnl_detail::format_argument> const & arguments)
{
    m_format = format;
    m_text = inserts.text(arguments);
    m_arguments = inserts.arguments_text(arguments);
    m_help_id.clear();
    // A slash that only an argument brought, such as a path, starts no help identifier.
    auto const format_mark = m_format.rfind(help_mark);
    if (format_mark == std::string::npos)
        return;
    m_format.erase(format_mark);
    auto const mark = m_text.rfind(help_mark);
    if (mark == std::string::npos)
        return;
    m_help_id = m_text.substr(mark + 1);
    m_text.erase(mark);
}

GNL_OBJ_LIST::GNL_OBJ_LIST(int initial)
    : m_items(static_cast<std::size_t>(std::max(initial, 0)))
{
}

GNL_OBJ_LIST::~GNL_OBJ_LIST() = default;

void GNL_OBJ_LIST::add(GNL_COLLECTABLE_OBJECT * item)
{
    std::unique_ptr<GNL_COLLECTABLE_OBJECT> owned(item);
    auto const place = static_cast<std::size_t>(m_count);
    if (place == m_items.size())
        m_items.resize(place + static_cast<std::size_t>(m_growth));
    m_items[place] = std::move(owned);
    ++m_count;
}

void GNL_OBJ_LIST::set_at(GNL_COLLECTABLE_OBJECT * item, int index)
{
    if (index < 0 || index >= m_count)
        return;
    auto & place = m_items[static_cast<std::size_t>(index)];
    if (place.get() != item)
        place.reset(item);
}

GNL_COLLECTABLE_OBJECT * GNL_OBJ_LIST::operator[](int index) const
{
    return m_items[static_cast<std::size_t>(index)].get();
}

void GNL_OBJ_LIST::reset_list_iterator()
{
    m_cursor = -1;
}

bool GNL_OBJ_LIST::move_to_next_item()
{
    m_cursor = std::min(m_cursor + 1, m_count);
    return m_cursor < m_count;
}

GNL_COLLECTABLE_OBJECT * GNL_OBJ_LIST::get_cur_item() const
{
    return m_cursor >= 0 && m_cursor < m_count ? m_items[static_cast<std::size_t>(m_cursor)].get() : nullptr;
}

void GNL_OBJ_LIST::set_growth_size(int growth)
{
    m_growth = std::max(growth, 1);
}

int GNL_MSG_HANDLER::m_error_count = 0;

void GNL_MSG_HANDLER::post_error_msg(char const * text)
{
    m_messages.add(GNL_ERROR_MSG::create_error_msg(text));
    ++m_error_count;
}

void GNL_MSG_HANDLER::post_warning_msg(char const * text)
{
    m_messages.add(GNL_WARNING_MSG::create_warning_msg(text));
}

void GNL_MSG_HANDLER::post_info_msg(char const * text)
{
    m_messages.add(GNL_INFO_MSG::create_info_msg(text));
}

void GNL_MSG_HANDLER::post_msg(GNL_MSG_POST * post)
{
    std::unique_ptr<GNL_MSG_POST> const owned(post);
    if (!post || post->is_debug_msg())
        return;
    auto const type = post->is_error_msg()     ? GNL_MSG::error_type
                      : post->is_warning_msg() ? GNL_MSG::warning_type
                                               : GNL_MSG::info_type;
    m_messages.add(new GNL_MSG(type, post->get_msg_text().c_str(), post->get_msg_help_id().c_str()));
    if (post->is_error_msg())
        ++m_error_count;
}

void GNL_MSG_HANDLER::reset_msg_list()
{
    m_messages.reset_list_iterator();
}

bool GNL_MSG_HANDLER::move_to_next_msg()
{
    return m_messages.move_to_next_item();
}

GNL_MSG * GNL_MSG_HANDLER::get_cur_msg() const
{
    return static_cast<GNL_MSG *>(m_messages.get_cur_item());
}

GNL_MSG_POST * GNL_INTERFACE::create_gnl_msg_i(char const * format, unsigned long id, ...)
{
    std::va_list args;
    va_start(args, id);
    auto * const post = filled_post<GNL_MSG_I>(format, args);
    va_end(args);
    return post;
}

GNL_MSG_POST * GNL_INTERFACE::create_gnl_msg_w(char const * format, unsigned long id, ...)
{
    std::va_list args;
    va_start(args, id);
    auto * const post = filled_post<GNL_MSG_W>(format, args);
    va_end(args);
    return post;
}

GNL_MSG_POST * GNL_INTERFACE::create_gnl_msg_e(char const * format, unsigned long id, ...)
{
    std::va_list args;
    va_start(args, id);
    auto * const post = filled_post<GNL_MSG_E>(format, args);
    va_end(args);
    return post;
}

GNL_MSG_POST * GNL_INTERFACE::create_gnl_msg_d(char const * format, ...)
{
    std::va_list args;
    va_start(args, format);
    auto * const post = filled_post<GNL_MSG_D>(format, args);
    va_end(args);
    return post;
}

GNL_INTERFACE gnl_msg_interface_export;
GNL_INTERFACE * gnl_msg_interface = &gnl_msg_interface_export;
