#include "planung/figuren.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "planung/Beobachtungen.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

struct Figuren : testing::Test {
    Figuren()
    {
        rover(p.g, beobachtung("5501001a.14o", "08:00:00", "10:00:00"), 100, 100);
        const char* namen[] = {"0590001a.14o", "0591001a.14o", "0592001a.14o", "0593001a.14o", "0594001a.14o"};
        const double r[] = {0, 1000, 1000, 0, 500}, h[] = {0, 0, 1000, 1000, 500};
        for (std::size_t i = 0; i < 5; ++i) station(p.g, beobachtung(namen[i], "07:00:00", "11:00:00"), r[i], h[i]);
        p.g.Verfahren[1].LetztDatum = "";
    }
    void klicken(std::initializer_list<int> stationen)
    {
        for (const int s : stationen) geo_markierung(p.g, s);
    }
    Pruefstand p;
};

}  // namespace

TEST_F(Figuren, EinDreieckWirdMitDerErstenEckeGeschlossen)
{
    klicken({1, 2, 3});
    EXPECT_FALSE(p.g.geo_fertig);
    EXPECT_EQ(p.g.Verfahren[1].LetztDatum, "");
    klicken({1});
    ASSERT_EQ(p.g.GEO_Punkt.anzahl(), 1);
    const auto& f = p.g.GEO_Punkt[1];
    EXPECT_EQ(f.Anzahl, 3);
    EXPECT_EQ(f.Punkt[2], "0592");
    EXPECT_DOUBLE_EQ(f.Rechtswert[2], 1000);
    EXPECT_DOUBLE_EQ(f.Hochwert[2], 1000);
    EXPECT_TRUE(p.g.geo_fertig);
    EXPECT_EQ(p.g.ROVER_TOREL[1].Status, 1);
    EXPECT_EQ(p.g.Verfahren[1].LetztDatum, "01.12.2016 12:00:00");
    EXPECT_EQ(p.schirm.gepiept, 0);
    EXPECT_EQ(p.schirm.karte_gezeichnet, 4);
}

TEST_F(Figuren, KlicksDieNichtsAendernPiepen)
{
    struct Fall {
        std::initializer_list<int> vorher;
        int klick, ecken;
    };
    const Fall faelle[] = {{{1, 2}, 1, 2}, {{1, 2, 3}, 2, 3}, {{1, 2, 3, 4}, 5, 4}, {{1, 2, 3, 4}, 4, 4}};
    for (const auto& fall : faelle) {
        p.g.GEO_Punkt.leeren();
        p.g.geo_fertig = true;
        p.schirm.gepiept = 0;
        klicken(fall.vorher);
        klicken({fall.klick});
        EXPECT_EQ(p.schirm.gepiept, 1);
        EXPECT_EQ(p.g.GEO_Punkt[1].Anzahl, fall.ecken);
        EXPECT_FALSE(p.g.geo_fertig);
    }
}

TEST_F(Figuren, EineAbgebrocheneFigurBleibtUndDieNaechsteBeginntNeu)
{
    klicken({1, 2});
    p.g.geo_fertig = true;
    klicken({3});
    ASSERT_EQ(p.g.GEO_Punkt.anzahl(), 2);
    EXPECT_EQ(p.g.GEO_Punkt[1].Anzahl, 2);
    EXPECT_EQ(p.g.GEO_Punkt[2].Punkt[0], "0592");
}

TEST_F(Figuren, NachVerlustDerFigurenBeginntEinKlickEineNeue)
{
    klicken({1, 2});
    p.g.GEO_Punkt.leeren();
    klicken({3});
    EXPECT_EQ(p.g.GEO_Punkt.anzahl(), 1);
}

TEST_F(Figuren, LoeschenNimmtDieLetzteUndBeurteiltNeu)
{
    klicken({1, 2, 3, 1, 3, 4, 1, 3});
    ASSERT_EQ(p.g.GEO_Punkt.anzahl(), 2);
    klicken({5});
    m_geo_loeschen(p.g);
    EXPECT_TRUE(p.g.geo_fertig);
    m_geo_loeschen(p.g);
    EXPECT_EQ(p.g.GEO_Punkt.anzahl(), 1);
    EXPECT_EQ(p.g.ROVER_TOREL[1].Status, 1);
    m_geo_loeschen(p.g);
    EXPECT_EQ(p.g.ROVER_TOREL[1].Status, 0);
    EXPECT_TRUE(p.schirm.gezeigt.empty());
    m_geo_loeschen(p.g);
    EXPECT_EQ(p.schirm.einzige(), "Keine Definitionen vorhanden!");
    EXPECT_EQ(p.schirm.gezeigt[0].symbol, Symbol::info);
}

TEST_F(Figuren, FehlenderPlatzWirdGemeldet)
{
    constexpr auto ende = "evtl. Speicherplatzprobleme\n\nOffene Anwendungen schließen und erneut versuchen!";
    p.g.GEO_Punkt.grenze_setzen(0);
    klicken({1});
    EXPECT_TRUE(p.g.geo_fertig);
    EXPECT_EQ(p.schirm.einzige(),
              std::string("Dimensionierungsfehler! (14 in geo_markierung)\n    ReDim Preserve GEO_Punkt(1)\n") + ende);

    p.schirm.gezeigt.clear();
    p.g.GEO_Punkt.grenze_setzen(2);
    klicken({1, 2, 3, 1, 3});
    p.g.GEO_Punkt.grenze_setzen(0);
    m_geo_loeschen(p.g);
    EXPECT_EQ(
        p.schirm.einzige(),
        std::string("Dimensionierungsfehler!(1 in m_geo_loeschen_Click)\n    ReDim Preserve GEO_Punkt(1)\n") + ende);
}
