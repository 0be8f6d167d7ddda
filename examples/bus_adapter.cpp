#include "checks.h"
#include "lbx_plugin.h"

#include "gnl.h"

namespace {

/// Hands LANES words of WIDTH bits on in reverse order, inverted on request, and drives a bidirectional pad with the
/// parity of all words.
class BUS_ADAPTER : public GNL_GENERATOR
{
public:
    BUS_ADAPTER(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "bus_adapter", text)
        , LANES(this, "LANES", 4)
        , WIDTH(this, "WIDTH", 8)
        , words(this, "words", "LANES", "WIDTH") // two dimensions: LANES rows of WIDTH bits
        , invert(this, "invert")
        , reversed(this, "reversed", "LANES", "WIDTH")
        , pad(this, "pad")
        , pad_level(this, "pad_level")
    {
        invert.set_default_port_value(0); // may stay unconnected; instances tie it off
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        int const lanes = LANES.get_value();
        int const width = WIDTH.get_value();
        check_parameter(*this, "LANES", lanes, 1, 1024);
        check_parameter(*this, "WIDTH", width, 2, 1024);
        exit_if_error();
        for (int lane = 0; lane < lanes; ++lane) {
            int const from = (lanes - 1 - lane) * width;
            int const to = lane * width;
            reversed.range(to + width - 1, to) = words.range(from + width - 1, from) ^ invert;
        }
        pad = words.bitwise_xor();
        pad_level = pad;
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER LANES;
    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PORT_INPUT words, invert;
    GNL_PORT_OUTPUT reversed;
    GNL_PORT_BIDIR pad;
    GNL_PORT_OUTPUT pad_level;
};

LBX_REGISTER_GENERATOR(BUS_ADAPTER, "bus_adapter", "Reverses LANES words of WIDTH bits; drives a bidirectional pad")

} // namespace
