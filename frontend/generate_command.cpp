#include "commands.h"

#include "design_files.h"
#include "folder_lock.h"
#include "messages.h"
#include "nearest_names.h"
#include "parameter_values.h"
#include "plugin_catalogue.h"

#include "gnl_ofstream.h"

#include <filesystem>
#include <ostream>
#include <set>

#include <nlohmann/json.hpp>

namespace lbxgen {

namespace {

using json = nlohmann::ordered_json;

/// The spelling of LBX_HDL_LANGUAGE for each spelling of the command line.
std::string language_option(std::string const & language)
{
    return language == "verilog" ? "Verilog" : language == "vhdl" ? "VHDL" : language == "tcl" ? "TCL" : "QHDL";
}

/// The language that a file name's ending stands for, also with one letter more; "" if it stands for none.
std::string language_of(std::string const & file)
{
    auto const name = file.substr(0, file.find(':'));
    auto const less_one = name.substr(0, name.empty() ? 0 : name.size() - 1);
    auto const ends_in = [&](char const * ending) { return name.ends_with(ending) || less_one.ends_with(ending); };
    return ends_in(".vh")           ? "vhdl"
           : ends_in(".v")          ? "verilog"
           : name.ends_with(".tcl") ? "tcl"
           : ends_in(".td")         ? "qhdl"
                                    : "";
}

/// The library asks for VHDL, Verilog, Tcl and QHDL in this order, and takes the first that either the option or the
/// file's ending names. Where that is not the one that the user asks for, nobody should find it out from the file.
void check_language(request const & wanted)
{
    if (wanted.language.empty())
        return;
    auto const ending = language_of(wanted.file);
    for (char const * language : {"vhdl", "verilog", "tcl", "qhdl"}) {
        if (wanted.language == language)
            return;
        if (ending == language)
            throw usage_error("the ending of " + wanted.file + " makes it a " + ending
                              + " file, but the language is to be " + wanted.language);
    }
}

/// The entries of a switch that is given several times, as one option value.
std::string joined(std::vector<std::string> const & entries, char separator, std::string const & what)
{
    std::string text;
    for (auto const & entry : entries) {
        if (entry.empty())
            throw usage_error(what + " needs a name that is not empty");
        text += (text.empty() ? "" : std::string(1, separator)) + entry;
    }
    return text;
}

/// The request's switches are options of the generator like any others.
std::vector<parameter_value> values_of(request const & wanted)
{
    check_language(wanted);
    std::vector<parameter_value> values;
    auto const add = [&values](char const * option, std::string const & value) {
        if (!value.empty())
            values.push_back({option, value});
    };
    add("LBX_HDL_LANGUAGE", wanted.language.empty() ? "" : language_option(wanted.language));
    add("LBX_FILE", wanted.file);
    add("LBX_OUTPUT_DIRECTORY", wanted.directory);
    add("LBX_SINGLE_OUTPUT_FILE", wanted.files);
    add("LBX_FORCE_HDL_GENERATION", wanted.forced ? "ON" : "");
    add("LBX_BLACKBOX_LIST", joined(wanted.black_boxes, '|', "--blackbox"));
    add("LBX_LIBRARY_PATH", joined(wanted.library_paths, ';', "--library-path"));
    for (auto const & text : wanted.parameters)
        values.push_back(parse_parameter_value(text));
    return values;
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

/// A black box that is none of the design's subdesigns is a mistake in its name. Nothing is known of the subdesigns of
/// a design that was not run, and a file holds names for many designs.
void check_black_boxes(GNL_GENERATOR & top, request const & wanted, run_results const & results,
                       std::vector<message> & messages)
{
    if (!top.generate_file() || GNL_ELEMENT::get_gen_language() == GNL_TCL)
        return;
    std::error_code unknown;
    if (std::filesystem::is_regular_file(joined(wanted.black_boxes, '|', "--blackbox"), unknown))
        return;
    std::set<std::string, LESS_C_STRING> const names(results.subdesigns.begin(), results.subdesigns.end());
    for (auto const & name : wanted.black_boxes)
        if (!name.starts_with('-') && !names.contains(name) && name.find('|') == std::string::npos)
            messages.push_back({"warning",
                                top.get_name() + " has no subdesign " + name + " to be a black box"
                                    + did_you_mean(name, {names.begin(), names.end()}),
                                "", ""});
}

json as_json(run_results const & results)
{
    json files = json::array();
    for (auto const & file : results.files)
        files.push_back({{"file", file.name}, {"state", file.written ? "written" : "reused"}});
    return files;
}

/// A line for each file and black box: what became of it, a tab, its name.
void print_results(std::ostream & out, run_results const & results)
{
    for (auto const & file : results.files)
        out << (file.written ? "written\t" : "reused\t") << file.name << "\n";
    for (auto const & name : results.black_boxes)
        out << "black box\t" << name << "\n";
}

/// The list is there when it is whole: builds take it for the sign that all went well.
bool write_list(std::string const & file, run_results const & results)
{
    GNL_OFSTREAM list(file.c_str(), GNL_OFSTREAM::output_mode);
    print_results(list, results);
    list.close();
    return list.good();
}

} // namespace

int generate(plugin_catalogue const & catalogue, request const & wanted, output const & out)
{
    auto const top = catalogue.find(wanted.generator).make("");
    assign_values(*top, values_of(wanted));
    use_all_inputs(*top);
    folder_lock const lock(*top);
    files_before const before(*top);
    auto const thrown = run(*top, out.results);

    auto messages = messages_of(*top);
    int result = top->generator_result();
    auto const results = results_of(*top, before);
    if (!thrown.empty()) {
        messages.push_back({"error", wanted.generator + " ended with an exception: " + thrown, "", ""});
        result = errors;
    } else {
        check_black_boxes(*top, wanted, results, messages);
    }
    if (out.json) {
        out.results << json{{"result", result},
                            {"messages", as_json(messages)},
                            {"files", as_json(results)},
                            {"black_boxes", results.black_boxes}}
                           .dump(2)
                    << "\n";
        return result;
    }
    for (auto const & message : messages)
        print_message(out.messages, message, out.coloured);
    if (wanted.list_file.empty())
        print_results(out.results, results);
    else if (result == fine && !write_list(wanted.list_file, results)) {
        print_message(out.messages, {"error", "the list can't be written to " + wanted.list_file, "", ""},
                      out.coloured);
        result = errors;
    }
    return result;
}

} // namespace lbxgen
