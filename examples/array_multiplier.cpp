#include "checks.h"
#include "full_adder.h"
#include "lbx_plugin.h"

#include "gnl.h"

#include <vector>

namespace {

/// product = a * b: a row of full adders for each bit of b.
class ARRAY_MULTIPLIER : public GNL_GENERATOR
{
public:
    ARRAY_MULTIPLIER(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "array_multiplier", text)
        , WIDTH(this, "WIDTH", 4)
        , a(this, "a", "WIDTH")
        , b(this, "b", "WIDTH")
        , product(this, "product", "2*WIDTH")
    {
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        int const width = WIDTH.get_value();
        check_parameter(*this, "WIDTH", width, 2, 64);
        exit_if_error();

        std::vector<GNL_PORT *> row; // the sum so far without its lowest bits, which are done
        for (int i = 0; i < width; ++i)
            row.push_back(&(a[i] & b[0]));
        product[0] = *row.front();
        row.erase(row.begin());
        for (int j = 1; j < width; ++j) {
            row = add_row(row, j);
            product[j] = *row.front();
            row.erase(row.begin());
        }
        for (int i = 0; i < width; ++i)
            product[width + i] = *row[static_cast<std::size_t>(i)];
        dump_hdl(out);
    }

private:
    /// Adds a * b[j] to `row`; the result has WIDTH + 1 bits.
    std::vector<GNL_PORT *> add_row(std::vector<GNL_PORT *> const & row, int j)
    {
        std::vector<GNL_PORT *> sums;
        GNL_PORT * carry = nullptr;
        for (int i = 0; i < WIDTH.get_value(); ++i) {
            auto & cell = *new FULL_ADDER(this); // owned by this generator
            cell.set_instance_name("cell_" + std::to_string(j) + "_" + std::to_string(i));
            cell.a = a[i] & b[j];
            if (static_cast<std::size_t>(i) < row.size())
                cell.b = *row[static_cast<std::size_t>(i)];
            else
                cell.b = 0;
            if (carry)
                cell.cin = *carry;
            carry = &cell.cout;
            sums.push_back(&cell.sum);
        }
        sums.push_back(carry);
        return sums;
    }

    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PORT_INPUT a, b;
    GNL_PORT_OUTPUT product;
};

LBX_REGISTER_GENERATOR(ARRAY_MULTIPLIER, "array_multiplier", "Multiplier of WIDTH by WIDTH bits of full-adder children")

} // namespace
