#pragma once

#include "gnl_generator.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace gnl_detail {

/// One message: its text with inserts {0}, {1}, ..., its cause and its action; null where there is none.
///
/// Each subsystem has one table, a list of X(id, text, cause, action), turned into an enumeration and an array by
/// GNL_MESSAGE_TABLE:
///
///     #define PORT_MESSAGES(X) X(no_such_bit, "Port {0} has no bit {1}", "A bit was asked for ...", nullptr)
///     GNL_MESSAGE_TABLE(port_message, PORT_MESSAGES)
///     report<port_message::no_such_bit>(generator, name, bit);
struct message_text
{
    std::string_view id;
    std::string_view text;
    char const * cause;
    char const * action;
};

/// How many different inserts a text has.
constexpr std::size_t inserts_in(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t i = 0; i + 2 < text.size(); ++i)
        if (text[i] == '{' && text[i + 1] >= '0' && text[i + 1] <= '9' && text[i + 2] == '}'
            && static_cast<std::size_t>(text[i + 1] - '0') + 1 > count)
            count = static_cast<std::size_t>(text[i + 1] - '0') + 1;
    return count;
}

std::string fill_inserts(std::string_view text, std::initializer_list<std::string> values);

inline std::string insert_text(std::string const & value)
{
    return value;
}
inline std::string insert_text(char const * value)
{
    return value;
}
inline std::string insert_text(int value)
{
    return GNL_ELEMENT::convert_int_to_string(value);
}

/// Posts the error `id` on `generator`, one value for each insert.
template <auto id, class... VALUES> void report(GNL_GENERATOR const & generator, VALUES const &... values)
{
    constexpr message_text const & message = text_of(id);
    static_assert(inserts_in(message.text) == sizeof...(values), "one value for each insert");
    generator.generator_error(fill_inserts(message.text, {insert_text(values)...}), message.cause, message.action);
}

} // namespace gnl_detail

#define GNL_MESSAGE_ID(id, text, cause, action) id,
#define GNL_MESSAGE_ROW(id, text, cause, action) ::gnl_detail::message_text{#id, text, cause, action},

/// Makes `enum class NAME`, the array `NAME_texts` and `text_of(NAME)` of a table.
#define GNL_MESSAGE_TABLE(NAME, TABLE)                                                                                 \
    enum class NAME { TABLE(GNL_MESSAGE_ID) };                                                                         \
    inline constexpr ::gnl_detail::message_text NAME##_texts[] = {TABLE(GNL_MESSAGE_ROW)};                             \
    constexpr ::gnl_detail::message_text const & text_of(NAME id)                                                      \
    {                                                                                                                  \
        return NAME##_texts[static_cast<int>(id)];                                                                     \
    }
