#pragma once
// Moves one station's observations to another place: the geometric range difference to the satellite at the true time
// of reception and the difference of the tropospheric delays.

#include "suite/bahn.h"
#include "suite/glonass.h"
#include "suite/troposphaere.h"

namespace jorv::suite {

struct Verschiebung {
    double strecke = 0.0;    // metres to add to the codes and, divided by the wavelength, to the phases
    double elevation = 0.0;  // of the satellite above the new place, radians
    Xyz satellit;            // in the earth-fixed frame of the reception
};

/// Shifts from station `von` to `nach`, epoch by epoch.
class Verschieber {
public:
    /// For observations with that time tag of the receiver.
    Verschieber(const Ort& von, const Ort& nach, Troposphaerenmodell modell, const GpsZeit& zeitmarke);

    /// The shift for a code in metres. The code carries the receiver's clock, so transmission and true reception come
    /// out right whatever that clock does; both places receive at the same true instant, hence from two slightly
    /// different places of the satellite.
    Verschiebung rechnen(const Ephemeride& eph, double code) const
    {
        return rechnen(satellitenlage(eph, sendezeit(code)), code);
    }
    Verschiebung rechnen(const Glonasssatz& satz, double code) const
    {
        return rechnen(satellitenlage(satz, sendezeit(code)), code);
    }

private:
    Verschieber(const Ort& von, const Ort& nach, Troposphaerenmodell modell, const GpsZeit& zeitmarke, double tag)
        : m_von(von),
          m_nach(nach),
          m_zeitmarke(zeitmarke),
          m_luft_von(modell, von.blh, tag),
          m_luft_nach(modell, nach.blh, tag)
    {
    }

    GpsZeit sendezeit(double code) const { return verschoben(m_zeitmarke, -code / LICHT); }
    Verschiebung rechnen(const Satellitenlage& lage, double code) const;

    const Ort &m_von, &m_nach;
    GpsZeit m_zeitmarke;
    Luft m_luft_von, m_luft_nach;
};

}  // namespace jorv::suite
