#include "checks.h"
#include "lbx_plugin.h"

#include "gnl.h"

#include <algorithm>

namespace {

/// result = data[selection], for one bit.
class MULTIPLEXER : public GNL_GENERATOR
{
public:
    explicit MULTIPLEXER(GNL_GENERATOR * parent, int array_width = 0)
        : GNL_GENERATOR(parent, "multiplexer", "", array_width)
        , SELECT_WIDTH(this, "SELECT_WIDTH", 1)
        , INPUTS(this, "INPUTS", 2)
        , data(this, "data", "INPUTS")
        , selection(this, "selection", "SELECT_WIDTH")
        , result(this, "result")
    {
    }

    /// A slice of an array is a multiplexer of its own.
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
    {
        auto & slice = *new MULTIPLEXER(parent); // owned by the array
        slice.set_slice_index(index);
        slice.set_array_parent(parent);
        slice.set_instance_name(instance_name);
    }

    GNL_PARAMETER_INTEGER SELECT_WIDTH, INPUTS;
    GNL_PORT_INPUT data, selection;
    GNL_PORT_OUTPUT result;

protected:
    void rtl_body(std::ostream & out) override
    {
        GNL_PORT * any = nullptr;
        for (int input = 0; input < INPUTS.get_value(); ++input) {
            GNL_PORT * term = &data[input];
            for (int bit = 0; bit < SELECT_WIDTH.get_value(); ++bit)
                term = &(*term & ((input >> bit) % 2 != 0 ? static_cast<GNL_PORT &>(selection[bit]) : !selection[bit]));
            any = any ? static_cast<GNL_PORT *>(&(*any | *term)) : term;
        }
        result = *any;
        dump_hdl(out);
    }
};

/// Each of OUTPUTS words takes one of 2^SELECT_WIDTH words of WIDTH bits: for each output an array of WIDTH
/// multiplexers.
class CROSSBAR : public GNL_GENERATOR
{
public:
    CROSSBAR(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "crossbar", text)
        , SELECT_WIDTH(this, "SELECT_WIDTH", 1)
        , INPUTS(this, "INPUTS", -1)
        , OUTPUTS(this, "OUTPUTS", 2)
        , WIDTH(this, "WIDTH", 4)
        , words(this, "words", "INPUTS*WIDTH")
        , selection(this, "selection", "OUTPUTS*SELECT_WIDTH")
        , results(this, "results", "OUTPUTS*WIDTH")
    {
    }

protected:
    void update_legacy_parameter_values() override
    {
        check_parameter(*this, "SELECT_WIDTH", SELECT_WIDTH.get_value(), 1, 6);
        INPUTS.update_default_value(1 << std::clamp(SELECT_WIDTH.get_value(), 1, 6));
    }

    void rtl_body(std::ostream & out) override
    {
        check_parameter(*this, "OUTPUTS", OUTPUTS.get_value(), 1, 64);
        check_parameter(*this, "WIDTH", WIDTH.get_value(), 1, 64);
        exit_if_error();
        for (int output = 0; output < OUTPUTS.get_value(); ++output)
            add_output(output);
        dump_hdl(out);
    }

private:
    void add_output(int output)
    {
        int const width = WIDTH.get_value();
        int const select_width = SELECT_WIDTH.get_value();
        auto & row = *new MULTIPLEXER(this, width);
        row.set_instance_name("output" + std::to_string(output));
        row.SELECT_WIDTH = select_width; // for all slices
        row.INPUTS = INPUTS.get_value();
        row.selection = selection.range((output + 1) * select_width - 1, output * select_width); // all slices share it
        for (int bit = 0; bit < width; ++bit) {
            auto & slice = row[bit];
            for (int input = 0; input < INPUTS.get_value(); ++input)
                slice.port("data")[input] = words[input * width + bit];
        }
        results.range((output + 1) * width - 1, output * width) = row.result;
    }

    GNL_PARAMETER_INTEGER SELECT_WIDTH, INPUTS, OUTPUTS, WIDTH;
    GNL_PORT_INPUT words, selection;
    GNL_PORT_OUTPUT results;
};

LBX_REGISTER_GENERATOR(CROSSBAR, "crossbar", "Each output word takes one of the input words")

} // namespace
