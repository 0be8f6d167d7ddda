// A plug-in of a user: a design with children, whose settings say how many and how wide.

#include <gnl.h>
#include <lbx_plugin.h>

namespace {

constexpr char bank_version[] = "1";

class CELL : public GNL_GENERATOR
{
public:
    explicit CELL(GNL_GENERATOR * parent)
        : GNL_GENERATOR(parent, "cell")
        , WIDTH(this, "WIDTH", 1)
        , d(this, "d", "WIDTH")
        , q(this, "q", "WIDTH")
    {
    }
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override
    {
        versions["cell"] = bank_version;
    }

    GNL_PARAMETER_INTEGER WIDTH;
    GNL_PORT_INPUT d;
    GNL_PORT_OUTPUT q;

protected:
    void rtl_body(std::ostream & out) override
    {
        q = ~d;
        dump_hdl(out);
    }
};

/// A chain of COPIES inverters of WIDTH bits.
class BANK : public GNL_GENERATOR
{
public:
    BANK(GNL_GENERATOR * parent, char const * text)
        : GNL_GENERATOR(parent, "bank", text)
        , WIDTH(this, "WIDTH", 4)
        , COPIES(this, "COPIES", 1)
        , NOTE(this, "NOTE", "none", 0)
        , d(this, "d", "WIDTH")
        , q(this, "q", "WIDTH")
    {
        NOTE.set_allow_all_values();
    }
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override
    {
        versions["bank"] = bank_version;
    }

protected:
    void rtl_body(std::ostream & out) override
    {
        if (COPIES.get_value() < 1)
            generator_error("COPIES is " + std::to_string(COPIES.get_value()), "A bank has a cell.",
                            "Choose a COPIES of 1 or more.");
        exit_if_error();
        if (NOTE.is_used())
            out << "--note: " << NOTE.get_value() << "\n";
        GNL_PORT * last = &d;
        for (int i = 0; i < COPIES.get_value(); ++i) {
            auto & cell = *new CELL(this); // owned by this generator
            cell.set_instance_name("cell_" + std::to_string(i) + "_");
            cell.WIDTH = WIDTH.get_value();
            cell.d = *last;
            last = &cell.q;
        }
        q = *last;
        dump_hdl(out);
    }

private:
    GNL_PARAMETER_INTEGER WIDTH, COPIES;
    GNL_PARAMETER_STRING NOTE;
    GNL_PORT_INPUT d;
    GNL_PORT_OUTPUT q;
};

LBX_REGISTER_GENERATOR(BANK, "bank", "A chain of inverters")
LBX_PLUGIN

} // namespace
