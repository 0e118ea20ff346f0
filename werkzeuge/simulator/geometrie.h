// Vectors, the GRS80 ellipsoid and local horizons, as far as the simulator needs them.
#pragma once

namespace jorv::simulator {

inline constexpr double pi = 3.141592653589793;
inline constexpr double grad = pi / 180;  ///< one degree in radians

struct Vektor {
    double x = 0, y = 0, z = 0;
};

inline Vektor operator+(Vektor a, Vektor b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vektor operator-(Vektor a, Vektor b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vektor operator*(double f, Vektor a)
{
    return {f * a.x, f * a.y, f * a.z};
}
inline double skalar(Vektor a, Vektor b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
double betrag(Vektor a);

/// Geographic latitude, longitude (radians) and ellipsoidal height (metres).
struct Geographisch {
    double breite = 0, laenge = 0, hoehe = 0;
};

/// Geographic to geocentric coordinates on GRS80.
Vektor nach_xyz(Geographisch ort);
/// Geocentric to geographic coordinates on GRS80; iterates to 1e-13 rad. Good outside the earth's core.
Geographisch nach_geographisch(Vektor ort);

/// The horizon system of a place: unit vectors to the north, east and up.
struct Horizont {
    Vektor nord, ost, oben;
    explicit Horizont(Geographisch ort);
    /// Turns north, east, up components into a geocentric vector.
    Vektor geozentrisch(Vektor neu) const;
};

/// Direction of a satellite in radians: elevation above the ellipsoid's tangent plane, azimuth from north over east.
struct Richtung {
    double hoehe = 0, azimut = 0;
};
Richtung richtung(const Horizont& horizont, Vektor von, Vektor nach);

}  // namespace jorv::simulator
