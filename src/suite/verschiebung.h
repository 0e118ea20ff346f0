#pragma once
// Moves one station's observations to another place: the geometric range difference to the satellite at the true time
// of reception and the difference of the tropospheric delays.

#include "suite/bahn.h"
#include "suite/troposphaere.h"

namespace jorv::suite {

struct Verschiebung {
    double strecke = 0.0;    // metres to add to the codes and, divided by the wavelength, to the phases
    double elevation = 0.0;  // of the satellite above the new place, radians
};

/// Shift from station `von` to `nach` for an observation with the receiver's time tag and the code in metres. The code
/// carries the receiver's clock, so transmission and true reception come out right whatever that clock does; both
/// places receive at the same true instant, hence from two slightly different places of the satellite.
Verschiebung verschiebung(const Ephemeride& eph, const GpsZeit& zeitmarke, double code, const Ort& von, const Ort& nach,
                          Troposphaerenmodell modell);

}  // namespace jorv::suite
