// Expressions: how they are made, found again, checked and keyed.

#include "open_design.h"

using namespace gnl_test;

namespace {

class Logic : public in_folder
{
};

std::string const body_cause = "An attempt has been made to make port connections outside of the rtl_body.";
std::string const body_action = "Make port connections inside rtl_body only.";
std::string const operand_cause = "This logic operation cannot be performed on the operand in the RHS. The operand "
                                  "cannot be used as a source object; "
                                  "the objects are mostly input ports of subdesigns or output ports of self.";
std::string const operand_action =
    "Do not use output ports of generators on the RHS in the generator's rtl_body and do not use input ports of "
    "instantiated subdesigns in the RHS of the rtl_body.";
std::string const unconnected_cause =
    "An attempt was made to use an unconnected input port. The input port should either be connected or should have a "
    "default value.";
std::string const widths_cause =
    "The port widths are mismatched in the logic operator. Port widths of the operands in a logic operation should be "
    "the same or if the operands are of different widths, one of them must be 1 bit wide.";

GNL_PORT_LOGIC & combine(std::string const & operation, GNL_PORT & a, GNL_PORT & b)
{
    return operation == "AND" ? a & b : operation == "OR" ? a | b : a ^ b;
}

TEST_F(Logic, EqualExpressionsAreOneObject)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a", 8);
    auto & b = top.input("b", 8);
    auto & first = a & b;
    EXPECT_EQ(&(a & b), &first);
    EXPECT_EQ(a.get_driver_count(), 1);
    EXPECT_EQ(b.get_driver_count(), 1);
    EXPECT_NE(&(b & a), &first);
    EXPECT_NE(&(a | b), &first);
    EXPECT_NE(&(a ^ b), &first);
    EXPECT_EQ(&!a, &~a);
    EXPECT_EQ(&(first & !a), &(first & !a));
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Logic, FieldsOfAnExpression)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a", 8);
    auto & b = top.input("b", 8);
    auto & both = a & b;
    EXPECT_TRUE(both.is_logic());
    EXPECT_FALSE(both.is_simple_port());
    EXPECT_EQ(both.get_operation(), 2);
    EXPECT_EQ((a | b).get_operation(), 3);
    EXPECT_EQ((a ^ b).get_operation(), 4);
    EXPECT_EQ((!a).get_operation(), 1);
    EXPECT_TRUE((!a).is_not_port());
    EXPECT_FALSE(both.is_not_port());
    EXPECT_EQ(both.get_first_operand(), &a);
    EXPECT_EQ(both.get_second_operand(), &b);
    EXPECT_EQ((!a).get_second_operand(), nullptr);
    EXPECT_EQ(both.get_connection_level(), &top);
    EXPECT_EQ(both.get_parent(), &top);
    EXPECT_EQ(both.get_2d_width(), 0);
}

TEST_F(Logic, WidthIsThatOfTheWiderOperandAndOfTheFirstOnATie)
{
    open_design top(GNL_VERILOG);
    auto & bus = top.input("bus", 8);
    auto & scalar = top.input("scalar");
    auto & one = top.input("one", 1);
    EXPECT_EQ((bus & scalar).get_width(), 8);
    EXPECT_EQ((one & bus).get_width(), 8);
    EXPECT_EQ((one & bus).get_original_width(), 8);
    EXPECT_EQ((scalar & one).get_width(), 0);
    EXPECT_EQ((one & scalar).get_width(), 1);
    EXPECT_EQ((!scalar).get_width(), 0);
    EXPECT_EQ((!one).get_width(), 1);
    EXPECT_EQ((!bus).get_width(), 8);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Logic, NameIsMadeOfThatOfTheFirstOperand)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a");
    auto & b = top.input("b");
    auto & both = a & b;
    EXPECT_EQ(both.get_name(), "w_lg_a1w");
    EXPECT_EQ((both | b).get_name(), "w_lg_w_lg_a1w2w");
    EXPECT_EQ((!top.input("input_with_a_name_of_more_than_forty_letters")).get_name(), "w3w");
}

TEST_F(Logic, ScalarAndBusOfOneBitAreSpecial)
{
    open_design top(GNL_VERILOG);
    auto & scalar = top.input("scalar");
    auto & one = top.input("one", 1);
    EXPECT_TRUE((scalar & one).is_special_logic_port());
    EXPECT_TRUE((one ^ scalar).is_special_logic_port());
    EXPECT_FALSE((one & top.input("other", 1)).is_special_logic_port());
    EXPECT_FALSE((scalar & top.input("bus", 8)).is_special_logic_port());
}

TEST_F(Logic, WidthsThatDoNotFitAreReported)
{
    for (std::string const operation : {"AND", "OR", "XOR"}) {
        open_design top(GNL_VERILOG);
        auto & a = top.input("a", 8);
        auto & b = top.input("b", 4);
        auto & made = combine(operation, a, b);
        texts const once{error("Logical operation " + operation
                                   + " performed between top|a of width 8 and top|b of width 4 is illegal as the port "
                                     "widths dont match, and neither of the port widths are 1.",
                               widths_cause)};
        EXPECT_EQ(top.messages(), once);
        EXPECT_EQ(made.get_width(), 8);
        EXPECT_EQ(made.get_connection_level(), nullptr);
        EXPECT_EQ(a.get_driver_count(), 0);
        // The object is found again, and what is found again is not checked.
        EXPECT_EQ(&combine(operation, a, b), &made);
        EXPECT_EQ(top.messages(), once);
    }
}

TEST_F(Logic, ExpressionsOutsideOfTheBodyAreReported)
{
    open_design top(GNL_VERILOG, "", false);
    auto & a = top.input("a");
    auto & b = top.input("b");
    auto & made = a ^ b;
    auto & negated = !a;
    EXPECT_EQ(top.messages(),
              (texts{error("Logical operation XOR between top|a and top|b is being done outside of rtl_body.",
                           body_cause, body_action),
                     error("NOT operation on top|a is being done outside rtl_body.", body_cause, body_action)}));
    EXPECT_EQ(made.get_first_operand(), &a);
    EXPECT_EQ(negated.get_first_operand(), &a);
    EXPECT_EQ(a.get_driver_count(), 0);
}

TEST_F(Logic, OperandsThatCannotBeReadAreReported)
{
    open_design top(GNL_VERILOG);
    auto & own = top.output("own");
    auto & fed = top.child("leaf", "u1").input("fed");
    auto & made = own & fed;
    !own;
    std::string const start = "Logical operation AND cannot be performed on port ";
    std::string const end = ", as port cannot appear in the RHS at the level top";
    EXPECT_EQ(top.messages(),
              (texts{error(start + "top|own with top|leaf inst u1|fed" + end, operand_cause, operand_action),
                     error(start + "top|leaf inst u1|fed with top|own" + end, operand_cause, operand_action),
                     error("Logical operation NOT cannot be performed on port top|own" + end, operand_cause,
                           operand_action)}));
    EXPECT_EQ(made.get_connection_level(), nullptr);
    EXPECT_FALSE(own.check_is_used_flag());
}

TEST_F(Logic, ReadingMarksOutputsAndBidirsAsUsed)
{
    open_design top(GNL_VERILOG);
    auto & leaf = top.child("leaf", "u1");
    auto & q = leaf.output("q");
    auto & io = leaf.bidir("io");
    auto & r = leaf.output("r");
    auto & w = top.wire("w");
    q & io;
    !r;
    !w;
    EXPECT_TRUE(q.check_is_used_flag());
    EXPECT_TRUE(io.check_is_used_flag());
    EXPECT_TRUE(r.check_is_used_flag());
    EXPECT_FALSE(w.check_is_used_flag());
    EXPECT_EQ(r.get_driver_count(), 1);
}

TEST_F(Logic, UnconnectedInputsAreReportedOrReadTheirDefault)
{
    open_design top(GNL_VERILOG, "", false);
    auto & open = top.design::input("open");
    auto & idle = top.design::input("idle", 0, 1);
    auto & fed = top.input("fed", 0, 0);
    top.set_in_rtl_body();
    open | fed;
    fed | open;
    !open;
    EXPECT_EQ(
        top.messages(),
        (texts{error("Input port top|open is being used in logical operation OR with top|fed but the input port has "
                     "no default value and has not been connected.",
                     unconnected_cause),
               error("Input port top|open is being used in logical operation OR with top|fed but the input port has "
                     "no default value and has not been connected.",
                     unconnected_cause),
               error("Input port top|open is being used in logical operation NOT but the input port has no default "
                     "value and has not been connected.",
                     unconnected_cause)}));
    EXPECT_FALSE(idle.is_a_constant_wire());
    fed & idle;
    EXPECT_TRUE(idle.is_a_constant_wire());
    EXPECT_FALSE(fed.is_a_constant_wire());
    EXPECT_FALSE(open.is_a_constant_wire());
}

TEST_F(Logic, NotOfAnInputWithADefaultReadsTheDefault)
{
    open_design top(GNL_VERILOG, "", false);
    auto & idle = top.design::input("idle", 0, 1);
    top.set_in_rtl_body();
    !idle;
    EXPECT_TRUE(idle.is_a_constant_wire());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Logic, RangesTakeTheLevelAndMarkWhatTheyReadAsUsed)
{
    open_design top(GNL_VERILOG);
    auto & q = top.child("leaf", "u1").output("q", 8);
    auto & a = top.input("a", 4);
    auto & part = q.range(3, 0);
    q.set_used(false);
    part & a;
    EXPECT_EQ(part.get_connection_level(), &top);
    EXPECT_TRUE(q.check_is_used_flag());
    auto & bit = q[7];
    !bit;
    EXPECT_EQ(bit.get_connection_level(), &top);
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Logic, ReductionLeansToTheLeft)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a", 3);
    auto & all = a.bitwise_and();
    EXPECT_EQ(described(all, top), "((a[0] & a[1]) & a[2])");
    EXPECT_EQ(described(a.bitwise_or(), top), "((a[0] | a[1]) | a[2])");
    EXPECT_EQ(described(a.bitwise_xor(), top), "((a[0] ^ a[1]) ^ a[2])");
    EXPECT_EQ(&a.bitwise_and(), &all);
    auto & pair = top.input("pair", 2);
    EXPECT_EQ(&pair.bitwise_and(), &(pair.range(0, 0) & pair.range(1, 1)));
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Logic, ReductionOfRowsTakesEveryBit)
{
    open_design top(GNL_VERILOG);
    auto & rows = *new GNL_PORT_INPUT(&top, "rows", 2, 2);
    rows.set_used();
    EXPECT_EQ(described(rows.bitwise_or(), top), "(((rows[0] | rows[1]) | rows[2]) | rows[3])");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Logic, ReductionOfOneBitIsReported)
{
    open_design top(GNL_VERILOG);
    auto & scalar = top.input("scalar");
    auto & one = top.input("one", 1);
    auto & made = scalar.bitwise_and();
    scalar.bitwise_or();
    one.bitwise_xor();
    auto const expected = [](std::string const & operation, std::string const & name) {
        return error("Logical operation bitwise " + operation + " cannot be performed on port " + name
                         + ", as port is not a bus ",
                     "Bitwise operators can be used only on ports that are atleast 2 bits wide.",
                     "Remove the bitwise operator function or check the bus width size.");
    };
    EXPECT_EQ(top.messages(),
              (texts{expected("AND", "top|scalar"), expected("OR", "top|scalar"), expected("XOR", "top|one")}));
    EXPECT_EQ(made.get_operation(), 2);
    EXPECT_EQ(made.get_first_operand(), &scalar);
    EXPECT_EQ(made.get_second_operand(), &scalar);
}

TEST_F(Logic, KeyHoldsTheKeysOfTheOperandsAndTheirParents)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a");
    auto & b = top.input("b");
    std::string const parent = a.get_parent_key();
    EXPECT_EQ(GNL_PORT_LOGIC::generate_key_base("AND", "x", "y"), "LGC;AND;x;y");
    EXPECT_EQ(GNL_PORT_LOGIC::generate_key_base("NOT", "x", ""), "LGC;NOT;x");
    EXPECT_EQ((!a).generate_key(), "LGC;NOT;PORT;a;" + parent);
    EXPECT_EQ((a & b).generate_key(), "LGC;AND;PORT;a;" + parent + ";PORT;b;" + parent);
    auto & nested = !a ^ (a | b);
    EXPECT_EQ(nested.generate_key(), GNL_PORT_LOGIC::generate_key_base("XOR", (!a).generate_key() + ";" + parent,
                                                                       (a | b).generate_key() + ";" + parent));
    EXPECT_EQ(top.find_port_object(nested.generate_key()), &nested);
}

TEST_F(Logic, NameInMessages)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a");
    auto & b = top.input("b");
    EXPECT_EQ((a & b).get_hierarchical_name(), "a AND b");
    EXPECT_EQ((a | b).get_hierarchical_name(), "a OR b");
    EXPECT_EQ((a ^ b).get_hierarchical_name(), "a EXOR b");
    EXPECT_EQ((!a).get_hierarchical_name(), "a");
    EXPECT_EQ((new GNL_PORT_LOGIC(&top, 7, &a, &b))->get_hierarchical_name(), "a UNKNOWN b");
}

TEST_F(Logic, ReplacedOperandsPassTheirCountOn)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a");
    auto & b = top.input("b");
    auto & c = top.input("c");
    auto & both = a & b;
    both.replace_first_operand(&c);
    EXPECT_EQ(both.get_first_operand(), &c);
    EXPECT_EQ(a.get_driver_count(), 0);
    EXPECT_EQ(c.get_driver_count(), 1);
    both.replace_second_operand(&a);
    EXPECT_EQ(both.get_second_operand(), &a);
    EXPECT_EQ(b.get_driver_count(), 0);
    EXPECT_EQ(a.get_driver_count(), 1);
}

TEST_F(Logic, StandardLogicIsWhatHoldsAScalar)
{
    open_design top(GNL_VHDL);
    auto & s = top.input("s");
    auto & v = top.input("v", 1);
    auto & bus = top.input("bus", 8);
    EXPECT_TRUE((s & bus).is_std_logic_port());
    EXPECT_TRUE((bus & s).is_std_logic_port());
    EXPECT_FALSE((v & bus).is_std_logic_port());
    EXPECT_TRUE((!s).is_std_logic_port());
    EXPECT_FALSE((!v).is_std_logic_port());
    EXPECT_TRUE((bus[3] & v).is_std_logic_port());
    auto & deep = !((v & bus) | bus);
    EXPECT_FALSE(deep.is_std_logic_port());
    (v & bus).replace_first_operand(&s);
    EXPECT_TRUE(deep.is_std_logic_port());
}

TEST_F(Logic, IndexOfAOneBitResult)
{
    open_design top(GNL_VHDL);
    auto & s = top.input("s");
    auto & v = top.input("v", 1);
    auto & w = top.input("w", 1);
    auto & bus = top.input("bus", 8);
    EXPECT_TRUE((v & w).need_vhdl_index());
    EXPECT_FALSE((v & s).need_vhdl_index());
    EXPECT_FALSE((!v).need_vhdl_index());
    EXPECT_FALSE((v & bus).need_vhdl_index());
    EXPECT_FALSE((v & bus[1]).need_vhdl_index());
    EXPECT_FALSE((v & (v | w)).need_vhdl_index());
    v.set_create_vhdl_loop();
    EXPECT_FALSE((v & w).need_vhdl_index());
}

TEST_F(Logic, WidthsThatDifferAskForALoopInVhdl)
{
    open_design top(GNL_VHDL);
    auto & s = top.input("s");
    auto & t = top.input("t");
    auto & a = top.input("a", 4);
    auto & b = top.input("b", 4);
    auto & inner = s & t;
    auto & other = a | b;
    EXPECT_FALSE(inner.need_to_create_vhdl_loop());
    auto & mixed = inner & other;
    EXPECT_TRUE(mixed.need_to_create_vhdl_loop());
    EXPECT_TRUE(inner.need_to_create_vhdl_loop());
    EXPECT_TRUE(other.need_to_create_vhdl_loop());
    EXPECT_FALSE(a.need_to_create_vhdl_loop());
    EXPECT_FALSE((mixed | a).need_to_create_vhdl_loop());
    EXPECT_FALSE((!mixed).need_to_create_vhdl_loop());

    auto & bit = a[2];
    bit | b;
    EXPECT_TRUE(bit.need_to_create_vhdl_loop());
}

TEST_F(Logic, SpecialOperandsAskForALoopInVhdl)
{
    open_design top(GNL_VHDL);
    auto & s = top.input("s");
    auto & v = top.input("v", 1);
    auto & special = s & v;
    EXPECT_FALSE(special.need_to_create_vhdl_loop());
    special | v; // widths of 0 and 1: special again
    EXPECT_FALSE(special.need_to_create_vhdl_loop());
    special | s;
    EXPECT_TRUE(special.need_to_create_vhdl_loop());
    auto & second = v & s;
    v | second;
    EXPECT_TRUE(second.need_to_create_vhdl_loop());
}

TEST_F(Logic, OneBitOfABusBesideAnExpressionAsksForALoopInVhdl)
{
    open_design top(GNL_VHDL);
    auto & a = top.input("a", 4);
    auto & v = top.input("v", 1);
    auto & w = top.input("w", 1);
    EXPECT_TRUE((a[0] & (v | w)).need_to_create_vhdl_loop());
    EXPECT_FALSE(((v ^ w) & a[0]).need_to_create_vhdl_loop());
    EXPECT_FALSE((a[1] & a[2]).need_to_create_vhdl_loop());
}

TEST_F(Logic, LoopTravelsDownWithinALevel)
{
    open_design top(GNL_VHDL);
    auto & a = top.input("a", 4);
    auto & b = top.input("b", 4);
    auto & part = top.input("c", 8).range(3, 0);
    auto & low = part & a;
    auto & elsewhere = a ^ b;
    elsewhere.set_connection_level(nullptr);
    auto & high = (low | b) & elsewhere;
    high.set_create_vhdl_loop();
    EXPECT_TRUE((low | b).need_to_create_vhdl_loop());
    EXPECT_TRUE(low.need_to_create_vhdl_loop());
    EXPECT_TRUE(part.need_to_create_vhdl_loop());
    EXPECT_FALSE(elsewhere.need_to_create_vhdl_loop());
    EXPECT_FALSE(a.need_to_create_vhdl_loop());
}

TEST_F(Logic, LoopsAreForVhdlAlone)
{
    open_design top(GNL_VERILOG);
    auto & mixed = top.input("a", 4) & top.input("s");
    mixed.set_create_vhdl_loop();
    EXPECT_FALSE(mixed.has_create_vhdl_loop());
}

TEST_F(Logic, PortsWithoutADesignCanBeCombined)
{
    GNL_WIRE a(nullptr, "a", 4);
    GNL_WIRE b(nullptr, "b", 4);
    auto & both = a & b;
    EXPECT_EQ(both.get_width(), 4);
    EXPECT_EQ(both.get_name(), "wire_lga0");
    EXPECT_EQ((!a).get_first_operand(), &a);
    GNL_WIRE narrow(nullptr, "narrow", 2);
    EXPECT_EQ((a | narrow).get_second_operand(), &narrow);
}

TEST_F(Logic, OneOperandStandsTwice)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a");
    auto & twice = a & a;
    EXPECT_EQ(a.get_driver_count(), 2);
    EXPECT_EQ(described(twice, top), "(a & a)");
}

} // namespace
