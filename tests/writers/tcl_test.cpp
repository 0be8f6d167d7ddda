#include "support.h"

using namespace gnl_test;

namespace {

using TclPortInterface = in_folder;

std::string interface_of(GNL_GENERATOR & design)
{
    std::ostringstream out;
    design.dump_tcl_port_interface(out);
    return out.str();
}

} // namespace

TEST_F(TclPortInterface, HasALineForEachUsedPin)
{
    design top(nullptr);
    top.input("data", 8).set_used();
    top.input("Bit").set_used();
    top.input("one", 1).set_used();
    top.input("idle");
    top.input("held").set_constant_used();
    top.output("q", 4).set_used();
    top.output("open");
    top.bidir("io", 2).set_used();
    top.bidir("loose");
    top.wire("w").set_used();
    EXPECT_EQ(interface_of(top), "set {intrfc_port(Bit)} {input 0}\n"
                                 "set {intrfc_port(data)} {input 8}\n"
                                 "set {intrfc_port(io)} {bidir 2}\n"
                                 "set {intrfc_port(one)} {input 1}\n"
                                 "set {intrfc_port(q)} {output 4}\n");
}

TEST_F(TclPortInterface, IsEmptyWithoutPorts)
{
    design top(nullptr);
    EXPECT_EQ(interface_of(top), "");
}

TEST_F(TclPortInterface, IsTheWholeFile)
{
    design top(nullptr, "top", "LBX_FILE=ports.tcl");
    auto & a = top.input("a", 4);
    auto & y = top.output("y", 4);
    EXPECT_EQ(top.run([&](design &) { y = a; }), "");
    EXPECT_EQ(top.generator_result(), 0);
    EXPECT_EQ(file_text("ports.tcl"), "set {intrfc_port(a)} {input 4}\n"
                                      "set {intrfc_port(y)} {output 4}\n");
}
