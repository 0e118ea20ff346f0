#include "projekt/verfahren_loeschen.h"

#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "hilfen/Umgebung.h"
#include "projekt/Vollprojekt.h"
#include "projekt/projektdatei_schreiben.h"
#include "projekt/verfahren.h"
#include "projekt/verfahrensliste.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

struct Loeschen : testing::Test {
    Loeschen()
    {
        volles_projekt(p.g);
        EXPECT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
        EXPECT_EQ(Verfahrensliste_sichern(p.g), Fehler::keiner);
        Liste_aufnehmen(p.g);
        vier_Menues(p.g, true);
    }
    Pruefstand p;
};

}  // namespace

TEST_F(Loeschen, NeinAendertNichts)
{
    EXPECT_EQ(m_datei_loeschen(p.g), Fehler::keiner);
    EXPECT_EQ(p.schirm.einzige(),
              "*** INFO (KOR) ***\nDiese Funktion entfernt den Eintrag des aktuellen Verfahrens\n"
              "aus der Verfahrensliste und gibt dessen Nummer frei.\n"
              "Die Verzeichnisse des Verfahrens bleiben erhalten!\nFunktion jetzt ausführen?");
    EXPECT_TRUE(p.schirm.gezeigt[0].frage);
    EXPECT_EQ(p.g.Verfahren.anzahl(), 1);
    EXPECT_TRUE(p.g.menue.m_datei_sichern);
}

TEST_F(Loeschen, InKORBleibtDasVerzeichnis)
{
    p.schirm.antworten = {Antwort::ja};
    EXPECT_EQ(m_datei_loeschen(p.g), Fehler::keiner);
    EXPECT_TRUE(fs::exists(p.pfad("001.INI")));
    EXPECT_EQ(p.g.Verfahrensname + p.g.Verfahrensnummer + p.g.Verfahrensmodus, "");
    EXPECT_EQ(p.g.Verfahren.anzahl() + p.g.Anzahl_Liste + p.g.BASISLINIE.anzahl() + p.g.OBS_R.anzahl(), 0);
    EXPECT_FALSE(p.g.menue.m_datei_sichern);
    EXPECT_EQ(p.schirm.fenstertitel, "Jorv+, Version 1.0 vom 01.12.2016");
    EXPECT_FALSE(Profil(lesen(p.ordner.wurzel() / "einstellungen" / "JorvPlus.INI")).hat("VERFAHREN-Name", "001"));
}

TEST_F(Loeschen, InMTVerschwindetDasVerzeichnisDesVerfahrens)
{
    p.g.Land = "MT";
    p.schirm.antworten = {Antwort::ja};
    schreiben(p.pfad("jorv_out/dat_rov/x.UTM"), "x");
    EXPECT_EQ(m_datei_loeschen(p.g), Fehler::keiner);
    EXPECT_EQ(p.schirm.einzige(),
              "*** INFO (MT) ***\nDiese Funktion entfernt den Eintrag des aktuellen Verfahrens\n"
              "aus der Verfahrensliste und gibt dessen Nummer frei.\n"
              "Außerdem werden die Verzeichnisse und Daten des Verfahrens gelöscht!\nFunktion jetzt ausführen?");
    EXPECT_FALSE(fs::exists(p.ordner.host()));
}

TEST(LoeschenInMT, BleibtEinVerzeichnisDasNichtNurDemVerfahrenGehoert)
{
    struct Fall {
        const char* was;
        void (*vorbereiten)(Pruefstand&, const Umgebungswert& heim);
    };
    const Fall faelle[] = {
        {"no project file", [](Pruefstand& p, const auto&) { fs::remove(p.pfad("001.INI")); }},
        {"the user's home below it",
         [](Pruefstand& p, const Umgebungswert& heim) {
             fs::create_directories(p.pfad("heim/Jürg"));
             heim.setzen(p.pfad("heim/Jürg").string());
         }},
        {"the settings file in it, written otherwise",
         [](Pruefstand& p, const auto&) { p.g.Einstellungsdatei = gross(im_Verfahren(p.g, "JorvPlus.INI")); }},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.was);
        Pruefstand q;
        schreiben(q.pfad("001.INI"), "[VERFAHREN]\r\nName=Muster\r\nNummer=001\r\n");
        schreiben(q.pfad("messung.doc"), "x");
        q.g.Land = "MT";
        q.schirm.antworten = {Antwort::ja};
        const Umgebungswert heim("HOME", "");
        fall.vorbereiten(q, heim);
        EXPECT_EQ(m_datei_loeschen(q.g), Fehler::gesetzt);
        ASSERT_EQ(q.schirm.gezeigt.size(), 2u);
        EXPECT_EQ(q.schirm.texte()[1], "Das Arbeitsverzeichnis konnte nicht gelöscht werden!");
        EXPECT_TRUE(fs::exists(q.pfad("messung.doc")));
        EXPECT_FALSE(q.g.Verfahren_offen());
        EXPECT_EQ(q.g.Verfahren.anzahl(), 0);
    }
}
