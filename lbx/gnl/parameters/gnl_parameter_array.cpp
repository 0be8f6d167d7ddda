// Parameter arrays: their elements, and the values that they find when they are made.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/leading_integer.h"

namespace {

std::unique_ptr<GNL_PARAMETER> copy_of(GNL_PARAMETER const & element)
{
    if (element.is_integer_parameter())
        return std::make_unique<GNL_PARAMETER_INTEGER>(static_cast<GNL_PARAMETER_INTEGER const &>(element));
    return std::make_unique<GNL_PARAMETER_STRING>(static_cast<GNL_PARAMETER_STRING const &>(element));
}

} // namespace

GNL_PARAMETER_ARRAY::GNL_PARAMETER_ARRAY(GNL_GENERATOR * parent, std::string const & name)
    : GNL_ELEMENT(parent, name)
{
}

GNL_PARAMETER_ARRAY::GNL_PARAMETER_ARRAY(GNL_PARAMETER_ARRAY const & other)
    : GNL_ELEMENT(other)
{
    copy_from(other);
}

GNL_PARAMETER_ARRAY::~GNL_PARAMETER_ARRAY() = default;

std::string GNL_PARAMETER_ARRAY::generate_key() const
{
    return generate_key_base(get_name());
}

std::string GNL_PARAMETER_ARRAY::generate_key_base(std::string const & name)
{
    return "PAR_ARY;" + name;
}

void GNL_PARAMETER_ARRAY::set_as_inherit_only()
{
    m_inherit_only = true;
    m_inherit_never = m_inherit_allowed = false;
}

void GNL_PARAMETER_ARRAY::set_as_inherit_never()
{
    m_inherit_never = true;
    m_inherit_only = m_inherit_allowed = false;
}

void GNL_PARAMETER_ARRAY::set_as_inherit_allowed()
{
    m_inherit_allowed = true;
    m_inherit_only = m_inherit_never = false;
}

std::string GNL_PARAMETER_ARRAY::generate_type_key() const
{
    return (is_integer_parameter_array() ? "ARRAY_NATURAL_" : "ARRAY_STRING_") + convert_int_to_string(m_array_width);
}

bool GNL_PARAMETER_ARRAY::is_used()
{
    if (get_parent())
        get_parent()->initialize_param_list();
    for (auto at = m_elements.begin(); !m_used && at != m_elements.end(); ++at)
        m_used = at->second->is_used();
    return m_used;
}

void GNL_PARAMETER_ARRAY::collect_values(std::map<int, std::string> & target)
{
    for (auto const & [index, element] : m_elements) {
        if (target.count(index) != 0)
            continue;
        std::string value = element_value(*element);
        if (!value.empty())
            target.emplace(index, std::move(value));
    }
}

void GNL_PARAMETER_ARRAY::construct_parameter_list()
{
    for (auto const & [index, value] : m_values) {
        auto made = make_element(get_name() + convert_int_to_string(index));
        assign_element(*made, value);
        m_elements[index] = std::move(made);
    }
}

GNL_PARAMETER & GNL_PARAMETER_ARRAY::element(int index)
{
    // The text comes first, so that an assignment to the element is the later one.
    if (get_parent())
        get_parent()->initialize_param_list();
    auto & element = m_elements[index];
    if (!element)
        element = make_element(get_name() + convert_int_to_string(index));
    return *element;
}

void GNL_PARAMETER_ARRAY::copy_from(GNL_PARAMETER_ARRAY const & other)
{
    if (this == &other)
        return;
    m_elements.clear();
    for (auto const & [index, element] : other.m_elements) {
        auto & copy = m_elements[index] = copy_of(*element);
        copy->change_name(get_name() + convert_int_to_string(index));
    }
    m_values = other.m_values;
    m_array_type = other.m_array_type;
    m_inherit_only = other.m_inherit_only;
    m_inherit_never = other.m_inherit_never;
    m_inherit_allowed = other.m_inherit_allowed;
    m_used = other.m_used;
    m_array_width = other.m_array_width;
}

GNL_PARAMETER_INTEGER_ARRAY::GNL_PARAMETER_INTEGER_ARRAY(GNL_GENERATOR * parent, std::string const & name,
                                                         int default_value)
    : GNL_PARAMETER_ARRAY(parent, name)
    , m_default_value(default_value)
{
    // An array of integers asks above its generator, an array of strings asks its generator: designs rely on both.
    if (parent && parent->get_parent())
        parent->get_parent()->collect_parameter_array_values(name, m_values);
    construct_parameter_list();
    if (default_value != -1)
        set_as_inherit_allowed();
}

GNL_PARAMETER_INTEGER_ARRAY::GNL_PARAMETER_INTEGER_ARRAY(GNL_PARAMETER_INTEGER_ARRAY const & other) = default;

GNL_PARAMETER_INTEGER_ARRAY & GNL_PARAMETER_INTEGER_ARRAY::operator=(GNL_PARAMETER_INTEGER_ARRAY const & other)
{
    copy_from(other);
    m_default_value = other.m_default_value;
    return *this;
}

std::string GNL_PARAMETER_INTEGER_ARRAY::get_default_value() const
{
    return m_default_value < 0 ? std::string() : convert_int_to_string(m_default_value);
}

GNL_PARAMETER_INTEGER & GNL_PARAMETER_INTEGER_ARRAY::operator[](int index)
{
    return static_cast<GNL_PARAMETER_INTEGER &>(element(index));
}

std::unique_ptr<GNL_PARAMETER> GNL_PARAMETER_INTEGER_ARRAY::make_element(std::string const & name) const
{
    return std::make_unique<GNL_PARAMETER_INTEGER>(nullptr, name, m_default_value);
}

void GNL_PARAMETER_INTEGER_ARRAY::assign_element(GNL_PARAMETER & element, std::string const & value) const
{
    static_cast<GNL_PARAMETER_INTEGER &>(element) = gnl_detail::leading_integer(value);
}

std::string GNL_PARAMETER_INTEGER_ARRAY::element_value(GNL_PARAMETER & element) const
{
    int const value = static_cast<GNL_PARAMETER_INTEGER &>(element).get_internal_value(false);
    return value < 0 ? std::string() : convert_int_to_string(value);
}

GNL_PARAMETER_STRING_ARRAY::GNL_PARAMETER_STRING_ARRAY(GNL_GENERATOR * parent, std::string const & name,
                                                       std::string const & value_list, int default_index)
    : GNL_PARAMETER_ARRAY(parent, name)
    , m_value_list(value_list)
    , m_default_index(default_index)
{
    if (!value_list.empty() && default_index != -1)
        set_as_inherit_allowed();
    if (parent)
        parent->collect_parameter_array_values(name, m_values);
    construct_parameter_list();
}

GNL_PARAMETER_STRING_ARRAY::GNL_PARAMETER_STRING_ARRAY(GNL_PARAMETER_STRING_ARRAY const & other) = default;

GNL_PARAMETER_STRING_ARRAY & GNL_PARAMETER_STRING_ARRAY::operator=(GNL_PARAMETER_STRING_ARRAY const & other)
{
    copy_from(other);
    m_value_list = other.m_value_list;
    m_default_index = other.m_default_index;
    return *this;
}

std::string GNL_PARAMETER_STRING_ARRAY::get_default_value() const
{
    if (m_default_index == -1)
        return {};
    return GNL_PARAMETER_STRING::strip_alias_values(GNL_PARAMETER_STRING::get_token(m_value_list, m_default_index));
}

GNL_PARAMETER_STRING & GNL_PARAMETER_STRING_ARRAY::operator[](int index)
{
    return static_cast<GNL_PARAMETER_STRING &>(element(index));
}

std::unique_ptr<GNL_PARAMETER> GNL_PARAMETER_STRING_ARRAY::make_element(std::string const & name) const
{
    return std::make_unique<GNL_PARAMETER_STRING>(nullptr, name, m_value_list, m_default_index);
}

void GNL_PARAMETER_STRING_ARRAY::assign_element(GNL_PARAMETER & element, std::string const & value) const
{
    static_cast<GNL_PARAMETER_STRING &>(element) = value;
}

std::string GNL_PARAMETER_STRING_ARRAY::element_value(GNL_PARAMETER & element) const
{
    std::string value = static_cast<GNL_PARAMETER_STRING &>(element).get_internal_value(false);
    return gnl_detail::equal_folded(value, "UNUSED") ? std::string() : value;
}
