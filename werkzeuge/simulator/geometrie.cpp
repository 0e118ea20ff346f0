#include "simulator/geometrie.h"

#include <cmath>

namespace jorv::simulator {

namespace {
constexpr double halbachse = 6378137.0;
constexpr double abplattung = 1 / 298.257222101;
constexpr double e2 = abplattung * (2 - abplattung);
}  // namespace

double betrag(Vektor a)
{
    return std::sqrt(skalar(a, a));
}

Vektor nach_xyz(Geographisch ort)
{
    const double s = std::sin(ort.breite), c = std::cos(ort.breite);
    const double n = halbachse / std::sqrt(1 - e2 * s * s);
    return {(n + ort.hoehe) * c * std::cos(ort.laenge), (n + ort.hoehe) * c * std::sin(ort.laenge),
            (n * (1 - e2) + ort.hoehe) * s};
}

Geographisch nach_geographisch(Vektor ort)
{
    const double p = std::hypot(ort.x, ort.y);
    double breite = std::atan2(ort.z, p * (1 - e2)), n = halbachse;
    for (int i = 0; i < 20; ++i) {
        const double s = std::sin(breite);
        n = halbachse / std::sqrt(1 - e2 * s * s);
        const double neu = std::atan2(ort.z + e2 * n * s, p);
        const bool fertig = std::abs(neu - breite) < 1e-13;
        breite = neu;
        if (fertig) break;
    }
    // This form of the height stays exact at the poles, where p / cos(latitude) would not.
    const double s = std::sin(breite), c = std::cos(breite);
    return {breite, std::atan2(ort.y, ort.x), p * c + ort.z * s - halbachse * std::sqrt(1 - e2 * s * s)};
}

Horizont::Horizont(Geographisch ort)
{
    const double sb = std::sin(ort.breite), cb = std::cos(ort.breite);
    const double sl = std::sin(ort.laenge), cl = std::cos(ort.laenge);
    nord = {-sb * cl, -sb * sl, cb};
    ost = {-sl, cl, 0};
    oben = {cb * cl, cb * sl, sb};
}

Vektor Horizont::geozentrisch(Vektor neu) const
{
    return neu.x * nord + neu.y * ost + neu.z * oben;
}

Richtung richtung(const Horizont& horizont, Vektor von, Vektor nach)
{
    const Vektor d = nach - von;
    return {std::asin(skalar(d, horizont.oben) / betrag(d)),
            std::atan2(skalar(d, horizont.ost), skalar(d, horizont.nord))};
}

}  // namespace jorv::simulator
