#pragma once

#include "plugin_catalogue.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace lbxgen {

/// How the program ends, from the result of a generation on.
enum exit_status { fine = 0, errors = 1, not_supported = 2, subdesign_not_supported = 3, wrong_usage = 64 };

/// Where a command writes, and how.
struct output
{
    std::ostream & results;
    std::ostream & messages;
    bool json = false;
    bool coloured = false; ///< messages go to a terminal
};

/// What `generate` and `ports` are asked for.
struct request
{
    std::string generator;
    std::vector<std::string> parameters; ///< "NAME=value"
    std::string language;                ///< "" leaves the choice to the file name
    std::string file;
    std::string directory;
    std::string files; ///< "ON" for one file, "OFF" for a file each, "" leaves the choice to the generator
    bool forced = false;
    std::string list_file; ///< takes the listing of what has been generated, if all is well
    std::vector<std::string> black_boxes;
    std::vector<std::string> library_paths;
    bool all = false; ///< `parameters` lists the options too
};

int list_generators(plugin_catalogue const & catalogue, output const & out);
int list_parameters(plugin_catalogue const & catalogue, request const & wanted, output const & out);
int list_ports(plugin_catalogue const & catalogue, request const & wanted, output const & out);
int generate(plugin_catalogue const & catalogue, request const & wanted, output const & out);
/// Writes the design in the three hardware languages, to files that nobody keeps, and proves that they mean the same
/// where the tools for it are there. One line tells the result.
int check(plugin_catalogue const & catalogue, request const & wanted, output const & out);

} // namespace lbxgen
