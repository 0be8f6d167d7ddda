#pragma once

#include "outside_tools.h"
#include "support.h"

namespace gnl_test {

/// lbxgen in a fresh folder, without plug-ins of the user's environment.
class lbxgen_test : public in_folder
{
protected:
    static command_result run_bare(std::string const & arguments)
    {
        return run_command("env -u LBX_PLUGIN_PATH '" LBXGEN_PROGRAM "' " + arguments);
    }
    /// With the examples; both outputs together.
    static command_result run(std::string const & arguments)
    {
        return run_bare("--plugin '" LBXGEN_EXAMPLES "' " + arguments);
    }
    /// With the generators of the tests: banks of cells, and all ways to end.
    static command_result run_odd(std::string const & arguments)
    {
        return run_bare("--plugin '" LBXGEN_ODD_GENERATORS "' " + arguments);
    }
};

} // namespace gnl_test
