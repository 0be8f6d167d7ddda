#include "checks.h"
#include "lbx_plugin.h"

#include "gnl.h"

namespace {

/// gray = binary ^ (binary >> 1), as one expression over the whole bus.
class BINARY_TO_GRAY : public GNL_GENERATOR
{
public:
    BINARY_TO_GRAY(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "binary_to_gray", text)
        , WIDTH(this, "WIDTH", 8)
        , binary(this, "binary", "WIDTH")
        , gray(this, "gray", "WIDTH")
    {
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        int const width = WIDTH.get_value();
        check_parameter(*this, "WIDTH", width, 1, 4096);
        exit_if_error();
        gray[width - 1] = binary[width - 1];
        if (width > 1)
            gray.range(width - 2, 0) = binary.range(width - 1, 1) ^ binary.range(width - 2, 0);
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PORT_INPUT binary;
    GNL_PORT_OUTPUT gray;
};

/// The way back: each bit is the exclusive OR of all Gray bits from the top down to it.
class GRAY_TO_BINARY : public GNL_GENERATOR
{
public:
    GRAY_TO_BINARY(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "gray_to_binary", text)
        , WIDTH(this, "WIDTH", 8)
        , gray(this, "gray", "WIDTH")
        , binary(this, "binary", "WIDTH")
    {
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        check_parameter(*this, "WIDTH", WIDTH.get_value(), 1, 4096);
        exit_if_error();
        GNL_PORT * above = nullptr;
        for (int i = WIDTH.get_value() - 1; i >= 0; --i) {
            auto & bit = *new GNL_WIRE(this, "bit_" + std::to_string(i));
            if (above)
                bit = *above ^ gray[i];
            else
                bit = gray[i];
            binary[i] = bit;
            above = &bit;
        }
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PORT_INPUT gray;
    GNL_PORT_OUTPUT binary;
};

LBX_REGISTER_GENERATOR(BINARY_TO_GRAY, "binary_to_gray", "Binary number to Gray code")
LBX_REGISTER_GENERATOR(GRAY_TO_BINARY, "gray_to_binary", "Gray code to binary number")

} // namespace
