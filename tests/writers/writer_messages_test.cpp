#include "verilog_sections.h"

#include "lbx/gnl/writers/writer_messages.h"

#include <algorithm>

using namespace gnl_test;

namespace {

using WriterMessages = verilog_sections;

/// A design whose output, array and subdesign are driven from somewhere else.
struct stray_drivers
{
    top_design top;
    top_design elsewhere;
    GNL_PORT & stray = elsewhere.input("stray");
    GNL_PORT & y = top.output("y");
    GNL_PORT & z = top.output("z");
    design & u = top.cell("u");
    GNL_PORT & a = u.input("a");
    GNL_PORT & b = u.input("b");

    stray_drivers()
    {
        y.replace_driver(&stray);
        a.replace_driver(&stray);
        for (GNL_PORT * port : {&y, &z, &a, &b})
            port->set_used();
        top.connect([&] {
            z = 1;
            b = 0;
        });
    }
};

struct scenario
{
    std::function<std::vector<std::string>()> run;
    std::vector<std::string> expected;
};

std::string invalid_driver(std::string const & port)
{
    return error("Port object " + port + " is being driven by invalid port top|stray",
                 "The port is driven at this level by a port whose parent is not in this design or one of its "
                 "sub-designs. A port can be driven by only its parent's child ports or one of the sub-designs' child "
                 "ports.",
                 "Make sure the parent of the driver port has its parent set correctly.");
}

/// By the name of the row that the scenario raises.
std::map<std::string_view, scenario> const scenarios{
    {"invalid_driver",
     {[] {
          stray_drivers design;
          written(design.top, &GNL_GENERATOR::dump_verilog_port_connections);
          return design.top.messages();
      },
      {invalid_driver("top|blk inst u|a"), invalid_driver("top|y")}}},
};

} // namespace

TEST_F(WriterMessages, HaveTheirTexts)
{
    for (auto const & [row, scenario] : scenarios)
        EXPECT_EQ(scenario.run(), scenario.expected) << row;
}

TEST_F(WriterMessages, EachRowHasAScenario)
{
    for (auto const & row : gnl_detail::writer_message_texts)
        EXPECT_TRUE(scenarios.contains(row.id)) << row.id;
}

TEST_F(WriterMessages, TheRestIsWrittenAllTheSame)
{
    stray_drivers design;
    EXPECT_EQ(instance_of(design.u), "\tblk   u\n"
                                     "\t( \n"
                                     "\t.b(1'b0));\n");
    design.u.set_instance_name("v");
    EXPECT_TRUE(written(design.top, &GNL_GENERATOR::dump_verilog_port_connections)
                    .starts_with("\tblk   v\n"
                                 "\t( \n"
                                 "\t.b(1'b0));\n"
                                 "\tassign\n"
                                 "\t\tz = 1'b1;\n"
                                 "\tinitial"));
}

TEST_F(WriterMessages, ArraysAndSlicesTestTheirDriversToo)
{
    top_design top;
    top_design elsewhere;
    auto & stray = elsewhere.input("stray");
    auto & arr = top.cell("arr", 2);
    arr.set_use_custom_verilog_output();
    auto const declare = [](design & slice) {
        slice.input("a");
        slice.input("b");
        slice.bidir("io");
    };
    declare(arr);
    arr.declare_slice = declare;
    arr.port("a").replace_driver(&stray);
    arr.port("a").set_used();
    arr[1].port("b").replace_driver(&stray);
    arr[1].port("b").set_used();
    auto & io = static_cast<GNL_PORT_BIDIR &>(arr.port("io"));
    io.replace_driver(&stray);
    io.set_used();
    io.set_connection_level(&top);
    io.lock_bidir_port(1);
    EXPECT_EQ(written(arr, &GNL_GENERATOR::dump_verilog_subdesign_wire_connections, &top), "");
    EXPECT_EQ(top.messages(),
              (texts{invalid_driver("top|blk inst arr array|a"), invalid_driver("top|blk inst arr[1]|b"),
                     invalid_driver("top|blk inst arr array|io")}));
}
