// What the reader makes of QHDL text, and what it refuses.

#include "qhdl/qhdl_reader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

/// The Verilog text of a design "top" with these pins, variables and statements.
std::string module_of(std::string const & pins, std::string const & variables, std::string const & statements,
                      std::string const & others = "")
{
    qhdl::reader designs;
    designs.add_cell("FUNCTION cell (d[1..0], e) WITH (DEPTH, MODE) RETURNS (q[1..0], s);");
    designs.add_cell("FUNCTION pad (d) RETURNS (q);");
    designs.add("top.tdf",
                others + "SUBDESIGN top\n( \n" + pins + ") " + variables + "BEGIN \n" + statements + "END;\n");
    return designs.verilog();
}

/// What the reader says against such a design, without "top.tdf:".
std::string refusal(std::string const & pins, std::string const & variables, std::string const & statements)
{
    try {
        module_of(pins, variables, statements);
    } catch (qhdl::error const & refused) {
        std::string const text = refused.what();
        return text.starts_with("top.tdf:") ? text.substr(8) : text;
    }
    return "";
}

std::string refusal_of_text(std::string const & text)
{
    try {
        qhdl::reader().add("top.tdf", text);
    } catch (qhdl::error const & refused) {
        return refused.what();
    }
    return "";
}

constexpr char pins[] = "\ta[3..0]\t:\tinput;\n\tb[3..0]\t:\tinput;\n\ts\t:\tinput;\n\ty[3..0]\t:\toutput;\n";
/// A statement that makes a design of these pins complete. The first one stands in line 8.
constexpr char unused[] = "\ty[] = a[];\n";

// ---- What it makes

TEST(QhdlReader, SignalsOfADesign)
{
    EXPECT_EQ(module_of("\ta\t:\tinput;\n\ty[0..0]\t:\toutput;\n\tz\t:\toutput;\n\tp[1..0]\t:\tbidir;\n",
                        "VARIABLE \n\tn\t: NODE;\n\tw[1..0]\t: WIRE;\n\n",
                        "\tn = a;\n\tp[] = w[];\n\tw[] = ( n, a);\n\ty[] = a;\n\tz = w[1..1];\n"),
              "module top(a, y, z, p);\n"
              "  input a;\n"
              "  output [0:0] y;\n"
              "  output z;\n"
              "  inout [1:0] p;\n"
              "  wire n;\n"
              "  wire [1:0] w;\n"
              "  assign n = a;\n"
              "  assign p[1:0] = w[1:0];\n"
              "  assign w[1:0] = {n, a};\n"
              "  assign y[0:0] = a;\n"
              "  assign z = w[1:1];\n"
              "endmodule\n");
}

/// The source of the only statement, which drives `y`.
std::string source_of(std::string const & expression)
{
    auto const text = module_of(pins, "", "\ty[] = " + expression + ";\n");
    auto const from = text.find("assign y[3:0] = ") + 16;
    return text.substr(from, text.find(";\n", from) - from);
}

TEST(QhdlReader, Expressions)
{
    EXPECT_EQ(source_of("(a[] & (! b[]))"), "(a[3:0] & (~b[3:0]))");
    EXPECT_EQ(source_of("a[] # b[] $ a[] & b[]"), "(a[3:0] | (b[3:0] ^ (a[3:0] & b[3:0])))");
    EXPECT_EQ(source_of("a[] & b[] & a[]"), "((a[3:0] & b[3:0]) & a[3:0])");
    EXPECT_EQ(source_of("(a[] # s)"), "(a[3:0] | {4{s}})");
    EXPECT_EQ(source_of("a[2..2] $ b[]"), "({4{a[2:2]}} ^ b[3:0])");
    EXPECT_EQ(source_of("( a[1..0], s, b[3])"), "{a[1:0], s, b[3:3]}");
    EXPECT_EQ(source_of("B\"0101\""), "4'b0101");
    EXPECT_EQ(source_of("VCC"), "{4{1'b1}}");
    EXPECT_EQ(source_of("gnd"), "{4{1'b0}}");
    EXPECT_EQ(source_of("( VCC, a[1..0], GND)"), "{1'b1, a[1:0], 1'b0}");
}

TEST(QhdlReader, ANarrowSourceFillsItsTarget)
{
    EXPECT_EQ(source_of("s"), "{4{s}}");
    EXPECT_EQ(source_of("a[3..2]"), "{2{a[3:2]}}");
    EXPECT_EQ(source_of("( s, a[0..0])"), "{2{{s, a[0:0]}}}");
}

TEST(QhdlReader, InstancesAndArraysOfThem)
{
    EXPECT_EQ(module_of(pins,
                        "VARIABLE \n\tone : cell\n\t\tWITH (\n\t\t\tDEPTH = 3,\n\t\t\tMODE = \"FAST\"\n\t\t);\n"
                        "\trow[1..0] : cell;\n\n",
                        "\tone.d[] = a[1..0];\n\tone.e = s;\n\trow[].d[] = a[];\n\trow[0].e = one.s;\n\trow1.e = s;\n"
                        "\ty[] = row[1..0].q[] & ( one.q[0..0], row[].s, B\"1\");\n"),
              "module top(a, b, s, y);\n"
              "  input [3:0] a;\n"
              "  input [3:0] b;\n"
              "  input s;\n"
              "  output [3:0] y;\n"
              "  wire [1:0] one$d;\n"
              "  wire one$e;\n"
              "  wire [1:0] one$q;\n"
              "  wire one$s;\n"
              "  cell #(.DEPTH(3), .MODE(\"FAST\")) one (.d(one$d), .e(one$e), .q(one$q), .s(one$s));\n"
              "  wire [1:0] row0$d;\n"
              "  wire row0$e;\n"
              "  wire [1:0] row0$q;\n"
              "  wire row0$s;\n"
              "  cell row0 (.d(row0$d), .e(row0$e), .q(row0$q), .s(row0$s));\n"
              "  wire [1:0] row1$d;\n"
              "  wire row1$e;\n"
              "  wire [1:0] row1$q;\n"
              "  wire row1$s;\n"
              "  cell row1 (.d(row1$d), .e(row1$e), .q(row1$q), .s(row1$s));\n"
              "  assign one$d[1:0] = a[1:0];\n"
              "  assign one$e = s;\n"
              "  assign {row1$d[1:0], row0$d[1:0]} = a[3:0];\n"
              "  assign row0$e = one$s;\n"
              "  assign row1$e = s;\n"
              "  assign y[3:0] = ({row1$q[1:0], row0$q[1:0]} & {one$q[0:0], {row1$s, row0$s}, 1'b1});\n"
              "endmodule\n");
}

/// Slices that differ are declared one by one, and are reached as those of an array are.
TEST(QhdlReader, InstancesWithNumbersAreAnArray)
{
    auto const text =
        module_of("\ta[1..0]\t:\tinput;\n\ty[1..0]\t:\toutput;\n", "VARIABLE \n\tu0 : pad;\n\tu1 : pad;\n\n",
                  "\tu[1..0].d = a[];\n\ty[] = ( u[1].q, u0.q);\n");
    EXPECT_NE(text.find("  assign {u1$d, u0$d} = a[1:0];\n  assign y[1:0] = {u1$q, u0$q};\n"), std::string::npos);
}

TEST(QhdlReader, ABidirectionalPortMeetsItsNode)
{
    qhdl::reader designs;
    designs.add("leaf.tdf", "SUBDESIGN leaf\n( \n\tio[1..0]\t:\tbidir;\n) BEGIN \nEND;\n");
    designs.add("top.tdf", "SUBDESIGN top\n( \n\ta[1..0]\t:\tinput;\n\ty[1..0]\t:\toutput;\n\tz[1..0]\t:\toutput;\n) "
                           "VARIABLE \n\tu : leaf;\n\tu_io[1..0]\t:\tNODE;\n\tv : leaf;\n\tw : leaf;\n\nBEGIN \n"
                           "\tu_io[] = a[];\n\tu_io[] = u.io[];\n\tv.io[] = a[];\n\ty[] = u_io[];\n\tz[] = w.io[];\n"
                           "END;\n");
    EXPECT_EQ(designs.verilog(), "module leaf(io);\n"
                                 "  inout [1:0] io;\n"
                                 "endmodule\n"
                                 "module top(a, y, z);\n"
                                 "  input [1:0] a;\n"
                                 "  output [1:0] y;\n"
                                 "  output [1:0] z;\n"
                                 "  wire [1:0] u_io;\n"
                                 "  leaf u (.io(u_io[1:0]));\n"
                                 "  wire [1:0] v$io;\n"
                                 "  leaf v (.io(v$io));\n"
                                 "  wire [1:0] w$io;\n"
                                 "  leaf w (.io(w$io));\n"
                                 "  assign u_io[1:0] = a[1:0];\n"
                                 "  assign v$io[1:0] = a[1:0];\n"
                                 "  assign y[1:0] = u_io[1:0];\n"
                                 "  assign z[1:0] = w$io[1:0];\n"
                                 "endmodule\n");
}

TEST(QhdlReader, WhatStandsInFrontOfADesign)
{
    auto const text = module_of(pins, "", unused,
                                "--top a y\n--\n\ninclude \"cell.inc\";\nOPTIONS QELVAR_INTERNAL_OPTION = \"A=B\";\n"
                                "FUNCTION cell (d[1..0], e) WITH ( DEPTH, MODE = \"FAST\") RETURNS ( q[1..0], s);\n");
    EXPECT_NE(text.find("  assign y[3:0] = a[3:0];\n"), std::string::npos);
}

TEST(QhdlReader, NamesDifferInMoreThanCase)
{
    auto const text = module_of(pins, "VARIABLE \n\tU : Cell;\n\tW\t: wire;\n\n",
                                "\tu.D[] = A[1..0];\n\tu.e = w;\n\tw = S;\n\ty[] = b[];\n");
    EXPECT_NE(text.find("  assign U$d[1:0] = a[1:0];\n  assign U$e = W;\n  assign W = s;\n"), std::string::npos)
        << text;
}

// ---- What it refuses: the text itself

TEST(QhdlReader, RefusesWhatIsNoWord)
{
    EXPECT_EQ(refusal_of_text("SUBDESIGN top\n( \n\ta\t:\tinput;\n) BEGIN \n\ta @ b;\nEND;\n"),
              "top.tdf:5:4: unknown character \"@\"");
    EXPECT_EQ(refusal_of_text("include \"cell.inc;\n"), "top.tdf:1:9: the string has no end");
    EXPECT_EQ(refusal(pins, "", "\ty[] = B\"0121\";\n"), "8:8: \"0121\" are no binary digits");
    EXPECT_EQ(refusal(pins, "", "\ty[] = B\"\";\n"), "8:8: \"\" are no binary digits");
}

TEST(QhdlReader, RefusesOtherStructures)
{
    EXPECT_EQ(refusal_of_text(""), "top.tdf:1:1: expected \"subdesign\", found the end of the text");
    EXPECT_EQ(refusal_of_text("SUBDESIGN top\n( \n\ta\t:\tinput\n) BEGIN \nEND;\n"),
              "top.tdf:4:1: expected \";\", found \")\"");
    EXPECT_EQ(refusal_of_text("SUBDESIGN top\n( \n\ta\t:\twire;\n) BEGIN \nEND;\n"),
              "top.tdf:3:6: expected a direction, found \"wire\"");
    EXPECT_EQ(refusal_of_text("SUBDESIGN top\n( \n\ta[3..1]\t:\tinput;\n) BEGIN \nEND;\n"),
              "top.tdf:3:4: a declared range goes down to 0");
    EXPECT_EQ(refusal_of_text("SUBDESIGN top\n( \n\ta[W-2..0]\t:\tinput;\n) BEGIN \nEND;\n"),
              "top.tdf:3:4: a range by a parameter ends one below it");
    EXPECT_EQ(refusal_of_text("SUBDESIGN top\n( \n\tnode\t:\tinput;\n) BEGIN \nEND;\n"),
              "top.tdf:3:2: expected a name, found \"node\"");
    EXPECT_EQ(refusal_of_text("SUBDESIGN top\n( \n) BEGIN \nEND;\nEND;\n"),
              "top.tdf:5:1: expected the end of the text, found \"END\"");
    EXPECT_EQ(refusal_of_text("PARAMETERS\n(\n\tW = 3\n);\nSUBDESIGN top\n( \n) BEGIN \nEND;\n"),
              "top.tdf:1:1: designs with parameters of their own are not known");
    EXPECT_EQ(refusal_of_text("SUBDESIGN other\n( \n) BEGIN \nEND;\n"), "top.tdf:1:11: the design is named other");
    EXPECT_EQ(refusal(pins, "VARIABLE \n", unused), "8:1: expected a name, found \"BEGIN\"");
    EXPECT_EQ(refusal(pins, "VARIABLE \n\tu[W-1..0] : cell;\n", unused), "8:2: the width of a variable is a number");
    EXPECT_EQ(refusal(pins, "VARIABLE \n\tu : cell WITH ();\n", unused), "8:17: expected a name, found \")\"");
    EXPECT_EQ(refusal(pins, "VARIABLE \n\tw : WIRE WITH (A = 1);\n", unused), "8:11: expected \";\", found \"WITH\"");
    EXPECT_EQ(refusal(pins, "VARIABLE \n\tw[12345678..0] : WIRE;\n", unused), "8:4: 12345678 is too large");
}

TEST(QhdlReader, RefusesOtherStatements)
{
    EXPECT_EQ(refusal(pins, "", "\ty[] = ;\n"), "8:8: expected a name, found \";\"");
    EXPECT_EQ(refusal(pins, "", "\ty[] = ( a[], );\n"), "8:15: expected a name, found \")\"");
    EXPECT_EQ(refusal(pins, "", "\ty[] = a[] b[];\n"), "8:12: expected \";\", found \"b\"");
    EXPECT_EQ(refusal(pins, "", "\ty[] = a[0..3];\n"), "8:9: the range goes up");
    EXPECT_EQ(refusal(pins, "", "\ty[] = 5;\n"), "8:8: expected a name, found \"5\"");
    EXPECT_EQ(refusal(pins, "", "\tASSERT (0) \n\tREPORT \"no\"\n\tSEVERITY ERROR;\n"),
              "8:2: the design reports \"no\"");
}

// ---- What it refuses: names and widths

TEST(QhdlReader, RefusesNamesThatAreNotDeclared)
{
    EXPECT_EQ(refusal(pins, "", "\tx[] = a[];\n"), "8:2: x is not declared");
    EXPECT_EQ(refusal(pins, "", "\ty[] = u.q[];\n"), "8:8: u is no such instance");
    EXPECT_EQ(refusal(pins, "VARIABLE \n\tu : lut;\n", unused), "8:2: there is no design or cell lut");
    std::string const cell = "VARIABLE \n\tu : pad;\n\tr[1..0] : pad;\n\n";
    EXPECT_EQ(refusal(pins, cell, "\ty[] = u.o;\n"), "12:8: pad has no port o");
    EXPECT_EQ(refusal(pins, cell, "\ty[] = r.q;\n"), "12:8: r is an array");
    EXPECT_EQ(refusal(pins, cell, "\ty[] = u[].q;\n"), "12:8: u is no array");
    EXPECT_EQ(refusal(pins, cell, "\ty[] = r[2].q;\n"), "12:8: r is no such instance");
}

TEST(QhdlReader, RefusesNamesThatAreThereTwice)
{
    EXPECT_EQ(refusal(pins, "VARIABLE \n\tA\t: WIRE;\n", unused), "8:2: the name a is there already");
    EXPECT_EQ(refusal(pins, "VARIABLE \n\ta1\t: WIRE;\n", unused), "8:2: the name a1 is there already");
    EXPECT_EQ(refusal(pins, "VARIABLE \n\ts[1..0] : pad;\n", unused), "8:2: the name s is there already");
    EXPECT_EQ(refusal(pins, "VARIABLE \n\tu0 : pad;\n\tu[1..0] : pad;\n", unused), "9:2: the name u0 is there already");
}

TEST(QhdlReader, RefusesBusesWithoutARangeAndBitsWithOne)
{
    EXPECT_EQ(refusal(pins, "", "\ty = a[];\n"), "8:2: y is a bus and needs a range");
    EXPECT_EQ(refusal(pins, "", "\ty[] = s[];\n"), "8:8: s is one bit and has no range");
    EXPECT_EQ(refusal(pins, "", "\ty[] = a[4..1];\n"), "8:9: a has 4 bits");
    EXPECT_EQ(refusal(pins, "VARIABLE \n\tu : cell;\n\n", "\tu.d = a[1..0];\n"),
              "11:2: u.d is a bus and needs a range");
}

TEST(QhdlReader, RefusesWidthsThatDontFit)
{
    EXPECT_EQ(refusal(pins, "", "\ty[] = ( s, a[1..0]);\n"), "8:2: 4 bits are driven by 3");
    EXPECT_EQ(refusal(pins, "", "\ty[1..0] = a[];\n"), "8:2: 2 bits are driven by 4");
    EXPECT_EQ(refusal(pins, "", "\ty[] = B\"01\";\n"), "8:2: 4 bits are driven by 2");
    EXPECT_EQ(refusal(pins, "", "\ty[] = (a[] & b[1..0]);\n"), "8:13: one side has 4 bits and the other 2");
}

// ---- What it refuses: drivers

TEST(QhdlReader, RefusesWhatCantBeDrivenOrRead)
{
    std::string const cell = "VARIABLE \n\tu : pad;\n\n";
    EXPECT_EQ(refusal(pins, "", "\ta[] = b[];\n"), "8:2: a can't be driven");
    EXPECT_EQ(refusal(pins, cell, "\tu.q = s;\n"), "11:2: u.q can't be driven");
    EXPECT_EQ(refusal(pins, cell, "\tu.d = s;\n\ty[] = u.d;\n"), "12:8: u.d can't be read");
    EXPECT_EQ(refusal(pins, cell, "\tu.d = y[0..0];\n\ty[] = a[];\n"), "11:8: y can't be read");
}

TEST(QhdlReader, RefusesBitsThatAreDrivenTwiceOrNotAtAll)
{
    std::string const wire = "VARIABLE \n\tw[1..0]\t: WIRE;\n\tu : pad;\n\n";
    EXPECT_EQ(refusal(pins, "", "\ty[] = a[];\n\ty[1..1] = s;\n"), "9:2: y is driven already");
    EXPECT_EQ(refusal(pins, "", "\ty[2..0] = a[2..0];\n"), "6:2: y is not driven");
    EXPECT_EQ(refusal(pins, wire, "\ty[] = w[];\n\tw[0..0] = s;\n\tu.d = s;\n"), "12:8: w is read, but not driven");
    EXPECT_EQ(refusal(pins, wire, "\ty[] = w[0..0];\n\tw[0..0] = s;\n"), "");
    EXPECT_EQ(refusal(pins, "VARIABLE \n\tc : cell;\n\n", "\ty[] = a[];\n\tc.d[0..0] = s;\n"),
              "8:2: c.d is not driven");
}

/// A cell may have defaults for them, a design has none.
TEST(QhdlReader, RefusesOpenInputsOfDesigns)
{
    qhdl::reader designs;
    designs.add("leaf.tdf", "SUBDESIGN leaf\n( \n\ta\t:\tinput;\n) BEGIN \nEND;\n");
    designs.add("top.tdf", "SUBDESIGN top\n( \n) VARIABLE \n\tu : leaf;\n\nBEGIN \nEND;\n");
    try {
        designs.verilog();
        FAIL();
    } catch (qhdl::error const & refused) {
        EXPECT_STREQ(refused.what(), "top.tdf:4:2: u.a is not driven");
    }
}

TEST(QhdlReader, LeavesOpenInputsOfCellsOut)
{
    auto const text = module_of(pins, "VARIABLE \n\tu : cell;\n\n", "\ty[] = ( u.q[], a[1..0]);\n\tu.e = s;\n");
    EXPECT_NE(text.find("  cell u (.e(u$e), .q(u$q), .s(u$s));\n"), std::string::npos) << text;
}

std::string refusal_of_pads(std::string const & variables, std::string const & statements)
{
    try {
        qhdl::reader designs;
        designs.add("leaf.tdf", "SUBDESIGN leaf\n( \n\tio\t:\tbidir;\n) BEGIN \nEND;\n");
        designs.add("top.tdf", "SUBDESIGN top\n( \n\ta\t:\tinput;\n) VARIABLE \n" + variables + "BEGIN \n" + statements
                                   + "END;\n");
        designs.verilog();
    } catch (qhdl::error const & refused) {
        return refused.what();
    }
    return "";
}

TEST(QhdlReader, RefusesPortsThatMeetTwoNodes)
{
    std::string const variables = "\tu : leaf;\n\tn\t:\tNODE;\n\tm\t:\tNODE;\n\tb[1..0]\t:\tNODE;\n";
    EXPECT_EQ(refusal_of_pads(variables, "\tn = u.io;\n\tn = a;\n"), "");
    EXPECT_EQ(refusal_of_pads(variables, "\tn = u.io;\n\tm = u.io;\n"),
              "top.tdf:11:6: a port meets one node, and whole");
    EXPECT_EQ(refusal_of_pads(variables, "\tb[] = u.io;\n"), "top.tdf:10:2: the node and the port differ in width");
    EXPECT_EQ(refusal_of_pads(variables, "\tn = u.io;\n\tu.io = a;\n"), "top.tdf:11:2: u.io is driven by its node");
}

// ---- What it refuses: sets of designs

TEST(QhdlReader, RefusesFunctionsThatAreDeclaredOtherwise)
{
    auto const of = [](std::string const & function) {
        try {
            module_of(pins, "", unused, function);
        } catch (qhdl::error const & refused) {
            return std::string(refused.what());
        }
        return std::string();
    };
    EXPECT_EQ(of("FUNCTION unknown (x) RETURNS (y);\n"), "");
    EXPECT_EQ(of("FUNCTION pad (d) RETURNS (q);\n"), "");
    EXPECT_EQ(of("FUNCTION cell (d[W-1..0], e) WITH (W) RETURNS (q[1..0], s);\n"), "");
    EXPECT_EQ(of("FUNCTION pad (d[0..0]) RETURNS (q);\n"), "top.tdf:1:15: pad has no such port d");
    EXPECT_EQ(of("FUNCTION pad (q) RETURNS (d);\n"), "top.tdf:1:15: pad has no such port q");
    EXPECT_EQ(of("FUNCTION pad (d) RETURNS ();\n"), "top.tdf:1:10: not all ports of pad are declared");
}

TEST(QhdlReader, RefusesCellsOfUnknownWidth)
{
    qhdl::reader designs;
    designs.add_cell("FUNCTION ram (a[W-1..0]) WITH (W) RETURNS (q);");
    designs.add("top.tdf", "SUBDESIGN top\n( \n) VARIABLE \n\tu : ram;\nBEGIN \nEND;\n");
    EXPECT_THROW(designs.verilog(), qhdl::error);
}

TEST(QhdlReader, RefusesDesignsAndCellsThatAreThereTwice)
{
    qhdl::reader designs;
    std::string const text = "SUBDESIGN top\n( \n) BEGIN \nEND;\n";
    designs.add("top.tdf", text);
    EXPECT_THROW(designs.add("top.tdf", text), qhdl::error);
    designs.add_cell("FUNCTION pad (d) RETURNS (q);");
    EXPECT_THROW(designs.add_cell("FUNCTION Pad (d) RETURNS (q);"), qhdl::error);
    EXPECT_THROW(designs.add_cell("FUNCTION two (d) RETURNS (q); FUNCTION three (d) RETURNS (q);"), qhdl::error);
}

TEST(QhdlReader, TakesTheValidFilesOfAFolder)
{
    auto pattern = (std::filesystem::temp_directory_path() / "lbx-qhdl-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    std::filesystem::path const folder = pattern;
    std::ofstream(folder / "notes.txt") << "no design";
    std::ofstream(folder / "top.tdf") << "SUBDESIGN top\n( \n) BEGIN \nEND;\n--VALID FILE\n";
    qhdl::reader designs;
    designs.add_folder(folder);
    EXPECT_EQ(designs.verilog(), "module top();\nendmodule\n");
    std::ofstream(folder / "bad.tdf") << "SUBDESIGN bad\n( \n) BEGIN \nEND;\n--ERROR FILE\n";
    EXPECT_THROW(qhdl::reader().add_folder(folder), qhdl::error);
    std::filesystem::remove_all(folder);
}

} // namespace
