#pragma once

#include <bit>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

class GNL_GENERATOR;

namespace gnl_detail {
class element_registry;
class option_set;
class subdesign_names;

/// A name, or the number that it is made from when it is first needed. Designs have elements by the million, so both
/// share one word: the number stands in its upper bits, marked by the lowest, which no address has.
class element_name
{
public:
    explicit element_name(std::string const & text)
        : m_word(word_of(text))
    {
    }
    /// A late name; with 0 there will be none.
    explicit element_name(std::uint32_t number)
        : m_word(number == 0 ? 0 : std::uintptr_t{number} << 1 | 1)
    {
    }
    ~element_name() { drop(); }
    element_name(element_name const &) = delete;
    element_name & operator=(element_name const &) = delete;

    bool is_made() const { return m_word != 0 && (m_word & 1) == 0; }
    /// Of a name that is made.
    std::string const & text() const { return *owned(); }
    /// Of a late name; 0 for any other.
    std::uint32_t number() const { return is_made() ? 0 : static_cast<std::uint32_t>(m_word >> 1); }
    void set(std::string const & text)
    {
        auto const word = word_of(text); // `text` may be the name itself
        drop();
        m_word = word;
    }

private:
    static std::uintptr_t word_of(std::string const & text)
    {
        return std::bit_cast<std::uintptr_t>(std::make_unique<std::string>(text).release());
    }
    std::string * owned() const { return std::bit_cast<std::string *>(m_word); }
    void drop()
    {
        if (is_made())
            delete owned();
    }

    std::uintptr_t m_word; ///< owns the text that it points to
};
} // namespace gnl_detail

/// Generation languages, the values of `GNL_ELEMENT::get_gen_language`.
enum GNL_LANGUAGE { GNL_QHDL = 0, GNL_VERILOG = 1, GNL_VHDL = 2, GNL_TCL = 3 };

/// Order of names: bytes after folding A to Z to lower case, without a locale; the end of a string comes first.
/// Comparator of every public map keyed by string, so that names are case-insensitive everywhere.
struct LESS_C_STRING
{
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const noexcept;
};

/// Base of everything in a design: ports, parameters, parameter arrays and generators.
///
/// An element that is constructed with a parent registers itself with it. Its registry key can only be computed once
/// the whole object exists, so it waits on the parent's pending list until the first look-up or walk files it.
class GNL_ELEMENT
{
public:
    virtual bool is_port() const { return false; }
    virtual bool is_parameter() const { return false; }
    virtual bool is_generator() const { return false; }
    virtual bool is_parameter_array() const { return false; }
    /// The key under which the parent files the element; the name here.
    virtual std::string generate_key() const;
    /// The parent's hierarchical name, "|" and the name; the name alone without a parent.
    virtual std::string get_hierarchical_name() const;
    /// Unregisters the element.
    virtual ~GNL_ELEMENT();

    std::string const & get_name() const { return m_name.is_made() ? m_name.text() : late_name(); }
    /// Renames the element and files it under its new key.
    void change_name(std::string const & name);
    /// Files the element anew, after something in its key has changed.
    void re_register();
    /// The generator that holds the element, null for a top generator or a free element. Not owned.
    GNL_GENERATOR * get_parent() const { return m_parent; }

    static int get_gen_language() { return m_language; }
    static bool is_verilog() { return m_language == GNL_VERILOG; }
    static bool is_vhdl() { return m_language == GNL_VHDL; }
    static bool is_qhdl() { return m_language == GNL_QHDL; }
    static bool is_tcl() { return m_language == GNL_TCL; }

    /// Instance name of the parent, for a slice that of its array; "NULLSTR" without a parent.
    std::string get_parent_instance_name() const;
    /// Key of the parent, "" without one.
    std::string get_parent_key() const;

    /// Plain decimal.
    static std::string convert_int_to_string(int value);

protected:
    GNL_ELEMENT(GNL_GENERATOR * parent, std::string const & name);
    /// For parameters, which a body may not create: the whole object does not exist yet and cannot be asked its kind.
    struct parameter_tag
    {
    };
    GNL_ELEMENT(GNL_GENERATOR * parent, std::string const & name, parameter_tag);
    /// For expressions and ranges, which are many and whose names few ask for: the name is made from `number` when it
    /// is first needed. With 0 there is none.
    GNL_ELEMENT(GNL_GENERATOR * parent, std::uint32_t number);
    /// Takes parent and name and does not register: a copy is in no registry.
    GNL_ELEMENT(GNL_ELEMENT const & other);
    /// Takes parent and name, except on a registered element, which stays what and where it is.
    GNL_ELEMENT & operator=(GNL_ELEMENT const & other);

    void set_name(std::string const & name) { m_name.set(name); }
    bool has_late_name() const { return m_name.number() != 0; }
    /// The name that `number` stands for; that of `late_name_source` is there already.
    virtual std::string make_late_name(std::uint32_t number) const;
    /// Whose name is part of this one's; null for nobody. Not owned.
    virtual GNL_ELEMENT const * late_name_source() const { return nullptr; }
    static void set_gen_language(int language) { m_language = language; }

    static int m_language; ///< process-wide generation language, a GNL_LANGUAGE

private:
    friend class gnl_detail::element_registry;
    friend class gnl_detail::option_set;

    static constexpr std::uint32_t unregistered = 0xffffffffU;
    static constexpr std::uint32_t refused = 0xfffffffeU; ///< the parent was told, and did not take the element

    std::string const & late_name() const;

    GNL_GENERATOR * m_parent; ///< not owned
    mutable gnl_detail::element_name m_name;
    std::uint32_t m_slot = unregistered; ///< place in the parent's registry, for constant-time removal
};
