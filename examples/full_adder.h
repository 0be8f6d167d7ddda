#pragma once

#include "gnl.h"

/// One bit of an addition; a child of larger designs.
class FULL_ADDER : public GNL_GENERATOR
{
public:
    explicit FULL_ADDER(GNL_GENERATOR * parent)
        : GNL_GENERATOR(parent, "full_adder")
        , a(this, "a")
        , b(this, "b")
        , cin(this, "cin")
        , sum(this, "sum")
        , cout(this, "cout")
    {
        cin.set_default_port_value(0);
    }

    GNL_PORT_INPUT a, b, cin;
    GNL_PORT_OUTPUT sum, cout;

protected:
    void rtl_body(std::ostream & out) override
    {
        sum = a ^ b ^ cin;
        cout = (a & b) | (a & cin) | (b & cin);
        dump_hdl(out);
    }
};
