#include "commands.h"
#include "messages.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <functional>
#include <iostream>
#include <unistd.h>

namespace {

using namespace lbxgen;

/// The program's command line: what it may hold, and which command it asks for.
class command_line
{
public:
    command_line();
    int run(int argc, char ** argv);

private:
    using command = std::function<int(plugin_catalogue const &, output const &)>;

    CLI::App * add_command(char const * name, char const * summary, command action);
    void add_generator(CLI::App & app) { app.add_option("NAME", m_request.generator, "Generator class")->required(); }
    void add_parameters(CLI::App & app) { app.add_option("PARAMETER", m_request.parameters, "NAME=value"); }
    /// An option that takes one value each time it is given.
    static CLI::Option & add_repeatable(CLI::App & app, char const * names, std::vector<std::string> & values,
                                        char const * summary)
    {
        return *app.add_option(names, values, summary)->allow_extra_args(false);
    }
    void add_generate();
    int fail(std::string const & text, int status) const;

    CLI::App m_app{"Runs hardware design generators from plug-ins."};
    std::vector<std::string> m_plugins;
    bool m_json = false;
    request m_request;
    command m_command;
};

command_line::command_line()
{
    m_app.require_subcommand(1);
    m_app.set_version_flag("--version", "lbxgen " + get_lbx_gnl_version());
    add_repeatable(m_app, "-p,--plugin", m_plugins, "Plug-in to load; may be given several times").type_name("FILE");
    m_app.add_flag("--json", m_json, "Results as JSON");
    m_app.fallthrough();
    m_app.footer("Plug-ins are also loaded from the folders of LBX_PLUGIN_PATH.\n"
                 "Exit status: 0 fine, 1 errors, 2 not supported, 3 a subdesign is not supported, 64 wrong usage.");

    add_command("list", "List the generator classes", list_generators);
    auto & parameters =
        *add_command("parameters", "List the parameters of a class",
                     [this](auto & catalogue, auto & out) { return list_parameters(catalogue, m_request, out); });
    add_generator(parameters);
    parameters.add_flag("--all", m_request.all, "The options of every generator too");
    auto & ports = *add_command("ports", "List the ports of a class",
                                [this](auto & catalogue, auto & out) { return list_ports(catalogue, m_request, out); });
    add_generator(ports);
    add_parameters(ports);
    add_generate();
    auto & checked = *add_command("check", "Prove that the languages mean the same for a design",
                                  [this](auto & catalogue, auto & out) { return check(catalogue, m_request, out); });
    add_generator(checked);
    add_parameters(checked);
}

CLI::App * command_line::add_command(char const * name, char const * summary, command action)
{
    auto * app = m_app.add_subcommand(name, summary);
    app->callback([this, action] { m_command = action; });
    return app;
}

void command_line::add_generate()
{
    auto & app = *add_command("generate", "Generate a design",
                              [this](auto & catalogue, auto & out) { return generate(catalogue, m_request, out); });
    add_generator(app);
    add_parameters(app);
    app.add_option("-l,--language", m_request.language, "verilog, vhdl, qhdl or tcl")
        ->check(CLI::IsMember({"verilog", "vhdl", "qhdl", "tcl"}));
    app.add_option("-o,--output", m_request.file, "File of the top design; its ending can choose the language")
        ->type_name("FILE");
    app.add_option("-d,--directory", m_request.directory, "Folder for the files")->type_name("DIR");
    auto * const single = app.add_flag_callback(
        "--single-file", [this] { m_request.files = "ON"; }, "Subdesigns go to the file of the top design");
    auto * const separate = app.add_flag_callback(
        "--separate-files", [this] { m_request.files = "OFF"; }, "Every subdesign has a file of its own");
    single->excludes(separate);
    app.add_flag("--force", m_request.forced, "Generate also what is there already with the same settings");
    add_repeatable(app, "--blackbox", m_request.black_boxes, "Subdesign that stands as a black box, or file of names")
        .type_name("NAME");
    add_repeatable(app, "--library-path", m_request.library_paths, "Folder in which generators look for files")
        .type_name("DIR");
    app.add_option("--list-file", m_request.list_file,
                   "Where the list of files goes, if all is well, instead of standard output")
        ->type_name("FILE");
}

int command_line::fail(std::string const & text, int status) const
{
    print_message(std::cerr, {"error", text, "", ""}, isatty(STDERR_FILENO) != 0);
    return status;
}

int command_line::run(int argc, char ** argv)
{
    try {
        m_app.parse(argc, argv);
    } catch (CLI::ParseError const & error) {
        if (error.get_exit_code() == 0)
            return m_app.exit(error); // help or version
        return fail(error.what(), wrong_usage);
    }
    try {
        plugin_catalogue catalogue;
        for (auto const & file : m_plugins)
            catalogue.load(file);
        for (auto const & folder : plugin_folders())
            catalogue.load_folder(folder);
        int const status = m_command(catalogue, {std::cout, std::cerr, m_json, isatty(STDERR_FILENO) != 0});
        if (!std::cout.flush())
            return fail("the results can't be written to standard output", errors);
        return status;
    } catch (usage_error const & error) {
        return fail(error.what(), wrong_usage);
    } catch (...) {
        return fail("ended with an exception: " + exception_text(std::current_exception()), errors);
    }
}

} // namespace

int main(int argc, char ** argv)
{
    // A file that grows beyond what the process may write is an error to report, as a full disk is.
    std::signal(SIGXFSZ, SIG_IGN);
    return command_line().run(argc, argv);
}
