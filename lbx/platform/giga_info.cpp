#include "giga_info.h"

void GIGA_INFO::set_function_name(std::string const & name, std::string const & device_family)
{
    m_name = name;
    m_device_family = device_family;
}
