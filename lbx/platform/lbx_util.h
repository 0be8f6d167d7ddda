#pragma once

#include <string>

/// Plain decimal.
std::string lbx_int_to_string(int value);

/// Cuts the next token off the front of `text` at any of `separators`; leading separators are skipped. Returns the
/// token ("" when nothing is left). With `keep_separator` the separator that ended the token stays in `text`.
std::string lbx_get_token(std::string & text, std::string const & separators, bool keep_separator);

/// Whether the text is a decimal integer with an optional sign.
bool lbx_is_integer_value(std::string const & text);

/// Converts "0x..." (hexadecimal), "0b..." (binary) or decimal digits of any length into binary digits without leading
/// zeros; the value zero gives "0". Prefix and digits are accepted in either case. An illegal character makes the
/// result false; the digits before it still count.
bool lbx_convert_numeric_string_to_binary_format(std::string const & text, std::string & binary_digits);

/// The name with a directory separator at its end; "" stays "".
std::string add_trailing_slashes_to_directory_name(std::string const & name);
