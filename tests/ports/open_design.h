#pragma once

// A design in whose body the test stands, and the texts that its ports give.

#include "support.h"

#include <sstream>
#include <string>

namespace gnl_test {

/// A top design of `language` whose body is running.
class open_design : public design
{
public:
    explicit open_design(int language, char const * text = "", bool in_body = true)
        : design(nullptr, "top", text)
    {
        set_gen_language(language);
        initialize_param_list(); // options are not for the body to change
        if (in_body)
            set_in_rtl_body();
    }

    /// An input that is connected, as those of a design that is generated are.
    GNL_PORT_INPUT & input(std::string const & name, int width = 0, int default_value = -1)
    {
        auto & made = design::input(name, width, default_value);
        made.set_used();
        return made;
    }

    /// An array of cells with the instance name "arr".
    design & array(int slices, std::function<void(design &)> declare)
    {
        design & made = child("cell", "arr", "", slices);
        made.declare_slice = declare;
        declare(made);
        return made;
    }
};

inline std::string described(GNL_PORT & port, GNL_GENERATOR & level, bool with_index = false,
                             GNL_PORT * target = nullptr)
{
    std::ostringstream out;
    port.dump_port_description(out, &level, with_index, target);
    return out.str();
}

/// The text without and with the index of the whole bus.
inline std::string both_forms(GNL_PORT & port, GNL_GENERATOR & level)
{
    return described(port, level, false) + "  " + described(port, level, true);
}

} // namespace gnl_test
