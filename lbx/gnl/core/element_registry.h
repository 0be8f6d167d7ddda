#pragma once

#include "gnl_element.h"
#include "gnl_generator.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace gnl_detail {

/// The kinds of elements in the order of their keys: "GNRTR;", "LGC;", "PAR;", "PAR_ARY;", "PORT;", "RNG;".
enum class element_kind : std::uint8_t { generator, logic, parameter, parameter_array, port, range, other };
inline constexpr std::size_t element_kind_count = 7;

/// The elements of one kind in key order, as they were when the walk began: elements that are filed meanwhile do not
/// disturb it.
template <class ELEMENT> class element_walk
{
public:
    using list = std::vector<GNL_ELEMENT *>;
    explicit element_walk(std::shared_ptr<list const> elements)
        : m_elements(std::move(elements))
    {
    }

    class iterator
    {
    public:
        explicit iterator(list::const_iterator at)
            : m_at(at)
        {
        }
        ELEMENT & operator*() const { return *static_cast<ELEMENT *>(*m_at); }
        iterator & operator++()
        {
            ++m_at;
            return *this;
        }
        bool operator==(iterator const & other) const = default;

    private:
        list::const_iterator m_at;
    };
    iterator begin() const { return iterator(m_elements->begin()); }
    iterator end() const { return iterator(m_elements->end()); }
    bool empty() const { return m_elements->empty(); }
    std::size_t size() const { return m_elements->size(); }

private:
    std::shared_ptr<list const> m_elements;
};

/// The elements of one generator: those that wait for their key, and those that are filed.
///
/// To the outside it is a map ordered by key text. Inside, keys are never stored: an expression's key holds the keys of
/// its operands and would double with each level. Elements are found through one hash table, named ones by kind and
/// folded name, expressions and ranges by the identity of what they are made of; order is made when a walk asks for it,
/// by comparing keys without building them.
class element_registry
{
public:
    explicit element_registry(GNL_GENERATOR & owner);
    ~element_registry();
    element_registry(element_registry const &) = delete;
    element_registry & operator=(element_registry const &) = delete;

    void add_pending(GNL_ELEMENT & element);
    /// Files `element` under an explicit key, as a caller of `GNL_GENERATOR::insert` may ask.
    void file_under(GNL_ELEMENT & element, std::string const & key);
    /// Forgets the element wherever it is; never touches an entry that is another element's.
    void forget(GNL_ELEMENT & element);
    bool knows(GNL_ELEMENT const & element) const;
    bool empty() const;
    /// Files what is pending. A generator without an instance name stays pending while another holds its key.
    void file_pending();

    /// The element under exactly this key, whatever its kind, or null.
    GNL_ELEMENT * find(std::string_view key);
    GNL_PORT * find_port(std::string_view name);
    GNL_PARAMETER * find_parameter(std::string_view name);
    GNL_PARAMETER_ARRAY * find_parameter_array(std::string_view name);
    GNL_GENERATOR * find_generator(std::string_view name, std::string_view instance_name, int slice_index);
    GNL_PORT_LOGIC * find_logic(int operation, GNL_PORT const * first, GNL_PORT const * second);
    GNL_PORT_OUTPUT_RANGE * find_range(GNL_PORT const * driver, int high, int low, GNL_GENERATOR const * level);
    /// Any port of the name, expressions and ranges included.
    GNL_PORT * find_port_of_any_kind(std::string_view name);

    /// Walks in key order; each files what is pending first.
    element_walk<GNL_GENERATOR> generators();
    /// Without the slices of `owner` when it is an array master: what a design instantiates.
    std::vector<GNL_GENERATOR *> subdesigns();
    element_walk<GNL_PORT_LOGIC> logic_ports();
    /// All parameters, the 18 options included.
    element_walk<GNL_PARAMETER> parameters();
    /// The parameters that the generator's author declared; options are never written.
    std::vector<GNL_PARAMETER *> declared_parameters();
    element_walk<GNL_PARAMETER_ARRAY> parameter_arrays();
    /// Declared pins, wires, concatenations and constants.
    element_walk<GNL_PORT> ports();
    element_walk<GNL_PORT_OUTPUT_RANGE> ranges();
    /// All ports of all kinds, in key order: expressions, then ports, then ranges.
    std::vector<GNL_PORT *> all_ports();

    /// Deletes whatever is still held and is no parameter.
    void delete_all();
};

} // namespace gnl_detail
