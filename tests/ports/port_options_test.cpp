#include "open_design.h"

namespace {

using namespace gnl_test;

class PortOptions : public in_folder
{
protected:
    static std::string written(GNL_PORT const & port)
    {
        std::ostringstream out;
        port.dump_qelvar_internal_options(out);
        return out.str();
    }
};

TEST_F(PortOptions, AreWrittenInOrderWithoutEmptyOnes)
{
    open_design top(GNL_VERILOG);
    auto & a = top.input("a");
    a.set_qelvar_internal_option("");
    a.set_qelvar_internal_option("ONE=1");
    a.set_qelvar_internal_option("");
    a.set_qelvar_internal_option("TWO=2");
    EXPECT_EQ(written(a), "/* synthesis QELVAR_ATTRIBUTE=\"ONE=1;TWO=2\" */");
    EXPECT_TRUE(top.uses_qelvar_internal_option());
    top.set_gen_language(GNL_VHDL);
    EXPECT_EQ(written(a), "\t ATTRIBUTE QELVAR_ATTRIBUTE OF a : SIGNAL IS \"ONE=1;TWO=2\";\n");
    top.set_gen_language(GNL_TCL);
    EXPECT_EQ(written(a), "ONE=1;TWO=2");
}

TEST_F(PortOptions, ArePartOfTheDesignInQhdl)
{
    open_design top(GNL_QHDL);
    auto & a = top.input("a");
    a.set_qelvar_internal_option("ONE=1");
    EXPECT_FALSE(a.has_qelvar_internal_options());
    EXPECT_EQ(top.dump_qelvar_internal_options_as_string(), "{-to a} ONE=1");
    EXPECT_TRUE(top.uses_qelvar_internal_option());
    EXPECT_EQ(written(a), "");
}

TEST_F(PortOptions, SuitAllDeclaredKinds)
{
    open_design top(GNL_VERILOG);
    for (GNL_PORT * port :
         std::initializer_list<GNL_PORT *>{&top.input("a"), &top.output("y"), &top.bidir("io"), &top.wire("w")}) {
        port->set_qelvar_internal_option("ONE=1");
        EXPECT_EQ(written(*port), "/* synthesis QELVAR_ATTRIBUTE=\"ONE=1\" */") << port->get_name();
    }
    EXPECT_EQ(top.messages(), texts{});
}

TEST_F(PortOptions, AreRefusedWhereTheyCannotBeWritten)
{
    open_design top(GNL_VERILOG);
    auto & part = top.wire("b", 4).range(1, 0);
    part.set_qelvar_internal_option("ONE=1");
    EXPECT_FALSE(part.has_qelvar_internal_options());
    GNL_PORT_INPUT free(nullptr, "free");
    free.set_qelvar_internal_option("ONE=1");
    EXPECT_FALSE(free.has_qelvar_internal_options());
    design & cell = top.child("cell", "u1");
    cell.set_primitive();
    auto & d = cell.input("d");
    d.set_qelvar_internal_option("ONE=1");
    EXPECT_FALSE(d.has_qelvar_internal_options());
    EXPECT_EQ(top.messages().size(), 2u);
    EXPECT_FALSE(top.uses_qelvar_internal_option());
}

} // namespace
