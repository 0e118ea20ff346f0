// The program's version as it is printed.
#pragma once

#include <string_view>

namespace jorv {

inline constexpr std::string_view programm_hauptversion = "1";
inline constexpr std::string_view programm_unterversion = "0";
inline constexpr std::string_view programm_revision = "0";
inline constexpr std::string_view programm_version = "1.0";  ///< major and minor joined by a point
inline constexpr std::string_view programm_datum = "01.12.2016";

}  // namespace jorv
