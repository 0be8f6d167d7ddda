#include "constant_text.h"

#include "gnl_element.h"

#include <algorithm>

namespace gnl_detail {
namespace {

constexpr std::size_t longest_vhdl_string = 1000;

} // namespace

std::string verilog_constant(std::string_view bits, int bus_width)
{
    if (bits.empty())
        return {};
    bool const uniform =
        bits.front() != 'x' && std::ranges::all_of(bits, [&](char bit) { return bit == bits.front(); });
    if (bus_width > 1 && uniform)
        return "{" + std::to_string(bus_width) + "{1'b" + bits.front() + "}}";
    return std::to_string(bus_width) + "'b" + std::string(bits);
}

void write_vhdl_bit_string(text_sink & text, std::string_view bits)
{
    if (bits.size() <= longest_vhdl_string) {
        text << "\"" << bits << "\"";
        return;
    }
    std::string_view separator = "";
    for (; !bits.empty(); bits.remove_prefix(std::min(bits.size(), longest_vhdl_string))) {
        text << separator << "\"" << bits.substr(0, longest_vhdl_string) << "\"\n";
        separator = " & ";
    }
}

void write_constant(text_sink & text, std::string_view bits, int bus_width)
{
    if (bits.empty())
        return;
    if (GNL_ELEMENT::is_verilog())
        text << verilog_constant(bits, bus_width);
    else if (GNL_ELEMENT::is_vhdl())
        write_vhdl_bit_string(text, bits);
    else
        text << "B\"" << bits << "\"";
}

} // namespace gnl_detail
