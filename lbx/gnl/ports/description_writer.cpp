#include "description_writer.h"

#include <utility>

namespace gnl_detail {
namespace {

/// Whether describing `port` leads to other expressions.
bool holds_others(GNL_PORT const & port)
{
    return port.is_logic() || port.is_concat_port();
}

} // namespace

void description_writer::run(GNL_PORT & port, GNL_GENERATOR * level, bool with_index, GNL_PORT * target)
{
    describe({&port, level, target, with_index});
    stack_pending();
    while (!m_stack.empty()) {
        piece const next = m_stack.back();
        m_stack.pop_back();
        write(next);
        stack_pending();
    }
}

void description_writer::stack_pending()
{
    if (m_pending.empty())
        return;
    m_stack.insert(m_stack.end(), m_pending.rbegin(), m_pending.rend());
    m_pending.clear();
}

void description_writer::text(std::string_view text)
{
    if (m_pending.empty())
        m_text << text;
    else
        m_pending.emplace_back(kept_text{m_texts.keep(std::string(text))});
}

void description_writer::word(std::string_view text)
{
    if (m_pending.empty())
        m_text << text;
    else
        m_pending.emplace_back(text);
}

void description_writer::port(GNL_PORT & port, GNL_GENERATOR * level, bool with_index, GNL_PORT * target)
{
    reference const of{&port, level, target, with_index};
    if (m_pending.empty() && !holds_others(port))
        describe(of);
    else
        m_pending.emplace_back(of);
}

void description_writer::call(action step)
{
    if (m_pending.empty())
        step(m_text.stream());
    else
        m_pending.emplace_back(kept_action{m_actions.keep(std::move(step))});
}

void description_writer::write(piece const & next)
{
    if (auto const * word = std::get_if<std::string_view>(&next))
        m_text << *word;
    else if (auto const * of = std::get_if<reference>(&next))
        describe(*of);
    else if (auto const * text = std::get_if<kept_text>(&next))
        m_text << m_texts.take(text->index);
    else
        m_actions.take(std::get<kept_action>(next).index)(m_text.stream());
}

void description_writer::describe(reference const & of)
{
    of.port->describe(*this, of.level, of.with_index, of.target);
}

void write_reference(text_sink & text, GNL_PORT & port, GNL_GENERATOR * level, bool with_index, GNL_PORT * target)
{
    // Declared ports may be of an author's own class, with a description of their own.
    if (port.is_simple_port())
        port.dump_port_description(text.stream(), level, with_index, target);
    else
        description_writer(text).run(port, level, with_index, target);
}

} // namespace gnl_detail
