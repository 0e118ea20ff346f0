#include "simulator/bahn.h"

#include <algorithm>
#include <cmath>

#include "simulator/text.h"
#include "simulator/zeit.h"
#include "simulator/zufall.h"

namespace jorv::simulator {

namespace {

constexpr double erdgravitation = 3.986005e14;     // m^3/s^2, GPS value
constexpr double relativitaet = -4.442807633e-10;  // s / sqrt(m)
constexpr double satzabstand = 7200;
constexpr int ebenen = 6;

double in_umdrehung(double winkel)
{
    return std::remainder(winkel, 2 * pi);
}

/// Everything of a satellite that does not change with the set; m0 and omega0 belong to 0 h of the day.
Bahnsatz grundbahn(const Szenario& szenario, int index)
{
    const int ebene = index % ebenen, platz = index / ebenen;
    const int plaetze = (szenario.satelliten + ebenen - 1 - ebene) / ebenen;
    Zufall z(szenario.konstellation, {nr(Strom::konstellation), static_cast<std::uint64_t>(index)});
    Bahnsatz b;
    b.wurzel_a = 5153.65 + z.zwischen(-0.1, 0.1);
    b.e = z.zwischen(0.005, 0.015);
    b.i0 = 55 * grad + z.zwischen(-0.8, 0.8) * grad;
    b.omega = z.zwischen(-pi, pi);
    b.omega0 = in_umdrehung(ebene * 60 * grad + z.zwischen(-2, 2) * grad);
    // Evenly spread places, each plane shifted against its neighbour, with the unevenness of a real constellation.
    const double argument = 2 * pi * platz / plaetze + ebene * 27 * grad + z.zwischen(-9, 9) * grad;
    b.m0 = argument - b.omega;
    b.delta_n = z.zwischen(4.0e-9, 5.2e-9);
    b.omega_punkt = -z.zwischen(7.6e-9, 8.4e-9);
    b.i_punkt = z.zwischen(-3e-10, 3e-10);
    b.cuc = z.zwischen(-6e-6, 6e-6);
    b.cus = z.zwischen(3e-6, 11e-6);
    b.crc = z.zwischen(160, 340);
    b.crs = z.zwischen(-110, 110);
    b.cic = z.zwischen(-2e-7, 2e-7);
    b.cis = z.zwischen(-2e-7, 2e-7);
    if (szenario.wirkungen.satellitenuhren) {
        Zufall u(szenario.konstellation, {nr(Strom::satellitenuhr), static_cast<std::uint64_t>(index)});
        b.af0 = u.zwischen(-5e-4, 5e-4);
        b.af1 = u.zwischen(-8e-12, 8e-12);
        b.tgd = u.zwischen(-1.2e-8, 4e-9);
    }
    return b;
}

/// Carries the elements on to `toe` and rounds each to what the file can hold, so that file and truth are one.
Bahnsatz satz_machen(const Bahnsatz& grund, double toe, int gpstag)
{
    Bahnsatz b = grund;
    const double sekunden_heute = (gpstag % 7) * tageslaenge;
    const double halbachse = b.wurzel_a * b.wurzel_a;
    const double bewegung = std::sqrt(erdgravitation / (halbachse * halbachse * halbachse)) + b.delta_n;
    b.toe = toe;
    const double tage = std::floor((sekunden_heute + toe) / wochenlaenge);
    b.woche = gpstag / 7 + static_cast<int>(tage);
    b.wochensekunde = sekunden_heute + toe - tage * wochenlaenge;
    b.iode = 1 + static_cast<int>(std::lround(b.wochensekunde / satzabstand)) % 239;
    b.m0 = in_umdrehung(grund.m0 + bewegung * toe);
    // The node is counted from the beginning of the week, the grund value from 0 h of the day.
    b.omega0 = in_umdrehung(grund.omega0 + grund.omega_punkt * toe + erddrehung * b.wochensekunde - erddrehung * toe);
    b.i0 = grund.i0 + grund.i_punkt * toe;
    b.af0 = grund.af0 + grund.af1 * toe;
    for (double* wert : {&b.af0, &b.af1, &b.tgd, &b.wurzel_a, &b.e, &b.i0, &b.omega0, &b.omega, &b.m0, &b.delta_n,
                         &b.omega_punkt, &b.i_punkt, &b.cuc, &b.cus, &b.crc, &b.crs, &b.cic, &b.cis}) {
        *wert = gedruckt(*wert);
    }
    return b;
}

double exzentrische_anomalie(double m, double e)
{
    double x = m + e * std::sin(m);
    for (int i = 0; i < 10; ++i) {
        const double schritt = (x - e * std::sin(x) - m) / (1 - e * std::cos(x));
        x -= schritt;
        if (std::abs(schritt) < 1e-15) break;
    }
    return x;
}

/// Numbers 1 to 32 without gaps look made up; with fewer than 32 satellites some numbers are left out.
std::vector<int> nummern(int anzahl)
{
    std::vector<int> alle;
    for (int prn = 1; prn <= 32; ++prn) alle.push_back(prn);
    for (const int frei : {4, 32, 21, 10, 27, 15, 6, 18}) {
        if (static_cast<int>(alle.size()) > anzahl) std::erase(alle, frei);
    }
    return alle;
}

}  // namespace

Zustand auswerten(const Bahnsatz& b, double t)
{
    const double tk = t - b.toe;
    const double halbachse = b.wurzel_a * b.wurzel_a;
    const double bewegung = std::sqrt(erdgravitation / (halbachse * halbachse * halbachse)) + b.delta_n;
    const double exz = exzentrische_anomalie(b.m0 + bewegung * tk, b.e);
    const double se = std::sin(exz), ce = std::cos(exz);
    const double phi = std::atan2(std::sqrt(1 - b.e * b.e) * se, ce - b.e) + b.omega;
    const double s2 = std::sin(2 * phi), c2 = std::cos(2 * phi);
    const double u = phi + b.cus * s2 + b.cuc * c2;
    const double r = halbachse * (1 - b.e * ce) + b.crs * s2 + b.crc * c2;
    const double neigung = b.i0 + b.i_punkt * tk + b.cis * s2 + b.cic * c2;
    const double knoten = b.omega0 + (b.omega_punkt - erddrehung) * tk - erddrehung * b.wochensekunde;
    const double xb = r * std::cos(u), yb = r * std::sin(u);
    const double sk = std::sin(knoten), ck = std::cos(knoten), si = std::sin(neigung), ci = std::cos(neigung);
    return {{xb * ck - yb * ci * sk, xb * sk + yb * ci * ck, yb * si},
            b.af0 + b.af1 * tk + b.af2 * tk * tk + relativitaet * b.e * b.wurzel_a * se};
}

Bahnen::Bahnen(const Szenario& szenario)
{
    double von = 0, bis = 0;
    if (!szenario.punkte.empty()) von = szenario.punkte.front().von, bis = szenario.punkte.front().bis;
    for (const Punkt& p : szenario.punkte) von = std::min(von, p.von), bis = std::max(bis, p.bis);
    const double erster = std::floor(von / satzabstand) * satzabstand;
    const double letzter = std::ceil(bis / satzabstand) * satzabstand;
    const int gpstag = gps_tag(szenario.tag);
    const std::vector<int> prn = nummern(szenario.satelliten);
    for (int index = 0; index < szenario.satelliten; ++index) {
        Satellit s;
        // Neighbouring numbers shall not stand in one plane: 11 is prime to every count but 22.
        s.nummer = prn[static_cast<std::size_t>(index * 11 % szenario.satelliten)];
        const Bahnsatz grund = grundbahn(szenario, index);
        for (double toe = erster; toe <= letzter; toe += satzabstand)
            s.saetze.push_back(satz_machen(grund, toe, gpstag));
        s.codeversatz1 = lichtgeschwindigkeit * s.saetze.front().tgd;
        s.codeversatz2 = s.codeversatz1 * (f_l1 / f_l2) * (f_l1 / f_l2);
        satelliten_.push_back(std::move(s));
    }
    if (szenario.glonass) {
        for (Glonassbahn& bahn : glonass_machen(szenario, von, bis)) {
            Satellit s;
            s.system = 'R';
            s.nummer = bahn.nummer;
            s.f1 = 1602e6 + bahn.kanal * 562.5e3;
            s.f2 = 1246e6 + bahn.kanal * 437.5e3;
            s.glonass = std::move(bahn);
            satelliten_.push_back(std::move(s));
        }
    }
    std::sort(satelliten_.begin(), satelliten_.end(), [](const Satellit& a, const Satellit& b) {
        return a.system != b.system ? a.system < b.system : a.nummer < b.nummer;
    });
    for (Satellit& s : satelliten_) {
        Zufall z(szenario.saat,
                 {nr(Strom::bahn), static_cast<std::uint64_t>(s.system), static_cast<std::uint64_t>(s.nummer)});
        s.fehler = szenario.wirkungen.bahnfehler * Vektor{z.normal(), z.normal(), z.normal()};
        s.fehlerphase = z.zwischen(-pi, pi);
    }
}

Zustand Bahnen::wahr(const Satellit& s, double t) const
{
    Zustand z;
    if (s.glonass) {
        z.ort = s.glonass->ort(t);
        z.uhr = s.glonass->uhr(t);
    } else {
        const double stelle = std::round((t - s.saetze.front().toe) / satzabstand);
        const auto index = static_cast<std::size_t>(std::clamp(stelle, 0.0, static_cast<double>(s.saetze.size() - 1)));
        z = auswerten(s.saetze[index], t);
    }
    // Once round per revolution, as the errors of real broadcast orbits.
    z.ort = z.ort + (std::sqrt(2.0) * std::cos(2 * pi * t / 43080 + s.fehlerphase)) * s.fehler;
    return z;
}

}  // namespace jorv::simulator
