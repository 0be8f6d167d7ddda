#include "checks.h"
#include "lbx_plugin.h"

#include "gnl.h"

#include <algorithm>

namespace {

/// Rotates 2^LOG2_WIDTH bits to the left by `amount`: one row of multiplexers for each bit of the amount.
class BARREL_ROTATOR : public GNL_GENERATOR
{
public:
    BARREL_ROTATOR(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "barrel_rotator", text)
        , LOG2_WIDTH(this, "LOG2_WIDTH", 3)
        , WIDTH(this, "WIDTH", -1)
        , data(this, "data", "WIDTH")
        , amount(this, "amount", "LOG2_WIDTH")
        , result(this, "result", "WIDTH")
    {
    }

protected:
    void update_legacy_parameter_values() override
    {
        int const log2_width = LOG2_WIDTH.get_value();
        check_parameter(*this, "LOG2_WIDTH", log2_width, 1, 10);
        WIDTH.update_default_value(1 << std::clamp(log2_width, 1, 10));
    }

    void rtl_body(std::ostream & out) override
    {
        exit_if_error();
        int const width = WIDTH.get_value();
        check_parameter(*this, "WIDTH", width, 1 << LOG2_WIDTH.get_value(), 1 << LOG2_WIDTH.get_value());
        exit_if_error();
        GNL_PORT * word = &data;
        for (int stage = 0; stage < LOG2_WIDTH.get_value(); ++stage) {
            int const distance = 1 << stage;
            auto & rotated = *new GNL_WIRE(this, "rotated_by_" + std::to_string(distance), width);
            rotated = (word->range(width - distance - 1, 0), word->range(width - 1, width - distance));
            auto & next = *new GNL_WIRE(this, "after_stage_" + std::to_string(stage), width);
            // amount[stage] is one bit and is repeated for each bit of the word
            next = (rotated & amount[stage]) | (*word & !amount[stage]);
            word = &next;
        }
        result = *word;
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER LOG2_WIDTH;
    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PORT_INPUT data, amount;
    GNL_PORT_OUTPUT result;
};

LBX_REGISTER_GENERATOR(BARREL_ROTATOR, "barrel_rotator", "Rotates a word to the left by a variable amount")

} // namespace
