#pragma once
// Program WATIME: civil date and time into GPS time and back, one line for both directions.

#include <optional>
#include <string>

#include "suite/aufruf.h"

namespace jorv::suite {

/// "dd.mm.yyyy hh:mm:ss ddd.ff wwww/d ssssss": date, time of day, day of the year with two truncated decimals, GPS week
/// and day of the week, second of the week. Words are either year, month, day, hour, minute, second (two-digit years
/// 80-99 and 00-79, a second of 60 allowed) or one word week/day. Nothing for anything else and for dates
/// before 6.1.1980.
std::optional<std::string> watime(const Worte& worte);

}  // namespace jorv::suite
