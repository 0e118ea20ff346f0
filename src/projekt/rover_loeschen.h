// Taking one rover out of the open project: file, result files, rows of all parallel arrays and of the project file,
// baselines.
#pragma once

#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Asks, then removes the rover of that file name and saves the project. "No" is no failure. A rover whose file is
/// gone or can't be deleted stays with all its rows; result files that can't be deleted are reported and left. An array
/// that can't be resized shows its message; what was done so far stays done.
Fehler ROVER_Datei_loeschen(Global& g, std::string_view rover);

}  // namespace jorv
