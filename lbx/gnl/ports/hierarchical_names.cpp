#include "hierarchical_names.h"

#include "gnl_port_concat.h"
#include "gnl_port_range.h"

#include <utility>
#include <variant>
#include <vector>

namespace gnl_detail {
namespace {

/// What is still to be named, the next piece last; each kind of port puts its pieces there in reverse.
class name_pieces
{
public:
    explicit name_pieces(GNL_PORT const & port) { m_pieces.emplace_back(&port); }

    std::string joined()
    {
        std::string name;
        while (!m_pieces.empty()) {
            auto const piece = std::move(m_pieces.back());
            m_pieces.pop_back();
            if (auto const * text = std::get_if<std::string>(&piece))
                name += *text;
            else
                take_apart(*std::get<GNL_PORT const *>(piece), name);
        }
        return name;
    }

private:
    void take_apart(GNL_PORT const & port, std::string & name)
    {
        if (port.is_range_port())
            add(static_cast<GNL_PORT_OUTPUT_RANGE const &>(port));
        else if (port.is_concat_port())
            add(static_cast<GNL_PORT_CONCAT const &>(port));
        else
            name += port.get_hierarchical_name();
    }

    void add(GNL_PORT_OUTPUT_RANGE const & range)
    {
        if (!range.get_range_driver())
            return;
        m_pieces.emplace_back("|range--" + range.get_name());
        m_pieces.emplace_back(range.get_range_driver());
    }

    void add(GNL_PORT_CONCAT const & concat)
    {
        m_pieces.emplace_back(")");
        for (int i = concat.get_element_count() - 1; i >= 0; --i) {
            m_pieces.emplace_back(" , ");
            m_pieces.emplace_back(concat.get_concat_element(i)->port);
        }
        m_pieces.emplace_back("CONCAT (");
    }

    std::vector<std::variant<std::string, GNL_PORT const *>> m_pieces;
};

} // namespace

std::string operator_name(GNL_PORT const & port)
{
    return name_pieces(port).joined();
}

} // namespace gnl_detail
