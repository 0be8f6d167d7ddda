// The parameter text that a front-end hands over: any bytes, with and without failures ignored, on a design and on a
// subdesign of it.

#include "fuzz_design.h"

#include <cstdint>
#include <string>

namespace {

void read_everything(fuzz_design & design)
{
    design.width.get_value(false);
    design.depth.get_value(false);
    design.mode.get_value(false);
    design.free_text.get_value(false);
    design.value.get_value().as_bin_string();
    design.a.get_width();
    design.y.get_width();
    for (char ** entry = design.get_parameter_list_with_values(); **entry != '\0'; ++entry)
        FUZZ_CHECK(!std::string(*entry).empty());
    design.dump_header(true);
    design.get_file_name();
    design.get_collision_check_directory_path();
}

void parse(std::string const & text, bool ignore_failures)
{
    try {
        fuzz_design top(ignore_failures ? "" : text.c_str());
        top.initialize_param_list();
        auto & sub = *new fuzz_design(ignore_failures ? text.c_str() : "iname=s", &top);
        sub.init_param_list_from_string(text.c_str(), ignore_failures);
        read_everything(sub);
        read_everything(top);
    } catch (char * raised) {
        delete[] raised; // the text may ask for errors to be raised
    } catch (bool) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::string const text(reinterpret_cast<char const *>(data), size);
    parse(text, false);
    parse(text, true);
    return 0;
}
