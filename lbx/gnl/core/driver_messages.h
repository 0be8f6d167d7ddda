#pragma once

#include "lbx/gnl/core/message_table.h"

namespace gnl_detail {

#define DRIVER_MESSAGES(X)                                                                                             \
    X(illegal_extension, "File name {0} has illegal file extension.", "The file name has an illegal extension.",       \
      "Specify a valid file extension. The  valid file extensions are .vh*(for VHDL), .v*(for Verilog) and .td*(for "  \
      "QHDL).")                                                                                                        \
    X(file_not_created, "File {0} cannot be created.",                                                                 \
      "The file cannot be created. The file already exists, and is write-protected, or there is not enough space.",    \
      nullptr)                                                                                                         \
    X(no_output_stream, "No valid output file stream exists at level {0}",                                             \
      "In a single output file flow or a gigawizard flow (for VHDL and Verilog), the output file stream is invalid.",  \
      "The output file stream has either been closed before the call to dump_hdl () function was made, or the output " \
      "file stream was never created (there were problems in the creation of the file stream).")                       \
    X(primitive_without_parent, "Generator entity {0} is specified as a primitive with no parent.",                    \
      "Top level entity is specified as a primitive or primitive has no parent. All primitive objects in lumen box "   \
      "should have non-NULL parents and top level entities cannot be primitives.",                                     \
      "The constructor of the entity still has the set_primitive () function, or the parent of the primitive object "  \
      "is set to NULL.")                                                                                               \
    X(required_port, "Port {0} is a required port (has no default value), but it is not connected.",                   \
      "The required input port, which has no default port, is not connected. All input ports must either be "          \
      "connected or should have a default value.",                                                                     \
      "Connect the required input port or if the input port is optional, specify a default value for the input port.")

GNL_MESSAGE_TABLE(driver_message, DRIVER_MESSAGES)

} // namespace gnl_detail
