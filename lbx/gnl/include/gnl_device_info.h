#pragma once

#include <string>

class GNL_GENERATOR;

/// Answers questions about the device family that a generator targets. The table of families is still empty.
class GNL_DEVICE_INFO
{
public:
    explicit GNL_DEVICE_INFO(GNL_GENERATOR * generator)
        : m_generator(generator)
    {
    }

    /// The family's name as the design tool spells it; a name that is not known stands for itself.
    std::string get_translated_device_family_name(std::string const & family) const { return family; }
    GNL_GENERATOR * get_generator() const { return m_generator; }

private:
    GNL_GENERATOR * m_generator; ///< not owned
};
