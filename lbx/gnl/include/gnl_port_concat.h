#pragma once

#include "gnl_port.h"

#include <memory>

namespace gnl_detail {
class concat_elements;
} // namespace gnl_detail

/// One element of a concatenation: a port at the bits `high_index` down to `low_index` of the whole. It is wider than
/// the port when the port is repeated.
struct GNL_SUBCONCAT
{
    GNL_PORT * port = nullptr; ///< not owned
    int high_index = 0;
    int low_index = 0;
};

/// A concatenation. Made by the comma operators, where the left operand holds the higher bits, and by piecewise
/// assignment, which leaves one as the driver of the assigned port. Elements are kept from the highest bits down and
/// never overlap. The design owns it.
class GNL_PORT_CONCAT : public GNL_PORT
{
public:
    GNL_PORT_CONCAT(GNL_GENERATOR * parent, GNL_PORT & high, GNL_PORT & low);
    /// The driver of a partly assigned port of `width` bits.
    GNL_PORT_CONCAT(GNL_GENERATOR * parent, int width);
    ~GNL_PORT_CONCAT() override;

    bool is_concat_port() const override { return true; }
    /// "CONCAT (" and the elements' hierarchical names, each followed by " , ", and ")".
    std::string get_hierarchical_name() const override;

    /// Places `port` at the bits `high` down to `low`. Posts `source_bits_assigned` with an owner (the port that the
    /// concat drives) or `concat_bits_assigned` without one, and changes nothing, when a bit is taken.
    void add_at_index(GNL_PORT & port, int high, int low, GNL_PORT * owner);
    void add_port_higher_end(GNL_PORT & port);
    void add_port_lower_end(GNL_PORT & port);

    GNL_PORT_CONCAT & operator,(GNL_PORT_CONCAT & low) override;
    GNL_PORT_CONCAT & operator,(GNL_PORT & low) override;
    using GNL_PORT::operator, ;
    GNL_PORT_CONCAT & operator=(GNL_PORT_CONCAT & rhs);
    using GNL_PORT::operator=;

    bool has_bits_assigned(int low, int high);
    int get_elements_width();
    /// The element at position `index` from the highest down; null beyond the end. Owned by the concat.
    GNL_SUBCONCAT * get_concat_element(int index) const;
    int get_element_count() const;
    bool element_is_range_port(int index);
    /// Replaces the element at `index` and takes ownership of `element`.
    void replace_concat_element(int index, GNL_SUBCONCAT * element);
    /// Merges neighbouring ranges of one driver that touch.
    void adjust_range_elements();

    void set_need_index() { m_need_index = true; }
    bool need_index() const { return m_need_index; }
    bool is_complete() const { return m_complete; }

    void dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, GNL_PORT * target) override;

protected:
    void describe(gnl_detail::description_writer & writer, GNL_GENERATOR * level, bool with_index,
                  GNL_PORT * target) override;

private:
    void note_if_complete(GNL_SUBCONCAT const & element);

    std::unique_ptr<gnl_detail::concat_elements> m_elements;
    bool m_complete = false;
    bool m_need_index = false;
};
