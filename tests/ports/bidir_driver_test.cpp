// What an instance shows on a bidir that is connected to a bidir of the design around it.

#include "open_design.h"

using namespace gnl_test;

namespace {

class BidirDriver : public in_folder
{
};

std::string special_driver(GNL_PORT_BIDIR & port, GNL_GENERATOR & level, int index = -1)
{
    std::ostringstream out;
    port.dump_special_driver_description(out, &level, index);
    return out.str();
}

TEST_F(BidirDriver, IsTheOuterBidir)
{
    for (int const language : {GNL_VERILOG, GNL_VHDL}) {
        open_design top(language);
        auto & io = top.child("leaf", "u1").bidir("io", 4);
        top.bidir("pad", 4) = io;
        EXPECT_EQ(special_driver(io, top), "pad");
        EXPECT_EQ(special_driver(io, top, 2), language == GNL_VHDL ? "pad(2)" : "pad");
    }
}

TEST_F(BidirDriver, IsAPartOfTheOuterBidir)
{
    for (auto const & [language, part, bit] :
         {std::tuple{GNL_VERILOG, "pad[5:4]", "pad[7:7]"}, std::tuple{GNL_VHDL, "pad(5 DOWNTO 4)", "pad(7)"}}) {
        open_design top(language);
        auto & leaf = top.child("leaf", "u1");
        auto & io = leaf.bidir("io", 2);
        auto & one = leaf.bidir("one");
        auto & pad = top.bidir("pad", 8);
        pad.range(5, 4) = io;
        pad[7] = one;
        EXPECT_EQ(special_driver(io, top), part);
        EXPECT_EQ(special_driver(one, top), bit);
        EXPECT_EQ(top.messages(), texts{});
    }
}

TEST_F(BidirDriver, IsWhatDrivesItWhileItDrivesNothing)
{
    open_design top(GNL_VERILOG);
    auto & leaf = top.child("leaf", "u1");
    auto & io = leaf.bidir("io", 2);
    EXPECT_EQ(special_driver(io, top), "");
    io = top.input("a", 2);
    EXPECT_EQ(special_driver(io, top), "a");
    io.lock_bidir_port(1);
    EXPECT_EQ(special_driver(io, top), "");
}

TEST_F(BidirDriver, ScalarInAnArrayOfOneOnABusOfOneBit)
{
    open_design top(GNL_VHDL);
    auto & cells = top.array(1, [](design & cell) { cell.bidir("io"); });
    auto & io = static_cast<GNL_PORT_BIDIR &>(cells.port("io"));
    top.bidir("pad", 1) = io;
    EXPECT_EQ(special_driver(io, top), "pad(0)");
}

TEST_F(BidirDriver, NothingIsWrittenInQhdl)
{
    open_design top(GNL_QHDL);
    auto & io = top.child("leaf", "u1").bidir("io");
    top.bidir("pad") = io;
    EXPECT_EQ(special_driver(io, top), "");
}

TEST_F(BidirDriver, RangeOfAnythingElseIsReported)
{
    open_design top(GNL_VERILOG);
    auto & io = top.child("leaf", "u1").bidir("io", 2);
    auto & part = top.wire("w", 8).range(1, 0);
    io.set_driven_bidir_port(&part);
    EXPECT_EQ(special_driver(io, top), "");
    EXPECT_EQ(top.messages(),
              texts{error("Bidir port top|leaf inst u1|io is illegally connected to a non bidir port "
                              + part.get_hierarchical_name() + " through a bidir--bidir connection.",
                          " A bidir port is driven by a range object that is not derived from a bidir port. This will "
                          "generate an illegal bidir to bidir connection where one of them is as a result, a non bidir "
                          "port..",
                          "Properly specify all bidir to bidir connections.")});
}

} // namespace
