// The design that is written when a body was given up: the right ports, and messages that appear when it is compiled
// or simulated.

#include "gnl_generator.h"

#include <array>
#include <string_view>

namespace {

/// How the words of the message types read in a language; all in one order.
using message_words = std::array<std::string_view, 4>;
constexpr message_words stored_words{"ERROR", "WARNING", "INFO", "DEBUG"};
constexpr message_words verilog_words{"Error", "Warning", "Info", "Info"};
constexpr message_words vhdl_words{"ERROR", "WARNING", "NOTE", "NOTE"};
constexpr message_words qhdl_words{"ERROR", "WARNING", "INFO", "DEBUG"};

std::string_view word_of(GNL_MSG const & message, message_words const & words)
{
    for (std::size_t i = 0; i < stored_words.size(); ++i)
        if (stored_words[i] == message.get_msg_type())
            return words[i];
    return {};
}

/// What a character is written as inside a string; null where it stands for itself.
using escape_of = char const * (*)(char);

char const * verilog_escape(char c)
{
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\015";
    default:
        return nullptr;
    }
}

char const * vhdl_escape(char c)
{
    switch (c) {
    case '"':
        return "\"\"";
    case '\n':
        return "\" & LF & \"";
    case '\r':
        return "\" & CR & \"";
    default:
        return nullptr;
    }
}

char const * qhdl_escape(char c)
{
    switch (c) {
    case '"':
        return "\"\"";
    case '\n':
    case '\r':
        return " ";
    default:
        return nullptr;
    }
}

/// A message between quotes, as it has to be so that the string ends where the message does.
std::string quoted(char const * text, escape_of escape)
{
    std::string quoted = "\"";
    for (; *text != '\0'; ++text)
        if (char const * const escaped = escape(*text))
            quoted += escaped;
        else
            quoted += *text;
    return quoted + "\"";
}

void write_display(std::ostream & out, GNL_MSG const & message)
{
    auto const text = std::string(word_of(message, verilog_words)) + ": " + message.get_msg_text();
    out << "\t\t$display(" << quoted(text.c_str(), verilog_escape) << ");\n";
}

void write_assertion(std::ostream & out, GNL_MSG const & message, std::string_view condition,
                     message_words const & words, escape_of escape)
{
    out << "\tASSERT " << condition << "\tREPORT " << quoted(message.get_msg_text(), escape) << "\n"
        << "\tSEVERITY " << word_of(message, words) << ";\n";
}

} // namespace

void GNL_GENERATOR::dump_error_messages(std::ostream & out)
{
    bool started = false;
    reset_msg_list();
    while (move_to_next_msg()) {
        GNL_MSG const * const message = get_cur_msg();
        if (!message)
            continue;
        if (is_vhdl())
            write_assertion(out, *message, " FALSE \n", vhdl_words, vhdl_escape);
        else if (!is_verilog())
            write_assertion(out, *message, "(0) \n", qhdl_words, qhdl_escape);
        else {
            if (!started)
                out << "\tinitial/*synthesis enable_verilog_initial_construct*/\n \tbegin\n";
            write_display(out, *message);
        }
        started = true;
    }
    if (started && is_verilog())
        out << "\tend\n";
}

void GNL_GENERATOR::dump_error_file(std::ostream & out)
{
    made_port_connection(""); // the body may have been given up before its first connection
    if (is_verilog()) {
        out << "module ";
        dump_verilog_module_section(out);
        out << "/* synthesis synthesis_lumenbox=1 */;\n";
        dump_verilog_port_section(out);
        dump_error_messages(out);
        out << "endmodule \n";
    } else if (is_vhdl()) {
        auto const entity = get_entity_name();
        out << " LIBRARY ieee;\n USE ieee.std_logic_1164.all;\n\n"
            << " ENTITY  " << entity << " IS \n";
        dump_vhdl_port_section(out);
        out << " END " << entity << ";\n\n"
            << " ARCHITECTURE RTL OF " << entity << " IS\n"
            << "\t ATTRIBUTE synthesis_lumenbox : boolean;\n"
            << "\t ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS true;\n"
            << "\n BEGIN\n";
        dump_error_messages(out);
        out << "\n END RTL; \n";
    } else {
        dump_qhdl_subdesign_section(out);
        out << "BEGIN \n";
        dump_error_messages(out);
        out << "END;\n";
    }
}
