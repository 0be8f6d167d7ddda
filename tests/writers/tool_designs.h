#pragma once

// Designs that outside tools judge, beside those of golden_designs.h.

#include "golden_designs.h"

namespace gnl_test {

/// A pad that is driven by logic and read back, and one that is joined to a cell's.
inline std::unique_ptr<design> bidir_design(std::string const & text)
{
    auto top = std::make_unique<design>(nullptr, "top", text.c_str());
    auto & a = top->input("a", 4);
    auto & io = top->bidir("io", 4);
    auto & y = top->output("y", 4);
    auto & leaf = top->child("leaf", "u");
    auto & p = leaf.bidir("p", 4);
    auto & r = leaf.output("r", 4);
    auto & pad = top->bidir("pad", 4);
    auto & z = top->output("z", 4);
    leaf.body = [](design & of) { of.port("r") = ~of.port("p"); };
    top->body = [&](design &) {
        io = ~a;
        y = io;
        pad = p;
        z = r;
    };
    return top;
}

/// Constants, signed ports, registers' nets, a pulled input and an exposed parameter.
inline std::unique_ptr<design> declarations_design(std::string const & text)
{
    auto top = std::make_unique<design>(nullptr, "top", text.c_str());
    auto & s = top->input("s", 8);
    auto & one = top->input("one", 1);
    auto & pulled = top->input("pulled", 2, 1);
    auto & y = top->output("y", 8);
    auto & wide = top->output("wide", 40);
    auto & mixed = top->output("mixed", 4);
    auto & p = top->output("p", 2);
    auto & width = top->integer("WIDTH", 8);
    width.set_as_parameterized();
    width = 8;
    s.set_port_is_signed();
    y.set_port_is_signed();
    top->set_port_to_used("pulled");
    top->body = [&](design & of) {
        auto & kept = of.wire("kept", 8);
        kept.set_qelvar_internal_option("FAST=ON");
        kept = s ^ one;
        y = kept;
        wide = 0;
        mixed = 5;
        p = pulled;
    };
    return top;
}

/// Unused inputs of a cell are tied off and some ports are for simulation alone.
inline std::unique_ptr<design> ties_design(std::string const & text)
{
    auto top = std::make_unique<design>(nullptr, "top", text.c_str());
    auto & a = top->input("a", 4);
    auto & y = top->output("y");
    top->body = [&](design & of) {
        auto & cell = of.child("blk", "c");
        cell.set_primitive();
        auto & in = cell.input("a", 4);
        cell.input("ena", 0, 1);
        auto & out = cell.output("o");
        cell.add_simulation_only_port("spare", "");
        in = a;
        y = out;
    };
    return top;
}

} // namespace gnl_test
