#pragma once

// The structure of QHDL designs, as far as generated text uses the language.

#include "qhdl/qhdl_lexer.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qhdl {

/// "[7..4]", "[2]", or "[]" for all there is.
struct subscript
{
    bool all = true;
    int high = 0;
    int low = 0;
    place at;
};

/// "data[7..4]", "u1.q[]", "cells[3..1].d".
struct reference
{
    std::string name;
    std::optional<subscript> index; ///< bits of a signal, or instances of an array
    std::string pin;                ///< of an instance, "" for a signal
    std::optional<subscript> bits;  ///< of the pin
    place at;
};

enum class expression_kind { reference, constant, list, op_not, op_and, op_or, op_xor };

struct expression
{
    expression_kind kind;
    place at;
    reference source;                 ///< of a reference
    std::string digits;               ///< of a constant, the highest first; VCC and GND are one digit
    bool is_level = false;            ///< VCC or GND, which fill any width; one bit in a list
    std::vector<expression> operands; ///< of a list from the highest bits down
};

/// What a declared pin, wire, node, instance or array is called, and how many there are: -1 for one without a range,
/// -2 for a range that depends on a parameter.
struct declared_name
{
    static constexpr int no_range = -1, of_parameter = -2;
    std::string name;
    int width = no_range;
    place at;
};

enum class pin_direction { input, output, bidir };

struct pin_declaration
{
    declared_name declared;
    pin_direction direction;
};

struct parameter_value
{
    std::string name;
    std::string value;
    bool is_string;
};

/// A wire, a node, or an instance of `function`.
struct variable_declaration
{
    enum class variable_kind { wire, node, instance };
    declared_name declared;
    variable_kind kind;
    std::string function;
    std::vector<parameter_value> parameters;
};

struct statement
{
    reference target;
    expression source;
};

/// What others see of a design or a cell.
struct function_header
{
    std::string name;
    std::vector<pin_declaration> pins;
    place at;
    bool is_cell = false; ///< whose inputs may stay open
};

struct design
{
    std::string file;
    std::vector<function_header> functions; ///< that are declared in front of the design
    function_header header;
    std::vector<variable_declaration> variables;
    std::vector<statement> statements;
};

design parse_design(std::string const & file, std::string_view text);
/// "FUNCTION cell (a[3..0], ena) WITH (DEPTH) RETURNS (q);"
function_header parse_function(std::string_view text);

} // namespace qhdl
