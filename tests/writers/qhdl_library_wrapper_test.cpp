#include "top_design.h"

using namespace gnl_test;

namespace {

using QhdlLibraryWrapper = in_folder;

/// A cell that stands for another one.
struct library_cell : design
{
    explicit library_cell(GNL_GENERATOR * parent)
        : design(parent, "lib_ff")
    {
        set_primitive();
        set_entity_name("ff");
        set_instance_name("u1");
    }
    std::string generate_primitive_name() override { return "ff"; }
};

TEST_F(QhdlLibraryWrapper, StartsWithParametersAndTheirDefaults)
{
    top_design top;
    library_cell cell(&top);
    cell.integer("DEPTH", 4);
    cell.integer("OPEN");
    cell.string("MODE", "SLOW|FAST", 1);
    cell.string("NAME", "");
    cell.vector("INIT", 0, 4);
    cell.integer("hidden", 2).set_as_not_included_in_declaration();
    cell.input("d", 2);
    cell.output("q");
    cell.bidir("pad");
    EXPECT_EQ(written(cell, &GNL_GENERATOR::dump_qhdl_initial_parameter_section), "\n"
                                                                                  "PARAMETERS \n"
                                                                                  "(\n"
                                                                                  "\tDEPTH = 4,\n"
                                                                                  "\tINIT,\n"
                                                                                  "\tMODE = \"FAST\",\n"
                                                                                  "\tNAME,\n"
                                                                                  "\tOPEN,\n"
                                                                                  "\td_port_used = \"UNUSED\",\n"
                                                                                  "\tq_port_used = \"UNUSED\"\n"
                                                                                  ");\n");
}

TEST_F(QhdlLibraryWrapper, HasNoParametersWithoutPinsAndParameters)
{
    top_design top;
    EXPECT_EQ(written(top.cell("u"), &GNL_GENERATOR::dump_qhdl_initial_parameter_section), "");
}

TEST_F(QhdlLibraryWrapper, ListsAllInputsAndOutputs)
{
    top_design top;
    library_cell cell(&top);
    cell.input("d", 2);
    cell.input("clk").set_used();
    cell.output("q", 2);
    cell.bidir("pad");
    EXPECT_EQ(written(cell, &GNL_GENERATOR::dump_qhdl_subdesign_section_for_wysiwyg), "SUBDESIGN ff\n"
                                                                                      "( \n"
                                                                                      "\tclk\t:\tinput;\n"
                                                                                      "\td[1..0]\t:\tinput;\n"
                                                                                      "\tq[1..0]\t:\toutput;\n"
                                                                                      ") ");
}

TEST_F(QhdlLibraryWrapper, ConnectsPinsThatAreUsed)
{
    top_design top;
    library_cell cell(&top);
    cell.input("clk");
    cell.input("d", 2).set_planb_width("WIDTH");
    cell.input("e", 2);
    cell.output("q", 2).set_planb_width("WIDTH");
    cell.output("z");
    EXPECT_EQ(written(cell, &GNL_GENERATOR::dump_qhdl_connections_for_wysiwyg_wrapper),
              "BEGIN \n"
              "\tIF (USED(clk) & clk_port_used == \"USED\") GENERATE\n"
              "\t\tmg.clk = clk;\n"
              "\tEND GENERATE;\n"
              "\tIF (USED(d) & d_port_used == \"USED\") GENERATE\n"
              "\t\tmg.d[WIDTH-1..0] = d[WIDTH-1..0];\n"
              "\tEND GENERATE;\n"
              "\tIF (USED(e) & e_port_used == \"USED\") GENERATE\n"
              "\t\tmg.e[] = e[];\n"
              "\tEND GENERATE;\n"
              "\tIF (USED(q) & q_port_used == \"USED\") GENERATE\n"
              "\t\tq[WIDTH-1..0] = mg.q[WIDTH-1..0];\n"
              "\tEND GENERATE;\n"
              "\tIF (USED(z) & z_port_used == \"USED\") GENERATE\n"
              "\t\tz = mg.z;\n"
              "\tEND GENERATE;\n"
              "END;");
}

constexpr char wrapper_of_a_cell_with_one_input[] =
    "-- ff\n"
    "-- lumenbox generated header file for use with tolvane when compiling thrid party tools output\n"
    "include \"ff\".inc;\n"
    "\n"
    "PARAMETERS \n"
    "(\n"
    "\tWIDTH = 4,\n"
    "\td_port_used = \"UNUSED\"\n"
    ");\n"
    "SUBDESIGN ff\n"
    "( \n"
    "\td[3..0]\t:\tinput;\n"
    ") VARIABLE \n"
    "\tmg : lib_ff WITH (\n"
    "\t\tWIDTH = WIDTH);\n"
    "BEGIN \n"
    "\tIF (USED(d) & d_port_used == \"USED\") GENERATE\n"
    "\t\tmg.d[WIDTH-1..0] = d[WIDTH-1..0];\n"
    "\tEND GENERATE;\n"
    "END;";

/// Whatever the language of the run.
TEST_F(QhdlLibraryWrapper, IsAFileOfItsOwn)
{
    for (int const language : {GNL_QHDL, GNL_VERILOG, GNL_VHDL}) {
        fs::remove("ff.tdf");
        top_design top;
        design::set_gen_language(language);
        library_cell cell(&top);
        cell.set_need_include_header();
        cell.integer("WIDTH", 4);
        cell.input("d", 4).set_planb_width("WIDTH");
        cell.dump_qhdl_library_wrapper();
        EXPECT_EQ(file_text("ff.tdf"), wrapper_of_a_cell_with_one_input) << language;
        EXPECT_EQ(GNL_ELEMENT::get_gen_language(), language);
        EXPECT_EQ(top.messages(), texts{});
    }
}

TEST_F(QhdlLibraryWrapper, LeavesAFileThatIsThere)
{
    std::ofstream("ff.tdf") << "mine";
    top_design top;
    library_cell cell(&top);
    cell.dump_qhdl_library_wrapper();
    EXPECT_EQ(file_text("ff.tdf"), "mine");
}

TEST_F(QhdlLibraryWrapper, StandsInTheOutputDirectory)
{
    fs::create_directory("out");
    top_design top("LBX_OUTPUT_DIRECTORY=out");
    library_cell cell(&top);
    cell.dump_qhdl_library_wrapper();
    EXPECT_TRUE(fs::exists("out/ff.tdf"));
    EXPECT_FALSE(fs::exists("ff.tdf"));
}

TEST_F(QhdlLibraryWrapper, ThatCantBeWrittenIsReported)
{
    top_design top("LBX_OUTPUT_DIRECTORY=nowhere");
    library_cell cell(&top);
    cell.dump_qhdl_library_wrapper();
    EXPECT_EQ(top.messages(), texts{error("File nowhere/ff.tdf cannot be created.",
                                          "The file cannot be created. The file already exists, and is "
                                          "write-protected, or there is not enough space.")});
}

TEST_F(QhdlLibraryWrapper, IsWrittenBesideADesignOfAnotherLanguage)
{
    for (std::string const planb : {"ON", "OFF"}) {
        design top(nullptr, "top", ("LBX_FILE=top.v,LBX_EDA_PLANB=" + planb).c_str());
        auto & x = top.input("x");
        top.set_port_to_used("x");
        top.run([&](design & of) {
            auto & cell = *new library_cell(&of);
            cell.input("d") = x;
        });
        EXPECT_EQ(fs::exists("ff.tdf"), planb == "ON");
        fs::remove("ff.tdf");
    }
}

} // namespace
