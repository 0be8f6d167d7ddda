// Runs of another kind: cells as top, runs that change their language, runs that only count, and runs after each other.

#include "driver_support.h"

namespace {

using namespace gnl_test;

class DriverRuns : public in_folder
{
};

// ---- a cell as top

TEST_F(DriverRuns, ACellCannotBeTheTop)
{
    design top(nullptr, "cell", "LBX_FILE=top.v");
    top.set_primitive();
    top.run();
    EXPECT_EQ(top.messages(),
              texts{error("Generator entity cell is specified as a primitive with no parent.",
                          "Top level entity is specified as a primitive or primitive has no parent. All primitive "
                          "objects in lumen box should have non-NULL parents and top level entities cannot be "
                          "primitives.",
                          "The constructor of the entity still has the set_primitive () function, or the parent of "
                          "the primitive object is set to NULL.")});
    EXPECT_EQ(top.get_entity_name(), "cell");
    EXPECT_TRUE(files().empty());
}

TEST_F(DriverRuns, ABlackboxedTopIsToldAndNotSupported)
{
    design top(nullptr, "top", "LBX_FILE=top.v,LBX_AUTO_BLACKBOX=ALL");
    bool ran = false;
    top.run([&](design &) { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_EQ(top.messages(), texts{"INFO Top level generator entity top is blackboxed."});
    EXPECT_EQ(top.generator_result(), 2);
    EXPECT_TRUE(files().empty());
}

// ---- language of fixed prefixes and of designs without QHDL

TEST_F(DriverRuns, AFixedPrefixMovesAQhdlRunToVerilog)
{
    design top(nullptr, "top", "LBX_MODULE_PREFIX=chip,LBXI_INSTANCE_NAME=core");
    top.dump = false;
    top.run();
    EXPECT_TRUE(GNL_ELEMENT::is_verilog());
    EXPECT_EQ(top.get_entity_name(), "chip_mg");
    EXPECT_TRUE(file_text("chip_mg.v").starts_with("//top\n//\n//LBXI_INSTANCE_NAME=\"core\"\n// synthesis "));
}

TEST_F(DriverRuns, ADesignThatQhdlCannotHoldMovesItsRunToVerilog)
{
    design top(nullptr, "top");
    top.set_qhdl_unsupported(true);
    top.dump = false;
    top.run();
    EXPECT_TRUE(GNL_ELEMENT::is_verilog());
    EXPECT_TRUE(fs::exists(name_of("top") + ".v"));
}

TEST_F(DriverRuns, ASubdesignThatQhdlCannotHoldIsWrittenInVerilogBesideItsQhdlParent)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    int in_child = -1;
    top.run([&](design & self) {
        auto & child = self.child("leaf", "u1");
        child.set_qhdl_unsupported(true);
        child.body = [&](design &) { in_child = GNL_ELEMENT::get_gen_language(); };
    });
    EXPECT_EQ(in_child, GNL_VERILOG);
    EXPECT_TRUE(GNL_ELEMENT::is_qhdl());
    EXPECT_TRUE(file_text("top_" + name_of("leaf") + ".v").ends_with("//VALID FILE\n"));
    EXPECT_TRUE(file_text("top.tdf").ends_with("--VALID FILE\n"));
}

// ---- counting runs

TEST_F(DriverRuns, ACountingRunWritesNothing)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.body = [](design & self) { self.update_resource_map("lut", 3); };
    EXPECT_STREQ(top.get_resource_count(), "3 lut;");
    EXPECT_FALSE(top.is_in_resource_count_mode());
    EXPECT_FALSE(top.is_in_rtl_body());
    EXPECT_TRUE(files().empty());
}

TEST_F(DriverRuns, ACountingRunCountsTheSubdesigns)
{
    design top(nullptr, "top");
    top.body = [](design & self) {
        for (char const * instance : {"u1", "u2"})
            self.child("leaf", instance).body = [](design & leaf) { leaf.update_resource_map("lut", 2); };
    };
    EXPECT_STREQ(top.get_resource_count(), "4 lut;");
}

TEST_F(DriverRuns, AnAbortedCountingRunIsIgnored)
{
    design top(nullptr, "top");
    top.body = [](design & self) {
        self.update_resource_map("lut", 3);
        self.post_error_msg("broken");
        self.exit_if_error();
    };
    EXPECT_STREQ(top.get_resource_count(), "");
    EXPECT_FALSE(top.is_in_rtl_body());
}

TEST_F(DriverRuns, ACountingRunAfterATclRunCountsAsQhdl)
{
    design first(nullptr, "top", "LBX_FILE=top.tcl");
    first.dump = false;
    first.run();
    design top(nullptr, "top");
    top.body = [](design & self) {
        self.child("leaf", "u1").body = [](design & leaf) { leaf.update_resource_map("lut", 2); };
    };
    EXPECT_STREQ(top.get_resource_count(), "2 lut;");
    EXPECT_TRUE(GNL_ELEMENT::is_qhdl());
}

TEST_F(DriverRuns, SimulationLibraryOfADesignWithoutAny)
{
    design top(nullptr, "top");
    int seen = -1;
    top.body = [&](design &) { seen = GNL_ELEMENT::get_gen_language(); };
    EXPECT_STREQ(top.get_simulation_library(), "no_simlib");
    EXPECT_EQ(seen, GNL_VHDL);
    EXPECT_FALSE(top.is_in_simulation_library_mode());
    EXPECT_TRUE(files().empty());
}

TEST_F(DriverRuns, SimulationLibraryAfterErrorsIsEmpty)
{
    design top(nullptr, "top");
    top.body = [](design & self) {
        self.post_error_msg("broken");
        self.child("leaf", "u1");
    };
    EXPECT_STREQ(top.get_simulation_library(), "");
}

TEST_F(DriverRuns, SimulationLibrariesOfACellAsTop)
{
    design top(nullptr, "cell");
    top.set_primitive();
    top.set_vhdl_library("lpm.lpm_components", true);
    EXPECT_STREQ(top.get_simulation_library(), "lpm;");
}

// ---- runs after each other

TEST_F(DriverRuns, TwoRunsDoNotInfluenceEachOther)
{
    auto const generate = [](char const * file) {
        design top(nullptr, "top", (std::string("LBX_FILE=") + file).c_str());
        auto & a = top.input("a");
        top.body = [&](design & self) {
            auto & child = self.child("leaf", "u1");
            auto & q = child.output("q");
            auto & d = child.input("d");
            child.body = [&](design &) { q = d; };
            d = a;
            top.output("y") = q;
        };
        top.run();
        return file_text(file);
    };
    auto const first = generate("top.v");
    {
        design bad(nullptr, "bad", "LBX_FILE=bad.vhd");
        bad.run([](design & self) { self.post_error_msg("broken"); });
    }
    EXPECT_EQ(generate("top.v"), first);
    EXPECT_TRUE(first.ends_with("//VALID FILE\n"));
}

} // namespace
