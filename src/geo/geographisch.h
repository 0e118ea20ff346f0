// Places as latitude and longitude, for programs outside this system. GRS80; geodesy by GeographicLib.
#pragma once

#include <optional>

namespace jorv {

/// Degrees north and east, ellipsoidal metres. GRS80 stands for WGS84: the two differ by less than 0.1 mm.
struct Geographisch {
    double breite = 0, laenge = 0, hoehe = 0;
};

/// From geocentric metres; nothing for values that are not finite and within 1 km of the earth's centre.
std::optional<Geographisch> geographisch_aus_xyz(double X, double Y, double Z);

/// From easting and northing (metres) of a zone (central meridian 6 * zone - 183 degrees), height 0; nothing for values
/// that are not finite or further from the zone than a quarter of the earth.
std::optional<Geographisch> geographisch_aus_utm(int zone, double Rechtswert, double Hochwert);

/// Distance of two places on the ellipsoid, metres.
double entfernung(const Geographisch& von, const Geographisch& nach);

}  // namespace jorv
