#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/option_set.h"
#include "lbx/gnl/writers/text_sink.h"

#include <string>

// What an instance tells a cell besides its connections, as far as the languages agree.

namespace gnl_detail {

/// Parameters that are hints don't stand by themselves: they are collected in one text. False for all others.
inline bool collect_hint(GNL_GENERATOR const & cell, GNL_PARAMETER & parameter, std::string & hint)
{
    if (parameter.is_integer_parameter() && parameter.is_lpm_hint()) {
        auto & integer = static_cast<GNL_PARAMETER_INTEGER &>(parameter);
        cell.add_to_lpm_hint_string(hint, integer.get_name(),
                                    GNL_ELEMENT::convert_int_to_string(integer.get_value(true)));
        return true;
    }
    if (!parameter.is_string_parameter())
        return false;
    auto & text = static_cast<GNL_PARAMETER_STRING &>(parameter);
    if (text.is_lpm_hint())
        cell.add_to_lpm_hint_string(hint, text.get_name(), text.get_value(true));
    else if (equal_folded(text.get_name(), "lpm_hint"))
        cell.add_to_lpm_hint_string(hint, text.get_value(true), "");
    else
        return false;
    return true;
}

/// The number, or the expression that stands for it; in quotes if the parameter wants them.
inline void write_integer_value(text_sink & text, GNL_PARAMETER_INTEGER & parameter)
{
    std::string_view const quote = parameter.is_output_as_string_parameter() ? "\"" : "";
    text << quote;
    if (parameter.uses_expr_assignment())
        text << parameter.get_expr_assignment();
    else
        text << parameter.get_value(true);
    text << quote;
}

/// Whether the cell stands for another one, which it tells which of its ports are connected.
inline bool tells_used_ports(GNL_GENERATOR & cell)
{
    return cell.is_primitive() && !equal_folded(cell.get_name(), cell.get_primitive_name())
           && cell.option_equals(option_id::eda_planb, "ON");
}

} // namespace gnl_detail
