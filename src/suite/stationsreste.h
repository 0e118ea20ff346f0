#pragma once
// What remains of a station's observations when all that is known is taken off: the way, the satellite's clock, the
// modelled troposphere and the antenna.

#include <cstdint>
#include <map>
#include <vector>

#include "suite/bahn.h"
#include "suite/phasenzentrum.h"
#include "suite/rinex_beobachtung.h"

namespace jorv::suite {

using Bahnen = std::map<int, std::vector<Ephemeride>>;  // by satellite

/// What a station measured to one satellite, less the way to it, satellite clock, modelled troposphere and antenna.
struct Rest {
    int satellit = 0;
    int bogen = 0;                          // counts the station's own interruptions of that satellite
    double l1 = 0, l2 = 0, c1 = 0, p2 = 0;  // metres
    double sinus = 0, azimut = 0;           // sine of the elevation, radians
    double feucht = 0;                      // mapping of a wet zenith delay
};
struct Restepoche {
    std::int64_t sekunde = 0;  // GPS, the nominal one
    std::vector<Rest> reste;   // by satellite
};

/// Seconds without an observation that end an arc, unless three intervals are longer.
inline constexpr double BOGENLUECKE = 90.0;
/// Seconds between the epochs that are used of denser ones.
inline constexpr double NETZTAKT = 30.0;

/// The residuals of all dual-frequency observations over 6 degrees; of denser ones those each half minute, which is
/// what the atmosphere changes in.
std::vector<Restepoche> stationsreste(const RinexBeobachtung& daten, const Ort& ort, const Phasenzentrum& zentrum,
                                      const Bahnen& bahnen);

}  // namespace jorv::suite
