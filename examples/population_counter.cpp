#include "checks.h"
#include "full_adder.h"
#include "lbx_plugin.h"

#include "gnl.h"

namespace {

/// Bits that the number of ones among `width` bits needs.
int bits_for_count(int width)
{
    int bits = 1;
    while (1 << bits <= width)
        ++bits;
    return bits;
}

/// Counts the ones among WIDTH bits: two children of its own kind count the halves, full adders add the counts.
class POPULATION_COUNTER : public GNL_GENERATOR
{
public:
    explicit POPULATION_COUNTER(GNL_GENERATOR * parent, char const * text = "")
        : GNL_GENERATOR(parent, "population_counter", text)
        , WIDTH(this, "WIDTH", 8)
        , COUNT_WIDTH(this, "COUNT_WIDTH", -1)
        , data(this, "data", "WIDTH")
        , count(this, "count", "COUNT_WIDTH")
    {
    }

    GNL_PARAMETER_INTEGER WIDTH, COUNT_WIDTH;
    GNL_PORT_INPUT data;
    GNL_PORT_OUTPUT count;

protected:
    void update_legacy_parameter_values() override
    {
        check_parameter(*this, "WIDTH", WIDTH.get_value(), 1, 4096);
        COUNT_WIDTH.update_default_value(bits_for_count(WIDTH.get_value()));
    }

    void rtl_body(std::ostream & out) override
    {
        exit_if_error();
        int const width = WIDTH.get_value();
        if (width == 1)
            count = data;
        else
            add_halves(half("upper", width - width / 2, width / 2), half("lower", width / 2, 0));
        dump_hdl(out);
    }

private:
    POPULATION_COUNTER & half(std::string const & name, int width, int low)
    {
        auto & child = *new POPULATION_COUNTER(this);
        child.set_instance_name(name);
        child.WIDTH = width;
        child.data = data.range(low + width - 1, low);
        return child;
    }

    void add_halves(POPULATION_COUNTER & upper, POPULATION_COUNTER & lower)
    {
        GNL_PORT * carry = nullptr;
        int const bits = upper.count.get_bus_width(); // the upper half is never the smaller
        for (int i = 0; i < bits; ++i) {
            auto & cell = *new FULL_ADDER(this);
            cell.set_instance_name("bit" + std::to_string(i));
            cell.a = upper.count[i];
            if (i < lower.count.get_bus_width())
                cell.b = lower.count[i];
            else
                cell.b = 0;
            if (carry)
                cell.cin = *carry;
            count[i] = cell.sum;
            carry = &cell.cout;
        }
        if (bits < count.get_bus_width())
            count[bits] = *carry;
    }
};

LBX_REGISTER_GENERATOR(POPULATION_COUNTER, "population_counter", "Counts the ones among WIDTH bits, recursively")

} // namespace
