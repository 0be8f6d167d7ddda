#include "gnl_element.h"

#include "gnl_generator.h"

#include "lbx_util.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/core_messages.h"
#include "lbx/gnl/core/element_registry.h"

#include <algorithm>
#include <cassert>
#include <vector>

using gnl_detail::folded;

int GNL_ELEMENT::m_language = GNL_QHDL;

bool LESS_C_STRING::operator()(std::string_view a, std::string_view b) const noexcept
{
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return static_cast<unsigned char>(folded(x)) < static_cast<unsigned char>(folded(y));
    });
}

GNL_ELEMENT::GNL_ELEMENT(GNL_GENERATOR * parent, std::string const & name)
    : m_parent(parent)
    , m_name(name)
{
    if (static_cast<GNL_ELEMENT *>(m_parent) == this)
        m_parent = nullptr; // reported when the generator exists
    else if (m_parent)
        m_parent->insert(this, "");
}

GNL_ELEMENT::GNL_ELEMENT(GNL_GENERATOR * parent, std::string const & name, parameter_tag)
    : m_parent(parent)
    , m_name(name)
{
    if (!m_parent)
        return;
    if (m_parent->is_in_rtl_body()) {
        m_slot = refused;
        gnl_detail::report<gnl_detail::core_message::parameter_in_body>(*m_parent, GNL_ELEMENT::get_hierarchical_name(),
                                                                        m_parent->get_hierarchical_name());
    } else
        m_parent->insert(this, "");
}

GNL_ELEMENT::GNL_ELEMENT(GNL_GENERATOR * parent, std::uint32_t number)
    : m_parent(parent)
    , m_name(number)
{
    if (m_parent)
        m_parent->insert(this, "");
}

GNL_ELEMENT::GNL_ELEMENT(GNL_ELEMENT const & other)
    : m_parent(other.m_parent)
    , m_name(other.get_name())
{
}

GNL_ELEMENT & GNL_ELEMENT::operator=(GNL_ELEMENT const & other)
{
    if (m_slot == unregistered) {
        m_parent = other.m_parent;
        set_name(other.get_name());
    }
    return *this;
}

GNL_ELEMENT::~GNL_ELEMENT()
{
    if (!m_parent || m_slot == unregistered)
        return;
    try {
        m_parent->remove(this, "", true);
    } catch (char const * text) {
        // An error was to be thrown to the front-end, or the body was to end. A destructor can do neither.
        delete[] text;
    } catch (...) {
    }
}

std::string GNL_ELEMENT::generate_key() const
{
    return get_name();
}

std::string GNL_ELEMENT::make_late_name(std::uint32_t) const
{
    return {};
}

/// Names of nested expressions hold one another, as deep as their author nested them.
std::string const & GNL_ELEMENT::late_name() const
{
    std::vector<GNL_ELEMENT const *> waiting{this};
    while (!waiting.empty()) {
        GNL_ELEMENT const & next = *waiting.back();
        GNL_ELEMENT const * const source = next.m_name.is_made() ? nullptr : next.late_name_source();
        if (source && source->has_late_name()) {
            waiting.push_back(source);
            continue;
        }
        waiting.pop_back();
        if (!next.m_name.is_made())
            next.m_name.set(next.has_late_name() ? next.make_late_name(next.m_name.number()) : std::string());
    }
    assert(m_name.is_made());
    return m_name.text();
}

std::string GNL_ELEMENT::get_hierarchical_name() const
{
    return m_parent ? m_parent->get_hierarchical_name() + "|" + get_name() : get_name();
}

void GNL_ELEMENT::change_name(std::string const & name)
{
    // Names that hold this one keep what it was when they were given. They stand here or, on a subdesign's port, above.
    for (GNL_GENERATOR * at = m_parent; at && is_port(); at = at == m_parent ? m_parent->get_parent() : nullptr)
        at->registry().make_late_names();
    set_name(name);
    re_register();
}

void GNL_ELEMENT::re_register()
{
    if (m_parent)
        m_parent->registry().file_again(*this);
}

std::string GNL_ELEMENT::get_parent_instance_name() const
{
    if (!m_parent)
        return "NULLSTR";
    GNL_GENERATOR const * const array = m_parent->get_slice_index() >= 0 ? m_parent->get_array_parent() : nullptr;
    return array ? array->get_instance_name() : m_parent->get_instance_name();
}

std::string GNL_ELEMENT::get_parent_key() const
{
    return m_parent ? m_parent->generate_key() : std::string();
}

std::string GNL_ELEMENT::convert_int_to_string(int value)
{
    return lbx_int_to_string(value);
}
