#pragma once

#include "gnl_generator.h"

#include <memory>
#include <vector>

/// A cell that is declared at run time: instantiated under its own name, never written as a design.
///
///     auto & cell = *new GNL_PRIMITIVE(this, "lut_ram", "", 0);
///     cell.add_input_port_to_primitive("addr", 4, -1);
///     cell.add_output_port_to_primitive("q", 8, -1);
///     *cell.add_integer_parameter_to_primitive("DEPTH") = 16;
class GNL_PRIMITIVE : public GNL_GENERATOR
{
public:
    GNL_PRIMITIVE(GNL_GENERATOR * parent, char const * entity_name, char const * text = "", int array_size = 0);
    GNL_PRIMITIVE(GNL_PRIMITIVE const & other);
    ~GNL_PRIMITIVE() override;

    void create_self_copy(GNL_GENERATOR * parent, int index, std::string const & instance_name) override;

    /// The primitive owns what these make. A default of -1 means none.
    GNL_PORT_INPUT * add_input_port_to_primitive(std::string const & name, int width, int default_value);
    GNL_PORT_INPUT * add_input_port_to_primitive(std::string const & name, std::string const & width_expression,
                                                 std::string const & width_2d_expression);
    GNL_PORT_OUTPUT * add_output_port_to_primitive(std::string const & name, int width, int default_value);
    GNL_PORT_OUTPUT * add_output_port_to_primitive(std::string const & name, std::string const & width_expression,
                                                   std::string const & width_2d_expression);
    /// The default is ignored.
    GNL_PORT_BIDIR * add_bidir_port_to_primitive(std::string const & name, int width, int default_value);
    GNL_PARAMETER_STRING * add_string_parameter_to_primitive(std::string const & name);
    GNL_PARAMETER_INTEGER * add_integer_parameter_to_primitive(std::string const & name);
    GNL_PARAMETER_VECTOR * add_vector_parameter_to_primitive(std::string const & name, int width);
    /// Library and package from which the cell comes.
    void set_primitive_vhdl_library(std::string const & library);

private:
    std::vector<std::unique_ptr<GNL_PARAMETER>> m_owned_parameters;
};
