// The coordinate file <Nummer>.COO, which the older calls of the suite take as input.
#pragma once

#include <string>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Modes E and S: one line for each station of the project (geocentric metres, antenna in quotes), written whole. Only
/// projects with antenna files of the format "APC" get one. Failure: the file can't be written; the message is shown.
Fehler koordinaten_datei_schreiben(Global& g);

/// Mode F: the rover's linked virtual station (left out when its index has no point) and the rover itself, in the same
/// layout. Failure also when the rover has no record of its link.
Fehler koordinaten_datei_rover(Global& g, const std::string& rover);

}  // namespace jorv
