// What names and text cost by themselves: each workload as plain structs with string names, one map from name to node,
// and the same text through one buffer. Checks nothing and knows no ports.

#include "measure.h"

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unistd.h>
#include <unordered_map>
#include <vector>

namespace {

/// A named thing with up to two sources and an operation between them.
struct node
{
    std::string name;
    int first = -1;
    int second = -1;
    char operation = ' ';
};

class netlist
{
public:
    int add(std::string name, int first = -1, int second = -1, char operation = ' ')
    {
        int const index = static_cast<int>(m_nodes.size());
        m_index.emplace(name, index);
        m_nodes.push_back({std::move(name), first, second, operation});
        return index;
    }
    std::vector<node> const & nodes() const { return m_nodes; }

private:
    std::vector<node> m_nodes;
    std::unordered_map<std::string, int> m_index;
};

class text_buffer
{
public:
    text_buffer & operator<<(std::string_view text)
    {
        m_text.append(text);
        return *this;
    }
    text_buffer & operator<<(int value)
    {
        char digits[12];
        m_text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
        return *this;
    }
    long long write(std::string const & name) const
    {
        std::ofstream(name, std::ios::binary).write(m_text.data(), static_cast<std::streamsize>(m_text.size()));
        return static_cast<long long>(m_text.size());
    }

private:
    std::string m_text;
};

void build_flat_logic(netlist & design, int n)
{
    int const a = design.add("a");
    int const b = design.add("b");
    int p = a;
    for (int i = 0; i < n; ++i) {
        char const operation = "&|^~"[i % 4];
        int const second = i % 4 == 3 ? -1 : i % 4 == 1 ? a : b;
        int const expression = design.add("w_lg_" + std::to_string(i), p, second, operation);
        p = design.add("t" + std::to_string(i), expression);
    }
}

void write_flat_logic(netlist const & design, text_buffer & out)
{
    for (auto const & wire : design.nodes())
        if (wire.operation == ' ' && wire.first >= 0)
            out << "\twire  [31:0]  " << wire.name << ";\n";
    for (auto const & wire : design.nodes()) {
        if (wire.operation != ' ' || wire.first < 0)
            continue;
        auto const & expression = design.nodes()[static_cast<std::size_t>(wire.first)];
        out << "\t\t" << wire.name << " = (";
        if (expression.second < 0)
            out << "~ ";
        out << design.nodes()[static_cast<std::size_t>(expression.first)].name;
        if (expression.second >= 0)
            out << " " << std::string_view(&expression.operation, 1) << " "
                << design.nodes()[static_cast<std::size_t>(expression.second)].name;
        out << "),\n";
    }
}

void build_hierarchy(netlist & design, int n)
{
    int previous = design.add("d");
    for (int i = 0; i < n; ++i)
        previous = design.add("u" + std::to_string(i) + "_", previous);
}

void write_hierarchy(netlist const & design, text_buffer & out)
{
    for (auto const & instance : design.nodes())
        if (instance.first >= 0)
            out << "\twire  [7:0]   wire_" << instance.name << "_q;\n";
    for (auto const & instance : design.nodes())
        if (instance.first >= 0)
            out << "\tchild   " << instance.name << "\n\t( \n\t.clk(clk),\n\t.d(wire_"
                << design.nodes()[static_cast<std::size_t>(instance.first)].name << "_q),\n\t.q(wire_" << instance.name
                << "_q));\n";
}

void build_bits(netlist & design, int n)
{
    int const i = design.add("i");
    for (int k = 0; k < n; ++k)
        design.add("i[" + std::to_string(n - 1 - k) + "]", i, k);
}

void write_bits(netlist const & design, text_buffer & out)
{
    for (auto const & bit : design.nodes())
        if (bit.first >= 0)
            out << bit.name << ", ";
}

/// N small files written, then opened again and read to their first line.
bench::run_result write_and_read_files(int n)
{
    namespace fs = std::filesystem;
    auto const folder = fs::temp_directory_path() / ("lbx-floor-files-" + std::to_string(getpid()));
    fs::create_directory(folder);
    auto const path = [&](int i) { return (folder / ("mg" + std::to_string(i) + ".v")).string(); };
    bench::run_result result;
    auto start = bench::clock::now();
    for (int i = 0; i < n; ++i) {
        text_buffer text;
        text << "//child K=" << i << " clk d q\n" << std::string(1000, ' ');
        result.bytes_written += text.write(path(i));
    }
    result.build_seconds = bench::seconds_since(start);
    start = bench::clock::now();
    std::string line;
    for (int i = 0; i < n; ++i) {
        std::ifstream file(path(i));
        std::getline(file, line);
    }
    result.write_seconds = bench::seconds_since(start);
    fs::remove_all(folder);
    return result;
}

bench::run_result run(std::string const & workload, int n)
{
    if (workload == "W2r")
        return write_and_read_files(n);
    namespace fs = std::filesystem;
    bool const flat = workload == "W1" || workload == "W5s";
    bool const instances = workload == "W2a" || workload == "W2b" || workload == "W2f" || workload == "W2s";
    bench::run_result result;
    auto start = bench::clock::now();
    netlist design;
    (flat ? build_flat_logic : instances ? build_hierarchy : build_bits)(design, n);
    result.build_seconds = bench::seconds_since(start);
    start = bench::clock::now();
    text_buffer text;
    (flat ? write_flat_logic : instances ? write_hierarchy : write_bits)(design, text);
    auto const file = fs::temp_directory_path() / ("lbx-floor-" + std::to_string(getpid()));
    result.bytes_written = text.write(file.string());
    result.write_seconds = bench::seconds_since(start);
    if (workload == "W2f")
        result.write_seconds += write_and_read_files(n / 10).build_seconds;
    fs::remove(file);
    return result;
}

} // namespace

int main(int argc, char ** argv)
{
    return bench::main_of(argc, argv, run);
}
