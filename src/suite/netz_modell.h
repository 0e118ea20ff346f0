#pragma once
// How the errors of a network lean: for each epoch and satellite the plane through the stations' residuals, its part
// that is alike on both frequencies and the ionosphere's, and the text file that hands them on.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "suite/netz_interpolation.h"

namespace jorv::suite {

/// Change of a delay to the north and to the east, mm per km (ppm).
struct Neigung {
    double nord = 0, ost = 0;
};

/// A satellite in an epoch, against the satellite that stands highest above the master then.
struct Modellzeile {
    GpsZeit zeit;
    int satellit = 0;
    double elevation = 0;  // above the master, radians
    Neigung neutral;       // troposphere and orbit
    Neigung ionosphaere;   // on L1
};

/// The planes in the epochs of the span for the satellites that are fixed at all stations; least squares through the
/// master. Empty without two stations beside the master, or when all stand on one line.
std::vector<Modellzeile> netzmodell(const Ort& master, const std::vector<Hilfsstation>& stationen, const Bahnen& bahnen,
                                    const Zeitspanne& spanne);

/// The model file, CR LF: a head line that begins with %, then a line for each epoch and satellite: time, satellite,
/// elevation in degrees, the neutral part to the north and to the east, the ionosphere's to the north and to the east.
std::string modelltext(std::string_view kopf, const std::vector<Modellzeile>& zeilen);

/// The lines of such a file; nothing when one of them can't be read.
std::optional<std::vector<Modellzeile>> modell_lesen(std::string_view text);

}  // namespace jorv::suite
