#pragma once

// Designs with arrays: where their inputs come from, and which slices have designs of their own.

#include "golden_designs.h"
#include "golden_table.h"

namespace gnl_test {

/// A top with inputs of three widths around an array of three stages of two bits.
inline std::unique_ptr<design> with_array(std::string const & options,
                                          std::function<void(design & top, design & array)> connect)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    top->input("bit");
    top->input("pair", 2);
    top->input("six", 6);
    top->output("q", 6);
    top->body = [connect = std::move(connect)](design & of) { connect(of, stage(of, "st", 2, 1, 3)); };
    return top;
}

/// A cell whose ports are as wide as its parameter says: q = ~d.
inline design & wide_cells(design & parent, std::string const & instance, int array_width)
{
    auto & made = parent.child("wide", instance, "", array_width);
    made.declare_slice = [](design & of) {
        new GNL_PORT_INPUT(&of, "d", std::string("WIDTH"));
        new GNL_PORT_OUTPUT(&of, "q", std::string("WIDTH"));
        of.integer("WIDTH", 2);
    };
    made.declare_slice(made);
    made.body = [](design & of) { of.port("q") = ~of.port("d"); };
    return made;
}

inline std::unique_ptr<design> array_on_master(std::string const & options)
{
    return with_array(options, [](design & of, design & array) {
        array.port("d") = of.port("six");
        array.port("en") = of.port("bit");
        of.port("q").range(3, 0) = array.port("q").range(5, 2); // whole slices
        of.port("q").range(5, 4) = array.port("q").range(2, 1); // the end of one and the beginning of the next
    });
}

inline std::unique_ptr<design> array_by_slices(std::string const & options)
{
    return with_array(options, [](design & of, design & array) {
        array[0].port("d") = of.port("pair");
        array[1].port("d") = of.port("pair") & of.port("bit");
        array[2].port("d") = 2;
        for (int i = 0; i < 3; ++i)
            array[i].port("en") = of.port("six")[i];
        of.port("q") = (array[0].port("q"), array[2].port("q"), array[1].port("q"));
    });
}

/// Part on the array, part on its slices: all is collected on the array.
inline std::unique_ptr<design> array_mixed(std::string const & options)
{
    return with_array(options, [](design & of, design & array) {
        array[2].port("d") = of.port("pair");
        array.port("d").range(3, 0) = of.port("six").range(5, 2);
        array[0].port("en") = of.port("bit");
        array.port("en").range(2, 1) = of.port("pair");
        of.port("q") = array.port("q");
    });
}

inline std::unique_ptr<design> array_conflicts(std::string const & options)
{
    return with_array(options, [](design & of, design & array) {
        array.port("d") = of.port("six");
        array[1].port("d") = of.port("pair");
        array[1].port("d")[0] = of.port("bit");
        array[0].port("en") = of.port("bit");
        array.port("en") = 1;
        array.port("en") = of.port("bit");
        array.port("en")[0] = of.port("bit");
        array.port("en").range(2, 1) = of.port("pair");
        of.port("q") = array.port("q");
    });
}

inline std::unique_ptr<design> array_broadcast(std::string const & options)
{
    return with_array(options, [](design & of, design & array) {
        auto & second = stage(of, "sv", 2, 1, 3);
        auto & third = stage(of, "sw", 2, 1, 3);
        array.port("d") = of.port("pair");
        array.port("en") = of.port("six").range(2, 0);
        second.port("d") = of.port("bit");
        second.port("en") = 5; // one bit for each slice
        third.port("d") = (of.port("bit"), of.port("pair")[1]);
        third.port("en") = of.port("pair")[0];
        of.port("q") = (array.port("q") ^ second.port("q")) | third.port("q");
    });
}

inline std::unique_ptr<design> array_cut(std::string const & options)
{
    return with_array(options, [](design & of, design & array) {
        auto & second = stage(of, "sv", 2, 1, 3);
        array.port("d").range(2, 0) = of.port("six").range(5, 3); // ends within a slice
        array.port("d").range(5, 3) = (of.port("pair"), of.port("bit"));
        array.port("en") = (of.port("pair"), of.port("bit"));
        second.port("d").range(5, 2) = array.port("q").range(3, 0);
        second.port("d").range(1, 0) = of.port("bit");
        of.port("q") = second.port("q");
    });
}

inline std::unique_ptr<design> array_of_parameters(std::string const & options)
{
    return with_array(options, [](design & of, design & array) {
        array[1].parameter_integer("HELD") = 2;
        array.port("d") = of.port("six");
        array[2].port("en") = of.port("bit");
        of.port("q") = array.port("q");
    });
}

inline std::unique_ptr<design> array_own_files(std::string const & options)
{
    return with_array(options, [](design & of, design & array) {
        array[1].parameter_integer("HELD") = 2;
        array.port("d") = of.port("six");
        array.port("en") = of.port("bit");
        of.port("q") = array.port("q");
    });
}

/// No two slices are alike, so there is no common design.
inline std::unique_ptr<design> array_of_widths(std::string const & options)
{
    auto made = std::make_unique<design>(nullptr, "top", options.c_str());
    auto & top = *made;
    auto & a = top.input("a", 3);
    auto & b = top.input("b", 1);
    auto & y = top.output("y", 3);
    auto & z = top.output("z", 1);
    top.body = [&](design & of) {
        auto & array = wide_cells(of, "w", 2);
        array[0].parameter_integer("WIDTH") = 3;
        array[1].parameter_integer("WIDTH") = 1;
        array[0].port("d") = a;
        array[1].port("d") = b;
        y = array[0].port("q");
        z = array[1].port("q");
    };
    return made;
}

inline std::unique_ptr<design> array_of_one(std::string const & options)
{
    auto made = std::make_unique<design>(nullptr, "top", options.c_str());
    auto & top = *made;
    auto & a = top.input("a", 2);
    auto & y = top.output("y", 2);
    auto & z = top.output("z", 2);
    top.body = [&](design & of) {
        auto & whole = wide_cells(of, "w", 1);
        whole.port("d") = a;
        y = whole.port("q");
        auto & sliced = wide_cells(of, "x", 1);
        sliced[0].port("d") = whole.port("q");
        z = sliced[0].port("q");
    };
    return made;
}

inline std::unique_ptr<design> array_in_child(std::string const & options)
{
    auto made = std::make_unique<design>(nullptr, "top", options.c_str());
    auto & top = *made;
    auto & a = top.input("a", 8);
    auto & y = top.output("y", 8);
    top.body = [&](design & of) {
        auto & rows = of.child("row", "r", "", 2);
        rows.declare_slice = [](design & slice) {
            slice.input("d", 4);
            slice.output("q", 4);
        };
        rows.declare_slice(rows);
        rows.body = [](design & row) {
            auto & inner = wide_cells(row, "w", 2);
            inner.port("d") = row.port("d");
            row.port("q") = inner.port("q");
        };
        rows.port("d") = a;
        y = rows.port("q");
    };
    return made;
}

inline golden_design const golden_arrays[] = {
    {"array_on_master", array_on_master},
    {"array_by_slices", array_by_slices},
    {"array_mixed", array_mixed},
    {"array_broadcast", array_broadcast, "", "what drives several bits of a wider target differs on purpose"},
    {"array_cut", array_cut},
    {"array_of_parameters", array_of_parameters},
    {"array_own_files", array_own_files, ",LBX_SINGLE_OUTPUT_FILE=OFF"},
    {"array_of_widths", array_of_widths},
    {"array_of_one", array_of_one},
    {"array_in_child", array_in_child},
};

} // namespace gnl_test
