// The five coordinate operations of the system under their old names: one system definition, geocentric to ellipsoidal
// to grid, and the point-in-polygon pair. Ellipsoid GRS80; transverse Mercator, scale 0.9996, false easting 500 000 m,
// no zone prefix. Angles pass between the two conversions in degrees. Status 0 is success. Geodesy by GeographicLib.
#pragma once

#include <array>
#include <cstdint>

namespace jorv {

/// Registers the system; status 0 only for the one that this program knows (system 1, ellipsoid code 4, type code 2).
void DEFSYSTEM(std::int32_t system, std::int32_t ellipsoid, std::int32_t art, std::int32_t& status);

/// Geocentric metres to latitude, longitude (degrees) and ellipsoidal height (metres). Fails for values that are not
/// finite and within 1 km of the earth's centre.
void GEZGEG(std::int32_t system, double X, double Y, double Z, double& breite, double& laenge, double& hoehe,
            std::int32_t& status);

/// Latitude, longitude (degrees) to easting and northing (metres) of a zone (central meridian 6 * zone - 183 degrees).
void GEGGKO(std::int32_t system, double breite, double laenge, std::int32_t zone, double& Rechtswert, double& Hochwert,
            std::int32_t projektion, std::int32_t& status);

/// A polygon as the pair UMRPOL and UMRPIP exchanges it.
struct Polygon {
    std::int32_t anzahl = 0;
    std::array<double, 300> x, y;  // only the first `anzahl` are set
};

/// Prepares a polygon (vertices in the order given).
void UMRPOL(const Polygon& eingabe, Polygon& vorbereitet);

/// Position code 1 inside, 2 on the border (within a millimetre), 0 outside or undecided (fewer than three corners).
/// Self-crossing polygons by the even-odd rule.
void UMRPIP(double Rechtswert, double Hochwert, const Polygon& vorbereitet, std::int32_t& lage, std::int32_t& status);

}  // namespace jorv
