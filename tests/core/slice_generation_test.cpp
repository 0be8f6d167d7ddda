// What is generated for an array: one common design, designs of their own for slices that differ.

#include "driver_support.h"

#include <algorithm>

namespace {

using namespace gnl_test;

/// A top with an array of cells that copy d to q; `set_up` treats the array before it is connected.
struct array_run
{
    array_run(std::string const & file, int count, std::function<void(design &)> const & set_up, int width = 0)
        : top(nullptr, "top", ("LBX_FILE=" + file).c_str())
    {
        auto & a = top.input("a", std::max(width, 1) * count);
        auto & y = top.output("y", std::max(width, 1) * count);
        top.run([&](design & self) {
            array = &self.child("cell", "u", "", count);
            array->declare_slice = [&, width](design & slice) {
                slice.input("d", width);
                slice.output("q", width);
                slice.integer("SIZE", 2);
            };
            array->declare_slice(*array);
            array->body = [this](design & own) {
                bodies.push_back(own.get_slice_index());
                widths.push_back(own.port("d").get_width());
                own.port("q") = own.port("d");
            };
            if (set_up)
                set_up(*array);
            array->port("d") = a;
            y = array->port("q");
        });
        std::sort(bodies.begin(), bodies.end());
    }

    design top;
    design * array = nullptr;
    std::vector<int> bodies;
    std::vector<int> widths;
};

using SliceGeneration = in_folder;

TEST_F(SliceGeneration, AnArrayWithoutSlicesIsOneDesign)
{
    array_run run("top.v", 3, {});
    EXPECT_EQ(run.bodies, std::vector<int>{-1});
    EXPECT_EQ(run.array->get_entity_name(), "top_" + name_of("cell d q"));
}

TEST_F(SliceGeneration, TheCommonDesignHasTheWidthsOfOneSlice)
{
    array_run run("top.v", 3, {}, 4);
    EXPECT_EQ(run.widths, std::vector<int>{4});
    EXPECT_EQ(run.array->port("d").get_width(), 12);
    EXPECT_EQ(run.top.messages(), texts{});
}

TEST_F(SliceGeneration, AlikeSlicesShareTheDesignOfTheirMaster)
{
    array_run run("top.v", 3, [](design & array) { array[0]; });
    EXPECT_EQ(run.bodies, std::vector<int>{-1});
    EXPECT_FALSE(run.array->is_heterogeneous_array());
}

TEST_F(SliceGeneration, ADifferingSliceHasADesignOfItsOwn)
{
    array_run run("top.v", 3, [](design & array) { array[1].parameter_integer("SIZE") = 5; });
    EXPECT_EQ(run.bodies, (std::vector<int>{-1, 1}));
    EXPECT_EQ((*run.array)[1].get_entity_name(), "top_" + name_of("cell SIZE=5 d q"));
    EXPECT_TRUE(run.array->is_heterogeneous_array());
}

TEST_F(SliceGeneration, WithoutAnAlikeSliceThereIsNoCommonDesign)
{
    array_run run("top.tdf", 2, [](design & array) {
        array[0].parameter_integer("SIZE") = 3;
        array[1].parameter_integer("SIZE") = 5;
    });
    EXPECT_EQ(run.bodies, (std::vector<int>{0, 1}));
    EXPECT_EQ(files().size(), 3u);
}

TEST_F(SliceGeneration, AMasterWithoutADesignLeavesItsNameToOthers)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a");
    auto & y = top.output("y");
    design * plain = nullptr;
    int bodies = 0;
    top.run([&](design & self) {
        auto const declare = [&](design & cell) {
            cell.input("d");
            cell.output("q");
            cell.integer("SIZE", 2);
            cell.body = [&](design & own) {
                ++bodies;
                own.port("q") = own.port("d");
            };
        };
        auto & array = self.child("cell", "u1", "", 1);
        array.declare_slice = declare;
        declare(array);
        array[0].parameter_integer("SIZE") = 5;
        array.port("d") = a;
        plain = &self.child("cell", "u2");
        declare(*plain);
        plain->port("d") = array.port("q");
        y = plain->port("q");
    });
    EXPECT_EQ(bodies, 2) << "the slice, and the plain cell, whose settings are those of the master";
    EXPECT_EQ(plain->get_entity_name(), "top_" + name_of("cell d q"));
}

TEST_F(SliceGeneration, AMasterWithoutADesignTakesTheCustomOutputOfItsSlices)
{
    array_run run("top.v", 2, [](design & array) {
        array[0].parameter_integer("SIZE") = 3;
        array[1].parameter_integer("SIZE") = 5;
        array[1].set_use_custom_verilog_output();
        array[1].set_custom_subdesign_insert_mode();
        array[0].set_custom_vhdl_library("tech.cells");
    });
    EXPECT_TRUE(run.array->uses_custom_verilog_output());
    EXPECT_FALSE(run.array->uses_custom_vhdl_output());
    EXPECT_TRUE(run.array->uses_custom_subdesign_insert_mode());
    EXPECT_EQ(run.array->get_custom_vhdl_library(), "tech.cells");
}

TEST_F(SliceGeneration, AMasterWithACommonDesignKeepsItsOwnOutput)
{
    array_run run("top.v", 2, [](design & array) {
        array[1].parameter_integer("SIZE") = 5;
        array[1].set_use_custom_vhdl_output();
    });
    EXPECT_FALSE(run.array->uses_custom_vhdl_output());
}

TEST_F(SliceGeneration, DifferingSlicesOfAnAppendedRunHaveTheStemInTheirNames)
{
    array_run run("chip.tdf:a", 2, [](design & array) { array[1].parameter_integer("SIZE") = 5; });
    EXPECT_EQ((*run.array)[1].get_entity_name(), "chip_" + name_of("cell SIZE=5 d q"));
}

} // namespace
