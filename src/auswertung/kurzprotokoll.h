// The two short reports: of the last run (<Nummer>.KRZ) and of all computed rovers (<Nummer>.ALL). Both written whole.
#pragma once

#include <limits>

#include "modell/Global.h"

namespace jorv {

/// Rewrites <Nummer>.KRZ from the rows that the run collected: head, statistics, rows, antennas. `float_` and
/// `loesungen` become the counts of float rows and of all rows; `berechnungen` is how many rovers the run chose,
/// `bereit` how many were ready before it. Without the file, or after a fault (shown), nothing changes. `grenze` is the
/// most rows that there is room for.
void kurzprotokoll_erweitern(Global& g, int& float_, int& loesungen, int berechnungen, int bereit,
                             int grenze = std::numeric_limits<int>::max());

/// Writes <Nummer>.ALL from the rows filed below jorv_out\krz_rov, with the settings of the rovers. A fault is shown
/// and leaves no new file.
void kurzprotokoll_aller(Global& g);

}  // namespace jorv
