#include "gnl_generator.h"

#include "lbx/gnl/core/element_registry.h"
#include "lbx/gnl/writers/text_sink.h"

using namespace gnl_detail;

namespace {

text_sink & write_integer(text_sink & text, GNL_PARAMETER_INTEGER & parameter)
{
    if (parameter.uses_expr_assignment())
        return text << parameter.get_expr_assignment();
    return text << parameter.get_value(true);
}

text_sink & write_string(text_sink & text, GNL_PARAMETER_STRING & parameter)
{
    if (parameter.uses_expr_assignment())
        return text << parameter.get_expr_assignment();
    return text << "\"" << parameter.get_value(true) << "\"";
}

text_sink & write_vector(text_sink & text, GNL_PARAMETER_VECTOR & parameter)
{
    auto & value = parameter.get_value();
    return text << "\"" << (parameter.uses_binary_output() ? value.as_bin_string() : value.as_hex_string()) << "\"";
}

} // namespace

bool GNL_GENERATOR::dump_qhdl_parameter_assignment(std::ostream & out, GNL_PARAMETER * parameter, bool started,
                                                   bool in_variable)
{
    if (!parameter->is_included_in_declaration() || !parameter->is_used())
        return started;
    text_sink text(out);
    list_separator list(in_variable ? "\n\t\tWITH (\n" : "WITH ( ", in_variable ? ",\n" : ",");
    if (started)
        list.set_started();
    text << list << "\t\t" << (in_variable ? "\t" : "") << parameter->get_name() << " = ";
    if (parameter->is_integer_parameter())
        write_integer(text, static_cast<GNL_PARAMETER_INTEGER &>(*parameter));
    else if (parameter->is_string_parameter())
        write_string(text, static_cast<GNL_PARAMETER_STRING &>(*parameter));
    else
        write_vector(text, static_cast<GNL_PARAMETER_VECTOR &>(*parameter));
    return true;
}

void GNL_GENERATOR::dump_qhdl_parameter_section(std::ostream & out, bool in_variable)
{
    bool started = false;
    for (auto * parameter : m_registry->declared_parameters())
        started = dump_qhdl_parameter_assignment(out, parameter, started, in_variable);
    for (GNL_PARAMETER_ARRAY & array : m_registry->parameter_arrays())
        started = array.dump_qhdl_parameter_array_assignment(out, started, in_variable);
    if (in_variable)
        out << (started ? "\n\t\t);\n" : ";\n");
    else if (started)
        out << ") \n";
}
