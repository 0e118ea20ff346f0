#pragma once
// Reads the two result files of the solver rnx2rtkp: the series of positions and the residuals of each satellite.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "suite/geodaesie.h"
#include "suite/gps_zeit.h"

namespace jorv::suite {

/// Quality words of the solver.
enum class Guete { keine = 0, fest = 1, offen = 2, code_differentiell = 4, einzeln = 5 };

/// One epoch of the position file.
struct Position {
    GpsZeit zeit;
    Xyz ort;
    Guete guete = Guete::keine;
    Xyz sigma;                         // metres, as printed
    std::array<double, 3> gemischt{};  // signed roots of the covariances xy, yz, zx
    double verhaeltnis = 0.0;
};

/// One satellite and frequency of an epoch of the residual file.
struct Restzeile {
    GpsZeit zeit;
    std::string satellit;
    int frequenz = 0;                      // 1 or 2
    double azimut = 0.0, elevation = 0.0;  // radians
    double rest_code = 0.0, rest = 0.0;    // residuals of code and phase, metres
    bool gueltig = false;
    bool fest = false;
};

struct Loeserausgabe {
    std::string programm;  // the "% program" line
    std::vector<Position> positionen;
    std::vector<Restzeile> reste;  // of the epochs that have a position, in order of time
};

/// Positions from `.pos` (xyz, time as date and time of day), residuals from `.pos.stat`. Lines that can't be read,
/// such as the torn last line of a solver that was ended, are left out; an empty result means that there is no
/// solution.
Loeserausgabe loeserausgabe_lesen(std::string_view positionen, std::string_view statistik);

}  // namespace jorv::suite
