#pragma once

#include "gnl_element.h"

#include <list>
#include <map>
#include <set>
#include <string>
#include <vector>

class GNL_TIMING_ASSIGNMENT;

namespace gnl_detail {

/// The options that every generator has, in their fixed order.
enum class option_id {
    hdl_language,
    output_directory,
    library_path,
    single_output_file,
    force_hdl_generation,
    file,
    max_error_messages,
    vhdl_wrappers,
    eda_planb,
    no_vhdl_subdes_concat_wires,
    declare_all_connected_ports,
    blackbox_list,
    auto_blackbox,
    throw_exception_on_error,
    structural_netlist,
    remove_optional_wires,
    module_prefix,
    instance_name
};
inline constexpr int option_count = 18;

using string_map = std::map<std::string, std::string, LESS_C_STRING>;
using count_map = std::map<std::string, int, LESS_C_STRING>;
using element_map = std::map<std::string, GNL_ELEMENT *, LESS_C_STRING>;

/// The plain state of a generator, which its copy constructor takes over as it stands. Pointers are not owned.
/// Internal: users reach it through the accessors of `GNL_GENERATOR`.
struct generator_state
{
    bool has_vhdl_used_port_parameter_only_component : 1 = false;
    bool port_connections_made : 1 = false;
    bool use_custom_verilog_output : 1 = false;
    bool use_custom_vhdl_output : 1 = false;
    bool use_custom_qhdl_output : 1 = false;
    bool use_lower_case_verilog_parameter_values : 1 = false;
    bool use_lpm_type_output : 1 = true;
    bool file_generation_off : 1 = false;
    bool primitive : 1 = false;
    bool in_rtl_body : 1 = false;
    bool in_update_port_widths : 1 = false;
    bool rtl_body_begun : 1 = false; ///< set with the first `in_rtl_body`, never cleared
    bool master_array : 1 = false;
    bool heterogeneous_array : 1 = false;
    bool heterogeneous_element : 1 = false;
    bool vhdl_unroll_loop : 1 = false;
    bool need_include_header : 1 = false;
    bool no_include_declaration : 1 = false;
    bool need_vhdl_component : 1 = true;
    bool assignments_frozen : 1 = false;
    bool not_supported : 1 = false;
    bool subdesign_not_supported : 1 = false;
    bool no_vhdl_component_declarations : 1 = false;
    bool parameter_list_initialized : 1 = false;
    bool inheritable_gathered : 1 = false; ///< `get_inheritable` has run
    bool append_mode : 1 = false;
    bool true_vhdl_parameter_array : 1 = false;
    bool vhdl_primitive : 1 = false;
    bool qhdl_unsupported : 1 = false;
    bool resource_count_mode : 1 = false;
    bool simulation_library_mode : 1 = false;
    bool simulate_mode : 1 = false;
    bool custom_subdesign_insert_mode : 1 = false;
    bool connect_default_inputs_in_verilog : 1 = false;
    bool qhdl_not_supported : 1 = false;
    bool use_internal_option : 1 = false;
    bool use_external_ostream : 1 = false;
    bool preserve_parameter_case : 1 = false;
    bool need_lumenbox_tag : 1 = false;
    bool export_all_submodule_parameters : 1 = false;
    bool vorlan_interface_mode : 1 = false;
    bool rules_validator_ready : 1 = false;
    bool slice_parameters_filled : 1 = false; ///< on a slice: the master's parameter values have been taken over
    bool taking_master_values : 1 = false;    ///< on a slice: while values of the master are passed to it

    int array_width = 0; ///< number of slices, 0 when this is no array
    int slice_index = -1;
    int instance_counter = 0;
    int wire_counter = 0;
    int loop_counter = 0;
    GNL_GENERATOR * array_parent = nullptr;

    std::string instance_name;
    std::string entity_name;
    std::string full_file_name;
    std::string vhdl_library;
    std::string special_primitive_library;
    std::string parameter_list_text;
    std::string instance_basename = "sd";
    std::string entity_add_on_name;
    std::string resource_count_text;
    std::string simulation_library_text;
    std::string simulation_library;
    std::string version_text;
    std::string tolvane_version_text;
    std::string custom_vhdl_library;

    string_map list_of_subdesigns; ///< on the top generator: subdesign name to header
    count_map resource_map;
    string_map simulation_library_map;
    std::set<std::string, LESS_C_STRING> own_parameters; ///< on a slice: the parameters that it was given itself
    std::vector<std::string> internal_options;
    std::vector<std::string> hdl_attributes;
    string_map simulation_only_ports;
    string_map simulation_only_parameters;
    element_map subdesign_info;      ///< on the top generator: entity name to generator
    string_map subdesign_resc_count; ///< on the top generator: file stem to count text
};

} // namespace gnl_detail
