// The station figures of a project file.
#pragma once

#include "modell/Global.h"
#include "plattform/fehler.h"
#include "plattform/profil.h"

namespace jorv {

/// Section GEO into GEO_Punkt. A bad word or an array that can't grow shows its message and ends the reading.
Fehler geo_lesen(Global& g, const Profil& profil);

}  // namespace jorv
