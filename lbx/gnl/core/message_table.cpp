#include "lbx/gnl/core/message_table.h"

namespace gnl_detail {

std::string fill_inserts(std::string_view text, std::initializer_list<std::string> values)
{
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto const index = i + 2 < text.size() && text[i] == '{' && text[i + 2] == '}'
                               ? static_cast<std::size_t>(static_cast<unsigned char>(text[i + 1]) - '0')
                               : values.size();
        if (index < values.size()) {
            filled += values.begin()[index];
            i += 2;
        } else
            filled += text[i];
    }
    return filled;
}

} // namespace gnl_detail
