#include "geo/koordtrans.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include "geo/xyz_nach_utm.h"

namespace jorv {

namespace {

constexpr double a = 6378137.0, f = 1 / 298.257222101, e2 = f * (2 - f), grad = std::numbers::pi / 180;

void geozentrisch(double breite, double laenge, double hoehe, double& X, double& Y, double& Z)
{
    const double n = a / std::sqrt(1 - e2 * std::pow(std::sin(breite * grad), 2));
    X = (n + hoehe) * std::cos(breite * grad) * std::cos(laenge * grad);
    Y = (n + hoehe) * std::cos(breite * grad) * std::sin(laenge * grad);
    Z = (n * (1 - e2) + hoehe) * std::sin(breite * grad);
}

// Meridian arc from the equator by Simpson's rule, as an independent witness of the northing on the central meridian.
double meridianbogen(double breite)
{
    const int n = 2000;
    const auto m = [](double b) { return a * (1 - e2) / std::pow(1 - e2 * std::sin(b) * std::sin(b), 1.5); };
    double summe = 0;
    const double schritt = breite * grad / n;
    for (int i = 0; i <= n; ++i) summe += m(i * schritt) * (i == 0 || i == n ? 1 : i % 2 ? 4 : 2);
    return summe * schritt / 3;
}

struct Gitter {
    double r = 0, h = 0;
};
Gitter utm(double breite, double laenge, double hoehe = 0)
{
    double X, Y, Z;
    geozentrisch(breite, laenge, hoehe, X, Y, Z);
    Gitter g;
    EXPECT_FALSE(ist_fehler(xyz_nach_utm(X, Y, Z, g.r, g.h)));
    return g;
}

}  // namespace

TEST(Koordtrans, MittelmeridianIstDerVerkuerzteMeridianbogen)
{
    for (const double breite : {0.5, 48.0, 52.25, 55.0}) {
        const Gitter g = utm(breite, 9, 123.4);
        EXPECT_NEAR(g.r, 500000, 1e-4);
        EXPECT_NEAR(g.h, 0.9996 * meridianbogen(breite), 1e-4) << breite;
    }
}

TEST(Koordtrans, DieAbbildungIstWinkeltreuUndSpiegelgleich)
{
    for (const double laenge : {6.5, 8.0, 11.75}) {
        const double b = 51.5, d = 1e-5;
        const double n = a / std::sqrt(1 - e2 * std::pow(std::sin(b * grad), 2));
        const double m = a * (1 - e2) / std::pow(1 - e2 * std::pow(std::sin(b * grad), 2), 1.5);
        const Gitter o = utm(b, laenge), nord = utm(b + d, laenge), ost = utm(b, laenge + d);
        const double kn = std::hypot(nord.r - o.r, nord.h - o.h) / (m * d * grad);
        const double ko = std::hypot(ost.r - o.r, ost.h - o.h) / (n * std::cos(b * grad) * d * grad);
        EXPECT_NEAR(kn, ko, 1e-7);
        const double skalar = (nord.r - o.r) * (ost.r - o.r) + (nord.h - o.h) * (ost.h - o.h);
        EXPECT_NEAR(skalar, 0, 1e-5);
        const Gitter spiegel = utm(b, 18 - laenge);
        EXPECT_NEAR(o.r - 500000, 500000 - spiegel.r, 1e-4);
        EXPECT_NEAR(o.h, spiegel.h, 1e-4);
    }
}

TEST(Koordtrans, UmwandlungScheitertNurNaheDemErdmittelpunktUndBeiUnendlich)
{
    double r = 0, h = 0;
    const double unendlich = std::numeric_limits<double>::infinity(), nan = std::nan("");
    for (const auto& [x, y, z] : {std::array{1.0, 2.0, 3.0}, std::array{999.0, 0.0, 0.0}, std::array{nan, 1e6, 1e6},
                                  std::array{unendlich, 0.0, 0.0}, std::array{0.0, -unendlich, 0.0}})
        EXPECT_TRUE(ist_fehler(xyz_nach_utm(x, y, z, r, h))) << x;
    // Catalonia, Japan, the pole: far outside the zone, but data can be taken in.
    for (const auto& [x, y, z] : {std::array{4796983.5767, 160309.1177, 4187340.3773},
                                  std::array{-3976219.7, 3382372.5, 3652513.1}, std::array{0.0, 0.0, 6356752.0}})
        EXPECT_FALSE(ist_fehler(xyz_nach_utm(x, y, z, r, h))) << x;
    std::int32_t status = 7;
    DEFSYSTEM(1, 4, 2, status);
    EXPECT_EQ(status, 0);
    DEFSYSTEM(1, 5, 2, status);
    EXPECT_NE(status, 0);
}

TEST(PunktInFigur, InnenRandUndAussen)
{
    GEO_Punkt_Satz f4;
    f4.Anzahl = 4;
    f4.Rechtswert = {0, 100, 100, 0};
    f4.Hochwert = {0, 0, 100, 100};
    GEO_Punkt_Satz schleife = f4;  // self-crossing: two triangles meet in the middle
    schleife.Rechtswert = {0, 100, 0, 100};
    schleife.Hochwert = {0, 100, 100, 0};
    GEO_Punkt_Satz f2 = f4;
    f2.Anzahl = 2;
    struct Fall {
        const GEO_Punkt_Satz* figur;
        double r, h;
        bool innen;
    };
    const Fall faelle[] = {{&f4, 50, 50, true},        {&f4, 0, 50, true},        {&f4, 100, 100, true},
                           {&f4, -0.0009, 50, true},   {&f4, -0.002, 50, false},  {&f4, 150, 50, false},
                           {&f4, 50, 100.5, false},    {&schleife, 50, 90, true}, {&schleife, 50, 10, true},
                           {&schleife, 90, 50, false}, {&schleife, 50, 50, true}, {&f2, 50, 0, false}};
    for (const auto& fall : faelle)
        EXPECT_EQ(punkt_in_figur(*fall.figur, fall.r, fall.h), fall.innen) << fall.r << " " << fall.h;
}

}  // namespace jorv
