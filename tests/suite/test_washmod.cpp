// The network's model and the index of the ionosphere: planes that are known, and networks of the simulator whose
// gradient is set.
#include "suite/washmod.h"

#include <gtest/gtest.h>

#include "simulator/beispiel.h"
#include "simulator/szenario_text.h"
#include "suite/Pruefdaten.h"
#include "suite/wasoft.h"

namespace jorv::suite {

namespace {

const Ort MASTER({3844000, 650000, 5030000});

Xyz bei(double ost, double nord)
{
    Xyz p = MASTER.xyz;
    const std::array<double, 2> um = {ost, nord};
    for (std::size_t i = 0; i < 2; ++i) {
        const auto& h = MASTER.horizont[i];
        p = p + Xyz{um[i] * h[0], um[i] * h[1], um[i] * h[2]};
    }
    return p;
}

// A station whose residuals lie on planes of its own for each satellite, with a clock that all share.
Hilfsstation station(double ost, double nord, const std::vector<Modellzeile>& ebenen, double uhr)
{
    constexpr double GAMMA = FREQUENZ1 * FREQUENZ1 / (FREQUENZ2 * FREQUENZ2);
    Hilfsstation s{"0001", bei(ost, nord), {}};
    Paarepoche e{86400, {}};
    for (const Modellzeile& z : ebenen) {
        const double neutral = 1e-6 * (z.neutral.nord * nord + z.neutral.ost * ost) + uhr;
        const double ion = 1e-6 * (z.ionosphaere.nord * nord + z.ionosphaere.ost * ost);
        e.reste.push_back({z.satellit, neutral - ion, neutral - GAMMA * ion});
    }
    s.paar.epochen = {e};
    return s;
}

const Zeitspanne TAG{{86400, 0.0}, {172800, 0.0}};

// Four stations of the example for an hour and a half, the rover 0583 among them, the ionosphere as given.
double index_bei(double staerke)
{
    simulator::Szenario s;
    std::string meldung;
    EXPECT_TRUE(simulator::szenario_lesen(simulator::beispiel_text(), s, meldung)) << meldung;
    s.wirkungen.ionosphaere = {9 * staerke, -0.02 * staerke, 0.01 * staerke, 0, 200, 20, 0};
    s.wirkungen.mehrweg = 0;
    s.wirkungen.phasenrauschen = 0.0005;
    std::erase_if(s.punkte, [](const auto& p) {
        return p.pkz != "0583" && p.pkz != "0590" && p.pkz != "0591" && p.pkz != "0593";
    });
    for (simulator::Punkt& p : s.punkte) p.von = 8 * 3600.0, p.bis = 9.5 * 3600.0;
    const Pruefordner p;
    EXPECT_TRUE(simulator::schreiben(s, p.temp.host(), meldung)) << meldung;
    EXPECT_TRUE(simulator::antex_schreiben(s, p.pfad("001.ATX"), meldung)) << meldung;
    fs::copy_file(p.pfad("05831670.16o"), p.pfad("58301670.16o"));
    Protokoll protokoll;
    const Worte worte = {"1670", "0590,0591,0593", "+k", "+Vvirt,58301670.16o", "+A001.ATX", "+C001.COO"};
    EXPECT_EQ(wasoft(worte, p.ordner, {}, p.uhr, protokoll), 0) << protokoll.text();
    Protokoll ausgabe;
    EXPECT_EQ(washmod({"model.wam", "+Si"}, p.ordner, ausgabe), 0) << ausgabe.text();
    EXPECT_EQ(p.text("model.i95"), ausgabe.text());
    EXPECT_NE(ausgabe.text().find("\r\n15.06.2016 08-09"), std::string::npos) << ausgabe.text();
    const auto modell = modell_lesen(p.text("model.wam"));
    const auto stunden = modell ? i95(*modell) : std::vector<Stundenindex>{};
    EXPECT_EQ(stunden.size(), 2u);
    if (stunden.empty()) return 0;
    EXPECT_EQ(stunden[0].epochen, 120u);
    EXPECT_GE(stunden[0].satelliten, 5u);
    return stunden[0].i95;
}

}  // namespace

TEST(Washmod, bekannte_ebenen_kommen_zurueck)
{
    const std::vector<Modellzeile> ebenen = {
        {{}, 3, 0, {0.1, -0.2}, {1, 2}}, {{}, 7, 0, {-0.7, 0.4}, {-3, 0.5}}, {{}, 31, 0, {2, 0}, {0, -6}}};
    const std::vector<Hilfsstation> drei = {station(30e3, 2e3, ebenen, 12.0), station(-8e3, 25e3, ebenen, -77.0),
                                            station(5e3, -40e3, ebenen, 0.3)};
    for (const std::size_t anzahl : {2u, 3u}) {
        const auto zeilen =
            netzmodell(MASTER, {drei.begin(), drei.begin() + static_cast<std::ptrdiff_t>(anzahl)}, {}, TAG);
        // Without orbits all stand alike, and the first is what the others are held against.
        const auto gelesen = modell_lesen(modelltext("Netz", zeilen));
        ASSERT_TRUE(gelesen && gelesen->size() == 2);
        for (std::size_t i = 0; i < 2; ++i) {
            const Modellzeile &ist = (*gelesen)[i], &soll = ebenen[i + 1], &bezug = ebenen[0];
            EXPECT_EQ(ist.satellit, soll.satellit);
            EXPECT_EQ(ist.zeit, TAG.von);
            EXPECT_NEAR(ist.neutral.nord, soll.neutral.nord - bezug.neutral.nord, 0.01);
            EXPECT_NEAR(ist.neutral.ost, soll.neutral.ost - bezug.neutral.ost, 0.01);
            EXPECT_NEAR(ist.ionosphaere.nord, soll.ionosphaere.nord - bezug.ionosphaere.nord, 0.01);
            EXPECT_NEAR(ist.ionosphaere.ost, soll.ionosphaere.ost - bezug.ionosphaere.ost, 0.01);
        }
    }
    EXPECT_TRUE(netzmodell(MASTER, {drei[0]}, {}, TAG).empty());
    EXPECT_TRUE(netzmodell(MASTER, {drei[0], station(60e3, 4e3, ebenen, 0)}, {}, TAG).empty());  // on one line
    EXPECT_TRUE(netzmodell(MASTER, drei, {}, {TAG.bis, TAG.bis}).empty());
    // A satellite that one station has not fixed is in no plane.
    auto luecke = drei;
    luecke[1].paar.epochen[0].reste.pop_back();
    EXPECT_EQ(netzmodell(MASTER, luecke, {}, TAG).size(), 1u);
}

TEST(Washmod, fuenf_von_hundert_duerfen_groesser_sein)
{
    std::vector<Modellzeile> zeilen;
    for (int i = 1; i <= 100; ++i)
        zeilen.push_back({{7200 + 30 * (i % 50), 0}, i % 7, 90 * GRAD, {9, 9}, {0.03 * i, 0.04 * i}});
    zeilen.push_back({{10800, 0}, 1, 0, {}, {3, 4}});  // at the horizon the slope is weighed down
    const auto stunden = i95(zeilen);
    ASSERT_EQ(stunden.size(), 2u);
    EXPECT_NEAR(stunden[0].i95, 4.75, 1e-9);
    EXPECT_EQ(stunden[0].stunde, 2);
    EXPECT_EQ(stunden[0].epochen, 50u);
    EXPECT_EQ(stunden[0].satelliten, 7u);
    EXPECT_NEAR(stunden[1].i95, 5 * std::sqrt(1 - std::pow(6371.0 / 6821.0, 2)), 1e-9);
}

TEST(Washmod, index_steigt_mit_dem_gefaelle_der_ionosphaere)
{
    const double einfach = index_bei(1), dreifach = index_bei(3);
    // 0.022 TECU per km are 3.6 ppm on L1 in the zenith; what two satellites have in common drops out.
    EXPECT_GT(einfach, 0.9);
    EXPECT_LT(einfach, 4.5);
    EXPECT_NEAR(dreifach / einfach, 3.0, 0.2);
}

TEST(Washmod, sagt_woran_es_liegt)
{
    const Pruefordner p;
    p.schreiben("leer.wam", "% Netz\r\n");
    p.schreiben("kaputt.wam", "% Netz\r\n15.06.2016 08:00:00 G05   45.00     1.000     1.000     1.000\r\n");
    for (const auto& [worte, meldung] :
         {std::pair<Worte, const char*>{{"fehlt.wam", "+Si"}, "die Datei fehlt.wam konnte nicht ge"},
          {{"leer.wam", "+Si"}, "die Datei leer.wam ist keine Modelldatei"},
          {{"kaputt.wam", "+Si"}, "die Datei kaputt.wam ist keine Modelldatei"},
          {{"leer.wam", "+Sx"}, "washmod DATEI +Si"},
          {{"leer.wam"}, "washmod DATEI +Si"}}) {
        Protokoll protokoll;
        p.schreiben("fehlt.i95", "alt");
        EXPECT_EQ(washmod(worte, p.ordner, protokoll), 1);
        EXPECT_NE(protokoll.text().find(meldung), std::string::npos) << protokoll.text();
        EXPECT_TRUE(protokoll.text().starts_with("ERROR: washmod: "));
        EXPECT_EQ(p.da("fehlt.i95"), worte[0] != "fehlt.wam");
    }
}

}  // namespace jorv::suite
