#pragma once

#include "gnl_generator.h"

#include <exception>
#include <iosfwd>
#include <string>
#include <vector>

namespace lbxgen {

/// One message of a generation, taken apart.
struct message
{
    std::string severity; ///< "error", "warning", "info" or "debug"
    std::string text;
    std::string cause;
    std::string action;
};

/// The messages that a top generator holds, in posting order.
std::vector<message> messages_of(GNL_GENERATOR & top);

/// Takes a stored text apart into message, cause and action.
message parse_message(std::string const & type, std::string const & stored);

/// Writes "error: text" with cause and action on lines of their own; `coloured` for a terminal.
void print_message(std::ostream & out, message const & message, bool coloured);

/// What an exception that has left the library or a generator says.
std::string exception_text(std::exception_ptr const & thrown);

} // namespace lbxgen
