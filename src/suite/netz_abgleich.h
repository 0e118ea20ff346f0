#pragma once
// How much of a network's ionosphere the rover itself sees: where the stations can't tell what lies across their line,
// the drift of the rover's two phases against the virtual station's shows whether the corrections serve.

#include "suite/rinex_beobachtung.h"

namespace jorv::suite {

/// Factor for the dispersive part of a network's corrections, 0 to 1: with it the difference of the rover's phases on
/// L1 and L2 to those of the virtual station changes least within the arcs. 1 is taken for granted as far as the noise
/// hides the answer. `verschoben` is the virtual station without corrections, `netz` with them.
double netzanteil(const RinexBeobachtung& rover, const RinexBeobachtung& verschoben, const RinexBeobachtung& netz);

}  // namespace jorv::suite
