#pragma once
// Program washmod: hourly index of the ionosphere from the model file of a network.

#include <cstdint>
#include <vector>

#include "suite/arbeitsordner.h"
#include "suite/aufruf.h"
#include "suite/netz_modell.h"
#include "suite/protokoll.h"

namespace jorv::suite {

/// The index of an hour (GPS time).
struct Stundenindex {
    std::int64_t stunde = 0;  // since 6.1.1980 00:00 GPS
    double i95 = 0;           // ppm
    std::size_t werte = 0, epochen = 0, satelliten = 0;
};

/// The slope's amount of a satellite's ionosphere on L1 as it would be in the zenith, ppm: times the cosine of the
/// zenith distance at 450 km of height over a sphere of 6371 km.
double zenitneigung(const Modellzeile& zeile);

/// For each hour the value that 95 of 100 slopes of all its epochs and satellites don't exceed.
std::vector<Stundenindex> i95(const std::vector<Modellzeile>& zeilen);

/// washmod FILE +Si: the hours in lines with a bar, on the protocol and in the file <stem>.i95. Exit status 1, with the
/// reason, when there is no model or it can't be read.
int washmod(const Worte& worte, const Arbeitsordner& ordner, Protokoll& protokoll);

}  // namespace jorv::suite
