// Why automatik decided as it did: kept with the assignment, shown to the user, never worked out again.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "modell/Saetze.h"

namespace jorv {

/// One station file that was looked at for a rover (mode F: one that was nearer than the choice so far).
struct Dateiurteil {
    std::string TOREL_Dateiname;
    std::string Punktkennzeichen;
    bool genommen = false;
    std::int64_t Minuten_vorher = 0;   ///< calendar minutes by which it begins too late (0: in time)
    std::int64_t Minuten_nachher = 0;  ///< calendar minutes by which it ends too early
    std::int64_t Sekunden_vorher = 0, Sekunden_nachher = 0;  ///< the same in seconds, for gaps below a minute
    std::int64_t Minuten_Laenge = 0;                         ///< mode F: length of the file, at least 60 is asked for
    double Strecke = 0;                                      ///< mode F: distance to the rover, metres
};

enum class Pruefung : std::uint8_t {
    keine,       ///< no figure drawn yet, nothing was judged
    geschuetzt,  ///< set by hand
    in_keiner_figur,
    keine_datei,   ///< in a figure, but no file covers the rover
    zu_wenig,      ///< fewer files than corners
    vollstaendig,  ///< as many files as corners
    mehr_als_ecken,
    tag,             ///< day of a station differs from the rover's
    session,         ///< day or session differs among the stations
    lang_genug,      ///< at least 60 minutes
    spanne_zu_kurz,  ///< stations offer less than an hour
    spanne_reicht,
    spanne_endet_zu_frueh,
    fremde_zugeordnet,  ///< mode F: the nearest usable foreign station
    keine_fremde        ///< mode F: none covers the rover with an hour of data
};

struct Begruendung {
    int Figur = 0;  ///< index of the figure hit in GEO_Punkt, 0 none
    int Ecken = 0;  ///< its corners
    std::vector<Dateiurteil> Dateien;
    std::vector<Pruefung> Schritte;   ///< checks that set the light, in order; the last one decided
    std::string abweichende_Datei;    ///< the file that failed the check of day or session
    std::int64_t Minuten_ROVER = 0;   ///< length of the rover's observation
    std::int64_t Minuten_Spanne = 0;  ///< what the stations offer around it, 0 when not worked out
    Zeitpunkt Spanne_von, Spanne_bis;
};

}  // namespace jorv
