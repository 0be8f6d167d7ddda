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

TEST_F(SliceGeneration, WhatTheWholeArrayIsGivenReachesADifferingSlice)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a", 2);
    auto & y = top.output("y", 2);
    top.run([&](design & self) {
        auto & array = self.child("cell", "u", "", 2);
        array.declare_slice = [](design & slice) {
            slice.input("constant", 1);
            slice.input("repeated", 2);
            slice.output("q");
            slice.integer("SIZE", 2);
        };
        array.declare_slice(array);
        array.body = [](design & own) { own.port("q") = own.port("repeated")[1] & own.port("constant"); };
        array[1].parameter_integer("SIZE") = 5;
        array.port("constant") = 3;
        array.port("repeated") = (a[0], a[1]);
        y = array.port("q");
    });
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(SliceGeneration, AnOutputThatOnlySomeSlicesHaveIsConnectedThere)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a");
    auto & y = top.output("y", 3);
    auto & z = top.output("z");
    top.run([&](design & self) {
        auto & array = self.child("cell", "u", "", 3);
        array.declare_slice = [](design & slice) {
            slice.input("d");
            slice.output("carry");
            slice.output("q");
        };
        array.declare_slice(array);
        array.body = [](design & own) {
            own.port("q") = ~own.port("d");
            if (own.port("carry").is_used())
                own.port("carry") = own.port("d");
        };
        array.port("d") = a;
        y = array.port("q");
        z = array[2].port("carry");
    });
    EXPECT_EQ(top.messages(), texts{});
    auto const common = "top_" + name_of("cell carry d q");
    auto const without_carry = "top_" + name_of("cell d q");
    auto const text = file_text("top.v");
    auto const from = text.find("\twire  [2:0]   wire_u_carry;\n");
    ASSERT_NE(from, std::string::npos) << text;
    EXPECT_EQ(text.substr(from, text.find("\tassign\n", from) - from), "\twire  [2:0]   wire_u_carry;\n"
                                                                       "\twire  [2:0]   wire_u_q;\n"
                                                                       "\n"
                                                                       "\t" + without_carry
                                                                           + "   u_0\n"
                                                                             "\t( \n"
                                                                             "\t.d(a),\n"
                                                                             "\t.q(wire_u_q[0:0]));\n"
                                                                             "\t"
                                                                           + without_carry
                                                                           + "   u_1\n"
                                                                             "\t( \n"
                                                                             "\t.d(a),\n"
                                                                             "\t.q(wire_u_q[1:1]));\n"
                                                                             "\t"
                                                                           + common
                                                                           + "   u_2\n"
                                                                             "\t( \n"
                                                                             "\t.carry(wire_u_carry[2:2]),\n"
                                                                             "\t.d(a),\n"
                                                                             "\t.q(wire_u_q[2:2]));\n");
}

namespace {

/// Writes an array whose design drives its bidirectional ports; slices join `pad` to the top's own, the array as a
/// whole joins `bus`.
std::string array_of_pads(std::string const & file)
{
    design top(nullptr, "top", ("LBX_FILE=" + file).c_str());
    auto & a = top.input("a", 2);
    auto & left = top.bidir("left");
    auto & right = top.bidir("right");
    auto & both = top.bidir("both", 2);
    top.run([&](design & self) {
        auto & array = self.child("cell", "u", "", 2);
        array.declare_slice = [](design & slice) {
            slice.input("d");
            slice.bidir("bus");
            slice.bidir("pad");
        };
        array.declare_slice(array);
        array.body = [](design & own) {
            own.port("pad") = own.port("d");
            own.port("bus") = !own.port("d");
        };
        array.port("d") = a;
        left = array[0].port("pad");
        right = array[1].port("pad");
        both = array.port("bus");
    });
    EXPECT_EQ(top.messages(), texts{});
    return file_text(file);
}

} // namespace

TEST_F(SliceGeneration, APadOfASliceStaysWithTheSliceWhenTheCommonDesignDrivesIt)
{
    auto const entity = "top_" + name_of("cell bus d pad");
    auto const verilog = array_of_pads("top.v");
    auto const instances = verilog.rfind("\twire  [1:0]   wire_u_d;\n");
    ASSERT_NE(instances, std::string::npos) << verilog;
    EXPECT_EQ(verilog.substr(instances), "\twire  [1:0]   wire_u_d;\n"
                                         "\n"
                                         "\t" + entity
                                             + "   u_0\n"
                                               "\t( \n"
                                               "\t.bus(both[0:0]),\n"
                                               "\t.d(wire_u_d[0:0]),\n"
                                               "\t.pad(left));\n"
                                               "\t"
                                             + entity
                                             + "   u_1\n"
                                               "\t( \n"
                                               "\t.bus(both[1:1]),\n"
                                               "\t.d(wire_u_d[1:1]),\n"
                                               "\t.pad(right));\n"
                                               "\tassign\n"
                                               "\t\twire_u_d = a;\n"
                                               "endmodule //top\n"
                                               "//VALID FILE\n");
    auto const vhdl = array_of_pads("top.vhd");
    auto const statements = vhdl.rfind(" BEGIN\n\n");
    ASSERT_NE(statements, std::string::npos) << vhdl;
    EXPECT_EQ(vhdl.substr(statements), " BEGIN\n"
                                       "\n"
                                       "\twire_u_d <= a;\n"
                                       "\tu_0 :  "
                                           + entity
                                           + "\n"
                                             "\t  PORT MAP ( \n"
                                             "\t\tbus => both(0),\n"
                                             "\t\td => wire_u_d(0),\n"
                                             "\t\tpad => left\n"
                                             "\t  );\n"
                                             "\tu_1 :  "
                                           + entity
                                           + "\n"
                                             "\t  PORT MAP ( \n"
                                             "\t\tbus => both(1),\n"
                                             "\t\td => wire_u_d(1),\n"
                                             "\t\tpad => right\n"
                                             "\t  );\n"
                                             "\n"
                                             " END RTL; --top\n"
                                             "--VALID FILE\n");
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
