// What one receiver measures: the sum of geometry and effects at nominal tags.
#pragma once

#include <cstddef>
#include <vector>

#include "simulator/bahn.h"
#include "simulator/simulator.h"

namespace jorv::simulator {

/// The observations of one satellite at one epoch. Index 0 = L1, 1 = L2.
struct Messwert {
    std::size_t satellit = 0;         ///< index in Bahnen::satelliten()
    std::array<double, 2> code{};     ///< metres
    std::array<double, 2> phase{};    ///< cycles, growing with the distance
    std::array<double, 2> staerke{};  ///< dB-Hz
    std::array<bool, 2> verloren{};   ///< loss of lock since the previous epoch
};

/// The receiver of one point; epochs must be asked for in ascending order, because arcs and slips add up.
class Empfaenger {
public:
    Empfaenger(const Szenario& szenario, const Punkt& punkt, const Bahnen& bahnen);
    /// The measurements at the tag `t` (seconds since 0 h), satellites above the mask in ascending order. A receiver
    /// whose clock is ahead by d measures at t - d, so that d stands in code and phase as in real files.
    void messen(double t, std::vector<Messwert>& aus);

private:
    struct Bogen {
        double zuletzt = 0;
        bool begonnen = false;
        std::array<double, 2> ganze{};
    };
    struct Weg {
        double strecke = 0;  // metres, phase centre to satellite, with the elevation dependent part
        double satellitenuhr = 0;
        Richtung richtung;
    };
    bool sichtbar(const Satellit& satellit, double t) const;
    Weg weg(const Satellit& satellit, double t, int frequenz) const;
    double antennengang(double hoehe, int frequenz) const;
    void stoeren(const Satellit& satellit, double t, double hoehe, int frequenz, Messwert& wert) const;
    void bogen_fuehren(const Satellit& satellit, double t, Messwert& wert);
    std::uint64_t tick(double t) const;

    const Szenario& szenario_;
    const Punkt& punkt_;
    const Bahnen& bahnen_;
    const Antenne* antenne_ = nullptr;
    Geographisch mitte_, ort_;
    Horizont horizont_;
    std::array<Vektor, 2> phasenzentrum_;
    std::uint64_t kennung_;
    double spiegelhoehe_;
    std::vector<Bogen> boegen_;
};

/// The plane coordinates of ionosphere and troposphere count from the mean of all points.
Geographisch netzmitte(const Szenario& szenario);

}  // namespace jorv::simulator
