// The result line of a rover as the suite wrote it, cut by its fixed columns.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "plattform/datei.h"

namespace jorv {

struct Ergebnis {
    std::string Punkt;
    double Rechtswert = 0, Hochwert = 0, Hoehe = 0;  ///< metres; ellipsoidal height
    double Minuten = 0;                              ///< evaluated span
    double sE = 0, sN = 0, sH = 0;                   ///< standard deviations, mm
    std::string Loesung;                             ///< FixedL1, FixedL0 or FloatDGNSS
    double Ambiguitaeten = 0;                        ///< per cent fixed
};

/// From a line with the short (101 characters) or the long point name (117); nothing when it is shorter or its
/// coordinates are no numbers.
std::optional<Ergebnis> ergebnis_aus_zeile(std::string_view zeile);

/// The last line of the rover's result file below the work directory; nothing when there is none.
std::optional<Ergebnis> ergebnis_lesen(const Dateisystem& dateien, std::string_view arbeitsverzeichnis,
                                       std::string_view rover);

}  // namespace jorv
