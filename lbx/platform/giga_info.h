#pragma once

#include <string>

/// Information on library functions by their name. No function data ships with the library, so every query answers
/// with an error, which callers take as "nothing known".
class GIGA_INFO
{
public:
    void set_function_name(std::string const & name, std::string const & device_family);
    bool has_errors() const { return true; }
    std::string get_vhdl_library() const { return {}; }

private:
    std::string m_name;
    std::string m_device_family;
};
