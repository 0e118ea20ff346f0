#include "suite/netz_abgleich.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "suite/netz_interpolation.h"

namespace jorv::suite {

namespace {

constexpr std::size_t EPOCHEN = 40, SATELLITEN = 7;

// A station whose phases drift apart by a wave of each satellite's own, metres of L1 less L2.
struct Himmel {
    double welle = 0, rauschen = 0;
    std::size_t schlupf_bei = EPOCHEN;  // epoch from which a satellite's phase has slipped
    bool l2 = true;
};

RinexBeobachtung station(const Himmel& h, double takt = 30)
{
    RinexBeobachtung d;
    std::mt19937 zufall(3);
    std::normal_distribution<double> rauschen(0.0, 1.0);
    for (std::size_t t = 0; t < EPOCHEN; ++t) {
        Epoche e{
            {static_cast<std::int64_t>(takt * static_cast<double>(t)), 0.0}, 0, d.messungen.size(), SATELLITEN, {}};
        for (std::size_t j = 0; j < SATELLITEN; ++j) {
            const auto wer = static_cast<double>(j), wann = static_cast<double>(t);
            const double strecke = 2.2e7 + 1e5 * wer + 300.0 * wann;
            const double iono = h.welle * std::sin(1.7 * wer * wer + 0.15 * wann) + h.rauschen * rauschen(zufall);
            Messung m;
            m.satellit = static_cast<int>(j + 1);
            m.wert[static_cast<std::size_t>(Art::L1)] =
                (strecke + iono) * FREQUENZ1 / LICHT + (j == 2 && t >= h.schlupf_bei ? 5.0 : 0.0);
            if (h.l2) m.wert[static_cast<std::size_t>(Art::L2)] = strecke * FREQUENZ2 / LICHT + 17.0;
            d.messungen.push_back(m);
        }
        d.epochen.push_back(std::move(e));
    }
    return d;
}

}  // namespace

TEST(Netzabgleich, findet_den_anteil_den_der_rover_sieht)
{
    struct Fall {
        const char* name;
        Himmel rover;
        double netz;  // wave of the network
        double von, bis;
    };
    for (const Fall& f : {Fall{"alles", {.welle = 0.02, .rauschen = 0.001}, 0.02, 0.97, 1.0},
                          Fall{"die Haelfte", {.welle = 0.01, .rauschen = 0.001}, 0.02, 0.47, 0.55},
                          Fall{"nichts", {.rauschen = 0.001}, 0.02, 0.0, 0.05},
                          Fall{"verkehrt", {.welle = -0.01, .rauschen = 0.001}, 0.02, 0.0, 0.0},
                          Fall{"mehr", {.welle = 0.03, .rauschen = 0.001}, 0.02, 1.0, 1.0},
                          Fall{"im Rauschen", {.rauschen = 0.02}, 0.001, 0.9, 1.0},
                          Fall{"nach einem Sprung", {.welle = 0.01, .schlupf_bei = 20}, 0.02, 0.47, 0.55},
                          Fall{"ohne L2", {.rauschen = 0.001, .l2 = false}, 0.02, 1.0, 1.0},
                          Fall{"ohne Netzwirkung", {.rauschen = 0.001}, 0.0, 1.0, 1.0}}) {
        const double anteil = netzanteil(station(f.rover), station({}), station({.welle = f.netz}));
        EXPECT_GE(anteil, f.von - 1e-9) << f.name;
        EXPECT_LE(anteil, f.bis + 1e-9) << f.name;
    }
}

TEST(Netzabgleich, ohne_gemeinsame_epochen_gilt_das_netz)
{
    EXPECT_EQ(netzanteil(station({}), station({}), station({.welle = 0.02}, 7)), 1.0);
    EXPECT_EQ(netzanteil({}, station({}), station({.welle = 0.02})), 1.0);
}

TEST(Netzabgleich, der_neutrale_teil_bleibt)
{
    const Korrektur k{3, 0.021, 0.034};
    for (const double anteil : {0.0, 0.4, 1.0}) {
        const Korrektur a = k.mit_anteil(anteil);
        EXPECT_NEAR(a.neutral(), k.neutral(), 1e-12);
        EXPECT_NEAR(a.l1 - a.l2, anteil * (k.l1 - k.l2), 1e-12);
    }
}

}  // namespace jorv::suite
