// The wrapper around an entity of the same name, which a design without a body of its own gets.

#include "vhdl_sections.h"

using namespace gnl_test;

namespace {

using VhdlWrapper = vhdl_sections;

/// A cell without a body of its own.
class plain_cell : public GNL_GENERATOR
{
public:
    explicit plain_cell(GNL_GENERATOR * parent, std::string const & instance = "u")
        : GNL_GENERATOR(parent, "blk", "")
        , in(this, "in", 4)
        , ena(this, "ena")
        , q(this, "q", 4)
        , io(this, "io", 1)
        , WIDTH(this, "WIDTH", 1)
    {
        set_primitive();
        set_instance_name(instance);
        ena.set_default_port_value(1);
    }

    GNL_PORT_INPUT in, ena;
    GNL_PORT_OUTPUT q;
    GNL_PORT_BIDIR io;
    GNL_PARAMETER_INTEGER WIDTH;
};

std::string port_map_of(GNL_GENERATOR & wrapped)
{
    return written(wrapped, &GNL_GENERATOR::dump_vhdl_connections_for_wrapper);
}

} // namespace

TEST_F(VhdlWrapper, ConnectsUsedPortsToThemselves)
{
    top_design top;
    plain_cell cell(&top);
    for (GNL_PORT * port : std::vector<GNL_PORT *>{&cell.in, &cell.q, &cell.io})
        port->set_used();
    EXPECT_EQ(port_map_of(cell), "\t PORT MAP (\n"
                                 "\t\ta_in => a_in,\n"
                                 "\t\tio => io,\n"
                                 "\t\tq => q\n"
                                 "\t );\n");
}

TEST_F(VhdlWrapper, WithoutPortsStillEnds)
{
    top_design top;
    plain_cell cell(&top);
    EXPECT_EQ(port_map_of(cell), "\t ;\n");
}

TEST_F(VhdlWrapper, IsWrittenForACellWhereWrappersAreOn)
{
    top_design top("LBX_FILE=top.vhd,LBX_VHDL_WRAPPERS=ON");
    auto & x = top.input("x", 4);
    auto & y = top.output("y", 4);
    std::unique_ptr<plain_cell> cell;
    top.body = [&](design & of) {
        cell = std::make_unique<plain_cell>(&of);
        cell->set_vhdl_library("cells.parts;work.more", false);
        cell->WIDTH = 4;
        cell->in = x;
        y = cell->q;
    };
    auto const shared = top.run();
    EXPECT_EQ(top.messages(), texts{});
    auto const text = shared + file_text("top.vhd");
    auto const start = text.find(" LIBRARY ieee");
    auto const entity = cell->get_entity_name();
    std::string const ports = "\t PORT\n"
                              "\t ( \n"
                              "\t\ta_in\t:\tIN  STD_LOGIC_VECTOR(3 DOWNTO 0);\n"
                              "\t\tq\t:\tOUT  STD_LOGIC_VECTOR(3 DOWNTO 0)\n"
                              "\t ); ";
    EXPECT_EQ(text.substr(start, text.find("--synthesis_resources", start) - start),
              " LIBRARY ieee;\n"
              " USE ieee.std_logic_1164.all;\n"
              "\n"
              " LIBRARY cells;\n"
              " USE cells.parts.all;\n"
              "\n"
              " USE work.more.all;\n"
              "\n"
              " ENTITY  "
                  + entity + " IS \n" + ports + " END " + entity
                  + ";\n"
                    "\n"
                    " ARCHITECTURE RTL OF "
                  + entity
                  + " IS\n"
                    "\n"
                    "\t ATTRIBUTE synthesis_lumenbox : boolean;\n"
                    "\t ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS true;\n"
                    "\t COMPONENT blk\n"
                    "\t GENERIC \n"
                    "\t (\n"
                    "\t\tWIDTH\t:\tNATURAL := 1;\n"
                    "\t\tlpm_hint\t:\tSTRING := \"UNUSED\"\n"
                    "\t );\n"
                  + ports
                  + "\t END COMPONENT;\n"
                    " BEGIN\n"
                    "\n"
                    " \tblk_component  :  blk\n"
                    "\t  GENERIC MAP (\n"
                    "\t\tWIDTH => 4\n"
                    "\t  )\n"
                    "\t PORT MAP (\n"
                    "\t\ta_in => a_in,\n"
                    "\t\tq => q\n"
                    "\t );\n"
                    "\n"
                    " END RTL;\n"
                    "\n");
    EXPECT_NE(text.find("\tu :  " + entity
                        + "\n"
                          "\t  PORT MAP ( \n"
                          "\t\ta_in => x,\n"
                          "\t\tq => wire_u_q\n"
                          "\t  );\n"),
              std::string::npos)
        << text;
}

/// Settings with one sum of characters lead to one name, also where designs have files of their own: wrappers stand in
/// the file of the design above.
TEST_F(VhdlWrapper, IsSharedByEqualCellsAlone)
{
    for (std::string const one_file : {"ON", "OFF"}) {
        top_design top(("LBX_FILE=top.vhd,LBX_VHDL_WRAPPERS=ON,LBX_SINGLE_OUTPUT_FILE=" + one_file).c_str());
        auto & x = top.input("x", 4);
        auto & y = top.output("y", 4);
        std::vector<std::string> names;
        top.body = [&](design & of) {
            GNL_PORT * previous = &x;
            for (int const width : {12, 21, 12}) {
                auto & cell = *new plain_cell(&of, "u" + std::string(names.size(), 'u'));
                names.emplace_back();
                cell.WIDTH = width;
                cell.in = *previous;
                previous = &cell.q;
            }
            y = *previous;
        };
        top.run();
        EXPECT_EQ(top.messages(), texts{});
        auto const text = file_text("top.vhd");
        std::map<std::string, int> entities;
        for (auto at = text.find(" ENTITY  "); at != std::string::npos; at = text.find(" ENTITY  ", at + 1))
            ++entities[text.substr(at + 9, text.find(' ', at + 9) - at - 9)];
        std::vector<std::string> instances;
        for (std::string const instance : {"\tu :  ", "\tuu :  ", "\tuuu :  "}) {
            auto const at = text.find(instance) + instance.size();
            instances.push_back(text.substr(at, text.find('\n', at) - at));
        }
        EXPECT_EQ(entities.size(), 3U) << text;
        for (auto const & [entity, count] : entities)
            EXPECT_EQ(count, 1) << entity;
        EXPECT_NE(instances[0], instances[1]);
        EXPECT_EQ(instances[0], instances[2]);
    }
}
