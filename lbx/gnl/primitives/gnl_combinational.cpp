#include "gnl_combinational.h"

#include "lbx/gnl/primitives/cells.h"

// What the cells are. They differ in ways that look accidental and are stated so: names in upper or lower case, which
// of them have a file, which of them settle their widths at once, and the package of the logic cell.

using gnl_detail::enter_library_version;
using gnl_detail::primitives_library;
using gnl_detail::settle_slice;

using version_map = std::map<std::string, std::string, LESS_C_STRING>;

// ---- Latch

GNL_LATCH::GNL_LATCH(GNL_GENERATOR * parent, int array_size)
    : GNL_GENERATOR(parent, "latch", "", array_size)
    , m_ena(this, "ENA")
    , m_d(this, "D")
    , m_q(this, "Q")
{
    set_primitive();
    set_vhdl_primitive();
    set_vhdl_library(primitives_library, true);
    set_instance_basename("latch");
    m_ena.set_default_port_value(1);
}

void GNL_LATCH::create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name)
{
    settle_slice(*new GNL_LATCH(parent), parent, index, instance_name);
}

void GNL_LATCH::get_version(version_map & versions)
{
    enter_library_version(versions);
}

// ---- Multiplexer

GNL_MUX21::GNL_MUX21(GNL_GENERATOR * parent, char const * text, int array_size)
    : GNL_GENERATOR(parent, "mux21", text, array_size)
    , m_dataa(this, "dataa")
    , m_datab(this, "datab")
    , m_outputselect(this, "outputselect")
    , m_dataout(this, "dataout")
{
    set_primitive();
    set_instance_basename("mux21");
    set_custom_subdesign_insert_mode();
    set_use_custom_verilog_output();
    set_use_custom_vhdl_output();
    set_use_custom_qhdl_output();
    disable_lpm_type_output();
}

void GNL_MUX21::create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name)
{
    settle_slice(*new GNL_MUX21(parent), parent, index, instance_name);
}

void GNL_MUX21::get_version(version_map & versions)
{
    enter_library_version(versions);
}

// ---- Tri-state buffer

GNL_TRI::GNL_TRI(GNL_GENERATOR * parent, int array_size)
    : GNL_GENERATOR(parent, "TRI", "", array_size)
    , m_in(this, "in")
    , m_oe(this, "oe")
    , m_out(this, "out")
{
    set_primitive();
    set_vhdl_primitive();
    set_vhdl_library(primitives_library, true);
    set_instance_basename("tri_buf");
    set_custom_subdesign_insert_mode();
    set_use_custom_verilog_output();
    set_use_custom_vhdl_output();
    m_in.set_non_sensitive_custom_port();
}

GNL_TRI & GNL_TRI::operator[](int index)
{
    // The slice is what `create_self_copy` made, or this object when there is none.
    return static_cast<GNL_TRI &>(GNL_GENERATOR::operator[](index));
}

void GNL_TRI::create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name)
{
    settle_slice(*new GNL_TRI(parent), parent, index, instance_name);
}

void GNL_TRI::get_version(version_map & versions)
{
    enter_library_version(versions);
}

// ---- Logic cell

GNL_LCELL::GNL_LCELL(GNL_GENERATOR * parent, int array_size)
    : GNL_GENERATOR(parent, "lcell", "", array_size)
    , m_in(this, get_in_port_name())
    , m_out(this, get_out_port_name())
{
    set_primitive();
    dont_generate_file();
    set_vhdl_primitive();
    set_vhdl_library("qelvar_mf.qelvar_mf_components", true);
    set_instance_basename("le");
    process_port_widths();
}

void GNL_LCELL::create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name)
{
    settle_slice(*new GNL_LCELL(parent), parent, index, instance_name);
}

void GNL_LCELL::get_version(version_map & versions)
{
    enter_library_version(versions);
}

// ---- Soft buffer

GNL_SOFT::GNL_SOFT(GNL_GENERATOR * parent, int array_size)
    : GNL_GENERATOR(parent, "soft", "", array_size)
    , m_in(this, get_in_port_name())
    , m_out(this, get_out_port_name())
{
    set_primitive();
    dont_generate_file();
    set_vhdl_primitive();
    set_vhdl_library(primitives_library, true);
    set_instance_basename("sft");
    process_port_widths();
}

void GNL_SOFT::create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name)
{
    settle_slice(*new GNL_SOFT(parent), parent, index, instance_name);
}

void GNL_SOFT::get_version(version_map & versions)
{
    enter_library_version(versions);
}

// ---- Cascade buffer

GNL_CASCADE::GNL_CASCADE(GNL_GENERATOR * parent, int array_size)
    : GNL_GENERATOR(parent, "cascade", "", array_size)
    , m_in(this, "in")
    , m_out(this, "out")
{
    set_primitive();
    set_vhdl_primitive();
    set_vhdl_library(primitives_library, true);
    set_instance_basename("csc");
    process_port_widths();
}

void GNL_CASCADE::create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name)
{
    settle_slice(*new GNL_CASCADE(parent), parent, index, instance_name);
}

void GNL_CASCADE::get_version(version_map & versions)
{
    enter_library_version(versions);
}

// ---- Carry chain

GNL_CARRY_SUM::GNL_CARRY_SUM(GNL_GENERATOR * parent, int array_size)
    : GNL_GENERATOR(parent, "carry_sum", "", array_size)
    , m_cin(this, "cin")
    , m_sin(this, "sin")
    , m_cout(this, "cout")
    , m_sout(this, "sout")
{
    set_primitive();
    dont_generate_file();
    set_vhdl_primitive();
    set_vhdl_library(primitives_library, true);
    set_instance_basename("cs");
    process_port_widths();
}

void GNL_CARRY_SUM::create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name)
{
    settle_slice(*new GNL_CARRY_SUM(parent), parent, index, instance_name);
}

void GNL_CARRY_SUM::get_version(version_map & versions)
{
    enter_library_version(versions);
}
