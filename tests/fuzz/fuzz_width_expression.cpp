// The expressions that authors give for widths: any bytes. An expression means the same each time and in parentheses.

#include "fuzz_design.h"

#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    // A text ends at its first NUL.
    std::string const text = std::string(reinterpret_cast<char const *>(data), size).c_str();
    fuzz_design design("WIDTH=12,DEPTH=3");
    int const value = design.evaluate_port_width_expression(text.c_str());
    FUZZ_CHECK(design.evaluate_port_width_expression(text.c_str()) == value);
    if (value != -1 && text.size() < 100)
        FUZZ_CHECK(design.evaluate_port_width_expression(("(" + text + ")").c_str()) == value);
    std::map<std::string, int, LESS_C_STRING> found;
    design.check_expression_for_width_parameters(text, found);
    return 0;
}
