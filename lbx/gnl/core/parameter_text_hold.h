#pragma once

#include "gnl_generator.h"

#include <vector>

/// Keeps a generator and those above it from reading their parameter text. A constructor of a member that posts an
/// error needs it: posting reads options, and the text can only be read when all members exist.
class GNL_GENERATOR::parameter_text_hold
{
public:
    explicit parameter_text_hold(GNL_GENERATOR & lowest)
    {
        for (GNL_GENERATOR * level = &lowest; level; level = level->get_parent())
            if (!level->m_state.parameter_list_initialized) {
                level->m_state.parameter_list_initialized = true;
                m_held.push_back(level);
            }
    }
    ~parameter_text_hold()
    {
        for (GNL_GENERATOR * level : m_held)
            level->m_state.parameter_list_initialized = false;
    }
    parameter_text_hold(parameter_text_hold const &) = delete;
    parameter_text_hold & operator=(parameter_text_hold const &) = delete;

private:
    std::vector<GNL_GENERATOR *> m_held;
};
