#pragma once
// RINEX 2 navigation files: GPS broadcast sets, joined from several files without doubles and written again unchanged.

#include <string>
#include <string_view>
#include <vector>

#include "suite/bahn.h"
#include "suite/navigationsdatei.h"

namespace jorv::suite {

/// The sets of one or more files, with the lines that they came from.
struct Navigation {
    std::vector<Ephemeride> saetze;
    Navigationsdatei datei;  // its sets in the order of `saetze`
};

/// Adds the GPS sets of a file's text. Sets that are there already (same satellite, reference time and issue) are
/// passed over, sets that can't be read wholly too. Returns the count of sets read, or -1 when the text is no RINEX 2
/// GPS navigation file.
int navigation_lesen(std::string_view text, Navigation& ziel);

/// The text of a navigation file of all sets in order of time, CR LF.
std::string navigation_text(const Navigation& navigation);

}  // namespace jorv::suite
