#pragma once
// GLONASS broadcast orbits: the state vector of a message is carried on by integrating the equations of motion of the
// interface document (edition 5.1, appendix 3), and the navigation files that hold the messages.

#include <string>
#include <string_view>
#include <vector>

#include "suite/bahn.h"
#include "suite/navigationsdatei.h"

namespace jorv::suite {

/// A satellite of an observation with this much added to its slot is GLONASS; GPS numbers stay below.
inline constexpr int GLONASS = 100;

/// One broadcast set, in the earth-fixed PZ-90.
struct Glonasssatz {
    int satellit = 0;                          // slot + GLONASS
    int kanal = 0;                             // frequency number, -7 to 13
    GpsZeit zeit;                              // of the state
    Xyz ort, geschwindigkeit, beschleunigung;  // metres and seconds; the last is that of moon and sun
    double uhr = 0, uhrgang = 0;               // clock minus system time in seconds, and its rate
    double gesundheit = 0;                     // 0: usable
};

/// Position, velocity and clock at `zeit`: fourth order Runge-Kutta with steps of 30 s; a quarter of an hour from the
/// message the error is about a metre.
Satellitenlage satellitenlage(const Glonasssatz& satz, const GpsZeit& zeit);

/// The healthy set of the satellite nearest to `zeit`, at most half an hour away. nullptr when there is none.
const Glonasssatz* passender_satz(const std::vector<Glonasssatz>& alle, int satellit, const GpsZeit& zeit);

/// Hz of the channel on L1 and L2.
inline double glonass_frequenz1(int kanal)
{
    return 1602.0e6 + kanal * 562.5e3;
}
inline double glonass_frequenz2(int kanal)
{
    return 1246.0e6 + kanal * 437.5e3;
}

/// GPS time minus UTC in seconds on that day, by the table of the leap seconds up to 2017.
int schaltsekunden(const GpsZeit& zeit);

struct Glonassnavigation {
    std::vector<Glonasssatz> saetze;
    Navigationsdatei datei;  // its sets in the order of `saetze`
};

/// Adds the sets of a file's text, without doubles; sets that can't be read wholly are passed over. Their UTC becomes
/// GPS time by the header's leap seconds, else by the table. Returns the count of sets read, or -1 when the text is no
/// RINEX 2 GLONASS navigation file.
int glonass_lesen(std::string_view text, Glonassnavigation& ziel);

/// The text of a navigation file of all sets in order of time, CR LF.
std::string glonass_text(const Glonassnavigation& navigation);

}  // namespace jorv::suite
