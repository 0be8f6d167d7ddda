#include "qhdl/qhdl_reader.h"

#include <fstream>
#include <iterator>

namespace qhdl {

void reader::add(std::string const & file, std::string_view text)
{
    auto parsed = parse_design(file, text);
    auto const & header = parsed.header;
    if (folded(file) != folded(header.name) + ".tdf")
        throw error(file, header.at, "the design is named " + header.name);
    auto const name = folded(header.name);
    if (!m_designs.emplace(name, std::move(parsed)).second)
        throw error(file, {}, "the design is there twice");
}

void reader::add_folder(std::filesystem::path const & folder)
{
    constexpr std::string_view last_line = "\n--VALID FILE\n";
    for (auto const & entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".tdf")
            continue;
        std::ifstream in(entry.path(), std::ios::binary);
        std::string const text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        auto const file = entry.path().filename().string();
        if (!text.ends_with(last_line))
            throw error(file, {}, "the file isn't marked as valid");
        add(file, text);
    }
}

void reader::add_cell(std::string_view function)
{
    auto header = parse_function(function);
    header.is_cell = true;
    auto const name = folded(header.name);
    if (!m_cells.emplace(name, std::move(header)).second)
        throw error("function", {}, "the cell is there twice");
}

namespace {

bool fits(declared_name const & declared, declared_name const & known)
{
    return folded(declared.name) == folded(known.name)
           && (declared.width == known.width || declared.width == declared_name::of_parameter);
}

bool has_pin(function_header const & known, pin_declaration const & wanted)
{
    for (auto const & pin : known.pins)
        if (fits(wanted.declared, pin.declared))
            // A function takes a bidirectional port as one of its results, or as an input.
            return wanted.direction == pin.direction || pin.direction == pin_direction::bidir;
    return false;
}

/// What a design declares about a function must be what the function is.
void check_declaration(std::string const & file, function_header const & declared, function_header const & known)
{
    for (auto const & pin : declared.pins)
        if (!has_pin(known, pin))
            throw error(file, pin.declared.at, known.name + " has no such port " + pin.declared.name);
    if (declared.pins.size() != known.pins.size())
        throw error(file, declared.at, "not all ports of " + known.name + " are declared");
}

} // namespace

std::string reader::verilog() const
{
    std::map<std::string, function_header const *> functions;
    for (auto const & [name, header] : m_cells)
        functions[name] = &header;
    for (auto const & [name, parsed] : m_designs)
        functions[name] = &parsed.header;
    std::string text;
    for (auto const & [name, parsed] : m_designs) {
        for (auto const & declared : parsed.functions)
            if (auto const known = functions.find(folded(declared.name)); known != functions.end())
                check_declaration(parsed.file, declared, *known->second);
        text += verilog_module(parsed, functions);
    }
    return text;
}

} // namespace qhdl
