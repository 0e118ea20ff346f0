#include "projekt/projektdatei_schreiben.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "hilfen/Projekt.h"
#include "projekt/Vollprojekt.h"
#include "projekt/projektdatei_lesen.h"
#include "projekt/verfahren.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

// Every array as nobody has read it yet.
void vergessen(Global& g)
{
    (void)Verfahrensdaten_leeren(g);
    g.Y_min = g.Y_max = g.X_min = g.X_max = g.Faktor = 0;
    g.KNOTEN.fill("1");
    g.Zeitfenster_1h = "0";
    g.Auswertemodus = "L1";
}

std::string in_verfahren(const Pruefstand& p)
{
    return lesen(p.pfad("001.INI"));
}

}  // namespace

TEST(Sichern, EinVollesProjektKommtFeldFuerFeldZurueck)
{
    Pruefstand p("3");
    volles_projekt(p.g);
    schreiben(p.pfad("001.INI"), "[VERFAHREN]\r\nName=Muster\r\nNummer=001\r\n");
    const std::string vorher = abbild_als_text(p.g);
    ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
    vergessen(p.g);
    ASSERT_NE(abbild_als_text(p.g), vorher);
    Profil profil;
    const std::string datei = p.g.Verfahrensdatei;
    ASSERT_EQ(Projektdatei_laden(p.g, datei, profil), Fehler::keiner);
    Verfahren_lesen(p.g, datei, profil);
    ASSERT_EQ(Dateidaten_lesen(p.g, profil), Fehler::keiner) << p.schirm.einzige();
    EXPECT_EQ(abbild_als_text(p.g), vorher);

    // Saved again, not one byte differs.
    const std::string bytes = in_verfahren(p);
    p.g.vollstaendig_gelesen = true;
    ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
    EXPECT_EQ(in_verfahren(p), bytes);
}

TEST(Sichern, WasEineZeileZerrisseKommtHeilZurueck)
{
    Pruefstand p("3");
    OBS obs = beobachtung("5501001a.14o", "08:00:00", "09:00:00");
    obs.Antenne = "7 \"neu\"             LEIAX1202GG     NONE";
    (void)p.g.OBS_R.anfuegen(obs);
    (void)p.g.RINEX_Dateien.anfuegen(std::string("a\0b.14o", 8));
    ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
    const Profil profil(in_verfahren(p));
    ASSERT_EQ(Dateidaten_OBS_lesen(p.g, profil, "ROVER-OBS"), Fehler::keiner) << p.schirm.einzige();
    EXPECT_EQ(p.g.OBS_R[1].Antenne, "7 'neu'             LEIAX1202GG     NONE");
    EXPECT_EQ(p.g.OBS_R[1].Startzeit(), obs.Startzeit());
    ASSERT_EQ(Dateidaten_RINEX_lesen(p.g, profil), Fehler::keiner);
    EXPECT_EQ(p.g.RINEX_Dateien[1].size(), 8u);
    // Numbers whose digits would fill a row are none.
    const Profil riesig("[ROVER-VIRT]\r\n1=a b 1 1e300\r\n[GRAFIK-FENSTER]\r\nY-min=1\r\nY-max=1e99\r\n");
    EXPECT_EQ(Dateidaten_ROVER_VIRT_lesen(p.g, riesig), Fehler::gesetzt);
}

TEST(Sichern, DieSektionenStehenInIhrerReihenfolge)
{
    Pruefstand p;
    p.g.Verfahren[1].Antenne = "AXT";
    p.g.Verfahren[1].ErstDatum = "30.11.2016";
    (void)p.g.OBS_R.anfuegen(beobachtung("5501001a.14o", "08:00:00", "09:00:00"));
    p.g.OBS_R[1].Antenne = "ANT 1";
    (void)p.g.R_Punkt.anfuegen(punkt("5501", 0.5, -12));
    ROVER_TOREL_Satz zeile;
    zeile.ROVER_Dateiname = "5501001a.14o";
    zeile.Anzahl = 6;
    zeile.TOREL_Dateiname = {"a", "b", "c", "d"};
    zeile.Schutz = true;
    zeile.Status = 1;
    (void)p.g.ROVER_TOREL.anfuegen(zeile);
    p.g.geo_fertig = false;
    ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
    EXPECT_TRUE(p.g.geo_fertig);
    EXPECT_EQ(in_verfahren(p),
              "[VERFAHREN]\r\nVersionsnummer=1.0\r\nVersionsdatum=01.12.2016\r\nModus=1\r\nErstDatum=30.11.2016\r\n"
              "LetztDatum=01.12.2016 12:00:00\r\nAntenne=AXT\r\n"
              "[GRUNDEINSTELLUNGEN]\r\nZeitfenster 1h=0\r\nAuswertemodus=L1\r\n"
              "[ROVER-OBS]\r\n1=5501001a.14o 5501 1 \"ANT 1\" 2014 1 1 8 0 0 2014 1 1 9 0 0 80000 90000\r\n"
              "[GRAPHIK-ROVER]\r\n1=5501 ,5 -12, , , ,\r\n"
              "[ROVER-TOREL]\r\n1=5501001a.14o 4 a b c d 1 1 0 0 0\r\n"
              "[GRAFIK-FENSTER]\r\nY-min=0\r\nY-max=0\r\nX-min=0\r\nX-max=0\r\nFaktor=0\r\n"
              "[KNOTEN]\r\n1=1\r\n2=1\r\n3=1\r\n4=1\r\n5=1\r\n6=1\r\n7=1\r\n");

    volles_projekt(p.g);
    schreiben(p.pfad("001.INI"), "");
    ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
    const std::string text = in_verfahren(p);
    std::size_t stelle = 0;
    for (const char* sektion : {"[VERFAHREN]", "[GRUNDEINSTELLUNGEN]", "[GEO]", "[TOREL-OBS]", "[ROVER-OBS]",
                                "[GRAPHIK-TOREL]", "[GRAPHIK-ROVER]", "[ROVER-TOREL]", "[RINEX-DATEIEN]",
                                "[ANTENNEN-DATEIEN]", "[BASISLINIE]", "[GRAFIK-FENSTER]", "[ROVER-SETTINGS]",
                                "[KNOTEN]", "[FREMD-VIRT-OBS]", "[GRAPHIK-FREMD-VIRT]", "[ROVER-VIRT]"}) {
        const auto hier = text.find(sektion, stelle);
        EXPECT_NE(hier, std::string::npos) << sektion;
        stelle = hier;
    }
}

TEST(Sichern, VeralteteZeilenWerdenLeerUndFremdesBleibt)
{
    Pruefstand p;
    schreiben(p.pfad("001.INI"),
              "; von Hand\r\n[Rinex-Dateien]\r\n1=a.14o\r\n2=b.14o\r\n3=c.14o\r\n4=\r\n5=alt.14o\r\nHinweis=bleibt\r\n"
              "[EIGENES]\r\nx=y\r\nkein Wert\r\n[VERFAHREN]\r\nName=Muster\r\nModus=9\r\n");
    (void)p.g.RINEX_Dateien.anfuegen("neu.14o");
    ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
    const std::string text = in_verfahren(p);
    EXPECT_TRUE(text.starts_with(
        "; von Hand\r\n[Rinex-Dateien]\r\n1=neu.14o\r\n2=\r\n3=\r\n4=\r\n5=alt.14o\r\nHinweis=bleibt\r\n"
        "[EIGENES]\r\nx=y\r\nkein Wert\r\n[VERFAHREN]\r\nName=Muster\r\nModus=1\r\n"))
        << text;

    p.g.RINEX_Dateien.leeren();
    ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
    const Profil profil(in_verfahren(p));
    EXPECT_EQ(profil.wert("RINEX-DATEIEN", "1"), "");
    EXPECT_TRUE(profil.hat("RINEX-DATEIEN", "3"));
    ASSERT_EQ(Dateidaten_RINEX_lesen(p.g, profil), Fehler::keiner);
    EXPECT_EQ(p.g.RINEX_Dateien.anzahl(), 0);
}

TEST(Sichern, UngeleseneSektionenBleibenWieSieSind)
{
    Pruefstand p("4");
    schreiben(p.pfad("001.INI"), "[BASISLINIE]\r\n1=a b c d\r\n[GRAPHIK-FREMD-VIRT]\r\n1=virt 1 2 3 4 5\r\n");
    p.g.ungelesene_Sektionen = {"BASISLINIE", "Graphik-Fremd-Virt"};
    ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
    const Profil profil(in_verfahren(p));
    EXPECT_EQ(profil.wert("BASISLINIE", "1"), "a b c d");
    EXPECT_EQ(profil.wert("GRAPHIK-FREMD-VIRT", "1"), "virt 1 2 3 4 5");
}

TEST(Sichern, EinLeeresPunktkennzeichenVerschiebtDieWorte)
{
    Pruefstand p;
    (void)p.g.R_Punkt.anfuegen(punkt("", 1, 2));
    ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
    EXPECT_EQ(Dateidaten_GRAPHIK_lesen(p.g, Profil(in_verfahren(p)), "GRAPHIK-ROVER"), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(),
              "Z-Wert fehlerhaft in der Datei:\n" + p.g.Verfahrensdatei + "\n\nDatei überprüfen und ggf. reparieren!");
}

TEST(Sichern, OhneNamenOderNachEinemHalbenLesenWirdNichtGeschrieben)
{
    Pruefstand p;
    p.g.Verfahrensname = "  ";
    EXPECT_EQ(Verfahren_sichern(p.g), Fehler::gesetzt);
    EXPECT_EQ(p.schirm.einzige(), "Fehler beim sichern der aktuellen Verfahrensdaten (kein Verfahrensname)!");
    p.g.Verfahrensname = "Muster";
    p.g.vollstaendig_gelesen = false;
    EXPECT_EQ(Verfahren_sichern(p.g), Fehler::gesetzt);
    EXPECT_FALSE(fs::exists(p.pfad("001.INI")));
    EXPECT_EQ(p.schirm.gezeigt.size(), 1u);
}

TEST(Sichern, EinFehlerBeimSchreibenLaesstDieAlteDateiGanz)
{
    struct Fall {
        const char* was;
        void (*stoeren)(Systemaufrufe&);
    };
    const Fall faelle[] = {
        {"no temporary file",
         [](Systemaufrufe& a) { a.oeffnen = [](const char*, int, unsigned) { return errno = EACCES, -1; }; }},
        {"disk full",
         [](Systemaufrufe& a) { a.schreiben = [](int, const void*, std::size_t) { return errno = ENOSPC, -1L; }; }},
        {"flush", [](Systemaufrufe& a) { a.sichern = [](int) { return errno = EIO, -1; }; }},
        {"rename",
         [](Systemaufrufe& a) { a.umbenennen = [](const char*, const char*) { return errno = EACCES, -1; }; }},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.was);
        Pruefstand p;
        const std::string alt = "[VERFAHREN]\r\nName=Muster\r\n[RINEX-DATEIEN]\r\n1=alt.14o\r\n";
        schreiben(p.pfad("001.INI"), alt);
        volles_projekt(p.g);
        Systemaufrufe aufrufe = Systemaufrufe::echte();
        fall.stoeren(aufrufe);
        p.g.dateien = Dateisystem(Laufwerke::aus_umgebung(), aufrufe);
        EXPECT_EQ(Verfahren_sichern(p.g), Fehler::gesetzt);
        EXPECT_EQ(p.schirm.einzige(),
                  "In die Verfahrensdatei: \n" + p.g.Verfahrensdatei + "\nkonnt nicht fehlerfrei geschrieben werden!");
        EXPECT_EQ(p.schirm.gezeigt[0].symbol, Symbol::stop);
        EXPECT_EQ(in_verfahren(p), alt);
        EXPECT_EQ(std::distance(fs::directory_iterator(p.ordner.host()), fs::directory_iterator()), 1);
    }
}

// The process ends inside a system call, as if it had been killed there.
#ifndef _WIN32  // where the process that dies has a folder of its own
TEST(SichernDeathTest, EinGetoetetesProgrammHinterlaesstDieAlteOderDieNeueDatei)
{
    struct Fall {
        const char* was;
        void (*toeten)(Systemaufrufe&);
        bool neu;
    };
    const Fall faelle[] = {
        {"half written",
         [](Systemaufrufe& a) {
             a.schreiben = [](int nummer, const void* bytes, std::size_t anzahl) -> long {
                 (void)Systemaufrufe::echte().schreiben(nummer, bytes, anzahl / 2);
                 _exit(0);
             };
         },
         false},
        {"before the flush", [](Systemaufrufe& a) { a.sichern = [](int) -> int { _exit(0); }; }, false},
        {"before the renaming",
         [](Systemaufrufe& a) { a.umbenennen = [](const char*, const char*) -> int { _exit(0); }; }, false},
        {"behind the renaming", [](Systemaufrufe& a) { a.ordner_sichern = [](const char*) -> int { _exit(0); }; },
         true},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.was);
        Pruefstand p;
        const std::string alt = "[VERFAHREN]\r\nName=Muster\r\n";
        schreiben(p.pfad("001.INI"), alt);
        volles_projekt(p.g);
        Systemaufrufe aufrufe = Systemaufrufe::echte();
        fall.toeten(aufrufe);
        p.g.dateien = Dateisystem(Laufwerke::aus_umgebung(), aufrufe);
        EXPECT_EXIT((void)Verfahren_sichern(p.g), testing::ExitedWithCode(0), "");
        const std::string jetzt = in_verfahren(p);
        if (!fall.neu) {
            EXPECT_EQ(jetzt, alt);
            continue;
        }
        p.g.dateien = Dateisystem();
        ASSERT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
        EXPECT_EQ(jetzt, in_verfahren(p));
    }
}
#endif
