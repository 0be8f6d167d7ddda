#pragma once

/// Validator of parameter rules files. Nothing reads rules files yet.
class GIGA_RULES_VALIDATOR
{
public:
    virtual ~GIGA_RULES_VALIDATOR() = default;
};
