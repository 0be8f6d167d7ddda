#pragma once

#include "gnl_port.h"

/// A bitwise expression over one or two ports. Made by the port operators; the design owns it.
class GNL_PORT_LOGIC : public GNL_PORT
{
public:
    enum OPERATION { not_operation = 1, and_operation = 2, or_operation = 3, xor_operation = 4 };

    /// `second` is null for a NOT. The width is that of the operand with the larger bus width, the first on a tie.
    GNL_PORT_LOGIC(GNL_GENERATOR * parent, int operation, GNL_PORT * first, GNL_PORT * second);

    bool is_logic() const override { return true; }
    std::string generate_key() const override;
    /// "LGC;" operation ";" first, and ";" second unless that is empty.
    static std::string generate_key_base(std::string const & operation, std::string const & first,
                                         std::string const & second);
    std::string get_hierarchical_name() const override;

    using GNL_PORT::operator=;

    void set_special_logic_port() { m_special_logic_port = true; }
    bool is_special_logic_port() const override { return m_special_logic_port; }
    int get_operation() const { return m_operation; }
    bool is_not_port() const { return m_operation == not_operation; }
    GNL_PORT * get_first_operand() const { return m_first_operand; }
    GNL_PORT * get_second_operand() const { return m_second_operand; }
    void replace_first_operand(GNL_PORT * port);
    void replace_second_operand(GNL_PORT * port);

    void dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, GNL_PORT * target) override;
    void dump_structural_netlist(std::ostream & out, GNL_GENERATOR * level) override;
    void dump_vhdl_for_generate_loop(std::ostream & out, GNL_GENERATOR * level);
    void set_create_vhdl_loop() override;
    bool need_vhdl_index();
    bool is_std_logic_port() override;

protected:
    void describe(gnl_detail::description_writer & writer, GNL_GENERATOR * level, bool with_index,
                  GNL_PORT * target) override;

private:
    std::string make_late_name(std::uint32_t number) const override;
    GNL_ELEMENT const * late_name_source() const override { return m_first_operand; }
    void replace_operand(GNL_PORT *& operand, GNL_PORT * port);
    /// An operand that is an expression and must be settled before this one; null if there is none.
    GNL_PORT_LOGIC * unsettled_operand() const;
    void settle_std_logic();

    bool m_special_logic_port = false;
    bool m_std_logic = false;            ///< the answer of `is_std_logic_port`
    std::uint32_t m_std_logic_epoch = 0; ///< when it was found; 0 for never
    int m_operation;
    GNL_PORT * m_first_operand;  ///< not owned
    GNL_PORT * m_second_operand; ///< not owned, null for a NOT
};
