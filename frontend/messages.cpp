#include "messages.h"

#include <algorithm>
#include <cctype>
#include <memory>
#include <ostream>

namespace lbxgen {

namespace {

/// Cuts the text behind `mark` off `text` and returns it; "" if the mark is not there.
std::string cut_off(std::string & text, std::string const & mark)
{
    auto const at = text.find(mark);
    if (at == std::string::npos)
        return {};
    auto behind = text.substr(at + mark.size());
    text.erase(at);
    return behind;
}

std::string trimmed(std::string const & text)
{
    auto const first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

char const * colour_of(std::string const & severity)
{
    if (severity == "error")
        return "\033[1;31m";
    return severity == "warning" ? "\033[1;33m" : "\033[1;36m";
}

} // namespace

message parse_message(std::string const & type, std::string const & stored)
{
    message result;
    result.severity = type;
    std::transform(type.begin(), type.end(), result.severity.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    result.text = stored;
    result.action = trimmed(cut_off(result.text, " ACTION : "));
    result.cause = trimmed(cut_off(result.text, " CAUSE : "));
    for (std::string const prefix : {"GNL_INTERNAL_ERROR: ", "GNL_INTERNAL_WARNING: ", "GNL_INTERNAL_INFO: "})
        if (result.text.starts_with(prefix))
            result.text.erase(0, prefix.size());
    return result;
}

std::vector<message> messages_of(GNL_GENERATOR & top)
{
    std::vector<message> messages;
    top.reset_msg_list();
    while (top.move_to_next_msg())
        messages.push_back(parse_message(top.get_cur_msg()->get_msg_type(), top.get_cur_msg()->get_msg_text()));
    return messages;
}

void print_message(std::ostream & out, message const & message, bool coloured)
{
    out << (coloured ? colour_of(message.severity) : "") << message.severity << ":" << (coloured ? "\033[0m" : "")
        << " " << message.text << "\n";
    if (!message.cause.empty())
        out << "  cause: " << message.cause << "\n";
    if (!message.action.empty())
        out << "  action: " << message.action << "\n";
}

std::string exception_text(std::exception_ptr const & thrown)
{
    try {
        // In a block of its own: clang takes this handler for one of the next kind as well, and warns.
        try {
            std::rethrow_exception(thrown);
        } catch (char * text) {
            std::unique_ptr<char[]> const owned(text); // the catcher's to free
            return owned.get();
        }
    } catch (std::exception const & exception) {
        return exception.what();
    } catch (char const * text) {
        return text;
    } catch (bool) {
        return "the body was given up";
    } catch (...) {
        return "unknown exception";
    }
}

} // namespace lbxgen
