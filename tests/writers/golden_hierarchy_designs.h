#pragma once

// Designs of several levels: what goes to which file, and under which names.

#include "golden_designs.h"
#include "golden_table.h"

namespace gnl_test {

inline std::unique_ptr<design> made_top(std::string const & options)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    top->input("d", 4);
    top->output("q", 4);
    return top;
}

/// A row of stages from the port `d` of `level` to its port `q`, one for each value of `held`.
inline void row_of_stages(design & level, std::vector<int> const & held)
{
    GNL_PORT * previous = &level.port("d");
    int number = 0;
    for (int const value : held) {
        auto & made = stage(level, "s" + std::to_string(++number), 4, value);
        made.port("d") = *previous;
        made.port("en") = 1;
        previous = &made.port("q");
    }
    level.port("q") = *previous;
}

/// A level between: two stages, of which the second has the settings of the first one of the next such level.
inline design & pair_of_stages(design & parent, std::string const & instance, int held)
{
    auto & made = parent.child("pair", instance);
    made.input("d", 4);
    made.output("q", 4);
    made.integer("HELD", 0) = held;
    made.body = [](design & of) {
        int const first = of.parameter_integer("HELD").get_value();
        row_of_stages(of, {first, first + 1});
    };
    return made;
}

/// Two pairs in a row: five designs in three levels, as one stage serves both pairs.
inline std::unique_ptr<design> three_levels(std::string const & options)
{
    auto top = made_top(options);
    top->body = [](design & of) {
        auto & first = pair_of_stages(of, "p1", 1);
        auto & second = pair_of_stages(of, "p2", 2);
        first.port("d") = of.port("d");
        second.port("d") = first.port("q");
        of.port("q") = second.port("q");
    };
    return top;
}

/// Two levels, with a stage for each value.
inline std::unique_ptr<design> two_levels(std::string const & options, std::vector<int> const & held)
{
    auto top = made_top(options);
    top->body = [held](design & of) { row_of_stages(of, held); };
    return top;
}

/// Cells of which the headers "masks K=12 d q" and "masks K=21 d q" have one sum of characters; the sum of
/// "masks K=13 d q" is the next number, which the second of them has to take.
inline std::unique_ptr<design> equal_sums(std::string const & options)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    top->input("d", 5);
    top->output("q", 5);
    top->body = [](design & of) {
        GNL_PORT * previous = &of.port("d");
        int number = 0;
        for (int const value : {12, 21, 13}) {
            auto & cell = of.child("masks", "m" + std::to_string(++number));
            auto & in = cell.input("d", 5);
            auto & out = cell.output("q", 5);
            cell.integer("K") = value;
            cell.body = [](design & own) {
                auto & mask = own.wire("mask", 5);
                mask = own.parameter_integer("K").get_value();
                own.port("q") = own.port("d") ^ mask;
            };
            in = *previous;
            previous = &out;
        }
        of.port("q") = *previous;
    };
    return top;
}

inline std::unique_ptr<design> held_1_2_1_3(std::string const & options)
{
    return two_levels(options, {1, 2, 1, 3});
}

inline golden_design const golden_hierarchies[] = {
    {"three_levels", three_levels},
    {"three_levels_own_files", three_levels, ",LBX_SINGLE_OUTPUT_FILE=OFF"},
    {"equal_sums", equal_sums},
    {"equal_sums_own_files", equal_sums, ",LBX_SINGLE_OUTPUT_FILE=OFF"},
};

/// These runs write Verilog also where QHDL is asked for: its names can't have a fixed prefix.
inline golden_design const golden_fixed_prefixes[] = {
    {"fixed_prefix", held_1_2_1_3, ",LBX_MODULE_PREFIX=pre,LBXI_INSTANCE_NAME=inst"},
    {"fixed_prefix_own_files", held_1_2_1_3,
     ",LBX_SINGLE_OUTPUT_FILE=OFF,LBX_MODULE_PREFIX=pre,LBXI_INSTANCE_NAME=inst"},
};

} // namespace gnl_test
