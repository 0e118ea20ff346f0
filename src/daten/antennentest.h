// The check before a run: every antenna of the data must stand in the project antenna file.
#pragma once

#include <limits>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

/// Compares the antennas of the rovers in use (and in the IGS form those of the coordinate file) with the project
/// antenna file; what is missing goes to <Nummer>.KRZ and into one closing message. Gathers g.antennenliste, which
/// holds at most `listengrenze` entries. With Typkalibrierung "J" a type mean without number will do.
Fehler antennendatentest(Global& g, int listengrenze = std::numeric_limits<int>::max());

}  // namespace jorv
