#pragma once

// The errors of parameters as the message list shows them.

#include "support.h"

namespace gnl_test {

inline std::string const inherit_only_cause =
    "When assigning a value to an inherit only parameter values can be assigned only at the top level, through the "
    "lumen box interface or through the Tolvane II software. No explicit assignments can be made inside an rtl_body.";
inline std::string const inherit_only_action =
    "Remove assignments to inherit only parameters inside the rtl_body or change the inheritance type to inherit "
    "allowed, if explicit assignments can be made to the parameter from inside the rtl_body.";

inline std::string inherit_only_in_body(std::string const & name, std::string const & value)
{
    return error("Inherit only parameter " + name + " is being assigned the value " + value + " inside rtl_body.",
                 inherit_only_cause, inherit_only_action);
}

inline std::string vector_inherit_only_in_body(std::string const & name, std::string const & value)
{
    return error("Inherit only parameter " + name + " is being assigned a value " + value + " inside rtl_body.",
                 inherit_only_cause, inherit_only_action);
}

inline std::string expression_reassigned(std::string const & name, std::string const & expression,
                                         std::string const & value)
{
    return error("Parameter " + name + " has already been assigned the expression " + expression
                     + " and cannot be reassigned with the value " + value,
                 "The parameter was already assigned an expression. The new value can not be reassigned.");
}

inline std::string exposed_read(std::string const & name)
{
    return error("Parameter " + name
                     + " is set to be an exposed parameter, and hence the function get_value() cannot be called on the "
                       "parameter.",
                 "An attempt was made to access the value of a parameter which is marked as parameterized. Exposed "
                 "parameters should use the get_parameter() function call and not get_value() function call.",
                 "Use get_parameter() function call or mark the parameter as a regular parameter.");
}

inline std::string cannot_be_exposed(std::string const & name)
{
    return error("Parameter " + name + " cannot be set as a parameterized (exposed) parameter ",
                 "An attempt was made to set a parameter to be exposed (or parameterized). The parameter type is not "
                 "supported as an exposed parameter");
}

inline std::string no_value(std::string const & name)
{
    return error("Parameter " + name + " has no default value and has not been assigned any value.",
                 "An attempt was made to access the value of a parameter which has no default, and has not been "
                 "assigned a value. All parameters should have a default value, or, if the parameter is a required "
                 "parameter, an assignment should be made.",
                 "Specify a value for the parameter or if the parameter is an optional parameter, specify a default "
                 "value.");
}

inline std::string no_inherited_value(std::string const & name)
{
    return error("Parameter " + name
                     + " is inherit only and no assignment has been made to the parameter at the top level.",
                 "This inherit only parameter has no value assigned at the top level.");
}

inline std::string illegal_vector_text(std::string const & name, std::string const & text)
{
    return error("Vector parameter " + name + " is being assigned illegal string value " + text,
                 "String inputs assigned to vector parameters can be only hex strings (start with 0x) or binary "
                 "strings (start with 0b) or decimal strings.",
                 "Specify the correct identifier at the beginning of the string being assigned to the vector "
                 "parameter.");
}

inline std::string illegal_vector_width(std::string const & name)
{
    return error("Illegal width setting for Vector parameter " + name,
                 "The parameter is being used to specify the width of a vector parameter. But the parameter does not "
                 "exist, or is a string parameter. Only integer parameters can be used to specify widths of vector "
                 "parameters.",
                 "Use a valid integer parameter name to specify vector parameter widths.");
}

inline std::string vector_width_fixed(std::string const & name)
{
    return error("Vector parameter " + name + " doesn't allow it's width to be overridden.",
                 "The vector parameter has a fixed width specified. This width cannot be overridden. ",
                 " Declare the vector parameter with support for width override, or do not override the vector "
                 "parameter's width. ");
}

inline std::string vector_not_assigned(std::string const & name)
{
    return error("Vector parameter " + name + " has not been assigned a value.",
                 "The vector parameter has not been assigned a value.",
                 "Vector parameters should always be assigned a value.");
}

inline std::string vector_inherits(std::string const & name)
{
    return error("Vector parameter " + name + " allows inheritance, but vector parameters dont support inheritance.",
                 "Inheritance of values from parents are not supported for vector parameters.",
                 "Do not override the default inheritance of the vector parameter.");
}

inline std::string vhdl_array_unbound(std::string const & name)
{
    return error("VHDL parameter array " + name + " has no array type specified and has no fixed length.",
                 "An illegal VHDL parameter array is unbound.",
                 "True VHDL style parameter arrays should be declared with a fixed length or should have the array "
                 "type specified.");
}

inline std::string assigned_late(std::string const & parameter, std::string const & generator)
{
    return error("Parameter " + parameter + " has been assigned a value after port connections are made to the "
                     + "generator " + generator + ".",
                 "In a lumen box, all parameter assignments should be made before making port connections.",
                 "Make all parameter assignments before making port connections.");
}

/// The warning that widens a value list.
inline std::string unlisted(std::string const & parameter, std::string const & value, std::string const & list)
{
    return "WARNING GNL_INTERNAL_WARNING: ( The parameter value is not one of the pre-specified values in the value "
           "list.) "
           + parameter + " The value assigned is " + value + " and the valid value list is " + list;
}

} // namespace gnl_test
