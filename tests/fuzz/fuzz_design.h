#pragma once

// What the fuzz targets share: a design with a parameter of each kind, and checks that end the run.

#include "gnl.h"

#include <cstdio>
#include <cstdlib>

/// Ends the run with a finding.
#define FUZZ_CHECK(condition)                                                                                          \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition);                               \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)

/// Ports that are wide by expression, and parameters as an author declares them.
class fuzz_design : public GNL_GENERATOR
{
public:
    explicit fuzz_design(char const * text, GNL_GENERATOR * parent = nullptr)
        : GNL_GENERATOR(parent, "fuzzed", text)
        , a(this, "a", "WIDTH")
        , y(this, "y", "2*(WIDTH+1)")
        , width(this, "WIDTH", 8)
        , depth(this, "DEPTH", -1)
        , mode(this, "MODE", "ON(YES,TRUE)|OFF|AUTO", 0)
        , free_text(this, "TEXT", "", -1)
        , value(this, "VALUE", 5, 16)
        , delays(this, "DELAY", 0)
    {
        GNL_MSG_HANDLER().reset_error_count();
    }

    GNL_PORT_INPUT a;
    GNL_PORT_OUTPUT y;
    GNL_PARAMETER_INTEGER width, depth;
    GNL_PARAMETER_STRING mode, free_text;
    GNL_PARAMETER_VECTOR value;
    GNL_PARAMETER_INTEGER_ARRAY delays;
};
