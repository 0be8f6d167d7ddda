#include "gnl_port.h"

#include "gnl_generator.h"

#include "lbx/gnl/ports/port_messages.h"

using gnl_detail::port_message;
using gnl_detail::report;

void GNL_PORT::set_qelvar_internal_option(std::string const & setting)
{
    GNL_GENERATOR * parent = get_parent();
    // A port without a parent is refused like one of a primitive, but there is nobody to tell.
    if (!parent)
        return;
    if (!is_simple_port()) {
        report<port_message::internal_option_on_operator>(*parent, get_hierarchical_name(), setting);
        return;
    }
    if (parent->is_primitive()) {
        report<port_message::internal_option_on_primitive>(*parent, get_hierarchical_name(), setting);
        return;
    }
    parent->set_use_qelvar_internal_option();
    if (is_qhdl()) {
        parent->set_qelvar_internal_option("{-to " + get_name() + "} " + setting);
        return;
    }
    made_extras().internal_options.push_back(setting);
}

void GNL_PORT::dump_qelvar_internal_options(std::ostream & out) const
{
    if (!has_qelvar_internal_options())
        return;
    if (is_verilog())
        out << "/* synthesis QELVAR_ATTRIBUTE=\"";
    else if (is_vhdl())
        out << "\t ATTRIBUTE QELVAR_ATTRIBUTE OF " << get_vhdl_name() << " : SIGNAL IS \"";
    char const * separator = "";
    for (std::string const & setting : m_extras->internal_options)
        if (!setting.empty()) {
            out << separator << setting;
            separator = ";";
        }
    if (is_verilog())
        out << "\" */";
    else if (is_vhdl())
        out << "\";\n";
}
