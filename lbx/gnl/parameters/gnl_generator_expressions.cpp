#include "gnl_generator.h"

#include "lbx_util.h"

#include "lbx/gnl/parameters/width_expression.h"

int GNL_GENERATOR::evaluate_port_width_expression(char const * text)
{
    if (!text)
        return -1;
    auto const value_of = [this](std::string_view name) {
        return parameter_integer(std::string(name).c_str()).get_value(true);
    };
    return gnl_detail::width_expression_value(text, value_of).value_or(-1);
}

namespace {

/// Enters the default of the integer parameter `name`; whether there is one.
bool find_default(GNL_GENERATOR & generator, std::string const & name,
                  std::map<std::string, int, LESS_C_STRING> & found)
{
    auto * parameter = generator.get_parameter_object(name);
    if (!parameter || !parameter->is_integer_parameter())
        return false;
    int const value = static_cast<GNL_PARAMETER_INTEGER *>(parameter)->get_default_value();
    if (value == -1)
        return false;
    found[name] = value;
    return true;
}

} // namespace

bool GNL_GENERATOR::check_expression_for_width_parameters(std::string const & text,
                                                          std::map<std::string, int, LESS_C_STRING> & found)
{
    if (get_parameter_object(text))
        return find_default(*this, text, found);
    bool any = false;
    for (std::string rest = text; !rest.empty();)
        if (find_default(*this, lbx_get_token(rest, "* +-\\", false), found))
            any = true;
    return any;
}
