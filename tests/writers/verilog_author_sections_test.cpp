#include "verilog_sections.h"

using namespace gnl_test;

namespace {

using VerilogAuthorSections = verilog_sections;

} // namespace

TEST_F(VerilogAuthorSections, DeclareANetForEachUsedPort)
{
    top_design top;
    auto & u = top.cell("u");
    u.input("a", 4).set_used();
    u.input("b").set_used();
    u.input("idle");
    u.bidir("io").set_used();
    u.output("q", 1).set_used();
    u.output("r");
    EXPECT_EQ(written(u, &GNL_GENERATOR::dump_verilog_subdesign_port_wires), "\twire\t[3:0]\twire_u_a;\n"
                                                                             "\twire\twire_u_b;\n"
                                                                             "\twire\t[0:0]\twire_u_q;\n");
}

TEST_F(VerilogAuthorSections, FeedEachUsedInput)
{
    top_design top;
    auto & x = top.input("x");
    x.set_used();
    auto & u = top.cell("u");
    auto & a = u.input("a", 4);
    auto & b = u.input("b", 4);
    auto & c = u.input("c", 4, 1);
    auto & d = u.input("d");
    u.input("idle");
    u.output("q").set_used();
    top.connect([&] {
        a = x;
        b = 5;
    });
    c.set_used();
    d.set_used();
    EXPECT_EQ(written(u, &GNL_GENERATOR::dump_verilog_subdesign_input_wire_connections, &top),
              "\tassign\n"
              "\t\twire_u_a = x,\n"
              "\t\twire_u_b = 4'b0101,\n"
              "\t\twire_u_c = 4'b1,\n"
              "\t\twire_u_d = ;\n");
    auto & idle = top.cell("v");
    EXPECT_EQ(written(idle, &GNL_GENERATOR::dump_verilog_subdesign_input_wire_connections, &top), "");
}

TEST_F(VerilogAuthorSections, ListWhatASubdesignDrives)
{
    top_design top;
    auto & u = top.cell("u");
    auto & q = u.output("q");
    auto & bus = u.output("bus", 4);
    auto & other = top.cell("v").output("q");
    auto & next = top.cell("next");
    auto & a = next.input("a");
    auto & b = next.input("b", 4);
    auto & c = next.input("c");
    auto & d = next.input("d", 2);
    auto & e = next.input("e", 2);
    auto & w = next.wire("w", 4);
    top.connect([&] {
        a = q;
        b = bus;
        c = other;
        d = bus.range(1, 0);
        e = (q, q);
        w = bus;
    });
    std::ostringstream out;
    next.dump_verilog_output_connections_with_subdesign(&u, out);
    EXPECT_EQ(out.str(), ",\n\t.a(wire_u_q)"
                         ",\n\t.b(wire_u_bus)"
                         ",\n\t.bus(w)"
                         ");\n");
}
