#pragma once
// The plane through a network's residuals at the place of the virtual station: what to add to the phases and codes of
// the master beyond the shift itself.

#include <optional>
#include <vector>

#include "suite/netz_mehrdeutigkeiten.h"

namespace jorv::suite {

/// Metres to add to a satellite's phases. Their dispersive part counts the other way for the codes.
struct Korrektur {
    int satellit = 0;
    double l1 = 0, l2 = 0;

    /// The part that is the same on both frequencies (troposphere, orbit).
    double neutral() const
    {
        return (l1 * FREQUENZ1 * FREQUENZ1 - l2 * FREQUENZ2 * FREQUENZ2) /
               (FREQUENZ1 * FREQUENZ1 - FREQUENZ2 * FREQUENZ2);
    }
    /// The same with another share of the dispersive part.
    Korrektur mit_anteil(double anteil) const
    {
        return {satellit, neutral() + anteil * (l1 - neutral()), neutral() + anteil * (l2 - neutral())};
    }
    double code1() const { return 2.0 * neutral() - l1; }
    double code2() const { return 2.0 * neutral() - l2; }
};
struct Korrekturepoche {
    std::int64_t sekunde = 0;
    std::vector<Korrektur> werte;  // by satellite
};

/// A station of the network beside the master.
struct Hilfsstation {
    std::string name;
    Xyz ort;
    Paar paar;
};

/// The residual of a satellite in an epoch; nullptr without one.
const Paarrest* rest_von(const Paarepoche& epoche, int satellit);

/// What each station's residual counts at `virtuell`: a plane through the master, nearer stations weighing more; along
/// the stations' common line when they stand on one.
std::vector<double> ebenengewichte(const Ort& master, const Xyz& virtuell, const std::vector<Xyz>& stationen);

/// Metres from the figure that the stations span with the master; 0 inside.
double abstand_vom_netz(const Ort& master, const Xyz& virtuell, const std::vector<Xyz>& stationen);

/// Corrections in the epochs and for the satellites that are fixed at all stations. Those of an epoch share an offset
/// on each frequency, which leaves their mean as it was an epoch ago.
std::vector<Korrekturepoche> korrekturen(const std::vector<Hilfsstation>& stationen,
                                         const std::vector<double>& gewichte);

/// The correction of a satellite at a time, between two epochs not far apart their mean by distance; nothing without
/// one.
std::optional<Korrektur> korrektur_bei(const std::vector<Korrekturepoche>& alle, const GpsZeit& zeit, int satellit);

}  // namespace jorv::suite
