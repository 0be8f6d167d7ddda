#pragma once

#include <cstdarg>
#include <memory>
#include <string>
#include <vector>

class GNL_GENERATOR;

namespace gnl_detail {
struct format_argument;
class positional_format;
} // namespace gnl_detail

/// Root of the objects that lists of the library hold.
class GNL_OBJECT
{
public:
    virtual ~GNL_OBJECT() = default;
};

/// Root of the objects that a `GNL_OBJ_LIST` can own.
class GNL_COLLECTABLE_OBJECT
{
public:
    virtual ~GNL_COLLECTABLE_OBJECT() = default;
};

/// A stored message: type, text and help identifier.
class GNL_MSG : public GNL_COLLECTABLE_OBJECT
{
public:
    enum TYPE { error_type = 1, warning_type = 2, info_type = 3, debug_type = 4 };

    GNL_MSG(int type, char const * text, char const * help_id = nullptr);

    /// "ERROR", "WARNING", "INFO" or "DEBUG"; "" for any other type.
    char const * get_msg_type() const;
    char const * get_msg_text() const { return m_text.c_str(); }
    /// Null without a help identifier.
    char const * get_msg_help_id() const { return m_help_id ? m_help_id->c_str() : nullptr; }

private:
    std::unique_ptr<std::string> m_help_id;
    std::string m_text;
    int m_type;
};

class GNL_ERROR_MSG : public GNL_MSG
{
public:
    explicit GNL_ERROR_MSG(char const * text)
        : GNL_MSG(error_type, text)
    {
    }
    /// The caller owns the result.
    static GNL_MSG * create_error_msg(char const * text);
};

class GNL_WARNING_MSG : public GNL_MSG
{
public:
    explicit GNL_WARNING_MSG(char const * text)
        : GNL_MSG(warning_type, text)
    {
    }
    /// The caller owns the result.
    static GNL_MSG * create_warning_msg(char const * text);
};

class GNL_INFO_MSG : public GNL_MSG
{
public:
    explicit GNL_INFO_MSG(char const * text)
        : GNL_MSG(info_type, text)
    {
    }
    /// The caller owns the result.
    static GNL_MSG * create_info_msg(char const * text);
};

/// The carrier in which client code hands a message to a generator; posting consumes it.
///
/// A format reads "text with %1!s! and %2!d!/HELP_ID": inserts name their argument by number, and what stands behind
/// the last "/" becomes the help identifier.
class GNL_MSG_POST
{
public:
    enum TYPE { error_post = 0, info_post = 1, warning_post = 2, debug_post = 3 };

    GNL_MSG_POST() = default;
    virtual ~GNL_MSG_POST() = default;

    /// "Error", "Info", "Warning", "Debug", by type.
    static char const * const msg_post_type_strings[4];
    char const * get_type_string() const { return msg_post_type_strings[m_type]; }
    bool is_error_msg() const { return m_type == error_post; }
    bool is_warning_msg() const { return m_type == warning_post; }
    bool is_info_msg() const { return m_type == info_post; }
    bool is_debug_msg() const { return m_type == debug_post; }
    int get_type() const { return m_type; }

    std::string const & get_msg_text() const { return m_text; }
    std::string const & get_msg_help_id() const { return m_help_id; }
    /// The format text without its help identifier.
    std::string const & get_format() const { return m_format; }
    /// The arguments alone, formatted, each followed by a blank.
    std::string const & get_arguments() const { return m_arguments; }

    /// Formats text, arguments and help identifier. `format` is described at the class.
    void fill_args(char const * format, std::va_list args);
    /// The same with no arguments.
    void fill_args(char const * format);

protected:
    explicit GNL_MSG_POST(int type)
        : m_type(type)
    {
    }

private:
    void fill_from(std::string const & format, gnl_detail::positional_format const & inserts,
                   std::vector<gnl_detail::format_argument> const & arguments);

    int m_type = error_post;
    std::string m_text;
    std::string m_format;
    std::string m_arguments;
    std::string m_help_id;
};

class GNL_MSG_E : public GNL_MSG_POST
{
public:
    GNL_MSG_E()
        : GNL_MSG_POST(error_post)
    {
    }
};

class GNL_MSG_W : public GNL_MSG_POST
{
public:
    GNL_MSG_W()
        : GNL_MSG_POST(warning_post)
    {
    }
};

class GNL_MSG_I : public GNL_MSG_POST
{
public:
    GNL_MSG_I()
        : GNL_MSG_POST(info_post)
    {
    }
};

class GNL_MSG_D : public GNL_MSG_POST
{
public:
    GNL_MSG_D()
        : GNL_MSG_POST(debug_post)
    {
    }
};

/// A growable array that owns its items, with a cursor.
class GNL_OBJ_LIST : public GNL_OBJECT
{
public:
    GNL_OBJ_LIST()
        : GNL_OBJ_LIST(64)
    {
    }
    /// An array of `initial` null entries if that is above 0.
    explicit GNL_OBJ_LIST(int initial);
    ~GNL_OBJ_LIST() override;
    GNL_OBJ_LIST(GNL_OBJ_LIST const &) = delete;
    GNL_OBJ_LIST & operator=(GNL_OBJ_LIST const &) = delete;

    /// Appends; the list owns the item from then on.
    virtual void add(GNL_COLLECTABLE_OBJECT * item);
    /// Replaces the item at `index`, deleting the old one; an index at or beyond the count is ignored and the item
    /// stays the caller's.
    virtual void set_at(GNL_COLLECTABLE_OBJECT * item, int index);
    /// Not checked: `index` must be below the count.
    virtual GNL_COLLECTABLE_OBJECT * operator[](int index) const;
    virtual void reset_list_iterator();
    /// Moves the cursor on; true while it stands on an item.
    virtual bool move_to_next_item();
    /// The item under the cursor; null when the cursor stands on none.
    virtual GNL_COLLECTABLE_OBJECT * get_cur_item() const;

    /// Sets by how many entries the array grows when it is full; below 1 counts as 1.
    void set_growth_size(int growth);
    int get_count() const { return m_count; }

private:
    std::vector<std::unique_ptr<GNL_COLLECTABLE_OBJECT>> m_items; ///< its size is the capacity
    int m_cursor = -1;
    int m_count = 0;
    int m_growth = 64;
};

/// Message store of a top generator, with the process-wide count of errors.
class GNL_MSG_HANDLER
{
public:
    GNL_MSG_HANDLER() = default;
    virtual ~GNL_MSG_HANDLER() = default;

    /// Stores an error and counts it.
    void post_error_msg(char const * text);
    void post_warning_msg(char const * text);
    void post_info_msg(char const * text);
    /// Stores the message of `post` (an error is counted, a debug message is dropped) and deletes `post`.
    void post_msg(GNL_MSG_POST * post);

    void reset_msg_list();
    bool move_to_next_msg();
    /// The message under the cursor; null when the cursor stands on none.
    GNL_MSG * get_cur_msg() const;

    int get_error_count() const { return m_error_count; }
    void reset_error_count() { m_error_count = 0; }

private:
    static int m_error_count; ///< shared by all generators of the process
    GNL_OBJ_LIST m_messages;
};

/// Factories through which client code makes positional messages. The caller owns a post until it is posted.
///
///     post_msg(gnl_msg_interface->create_gnl_msg_e("Depth %1!d! is above %2!d!/DEPTH", 17, depth, limit));
class GNL_INTERFACE
{
public:
    virtual ~GNL_INTERFACE() = default;
    virtual GNL_MSG_POST * create_gnl_msg_i(char const * format, unsigned long id, ...);
    virtual GNL_MSG_POST * create_gnl_msg_w(char const * format, unsigned long id, ...);
    virtual GNL_MSG_POST * create_gnl_msg_e(char const * format, unsigned long id, ...);
    virtual GNL_MSG_POST * create_gnl_msg_d(char const * format, ...);
};

extern GNL_INTERFACE gnl_msg_interface_export;
extern GNL_INTERFACE * gnl_msg_interface;
