#pragma once

// One random design on its way through a simulator: its text in a folder of its own, its stimulus, and the comparison
// of what came out with what the description says.

#include "design_evaluation.h"
#include "random_generator.h"

#include "verilog_simulation.h"

#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace random_designs {

inline constexpr std::size_t vectors = 64; ///< as many as `lanes` holds

/// One design, its values for all vectors and its text on disk.
class trial
{
public:
    explicit trial(std::uint64_t seed)
        : trial(seed, profile_for(seed))
    {
    }
    trial(std::uint64_t seed, profile const & allowed)
        : m_design(random_design(seed, allowed))
        , m_name("r" + std::to_string(seed))
        , m_random(seed)
    {
        set_up_inputs();
    }

    description const & described() const { return m_design; }
    std::string const & name() const { return m_name; }

    /// Writes the design into a folder of its name, in the language of `extension`. What was wrong, or "".
    std::string generate(std::string const & extension) const;

    /// The pins of the module in a text that holds many, and their values.
    std::vector<gnl_test::pin> input_pins() const { return pins(m_design.top_kind().inputs, &m_is_pin); }
    std::vector<gnl_test::pin> output_pins() const { return pins(m_design.top_kind().outputs, nullptr); }
    void add_to_stimulus(std::vector<gnl_test::vector_of_pins> & stimulus) const;
    void instantiate(std::ostream & out) const;

    /// Where the simulation differs from what `expected` says, or "".
    std::string compare(std::vector<gnl_test::vector_of_pins> const & results, description const & expected) const;
    /// Moves the text to a place where it stays.
    std::string keep() const;

private:
    void set_up_inputs();
    lanes stimulus_bit(int index);
    std::string options(std::string const & extension) const;
    std::vector<gnl_test::pin> pins(std::vector<declared_signal> const & of, std::vector<bool> const * chosen) const;
    int width(declared_signal const & of) const { return of.width.at(m_design.top.w); }

    description m_design;
    std::string m_name;
    std::mt19937_64 m_random;
    std::vector<bits> m_inputs;
    std::vector<bool> m_is_pin; ///< whether the user of the design connects the input
};

} // namespace random_designs
