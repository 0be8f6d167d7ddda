// The parameter text, "NAME=value,NAME=value".
//
// Front-ends have written it in many ways: names and values with or without quotes, values that hold commas. So the
// scanner has no grammar; it cuts at "=" and decides for each comma whether it belongs to the value: it does as long as
// another comma comes before the next "=". Odd results of odd texts are kept, users depend on them.

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"
#include "lbx/gnl/core/leading_integer.h"

#include <algorithm>
#include <string_view>

using gnl_detail::equal_folded;

namespace {

constexpr char hint_name[] = "lpm_hint";

/// Positions in the signed sense that the trimming rules need: -1 where nothing is found.
using position = std::ptrdiff_t;

position first_not_of(std::string_view text, char c)
{
    return static_cast<position>(text.find_first_not_of(c));
}

position last_not_of(std::string_view text, char c)
{
    return static_cast<position>(text.find_last_not_of(c));
}

/// The front of `text` that ends with the last character before a trailing run of blanks, or of quotes.
std::string_view trimmed_at_end(std::string_view text)
{
    return text.substr(0, static_cast<std::size_t>(std::min(last_not_of(text, ' '), last_not_of(text, '"')) + 1));
}

/// The length is not corrected by what is cut off at the front, so then the tail of the name stays as it was.
std::string_view trimmed_name(std::string_view name)
{
    position const first = std::max(first_not_of(name, ' '), first_not_of(name, '"'));
    if (first < 0)
        return name;
    return name.substr(static_cast<std::size_t>(first), trimmed_at_end(name).size());
}

std::string_view trimmed_value(std::string_view value)
{
    value = trimmed_at_end(value);
    if (auto const quote = value.find('"'); quote != std::string_view::npos)
        value.remove_prefix(quote + 1);
    value.remove_prefix(std::min(value.find_first_not_of(' '), value.size()));
    return value;
}

} // namespace

/// Reads one text, and the hints in it: a hint is a parameter list of its own, whose text may take the remainder of the
/// list it stands in. Lists are kept on a stack over one buffer, so that neither depth nor length of a text matters.
class GNL_GENERATOR::parameter_text_scanner
{
public:
    parameter_text_scanner(GNL_GENERATOR & generator, std::string_view text)
        : m_generator(generator)
        , m_text(text)
    {
    }

    bool run(bool ignore_failures)
    {
        m_lists.push_back({0, m_text.size(), ignore_failures, true});
        for (;;) {
            if (m_lists.back().at < m_lists.back().end) {
                read_pair();
                continue;
            }
            bool const result = m_lists.back().result;
            m_lists.pop_back();
            if (m_lists.empty())
                return result; // that of a hint is nobody's concern
        }
    }

private:
    struct list
    {
        std::size_t at;
        std::size_t end;
        bool ignore_failures;
        bool result;
    };

    list & current() { return m_lists.back(); }
    std::string_view rest() { return std::string_view(m_text).substr(current().at, current().end - current().at); }
    std::size_t position_of(std::string_view piece) const
    {
        return static_cast<std::size_t>(piece.data() - m_text.data());
    }

    void read_pair()
    {
        skip_separators("=,\" ");
        std::string_view const whole = rest();
        std::size_t const equals = whole.find('=');
        std::string const name(trimmed_name(whole.substr(0, equals)));
        std::string_view value;
        if (equals == std::string_view::npos) {
            current().at = current().end;
        } else {
            current().at += equals;
            skip_separators("=,\"");
            value = trimmed_value(cut_value());
            if (value == "=")
                value = {};
        }
        use(name, value);
    }

    /// Skips the longest run of one of the characters; a mix of them is not skipped in one go.
    void skip_separators(std::string_view characters)
    {
        position longest = 0;
        for (char const c : characters)
            longest = std::max(longest, first_not_of(rest(), c));
        current().at += static_cast<std::size_t>(longest);
    }

    /// Cuts the value off, up to the last comma before the next "=". That comma stays unless another one follows.
    std::string_view cut_value()
    {
        std::string_view const whole = rest();
        std::size_t const first_comma = whole.find(',');
        std::size_t const equals = first_comma == std::string_view::npos ? first_comma : whole.find('=', first_comma);
        if (equals == std::string_view::npos) {
            current().at = current().end;
            return whole;
        }
        std::size_t const last_comma = whole.rfind(',', equals);
        bool const another_follows = whole.find(',', equals) != std::string_view::npos;
        current().at += last_comma + (another_follows ? 1 : 0);
        return whole.substr(0, last_comma);
    }

    void use(std::string const & name, std::string_view value)
    {
        if (equal_folded(name, hint_name))
            use_hint(name, value);
        else if (equal_folded(name, "iname") || equal_folded(name, "iname_nochange"))
            name_instance(std::string(value), equal_folded(name, "iname"));
        else if (value.empty())
            current().result = false;
        else if (current().ignore_failures || current().result)
            note(m_generator.assign_value_to_parameter(name, std::string(value)));
    }

    void note(bool assigned)
    {
        if (!current().ignore_failures)
            current().result = assigned;
    }

    void name_instance(std::string name, bool may_add_suffix)
    {
        if (name.empty())
            return;
        if (may_add_suffix && m_generator.get_array_width() > 0)
            name += 'a';
        GNL_GENERATOR * const parent = m_generator.get_parent();
        if (!parent || parent->check_instance_name_collision(name))
            m_generator.set_instance_name(name);
    }

    void use_hint(std::string const & name, std::string_view value)
    {
        if (!value.empty() && value.back() != ',' && !rest().starts_with(','))
            value = joined_with_rest(value);
        value = value.substr(0, value.find('"'));
        if (value.empty() || !(current().ignore_failures || current().result))
            return;
        bool const taken = m_generator.own_or_inherited_parameter(name) != nullptr;
        if (taken)
            m_generator.assign_to_known_parameter(name, std::string(value));
        std::size_t const at = position_of(value);
        m_lists.push_back({at, at + value.size(), taken, true});
    }

    /// The value, a comma and all that is left of the list. The value moves up to what is left: what lies between the
    /// two has been read.
    std::string_view joined_with_rest(std::string_view value)
    {
        std::size_t const begin = position_of(value);
        std::size_t const size = value.size();
        bool const nothing_left = current().at == current().end;
        std::size_t const comma = nothing_left ? begin + size : current().at - 1;
        if (comma == m_text.size())
            m_text += ',';
        std::size_t const start = comma - size;
        std::copy_backward(m_text.begin() + static_cast<position>(begin),
                           m_text.begin() + static_cast<position>(begin + size),
                           m_text.begin() + static_cast<position>(comma));
        m_text[comma] = ',';
        std::size_t const end = nothing_left ? comma + 1 : current().end;
        current().at = current().end;
        return std::string_view(m_text).substr(start, end - start);
    }

    GNL_GENERATOR & m_generator;
    std::string m_text;
    std::vector<list> m_lists;
};

bool GNL_GENERATOR::init_param_list_from_string(char const * text, bool ignore_failures)
{
    if (!text || !*text)
        return true;
    return parameter_text_scanner(*this, text).run(ignore_failures);
}

void GNL_GENERATOR::parse_parameter_list()
{
    m_state.parameter_list_initialized = true;
    gather_inheritable();
    init_param_list_from_string(m_state.parameter_list_text.c_str(), false);
    if (m_state.instance_name.empty() && get_parent() && m_state.slice_index < 0)
        set_auto_generated_instance_name();
}

GNL_PARAMETER * GNL_GENERATOR::own_or_inherited_parameter(std::string const & name)
{
    if (GNL_PARAMETER * const own = get_parameter_object(name))
        return own;
    initialize_param_list(); // which gathers what the subdesigns inherit, and lets the text come first
    return get_inherited_parameter_object(name);
}

bool GNL_GENERATOR::assign_to_known_parameter(std::string const & name, std::string const & value)
{
    GNL_PARAMETER * const parameter = own_or_inherited_parameter(name);
    if (!parameter)
        return false;
    if (parameter->is_string_parameter())
        static_cast<GNL_PARAMETER_STRING &>(*parameter) = value;
    else if (parameter->is_integer_parameter())
        static_cast<GNL_PARAMETER_INTEGER &>(*parameter) = gnl_detail::leading_integer(value);
    else if (parameter->is_vector_parameter())
        static_cast<GNL_PARAMETER_VECTOR &>(*parameter) = value;
    return true;
}

bool GNL_GENERATOR::assign_value_to_parameter(std::string const & name, std::string const & value)
{
    bool const known = assign_to_known_parameter(name, value);
    if (!equal_folded(name, hint_name))
        return known || assign_value_to_array_parameter(name, value);
    init_param_list_from_string(value.c_str(), known);
    return true;
}

bool GNL_GENERATOR::assign_value_to_array_parameter(std::string const & name, std::string const & value)
{
    std::size_t const last_of_base = name.find_last_not_of("0123456789");
    if (last_of_base == std::string::npos || last_of_base + 1 == name.size())
        return false;
    initialize_param_list();
    std::string const base = name.substr(0, last_of_base + 1);
    int const index = gnl_detail::leading_integer(name.substr(last_of_base + 1));
    GNL_PARAMETER_ARRAY * array = get_parameter_array_object(base);
    if (!array)
        array = get_inherited_parameter_array_object(base);
    if (!array)
        return false;
    if (array->is_string_parameter_array())
        static_cast<GNL_PARAMETER_STRING_ARRAY &>(*array)[index] = value;
    else if (array->is_integer_parameter_array())
        static_cast<GNL_PARAMETER_INTEGER_ARRAY &>(*array)[index] = gnl_detail::leading_integer(value);
    return true;
}

void GNL_GENERATOR::assign_parameter_values(char ** list)
{
    if (!list)
        return;
    for (; *list && **list; ++list) {
        std::string entry(*list);
        std::erase(entry, ' ');
        if (auto const equals = entry.find('='); equals != std::string::npos)
            assign_value_to_parameter(entry.substr(0, equals), entry.substr(entry.rfind('=') + 1));
    }
}
