#include "gnl_generator.h"

std::map<std::string, std::string, LESS_C_STRING> GNL_GENERATOR::get_vhdl_library_list()
{
    std::map<std::string, std::string, LESS_C_STRING> list;
    std::string const & text = get_vhdl_library();
    for (std::size_t start = 0; start < text.size();) {
        auto const end = std::min(text.find(';', start), text.size());
        if (end > start)
            add_to_vhdl_library_list(list, text.substr(start, end - start), false);
        start = end + 1;
    }
    return list;
}

void GNL_GENERATOR::add_to_vhdl_library_list(std::map<std::string, std::string, LESS_C_STRING> & list,
                                             std::string const & library, bool)
{
    if (!library.empty())
        list.emplace(library, library);
}
