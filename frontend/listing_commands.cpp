#include "commands.h"

#include "messages.h"
#include "parameter_values.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

#include <nlohmann/json.hpp>

namespace lbxgen {

namespace {

using json = nlohmann::ordered_json;

/// Rows of text in columns as wide as their widest entry.
void print_table(std::ostream & out, std::vector<std::vector<std::string>> const & rows)
{
    std::vector<std::size_t> widths;
    for (auto const & row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    for (auto const & row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i)
            line += row[i] + std::string(widths[i] + 2 - row[i].size(), ' ');
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << "\n";
    }
}

/// Kind, default and legal values of a parameter.
json describe_parameter(GNL_PARAMETER & parameter)
{
    json entry{{"name", parameter.get_name()}};
    if (auto * integer = dynamic_cast<GNL_PARAMETER_INTEGER *>(&parameter)) {
        entry["type"] = "integer";
        if (integer->get_default_value() != -1)
            entry["default"] = integer->get_default_value();
    } else if (auto * text = dynamic_cast<GNL_PARAMETER_STRING *>(&parameter)) {
        entry["type"] = "string";
        if (auto const value = text->get_default_value(); !value.empty())
            entry["default"] = value;
        if (!text->get_value_list().empty())
            entry["values"] = text->get_value_list();
    } else if (auto * vector = dynamic_cast<GNL_PARAMETER_VECTOR *>(&parameter)) {
        entry["type"] = "vector";
        if (vector->get_width() > 0)
            entry["width"] = vector->get_width();
    }
    return entry;
}

std::string text_of(json const & entry, char const * field)
{
    if (!entry.contains(field))
        return "-";
    return entry[field].is_string() ? entry[field].get<std::string>() : entry[field].dump();
}

char const * direction_of(GNL_PORT const & port)
{
    return port.is_input() ? "input" : port.is_output() ? "output" : port.is_bidir() ? "bidir" : nullptr;
}

void print_messages(GNL_GENERATOR & top, output const & out)
{
    for (auto const & message : messages_of(top))
        print_message(out.messages, message, out.coloured);
}

} // namespace

int list_generators(plugin_catalogue const & catalogue, output const & out)
{
    if (out.json) {
        json list = json::array();
        for (auto const & [name, entry] : catalogue.classes())
            list.push_back({{"name", name}, {"summary", entry.summary}});
        out.results << list.dump(2) << "\n";
        return fine;
    }
    std::vector<std::vector<std::string>> rows;
    for (auto const & [name, entry] : catalogue.classes())
        rows.push_back({name, entry.summary});
    print_table(out.results, rows);
    if (rows.empty())
        print_message(out.messages, {"info", "no plug-in is loaded; use --plugin FILE or set LBX_PLUGIN_PATH", "", ""},
                      out.coloured);
    return fine;
}

int list_parameters(plugin_catalogue const & catalogue, request const & wanted, output const & out)
{
    auto const top = catalogue.find(wanted.generator).make("");
    json list = json::array();
    for (auto const & name : parameter_names(*top)) {
        if (auto * parameter = top->get_parameter_object(name)) {
            if (wanted.all || !parameter->is_option())
                list.push_back(describe_parameter(*parameter));
        } else if (top->get_parameter_array_object(name)) {
            list.push_back({{"name", name + "[index]"}, {"type", "array"}});
        }
    }
    if (out.json) {
        out.results << list.dump(2) << "\n";
        return fine;
    }
    std::vector<std::vector<std::string>> rows{{"NAME", "TYPE", "DEFAULT", "VALUES"}};
    for (auto const & entry : list)
        rows.push_back(
            {text_of(entry, "name"), text_of(entry, "type"), text_of(entry, "default"), text_of(entry, "values")});
    print_table(out.results, rows);
    return fine;
}

int list_ports(plugin_catalogue const & catalogue, request const & wanted, output const & out)
{
    auto const top = catalogue.find(wanted.generator).make("");
    std::vector<parameter_value> values;
    for (auto const & text : wanted.parameters)
        values.push_back(parse_parameter_value(text));
    assign_values(*top, values);

    std::map<std::string, GNL_PORT *, LESS_C_STRING> ports;
    top->get_port_objects(ports);
    json list = json::array();
    for (auto const & [name, port] : ports) {
        auto const * direction = direction_of(*port);
        if (!direction)
            continue;
        json entry{{"name", name}, {"direction", direction}, {"width", port->get_width()}};
        if (port->get_default_value() != -1)
            entry["default"] = port->get_default_value();
        list.push_back(entry);
    }
    print_messages(*top, out);
    if (out.json) {
        out.results << list.dump(2) << "\n";
    } else {
        std::vector<std::vector<std::string>> rows{{"NAME", "DIRECTION", "WIDTH", "DEFAULT"}};
        for (auto const & entry : list)
            rows.push_back({text_of(entry, "name"), text_of(entry, "direction"), text_of(entry, "width"),
                            text_of(entry, "default")});
        print_table(out.results, rows);
    }
    return top->check_error_flag() ? errors : fine;
}

} // namespace lbxgen
