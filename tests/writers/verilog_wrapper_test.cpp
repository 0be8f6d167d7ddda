#include "verilog_sections.h"

using namespace gnl_test;

namespace {

using VerilogWrapper = verilog_sections;

std::string module_section(GNL_GENERATOR & wrapper)
{
    return written(wrapper, &GNL_GENERATOR::dump_verilog_module_section_for_wrapper);
}

std::string port_section(GNL_GENERATOR & wrapper)
{
    return written(wrapper, &GNL_GENERATOR::dump_verilog_port_section_for_wrapper);
}

std::string connections(GNL_GENERATOR & wrapper)
{
    return written(wrapper, &GNL_GENERATOR::dump_verilog_connections_for_subdesign_wrapper);
}

} // namespace

TEST_F(VerilogWrapper, ListsDrivenInputsAndUsedResults)
{
    top_design top;
    auto & x = top.input("x", 4);
    x.set_used();
    auto & leaf = top.subdesign("leaf", "u");
    leaf.set_entity_name("leaf_1");
    auto & b = leaf.input("b");
    auto & a = leaf.input("A", 4);
    auto & idle = leaf.input("idle", 0, 1);
    leaf.wire("w");
    leaf.output("y", 1).set_used();
    leaf.output("z");
    leaf.bidir("pad", 2).set_used();
    leaf.bidir("loose");
    idle.set_used();
    top.connect([&] {
        a = x;
        b = 1;
    });
    EXPECT_EQ(module_section(leaf), "leaf_1\n"
                                    "\t( \n"
                                    "\tA,\n"
                                    "\tb,\n"
                                    "\tpad,\n"
                                    "\ty) ");
    EXPECT_EQ(port_section(leaf), "\tinput   [3:0]  A;\n"
                                  "\tinput   b;\n"
                                  "\tinout [1:0]  pad;\n"
                                  "\toutput [0:0]  y;\n");
    EXPECT_EQ(connections(leaf), "\tleaf\tmg (\n"
                                 "\t.A(A),\n"
                                 "\t.b(b),\n"
                                 "\t.pad(pad),\n"
                                 "\t.y(y),\n"
                                 "\t.z(z)); \n");
}

TEST_F(VerilogWrapper, ConnectsADrivenInputThatIsNotUsed)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    auto & a = leaf.input("a");
    top.connect([&] { a = 1; });
    a.set_used(false);
    EXPECT_EQ(module_section(leaf), "leaf\n"
                                    "\t( \n"
                                    ") ");
    EXPECT_EQ(port_section(leaf), "");
    EXPECT_EQ(connections(leaf), "\tleaf\tmg (\n"
                                 "\t.a(a)); \n");
}

TEST_F(VerilogWrapper, AnArraysInputMayBeDrivenSliceBySliceAndASlicesByTheArray)
{
    top_design top;
    auto & x = top.input("x");
    auto & y = top.input("y", 2);
    x.set_used();
    y.set_used();
    auto & arr = top.subdesign("leaf", "arr", 2);
    auto const declare = [](design & slice) {
        slice.input("a");
        slice.input("b");
    };
    declare(arr);
    arr.declare_slice = declare;
    top.connect([&] {
        arr[0].port("a") = x;
        arr[1].port("a") = x;
        arr.port("b") = y;
    });
    for (GNL_GENERATOR * of : {static_cast<GNL_GENERATOR *>(&arr), &arr[1]})
        EXPECT_EQ(port_section(*of), "\tinput   a;\n"
                                     "\tinput   b;\n");
}
