#pragma once
// Where the phases of a receiver antenna really end: offsets of the header and of the calibration, with its dependence
// on the elevation.

#include <array>
#include <optional>
#include <vector>

#include "suite/antenne.h"
#include "suite/rinex_beobachtung.h"

namespace jorv::suite {

/// Correction of one antenna over its marker.
class Phasenzentrum {
public:
    /// Offsets of the header (height, east, north) and of the calibration's block; without a block those of the header
    /// alone.
    Phasenzentrum(const RinexKopf& kopf, const std::optional<Antennenblock>& block);

    /// Metres by which a phase (frequency 0: L1, 1: L2) is longer than from the marker, for a satellite in the
    /// direction of the unit vector east, north, up.
    double laenger(std::size_t frequenz, const Enu& richtung) const;

private:
    struct Gang {
        Enu versatz;
        std::vector<double> werte;  // metres, by zenith distance from 0 in steps
    };
    void lesen(const Antennenblock& block);

    std::array<Gang, 2> m_gang;
    double m_schritt = 5.0;  // degrees
};

}  // namespace jorv::suite
