#pragma once

// Designs of runs that depart from one text for each design: black boxes, wrappers, side files, gates instead of
// expressions, parameters from above.

#include "golden_designs.h"
#include "golden_table.h"

namespace gnl_test {

/// A stage, which a run may box, and an inverter behind it.
inline std::unique_ptr<design> boxes(std::string const & options)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    auto & d = top->input("d", 4);
    auto & q = top->output("q", 4);
    top->body = [&](design & of) {
        auto & first = stage(of, "u1", 4, 1);
        auto & second = of.child("inv", "u2");
        auto & in = second.input("d", 4);
        auto & out = second.output("q", 4);
        second.body = [&](design &) { out = ~in; };
        first.port("d") = d;
        in = first.port("q");
        q = out;
    };
    return top;
}

/// Models of what is boxed. Everybody leaves `en` at its default, which some tools read as a comment: the models don't
/// read it.
inline outside_cell const boxed{"module stage(d, en, q);\n"
                                "\tparameter held = 0, HELD = 0;\n" // names of parameters keep their case in QHDL
                                "\tparameter lpm_type = \"stage\";\n"
                                "\tinput [3:0] d;\n"
                                "\tinput en;\n"
                                "\toutput [3:0] q;\n"
                                "\tassign q = ~(d & ~(held + HELD));\n"
                                "endmodule\n"
                                "module inv(d, q);\n"
                                "\tinput [3:0] d;\n"
                                "\toutput [3:0] q;\n"
                                "\tassign q = ~d;\n"
                                "endmodule\n",
                                "library ieee;\n"
                                "use ieee.std_logic_1164.all;\n"
                                "use ieee.numeric_std.all;\n"
                                "entity stage is\n"
                                "  generic (HELD : natural := 0; lpm_hint : string := \"UNUSED\";\n"
                                "           lpm_type : string := \"stage\");\n"
                                "  port (d : in std_logic_vector(3 downto 0); en : in std_logic := '1';\n"
                                "        q : out std_logic_vector(3 downto 0));\n"
                                "end stage;\n"
                                "architecture model of stage is\n"
                                "begin\n"
                                "  q <= not (d and not std_logic_vector(to_unsigned(HELD, 4)));\n"
                                "end model;\n"
                                "library ieee;\n"
                                "use ieee.std_logic_1164.all;\n"
                                "entity inv is\n"
                                "  generic (lpm_hint : string := \"UNUSED\"; lpm_type : string := \"inv\");\n"
                                "  port (d : in std_logic_vector(3 downto 0); q : out std_logic_vector(3 downto 0));\n"
                                "end inv;\n"
                                "architecture model of inv is\n"
                                "begin\n"
                                "  q <= not d;\n"
                                "end model;\n",
                                "FUNCTION stage (d[3..0], en) WITH (HELD) RETURNS (q[3..0]);\n"
                                "FUNCTION inv (d[3..0]) RETURNS (q[3..0]);"};

inline std::unique_ptr<design> gates(std::string const & options)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    auto & a = top->input("a", 2);
    auto & b = top->input("b", 2);
    auto & s = top->input("s");
    auto & y = top->output("y", 2);
    auto & z = top->output("z");
    top->body = [&](design &) {
        y = (a & b) | s;
        z = !s;
    };
    return top;
}

/// Makes parameter arrays that live as long as whoever holds them.
struct kept_arrays
{
    std::vector<std::unique_ptr<GNL_PARAMETER_ARRAY>> all;

    GNL_PARAMETER_INTEGER_ARRAY & numbers(GNL_GENERATOR & of, int default_value)
    {
        auto made = std::make_unique<GNL_PARAMETER_INTEGER_ARRAY>(&of, "COEF", default_value);
        auto & array = *made;
        all.push_back(std::move(made));
        return array;
    }
    GNL_PARAMETER_STRING_ARRAY & words(GNL_GENERATOR & of, std::string const & name)
    {
        auto made = std::make_unique<GNL_PARAMETER_STRING_ARRAY>(&of, name, "", -1);
        auto & array = *made;
        all.push_back(std::move(made));
        return array;
    }
};

/// A level that holds a cell whose parameters are given further up.
inline void cell_with_inherited_parameters(design & middle, kept_arrays & arrays)
{
    auto & cell = *new GNL_PRIMITIVE(&middle, "fir", "iname=u_fir");
    auto & in = *cell.add_input_port_to_primitive("d", 4, -1);
    auto & out = *cell.add_output_port_to_primitive("q", 4, -1);
    auto & rate = *cell.add_integer_parameter_to_primitive("RATE");
    rate.set_as_inherit_allowed();
    auto & mode = *cell.add_string_parameter_to_primitive("MODE");
    mode.set_as_inherit_allowed();
    *cell.add_integer_parameter_to_primitive("SIZE") = 4;
    in = middle.port("d");
    middle.port("q") = out;
    arrays.numbers(cell, -1);
    arrays.words(cell, "WORD");
}

inline std::unique_ptr<design> parameters_from_above(std::string const & options)
{
    auto made = std::make_unique<design>(nullptr, "top", options.c_str());
    auto & top = *made;
    auto & d = top.input("d", 4);
    auto & q = top.output("q", 4);
    top.integer("RATE", 44);
    top.string("MODE", "FAST|SLOW", 0);
    auto arrays = std::make_shared<kept_arrays>();
    arrays->numbers(top, -1);
    arrays->words(top, "WORD");
    top.body = [&d, &q, arrays](design & of) {
        auto & middle = of.child("middle", "u");
        auto & in = middle.input("d", 4);
        auto & out = middle.output("q", 4);
        middle.body = [arrays](design & level) { cell_with_inherited_parameters(level, *arrays); };
        in = d;
        q = out;
    };
    return made;
}

/// q = d ^ (RATE / 16) where MODE is "SLOW", which the default isn't. Arrays are told to no VHDL cell that takes them
/// one by one, so that the model has nothing of them.
inline outside_cell const filter_cell{
    "module fir(d, q);\n"
    "\tparameter mode = \"\", MODE = mode;\n"
    "\tparameter rate = 0, RATE = rate, size = 1, SIZE = size;\n"
    "\tparameter coef0 = 0, COEF0 = 0, coef2 = 0, COEF2 = 0, word1 = \"\", WORD1 = \"\";\n"
    "\tinput [3:0] d;\n"
    "\toutput [3:0] q;\n"
    "\tassign q = MODE == \"SLOW\" && SIZE == 4 ? d ^ (RATE / 16) : d;\n"
    "endmodule\n",
    "library ieee;\n"
    "use ieee.std_logic_1164.all;\n"
    "use ieee.numeric_std.all;\n"
    "entity fir is\n"
    "  generic (MODE : string := \"\"; RATE : natural; SIZE : natural; lpm_hint : string := \"UNUSED\");\n"
    "  port (d : in std_logic_vector(3 downto 0); q : out std_logic_vector(3 downto 0));\n"
    "end fir;\n"
    "architecture model of fir is\n"
    "begin\n"
    "  changed: if MODE = \"SLOW\" and SIZE = 4 generate\n"
    "    q <= d xor std_logic_vector(to_unsigned(RATE / 16, 4));\n"
    "  end generate;\n"
    "  unchanged: if MODE /= \"SLOW\" or SIZE /= 4 generate\n"
    "    q <= d;\n"
    "  end generate;\n"
    "end model;\n",
    "FUNCTION fir (d[3..0]) WITH (MODE, RATE, SIZE, COEF0, COEF2, WORD1) RETURNS (q[3..0]);"};

inline golden_design const golden_files[] = {
    {.name = "listed_box", .make = boxes, .options = ",LBX_BLACKBOX_LIST=Stage", .cell = boxed},
    {.name = "automatic_boxes", .make = boxes, .options = ",LBX_AUTO_BLACKBOX=ON", .cell = boxed},
    {.name = "gates", .make = gates, .options = ",LBX_STRUCTURAL_NETLIST=ON"},
    {.name = "parameters_from_above",
     .make = parameters_from_above,
     .options = ",RATE=48,MODE=SLOW,COEF2=5,COEF0=3,WORD1=Late",
     .cell = filter_cell},
};

} // namespace gnl_test
