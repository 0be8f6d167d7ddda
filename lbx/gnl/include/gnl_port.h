#pragma once

#include "gnl_element.h"

#include "mlib_uinteger.h"

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

class GNL_PORT_CONCAT;
class GNL_PORT_LOGIC;
class GNL_PORT_OUTPUT_RANGE;
class GNL_PRIMITIVE;

namespace gnl_detail {
class description_writer;
} // namespace gnl_detail

/// Every connectable object of a design: declared pins, wires, and the objects that the port operators make.
///
/// A width of 0 is a scalar, a wire without an index; 1 or more is a bus of that many bits. Bit 0 is the least
/// significant. Ports made with `new` under a parent are owned by the parent.
///
///     GNL_PORT_INPUT a(this, "a", 8), b(this, "b", 8), c(this, "c");
///     GNL_PORT_OUTPUT y(this, "y", 8);
///     y = (a & b) ^ c;                     // inside rtl_body; c is repeated for each bit
///     y.range(3, 0) = a.range(7, 4);       // piece by piece
class GNL_PORT : public GNL_ELEMENT
{
public:
    /// A plain port: no declared pin, but the carrier of constants in ranges and concatenations.
    GNL_PORT(GNL_GENERATOR * parent, std::string const & name, int width = 0, int width_2d = 0);
    /// Copies every field; the constant is copied too. A copy is in no registry.
    GNL_PORT(GNL_PORT const & other);
    ~GNL_PORT() override;

    bool is_port() const final { return true; }
    /// "PORT;" and the name.
    std::string generate_key() const override;
    static std::string generate_key_base(std::string const & name);

    virtual bool is_bidir() const { return false; }
    virtual bool is_input() const { return false; }
    virtual bool is_output() const { return false; }
    virtual bool is_wire() const { return false; }
    virtual bool is_range_port() const { return false; }
    virtual bool is_concat_port() const { return false; }
    virtual bool is_logic() const { return false; }

    /// Width in bits, 0 for a scalar. The first call on a generator settles its parameters and all its port widths.
    virtual int get_width();

    /// @name Text
    /// Defined in ports/gnl_port_description.cpp.
    /// @{

    /// Writes the complete reference to this port in the text of `level`: instance prefix, array subscript, bit range.
    /// `with_index` asks for the range of a whole bus where the language makes that optional; `target` is what the
    /// text drives, null if nothing. Chains of expressions of any depth are written without recursion.
    virtual void dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, GNL_PORT * target);
    /// Writes one gate for each bit of an expression; nothing for other ports.
    virtual void dump_structural_netlist(std::ostream & out, GNL_GENERATOR * level);
    /// @}

    virtual void set_create_wire() {}
    virtual void set_has_special_bidir_driver() {}
    virtual bool has_special_bidir_driver() const { return false; }
    virtual GNL_PORT * get_driven_bidir_port() const { return nullptr; }
    /// Settles whether a subdesign's bidir acts as an output or drives another bidir. Posts `bidir_drives_bidir` and
    /// `bidir_in_use`.
    virtual void check_bidir_validity(GNL_GENERATOR * parent_of_lhs, bool lhs_is_bidir, GNL_PORT * lhs);

    /// @name Concatenation
    /// Defined in ports/gnl_port_concat.cpp. The left operand holds the higher bits.
    /// @{
    virtual GNL_PORT_CONCAT & operator,(GNL_PORT_CONCAT & low);
    /// A constant of as many bits as the natural logarithm of `value` + 1, cut, plus 1; 0 is a scalar. Values whose
    /// highest bit does not fit that width are refused.
    virtual GNL_PORT_CONCAT & operator,(int value);
    virtual GNL_PORT_CONCAT & operator,(GNL_PORT & low);
    /// @}

    /// Whether a range may be read at `level`; true for anything but a range.
    virtual bool check_range_driver_validity(GNL_GENERATOR * level);
    virtual bool is_driven_by_constant() const { return m_driven_by_constant; }
    /// The constant's binary digits for one slice, or for one bit when the declared width is 0 or 1.
    virtual std::string constant_driving_value(int index);
    /// The constant's binary digits, most significant first; "" without one.
    virtual std::string constant_driving_value();
    /// The name of the signal in the text being written. Defined in ports/gnl_port_source_name.cpp.
    virtual std::string get_source_name(bool for_connection);
    /// Asks for a VHDL generate loop; without effect in the other languages.
    virtual void set_create_vhdl_loop();
    /// Whether the port takes part in the netlist; answers for an array as a whole.
    virtual bool is_used();
    /// The flag alone, without asking master or slices.
    virtual bool check_is_used_flag() const { return m_used; }
    /// -1 without a default.
    virtual int get_default_value() const { return -1; }
    virtual void set_range_port_used() {}
    virtual void set_generate_constant_wire() {}
    virtual std::string get_planb_width() const { return {}; }
    virtual bool is_special_logic_port() const { return false; }
    virtual bool is_std_logic_port();

    /// @name Connections
    /// Legal inside `rtl_body` only. Defined in ports/gnl_port_connection.cpp, constants in
    /// ports/gnl_port_constant_connection.cpp, `make_connection` in ports/gnl_port_range_connection.cpp. The messages
    /// are those of ports/port_messages.h. Every one returns this port, also after an error.
    /// @{

    /// Drives this port with `rhs`. Its width must be that of `rhs` or a multiple, which repeats `rhs`.
    GNL_PORT & operator=(GNL_PORT & rhs);
    /// Drives this port with a constant from 0 to 2^width - 1.
    GNL_PORT & operator=(int value);
    GNL_PORT & operator=(MLIB_UINTEGER & value);
    /// Drives the bits `high` down to `low`, both included.
    GNL_PORT & make_connection(GNL_PORT & rhs, int high, int low, GNL_GENERATOR * level, bool check_array_slices);
    GNL_PORT & make_connection(int value, int high, int low, GNL_GENERATOR * level, bool check_array_slices);
    GNL_PORT & make_connection(MLIB_UINTEGER & value, int high, int low, GNL_GENERATOR * level,
                               bool check_array_slices);
    /// Whether the port may be a sink, or a source, in the body of `level`.
    bool check_lhs(GNL_GENERATOR * level);
    bool check_rhs(GNL_GENERATOR * level);
    /// Whether a connection is free of conflict with the other side of an array.
    bool check_slices();
    bool check_slices(int high, int low);
    /// The generator whose body a connection to this port belongs to; null outside of all bodies.
    GNL_GENERATOR * find_connection_level() const;
    /// @}

    /// @name Ranges
    /// Defined in ports/gnl_port_range.cpp.
    /// @{

    /// Selects the bits `high` down to `low`, both included; on a two-dimensional port the bounds count rows. Equal
    /// bounds at one level give the same object. The design owns it; do not delete it. Posts `range_out_of_bounds`,
    /// and still returns a range, when a bound lies outside the port.
    ///
    ///     nibble = data.range(3, 0);       // nibble is 4 bits wide
    GNL_PORT_OUTPUT_RANGE & range(int high, int low);
    /// The same as `range(bit, bit)`.
    GNL_PORT_OUTPUT_RANGE & operator[](int bit);
    bool check_range_for_arrays(int high, int low);
    /// @}

    /// @name Expressions
    /// Defined in ports/gnl_port_logic_operators.cpp. Equal expressions are one object, which the design owns.
    /// @{
    GNL_PORT_LOGIC & operator&(GNL_PORT & rhs);
    GNL_PORT_LOGIC & operator|(GNL_PORT & rhs);
    GNL_PORT_LOGIC & operator^(GNL_PORT & rhs);
    GNL_PORT_LOGIC & operator!();
    GNL_PORT_LOGIC & operator~();
    /// Reduce a bus of at least 2 bits to one.
    GNL_PORT_LOGIC & bitwise_and();
    GNL_PORT_LOGIC & bitwise_or();
    GNL_PORT_LOGIC & bitwise_xor();
    /// @}

    /// @name State
    /// Defined in ports/gnl_port.cpp, the comparisons in ports/gnl_port_comparison.cpp.
    /// @{
    GNL_PORT * get_driver() const { return m_driver; }
    MLIB_UINTEGER * constant_driving_value_as_mlib_int() const { return m_extras ? m_extras->constant.get() : nullptr; }
    /// The low 32 bits of the constant, 0 without one.
    unsigned constant_driving_value_as_int() const;
    GNL_GENERATOR * get_connection_level() const { return m_connection_level; }
    void set_connection_level(GNL_GENERATOR * level) { m_connection_level = level; }
    int get_2d_width() const { return m_extras ? m_extras->width_2d : 0; }
    /// The declared width of one slice.
    int get_original_width() const { return m_extras && m_extras->slice_width ? *m_extras->slice_width : m_width; }
    /// The width as it stands, without settling anything.
    int get_default_width() const { return m_width; }
    bool same_as_parent(GNL_GENERATOR * generator) const { return generator == get_parent(); }
    /// An input, an output, a wire or a bidir.
    bool is_simple_port() const { return is_input() || is_output() || is_wire() || is_bidir(); }
    /// `get_width`, with 0 read as 1.
    int get_bus_width();
    bool need_to_create_vhdl_loop() const { return is_vhdl() && m_create_vhdl_loop; }
    /// Whether the loop flag is set, whatever the language.
    bool has_create_vhdl_loop() const { return m_create_vhdl_loop; }

    void remove_driver();
    void remove_constant_driver();
    void replace_driver(GNL_PORT * driver);
    void replace_driver(int value);
    void replace_driver(MLIB_UINTEGER & value);

    /// Whether the writers declare the port: false for an optional wire that drives nothing.
    bool declare_port();
    bool port_has_wire_in_custom_vhdl(GNL_GENERATOR * level);

    void set_used() { m_used = true; }
    void set_used(bool used) { m_used = used; }
    void set_port_is_signed() { m_signed = true; }
    bool is_signed() const { return m_signed; }
    void set_as_heterogeneous_port() { m_heterogeneous = true; }
    bool is_heterogeneous_port() const { return m_heterogeneous; }
    void set_vhdl_array_wire() { m_vhdl_array_wire = true; }
    bool is_vhdl_array_wire() const { return m_vhdl_array_wire; }
    void set_as_not_included_in_declaration() { m_included_in_declaration = false; }
    bool is_included_in_declaration() const { return m_included_in_declaration; }
    void set_use_parent_source_name() { m_use_parent_source_name = true; }
    void disable_use_parent_source_name() { m_use_parent_source_name = false; }
    bool uses_parent_source_name() const { return m_use_parent_source_name; }

    void set_port_is_a_driver() { ++m_driver_count; }
    void remove_port_as_driver() { --m_driver_count; }
    bool port_is_a_driver() const { return m_driver_count > 0; }
    /// How many objects use this port as a source.
    int get_driver_count() const { return m_driver_count; }
    void set_driver_removal_done() { m_driver_removal_done = true; }
    bool driver_removal_done() const { return m_driver_removal_done; }

    /// Whether any driver, a constant driver, or the value of a constant is found on the port or, for a slice, on the
    /// array's port of the same name.
    bool check_port_has_valid_driver();
    bool check_port_is_driven_by_constant();
    int get_port_constant_driving_value();
    /// Whether these bits are still free.
    bool check_port_assignment(int low, int high);
    bool check_if_driven_at_bits(int low, int high);
    virtual bool are_all_bits_used() { return true; }
    /// Whether the driver is a NOT of a simple port; a slice without a driver asks the array's port.
    bool has_inverted_port_driver();

    static bool check_port_equivalence_across_hierarchies(GNL_PORT * a, GNL_PORT * b);
    static bool check_port_equality_across_hierarchies(GNL_PORT * a, GNL_PORT * b);
    /// Looks `key` up in the parent's registry; null without a parent.
    GNL_ELEMENT * find_object(std::string const & key) const;
    /// @}

    /// @name Width
    /// Defined in ports/gnl_port_width.cpp. Legal while the parent updates its port widths only; posts
    /// `width_changed_outside` and `negative_width`. Both return this port.
    /// @{
    GNL_PORT & set_width(int width, bool set_original);
    GNL_PORT & set_width_safe(int width, bool set_original);
    /// Whether a source of `bus_width` bits can be repeated to fill this port.
    bool is_divisible(int bus_width);
    /// The width expressions of a declared pin; null when it has none.
    virtual char const * get_width_parameter_name() const { return nullptr; }
    virtual char const * get_2d_width_parameter_name() const { return nullptr; }
    /// @}

    /// @name Internal options
    /// Defined in ports/gnl_port_options.cpp.
    /// @{
    void set_qelvar_internal_option(std::string const & setting);
    void dump_qelvar_internal_options(std::ostream & out) const;
    bool has_qelvar_internal_options() const { return m_extras && !m_extras->internal_options.empty(); }
    /// @}

    /// @name Names
    /// Defined in ports/gnl_port_names.cpp.
    /// @{

    /// The name, with "a_" in front of the words "in", "out" and "abs".
    std::string get_vhdl_name() const;
    static std::string fix_wire_name(GNL_GENERATOR * parent, std::string const & name, int width_sum);
    static std::string get_wire_name_from_parent(GNL_GENERATOR * parent, std::string const & first,
                                                 std::string const & second);
    /// @}

    // A generator cannot be assigned to a port.
    GNL_PORT & operator=(GNL_GENERATOR & generator) = delete;

protected:
    /// The number of a name that is made when it is needed; 0 without a parent to count it.
    static std::uint32_t late_name_number(GNL_GENERATOR * parent);
    /// An expression or a range of `width` bits.
    GNL_PORT(GNL_GENERATOR * parent, std::uint32_t late_number, int width);

    /// Writes the reference of one port that holds no others, or schedules its pieces on `writer`, so that expressions
    /// of any depth are written without recursion.
    virtual void describe(gnl_detail::description_writer & writer, GNL_GENERATOR * level, bool with_index,
                          GNL_PORT * target);
    friend class gnl_detail::description_writer;

    /// The concatenation that collects the pieces assigned to this port at `level`. The first piece makes it and marks
    /// a pin as used. Defined in ports/gnl_port_range_connection.cpp.
    GNL_PORT_CONCAT & driver_of_pieces(GNL_GENERATOR * level);

    /// The width changes, and that of one slice with it.
    void declare_width(int width);
    /// The width changes, and that of one slice stays.
    void change_width(int width);

    /// What few ports have; a design has ports by the million.
    struct extras
    {
        extras() = default;
        extras(extras const & other);
        extras & operator=(extras const &) = delete;

        std::unique_ptr<MLIB_UINTEGER> constant;
        std::vector<std::string> internal_options;
        std::optional<int> slice_width; ///< declared width of one slice, if it isn't that of the whole
        int width_2d = 0;
    };
    extras & made_extras();
    void set_constant(std::unique_ptr<MLIB_UINTEGER> constant);

    int m_width;                                  ///< of the whole array, 0 for a scalar; fills up the element's words
    GNL_PORT * m_driver = nullptr;                ///< not owned
    std::unique_ptr<extras> m_extras;             ///< null while there are none
    GNL_GENERATOR * m_connection_level = nullptr; ///< not owned
    int m_driver_count = 0;
    bool m_driven_by_constant : 1 = false;
    bool m_create_vhdl_loop : 1 = false;
    bool m_used : 1 = false;
    bool m_signed : 1 = false;
    bool m_heterogeneous : 1 = false;
    bool m_vhdl_array_wire : 1 = false;
    bool m_included_in_declaration : 1 = true;
    bool m_use_parent_source_name : 1 = false;
    bool m_driver_removal_done : 1 = false;
};

/// A declared input.
class GNL_PORT_INPUT : public GNL_PORT
{
public:
    /// `width` bits, or `width` times `width_2d` when that is not 0.
    GNL_PORT_INPUT(GNL_GENERATOR * parent, std::string const & name, int width = 0, int width_2d = 0);
    /// Widths from expressions over the parent's integer parameters, see `evaluate_port_width_expression`.
    GNL_PORT_INPUT(GNL_GENERATOR * parent, std::string const & name, std::string const & width_expression,
                   std::string const & width_2d_expression = "");
    GNL_PORT_INPUT(GNL_PORT_INPUT const & other) = default;

    bool is_input() const override { return true; }
    GNL_PORT & operator=(GNL_PORT & rhs) { return GNL_PORT::operator=(rhs); }
    GNL_PORT & operator=(GNL_PORT_INPUT & rhs) { return GNL_PORT::operator=(rhs); }
    GNL_PORT & operator=(int value) { return GNL_PORT::operator=(value); }
    GNL_PORT & operator=(MLIB_UINTEGER & value) { return GNL_PORT::operator=(value); }
    GNL_PORT & operator=(GNL_GENERATOR & generator) = delete;

    void dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, GNL_PORT * target) override;
    void dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, int high_slice);
    void dump_custom_port_description(std::ostream & out, GNL_GENERATOR * level, int index, bool use_index);
    void dump_custom_constant_port_assignment(std::ostream & out, GNL_GENERATOR * level, int value, bool use_index);

    int get_default_value() const override { return m_default_value; }
    /// For the parent's constructor only; posts `default_outside_constructor` in the body or while widths are updated.
    void set_default_port_value(int value);
    std::string get_default_value_as_string(int width) const;
    void set_generate_constant_wire() override { m_generate_constant_wire = true; }
    bool is_a_constant_wire() const { return m_generate_constant_wire; }
    char const * get_width_parameter_name() const override;
    char const * get_2d_width_parameter_name() const override;
    void set_planb_width(std::string const & width) { m_planb_width = width; }
    std::string get_planb_width() const override { return m_planb_width; }
    void set_non_sensitive_custom_port() { m_non_sensitive_custom_port = true; }
    bool is_non_sensitive_custom_port() const { return m_non_sensitive_custom_port; }
    /// Also clears `used`.
    void set_constant_used();
    bool is_constant_used_port() const { return m_constant_used; }
    bool are_all_bits_used() override;

protected:
    void describe(gnl_detail::description_writer & writer, GNL_GENERATOR * level, bool with_index,
                  GNL_PORT * target) override;

private:
    int m_default_value = -1;
    bool m_generate_constant_wire = false;
    bool m_non_sensitive_custom_port = false;
    bool m_constant_used = false;
    std::string m_width_parameter_name;
    std::string m_width_2d_parameter_name;
    std::string m_planb_width;
};

/// A declared output.
class GNL_PORT_OUTPUT : public GNL_PORT
{
public:
    GNL_PORT_OUTPUT(GNL_GENERATOR * parent, std::string const & name, int width = 0, int width_2d = 0);
    GNL_PORT_OUTPUT(GNL_GENERATOR * parent, std::string const & name, std::string const & width_expression,
                    std::string const & width_2d_expression = "");
    GNL_PORT_OUTPUT(GNL_PORT_OUTPUT const & other) = default;

    bool is_output() const override { return true; }
    GNL_PORT & operator=(GNL_PORT & rhs) { return GNL_PORT::operator=(rhs); }
    GNL_PORT & operator=(GNL_PORT_OUTPUT & rhs) { return GNL_PORT::operator=(rhs); }
    GNL_PORT & operator=(int value) { return GNL_PORT::operator=(value); }
    GNL_PORT & operator=(MLIB_UINTEGER & value) { return GNL_PORT::operator=(value); }
    GNL_PORT & operator=(GNL_GENERATOR & generator) = delete;

    void dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, GNL_PORT * target) override;
    void dump_custom_port_description(std::ostream & out, GNL_GENERATOR * level, int index, bool use_index);

    int get_default_value() const override { return m_default_value; }
    /// For the parent's constructor only; posts `default_outside_constructor` in the body or while widths are updated.
    void set_default_port_value(int value);
    std::string get_default_value_as_string(int width) const;
    void set_use_verilog_reg() { m_use_verilog_reg = true; }
    bool uses_verilog_reg() const { return m_use_verilog_reg; }
    void set_create_wire() override { m_create_wire = true; }
    bool need_to_create_wire() const { return m_create_wire; }
    void set_width_parameter_name(std::string const & expression) { m_width_parameter_name = expression; }
    char const * get_width_parameter_name() const override;
    char const * get_2d_width_parameter_name() const override;
    void set_planb_width(std::string const & width) { m_planb_width = width; }
    std::string get_planb_width() const override { return m_planb_width; }
    bool are_all_bits_used() override;

protected:
    void describe(gnl_detail::description_writer & writer, GNL_GENERATOR * level, bool with_index,
                  GNL_PORT * target) override;

private:
    bool m_use_verilog_reg = false;
    bool m_create_wire = false;
    int m_default_value = -1;
    std::string m_width_parameter_name;
    std::string m_width_2d_parameter_name;
    std::string m_planb_width;
};

/// A declared bidirectional port.
class GNL_PORT_BIDIR : public GNL_PORT
{
public:
    GNL_PORT_BIDIR(GNL_GENERATOR * parent, std::string const & name, int width = 0, int width_2d = 0);
    GNL_PORT_BIDIR(GNL_GENERATOR * parent, std::string const & name, std::string const & width_expression,
                   std::string const & width_2d_expression = "");
    GNL_PORT_BIDIR(GNL_PORT_BIDIR const & other) = default;

    bool is_bidir() const override { return true; }
    GNL_PORT & operator=(GNL_PORT & rhs) { return GNL_PORT::operator=(rhs); }
    GNL_PORT & operator=(GNL_PORT_BIDIR & rhs) { return GNL_PORT::operator=(rhs); }
    GNL_PORT & operator=(int value) { return GNL_PORT::operator=(value); }
    GNL_PORT & operator=(MLIB_UINTEGER & value) { return GNL_PORT::operator=(value); }
    GNL_PORT & operator=(GNL_GENERATOR & generator) = delete;

    void dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, GNL_PORT * target) override;
    /// What drives a bidir through a bidir to bidir connection (Verilog and VHDL). Posts `bidir_to_non_bidir`.
    void dump_special_driver_description(std::ostream & out, GNL_GENERATOR * level, int index);

    void set_has_special_bidir_driver() override { m_has_special_driver = true; }
    bool has_special_bidir_driver() const override { return m_has_special_driver; }
    GNL_PORT * get_driven_bidir_port() const override { return m_driven_bidir_port; }
    void set_driven_bidir_port(GNL_PORT * port) { m_driven_bidir_port = port; }
    void check_bidir_validity(GNL_GENERATOR * parent_of_lhs, bool lhs_is_bidir, GNL_PORT * lhs) override;
    /// 0 not yet used outward, 1 acts as an output, 2 drives another bidir.
    void lock_bidir_port(int usage) { m_bidir_usage = usage; }
    int is_locked_bidir_port() const { return m_bidir_usage; }
    void set_as_qhdl_input_port() { m_qhdl_input_port = true; }
    bool is_qhdl_input_port() const { return m_qhdl_input_port; }
    char const * get_width_parameter_name() const override;
    char const * get_2d_width_parameter_name() const override;

protected:
    void describe(gnl_detail::description_writer & writer, GNL_GENERATOR * level, bool with_index,
                  GNL_PORT * target) override;

private:
    std::string m_width_parameter_name;
    std::string m_width_2d_parameter_name;
    int m_bidir_usage = 0;
    bool m_has_special_driver = false;
    bool m_qhdl_input_port = false;
    GNL_PORT * m_driven_bidir_port = nullptr; ///< not owned
};

/// An internal signal. An empty name gets one of the form w12w; a name that is taken is reported and replaced.
class GNL_WIRE : public GNL_PORT
{
public:
    GNL_WIRE(GNL_GENERATOR * parent, std::string const & name, int width = 0, int width_2d = 0);
    GNL_WIRE(GNL_WIRE const & other) = default;

    bool is_wire() const override { return true; }
    GNL_PORT & operator=(GNL_PORT & rhs) { return GNL_PORT::operator=(rhs); }
    GNL_PORT & operator=(GNL_WIRE & rhs) { return GNL_PORT::operator=(rhs); }
    GNL_PORT & operator=(int value) { return GNL_PORT::operator=(value); }
    GNL_PORT & operator=(MLIB_UINTEGER & value) { return GNL_PORT::operator=(value); }
    GNL_PORT & operator=(GNL_GENERATOR & generator) = delete;

    void set_use_verilog_reg() { m_use_verilog_reg = true; }
    bool uses_verilog_reg() const { return m_use_verilog_reg; }
    int get_default_value() const override { return m_default_value; }
    void set_default_port_value(int value) { m_default_value = value; }
    std::string get_default_value_as_string(int width) const;
    /// What a simulation of a VHDL design starts with; -1 for nothing.
    void set_initial_value(int value) { m_initial_value = value; }
    int get_initial_value() const { return m_initial_value; }

private:
    bool m_use_verilog_reg = false;
    int m_default_value = -1;
    int m_initial_value = -1; ///< of simulations, -1 for none
};
