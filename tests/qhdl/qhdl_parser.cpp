#include "qhdl/qhdl_parser.h"

#include <utility>

namespace qhdl {
namespace {

constexpr int longest_number = 7;

/// A recursive descent over the words of one file.
class parser
{
public:
    parser(std::string file, std::string_view text)
        : m_file(std::move(file))
        , m_words(words_of(m_file, text))
    {
    }

    design run_design()
    {
        design parsed;
        parsed.file = m_file;
        for (;;) {
            if (takes("include")) {
                expect_kind(word_kind::string, "a file name");
                expect(";");
            } else if (takes("options")) {
                options();
            } else if (at("function")) {
                parsed.functions.push_back(function());
            } else {
                break;
            }
        }
        if (takes("parameters"))
            throw error(m_file, before().at, "designs with parameters of their own are not known");
        parsed.header = subdesign();
        if (takes("variable"))
            variables(parsed);
        expect("begin");
        while (!takes("end"))
            parsed.statements.push_back(one_statement());
        expect(";");
        expect_end();
        return parsed;
    }

    function_header run_function()
    {
        auto header = function();
        expect_end();
        return header;
    }

private:
    // ---- words

    word const & here() const { return m_words[m_next]; }
    word const & before() const { return m_words[m_next - 1]; }
    /// Whether the next word is this symbol or keyword.
    bool at(std::string_view text) const
    {
        return (here().kind == word_kind::symbol || here().kind == word_kind::name) && folded(here().text) == text;
    }
    bool takes(std::string_view text)
    {
        bool const found = at(text);
        m_next += found ? 1 : 0;
        return found;
    }
    void expect(std::string_view text)
    {
        if (!takes(text))
            unexpected("\"" + std::string(text) + "\"");
    }
    word expect_kind(word_kind kind, std::string const & wanted)
    {
        if (here().kind != kind)
            unexpected(wanted);
        return m_words[m_next++];
    }
    void expect_end()
    {
        if (here().kind != word_kind::end)
            unexpected("the end of the text");
    }
    [[noreturn]] void unexpected(std::string const & wanted) const
    {
        auto const found = here().kind == word_kind::end ? "the end of the text" : "\"" + here().text + "\"";
        throw error(m_file, here().at, "expected " + wanted + ", found " + found);
    }

    word expect_name()
    {
        static constexpr std::string_view keywords =
            " assert begin bidir end function gnd include input node not options or and xor output parameters report "
            "returns severity subdesign variable vcc wire with ";
        if (here().kind == word_kind::name && keywords.find(" " + folded(here().text) + " ") != std::string_view::npos)
            unexpected("a name");
        return expect_kind(word_kind::name, "a name");
    }
    int expect_number()
    {
        auto const number = expect_kind(word_kind::number, "a number");
        if (number.text.size() > longest_number)
            throw error(m_file, number.at, number.text + " is too large");
        return std::stoi(number.text);
    }

    // ---- declarations

    void options()
    {
        expect_name();
        expect("=");
        expect_kind(word_kind::string, "the option's text");
        expect(";");
    }

    /// A name and the range "[7..0]" that may follow it.
    declared_name declaration()
    {
        auto const name = expect_name();
        declared_name declared{name.text, declared_name::no_range, name.at};
        if (!takes("["))
            return declared;
        place const at_high = here().at;
        if (here().kind == word_kind::name) {
            expect_name();
            expect("-");
            if (expect_number() != 1)
                throw error(m_file, at_high, "a range by a parameter ends one below it");
            declared.width = declared_name::of_parameter;
        } else {
            declared.width = expect_number() + 1;
        }
        expect("..");
        if (expect_number() != 0)
            throw error(m_file, at_high, "a declared range goes down to 0");
        expect("]");
        return declared;
    }

    function_header function()
    {
        expect("function");
        auto const name = expect_name();
        function_header header{name.text, {}, name.at};
        pins(header, pin_direction::input);
        if (takes("with")) {
            expect("(");
            do {
                expect_name();
                if (takes("="))
                    parameter();
            } while (takes(","));
            expect(")");
        }
        expect("returns");
        pins(header, pin_direction::output);
        expect(";");
        return header;
    }
    void pins(function_header & header, pin_direction direction)
    {
        expect("(");
        if (takes(")"))
            return;
        do
            header.pins.push_back({declaration(), direction});
        while (takes(","));
        expect(")");
    }

    function_header subdesign()
    {
        expect("subdesign");
        auto const name = expect_name();
        function_header header{name.text, {}, name.at};
        expect("(");
        while (!takes(")")) {
            auto declared = declaration();
            expect(":");
            header.pins.push_back({std::move(declared), direction()});
            expect(";");
        }
        return header;
    }
    pin_direction direction()
    {
        if (takes("input"))
            return pin_direction::input;
        if (takes("output"))
            return pin_direction::output;
        if (takes("bidir"))
            return pin_direction::bidir;
        unexpected("a direction");
    }

    void variables(design & parsed)
    {
        do
            parsed.variables.push_back(variable());
        while (!at("begin"));
    }
    variable_declaration variable()
    {
        using kind = variable_declaration::variable_kind;
        variable_declaration made{declaration(), kind::instance, "", {}};
        if (made.declared.width == declared_name::of_parameter)
            throw error(m_file, made.declared.at, "the width of a variable is a number");
        expect(":");
        if (takes("wire"))
            made.kind = kind::wire;
        else if (takes("node"))
            made.kind = kind::node;
        else
            made.function = expect_name().text;
        if (made.kind == kind::instance && takes("with"))
            made.parameters = parameters();
        expect(";");
        return made;
    }

    std::vector<parameter_value> parameters()
    {
        std::vector<parameter_value> values;
        expect("(");
        do {
            auto const name = expect_name().text;
            expect("=");
            values.push_back(parameter());
            values.back().name = name;
        } while (takes(","));
        expect(")");
        return values;
    }
    parameter_value parameter()
    {
        if (here().kind == word_kind::string)
            return {"", m_words[m_next++].text, true};
        return {"", std::to_string(expect_number()), false};
    }

    // ---- statements

    statement one_statement()
    {
        if (at("assert"))
            report();
        statement made{one_reference(), {}};
        expect("=");
        made.source = one_expression();
        expect(";");
        return made;
    }
    /// A design with messages is no design to translate.
    [[noreturn]] void report()
    {
        place const start = here().at;
        expect("assert");
        expect("(");
        expect_number();
        expect(")");
        expect("report");
        throw error(m_file, start, "the design reports \"" + expect_kind(word_kind::string, "a message").text + "\"");
    }

    reference one_reference()
    {
        auto const name = expect_name();
        reference made{name.text, one_subscript(), "", {}, name.at};
        if (takes(".")) {
            made.pin = expect_name().text;
            made.bits = one_subscript();
        }
        return made;
    }
    std::optional<subscript> one_subscript()
    {
        subscript made;
        made.at = here().at;
        if (!takes("["))
            return {};
        if (takes("]"))
            return made;
        made.all = false;
        made.high = made.low = expect_number();
        if (takes(".."))
            made.low = expect_number();
        if (made.low > made.high)
            throw error(m_file, made.at, "the range goes up");
        expect("]");
        return made;
    }

    /// "#" binds weakest, then "$", then "&".
    expression one_expression() { return binary("#", expression_kind::op_or, &parser::difference); }
    expression difference() { return binary("$", expression_kind::op_xor, &parser::product); }
    expression product() { return binary("&", expression_kind::op_and, &parser::operand); }
    expression binary(std::string_view symbol, expression_kind kind, expression (parser::*tighter)())
    {
        auto left = (this->*tighter)();
        while (at(symbol)) {
            expression joined{kind, here().at, {}, "", false, {}};
            expect(symbol);
            joined.operands.push_back(std::move(left));
            joined.operands.push_back((this->*tighter)());
            left = std::move(joined);
        }
        return left;
    }

    expression operand()
    {
        place const start = here().at;
        if (takes("!")) {
            expression inverted{expression_kind::op_not, start, {}, "", false, {}};
            inverted.operands.push_back(operand());
            return inverted;
        }
        if (takes("("))
            return in_parentheses(start);
        if (here().kind == word_kind::bits)
            return {expression_kind::constant, start, {}, m_words[m_next++].text, false, {}};
        if (takes("vcc"))
            return {expression_kind::constant, start, {}, "1", true, {}};
        if (takes("gnd"))
            return {expression_kind::constant, start, {}, "0", true, {}};
        return {expression_kind::reference, start, one_reference(), "", false, {}};
    }
    /// One expression in parentheses, or a list.
    expression in_parentheses(place start)
    {
        expression list{expression_kind::list, start, {}, "", false, {}};
        do
            list.operands.push_back(one_expression());
        while (takes(","));
        expect(")");
        return list;
    }

    std::string m_file;
    std::vector<word> m_words;
    std::size_t m_next = 0;
};

} // namespace

design parse_design(std::string const & file, std::string_view text)
{
    return parser(file, text).run_design();
}

function_header parse_function(std::string_view text)
{
    return parser("function", text).run_function();
}

} // namespace qhdl
