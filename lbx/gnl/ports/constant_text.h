#pragma once

#include "lbx/gnl/writers/text_sink.h"

#include <string>
#include <string_view>

namespace gnl_detail {

/// The Verilog literal of a constant that drives a signal of `bus_width` bits; `bits` are its binary digits. All zeros
/// and all ones are a replication when there is more than one bit: 5 is "4'b0101", 15 is "{4{1'b1}}". "" without bits.
std::string verilog_constant(std::string_view bits, int bus_width);

/// The VHDL string literal of `bits`, in pieces of at most 1000 digits, which is what tools read on one line.
void write_vhdl_bit_string(text_sink & text, std::string_view bits);

/// A constant of `bus_width` bits in the language that is being written; nothing without bits.
void write_constant(text_sink & text, std::string_view bits, int bus_width);

} // namespace gnl_detail
