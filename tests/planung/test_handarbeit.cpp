#include "planung/handarbeit.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "planung/Beobachtungen.h"
#include "planung/gesamtuebersicht.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

// A rover from 10:00 to 11:30 with six station files, the first two of which only touch it.
struct Handarbeiten : testing::Test {
    Handarbeiten()
    {
        rover(p.g, beobachtung("5501001a.14o", "10:00:00", "11:30:00"), 100, 200);
        station(p.g, beobachtung("0589001a.14o", "08:00:00", "10:00:00"));
        station(p.g, beobachtung("0588001a.14o", "11:30:00", "12:00:00"));
        station(p.g, beobachtung("0590001a.14o", "09:00:00", "10:00:01"), 50, 300);
        station(p.g, beobachtung("0591001a.14o", "09:00:00", "12:00:00"), 150, 100);
        station(p.g, beobachtung("0592001b.14o", "09:00:00", "12:00:00"), 100, 200);
        for (const auto name : {"0593001a.14o", "0594001a.14o", "0595001a.14o"})
            station(p.g, beobachtung(name, "11:29:59", "12:00:00"), 100, 200);
        ROVER_TOREL_Satz t;
        t.ROVER_Dateiname = "5501001a.14o";
        t.Anzahl = 2;
        t.TOREL_Dateiname = {"0591001a.14o", "0589001a.14o", "", ""};
        t.Status = 2;
        t.Schutz = true;
        EXPECT_TRUE(p.g.ROVER_TOREL.anfuegen(t));
    }
    std::string farben() const
    {
        std::string text(1, "-ygr"[static_cast<int>(h.ROVER.farbe)]);
        for (const auto& z : h.Detail) text += "-ygr"[static_cast<int>(z.farbe)];
        return text;
    }
    Pruefstand p;
    Handarbeit h;
};

}  // namespace

TEST_F(Handarbeiten, BietetWahreUeberlappungenAn)
{
    ASSERT_EQ(handarbeit_oeffnen(p.g, "5501001a.14o", h), Fehler::keiner);
    EXPECT_EQ(farben(), "y-y----");
    EXPECT_EQ(h.Detail[1].Hinweis, " TOREL: 0590001a.14o Start: 01.01.2014 09:00:00 Ende: 01.01.2014 10:00:01");
    EXPECT_DOUBLE_EQ(h.ROVER.balken.von, 0.1);
    EXPECT_DOUBLE_EQ(h.ROVER.balken.bis, 0.9);
    EXPECT_DOUBLE_EQ(h.Detail[2].balken.von + h.Detail[2].balken.bis, 1);  // cut at both ends
    std::string marken;
    for (const auto& m : h.achse.marken(8)) marken += m.Text + " ";
    EXPECT_EQ(marken, "10:00 10:15 10:30 10:45 11:00 11:15 11:30 ");
    const Zeitachse mitte = h.achse.ausschnitt(0.5, 0.9);  // 10:45 to 11:30
    EXPECT_EQ(zeitmarke_text(mitte.zeit(0)) + uhrzeit_text(mitte.zeit(1)), "10:4511:30:00");
    EXPECT_EQ(mitte.raster(15).size(), 4u);
    ASSERT_EQ(mitte.raster(60).size(), 1u);
    EXPECT_NEAR(mitte.raster(60)[0], 1 / 3.0, 1e-9);
    const auto a = handarbeit_ausschnitt(h);
    EXPECT_EQ(a.Rechtswert_min + a.Rechtswert_max + a.Hochwert_min + a.Hochwert_max, 50 + 150 + 100 + 300);
}

TEST_F(Handarbeiten, KlicksWaehlenHoechstensVierEinerSession)
{
    ASSERT_EQ(handarbeit_oeffnen(p.g, "5501001a.14o", h), Fehler::keiner);
    handarbeit_klick(p.g, h, 3);
    EXPECT_TRUE(p.schirm.einzige().starts_with("Angeklickte TOREL-Datei passt in Day und/oder Session\nnicht"));
    for (const int zeile : {0, 1, 4, 5}) handarbeit_klick(p.g, h, zeile);
    EXPECT_EQ(farben(), "gyy-yy-");
    handarbeit_klick(p.g, h, 6);
    EXPECT_EQ(p.schirm.texte().back(), "Es können max. 4 TOREL-Stationen ausgewählt werden!");
    handarbeit_klick(p.g, h, 2);
    EXPECT_EQ(farben(), "gy--yy-");
    h.Schutz = false;
    handarbeit_ok(p.g, h);
    const auto& t = p.g.ROVER_TOREL[1];
    EXPECT_EQ(t.TOREL_Dateiname[0] + t.TOREL_Dateiname[2] + t.TOREL_Dateiname[3], "0590001a.14o0594001a.14o");
    EXPECT_EQ(verkettet(t.Anzahl, t.Status, t.Grund, t.Schutz ? 1 : 0, h.Knoten), "31005501001a.14o");
}

TEST_F(Handarbeiten, ZweiKandidatenReichenNie)
{
    for (int i = 0; i < 4; ++i) (void)p.g.OBS_S.entfernen(5), p.g.S_Punkt.entfernen(5);
    ASSERT_EQ(handarbeit_oeffnen(p.g, "5501001a.14o", h), Fehler::keiner);
    handarbeit_klick(p.g, h, 1);
    EXPECT_EQ(farben(), "ryy");
    handarbeit_ok(p.g, h);
    const auto& t = p.g.ROVER_TOREL[1];
    EXPECT_EQ(verkettet(t.Anzahl, t.Status, t.Grund, t.Schutz ? 1 : 0, h.Knoten), "23113");
}

TEST_F(Handarbeiten, FehlenderPlatzLaesstDasFensterLeer)
{
    const auto meldung = [&](const auto& engstelle) {
        Handarbeit voll;
        Gesamtuebersicht u;
        engstelle(voll, u);
        const bool gescheitert =
            ist_fehler(handarbeit_oeffnen(p.g, "5501001a.14o", voll)) != ist_fehler(gesamtuebersicht_oeffnen(p.g, u));
        EXPECT_TRUE(gescheitert && voll.Detail.anzahl() * u.zeit_s.anzahl() == 0);
        const std::string text = p.schirm.texte().back();
        return text.substr(0, text.find("\nevtl"));
    };
    EXPECT_EQ(meldung([](auto& a, auto&) { a.Detail.grenze_setzen(-1); }),
              "Dimensionierungsfehler! (2 in detail_menge)\n    ReDim Detail(1)");
    EXPECT_EQ(meldung([](auto& a, auto&) { a.Detail.grenze_setzen(1); }),
              "Dimensionierungsfehler! (3 in detail_menge)\n    ReDim Preserve Detail(2)");
    EXPECT_EQ(meldung([](auto& a, auto&) { a.pos_s.grenze_setzen(1); }),
              "Dimensionierungsfehler! (4 in zeitfenster)\n    ReDim pos_s(6)");
    EXPECT_EQ(meldung([](auto&, auto& u) { u.zeit_s.grenze_setzen(-1); }),
              "Dimensionierungsfehler! (5 in detail_menge)\n    ReDim zeit_s(1)");
    EXPECT_EQ(meldung([](auto&, auto& u) { u.zeit_s.grenze_setzen(2); }),
              "Dimensionierungsfehler! (6 in detail_menge)\n    ReDim Preserve zeit_s(3)");
    EXPECT_EQ(meldung([](auto&, auto& u) { u.pos_s.grenze_setzen(1); }),
              "Dimensionierungsfehler!(9 in zeitfenster)\n    ReDim pos_s(9)");
}

TEST(Gesamtuebersicht, ZeigtVerfahrenTagUndFremdeAchse)
{
    Pruefstand p("1");
    rover(p.g, beobachtung("5501001a.14o", "10:00:00", "11:00:00"), 0, 0);
    rover(p.g, beobachtung("5502002a.14o", 90000, 93600, 2), 0, 0);
    station(p.g, beobachtung("0590001a.14o", "09:05:00", "12:00:00"));
    fremde(p.g, beobachtung("virt5501.14o", "10:30:00", "12:30:00"), 0, 0);
    ASSERT_TRUE(p.g.tage.anfuegen(1) && p.g.tage.anfuegen(2));
    const struct {
        std::string_view modus;
        std::int16_t zeit_tag;
        std::string_view titel, von, bis;
        int r, s, v;
    } faelle[] = {{"1", 0, "Gesamtverfahren", "9:05", "2:00", 2, 1, 0},
                  {"1", 2, "für Tag: 2", "1:00", "2:00", 1, 0, 0},
                  {"3", 1, "für Tag: 1", "10:30", "12:30", 1, 0, 1},
                  {"4", 1, "für Tag: 1", "10:00", "11:00", 1, 0, 0}};
    for (const auto& f : faelle) {
        p.g.Verfahrensmodus = f.modus;
        Gesamtuebersicht u;
        ASSERT_EQ(m_grafik_zeiten(p.g, f.zeit_tag, u), Fehler::keiner);
        EXPECT_EQ(utf8_aus_1252(u.Titel), verkettet("Zeitenübersicht ", f.titel));
        EXPECT_EQ(zeitmarke_text(u.frueheste) + zeitmarke_text(u.spaeteste), verkettet(f.von, f.bis)) << f.modus;
        EXPECT_EQ(verkettet(u.zeit_r.anzahl(), u.zeit_s.anzahl(), u.zeit_v.anzahl(), u.pos_s.letztes()),
                  verkettet(f.r, f.s, f.v, f.r + f.s + f.v - 1));
        EXPECT_EQ(u.zeit_r[1].balken.von == 0, f.zeit_tag != 0);  // mode F: cut at the axis
    }
}
