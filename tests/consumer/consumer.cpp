// A small user of the installed package: generates a half adder and says how it went.

#include <gnl.h>

#include <iostream>

namespace {

class HALF_ADDER : public GNL_GENERATOR
{
public:
    HALF_ADDER(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "half_adder", text)
        , a(this, "a")
        , b(this, "b")
        , sum(this, "sum")
        , carry(this, "carry")
    {
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        sum = a ^ b;
        carry = a & b;
        dump_hdl(out);
    }

private:
    GNL_PORT_INPUT a, b;
    GNL_PORT_OUTPUT sum, carry;
};

} // namespace

int main()
{
    HALF_ADDER top(nullptr, "LBX_FILE=half_adder.v");
    top.generate_subdesign(std::cout);
    std::cout << top.get_file_name() << "\n";
    return top.generator_result();
}
