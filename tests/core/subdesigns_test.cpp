// The pass over subdesigns, and what a hierarchy becomes.

#include "driver_support.h"

#include "lbx/gnl/core/element_registry.h"

namespace {

using namespace gnl_test;

using Subdesigns = in_folder;

std::string const required_port_cause = "The required input port, which has no default port, is not connected. All "
                                        "input ports must either be connected or should have a default value.";
std::string const required_port_action = "Connect the required input port or if the input port is optional, specify a "
                                         "default value for the input port.";

TEST_F(Subdesigns, AChildIsCompleteBeforeItsParentIsWritten)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    auto & a = top.input("a");
    auto & y = top.output("y");
    top.run([&](design & self) {
        auto & child = self.child("leaf", "u1");
        auto & d = child.input("d");
        auto & q = child.output("q");
        child.body = [&](design &) { q = d; };
        d = a;
        y = q;
    });
    auto const entity = "top_" + name_of("leaf d q");
    auto const text = file_text("top.v");
    EXPECT_EQ(text.substr(text.find("\n\n//leaf")), "\n\n//leaf d q\n"
                                                    "//\n"
                                                    "\n"
                                                    "//synthesis_resources = \n"
                                                    "//synopsys translate_off\n"
                                                    "`timescale 1 ps / 1 ps\n"
                                                    "//synopsys translate_on\n"
                                                    "module  "
                                                        + entity
                                                        + "\n"
                                                          "\t( \n"
                                                          "\td,\n"
                                                          "\tq) /* synthesis synthesis_lumenbox=1 */;\n"
                                                          "\tinput   d;\n"
                                                          "\toutput   q;\n"
                                                          "\n"
                                                          "\n"
                                                          "\tassign\n"
                                                          "\t\tq = d;\n"
                                                          "endmodule //"
                                                        + entity
                                                        + "\n"
                                                          "\n"
                                                          "//synthesis_resources = \n"
                                                          "//synopsys translate_off\n"
                                                          "`timescale 1 ps / 1 ps\n"
                                                          "//synopsys translate_on\n"
                                                          "module  top\n"
                                                          "\t( \n"
                                                          "\ta,\n"
                                                          "\ty) /* synthesis synthesis_lumenbox=1 */;\n"
                                                          "\tinput   a;\n"
                                                          "\toutput   y;\n"
                                                          "\n"
                                                          "\twire  wire_u1_q;\n"
                                                          "\n"
                                                          "\t"
                                                        + entity
                                                        + "   u1\n"
                                                          "\t( \n"
                                                          "\t.d(a),\n"
                                                          "\t.q(wire_u1_q));\n"
                                                          "\tassign\n"
                                                          "\t\ty = wire_u1_q;\n"
                                                          "endmodule //top\n"
                                                          "//VALID FILE\n");
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(Subdesigns, SeparateFilesHoldOneDesignEach)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd,LBX_SINGLE_OUTPUT_FILE=OFF");
    design * child = nullptr;
    top.run([&](design & self) {
        child = &self.child("leaf", "u1");
        child->dump = false;
    });
    ASSERT_EQ(files().size(), 2u);
    EXPECT_EQ(file_text(child->get_entity_name() + ".vhd"),
              "--leaf LBX_SINGLE_OUTPUT_FILE=\"OFF\"\n--\n\n\n" + copyright(GNL_VHDL) + "\n\n--VALID FILE\n");
}

TEST_F(Subdesigns, ATclRunLooksAtNoSubdesign)
{
    design top(nullptr, "top", "LBX_FILE=top.tcl");
    bool ran = false;
    top.run([&](design & self) { self.child("leaf", "u1").body = [&](design &) { ran = true; }; });
    EXPECT_FALSE(ran);
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(Subdesigns, ACellOfAVerilogRunWritesNothingByItself)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    bool ran = false;
    top.run([&](design & self) {
        auto & cell = self.child("cell", "u1");
        cell.set_primitive();
        cell.body = [&](design &) { ran = true; };
    });
    EXPECT_FALSE(ran);
    EXPECT_EQ(file_text("top.v").find("//cell"), std::string::npos);
}

TEST_F(Subdesigns, AMissingRequiredPortLeavesTheChildOutAndMakesAnErrorFile)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    bool ran = false;
    top.run([&](design & self) {
        auto & child = self.child("leaf", "u1");
        child.input("d");
        child.input("spare", 0, 1);
        child.body = [&](design &) { ran = true; };
    });
    EXPECT_FALSE(ran);
    EXPECT_EQ(top.get_subdesign_instance_name(top.get_entity_name()), "");
    auto const messages = top.messages();
    ASSERT_FALSE(messages.empty());
    for (auto const & message : messages)
        EXPECT_EQ(message, error("Port top|leaf inst u1|d is a required port (has no default value), but it is not "
                                 "connected.",
                                 required_port_cause, required_port_action));
    EXPECT_TRUE(file_text("top.v").ends_with("//ERROR FILE\n"));
    EXPECT_EQ(top.generator_result(), 1);
}

TEST_F(Subdesigns, TheTopMarksItsRequiredPortsAsUsed)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.dump = false;
    auto & needed = top.input("needed");
    auto & spare = top.input("spare", 0, 0);
    top.run();
    EXPECT_TRUE(needed.check_is_used_flag());
    EXPECT_FALSE(spare.check_is_used_flag());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Subdesigns, AParameterWithoutAValueIsReported)
{
    probe top(nullptr, "top");
    top.integer("DEPTH");
    top.integer("WIDTH", 8);
    top.string("MODE", "A|B");
    top.check_all_required_ports_and_parameters();
    auto const missing = [](std::string const & name) {
        return error("Parameter " + name + " has no default value and has not been assigned any value.",
                     "An attempt was made to access the value of a parameter which has no default, and has not been "
                     "assigned a value. All parameters should have a default value, or, if the parameter is a "
                     "required parameter, an assignment should be made.",
                     "Specify a value for the parameter or if the parameter is an optional parameter, specify a "
                     "default value.");
    };
    EXPECT_EQ(top.messages(), (texts{missing("DEPTH"), missing("MODE")}));
}

TEST_F(Subdesigns, AnUnsupportedChildStandsAsACellOfItsOwnName)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    probe * child = nullptr;
    top.run([&](design & self) {
        child = new probe(&self, "leaf");
        child->set_instance_name("u1");
        child->body = [&](design &) { child->set_not_supported(); };
    });
    EXPECT_TRUE(child->is_primitive());
    EXPECT_EQ(child->get_entity_name(), "leaf");
    EXPECT_EQ(top.generator_result(), 3);
    EXPECT_EQ(files().size(), 1u);
    EXPECT_TRUE(fs::exists("top.tdf"));
}

TEST_F(Subdesigns, AnUnsupportedChildCountsAsOneUnit)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.run([&](design & self) {
        auto * child = new probe(&self, "leaf");
        child->set_instance_name("u1");
        child->body = [child](design &) { child->set_not_supported(); };
    });
    EXPECT_NE(file_text("top.v").find("//synthesis_resources = leaf 1 \n"), std::string::npos);
}

TEST_F(Subdesigns, ModesPassToTheChildren)
{
    design top(nullptr, "top", "LBX_FILE=chip.v:a");
    design * child = nullptr;
    top.run([&](design & self) { child = &self.child("leaf", "u1"); });
    EXPECT_TRUE(child->is_append_mode());
    EXPECT_FALSE(child->is_in_resource_count_mode());
}

TEST_F(Subdesigns, ADesignIsFoundByItsEntity)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    design * child = nullptr;
    top.run([&](design & self) { child = &self.child("leaf", "u1"); });
    EXPECT_EQ(top.get_subdesign_instance_name(child->get_entity_name()), "u1");
}

TEST_F(Subdesigns, AChildDoesNotTakeTheNameOfADesignThatIsStillBeingWritten)
{
    // "ab" and "ba" have one sum of characters, so that parent and child want the same file.
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    design * outer = nullptr;
    design * inner = nullptr;
    top.run([&](design & self) {
        outer = &self.child("ab", "u1");
        outer->body = [&](design & parent) { inner = &parent.child("ba", "u1"); };
    });
    EXPECT_EQ(outer->get_entity_name(), name_of("ab"));
    EXPECT_EQ(inner->get_entity_name(), name_of("ab", 1));
    EXPECT_TRUE(file_text(name_of("ab") + ".tdf").starts_with("--ab\n"));
    EXPECT_TRUE(file_text(name_of("ab", 1) + ".tdf").starts_with("--ba\n"));
}

TEST_F(Subdesigns, AChildDoesNotTakeTheNameOfTheTop)
{
    design top(nullptr, "ab");
    design * inner = nullptr;
    top.run([&](design & self) { inner = &self.child("ba", "u1"); });
    EXPECT_EQ(top.get_entity_name(), name_of("ab"));
    EXPECT_EQ(inner->get_entity_name(), name_of("ab", 1));
}

TEST_F(Subdesigns, AnInsertedChildLeavesItsNameToOthers)
{
    design top(nullptr, "top", "LBX_FILE=chip.v:a");
    int runs = 0;
    texts names;
    top.run([&](design & self) {
        for (char const * instance : {"u1", "u2"}) {
            auto & child = self.child("leaf", instance);
            child.set_custom_subdesign_insert_mode();
            child.body = [&](design & own) {
                ++runs;
                names.push_back(own.get_entity_name());
            };
        }
    });
    auto const entity = "chip_" + name_of("leaf");
    EXPECT_EQ(names, (texts{entity, entity}));
    EXPECT_EQ(runs, 2);
}

TEST_F(Subdesigns, AQhdlChildThatItsParentWritesHasNoFile)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    bool ran = false;
    top.run([&](design & self) {
        auto & child = self.child("leaf", "u1");
        child.set_custom_subdesign_insert_mode();
        child.set_use_custom_qhdl_output();
        child.body = [&](design &) { ran = true; };
    });
    EXPECT_TRUE(ran);
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(Subdesigns, IncludeLinesOfQhdlCellsStandOnce)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    top.run([&](design & self) {
        for (char const * instance : {"u1", "u2"}) {
            auto & cell = self.child("cell", instance);
            cell.set_primitive();
            cell.set_need_include_header();
        }
    });
    auto const text = file_text("top.tdf");
    auto const first = text.find("include \"cell.inc\";\n");
    ASSERT_NE(first, std::string::npos);
    EXPECT_EQ(text.find("include \"cell.inc\";\n", first + 1), std::string::npos);
}

/// The text that the pass writes before the design in VHDL.
std::string libraries(std::function<void(design &)> const & set_up, std::string const & options = "")
{
    design top(nullptr, "top", ("LBX_FILE=top.vhd" + options).c_str());
    top.run([&](design & self) {
        auto & cell = self.child("cell", "u1");
        cell.set_primitive();
        set_up(cell);
    });
    auto const text = file_text("top.vhd");
    auto const start = text.find(copyright(GNL_VHDL)) + copyright(GNL_VHDL).size() + 2;
    return text.substr(start, text.find("--synthesis_resources") - start);
}

TEST_F(Subdesigns, LibrariesOfCellsAreNamed)
{
    EXPECT_EQ(libraries([](design & cell) { cell.set_vhdl_library("lpm.lpm_components", true); }),
              "\n LIBRARY lpm;\n USE lpm.lpm_components.all;\n\n");
}

TEST_F(Subdesigns, LibraryWorkHasNoClause)
{
    EXPECT_EQ(libraries([](design & cell) { cell.set_vhdl_library("Work.cells", true); }),
              "\n USE Work.cells.all;\n\n");
}

TEST_F(Subdesigns, ACellWithAComponentNeedsNoLibrary)
{
    EXPECT_EQ(libraries([](design &) {}), "\n");
}

TEST_F(Subdesigns, ACellWithItsOwnOutputNeedsNoLibrary)
{
    EXPECT_EQ(libraries([](design & cell) {
                  cell.set_vhdl_library("lpm.lpm_components", true);
                  cell.set_use_custom_vhdl_output();
              }),
              "\n");
}

TEST_F(Subdesigns, AnInsertedCellBringsItsCustomLibrary)
{
    EXPECT_EQ(libraries([](design & cell) {
                  cell.set_custom_vhdl_library("tech.cells");
                  cell.set_use_custom_vhdl_output();
                  cell.set_custom_subdesign_insert_mode();
              }),
              "\n LIBRARY tech;\n USE tech.cells.all;\n\n");
}

class renamed_cell : public design
{
public:
    using design::design;
    std::string generate_primitive_name() override { return "real_cell"; }
};

TEST_F(Subdesigns, ARenamedCellTakesItsSpecialLibrary)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd,LBX_EDA_PLANB=ON");
    top.run([&](design & self) {
        auto * cell = new renamed_cell(&self, "cell");
        cell->set_instance_name("u1");
        cell->set_primitive();
        cell->set_vhdl_library("lpm.lpm_components", true);
        cell->set_special_primitive_library("tech.special");
    });
    auto const text = file_text("top.vhd");
    EXPECT_NE(text.find("\n LIBRARY tech;\n USE tech.special.all;\n\n"), std::string::npos);
    EXPECT_EQ(text.find("lpm"), std::string::npos);
}

TEST_F(Subdesigns, TheTagFollowsTheOptionsBelow)
{
    design top(nullptr, "top", "LBX_FILE=top.v");
    top.run();
    EXPECT_FALSE(top.needs_lumenbox_tag());
    design with_option(nullptr, "top", "LBX_FILE=top.v");
    with_option.run([](design & self) {
        auto & cell = self.child("cell", "u1");
        cell.set_primitive();
        cell.set_qelvar_internal_option("X=1");
    });
    EXPECT_TRUE(with_option.needs_lumenbox_tag());
}

TEST_F(Subdesigns, TwoDeclarationsOfOneEntityShareNoComponent)
{
    probe top(nullptr, "top");
    std::vector<design *> cells;
    for (char const * instance : {"u1", "u2", "u3"}) {
        cells.push_back(&top.child("cell", instance));
        cells.back()->set_primitive();
        cells.back()->input("d");
    }
    cells[1]->input("e");
    auto & alone = top.child("alone", "u4");
    alone.set_primitive();
    top.exclude_subdesigns_from_having_component_declarations();
    for (auto const * cell : cells)
        EXPECT_TRUE(cell->has_no_vhdl_component_declarations());
    EXPECT_FALSE(alone.has_no_vhdl_component_declarations());
    std::string const warning = "WARNING GNL_INTERNAL_WARNING: (VHDL library declaration is needed for the subdesign "
                                "entity.) cell ";
    EXPECT_EQ(top.messages(), (texts{warning, warning, warning}));
}

TEST_F(Subdesigns, OrdinarySubdesignsWithComponentsAreNoConflict)
{
    probe top(nullptr, "top");
    top.child("leaf", "u1").input("d");
    top.child("leaf", "u2").input("e");
    top.exclude_subdesigns_from_having_component_declarations();
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Subdesigns, AConflictingCellWithALibraryNeedsNoWarning)
{
    probe top(nullptr, "top");
    for (char const * instance : {"u1", "u2"}) {
        auto & cell = top.child("cell", instance);
        cell.set_primitive();
        cell.input(instance);
        cell.set_vhdl_library("lpm.lpm_components", false);
    }
    top.exclude_subdesigns_from_having_component_declarations();
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Subdesigns, WidthsAreSettledOnce)
{
    design top(nullptr, "top");
    auto & size = top.integer("SIZE", 4);
    auto & port = *new GNL_PORT_INPUT(&top, "d", std::string("SIZE"));
    EXPECT_FALSE(top.port_connections_made());
    EXPECT_EQ(port.get_width(), 4);
    EXPECT_TRUE(top.port_connections_made());
    EXPECT_FALSE(top.is_in_update_port_widths());
    size = 6;
    EXPECT_EQ(port.get_width(), 4);
    EXPECT_EQ(top.messages().size(), 1u) << "an assignment that comes too late";
}

TEST_F(Subdesigns, APinThatIsDeclaredAfterAConnectionGetsItsWidth)
{
    design top(nullptr, "top");
    auto & array = top.child("cell", "u", "", 3);
    EXPECT_EQ(array.input("d", 4).get_width(), 12);
    EXPECT_EQ(array.output("q", 2).get_width(), 6);
    EXPECT_EQ(array.port("d").get_width(), 12);
    auto & size = top.integer("SIZE", 4);
    EXPECT_EQ((*new GNL_PORT_INPUT(&top, "a", std::string("SIZE"))).get_width(), 4);
    EXPECT_EQ((*new GNL_PORT_OUTPUT(&top, "b", std::string("2*SIZE"))).get_width(), 8);
    EXPECT_EQ((*new GNL_PORT_BIDIR(&top, "c", std::string("3*SIZE"))).get_width(), 12);
    EXPECT_FALSE(size.value_changed());
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(Subdesigns, AParameterThatIsDeclaredAfterAConnectionCanBeAssigned)
{
    design top(nullptr, "top");
    EXPECT_EQ(top.input("a").get_width(), 0);
    auto & size = top.integer("SIZE", 4);
    size = 6;
    EXPECT_EQ(top.messages(), texts{});
    EXPECT_EQ(top.port("a").get_width(), 0);
    size = 7;
    EXPECT_EQ(top.messages().size(), 1u);
}

TEST_F(Subdesigns, PortWidthsCanBeProcessedAgain)
{
    probe top(nullptr, "top");
    auto & size = top.integer("SIZE", 4);
    auto & port = *new GNL_PORT_INPUT(&top, "d", std::string("SIZE"));
    top.process_port_widths();
    EXPECT_EQ(port.get_default_width(), 4);
    size = 6;
    top.process_port_widths();
    EXPECT_EQ(port.get_default_width(), 6);
    EXPECT_FALSE(top.is_in_update_port_widths());
}

TEST_F(Subdesigns, AGeneratorWithoutABodyIsAWrapperInVhdl)
{
    design top(nullptr, "top", "LBX_FILE=top.vhd");
    GNL_GENERATOR * leaf = nullptr;
    top.run([&](design & self) {
        leaf = new GNL_GENERATOR(&self, "leaf");
        leaf->set_instance_name("u1");
        leaf->set_vhdl_library("lpm.lpm_components", false);
    });
    auto const entity = leaf->get_entity_name();
    auto const text = file_text("top.vhd");
    EXPECT_NE(text.find("\n\n--leaf\n--\n"
                        " LIBRARY ieee;\n USE ieee.std_logic_1164.all;\n\n"
                        " LIBRARY lpm;\n USE lpm.lpm_components.all;\n\n"
                        " ENTITY  "
                        + entity + " IS \n"),
              std::string::npos);
    EXPECT_NE(text.find(" END " + entity + ";\n\n ARCHITECTURE RTL OF " + entity
                        + " IS\n\n"
                          "\t ATTRIBUTE synthesis_lumenbox : boolean;\n"
                          "\t ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS true;\n"
                          "\t COMPONENT leaf\n"),
              std::string::npos);
    EXPECT_NE(text.find("\t END COMPONENT;\n BEGIN\n\n \tleaf_component  :  leaf\n"), std::string::npos);
    EXPECT_NE(text.find("\n END RTL;\n"), std::string::npos);
}

TEST_F(Subdesigns, AGeneratorWithoutABodyIsAWrapperInQhdl)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    GNL_GENERATOR * leaf = nullptr;
    std::unique_ptr<GNL_PARAMETER_INTEGER> depth, hidden, width;
    top.body = [&](design & self) { leaf->set_instance_name("u1"), static_cast<void>(self); };
    leaf = new GNL_GENERATOR(&top, "leaf");
    depth = std::make_unique<GNL_PARAMETER_INTEGER>(leaf, "DEPTH", 1);
    hidden = std::make_unique<GNL_PARAMETER_INTEGER>(leaf, "HIDDEN", 1);
    width = std::make_unique<GNL_PARAMETER_INTEGER>(leaf, "WIDTH", 1);
    hidden->set_as_not_included_in_declaration();
    *depth = 3;
    *hidden = 3;
    *width = 3;
    top.run();
    auto const text = file_text(leaf->get_entity_name() + ".tdf");
    EXPECT_NE(text.find("include \"leaf.inc\";\n\n"), std::string::npos);
    EXPECT_NE(text.find("VARIABLE \n\tmg : leaf WITH (\n\t\tDEPTH = DEPTH, \n\t\tWIDTH = WIDTH);\n"),
              std::string::npos);
}

} // namespace
