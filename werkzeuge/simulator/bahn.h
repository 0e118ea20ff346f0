// The satellites: broadcast elements that the simulator makes up, and their evaluation by the users' algorithm.
#pragma once

#include <optional>
#include <vector>

#include "simulator/glonass.h"
#include "simulator/simulator.h"

namespace jorv::simulator {

inline constexpr double lichtgeschwindigkeit = 299792458.0;
inline constexpr double erddrehung = 7.2921151467e-5;  ///< rad/s, GPS value
inline constexpr double f_l1 = 1575.42e6, f_l2 = 1227.60e6;

/// One broadcast set in the units of the interface document: metres, seconds, radians.
struct Bahnsatz {
    double toe = 0;            ///< seconds since 0 h of the scenario's day, equal to toc
    double wochensekunde = 0;  ///< the same instant as seconds of the GPS week
    int woche = 0, iode = 0;
    double af0 = 0, af1 = 0, af2 = 0, tgd = 0;
    double wurzel_a = 0, e = 0, i0 = 0, omega0 = 0, omega = 0, m0 = 0;
    double delta_n = 0, omega_punkt = 0, i_punkt = 0;
    double cuc = 0, cus = 0, crc = 0, crs = 0, cic = 0, cis = 0;
};

/// Position of the antenna in the earth-fixed system of its own instant (metres) and the clock reading minus GPS time
/// (s).
struct Zustand {
    Vektor ort;
    double uhr = 0;
};

/// Evaluates a broadcast set at `t` (users' algorithm of the GPS interface document, relativity included).
Zustand auswerten(const Bahnsatz& satz, double t);

struct Satellit {
    char system = 'G';
    int nummer = 0;
    double f1 = f_l1, f2 = f_l2;                ///< Hz
    double codeversatz1 = 0, codeversatz2 = 0;  ///< group delay of the two codes, metres
    std::vector<Bahnsatz> saetze;               ///< GPS, every two hours
    std::optional<Glonassbahn> glonass;
    Vektor fehler;           ///< amplitude of the orbit error, metres
    double fehlerphase = 0;  ///< radians
};

/// All satellites of a scenario with broadcast sets for the whole span of its points.
class Bahnen {
public:
    explicit Bahnen(const Szenario& szenario);
    const std::vector<Satellit>& satelliten() const { return satelliten_; }
    /// The orbit that the observations follow: the nearest broadcast set plus the orbit error.
    Zustand wahr(const Satellit& satellit, double t) const;

private:
    std::vector<Satellit> satelliten_;
};

}  // namespace jorv::simulator
