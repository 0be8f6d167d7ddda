#pragma once

#include "gnl_generator_state.h"

#include <array>
#include <memory>
#include <string_view>

class GNL_GENERATOR;
class GNL_PARAMETER;

namespace gnl_detail {

/// What an option is before anybody has touched it: name, value list, index of the default in the list, and the flags
/// of a parameter.
struct option_row
{
    std::string_view name;
    std::string_view value_list;
    int default_index;
    bool hashed;
    bool hidden;
    bool inherit_only;
    bool declared;
    bool integer = false; ///< then the list is the default in decimal

    constexpr std::string_view default_value() const
    {
        if (default_index < 0)
            return "UNUSED";
        std::string_view rest = value_list;
        for (int i = 0; i < default_index; ++i)
            rest.remove_prefix(rest.find('|') + 1);
        return rest.substr(0, rest.find('|'));
    }
};

/// The options in their fixed order.
// clang-format off
inline constexpr std::array<option_row, option_count> option_rows{{
    // name, value list, default                                   hashed hidden only  declared
    {"LBX_HDL_LANGUAGE", "QHDL|VHDL|Verilog|TCL", 0,                false, true,  true,  true},
    {"LBX_OUTPUT_DIRECTORY", ".", 0,                                false, true,  true,  true},
    {"LBX_LIBRARY_PATH", ".", 0,                                    false, true,  true,  true},
    {"LBX_SINGLE_OUTPUT_FILE", "ON|OFF", 0,                         true,  true,  true,  true},
    {"LBX_FORCE_HDL_GENERATION", "ON|OFF", 1,                       false, true,  true,  true},
    {"LBX_FILE", "", -1,                                            false, true,  false, false},
    {"LBX_MAX_ERROR_MESSAGES", "50", 0,                             false, true,  true,  false, true},
    {"LBX_VHDL_WRAPPERS", "ON|OFF", 1,                              false, true,  true,  true},
    {"LBX_EDA_PLANB", "ON|OFF", 1,                                  false, true,  true,  true},
    {"LBX_NO_VHDL_SUBDES_CONCAT_WIRES", "ON|OFF", 1,                false, true,  true,  true},
    {"LBX_DECLARE_ALL_CONNECTED_PORTS", "ON|OFF", 0,                true,  true,  true,  false},
    {"LBX_BLACKBOX_LIST", "NONE", 0,                                false, true,  true,  false},
    {"LBX_AUTO_BLACKBOX", "ON|OFF|ALL", 1,                          true,  true,  true,  false},
    {"LBX_THROW_EXCEPTION_ON_ERROR", "ON|OFF", 1,                   false, true,  true,  false},
    {"LBX_STRUCTURAL_NETLIST", "ON|OFF", 1,                         true,  true,  true,  false},
    {"LBX_REMOVE_OPTIONAL_WIRES", "ON|OFF", 0,                      false, false, true,  false},
    {"LBX_MODULE_PREFIX", "UNUSED", 0,                              false, false, true,  false},
    {"LBXI_INSTANCE_NAME", "UNUSED", 0,                             false, false, true,  false},
}};
// clang-format on

constexpr option_row const & row_of(option_id id)
{
    return option_rows[static_cast<std::size_t>(id)];
}

/// The option parameters of one generator. A design has generators by the 100,000 and few of them ever touch an option,
/// so an object is made at its first use; until then `option_rows` answers for it.
class option_set
{
public:
    option_set();
    ~option_set();
    option_set(option_set const &) = delete;
    option_set & operator=(option_set const &) = delete;

    /// Whether `name` is an option, and which; any case.
    static bool declares(std::string_view name, option_id & id);

    /// The option's object, made and filed with `owner` at the first call.
    GNL_PARAMETER & get(GNL_GENERATOR & owner, option_id id);
    bool made(option_id id) const { return find(id) != nullptr; }
    /// The object if it was made, else null.
    GNL_PARAMETER * find(option_id id) const { return m_options[static_cast<std::size_t>(id)].get(); }
    void make_all(GNL_GENERATOR & owner);
    /// Whether the option was given a value here, as far as is known without looking above.
    bool given(option_id id) const;

private:
    std::array<std::unique_ptr<GNL_PARAMETER>, option_count> m_options;
};

} // namespace gnl_detail
