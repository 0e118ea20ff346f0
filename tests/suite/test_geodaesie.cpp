#include "suite/geodaesie.h"

#include <gtest/gtest.h>

#include <GeographicLib/Constants.hpp>
#include <GeographicLib/Geocentric.hpp>
#include <GeographicLib/TransverseMercatorExact.hpp>

#include "suite/troposphaere.h"

namespace jorv::suite {

namespace {

constexpr double A = 6378137.0, F = 1.0 / 298.257222101;

struct Punkt {
    double breite, laenge, hoehe;  // degrees, metres
    int zone;
};

}  // namespace

TEST(Geodaesie, stimmt_mit_einer_fremden_rechnung_ueberein)
{
    const GeographicLib::Geocentric erde(A, F);
    const GeographicLib::TransverseMercatorExact mercator(A, F, 0.9996);
    for (const Punkt& p : {Punkt{51.2, 7.1, 120, 32}, Punkt{47.3, 15.0, 3000, 32}, Punkt{35.2, 139.6, 70, 54},
                           Punkt{-33.9, 18.4, 0, 34}, Punkt{0.01, -179.9, 5, 60}, Punkt{79.9, 12.0, 9000, 33}}) {
        Xyz xyz;
        erde.Forward(p.breite, p.laenge, p.hoehe, xyz.x, xyz.y, xyz.z);
        const Geographisch g = geographisch(xyz);
        EXPECT_NEAR(g.breite / GRAD, p.breite, 1e-12);
        EXPECT_NEAR(g.laenge / GRAD, p.laenge, 1e-12);
        EXPECT_NEAR(g.hoehe, p.hoehe, 1e-6);
        double ost = 0, nord = 0;
        mercator.Forward(6.0 * p.zone - 183.0, p.breite, p.laenge, ost, nord);
        const Utm eben = utm(g, p.zone);
        EXPECT_NEAR(eben.rechtswert, ost + 500000.0, 1e-4) << p.zone;
        EXPECT_NEAR(eben.hochwert, nord + (p.breite < 0 ? 1e7 : 0.0), 1e-4) << p.zone;
    }
}

// Zenith delays of the standard atmosphere and mapping functions against the values of their publications' order.
TEST(Geodaesie, luft_verzoegert_wie_die_normalatmosphaere)
{
    const Geographisch meer{45.0 * GRAD, 0.1, 0.0}, berg{45.0 * GRAD, 0.1, 2000.0};
    EXPECT_NEAR(zenitlaufzeit(meer).hydrostatisch, 2.307, 0.001);
    EXPECT_NEAR(zenitlaufzeit(berg).hydrostatisch / zenitlaufzeit(meer).hydrostatisch, 0.7846, 0.002);
    EXPECT_NEAR(zenitlaufzeit(meer).feucht, 0.10, 0.02);
    EXPECT_NEAR(Niell(meer, 28).bei(90 * GRAD).hydrostatisch, 1.0, 1e-12);
    EXPECT_NEAR(Niell(meer, 28).bei(30 * GRAD).hydrostatisch, 1.9923, 0.001);
    EXPECT_NEAR(Niell(meer, 28).bei(5 * GRAD).hydrostatisch, 10.15, 0.05);
    EXPECT_NEAR(Niell(meer, 28).bei(5 * GRAD).feucht, 10.75, 0.05);
    EXPECT_GT(Niell(berg, 28).bei(5 * GRAD).hydrostatisch, Niell(meer, 28).bei(5 * GRAD).hydrostatisch);
    EXPECT_EQ(Luft(Troposphaerenmodell::voll, meer, 28).laufzeit(-0.01), 0.0);
}

}  // namespace jorv::suite
