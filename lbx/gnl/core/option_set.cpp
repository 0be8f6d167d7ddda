#include "lbx/gnl/core/option_set.h"

#include "gnl_generator.h"
#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/core/leading_integer.h"

namespace gnl_detail {

namespace {

std::unique_ptr<GNL_PARAMETER> make_option(option_row const & row)
{
    if (row.integer)
        return std::make_unique<GNL_PARAMETER_INTEGER>(nullptr, std::string(row.name), leading_integer(row.value_list));
    return std::make_unique<GNL_PARAMETER_STRING>(nullptr, std::string(row.name), std::string(row.value_list),
                                                  row.default_index);
}

} // namespace

option_set::option_set() = default;
option_set::~option_set() = default;

bool option_set::declares(std::string_view name, option_id & id)
{
    if (name.size() < 8 || !equal_folded(name.substr(0, 3), "LBX"))
        return false;
    for (std::size_t i = 0; i < option_rows.size(); ++i)
        if (equal_folded(name, option_rows[i].name)) {
            id = static_cast<option_id>(i);
            return true;
        }
    return false;
}

GNL_PARAMETER & option_set::get(GNL_GENERATOR & owner, option_id id)
{
    auto & option = m_options[static_cast<std::size_t>(id)];
    if (option)
        return *option;
    auto const & row = row_of(id);
    option = make_option(row);
    option->m_option = true;
    option->m_used_for_hash = row.hashed;
    option->m_hidden = row.hidden;
    if (row.inherit_only)
        option->set_as_inherit_only();
    option->m_included_in_declaration = row.declared;
    owner.registry().file_option(*option);
    return *option;
}

void option_set::make_all(GNL_GENERATOR & owner)
{
    for (int i = 0; i < option_count; ++i)
        get(owner, static_cast<option_id>(i));
}

bool option_set::given(option_id id) const
{
    auto const * option = find(id);
    return option && (option->m_used || option->m_value_changed);
}

} // namespace gnl_detail
