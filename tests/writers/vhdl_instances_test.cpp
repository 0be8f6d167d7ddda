// The instance of a subdesign that is no array, and what feeds it.

#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

class VhdlInstances : public vhdl_sections
{
protected:
    top_design top;
};
using VhdlInstanceInputs = VhdlInstances;
using VhdlInstanceBidirs = VhdlInstances;
using VhdlRows = VhdlInstances;
using VhdlHooks = VhdlInstances;

/// Writes itself.
class hooked : public design
{
public:
    using design::design;
    void dump_vhdl_custom_output(std::ostream & out, GNL_GENERATOR * level) override
    {
        out << "\t-- " << get_instance_name() << " in " << level->get_name() << "\n";
    }
};

hooked & self_writing(top_design & top, std::string const & instance)
{
    auto & made = *new hooked(&top, "blk");
    made.set_instance_name(instance);
    made.set_entity_name("blk");
    made.set_use_custom_vhdl_output();
    return made;
}

} // namespace

TEST_F(VhdlInstances, ConnectUsedPortsByName)
{
    auto & x = used_input(top, "x", 4);
    auto & y = top.output("y", 4);
    auto & leaf = top.subdesign("leaf", "u");
    auto & in = leaf.input("in", 4);
    auto & q = leaf.output("q", 4);
    leaf.input("idle_in", 0, 1);
    leaf.output("idle_out");
    top.connect([&] {
        in = x;
        y = q;
    });
    EXPECT_EQ(statements_of(top), "\ty <= wire_u_q;\n"
                                  "\tu :  leaf\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta_in => x,\n"
                                  "\t\tq => wire_u_q\n"
                                  "\t  );\n");
}

TEST_F(VhdlInstances, StandInTheOrderOfTheirKeys)
{
    top.subdesign("b", "u1");
    top.subdesign("a", "u2");
    EXPECT_EQ(statements_of(top), "\tu2 :  a\n"
                                  "\t  ;\n"
                                  "\tu1 :  b\n"
                                  "\t  ;\n");
}

TEST_F(VhdlInstances, WithoutPortsStillEnd)
{
    auto & cell = top.cell("u");
    cell.integer("WIDTH") = 4;
    top.subdesign("leaf", "v");
    EXPECT_EQ(statements_of(top), "\tu :  blk\n"
                                  "\t  GENERIC MAP (\n"
                                  "\t\tWIDTH => 4\n"
                                  "\t  )\n"
                                  "\t  ;\n"
                                  "\tv :  leaf\n"
                                  "\t  ;\n");
}

TEST_F(VhdlInstances, OnlyLibraryCellsHaveGenerics)
{
    auto const with_width = [](design & of) -> design & {
        of.integer("WIDTH") = 4;
        return of;
    };
    with_width(top.subdesign("leaf", "u1"));
    with_width(top.subdesign("own", "u2")).set_vhdl_primitive();
    auto & wrapped = with_width(top.cell("u3"));
    EXPECT_EQ(statements_of(top), "\tu3 :  blk\n"
                                  "\t  GENERIC MAP (\n"
                                  "\t\tWIDTH => 4\n"
                                  "\t  )\n"
                                  "\t  ;\n"
                                  "\tu1 :  leaf\n"
                                  "\t  ;\n"
                                  "\tu2 :  own\n"
                                  "\t  GENERIC MAP (\n"
                                  "\t\tWIDTH => 4\n"
                                  "\t  )\n"
                                  "\t  ;\n");
    top_design other("LBX_VHDL_WRAPPERS=ON");
    other.initialize_param_list();
    with_width(other.cell("u"));
    EXPECT_EQ(statements_of(other), "\tu :  blk\n"
                                    "\t  ;\n");
    EXPECT_TRUE(wrapped.is_primitive());
}

// ---- Inputs

TEST_F(VhdlInstanceInputs, OneBitFitsItsFormal)
{
    auto & a = used_input(top, "a", 4);
    auto & s = used_input(top, "s");
    auto & v = used_input(top, "v", 1);
    auto & leaf = top.subdesign("leaf", "u");
    for (char const * name : {"b0", "b1", "b2", "b3"})
        leaf.input(name);
    for (char const * name : {"v0", "v1", "v2", "v3"})
        leaf.input(name, 1);
    auto & other = top.subdesign("other", "w");
    auto & cut = other.output("cut");
    top.connect([&] {
        top.output("y") = cut[0];
        leaf.port("b0") = s;
        leaf.port("b1") = v;
        leaf.port("b2") = a[2];
        leaf.port("b3") = cut;
        leaf.port("v0") = s;
        leaf.port("v1") = v;
        leaf.port("v2") = a[2];
        leaf.port("v3") = cut;
    });
    EXPECT_EQ(statements_of(top), "\ty <= wire_w_cut(0);\n"
                                  "\tu :  leaf\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tb0 => s,\n"
                                  "\t\tb1 => v(0),\n"
                                  "\t\tb2 => a(2),\n"
                                  "\t\tb3 => wire_w_cut(0),\n"
                                  "\t\tv0(0) => s,\n"
                                  "\t\tv1 => v,\n"
                                  "\t\tv2 => a(2 DOWNTO 2),\n"
                                  "\t\tv3(0) => wire_w_cut(0)\n"
                                  "\t  );\n"
                                  "\tw :  other\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tcut => wire_w_cut(0)\n"
                                  "\t  );\n");
}

TEST_F(VhdlInstanceInputs, ExpressionsAndConcatenationsOfOneBit)
{
    auto & a = used_input(top, "a", 4);
    auto & s = used_input(top, "s");
    auto & v = used_input(top, "v", 1);
    auto & leaf = top.subdesign("leaf", "u");
    for (char const * name : {"b0", "b1"})
        leaf.input(name);
    for (char const * name : {"v0", "v1", "v2"})
        leaf.input(name, 1);
    top.connect([&] {
        leaf.port("b0") = s & v;
        leaf.port("b1") = !a[1];
        leaf.port("v0") = a[0] & s;
        leaf.port("v1") = v | s;
        leaf.port("v2")[0] = s;
    });
    EXPECT_EQ(statements_of(top), "\twire_u_b0 <= (s AND v(0));\n"
                                  "\twire_u_b1 <= (NOT a(1));\n"
                                  "\twire_u_v0(0) <= (a(0) AND s);\n"
                                  "\twire_u_v1(0) <= (v(0) OR s);\n"
                                  "\twire_u_v2(0) <= ( s);\n"
                                  "\tu :  leaf\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tb0 => wire_u_b0,\n"
                                  "\t\tb1 => wire_u_b1,\n"
                                  "\t\tv0 => wire_u_v0,\n"
                                  "\t\tv1 => wire_u_v1,\n"
                                  "\t\tv2 => wire_u_v2\n"
                                  "\t  );\n");
}

TEST_F(VhdlInstanceInputs, ConcatenationsAreDirectWhereTheOptionAsksForIt)
{
    top_design direct("LBX_NO_VHDL_SUBDES_CONCAT_WIRES=ON");
    auto & x = used_input(direct, "x", 2);
    auto & leaf = direct.subdesign("leaf", "u");
    auto & a = leaf.input("a", 4);
    auto & b = leaf.input("b", 2);
    direct.connect([&] {
        a = (x, x);
        b = ~x;
    });
    EXPECT_EQ(statements_of(direct), "\tu :  leaf\n"
                                     "\t  PORT MAP ( \n"
                                     "\t\ta => ( x & x),\n"
                                     "\t\tb => (NOT x)\n"
                                     "\t  );\n");
}

TEST_F(VhdlInstanceInputs, NarrowDriversAreStretchedOnASignal)
{
    auto & x = used_input(top, "x", 2);
    auto & leaf = top.subdesign("leaf", "u");
    auto & a = leaf.input("a", 6);
    auto & b = leaf.input("b", 4);
    top.connect([&] {
        a = x;
        b = ~x;
    });
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR i IN 0 TO 1 GENERATE \n"
                                  "\t\twire_w_lg_x1w(i) <= NOT x(i);\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\tloop1 : FOR i IN 0 TO 5 GENERATE\n"
                                  "\t\twire_u_a(i) <= x(i/3) ;\n"
                                  "\tEND GENERATE loop1;\n"
                                  "\tloop2 : FOR i IN 0 TO 3 GENERATE\n"
                                  "\t\twire_u_b(i) <= wire_w_lg_x1w(i/2) ;\n"
                                  "\tEND GENERATE loop2;\n"
                                  "\tu :  leaf\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_u_a,\n"
                                  "\t\tb => wire_u_b\n"
                                  "\t  );\n");
}

TEST_F(VhdlInstanceInputs, AWireThatWasTakenOutMayHaveRepeatedItsDriver)
{
    auto & s = used_input(top, "s");
    auto & a = top.cell("u").input("a", 2);
    top.connect([&] {
        auto & between = top.wire("", 2);
        between = s;
        a = between;
    });
    top.prune_optional_wires();
    auto const declared = declarations_of(top);
    EXPECT_EQ(declared.substr(0, declared.find("\t COMPONENT")),
              "\t SIGNAL  wire_u_a\t:\tSTD_LOGIC_VECTOR (1 DOWNTO 0);\n");
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR i IN 0 TO 1 GENERATE\n"
                                  "\t\twire_u_a(i) <= s;\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\tu :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_u_a\n"
                                  "\t  );\n");
}

TEST_F(VhdlInstanceInputs, ConstantsAreSharedIfTheyAreShort)
{
    auto & leaf = top.subdesign("leaf", "u");
    for (char const * name : {"b0", "b1"})
        leaf.input(name);
    for (char const * name : {"v0", "v1"})
        leaf.input(name, 1);
    for (char const * name : {"w0", "w1", "w5"})
        leaf.input(name, 4);
    top.connect([&] {
        leaf.port("b0") = 0;
        leaf.port("b1") = 1;
        leaf.port("v0") = 0;
        leaf.port("v1") = 1;
        leaf.port("w0") = 0;
        leaf.port("w1") = 15;
        leaf.port("w5") = 5;
    });
    EXPECT_EQ(statements_of(top), "\twire_gnd <= '0';\n"
                                  "\twire_gnd_vector <= \"0\";\n"
                                  "\twire_vcc <= '1';\n"
                                  "\twire_vcc_vector <= \"1\";\n"
                                  "\twire_u_w0 <= (OTHERS => '0');\n"
                                  "\twire_u_w1 <= (OTHERS => '1');\n"
                                  "\twire_u_w5 <= \"0101\";\n"
                                  "\tu :  leaf\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tb0 => wire_gnd,\n"
                                  "\t\tb1 => wire_vcc,\n"
                                  "\t\tv0 => wire_gnd_vector,\n"
                                  "\t\tv1 => wire_vcc_vector,\n"
                                  "\t\tw0 => (OTHERS => '0'),\n"
                                  "\t\tw1 => (OTHERS => '1'),\n"
                                  "\t\tw5 => \"0101\"\n"
                                  "\t  );\n");
}

TEST_F(VhdlInstanceInputs, ADriverOfADeeperLevelIsReportedOnce)
{
    auto & middle = top.subdesign("middle", "m");
    auto & deep = middle.child("deep", "d").output("o");
    auto & leaf = top.subdesign("leaf", "u", 3);
    auto & a = leaf.input("a");
    auto & b = leaf.input("b");
    auto & c = top.subdesign("other", "v").input("c", 4);
    auto & s = used_input(top, "s");
    top.connect([&] {
        a = deep;
        b = s;
        c = deep;
    });
    leaf.set_vhdl_unroll_loop();
    auto const text = statements_of(top);
    EXPECT_EQ(text.substr(0, text.find("\tASSERT")), "\tu_0 :  leaf\n"
                                                     "\t  PORT MAP ( \n"
                                                     "\t\tb => s\n"
                                                     "\t  );\n"
                                                     "\tu_1 :  leaf\n"
                                                     "\t  PORT MAP ( \n"
                                                     "\t\tb => s\n"
                                                     "\t  );\n"
                                                     "\tu_2 :  leaf\n"
                                                     "\t  PORT MAP ( \n"
                                                     "\t\tb => s\n"
                                                     "\t  );\n"
                                                     "\tm :  middle\n"
                                                     "\t  ;\n"
                                                     "\tv :  other\n"
                                                     "\t  PORT MAP ( \n"
                                                     "\t\tc => wire_v_c\n"
                                                     "\t  );\n");
    EXPECT_EQ(top.messages().size(), 2u);
}

TEST_F(VhdlInstances, ExpressionsOnOutputsAreAssignedBesideTheInstance)
{
    auto & s = used_input(top, "s");
    auto & y = top.output("y", 4);
    auto & z = top.output("z", 2);
    auto & leaf = top.subdesign("leaf", "u");
    auto & q = leaf.output("q", 4);
    top.connect([&] {
        y = q & s;
        z = q[3];
    });
    EXPECT_EQ(statements_of(top), "\ty <= wire_u_w_lg_q1w;\n"
                                  "\tloop0 : FOR i IN 0 TO 1 GENERATE\n"
                                  "\t\tz(i) <= wire_u_w_q_range2w;\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\tloop1 : FOR i IN 0 TO 3 GENERATE \n"
                                  "\t\twire_u_w_lg_q1w(i) <= wire_u_q(i) AND s;\n"
                                  "\tEND GENERATE loop1;\n"
                                  "\twire_u_w_q_range2w <= wire_u_q(3);\n"
                                  "\tu :  leaf\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tq => wire_u_q\n"
                                  "\t  );\n");
}

TEST_F(VhdlInstances, ExpressionsThatNobodyReadsAreNeitherDeclaredNorAssigned)
{
    auto & s = used_input(top, "s");
    auto & leaf = top.subdesign("leaf", "u");
    auto & q = leaf.output("q", 4);
    top.connect([&] { static_cast<void>(q & s); });
    EXPECT_EQ(statements_of(top), "\tu :  leaf\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tq => wire_u_q\n"
                                  "\t  );\n");
}

// ---- Bidirectional ports

TEST_F(VhdlInstanceBidirs, ActAsOutputsThroughASignal)
{
    auto & d = used_input(top, "d");
    auto & v = used_input(top, "v", 1);
    auto & x = used_input(top, "x", 2);
    auto & y = top.output("y", 2);
    auto & z = top.output("z");
    auto & leaf = top.cell("u");
    auto & read = leaf.bidir("p_read", 2);
    auto & only_driven = leaf.bidir("p_driven", 4);
    auto & held = leaf.bidir("p_held");
    auto & one = leaf.bidir("p_one", 1);
    auto & bit = leaf.bidir("p_bit", 2);
    top.connect([&] {
        read = x;
        y = read;
        only_driven = x;
        held = 1;
        one = d;
        z = bit[1];
    });
    EXPECT_TRUE(v.is_used());
    EXPECT_EQ(statements_of(top), "\ty <= wire_u_p_read;\n"
                                  "\tz <= wire_u_p_bit(1);\n"
                                  "\tloop0 : FOR i IN 0 TO 3 GENERATE\n"
                                  "\t\twire_u_p_driven(i) <= x(i/2) ;\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\twire_u_p_held <= '1';\n"
                                  "\twire_u_p_one(0) <= d;\n"
                                  "\twire_u_p_read <= x;\n"
                                  "\tu :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tp_bit => wire_u_p_bit,\n"
                                  "\t\tp_driven => wire_u_p_driven,\n"
                                  "\t\tp_held => wire_u_p_held,\n"
                                  "\t\tp_one => wire_u_p_one,\n"
                                  "\t\tp_read => wire_u_p_read\n"
                                  "\t  );\n");
}

TEST_F(VhdlInstanceBidirs, JoinPortsOfTheDesign)
{
    auto & bit = top.bidir("pad_bit");
    auto & one = top.bidir("pad_one", 1);
    auto & wide = top.bidir("pad_wide", 4);
    auto & leaf = top.cell("u");
    for (char const * name : {"b0", "b1", "b2"})
        leaf.bidir(name);
    leaf.bidir("v0", 1);
    leaf.bidir("w0", 2);
    top.connect([&] {
        bit = leaf.port("v0");
        one = leaf.port("b0");
        wide[3] = leaf.port("b1");
        wide[2] = leaf.port("b2");
        wide.range(1, 0) = leaf.port("w0");
    });
    EXPECT_EQ(statements_of(top), "\tu :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tb0 => pad_one(0),\n"
                                  "\t\tb1 => pad_wide(3),\n"
                                  "\t\tb2 => pad_wide(2),\n"
                                  "\t\tv0(0) => pad_bit,\n"
                                  "\t\tw0 => pad_wide(1 DOWNTO 0)\n"
                                  "\t  );\n");
}

TEST_F(VhdlInstanceBidirs, JoinSomeBitsOfAPort)
{
    auto & pad = top.bidir("pad", 6);
    auto & s = used_input(top, "s");
    auto & x = used_input(top, "x", 3);
    auto & io = top.cell("u").bidir("io", 2);
    top.connect([&] {
        pad.range(2, 0) = ~x;
        pad[3] = s;
        pad.range(5, 4) = io;
    });
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR i IN 0 TO 2 GENERATE \n"
                                  "\t\twire_w_lg_x1w(i) <= NOT x(i);\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\tpad(3) <= s;\n"
                                  "\tpad(2 DOWNTO 0) <= wire_w_lg_x1w;\n"
                                  "\tu :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tio => pad(5 DOWNTO 4)\n"
                                  "\t  );\n");
}

TEST_F(VhdlInstanceBidirs, OfTwoSubdesignsMeetOnOneSignal)
{
    auto & left = top.cell("u1").bidir("io", 2);
    auto & right = top.cell("u2").bidir("io", 2);
    top.connect([&] { left = right; });
    auto const declared = declarations_of(top);
    EXPECT_EQ(declared.substr(0, declared.find("\t COMPONENT")),
              "\t SIGNAL  wire_u2_io\t:\tSTD_LOGIC_VECTOR (1 DOWNTO 0);\n");
    EXPECT_EQ(statements_of(top), "\tu1 :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tio => wire_u2_io\n"
                                  "\t  );\n"
                                  "\tu2 :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tio => wire_u2_io\n"
                                  "\t  );\n");
}

// ---- Two dimensions

TEST_F(VhdlRows, AreFilledFromTheFlatSignal)
{
    auto & x = used_input(top, "x", 12);
    auto & s = used_input(top, "s", 6);
    auto & cell = top.cell("u");
    for (char const * name : {"direct", "halved", "logic", "number", "part"})
        new GNL_PORT_INPUT(&cell, name, 2, 3);
    top.connect([&] {
        cell.port("direct") = s;
        cell.port("halved") = x.range(2, 0);
        cell.port("logic") = ~s;
        cell.port("number") = 5;
        cell.port("part") = x.range(11, 6);
    });
    auto const rows = [](int first_loop, std::string const & name, std::string const & source) {
        auto const outer = "loop" + std::to_string(first_loop), inner = "loop" + std::to_string(first_loop + 1);
        return "\t" + outer + " : FOR i IN 0 TO 1 GENERATE\n\t\t" + inner + " : FOR j IN 0 TO 2 GENERATE\n\t\t\twire_u_"
               + name + "_2d(i, j) <= " + source + ";\n\t\tEND GENERATE " + inner + ";\n\tEND GENERATE " + outer
               + ";\n";
    };
    EXPECT_EQ(statements_of(top), "\twire_w_x_range1w <= x(2 DOWNTO 0);\n" + rows(0, "direct", "s(i*3+j)")
                                      + "\tloop2 : FOR i IN 0 TO 5 GENERATE\n"
                                        "\t\twire_u_halved(i) <= wire_w_x_range1w(i/2) ;\n"
                                        "\tEND GENERATE loop2;\n"
                                      + rows(3, "halved", "wire_u_halved(i*3+j)") + "\twire_u_logic <= (NOT s);\n"
                                      + rows(5, "logic", "wire_u_logic(i*3+j)") + "\twire_u_number <= \"000101\";\n"
                                      + rows(7, "number", "wire_u_number(i*3+j)") + rows(9, "part", "x(i*3+j+6)")
                                      + "\tu :  blk\n"
                                        "\t  PORT MAP ( \n"
                                        "\t\tdirect => wire_u_direct_2d,\n"
                                        "\t\thalved => wire_u_halved_2d,\n"
                                        "\t\tlogic => wire_u_logic_2d,\n"
                                        "\t\tnumber => wire_u_number_2d,\n"
                                        "\t\tpart => wire_u_part_2d\n"
                                        "\t  );\n");
}

TEST_F(VhdlRows, AnOrdinarySubdesignHasThemFlat)
{
    auto & s = used_input(top, "s", 6);
    auto & leaf = top.subdesign("leaf", "u");
    auto & a = *new GNL_PORT_INPUT(&leaf, "a", 2, 3);
    top.connect([&] { a = s; });
    EXPECT_EQ(statements_of(top), "\tu :  leaf\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => s\n"
                                  "\t  );\n");
}

// ---- Subdesigns that write themselves

TEST_F(VhdlHooks, RunInPlaceOfTheInstance)
{
    auto & x = used_input(top, "x", 2);
    auto & cell = self_writing(top, "u");
    auto & a = cell.input("a", 4);
    top.connect([&] { a = x; });
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR i IN 0 TO 3 GENERATE\n"
                                  "\t\twire_u_a(i) <= x(i/2) ;\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\t-- u in top\n");
}

TEST_F(VhdlHooks, FeedThemselvesInInsertMode)
{
    auto & x = used_input(top, "x", 2);
    auto & s = used_input(top, "s");
    auto & y = top.output("y", 2);
    auto & z = top.output("z", 2);
    auto & w = top.output("w", 4);
    auto & cell = self_writing(top, "u");
    cell.set_custom_subdesign_insert_mode();
    auto & a = cell.input("a", 4);
    auto & q = cell.output("q", 2);
    top.connect([&] {
        a = x;
        y = q & s;
        z = q[1];
        w = (q, q);
    });
    EXPECT_EQ(statements_of(top), "\tw <= ( wire_u_q & wire_u_q);\n"
                                  "\ty <= wire_u_w_lg_q1w;\n"
                                  "\tloop0 : FOR i IN 0 TO 1 GENERATE\n"
                                  "\t\tz(i) <= wire_u_w_q_range2w;\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\t-- u in top\n"
                                  "\tloop1 : FOR i IN 0 TO 1 GENERATE \n"
                                  "\t\twire_u_w_lg_q1w(i) <= wire_u_q(i) AND s;\n"
                                  "\tEND GENERATE loop1;\n"
                                  "\twire_u_w_q_range2w(0) <= wire_u_q(1);\n");
}
