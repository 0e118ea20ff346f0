#pragma once
// Figures of merit from the residuals of a whole run, in place of the solver's own words for single epochs.

#include "suite/loeser_ausgabe.h"

namespace jorv::suite {

/// What a run is judged by: a fixed one by the satellites with fixed ambiguities in the epochs that are fixed (the
/// residuals of the others are not brought up to date by the solver), a float one by all, a code one by its codes.
enum class Massstab { fest, offen, code };

struct Guetemasse {
    double s0 = 0.0;                // a posteriori over a priori sigma; see SIGMA_PHASE
    double mehrdeutigkeiten = 0.0;  // percent of the valid observations whose ambiguity was fixed at some time
    double satelliten = 0.0;        // mean number of valid satellites
    double feste = 0.0;             // of those that the measure counts, in the epochs and frequencies that it counts
    double pdop_beste = 0.0, pdop_mittel = 0.0;
    double umgewichtet = 0.0;  // percent of the observations that were rejected or exceed three sigma
};

/// A priori sigma of a single phase: sqrt(a^2 + a^2 / sin^2 elevation) with this a, metres.
inline constexpr double SIGMA_PHASE = 0.003;

/// A priori variance of the difference of two such phases at the elevation (radians), square metres.
double phasenvarianz(double elevation);

Guetemasse guetemasse(const Loeserausgabe& ausgabe, Massstab massstab);

/// Position dilution of precision of satellites in the given directions (azimuth, elevation); 0 for fewer than four or
/// a degenerate geometry.
double pdop(const std::vector<std::array<double, 2>>& richtungen);

}  // namespace jorv::suite
