#include "driver_support.h"

namespace {

using namespace gnl_test;

class BlackBox : public in_folder
{
protected:
    /// Whether a subdesign of this name is a cell under these options.
    static bool boxed(std::string const & options, std::string const & name = "leaf")
    {
        design top(nullptr, "top", options.c_str());
        design sub(&top, name);
        sub.check_blackbox_list();
        return sub.is_primitive();
    }
    static bool top_boxed(std::string const & options)
    {
        design top(nullptr, "top", options.c_str());
        top.check_blackbox_list();
        return top.is_primitive();
    }
};

class without_model : public design
{
public:
    using design::design;
    bool mf_has_sim_model() override { return false; }
};

TEST_F(BlackBox, NothingIsBoxedWithoutTheOptions)
{
    EXPECT_FALSE(boxed(""));
    EXPECT_FALSE(boxed("LBX_AUTO_BLACKBOX=OFF"));
    EXPECT_FALSE(boxed("LBX_BLACKBOX_LIST=NONE"));
    EXPECT_FALSE(boxed("LBX_BLACKBOX_LIST=none", "none"));
}

TEST_F(BlackBox, ModesFollowTheOption)
{
    design off(nullptr, "top"), on(nullptr, "top", "LBX_AUTO_BLACKBOX=ON"),
        all(nullptr, "top", "LBX_AUTO_BLACKBOX=ALL");
    EXPECT_FALSE(off.is_blackbox_mode());
    EXPECT_TRUE(on.is_blackbox_mode());
    EXPECT_TRUE(all.is_blackbox_mode());
    EXPECT_FALSE(on.is_full_blackbox_mode());
    EXPECT_TRUE(all.is_full_blackbox_mode());
}

TEST_F(BlackBox, AutomaticModeBoxesSubdesignsAndFullModeAlsoTheTop)
{
    EXPECT_TRUE(boxed("LBX_AUTO_BLACKBOX=ON"));
    EXPECT_FALSE(top_boxed("LBX_AUTO_BLACKBOX=ON"));
    EXPECT_TRUE(boxed("LBX_AUTO_BLACKBOX=ALL"));
    EXPECT_TRUE(top_boxed("LBX_AUTO_BLACKBOX=ALL"));
}

TEST_F(BlackBox, AutomaticModeLeavesDesignsWithoutAModel)
{
    without_model top(nullptr, "top", "LBX_AUTO_BLACKBOX=ALL");
    top.check_blackbox_list();
    EXPECT_FALSE(top.is_primitive());
}

TEST_F(BlackBox, AListNamesSubdesignsInAnyCase)
{
    EXPECT_TRUE(boxed("LBX_BLACKBOX_LIST=leaf"));
    EXPECT_TRUE(boxed("LBX_BLACKBOX_LIST=LEAF"));
    EXPECT_TRUE(boxed("LBX_BLACKBOX_LIST=other|leaf"));
    EXPECT_FALSE(boxed("LBX_BLACKBOX_LIST=other|leaf2"));
}

TEST_F(BlackBox, AListBoxesTheTopInFullModeOnly)
{
    EXPECT_FALSE(top_boxed("LBX_BLACKBOX_LIST=top"));
    without_model top(nullptr, "top", "LBX_BLACKBOX_LIST=top,LBX_AUTO_BLACKBOX=ALL");
    top.check_blackbox_list();
    EXPECT_TRUE(top.is_primitive());
}

TEST_F(BlackBox, AnExcludedNameEndsTheList)
{
    EXPECT_FALSE(boxed("LBX_BLACKBOX_LIST=-leaf|leaf"));
    EXPECT_FALSE(boxed("LBX_BLACKBOX_LIST=leaf|-leaf"));
    EXPECT_FALSE(boxed("LBX_BLACKBOX_LIST=-leaf,LBX_AUTO_BLACKBOX=ON"));
    EXPECT_TRUE(boxed("LBX_BLACKBOX_LIST=-LEAF|leaf")) << "an exclusion is compared exactly";
}

TEST_F(BlackBox, AnEmptyEntryEndsTheList)
{
    EXPECT_FALSE(boxed("LBX_BLACKBOX_LIST=other||leaf"));
}

TEST_F(BlackBox, AFileHoldsAnEntryOnEachLine)
{
    write_file("boxes.txt", "other\r\nLeaf\r\n");
    EXPECT_TRUE(boxed("LBX_BLACKBOX_LIST=boxes.txt"));
    EXPECT_TRUE(boxed("LBX_BLACKBOX_LIST=boxes.txt", "other"));
    EXPECT_FALSE(boxed("LBX_BLACKBOX_LIST=boxes.txt", "third"));
    EXPECT_FALSE(boxed("LBX_BLACKBOX_LIST=boxes.txt", "boxes.txt"));
}

TEST_F(BlackBox, AFileExcludesWhatFollows)
{
    write_file("boxes.txt", "-leaf\nleaf\n");
    EXPECT_FALSE(boxed("LBX_BLACKBOX_LIST=boxes.txt"));
    write_file("boxes.txt", "\nleaf");
    EXPECT_TRUE(boxed("LBX_BLACKBOX_LIST=boxes.txt")) << "an empty line ends nothing";
}

TEST_F(BlackBox, BoxingTakesTheTagAndUnboxingGivesIt)
{
    design any(nullptr, "any");
    any.set_need_lumenbox_tag(true);
    any.set_blackbox_state();
    EXPECT_TRUE(any.is_primitive());
    EXPECT_FALSE(any.needs_lumenbox_tag());
    any.reset_blackbox_state();
    EXPECT_FALSE(any.is_primitive());
    EXPECT_TRUE(any.needs_lumenbox_tag());
}

TEST_F(BlackBox, ABoxWithATwoDimensionalPortHasNoComponentInVhdl)
{
    design any(nullptr, "any");
    any.integer("W", 2) = 2;
    new GNL_PORT_INPUT(&any, "plain", std::string("W"));
    any.set_gen_language(GNL_VHDL);
    any.set_blackbox_state();
    EXPECT_FALSE(any.has_no_vhdl_component_declarations());
    new GNL_PORT_OUTPUT(&any, "rows", std::string("W"), std::string("W"));
    any.set_gen_language(GNL_VERILOG);
    any.set_blackbox_state();
    EXPECT_FALSE(any.has_no_vhdl_component_declarations());
    any.set_gen_language(GNL_VHDL);
    any.set_blackbox_state();
    EXPECT_TRUE(any.has_no_vhdl_component_declarations());
    any.set_gen_language(GNL_VERILOG);
    any.reset_blackbox_state();
    EXPECT_TRUE(any.has_no_vhdl_component_declarations());
    any.set_gen_language(GNL_VHDL);
    any.reset_blackbox_state();
    EXPECT_FALSE(any.has_no_vhdl_component_declarations());
}

TEST_F(BlackBox, ABoxedSubdesignIsInstantiatedUnderItsOwnNameAndHasNoBody)
{
    design top(nullptr, "top", "LBX_FILE=top.v,LBX_BLACKBOX_LIST=other|leaf");
    bool ran = false;
    design * child = nullptr;
    top.run([&](design & self) {
        child = &self.child("leaf", "u1");
        child->body = [&](design &) { ran = true; };
        child->input("d") = self.input("a");
    });
    EXPECT_FALSE(ran);
    EXPECT_EQ(child->get_entity_name(), "leaf");
    EXPECT_NE(file_text("top.v").find("\tleaf   u1\n"), std::string::npos);
}

TEST_F(BlackBox, TheSlicesOfABoxedArrayAreCellsWithTheirParameters)
{
    for (std::string const file : {"top.tdf", "top.v"}) {
        design top(nullptr, "top", ("LBX_FILE=" + file + ",LBX_BLACKBOX_LIST=leaf").c_str());
        design * array = nullptr;
        top.run([&](design & self) {
            array = &self.child("leaf", "u", "", 2);
            array->declare_slice = [](design & slice) {
                slice.input("d");
                slice.integer("DEPTH", 1);
            };
            array->declare_slice(*array);
            (*array)[1].parameter_integer("DEPTH") = 3;
            array->port("d") = self.input("a", 2);
        });
        EXPECT_TRUE((*array)[0].is_primitive());
        EXPECT_TRUE((*array)[1].is_primitive());
    }
    EXPECT_NE(file_text("top.tdf").find("\tu0 : leaf;\n"
                                        "\tu1 : leaf\n"
                                        "\t\tWITH (\n"
                                        "\t\t\tDEPTH = 3\n"
                                        "\t\t);\n"),
              std::string::npos)
        << file_text("top.tdf");
    EXPECT_NE(file_text("top.v").find("\tdefparam\n"
                                      "\t\tu_1.depth = 3,\n"
                                      "\t\tu_1.lpm_type = \"leaf\";\n"),
              std::string::npos)
        << file_text("top.v");
}

} // namespace
