#pragma once

#include "dice.h"
#include "random_design.h"

#include <optional>
#include <string>
#include <vector>

namespace random_designs {

inline constexpr size one_bit{0, 1};

/// The smallest room for `part` in `whole` over all W, negative if it does not always fit.
inline int room(size whole, size part)
{
    return (whole - part).least();
}

/// Makes one kind. Signals become sources in the order in which they are made, so there are no loops.
class kind_maker
{
public:
    kind_maker(dice & random, profile const & allowed, std::vector<kind> const & below, int most_children)
        : m_random(random)
        , m_allowed(allowed)
        , m_below(below)
        , m_most_children(most_children)
    {
    }

    kind make(std::string const & name, bool is_top);

private:
    void declare_parameters();
    void declare_pins();
    declared_signal declared(std::string const & name);
    std::string name_end();
    void add_wire();
    bool add_child();
    child_settings settings_for(kind const & made);
    size slice_width(child const & made, size width) const;

    void connect(child const & made, int object);
    void connect_array_input(statement to, int slices);
    void connect_slices(statement to, int first, int last);
    void connect_across_slices(statement to, int slices);
    void assign(statement to);
    void assign_whole(statement const & to);
    void assign_pieces(statement const & to);
    bool takes_constants(statement const & to) const;
    source source_for(statement const & to);

    int add(expression made);
    int leaf_or_part(size width);
    int expression_of(size width, int depth);
    int operation_of(size width, int depth);
    std::vector<operation> operations_for(size width) const;
    int concat_of(size width, int depth);
    int bus(int depth);
    int number_operand(int width);
    std::optional<size> split(size width);

    dice & m_random;
    profile const & m_allowed;
    std::vector<kind> const & m_below;
    int m_most_children;
    kind m_kind;
    std::vector<int> m_sources; ///< expressions that are signals
};

} // namespace random_designs
