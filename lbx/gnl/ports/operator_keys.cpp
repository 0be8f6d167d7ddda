#include "operator_keys.h"

#include "gnl_generator.h"

#include <utility>
#include <variant>
#include <vector>

namespace gnl_detail {

std::string_view operation_key_word(int operation)
{
    switch (operation) {
    case GNL_PORT_LOGIC::not_operation:
        return "NOT";
    case GNL_PORT_LOGIC::and_operation:
        return "AND";
    case GNL_PORT_LOGIC::or_operation:
        return "OR";
    case GNL_PORT_LOGIC::xor_operation:
        return "XOR";
    default:
        return "UNKNOWN";
    }
}

namespace {

/// What is still to be written, the next piece last; each kind of port puts its pieces there in reverse.
class key_pieces
{
public:
    explicit key_pieces(GNL_PORT const & port) { m_pieces.emplace_back(&port); }

    std::string joined()
    {
        std::string key;
        while (!m_pieces.empty()) {
            auto const piece = std::move(m_pieces.back());
            m_pieces.pop_back();
            if (auto const * text = std::get_if<std::string>(&piece))
                key += *text;
            else
                take_apart(*std::get<GNL_PORT const *>(piece), key);
        }
        return key;
    }

private:
    void take_apart(GNL_PORT const & port, std::string & key)
    {
        if (port.is_range_port())
            add(static_cast<GNL_PORT_OUTPUT_RANGE const &>(port));
        else if (port.is_logic())
            add(static_cast<GNL_PORT_LOGIC const &>(port));
        else
            key += port.generate_key();
    }

    /// As `GNL_PORT_OUTPUT_RANGE::generate_key_base` has it.
    void add(GNL_PORT_OUTPUT_RANGE const & range)
    {
        GNL_PORT const * const port = range.get_key_port();
        GNL_GENERATOR const * const level = range.get_made_level();
        m_pieces.emplace_back(";" + (port ? port->get_parent_key() : std::string()) + ";"
                              + (level ? level->generate_key() : "NULL") + ";"
                              + GNL_ELEMENT::convert_int_to_string(range.get_high_index()) + ";"
                              + GNL_ELEMENT::convert_int_to_string(range.get_low_index()));
        if (port)
            m_pieces.emplace_back(port);
        m_pieces.emplace_back("RNG;");
    }

    /// As `GNL_PORT_LOGIC::generate_key_base` has it.
    void add(GNL_PORT_LOGIC const & logic)
    {
        if (GNL_PORT const * const second = logic.get_second_operand()) {
            m_pieces.emplace_back(";" + second->get_parent_key());
            m_pieces.emplace_back(second);
            m_pieces.emplace_back(";");
        }
        if (GNL_PORT const * const first = logic.get_first_operand()) {
            m_pieces.emplace_back(";" + first->get_parent_key());
            m_pieces.emplace_back(first);
        }
        m_pieces.emplace_back("LGC;" + std::string(operation_key_word(logic.get_operation())) + ";");
    }

    std::vector<std::variant<std::string, GNL_PORT const *>> m_pieces;
};

} // namespace

std::string operator_key(GNL_PORT const & port)
{
    return key_pieces(port).joined();
}

} // namespace gnl_detail
