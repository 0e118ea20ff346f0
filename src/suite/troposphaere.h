#pragma once
// Slant delay of the neutral atmosphere: Saastamoinen zenith delays of the standard atmosphere times the mapping
// functions of Niell (1996).

#include "suite/geodaesie.h"

namespace jorv::suite {

/// Which part counts. The hydrostatic one alone is what the solver applies between two receivers.
enum class Troposphaerenmodell { ohne, hydrostatisch, voll };

/// Zenith delays of the standard atmosphere (15 C, 1013.25 hPa at sea level) at 60 % humidity, metres
/// (Saastamoinen 1972; height ellipsoidal, clamped to 0 .. 10 km).
struct Zenitlaufzeit {
    double hydrostatisch = 0.0, feucht = 0.0;
};
Zenitlaufzeit zenitlaufzeit(const Geographisch& ort);

/// Mapping functions of Niell (1996), Journal of Geophysical Research 101(B2); `tag` is the day of the year.
struct Abbildung {
    double hydrostatisch = 1.0, feucht = 1.0;
};
Abbildung niell(const Geographisch& ort, double tag, double elevation);

/// Slant delay in metres; zero below the horizon.
double laufzeit(Troposphaerenmodell modell, const Geographisch& ort, double tag, double elevation);

}  // namespace jorv::suite
