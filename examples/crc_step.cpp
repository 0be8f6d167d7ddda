#include "checks.h"
#include "lbx_plugin.h"

#include "gnl.h"

#include <vector>

namespace {

/// One step of a cyclic redundancy check over DATA_WIDTH bits, most significant bit first.
class CRC_STEP : public GNL_GENERATOR
{
public:
    CRC_STEP(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "crc_step", text)
        , WIDTH(this, "WIDTH", 8)
        , DATA_WIDTH(this, "DATA_WIDTH", 8)
        , POLYNOMIAL(this, "POLYNOMIAL", -1, 64) // a vector is always given a value
        , crc(this, "crc", "WIDTH")
        , data(this, "data", "DATA_WIDTH")
        , next_state(this, "next_state", "WIDTH")
    {
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        // 0x1021, 0b111 or 7: any number form
        MLIB_UINTEGER const & polynomial = POLYNOMIAL.get_value();
        int const width = WIDTH.get_value();
        check_parameter(*this, "WIDTH", width, 1, 64);
        check_parameter(*this, "DATA_WIDTH", DATA_WIDTH.get_value(), 1, 4096);
        exit_if_error();
        std::vector<GNL_PORT *> state;
        for (int i = 0; i < width; ++i)
            state.push_back(&crc[i]);

        for (int bit = DATA_WIDTH.get_value() - 1; bit >= 0; --bit) {
            auto & feedback = *new GNL_WIRE(this, "feedback_" + std::to_string(bit));
            feedback = *state.back() ^ data[bit];
            std::vector<GNL_PORT *> shifted{&feedback};
            for (int i = 1; i < width; ++i) {
                GNL_PORT & below = *state[static_cast<std::size_t>(i - 1)];
                shifted.push_back(polynomial.bit(i) ? static_cast<GNL_PORT *>(&(below ^ feedback)) : &below);
            }
            state = shifted;
        }
        for (int i = 0; i < width; ++i)
            next_state[i] = *state[static_cast<std::size_t>(i)];
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PARAMETER_INTEGER DATA_WIDTH;
    GNL_PARAMETER_VECTOR POLYNOMIAL;
    GNL_PORT_INPUT crc, data;
    GNL_PORT_OUTPUT next_state;
};

LBX_REGISTER_GENERATOR(CRC_STEP, "crc_step", "One step of a CRC over DATA_WIDTH bits")

} // namespace
