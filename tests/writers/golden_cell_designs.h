#pragma once

// Designs with cells: cells that are declared at run time, and cells that write themselves.

#include "golden_file_designs.h"

namespace gnl_test {

/// A memory with parameters of every kind, open and tied ports, and ports and parameters of its simulation model.
inline GNL_PRIMITIVE & ram(design & top, GNL_PARAMETER_INTEGER & words)
{
    auto & cell = *new GNL_PRIMITIVE(&top, "ram_block", "iname=u_ram");
    cell.add_input_port_to_primitive("addr", 4, -1);
    cell.add_input_port_to_primitive("ce", 0, 1);
    cell.add_input_port_to_primitive("mask", 2, 0);
    cell.add_input_port_to_primitive("mode", 0, 2);
    cell.add_output_port_to_primitive("parity", 0, -1);
    cell.add_output_port_to_primitive("q", "2*DEPTH", "");

    *cell.add_integer_parameter_to_primitive("DEPTH") = 4;
    *cell.add_integer_parameter_to_primitive("NWORDS") = words.get_parameter() * 2;
    auto & width = *cell.add_integer_parameter_to_primitive("WIDTH");
    width.set_output_as_string_parameter();
    width = 8;
    auto & hinted = *cell.add_integer_parameter_to_primitive("HINTED");
    hinted.set_as_lpm_hint();
    hinted = 3;
    *cell.add_string_parameter_to_primitive("lpm_hint") = "A=1";
    *cell.add_string_parameter_to_primitive("SPEED") = "Fast";
    cell.add_string_parameter_to_primitive("UNSET");
    *cell.add_vector_parameter_to_primitive("INIT", 12) = "0x5A";
    auto & bits = *cell.add_vector_parameter_to_primitive("BITS", 5);
    bits.set_to_use_binary_output();
    bits = 5;

    auto & latency = *cell.add_integer_parameter_to_primitive("LATENCY");
    latency.set_as_not_included_in_declaration();
    latency = 2;
    cell.add_simulation_only_parameter("LATENCY", "1");
    cell.add_simulation_only_parameter("SIM_FILE", "init.hex");
    cell.add_simulation_only_port("ce", "0"); // is a real port as well
    cell.add_simulation_only_port("probe", "");
    cell.add_simulation_only_port("trace", "0");
    return cell;
}

/// An array of two whose open input is tied for synthesis too.
inline GNL_PRIMITIVE & taps(design & top)
{
    auto & cells = *new GNL_PRIMITIVE(&top, "tap_cell", "iname_nochange=taps", 2);
    cells.add_input_port_to_primitive("a", 0, -1);
    cells.add_input_port_to_primitive("en", 0, 1);
    cells.add_output_port_to_primitive("o", 0, -1);
    cells.set_preserve_parameter_case();
    cells.set_use_lower_case_verilog_parameter_values();
    cells.set_connect_default_input_ports_in_verilog_for_synthesis();
    *cells.add_string_parameter_to_primitive("Kind") = "SLOW";
    return cells;
}

inline std::unique_ptr<design> run_time_cells(std::string const & options)
{
    auto made = std::make_unique<design>(nullptr, "top", options.c_str());
    auto & top = *made;
    auto & d = top.input("d", 4);
    auto & f = top.output("f", 2);
    auto & q = top.output("q", 8);
    auto & words = top.integer("N", 4);
    words.set_as_parameterized();
    auto arrays = std::make_shared<kept_arrays>();
    top.body = [&d, &f, &q, &words, arrays](design & of) {
        auto & memory = ram(of, words);
        auto & coefficients = arrays->numbers(memory, -1);
        auto & labels = arrays->words(memory, "LABEL");
        coefficients[3] = 9;
        coefficients[0] = 7;
        labels[1] = "Late";
        memory.port("addr") = d;
        q = memory.port("q");
        auto & cells = taps(of);
        cells.port("a") = d.range(1, 0);
        f = cells.port("o");
    };
    return made;
}

/// o = ~a: a cell that writes itself, unless its MODE is 7. Arrays of it are connected as a whole.
class inverter : public GNL_GENERATOR
{
public:
    inverter(GNL_GENERATOR * parent, std::string const & instance, int size = 0)
        : GNL_GENERATOR(parent, "inv", "", size)
        , a(this, "a")
        , o(this, "o")
        , mode(this, "MODE", 0)
    {
        set_primitive();
        dont_generate_file();
        set_custom_subdesign_insert_mode();
        set_use_custom_verilog_output();
        set_use_custom_vhdl_output();
        set_use_custom_qhdl_output();
        a.set_non_sensitive_custom_port(); // its driver stands in the statement
        set_instance_name(instance);
    }

    void customize_declaration_from_parameters() override
    {
        if (mode.get_value() == 7)
            disable_custom_output();
    }
    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override
    {
        auto & slice = *new inverter(parent, "");
        slice.set_slice_index(index);
        slice.set_array_parent(parent);
        slice.set_instance_name(instance_name);
    }

    // ---- Verilog: on each slice, then on the array

    void dump_verilog_custom_wires(std::ostream & out) override
    {
        out << "\twire\t";
        if (o.get_width() > 0)
            out << "[" << o.get_width() - 1 << ":0]\t";
        out << o.get_source_name(true) << ";\n";
    }
    void dump_verilog_custom_output(std::ostream & out, GNL_GENERATOR * parent) override
    {
        if (get_slice_index() >= 0) {
            out << "\t// " << get_instance_name() << "[" << get_slice_index() << "] in " << parent->get_name() << "\n";
            return;
        }
        out << "\tassign\t" << o.get_source_name(true) << " = ~";
        a.get_driver()->dump_port_description(out, parent, false, nullptr);
        out << ";\n";
    }

    // ---- VHDL: on each slice of an array whose slices differ, else on the cell or array

    void dump_vhdl_custom_wires(std::ostream & out) override
    {
        if (get_slice_index() <= 0)
            declare_in_vhdl(out, whole().o);
        if (get_slice_index() == 0)
            declare_in_vhdl(out, whole().a); // of which each slice reads its bit
    }
    void dump_vhdl_custom_output(std::ostream & out, GNL_GENERATOR * parent) override
    {
        if (get_slice_index() == 0) {
            out << "\t" << whole().a.get_source_name(true) << " <= ";
            whole().a.get_driver()->dump_port_description(out, parent, false, nullptr);
            out << ";\n";
        }
        out << "\t";
        o.dump_custom_port_description(out, parent, -1, false);
        out << " <= NOT ";
        a.dump_custom_port_description(out, parent, -1, false);
        out << ";\n";
    }

    // ---- QHDL: likewise

    bool dump_qhdl_custom_wires(std::ostream & out, bool variable_written) override
    {
        if (!variable_written)
            out << "VARIABLE\n";
        declare_in_qhdl(out, o);
        if (get_slice_index() == 0)
            declare_in_qhdl(out, whole().a);
        return true;
    }
    void dump_qhdl_custom_output(std::ostream & out, GNL_GENERATOR * parent) override
    {
        if (get_slice_index() == 0) {
            out << "\t" << node_of(whole().a) << "[] = ";
            whole().a.get_driver()->dump_port_description(out, parent, false, nullptr);
            out << ";\n";
        }
        out << "\t" << node_of(o) << (o.get_width() > 0 ? "[]" : "") << " = !(";
        if (get_slice_index() >= 0)
            out << node_of(whole().a) << "[" << get_slice_index() << "]";
        else
            a.get_driver()->dump_port_description(out, parent, false, nullptr);
        out << ");\n";
    }

    GNL_PORT_INPUT a;
    GNL_PORT_OUTPUT o;
    GNL_PARAMETER_INTEGER mode;

private:
    /// The array of a slice; anything else itself.
    inverter & whole() { return get_slice_index() < 0 ? *this : static_cast<inverter &>(*get_array_parent()); }
    static void declare_in_vhdl(std::ostream & out, GNL_PORT & port)
    {
        out << "\t SIGNAL  " << port.get_source_name(true) << "\t:\tSTD_LOGIC";
        if (port.get_width() > 0)
            out << "_VECTOR (" << port.get_width() - 1 << " DOWNTO 0)";
        out << ";\n";
    }
    static std::string node_of(GNL_PORT & port)
    {
        return port.get_parent()->get_qhdl_port_extension() + port.get_name();
    }
    static void declare_in_qhdl(std::ostream & out, GNL_PORT & port)
    {
        out << "\t" << node_of(port);
        if (port.get_width() > 0)
            out << "[" << port.get_width() - 1 << "..0]";
        out << "\t:\tWIRE;\n";
    }
};

inline std::unique_ptr<design> custom_cells(std::string const & options)
{
    auto top = std::make_unique<design>(nullptr, "top", options.c_str());
    auto & d = top->input("d", 6);
    auto & y = top->output("y", 6);
    top->body = [&](design & of) {
        auto & single = *new inverter(&of, "x1");
        auto & even = *new inverter(&of, "x2", 2);
        auto & uneven = *new inverter(&of, "x3", 2);
        auto & plain = *new inverter(&of, "x4");
        even[0];
        static_cast<inverter &>(uneven[1]).mode = 2;
        plain.mode = 7;
        single.a = d[0];
        even.a = d.range(2, 1);
        uneven.a = d.range(4, 3);
        plain.a = d[5];
        y = (plain.o, uneven.o, even.o, single.o);
    };
    return top;
}

/// The one that stands as an instance; in VHDL its hook writes nonetheless.
inline outside_cell const inverter_cell{"module inv(a, o);\n"
                                        "\tparameter mode = 0, MODE = 0;\n"
                                        "\tparameter lpm_type = \"inv\";\n"
                                        "\tinput a;\n"
                                        "\toutput o;\n"
                                        "\tassign o = ~a;\n"
                                        "endmodule\n",
                                        "", "FUNCTION inv (a) WITH (MODE) RETURNS (o);"};

inline golden_design const golden_cells[] = {
    {.name = "custom_cells", .make = custom_cells, .cell = inverter_cell},
};

} // namespace gnl_test
