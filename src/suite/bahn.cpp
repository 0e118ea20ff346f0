#include "suite/bahn.h"

namespace jorv::suite {

namespace {

constexpr double ERDMASSE = 3.986005e14;           // m3/s2
constexpr double RELATIVITAET = -4.442807633e-10;  // s/sqrt(m)
constexpr double GUELTIGKEIT = 7200.0;             // s
constexpr double NAHE = 1e-6;                      // rad before the last of Newton's steps, which leaves 1e-14

struct Winkel {
    double s, c;  // its sine and cosine
    // Those of the angle turned by up to 1e-3 rad, by series.
    Winkel um(double kleines) const
    {
        const double q = kleines * kleines, ds = kleines * (1.0 - q / 6.0), dc = 1.0 - q / 2.0 * (1.0 - q / 12.0);
        return {s * dc + c * ds, c * dc - s * ds};
    }
};

// Eccentric anomaly by Newton's steps.
Winkel exzentrische_anomalie(double e, double mittlere)
{
    double anomalie = mittlere + e * std::sin(mittlere);
    for (int schritt = 0;; ++schritt) {
        const Winkel w{std::sin(anomalie), std::cos(anomalie)};
        const double fehler = (anomalie - e * w.s - mittlere) / (1.0 - e * w.c);
        if (std::abs(fehler) < NAHE || schritt == 30) return w.um(-fehler);
        anomalie -= fehler;
    }
}

}  // namespace

Satellitenlage satellitenlage(const Ephemeride& eph, const GpsZeit& zeit)
{
    const double t = abstand(zeit, eph.toe), a = eph.wurzel_a * eph.wurzel_a, e = eph.e;
    const double bewegung = std::sqrt(ERDMASSE / (a * a * a)) + eph.delta_n;
    const Winkel anomalie = exzentrische_anomalie(e, eph.m0 + bewegung * t);
    const double kruemmung = 1.0 - e * anomalie.c, wurzel = std::sqrt(1.0 - e * e);
    const double phi = std::atan2(wurzel * anomalie.s, anomalie.c - e) + eph.omega;
    const Winkel p{std::sin(phi), std::cos(phi)};
    const double s2 = 2.0 * p.s * p.c, c2 = p.c * p.c - p.s * p.s;
    const Winkel u = p.um(eph.cus * s2 + eph.cuc * c2);
    const double r = a * kruemmung + eph.crs * s2 + eph.crc * c2;
    const double i = eph.i0 + eph.i_punkt * t + eph.cis * s2 + eph.cic * c2;
    const auto toe_in_woche = static_cast<double>(eph.toe.sekunde % 604800) + eph.toe.bruch;
    const double knotenlauf = eph.omega_punkt - ERDDREHUNG;
    const double knoten = eph.omega0 + knotenlauf * t - ERDDREHUNG * toe_in_woche;
    const double si = std::sin(i), ci = std::cos(i), sk = std::sin(knoten), ck = std::cos(knoten);
    const double x = r * u.c, y = r * u.s;
    const Xyz ort{x * ck - y * ci * sk, x * sk + y * ci * ck, y * si};

    const double anomalielauf = bewegung / kruemmung;
    const double philauf = anomalielauf * wurzel / kruemmung;
    const double ulauf = philauf * (1.0 + 2.0 * (eph.cus * c2 - eph.cuc * s2));
    const double rlauf = a * e * anomalie.s * anomalielauf + 2.0 * philauf * (eph.crs * c2 - eph.crc * s2);
    const double ilauf = eph.i_punkt + 2.0 * philauf * (eph.cis * c2 - eph.cic * s2);
    const double vx = rlauf * u.c - y * ulauf, vy = rlauf * u.s + x * ulauf;
    const double quer = vy * ci - y * si * ilauf;
    const Xyz lauf{vx * ck - quer * sk - ort.y * knotenlauf, vx * sk + quer * ck + ort.x * knotenlauf,
                   vy * si + y * ci * ilauf};

    const double tc = abstand(zeit, eph.toc);
    const double uhr = eph.af0 + (eph.af1 + eph.af2 * tc) * tc + RELATIVITAET * e * eph.wurzel_a * anomalie.s;
    return {ort, lauf, uhr};
}

Xyz gedreht(const Xyz& ort, double dauer)
{
    const Winkel w = Winkel{0.0, 1.0}.um(ERDDREHUNG * dauer);
    return {w.c * ort.x + w.s * ort.y, w.c * ort.y - w.s * ort.x, ort.z};
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
