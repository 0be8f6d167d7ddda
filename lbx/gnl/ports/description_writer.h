#pragma once

#include "gnl_port.h"

#include "lbx/gnl/writers/text_sink.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace gnl_detail {

/// Things under numbers, which are used again.
template <class THING> class keeper
{
public:
    std::size_t keep(THING thing)
    {
        if (m_free.empty()) {
            m_things.push_back(std::move(thing));
            return m_things.size() - 1;
        }
        std::size_t const index = m_free.back();
        m_free.pop_back();
        m_things[index] = std::move(thing);
        return index;
    }
    THING take(std::size_t index)
    {
        m_free.push_back(index);
        return std::move(m_things[index]);
    }

private:
    std::vector<THING> m_things;
    std::vector<std::size_t> m_free;
};

/// Writes the reference to a port, however deep the expression behind it is.
///
/// `GNL_PORT::describe` hands its pieces to the writer in reading order. A piece is written at once as long as all
/// before it are; from the first expression or concatenation on, the pieces wait on a stack of the writer's own, and so
/// nothing recurses as deep as the expression.
///
///     writer.text("(");
///     writer.port(*m_first_operand, level, with_index, target);
///     writer.text(" & ");
///     writer.port(*m_second_operand, level, with_index, target);
///     writer.text(")");
///
/// A port that holds no others may write to `sink()` directly instead.
class description_writer
{
public:
    /// What runs at the moment at which its place in the text is written.
    using action = std::function<void(std::ostream &)>;

    explicit description_writer(std::ostream & out)
        : m_own_text(std::in_place, out)
        , m_text(*m_own_text)
    {
    }
    explicit description_writer(text_sink & text)
        : m_text(text)
    {
    }
    description_writer(description_writer const &) = delete;
    description_writer & operator=(description_writer const &) = delete;

    /// Writes the whole reference to `port`.
    void run(GNL_PORT & port, GNL_GENERATOR * level, bool with_index, GNL_PORT * target);

    /// Where a `describe` that hands over no pieces at all writes.
    text_sink & sink() { return m_text; }

    void text(std::string_view text);
    /// A text that lasts, such as a word of the language; it waits without a copy.
    void word(std::string_view text);
    void port(GNL_PORT & port, GNL_GENERATOR * level, bool with_index, GNL_PORT * target);
    /// For texts and messages that depend on the moment, such as a hole that is reported when it is written.
    void call(action step);

private:
    struct reference
    {
        GNL_PORT * port;
        GNL_GENERATOR * level;
        GNL_PORT * target;
        bool with_index;
    };
    struct kept_text
    {
        std::size_t index;
    };
    struct kept_action
    {
        std::size_t index;
    };
    /// Pieces are moved about a lot, so what costs something to move is kept beside them.
    using piece = std::variant<std::string_view, reference, kept_text, kept_action>;

    void stack_pending();
    void write(piece const & next);
    void describe(reference const & of);

    std::optional<text_sink> m_own_text;
    text_sink & m_text;
    std::vector<piece> m_stack;   ///< what is still to be written, the next piece last
    std::vector<piece> m_pending; ///< what the running `describe` has handed over to wait
    keeper<std::string> m_texts;
    keeper<action> m_actions;
};

/// Writes the reference to a port that drives something.
void write_reference(text_sink & text, GNL_PORT & port, GNL_GENERATOR * level, bool with_index, GNL_PORT * target);

} // namespace gnl_detail
