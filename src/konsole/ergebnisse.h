// The results of all rovers of the open project, in mode B of its baselines.
#pragma once

#include <string>

#include "modell/Global.h"

namespace jorv {

/// A line for each rover or baseline: solution type, coordinates or vector, standard deviations in mm; "keine Lösung"
/// where there is no result file. Text in Windows-1252, and JSON in UTF-8.
std::string ergebnisse_text(const Global& g);
std::string ergebnisse_json(const Global& g);

}  // namespace jorv
