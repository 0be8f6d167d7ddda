#pragma once

#include "gnl_device_info.h"
#include "gnl_element.h"
#include "gnl_generator_state.h"
#include "gnl_message.h"
#include "gnl_parameter.h"
#include "gnl_parameter_array.h"
#include "gnl_parameter_vector.h"
#include "gnl_port.h"
#include "gnl_port_concat.h"
#include "gnl_port_logic.h"
#include "gnl_port_range.h"
#include "gnl_simulator.h"
#include "gnl_timing_assignment.h"

#include <memory>
#include <ostream>

class GIGA_RULES_VALIDATOR;

/// The library's version.
std::string get_lbx_gnl_version();

/// Base class of every design unit and primitive.
///
/// Derive from it, declare ports and parameters as members with `this` as parent, and override `rtl_body`, which builds
/// the netlist and ends with `dump_hdl`:
///
///     class HALF_ADDER : public GNL_GENERATOR
///     {
///     public:
///         HALF_ADDER(GNL_GENERATOR * parent, char const * text)
///             : GNL_GENERATOR(parent, "half_adder", text), a(this, "a"), b(this, "b"), sum(this, "sum"), carry(this,
///             "carry")
///         {
///         }
///
///     protected:
///         void rtl_body(std::ostream & out) override
///         {
///             sum = a ^ b;
///             carry = a & b;
///             dump_hdl(out);
///         }
///
///     private:
///         GNL_PORT_INPUT a, b;
///         GNL_PORT_OUTPUT sum, carry;
///     };
///
///     HALF_ADDER top(nullptr, "LBX_FILE=half_adder.v");
///     top.generate_subdesign(std::cout);          // writes half_adder.v
///     top.generator_result();                     // 0 when all is well
///
/// The library is not thread-safe: one generation runs at a time in a process.
class GNL_GENERATOR : public GNL_ELEMENT
{
public:
    /// @name Construction
    /// Defined in core/gnl_generator.cpp.
    /// @{

    /// `parameter_list_text` is "NAME=value,NAME=value"; it is parsed at the first need, when all members exist.
    /// `array_width` above 0 makes an array of that many slices.
    GNL_GENERATOR(GNL_GENERATOR * parent, std::string const & name, char const * parameter_list_text = nullptr,
                  int array_width = 0);
    /// Takes the plain state over. The copy is in no registry and owns nothing of the source.
    GNL_GENERATOR(GNL_GENERATOR const & other);
    GNL_GENERATOR & operator=(GNL_GENERATOR const & other) = delete;
    ~GNL_GENERATOR() override;
    /// @}

    bool is_generator() const final { return true; }
    std::string generate_key() const override;
    static std::string generate_key_base(std::string const & name, std::string const & instance_name, int slice_index);
    std::string get_hierarchical_name() const override;

    /// @name Hooks
    /// In their fixed order. A subclass overrides what it needs.
    /// @{
    virtual std::string dump_header(bool for_file);             ///< writers/gnl_generator_headers.cpp
    virtual std::string get_declared_parameter_and_port_list(); ///< writers/gnl_generator_headers.cpp
    virtual std::string dump_version_header();                  ///< writers/gnl_generator_headers.cpp
    virtual std::string dump_copyright_header();                ///< writers/gnl_generator_headers.cpp
    virtual std::string dump_copyright_header_legal_text();     ///< writers/gnl_generator_headers.cpp
    virtual std::string dump_timing_assignments_header();       ///< annotations/gnl_generator_timing.cpp
    virtual std::string get_entity_name() const { return m_state.entity_name; }
    /// Makes slice `index` of the array `parent`: an object of the same class that registers itself.
    virtual void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name);
    /// Enters module names with their version texts, which go into the version line of written files.
    virtual void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions);
    /// Calls `tell_inheritable` on subdesigns whose parameters may take their values from here.
    virtual void get_inheritable() {}
    virtual std::string get_tolvane_version(); ///< writers/gnl_generator_headers.cpp
    virtual void reset_msg_list();             ///< core/gnl_generator_messages.cpp
    virtual bool move_to_next_msg();           ///< core/gnl_generator_messages.cpp
    virtual GNL_MSG * get_cur_msg();           ///< core/gnl_generator_messages.cpp
    virtual void count_total_subdesign_resources(std::map<std::string, int, LESS_C_STRING> & into);
    virtual int get_resource_unit(std::string & unit); ///< annotations/gnl_generator_resources.cpp
    virtual std::string generate_primitive_name() { return get_name(); }
    virtual void dump_verilog_custom_output(std::ostream &, GNL_GENERATOR *) {}
    virtual void dump_verilog_custom_wires(std::ostream &) {}
    virtual void dump_vhdl_custom_output(std::ostream &, GNL_GENERATOR *) {}
    virtual void dump_vhdl_custom_wires(std::ostream &) {}
    virtual void dump_qhdl_custom_output(std::ostream &, GNL_GENERATOR *) {}
    virtual bool dump_qhdl_custom_wires(std::ostream &, bool variable_written) { return variable_written; }
    virtual bool evaluate_model(GNL_SIMULATOR *) { return false; }
    virtual void initialize_model(GNL_SIMULATOR *) {}
    virtual void initialize_to_simulation_state(GNL_SIMULATOR *) {}
    virtual bool has_sorted_port_list() { return false; }
    virtual std::list<std::string> get_sorted_port_list() { return {}; }
    /// Runs when the parameters have their values and before anything is written.
    virtual void customize_declaration_from_parameters() {}
    virtual bool mf_has_sim_model() { return true; }
    virtual int get_custom_vhdl_initial_value(std::string const &) { return -1; }
    virtual void update_legacy_parameter_values() {}

protected:
    /// Builds the netlist and ends with `dump_hdl(stream)`. The base version writes a wrapper around the entity of the
    /// same name.
    virtual void rtl_body(std::ostream & stream); ///< core/gnl_generator_wrapper.cpp

public:
    virtual void post_error_msg(char const * text) const; ///< core/gnl_generator_messages.cpp
    virtual void post_warning_msg(char const * text) const;
    virtual void post_info_msg(char const * text) const;
    /// Consumes `post`, except an error beyond the limit of errors: that is dropped and stays the caller's.
    virtual void post_msg(GNL_MSG_POST * const post) const;
    /// @}

    /// @name Generation
    /// Defined in core/gnl_generator_driver.cpp, core/gnl_generator_settling.cpp and core/gnl_generator_dump.cpp.
    /// @{

    /// Generates the design. `stream` receives output in single-stream flows. Read `generator_result`, the message list
    /// and `get_file_name` afterwards.
    void generate_subdesign(std::ostream & stream);
    /// 2 not supported, 3 a subdesign is not supported, 1 errors, 0 fine.
    int generator_result() const;
    bool check_error_flag() const;
    /// Brings parameters and port widths up to date, once; the port layer calls it at each connection.
    void made_port_connection(std::string const & port_name)
    {
        if (!m_state.port_connections_made)
            settle_port_widths(port_name);
    }
    bool port_connections_made() const { return m_state.port_connections_made; }
    /// Internal: a pin or a parameter is declared after the first connection. The widths are settled anew at the next
    /// one; until then the parameters may be assigned.
    void declared_late();
    /// The simulation libraries that the design needs, each followed by ";"; "no_simlib" when there are none.
    char const * get_simulation_library();

protected:
    /// Writes the design; a client calls it at the end of its `rtl_body`.
    void dump_hdl(std::ostream & stream);
    void dump_hdl_generate_subdesigns(std::ostream & stream);     ///< core/gnl_generator_subdesigns.cpp
    void exclude_subdesigns_from_having_component_declarations(); ///< core/gnl_generator_subdesigns.cpp
    bool check_all_required_ports_and_parameters();
    void process_port_widths();
    /// Tells that the design can't be generated as asked; it then stands as a black box of its own name.
    void set_not_supported();

private:
    void settle_port_widths(std::string const & port_name);

public:
    /// @}

    /// @name Registry
    /// Defined in core/gnl_generator_registry.cpp. Names are case-insensitive.
    /// @{
    void insert(GNL_ELEMENT * element, std::string const & key);
    void remove(GNL_ELEMENT * element, std::string const & key, bool destroying);
    void transfer_from_list_to_map();
    /// The element under exactly this key, whatever its kind, or null.
    GNL_ELEMENT * find_port_object(std::string const & key);
    GNL_PORT * get_port_object(std::string const & name);
    GNL_PARAMETER * get_parameter_object(std::string const & name);
    GNL_PARAMETER_ARRAY * get_parameter_array_object(std::string const & name);
    /// Guarded accessors: a missing object is reported, and a substitute that the generator owns is returned.
    GNL_PORT & port(char const * name);
    GNL_PORT & port(std::string const & name) { return port(name.c_str()); }
    GNL_PARAMETER_INTEGER & parameter_integer(char const * name);
    GNL_PARAMETER_STRING & parameter_string(char const * name);
    GNL_PARAMETER_VECTOR & parameter_vector(char const * name);
    void get_port_objects(std::map<std::string, GNL_PORT *, LESS_C_STRING> & ports);
    /// By instance name.
    void get_subdesign_generator_objects(std::map<std::string, GNL_GENERATOR *, LESS_C_STRING> & subdesigns);
    bool is_child_of_subdesign(GNL_PORT * port);
    void add_to_gnl_delete_list(GNL_ELEMENT * element);
    /// Internal: the registry itself, with its walks (core/element_registry.h).
    gnl_detail::element_registry & registry() const { return *m_registry; }
    /// Internal: owns an expression handle until this generator ends.
    GNL_PARAMETER_EXPR & keep_expression(std::unique_ptr<GNL_PARAMETER_EXPR> expression);
    /// @}

    /// @name Names and levels
    /// Defined in core/gnl_generator_registry.cpp.
    /// @{
    std::string get_hierarchical_instance_name(GNL_GENERATOR * stop_at, bool with_entity) const;
    GNL_GENERATOR * get_top_level_parent();
    GNL_GENERATOR const * get_top_level_parent() const;
    /// This generator if its body runs, else the nearest one above whose body runs, else null.
    GNL_GENERATOR * current_connection_level();
    static char const * comment_string() { return is_verilog() ? "//" : "--"; }
    std::string get_add_on_name() const
    {
        return m_state.append_mode ? m_state.entity_add_on_name : m_state.entity_name;
    }
    bool not_equal_widths(int a, int b) const;
    bool is_auto_generated_wire_name(std::string const & name) const;
    bool is_lpm_function() const;
    bool uses_custom_output() const;
    bool use_lumenbox_2_tag();
    static char const * usage_help() { return ""; }
    /// @}

    /// @name Messages
    /// Defined in core/gnl_generator_messages.cpp.
    /// @{

    /// "GNL_INTERNAL_ERROR: " message " CAUSE : " cause " ACTION : " action; cause and action can be null.
    /// With `LBX_THROW_EXCEPTION_ON_ERROR` "ON" the text is thrown as a `char *` instead of posted; the catcher frees
    /// it with `delete[]`.
    void generator_error(std::string const & message, char const * cause, char const * action) const;
    void generator_error(char const * message, char const * cause, char const * action) const
    {
        generator_error(std::string(message), cause, action);
    }
    /// "GNL_INTERNAL_ERROR: (" source ") " name " " text.
    void generator_error(char const * source, std::string const & name, std::string const & text) const;
    void generator_warning(char const * source, std::string const & name, std::string const & text) const;
    void generator_info(char const * source, std::string const & name, std::string const & text) const;
    void post_messages_on_generator(GNL_MSG_POST * const post) const { post_msg(post); }
    void post_warning_messages_on_generator(std::string const & text) const { post_warning_msg(text.c_str()); }
    /// Posts if `condition` is true, which is the error condition; consumes `post` either way.
    void gnl_msg_assert(bool condition, GNL_MSG_POST * const post) const;
    void gnl_assert_check(bool ok, int line, char const * file) const;
    /// Ends the body if errors were posted.
    void exit_if_error() const;
    /// The handler of this generator; messages end in that of the top generator.
    GNL_MSG_HANDLER & msg_handler() const;

protected:
    void dump_error_messages(std::ostream & out); ///< writers/gnl_generator_error_file.cpp
    void dump_error_file(std::ostream & out);     ///< writers/gnl_generator_error_file.cpp

public:
    /// @}

    /// @name Parameter text and options
    /// Defined in core/gnl_generator_parameter_text.cpp, core/gnl_generator_parameter_lists.cpp and
    /// core/gnl_generator_options.cpp.
    /// @{
    bool init_param_list_from_string(char const * text, bool ignore_failures);
    void initialize_param_list()
    {
        if (!m_state.parameter_list_initialized)
            parse_parameter_list();
    }
    bool assign_value_to_parameter(std::string const & name, std::string const & value);
    bool assign_value_to_array_parameter(std::string const & name, std::string const & value);
    /// Texts "name=value", ended by an empty one.
    void assign_parameter_values(char ** list);
    /// Lists for a front-end, ended by an empty text; they live as long as the generator.
    char ** get_parameter_list();
    char ** get_parameter_list_with_values();
    char ** get_hidden_parameter_list();
    char ** get_port_list();
    bool set_port_to_used(char const * name);
    /// "NAME=VCC", "NAME=GND" or "NAME".
    bool set_port_to_constant_value(char const * text);
    bool generate_single_output_file();
    bool has_disabled_vhdl_concat_wires();
    bool allow_removal_of_optional_wires();
    bool generate_structural_netlist();
    bool forced_file_generation();
    /// The option's object, made at its first use.
    GNL_PARAMETER & option(gnl_detail::option_id id);
    /// Whether the option is in use, as `GNL_PARAMETER::is_used` answers, without making its object.
    bool option_is_used(gnl_detail::option_id id);
    /// The option's value as `get_value` answers, without making its object; a number in decimal.
    std::string option_value(gnl_detail::option_id id);
    /// Whether the value equals `text`, case-insensitively.
    bool option_equals(gnl_detail::option_id id, std::string_view text);
    class parameter_text_hold; ///< internal, core/parameter_text_hold.h

private:
    void parse_parameter_list();
    /// The parameter of the name, or what stands in for one of a subdesign.
    GNL_PARAMETER * own_or_inherited_parameter(std::string const & name);
    bool assign_to_known_parameter(std::string const & name, std::string const & value);
    /// The object of the level whose value of the option counts here, null while that level has none.
    GNL_PARAMETER * deciding_option(gnl_detail::option_id id);

public:
    /// @}

    /// @name Parameter inheritance
    /// Defined in parameters/gnl_generator_inheritance.cpp.
    /// @{
    void collect_inheritable_parameters(GNL_GENERATOR * target);
    void merge_collected_inheritance_list(GNL_GENERATOR * target);
    void tell_inheritable(GNL_GENERATOR & target);
    int get_inherited_integer_parameter_value(std::string const & name);
    std::string get_inherited_string_parameter_value(std::string const & name);
    bool check_parameter_is_used_in_parent(std::string const & name);
    std::string dump_inherited_parameter_header_info(std::string const & name);
    void collect_parameter_array_values(std::string const & name, std::map<int, std::string> & values);
    bool exports_all_submodule_parameters() const { return m_state.export_all_submodule_parameters; }
    void set_export_all_submodule_parameters() { m_state.export_all_submodule_parameters = true; }

protected:
    void add_parameter_to_inheritance_list(GNL_PARAMETER * parameter);
    void add_parameter_to_inheritance_array_list(GNL_PARAMETER_ARRAY * array);
    GNL_PARAMETER * get_inherited_parameter_object(std::string const & name);
    GNL_PARAMETER_ARRAY * get_inherited_parameter_array_object(std::string const & name);

private:
    /// Runs `get_inheritable` on every generator below and on this one, once each, children first.
    void gather_inheritable();
    /// The object that took a value given here for a parameter of a subdesign, null when none was given.
    GNL_PARAMETER * value_given_for(std::string const & name);
    template <class KIND> typename KIND::value_type inherited_value(std::string const & name);

public:
    /// Names that the subdesigns inherit, each with the object that takes the value given here; null where a value
    /// cannot be taken. Internal.
    std::map<std::string, std::unique_ptr<GNL_PARAMETER>, LESS_C_STRING> const & inherited_parameters() const
    {
        return m_inherited_parameters;
    }
    std::map<std::string, std::unique_ptr<GNL_PARAMETER_ARRAY>, LESS_C_STRING> const &
    inherited_parameter_arrays() const
    {
        return m_inherited_parameter_arrays;
    }
    /// Sets the width of each vector whose width is still open, then gives it its waiting value.
    void set_vector_parameter_widths(); ///< parameters/gnl_generator_vectors.cpp
    /// @}

    /// @name Width expressions
    /// Defined in parameters/gnl_generator_expressions.cpp.
    /// @{

    /// The value of an expression such as "2*(WIDTH+1)" over this generator's integer parameters; -1 for a syntax
    /// error, a division by zero, an overflow of 32 bits or a nesting too deep.
    int evaluate_port_width_expression(char const * text);
    bool check_expression_for_width_parameters(std::string const & text,
                                               std::map<std::string, int, LESS_C_STRING> & found);
    /// @}

    /// @name Output files
    /// Defined in core/gnl_generator_files.cpp and core/gnl_generator_reuse.cpp.
    /// @{
    char const * get_file_name();
    void set_file_name(std::string const & name);
    std::string get_directory_path();
    std::string get_collision_check_directory_path();
    void set_directory_path(char const * path);
    bool check_directory(std::string const & path) const;
    void set_single_output_file();
    void set_different_output_files();
    std::string search_file_paths_for_file(std::string const & name);
    /// 1 same settings and valid, 2 different, 3 same settings but an error file, 4 same settings of another version or
    /// of the same fixed instance.
    int are_files_same(std::string const & file, std::string const & header);
    /// 0 without a file, else as `are_files_same`.
    int check_if_file_matches_current_settings(std::string const & file);
    int check_list_of_subdesigns(std::string const & name, std::string const & header);
    void remove_from_list_of_subdesigns(std::string const & name);
    static bool search_list(std::map<std::string, std::string, LESS_C_STRING> const & list, std::string const & key);
    /// Internal: what this top generator's run knows of the names that are taken (core/subdesign_names.h).
    gnl_detail::subdesign_names & subdesign_names();

protected:
    void set_full_file_name(std::string const & name);

public:
    /// @}

    /// @name Subdesign names and black boxes
    /// Defined in core/gnl_generator_subdesign_name.cpp, core/gnl_generator_instance_names.cpp and
    /// core/gnl_generator_blackbox.cpp.
    /// @{
    std::string get_subdesign_name();
    std::string generate_name_from_value(int seed) const;
    bool is_fixed_prefix_mode();
    std::string get_fixed_prefix_name();
    bool is_blackbox_mode();
    bool is_full_blackbox_mode();
    void check_blackbox_list();
    void set_blackbox_state();
    void reset_blackbox_state();
    int generate_instance_id();
    std::string generate_instance_name(std::string const & base);
    std::string generate_wire_name(std::string const & prefix, std::string const & suffix);
    /// The name that `generate_wire_name` makes with this number.
    static std::string numbered_wire_name(std::string const & prefix, std::string const & suffix, std::uint32_t number);
    int get_wire_counter();
    std::string generate_loop_name();
    bool check_instance_name_collision(std::string const & text);
    bool check_wire_name_collision(std::string const & text);
    void set_instance_name(std::string const & text);
    void set_subdesign_instance_name(std::string const & text, bool no_suffix);
    void set_auto_generated_instance_name();
    void set_subdesign_auto_generated_instance_names();
    std::string get_subdesign_instance_name(std::string const & name);
    std::string get_primitive_name() { return generate_primitive_name(); }
    /// @}

    /// @name Arrays
    /// Defined in core/gnl_generator_arrays.cpp, core/gnl_generator_slice_grouping.cpp and
    /// core/gnl_generator_slice_generation.cpp.
    /// @{
    GNL_GENERATOR & operator[](int index);
    void create_slices();
    /// The slice, or this generator when there is none. Posts `slice_out_of_range`.
    GNL_GENERATOR * get_array_slice(int index);
    GNL_PORT * get_port_object_from_slice(int index, std::string const & name);
    void assign_parameter_values_to_slice(int index);
    void update_heterogeneous_slices(std::string const & name, std::string const & value);
    void parameter_value_has_changed(std::string const & name, std::string const & old_value,
                                     std::string const & new_value);
    void multiply_array_port_widths();
    bool check_slices_for_port_assignment(std::string const & port_name, int slice_width, int low, int high);
    bool check_parent_for_port_assignment(std::string const & port_name, int slice_width, int low, int high);
    void dump_hdl_group_subdesign_slices(GNL_GENERATOR * level);
    void group_input_assignments(GNL_GENERATOR * level);
    /// Generates the slices that differ from their master; whether the common design is needed.
    bool generate_differing_slices(std::ostream & stream);
    /// Brings a slice's parameters up to the values of its master, once.
    void fill_slice_parameters();

private:
    /// On a slice: takes the value of the master's parameter over, unless it was given one of its own.
    void take_value_of_master(GNL_PARAMETER & parameter);

public:
    /// @}

    /// @name Clean-up
    /// Defined in core/gnl_generator_prune.cpp and core/gnl_generator_port_widths.cpp.
    /// @{
    void prune_optional_wires();
    bool remove_port_driver_for_port(GNL_PORT * port);

protected:
    void replace_wire_port_driver(GNL_PORT * port);
    void modify_auto_sources(GNL_PORT * port);
    GNL_PORT * get_non_auto_wire_driver(GNL_PORT * port);
    void remove_named_driver_from_port(GNL_PORT * port, std::string const & generator_name,
                                       std::string const & port_name, GNL_PORT * replacement);
    void reset_port_widths();

public:
    /// @}

    /// @name Verilog
    /// Module frame: writers/gnl_generator_verilog_module.cpp, writers/gnl_generator_verilog_wires.cpp,
    /// writers/gnl_generator_verilog_parameters.cpp, writers/gnl_generator_verilog_wrapper.cpp. Connections:
    /// writers/gnl_generator_verilog_connections.cpp, writers/gnl_generator_verilog_instances.cpp,
    /// writers/gnl_generator_verilog_array_instances.cpp, writers/gnl_generator_verilog_defaults.cpp. For authors who
    /// put Verilog together themselves: writers/gnl_generator_verilog_author_sections.cpp.
    /// @{
    void dump_verilog_module_section(std::ostream & out);
    void dump_verilog_port_section(std::ostream & out);
    void dump_verilog_top_level_parameter_section(std::ostream & out);
    void dump_verilog_variables_section(std::ostream & out);
    void dump_verilog_wires(std::ostream & out, GNL_GENERATOR * parent);
    void dump_verilog_structural_netlist_wires(std::ostream & out, GNL_GENERATOR * parent);
    void dump_verilog_parameter_section(std::ostream & out, bool use_fixed_instance_name, int slice_index);
    void dump_verilog_module_section_for_wrapper(std::ostream & out);
    void dump_verilog_port_section_for_wrapper(std::ostream & out);
    void dump_verilog_connections_for_subdesign_wrapper(std::ostream & out);
    void add_to_lpm_hint_string(std::string & hint, std::string const & first, std::string const & second) const;
    void dump_verilog_port_connections(std::ostream & out);
    void dump_verilog_subdesign_description(GNL_GENERATOR * parent, std::ostream & out);
    void dump_verilog_subdesign_wire_connections(std::ostream & out, GNL_GENERATOR * parent);
    void dump_verilog_default_input_port_connections(std::ostream & out, int slice_index);
    void dump_verilog_simulation_only_ports(std::ostream & out, bool guard);
    void dump_verilog_structural_netlist_connections(std::ostream & out, GNL_GENERATOR * parent);
    void dump_verilog_subdesign_port_wires(std::ostream & out);
    void dump_verilog_subdesign_input_wire_connections(std::ostream & out, GNL_GENERATOR * parent);
    void dump_verilog_output_connections_with_subdesign(GNL_GENERATOR * subdesign, std::ostream & out);
    /// The Verilog text of the constant that drives a port, "" without one.
    std::string verilog_constant_text(GNL_PORT & port) const;
    /// @}

    /// @name VHDL
    /// Entity: writers/gnl_generator_vhdl_entity.cpp. Components: writers/gnl_generator_vhdl_components.cpp,
    /// writers/gnl_generator_vhdl_ports.cpp, writers/gnl_generator_vhdl_generics.cpp. Signals:
    /// writers/gnl_generator_vhdl_signals.cpp, those that join a subdesign to its design
    /// writers/gnl_generator_vhdl_wires.cpp. Libraries: writers/gnl_generator_vhdl_libraries.cpp. `signals` holds the
    /// signals that several subdesigns share.
    /// @{
    void dump_vhdl_top_level_parameter_section(std::ostream & out);
    void dump_vhdl_port_section(std::ostream & out);
    void dump_vhdl_variables_and_subdesigns(std::ostream & out,
                                            std::map<std::string, std::string, LESS_C_STRING> & signals);
    void dump_vhdl_wires(std::ostream & out, GNL_GENERATOR * parent,
                         std::map<std::string, std::string, LESS_C_STRING> & signals);
    void dump_vhdl_wires_for_slice(std::ostream & out, GNL_GENERATOR * parent,
                                   std::map<std::string, std::string, LESS_C_STRING> & signals);
    void dump_vhdl_port_section_for_wrapper(std::ostream & out);
    void dump_vhdl_port_section_for_primitives(std::ostream & out);
    void dump_vhdl_port_section_for_arrays(std::ostream & out);
    void dump_vhdl_generic_section_for_wrapper(std::ostream & out);
    void dump_vhdl_generic_section_for_primitives(std::ostream & out);
    void dump_vhdl_generic_section_for_hetero_arrays(std::ostream & out);
    /// Declares the types that the component of this subdesign needs, and answers `types` with their names added.
    std::map<std::string, std::string, LESS_C_STRING>
    dump_vhdl_array_type_declarations(std::ostream & out, std::map<std::string, std::string, LESS_C_STRING> types);
    /// The components of an array's slices. Answers whether the array's own component is needed as well.
    bool dump_vhdl_component_section_for_hetero_arrays(std::ostream & out,
                                                       std::map<std::string, std::string, LESS_C_STRING> & components,
                                                       std::map<std::string, std::string, LESS_C_STRING> & types);
    /// The "library.package" entries of `get_vhdl_library`, each under itself, so that two packages of one library
    /// stay two.
    std::map<std::string, std::string, LESS_C_STRING> get_vhdl_library_list();
    void add_to_vhdl_library_list(std::map<std::string, std::string, LESS_C_STRING> & list, std::string const & library,
                                  bool no_component_declarations);
    /// @}

    /// @name VHDL: statements
    /// Of the design: writers/gnl_generator_vhdl_connections.cpp. Of its subdesigns: what feeds them
    /// writers/gnl_generator_vhdl_feeds.cpp, the instances writers/gnl_generator_vhdl_instances.cpp, their values
    /// writers/gnl_generator_vhdl_generic_map.cpp. Of a wrapper: writers/gnl_generator_vhdl_wrapper.cpp. `signals` are
    /// those that the declarations have filled in.
    /// @{
    void dump_vhdl_connections(std::ostream & out, std::map<std::string, std::string, LESS_C_STRING> & signals);
    /// What feeds this subdesign in the text of `parent`, and its instance or instances.
    void dump_vhdl_subdesign_connection(GNL_GENERATOR * parent, std::ostream & out,
                                        std::map<std::string, std::string, LESS_C_STRING> & signals);
    /// What feeds this slice. `in_loop` says that the array stands as one loop of instances: then nothing but the
    /// array itself has inputs, and only the expressions on the slice's outputs are written.
    void dump_vhdl_for_loop_for_slices(std::ostream & out, GNL_GENERATOR * parent, bool in_loop,
                                       std::map<std::string, std::string, LESS_C_STRING> & signals);
    void dump_vhdl_parameter_mappings_for_wrapper(std::ostream & out);
    void dump_vhdl_connections_for_wrapper(std::ostream & out);
    /// "(0)" behind the name of `port`, if that is a vector of one element and `driver`, as `parent` reads it, a bit.
    void dump_vhdl_zero_index(std::ostream & out, GNL_PORT * port, GNL_PORT * driver, GNL_GENERATOR * parent);
    /// The VHDL text of the constant that drives a port, "" without one.
    std::string vhdl_constant_text(GNL_PORT & port) const;
    /// @}

    /// @name QHDL
    /// Declarations: writers/gnl_generator_qhdl_sections.cpp, writers/gnl_generator_qhdl_variables.cpp,
    /// writers/gnl_generator_qhdl_with_clause.cpp. Connections: writers/gnl_generator_qhdl_connections.cpp,
    /// writers/gnl_generator_qhdl_subdesign_connections.cpp, writers/gnl_generator_qhdl_array_connections.cpp.
    /// Wrappers: writers/gnl_generator_qhdl_wrapper.cpp, writers/gnl_generator_qhdl_library_wrapper.cpp.
    /// @{
    void dump_qhdl_top_level_parameter_section(std::ostream & out);
    void dump_qhdl_subdesign_section(std::ostream & out);
    void dump_qhdl_variables_section(std::ostream & out);
    /// The nodes through which the bidirectional ports of this subdesign are connected in the text of `parent`.
    void dump_qhdl_bidirectional_wires(std::ostream & out, GNL_GENERATOR * parent);
    /// The nodes that the slices of an array with custom output declare. Takes and answers whether "VARIABLE" has been
    /// written. Posts `slice_out_of_range`.
    bool dump_qhdl_custom_wires_for_heterogeneous_arrays(std::ostream & out, bool variable_written);
    /// The parameters of a cell, on lines of their own or in one.
    void dump_qhdl_parameter_section(std::ostream & out, bool in_variable);
    /// One entry of that clause. Takes and answers whether an entry has been written.
    bool dump_qhdl_parameter_assignment(std::ostream & out, GNL_PARAMETER * parameter, bool started, bool in_variable);
    void dump_qhdl_connections(std::ostream & out);
    void generate_connections_with_subdesign(std::ostream & out, GNL_GENERATOR * parent);
    /// What stands before the name of a port that has a node beside its instance: the instance name, the index of a
    /// slice, and "_".
    std::string get_qhdl_port_extension() const;
    /// `used_only` leaves out the parameters that were given no value.
    void dump_qhdl_variables_section_for_subdesign_wrapper(std::ostream & out, bool used_only = false);
    void dump_qhdl_connections_for_subdesign_wrapper(std::ostream & out);
    /// Wraps a library cell into a file of the entity's name, unless there is one.
    void dump_qhdl_library_wrapper();
    void dump_qhdl_initial_parameter_section(std::ostream & out);
    void dump_qhdl_subdesign_section_for_wysiwyg(std::ostream & out);
    void dump_qhdl_connections_for_wysiwyg_wrapper(std::ostream & out);
    /// @}

    /// Lists the used ports with their widths for a script. Defined in writers/gnl_generator_tcl.cpp.
    void dump_tcl_port_interface(std::ostream & out);

    /// @name File headers
    /// Defined in writers/gnl_generator_headers.cpp.
    /// @{
    std::string get_version_string();
    /// @}

    /// @name Stub files
    /// Defined in stubs/gnl_generator_stubs.cpp. These do nothing yet.
    /// @{
    void generate_include_file(std::ostream & out);
    bool generate_stub_files();
    /// @}

    /// @name Simulation-only items
    /// Defined in stubs/gnl_generator_simulation_only.cpp.
    /// @{
    void add_simulation_only_port(std::string const & name, std::string const & value);
    void add_simulation_only_parameter(std::string const & name, std::string const & value);
    std::map<std::string, std::string, LESS_C_STRING> const & simulation_only_ports() const
    {
        return m_state.simulation_only_ports;
    }
    std::map<std::string, std::string, LESS_C_STRING> const & simulation_only_parameters() const
    {
        return m_state.simulation_only_parameters;
    }
    void add_simulation_only_ports_and_parameters();
    void collect_simulation_libraries(std::map<std::string, std::string, LESS_C_STRING> & libraries);
    void dump_simulation_libraries();
    /// @}

    /// @name Resources
    /// Defined in annotations/gnl_generator_resources.cpp.
    /// @{
    char const * get_resource_count();
    void add_to_resource_map(std::map<std::string, int, LESS_C_STRING> & map, std::string const & unit,
                             int count) const;
    void update_resource_map(std::string const & unit, int count);
    void add_to_lcell_resource_count(int count);
    void add_to_subdesign_resc_count_list(std::string const & stem, std::string const & text);
    std::string get_subdesign_resc_count(std::string const & stem) const;
    void dump_resources(std::ostream & out);
    std::string return_resource_count_as_string();
    /// @}

    /// @name Internal options and attributes
    /// Defined in annotations/gnl_generator_internal_options.cpp.
    /// @{
    void set_qelvar_internal_option(std::string const & option);
    void set_hdl_attribute(std::string const & text, bool internal);
    void remove_qelvar_internal_option(std::string const & option);
    bool has_qelvar_internal_option_assignments() const { return !m_state.internal_options.empty(); }
    bool has_hdl_attributes() const { return !m_state.hdl_attributes.empty(); }
    bool uses_qelvar_internal_option() const { return m_state.use_internal_option; }
    void set_use_qelvar_internal_option() { m_state.use_internal_option = true; }
    void reset_use_qelvar_internal_option() { m_state.use_internal_option = false; }
    void dump_qelvar_internal_options(std::ostream & out, std::string const & target);
    std::string dump_qelvar_internal_options_as_string() const;
    void export_qelvar_internal_options_to_parent(GNL_GENERATOR * to);
    void get_primitive_subdesign_qelvar_internal_options();
    /// @}

    /// @name Annotations to come
    /// Defined in annotations/gnl_generator_timing.cpp and annotations/gnl_generator_bus_interface.cpp. These do
    /// nothing yet.
    /// @{
    void generate_timing_assignments();
    void update_vorlan_interface_connections();
    /// @}

    /// @name Simulation
    /// Defined in simulation/gnl_generator_simulation.cpp.
    /// @{
    GNL_SIMULATOR * get_simulator() const { return m_simulator.get(); }
    /// Takes ownership.
    void register_simulator(GNL_SIMULATOR * simulator);
    bool simulator_exists() const { return m_simulator != nullptr; }
    /// @}

    /// @name Plain settings
    /// @{
    void set_has_vhdl_used_port_parameter_only_component()
    {
        m_state.has_vhdl_used_port_parameter_only_component = true;
    }
    bool has_vhdl_used_port_parameter_only_component() const
    {
        return m_state.has_vhdl_used_port_parameter_only_component;
    }
    std::string const & get_instance_name() const { return m_state.instance_name; }
    std::string const & get_external_entity_name() const { return m_state.entity_name; }
    void set_entity_name(std::string const & name) { m_state.entity_name = name; }
    bool uses_custom_verilog_output() const { return m_state.use_custom_verilog_output; }
    void set_use_custom_verilog_output() { m_state.use_custom_verilog_output = true; }
    bool uses_custom_vhdl_output() const { return m_state.use_custom_vhdl_output; }
    void set_use_custom_vhdl_output() { m_state.use_custom_vhdl_output = true; }
    bool uses_custom_qhdl_output() const { return m_state.use_custom_qhdl_output; }
    void set_use_custom_qhdl_output() { m_state.use_custom_qhdl_output = true; }
    /// Clears the Verilog and QHDL flags and the insert mode; the VHDL flag stays.
    void disable_custom_output();
    bool uses_lower_case_verilog_parameter_values() const { return m_state.use_lower_case_verilog_parameter_values; }
    void set_use_lower_case_verilog_parameter_values() { m_state.use_lower_case_verilog_parameter_values = true; }
    bool use_lpm_type_output() const { return m_state.use_lpm_type_output; }
    void disable_lpm_type_output() { m_state.use_lpm_type_output = false; }
    bool generate_file() const { return !m_state.file_generation_off; }
    void dont_generate_file() { m_state.file_generation_off = true; }
    bool is_primitive() const { return m_state.primitive; }
    void set_primitive() { m_state.primitive = true; }
    void reset_primitive_state() { m_state.primitive = false; }
    bool is_in_rtl_body() const { return m_state.in_rtl_body; }
    void set_in_rtl_body() { m_state.in_rtl_body = m_state.rtl_body_begun = true; }
    void set_out_of_rtl_body() { m_state.in_rtl_body = false; }
    /// Whether the body has ever been entered.
    bool rtl_body_begun() const { return m_state.rtl_body_begun; }
    bool is_in_update_port_widths() const { return m_state.in_update_port_widths; }
    int get_array_width() const { return m_state.array_width; }
    bool is_master_array() const { return m_state.master_array; }
    void set_as_master_array() { m_state.master_array = true; }
    int get_slice_index() const { return m_state.slice_index; }
    void set_slice_index(int index);
    bool is_heterogeneous_array() const { return m_state.heterogeneous_array; }
    void set_as_heterogeneous_array();
    bool is_heterogeneous_element() const { return m_state.heterogeneous_element; }
    void set_as_heterogeneous_element();
    bool has_unrolled_vhdl_loop() const { return m_state.vhdl_unroll_loop; }
    void set_vhdl_unroll_loop() { m_state.vhdl_unroll_loop = true; }
    bool generate_include_header() const { return m_state.need_include_header; }
    void set_need_include_header() { m_state.need_include_header = true; }
    bool no_include_declaration() const { return m_state.no_include_declaration; }
    void set_no_include_declaration() { m_state.no_include_declaration = true; }
    GNL_GENERATOR * get_array_parent() const { return m_state.array_parent; }
    void set_array_parent(GNL_GENERATOR * master) { m_state.array_parent = master; }
    bool needs_vhdl_component() const { return m_state.need_vhdl_component; }
    bool parameter_assignments_frozen() const { return m_state.assignments_frozen; }
    bool is_supported() const { return !m_state.not_supported; }
    bool has_subdesign_as_not_supported() const { return m_state.subdesign_not_supported; }
    void set_has_subdesign_as_not_supported() { m_state.subdesign_not_supported = true; }
    bool has_no_vhdl_component_declarations() const { return m_state.no_vhdl_component_declarations; }
    void set_use_no_vhdl_component_declarations(bool use_none = true)
    {
        m_state.no_vhdl_component_declarations = use_none;
    }
    std::string const & get_vhdl_library() const { return m_state.vhdl_library; }
    void set_vhdl_library(std::string const & library, bool no_component);
    std::string const & get_special_primitive_library() const { return m_state.special_primitive_library; }
    void set_special_primitive_library(std::string const & library) { m_state.special_primitive_library = library; }
    void set_instance_basename(std::string const & base) { m_state.instance_basename = base; }
    std::string const & get_instance_basename() const { return m_state.instance_basename; }
    void set_entity_add_on_name(std::string const & name) { m_state.entity_add_on_name = name; }
    bool is_append_mode() const { return m_state.append_mode; }
    void set_append_mode() { m_state.append_mode = true; }
    bool has_true_vhdl_parameter_array() const { return m_state.true_vhdl_parameter_array; }
    void set_has_true_vhdl_parameter_array() { m_state.true_vhdl_parameter_array = true; }
    bool is_vhdl_primitive() const { return m_state.vhdl_primitive; }
    void set_vhdl_primitive() { m_state.vhdl_primitive = true; }
    bool is_qhdl_unsupported() const { return m_state.qhdl_unsupported; }
    void set_qhdl_unsupported(bool unsupported) { m_state.qhdl_unsupported = unsupported; }
    GNL_DEVICE_INFO * get_device_info() const;
    bool is_in_resource_count_mode() const { return m_state.resource_count_mode; }
    void set_resource_count_mode() { m_state.resource_count_mode = true; }
    void reset_resource_count_mode() { m_state.resource_count_mode = false; }
    bool is_in_simulation_library_mode() const { return m_state.simulation_library_mode; }
    void set_simulation_library_mode() { m_state.simulation_library_mode = true; }
    void reset_simulation_library_mode() { m_state.simulation_library_mode = false; }
    bool is_simulate_mode() const { return m_state.simulate_mode; }
    void set_simulate_mode() { m_state.simulate_mode = true; }
    std::string const & get_custom_vhdl_library() const { return m_state.custom_vhdl_library; }
    void set_custom_vhdl_library(std::string const & library) { m_state.custom_vhdl_library = library; }
    bool uses_custom_subdesign_insert_mode() const { return m_state.custom_subdesign_insert_mode; }
    void set_custom_subdesign_insert_mode() { m_state.custom_subdesign_insert_mode = true; }
    bool connect_default_input_ports_in_verilog() const { return m_state.connect_default_inputs_in_verilog; }
    void set_connect_default_input_ports_in_verilog_for_synthesis()
    {
        m_state.connect_default_inputs_in_verilog = true;
    }
    bool qhdl_not_supported() const { return m_state.qhdl_not_supported; }
    void set_qhdl_not_supported() { m_state.qhdl_not_supported = true; }
    bool uses_external_ostream() const { return m_state.use_external_ostream; }
    void set_use_external_ostream() { m_state.use_external_ostream = true; }
    void register_subdesign_info(std::string const & entity, GNL_GENERATOR * subdesign);
    bool preserves_parameter_case() const { return m_state.preserve_parameter_case; }
    void set_preserve_parameter_case() { m_state.preserve_parameter_case = true; }
    void set_dont_preserve_parameter_case() { m_state.preserve_parameter_case = false; }
    bool needs_lumenbox_tag() const { return m_state.need_lumenbox_tag; }
    void set_need_lumenbox_tag(bool need) { m_state.need_lumenbox_tag = need; }
    bool is_vorlan_interface_mode() const { return m_state.vorlan_interface_mode; }
    void set_vorlan_interface_mode() { m_state.vorlan_interface_mode = true; }
    /// @}

private:
    // Internal workers; each is defined beside its only user.
    class generation_run;
    class subdesign_naming;
    class design_file_writer;
    class subdesign_pass;
    class header_line;
    class parameter_text_scanner;
    class slice_grouping;

    struct front_end_lists; ///< the `char **` lists handed to a front-end
    front_end_lists & lists();

    gnl_detail::generator_state m_state;
    std::unique_ptr<gnl_detail::element_registry> m_registry;
    std::unique_ptr<gnl_detail::option_set> m_options;
    std::unique_ptr<gnl_detail::subdesign_names> m_subdesign_names; ///< on the top generator, while it runs
    std::map<std::string, std::unique_ptr<GNL_PARAMETER>, LESS_C_STRING> m_inherited_parameters;
    std::map<std::string, std::unique_ptr<GNL_PARAMETER_ARRAY>, LESS_C_STRING> m_inherited_parameter_arrays;
    std::vector<std::unique_ptr<GNL_ELEMENT>> m_delete_list; ///< substitutes and temporaries
    std::vector<std::unique_ptr<GNL_PARAMETER_EXPR>> m_expressions;
    mutable std::unique_ptr<GNL_MSG_HANDLER> m_msg_handler; ///< made at the first use
    mutable std::unique_ptr<GNL_DEVICE_INFO> m_device_info; ///< made at the first use
    std::unique_ptr<GNL_SIMULATOR> m_simulator;
    std::unique_ptr<GIGA_RULES_VALIDATOR> m_rules_validator;
    std::unique_ptr<front_end_lists> m_front_end_lists;
    std::map<int, std::unique_ptr<GNL_TIMING_ASSIGNMENT>> m_timing_assignments;

    friend class gnl_detail::element_registry;
    friend class gnl_detail::option_set;
    friend class GNL_PRIMITIVE;
};
