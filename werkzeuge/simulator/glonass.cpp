#include "simulator/glonass.h"

#include <algorithm>
#include <cmath>

#include "simulator/simulator.h"
#include "simulator/text.h"
#include "simulator/zeit.h"
#include "simulator/zufall.h"

namespace jorv::simulator {

namespace {

// Values of the GLONASS interface document.
constexpr double gravitation = 3.986004418e14, aequator = 6378136.0, j2 = 1.0826257e-3, drehung = 7.292115e-5;
constexpr double satzabstand = 1800, schrittweite = 60;

Vektor beschleunigung(const Bewegung& b)
{
    const Vektor& p = b.ort;
    const double r2 = skalar(p, p), r = std::sqrt(r2);
    const double kern = gravitation / (r2 * r);
    const double abflachung = 1.5 * j2 * kern * aequator * aequator / r2;
    const double z2 = 5 * p.z * p.z / r2;
    const double quer = -kern - abflachung * (1 - z2) + drehung * drehung;
    return {quer * p.x + 2 * drehung * b.tempo.y, quer * p.y - 2 * drehung * b.tempo.x,
            (-kern - abflachung * (3 - z2)) * p.z};
}

Bewegung schritt(const Bewegung& b, double h)
{
    const auto weiter = [&b](double dt, const Bewegung& steigung) {
        return Bewegung{b.ort + dt * steigung.ort, b.tempo + dt * steigung.tempo};
    };
    const auto steigung = [](const Bewegung& s) { return Bewegung{s.tempo, beschleunigung(s)}; };
    const Bewegung k1 = steigung(b), k2 = steigung(weiter(h / 2, k1)), k3 = steigung(weiter(h / 2, k2)),
                   k4 = steigung(weiter(h, k3));
    return {b.ort + (h / 6) * (k1.ort + 2 * k2.ort + 2 * k3.ort + k4.ort),
            b.tempo + (h / 6) * (k1.tempo + 2 * k2.tempo + 2 * k3.tempo + k4.tempo)};
}

Bewegung fortsetzen(Bewegung b, double dauer)
{
    const double ganze = std::floor(std::abs(dauer) / schrittweite);
    const double h = std::copysign(schrittweite, dauer);
    for (double i = 0; i < ganze; ++i) b = schritt(b, h);
    const double rest = dauer - ganze * h;
    return rest == 0 ? b : schritt(b, rest);
}

/// A circular orbit at the instant 0, where the earth-fixed axes stand for the space-fixed ones.
Bewegung anfang(int platz, Zufall& z)
{
    const int ebene = platz / 8;
    const double a = 25508e3 + z.zwischen(-2e3, 2e3), i = 64.8 * grad + z.zwischen(-0.3, 0.3) * grad;
    const double knoten = (20 + 120 * ebene) * grad,
                 u = (45 * (platz % 8) + 15 * ebene) * grad + z.zwischen(-1, 1) * grad;
    const double v = std::sqrt(gravitation / a), su = std::sin(u), cu = std::cos(u);
    const double sk = std::sin(knoten), ck = std::cos(knoten), si = std::sin(i), ci = std::cos(i);
    const Vektor p{ck, sk, 0}, q{-sk * ci, ck * ci, si};
    Bewegung b{a * (cu * p + su * q), v * (cu * q - su * p)};
    b.tempo = b.tempo - Vektor{-drehung * b.ort.y, drehung * b.ort.x, 0};
    return b;
}

void auf_datei_runden(Glonasssatz& s)
{
    for (Vektor* v : {&s.bewegung.ort, &s.bewegung.tempo}) {
        for (double* wert : {&v->x, &v->y, &v->z}) *wert = 1000 * gedruckt(*wert / 1000);
    }
    s.uhr = gedruckt(s.uhr);
    s.uhrgang = gedruckt(s.uhrgang);
}

constexpr int kanaele[] = {1, -4, 5, 6, 1, -4, 5, 6, -2, -7, 0, -1, -2, -7, 0, -1, 4, -3, 3, 2, 4, -3, 3, 2};

}  // namespace

const Glonasssatz& Glonassbahn::naechster(double t) const
{
    const double stelle = std::round((t - saetze.front().t) / satzabstand);
    return saetze[static_cast<std::size_t>(std::clamp(stelle, 0.0, static_cast<double>(saetze.size() - 1)))];
}

Vektor Glonassbahn::ort(double t) const
{
    const Glonasssatz& s = naechster(t);
    return fortsetzen(s.bewegung, t - s.t).ort;
}

double Glonassbahn::uhr(double t) const
{
    const Glonasssatz& s = naechster(t);
    return s.uhr + s.uhrgang * (t - s.t);
}

std::vector<Glonassbahn> glonass_machen(const Szenario& szenario, double von, double bis)
{
    std::vector<Glonassbahn> alle;
    const double versatz = satzabstand / 2 + schaltsekunden(szenario.tag);
    const double erster = std::floor((von - versatz) / satzabstand) * satzabstand + versatz;
    for (int platz = 0; platz < 24; ++platz) {
        Zufall z(szenario.konstellation, {nr(Strom::konstellation), 'R', static_cast<std::uint64_t>(platz)});
        Bewegung b = fortsetzen(anfang(platz, z), erster);
        const double uhr = z.zwischen(-1e-4, 1e-4), gang = z.zwischen(-2e-12, 2e-12);
        Glonassbahn bahn;
        bahn.nummer = platz + 1;
        bahn.kanal = kanaele[platz];
        for (double t = erster; t < bis + satzabstand; t += satzabstand) {
            Glonasssatz s{t, b, 0, 0};
            if (szenario.wirkungen.satellitenuhren) s.uhr = uhr + gang * t, s.uhrgang = gang;
            auf_datei_runden(s);
            bahn.saetze.push_back(s);
            b = fortsetzen(b, satzabstand);
        }
        alle.push_back(std::move(bahn));
    }
    return alle;
}

}  // namespace jorv::simulator
