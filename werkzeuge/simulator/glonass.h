// GLONASS satellites: state vectors every half hour, carried on by integrating the equations of motion.
#pragma once

#include <vector>

#include "simulator/geometrie.h"

namespace jorv::simulator {

struct Szenario;

/// Position and velocity in the earth-fixed system, metres and metres per second.
struct Bewegung {
    Vektor ort, tempo;
};

/// One broadcast set; `t` in GPS seconds since 0 h of the scenario's day (a quarter or three quarters past in UTC).
struct Glonasssatz {
    double t = 0;
    Bewegung bewegung;
    double uhr = 0, uhrgang = 0;  ///< clock reading minus system time: -TauN, and +GammaN
};

struct Glonassbahn {
    int nummer = 0, kanal = 0;
    std::vector<Glonasssatz> saetze;
    /// Position at `t` from the nearest set, fourth order Runge-Kutta with steps of a minute.
    Vektor ort(double t) const;
    /// Satellite clock in seconds at `t`.
    double uhr(double t) const;

private:
    const Glonasssatz& naechster(double t) const;
};

/// The 24 satellites of three planes with sets that cover [von, bis].
std::vector<Glonassbahn> glonass_machen(const Szenario& szenario, double von, double bis);

}  // namespace jorv::simulator
