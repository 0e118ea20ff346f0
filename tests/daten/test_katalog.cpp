#include <gtest/gtest.h>

#include "daten/exe_datei.h"
#include "daten/katalog.h"
#include "daten/krypt.h"
#include "proben.h"

namespace jorv {

using namespace hilfen;

namespace {

std::string chiffre(std::string_view klar)
{
    int fehler = 0;
    return krypt(klar, 1, fehler) + "\r\n";
}

// A state whose catalogue lies in a folder of its own, without borders.
struct Katalogstand : Pruefstand {
    Katalogstand() : exe(ordner.wurzel() / "exe")
    {
        fs::create_directories(exe);
        g.EXE_Verzeichnis = Laufwerke().dos(exe).value();
        g.Grenzen = "0";
    }
    fs::path datei() const { return exe / "Grund_TOREL.CIF"; }
    std::string dos() const { return g.EXE_Verzeichnis + "\\Grund_TOREL.CIF"; }
    std::string klar() const
    {
        std::string text, bytes = lesen(datei());
        Zeilenleser zeilen(bytes);
        while (const auto zeile = zeilen.naechste()) {
            int fehler = 0;
            text += krypt(*zeile, 2, fehler) + "\n";
            EXPECT_EQ(fehler, 0);
        }
        return text;
    }
    Fehler neu(std::string_view PKZ, double X, std::string_view name)
    {
        return torel_grund_neu(g, PKZ, X, 901600.5, 5038200.25, 1, 2, name);
    }
    fs::path exe;
};

constexpr const char* zeile_0590 = "0590     3783000.125  901600.500 5038200.250   Stadt";
constexpr const char* zeile_0591 = "0591     3783001.125  901600.500 5038200.250   \"Bad Ort\"";

}  // namespace

TEST(Krypt, HinUndZurueckUndGrenzen)
{
    std::string alle;
    for (int i = 1; i <= 125; ++i) alle += static_cast<char>(i);
    int fehler = 7;
    const std::string chiffriert = krypt(alle, 1, fehler);
    EXPECT_EQ(fehler, 0);
    EXPECT_NE(chiffriert, alle);
    EXPECT_EQ(krypt(chiffriert, 2, fehler), alle);
    EXPECT_EQ(krypt(krypt(std::string(255, 'x'), 1, fehler), 2, fehler), std::string(255, 'x'));
    EXPECT_EQ(krypt("", 1, fehler), "");
    EXPECT_EQ(fehler, 0);
    for (const auto& [text, modus] : std::vector<std::pair<std::string, int>>{
             {std::string(256, 'x'), 1}, {"a\x7e", 1}, {"\xe4", 1}, {"\x01", 2}, {std::string(256, '\xff'), 2}}) {
        EXPECT_EQ(krypt(text, modus, fehler), "") << text;
        EXPECT_EQ(fehler, -1) << text;
    }
    // A code of 0 ends the text without an error.
    const std::string mit_null = krypt(std::string("ab\0cd", 5), 1, fehler);
    EXPECT_EQ(mit_null.size(), 5u);
    EXPECT_EQ(krypt(mit_null, 2, fehler), std::string("ab\0", 3));
    EXPECT_EQ(fehler, 0);
}

TEST(Krypt, KeineChiffreBrichtDieZeile)
{
    // Whatever a text line holds, at whatever place: no line end, no NUL, and it comes back.
    for (int z = 32; z <= 125; ++z) {
        int fehler = 0;
        const std::string klar(255, static_cast<char>(z)), c = krypt(klar, 1, fehler);
        EXPECT_EQ(c.find_first_of(std::string("\r\n\x1a\0", 4)), std::string::npos) << z;
        EXPECT_EQ(krypt(c, 2, fehler), klar) << z;
    }
}

TEST(Katalog, LadenMitNamenUndLeerzeilen)
{
    Katalogstand s;
    schreiben(s.datei(), chiffre(zeile_0590) + "\r\n" + chiffre(zeile_0591) + chiffre("0593 3783002.5 1 5038200,9"));
    ASSERT_FALSE(ist_fehler(torel_coo_laden(s.g))) << s.schirm.einzige();
    ASSERT_EQ(s.g.TOREL_Punkt.anzahl(), 3);
    EXPECT_EQ(s.g.TOREL_Punkt[1].PKZ, "0590");
    EXPECT_EQ(s.g.TOREL_Punkt[1].Name, "Stadt");
    EXPECT_EQ(s.g.TOREL_Punkt[1].X, 3783000.125);
    EXPECT_GT(s.g.TOREL_Punkt[1].Hochwert, 5000000);
    EXPECT_EQ(s.g.TOREL_Punkt[2].Name, "Bad Ort");
    EXPECT_EQ(s.g.TOREL_Punkt[3].Name, "");
}

TEST(Katalog, WasDieSpaltenFuelltUndBlanksHatKommtZurueck)
{
    Katalogstand s;
    TOREL_Punkt_Satz west{"05 0", "Bad Ort", 0, 0, 1234567.125, -5000000.5, -3000000.25};
    (void)s.g.TOREL_Punkt.anfuegen(west);
    schreiben(s.datei(), katalog_als_text(s.g.TOREL_Punkt).value());
    ASSERT_FALSE(ist_fehler(torel_coo_laden(s.g))) << s.schirm.einzige();
    const auto& punkt = s.g.TOREL_Punkt[1];
    EXPECT_EQ(punkt.PKZ, west.PKZ);
    EXPECT_EQ(punkt.Name, west.Name);
    EXPECT_EQ(punkt.Y, west.Y);
    EXPECT_EQ(punkt.Z, west.Z);
}

TEST(Katalog, LadefehlerUndWasBleibt)
{
    struct Fall {
        std::string zeile, meldung;
        bool mit_ort = true;
    };
    const std::string ende = "\nin Zeile: 2\n\nDatei überprüfen und ggf. neu versuchen!";
    for (const auto& f : std::vector<Fall>{{"  ", "Punktkennzeichen (PKZ) fehlt in der Datei:"},
                                           {"0591", "X-Wert fehlt in der Datei:"},
                                           {"0591 1 \"\"", "Y-Wert fehlt in der Datei:"},
                                           {"0591 1 2 1E999", "Konvertierungsfehler beim Z-Wert in der Datei:"}}) {
        Katalogstand s;
        schreiben(s.datei(), chiffre(zeile_0590) + chiffre(f.zeile) + chiffre(zeile_0591));
        EXPECT_TRUE(ist_fehler(torel_coo_laden(s.g)));
        EXPECT_EQ(s.schirm.einzige(), f.meldung + "\n" + s.dos() + ende);
        EXPECT_EQ(s.g.TOREL_Punkt.anzahl(), 1);

        // What stands behind the damage is not lost by what would write the file.
        const std::string bytes = lesen(s.datei());
        const auto bleibt = [&](Fehler fehler) {
            EXPECT_TRUE(ist_fehler(fehler));
            EXPECT_TRUE(s.schirm.texte().back().starts_with("Lesefehler in der Datei:"));
            EXPECT_EQ(lesen(s.datei()), bytes);
        };
        bleibt(torel_grund_neu(s.g, "0590", 1, 2, 3, 4, 5, ""));
        bleibt(torel_punkt_entfernen(s.g, 1));
        bleibt(torel_grund_neu(s.g, "0592", 1, 2, 3, 4, 5, ""));
        EXPECT_EQ(s.g.TOREL_Punkt.anzahl(), 2);
    }
    Katalogstand s;
    const std::string lesefehler =
        "Lesefehler in der Datei:\n" + s.dos() + "\n\nDatei überprüfen und ggf. neu versuchen!";
    schreiben(s.datei(), chiffre(zeile_0590) + "\x01\x02 broken\r\n");
    EXPECT_TRUE(ist_fehler(torel_coo_laden(s.g)));
    EXPECT_EQ(s.schirm.einzige(), lesefehler);
    s.schirm.gezeigt.clear();
    schreiben(s.datei(), std::string(300, '\xf0'));
    EXPECT_TRUE(ist_fehler(torel_coo_laden(s.g)));
    EXPECT_EQ(s.schirm.einzige(), lesefehler);
    {
        Bruch bruch(s.g);
        Bruch::lesen_bei = 1;
        s.schirm.gezeigt.clear();
        EXPECT_TRUE(ist_fehler(torel_coo_laden(s.g)));
        EXPECT_EQ(s.schirm.einzige(), lesefehler);
    }
    s.schirm.gezeigt.clear();
    schreiben(s.datei(), chiffre("0591 1 2 3 Mitte"));
    EXPECT_TRUE(ist_fehler(torel_coo_laden(s.g)));
    EXPECT_EQ(s.schirm.einzige(),
              "Fehler bei der Umrechnung von TOREL-Koordinaten!\n\nTOREL-Datei überprüfen und ggf. "
              "neu versuchen!");
    EXPECT_EQ(s.g.TOREL_Punkt.anzahl(), 0);
    s.schirm.gezeigt.clear();
    fs::remove(s.datei());
    EXPECT_TRUE(ist_fehler(torel_coo_laden(s.g)));
    EXPECT_EQ(s.schirm.einzige(), "Die Koordinatendatei:\n" + s.dos() + "\nkonnte nicht geöffnet werden!");
}

TEST(Katalog, Dimensionierung)
{
    const std::string ende = "\nevtl. Speicherplatzprobleme\n\nOffene Anwendungen schließen und erneut versuchen!";
    for (const auto& [grenze, text] :
         std::vector<std::pair<int, std::string>>{{0, "(10 in torel_coo_laden)\n    ReDim TOREL_Punkt(1)"},
                                                  {1, "(11 in torel_coo_laden)\nReDim Preserve TOREL_Punkt(2)"}}) {
        Katalogstand s;
        schreiben(s.datei(), chiffre(zeile_0590) + chiffre(zeile_0591));
        s.g.TOREL_Punkt.grenze_setzen(grenze);
        EXPECT_TRUE(ist_fehler(torel_coo_laden(s.g)));
        EXPECT_EQ(s.schirm.einzige(), "Dimensionierungsfehler! " + text + ende);
    }
    Katalogstand s;
    s.g.TOREL_Punkt.grenze_setzen(0);
    EXPECT_TRUE(ist_fehler(s.neu("0590", 3783000.125, "Stadt")));
    EXPECT_EQ(s.schirm.einzige(),
              "Dimensionierungsfehler! (38 in torel_grund_neu)\nReDim Preserve TOREL_Punkt(1)" + ende);
    EXPECT_FALSE(fs::exists(s.datei()));
}

TEST(Katalog, NeueUndGeaenderteStationen)
{
    Katalogstand s;
    ASSERT_FALSE(ist_fehler(s.neu("0590", 3783000.125, "Stadt")));
    ASSERT_FALSE(ist_fehler(s.neu("0591", 3783001.125, "Bad Ort")));
    EXPECT_EQ(s.klar(), std::string(zeile_0590) + "\n" + zeile_0591 + "\n");
    // The same coordinates change nothing, others keep the name and the order.
    const auto vorher = fs::last_write_time(s.datei());
    ASSERT_FALSE(ist_fehler(s.neu("0590", 3783000.125, "Anders")));
    EXPECT_EQ(fs::last_write_time(s.datei()), vorher);
    ASSERT_FALSE(ist_fehler(s.neu("0590", 3783000.5, "Anders")));
    EXPECT_EQ(s.klar().substr(0, 52), "0590     3783000.500  901600.500 5038200.250   Stadt");
    EXPECT_NE(s.klar().find(zeile_0591), std::string::npos);
    // A last line without an end isn't grown together with the new one.
    std::string bytes = lesen(s.datei());
    schreiben(s.datei(), bytes.substr(0, bytes.size() - 2));
    ASSERT_FALSE(ist_fehler(s.neu("0593", 3783002, t1252("Müßenöd-ÄÖÜ"))));
    EXPECT_TRUE(s.klar().ends_with(" Muessenoed-AeOeUe\n")) << s.klar();
    s.g.TOREL_Punkt.leeren();
    ASSERT_FALSE(ist_fehler(torel_coo_laden(s.g)));
    EXPECT_EQ(s.g.TOREL_Punkt.anzahl(), 3);
}

TEST(Katalog, GescheitertesSchreibenLaesstDieAlteDatei)
{
    Katalogstand s;
    ASSERT_FALSE(ist_fehler(s.neu("0590", 3783000.125, "Stadt")));
    const std::string alt = lesen(s.datei());
    const auto erwarten = [&](Fehler fehler, const std::string& meldung) {
        EXPECT_TRUE(ist_fehler(fehler));
        EXPECT_EQ(s.schirm.einzige(), meldung);
        EXPECT_EQ(lesen(s.datei()), alt);
        s.schirm.gezeigt.clear();
    };
    const auto eintrag = [](std::string_view was) {
        return "Fehler bei der Erzeugung (" + std::string(was) + ") eines neuen\nEintrags in der Grund_TOREL.CIF";
    };
    {
        Bruch bruch(s.g);
        Bruch::schreiben_bei = 1;
        erwarten(s.neu("0591", 3783001.125, "Ort"), eintrag("write"));
        Bruch::schreiben_bei = 1;
        erwarten(s.neu("0591", 3783001.5, "Ort"), eintrag("write"));
        s.schirm.antworten = {Antwort::ja};
        Bruch::schreiben_bei = 1;
        EXPECT_TRUE(ist_fehler(torel_punkt_entfernen(s.g, 2)));
        EXPECT_EQ(s.schirm.texte().back(),
                  "In die Koordinatendatei:\n" + s.dos() + "\nkonnte nicht fehlerfrei geschrieben werden!");
        EXPECT_EQ(lesen(s.datei()), alt);
        s.schirm.gezeigt.clear();
    }
    // A name that can't be enciphered stops every rewrite, and the old file stays whole.
    erwarten(s.neu("0593", 3783002, "Caf\xe9"), eintrag("krypt"));
    erwarten(s.neu("0590", 3783009, ""), eintrag("krypt"));
    s.schirm.antworten = {Antwort::ja};
    EXPECT_TRUE(ist_fehler(torel_punkt_entfernen(s.g, 1)));
    EXPECT_EQ(s.schirm.texte().back(), "Die Chiffrierung der Koordinatendatei:\n" + s.dos() +
                                           "\nhat nicht geklappt!\n\nBitte die Grund_TOREL.CIF erneut installieren");
    EXPECT_EQ(lesen(s.datei()), alt);
    s.schirm.gezeigt.clear();
    fs::remove(s.datei());
    fs::create_directory(s.datei());
    EXPECT_TRUE(ist_fehler(s.neu("0594", 3783003, "")));
    EXPECT_EQ(s.schirm.einzige(), "Die Koordinatendatei:\n" + s.dos() + "\nkonnte nicht geöffnet werden!");
}

TEST(Katalog, StationEntfernen)
{
    Katalogstand s;
    ASSERT_FALSE(ist_fehler(s.neu("0590", 3783000.125, "Stadt")));
    ASSERT_FALSE(ist_fehler(s.neu("0591", 3783001.125, "")));
    ASSERT_FALSE(ist_fehler(s.neu("0593", 3783002.125, "")));
    EXPECT_FALSE(ist_fehler(torel_punkt_entfernen(s.g, 1)));
    EXPECT_EQ(s.schirm.einzige(),
              "Achtung!\n\nDer ausgewählte Punkt: 0590 (Stadt) \nwird zukünftig in Jorv nicht mehr "
              "als TOREL-Punkt angezeigt.\n\nPunkt jetzt entfernen?");
    EXPECT_EQ(s.g.TOREL_Punkt.anzahl(), 3) << "the default answer is No";
    s.schirm.antworten = {Antwort::ja};
    EXPECT_FALSE(ist_fehler(torel_punkt_entfernen(s.g, 2)));
    EXPECT_NE(s.schirm.texte().back().find("Punkt: 0591\nwird"), std::string::npos);
    ASSERT_EQ(s.g.TOREL_Punkt.anzahl(), 2);
    EXPECT_EQ(s.g.TOREL_Punkt[2].PKZ, "0593");
    EXPECT_EQ(s.schirm.karte_gezeichnet, 1);
}

TEST(Katalog, SchreibgeschuetztesVerzeichnisFuehrtZurEigenenKopie)
{
    Katalogstand s;
    ASSERT_FALSE(ist_fehler(s.neu("0590", 3783000.125, "Stadt")));
    const std::string alt = lesen(s.datei());
    const fs::path eigene = s.ordner.wurzel() / "einstellungen" / "Grund_TOREL.CIF";
    {
        Bruch bruch(s.g);
        Bruch::verboten = "/exe/";
        ASSERT_FALSE(ist_fehler(s.neu("0591", 3783001.125, "Ort"))) << s.schirm.einzige();
        EXPECT_EQ(lesen(s.datei()), alt);
        EXPECT_TRUE(lesen(eigene).starts_with(alt));
    }
    s.g.TOREL_Punkt.leeren();
    ASSERT_FALSE(ist_fehler(torel_coo_laden(s.g)));
    EXPECT_EQ(s.g.TOREL_Punkt.anzahl(), 2);
    ASSERT_FALSE(ist_fehler(s.neu("0593", 3783002.125, "Ort")));
    EXPECT_EQ(lesen(s.datei()), alt) << "from now on the copy is written";
    Katalogstand leer;
    leer.g.EXE_Verzeichnis.clear();
    EXPECT_EQ(exe_verzeichnis(leer.g), leer.g.Programmverzeichnis);
}

TEST(Katalog, AusListe)
{
    Katalogstand s;
    ASSERT_FALSE(ist_fehler(katalog_machen(s.g, t1252("0590 3783000,125 901600.5 5038200.25 Stadt\r\n\n"
                                                      "0591 3783001.125 901600.5 5038200.25  Bad Ört \n"
                                                      "0593 3783001.125 901600.5 5038200.25 \"Alt Au\"\n"))));
    ASSERT_EQ(s.g.TOREL_Punkt.anzahl(), 3);
    EXPECT_EQ(s.g.TOREL_Punkt[1].X, 3783000.125);
    EXPECT_EQ(s.g.TOREL_Punkt[2].Name, "Bad Oert");
    EXPECT_EQ(s.g.TOREL_Punkt[3].Name, "Alt Au");
    const std::string alt = lesen(s.datei());
    EXPECT_TRUE(ist_fehler(katalog_machen(s.g, "0590 1 2\n")));
    EXPECT_EQ(s.schirm.einzige(),
              "Z-Wert fehlt in der Datei:\nStationsliste\nin Zeile: 1\n\nDatei überprüfen und ggf. neu versuchen!");
    EXPECT_EQ(lesen(s.datei()), alt);
}

}  // namespace jorv
