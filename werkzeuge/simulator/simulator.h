// The observation simulator: makes RINEX 2.11 observation and navigation files of a network with known coordinates.
// A Szenario is plain data; every effect is off unless its size or switch is set, so that each can be seen alone.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/geometrie.h"

namespace jorv::simulator {

/// A day of the Gregorian calendar, GPS time scale.
struct Kalendertag {
    int jahr = 2016, monat = 6, tag = 15;
};

inline constexpr std::size_t antennen_stuetzstellen = 19;  ///< zenith distance 0..90 degrees, every 5 degrees

/// One individual receiver antenna with its absolute calibration, index 0 = L1, 1 = L2.
struct Antenne {
    std::string nummer;               ///< serial number, at most 20 characters
    std::string typ;                  ///< type with dome, at most 20 characters
    std::array<Vektor, 2> versatz{};  ///< phase centre offset from the reference point: north, east, up in metres
    std::array<std::array<double, antennen_stuetzstellen>, 2> gang{};  ///< elevation dependent part (NOAZI) in metres
};

/// Seconds since 0 h of the scenario's day, both ends without observations.
struct Luecke {
    double von = 0, bis = 0;
};

/// One file: a receiver on a known marker during a span. Times are seconds since 0 h (GPS) of the scenario's day.
struct Punkt {
    std::string pkz;           ///< four characters, the head of the file name
    std::string name;          ///< MARKER NAME
    Vektor ort;                ///< geocentric coordinate of the marker in metres, the truth
    Vektor naeherung;          ///< added to `ort` for the header's approximate position, metres
    std::string antenne;       ///< serial number of an antenna of the scenario; empty: none
    double antennenhoehe = 0;  ///< marker to antenna reference point, metres
    double von = 0, bis = 3600, takt = 30;
    char sitzung = '0';
    bool endzeit_im_kopf = true;  ///< write TIME OF LAST OBS
    bool navigation = true;       ///< write the navigation file(s) beside the observation file
    std::vector<Luecke> luecken;
};

/// Vertical electron content as a plane round the scenario's centre plus a travelling wave, thin shell at 400 km.
struct Ionosphaere {
    double vtec = 0;  ///< TECU (1e16 electrons per square metre) above the centre; 0 = effect off
    double gradient_nord = 0, gradient_ost = 0;  ///< TECU per km
    double welle = 0;                            ///< amplitude in TECU
    double wellenlaenge = 200;                   ///< km
    double periode = 20;                         ///< minutes
    double richtung = 45;                        ///< azimuth of travel, degrees
};

/// Neutral atmosphere: Saastamoinen zenith hydrostatic delay and a wet part that falls off with a 2 km scale height.
struct Troposphaere {
    bool an = false;
    double feucht = 0.10;                        ///< zenith wet delay at height 0, metres
    double gradient_nord = 0, gradient_ost = 0;  ///< change of the zenith wet delay, mm per km
};

/// The effects. The relativistic part of the satellite clock is always there, because every user removes it.
struct Wirkungen {
    double uhr_versatz = 0, uhr_gang = 0;  ///< receiver clock: seconds, seconds per second (each point a share of it)
    bool satellitenuhren = false;          ///< af0, af1 and the group delay of the two codes
    Ionosphaere ionosphaere;
    Troposphaere troposphaere;
    bool mehrdeutigkeiten = false;  ///< a random integer per satellite, frequency and arc
    double spruenge = 0;            ///< cycle slips per satellite and hour, announced by the loss-of-lock indicator
    double coderauschen = 0;        ///< metres in the zenith
    double phasenrauschen = 0;      ///< metres in the zenith
    double mehrweg = 0;             ///< amplitude ratio of the reflected signal at the horizon, 0..1
    double bahnfehler = 0;          ///< metres per axis, true orbit against the broadcast one
    bool antennenzentrum = false;   ///< phase centre offsets and NOAZI of the points' antennas
};

struct Szenario {
    Kalendertag tag;
    std::uint64_t saat = 1;           ///< seed of everything random but the constellation
    std::uint64_t konstellation = 1;  ///< seed of the orbits
    int satelliten = 30;              ///< GPS satellites, 24..32
    double maske = 5;                 ///< degrees
    bool signalstaerke = false;       ///< also S1 and S2
    bool glonass = false;             ///< also 24 R satellites and the .yyg file
    Wirkungen wirkungen;
    std::vector<Antenne> antennen;
    std::vector<Punkt> punkte;
};

/// RINEX short name `PPPPDDDS.YYx`; `art` is 'o', 'n' or 'g'.
std::string dateiname(const Szenario& szenario, const Punkt& punkt, char art);

/// Writes all observation and navigation files of the scenario into `ordner` (created when missing).
/// Returns false with a German sentence in `meldung` when the scenario is faulty or a file can't be written.
[[nodiscard]] bool schreiben(const Szenario& szenario, const std::filesystem::path& ordner, std::string& meldung);

/// Writes the scenario's antennas as one ANTEX 1.4 file, one block per individual antenna. Failure as above.
[[nodiscard]] bool antex_schreiben(const Szenario& szenario, const std::filesystem::path& datei, std::string& meldung);

/// Receiver clock reading minus GPS time at the tag `t` in seconds; wraps by whole milliseconds at half a millisecond.
double empfaengeruhr(const Szenario& szenario, const Punkt& punkt, double t);

/// Fills north, east, up offsets (metres) and a NOAZI pattern of the given size (metres), rounded to 0.01 mm as the
/// antenna file holds them.
Antenne antenne_machen(std::string nummer, std::string typ, Vektor versatz1, Vektor versatz2, double gang1,
                       double gang2);

}  // namespace jorv::simulator
