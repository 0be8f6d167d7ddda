#pragma once

// Whole designs, small enough to be read by eye in their golden files.

#include "support.h"

namespace gnl_test {

/// Logic, a range, a concatenation, a reduction, and an input that falls back to its default.
inline std::unique_ptr<design> flat_design(std::string const & text)
{
    auto top = std::make_unique<design>(nullptr, "top", text.c_str());
    auto & a = top->input("a", 4);
    auto & b = top->input("b", 4);
    auto & sel = top->input("sel");
    auto & en = top->input("en", 0, 1);
    auto & t = top->wire("t", 4);
    auto & y = top->output("y", 4);
    auto & z = top->output("z");
    top->body = [&](design &) {
        t = (a & b) | sel;
        y = (t.range(1, 0), a[3], sel);
        z = t.bitwise_xor() & en;
    };
    return top;
}

/// A subdesign of `parent`: q = (d & ~held) ^ en, where `en` may be left open. `width` bits.
inline design & stage(design & parent, std::string const & instance, int width, int held, int array_width = 0)
{
    auto & made = parent.child("stage", instance, "", array_width);
    auto const declare = [width](design & of) {
        of.input("d", width);
        of.input("en", 0, 1);
        of.output("q", width);
        of.integer("HELD", 0);
    };
    declare(made);
    made.declare_slice = declare;
    made.parameter_integer("HELD") = held;
    made.body = [width](design & of) {
        auto & keep = of.wire("keep", width);
        keep = (1 << width) - 1 - of.parameter_integer("HELD").get_value();
        of.port("q") = (of.port("d") & keep) ^ of.port("en");
    };
    return made;
}

/// Three stages in a row, of which two have the same settings, and a cell at the end.
inline std::unique_ptr<design> two_level_design(std::string const & text)
{
    auto top = std::make_unique<design>(nullptr, "top", text.c_str());
    auto & d = top->input("d", 4);
    auto & en = top->input("en");
    auto & q = top->output("q", 4);
    auto & full = top->output("full");
    top->body = [&](design & of) {
        auto & s1 = stage(of, "s1", 4, 1);
        auto & s2 = stage(of, "s2", 4, 1);
        auto & s3 = stage(of, "s3", 4, 1);
        s1.port("d") = d;
        s1.port("en") = en;
        s2.port("d") = s1.port("q");
        s3.port("d") = s2.port("q") | d;
        s3.port("en") = 1;
        auto & cell = of.child("blk", "c1");
        cell.set_primitive();
        auto & a = cell.input("a", 4);
        cell.input("ena", 0, 1);
        auto & o = cell.output("o");
        cell.output("spare");
        cell.integer("Depth") = 3;
        a = s3.port("q");
        q = s3.port("q");
        full = o;
    };
    return top;
}

/// An array of stages with one bus cut into slices, and an array of cells of which each slice is connected by itself.
inline std::unique_ptr<design> array_design(std::string const & text)
{
    auto top = std::make_unique<design>(nullptr, "top", text.c_str());
    auto & d = top->input("d", 6);
    auto & en = top->input("en");
    auto & q = top->output("q", 6);
    auto & x = top->output("x");
    auto & y = top->output("y");
    top->body = [&](design & of) {
        auto & stages = stage(of, "st", 2, 1, 3);
        stages.port("d") = d;
        stages.port("en") = en;
        q = stages.port("q");
        auto & cells = of.child("blk", "cells", "", 2);
        cells.set_primitive();
        auto const declare = [](design & slice) {
            slice.set_primitive();
            slice.input("a", 4);
            slice.input("ena", 0, 1);
            slice.output("o");
            slice.output("spare");
        };
        declare(cells);
        cells.declare_slice = declare;
        cells[0].port("a") = d.range(3, 0);
        cells[1].port("a") = (d.range(1, 0), en, en);
        cells[1].port("ena") = en;
        x = cells[0].port("o");
        y = cells[1].port("o");
    };
    return top;
}

/// A model of the cell "blk" for compilers and simulators.
inline std::string cell_model()
{
    return "module blk(a, ena, o, spare);\n"
           "\tparameter depth = 1;\n"
           "\tparameter lpm_type = \"blk\";\n"
           "\tinput [3:0] a;\n"
           "\tinput ena;\n"
           "\toutput o, spare;\n"
           "\tassign o = &a[3:0] & ena;\n"
           "\tassign spare = ^a;\n"
           "endmodule\n";
}

} // namespace gnl_test
