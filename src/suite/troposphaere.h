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

/// Mapping functions of Niell (1996), Journal of Geophysical Research 101(B2), at a place; `tag` is the day of the
/// year.
struct Abbildung {
    double hydrostatisch = 1.0, feucht = 1.0;
};
class Niell {
public:
    Niell(const Geographisch& ort, double tag);
    Abbildung bei(double elevation) const;

private:
    std::array<double, 3> m_trocken{}, m_feucht{};
    double m_km = 0.0;
};

/// The atmosphere over a place at a time, for the slant delays to all satellites.
class Luft {
public:
    Luft(Troposphaerenmodell modell, const Geographisch& ort, double tag)
        : m_modell(modell), m_zenit(zenitlaufzeit(ort)), m_niell(ort, tag)
    {
    }
    /// Slant delay in metres; zero below the horizon.
    double laufzeit(double elevation) const;

private:
    Troposphaerenmodell m_modell;
    Zenitlaufzeit m_zenit;
    Niell m_niell;
};

}  // namespace jorv::suite
