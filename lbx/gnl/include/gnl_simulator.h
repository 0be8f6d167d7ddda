#pragma once

class GNL_GENERATOR;

/// Evaluator of a netlist. It does not evaluate anything yet: `evaluate` answers false and changes nothing.
class GNL_SIMULATOR
{
public:
    GNL_SIMULATOR(GNL_GENERATOR * generator, GNL_SIMULATOR * parent)
        : m_generator(generator)
        , m_parent(parent)
    {
    }
    virtual ~GNL_SIMULATOR() = default;

    void create_simulation_objects() {}
    bool evaluate() { return false; }
    void initialize_generators_to_simulation_state() {}
    GNL_SIMULATOR * get_simulator_for_generator(GNL_GENERATOR *) const { return nullptr; }
    void update_stimulus_from_simulator(GNL_SIMULATOR *) {}
    GNL_GENERATOR * get_generator() const { return m_generator; }
    GNL_SIMULATOR * get_parent() const { return m_parent; }

private:
    GNL_GENERATOR * m_generator; ///< not owned
    GNL_SIMULATOR * m_parent;    ///< not owned
};
