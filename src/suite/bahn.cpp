#include "suite/bahn.h"

namespace jorv::suite {

namespace {

constexpr double ERDMASSE = 3.986005e14;           // m3/s2
constexpr double RELATIVITAET = -4.442807633e-10;  // s/sqrt(m)
constexpr double GUELTIGKEIT = 7200.0;             // s

double exzentrische_anomalie(const Ephemeride& eph, double seit_toe)
{
    const double a = eph.wurzel_a * eph.wurzel_a;
    const double mittlere = eph.m0 + (std::sqrt(ERDMASSE / (a * a * a)) + eph.delta_n) * seit_toe;
    double anomalie = mittlere;
    for (int schritt = 0; schritt < 30; ++schritt) {
        const double neu =
            anomalie - (anomalie - eph.e * std::sin(anomalie) - mittlere) / (1.0 - eph.e * std::cos(anomalie));
        const bool fertig = std::abs(neu - anomalie) < 1e-14;
        anomalie = neu;
        if (fertig) break;
    }
    return anomalie;
}

}  // namespace

Xyz satellitenort(const Ephemeride& eph, const GpsZeit& zeit)
{
    const double t = abstand(zeit, eph.toe);
    const double anomalie = exzentrische_anomalie(eph, t);
    const double wahre = std::atan2(std::sqrt(1.0 - eph.e * eph.e) * std::sin(anomalie), std::cos(anomalie) - eph.e);
    const double phi = wahre + eph.omega;
    const double s2 = std::sin(2.0 * phi), c2 = std::cos(2.0 * phi);
    const double u = phi + eph.cus * s2 + eph.cuc * c2;
    const double r = eph.wurzel_a * eph.wurzel_a * (1.0 - eph.e * std::cos(anomalie)) + eph.crs * s2 + eph.crc * c2;
    const double i = eph.i0 + eph.i_punkt * t + eph.cis * s2 + eph.cic * c2;
    const auto toe_in_woche = static_cast<double>(eph.toe.sekunde % 604800) + eph.toe.bruch;
    const double knoten = eph.omega0 + (eph.omega_punkt - ERDDREHUNG) * t - ERDDREHUNG * toe_in_woche;
    const double x = r * std::cos(u), y = r * std::sin(u);
    return {x * std::cos(knoten) - y * std::cos(i) * std::sin(knoten),
            x * std::sin(knoten) + y * std::cos(i) * std::cos(knoten), y * std::sin(i)};
}

double satellitenuhr(const Ephemeride& eph, const GpsZeit& zeit)
{
    const double t = abstand(zeit, eph.toc);
    const double anomalie = exzentrische_anomalie(eph, abstand(zeit, eph.toe));
    return eph.af0 + (eph.af1 + eph.af2 * t) * t + RELATIVITAET * eph.e * eph.wurzel_a * std::sin(anomalie);
}

Xyz gedreht(const Xyz& ort, double dauer)
{
    const double winkel = ERDDREHUNG * dauer;
    const double s = std::sin(winkel), c = std::cos(winkel);
    return {c * ort.x + s * ort.y, c * ort.y - s * ort.x, ort.z};
}

const Ephemeride* passende_ephemeride(const std::vector<Ephemeride>& alle, int satellit, const GpsZeit& zeit)
{
    const Ephemeride* beste = nullptr;
    double naechste = GUELTIGKEIT;
    for (const Ephemeride& eph : alle) {
        if (eph.satellit != satellit || eph.gesundheit != 0) continue;
        const double entfernt = std::abs(abstand(eph.toe, zeit));
        if (entfernt > naechste || (beste && entfernt == naechste)) continue;
        beste = &eph;
        naechste = entfernt;
    }
    return beste;
}

}  // namespace jorv::suite
