#include "top_design.h"

using namespace gnl_test;

namespace {

using QhdlWrapper = in_folder;

std::string connections(GNL_GENERATOR & wrapper)
{
    return written(wrapper, &GNL_GENERATOR::dump_qhdl_connections_for_subdesign_wrapper);
}

TEST_F(QhdlWrapper, HandsDrivenInputsAndUsedOutputsThrough)
{
    top_design top;
    auto & x = top.input("x", 4);
    x.set_used();
    auto & leaf = top.subdesign("leaf", "u");
    auto & b = leaf.input("b");
    auto & a = leaf.input("A", 4);
    leaf.input("idle", 0, 1).set_used();
    leaf.output("y", 1).set_used();
    leaf.output("z");
    leaf.bidir("pad", 2).set_used();
    top.connect([&] {
        a = x;
        b = 1;
    });
    EXPECT_EQ(connections(leaf), "BEGIN \n"
                                 "\tmg.A[] = A[];\n"
                                 "\tmg.b = b;\n"
                                 "\ty[] = mg.y[];\n"
                                 "END;");
}

TEST_F(QhdlWrapper, HandsAnInputThroughThatASliceDrives)
{
    top_design top;
    auto & row = top.subdesign("leaf", "row", 2);
    row.declare_slice = [](design & slice) { slice.input("a", 2); };
    row.declare_slice(row);
    top.connect([&] { row[1].port("a") = 1; });
    EXPECT_EQ(connections(row), "BEGIN \n"
                                "\tmg.a[] = a[];\n"
                                "END;");
}

TEST_F(QhdlWrapper, NamesItsParameters)
{
    top_design top;
    auto & leaf = top.subdesign("leaf", "u");
    leaf.set_entity_name("mg5");
    leaf.integer("WIDTH", 4);
    leaf.string("MODE", "SLOW|FAST", 0) = "FAST";
    leaf.integer("hidden").set_as_not_included_in_declaration();
    EXPECT_EQ(written(leaf, &GNL_GENERATOR::dump_qhdl_variables_section_for_subdesign_wrapper, false),
              "VARIABLE \n"
              "\tmg : leaf WITH (\n"
              "\t\tMODE = MODE, \n"
              "\t\tWIDTH = WIDTH);\n");
    EXPECT_EQ(written(leaf, &GNL_GENERATOR::dump_qhdl_variables_section_for_subdesign_wrapper, true),
              "VARIABLE \n"
              "\tmg : leaf WITH (\n"
              "\t\tMODE = MODE);\n");
}

/// A generator without a body of its own.
struct wrapped : GNL_GENERATOR
{
    explicit wrapped(GNL_GENERATOR * parent)
        : GNL_GENERATOR(parent, "leaf")
    {
    }
};

TEST_F(QhdlWrapper, IsTheBodyOfAGeneratorThatHasNone)
{
    design top(nullptr, "top", "LBX_FILE=top.tdf");
    auto & x = top.input("x", 2);
    auto & y = top.output("y", 2);
    auto & leaf = *new wrapped(&top);
    auto & a = *new GNL_PORT_INPUT(&leaf, "a", 2, 0);
    auto & q = *new GNL_PORT_OUTPUT(&leaf, "q", 2, 0);
    leaf.set_instance_name("u1");
    top.set_port_to_used("x");
    top.run([&](design &) {
        a = x;
        y = q;
    });
    EXPECT_EQ(top.messages(), texts{});
    auto const text = file_text(leaf.get_entity_name() + ".tdf");
    auto const from = text.find("include");
    ASSERT_NE(from, std::string::npos);
    EXPECT_EQ(text.substr(from), "include \"leaf.inc\";\n"
                                 "\n"
                                 "SUBDESIGN "
                                     + leaf.get_entity_name()
                                     + "\n"
                                       "( \n"
                                       "\ta[1..0]\t:\tinput;\n"
                                       "\tq[1..0]\t:\toutput;\n"
                                       ") VARIABLE \n"
                                       "\tmg : leaf WITH (\n"
                                       ");\n"
                                       "BEGIN \n"
                                       "\tmg.a[] = a[];\n"
                                       "\tq[] = mg.q[];\n"
                                       "END;\n"
                                       "--VALID FILE\n");
}

} // namespace
