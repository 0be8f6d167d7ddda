#include "checks.h"
#include "lbx_plugin.h"

#include "gnl.h"

#include <algorithm>

namespace {

/// One of 2^ADDRESS_WIDTH outputs is high: the one that `address` names, while `enable` is.
class DECODER : public GNL_GENERATOR
{
public:
    DECODER(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "decoder", text)
        , ADDRESS_WIDTH(this, "ADDRESS_WIDTH", 3)
        , OUTPUTS(this, "OUTPUTS", -1)
        , address(this, "address", "ADDRESS_WIDTH")
        , enable(this, "enable")
        , selected(this, "selected", "OUTPUTS")
    {
        enable.set_default_port_value(1);
    }

protected:
    // The number of outputs follows from the address; it has to be known before the port widths are.
    void update_legacy_parameter_values() override
    {
        int const width = ADDRESS_WIDTH.get_value();
        check_parameter(*this, "ADDRESS_WIDTH", width, 1, 16);
        OUTPUTS.update_default_value(1 << std::clamp(width, 1, 16));
    }

    void rtl_body(std::ostream & out) override
    {
        exit_if_error();
        int const width = ADDRESS_WIDTH.get_value();
        for (int output = 0; output < 1 << width; ++output) {
            GNL_PORT * term = &enable;
            for (int bit = 0; bit < width; ++bit)
                term = &(*term & ((output >> bit) % 2 != 0 ? static_cast<GNL_PORT &>(address[bit]) : !address[bit]));
            selected[output] = *term;
        }
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER ADDRESS_WIDTH;
    GNL_PARAMETER_INTEGER OUTPUTS;
    GNL_PORT_INPUT address, enable;
    GNL_PORT_OUTPUT selected;
};

LBX_REGISTER_GENERATOR(DECODER, "decoder", "One-hot decoder of ADDRESS_WIDTH address bits")

} // namespace
