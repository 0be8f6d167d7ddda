#pragma once

#include "gnl_generator.h"

#include <optional>
#include <vector>

/// A flip-flop, in an array a whole register.
///
/// Inputs: `clk`, `ena` (clock enable), `clrn` and `prn` (asynchronous clear and preset, active low), `d`, `aload` with
/// `adata` (asynchronous load), `sclr` and `sload` (synchronous clear and load, active high). Output: `q`. Everything
/// but `clk` has a default and can be left open. The parameter `power_up` is "high", "low" or "dont_care".
///
///     auto & count = *new GNL_DFFE(this, 8);       // q and d are 8 bits wide from here on
///     count.port("clk") = clk;
///     count.port("d") = next;
class GNL_DFFE : public GNL_GENERATOR
{
public:
    explicit GNL_DFFE(GNL_GENERATOR * parent, int array_size = 0);
    /// Copies base, ports, parameters and marker counts, each by its own copy constructor.
    GNL_DFFE(GNL_DFFE const & other) = default;

    /// The entity name if one was set, else the cell that has the inputs in use: "dffe", "dffea" or "dffeas".
    std::string get_entity_name() const override;
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override;
    /// For "q" 1 if the register powers up high and else 0; -1 for other ports.
    int get_custom_vhdl_initial_value(std::string const & port_name) override;

    void set_dffe_instance_name(std::string const & name) { set_instance_name(name); }
    /// The internal option for the power-up level, "" when `power_up` is not used or the design is simulated.
    std::string get_qelvar_internal_option();
    /// Whether an array cannot be written as one vector and is written bit by bit.
    bool dffe_requires_unroll();

    /// @name Markers
    /// How many carry-sum cells the register has fed, as a whole (index -1) and slice by slice. A slice answers for its
    /// array.
    /// @{

    /// The first question about a slice gives every slice the count of the whole; -1 for a slice that does not exist.
    int get_marker_count(int index);
    /// Counts for a slice only after `get_marker_count` was asked about one.
    void increment_marker_count(int index);
    bool has_marker_array() const { return m_marker_array.has_value(); }
    /// @}

private:
    bool any_control_requires_unroll();
    GNL_DFFE & whole_register();
    /// The count of the slice, null if it has none.
    int * marker_of_slice(int index);

    GNL_PORT_INPUT m_clk;
    GNL_PORT_INPUT m_ena;
    GNL_PORT_INPUT m_clrn;
    GNL_PORT_INPUT m_prn;
    GNL_PORT_INPUT m_d;
    GNL_PORT_INPUT m_aload;
    GNL_PORT_INPUT m_adata;
    GNL_PORT_INPUT m_sclr;
    GNL_PORT_INPUT m_sload;
    GNL_PORT_OUTPUT m_q;
    GNL_PARAMETER_STRING m_power_up;
    GNL_PARAMETER_STRING m_device_family;
    GNL_PARAMETER_STRING m_is_wysiwyg;
    int m_marker_count = 0;
    std::optional<std::vector<int>> m_marker_array; ///< one count for each slice, made at the first need
};
