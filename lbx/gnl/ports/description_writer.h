#pragma once

#include "gnl_port.h"

#include "lbx/gnl/writers/text_sink.h"

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace gnl_detail {

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
        : m_text(out)
    {
    }
    description_writer(description_writer const &) = delete;
    description_writer & operator=(description_writer const &) = delete;

    /// Writes the whole reference to `port`.
    void run(GNL_PORT & port, GNL_GENERATOR * level, bool with_index, GNL_PORT * target);

    /// Where a `describe` that hands over no pieces at all writes.
    text_sink & sink() { return m_text; }

    void text(std::string_view text);
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
    using piece = std::variant<std::string, reference, action>;

    void stack_pending();
    void write(piece & next);
    void describe(reference const & of);

    text_sink m_text;
    std::vector<piece> m_stack;   ///< what is still to be written, the next piece last
    std::vector<piece> m_pending; ///< what the running `describe` has handed over to wait
};

} // namespace gnl_detail
