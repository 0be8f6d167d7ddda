// What a bidirectional port of a subdesign may be used for. The exact messages are in port_messages_test.cpp.

#include "open_design.h"

namespace {

using namespace gnl_test;

class Bidir : public in_folder
{
};

TEST_F(Bidir, ActsAsAnOutputAnyNumberOfTimes)
{
    open_design top(GNL_VERILOG);
    auto & p = top.child("cell", "u1").bidir("p");
    EXPECT_EQ(p.is_locked_bidir_port(), 0);
    top.output("y") = p;
    EXPECT_EQ(p.is_locked_bidir_port(), 1);
    top.wire("w") = p;
    EXPECT_EQ(p.is_locked_bidir_port(), 1);
    EXPECT_TRUE(p.check_is_used_flag());
    EXPECT_EQ(top.messages(), texts{});
    top.bidir("io") = p;
    EXPECT_EQ(p.is_locked_bidir_port(), 1);
    EXPECT_EQ(p.get_driven_bidir_port(), nullptr);
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(Bidir, DrivesOneBidirAndNothingElse)
{
    open_design top(GNL_VERILOG);
    auto & p = top.child("cell", "u1").bidir("p");
    auto & io = top.bidir("io");
    auto & jo = top.bidir("jo");
    io = p;
    EXPECT_EQ(p.is_locked_bidir_port(), 2);
    EXPECT_EQ(p.get_driven_bidir_port(), &io);
    EXPECT_TRUE(io.has_special_bidir_driver());
    EXPECT_FALSE(p.has_special_bidir_driver());
    EXPECT_EQ(top.messages(), texts{});
    jo = p;
    top.output("y") = p;
    EXPECT_EQ(p.is_locked_bidir_port(), 2);
    EXPECT_EQ(p.get_driven_bidir_port(), &io);
    EXPECT_TRUE(jo.has_special_bidir_driver());
    EXPECT_EQ(top.messages().size(), 2u);
}

TEST_F(Bidir, IsReadFreelyInItsOwnDesign)
{
    open_design top(GNL_VERILOG);
    auto & io = top.bidir("io");
    auto & jo = top.bidir("jo");
    top.output("y") = io;
    jo = io;
    EXPECT_EQ(io.is_locked_bidir_port(), 0);
    EXPECT_EQ(io.get_driven_bidir_port(), nullptr);
    EXPECT_TRUE(jo.has_special_bidir_driver());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Bidir, IsSettledByARefusedAssignmentToo)
{
    open_design top(GNL_VERILOG);
    auto & p = top.child("cell", "u1").bidir("p");
    auto & y = top.output("y");
    y = 1;
    y = p;
    EXPECT_EQ(p.is_locked_bidir_port(), 1);
    EXPECT_FALSE(p.check_is_used_flag());
    EXPECT_EQ(p.get_driver_count(), 0);
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(Bidir, IsNotTouchedByAConstant)
{
    open_design top(GNL_VERILOG);
    auto & p = top.child("cell", "u1").bidir("p");
    p = 1;
    EXPECT_TRUE(p.is_driven_by_constant());
    EXPECT_EQ(p.is_locked_bidir_port(), 0);
}

TEST_F(Bidir, OtherPortsHaveNothingToSettle)
{
    open_design top(GNL_VERILOG);
    auto & w = top.wire("w");
    w.check_bidir_validity(&top, true, &w);
    w.set_has_special_bidir_driver();
    EXPECT_FALSE(w.has_special_bidir_driver());
    EXPECT_EQ(w.get_driven_bidir_port(), nullptr);
}

} // namespace
