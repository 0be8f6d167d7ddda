// Generators that end in all the ways a generation can end, for the tests of lbxgen.

#include <gnl.h>
#include <lbx_plugin.h>

#include <stdexcept>

namespace {

constexpr char ways_to_end[] = "WELL|ABORTED|UNSUPPORTED|THROWING|THROWING_TEXT|THROWING_INT";

/// A design with one output, whose body does what HOW says.
class ENDING : public GNL_GENERATOR
{
public:
    explicit ENDING(GNL_GENERATOR * parent, char const * text = "")
        : GNL_GENERATOR(parent, "ending", text)
        , HOW(this, "HOW", ways_to_end, 0)
        , q(this, "q")
    {
    }

    GNL_PARAMETER_STRING HOW;
    GNL_PORT_OUTPUT q;

protected:
    void rtl_body(std::ostream & out) override
    {
        auto const how = HOW.get_value();
        if (how == "ABORTED")
            throw false;
        if (how == "THROWING")
            throw std::runtime_error("out of ideas");
        if (how == "THROWING_TEXT")
            throw "out of words";
        if (how == "THROWING_INT")
            throw 7;
        if (how == "UNSUPPORTED")
            set_not_supported();
        q = 1;
        dump_hdl(out);
    }
};

/// A design that holds an ENDING.
class PARENT : public GNL_GENERATOR
{
public:
    PARENT(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "parent", text)
        , HOW(this, "HOW", ways_to_end, 0)
        , q(this, "q")
    {
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        auto & child = *new ENDING(this); // owned by this generator
        child.set_instance_name("child_");
        child.HOW = HOW.get_value();
        q = child.q;
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_STRING HOW;
    GNL_PORT_OUTPUT q;
};

class UNBORN : public GNL_GENERATOR
{
public:
    UNBORN(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "unborn", text)
    {
        throw std::runtime_error("no memory of anything");
    }
};

/// An array of two cells with different settings.
class PAIR : public GNL_GENERATOR
{
public:
    PAIR(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "pair", text)
        , a(this, "a", 2)
        , y(this, "y", 2)
    {
    }

protected:
    class HALF : public GNL_GENERATOR
    {
    public:
        explicit HALF(GNL_GENERATOR * parent, int array_width = 0)
            : GNL_GENERATOR(parent, "half", "", array_width)
            , INVERTED(this, "INVERTED", 0)
            , d(this, "d")
            , q(this, "q")
        {
        }
        void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
        {
            auto & slice = *new HALF(parent); // owned by the array
            slice.set_slice_index(index);
            slice.set_array_parent(parent);
            slice.set_instance_name(instance_name);
        }

        GNL_PARAMETER_INTEGER INVERTED;
        GNL_PORT_INPUT d;
        GNL_PORT_OUTPUT q;

    protected:
        void rtl_body(std::ostream & out) override
        {
            if (INVERTED.get_value() == 1)
                q = !d;
            else
                q = d;
            dump_hdl(out);
        }
    };

    void rtl_body(std::ostream & out) override
    {
        auto & halves = *new HALF(this, 2); // owned by this generator
        halves.set_instance_name("halves_");
        halves[1].parameter_integer("INVERTED") = 1;
        halves.d = a;
        y = halves.q;
        dump_hdl(out);
    }

private:
    GNL_PORT_INPUT a;
    GNL_PORT_OUTPUT y;
};

/// Two bits on four: Verilog repeats them and VHDL stretches them, on purpose.
class STRETCHED : public GNL_GENERATOR
{
public:
    STRETCHED(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "stretched", text)
        , a(this, "a", 2)
        , y(this, "y", 4)
    {
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        y = a;
        dump_hdl(out);
    }

private:
    GNL_PORT_INPUT a;
    GNL_PORT_OUTPUT y;
};

LBX_REGISTER_GENERATOR(STRETCHED, "stretched", "Means something else in each language")
LBX_REGISTER_GENERATOR(ENDING, "ending", "Ends as HOW says")
LBX_REGISTER_GENERATOR(PARENT, "parent", "Holds a design that ends as HOW says")
LBX_REGISTER_GENERATOR(UNBORN, "unborn", "Can't be made")
LBX_REGISTER_GENERATOR(PAIR, "pair", "An array of two different cells")

} // namespace
