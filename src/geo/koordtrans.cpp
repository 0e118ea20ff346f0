#include "geo/koordtrans.h"

#include <GeographicLib/Constants.hpp>
#include <GeographicLib/Geocentric.hpp>
#include <GeographicLib/TransverseMercator.hpp>
#include <algorithm>
#include <cmath>
#include <exception>

namespace jorv {

namespace {

constexpr std::int32_t system_nummer = 1, ellipsoid_grs80 = 4, art_geozentrisch = 2, projektion_utm = 3;
constexpr double massstab = 0.9996, rechtswert_zuschlag = 500000.0;
constexpr double kleinster_radius = 1000.0;
constexpr double grenznaehe = 0.001;  // a border point may lie a millimetre beside the line

// GRS80: half axis and flattening.
constexpr double a_grs80 = 6378137.0, f_grs80 = 1 / 298.257222101;

double abstand_zur_strecke(double px, double py, double ax, double ay, double bx, double by)
{
    const double dx = bx - ax, dy = by - ay, laenge2 = dx * dx + dy * dy;
    const double t = laenge2 == 0 ? 0 : std::clamp(((px - ax) * dx + (py - ay) * dy) / laenge2, 0.0, 1.0);
    return std::hypot(px - (ax + t * dx), py - (ay + t * dy));
}

}  // namespace

void DEFSYSTEM(std::int32_t system, std::int32_t ellipsoid, std::int32_t art, std::int32_t& status)
{
    status = system == system_nummer && ellipsoid == ellipsoid_grs80 && art == art_geozentrisch ? 0 : 1;
}

void GEZGEG(std::int32_t system, double X, double Y, double Z, double& breite, double& laenge, double& hoehe,
            std::int32_t& status)
{
    status = 1;
    if (system != system_nummer || !std::isfinite(X) || !std::isfinite(Y) || !std::isfinite(Z)) return;
    const double radius = std::hypot(X, Y, Z);
    if (radius < kleinster_radius || !std::isfinite(radius)) return;
    const GeographicLib::Geocentric erde(a_grs80, f_grs80);
    erde.Reverse(X, Y, Z, breite, laenge, hoehe);
    status = std::isfinite(breite) && std::isfinite(laenge) ? 0 : 1;
}

void GEGGKO(std::int32_t system, double breite, double laenge, std::int32_t zone, double& Rechtswert, double& Hochwert,
            std::int32_t projektion, std::int32_t& status)
{
    status = 1;
    if (system != system_nummer || projektion != projektion_utm || std::fabs(breite) > 90) return;
    const GeographicLib::TransverseMercator abbildung(a_grs80, f_grs80, massstab);
    double x = 0, y = 0;
    abbildung.Forward(6.0 * zone - 183.0, breite, laenge, x, y);
    if (!std::isfinite(x) || !std::isfinite(y)) return;
    Rechtswert = x + rechtswert_zuschlag;
    Hochwert = y;
    status = 0;
}

void UMRPOL(const Polygon& eingabe, Polygon& vorbereitet)
{
    const auto anzahl = std::clamp(eingabe.anzahl, 0, static_cast<std::int32_t>(eingabe.x.size()));
    vorbereitet.anzahl = anzahl;
    std::copy_n(eingabe.x.begin(), anzahl, vorbereitet.x.begin());
    std::copy_n(eingabe.y.begin(), anzahl, vorbereitet.y.begin());
}

void UMRPIP(double Rechtswert, double Hochwert, const Polygon& vorbereitet, std::int32_t& lage, std::int32_t& status)
{
    lage = 0;
    status = vorbereitet.anzahl < 3 ? 1 : 0;
    if (status != 0) return;
    bool innen = false;
    const auto n = static_cast<std::size_t>(vorbereitet.anzahl);
    for (std::size_t i = 0, j = n - 1; i < n; j = i++) {
        const double xi = vorbereitet.x[i], yi = vorbereitet.y[i], xj = vorbereitet.x[j], yj = vorbereitet.y[j];
        if (abstand_zur_strecke(Rechtswert, Hochwert, xi, yi, xj, yj) <= grenznaehe) {
            lage = 2;
            return;
        }
        if ((yi > Hochwert) != (yj > Hochwert) && Rechtswert < (xj - xi) * (Hochwert - yi) / (yj - yi) + xi)
            innen = !innen;
    }
    lage = innen ? 1 : 0;
}

}  // namespace jorv
