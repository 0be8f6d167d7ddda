#include "checks.h"
#include "full_adder.h"
#include "lbx_plugin.h"

#include "gnl.h"

#include <algorithm>

namespace {

/// A block of the adder: both sums are made, and the carry that arrives chooses one of them.
class SELECT_BLOCK : public GNL_GENERATOR
{
public:
    explicit SELECT_BLOCK(GNL_GENERATOR * parent)
        : GNL_GENERATOR(parent, "select_block")
        , WIDTH(this, "WIDTH", 4)
        , a(this, "a", "WIDTH")
        , b(this, "b", "WIDTH")
        , cin(this, "cin")
        , sum(this, "sum", "WIDTH")
        , cout(this, "cout")
    {
    }

    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PORT_INPUT a, b, cin;
    GNL_PORT_OUTPUT sum, cout;

protected:
    void rtl_body(std::ostream & out) override
    {
        auto & sum0 = *new GNL_WIRE(this, "sum_without_carry", WIDTH.get_value());
        auto & sum1 = *new GNL_WIRE(this, "sum_with_carry", WIDTH.get_value());
        GNL_PORT & carry0 = add(0, sum0);
        GNL_PORT & carry1 = add(1, sum1);
        sum = (sum1 & cin) | (sum0 & !cin);
        cout = (carry1 & cin) | (carry0 & !cin);
        dump_hdl(out);
    }

private:
    /// A row of full adders with the given carry in; returns its carry out.
    GNL_PORT & add(int carry_in, GNL_WIRE & result)
    {
        GNL_PORT * carry = nullptr;
        for (int i = 0; i < WIDTH.get_value(); ++i) {
            auto & cell = *new FULL_ADDER(this);
            cell.set_instance_name("carry" + std::to_string(carry_in) + "_bit" + std::to_string(i));
            cell.a = a[i];
            cell.b = b[i];
            if (carry)
                cell.cin = *carry;
            else
                cell.cin = carry_in;
            result[i] = cell.sum;
            carry = &cell.cout;
        }
        return *carry;
    }
};

/// sum = a + b + cin in blocks of BLOCK bits; three levels of hierarchy.
class CARRY_SELECT_ADDER : public GNL_GENERATOR
{
public:
    CARRY_SELECT_ADDER(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "carry_select_adder", text)
        , WIDTH(this, "WIDTH", 16)
        , BLOCK(this, "BLOCK", 4)
        , a(this, "a", "WIDTH")
        , b(this, "b", "WIDTH")
        , cin(this, "cin")
        , sum(this, "sum", "WIDTH")
        , cout(this, "cout")
    {
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        int const width = WIDTH.get_value();
        check_parameter(*this, "WIDTH", width, 1, 1024);
        check_parameter(*this, "BLOCK", BLOCK.get_value(), 1, 1024);
        exit_if_error();

        GNL_PORT * carry = &cin;
        for (int low = 0; low < width; low += BLOCK.get_value()) {
            int const bits = std::min(BLOCK.get_value(), width - low);
            auto & block = *new SELECT_BLOCK(this);
            block.set_instance_name("from_bit" + std::to_string(low));
            block.WIDTH = bits;
            block.a = a.range(low + bits - 1, low);
            block.b = b.range(low + bits - 1, low);
            block.cin = *carry;
            sum.range(low + bits - 1, low) = block.sum;
            carry = &block.cout;
        }
        cout = *carry;
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER WIDTH, BLOCK;
    GNL_PORT_INPUT a, b, cin;
    GNL_PORT_OUTPUT sum, cout;
};

LBX_REGISTER_GENERATOR(CARRY_SELECT_ADDER, "carry_select_adder", "Adder of WIDTH bits in blocks that guess their carry")

} // namespace
