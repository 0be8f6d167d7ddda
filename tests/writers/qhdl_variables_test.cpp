#include "top_design.h"

using namespace gnl_test;

namespace {

using QhdlVariables = in_folder;
using QhdlBidirNodes = in_folder;
using QhdlPortExtension = in_folder;

std::string variables(GNL_GENERATOR & design)
{
    return written(design, &GNL_GENERATOR::dump_qhdl_variables_section);
}

/// A cell that writes itself, with one node for each output.
class statement_cell : public design
{
public:
    explicit statement_cell(GNL_GENERATOR * parent, int array_width = 0, bool writes_node = true)
        : design(parent, "gate", "", array_width)
        , m_writes_node(writes_node)
    {
        set_primitive();
        set_entity_name("gate");
        set_custom_subdesign_insert_mode();
        set_use_custom_qhdl_output();
    }
    bool dump_qhdl_custom_wires(std::ostream & out, bool variable_written) override
    {
        if (!m_writes_node)
            return variable_written;
        out << (variable_written ? "" : "VARIABLE\n") << "\t" << get_qhdl_port_extension() << "q\t:\tWIRE;\n";
        return true;
    }
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
    {
        auto & slice = *new statement_cell(parent, 0, m_writes_node);
        slice.set_slice_index(index);
        slice.set_array_parent(parent);
        slice.set_instance_name(instance_name);
    }

private:
    bool m_writes_node;
};

// ---- signals

TEST_F(QhdlVariables, AreNotWrittenWithoutAnEntry)
{
    top_design top;
    top.input("a", 4).set_used();
    top.input("spare", 4, 1);
    top.output("y").set_used();
    EXPECT_EQ(variables(top), "");
}

TEST_F(QhdlVariables, DeclareWiresThatAreRead)
{
    top_design top("LBX_REMOVE_OPTIONAL_WIRES=ON");
    auto & y = top.output("y", 4);
    auto & bus = top.wire("bus", 4);
    auto & bit = top.wire("bit");
    auto & one = top.wire("one", 1);
    top.wire("spare", 2);
    top.connect([&] { y = (bus.range(1, 0), bit, one); });
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tbit\t: WIRE;\n"
                              "\tbus[3..0]\t: WIRE;\n"
                              "\tone[0..0]\t: WIRE;\n"
                              "\n");
}

TEST_F(QhdlVariables, DeclareEveryWireWhenNoneIsOptional)
{
    top_design top("LBX_REMOVE_OPTIONAL_WIRES=OFF");
    top.wire("spare", 2);
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tspare[1..0]\t: WIRE;\n"
                              "\n");
}

TEST_F(QhdlVariables, DeclareInputsThatFallBackToTheirDefault)
{
    top_design top;
    auto & y = top.output("y");
    auto & en = top.input("en", 0, 1);
    auto & bus = top.input("bus", 2, 0);
    auto & used = top.input("used", 0, 1);
    used.set_used();
    top.connect([&] { y = en & used & bus[0]; });
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tbus[1..0]\t: WIRE;\n"
                              "\ten\t: WIRE;\n"
                              "\n");
}

TEST_F(QhdlVariables, DeclareANodeForAnInputThatIsHeldAtAConstant)
{
    top_design top;
    top.input("en", 0, 1).set_constant_used();
    top.input("mode", 2, 0).set_constant_used();
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tconst_node_en\t: NODE;\n"
                              "\tconst_node_mode[1..0]\t: NODE;\n"
                              "\n");
}

// ---- subdesigns

TEST_F(QhdlVariables, DeclareDesignsByTheirEntityAndCellsWithTheirParameters)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u1");
    leaf.set_entity_name("mg7a");
    leaf.integer("DEPTH") = 3;
    top.cell("plain");
    top.cell("deep").integer("DEPTH") = 3;
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tdeep : blk\n"
                              "\t\tWITH (\n"
                              "\t\t\tDEPTH = 3\n"
                              "\t\t);\n"
                              "\tplain : blk;\n"
                              "\tu1 : mg7a;\n"
                              "\n");
}

TEST_F(QhdlVariables, DeclareAnArrayAsOneVariable)
{
    top_design top;
    top.subdesign("leaf", "row", 4);
    top.subdesign("leaf", "one", 1);
    top.cell("cells", 2).integer("DEPTH") = 3;
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tcells[1..0] : blk\n"
                              "\t\tWITH (\n"
                              "\t\t\tDEPTH = 3\n"
                              "\t\t);\n"
                              "\tone[0..0] : leaf;\n"
                              "\trow[3..0] : leaf;\n"
                              "\n");
}

TEST_F(QhdlVariables, DeclareSlicesThatDifferOneByOne)
{
    top_design top;
    auto & row = top.subdesign("leaf", "row", 3);
    row.declare_slice = [](design & slice) { slice.integer("DEPTH", 1); };
    row.declare_slice(row);
    row[1].parameter_integer("DEPTH") = 5;
    row[1].set_entity_name("mg9");
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\trow0 : leaf;\n"
                              "\trow1 : mg9;\n"
                              "\trow2 : leaf;\n"
                              "\n");
}

TEST_F(QhdlVariables, GiveEachCellThatDiffersItsOwnParameters)
{
    top_design top;
    auto & cells = top.cell("cells", 3);
    cells.declare_slice = [](design & slice) {
        slice.set_primitive();
        slice.integer("DEPTH", 1);
    };
    cells.integer("DEPTH", 1) = 3;
    cells[1].parameter_integer("DEPTH") = 5;
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tcells0 : blk\n"
                              "\t\tWITH (\n"
                              "\t\t\tDEPTH = 3\n"
                              "\t\t);\n"
                              "\tcells1 : blk\n"
                              "\t\tWITH (\n"
                              "\t\t\tDEPTH = 5\n"
                              "\t\t);\n"
                              "\tcells2 : blk\n"
                              "\t\tWITH (\n"
                              "\t\t\tDEPTH = 3\n"
                              "\t\t);\n"
                              "\n");
}

// ---- custom output

TEST_F(QhdlVariables, HaveTheNodesOfCellsThatWriteThemselves)
{
    top_design top;
    top.wire("w").set_port_is_a_driver();
    (new statement_cell(&top))->set_instance_name("g1");
    (new statement_cell(&top))->set_instance_name("g2");
    EXPECT_EQ(variables(top), "VARIABLE\n"
                              "\tg1_q\t:\tWIRE;\n"
                              "\tg2_q\t:\tWIRE;\n"
                              "\tw\t: WIRE;\n"
                              "\n");
}

TEST_F(QhdlVariables, AreBegunOnce)
{
    top_design top;
    (new statement_cell(&top, 0, false))->set_instance_name("g1");
    top.subdesign("first", "u1"); // in order of the names
    (new statement_cell(&top))->set_instance_name("v1");
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tu1 : first;\n"
                              "\tv1_q\t:\tWIRE;\n"
                              "\n");
}

TEST_F(QhdlVariables, HaveTheNodesOfEachSliceThatDiffers)
{
    top_design top;
    auto & gates = *new statement_cell(&top, 2);
    gates.set_instance_name("gates");
    EXPECT_EQ(variables(top), "VARIABLE\n"
                              "\tgates_q\t:\tWIRE;\n"
                              "\n");
    gates.create_slices();
    gates.set_as_heterogeneous_array();
    EXPECT_EQ(variables(top), "VARIABLE\n"
                              "\tgates0_q\t:\tWIRE;\n"
                              "\tgates1_q\t:\tWIRE;\n"
                              "\n");
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(QhdlVariables, OfSlicesTellWhetherTheSectionWasBegun)
{
    top_design top;
    auto & gates = *new statement_cell(&top, 1, false);
    gates.set_instance_name("gates");
    gates.create_slices();
    std::ostringstream out;
    EXPECT_FALSE(gates.dump_qhdl_custom_wires_for_heterogeneous_arrays(out, false));
    EXPECT_TRUE(gates.dump_qhdl_custom_wires_for_heterogeneous_arrays(out, true));
    EXPECT_EQ(out.str(), "");
}

/// Only both flags together make statements of a cell.
TEST_F(QhdlVariables, DeclareACellThatIsNotInserted)
{
    top_design top;
    auto & cell = top.cell("c");
    cell.set_use_custom_qhdl_output();
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tc : blk;\n"
                              "\n");
    cell.set_custom_subdesign_insert_mode();
    EXPECT_EQ(variables(top), "");
}

TEST_F(QhdlVariables, OfADesignThatWritesItselfAreItsOwn)
{
    statement_cell gate(nullptr);
    gate.wire("w").set_port_is_a_driver();
    gate.child("leaf", "u1");
    EXPECT_EQ(variables(gate), "VARIABLE\n"
                               "\t_q\t:\tWIRE;\n"
                               "\n");
    statement_cell silent(nullptr, 0, false);
    silent.wire("w").set_port_is_a_driver();
    EXPECT_EQ(variables(silent), "");
}

// ---- nodes of bidirectional ports

std::string nodes(GNL_GENERATOR & subdesign)
{
    return written(subdesign, &GNL_GENERATOR::dump_qhdl_bidirectional_wires, subdesign.get_parent());
}

TEST_F(QhdlBidirNodes, AreNamedAfterInstanceAndPort)
{
    top_design top;
    auto & a = top.input("a", 4);
    a.set_used();
    auto & u = top.subdesign("leaf", "u1");
    auto & bus = u.bidir("bus", 4);
    auto & bit = u.bidir("bit");
    u.bidir("open", 1);
    u.output("q");
    top.connect([&] {
        bus = a;
        bit = 1;
    });
    EXPECT_EQ(nodes(u), "\tu1_bit\t:\tNODE;\n"
                        "\tu1_bus[3..0]\t:\tNODE;\n"
                        "\tu1_open[0..0]\t:\tNODE;\n");
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tu1 : leaf;\n"
                              "\tu1_bit\t:\tNODE;\n"
                              "\tu1_bus[3..0]\t:\tNODE;\n"
                              "\tu1_open[0..0]\t:\tNODE;\n"
                              "\n");
}

TEST_F(QhdlBidirNodes, AreDeclaredForPortsThatActAsInputsToo)
{
    top_design top;
    auto & u = top.subdesign("leaf", "u1");
    auto & io = u.bidir("io");
    io.set_as_qhdl_input_port();
    top.connect([&] { io = 1; });
    EXPECT_EQ(nodes(u), "\tu1_io\t:\tNODE;\n");
}

TEST_F(QhdlBidirNodes, OfAnArrayHoldTheBitsOfAllSlices)
{
    top_design top;
    auto & row = top.subdesign("leaf", "row", 3);
    row.declare_slice = [](design & slice) {
        slice.bidir("bus", 2);
        slice.bidir("bit");
    };
    row.declare_slice(row);
    EXPECT_EQ(nodes(row), "\trow_bit[2..0]\t:\tNODE;\n"
                          "\trow_bus[5..0]\t:\tNODE;\n");
}

TEST_F(QhdlBidirNodes, OfSlicesThatAreConnectedByThemselvesStandBesideThatOfTheArray)
{
    top_design top;
    auto & row = top.subdesign("leaf", "row", 3);
    row.declare_slice = [](design & slice) { slice.bidir("bus", 2); };
    row.declare_slice(row);
    top.connect([&] { row[1].port("bus") = 2; });
    EXPECT_EQ(nodes(row), "\trow_bus[5..0]\t:\tNODE;\n"
                          "\trow1_bus[1..0]\t:\tNODE;\n");
}

TEST_F(QhdlBidirNodes, MayBeTheFirstVariables)
{
    top_design top;
    auto & gate = *new statement_cell(&top, 0, false);
    gate.set_instance_name("g");
    gate.bidir("io");
    EXPECT_EQ(variables(top), "VARIABLE \n"
                              "\tg_io\t:\tNODE;\n"
                              "\n");
}

// ---- names

TEST_F(QhdlPortExtension, IsTheInstanceWithTheIndexOfASlice)
{
    top_design top;
    EXPECT_EQ(top.subdesign("leaf", "u1").get_qhdl_port_extension(), "u1_");
    auto & row = top.subdesign("leaf", "row", 12);
    EXPECT_EQ(row.get_qhdl_port_extension(), "row_");
    EXPECT_EQ(row[11].get_qhdl_port_extension(), "row11_");
}

} // namespace
