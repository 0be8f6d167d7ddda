// Clean-up where a design reads bits of an array of subdesigns.

#include "prune_support.h"

namespace {

using namespace gnl_test;

using PruneArrays = in_folder;

/// The outputs of three slices of 4 bits, which a design reads in pieces.
GNL_PORT_OUTPUT & sliced_output(pruned_design & top)
{
    auto & array = top.child("cell", "arr", "", 3);
    array.declare_slice = [](design & slice) { slice.output("q", 4); };
    return array.output("q", 4);
}

/// A reference in QHDL names slices and then bits in each of them, so that bits of two slices cannot be named at once.
TEST_F(PruneArrays, BitsOfTwoSlicesStayBehindTheirWireInQhdl)
{
    for (int const language : {GNL_VERILOG, GNL_QHDL}) {
        pruned_design top(language);
        auto & q = sliced_output(top);
        auto & across = top.output("across", 4);
        auto & inside = top.output("inside", 2);
        across = q.range(5, 2);
        inside = q.range(3, 2);
        top.prune_optional_wires();
        EXPECT_EQ(shown(across.get_driver()), language == GNL_VERILOG ? "q[5:2]" : "w1w[5:2]");
        EXPECT_EQ(shown(inside.get_driver()), "q[3:2]");
    }
}

TEST_F(PruneArrays, BitsOfTwoSlicesAreNotMergedInQhdl)
{
    for (int const language : {GNL_VERILOG, GNL_QHDL}) {
        pruned_design top(language);
        auto & q = sliced_output(top);
        auto & y = top.output("y", 4);
        y.range(3, 2) = q.range(5, 4);
        y.range(1, 0) = q.range(3, 2);
        top.prune_optional_wires();
        EXPECT_EQ(shown_elements(*y.get_driver()), language == GNL_VERILOG ? "q[5:2]@3:0" : "q[5:4]@3:2 q[3:2]@1:0");
    }
}

TEST_F(PruneArrays, ARangeOfARangeThatCutsSlicesGoesThroughAWireInQhdl)
{
    for (int const language : {GNL_VERILOG, GNL_QHDL}) {
        pruned_design top(language);
        auto & q = sliced_output(top);
        auto & y = top.output("y", 3);
        y = q.range(11, 4).range(4, 2);
        top.prune_optional_wires();
        EXPECT_EQ(shown(y.get_driver()), language == GNL_VERILOG ? "q[11:4][4:2]" : "w2w[4:2]");
    }
}

} // namespace
