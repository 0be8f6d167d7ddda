#include "open_design.h"

#include <stdexcept>

namespace {

using namespace gnl_test;

class PortModel : public in_folder
{
};

// ---- Construction

TEST_F(PortModel, TwoDimensionsMultiplyToTheWidth)
{
    design top(nullptr);
    GNL_PORT_INPUT a(&top, "a", 3, 4);
    EXPECT_EQ(a.get_width(), 12);
    EXPECT_EQ(a.get_2d_width(), 4);
    EXPECT_EQ(a.get_original_width(), 3);
}

TEST_F(PortModel, DimensionsBeyondTheIntegersSaturate)
{
    design top(nullptr);
    GNL_PORT_INPUT a(&top, "a", 100000, 100000);
    EXPECT_EQ(a.get_width(), 2147483647);
}

TEST_F(PortModel, AWidthOfOneIsABusAndNoScalar)
{
    design top(nullptr);
    auto & scalar = top.input("scalar");
    auto & bus = top.input("bus", 1);
    EXPECT_EQ(scalar.get_width(), 0);
    EXPECT_EQ(scalar.get_bus_width(), 1);
    EXPECT_TRUE(scalar.is_std_logic_port());
    EXPECT_EQ(bus.get_width(), 1);
    EXPECT_EQ(bus.get_bus_width(), 1);
    EXPECT_FALSE(bus.is_std_logic_port());
}

TEST_F(PortModel, AnEmptyWidthExpressionIsNone)
{
    design top(nullptr);
    GNL_PORT_INPUT fixed(&top, "fixed", 4);
    GNL_PORT_OUTPUT one(&top, "one", "W");
    GNL_PORT_BIDIR two(&top, "two", "W", "H");
    EXPECT_EQ(fixed.get_width_parameter_name(), nullptr);
    EXPECT_EQ(fixed.get_2d_width_parameter_name(), nullptr);
    EXPECT_STREQ(one.get_width_parameter_name(), "W");
    EXPECT_EQ(one.get_2d_width_parameter_name(), nullptr);
    EXPECT_STREQ(two.get_width_parameter_name(), "W");
    EXPECT_STREQ(two.get_2d_width_parameter_name(), "H");
    EXPECT_EQ(two.get_default_width(), 0);
    EXPECT_EQ(two.get_original_width(), 0);
    EXPECT_EQ(two.get_2d_width(), 0);
}

TEST_F(PortModel, ANewPortIsUndrivenUnusedAndPartOfTheDeclaration)
{
    design top(nullptr);
    auto & a = top.output("a", 4);
    EXPECT_EQ(a.get_driver(), nullptr);
    EXPECT_EQ(a.constant_driving_value_as_mlib_int(), nullptr);
    EXPECT_EQ(a.get_connection_level(), nullptr);
    EXPECT_FALSE(a.is_driven_by_constant());
    EXPECT_FALSE(a.check_is_used_flag());
    EXPECT_FALSE(a.has_create_vhdl_loop());
    EXPECT_FALSE(a.is_signed());
    EXPECT_FALSE(a.is_heterogeneous_port());
    EXPECT_FALSE(a.is_vhdl_array_wire());
    EXPECT_FALSE(a.uses_parent_source_name());
    EXPECT_FALSE(a.driver_removal_done());
    EXPECT_TRUE(a.is_included_in_declaration());
    EXPECT_EQ(a.get_driver_count(), 0);
    EXPECT_EQ(a.get_default_value(), -1);
}

TEST_F(PortModel, KindsAnswerForThemselvesOnly)
{
    design top(nullptr);
    auto const kinds = [](GNL_PORT const & port) {
        std::string text;
        for (bool const is : {port.is_input(), port.is_output(), port.is_bidir(), port.is_wire(), port.is_range_port(),
                              port.is_concat_port(), port.is_logic(), port.is_simple_port()})
            text += is ? '1' : '0';
        return text;
    };
    EXPECT_EQ(kinds(top.input("a")), "10000001");
    EXPECT_EQ(kinds(top.output("b")), "01000001");
    EXPECT_EQ(kinds(top.bidir("c")), "00100001");
    EXPECT_EQ(kinds(top.wire("d")), "00010001");
    EXPECT_EQ(kinds(*new GNL_PORT(&top, "e")), "00000000");
}

TEST_F(PortModel, ACopyHasItsOwnConstantAndOptionsAndIsInNoRegistry)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 4);
    y = 5;
    y.set_qelvar_internal_option("KEEP=ON");
    y.set_port_is_a_driver();
    GNL_PORT_OUTPUT copy(y);
    EXPECT_EQ(copy.get_parent(), &top);
    EXPECT_EQ(copy.constant_driving_value(), "0101");
    EXPECT_NE(copy.constant_driving_value_as_mlib_int(), y.constant_driving_value_as_mlib_int());
    EXPECT_TRUE(copy.is_driven_by_constant());
    EXPECT_TRUE(copy.check_is_used_flag());
    EXPECT_EQ(copy.get_connection_level(), &top);
    EXPECT_EQ(copy.get_driver_count(), 1);
    copy.set_qelvar_internal_option("MORE=ON");
    std::ostringstream options;
    y.dump_qelvar_internal_options(options);
    EXPECT_EQ(options.str(), "/* synthesis QELVAR_ATTRIBUTE=\"KEEP=ON\" */");
    EXPECT_EQ(top.get_port_object("y"), &y);
}

TEST_F(PortModel, ACopyKeepsItsRowsAndTheWidthOfOneSlice)
{
    design top(nullptr);
    GNL_PORT_INPUT const rows(&top, "rows", 3, 4);
    GNL_PORT_INPUT copy(rows);
    EXPECT_EQ(copy.get_width(), 12);
    EXPECT_EQ(copy.get_2d_width(), 4);
    EXPECT_EQ(copy.get_original_width(), 3);
    copy.set_width_safe(24, false);
    EXPECT_EQ(copy.get_width(), 24);
    EXPECT_EQ(copy.get_original_width(), 3);
    copy.set_width_safe(6, true);
    EXPECT_EQ(copy.get_original_width(), 6);
    EXPECT_EQ(copy.get_2d_width(), 4);
    EXPECT_EQ(rows.get_default_width(), 12);
    EXPECT_EQ(rows.get_original_width(), 3);
}

TEST_F(PortModel, TheWidthOfOneSliceOutlastsThatOfTheArray)
{
    design top(nullptr);
    auto & a = top.input("a", 4);
    a.set_width_safe(12, false);
    a.set_width_safe(4, false);
    EXPECT_EQ(a.get_original_width(), 4);
    a.set_width_safe(12, false);
    a.set_width_safe(8, true);
    EXPECT_EQ(a.get_default_width(), 8);
    EXPECT_EQ(a.get_original_width(), 8);
    EXPECT_EQ(a.get_2d_width(), 0);
}

// ---- Names and keys

TEST_F(PortModel, NamesAreCaseInsensitiveAndKeepTheirSpelling)
{
    design top(nullptr);
    auto & clock = top.input("Clock");
    EXPECT_EQ(top.get_port_object("cLOCK"), &clock);
    EXPECT_EQ(clock.get_name(), "Clock");
    EXPECT_EQ(clock.generate_key(), "PORT;Clock");
    EXPECT_EQ(clock.find_object("port;CLOCK"), &clock);
    EXPECT_EQ(GNL_PORT(nullptr, "free").find_object("PORT;Clock"), nullptr);
}

TEST_F(PortModel, ReservedVhdlWordsGetAPrefix)
{
    design top(nullptr);
    EXPECT_EQ(top.input("IN").get_vhdl_name(), "a_IN");
    EXPECT_EQ(top.input("out").get_vhdl_name(), "a_out");
    EXPECT_EQ(top.wire("Abs").get_vhdl_name(), "a_Abs");
    EXPECT_EQ(top.input("a_in").get_vhdl_name(), "a_in");
    EXPECT_EQ(top.input("inout").get_vhdl_name(), "inout");
}

TEST_F(PortModel, AnUnnamedWireGetsTheNextWireName)
{
    design top(nullptr);
    EXPECT_EQ(top.wire("").get_name(), "w1w");
    EXPECT_EQ(top.wire("").get_name(), "w2w");
    EXPECT_EQ(GNL_WIRE(nullptr, "").get_name(), "wire_0");
    EXPECT_EQ(GNL_PORT::get_wire_name_from_parent(nullptr, "a", "b"), "wire_ab0");
}

TEST_F(PortModel, InQhdlABusNameDoesNotEndInADigit)
{
    design top(nullptr);
    EXPECT_EQ(top.wire("data3", 4).get_name(), "data3w");
    EXPECT_EQ(top.wire("flag3").get_name(), "flag3");
    EXPECT_EQ(GNL_WIRE(&top, "rows3", 0, 2).get_name(), "rows3w");
    top.set_gen_language(GNL_VERILOG);
    EXPECT_EQ(top.wire("more3", 4).get_name(), "more3");
    top.set_gen_language(GNL_TCL);
    EXPECT_EQ(top.wire("last3", 4).get_name(), "last3");
}

TEST_F(PortModel, AWireOfATakenNameIsReportedAndRenamed)
{
    design top(nullptr);
    top.input("data");
    EXPECT_EQ(top.wire("DATA").get_name(), "w1w");
    EXPECT_EQ(top.messages().size(), 1u);
}

// ---- Defaults

TEST_F(PortModel, ADefaultIsTextOfTheLanguage)
{
    design top(nullptr);
    auto & one = top.input("one", 0, 1);
    auto & zero = top.input("zero", 0, 0);
    auto & two = top.input("two", 0, 2);
    auto & none = top.input("none");
    EXPECT_EQ(one.get_default_value_as_string(0), "VCC");
    EXPECT_EQ(one.get_default_value_as_string(-5), "VCC");
    EXPECT_EQ(one.get_default_value_as_string(1), "VCC");
    EXPECT_EQ(one.get_default_value_as_string(3), "B\"111\"");
    EXPECT_EQ(zero.get_default_value_as_string(3), "B\"000\"");
    EXPECT_EQ(two.get_default_value_as_string(0), "GND");
    EXPECT_EQ(none.get_default_value_as_string(0), "GND");
    for (int const language : {GNL_VERILOG, GNL_VHDL}) {
        top.set_gen_language(language);
        EXPECT_EQ(one.get_default_value_as_string(0), "1");
        EXPECT_EQ(one.get_default_value_as_string(3), "111");
        EXPECT_EQ(none.get_default_value_as_string(2), "00");
    }
}

TEST_F(PortModel, OutputsAndWiresHaveDefaultsToo)
{
    design top(nullptr);
    auto & y = top.output("y");
    auto & w = top.wire("w");
    y.set_default_port_value(1);
    w.set_default_port_value(0);
    EXPECT_EQ(y.get_default_value(), 1);
    EXPECT_EQ(y.get_default_value_as_string(0), "VCC");
    EXPECT_EQ(w.get_default_value(), 0);
    EXPECT_EQ(w.get_default_value_as_string(2), "B\"00\"");
}

TEST_F(PortModel, ADefaultIsKeptFromTheBodyOn)
{
    design top(nullptr);
    auto & a = top.input("a", 0, 1);
    auto & y = top.output("y");
    auto & w = top.wire("w");
    top.set_in_rtl_body();
    a.set_default_port_value(0);
    y.set_default_port_value(0);
    w.set_default_port_value(0);
    EXPECT_EQ(a.get_default_value(), 1);
    EXPECT_EQ(y.get_default_value(), -1);
    EXPECT_EQ(w.get_default_value(), 0) << "a wire's default is free";
    EXPECT_EQ(top.messages().size(), 2u);
}

TEST_F(PortModel, APortWithoutParentTakesAnyDefault)
{
    GNL_PORT_INPUT a(nullptr, "a");
    a.set_default_port_value(1);
    EXPECT_EQ(a.get_default_value(), 1);
}

// ---- Use

TEST_F(PortModel, ConstantUseReplacesUse)
{
    design top(nullptr);
    auto & a = top.input("a");
    a.set_used();
    a.set_constant_used();
    EXPECT_TRUE(a.is_constant_used_port());
    EXPECT_FALSE(a.is_used());
}

TEST_F(PortModel, APortOfAnArrayIsUsedIfAnySliceIs)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(3, [](design & slice) { slice.input("d", 2); });
    GNL_PORT & d = arr.port("d");
    EXPECT_FALSE(d.is_used()) << "no slices yet";
    arr[1].port("d").set_used();
    EXPECT_TRUE(d.is_used());
    EXPECT_FALSE(d.check_is_used_flag());
    EXPECT_FALSE(arr[0].port("d").is_used());
    d.set_used();
    EXPECT_TRUE(arr[0].port("d").is_used());
}

TEST_F(PortModel, AllBitsOfAnArrayAreUsedIfAllSlicesAre)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(2, [](design & slice) {
        slice.input("d", 2);
        slice.output("q", 2);
    });
    GNL_PORT & d = arr.port("d");
    GNL_PORT & q = arr.port("q");
    arr[0].port("d").set_used();
    EXPECT_FALSE(d.are_all_bits_used());
    arr[1].port("d").set_used();
    EXPECT_TRUE(d.are_all_bits_used());
    EXPECT_FALSE(q.are_all_bits_used());
    q.set_used();
    EXPECT_TRUE(q.are_all_bits_used()) << "connected on the array itself";
}

TEST_F(PortModel, ASliceIsUsedWhereItsBitsOfTheArrayAreDriven)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(4, [](design & slice) { slice.input("d", 2); });
    arr.port("d").range(5, 2) = top.wire("x", 4);
    EXPECT_FALSE(arr[0].port("d").are_all_bits_used());
    EXPECT_TRUE(arr[1].port("d").are_all_bits_used());
    EXPECT_TRUE(arr[2].port("d").are_all_bits_used());
    EXPECT_FALSE(arr[3].port("d").are_all_bits_used());
}

TEST_F(PortModel, AllBitsOfAPlainPinFollowItsFlag)
{
    design top(nullptr);
    auto & a = top.input("a");
    EXPECT_FALSE(a.are_all_bits_used());
    a.set_used();
    EXPECT_TRUE(a.are_all_bits_used());
    EXPECT_TRUE(top.wire("w").are_all_bits_used());
    EXPECT_TRUE(top.bidir("io").are_all_bits_used());
}

// ---- Drivers and constants

TEST_F(PortModel, ReplacingADriverMovesTheCount)
{
    open_design top(GNL_VERILOG);
    auto & a = top.wire("a", 4);
    auto & b = top.wire("b", 4);
    auto & y = top.output("y", 4);
    y = a;
    y.replace_driver(&b);
    EXPECT_EQ(y.get_driver(), &b);
    EXPECT_EQ(a.get_driver_count(), 0);
    EXPECT_EQ(b.get_driver_count(), 1);
    y.replace_driver(9);
    EXPECT_EQ(y.get_driver(), nullptr);
    EXPECT_EQ(b.get_driver_count(), 0);
    EXPECT_TRUE(y.is_driven_by_constant());
    EXPECT_EQ(y.constant_driving_value(), "1001");
    y.replace_driver(&a);
    EXPECT_EQ(y.constant_driving_value_as_mlib_int(), nullptr);
    EXPECT_TRUE(y.is_driven_by_constant()) << "the flag is left alone";
}

TEST_F(PortModel, AConstantCanBeReplacedByItself)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 4);
    y = 9;
    y.replace_driver(*y.constant_driving_value_as_mlib_int());
    EXPECT_EQ(y.constant_driving_value(), "1001");
}

TEST_F(PortModel, RemovingADriverFreesThePort)
{
    open_design top(GNL_VERILOG);
    auto & a = top.wire("a", 4);
    auto & y = top.output("y", 4);
    auto & z = top.output("z", 4);
    y = a;
    y.remove_driver();
    EXPECT_EQ(y.get_driver(), nullptr);
    EXPECT_EQ(y.get_connection_level(), nullptr);
    EXPECT_FALSE(y.check_is_used_flag());
    EXPECT_EQ(a.get_driver_count(), 1) << "the count is left alone";
    z = 3;
    z.remove_constant_driver();
    EXPECT_EQ(z.constant_driving_value_as_mlib_int(), nullptr);
    EXPECT_EQ(z.get_connection_level(), nullptr);
    EXPECT_FALSE(z.check_is_used_flag());
    EXPECT_TRUE(z.is_driven_by_constant()) << "the flag is left alone";
}

TEST_F(PortModel, AConstantIsCutBySlices)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(3, [](design & slice) { slice.input("d", 4); });
    GNL_PORT & d = arr.port("d");
    d = 0xA53;
    EXPECT_EQ(d.constant_driving_value(0), "0011");
    EXPECT_EQ(d.constant_driving_value(1), "01010011") << "longer than a slice: it runs to the end";
    EXPECT_EQ(d.constant_driving_value(2), "1010");
    EXPECT_THROW(d.constant_driving_value(3), std::out_of_range);
}

TEST_F(PortModel, AConstantOfOneBitSlicesIsCutByBits)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(4, [](design & slice) { slice.input("d"); });
    GNL_PORT & d = arr.port("d");
    d = 6;
    EXPECT_EQ(d.constant_driving_value(0), "0");
    EXPECT_EQ(d.constant_driving_value(1), "1");
    EXPECT_EQ(d.constant_driving_value(2), "1");
    EXPECT_EQ(d.constant_driving_value(3), "0");
    EXPECT_THROW(d.constant_driving_value(4), std::out_of_range);
    EXPECT_EQ(d.constant_driving_value(5), "0");
    EXPECT_THROW(d.constant_driving_value(-1), std::out_of_range);
}

TEST_F(PortModel, AConstantReadsAsAnInteger)
{
    open_design top(GNL_VERILOG);
    auto & y = top.output("y", 40);
    EXPECT_EQ(y.constant_driving_value_as_int(), 0u);
    EXPECT_EQ(y.constant_driving_value(), "");
    y = -1;
    EXPECT_EQ(y.constant_driving_value_as_int(), 0xffffffffu);
    EXPECT_EQ(y.constant_driving_value(), std::string(40, '1'));
}

TEST_F(PortModel, ASliceWithoutDriverAsksTheArray)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(2, [](design & slice) {
        slice.input("d", 2);
        slice.input("k", 2);
        slice.input("n", 2);
    });
    arr.port("d") = top.wire("x", 4);
    arr.port("k") = 9;
    design & slice = static_cast<design &>(arr[0]);
    EXPECT_TRUE(slice.port("d").check_port_has_valid_driver());
    EXPECT_FALSE(slice.port("d").check_port_is_driven_by_constant());
    EXPECT_FALSE(slice.port("k").check_port_has_valid_driver());
    EXPECT_TRUE(slice.port("k").check_port_is_driven_by_constant());
    EXPECT_EQ(slice.port("k").get_port_constant_driving_value(), 9);
    EXPECT_FALSE(slice.port("n").check_port_has_valid_driver());
    EXPECT_EQ(slice.port("n").get_port_constant_driving_value(), 0);
}

TEST_F(PortModel, FreeBitsAreThoseThatNothingDrives)
{
    open_design top(GNL_VERILOG);
    auto & x = top.wire("x", 4);
    auto & open = top.output("open", 8);
    auto & whole = top.output("whole", 4);
    auto & constant = top.output("constant", 4);
    auto & part = top.output("part", 8);
    whole = x;
    constant = 3;
    part.range(5, 2) = x;
    EXPECT_TRUE(open.check_port_assignment(0, 7));
    EXPECT_FALSE(open.check_if_driven_at_bits(0, 7));
    EXPECT_FALSE(whole.check_port_assignment(0, 0));
    EXPECT_TRUE(whole.check_if_driven_at_bits(0, 0));
    EXPECT_FALSE(constant.check_port_assignment(0, 0));
    EXPECT_FALSE(constant.check_if_driven_at_bits(0, 0));
    EXPECT_TRUE(part.check_port_assignment(0, 1));
    EXPECT_FALSE(part.check_port_assignment(0, 2));
    EXPECT_FALSE(part.check_if_driven_at_bits(6, 7));
    EXPECT_TRUE(part.check_if_driven_at_bits(5, 7));
    // What is concatenated as a whole is repeated over a wider port, so it takes every bit.
    auto & repeated = top.output("repeated", 8);
    repeated = (x[1], x[0]);
    EXPECT_FALSE(repeated.check_port_assignment(6, 7));
    EXPECT_TRUE(repeated.check_if_driven_at_bits(6, 7));
}

TEST_F(PortModel, AnInvertedDriverIsTheNotOfASimplePort)
{
    open_design top(GNL_VERILOG);
    auto & a = top.wire("a");
    auto & bus = top.wire("bus", 2);
    auto & plain_source = top.wire("plain_source");
    auto & inverted = top.output("inverted");
    auto & plain = top.output("plain");
    auto & both = top.output("both");
    auto & twice = top.output("twice");
    auto & wide = top.output("wide", 2);
    inverted = !a;
    plain = a;
    both = a & plain_source;
    twice = !!a;
    wide = ~bus;
    EXPECT_TRUE(inverted.has_inverted_port_driver());
    EXPECT_FALSE(plain.has_inverted_port_driver());
    EXPECT_FALSE(both.has_inverted_port_driver());
    EXPECT_FALSE(twice.has_inverted_port_driver());
    EXPECT_FALSE(top.output("open").has_inverted_port_driver());
    EXPECT_TRUE(wide.has_inverted_port_driver());
    top.set_gen_language(GNL_VHDL);
    EXPECT_TRUE(inverted.has_inverted_port_driver());
    EXPECT_FALSE(wide.has_inverted_port_driver());
}

TEST_F(PortModel, ASliceAsksItsArrayForAnInvertedDriver)
{
    open_design top(GNL_VERILOG);
    design & arr = top.array(2, [](design & slice) { slice.input("d"); });
    arr.port("d") = ~top.wire("a", 2);
    EXPECT_TRUE(arr[1].port("d").has_inverted_port_driver());
}

// ---- Declarations

TEST_F(PortModel, OnlyAnOptionalWireThatDrivesNothingIsNotDeclared)
{
    design top(nullptr);
    auto & a = top.input("a");
    auto & w = top.wire("w");
    EXPECT_TRUE(a.declare_port());
    EXPECT_FALSE(w.declare_port());
    w.set_port_is_a_driver();
    EXPECT_TRUE(w.declare_port());
    EXPECT_TRUE(GNL_WIRE(nullptr, "free").declare_port());
    design keeping(nullptr, "keeping", "LBX_REMOVE_OPTIONAL_WIRES=OFF");
    EXPECT_TRUE(keeping.wire("w").declare_port());
}

TEST_F(PortModel, AnExpressionWithALoopHasAWireInCustomVhdl)
{
    open_design top(GNL_VHDL);
    auto & a = top.wire("a", 4);
    auto & s = top.wire("s");
    GNL_PORT & mixed = a & s;
    mixed.set_port_is_a_driver();
    a.set_port_is_a_driver();
    EXPECT_FALSE(mixed.port_has_wire_in_custom_vhdl(&top)) << "no custom output";
    top.set_use_custom_vhdl_output();
    EXPECT_TRUE(mixed.port_has_wire_in_custom_vhdl(&top));
    EXPECT_FALSE(mixed.port_has_wire_in_custom_vhdl(nullptr)) << "made at another level";
    EXPECT_FALSE(a.port_has_wire_in_custom_vhdl(&top)) << "a simple port";
    mixed.remove_port_as_driver();
    EXPECT_FALSE(mixed.port_has_wire_in_custom_vhdl(&top)) << "nobody reads it";
}

TEST_F(PortModel, OnlyVhdlHasLoops)
{
    open_design top(GNL_VERILOG);
    auto & a = top.wire("a");
    a.set_create_vhdl_loop();
    EXPECT_FALSE(a.has_create_vhdl_loop());
    top.set_gen_language(GNL_VHDL);
    a.set_create_vhdl_loop();
    EXPECT_TRUE(a.need_to_create_vhdl_loop());
    top.set_gen_language(GNL_VERILOG);
    EXPECT_TRUE(a.has_create_vhdl_loop());
    EXPECT_FALSE(a.need_to_create_vhdl_loop());
}

} // namespace
