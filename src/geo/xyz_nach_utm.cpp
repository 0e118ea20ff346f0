#include "geo/xyz_nach_utm.h"

#include <algorithm>

#include "geo/koordtrans.h"

namespace jorv {

namespace {
constexpr std::int32_t system_nummer = 1, zone = 32, projektion = 3;
}

Fehler xyz_nach_utm(double X, double Y, double Z, double& Rechtswert, double& Hochwert)
{
    double breite = 0, laenge = 0, hoehe = 0;
    std::int32_t status = 0;
    GEZGEG(system_nummer, X, Y, Z, breite, laenge, hoehe, status);
    if (status != 0) return Fehler::gesetzt;
    GEGGKO(system_nummer, breite, laenge, zone, Rechtswert, Hochwert, projektion, status);
    return status != 0 ? Fehler::gesetzt : Fehler::keiner;
}

bool punkt_in_figur(const GEO_Punkt_Satz& figur, double Rechtswert, double Hochwert)
{
    const int anzahl = std::clamp(figur.Anzahl, 0, 4);
    if (anzahl < 3) return false;
    // Most rovers lie outside a figure's frame: they need no closer look.
    const auto [links, rechts] = std::minmax_element(figur.Rechtswert.begin(), figur.Rechtswert.begin() + anzahl);
    const auto [unten, oben] = std::minmax_element(figur.Hochwert.begin(), figur.Hochwert.begin() + anzahl);
    constexpr double rand = 0.01;
    if (Rechtswert < *links - rand || Rechtswert > *rechts + rand || Hochwert < *unten - rand ||
        Hochwert > *oben + rand)
        return false;
    Polygon ecken, vorbereitet;
    ecken.anzahl = anzahl;
    for (std::size_t i = 0; i < static_cast<std::size_t>(ecken.anzahl); ++i) {
        ecken.x[i] = figur.Rechtswert[i];
        ecken.y[i] = figur.Hochwert[i];
    }
    UMRPOL(ecken, vorbereitet);
    std::int32_t lage = 0, status = 0;
    UMRPIP(Rechtswert, Hochwert, vorbereitet, lage, status);
    return lage == 1 || lage == 2;
}

}  // namespace jorv
