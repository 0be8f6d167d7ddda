// The assignments of a design's own signals.

#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

class VhdlConnections : public vhdl_sections
{
protected:
    top_design top;
};
using VhdlOneBit = VhdlConnections;
using VhdlStretching = VhdlConnections;
using VhdlDefaults = VhdlConnections;
using VhdlUnitHooks = vhdl_sections;

class hooked_top : public top_design
{
public:
    void dump_vhdl_custom_output(std::ostream & out, GNL_GENERATOR * level) override
    {
        out << "\t-- " << level->get_name() << "\n";
    }
};

std::string connections_of(GNL_GENERATOR & design, signal_names known = {})
{
    std::ostringstream out;
    design.dump_vhdl_connections(out, known);
    return out.str();
}

} // namespace

TEST_F(VhdlConnections, OfNothingAreTheFrame)
{
    EXPECT_EQ(connections_of(top), " BEGIN\n"
                                   "\n"
                                   "\n"
                                   " END RTL; ");
}

TEST_F(VhdlConnections, SharedConstantsStandAmongOtherNamesOfTheMap)
{
    EXPECT_EQ(
        connections_of(
            top, {{"wire_vcc_vector", ""}, {"other", ""}, {"wire_gnd", ""}, {"wire_gnd_vector", ""}, {"wire_vcc", ""}}),
        " BEGIN\n"
        "\n"
        "\twire_gnd <= '0';\n"
        "\twire_gnd_vector <= \"0\";\n"
        "\twire_vcc <= '1';\n"
        "\twire_vcc_vector <= \"1\";\n"
        "\n"
        " END RTL; ");
}

TEST_F(VhdlConnections, KindsAreWrittenExpressionsFirstAndRangesLast)
{
    auto & a = used_input(top, "a", 4);
    auto & s = used_input(top, "s");
    auto & y = top.output("y", 4);
    auto & z = top.output("z", 8);
    top.connect([&] {
        y = a & s;
        z = a.range(3, 2);
    });
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR i IN 0 TO 3 GENERATE \n"
                                  "\t\twire_w_lg_a1w(i) <= a(i) AND s;\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\ty <= wire_w_lg_a1w;\n"
                                  "\tloop1 : FOR i IN 0 TO 7 GENERATE\n"
                                  "\t\tz(i) <= wire_w_a_range2w(i/4) ;\n"
                                  "\tEND GENERATE loop1;\n"
                                  "\twire_w_a_range2w <= a(3 DOWNTO 2);\n");
}

TEST_F(VhdlConnections, AWireThatDrivesNothingIsAssignedOnlyIfItIsKept)
{
    auto & a = used_input(top, "a");
    auto & idle = top.wire("idle");
    top.connect([&] { idle = a; });
    EXPECT_EQ(statements_of(top), "");
    top_design keeping("LBX_REMOVE_OPTIONAL_WIRES=OFF");
    auto & b = used_input(keeping, "b");
    auto & kept = keeping.wire("kept");
    keeping.connect([&] { kept = b; });
    EXPECT_EQ(statements_of(keeping), "\tkept <= b;\n");
}

TEST_F(VhdlConnections, ReservedWordsHaveTheirPrefix)
{
    auto & in = used_input(top, "in", 2);
    auto & out = top.output("out", 4);
    auto & abs = top.output("abs", 2);
    top.connect([&] {
        out = in;
        abs = in;
    });
    EXPECT_EQ(statements_of(top), "\ta_abs <= a_in;\n"
                                  "\tloop0 : FOR i IN 0 TO 3 GENERATE\n"
                                  "\t\ta_out(i) <= a_in(i/2) ;\n"
                                  "\tEND GENERATE loop0;\n");
}

TEST_F(VhdlConnections, ConstantsByWidth)
{
    auto & bit = top.output("bit_out");
    auto & one = top.output("one", 1);
    auto & high = top.output("high", 3);
    auto & low = top.output("low", 40);
    auto & mixed = top.output("mixed", 3);
    auto & pad = top.bidir("pad", 2);
    top.connect([&] {
        bit = 0;
        one = 1;
        high = 7;
        low = 0;
        mixed = 4;
        pad = 1;
    });
    EXPECT_EQ(statements_of(top), "\tbit_out <= '0';\n"
                                  "\thigh <= (OTHERS => '1');\n"
                                  "\tlow <= (OTHERS => '0');\n"
                                  "\tmixed <= \"100\";\n"
                                  "\tone <= (OTHERS => '1');\n"
                                  "\tpad <= \"01\";\n");
    EXPECT_EQ(top.vhdl_constant_text(mixed), "\"100\"");
    EXPECT_EQ(top.vhdl_constant_text(bit), "'0'");
    EXPECT_EQ(top.vhdl_constant_text(top.output("free", 4)), "");
}

TEST_F(VhdlConnections, APieceThatLacksBitsTakesTheDefaultOfAWire)
{
    auto & a = used_input(top, "a", 2);
    auto & net = top.wire("net", 4);
    net.set_default_port_value(1);
    auto & y = top.output("y", 4);
    top.connect([&] {
        net.range(1, 0) = a;
        y = net;
    });
    EXPECT_EQ(statements_of(top), "\tnet <= ( \"11\" & a);\n"
                                  "\ty <= net;\n");
}

TEST_F(VhdlConnections, ADriverThatIsTooWideIsWrittenWithItsRange)
{
    auto & a = used_input(top, "a", 8);
    auto & y = top.output("y", 2);
    top.connect([&] { y = a; });
    EXPECT_EQ(statements_of(top),
              "\ty <= a(7 DOWNTO 0);\n"
              "\tASSERT  FALSE \n"
              "\tREPORT \"GNL_INTERNAL_ERROR: Port object top|y of width  2 is being assigned the "
              "port top|a of width 8 which is illegal, as port widths dont match nor are multiples. "
              "CAUSE : The port widths are mismatched in the mentioned assignment. The port widths "
              "of the connected ports should match or the LHS port width should be a multiple of "
              "the RHS port width. ACTION : Check the port widths of the connected ports. Logical "
              "operation results in a port width equal to the larger of the two ports and "
              "concatenation results in a port width equal to the sum of the individual port "
              "widths. Double check for such cases.\"\n"
              "\tSEVERITY ERROR;\n");
}

TEST_F(VhdlConnections, ADriverOfADeeperLevelIsReportedAndLeftOut)
{
    auto & middle = top.subdesign("middle", "m");
    auto & deep = middle.child("deep", "d").output("o");
    auto & y = top.output("y");
    auto & z = top.output("z");
    top.connect([&] {
        y = deep;
        z = 1;
    });
    auto const text = statements_of(top);
    EXPECT_TRUE(text.starts_with("\tz <= '1';\n\tm :  middle\n\t  ;\n\tASSERT  FALSE \n")) << text;
    EXPECT_EQ(top.messages(),
              texts{error("Port object top|y is being driven by invalid port top|middle inst m|deep inst d|o",
                          "The port is driven at this level by a port whose parent is not in this design or one of its "
                          "sub-designs. A port can be driven by only its parent's child ports or one of the "
                          "sub-designs' child ports.",
                          "Make sure the parent of the driver port has its parent set correctly.")});
}

TEST_F(VhdlConnections, ABidirThatMeetsAnotherOneIsNotAssigned)
{
    auto & pad = top.bidir("pad");
    auto & own = top.bidir("own");
    auto & s = used_input(top, "s");
    auto & leaf = top.cell("u").bidir("io");
    top.connect([&] {
        pad = leaf;
        own = s;
    });
    EXPECT_EQ(statements_of(top), "\town <= s;\n"
                                  "\tu :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tio => pad\n"
                                  "\t  );\n");
}

// ---- One bit: a bit or a vector of one element

TEST_F(VhdlOneBit, WholePorts)
{
    auto & s = used_input(top, "s");
    auto & v = used_input(top, "v", 1);
    for (char const * name : {"bit_s", "bit_v"})
        top.output(name);
    for (char const * name : {"vec_s", "vec_v"})
        top.output(name, 1);
    top.connect([&] {
        top.port("bit_s") = s;
        top.port("bit_v") = v;
        top.port("vec_s") = s;
        top.port("vec_v") = v;
    });
    EXPECT_EQ(statements_of(top), "\tbit_s <= s;\n"
                                  "\tbit_v <= v(0);\n"
                                  "\tvec_s(0) <= s;\n"
                                  "\tvec_v <= v;\n");
}

TEST_F(VhdlOneBit, RangesAreBits)
{
    auto & a = used_input(top, "a", 4);
    auto & s = used_input(top, "s");
    auto & v = used_input(top, "v", 1);
    top.output("bit_a");
    for (char const * name : {"vec_a", "vec_s", "vec_v"})
        top.output(name, 1);
    top.connect([&] {
        top.port("bit_a") = a[2];
        top.port("vec_a") = a.range(3, 1)[1];
        top.port("vec_s") = s[0];
        top.port("vec_v") = v[0];
    });
    EXPECT_EQ(statements_of(top), "\tbit_a <= a(2);\n"
                                  "\tvec_a(0) <= a(2);\n"
                                  "\tvec_s(0) <= s;\n"
                                  "\tvec_v(0) <= v(0);\n");
}

TEST_F(VhdlOneBit, Expressions)
{
    auto & a = used_input(top, "a", 4);
    auto & s = used_input(top, "s");
    auto & v = used_input(top, "v", 1);
    auto & w = used_input(top, "w", 1);
    for (char const * name : {"b0", "b1", "b2", "b3"})
        top.output(name);
    for (char const * name : {"v0", "v1", "v2", "v3"})
        top.output(name, 1);
    top.connect([&] {
        top.port("b0") = v & w;
        top.port("b1") = s | v;
        top.port("b2") = a[1] ^ a[2];
        top.port("b3") = a[0] & v;
        top.port("v0") = v | w;
        top.port("v1") = !s;
        top.port("v2") = !a[3];
        top.port("v3") = w & a[0];
    });
    EXPECT_EQ(statements_of(top), "\tb0 <= (v(0) AND w(0));\n"
                                  "\tb1 <= (s OR v(0));\n"
                                  "\tb2 <= (a(1) XOR a(2));\n"
                                  "\tb3 <= (a(0) AND v(0));\n"
                                  "\tv0(0) <= (v(0) OR w(0));\n"
                                  "\tv1(0) <= (NOT s);\n"
                                  "\tv2(0) <= (NOT a(3));\n"
                                  "\tv3(0) <= (w(0) AND a(0));\n");
}

TEST_F(VhdlOneBit, AnExpressionThatIsASignalIsAVector)
{
    auto & a = used_input(top, "a", 4);
    auto & s = used_input(top, "s");
    auto & v = used_input(top, "v", 1);
    top.output("bit_y");
    top.output("vec_y", 1);
    auto & wide = top.output("wide", 4);
    top.connect([&] {
        auto & flag = !v;
        auto & bit = !s;
        auto & of_flag = flag & a;
        auto & of_bit = bit & a;
        wide = of_flag | of_bit;
        top.port("bit_y") = flag;
        top.port("vec_y") = flag;
    });
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR i IN 0 TO 3 GENERATE \n"
                                  "\t\twire_w_lg_w_lg_s2w4w(i) <= wire_w_lg_s2w(0) AND a(i);\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\tloop1 : FOR i IN 0 TO 3 GENERATE \n"
                                  "\t\twire_w_lg_w_lg_v1w3w(i) <= wire_w_lg_v1w(0) AND a(i);\n"
                                  "\tEND GENERATE loop1;\n"
                                  "\twire_w_lg_s2w(0) <= NOT s;\n"
                                  "\twire_w_lg_v1w(0) <= NOT v(0);\n"
                                  "\tbit_y <= wire_w_lg_v1w(0);\n"
                                  "\tvec_y <= wire_w_lg_v1w;\n"
                                  "\twide <= (wire_w_lg_w_lg_v1w3w OR wire_w_lg_w_lg_s2w4w);\n");
}

TEST_F(VhdlOneBit, SinglePieces)
{
    auto & a = used_input(top, "a", 4);
    auto & s = used_input(top, "s");
    auto & v = used_input(top, "v", 1);
    for (char const * name : {"b0", "b1", "b2", "b3"})
        top.output(name);
    for (char const * name : {"v0", "v1", "v2", "v3"})
        top.output(name, 1);
    top.connect([&] {
        top.port("b0")[0] = s;
        top.port("b1")[0] = v;
        top.port("b2")[0] = a[3];
        top.port("b3")[0] = 1;
        top.port("v0")[0] = s;
        top.port("v1")[0] = v;
        top.port("v2")[0] = a[3];
        top.port("v3")[0] = 1;
    });
    EXPECT_EQ(statements_of(top), "\tb0 <= ( s);\n"
                                  "\tb1 <= ( v(0));\n"
                                  "\tb2 <= ( a(3));\n"
                                  "\tb3 <= ( '1');\n"
                                  "\tv0(0) <= ( s);\n"
                                  "\tv1 <= ( v);\n"
                                  "\tv2(0) <= ( a(3));\n"
                                  "\tv3 <= ( \"1\");\n");
}

TEST_F(VhdlOneBit, OutputsOfSubdesigns)
{
    auto & leaf = top.subdesign("leaf", "u");
    auto & bit = leaf.output("bit_q");
    auto & vec = leaf.output("vec_q", 1);
    auto & cut = leaf.output("cut");
    top.output("b0");
    top.output("b1");
    top.output("b2");
    top.output("v0", 1);
    top.output("v1", 1);
    top.connect([&] {
        top.port("b0") = bit;
        top.port("b1") = vec;
        top.port("b2") = cut[0];
        top.port("v0") = bit;
        top.port("v1") = vec;
    });
    EXPECT_EQ(statements_of(top), "\tb0 <= wire_u_bit_q;\n"
                                  "\tb1 <= wire_u_vec_q(0);\n"
                                  "\tb2 <= wire_u_cut(0);\n"
                                  "\tv0(0) <= wire_u_bit_q;\n"
                                  "\tv1 <= wire_u_vec_q;\n"
                                  "\tu :  leaf\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tbit_q => wire_u_bit_q,\n"
                                  "\t\tcut => wire_u_cut(0),\n"
                                  "\t\tvec_q => wire_u_vec_q\n"
                                  "\t  );\n");
}

TEST_F(VhdlOneBit, ZeroIndexForAuthors)
{
    auto & s = used_input(top, "s");
    auto & v = used_input(top, "v", 1);
    auto & bit = top.output("b");
    auto & one = top.output("o", 1);
    auto & wide = top.output("w", 4);
    auto const index = [&](GNL_PORT * port, GNL_PORT * driver) {
        std::ostringstream out;
        top.dump_vhdl_zero_index(out, port, driver, &top);
        return out.str();
    };
    EXPECT_EQ(index(&one, &s), "(0)");
    EXPECT_EQ(index(&one, &v), "");
    EXPECT_EQ(index(&bit, &s), "");
    EXPECT_EQ(index(&bit, &v), "");
    EXPECT_EQ(index(&wide, &s), "");
    EXPECT_EQ(index(&one, nullptr), "");
    EXPECT_EQ(index(nullptr, &s), "");
}

// ---- A driver that is narrower than its target

TEST_F(VhdlStretching, ExpressionsAndConcatenationsByTheirSignals)
{
    auto & a = used_input(top, "a", 2);
    auto & b = used_input(top, "b", 2);
    auto & s = used_input(top, "s");
    auto & p = top.output("p", 8);
    auto & q = top.output("q", 8);
    auto & r = top.output("r", 8);
    top.connect([&] {
        p = a & b;
        q = (a, b);
        r = !s;
    });
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR i IN 0 TO 1 GENERATE \n"
                                  "\t\twire_w_lg_a1w(i) <= a(i) AND b(i);\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\twire_w_lg_s3w(0) <= NOT s;\n"
                                  "\tloop1 : FOR i IN 0 TO 7 GENERATE\n"
                                  "\t\tp(i) <= wire_w_lg_a1w(i/4) ;\n"
                                  "\tEND GENERATE loop1;\n"
                                  "\tloop2 : FOR i IN 0 TO 7 GENERATE\n"
                                  "\t\tq(i) <= wire_w_a_b2w(i/2) ;\n"
                                  "\tEND GENERATE loop2;\n"
                                  "\tloop3 : FOR i IN 0 TO 7 GENERATE\n"
                                  "\t\tr(i) <= wire_w_lg_s3w(0);\n"
                                  "\tEND GENERATE loop3;\n"
                                  "\twire_w_a_b2w <= ( a & b);\n");
}

TEST_F(VhdlStretching, ASingleBitOfABusIsABitSignal)
{
    auto & a = used_input(top, "a", 4);
    auto & p = top.output("p", 2);
    top.connect([&] { p = a[3]; });
    EXPECT_EQ(declarations_of(top), "\t SIGNAL  wire_w_a_range1w\t:\tSTD_LOGIC;\n");
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR i IN 0 TO 1 GENERATE\n"
                                  "\t\tp(i) <= wire_w_a_range1w;\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\twire_w_a_range1w <= a(3);\n");
}

TEST_F(VhdlStretching, ASliceBeginsInTheMiddleOfTheSignalOfItsArray)
{
    auto & arr = top.cell("arr", 3);
    auto const declare = [](design & of) {
        of.output("q", 2);
        of.output("z");
    };
    declare(arr);
    arr.declare_slice = declare;
    auto & y = top.output("y", 6);
    auto & p = top.output("p", 4);
    auto & r = top.output("r", 3);
    auto & t = top.output("t", 2);
    top.connect([&] {
        y = arr.port("q");
        r = arr.port("z");
        p = arr[2].port("q");
        t = arr[1].port("z");
    });
    auto const text = statements_of(top);
    EXPECT_EQ(text.substr(0, text.find("\tloop2")), "\tloop0 : FOR i IN 0 TO 3 GENERATE\n"
                                                    "\t\tp(i) <= wire_arr_q(i/2+4) ;\n"
                                                    "\tEND GENERATE loop0;\n"
                                                    "\tr <= wire_arr_z;\n"
                                                    "\tloop1 : FOR i IN 0 TO 1 GENERATE\n"
                                                    "\t\tt(i) <= wire_arr_z(1);\n"
                                                    "\tEND GENERATE loop1;\n"
                                                    "\ty <= wire_arr_q;\n");
}

// ---- Defaults

TEST_F(VhdlDefaults, OfLocalInputsWiresAndUsedOutputs)
{
    auto & high = top.input("high", 2, 1);
    auto & open = top.input("open_in", 3, 2);
    auto & low = top.input("low", 0, 0);
    auto & used = top.output("used");
    auto & net = top.wire("net", 1);
    top.output("idle").set_default_port_value(1);
    auto & y = top.output("y", 7);
    used.set_default_port_value(0);
    used.set_used();
    net.set_default_port_value(0);
    top.connect([&] { y = (high, open, low, net); });
    EXPECT_EQ(statements_of(top), "\thigh <= (OTHERS => '1');\n"
                                  "\tlow <= '0';\n"
                                  "\tnet <= (OTHERS => '0');\n"
                                  "\topen_in <= (OTHERS => 'Z');\n"
                                  "\tused <= '0';\n"
                                  "\ty <= ( high & open_in & low & net);\n");
}

TEST_F(VhdlDefaults, ABidirHasNone)
{
    top.bidir("pad").set_used();
    EXPECT_EQ(statements_of(top), "");
}

// ---- Hooks

TEST_F(VhdlUnitHooks, RunBehindTheMessages)
{
    hooked_top top;
    auto & y = top.output("y");
    top.set_use_custom_vhdl_output();
    top.connect([&] { y = 1; });
    top.generator_info("here", "there", "done");
    EXPECT_EQ(statements_of(top), "\ty <= '1';\n"
                                  "\tASSERT  FALSE \n"
                                  "\tREPORT \"GNL_INTERNAL_INFO: (here) there done\"\n"
                                  "\tSEVERITY NOTE;\n"
                                  "\t-- top\n");
}

TEST_F(VhdlUnitHooks, StandAloneInInsertMode)
{
    hooked_top top;
    auto & y = top.output("y");
    top.connect([&] { y = 1; });
    top.set_custom_subdesign_insert_mode();
    EXPECT_EQ(statements_of(top), "");
    top.set_use_custom_vhdl_output();
    EXPECT_EQ(statements_of(top), "\t-- top\n");
}
