#include "commands.h"

#include "messages.h"
#include "parameter_values.h"

#include <filesystem>
#include <iostream>
#include <memory>
#include <ostream>
#include <set>

#include <nlohmann/json.hpp>

namespace lbxgen {

namespace {

namespace fs = std::filesystem;
using json = nlohmann::ordered_json;

/// The spelling of LBX_HDL_LANGUAGE for each spelling of the command line.
std::string language_option(std::string const & language)
{
    return language == "verilog" ? "Verilog" : language == "vhdl" ? "VHDL" : language == "tcl" ? "TCL" : "QHDL";
}

/// The request's switches are options of the generator like any others.
std::vector<parameter_value> values_of(request const & wanted)
{
    std::vector<parameter_value> values;
    if (!wanted.language.empty())
        values.push_back({"LBX_HDL_LANGUAGE", language_option(wanted.language)});
    if (!wanted.file.empty())
        values.push_back({"LBX_FILE", wanted.file});
    if (!wanted.directory.empty())
        values.push_back({"LBX_OUTPUT_DIRECTORY", wanted.directory});
    for (auto const & text : wanted.parameters)
        values.push_back(parse_parameter_value(text));
    return values;
}

/// Files of the design and its subdesigns that stand on disk, each once, the top's last.
void collect_files(GNL_GENERATOR & design, std::set<std::string> & seen, json & files)
{
    std::map<std::string, GNL_GENERATOR *, LESS_C_STRING> subdesigns;
    design.get_subdesign_generator_objects(subdesigns);
    for (auto const & entry : subdesigns)
        if (!entry.second->is_primitive())
            collect_files(*entry.second, seen, files);
    std::string const file = design.get_file_name();
    std::error_code unknown;
    if (!file.empty() && fs::is_regular_file(file, unknown) && seen.insert(file).second)
        files.push_back({{"file", file}, {"state", design.generate_file() ? "written" : "reused"}});
}

/// How a run ended that did not end by itself.
std::string exception_text(std::exception_ptr const & thrown)
{
    try {
        std::rethrow_exception(thrown);
    } catch (std::exception const & exception) {
        return exception.what();
    } catch (char * text) {
        std::unique_ptr<char[]> const owned(text); // the catcher's to free
        return owned.get();
    } catch (char const * text) {
        return text;
    } catch (bool) {
        return "the body was given up";
    } catch (...) {
        return "unknown exception";
    }
}

/// Runs the generation; the text of the exception that ended it, "" if none did.
std::string run(GNL_GENERATOR & top, std::ostream & stream)
{
    try {
        top.generate_subdesign(stream);
        return {};
    } catch (...) {
        return exception_text(std::current_exception());
    }
}

json as_json(std::vector<message> const & messages)
{
    json list = json::array();
    for (auto const & message : messages) {
        json entry{{"severity", message.severity}, {"text", message.text}};
        if (!message.cause.empty())
            entry["cause"] = message.cause;
        if (!message.action.empty())
            entry["action"] = message.action;
        list.push_back(entry);
    }
    return list;
}

} // namespace

int generate(plugin_catalogue const & catalogue, request const & wanted, output const & out)
{
    auto const top = catalogue.find(wanted.generator).make("");
    assign_values(*top, values_of(wanted));
    use_all_inputs(*top);
    auto const thrown = run(*top, out.results);

    auto messages = messages_of(*top);
    int result = top->generator_result();
    json files = json::array();
    if (!thrown.empty()) {
        messages.push_back({"error", wanted.generator + " ended with an exception: " + thrown, "", ""});
        result = errors;
    } else {
        std::set<std::string> seen;
        collect_files(*top, seen, files);
    }
    if (out.json) {
        out.results << json{{"result", result}, {"messages", as_json(messages)}, {"files", files}}.dump(2) << "\n";
        return result;
    }
    for (auto const & message : messages)
        print_message(out.messages, message, out.coloured);
    for (auto const & file : files)
        out.results << file["file"].get<std::string>() << "\n";
    return result;
}

} // namespace lbxgen
