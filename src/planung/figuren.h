// Station figures of the map: drawing by clicks on stations, deleting the last one.
#pragma once

#include "modell/Global.h"

namespace jorv {

/// A click on the station S_Punkt(Nummer): begins a figure, adds a corner, or closes the figure at its first corner,
/// which runs automatik. A click that changes nothing beeps. At most four corners.
void geo_markierung(Global& g, int Nummer);

/// Takes the last figure away and runs automatik; without a figure it only says so.
void m_geo_loeschen(Global& g);

/// Turns the tick of its menu entry over, which nothing reads: figures are drawn by clicks at any time.
void m_geo_definieren(Global& g);

}  // namespace jorv
