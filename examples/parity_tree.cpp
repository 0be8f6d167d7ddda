#include "checks.h"
#include "lbx_plugin.h"

#include "gnl.h"

#include <vector>

namespace {

/// The parity of WIDTH bits as a balanced tree of exclusive ORs.
class PARITY_TREE : public GNL_GENERATOR
{
public:
    PARITY_TREE(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "parity_tree", text)
        , WIDTH(this, "WIDTH", 8)
        , PARITY(this, "PARITY", "EVEN|ODD", 0)
        , data(this, "data", "WIDTH")
        , parity(this, "parity")
    {
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        check_parameter(*this, "WIDTH", WIDTH.get_value(), 1, 4096);
        exit_if_error();
        std::vector<GNL_PORT *> level;
        for (int i = 0; i < WIDTH.get_value(); ++i)
            level.push_back(&data[i]);
        while (level.size() > 1) {
            std::vector<GNL_PORT *> next;
            for (std::size_t i = 0; i + 1 < level.size(); i += 2)
                next.push_back(&(*level[i] ^ *level[i + 1]));
            if (level.size() % 2 != 0)
                next.push_back(level.back());
            level = next;
        }
        if (PARITY.comparenocase("ODD"))
            parity = !*level.front();
        else
            parity = *level.front();
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PARAMETER_STRING PARITY;
    GNL_PORT_INPUT data;
    GNL_PORT_OUTPUT parity;
};

LBX_REGISTER_GENERATOR(PARITY_TREE, "parity_tree", "Even or odd parity of WIDTH bits")

} // namespace
