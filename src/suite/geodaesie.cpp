#include "suite/geodaesie.h"

namespace jorv::suite {

namespace {

constexpr double HALBACHSE = 6378137.0;
constexpr double ABPLATTUNG = 1.0 / 298.257222101;
constexpr double EXZENTRIZITAET2 = ABPLATTUNG * (2.0 - ABPLATTUNG);
constexpr double MASSSTAB = 0.9996;

std::array<std::array<double, 3>, 3> horizont_von(const Geographisch& p)
{
    const double sb = std::sin(p.breite), cb = std::cos(p.breite), sl = std::sin(p.laenge), cl = std::cos(p.laenge);
    return {{{-sl, cl, 0.0}, {-sb * cl, -sb * sl, cb}, {cb * cl, cb * sl, sb}}};
}

}  // namespace

Ort::Ort(const Xyz& lage) : xyz(lage), blh(geographisch(lage)), horizont(horizont_von(blh)) {}

Geographisch geographisch(const Xyz& p)
{
    constexpr double b = HALBACHSE * (1.0 - ABPLATTUNG);
    constexpr double zweite2 = EXZENTRIZITAET2 / (1.0 - EXZENTRIZITAET2);
    const double radius = std::hypot(p.x, p.y);
    double hilfe = std::atan2(p.z * HALBACHSE, radius * b);
    double breite = 0.0;
    for (int schritt = 0; schritt < 2; ++schritt) {
        const double s = std::sin(hilfe), c = std::cos(hilfe);
        breite = std::atan2(p.z + zweite2 * b * s * s * s, radius - EXZENTRIZITAET2 * HALBACHSE * c * c * c);
        hilfe = std::atan2((1.0 - ABPLATTUNG) * std::sin(breite), std::cos(breite));
    }
    const double sb = std::sin(breite), cb = std::cos(breite);
    const double hoehe = radius * cb + p.z * sb - HALBACHSE * std::sqrt(1.0 - EXZENTRIZITAET2 * sb * sb);
    return {breite, std::atan2(p.y, p.x), hoehe};
}

Enu enu(const Ort& ort, const Xyz& d)
{
    const auto zeile = [&](std::size_t i) {
        return ort.horizont[i][0] * d.x + ort.horizont[i][1] * d.y + ort.horizont[i][2] * d.z;
    };
    return {zeile(0), zeile(1), zeile(2)};
}

double elevation(const Ort& ort, const Xyz& satellit)
{
    const Enu richtung = enu(ort, satellit - ort.xyz);
    return std::atan2(richtung.u, std::sqrt(richtung.e * richtung.e + richtung.n * richtung.n));
}

Utm utm(const Geographisch& p, int zone)
{
    constexpr double n = ABPLATTUNG / (2.0 - ABPLATTUNG);
    constexpr double n2 = n * n, n3 = n2 * n, n4 = n3 * n;
    constexpr double bogen = HALBACHSE / (1.0 + n) * (1.0 + n2 / 4.0 + n4 / 64.0);
    constexpr std::array<double, 4> alpha = {n / 2.0 - 2.0 / 3.0 * n2 + 5.0 / 16.0 * n3 + 41.0 / 180.0 * n4,
                                             13.0 / 48.0 * n2 - 3.0 / 5.0 * n3 + 557.0 / 1440.0 * n4,
                                             61.0 / 240.0 * n3 - 103.0 / 140.0 * n4, 49561.0 / 161280.0 * n4};
    const double e = std::sqrt(EXZENTRIZITAET2);
    const double lambda = std::remainder(p.laenge - (6.0 * zone - 183.0) * GRAD, 2.0 * std::numbers::pi);
    const double sb = std::sin(p.breite);
    const double t = std::sinh(std::atanh(sb) - e * std::atanh(e * sb));
    const double xi = std::atan2(t, std::cos(lambda));
    const double eta = std::asinh(std::sin(lambda) / std::hypot(t, std::cos(lambda)));
    double nord = xi, ost = eta;
    for (std::size_t j = 0; j < alpha.size(); ++j) {
        const double k = 2.0 * static_cast<double>(j + 1);
        nord += alpha[j] * std::sin(k * xi) * std::cosh(k * eta);
        ost += alpha[j] * std::cos(k * xi) * std::sinh(k * eta);
    }
    return {500000.0 + MASSSTAB * bogen * ost, (p.breite < 0 ? 1.0e7 : 0.0) + MASSSTAB * bogen * nord};
}

}  // namespace jorv::suite
