// Whole runs of designs with arrays: where their inputs come from, and which slices have designs of their own.

#include "golden_designs.h"
#include "golden_folder.h"

using namespace gnl_test;

namespace {

using GoldenArrays = in_folder;

/// A top with inputs of three widths around an array of three stages of two bits.
std::unique_ptr<design> with_array(std::function<void(design & top, design & array)> connect,
                                   std::string const & options = "LBX_FILE=top.v")
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
design & wide_cells(design & parent, std::string const & instance, int array_width)
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

} // namespace

TEST_F(GoldenArrays, DrivenOnTheMaster)
{
    auto const top = with_array([](design & of, design & array) {
        array.port("d") = of.port("six");
        array.port("en") = of.port("bit");
        of.port("q").range(3, 0) = array.port("q").range(5, 2); // whole slices
        of.port("q").range(5, 4) = array.port("q").range(2, 1); // the end of one and the beginning of the next
    });
    EXPECT_GOLDEN_THAT_COMPILES(*top, "array_on_master.v");
}

TEST_F(GoldenArrays, DrivenSliceBySlice)
{
    auto const top = with_array([](design & of, design & array) {
        array[0].port("d") = of.port("pair");
        array[1].port("d") = of.port("pair") & of.port("bit");
        array[2].port("d") = 2;
        for (int i = 0; i < 3; ++i)
            array[i].port("en") = of.port("six")[i];
        of.port("q") = (array[0].port("q"), array[2].port("q"), array[1].port("q"));
    });
    EXPECT_GOLDEN_THAT_COMPILES(*top, "array_by_slices.v");
}

/// Part on the array, part on its slices: all is collected on the array.
TEST_F(GoldenArrays, MixedWithoutConflict)
{
    auto const top = with_array([](design & of, design & array) {
        array[2].port("d") = of.port("pair");
        array.port("d").range(3, 0) = of.port("six").range(5, 2);
        array[0].port("en") = of.port("bit");
        array.port("en").range(2, 1) = of.port("pair");
        of.port("q") = array.port("q");
    });
    EXPECT_GOLDEN_THAT_COMPILES(*top, "array_mixed.v");
}

TEST_F(GoldenArrays, ABitBelongsToTheArrayOrToASlice)
{
    auto const top = with_array([](design & of, design & array) {
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
    EXPECT_GOLDEN_THAT_COMPILES(*top, "array_conflicts.v");
}

TEST_F(GoldenArrays, OneSignalForAllSlicesAndOneBitForAllBits)
{
    auto const top = with_array([](design & of, design & array) {
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
    EXPECT_GOLDEN_THAT_COMPILES(*top, "array_broadcast.v");
}

TEST_F(GoldenArrays, CutRangesAndConcatenations)
{
    auto const top = with_array([](design & of, design & array) {
        auto & second = stage(of, "sv", 2, 1, 3);
        array.port("d").range(2, 0) = of.port("six").range(5, 3); // ends within a slice
        array.port("d").range(5, 3) = (of.port("pair"), of.port("bit"));
        array.port("en") = (of.port("pair"), of.port("bit"));
        second.port("d").range(5, 2) = array.port("q").range(3, 0);
        second.port("d").range(1, 0) = of.port("bit");
        of.port("q") = second.port("q");
    });
    EXPECT_GOLDEN_THAT_COMPILES(*top, "array_cut.v");
}

TEST_F(GoldenArrays, ASliceWithAParameterOfItsOwn)
{
    auto const top = with_array([](design & of, design & array) {
        array[1].parameter_integer("HELD") = 2;
        array.port("d") = of.port("six");
        array[2].port("en") = of.port("bit");
        of.port("q") = array.port("q");
    });
    EXPECT_GOLDEN_THAT_COMPILES(*top, "array_of_parameters.v");
}

TEST_F(GoldenArrays, SlicesInFilesOfTheirOwn)
{
    auto const top = with_array(
        [](design & of, design & array) {
            array[1].parameter_integer("HELD") = 2;
            array.port("d") = of.port("six");
            array.port("en") = of.port("bit");
            of.port("q") = array.port("q");
        },
        "LBX_FILE=top.v,LBX_SINGLE_OUTPUT_FILE=OFF");
    EXPECT_GOLDEN_THAT_COMPILES(*top, "array_own_files.v");
}

/// No two slices are alike, so there is no common design.
TEST_F(GoldenArrays, SlicesOfDifferentWidths)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
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
    EXPECT_GOLDEN_THAT_COMPILES(top, "array_of_widths.v");
}

TEST_F(GoldenArrays, OfOneSlice)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
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
    EXPECT_GOLDEN_THAT_COMPILES(top, "array_of_one.v");
}

TEST_F(GoldenArrays, InsideAChildAndOfChildrenWithArrays)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
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
    EXPECT_GOLDEN_THAT_COMPILES(top, "array_in_child.v");
}
