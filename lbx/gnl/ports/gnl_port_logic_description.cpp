#include "description_writer.h"
#include "reference_text.h"

#include <array>

using namespace gnl_detail;

namespace {

/// The words of a language. A NOT is written "(", its word, the operand and ")".
struct operator_words
{
    std::string_view not_word, and_word, or_word, xor_word;
};
constexpr operator_words qhdl_words{"! ", " & ", " # ", " $ "};
constexpr std::array<operator_words, 4> words_of_language{{
    qhdl_words,
    {"~ ", " & ", " | ", " ^ "},
    {"NOT ", " AND ", " OR ", " XOR "},
    qhdl_words,
}};

std::string_view word_of(int operation)
{
    operator_words const & words = words_of_language.at(static_cast<std::size_t>(GNL_ELEMENT::get_gen_language()));
    switch (operation) {
    case GNL_PORT_LOGIC::not_operation:
        return words.not_word;
    case GNL_PORT_LOGIC::and_operation:
        return words.and_word;
    case GNL_PORT_LOGIC::or_operation:
        return words.or_word;
    default:
        return words.xor_word;
    }
}

bool is_range(GNL_PORT const * port)
{
    return port && port->is_range_port();
}

/// Whether `x` must be written with its index to fit beside `y` in VHDL: `y` is a bit and `x` a vector of one.
bool needs_index(GNL_PORT & x, GNL_PORT & y)
{
    if (x.get_width() > y.get_width() || (y.is_range_port() && y.get_width() == 1))
        return true;
    if (!y.is_logic() || y.need_to_create_vhdl_loop())
        return false;
    auto const & logic = static_cast<GNL_PORT_LOGIC const &>(y);
    return is_range(logic.get_first_operand()) || is_range(logic.get_second_operand());
}

/// The operand `x` beside the operand `y`.
void write_operand(description_writer & writer, GNL_PORT & x, GNL_PORT & y, GNL_GENERATOR * level, bool with_index,
                   GNL_PORT * target)
{
    if (GNL_ELEMENT::is_verilog() && x.get_bus_width() < y.get_bus_width()) {
        writer.text("{" + std::to_string(y.get_bus_width() / x.get_bus_width()) + "{");
        writer.port(x, level, with_index, target);
        writer.word("}}");
        return;
    }
    bool const index = GNL_ELEMENT::is_vhdl() && needs_index(x, y);
    writer.port(x, level, with_index || index, target);
}

/// The index behind an expression that is a signal of its own.
void write_signal_index(text_sink & text, int width, bool with_index)
{
    if (!GNL_ELEMENT::is_vhdl()) {
        if (with_index && width > 0)
            text << "[" << width - 1 << "..0]";
    } else if (width == 0)
        text << "(0)"; // also a scalar's signal is declared with one element
    else if (with_index)
        write_vhdl_range(text, width);
}

} // namespace

void GNL_PORT_LOGIC::dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index,
                                           GNL_PORT * target)
{
    description_writer(out).run(*this, level, with_index, target);
}

void GNL_PORT_LOGIC::describe(description_writer & writer, GNL_GENERATOR * level, bool with_index, GNL_PORT * target)
{
    if (need_to_create_vhdl_loop() || (get_parent() && get_parent()->generate_structural_netlist())) {
        writer.sink() << get_source_name(true);
        write_signal_index(writer.sink(), get_width(), with_index);
        return;
    }
    writer.word("(");
    if (m_first_operand && !is_not_port() && m_second_operand) {
        write_operand(writer, *m_first_operand, *m_second_operand, level, with_index, target);
        writer.word(word_of(m_operation));
        write_operand(writer, *m_second_operand, *m_first_operand, level, with_index, target);
    } else if (m_first_operand) {
        writer.word(word_of(not_operation));
        writer.port(*m_first_operand, level, with_index, target);
    }
    writer.word(")");
}
