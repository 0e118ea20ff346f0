#include "simulator/atmosphaere.h"

#include <algorithm>
#include <cmath>

namespace jorv::simulator {

namespace {

constexpr double erdradius = 6371.0, schalenhoehe = 400.0;  // km

struct Ebene {
    double nord = 0, ost = 0;  // km
};

Ebene abstand(Geographisch mitte, double breite, double laenge)
{
    return {erdradius * (breite - mitte.breite), erdradius * std::cos(mitte.breite) * (laenge - mitte.laenge)};
}

/// Herring's continued fraction, 1 in the zenith.
double abbildung(double sinus, double a, double b, double c)
{
    return (1 + a / (1 + b / (1 + c))) / (sinus + a / (sinus + b / (sinus + c)));
}

}  // namespace

double elektronen(const Ionosphaere& modell, Geographisch mitte, Geographisch ort, Richtung richtung, double t)
{
    if (modell.vtec == 0) return 0;
    const double zenit_oben = std::asin(erdradius / (erdradius + schalenhoehe) * std::cos(richtung.hoehe));
    const double winkel = pi / 2 - richtung.hoehe - zenit_oben;  // at the earth's centre
    const double sb =
        std::sin(ort.breite) * std::cos(winkel) + std::cos(ort.breite) * std::sin(winkel) * std::cos(richtung.azimut);
    const double breite = std::asin(std::clamp(sb, -1.0, 1.0));
    const double laenge =
        ort.laenge + std::asin(std::clamp(std::sin(winkel) * std::sin(richtung.azimut) / std::cos(breite), -1.0, 1.0));
    const Ebene e = abstand(mitte, breite, laenge);
    const double azimut = modell.richtung * grad;
    const double weg = e.nord * std::cos(azimut) + e.ost * std::sin(azimut);
    const double welle = modell.welle * std::sin(2 * pi * (weg / modell.wellenlaenge - t / (60 * modell.periode)));
    const double senkrecht = modell.vtec + modell.gradient_nord * e.nord + modell.gradient_ost * e.ost + welle;
    return std::max(senkrecht, 0.0) / std::cos(zenit_oben);
}

double ionosphaere_laufzeit(double tecu, double f)
{
    return 40.3e16 * tecu / (f * f);
}

double troposphaere_laufzeit(const Troposphaere& modell, Geographisch mitte, Geographisch ort, double hoehenwinkel)
{
    if (!modell.an) return 0;
    const double h = ort.hoehe, sinus = std::sin(hoehenwinkel);
    const double druck = 1013.25 * std::pow(1 - 2.2557e-5 * h, 5.2568);
    const double trocken = 0.0022768 * druck / (1 - 0.00266 * std::cos(2 * ort.breite) - 0.00028e-3 * h);
    const Ebene e = abstand(mitte, ort.breite, ort.laenge);
    const double feucht =
        modell.feucht * std::exp(-h / 2000) + 1e-3 * (modell.gradient_nord * e.nord + modell.gradient_ost * e.ost);
    return trocken * abbildung(sinus, 1.24e-3, 2.90e-3, 62.6e-3) + feucht * abbildung(sinus, 0.55e-3, 1.45e-3, 45e-3);
}

}  // namespace jorv::simulator
