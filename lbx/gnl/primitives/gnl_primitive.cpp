#include "gnl_primitive.h"

#include "lbx/gnl/primitives/cells.h"

GNL_PRIMITIVE::GNL_PRIMITIVE(GNL_GENERATOR * parent, char const * entity_name, char const * text, int array_size)
    : GNL_GENERATOR(parent, entity_name ? entity_name : "", text, array_size)
{
    set_instance_basename("gnl_prim");
    set_primitive();
    disable_lpm_type_output();
}

// What was added to the source is not added to its copy: it has one owner.
GNL_PRIMITIVE::GNL_PRIMITIVE(GNL_PRIMITIVE const & other)
    : GNL_GENERATOR(other)
{
}

GNL_PRIMITIVE::~GNL_PRIMITIVE() = default;

void GNL_PRIMITIVE::create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name)
{
    gnl_detail::settle_slice(*new GNL_PRIMITIVE(parent, get_name().c_str()), parent, index, instance_name);
}

GNL_PORT_INPUT * GNL_PRIMITIVE::add_input_port_to_primitive(std::string const & name, int width, int default_value)
{
    auto * port = new GNL_PORT_INPUT(this, name, width, 0);
    port->set_default_port_value(default_value);
    return port;
}

GNL_PORT_INPUT * GNL_PRIMITIVE::add_input_port_to_primitive(std::string const & name,
                                                            std::string const & width_expression,
                                                            std::string const & width_2d_expression)
{
    return new GNL_PORT_INPUT(this, name, width_expression, width_2d_expression);
}

GNL_PORT_OUTPUT * GNL_PRIMITIVE::add_output_port_to_primitive(std::string const & name, int width, int default_value)
{
    auto * port = new GNL_PORT_OUTPUT(this, name, width, 0);
    port->set_default_port_value(default_value);
    return port;
}

GNL_PORT_OUTPUT * GNL_PRIMITIVE::add_output_port_to_primitive(std::string const & name,
                                                              std::string const & width_expression,
                                                              std::string const & width_2d_expression)
{
    return new GNL_PORT_OUTPUT(this, name, width_expression, width_2d_expression);
}

GNL_PORT_BIDIR * GNL_PRIMITIVE::add_bidir_port_to_primitive(std::string const & name, int width, int)
{
    return new GNL_PORT_BIDIR(this, name, width, 0);
}

GNL_PARAMETER_STRING * GNL_PRIMITIVE::add_string_parameter_to_primitive(std::string const & name)
{
    auto parameter = std::make_unique<GNL_PARAMETER_STRING>(this, name, "", -1);
    auto * made = parameter.get();
    m_owned_parameters.push_back(std::move(parameter));
    return made;
}

GNL_PARAMETER_INTEGER * GNL_PRIMITIVE::add_integer_parameter_to_primitive(std::string const & name)
{
    auto parameter = std::make_unique<GNL_PARAMETER_INTEGER>(this, name, -1);
    auto * made = parameter.get();
    m_owned_parameters.push_back(std::move(parameter));
    return made;
}

GNL_PARAMETER_VECTOR * GNL_PRIMITIVE::add_vector_parameter_to_primitive(std::string const & name, int width)
{
    auto parameter = std::make_unique<GNL_PARAMETER_VECTOR>(this, name, -1, width);
    auto * made = parameter.get();
    m_owned_parameters.push_back(std::move(parameter));
    return made;
}

void GNL_PRIMITIVE::set_primitive_vhdl_library(std::string const & library)
{
    set_vhdl_library(library, true);
}
