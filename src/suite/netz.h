#pragma once
// The network round a virtual station: reads the stations beside the master, fixes each of them to it, and makes the
// corrections for the rover's place. Its lines in the protocol tell what was used and what was refused.

#include <string>
#include <vector>

#include "suite/arbeitsordner.h"
#include "suite/ionosphaere.h"
#include "suite/netz_interpolation.h"
#include "suite/protokoll.h"

namespace jorv::suite {

inline constexpr std::size_t NETZSTATIONEN = 4;  // with the master, as many as a rover can be linked to

/// A station with its observation files, the place that the call gives it and its distance to the rover.
struct Netzstation {
    std::string name;
    std::vector<std::string> dateien;
    Xyz ort;
    double strecke = 0.0;
};

struct Netzauftrag {
    std::vector<Netzstation> stationen;  // by distance, the master first
    Xyz virtuell;
    Zeitspanne spanne;
    std::string antennendatei;  // empty: no calibrations
};

struct Netz {
    Ionosphaere ionosphaere;              // over the master
    std::vector<Hilfsstation> stationen;  // that are fixed to the master
    std::vector<double> gewichte;         // of these in the corrections
    std::vector<Korrekturepoche> korrekturen;
};

/// The ionosphere, the stations and the corrections of the network. No corrections, with the reason in the protocol,
/// when no station beside the master can be used or the rover lies too far outside.
Netz netz_rechnen(const Netzauftrag& auftrag, const Bahnen& bahnen, const Arbeitsordner& ordner, Protokoll& protokoll);

}  // namespace jorv::suite
