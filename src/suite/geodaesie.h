#pragma once
// The little geodesy of the suite on GRS80: geocentric and geographic coordinates, local horizon, elevation,
// and the transverse Mercator projection of the result rows (UTM zone, scale 0.9996).

#include <array>
#include <cmath>
#include <numbers>

namespace jorv::suite {

inline constexpr double LICHT = 299792458.0;    // m/s
inline constexpr double FREQUENZ1 = 1575.42e6;  // Hz, L1
inline constexpr double FREQUENZ2 = 1227.60e6;  // Hz, L2
inline constexpr double GRAD = std::numbers::pi / 180.0;

/// Geocentric coordinates or a difference of them, metres.
struct Xyz {
    double x = 0.0, y = 0.0, z = 0.0;
    friend Xyz operator-(const Xyz& a, const Xyz& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
    friend Xyz operator+(const Xyz& a, const Xyz& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
    bool operator==(const Xyz&) const = default;
};

inline double laenge(const Xyz& v)
{
    return std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
}

/// Latitude and longitude in radians, ellipsoidal height in metres.
struct Geographisch {
    double breite = 0.0, laenge = 0.0, hoehe = 0.0;
};

/// East, north, up in metres.
struct Enu {
    double e = 0.0, n = 0.0, u = 0.0;
};

struct Utm {
    double rechtswert = 0.0, hochwert = 0.0;
};

/// A point with what is wanted of it at every observation.
struct Ort {
    explicit Ort(const Xyz& lage);
    Xyz xyz;
    Geographisch blh;
    std::array<std::array<double, 3>, 3> horizont;  // rows east, north, up
};

/// Geographic coordinates by Bowring's formula, good to 0.1 micrometres up to 20 km of height.
Geographisch geographisch(const Xyz& p);

/// A geocentric difference turned into the horizon of `ort`.
Enu enu(const Ort& ort, const Xyz& differenz);

/// Elevation of the satellite above the horizon of `ort`, radians.
double elevation(const Ort& ort, const Xyz& satellit);

/// UTM coordinates by Krueger's series to the fourth order of the third flattening (under 0.1 mm inside 10 degrees
/// round the central meridian). No zone in front of the easting; south of the equator 10 000 km are added.
Utm utm(const Geographisch& p, int zone);

}  // namespace jorv::suite
