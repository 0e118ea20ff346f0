#include <gtest/gtest.h>

#include "daten/grenzen.h"
#include "daten/katalog.h"
#include "daten/krypt.h"
#include "proben.h"

namespace jorv {

using namespace hilfen;

namespace {

struct Grenzstand : Pruefstand {
    Grenzstand() { g.EXE_Verzeichnis = ordner.dos(); }
    fs::path datei() const { return pfad("jv_lnd.cif"); }
    void zeilen(const std::vector<std::string>& klar)
    {
        std::string bytes;
        for (const auto& zeile : klar) {
            int fehler = 0;
            bytes += krypt(zeile, 1, fehler) + "\r\n";
        }
        schreiben(datei(), bytes);
    }
};

}  // namespace

TEST(Grenzen, MachenUndLaden)
{
    Grenzstand s;
    ASSERT_FALSE(ist_fehler(grenzen_machen(s.g, "0 400000.5 5700000\n\n1 400001,25 5700001.125\r\n2 1 2")));
    ASSERT_FALSE(ist_fehler(grafik_grenzen_laden(s.g))) << s.schirm.einzige();
    ASSERT_EQ(s.g.Lnd.anzahl(), 3);
    EXPECT_EQ(s.g.Lnd[2].Typ, 1);
    EXPECT_EQ(s.g.Lnd[2].Rechtswert, 400001.25);
    EXPECT_EQ(s.g.Lnd[2].Hochwert, 5700001.125);
    EXPECT_EQ(s.g.Grenzen, "1");
    EXPECT_EQ(s.schirm.fortschritt, (std::vector<std::string>{"Bitte warten (Grafikdaten laden)", "(verborgen)"}));
    const std::string alt = lesen(s.datei());
    for (const char* liste : {"256 1 2", "-1 1 2", "1 2", "0 1E300 1"}) {
        EXPECT_TRUE(ist_fehler(grenzen_machen(s.g, liste))) << liste;
        EXPECT_EQ(lesen(s.datei()), alt);
    }
    s.schirm.gezeigt.clear();
    Bruch bruch(s.g);
    Bruch::schreiben_bei = 1;
    EXPECT_TRUE(ist_fehler(grenzen_machen(s.g, "0 1 2")));
    EXPECT_EQ(s.schirm.einzige(), "In die Datei mit den Landesgrenzen:\n" + s.ordner.dos() +
                                      "\\jv_lnd.cif\nkonnte nicht fehlerfrei geschrieben werden!");
    EXPECT_EQ(lesen(s.datei()), alt);
}

TEST(Grenzen, AbbruchSchaltetSieAus)
{
    Grenzstand s;
    s.zeilen({"4", "0 1 2", "", "1 3 4", "1 5 6"});
    s.schirm.abbruch_nach = 3;
    EXPECT_FALSE(ist_fehler(grafik_grenzen_laden(s.g)));
    EXPECT_EQ(s.g.Grenzen, "0");
    EXPECT_EQ(s.g.Lnd.anzahl(), 2);
    EXPECT_EQ(s.schirm.prozente, (std::vector<double>{25, 50, 75, 0}));
}

TEST(Grenzen, Meldungen)
{
    struct Fall {
        std::vector<std::string> zeilen;
        const char* kopf;
    };
    for (const auto& f : std::vector<Fall>{{{""}, "Zeilenanzahl fehlt in der Datei:"},
                                           {{"1E12"}, "Konvertierungsfehler bei der Zeilenanzahl in der Datei:"},
                                           {{"1", "   "}, "Typ fehlt in der Datei:"},
                                           {{"1", "256 1 2"}, "Konvertierungsfehler beim Typ in der Datei:"},
                                           {{"1", "1E12 1 2"}, "Konvertierungsfehler beim Typ in der Datei:"},
                                           {{"1", "1"}, "Rechtswert fehlt in der Datei:"},
                                           {{"1", "1 1E999"}, "Konvertierungsfehler beim Rechtswert in der Datei:"},
                                           {{"1", "1 2 \"\""}, "Hochwert fehlt in der Datei:"},
                                           {{"1", "1 2 1E999"}, "Konvertierungsfehler beim Hochwert in der Datei:"}}) {
        Grenzstand s;
        s.zeilen(f.zeilen);
        EXPECT_TRUE(ist_fehler(grafik_grenzen_laden(s.g)));
        EXPECT_EQ(s.schirm.einzige(), std::string(f.kopf) + "\n" + s.ordner.dos() +
                                          "\\jv_lnd.cif\nin Zeile: " + std::to_string(f.zeilen.size()) +
                                          "\n\nDatei überprüfen und ggf. neu versuchen!");
        EXPECT_EQ(s.schirm.fortschritt.back(), "(verborgen)");
    }
    Grenzstand s;
    schreiben(s.datei(), "\x01\x01\x01");
    EXPECT_TRUE(ist_fehler(grafik_grenzen_laden(s.g)));
    EXPECT_EQ(s.schirm.einzige(), "Entschlüsselungsfehler in der Datei:\n" + s.ordner.dos() +
                                      "\\jv_lnd.cif\nin Zeile: 1\n\nDatei überprüfen und ggf. neu versuchen!");
    // The message names the file with another extension.
    for (const bool ordner : {false, true}) {
        fs::remove(s.datei());
        if (ordner) fs::create_directory(s.datei());
        s.schirm.gezeigt.clear();
        EXPECT_TRUE(ist_fehler(grafik_grenzen_laden(s.g)));
        EXPECT_EQ(s.schirm.einzige(), "Die Datei mit den Landesgrenzen:\n" + s.ordner.dos() +
                                          "\\jv_lnd.dat\nkonnte nicht geöffnet werden!");
    }
    for (const auto& [grenze, text] :
         std::vector<std::pair<int, std::string>>{{-1, "(39 in grafik_grenzen_laden)\n    ReDim Lnd(0)"},
                                                  {1, "(40 in grafik_grenzen_laden)\n    ReDim Lnd(2)"}}) {
        Grenzstand q;
        q.zeilen({"2", "0 1 2", "1 3 4"});
        q.g.Lnd.grenze_setzen(grenze);
        EXPECT_TRUE(ist_fehler(grafik_grenzen_laden(q.g)));
        EXPECT_EQ(q.schirm.einzige(), "Dimensionierungsfehler! " + text +
                                          "\nevtl. Speicherplatzprobleme\n\nOffene Anwendungen schließen und erneut "
                                          "versuchen!");
    }
}

TEST(Grenzen, DerKatalogLaedtSieNurMitDerEinstellung)
{
    Grenzstand s;
    s.zeilen({"1", "0 1 2"});
    schreiben(s.pfad("Grund_TOREL.CIF"), "");
    s.g.Grenzen = "0";
    EXPECT_FALSE(ist_fehler(torel_coo_laden(s.g)));
    EXPECT_EQ(s.g.Lnd.anzahl(), 0);
    s.g.Grenzen = "1";
    EXPECT_FALSE(ist_fehler(torel_coo_laden(s.g)));
    EXPECT_EQ(s.g.Lnd.anzahl(), 1);
}

}  // namespace jorv
