#include "ccl_ver.h"

// Fixed texts: they go into the first lines of generated files, which later runs read back and compare.

std::string ver_get_version()
{
    return "1.0";
}

std::string ver_get_service_pack()
{
    return {};
}

std::string ver_get_build_number_string()
{
    return "Build 1";
}

std::string ver_get_build_date()
{
    return "01/15/2026";
}

std::string ver_get_copyright_string()
{
    return "Copyright (C) 2026 The lbx authors. All rights reserved.";
}
