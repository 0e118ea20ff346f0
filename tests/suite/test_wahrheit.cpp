// Against simulated observations whose truth is known: the simulator shares no orbit and no atmosphere with the suite.
#include <gtest/gtest.h>

#include "simulator/beispiel.h"
#include "simulator/szenario_text.h"
#include "suite/Pruefdaten.h"

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
