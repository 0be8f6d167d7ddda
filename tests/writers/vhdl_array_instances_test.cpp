// Arrays of subdesigns: a loop of instances, or one instance after the other where slices have something of their own.

#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

class VhdlArrays : public vhdl_sections
{
protected:
    /// An array of cells with the ports that `declare` makes, on the array and on each slice.
    design & array_of(int slices, std::function<void(design &)> const & declare)
    {
        auto & array = top.cell("arr", slices);
        declare(array);
        array.declare_slice = [declare](design & slice) {
            slice.set_entity_name("blk");
            slice.set_primitive();
            declare(slice);
        };
        return array;
    }
    top_design top;
};
using VhdlUnrolledArrays = VhdlArrays;
using VhdlArrayHooks = vhdl_sections;

/// Writes itself, also as a slice.
class hooked : public design
{
public:
    using design::design;
    void dump_vhdl_custom_output(std::ostream & out, GNL_GENERATOR * level) override
    {
        out << "\t-- " << get_instance_name() << " " << get_slice_index() << " in " << level->get_name() << "\n";
    }
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
    {
        auto & slice = *new hooked(parent, get_name());
        slice.set_slice_index(index);
        slice.set_array_parent(parent);
        slice.set_use_custom_vhdl_output();
        if (uses_custom_subdesign_insert_mode())
            slice.set_custom_subdesign_insert_mode();
        slice.output("q");
        slice.integer("KIND", 0);
        slice.set_instance_name(instance_name);
    }
};

hooked & hooked_cells(top_design & top, bool inserted)
{
    auto & array = *new hooked(&top, "blk", "", 2);
    array.set_instance_name("arr");
    array.set_use_custom_vhdl_output();
    if (inserted)
        array.set_custom_subdesign_insert_mode();
    array.output("q");
    array.integer("KIND", 0);
    return array;
}

} // namespace

TEST_F(VhdlArrays, AreLoopsThatCutTheirSignals)
{
    auto & x = used_input(top, "x", 8);
    auto & v = used_input(top, "v", 2);
    auto & y = top.output("y", 8);
    auto & z = top.output("z", 2);
    auto & w = top.output("w", 2);
    auto & arr = array_of(2, [](design & of) {
        of.input("a", 4);
        of.input("b");
        of.input("c", 1);
        of.output("p", 4);
        of.output("q");
        of.output("r", 1);
    });
    top.connect([&] {
        arr.port("a") = x;
        arr.port("b") = v;
        arr.port("c") = v;
        y = arr.port("p");
        z = arr.port("q");
        w = arr.port("r");
    });
    EXPECT_EQ(statements_of(top), "\tw <= wire_arr_r;\n"
                                  "\ty <= wire_arr_p;\n"
                                  "\tz <= wire_arr_q;\n"
                                  "\twire_arr_a <= x;\n"
                                  "\twire_arr_b <= v;\n"
                                  "\twire_arr_c <= v;\n"
                                  "\tloop0 : FOR i IN 0 TO 1 GENERATE \n"
                                  "\t  arr :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_arr_a(i*4+3 DOWNTO i*4),\n"
                                  "\t\tb => wire_arr_b(i),\n"
                                  "\t\tc(0) => wire_arr_c(i),\n"
                                  "\t\tp => wire_arr_p(i*4+3 DOWNTO i*4),\n"
                                  "\t\tq => wire_arr_q(i),\n"
                                  "\t\tr(0) => wire_arr_r(i)\n"
                                  "\t  );\n"
                                  "\tEND GENERATE loop0;\n");
}

TEST_F(VhdlArrays, ShareADriverOfTheWidthOfASlice)
{
    auto & x = used_input(top, "x", 8);
    auto & s = used_input(top, "s");
    auto & v = used_input(top, "v", 1);
    auto & arr = array_of(3, [](design & of) {
        of.input("a", 4);
        of.input("b");
        of.input("c");
        of.input("d", 1);
    });
    top.connect([&] {
        arr.port("a") = x.range(6, 3);
        arr.port("b") = s;
        arr.port("c") = v;
        arr.port("d") = v;
    });
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR i IN 0 TO 2 GENERATE\n"
                                  "\t\twire_arr_c(i) <= v(0);\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\tloop1 : FOR i IN 0 TO 2 GENERATE \n"
                                  "\t  arr :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => x(6 DOWNTO 3),\n"
                                  "\t\tb => s,\n"
                                  "\t\tc => wire_arr_c(i),\n"
                                  "\t\td => v\n"
                                  "\t  );\n"
                                  "\tEND GENERATE loop1;\n");
}

TEST_F(VhdlArrays, RepeatAnExpressionForEachSlice)
{
    auto & x = used_input(top, "x", 4);
    auto & s = used_input(top, "s");
    auto & arr = array_of(3, [](design & of) {
        of.input("a", 4);
        of.input("b");
        of.input("c", 6);
        of.input("d", 16);
    });
    top.connect([&] {
        arr.port("a") = ~x;
        arr.port("b") = !s;
        arr.port("c") = (x, s, s);
        arr.port("d") = (x, x);
    });
    auto const text = statements_of(top);
    EXPECT_EQ(text.substr(0, text.find("\tloop4")), "\twire_w_x_s3w <= ( x & s & s);\n"
                                                    "\twire_w_x_x4w <= ( x & x);\n"
                                                    "\tloop0 : FOR i IN 0 TO 2 GENERATE\n"
                                                    "\t\twire_arr_a(i*4+3 DOWNTO i*4) <= (NOT x);\n"
                                                    "\tEND GENERATE loop0;\n"
                                                    "\tloop1 : FOR i IN 0 TO 2 GENERATE\n"
                                                    "\t\twire_arr_b(i) <= (NOT s);\n"
                                                    "\tEND GENERATE loop1;\n"
                                                    "\tloop2 : FOR i IN 0 TO 2 GENERATE\n"
                                                    "\t\twire_arr_c(i*6+5 DOWNTO i*6) <= ( x & s & s);\n"
                                                    "\tEND GENERATE loop2;\n"
                                                    "\tloop3 : FOR i IN 0 TO 47 GENERATE\n"
                                                    "\t\twire_arr_d(i) <= wire_w_x_x4w(i/6) ;\n"
                                                    "\tEND GENERATE loop3;\n");
}

TEST_F(VhdlArrays, TakeTheSlicesOfAnotherArray)
{
    auto & from = top.cell("from", 4);
    from.output("bits", 2);
    from.output("bit_q");
    auto & short_one = top.cell("short", 2);
    short_one.output("bits", 2);
    short_one.output("bit_q");
    auto & arr = array_of(4, [](design & of) {
        of.input("a", 2);
        of.input("b");
        of.input("c", 2);
        of.input("d");
    });
    top.connect([&] {
        arr.port("a") = from.port("bits");
        arr.port("b") = from.port("bit_q");
        arr.port("c") = short_one.port("bits");
        arr.port("d") = short_one.port("bit_q");
    });
    auto text = statements_of(top);
    EXPECT_EQ(text.substr(0, text.find("\tEND")), "\tloop0 : FOR i IN 0 TO 3 GENERATE \n"
                                                  "\t  arr :  blk\n"
                                                  "\t  PORT MAP ( \n"
                                                  "\t\ta => wire_from_bits(i*2+1 DOWNTO i*2),\n"
                                                  "\t\tb => wire_from_bit_q(i),\n"
                                                  "\t\tc => wire_short_bits((i mod 2)*2+1 DOWNTO (i mod 2)*2),\n"
                                                  "\t\td => wire_short_bit_q(i mod 2)\n"
                                                  "\t  );\n");
    arr.set_vhdl_unroll_loop();
    text = statements_of(top);
    auto const third = text.find("\tarr_2");
    EXPECT_EQ(text.substr(third, text.find("\tarr_3") - third), "\tarr_2 :  blk\n"
                                                                "\t  PORT MAP ( \n"
                                                                "\t\ta => wire_from_bits(5 DOWNTO 4),\n"
                                                                "\t\tb => wire_from_bit_q(2),\n"
                                                                "\t\tc => wire_short_bits(1 DOWNTO 0),\n"
                                                                "\t\td => wire_short_bit_q(0)\n"
                                                                "\t  );\n");
}

TEST_F(VhdlArrays, CutConstants)
{
    auto & arr = array_of(2, [](design & of) {
        of.input("a", 4);
        of.input("b");
        of.input("c", 1);
    });
    top.connect([&] {
        arr.port("a") = 0x5a;
        arr.port("b") = 3;
        arr.port("c") = 1;
    });
    EXPECT_EQ(statements_of(top), "\twire_arr_a <= \"01011010\";\n"
                                  "\twire_arr_b <= (OTHERS => '1');\n"
                                  "\twire_arr_c <= \"01\";\n"
                                  "\tloop0 : FOR i IN 0 TO 1 GENERATE \n"
                                  "\t  arr :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_arr_a(i*4+3 DOWNTO i*4),\n"
                                  "\t\tb => wire_arr_b(i),\n"
                                  "\t\tc(0) => wire_arr_c(i)\n"
                                  "\t  );\n"
                                  "\tEND GENERATE loop0;\n");
}

TEST_F(VhdlArrays, OfOneSliceAreNoLoop)
{
    auto & x = used_input(top, "x", 4);
    auto & s = used_input(top, "s");
    auto & v = used_input(top, "v", 1);
    auto & y = top.output("y");
    auto & z = top.output("z", 1);
    auto & arr = array_of(1, [](design & of) {
        of.input("a", 4);
        of.input("b");
        of.input("c");
        of.input("d");
        of.input("e");
        of.input("f", 3);
        of.output("q");
    });
    top.connect([&] {
        arr.port("a") = x;
        arr.port("b") = s;
        arr.port("c") = v;
        arr.port("d") = !s;
        arr.port("e") = 1;
        arr.port("f") = 2;
        y = arr.port("q");
        z = arr.port("q");
    });
    EXPECT_EQ(statements_of(top), "\twire_vcc_vector <= \"1\";\n"
                                  "\ty <= wire_arr_q;\n"
                                  "\tz(0) <= wire_arr_q;\n"
                                  "\twire_arr_d(0) <= (NOT s);\n"
                                  "\twire_arr_f <= \"010\";\n"
                                  "\tarr :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => x,\n"
                                  "\t\tb => s,\n"
                                  "\t\tc => v(0),\n"
                                  "\t\td => wire_arr_d(0),\n"
                                  "\t\te => wire_vcc_vector(0),\n"
                                  "\t\tf => wire_arr_f,\n"
                                  "\t\tq => wire_arr_q\n"
                                  "\t  );\n");
}

TEST_F(VhdlArrays, BidirsAreCut)
{
    auto & pad = top.bidir("pad", 4);
    auto & bits = top.bidir("bits", 2);
    auto & x = used_input(top, "x", 2);
    auto & y = top.output("y", 2);
    auto & arr = array_of(2, [](design & of) {
        of.bidir("a", 2);
        of.bidir("b");
        of.bidir("c");
    });
    top.connect([&] {
        pad = arr.port("a");
        bits = arr.port("b");
        arr.port("c") = x;
        y = arr.port("c");
    });
    auto const text = statements_of(top);
    EXPECT_EQ(text, "\ty <= wire_arr_c;\n"
                    "\twire_arr_c <= x;\n"
                    "\tloop0 : FOR i IN 0 TO 1 GENERATE \n"
                    "\t  arr :  blk\n"
                    "\t  PORT MAP ( \n"
                    "\t\ta => pad(i*2+1 DOWNTO i*2),\n"
                    "\t\tb => bits(i),\n"
                    "\t\tc => wire_arr_c(i)\n"
                    "\t  );\n"
                    "\tEND GENERATE loop0;\n");
}

TEST_F(VhdlArrays, AScalarArrayTakesARangeOfSeveralBits)
{
    auto & x = used_input(top, "x", 8);
    auto & arr = array_of(2, [](design & of) { of.input("a"); });
    top.connect([&] { arr.port("a") = x.range(5, 4); });
    EXPECT_EQ(statements_of(top), "\twire_w_x_range1w <= x(5 DOWNTO 4);\n"
                                  "\twire_arr_a <= x(5 DOWNTO 4);\n"
                                  "\tloop0 : FOR i IN 0 TO 1 GENERATE \n"
                                  "\t  arr :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_arr_a(i)\n"
                                  "\t  );\n"
                                  "\tEND GENERATE loop0;\n");
}

TEST_F(VhdlArrays, ALoopHidesNoSignal)
{
    auto & i = used_input(top, "I", 4);
    auto & j = used_input(top, "j");
    auto & loop_i = used_input(top, "loop_i");
    auto & y = top.output("y", 4);
    auto & z = top.output("z", 8);
    auto & arr = array_of(2, [](design & of) { of.input("a", 4); });
    auto & rows = *new GNL_PORT_INPUT(&top.cell("u"), "a", 2, 2);
    top.connect([&] {
        y = i & j;
        z = i;
        arr.port("a") = (i, i);
        rows = i | loop_i;
    });
    EXPECT_EQ(statements_of(top), "\tloop0 : FOR loop_loop_i IN 0 TO 3 GENERATE \n"
                                  "\t\twire_w_lg_I1w(loop_loop_i) <= I(loop_loop_i) AND j;\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\tloop1 : FOR loop_loop_i IN 0 TO 3 GENERATE \n"
                                  "\t\twire_w_lg_I3w(loop_loop_i) <= I(loop_loop_i) OR loop_i;\n"
                                  "\tEND GENERATE loop1;\n"
                                  "\twire_w_I_I2w <= ( I & I);\n"
                                  "\ty <= wire_w_lg_I1w;\n"
                                  "\tloop2 : FOR loop_loop_i IN 0 TO 7 GENERATE\n"
                                  "\t\tz(loop_loop_i) <= I(loop_loop_i/2) ;\n"
                                  "\tEND GENERATE loop2;\n"
                                  "\twire_arr_a <= ( I & I);\n"
                                  "\tloop3 : FOR loop_loop_i IN 0 TO 1 GENERATE \n"
                                  "\t  arr :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_arr_a(loop_loop_i*4+3 DOWNTO loop_loop_i*4)\n"
                                  "\t  );\n"
                                  "\tEND GENERATE loop3;\n"
                                  "\twire_u_a <= wire_w_lg_I3w;\n"
                                  "\tloop4 : FOR loop_loop_i IN 0 TO 1 GENERATE\n"
                                  "\t\tloop5 : FOR loop_j IN 0 TO 1 GENERATE\n"
                                  "\t\t\twire_u_a_2d(loop_loop_i, loop_j) <= wire_u_a(loop_loop_i*2+loop_j);\n"
                                  "\t\tEND GENERATE loop5;\n"
                                  "\tEND GENERATE loop4;\n"
                                  "\tu :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_u_a_2d\n"
                                  "\t  );\n");
}

// ---- Slice by slice

TEST_F(VhdlUnrolledArrays, SlicesConnectWhatTheArrayDoesNot)
{
    auto & x = used_input(top, "x", 8);
    auto & s = used_input(top, "s");
    auto & y = top.output("y", 4);
    auto & z = top.output("z");
    auto & w = top.output("w", 4);
    auto & arr = array_of(2, [](design & of) {
        of.input("a", 4);
        of.input("b");
        of.input("c", 1);
        of.input("k", 2);
        of.input("n");
        of.output("p", 4);
        of.output("q");
    });
    top.connect([&] {
        arr.port("a") = x;
        arr[0].port("b") = s;
        arr[1].port("b") = !s;
        arr[0].port("c") = x[1];
        arr[1].port("c") = s;
        arr[0].port("k") = 2;
        arr[1].port("k") = x.range(1, 0);
        arr[0].port("n") = 1;
        arr[1].port("n") = 0;
        y = arr[1].port("p");
        z = arr[0].port("q");
        w = arr[1].port("p") & arr[0].port("q");
    });
    EXPECT_EQ(statements_of(top), "\twire_gnd <= '0';\n"
                                  "\twire_vcc <= '1';\n"
                                  "\tw <= wire_arr_w_lg_p4w;\n"
                                  "\ty <= wire_arr_1p(3 DOWNTO 0);\n"
                                  "\tz <= wire_arr_0q;\n"
                                  "\twire_arr_a <= x;\n"
                                  "\twire_arr_0k <= \"10\";\n"
                                  "\tloop0 : FOR i IN 0 TO 3 GENERATE \n"
                                  "\t\twire_arr_w_lg_p4w(i) <= wire_arr_1p(i) AND wire_arr_0q;\n"
                                  "\tEND GENERATE loop0;\n"
                                  "\twire_arr_1b <= (NOT s);\n"
                                  "\tarr_0 :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_arr_a(3 DOWNTO 0),\n"
                                  "\t\tb => s,\n"
                                  "\t\tc => x(1 DOWNTO 1),\n"
                                  "\t\tk => \"10\",\n"
                                  "\t\tn => wire_vcc,\n"
                                  "\t\tq => wire_arr_0q\n"
                                  "\t  );\n"
                                  "\tarr_1 :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => wire_arr_a(7 DOWNTO 4),\n"
                                  "\t\tb => wire_arr_1b,\n"
                                  "\t\tc(0) => s,\n"
                                  "\t\tk => x(1 DOWNTO 0),\n"
                                  "\t\tn => wire_gnd,\n"
                                  "\t\tp => wire_arr_1p\n"
                                  "\t  );\n");
}

TEST_F(VhdlUnrolledArrays, SlicesJoinTheirOwnBidirs)
{
    auto & pad = top.bidir("pad");
    auto & wide = top.bidir("wide", 2);
    auto & arr = array_of(2, [](design & of) {
        of.bidir("a");
        of.bidir("b", 2);
    });
    top.connect([&] {
        pad = arr[1].port("a");
        wide = arr[0].port("b");
    });
    EXPECT_EQ(statements_of(top), "\tarr_0 :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\tb => wide\n"
                                  "\t  );\n"
                                  "\tarr_1 :  blk\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => pad\n"
                                  "\t  );\n");
}

TEST_F(VhdlUnrolledArrays, SlicesOfTheirOwnKindHaveTheirOwnEntityAndValues)
{
    auto & s = used_input(top, "s");
    auto & y = top.output("y", 2);
    auto & cells = array_of(2, [](design & of) {
        of.input("a");
        of.output("q");
        of.integer("KIND", 0);
    });
    cells.parameter_integer("KIND") = 1;
    cells[1].parameter_integer("KIND") = 7;
    top.connect([&] {
        cells.port("a") = s;
        y = cells.port("q");
    });
    EXPECT_EQ(statements_of(top), "\ty <= wire_arr_q;\n"
                                  "\tarr_0 :  blk\n"
                                  "\t  GENERIC MAP (\n"
                                  "\t\tKIND => 1\n"
                                  "\t  )\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => s,\n"
                                  "\t\tq => wire_arr_q(0)\n"
                                  "\t  );\n"
                                  "\tarr_1 :  blk\n"
                                  "\t  GENERIC MAP (\n"
                                  "\t\tKIND => 7\n"
                                  "\t  )\n"
                                  "\t  PORT MAP ( \n"
                                  "\t\ta => s,\n"
                                  "\t\tq => wire_arr_q(1)\n"
                                  "\t  );\n");
    // Where cells stand for themselves, their slices are never generated.
    cells[1].set_entity_name("");
    EXPECT_NE(statements_of(top).find("\tarr_1 :  blk\n"), std::string::npos);
    cells[1].set_entity_name("other");
    auto const text = statements_of(top);
    EXPECT_NE(text.find("\tarr_0 :  blk\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\tarr_1 :  other\n"), std::string::npos) << text;
}

TEST_F(VhdlUnrolledArrays, AnOutputThatTheDesignOfASliceLacksIsLeftOut)
{
    top_design of("LBX_FILE=top.vhd");
    auto & x = of.input("x", 2);
    auto & y = of.output("y");
    of.body = [&](design & own) {
        auto & arr = own.child("leaf", "arr", "", 2);
        auto const declare = [](design & slice) {
            slice.input("a");
            slice.output("q");
            slice.output("spare");
            slice.integer("KIND", 0);
        };
        declare(arr);
        arr.declare_slice = declare;
        arr.body = [](design & leaf) {
            leaf.port("q") = leaf.port("a");
            if (leaf.port("spare").is_used())
                leaf.port("spare") = !leaf.port("a");
        };
        arr[1].parameter_integer("KIND") = 1;
        arr.port("a") = x;
        y = arr[0].port("spare") & arr[0].port("q") & arr[1].port("q");
    };
    of.run();
    EXPECT_EQ(of.messages(), texts{});
    auto const text = file_text("top.vhd");
    auto const second = text.find("\tarr_1 :  ");
    EXPECT_EQ(text.substr(text.find('\n', second)), "\n"
                                                    "\t  PORT MAP ( \n"
                                                    "\t\ta => wire_arr_a(1),\n"
                                                    "\t\tq => wire_arr_q(1)\n"
                                                    "\t  );\n"
                                                    "\n"
                                                    " END RTL; --top\n"
                                                    "--VALID FILE\n");
}

// ---- Arrays that write themselves

TEST_F(VhdlArrayHooks, RunOnceOnAnArrayOfEqualSlices)
{
    top_design top;
    auto & arr = hooked_cells(top, true);
    arr[0].port("q").set_used();
    EXPECT_EQ(statements_of(top), "\t-- arr -1 in top\n");
}

TEST_F(VhdlArrayHooks, RunOnEachOfSlicesThatDiffer)
{
    for (bool const inserted : {true, false}) {
        top_design top;
        auto & arr = hooked_cells(top, inserted);
        arr[1].parameter_integer("KIND") = 1;
        EXPECT_EQ(statements_of(top), "\t-- arr 0 in top\n\t-- arr 1 in top\n") << inserted;
    }
}

TEST_F(VhdlArrayHooks, ASliceThatIsAskedByItselfIsNumbered)
{
    top_design top;
    auto & arr = top.cell("arr", 2);
    arr.output("q");
    arr.declare_slice = [](design & slice) { slice.output("q"); };
    auto & slice = arr[1];
    slice.set_entity_name("blk");
    slice.port("q").set_used();
    arr.set_vhdl_unroll_loop();
    signal_names none;
    std::ostringstream out;
    slice.dump_vhdl_subdesign_connection(&top, out, none);
    EXPECT_EQ(out.str(), "\tarr_1 :  blk\n"
                         "\t  PORT MAP ( \n"
                         "\t\tq => wire_arr_1q\n"
                         "\t  );\n");
}
