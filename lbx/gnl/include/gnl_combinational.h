#pragma once

#include "gnl_generator.h"

/// @file
/// The built-in cells other than the register. Every port of a cell is one bit wide, in an array one bit for each
/// slice. A copy of a cell copies base and ports, each by its own copy constructor.

/// A transparent latch: `Q` follows `D` while `ENA` is 1, as it is when it is left open.
class GNL_LATCH : public GNL_GENERATOR
{
public:
    explicit GNL_LATCH(GNL_GENERATOR * parent, int array_size = 0);
    GNL_LATCH(GNL_LATCH const & other) = default;

    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override;

private:
    GNL_PORT_INPUT m_ena;
    GNL_PORT_INPUT m_d;
    GNL_PORT_OUTPUT m_q;
};

/// A multiplexer: `dataout` is `datab` when `outputselect` is 1 and else `dataa`.
class GNL_MUX21 : public GNL_GENERATOR
{
public:
    explicit GNL_MUX21(GNL_GENERATOR * parent, char const * text = "", int array_size = 0);
    GNL_MUX21(GNL_MUX21 const & other) = default;

    /// The cell's own name, whatever entity name was set.
    std::string get_entity_name() const override { return get_name(); }
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override;

private:
    GNL_PORT_INPUT m_dataa;
    GNL_PORT_INPUT m_datab;
    GNL_PORT_INPUT m_outputselect;
    GNL_PORT_OUTPUT m_dataout;
};

/// A tri-state buffer: `out` is `in` while `oe` is 1.
class GNL_TRI : public GNL_GENERATOR
{
public:
    explicit GNL_TRI(GNL_GENERATOR * parent, int array_size = 0);
    GNL_TRI(GNL_TRI const & other) = default;

    /// The slice `index` of an array; messages and results otherwise as for every generator.
    GNL_TRI & operator[](int index);
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override;

private:
    GNL_PORT_INPUT m_in;
    GNL_PORT_INPUT m_oe;
    GNL_PORT_OUTPUT m_out;
};

/// A logic cell: keeps what it passes from `in` to `out` in a cell of its own.
class GNL_LCELL : public GNL_GENERATOR
{
public:
    explicit GNL_LCELL(GNL_GENERATOR * parent, int array_size = 0);
    GNL_LCELL(GNL_LCELL const & other) = default;

    static std::string get_in_port_name() { return "in"; }
    static std::string get_out_port_name() { return "out"; }
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override;

private:
    GNL_PORT_INPUT m_in;
    GNL_PORT_OUTPUT m_out;
};

/// A soft buffer between `in` and `out`: the tool may take it away.
class GNL_SOFT : public GNL_GENERATOR
{
public:
    explicit GNL_SOFT(GNL_GENERATOR * parent, int array_size = 0);
    GNL_SOFT(GNL_SOFT const & other) = default;

    static std::string get_in_port_name() { return "in"; }
    static std::string get_out_port_name() { return "out"; }
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override;

private:
    GNL_PORT_INPUT m_in;
    GNL_PORT_OUTPUT m_out;
};

/// A cascade buffer from `in` to `out`.
class GNL_CASCADE : public GNL_GENERATOR
{
public:
    explicit GNL_CASCADE(GNL_GENERATOR * parent, int array_size = 0);
    GNL_CASCADE(GNL_CASCADE const & other) = default;

    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override;

private:
    GNL_PORT_INPUT m_in;
    GNL_PORT_OUTPUT m_out;
};

/// A link of a carry chain: `cin` and `sin` pass to `cout` and `sout`.
class GNL_CARRY_SUM : public GNL_GENERATOR
{
public:
    explicit GNL_CARRY_SUM(GNL_GENERATOR * parent, int array_size = 0);
    GNL_CARRY_SUM(GNL_CARRY_SUM const & other) = default;

    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override;
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override;

private:
    GNL_PORT_INPUT m_cin;
    GNL_PORT_INPUT m_sin;
    GNL_PORT_OUTPUT m_cout;
    GNL_PORT_OUTPUT m_sout;
};
