// What whole QHDL designs mean: they are read back, written in Verilog and simulated.

#include "golden_designs.h"
#include "qhdl/qhdl_reader.h"
#include "verilog_simulation.h"

using namespace gnl_test;

namespace {

using QhdlMeaning = in_folder;

/// A cell with an input that may stay open, which counts as high then.
constexpr char cell_function[] = "FUNCTION blk (a[3..0], ena) WITH (DEPTH) RETURNS (o, spare);";
constexpr char cell_module[] = "module blk(a, ena, o, spare);\n"
                               "\tparameter Depth = 1;\n"
                               "\tinput [3:0] a;\n"
                               "\tinput ena;\n"
                               "\ttri1 ena;\n"
                               "\toutput o, spare;\n"
                               "\tassign o = &a & ena;\n"
                               "\tassign spare = ^a;\n"
                               "endmodule\n";

using model = std::function<vector_of_pins(vector_of_pins)>;

/// Generates the design, reads all its files and compares every vector with the model. The body runs inside.
void expect_meaning(design & top, std::vector<pin> const & in, std::vector<pin> const & out, model const & expected)
{
    for (auto const & input : in)
        top.set_port_to_used(input.name.c_str());
    top.run();
    ASSERT_EQ(top.messages(), texts{});
    qhdl::reader designs;
    designs.add_cell(cell_function);
    designs.add_folder(".");
    std::ofstream("translated.v") << designs.verilog() << cell_module;
    unsigned const seed = test_seed();
    SCOPED_TRACE("LBX_TEST_SEED=" + std::to_string(seed));
    auto const stimulus = stimulus_for(in, seed);
    auto const results = verilog_simulation("top", in, out).run("translated.v", stimulus);
    for (std::size_t i = 0; i < stimulus.size(); ++i)
        ASSERT_EQ(results[i], expected(stimulus[i])) << "vector " << i << "\n" << file_text("top.tdf");
}

std::uint64_t replicated(std::uint64_t bit, unsigned ones)
{
    return bit != 0 ? ones : 0U;
}

// ---- the designs that other languages are judged by as well

TEST_F(QhdlMeaning, OfTheFlatDesign)
{
    SKIP_WITHOUT("iverilog");
    for (std::string const more : {"", ",LBX_REMOVE_OPTIONAL_WIRES=OFF"}) {
        auto const top = flat_design("LBX_FILE=top.tdf" + more);
        expect_meaning(*top, {{"a", 4}, {"b", 4}, {"sel", 1}}, {{"y", 4}, {"z", 1}}, [](vector_of_pins at) {
            auto const t = (at["a"] & at["b"]) | replicated(at["sel"], 15);
            auto const y = ((t & 3U) << 2U) | ((at["a"] >> 3U) << 1U) | at["sel"];
            return vector_of_pins{{"y", y}, {"z", (t ^ (t >> 1U) ^ (t >> 2U) ^ (t >> 3U)) & 1U}};
        });
    }
}

TEST_F(QhdlMeaning, OfTheTwoLevelDesign)
{
    SKIP_WITHOUT("iverilog");
    auto const top = two_level_design("LBX_FILE=top.tdf");
    expect_meaning(*top, {{"d", 4}, {"en", 1}}, {{"q", 4}, {"full", 1}}, [](vector_of_pins at) {
        auto const stage_of = [](std::uint64_t d, std::uint64_t en) { return (d & 14U) ^ replicated(en, 15); };
        auto const q = stage_of(stage_of(stage_of(at["d"], at["en"]), 1) | at["d"], 1);
        return vector_of_pins{{"q", q}, {"full", q == 15 ? 1U : 0U}};
    });
}

TEST_F(QhdlMeaning, OfTheArrayDesign)
{
    SKIP_WITHOUT("iverilog");
    auto const top = array_design("LBX_FILE=top.tdf");
    expect_meaning(*top, {{"d", 6}, {"en", 1}}, {{"q", 6}, {"x", 1}, {"y", 1}}, [](vector_of_pins at) {
        auto const q = (at["d"] & 0x2aU) ^ replicated(at["en"], 0x3f);
        auto const x = (at["d"] & 15U) == 15 ? 1U : 0U;
        auto const y = (at["d"] & 3U) == 3 && at["en"] != 0 ? 1U : 0U;
        return vector_of_pins{{"q", q}, {"x", x}, {"y", y}};
    });
}

// ---- arrays

/// Slice `i` holds the bits of `held[i]`; d is connected on the array, en slice by slice.
TEST_F(QhdlMeaning, OfSlicesThatDiffer)
{
    SKIP_WITHOUT("iverilog");
    std::vector<int> const held{1, 0, 2, 2};
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    auto & d = top.input("d", 8);
    auto & en = top.input("en", 2);
    auto & q = top.output("q", 8);
    auto & upper = top.output("upper", 3);
    top.body = [&](design & of) {
        auto & stages = stage(of, "st", 2, 0, 4);
        for (int i = 0; i < 4; ++i)
            stages[i].parameter_integer("HELD") = held[static_cast<std::size_t>(i)];
        stages.port("d") = d;
        for (int i : {0, 1, 3})
            stages[i].port("en") = en[i / 2];
        stages[2].port("en") = 1;
        q = stages.port("q");
        upper = (stages[3].port("q"), stages[1].port("q")[1]);
    };
    expect_meaning(top, {{"d", 8}, {"en", 2}}, {{"q", 8}, {"upper", 3}}, [&](vector_of_pins at) {
        auto const e = at["en"];
        std::vector<std::uint64_t> const enabled{e & 1U, e & 1U, 1, e >> 1U};
        std::uint64_t result = 0;
        for (unsigned i = 0; i < 4; ++i) {
            auto const kept = (at["d"] >> (2 * i)) & 3U & (3U - static_cast<unsigned>(held[i]));
            result |= (kept ^ replicated(enabled[i], 3)) << (2 * i);
        }
        return vector_of_pins{{"q", result}, {"upper", ((result >> 6U) << 1U) | ((result >> 3U) & 1U)}};
    });
}

/// A cell of a width of its own in each slice, driven by pieces of one bus.
TEST_F(QhdlMeaning, OfSlicesOfDifferentWidths)
{
    SKIP_WITHOUT("iverilog");
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    auto & d = top.input("d", 6);
    auto & q = top.output("q", 6);
    top.body = [&](design & of) {
        auto & cells = of.child("inv", "cells", "", 3);
        cells.declare_slice = [](design & slice) {
            slice.integer("SIZE", 1);
            new GNL_PORT_INPUT(&slice, "d", std::string("SIZE"));
            new GNL_PORT_OUTPUT(&slice, "q", std::string("SIZE"));
        };
        cells.declare_slice(cells);
        cells.body = [](design & slice) { slice.port("q") = ~slice.port("d"); };
        for (int i : {1, 2})
            cells[i].parameter_integer("SIZE") = i + 1;
        cells[0].port("d") = d[0];
        cells[1].port("d") = d.range(2, 1);
        cells[2].port("d") = d.range(5, 3);
        q = (cells[2].port("q"), cells[1].port("q"), cells[0].port("q"));
    };
    expect_meaning(top, {{"d", 6}}, {{"q", 6}}, [](vector_of_pins at) {
        return vector_of_pins{{"q", at["d"] ^ 0x3fU}};
    });
}

/// Neighbours that take the same driver, constants, and a chain through the slices.
TEST_F(QhdlMeaning, OfAnArrayThatIsConnectedSliceBySlice)
{
    SKIP_WITHOUT("iverilog");
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    auto & d = top.input("d", 2);
    auto & y = top.output("y", 10);
    top.body = [&](design & of) {
        auto & cells = of.child("xor2", "cells", "", 5);
        cells.declare_slice = [](design & slice) {
            slice.input("a", 2);
            slice.input("b", 2);
            slice.output("q", 2);
        };
        cells.declare_slice(cells);
        cells.body = [](design & slice) { slice.port("q") = slice.port("a") ^ slice.port("b"); };
        for (int i : {0, 1, 2, 4})
            cells[i].port("a") = d;
        cells[3].port("a") = 1;
        cells[0].port("b") = 2;
        for (int i = 1; i < 5; ++i)
            cells[i].port("b") = cells[i - 1].port("q");
        y = cells.port("q");
    };
    expect_meaning(top, {{"d", 2}}, {{"y", 10}}, [](vector_of_pins at) {
        std::uint64_t result = 0;
        std::uint64_t chain = 2;
        for (unsigned i = 0; i < 5; ++i) {
            chain ^= i == 3 ? 1U : at["d"];
            result |= chain << (2 * i);
        }
        return vector_of_pins{{"y", result}};
    });
}

// ---- bidirectional ports

/// A subdesign that reads its port, one that drives it, and a pad of the design itself.
TEST_F(QhdlMeaning, OfBidirectionalPorts)
{
    SKIP_WITHOUT("iverilog");
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    auto & a = top.input("a", 4);
    auto & pad = top.bidir("pad", 4);
    auto & y = top.output("y", 4);
    auto & z = top.output("z", 4);
    auto & part = top.output("part", 2);
    top.body = [&](design & of) {
        auto & reads = of.child("reads", "r");
        auto & in = reads.bidir("io", 4);
        auto & r = reads.output("r", 4);
        reads.body = [](design & self) { self.port("r") = ~self.port("io"); };
        auto & drives = of.child("drives", "d");
        auto & s = drives.input("s", 4);
        auto & out = drives.bidir("io", 4);
        drives.body = [](design & self) { self.port("io") = self.port("s") ^ self.port("s")[0]; };
        in = a;
        s = r;
        y = out;
        pad = a.range(3, 2);
        z = pad;
        part = in.range(2, 1);
    };
    std::vector<pin> const out{{"pad", 4}, {"y", 4}, {"z", 4}, {"part", 2}};
    expect_meaning(top, {{"a", 4}}, out, [](vector_of_pins at) {
        auto const r = at["a"] ^ 15U;
        auto const pair = at["a"] >> 2U;
        auto const doubled = pair | (pair << 2U);
        return vector_of_pins{
            {"pad", doubled}, {"y", r ^ replicated(r & 1U, 15)}, {"z", doubled}, {"part", (at["a"] >> 1U) & 3U}};
    });
}

// ---- cells that stand in the text as statements

/// q = ! a, as a statement of its own.
class inverter : public design
{
public:
    explicit inverter(GNL_GENERATOR * parent, std::string const & instance, int array_width = 0)
        : design(parent, "inverter", "", array_width)
    {
        set_primitive();
        set_custom_subdesign_insert_mode();
        set_use_custom_qhdl_output();
        input("a");
        output("q");
        integer("KIND", 0);
        set_instance_name(instance);
    }
    bool dump_qhdl_custom_wires(std::ostream & out, bool variable_written) override
    {
        out << (variable_written ? "" : "VARIABLE\n") << "\t" << get_qhdl_port_extension() << "q";
        if (int const width = port("q").get_width(); width > 0)
            out << "[" << width - 1 << "..0]";
        out << "\t:\tWIRE;\n";
        return true;
    }
    void dump_qhdl_custom_output(std::ostream & out, GNL_GENERATOR * parent) override
    {
        auto & q = port("q");
        out << "\t" << get_qhdl_port_extension() << "q" << (q.get_width() > 0 ? "[]" : "") << " = !(";
        port("a").get_driver()->dump_port_description(out, parent, false, nullptr);
        out << ");\n";
    }
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
    {
        auto & slice = *new inverter(parent, instance_name);
        slice.set_slice_index(index);
        slice.set_array_parent(parent);
        slice.set_instance_name(instance_name);
    }
};

TEST_F(QhdlMeaning, OfCellsThatWriteThemselves)
{
    SKIP_WITHOUT("iverilog");
    for (bool const slices_differ : {false, true}) {
        design top(nullptr, "top", "LBX_FILE=top.tdf");
        auto & a = top.input("a", 3);
        auto & one = top.output("one");
        auto & all = top.output("all", 3);
        auto & two = top.output("two", 2);
        auto & slice = top.output("slice", 2);
        top.body = [&](design & of) {
            auto & single = *new inverter(&of, "single");
            single.port("a") = a[0];
            one = single.port("q");
            auto & row = *new inverter(&of, "row", 3);
            if (slices_differ)
                row[1].parameter_integer("KIND") = 1;
            for (int i = 0; i < 3; ++i)
                row[i].port("a") = a[2 - i];
            all = row.port("q");
            two = row.port("q").range(2, 1);
            slice = (row[0].port("q"), row[2].port("q")[0]);
        };
        std::vector<pin> const out{{"one", 1}, {"all", 3}, {"two", 2}, {"slice", 2}};
        expect_meaning(top, {{"a", 3}}, out, [](vector_of_pins at) {
            auto const bit = [&](unsigned i) { return ~(at["a"] >> i) & 1U; };
            auto const q = bit(2) | (bit(1) << 1U) | (bit(0) << 2U);
            return vector_of_pins{{"one", bit(0)}, {"all", q}, {"two", q >> 1U}, {"slice", (bit(2) << 1U) | bit(0)}};
        });
    }
}

// ---- constants, defaults and repetition

TEST_F(QhdlMeaning, OfConstantsDefaultsAndRepetition)
{
    SKIP_WITHOUT("iverilog");
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    auto & a = top.input("a", 2);
    auto & s = top.input("s");
    auto & open = top.input("open", 3, 1);
    auto & repeated = top.output("repeated", 6);
    auto & pieces = top.output("pieces", 6);
    auto & masked = top.output("masked", 3);
    auto & filled = top.output("filled", 5);
    auto & wide = top.output("wide", 40);
    top.body = [&](design & of) {
        auto & w = of.wire("w", 5);
        w.set_default_port_value(1);
        w.range(2, 1) = a;
        auto & automatic = of.wire("", 4);
        automatic = s;
        repeated = a;
        pieces = (automatic, a);
        masked = open & s;
        filled = w;
        wide = 0;
    };
    std::vector<pin> const out{{"repeated", 6}, {"pieces", 6}, {"masked", 3}, {"filled", 5}, {"wide", 40}};
    expect_meaning(top, {{"a", 2}, {"s", 1}}, out, [](vector_of_pins at) {
        auto const v = at["a"];
        return vector_of_pins{{"repeated", v | (v << 2U) | (v << 4U)},
                              {"pieces", v | (replicated(at["s"], 15) << 2U)},
                              {"masked", replicated(at["s"], 7)},
                              {"filled", 0x19U | (v << 1U)},
                              {"wide", 0}};
    });
}

/// What the front-end holds at a constant stays a pin of the design.
TEST_F(QhdlMeaning, OfInputsThatAreHeldAtAConstant)
{
    SKIP_WITHOUT("iverilog");
    design top(nullptr, "top", "LBX_FILE=top.tdf,LBX_DECLARE_ALL_CONNECTED_PORTS=ON");
    auto & a = top.input("a");
    auto & en = top.input("en", 0, 1);
    auto & y = top.output("y");
    top.set_port_to_constant_value("en=VCC");
    top.body = [&](design &) { y = a & en; };
    expect_meaning(top, {{"a", 1}, {"en", 1}}, {{"y", 1}}, [](vector_of_pins at) {
        return vector_of_pins{{"y", at["a"] & at["en"]}};
    });
}

} // namespace
