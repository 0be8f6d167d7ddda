#include "checks.h"
#include "lbx_plugin.h"

#include "gnl.h"

#include <vector>

namespace {

/// Puts two numbers in order.
class COMPARE_EXCHANGE : public GNL_GENERATOR
{
public:
    explicit COMPARE_EXCHANGE(GNL_GENERATOR * parent)
        : GNL_GENERATOR(parent, "compare_exchange")
        , WIDTH(this, "WIDTH", 4)
        , a(this, "a", "WIDTH")
        , b(this, "b", "WIDTH")
        , low(this, "low", "WIDTH")
        , high(this, "high", "WIDTH")
    {
    }

    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PORT_INPUT a, b;
    GNL_PORT_OUTPUT low, high;

protected:
    void rtl_body(std::ostream & out) override
    {
        GNL_PORT * above = nullptr; // whether a > b as far as the bits looked at say
        for (int i = 0; i < WIDTH.get_value(); ++i) {
            auto & next = *new GNL_WIRE(this, "above_" + std::to_string(i));
            auto & here = a[i] & !b[i];
            if (above)
                next = here | (~(a[i] ^ b[i]) & *above);
            else
                next = here;
            above = &next;
        }
        low = (a & !*above) | (b & *above);
        high = (b & !*above) | (a & *above);
        dump_hdl(out);
    }
};

/// Sorts COUNT numbers of WIDTH bits, the smallest into the lowest bits, by odd-even transposition (Habermann, 1972).
class SORTING_NETWORK : public GNL_GENERATOR
{
public:
    SORTING_NETWORK(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "sorting_network", text)
        , COUNT(this, "COUNT", 4)
        , WIDTH(this, "WIDTH", 4)
        , numbers(this, "numbers", "COUNT*WIDTH")
        , sorted(this, "sorted", "COUNT*WIDTH")
    {
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        int const count = COUNT.get_value();
        int const width = WIDTH.get_value();
        check_parameter(*this, "COUNT", count, 1, 64);
        check_parameter(*this, "WIDTH", width, 1, 64);
        exit_if_error();

        std::vector<GNL_PORT *> row;
        for (int i = 0; i < count; ++i)
            row.push_back(&numbers.range((i + 1) * width - 1, i * width));
        for (int step = 0; step < count; ++step)
            for (std::size_t i = static_cast<std::size_t>(step % 2); i + 1 < row.size(); i += 2) {
                auto & exchange = *new COMPARE_EXCHANGE(this);
                exchange.set_instance_name("step_" + std::to_string(step) + "_" + std::to_string(i));
                exchange.WIDTH = width; // parameters come before connections
                exchange.a = *row[i];
                exchange.b = *row[i + 1];
                row[i] = &exchange.low;
                row[i + 1] = &exchange.high;
            }
        for (int i = 0; i < count; ++i)
            sorted.range((i + 1) * width - 1, i * width) = *row[static_cast<std::size_t>(i)];
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER COUNT, WIDTH;
    GNL_PORT_INPUT numbers;
    GNL_PORT_OUTPUT sorted;
};

LBX_REGISTER_GENERATOR(SORTING_NETWORK, "sorting_network", "Sorts COUNT numbers of WIDTH bits")

} // namespace
