#pragma once

#include <string>

/// Version of the design system, such as "1.0".
std::string ver_get_version();
/// Service pack, "" without one.
std::string ver_get_service_pack();
/// "Build" and the number of the build.
std::string ver_get_build_number_string();
/// Date of the build, month/day/year.
std::string ver_get_build_date();
/// The copyright line without a comment mark.
std::string ver_get_copyright_string();
