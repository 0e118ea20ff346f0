// What the name of a file tells: observation file, navigation file, rover or reference station.
#pragma once

#include <string_view>

#include "modell/Global.h"

namespace jorv {

/// Whether a file counts as a rover in the open project: in modes F and B every file but "virt...", in modes E and S
/// one whose first four characters are no number within a range of KOR_ANTENNEN.
bool rover_pruefen(const Global& g, std::string_view name);

/// A stem of 7 or 8 characters with the day of year from the fifth on, and an extension such as ".16o" or ".rxo".
bool obs_datei_pruefen(std::string_view name);

/// The same with the type letters "n" and "g".
bool nav_datei_pruefen(std::string_view name);

/// Begins with "virt" in whatever case.
bool virt_name(std::string_view name);

}  // namespace jorv
