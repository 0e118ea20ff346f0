// Against simulated observations whose truth is known: the simulator shares no orbit and no atmosphere with the suite.
#include <gtest/gtest.h>

#include "simulator/beispiel.h"
#include "simulator/szenario_text.h"
#include "simulator/zufallsnetz.h"
#include "suite/Pruefdaten.h"
#include "suite/netz_interpolation.h"

namespace jorv::suite {

namespace {

simulator::Szenario beispiel()
{
    simulator::Szenario szenario;
    std::string meldung;
    EXPECT_TRUE(simulator::szenario_lesen(simulator::beispiel_text(), szenario, meldung)) << meldung;
    return szenario;
}

void schreiben(const Pruefordner& p, const simulator::Szenario& szenario)
{
    std::string meldung;
    ASSERT_TRUE(simulator::schreiben(szenario, p.temp.host(), meldung)) << meldung;
    ASSERT_TRUE(simulator::antex_schreiben(szenario, p.pfad("001.ATX"), meldung)) << meldung;
}

Xyz wahr(const simulator::Punkt& punkt)
{
    return {punkt.ort.x, punkt.ort.y, punkt.ort.z};
}

}  // namespace

// Nothing but geometry: the shifted station repeats what is measured at the place itself. (Clocks of two receivers
// would make them measure at two instants.)
TEST(Wahrheit, verschiebung_trifft_die_beobachtungen_am_ort)
{
    simulator::Szenario s = beispiel();
    s.wirkungen = {};
    s.wirkungen.satellitenuhren = true;
    for (simulator::Punkt& punkt : s.punkte) {
        punkt.naeherung = {};
        punkt.antennenhoehe = 0.0;
    }
    const Pruefordner p;
    schreiben(p, s);
    const std::string rover = "55061670.16o";  // 72 km from the station
    ASSERT_EQ(p.wav2({rover, "0596"}, Troposphaerenmodell::ohne).status, 0);
    std::string grund;
    const auto virt = beobachtung_lesen(p.text("virt167.16o"), Umfang::alles, grund);
    const auto echt = beobachtung_lesen(p.text(rover), Umfang::alles, grund);
    ASSERT_TRUE(virt && echt);
    std::size_t verglichen = 0;
    double groesste = 0.0;
    for (const Epoche& a : virt->epochen)
        for (const Epoche& b : echt->epochen) {
            if (std::abs(abstand(a.zeit, b.zeit)) > 0.01) continue;
            std::map<int, double> unterschied;
            for (std::size_t i = 0; i < a.anzahl; ++i)
                for (std::size_t k = 0; k < b.anzahl; ++k) {
                    const Messung &x = virt->messungen[a.erste + i], &y = echt->messungen[b.erste + k];
                    if (x.satellit == y.satellit) unterschied[x.satellit] = x[Art::C1] - y[Art::C1];
                }
            for (const auto& [satellit, wert] : unterschied) {
                groesste = std::max(groesste, std::abs(wert));
                ++verglichen;
            }
        }
    EXPECT_GT(verglichen, 500u);
    EXPECT_LT(groesste, 0.0021);  // two files rounded to millimetres
}

TEST(Wahrheit, beispielnetz_auf_den_zentimeter)
{
    NUR_MIT_LOESER();
    const simulator::Szenario s = beispiel();
    const Pruefordner p;
    schreiben(p, s);
    for (const simulator::Punkt& punkt : s.punkte) {
        if (!punkt.pkz.starts_with("55")) continue;
        const std::string rover = simulator::dateiname(s, punkt, 'o');
        ASSERT_EQ(p.wav2({rover, "0583,0590,0591,0593,0596,0598", "+PRO", "+E", "+A001.ATX"}).status, 0) << rover;
        const Lauf lauf = p.wa2({"virt167.16o", rover, "+ACF001.ATX", "-e10"});
        ASSERT_EQ(lauf.status, 0) << lauf.ausgabe;
        EXPECT_TRUE(p.wort("typ").starts_with("Fixed")) << rover;
        EXPECT_EQ(p.wort("marke"), punkt.name);
        SCOPED_TRACE(rover);
        expect_nahe(p.rover(), wahr(punkt), 15.0, 35.0);
    }
}

// Under a strong ionosphere the network gives what one station can't, and a station that doesn't fit is told and left
// out.
TEST(Wahrheit, netz_fuehrt_durch_die_ionosphaere_und_weist_falsche_stationen_ab)
{
    NUR_MIT_LOESER();
    simulator::Szenario s = beispiel();
    s.wirkungen.ionosphaere = {30.0, -0.036, 0.018, 0.5, 200, 20, 150};
    std::erase_if(s.punkte, [](const auto& p) {
        return p.pkz != "5501" && p.pkz != "0590" && p.pkz != "0591" && p.pkz != "0593";
    });
    for (simulator::Punkt& p : s.punkte) {
        p.von = 9 * 3600.0 - (p.pkz == "5501" ? 0 : 1800);
        p.bis = 10 * 3600.0 + (p.pkz == "5501" ? 0 : 1800);
        p.takt = 30;
    }
    const simulator::Punkt& rover = s.punkte.back();
    const std::string datei = simulator::dateiname(s, rover, 'o');
    struct Fall {
        const char* name;
        double daneben, antenne;  // metres by which the place of station 0591 is wrong, and its antenna's height
        bool abgelehnt, netz;
        double lage_mm;
        std::string stationen = "0590,0591,0593";
        double takt = 30;    // of the nearest station; the others' corrections are carried over between their epochs
        double versatz = 0;  // seconds by which all stations lie beside the full minute, every 15 then
    };
    for (const Fall& f : {Fall{"gut", 0, 0, false, true, 5}, Fall{"hohe Antenne", 0, 1.3, false, true, 5},
                          Fall{"Ort", 0.17, 0, true, true, 25}, Fall{"grober Ort", 25, 0, true, true, 25},
                          Fall{"keine andere", 0.17, 0, true, false, 60, "0590,0591"},
                          Fall{"dichte Daten", 0, 0, false, true, 5, "0590,0591,0593", 5},
                          Fall{"neben der Minute", 0, 0, false, true, 6, "0590,0591,0593", 15, 7}}) {
        SCOPED_TRACE(f.name);
        simulator::Szenario falsch = s;
        for (simulator::Punkt& p : falsch.punkte) {
            p.von += f.versatz;
            if (p.pkz == "0590" || f.versatz > 0) p.takt = f.takt;
            if (p.pkz == "0591") p.naeherung = {0, f.daneben, 0}, p.antennenhoehe = f.antenne;
        }
        const Pruefordner p;
        schreiben(p, falsch);
        const Lauf lauf = p.wav2({datei, f.stationen, "+A001.ATX"});
        ASSERT_EQ(lauf.status, 0) << lauf.ausgabe;
        EXPECT_EQ(lauf.meldet("WARNUNG: Die Station 0591 passt nicht"), f.abgelehnt) << lauf.protokoll;
        EXPECT_EQ(lauf.meldet("im Netz mit"), f.netz);
        EXPECT_EQ(lauf.protokoll.find("nicht benutzt") == std::string::npos, f.netz);
        ASSERT_EQ(p.wa2({"virt167.16o", datei, "+ACF001.ATX"}).status, 0);
        EXPECT_TRUE(p.wort("typ").starts_with("Fixed"));
        expect_nahe(p.rover(), wahr(rover), f.lage_mm, 60.0);
    }
}

// One station alone tells how thick the ionosphere is and how it leans, and two what it does across their line.
TEST(Wahrheit, ionosphaere_aus_den_phasen_der_naechsten_station)
{
    NUR_MIT_LOESER();
    struct Fall {
        double nord, ost;        // change of the 15 units of content per km
        double ohne, mit, zwei;  // mm: at least without the layer, at most with it and with two stations
    };
    for (const Fall& f : {Fall{0, 0, 9, 2, 2}, Fall{-0.016, 0.008, 4, 4, 3}}) {
        SCOPED_TRACE(f.nord);
        simulator::Szenario s = beispiel();
        s.wirkungen.ionosphaere = {15, f.nord, f.ost, 0.0, 200, 20, 150};  // no wave, which a plane doesn't follow
        std::erase_if(s.punkte, [](const auto& p) { return p.pkz != "5501" && p.pkz != "0590" && p.pkz != "0591"; });
        for (simulator::Punkt& p : s.punkte) {
            p.von = 9 * 3600.0 - (p.pkz == "5501" ? 0 : 1800);
            p.bis = 10 * 3600.0 + (p.pkz == "5501" ? 0 : 1800);
            p.takt = 30;
        }
        const simulator::Punkt& rover = s.punkte.back();
        const std::string datei = simulator::dateiname(s, rover, 'o');
        const Pruefordner p;
        schreiben(p, s);
        const auto abweichung = [&](const char* stationen, bool ionosphaere) {
            const Lauf lauf = p.wav2({datei, stationen, "+A001.ATX"}, Troposphaerenmodell::voll, ionosphaere);
            EXPECT_EQ(lauf.status, 0) << lauf.ausgabe;
            const std::string_view marke = "ber 0590  ";
            const auto stelle = lauf.protokoll.find(marke) + marke.size();
            EXPECT_NEAR(zahl_lesen(mitte(lauf.protokoll, stelle + 1, 4)), 15 * 0.1624, 0.35) << lauf.protokoll;
            EXPECT_EQ(p.wa2({"virt167.16o", datei, "+ACF001.ATX", "+TL1"}).status, 0);
            const Enu d = abweichung_mm(p.rover(), wahr(rover));
            return std::hypot(d.e, d.n);
        };
        EXPECT_GT(abweichung("0590", false), f.ohne);
        EXPECT_LT(abweichung("0590", true), f.mit);
        EXPECT_LT(abweichung("0590,0591", true), f.zwei);
    }
}

// What the ionosphere leaves in L1 the second frequency tells, unless L1 alone is asked for.
TEST(Wahrheit, zweite_frequenz_nimmt_die_ionosphaere_aus_l1)
{
    NUR_MIT_LOESER();
    simulator::Szenario s = beispiel();
    s.wirkungen.ionosphaere = {15, -0.016, 0.008, 0.15, 200, 20, 150};
    std::erase_if(s.punkte, [](const auto& p) { return p.pkz != "5501" && p.pkz != "0590"; });
    for (simulator::Punkt& p : s.punkte) p.von = 9 * 3600.0, p.bis = 10 * 3600.0, p.takt = 30;
    const simulator::Punkt& rover = s.punkte.back();
    const std::string datei = simulator::dateiname(s, rover, 'o');
    const Pruefordner p;
    schreiben(p, s);
    ASSERT_EQ(p.wav2({datei, "0590", "+A001.ATX"}).status, 0);
    for (const std::string& basis : {simulator::dateiname(s, s.punkte.front(), 'o'), std::string("virt167.16o")}) {
        const auto lage = [&](const char* art) {
            EXPECT_EQ(p.wa2({basis, datei, "+ACF001.ATX", art}).status, 0);
            EXPECT_EQ(p.wort("typ"), "FixedL1");
            const Enu d = abweichung_mm(p.rover(), wahr(rover));
            return std::hypot(d.e, d.n);
        };
        const double l1 = lage("+TL1"), beide = lage("+L1");
        EXPECT_LT(beide, 3.5) << basis;
        EXPECT_LT(beide, 0.5 * l1) << basis;
    }
}

namespace {

const Ort MASTER({3844000, 650000, 5030000});

// A place so many metres east and north of the master.
Xyz bei(double e, double n)
{
    const auto& h = MASTER.horizont;
    const auto teil = [&](std::size_t i) { return e * h[0][i] + n * h[1][i]; };
    return MASTER.xyz + Xyz{teil(0), teil(1), teil(2)};
}

}  // namespace

TEST(Wahrheit, abstand_vom_netz_zaehlt_von_der_figur_der_stationen)
{
    const std::vector<Xyz> dreieck = {bei(30e3, 0), bei(0, 20e3)}, linie = {bei(40e3, 0)};
    struct Fall {
        const std::vector<Xyz>& stationen;
        Xyz ort;
        double km;
    };
    for (const Fall& f :
         {Fall{dreieck, bei(5e3, 5e3), 0}, Fall{dreieck, bei(-7e3, 5e3), 7}, Fall{dreieck, bei(40e3, 0), 10},
          Fall{linie, bei(10e3, 8e3), 8}, Fall{linie, bei(-3e3, 4e3), 5}, Fall{linie, bei(20e3, 0), 0}})
        EXPECT_NEAR(abstand_vom_netz(MASTER, f.ort, f.stationen) / 1000, f.km, 0.01);
}

TEST(Wahrheit, korrektur_zwischen_zwei_epochen_liegt_dazwischen)
{
    const std::vector<Korrekturepoche> alle = {
        {0, {{5, 0.01, 0.02}}}, {30, {{5, 0.04, 0.05}, {6, 1, 1}}}, {180, {{5, 0, 0}, {6, 0, 0}}}};
    const auto l1 = [&](std::int64_t sekunde, int satellit) -> double {
        const auto k = korrektur_bei(alle, {sekunde, 0.0}, satellit);
        return k ? k->l1 : -1.0;
    };
    EXPECT_NEAR(l1(0, 5), 0.01, 1e-12);
    EXPECT_NEAR(l1(10, 5), 0.02, 1e-12);
    EXPECT_EQ(l1(10, 6), -1.0) << "der Satellit fehlt davor";
    EXPECT_EQ(l1(100, 5), -1.0) << "zu weit auseinander";
    EXPECT_EQ(l1(180, 6), 0.0);
    EXPECT_EQ(l1(181, 6), -1.0);
}

TEST(Wahrheit, ebene_gibt_an_den_stationen_deren_wert)
{
    struct Fall {
        std::vector<std::array<double, 2>> stationen;
        std::array<double, 2> ort;
        std::vector<double> gewichte;
    };
    const std::vector<Fall> faelle = {
        {{{30e3, 0}, {0, 20e3}}, {30e3, 0}, {1, 0}},
        {{{30e3, 0}, {0, 20e3}}, {15e3, 10e3}, {0.5, 0.5}},
        {{{30e3, 0}, {0, 20e3}}, {0, 0}, {0, 0}},
        {{{40e3, 0}}, {10e3, 8e3}, {0.25}},
    };
    for (const Fall& f : faelle) {
        std::vector<Xyz> orte;
        for (const auto& s : f.stationen) orte.push_back(bei(s[0], s[1]));
        const auto g = ebenengewichte(MASTER, bei(f.ort[0], f.ort[1]), orte);
        ASSERT_EQ(g.size(), f.gewichte.size());
        for (std::size_t k = 0; k < g.size(); ++k) EXPECT_NEAR(g[k], f.gewichte[k], 1e-3);
    }
}

// Short spans under a strong ionosphere that the solver fixes wrongly on L1, by decimetres and metres and with ratios
// up to 16: the second frequency doesn't follow, or four satellites are all that is left.
TEST(Wahrheit, falsche_ganze_zahlen_fallen_auf)
{
    NUR_MIT_LOESER();
    static constexpr const char* WENIGE = "zu wenige Satelliten";  // the network has cost the others
    struct Fall {
        std::uint64_t saat;
        bool virtuell;
        int ab, minuten;
        const char* grund = "tigt nicht L1, ";
    };
    for (const Fall& f : {Fall{3008, false, 53, 5}, Fall{5012, false, 6, 5}, Fall{3026, true, 1, 30, WENIGE}}) {
        const simulator::Szenario s = simulator::zufallsnetz(f.saat, simulator::unruhe(f.saat));
        const Pruefordner p;
        std::string meldung;
        ASSERT_TRUE(simulator::schreiben(s, p.temp.host(), meldung)) << meldung;
        const std::string rover = simulator::dateiname(s, s.punkte[0], 'o');
        ASSERT_TRUE(!f.virtuell || p.wav2({rover, "0001,0002,0003"}).status == 0);
        const std::string basis =
            f.virtuell ? "virt" + rover.substr(4, 3) + rover.substr(8) : simulator::dateiname(s, s.punkte[1], 'o');
        const Lauf lauf = p.wa2({basis, rover, verkettet("-M", f.ab), verkettet("-N", 60 - f.minuten - f.ab)});
        ASSERT_EQ(lauf.status, 0) << lauf.ausgabe;
        SCOPED_TRACE(lauf.protokoll);
        EXPECT_NE(lauf.protokoll.find(f.grund), std::string::npos);
        if (p.wort("typ") != "FloatDGNSS") expect_nahe(p.rover(), wahr(s.punkte[0]), 50.0, 200.0);
    }
}

// A strong, wavy ionosphere over the long way: L1 must not be believed, however the solver reports it.
TEST(Lang_Wahrheit, gestoerte_ionosphaere_gibt_nie_ein_falsches_l1)
{
    NUR_MIT_LOESER();
    simulator::Szenario s = beispiel();
    s.wirkungen.ionosphaere = {40.0, 0.10, 0.06, 0.8, 120, 15, 45};
    const Pruefordner p;
    schreiben(p, s);
    for (const simulator::Punkt& punkt : s.punkte) {
        if (!punkt.pkz.starts_with("55")) continue;
        const std::string rover = simulator::dateiname(s, punkt, 'o');
        for (const bool virtuell : {true, false}) {
            const std::string basis = virtuell ? "virt167.16o" : "05981670.16o";
            ASSERT_TRUE(!virtuell || p.wav2({rover, "0583,0590,0591,0593,0596,0598"}).status == 0);
            ASSERT_EQ(p.wa2({basis, rover, "+ACF001.ATX"}).status, 0);
            SCOPED_TRACE(rover + " " + basis + " " + p.wort("typ"));
            if (p.wort("typ") == "FloatDGNSS") continue;
            expect_nahe(p.rover(), wahr(punkt), 60.0, 200.0);
        }
    }
}

}  // namespace jorv::suite
