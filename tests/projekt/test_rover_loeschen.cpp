#include "projekt/rover_loeschen.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "projekt/Vollprojekt.h"
#include "projekt/projektdatei_lesen.h"
#include "projekt/projektdatei_schreiben.h"

using namespace jorv;
using namespace jorv::hilfen;

TEST(RoverLoeschen, NimmtGenauEinenRoverHeraus)
{
    for (const std::string_view modus : {"1", "3", "4"}) {
        Pruefstand p(modus);
        volles_projekt(p.g);
        ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
        const int anzahl = p.g.OBS_R.anzahl();
        ASSERT_GE(anzahl, 2);
        const std::string weg = p.g.OBS_R[1].Dateiname, bleibt = p.g.OBS_R[2].Dateiname;
        const std::string utm = verkettet("jorv_out/dat_rov/", weg, ".UTM");
        schreiben(p.pfad(weg), "x");
        schreiben(p.pfad(utm), "x");
        fs::create_directories(p.pfad(verkettet("jorv_out/lis_rov/", weg, ".LIS/voll")));
        p.schirm.antworten = {Antwort::ja};
        EXPECT_EQ(ROVER_Datei_loeschen(p.g, weg), Fehler::keiner);
        EXPECT_FALSE(fs::exists(p.pfad(weg)) || fs::exists(p.pfad(utm)));
        ASSERT_EQ(p.schirm.gezeigt.size(), 2u);  // a folder in place of the protocol can't be deleted
        EXPECT_EQ(p.schirm.gezeigt[1].symbol, Symbol::warnung);

        const Profil datei(lesen(p.pfad("001.INI")));
        for (const auto sektion : {"ROVER-OBS", "GRAPHIK-ROVER", "ROVER-SETTINGS"})
            EXPECT_FALSE(datei.hat(sektion, verkettet(anzahl))) << sektion;
        EXPECT_EQ(datei.wert("RINEX-DATEIEN", "1"), "\"55 2001a.14o\"");
        EXPECT_EQ(p.g.OBS_R.anzahl(), anzahl - 1);
        EXPECT_EQ(p.g.OBS_R[1].Dateiname + p.g.ROVER_Settings[1].ROVER_Dateiname, bleibt + bleibt);
        EXPECT_EQ(p.g.ROVER_TOREL[1].ROVER_Dateiname == bleibt, modus == "1");
        EXPECT_EQ(p.g.ROVER_VIRT[1].ROVER_Dateiname == bleibt, modus == "3");
        EXPECT_EQ(p.g.BASISLINIE.anzahl(), modus == "4" ? 0 : 1);
        EXPECT_EQ(Dateidaten_lesen(p.g, datei), Fehler::keiner);
        EXPECT_EQ(p.g.OBS_R.anzahl(), anzahl - 1);
    }
}

TEST(RoverLoeschen, OhneDateiOderJaBleibtAlles)
{
    Pruefstand p;
    volles_projekt(p.g);
    const int anzahl = p.g.OBS_R.anzahl();
    const std::string name = p.g.OBS_R[1].Dateiname;
    EXPECT_EQ(ROVER_Datei_loeschen(p.g, name), Fehler::keiner);
    EXPECT_EQ(p.schirm.einzige(), "Die ROVER-Datei: " + name +
                                      " wird aus dem Verfahren entfernt!\nSie wird dabei auch im Verzeichnis des "
                                      "Verfahrens physikalisch gelöscht!\n\nDie Funktion jetzt ausführen?");
    p.schirm.antworten = {Antwort::ja};
    EXPECT_EQ(ROVER_Datei_loeschen(p.g, name), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.texte().back(),
              utf8_aus_1252("Die ROVER-Datei: " + name +
                            "\nist nicht mehr im Verfahrensverzeichnis: " + p.g.Arbeitsverzeichnis) +
                  "\nvorhanden! Löschfunktion abgebrochen");
    EXPECT_EQ(p.g.OBS_R.anzahl(), anzahl);
}

TEST(RoverLoeschen, EineUnloeschbareDateiBrichtAb)
{
    Pruefstand p;
    volles_projekt(p.g);
    static const Systemaufrufe gesperrt = [] {
        Systemaufrufe a = Systemaufrufe::echte();
        a.loeschen = [](const char*) { return -1; };
        return a;
    }();
    p.g.dateien = Dateisystem(p.g.dateien.laufwerke(), gesperrt);
    const std::string name = p.g.OBS_R[1].Dateiname;
    schreiben(p.pfad(name), "x");
    p.schirm.antworten = {Antwort::ja};
    EXPECT_EQ(ROVER_Datei_loeschen(p.g, name), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.texte().back(),
              "Die ROVER-Datei: " + name + "\nkonnte nicht gelöscht werden! Löschfunktion abgebrochen");
    EXPECT_EQ(p.g.OBS_R.anzahl(), 2);
}

TEST(RoverLoeschen, EinFeldOhnePlatzWirdGemeldet)
{
    Pruefstand p("4");
    volles_projekt(p.g);
    basislinie(p.g, "5501001a.14o", "x");
    p.g.BASISLINIE.grenze_setzen(0);
    schreiben(p.pfad("5501001a.14o"), "x");
    p.schirm.antworten = {Antwort::ja};
    EXPECT_EQ(ROVER_Datei_loeschen(p.g, "5501001a.14o"), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.texte().back(),
              "Dimensionierungsfehler! (85 in ROVER_Datei_loeschen)\n    ReDim Preserve BASISLINIE(1)\nevtl. "
              "Speicherplatzprobleme!\n\nOffene Anwendungen schließen und erneut versuchen!");
}
