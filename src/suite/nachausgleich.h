#pragma once
// A fixed run of both frequencies once more: all its epochs at once, and with as much ionosphere in the phases as they
// show. L1 alone keeps what the ionosphere leaves of it, the combination free of it keeps three times the noise; what
// lies between is nearer to the truth than either.

#include <optional>

#include "suite/guete.h"

namespace jorv::suite {

struct Nachausgleich {
    Position position;         // of the run, with the new place and deviations
    double ionosphaere = 0.0;  // metres on L1 in the zenith by which the delays were taken to differ
};

/// Adjusts the place to the phase residuals of the satellites that are fixed on both frequencies, from the epochs that
/// are fixed to within 6 cm of `ende`. The ionosphere is a random delay of each satellite in each epoch; its size comes
/// from how the two phases drift apart beyond their noise, and `s0`, the misfit of the run on L1, is its limit: what
/// doesn't show there is multipath of L2. `anfang`, the place of that run, counts as an observation, which holds a poor
/// geometry of the fixed satellites. `kalibriert` as for the runs: else L1 and L2 may stand apart for as long as the
/// run lasts, and that must not be taken for ionosphere. Nothing when too few epochs are left.
std::optional<Nachausgleich> nachausgleichen(const Loeserausgabe& lauf, const Position& ende, const Xyz& anfang,
                                             double s0, bool kalibriert);

}  // namespace jorv::suite
