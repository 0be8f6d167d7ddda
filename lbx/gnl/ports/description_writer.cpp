#include "description_writer.h"

#include <iterator>
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
        piece next = std::move(m_stack.back());
        m_stack.pop_back();
        write(next);
        stack_pending();
    }
}

void description_writer::stack_pending()
{
    if (m_pending.empty())
        return;
    m_stack.insert(m_stack.end(), std::make_move_iterator(m_pending.rbegin()),
                   std::make_move_iterator(m_pending.rend()));
    m_pending.clear();
}

void description_writer::text(std::string_view text)
{
    if (m_pending.empty())
        m_text << text;
    else
        m_pending.emplace_back(std::string(text));
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
        m_pending.emplace_back(std::move(step));
}

void description_writer::write(piece & next)
{
    if (auto const * text = std::get_if<std::string>(&next))
        m_text << *text;
    else if (auto const * of = std::get_if<reference>(&next))
        describe(*of);
    else
        std::get<action>(next)(m_text.stream());
}

void description_writer::describe(reference const & of)
{
    of.port->describe(*this, of.level, of.with_index, of.target);
}

} // namespace gnl_detail
