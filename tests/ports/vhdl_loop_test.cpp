// Expressions that are signals of their own in VHDL: how they are assigned.

#include "open_design.h"

using namespace gnl_test;

namespace {

class VhdlLoop : public in_folder
{
protected:
    std::string loop(GNL_PORT_LOGIC & logic)
    {
        std::ostringstream out;
        logic.dump_vhdl_for_generate_loop(out, &top);
        return out.str();
    }

    void SetUp() override
    {
        in_folder::SetUp();
        top.set_gen_language(GNL_VHDL);
    }

    open_design top{GNL_VHDL};
};

TEST_F(VhdlLoop, BusIsAssignedBitByBit)
{
    auto & a = top.input("a", 4);
    auto & s = top.input("s");
    auto & v = top.input("v", 1);
    EXPECT_EQ(loop(a & s), "\tloop0 : FOR i IN 0 TO 3 GENERATE \n"
                           "\t\twire_w_lg_a1w(i) <= a(i) AND s;\n"
                           "\tEND GENERATE loop0;\n");
    EXPECT_EQ(loop(v | a), "\tloop1 : FOR i IN 0 TO 3 GENERATE \n"
                           "\t\twire_w_lg_v2w(i) <= v(0) OR a(i);\n"
                           "\tEND GENERATE loop1;\n");
    EXPECT_EQ(loop(s ^ a), "\tloop2 : FOR i IN 0 TO 3 GENERATE \n"
                           "\t\twire_w_lg_s3w(i) <= s XOR a(i);\n"
                           "\tEND GENERATE loop2;\n");
    EXPECT_EQ(loop(!a), "\tloop3 : FOR i IN 0 TO 3 GENERATE \n"
                        "\t\twire_w_lg_a4w(i) <= NOT a(i);\n"
                        "\tEND GENERATE loop3;\n");
}

TEST_F(VhdlLoop, NestedExpressionsAreReadByTheirSignals)
{
    auto & a = top.input("a", 4);
    auto & s = top.input("s");
    auto & t = top.input("t");
    auto & v = top.input("v", 1);
    auto & wide = (a & s) ^ t;
    EXPECT_EQ(loop(wide), "\tloop0 : FOR i IN 0 TO 3 GENERATE \n"
                          "\t\twire_w_lg_w_lg_a1w2w(i) <= wire_w_lg_a1w(i) XOR t;\n"
                          "\tEND GENERATE loop0;\n");
    EXPECT_EQ(loop((s & t) | a), "\tloop1 : FOR i IN 0 TO 3 GENERATE \n"
                                 "\t\twire_w_lg_w_lg_s3w4w(i) <= wire_w_lg_s3w(0) OR a(i);\n"
                                 "\tEND GENERATE loop1;\n");
    EXPECT_EQ(loop((!v) | a), "\tloop2 : FOR i IN 0 TO 3 GENERATE \n"
                              "\t\twire_w_lg_w_lg_v5w6w(i) <= wire_w_lg_v5w(0) OR a(i);\n"
                              "\tEND GENERATE loop2;\n");
}

TEST_F(VhdlLoop, OneBitNeedsNoLoop)
{
    auto & s = top.input("s");
    auto & t = top.input("t");
    auto & v = top.input("v", 1);
    auto & w = top.input("w", 1);
    EXPECT_EQ(loop(v & w), "\twire_w_lg_v1w(0) <= v(0) AND w(0);\n");
    EXPECT_EQ(loop(v | s), "\twire_w_lg_v2w(0) <= v(0) OR s;\n");
    EXPECT_EQ(loop(s ^ t), "\twire_w_lg_s3w(0) <= s XOR t;\n");
    EXPECT_EQ(loop(!s), "\twire_w_lg_s4w(0) <= NOT s;\n");
    EXPECT_EQ(loop(!v), "\twire_w_lg_v5w(0) <= NOT v(0);\n");
}

TEST_F(VhdlLoop, InverterOfASignal)
{
    auto & v = top.input("v", 1);
    auto & w = top.input("w", 1);
    auto & inner = v & w;
    EXPECT_EQ(loop(!inner), "\twire_w_lg_w_lg_v1w2w(0) <= NOT (v(0) AND w(0));\n");
    inner.set_create_vhdl_loop();
    EXPECT_EQ(loop(!inner), "\twire_w_lg_w_lg_v1w2w(0) <= NOT wire_w_lg_v1w(0);\n");
}

TEST_F(VhdlLoop, RangesAreReadFromTheirBase)
{
    auto & a = top.input("a", 8);
    auto & s = top.input("s");
    auto const statement = [&](GNL_PORT_LOGIC & logic) {
        std::string const text = loop(logic);
        auto const start = text.find("<= ");
        return text.substr(start, text.find('\n', start) - start);
    };
    EXPECT_EQ(statement(a.range(3, 0) & s), "<= a(i) AND s;");
    EXPECT_EQ(statement(a.range(7, 4) & s), "<= a(i+4) AND s;");
    EXPECT_EQ(statement(a.range(7, 2).range(4, 1) & s), "<= a(i+3) AND s;");
    EXPECT_EQ(statement(a[5] & a), "<= a(5) AND a(i);");
    EXPECT_EQ(statement(!a[6]), "<= NOT a(6);");
}

TEST_F(VhdlLoop, OutputsOfASubdesign)
{
    auto & leaf = top.child("leaf", "u1");
    auto & q = leaf.output("q", 4);
    auto & v = leaf.output("v", 1);
    EXPECT_EQ(loop(q & v), "\tloop0 : FOR i IN 0 TO 3 GENERATE \n"
                           "\t\twire_u1_w_lg_q1w(i) <= wire_u1_q(i) AND wire_u1_v(0);\n"
                           "\tEND GENERATE loop0;\n");
    EXPECT_EQ(loop(!v), "\twire_u1_w_lg_v2w(0) <= NOT wire_u1_v(0);\n");
}

TEST_F(VhdlLoop, OutputsOfASlice)
{
    auto & cells = top.array(4, [](design & cell) {
        cell.output("q", 2);
        cell.output("s");
    });
    auto & s = top.input("s");
    auto & q = cells[2].port("q");
    auto & bit = cells[2].port("s");
    cells.port("q").set_used();
    cells.port("s").set_used();
    EXPECT_EQ(loop(q & s), "\tloop0 : FOR i IN 0 TO 1 GENERATE \n"
                           "\t\twire_arr_w_lg_q1w(i) <= wire_arr_q(i+4) AND s;\n"
                           "\tEND GENERATE loop0;\n");
    EXPECT_EQ(loop(!bit), "\twire_arr_w_lg_s2w(0) <= NOT wire_arr_s(2);\n");
    cells.port("q").set_used(false);
    cells.set_vhdl_unroll_loop();
    EXPECT_EQ(loop(q | s), "\tloop1 : FOR i IN 0 TO 1 GENERATE \n"
                           "\t\twire_arr_w_lg_q3w(i) <= wire_arr_2q(i) OR s;\n"
                           "\tEND GENERATE loop1;\n");
}

TEST_F(VhdlLoop, ConcatenationIsReadByItsSignal)
{
    auto & a = top.input("a", 3);
    auto & s = top.input("s");
    auto & both = (a, s);
    auto & mixed = both & s;
    EXPECT_EQ(loop(mixed), "\tloop0 : FOR i IN 0 TO 3 GENERATE \n"
                           "\t\twire_"
                               + mixed.get_name() + "(i) <= wire_" + both.get_name()
                               + "(i) AND s;\n"
                                 "\tEND GENERATE loop0;\n");
}

} // namespace
