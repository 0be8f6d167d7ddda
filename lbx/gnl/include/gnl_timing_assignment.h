#pragma once

/// A timing assignment of a design. Nothing creates one yet.
class GNL_TIMING_ASSIGNMENT
{
public:
    virtual ~GNL_TIMING_ASSIGNMENT() = default;
};
