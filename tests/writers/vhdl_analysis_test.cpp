// Whole designs, as an outside VHDL tool reads them.

#include "outside_tools.h"
#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

/// A design whose declarations must be legal together with its statements.
struct analysed
{
    std::string name;
    void (*build)(design & top);
    std::string options;
};

void PrintTo(analysed const & shown, std::ostream * out)
{
    *out << shown.name;
}

design & cell(design & top, std::string const & name, std::string const & instance, int array_width = 0)
{
    auto & made = top.child(name, instance, "", array_width);
    made.set_primitive();
    return made;
}

void ports_of_all_kinds(design & top)
{
    auto & in = top.input("in", 4, 2);
    auto & one = top.input("one", 1, 1);
    auto & bit = top.input("bit_in", 0, 0);
    auto & out = top.output("out", 4);
    auto & abs = top.output("abs");
    auto & pad = top.bidir("pad", 1);
    top.set_port_to_used("in");
    top.set_port_to_used("one");
    top.body = [&](design & of) {
        auto & net = of.wire("net", 4);
        net.set_initial_value(1);
        net = ~in;
        out = net & one;
        abs = bit;
        pad = one;
    };
}

void generics_of_all_kinds(design & top)
{
    auto & y = top.output("y");
    top.integer("SIZE", 4).set_as_parameterized();
    top.string("MODE", "A|B", 0).set_as_parameterized();
    top.body = [&](design & of) {
        of.parameter_integer("SIZE").get_parameter();
        of.parameter_string("MODE").get_parameter();
        y = 1;
    };
}

void options_of_signals(design & top)
{
    auto & a = top.input("a");
    auto & y = top.output("y");
    top.body = [&](design & of) {
        auto & net = of.wire("net");
        net.set_qelvar_internal_option("FAST=ON");
        net = ~a;
        y = net;
    };
}

void cells_with_parameters(design & top)
{
    auto & x = top.input("x", 8);
    auto & y = top.output("y", 8);
    top.body = [&](design & of) {
        auto & one = cell(of, "blk", "u");
        one.integer("WIDTH", 8) = 8;
        one.string("MODE", "FAST|SLOW", 0) = "SLOW";
        one.vector("bits", 1, 4) = 5;
        auto & raw = one.vector("raw", 0, 8);
        raw.set_as_vhdl_bit_vector();
        raw = 200;
        one.add_simulation_only_parameter("style", "soft");
        auto & a = *new GNL_PORT_INPUT(&one, "a", std::string("WIDTH"));
        auto & q = *new GNL_PORT_OUTPUT(&one, "q", std::string("WIDTH"));
        auto & held = one.input("held", 0, 1);
        one.input("spare", 3, 2);
        a = ~x;
        held = 0;
        y = q;
    };
}

class cell_with_array : public design
{
public:
    explicit cell_with_array(GNL_GENERATOR * parent)
        : design(parent, "blk")
        , values(this, "COEF", 7)
    {
        set_primitive();
        set_instance_name("u");
        set_has_true_vhdl_parameter_array();
        values.set_array_width(4);
        values.set_array_type("ARRAY_NATURAL_4");
    }
    GNL_PARAMETER_INTEGER_ARRAY values;
};

void cells_with_true_arrays(design & top)
{
    top.body = [](design & of) {
        auto & one = *new cell_with_array(&of);
        one.values[1] = 3;
        one.input("a") = 1;
    };
}

void cells_with_rows(design & top)
{
    auto & x = top.input("x", 12);
    top.body = [&](design & of) {
        auto & one = cell(of, "blk", "u");
        one.integer("ROWS", 3) = 3;
        one.integer("BITS", 4) = 4;
        auto & a = *new GNL_PORT_INPUT(&one, "a", std::string("ROWS"), "BITS");
        auto & b = *new GNL_PORT_INPUT(&one, "b", 3, 4);
        auto & c = *new GNL_PORT_INPUT(&one, "c", 3, 4);
        auto & spare = *new GNL_PORT_INPUT(&one, "spare", std::string("ROWS"), "BITS");
        spare.set_default_port_value(0);
        a = x;
        b = ~x;
        c = 5;
    };
}

void arrays_of_cells(design & top)
{
    auto & x = top.input("x", 8);
    auto & s = top.input("s");
    auto & y = top.output("y", 8);
    auto & z = top.output("z", 2);
    top.body = [&](design & of) {
        auto & array = cell(of, "blk", "u", 2);
        auto & a = array.input("a", 4);
        auto & b = array.input("b");
        auto & c = array.input("c");
        auto & p = array.output("p", 4);
        auto & q = array.output("q");
        a = x;
        b = s;
        c = 1;
        y = p;
        z = ~q;
    };
}

void slices_with_their_own(design & top)
{
    auto & x = top.input("x", 2);
    auto & y = top.output("y");
    top.body = [&](design & of) {
        auto & array = cell(of, "blk", "u", 2);
        auto const declare = [](design & slice) {
            slice.set_primitive();
            slice.input("a");
            slice.input("k");
            slice.output("q");
        };
        declare(array);
        array.declare_slice = declare;
        array[0].port("a") = x[1];
        array[1].port("a") = ~x[0];
        array[0].port("k") = 1;
        array[1].port("k") = 0;
        y = array[0].port("q") & array[1].port("q");
    };
}

void subdesigns_that_share(design & top)
{
    auto & x = top.input("x", 4);
    auto & s = top.input("s");
    auto & y = top.output("y", 4);
    auto & z = top.output("z");
    top.body = [&](design & of) {
        std::vector<GNL_PORT *> results;
        for (char const * instance : {"u1", "u2"}) {
            auto & leaf = of.child("leaf", instance);
            auto & a = leaf.input("a", 4);
            auto & k = leaf.input("k");
            auto & v = leaf.input("v", 1);
            results.push_back(&leaf.output("q", 4));
            leaf.body = [](design & self) { self.port("q") = (self.port("a") & self.port("k")) ^ self.port("v"); };
            a = x;
            k = 1;
            v = s;
        }
        y = *results[0] | *results[1];
        z = (*results[0])[3];
    };
}

void slices_with_entities_of_their_own(design & top)
{
    auto & x = top.input("x", 6);
    auto & y = top.output("y", 6);
    top.body = [&](design & of) {
        auto & array = of.child("leaf", "u", "", 3);
        auto const declare = [](design & slice) {
            slice.input("a", 2);
            slice.output("q", 2);
            slice.integer("inverted", 0);
            slice.body = [](design & self) {
                if (self.parameter_integer("inverted").get_value() == 1)
                    self.port("q") = ~self.port("a");
                else
                    self.port("q") = self.port("a");
            };
        };
        declare(array);
        array.declare_slice = declare;
        array[1].parameter_integer("inverted") = 1;
        array.port("a") = x;
        y = array.port("q");
    };
}

void pieces_that_are_repeated(design & top)
{
    auto & a = top.input("a", 8);
    auto & s = top.input("s");
    std::vector<GNL_PORT *> sinks;
    for (char const * name : {"p", "q", "r", "t", "v"})
        sinks.push_back(&top.output(name, 8));
    top.body = [&a, &s, sinks](design &) {
        *sinks[0] = (s, a[0]);
        *sinks[1] = a.range(3, 0);
        *sinks[2] = a[7];
        *sinks[3] = s & a[1];
        *sinks[4] = (s ^ a) & a[2];
    };
}

void bidirs(design & top)
{
    auto & d = top.input("d", 4);
    auto & pad = top.bidir("pad", 4);
    auto & y = top.output("y", 4);
    top.body = [&](design & of) {
        auto & one = cell(of, "blk", "u");
        auto & driven = one.bidir("driven", 4);
        auto & read = one.bidir("read", 4);
        auto & held = one.bidir("held", 1);
        auto & joined = one.bidir("joined", 4);
        driven = d;
        y = read;
        held = 1;
        pad = joined;
    };
}

/// Leaves its body to the library: a wrapper around the entity of its name.
class wrapped_cell : public GNL_GENERATOR
{
public:
    explicit wrapped_cell(GNL_GENERATOR * parent)
        : GNL_GENERATOR(parent, "blk")
        , depth(this, "depth", 2)
        , a(this, "a", 4)
        , q(this, "q", 4)
    {
        set_primitive();
        set_instance_name("u");
    }
    GNL_PARAMETER_INTEGER depth;
    GNL_PORT_INPUT a;
    GNL_PORT_OUTPUT q;
};

void wrappers(design & top)
{
    auto & x = top.input("x", 4);
    auto & y = top.output("y", 4);
    top.body = [&](design & of) {
        auto & one = *new wrapped_cell(&of);
        one.depth = 5;
        one.a = x;
        y = one.q;
    };
}

std::vector<analysed> all_designs()
{
    std::string const one_file = "LBX_FILE=top.vhd";
    return {{"ports", ports_of_all_kinds, one_file},
            {"generics", generics_of_all_kinds, one_file},
            {"signal_options", options_of_signals, one_file},
            {"cells", cells_with_parameters, one_file},
            {"true_arrays", cells_with_true_arrays, one_file},
            {"rows", cells_with_rows, one_file},
            {"arrays", arrays_of_cells, one_file},
            {"slices", slices_with_their_own, one_file},
            {"subdesigns", subdesigns_that_share, one_file},
            {"entities_of_slices", slices_with_entities_of_their_own, one_file},
            {"pieces", pieces_that_are_repeated, one_file},
            {"bidirs", bidirs, one_file},
            {"wrappers", wrappers, one_file + ",LBX_VHDL_WRAPPERS=ON"},
            {"subdesigns_with_all_wires", subdesigns_that_share, one_file + ",LBX_REMOVE_OPTIONAL_WIRES=OFF"}};
}

/// A text that a tool objects to, and that stays as it is.
struct refused
{
    std::string name;
    void (*build)(design & top);
    std::string options;
    std::string complaint;
};

void PrintTo(refused const & shown, std::ostream * out)
{
    *out << shown.name;
}

void signed_port(design & top)
{
    auto & y = top.output("y", 4);
    y.set_port_is_signed();
    top.body = [&](design &) { y = 1; };
}

void option_of_a_port(design & top)
{
    auto & y = top.output("y");
    top.body = [&](design &) {
        y.set_qelvar_internal_option("FAST=ON");
        y = 1;
    };
}

void parameter_without_a_value(design & top)
{
    top.body = [](design & of) {
        auto & one = cell(of, "blk", "u");
        one.integer("depth");
        one.input("a") = 1;
    };
}

void rows_of_an_output(design & top)
{
    auto & y = top.output("y", 12);
    top.body = [&](design & of) {
        auto & one = cell(of, "blk", "u");
        one.integer("ROWS", 3) = 3;
        one.integer("BITS", 4) = 4;
        y = *new GNL_PORT_OUTPUT(&one, "q", std::string("ROWS"), "BITS");
    };
}

void rows_of_slices(design & top)
{
    auto & x = top.input("x", 24);
    top.body = [&](design & of) {
        auto & array = cell(of, "blk", "u", 2);
        auto & a = *new GNL_PORT_INPUT(&array, "a", 3, 4);
        a = x;
    };
}

void expression_of_an_instance(design & top)
{
    auto & x = top.input("x");
    top.body = [&](design & of) { cell(of, "blk", "u").input("a") = ~x; };
}

std::vector<refused> refused_designs()
{
    std::string const one_file = "LBX_FILE=top.vhd";
    return {
        // The author names the package of the type among the libraries of a cell.
        {"signed_port", signed_port, one_file, "no declaration for \"signed\""},
        // Synthesis takes the options of ports where it takes those of signals.
        {"option_of_a_port", option_of_a_port, one_file, "attribute for port \"y\" must be specified in the entity"},
        // There is nothing that the component could say instead.
        {"parameter_without_a_value", parameter_without_a_value, one_file,
         "no actual for constant interface \"depth\""},
        // Only inputs have a signal in two dimensions, and only for one instance.
        {"rows_of_an_output", rows_of_an_output, one_file, "can't associate 'wire_u_q' with signal interface \"q\""},
        {"rows_of_slices", rows_of_slices, one_file, "actual constraints don't match formal ones"},
        // Who turns the signals of inputs off has a tool that reads the newer language.
        {"expression_of_an_instance", expression_of_an_instance, one_file + ",LBX_NO_VHDL_SUBDES_CONCAT_WIRES=ON",
         "actual expression must be globally static"},
    };
}

class VhdlRefusal : public in_folder, public ::testing::WithParamInterface<refused>
{
};

class VhdlAnalysis : public in_folder, public ::testing::WithParamInterface<analysed>
{
};

} // namespace

TEST_P(VhdlAnalysis, FindsNothing)
{
    SKIP_WITHOUT("ghdl");
    design top(nullptr, "top", GetParam().options.c_str());
    GetParam().build(top);
    top.run();
    ASSERT_EQ(top.messages(), texts{});
    auto const found = run_command("ghdl -a --std=93c top.vhd");
    EXPECT_EQ(found.text, "") << file_text("top.vhd");
    EXPECT_EQ(found.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Designs, VhdlAnalysis, ::testing::ValuesIn(all_designs()),
                         [](auto const & tried) { return tried.param.name; });

TEST_P(VhdlRefusal, IsKnown)
{
    SKIP_WITHOUT("ghdl");
    design top(nullptr, "top", GetParam().options.c_str());
    GetParam().build(top);
    top.run();
    ASSERT_EQ(top.messages(), texts{});
    auto const found = run_command("ghdl -a --std=93c top.vhd");
    EXPECT_NE(found.text.find(GetParam().complaint), std::string::npos) << found.text << file_text("top.vhd");
}

INSTANTIATE_TEST_SUITE_P(Designs, VhdlRefusal, ::testing::ValuesIn(refused_designs()),
                         [](auto const & tried) { return tried.param.name; });
