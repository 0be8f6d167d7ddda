#include "giga_stl.h"

std::string to_upper_case(std::string text)
{
    for (char & character : text)
        if (character >= 'a' && character <= 'z')
            character = static_cast<char>(character - 'a' + 'A');
    return text;
}
