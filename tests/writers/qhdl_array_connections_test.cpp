#include "top_design.h"

using namespace gnl_test;

namespace {

using QhdlArray = in_folder;
using QhdlSlices = in_folder;
using QhdlDifferingSlices = in_folder;

std::string connections(GNL_GENERATOR & subdesign)
{
    return written(subdesign, &GNL_GENERATOR::generate_connections_with_subdesign, subdesign.get_parent());
}

/// An array of cells with a bus of two bits and a scalar.
design & array_of(top_design & top, int slices)
{
    auto & row = top.subdesign("leaf", "row", slices);
    row.declare_slice = [](design & slice) {
        slice.input("bus", 2);
        slice.input("bit");
        slice.output("q", 2);
        slice.output("s");
        slice.bidir("io", 2);
    };
    row.declare_slice(row);
    return row;
}

// ---- connected as a whole

TEST_F(QhdlArray, IsDrivenByOneStatementForEachInput)
{
    top_design top;
    auto & x = top.input("x", 6);
    auto & s = top.input("s");
    x.set_used();
    s.set_used();
    auto & row = array_of(top, 3);
    top.connect([&] {
        row.port("bus") = x;
        row.port("bit") = s;
    });
    EXPECT_EQ(connections(row), "\trow[].bit = s;\n"
                                "\trow[].bus[] = x[];\n");
}

TEST_F(QhdlArray, TakesConstantsForAllSlices)
{
    top_design top;
    auto & row = array_of(top, 3);
    top.connect([&] {
        row.port("bus") = 0x36;
        row.port("bit") = 5;
    });
    EXPECT_EQ(connections(row), "\trow[].bit = B\"101\";\n"
                                "\trow[].bus[] = B\"110110\";\n");
}

TEST_F(QhdlArray, TakesPiecesOfWholeSlices)
{
    top_design top;
    auto & x = top.input("x", 2);
    x.set_used();
    auto & row = array_of(top, 2);
    top.connect([&] {
        row.port("bus").range(3, 2) = x;
        row.port("bus").range(1, 0) = 1;
    });
    EXPECT_EQ(connections(row), "\trow[].bus[] = ( x[], B\"01\");\n");
}

// ---- connected slice by slice

TEST_F(QhdlSlices, AreDrivenOneByOneFromTheLowest)
{
    top_design top;
    auto & x = top.input("x", 4);
    x.set_used();
    auto & row = array_of(top, 3);
    top.connect([&] {
        row[2].port("bus") = x.range(3, 2);
        row[0].port("bus") = x.range(1, 0);
        row[0].port("bit") = x[1];
    });
    EXPECT_EQ(connections(row), "\trow[0].bit = x[1..1];\n"
                                "\trow[0].bus[] = x[1..0];\n"
                                "\trow[2].bus[] = x[3..2];\n");
}

TEST_F(QhdlSlices, ThatShareADriverShareAStatement)
{
    top_design top;
    auto & x = top.input("x", 2);
    auto & y = top.input("y", 2);
    x.set_used();
    y.set_used();
    auto & row = array_of(top, 6);
    top.connect([&] {
        for (int i : {0, 1, 2, 4, 5})
            row[i].port("bus") = i == 2 ? y : x;
        for (int i : {1, 2, 3})
            row[i].port("bit") = x[0] & y[1];
    });
    EXPECT_EQ(connections(row), "\trow[3..1].bit = (x[0..0] & y[1..1]);\n"
                                "\trow[1..0].bus[] = x[];\n"
                                "\trow[2].bus[] = y[];\n"
                                "\trow[5..4].bus[] = x[];\n");
}

TEST_F(QhdlSlices, HaveTheirOwnConstants)
{
    top_design top;
    auto & row = array_of(top, 3);
    top.connect([&] {
        row[0].port("bus") = 1;
        row[1].port("bus") = 1;
    });
    EXPECT_EQ(connections(row), "\trow[0].bus[] = B\"01\";\n"
                                "\trow[1].bus[] = B\"01\";\n");
}

TEST_F(QhdlSlices, ReadEachOther)
{
    top_design top;
    auto & row = array_of(top, 3);
    top.connect([&] {
        row[1].port("bus") = row[0].port("q");
        row[2].port("bus") = row[1].port("q");
        row[2].port("bit") = row[0].port("s");
    });
    EXPECT_EQ(connections(row), "\trow[2].bit = row[0].s;\n"
                                "\trow[1].bus[] = row[0].q[];\n"
                                "\trow[2].bus[] = row[1].q[];\n");
}

TEST_F(QhdlSlices, HaveNodesOfTheirOwn)
{
    top_design top;
    auto & x = top.input("x", 2);
    x.set_used();
    auto & row = array_of(top, 2);
    static_cast<GNL_PORT_BIDIR &>(row[1].port("io")).set_as_qhdl_input_port();
    top.connect([&] {
        row[0].port("io") = x;
        row[1].port("io") = x;
    });
    EXPECT_EQ(connections(row), "\trow0_io[] = x[];\n"
                                "\trow0_io[] = row[0].io[];\n"
                                "\trow1_io[] = x[];\n"
                                "\trow[1].io[] = row1_io[];\n");
}

TEST_F(QhdlSlices, AreReportedWithTheirDrivers)
{
    top_design top, other;
    auto & stray = other.input("stray");
    auto & row = array_of(top, 3);
    for (int i : {0, 1}) {
        auto & bit = row[i].port("bit");
        bit.replace_driver(&stray);
        bit.set_connection_level(&top);
        bit.set_used();
    }
    EXPECT_EQ(connections(row), "");
    EXPECT_EQ(top.messages(),
              texts{error("Port object top|leaf inst row[0]|bit is being driven by invalid port top|stray",
                          "The port is driven at this level by a port whose parent is not in this design or one of its "
                          "sub-designs. A port can be driven by only its parent's child ports or one of the "
                          "sub-designs' child ports.",
                          "Make sure the parent of the driver port has its parent set correctly.")});
}

// ---- slices that differ

TEST_F(QhdlDifferingSlices, AreWrittenOneAfterTheOther)
{
    top_design top;
    auto & x = top.input("x", 2);
    x.set_used();
    auto & row = array_of(top, 2);
    top.connect([&] {
        for (int i : {0, 1}) {
            row[i].port("bus") = x;
            row[i].port("bit") = x[i];
        }
    });
    row.set_as_heterogeneous_array();
    EXPECT_EQ(connections(row), "\trow[0].bit = x[0..0];\n"
                                "\trow[0].bus[] = x[];\n"
                                "\trow[1].bit = x[1..1];\n"
                                "\trow[1].bus[] = x[];\n");
}

TEST_F(QhdlDifferingSlices, KeepWhatWasConnectedOnTheArray)
{
    top_design top;
    auto & x = top.input("x", 4);
    x.set_used();
    auto & row = array_of(top, 2);
    top.connect([&] {
        row.port("bus") = x;
        row[1].port("bit") = x[0];
        row.port("io") = 9;
    });
    row.set_as_heterogeneous_array();
    EXPECT_EQ(connections(row), "\trow[1].bit = x[0..0];\n"
                                "\trow[1..0].bus[] = x[];\n"
                                "\trow_io[] = B\"1001\";\n"
                                "\trow_io[] = row[1..0].io[];\n");
}

TEST_F(QhdlDifferingSlices, AreConnectedOnceWhenTheArrayHasCollectedThem)
{
    top_design top;
    auto & x = top.input("x", 2);
    x.set_used();
    auto & row = array_of(top, 2);
    top.connect([&] {
        row[0].port("bit") = x[1];
        row[1].port("bit") = x[0];
        top.dump_hdl_group_subdesign_slices(&top);
    });
    row.set_as_heterogeneous_array();
    EXPECT_EQ(connections(row), "\trow[1..0].bit = ( x[0..0], x[1..1]);\n");
}

TEST_F(QhdlDifferingSlices, WriteThemselvesEach)
{
    struct gate : design
    {
        explicit gate(GNL_GENERATOR * parent, int array_width = 0)
            : design(parent, "gate", "", array_width)
        {
            input("a");
            set_custom_subdesign_insert_mode();
            set_use_custom_qhdl_output();
        }
        void dump_qhdl_custom_output(std::ostream & out, GNL_GENERATOR *) override
        {
            out << "\t" << get_qhdl_port_extension() << "q = VCC;\n";
        }
        void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
        {
            auto & slice = *new gate(parent);
            slice.set_slice_index(index);
            slice.set_array_parent(parent);
            slice.set_instance_name(instance_name);
        }
    };
    top_design top;
    auto & gates = *new gate(&top, 2);
    gates.set_instance_name("gates");
    top.connect([&] { gates.port("a") = 2; });
    EXPECT_EQ(connections(gates), "\tgates_q = VCC;\n");
    gates.create_slices();
    gates.set_as_heterogeneous_array();
    EXPECT_EQ(connections(gates), "\tgates0_q = VCC;\n"
                                  "\tgates1_q = VCC;\n");
}

} // namespace
