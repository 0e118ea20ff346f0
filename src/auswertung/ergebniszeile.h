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

/// The pieces of a rover's extraction row: the short list (with the long point name 16 characters more) and the long
/// one behind it. A row that is shorter gives what there is.
struct Extraktstuecke {
    std::string_view utm, bericht;
};
Extraktstuecke extrakt_zerlegen(std::string_view zeile, bool langer_name);

/// The three lists of a baseline's row.
struct Basisstuecke {
    std::string_view bal, mrk, tem;
};
Basisstuecke extrakt_zerlegen_basis(std::string_view zeile);

/// The last line of the rover's result file below the work directory; nothing when there is none.
std::optional<Ergebnis> ergebnis_lesen(const Dateisystem& dateien, std::string_view arbeitsverzeichnis,
                                       std::string_view rover);

}  // namespace jorv
