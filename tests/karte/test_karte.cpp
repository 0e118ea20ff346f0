#include "karte/karte.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "karte/einzelkarte.h"
#include "planung/Beobachtungen.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

// Four stations at the corners of 10 km, a rover in the middle that they all cover; 100 m to a logical unit.
struct Kartentest : testing::Test {
    Kartentest() : karte(p.g)
    {
        const char* namen[] = {"0590", "0591", "0592", "0593"};
        const double r[] = {20000, 30000, 30000, 20000}, h[] = {20000, 20000, 30000, 30000};
        for (std::size_t i = 0; i < 4; ++i) {
            station(p.g, beobachtung(std::string(namen[i]) + "001a.14o", 0, 20000), r[i], h[i]);
            TOREL_Punkt_Satz satz;
            satz.PKZ = namen[i];
            satz.Rechtswert = r[i];
            satz.Hochwert = h[i];
            (void)p.g.TOREL_Punkt.anfuegen(satz);
        }
        rover(p.g, beobachtung("5501001a.14o", 4000, 12000), 25000, 25000);
        p.g.Grafik_Fenster_gelesen = true;
        p.g.Y_min = p.g.X_min = 0;
        p.g.Y_max = p.g.X_max = 50000;
        p.g.Faktor = 1;
        karte.groesse_setzen(500, 500);
    }
    Bildort ort(double r, double h) const { return karte.ansicht().bild({r, h}); }
    Bildort ecke(int i) const { return ort(p.g.S_Punkt[i].Rechtswert, p.g.S_Punkt[i].Hochwert); }
    void ziehen(const Bildort& von, const Bildort& bis)
    {
        karte.links_druecken(von);
        karte.bewegen(bis);
        karte.links_loslassen(bis);
    }
    void klicken(int station)
    {
        karte.links_druecken(ecke(station));
        karte.links_loslassen(ecke(station));
    }
    Pruefstand p;
    Karte karte;
};

}  // namespace

TEST_F(Kartentest, ZeigtDenAusschnittDesVerfahrens)
{
    EXPECT_EQ(karte.ansicht().fenster(), (Ausschnitt{0, 50000, 0, 50000}));
    EXPECT_DOUBLE_EQ(p.g.Faktor, 50000.0 / 7500);
    karte.m_grafik_orginal();
    EXPECT_EQ(karte.ansicht().fenster(), (Ausschnitt{19500, 30500, 19500, 30500}));
    p.g.TOREL_Punkt[3].Rechtswert = 40000;  // the original size follows the catalogue, a chosen view does not
    karte.grafik_zeichnen(true);
    EXPECT_EQ(karte.ansicht().fenster(), (Ausschnitt{19000, 41000, 14000, 36000}));
    karte.verschieben(0, 1);
    p.g.TOREL_Punkt[3].Rechtswert = 30000;
    karte.grafik_zeichnen(true);
    EXPECT_EQ(karte.ansicht().fenster().breite(), 22000);
    p.g.Verfahrensnummer = "002";  // one without a kept view, then one with
    karte.zoomen({0, 0}, 2);
    karte.grafik_zeichnen(true);
    EXPECT_EQ(karte.ansicht().fenster(), (Ausschnitt{19500, 30500, 19500, 30500}));
    p.g.Grafik_Fenster_gelesen = true;
    p.g.Y_min = p.g.X_min = 10, p.g.Y_max = p.g.X_max = 20;
    karte.groesse_setzen(600, 600);
    EXPECT_EQ(p.g.Y_min, 10);
    karte.grafik_zeichnen(true);
    EXPECT_EQ(karte.ansicht().fenster(), (Ausschnitt{10, 20, 10, 20}));
}

TEST_F(Kartentest, EinGummibandZoomtEinKlickNicht)
{
    EXPECT_FALSE(p.g.vergroessert);
    ziehen({100, 100}, {102, 102});  // a shaking hand
    EXPECT_EQ(karte.ansicht().fenster().breite(), 50000);
    ziehen({310, 190}, {190, 310});
    EXPECT_EQ(karte.ansicht().fenster(), (Ausschnitt{19000, 31000, 19000, 31000}));
    EXPECT_TRUE(p.g.vergroessert);
    EXPECT_TRUE(p.g.geo_fertig);
    karte.m_grafik_verkleinern();
    EXPECT_EQ(karte.ansicht().fenster(), (Ausschnitt{13000, 37000, 13000, 37000}));
    karte.zoomen({250, 250}, 200);  // 15 m are 62.5 logical units
    ziehen({10, 10}, {72, 200});
    EXPECT_NEAR(karte.ansicht().fenster().breite(), 120, 1e-6);
    karte.links_druecken({10, 10});
    karte.bewegen({200, 200});
    EXPECT_TRUE(karte.zoom_aktiv());
    karte.zoom_abbrechen();
    karte.links_loslassen({200, 200});
    EXPECT_NEAR(karte.ansicht().fenster().breite(), 120, 1e-6);
    ziehen({100, 100}, {200, 163});
    EXPECT_NEAR(karte.ansicht().fenster().breite(), 24, 1e-6);
}

TEST_F(Kartentest, EinZoomDerAufEinerStationEndetIstAuchEinKlick)
{
    ziehen({250, 250}, ecke(2));
    ASSERT_EQ(p.g.GEO_Punkt.anzahl(), 1);
    EXPECT_EQ(p.g.GEO_Punkt[1].Punkt[0], "0591");
    EXPECT_LT(karte.ansicht().fenster().breite(), 10000);
}

TEST_F(Kartentest, ZeigtDieLichterDerEntstehendenFigur)
{
    const auto formen = [&](const Bildort& zeiger) {
        karte.bewegen(zeiger);
        std::string arten;
        for (const auto& s : karte.ueberlagerung()) arten += "LZVRKS"[s.form.index()];
        return arten;
    };
    EXPECT_EQ(formen({5, 5}), "");
    EXPECT_EQ(formen(ecke(1)), "KS");  // ring and label
    klicken(1);
    EXPECT_EQ(formen({5, 5}), "L");
    klicken(2);
    EXPECT_EQ(formen(ecke(2)), "LLS");
    EXPECT_EQ(formen(ecke(3)), "KZKLLS");  // the third corner would give the rover a green light
    p.g.OBS_S[3].Startzeit_Stunde = 2;     // it would come too late
    EXPECT_EQ(formen({5, 5}), "LL");
    EXPECT_EQ(formen(ecke(3)), "KVZZKLLS");
    EXPECT_EQ(p.g.ROVER_TOREL.anzahl(), 0);
    klicken(3);
    EXPECT_EQ(formen(ecke(1)), "KVZZKLLS");
    klicken(1);
    EXPECT_EQ(p.g.ROVER_TOREL[1].Status, 2);
    EXPECT_EQ(formen({5, 5}), "");
}

TEST_F(Kartentest, NenntDenPunktUnterDemZeiger)
{
    const auto marke = [&](const Bildort& zeiger) {
        karte.bewegen(zeiger);
        return karte.lbl_pkz() ? karte.lbl_pkz()->text : "";
    };
    const Bildort a = ecke(1);
    EXPECT_EQ(marke({a.x + 4, a.y - 4}), "  0590  ");
    EXPECT_EQ(karte.zeigertext(), "R 20400 H 20400");
    EXPECT_EQ(karte.rechts_loslassen({a.x - 4, a.y}), 1);
    EXPECT_EQ(marke({a.x + 4.1, a.y}), "");
    EXPECT_EQ(karte.rechts_loslassen({a.x, a.y + 4.1}), 0);
    EXPECT_EQ(marke(ort(25000, 25000)), "  5501 ");
    EXPECT_EQ(karte.lbl_pkz()->hintergrund, (Farbe{255, 192, 192}));
    p.g.R_Punkt[1].Punktkennzeichen.clear();
    EXPECT_EQ(marke(ort(25000, 25000)), "");
    p.g.Verfahrensmodus = "3";
    EXPECT_EQ(marke(a), "");
    fremde(p.g, beobachtung("9001001a.14o", 0, 7200), 20000, 20000);
    EXPECT_EQ(marke(a), "  9001001a.14o  ");
    karte.verlassen();
    EXPECT_EQ(karte.zeigertext(), "");
}

TEST_F(Kartentest, MarkiertEineBasislinieBisZumNaechstenZeichnen)
{
    rover(p.g, beobachtung("5502001a.14o", 0, 7200), 22000, 22000);
    (void)p.g.BASISLINIE.anfuegen({"5501", "5501001a.14o", "5502", "5502001a.14o"});
    EXPECT_FALSE(karte.basislinie_markieren("5501-5502"));
    EXPECT_TRUE(karte.basislinie_markieren("5501001a.14o-5502001a.14o"));
    EXPECT_EQ(karte.ueberlagerung().size(), 2u);
    karte.grafik_zeichnen(false);
    EXPECT_TRUE(karte.ueberlagerung().empty());
}

TEST_F(Kartentest, DieKleineKarteFasstDenROVERUndSeineStationen)
{
    Handarbeit h;
    ASSERT_EQ(handarbeit_oeffnen(p.g, "5501001a.14o", h), Fehler::keiner);
    Einzelkarte klein(p.g, h);
    EXPECT_TRUE(klein.bild().empty());
    klein.groesse_setzen(110, 110);
    EXPECT_EQ(klein.ansicht().fenster(), (Ausschnitt{19500, 30500, 19500, 30500}));
    handarbeit_klick(p.g, h, 3);
    const auto bild = [&] {
        std::string text;
        for (const auto& s : klein.bild()) {
            const auto* k = std::get_if<Kreise>(&s.form);
            text += verkettet(name(s.ebene), k ? k->orte.size() : 0, " ");
        }
        return text;
    };
    EXPECT_EQ(bild(),
              "hintergrund0 massstab0 katalog4 zuordnung0 station3 ecke1 rover1 pkz0 pkz0 pkz0 pkz0 massstab0 ");
    klein.bewegen(klein.ansicht().bild({30000, 30000}));
    EXPECT_EQ(klein.lbl_pkz()->text, "  0592  ");
    p.g.TOREL_Punkt.leeren();  // the files of a station tell its name as well
    EXPECT_EQ(klein.lbl_pkz()->text, "  0592  ");
    klein.verlassen();
    EXPECT_TRUE(klein.ueberlagerung().empty());
}
