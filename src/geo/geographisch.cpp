#include "geo/geographisch.h"

#include <GeographicLib/Geodesic.hpp>
#include <GeographicLib/TransverseMercator.hpp>
#include <cmath>
#include <cstdint>

#include "geo/koordtrans.h"

namespace jorv {

namespace {

constexpr double a_grs80 = 6378137.0, f_grs80 = 1 / 298.257222101;
constexpr double massstab = 0.9996, rechtswert_zuschlag = 500000.0, viertel = 1e7;

}  // namespace

std::optional<Geographisch> geographisch_aus_xyz(double X, double Y, double Z)
{
    Geographisch ort;
    std::int32_t status = 0;
    GEZGEG(1, X, Y, Z, ort.breite, ort.laenge, ort.hoehe, status);
    if (status != 0) return std::nullopt;
    return ort;
}

std::optional<Geographisch> geographisch_aus_utm(int zone, double Rechtswert, double Hochwert)
{
    if (!(std::fabs(Rechtswert) < viertel) || !(std::fabs(Hochwert) < viertel)) return std::nullopt;
    Geographisch ort;
    GeographicLib::TransverseMercator(a_grs80, f_grs80, massstab)
        .Reverse(6.0 * zone - 183.0, Rechtswert - rechtswert_zuschlag, Hochwert, ort.breite, ort.laenge);
    if (!std::isfinite(ort.breite) || !std::isfinite(ort.laenge)) return std::nullopt;
    return ort;
}

double entfernung(const Geographisch& von, const Geographisch& nach)
{
    double meter = 0;
    GeographicLib::Geodesic(a_grs80, f_grs80).Inverse(von.breite, von.laenge, nach.breite, nach.laenge, meter);
    return meter;
}

}  // namespace jorv
