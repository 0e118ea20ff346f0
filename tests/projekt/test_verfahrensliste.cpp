#include "projekt/verfahrensliste.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "projekt/verfahrenstabelle.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

fs::path einstellungsdatei(const Pruefstand& p)
{
    return p.ordner.wurzel() / "einstellungen" / "JorvPlus.INI";
}

Profil einstellungen(const Pruefstand& p)
{
    return Profil(lesen(einstellungsdatei(p)));
}

Verfahren_Satz eintrag(std::string_view nummer, std::string_view name)
{
    Verfahren_Satz v;
    v.Nummer = nummer;
    v.Name = name;
    v.Pfad = verkettet("Z:\\v\\", nummer);
    v.ErstDatum = "01.02.2003";
    v.LetztDatum = "04.05.2006 07:08:09";
    v.Modus = "2";
    v.Antenne = "ATX";
    return v;
}

std::string als_text(const Verfahren_Satz& v)
{
    return verkettet(v.Nummer, "|", v.Name, "|", v.Pfad, "|", v.Modus, "|", v.ErstDatum, "|", v.LetztDatum, "|",
                     v.Antenne);
}

}  // namespace

TEST(Verfahrensliste, KommtMitLueckenUndLeerenFeldernZurueck)
{
    Pruefstand p;
    schreiben(einstellungsdatei(p), "[START]\r\nEditor=vi\r\n[VERFAHREN-Name]\r\n003=Drittes\r\n001=\r\n");
    p.g.Verfahren.leeren();
    (void)p.g.Verfahren.anfuegen(eintrag("002", "Zweites"));
    (void)p.g.Verfahren.anfuegen(eintrag("999", "Letztes"));
    ASSERT_EQ(Verfahrensliste_sichern(p.g), Fehler::keiner);
    EXPECT_EQ(einstellungen(p).wert("START", "Editor"), "vi");
    const std::string zweites = als_text(p.g.Verfahren[1]);

    AlleVerfahernLaden(p.g, einstellungen(p));
    ASSERT_EQ(p.g.Verfahren.anzahl(), 3);
    EXPECT_EQ(als_text(p.g.Verfahren[1]), zweites);
    EXPECT_EQ(als_text(p.g.Verfahren[2]), "003|Drittes|||||");
    EXPECT_EQ(p.g.Verfahren[3].Nummer, "999");
}

TEST(Verfahrensliste, EineVonAnderenVergebeneNummerWirdNichtUeberschrieben)
{
    Pruefstand p;
    Profil datei;
    datei.setzen("VERFAHREN-Name", "001", "Fremdes");
    datei.setzen("VERFAHREN-Pfad", "001", "Z:\\fremd");
    datei.setzen("VERFAHREN-Name", "002", "Neues");
    Verfahrensliste_eintragen(p.g, datei);
    EXPECT_EQ(datei.wert("VERFAHREN-Pfad", "001"), "Z:\\fremd");
    Verfahrensliste_auffrischen(p.g, datei);
    ASSERT_EQ(p.g.Verfahren.anzahl(), 2);
    EXPECT_EQ(p.g.Verfahren[1].Name, "Fremdes");
    EXPECT_EQ(p.g.Verfahren[2].Name, "Neues");
}

TEST(Verfahrensliste, LoeschenNimmtDieSechsSchluesselUndNurDieseWeg)
{
    Pruefstand p;
    (void)p.g.Verfahren.anfuegen(eintrag("002", "Zweites"));
    (void)p.g.Verfahren.anfuegen(eintrag("003", "Drittes"));
    ASSERT_EQ(Verfahrensliste_sichern(p.g), Fehler::keiner);
    Verfahren_loeschen(p.g, "002");
    Verfahren_loeschen(p.g, "777");
    ASSERT_EQ(p.g.Verfahren.anzahl(), 2);
    EXPECT_EQ(p.g.Verfahren[2].Name, "Drittes");
    const std::string text = lesen(einstellungsdatei(p));
    EXPECT_EQ(text.find("002="), std::string::npos);
    const Profil rest(text);
    for (const char* sektion : {"Name", "Pfad", "Modus", "ErstDatum", "LetztDatum", "Antenne"})
        EXPECT_TRUE(rest.hat(verkettet("VERFAHREN-", sektion), "003")) << sektion;
    EXPECT_TRUE(p.schirm.gezeigt.empty());
}

TEST(Verfahrensliste, FehlenderPlatzUndFehlenderOrdnerWerdenGemeldet)
{
    constexpr auto ende = "evtl. Speicherplatzprobleme\n\nOffene Anwendungen schließen und erneut versuchen!";
    Pruefstand p;
    (void)p.g.Verfahren.anfuegen(eintrag("002", "Zweites"));
    Profil datei;
    Verfahrensliste_eintragen(p.g, datei);
    p.g.Verfahren.grenze_setzen(0);
    Verfahren_loeschen(p.g, "001");
    EXPECT_EQ(
        p.schirm.einzige(),
        std::string("Dimensionierungsfehler! (61 in Verfahren_loeschen)\n    ReDim Preserve Verfahren(1)\n") + ende);
    p.schirm.gezeigt.clear();
    p.g.Verfahren.grenze_setzen(1);
    AlleVerfahernLaden(p.g, datei);
    EXPECT_EQ(
        p.schirm.einzige(),
        std::string("Dimensionierungsfehler! (62 in AlleVerfahernLaden)\n    ReDim Preserve Verfahren(2)\n") + ende);
    p.schirm.gezeigt.clear();
    p.g.Einstellungsdatei = im_Verfahren(p.g, "fehlt\\JorvPlus.INI");
    EXPECT_EQ(Verfahrensliste_sichern(p.g), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(),
              "In die Einstellungsdatei: \n" + p.g.Einstellungsdatei + "\nkonnt nicht fehlerfrei geschrieben werden!");
}

TEST(Verfahrenstabelle, SortiertDatenNachDerZeit)
{
    Pruefstand p;
    p.g.Verfahren.leeren();
    for (const auto& [nummer, datum] : {std::pair{"001", "02.01.2016"},
                                        {"002", "31.12.2015 10:00:00"},
                                        {"003", "02.01.2016 00:00:01"},
                                        {"004", ""}}) {
        ASSERT_TRUE(p.g.Verfahren.anfuegen(eintrag(nummer, verkettet(nummer[2] == '2' ? "B" : "a", nummer))));
        p.g.Verfahren.letztes().LetztDatum = datum;
    }
    Verfahrenstabelle t(p.g);
    const auto folge = [&](std::size_t spalte) {
        t.sortieren(spalte);
        return t.Name(0) + t.Name(1) + t.Name(2) + t.Name(3);
    };
    EXPECT_EQ(folge(5), "a004B002a001a003");
    EXPECT_EQ(folge(1), "a001a003a004B002");
    EXPECT_EQ(t.zeilen()[0][2] + t.zeilen()[0][5] + t.Breitentext(3), "S02.01.2016__Pfad des Verfahrens__");
}

TEST(LetzteVerfahren, DasOffeneRuecktNachVornUndDasNeunteFaelltHeraus)
{
    Pruefstand p;
    const auto oeffnen = [&](std::string name) {
        p.g.Verfahrensname = std::move(name);
        Liste_aufnehmen(p.g);
    };
    const auto reihe = [&] {
        std::string t = verkettet(static_cast<int>(p.g.Anzahl_Liste), ":");
        for (const auto& name : p.g.Liste_Name) t += name;
        return t;
    };
    for (const char* name : {"a", "b", "c"}) oeffnen(name);
    EXPECT_EQ(reihe(), "3:cba");
    oeffnen("a");
    EXPECT_EQ(reihe(), "3:acb");
    oeffnen("a");
    EXPECT_EQ(reihe(), "3:acb");
    for (const char* name : {"d", "e", "f", "g", "h", "i"}) oeffnen(name);
    EXPECT_EQ(reihe(), "8:ihgfedac");
    oeffnen("c");
    EXPECT_EQ(reihe(), "8:cihgfeda");
    Liste_entfernen(p.g, "g");
    EXPECT_EQ(reihe(), "7:cihfeda");
    Liste_entfernen(p.g, "z");
    Liste_entfernen(p.g, "a");
    EXPECT_EQ(reihe(), "6:cihfed");
    EXPECT_EQ(p.g.Liste_Pfad[6], "");
    EXPECT_EQ(p.schirm.liste_erneuert, 14);
}

TEST(LetzteVerfahren, DerBuchstabeKommtAusDerVerfahrensliste)
{
    Pruefstand p("4");
    p.g.Liste_Name = {"Muster", "Weg"};
    p.g.Liste_Modus = {"1", "1"};
    p.g.Anzahl_Liste = 2;
    EXPECT_EQ(Liste_Eintrag(p.g, 1), "&1 (B) Muster");
    EXPECT_EQ(Liste_Eintrag(p.g, 2), "&2 (?) Weg");
    EXPECT_EQ(Liste_Eintrag(p.g, 3), "");
}
