#include "gnl_generator.h"

#include <cstdlib>
#include <iostream>

namespace {

using count_map = std::map<std::string, int, LESS_C_STRING>;

struct resource
{
    std::string unit;
    int count;
};

/// "reg/2" with a count of 3 is 2 of "reg": the text behind the "/" says how many units one piece holds.
resource printed_resource(std::string const & unit, int count)
{
    auto const slash = unit.find('/');
    if (slash == std::string::npos)
        return {unit, count};
    int const divisor = std::atoi(unit.c_str() + slash + 1);
    return {unit.substr(0, slash), divisor > 0 ? count / divisor + (count % divisor != 0) : count};
}

/// Calls `write(unit, count)` for each resource that is used.
template <class WRITE> void for_each_resource(count_map const & resources, WRITE write)
{
    for (auto const & [unit, count] : resources) {
        if (count <= 0)
            continue;
        auto const printed = printed_resource(unit, count);
        write(printed.unit, printed.count);
    }
}

} // namespace

void GNL_GENERATOR::add_to_resource_map(count_map & map, std::string const & unit, int count) const
{
    if (!unit.empty())
        map[unit] += count;
}

void GNL_GENERATOR::update_resource_map(std::string const & unit, int count)
{
    add_to_resource_map(m_state.resource_map, unit, count);
}

void GNL_GENERATOR::add_to_lcell_resource_count(int count)
{
    update_resource_map("lut", count);
}

int GNL_GENERATOR::get_resource_unit(std::string & unit)
{
    unit = get_name();
    if (is_primitive()) {
        auto entity = get_entity_name();
        if (!entity.empty())
            unit = std::move(entity);
    }
    return 1;
}

void GNL_GENERATOR::count_total_subdesign_resources(count_map & into)
{
    int const slices = get_array_width();
    bool const as_one_unit =
        (is_primitive() || !is_supported()) && (m_state.resource_map.empty() || &into == &m_state.resource_map);
    if (!as_one_unit) {
        int const factor = slices > 0 && !is_heterogeneous_array() ? slices : 1;
        for (auto const & [unit, count] : m_state.resource_map)
            add_to_resource_map(into, unit, count * factor);
        return;
    }
    std::string unit;
    if (slices > 0 && is_heterogeneous_array()) {
        for (int i = 0; i < slices; ++i) {
            int const count = get_array_slice(i)->get_resource_unit(unit);
            add_to_resource_map(into, unit, count);
        }
        return;
    }
    int const count = get_resource_unit(unit);
    add_to_resource_map(into, unit, slices > 0 ? count * slices : count);
}

void GNL_GENERATOR::dump_resources(std::ostream & out)
{
    if (is_in_resource_count_mode()) {
        m_state.resource_count_text += return_resource_count_as_string();
        return;
    }
    // A line of a file has the name first, a count text the count: readers rely on either order.
    for_each_resource(m_state.resource_map,
                      [&out](std::string const & unit, int count) { out << unit << " " << count << " "; });
}

std::string GNL_GENERATOR::return_resource_count_as_string()
{
    std::string text;
    for_each_resource(m_state.resource_map, [&text](std::string const & unit, int count) {
        text += convert_int_to_string(count) + " " + unit + ";";
    });
    return text;
}

void GNL_GENERATOR::add_to_subdesign_resc_count_list(std::string const & stem, std::string const & text)
{
    m_state.subdesign_resc_count[stem] = text;
}

std::string GNL_GENERATOR::get_subdesign_resc_count(std::string const & stem) const
{
    auto const entry = m_state.subdesign_resc_count.find(stem);
    return entry == m_state.subdesign_resc_count.end() ? std::string() : entry->second;
}

char const * GNL_GENERATOR::get_resource_count()
{
    set_resource_count_mode();
    generate_subdesign(std::cout); // nothing is written in this mode
    reset_resource_count_mode();
    return m_state.resource_count_text.c_str();
}
