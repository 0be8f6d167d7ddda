#pragma once

#include "gnl_port.h"

/// The bits `high` down to `low` of another port. Made by `GNL_PORT::range` and `operator[]`; the design owns it.
class GNL_PORT_OUTPUT_RANGE : public GNL_PORT
{
public:
    /// Posts `range_order` when `high` is below `low`. Without a driver the range has no name and no bits.
    GNL_PORT_OUTPUT_RANGE(GNL_GENERATOR * parent, GNL_PORT * driver, int high, int low);

    bool is_range_port() const override { return true; }
    std::string generate_key() const override;
    /// "RNG;" base ";" high ";" low.
    static std::string generate_key_base(std::string const & base, int high, int low);
    /// The driver's hierarchical name, "|range--" and this object's name.
    std::string get_hierarchical_name() const override;

    GNL_PORT & operator=(GNL_PORT & rhs);
    GNL_PORT & operator=(GNL_PORT_OUTPUT_RANGE & rhs) { return *this = static_cast<GNL_PORT &>(rhs); }
    GNL_PORT & operator=(int value);
    GNL_PORT & operator=(MLIB_UINTEGER & value);
    GNL_PORT & operator=(GNL_GENERATOR & generator) = delete;

    /// What the bits are selected from; null after a range that could not be made. Not owned.
    GNL_PORT * get_range_driver() const { return m_range_driver; }
    void replace_range_driver(GNL_PORT * driver);
    int get_high_index() const { return m_high_index; }
    int get_low_index() const { return m_low_index; }
    /// The port on which `range` was called, part of the key. It is not what the bits are selected from where a wire
    /// had to be put in between. Not owned.
    virtual GNL_PORT * get_key_port() const { return m_range_driver; }
    /// The level at which the range was made, part of its key; null outside of all bodies.
    GNL_GENERATOR * get_made_level() const { return m_made_level; }
    void set_made_level(GNL_GENERATOR * level) { m_made_level = level; }

    void dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, GNL_PORT * target) override;
    /// Selects within the range: the indices of each range on the way down are added to `first` and `second`.
    void dump_port_description(std::ostream & out, GNL_GENERATOR * level, bool with_index, GNL_PORT * target, int first,
                               int second);

    bool check_range_driver_validity(GNL_GENERATOR * level) override;
    void set_range_port_used() override;
    bool is_std_logic_port() override;

protected:
    void describe(gnl_detail::description_writer & writer, GNL_GENERATOR * level, bool with_index,
                  GNL_PORT * target) override;

private:
    std::string make_late_name(std::uint32_t number) const override;
    GNL_ELEMENT const * late_name_source() const override { return m_range_driver; }

    int m_high_index;
    int m_low_index;
    GNL_PORT * m_range_driver;              ///< not owned
    GNL_GENERATOR * m_made_level = nullptr; ///< not owned
};
