// The library's workloads; see docs/benchmarks.md for what each one builds.

#include "measure.h"

#include "gnl.h"

#include <filesystem>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace {

/// A top design that measures its own body: building ends where `dump_hdl` begins.
class timed_design : public GNL_GENERATOR
{
public:
    timed_design(std::string const & file, int n, std::string const & more = "")
        : GNL_GENERATOR(nullptr, "top", ("LBX_FILE=" + file + more).c_str())
        , m_n(n)
    {
    }

    bench::clock::time_point built;

    /// The sections of the Verilog module.
    void write_text(std::ostream & out)
    {
        dump_verilog_module_section(out);
        dump_verilog_port_section(out);
        dump_verilog_variables_section(out);
        dump_verilog_port_connections(out);
    }

protected:
    virtual void build(int n) = 0;

    void rtl_body(std::ostream & out) override
    {
        build(m_n);
        built = bench::clock::now();
        dump_hdl(out);
    }

private:
    int m_n;
};

/// W1: a chain of operations into named wires.
class flat_logic : public timed_design
{
public:
    flat_logic(std::string const & file, int n)
        : timed_design(file, n, ",LBX_REMOVE_OPTIONAL_WIRES=ON")
        , a(this, "a", 32)
        , b(this, "b", 32)
        , o(this, "o", 32)
    {
    }

private:
    void build(int n) override
    {
        GNL_PORT * p = &a;
        for (int i = 0; i < n; ++i) {
            auto & t = *new GNL_WIRE(this, "t" + std::to_string(i), 32);
            switch (i % 4) {
            case 0:
                t = *p & b;
                break;
            case 1:
                t = *p | a;
                break;
            case 2:
                t = *p ^ b;
                break;
            default:
                t = ~*p;
                break;
            }
            p = &t;
        }
        o = *p;
    }

    GNL_PORT_INPUT a, b;
    GNL_PORT_OUTPUT o;
};

/// W2: N instances of a small child, chained.
class child : public GNL_GENERATOR
{
public:
    explicit child(GNL_GENERATOR * parent)
        : GNL_GENERATOR(parent, "child")
        , clk(this, "clk")
        , d(this, "d", 8)
        , q(this, "q", 8)
        , K(this, "K", 0)
    {
    }

    /// A file is used again only if it tells of what version its design is. In QHDL every design has one, and each
    /// instance would write it anew.
    void get_version(std::map<std::string, std::string, LESS_C_STRING> & versions) override
    {
        versions["child"] = "2024:01:01";
    }

    GNL_PORT_INPUT clk, d;
    GNL_PORT_OUTPUT q;
    GNL_PARAMETER_INTEGER K;

protected:
    void rtl_body(std::ostream & out) override
    {
        // until registers are built, the child is combinational
        auto & k = *new GNL_WIRE(this, "k", 8);
        k = K.get_value() % 256;
        q = d ^ k;
        dump_hdl(out);
    }
};

class hierarchy : public timed_design
{
public:
    hierarchy(std::string const & file, int n, int kinds, std::string const & more = "")
        : timed_design(file, n, more)
        , clk(this, "clk")
        , d(this, "d", 8)
        , q(this, "q", 8)
        , m_kinds(kinds)
    {
    }

private:
    void build(int n) override
    {
        GNL_PORT * previous = &d;
        for (int i = 0; i < n; ++i) {
            auto & made = *new child(this);
            made.set_instance_name("u" + std::to_string(i) + "_");
            made.K = i % m_kinds;
            made.clk = clk;
            made.d = *previous;
            previous = &made.q;
        }
        q = *previous;
    }

    GNL_PORT_INPUT clk, d;
    GNL_PORT_OUTPUT q;
    int m_kinds;
};

/// W2s: one array of N slices, each connected by itself to the one before it.
class array_child : public GNL_GENERATOR
{
public:
    array_child(GNL_GENERATOR * parent, int array_width)
        : GNL_GENERATOR(parent, "child", nullptr, array_width)
        , clk(this, "clk")
        , d(this, "d", 8)
        , q(this, "q", 8)
        , K(this, "K", 0)
    {
    }

    GNL_PORT_INPUT clk, d;
    GNL_PORT_OUTPUT q;
    GNL_PARAMETER_INTEGER K;

protected:
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
    {
        auto & slice = *new array_child(parent, 0);
        slice.set_slice_index(index);
        slice.set_array_parent(parent);
        slice.set_instance_name(instance_name);
    }
    void rtl_body(std::ostream & out) override
    {
        q = ~d;
        dump_hdl(out);
    }
};

class array_of_slices : public timed_design
{
public:
    array_of_slices(std::string const & file, int n)
        : timed_design(file, n)
        , clk(this, "clk")
        , d(this, "d", 8)
        , q(this, "q", 8)
    {
    }

private:
    void build(int n) override
    {
        auto & array = *new array_child(this, n);
        array.set_instance_name("u");
        array.K = 1;
        array.clk = clk;
        GNL_PORT * previous = &d;
        for (int i = 0; i < n; ++i) {
            auto & slice = static_cast<array_child &>(array[i]);
            slice.d = *previous;
            previous = &slice.q;
        }
        q = *previous;
    }

    GNL_PORT_INPUT clk, d;
    GNL_PORT_OUTPUT q;
};

/// W3: a bus reversed bit by bit.
class wide_concatenation : public timed_design
{
public:
    wide_concatenation(std::string const & file, int n)
        : timed_design(file, n)
        , i(this, "i", n)
        , o(this, "o", n)
    {
    }

private:
    void build(int n) override
    {
        for (int k = 0; k < n; ++k)
            o[k] = i[n - 1 - k];
    }

    GNL_PORT_INPUT i;
    GNL_PORT_OUTPUT o;
};

/// W4: a bus reduced to one bit.
class reduction : public timed_design
{
public:
    reduction(std::string const & file, int n)
        : timed_design(file, n)
        , a(this, "a", n)
        , y(this, "y")
    {
    }

private:
    void build(int) override { y = a.bitwise_xor(); }

    GNL_PORT_INPUT a;
    GNL_PORT_OUTPUT y;
};

/// W5: shared expressions. "shared" nests without named wires, so that the text doubles with each step while the
/// objects do not; "steps" puts each step into a named wire.
class shared_expressions : public timed_design
{
public:
    shared_expressions(std::string const & file, int n, bool named)
        : timed_design(file, n)
        , a(this, "a", 8)
        , b(this, "b", 8)
        , o(this, "o", 8)
        , m_named(named)
    {
    }

private:
    void build(int n) override
    {
        GNL_PORT * t = &(a & b);
        for (int i = 0; i < n; ++i) {
            GNL_PORT & step = *t ^ (*t & b);
            t = &step;
            if (m_named) {
                auto & wire = *new GNL_WIRE(this, "s" + std::to_string(i), 8);
                wire = step;
                t = &wire;
            }
        }
        o = t->range(7, 0);
    }

    GNL_PORT_INPUT a, b;
    GNL_PORT_OUTPUT o;
    bool m_named;
};

/// Each child design in a file of its own.
constexpr char const * files_apart = ",LBX_SINGLE_OUTPUT_FILE=OFF";

std::unique_ptr<timed_design> make(std::string const & workload, std::string const & file, int n)
{
    if (workload == "W1")
        return std::make_unique<flat_logic>(file, n);
    if (workload == "W2a")
        return std::make_unique<hierarchy>(file, n, 1);
    if (workload == "W2b")
        return std::make_unique<hierarchy>(file, n, std::max(1, n / 10));
    if (workload == "W2s")
        return std::make_unique<array_of_slices>(file, n);
    if (workload == "W2r")
        return std::make_unique<hierarchy>(file, n, n, files_apart);
    if (workload == "W2f")
        return std::make_unique<hierarchy>(file, n, std::max(1, n / 10), files_apart);
    if (workload == "W3")
        return std::make_unique<wide_concatenation>(file, n);
    if (workload == "W4")
        return std::make_unique<reduction>(file, n);
    if (workload == "W5")
        return std::make_unique<shared_expressions>(file, n, false);
    if (workload == "W5s")
        return std::make_unique<shared_expressions>(file, n, true);
    throw std::invalid_argument("no workload " + workload);
}

/// "W1" is written in Verilog, "W1:vhd" and "W1:tdf" in the languages of these endings.
struct run_request
{
    explicit run_request(std::string const & text)
        : workload(text.substr(0, text.find(':')))
        , file("top." + (text == workload ? std::string("v") : text.substr(workload.size() + 1)))
    {
    }
    std::string workload;
    std::string file;
};

/// Writes the top of a design that has been generated once more, into a file of its own: the text alone, without the
/// checks and the clean-up that came before it.
void write_text_again(timed_design & top, bench::run_result & result)
{
    auto const start = bench::clock::now();
    {
        GNL_OFSTREAM file("again", GNL_OFSTREAM::output_mode);
        top.write_text(file);
        file.close();
    }
    result.text_seconds = bench::seconds_since(start);
    result.text_bytes = static_cast<long long>(std::filesystem::file_size("again"));
    std::filesystem::remove("again");
}

/// Generates the design into the working folder. The child designs stay with their top: destroying them is part of
/// neither time.
bench::run_result generate(run_request const & wanted, int n)
{
    bench::run_result result;
    auto const start = bench::clock::now();
    auto const top = make(wanted.workload, wanted.file, n);
    std::ostringstream unused;
    top->generate_subdesign(unused);
    result.build_seconds = std::chrono::duration<double>(top->built - start).count();
    result.write_seconds = bench::seconds_since(top->built);
    if (top->generator_result() != 0) {
        top->reset_msg_list();
        while (top->move_to_next_msg())
            std::cerr << top->get_cur_msg()->get_msg_text() << "\n";
        throw std::runtime_error("the generation failed");
    }
    result.kilobytes = bench::peak_kilobytes();
    if (wanted.file == "top.v" && wanted.workload != "W2r")
        write_text_again(*top, result);
    return result;
}

/// W2r generates its files and then finds each of them unchanged. The time to build is that of the first generation,
/// the time to write that of the second.
bench::run_result generate_twice(run_request const & wanted, int n)
{
    auto const whole = [](bench::run_result const & run) { return run.build_seconds + run.write_seconds; };
    bench::run_result result;
    result.build_seconds = whole(generate(wanted, n));
    result.write_seconds = whole(generate(wanted, n));
    return result;
}

long long bytes_in_folder()
{
    long long bytes = 0;
    for (auto const & entry : std::filesystem::directory_iterator("."))
        bytes += static_cast<long long>(entry.file_size());
    return bytes;
}

bench::run_result run(std::string const & workload, int n)
{
    namespace fs = std::filesystem;
    auto const folder = fs::temp_directory_path() / ("lbx-bench-" + std::to_string(getpid()));
    fs::create_directory(folder);
    auto const home = fs::current_path();
    fs::current_path(folder);

    run_request const wanted(workload);
    auto result = wanted.workload == "W2r" ? generate_twice(wanted, n) : generate(wanted, n);
    result.bytes_written = bytes_in_folder();

    fs::current_path(home);
    fs::remove_all(folder);
    return result;
}

} // namespace

int main(int argc, char ** argv)
{
    return bench::main_of(argc, argv, run);
}
