#include "checks.h"
#include "lbx_plugin.h"

#include "gnl.h"

namespace {

/// sum = a + b + cin, one full adder for each bit, built of expressions.
class RIPPLE_CARRY_ADDER : public GNL_GENERATOR
{
public:
    RIPPLE_CARRY_ADDER(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "ripple_carry_adder", text)
        , WIDTH(this, "WIDTH", 8)
        , a(this, "a", "WIDTH")
        , b(this, "b", "WIDTH")
        , cin(this, "cin")
        , sum(this, "sum", "WIDTH")
        , cout(this, "cout")
    {
        cin.set_default_port_value(0); // an optional port: it may stay unconnected
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        check_parameter(*this, "WIDTH", WIDTH.get_value(), 1, 4096);
        exit_if_error();
        GNL_PORT * carry = &cin;
        for (int i = 0; i < WIDTH.get_value(); ++i) {
            auto & propagate = a[i] ^ b[i];
            sum[i] = propagate ^ *carry;
            auto & next = *new GNL_WIRE(this, "carry_" + std::to_string(i + 1)); // owned by this generator
            next = (a[i] & b[i]) | (propagate & *carry);
            carry = &next;
        }
        cout = *carry;
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PORT_INPUT a, b, cin;
    GNL_PORT_OUTPUT sum, cout;
};

LBX_REGISTER_GENERATOR(RIPPLE_CARRY_ADDER, "ripple_carry_adder", "Adder of WIDTH bits with carry in and out")

} // namespace
