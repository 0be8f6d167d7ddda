// The names of the signals that stand for ports.

#include "open_design.h"

using namespace gnl_test;

namespace {

class SourceName : public in_folder
{
};

/// Without and with the argument that asks for the name of the connection.
std::string names(GNL_PORT & port)
{
    return port.get_source_name(false) + "  " + port.get_source_name(true);
}

TEST_F(SourceName, PinsOfASubdesign)
{
    for (auto const & [language, expected] : std::map<int, std::string>{{GNL_VERILOG, "data  wire_u1_data"},
                                                                        {GNL_VHDL, "data  wire_u1_data"},
                                                                        {GNL_QHDL, "data  data"},
                                                                        {GNL_TCL, "data  data"}}) {
        open_design top(language);
        EXPECT_EQ(names(top.child("a", "u1").input("data")), expected);
        EXPECT_EQ(names(top.child("b", "u1").output("data")), expected);
        EXPECT_EQ(names(top.child("c", "u1").bidir("data")), expected);
        EXPECT_EQ(names(top.child("d", "u1").wire("data")), "data  data");
    }
}

TEST_F(SourceName, WithoutAnInstanceName)
{
    open_design top(GNL_VERILOG);
    EXPECT_EQ(names(top.input("data")), "data  wire_data");
}

TEST_F(SourceName, ExpressionsHaveASignalInVhdlOnly)
{
    for (auto const & [language, expected] :
         std::map<int, std::string>{{GNL_VERILOG, ""}, {GNL_VHDL, "wire_"}, {GNL_QHDL, ""}}) {
        open_design top(language);
        auto & logic = top.input("a") & top.input("b");
        EXPECT_EQ(logic.get_source_name(false), logic.get_name());
        EXPECT_EQ(logic.get_source_name(true), expected + logic.get_name());
    }
}

TEST_F(SourceName, ReservedWordsAreAvoidedInVhdl)
{
    open_design top(GNL_VHDL);
    auto & leaf = top.child("leaf", "u1");
    EXPECT_EQ(names(leaf.input("IN")), "a_IN  wire_u1_IN");
    EXPECT_EQ(names(leaf.output("Out")), "a_Out  wire_u1_Out");
    EXPECT_EQ(names(top.wire("abs")), "a_abs  a_abs");
    top.set_gen_language(GNL_VERILOG);
    EXPECT_EQ(leaf.port("in").get_source_name(false), "IN");
}

TEST_F(SourceName, SignalOfTheParentsName)
{
    open_design top(GNL_VERILOG);
    auto & q = top.child("leaf", "u1").output("q");
    q.set_use_parent_source_name();
    EXPECT_EQ(names(q), "q  u1");
    q.disable_use_parent_source_name();
    EXPECT_EQ(names(q), "q  wire_u1_q");
}

TEST_F(SourceName, SliceOfAnArrayThatIsConnectedAsAWholeHasTheArraysName)
{
    for (int const language : {GNL_VERILOG, GNL_VHDL}) {
        open_design top(language);
        auto & cells = top.array(4, [](design & cell) { cell.output("data"); });
        cells.set_vhdl_unroll_loop();
        cells.port("data").set_used();
        EXPECT_EQ(names(cells[3].port("data")), "data  wire_arr_data");
        EXPECT_EQ(names(cells.port("data")), "data  wire_arr_data");
    }
}

TEST_F(SourceName, SliceWithItsOwnConnectionShowsItsIndex)
{
    open_design top(GNL_VERILOG);
    auto & cells = top.array(4, [](design & cell) {
        cell.input("a");
        cell.output("data");
        cell.bidir("io");
    });
    EXPECT_EQ(names(cells[3].port("data")), "data  wire_arr_3data");
    EXPECT_EQ(names(cells[0].port("a")), "a  wire_arr_0a");
    EXPECT_EQ(names(cells[1].port("io")), "io  wire_arr_1io");
    cells[2].port("data").set_use_parent_source_name();
    EXPECT_EQ(names(cells[2].port("data")), "data  arr2");
}

TEST_F(SourceName, SliceShowsItsIndexInVhdlWhenTheLoopIsUnrolled)
{
    open_design top(GNL_VHDL);
    auto & cells = top.array(4, [](design & cell) {
        cell.input("a", 2);
        cell.output("data");
        cell.bidir("io");
    });
    auto & slice = cells[3];
    EXPECT_EQ(names(slice.port("data")), "data  wire_arr_data");
    cells.set_vhdl_unroll_loop();
    EXPECT_EQ(names(slice.port("a")), "a  wire_arr_3a");
    EXPECT_EQ(names(slice.port("data")), "data  wire_arr_3data");
    EXPECT_EQ(names(slice.port("io")), "io  wire_arr_3io");
}

} // namespace
