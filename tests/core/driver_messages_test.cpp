#include "driver_support.h"

#include "lbx/gnl/core/driver_messages.h"

namespace {

using namespace gnl_test;

using DriverMessages = in_folder;

texts after_run(design & top, bool connected_child = true)
{
    top.run([&](design & self) {
        if (!connected_child)
            self.child("leaf", "u1").input("d");
    });
    return top.messages();
}

struct scenario
{
    std::function<texts()> run;
    texts expected;
};

std::string const required_port =
    error("Port top|leaf inst u1|d is a required port (has no default value), but it is not connected.",
          "The required input port, which has no default port, is not connected. All input ports must either be "
          "connected or should have a default value.",
          "Connect the required input port or if the input port is optional, specify a default value for the input "
          "port.");

/// By the name of the row that the scenario raises.
std::map<std::string_view, scenario> const scenarios{
    {"illegal_extension",
     {[] {
          design top(nullptr, "top", "LBX_FILE=top.txt");
          return after_run(top);
      },
      {error("File name top.txt has illegal file extension.", "The file name has an illegal extension.",
             "Specify a valid file extension. The  valid file extensions are .vh*(for VHDL), .v*(for Verilog) and "
             ".td*(for QHDL).")}}},
    {"file_not_created",
     {[] {
          design top(nullptr, "top", "LBX_FILE=nowhere/top.vhd");
          return after_run(top);
      },
      {error("File nowhere/top.vhd cannot be created.",
             "The file cannot be created. The file already exists, and is write-protected, or there is not enough "
             "space.")}}},
    {"no_output_stream",
     {[] {
          design top(nullptr, "top", "LBX_HDL_LANGUAGE=VHDL");
          top.set_use_external_ostream();
          std::ostream nowhere(nullptr);
          top.generate_subdesign(nowhere);
          return top.messages();
      },
      {error("No valid output file stream exists at level top",
             "In a single output file flow or a gigawizard flow (for VHDL and Verilog), the output file stream is "
             "invalid.",
             "The output file stream has either been closed before the call to dump_hdl () function was made, or the "
             "output file stream was never created (there were problems in the creation of the file stream).")}}},
    {"primitive_without_parent",
     {[] {
          design top(nullptr, "cell");
          top.set_primitive();
          return after_run(top);
      },
      {error("Generator entity cell is specified as a primitive with no parent.",
             "Top level entity is specified as a primitive or primitive has no parent. All primitive objects in lumen "
             "box should have non-NULL parents and top level entities cannot be primitives.",
             "The constructor of the entity still has the set_primitive () function, or the parent of the primitive "
             "object is set to NULL.")}}},
    // Told by the check before the name is made and by the one before the file is.
    {"required_port",
     {[] {
          design top(nullptr, "top", "LBX_FILE=top.vhd");
          return after_run(top, false);
      },
      {required_port, required_port}}},
};

TEST_F(DriverMessages, HaveTheirTexts)
{
    for (auto const & [row, scenario] : scenarios)
        EXPECT_EQ(scenario.run(), scenario.expected) << row;
}

TEST_F(DriverMessages, EachRowHasAScenario)
{
    for (auto const & row : gnl_detail::driver_message_texts)
        EXPECT_TRUE(scenarios.contains(row.id)) << row.id;
}

} // namespace
