#pragma once
// Makes the observations of a virtual station from those of the master: shifted, with the ionosphere's change, and
// corrected by the network.

#include <vector>

#include "suite/glonass.h"
#include "suite/ionosphaere.h"
#include "suite/netz.h"
#include "suite/rinex_beobachtung.h"
#include "suite/troposphaere.h"

namespace jorv::suite {

struct Uebertragungsauftrag {
    Ort von, nach;
    Troposphaerenmodell modell;
    double maske;  // elevation below which an observation is left out, radians
    const Bahnen& bahnen;
    const std::vector<Glonasssatz>& glonass;
    Ionosphaerengefaelle gefaelle;
    const std::vector<Korrekturepoche>* korrekturen;  // nullptr: none; else what they lack is left out, GLONASS wholly
};

/// What became of the observations.
struct Uebertragungsbericht {
    std::size_t ohne_bahn = 0, ohne_code = 0, unter_maske = 0, ohne_netz = 0, glonass = 0;
    double groesste = 0.0, kleinste = 0.0;  // shift, metres
};

/// Moves the observations in place; those without a code or an orbit are left out, and epochs that lose all.
Uebertragungsbericht uebertragen(RinexBeobachtung& daten, const Uebertragungsauftrag& auftrag);

/// What the weights of the network's stations don't bring along of the ionosphere: the layer at `nach` less the layer
/// at the stations' places. They count as much as the share of their corrections says; with 0 the master alone.
Ionosphaerengefaelle gefaelle(const Netz& netz, const Ort& master, const Ort& nach, double anteil);

}  // namespace jorv::suite
