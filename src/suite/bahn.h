#pragma once
// Broadcast orbit and clock of a GPS satellite, as the interface specification IS-GPS-200 gives them.

#include <vector>

#include "suite/geodaesie.h"
#include "suite/gps_zeit.h"

namespace jorv::suite {

inline constexpr double ERDDREHUNG = 7.2921151467e-5;  // rad/s, the value that belongs to the broadcast orbit

/// One broadcast set; names as in the interface specification, angles in radians, lengths in metres.
struct Ephemeride {
    int satellit = 0;
    GpsZeit toc, toe;
    double af0 = 0, af1 = 0, af2 = 0;
    double iode = 0, crs = 0, delta_n = 0, m0 = 0;
    double cuc = 0, e = 0, cus = 0, wurzel_a = 0;
    double cic = 0, omega0 = 0, cis = 0;
    double i0 = 0, crc = 0, omega = 0, omega_punkt = 0, i_punkt = 0;
    double gesundheit = 0;  // 0: all signals usable
};

/// Where a satellite is in the earth-fixed frame of an instant.
struct Satellitenlage {
    Xyz ort;              // metres
    Xyz geschwindigkeit;  // metres per second, in that turning frame
    double uhr = 0.0;     // clock minus GPS time in seconds, with the relativistic term and without group delay

    /// Position `dauer` seconds later: exact to 0.3 micrometres for a millisecond, growing with the square.
    Xyz nach(double dauer) const
    {
        return {ort.x + geschwindigkeit.x * dauer, ort.y + geschwindigkeit.y * dauer,
                ort.z + geschwindigkeit.z * dauer};
    }
};

/// Position, velocity and clock at `zeit` (GPS).
Satellitenlage satellitenlage(const Ephemeride& eph, const GpsZeit& zeit);

/// A position turned by the earth's rotation during `dauer` seconds (a travel time, up to some seconds): from the frame
/// of transmission into the frame of reception.
Xyz gedreht(const Xyz& ort, double dauer);

/// The healthy set of the satellite whose reference time lies nearest to `zeit`, at most two hours away.
/// nullptr when there is none.
const Ephemeride* passende_ephemeride(const std::vector<Ephemeride>& alle, int satellit, const GpsZeit& zeit);

}  // namespace jorv::suite
