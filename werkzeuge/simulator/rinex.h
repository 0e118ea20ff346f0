// RINEX 2.11 text of observation and navigation files.
#pragma once

#include <string>
#include <vector>

#include "simulator/bahn.h"
#include "simulator/simulator.h"

namespace jorv::simulator {

/// An observation file in two pieces, because the head names the last epoch, which is known only behind the body.
struct Beobachtungstext {
    std::string kopf, koerper;
    std::vector<bool> gesehen;  ///< per satellite of `bahnen`: occurs in the file
};

/// Simulates the whole span of a point. Without any epoch `koerper` is empty.
Beobachtungstext beobachtungen(const Szenario& szenario, const Punkt& punkt, const Bahnen& bahnen);

/// GPS navigation file with the sets within two hours of the point's span, of the satellites in `gesehen`.
std::string navigation_gps(const Szenario& szenario, const Punkt& punkt, const Bahnen& bahnen,
                           const std::vector<bool>& gesehen);
/// The same for GLONASS; epochs are UTC.
std::string navigation_glonass(const Szenario& szenario, const Punkt& punkt, const Bahnen& bahnen,
                               const std::vector<bool>& gesehen);

}  // namespace jorv::simulator
