// The time axis that bars of observations share: a place on it is a fraction of the picture's width.
#pragma once

#include <string>
#include <vector>

#include "plattform/kalender.h"

namespace jorv {

/// Left and right end of a bar, 0 to 1; both equal where it lies outside the axis.
struct Balken {
    double von = 0, bis = 0;
};

struct Zeitmarke {
    double anteil = 0;
    std::string Text;  ///< "9:05"
};

/// Colour of a row's bar. Linking by hand: of stations grau not chosen, gelb chosen; of the rover gruen enough chosen,
/// gelb too few, rot no usable choice. Overview: of rovers the light, grau when switched off; blau the stations.
enum class Zeilenfarbe { grau, gelb, gruen, rot, blau };

class Zeitachse {
public:
    Zeitachse() = default;
    /// From `von` to `bis`, and on both sides a margin of that fraction of the span.
    Zeitachse(const Zeitpunkt& von, const Zeitpunkt& bis, double rand = 0);

    /// The place of an instant, not cut; 0 on an axis without length.
    double anteil(const Zeitpunkt& zeit) const;
    double anteil(double sekunden_seit_1970) const;
    /// The instant at a place, to the nearest second.
    Zeitpunkt zeit(double anteil) const;
    double sekunden() const { return m_laenge; }
    /// A bar cut at the ends of the axis.
    Balken balken(const Zeitpunkt& von, const Zeitpunkt& bis) const;
    /// Marks at whole minutes, counted on from the full hour before the axis' start in steps that divide the hour or
    /// the day, as many as there is room for: at most `hoechstens`.
    std::vector<Zeitmarke> marken(int hoechstens) const;
    /// The places of all whole multiples of that many minutes, counted from midnight.
    std::vector<double> raster(int minuten) const;
    /// The part of this axis between two places.
    Zeitachse ausschnitt(double von, double bis) const;

private:
    double m_beginn = 0, m_laenge = 0;  // seconds since 1970, seconds
};

/// Hour, ":" and the minute with at least two digits.
std::string zeitmarke_text(const Zeitpunkt& zeit);

}  // namespace jorv
