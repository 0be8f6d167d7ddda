#include "gnl_port.h"

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"

#include <algorithm>
#include <array>

namespace {

bool ends_in_digit(std::string const & name)
{
    return !name.empty() && name.back() >= '0' && name.back() <= '9';
}

} // namespace

std::string GNL_PORT::get_vhdl_name() const
{
    static constexpr std::array<std::string_view, 3> reserved = {"in", "out", "abs"};
    bool const is_reserved = std::any_of(reserved.begin(), reserved.end(), [this](std::string_view word) {
        return gnl_detail::equal_folded(word, get_name());
    });
    return is_reserved ? "a_" + get_name() : get_name();
}

std::string GNL_PORT::fix_wire_name(GNL_GENERATOR * parent, std::string const & name, int width_sum)
{
    // There a bus name that ends in a digit reads as one bit of that bus.
    std::string fixed = is_qhdl() && width_sum >= 1 && ends_in_digit(name) ? name + "w" : name;
    if (parent && !parent->check_wire_name_collision(fixed))
        return get_wire_name_from_parent(parent, "", "");
    return fixed;
}

std::uint32_t GNL_PORT::late_name_number(GNL_GENERATOR * parent)
{
    return parent ? static_cast<std::uint32_t>(parent->get_top_level_parent()->get_wire_counter()) : 0;
}

std::string GNL_PORT::get_wire_name_from_parent(GNL_GENERATOR * parent, std::string const & first,
                                                std::string const & second)
{
    return parent ? parent->generate_wire_name(first, second) : "wire_" + first + second + "0";
}
