#pragma once

#include "gnl_parameter.h"

#include "mlib_uinteger.h"

#include <memory>

/// A bit vector of any width, given as an integer, an `MLIB_UINTEGER` or text ("0x1F", "0b101", "5").
class GNL_PARAMETER_VECTOR : public GNL_PARAMETER
{
public:
    /// 32 bits, no default.
    GNL_PARAMETER_VECTOR(GNL_GENERATOR * parent, std::string const & name);
    /// A default of 0 is all zeros, of 1 all ones.
    GNL_PARAMETER_VECTOR(GNL_GENERATOR * parent, std::string const & name, int default_value, int width);
    /// The width is the value of an expression over the parent's integer parameters.
    GNL_PARAMETER_VECTOR(GNL_GENERATOR * parent, std::string const & name, int default_value,
                         std::string const & width_name);
    GNL_PARAMETER_VECTOR(GNL_GENERATOR * parent, std::string const & name, std::string const & default_text, int width);
    GNL_PARAMETER_VECTOR(GNL_GENERATOR * parent, std::string const & name, std::string const & default_text,
                         std::string const & width_name);
    /// Copies take everything: name, parent, flags, width and the values. So does assignment, except that a registered
    /// parameter keeps its name and its place.
    GNL_PARAMETER_VECTOR(GNL_PARAMETER_VECTOR const & other);

    bool is_vector_parameter() const override { return true; }
    GNL_PARAMETER_VECTOR & operator=(int value);
    GNL_PARAMETER_VECTOR & operator=(MLIB_UINTEGER value);
    GNL_PARAMETER_VECTOR & operator=(std::string const & text);
    GNL_PARAMETER_VECTOR & operator=(char const * text) { return *this = std::string(text); }
    GNL_PARAMETER_VECTOR & operator=(GNL_PARAMETER_VECTOR const & other);

    /// The value, 0 when none was assigned; posts `vector_not_assigned` and `vector_inherits`.
    MLIB_UINTEGER & get_value();
    MLIB_UINTEGER * get_default_value();
    bool has_default_value() const { return m_default_vector != nullptr || m_default_small != -1; }
    int get_default_value_as_int() const;
    void set_default_value(int value);
    /// In bits; -1 while the width is not known yet.
    int get_width() const { return m_vector_width; }
    /// Once, and only with width override; posts `vector_width_fixed` otherwise.
    void set_width(int width);
    bool has_unassigned_value() const { return !m_unassigned_value.empty(); }
    void assign_unassigned_value();

    void allow_width_override() { m_width_override = true; }
    bool overrides_width() const { return m_width_override; }
    void set_to_use_binary_output() { m_binary_output = true; }
    bool uses_binary_output() const { return m_binary_output; }
    std::string const & get_width_parameter_name() const { return m_width_parameter_name; }
    void set_as_vhdl_bit_vector() { m_vhdl_bit_vector = true; }
    bool is_vhdl_bit_vector() const { return m_vhdl_bit_vector; }

protected:
    void assign_string_value(std::string const & text, bool to_value);

private:
    void set_first_default(int default_value, int width);
    void set_first_default(std::string const & text);
    void copy_fields(GNL_PARAMETER_VECTOR const & other);
    bool may_assign(std::string const & text);
    void finish_assignment();
    /// The value's object, made as 0 when there is none.
    MLIB_UINTEGER & own_value();

    bool m_width_override = false;
    bool m_binary_output = false;
    bool m_vhdl_bit_vector = false;
    std::string m_width_parameter_name;
    std::unique_ptr<MLIB_UINTEGER> m_vector_value;
    std::unique_ptr<MLIB_UINTEGER> m_default_vector;
    int m_vector_width = 32;
    int m_default_small = -1;
    std::string m_unassigned_value;
};
