#include "karte/ansicht.h"

#include <gtest/gtest.h>

#include "karte/grenzzug.h"
#include "karte/massstab.h"

using namespace jorv;

namespace {

Ansicht ansicht(const Ausschnitt& wunsch, double breite = 200, double hoehe = 100)
{
    Ansicht a;
    a.groesse_setzen(breite, hoehe);
    a.wunsch_setzen(wunsch);
    EXPECT_TRUE(a.einpassen());
    return a;
}

void gleich(const Ausschnitt& a, const Ausschnitt& b)
{
    EXPECT_NEAR(a.links, b.links, 1e-6);
    EXPECT_NEAR(a.rechts, b.rechts, 1e-6);
    EXPECT_NEAR(a.unten, b.unten, 1e-6);
    EXPECT_NEAR(a.oben, b.oben, 1e-6);
}

}  // namespace

TEST(Ansicht, PasstOhneVerzerrungEin)
{
    const auto hoch = ansicht({0, 100, 0, 100});
    EXPECT_DOUBLE_EQ(hoch.Faktor(), 100.0 / 1500);
    gleich(hoch.fenster(), {-50, 150, 0, 100});
    const auto breit = ansicht({0, 400, 0, 100});
    EXPECT_DOUBLE_EQ(breit.Faktor(), 400.0 / 3000);
    gleich(breit.fenster(), {0, 400, -50, 150});
    EXPECT_DOUBLE_EQ(breit.symbol_radius(), 8);
    const Bildort mitte = breit.bild({100, 100});
    EXPECT_DOUBLE_EQ(mitte.x, 50);
    EXPECT_DOUBLE_EQ(mitte.y, 25);
    EXPECT_DOUBLE_EQ(breit.welt(mitte).Hochwert, 100);
}

TEST(Ansicht, BewegungenHaltenWasSieVersprechen)
{
    auto a = ansicht({0, 200, 0, 100});
    ASSERT_TRUE(a.zoomen({50, 50}, 2));
    gleich(a.fenster(), {25, 125, 25, 75});
    ASSERT_TRUE(a.verschieben(20, -10));
    gleich(a.fenster(), {15, 115, 20, 70});
    gleich(a.wunsch(), a.fenster());
    a.groesse_setzen(100, 200);
    EXPECT_DOUBLE_EQ(a.je_meter(), 2);
    gleich(a.fenster(), {40, 90, -5, 95});
    ASSERT_TRUE(a.verkleinern());
    gleich(a.fenster(), {15, 115, -55, 145});
    EXPECT_DOUBLE_EQ(a.je_meter(), 1);
}

TEST(Ansicht, WasKeinMassstabIstWirdAbgelehnt)
{
    auto a = ansicht({0, 200, 0, 100});
    const Ausschnitt vorher = a.fenster();
    EXPECT_FALSE(a.zoomen({0, 0}, 1e9));
    EXPECT_FALSE(a.zoomen({0, 0}, 0));
    a.wunsch_setzen({5, 5, 7, 7});
    EXPECT_FALSE(a.einpassen());
    gleich(a.fenster(), vorher);
    int halbiert = 0;
    while (halbiert < 100 && a.verkleinern()) ++halbiert;
    EXPECT_LT(halbiert, 30);
    EXPECT_FALSE(Ansicht().einpassen());
}

TEST(Massstab, HatEineRundeLaenge)
{
    struct Fall {
        double fuenftel, laenge;
        std::string_view text;
    };
    const Fall faelle[] = {{12.3, 10, "10 m "},      {16, 20, "20 m "},        {10.5, 10, "10 m "},
                           {96, 10, "10 m "},        {956, 900, "900 m "},     {1499, 1000, "1 km "},
                           {26999, 30000, "30 km "}, {97000, 10000, "10 km "}, {65999, 60000, "60 km "}};
    for (const auto& fall : faelle) {
        const auto m = massstab_zu_breite(fall.fuenftel * 5);
        ASSERT_TRUE(m) << fall.fuenftel;
        EXPECT_EQ(m->laenge, fall.laenge);
        EXPECT_EQ(m->text, fall.text);
    }
    EXPECT_FALSE(massstab_zu_breite(50));
}

TEST(Beschneiden, LaesstUebrigWasDasBildKreuzt)
{
    const auto a = ansicht({0, 200, 0, 100});
    struct Fall {
        Bildort von, bis;
        bool da;
        Bildort neu_von, neu_bis;
    };
    const Fall faelle[] = {{{10, 10}, {20, 20}, true, {10, 10}, {20, 20}},
                           {{-1e9, 50}, {1e9, 50}, true, {-8, 50}, {208, 50}},
                           {{50, 1e9}, {50, -1e9}, true, {50, 108}, {50, -8}},
                           {{-100, 0}, {0, -100}, false, {}, {}},
                           {{300, 10}, {300, 20}, false, {}, {}}};
    for (auto fall : faelle) {
        EXPECT_EQ(beschneiden(a, fall.von, fall.bis), fall.da);
        if (!fall.da) continue;
        EXPECT_NEAR(fall.von.x, fall.neu_von.x, 1e-3);
        EXPECT_NEAR(fall.von.y, fall.neu_von.y, 1e-3);
        EXPECT_NEAR(fall.bis.x, fall.neu_bis.x, 1e-3);
        EXPECT_NEAR(fall.bis.y, fall.neu_bis.y, 1e-3);
    }
}
