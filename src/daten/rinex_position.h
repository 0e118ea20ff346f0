// The light header reader: position and marker number only.
#pragma once

#include <string>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Geocentric position in metres and the trimmed marker number out of the header of a file of the project (bare name)
/// or of a whole path. What the header lacks stays as it was. Failure has shown its message.
Fehler rinex_position_lesen(Global& g, const std::string& pfad_oder_name, double& X, double& Y, double& Z,
                            std::string& Markernummer);

}  // namespace jorv
