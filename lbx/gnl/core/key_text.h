#pragma once

#include "gnl_generator.h"

#include "lbx/gnl/core/case_folding.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>

namespace gnl_detail {

/// The kinds of elements in the order of their keys: "GNRTR;", "LGC;", "PAR;", "PAR_ARY;", "PORT;", "RNG;".
enum class element_kind : std::uint8_t { generator, logic, parameter, parameter_array, port, range, other };
inline constexpr std::size_t element_kind_count = 7;

element_kind kind_of(GNL_ELEMENT const & element);

/// How a generator's key reads behind its prefix, in pieces so that no text is put together: name ";" instance name,
/// and ";" index for a slice. For the other named kinds the name alone.
class key_text
{
public:
    explicit key_text(std::string_view name) { m_pieces[m_count++] = name; }
    key_text(std::string_view name, std::string_view instance_name, int slice_index)
        : m_pieces{name, ";", instance_name}
        , m_count(3)
    {
        if (slice_index < 0)
            return;
        auto const end = std::to_chars(m_digits, m_digits + sizeof m_digits, slice_index).ptr;
        m_pieces[m_count++] = ";";
        m_pieces[m_count++] = std::string_view(m_digits, static_cast<std::size_t>(end - m_digits));
    }
    key_text(key_text const &) = delete;
    key_text & operator=(key_text const &) = delete;

    std::uint32_t hash(element_kind kind) const
    {
        std::uint32_t sum = 0x811c9dc5U ^ static_cast<std::uint32_t>(kind) * 0x9e3779b9U;
        for (std::size_t i = 0; i < m_count; ++i)
            for (char character : m_pieces[i])
                sum = (sum ^ static_cast<unsigned char>(folded(character))) * 0x01000193U;
        sum ^= sum >> 16;
        sum *= 0x7feb352dU;
        return sum ^ sum >> 15;
    }

    /// The folded bytes one by one, then 0 for ever.
    class reader
    {
    public:
        explicit reader(key_text const & text)
            : m_text(text)
        {
            skip_empty();
        }
        bool at_end() const { return m_piece == m_text.m_count; }
        unsigned char next()
        {
            if (at_end())
                return 0;
            auto const byte = static_cast<unsigned char>(folded(m_text.m_pieces[m_piece][m_at++]));
            skip_empty();
            return byte;
        }

    private:
        void skip_empty()
        {
            while (!at_end() && m_at == m_text.m_pieces[m_piece].size()) {
                ++m_piece;
                m_at = 0;
            }
        }
        key_text const & m_text;
        std::size_t m_piece = 0;
        std::size_t m_at = 0;
    };

    /// Below 0, 0 or above 0, as the folded texts stand in order.
    int compare(key_text const & other) const
    {
        reader a(*this), b(other);
        while (!a.at_end() && !b.at_end())
            if (int const difference = a.next() - b.next())
                return difference;
        return static_cast<int>(b.at_end()) - static_cast<int>(a.at_end());
    }

private:
    std::array<std::string_view, 5> m_pieces;
    std::size_t m_count = 0;
    char m_digits[12];
};

/// The key of a named element; of one of no known kind, the text that its class gives.
class named_key
{
public:
    named_key(element_kind kind, GNL_ELEMENT const & element)
        : m_own(kind == element_kind::other ? element.generate_key() : std::string())
        , m_text(make(kind, element, m_own))
    {
    }
    key_text const & text() const { return m_text; }

private:
    static key_text make(element_kind kind, GNL_ELEMENT const & element, std::string const & own)
    {
        if (kind == element_kind::other)
            return key_text(own);
        if (kind != element_kind::generator)
            return key_text(element.get_name());
        auto const & generator = static_cast<GNL_GENERATOR const &>(element);
        return key_text(element.get_name(), generator.get_instance_name(), generator.get_slice_index());
    }

    std::string m_own;
    key_text m_text;
};

} // namespace gnl_detail
