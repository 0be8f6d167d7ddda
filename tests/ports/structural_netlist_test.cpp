// Expressions as gates, one for each bit.

#include "open_design.h"

using namespace gnl_test;

namespace {

class StructuralNetlist : public in_folder
{
protected:
    std::string gates(GNL_PORT & port)
    {
        std::ostringstream out;
        port.dump_structural_netlist(out, &top);
        return out.str();
    }

    void SetUp() override
    {
        in_folder::SetUp();
        top.set_gen_language(GNL_VERILOG);
    }

    open_design top{GNL_VERILOG, "LBX_STRUCTURAL_NETLIST=ON"};
};

TEST_F(StructuralNetlist, EachOperationHasItsGate)
{
    auto & a = top.input("a");
    auto & b = top.input("b");
    EXPECT_EQ(gates(!a), "\tnot(w_lg_a1w, a);\n");
    EXPECT_EQ(gates(a & b), "\tand(w_lg_a2w, a, b);\n");
    EXPECT_EQ(gates(a | b), "\tor(w_lg_a3w, a, b);\n");
    EXPECT_EQ(gates(a ^ b), "\txor(w_lg_a4w, a, b);\n");
    EXPECT_EQ(gates(a), "");
}

TEST_F(StructuralNetlist, BusHasOneGateForEachBit)
{
    auto & a = top.input("a", 3);
    auto & b = top.input("b", 3);
    EXPECT_EQ(gates(a & b), "\tand(w_lg_a1w[0], a[0], b[0]);\n"
                            "\tand(w_lg_a1w[1], a[1], b[1]);\n"
                            "\tand(w_lg_a1w[2], a[2], b[2]);\n");
    EXPECT_EQ(gates(!top.input("v", 1)), "\tnot(w_lg_v2w[0], v[0]);\n");
}

TEST_F(StructuralNetlist, NarrowOperandServesEveryGate)
{
    auto & a = top.input("a", 2);
    EXPECT_EQ(gates(a | top.input("s")), "\tor(w_lg_a1w[0], a[0], s);\n"
                                         "\tor(w_lg_a1w[1], a[1], s);\n");
    EXPECT_EQ(gates(top.input("v", 1) | a), "\tor(w_lg_v2w[0], v[0], a[0]);\n"
                                            "\tor(w_lg_v2w[1], v[0], a[1]);\n");
    EXPECT_EQ(gates(a ^ a[1]), "\txor(w_lg_a4w[0], a[0], a[1]);\n"
                               "\txor(w_lg_a4w[1], a[1], a[1]);\n");
}

TEST_F(StructuralNetlist, RangesReadTheBitsThatTheySelect)
{
    auto & a = top.input("a", 8);
    auto & both = a.range(7, 4).range(2, 1) & a.range(1, 0);
    std::string const gate = "\tand(" + both.get_name();
    EXPECT_EQ(gates(both), gate + "[0], a[5], a[0]);\n" + gate + "[1], a[6], a[1]);\n");
}

TEST_F(StructuralNetlist, NestedExpressionsAreReadByTheirNets)
{
    auto & a = top.input("a", 2);
    auto & inner = !a;
    EXPECT_EQ(gates(inner & a), "\tand(w_lg_w_lg_a1w2w[0], w_lg_a1w[0], a[0]);\n"
                                "\tand(w_lg_w_lg_a1w2w[1], w_lg_a1w[1], a[1]);\n");
    auto & s = top.input("s");
    EXPECT_EQ(gates(a & !s), "\tand(w_lg_a4w[0], a[0], w_lg_s3w);\n"
                             "\tand(w_lg_a4w[1], a[1], w_lg_s3w);\n");
}

TEST_F(StructuralNetlist, AConcatenationIsReadBitByBit)
{
    auto & a = top.input("a", 3);
    auto & s = top.input("s");
    GNL_PORT & inner = (s, s);
    auto & inverted = !(a.range(2, 1), s, 2, inner, a[0]);
    std::string const gate = "\tnot(" + inverted.get_name();
    EXPECT_EQ(gates(inverted), gate + "[0], a[0]);\n" + gate + "[1], s);\n" + gate + "[2], s);\n" + gate
                                   + "[3], 1'b0);\n" + gate + "[4], 1'b1);\n" + gate + "[5], s);\n" + gate
                                   + "[6], a[1]);\n" + gate + "[7], a[2]);\n");
}

TEST_F(StructuralNetlist, OutputsOfSlicesAreBitsOfTheArraysSignal)
{
    auto & arr = top.child("leaf", "arr", "", 2);
    arr.declare_slice = [](design & slice) {
        slice.output("q", 2);
        slice.output("r", 2);
    };
    arr.declare_slice(arr);
    auto & both = arr[1].port("q") & arr[1].port("r");
    arr.port("q").set_used(); // read as a whole elsewhere
    EXPECT_EQ(gates(both), "\tand(w_lg_q1w[0], wire_arr_q[2], wire_arr_1r[0]);\n"
                           "\tand(w_lg_q1w[1], wire_arr_q[3], wire_arr_1r[1]);\n");
}

TEST_F(StructuralNetlist, OutputOfASubdesign)
{
    auto & q = top.child("leaf", "u1").output("q", 2);
    EXPECT_EQ(gates(!q), "\tnot(w_lg_q1w[0], wire_u1_q[0]);\n"
                         "\tnot(w_lg_q1w[1], wire_u1_q[1]);\n");
}

} // namespace
