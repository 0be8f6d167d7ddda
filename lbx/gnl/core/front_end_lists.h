#pragma once

#include "gnl_generator.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The `char **` lists that were handed to a front-end. Each is built at its first use and lives as long as its
/// generator.
struct GNL_GENERATOR::front_end_lists
{
    /// Texts in the form that a front-end walks: pointers, the last one to an empty text.
    class text_list
    {
    public:
        explicit text_list(std::vector<std::string> texts)
            : m_texts(std::move(texts))
        {
            m_texts.emplace_back();
            for (auto & text : m_texts)
                m_entries.push_back(text.data());
        }
        text_list(text_list const &) = delete;
        text_list & operator=(text_list const &) = delete;

        char ** entries() { return m_entries.data(); }

    private:
        std::vector<std::string> m_texts;
        std::vector<char *> m_entries;
    };

    std::optional<text_list> parameters;
    std::optional<text_list> parameters_with_values;
    std::optional<text_list> hidden_parameters;
    std::optional<text_list> ports;
};
