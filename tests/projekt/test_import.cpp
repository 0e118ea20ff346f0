#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "hilfen/Projekt.h"
#include "plattform/profil.h"
#include "projekt/Vollprojekt.h"
#include "projekt/import_batch.h"
#include "projekt/importieren.h"
#include "projekt/projektdatei_schreiben.h"
#include "projekt/verfahren.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

// Files of these names can't be read or deleted.
namespace stoerung {
constexpr std::string_view unlesbar = "001.BAT", unloeschbar = "001.KRZ";
int nummer = -1;
Systemaufrufe aufrufe()
{
    Systemaufrufe a = Systemaufrufe::echte();
    a.oeffnen = [](const char* pfad, int art, unsigned rechte) {
        const int neu = Systemaufrufe::echte().oeffnen(pfad, art, rechte);
        if (std::string_view(pfad).ends_with(unlesbar)) nummer = neu;
        return neu;
    };
    a.lesen = [](int n, void* bytes, std::size_t anzahl) {
        return n == nummer ? -1L : Systemaufrufe::echte().lesen(n, bytes, anzahl);
    };
    a.schliessen = [](int n) {
        if (n == nummer) nummer = -1;
        return Systemaufrufe::echte().schliessen(n);
    };
    a.loeschen = [](const char* pfad) {
        return std::string_view(pfad).ends_with(unloeschbar) ? -1 : Systemaufrufe::echte().loeschen(pfad);
    };
    return a;
}
}  // namespace stoerung

// A full project on the disk that the list of a second user doesn't know.
struct Import : testing::Test {
    Import()
    {
        volles_projekt(p.g);
        schreiben(p.pfad("001.INI"),
                  "[VERFAHREN]\r\nName=Muster\r\nNummer=001\r\n[GRUNDEINSTELLUNGEN]\r\n"
                  "Arbeits-Verzeichnis=" +
                      p.g.Arbeitsverzeichnis + "\r\n");
        EXPECT_EQ(Verfahren_sichern(p.g), Fehler::keiner);
        p.g.Verfahren.leeren();
        p.g.Verfahrensname.clear();
    }
    void belegen(std::string_view nummer, std::string_view name, std::string_view pfad)
    {
        Verfahren_Satz v;
        v.Nummer = nummer, v.Name = name, v.Pfad = pfad, v.Modus = "1";
        ASSERT_TRUE(p.g.Verfahren.anfuegen(v));
    }
    Importdialog laden() { return import_laden(p.g, im_Verfahren(p.g, "001.INI")); }
    std::string status(const Importdialog& d, Importfeld feld)
    {
        const auto& u = d.urteil(importstelle(feld));
        return verkettet(utf8_aus_1252(u.status), u.gut ? " +" : " -", u.knopf ? " Knopf" : "");
    }
    Pruefstand p;
};

}  // namespace

TEST_F(Import, JedesFeldWirdBeurteilt)
{
    using enum Importfeld;
    belegen("003", "Vergeben", "Z:\\anderswo");
    Importdialog d = laden();
    EXPECT_EQ(d.statuswort, "1111111");
    const struct {
        Importfeld feld;
        std::string_view text, status;
    } faelle[] = {{name, "", "fehlt -"},
                  {name, "Vergeben", "bereits vergeben -"},
                  {nummer, "", "fehlt - Knopf"},
                  {nummer, "1", "fehlt - Knopf"},
                  {nummer, "003", "bereits vergeben - Knopf"},
                  {modus, "B", "OK +"},
                  {modus, "e", "ungültiger Wert -"},
                  {modus, "", "automatisch +"},
                  {verzeichnis, "", "fehlt - Knopf"},
                  {verzeichnis, "Z:\\anderswo", "veraltet - Knopf"},
                  {anlegedatum, "", "fehlt, aber OK + Knopf"},
                  {letztdatum, "31.02.2016", "ungültige Werte - Knopf"},
                  {letztdatum, "28.02.2016 10:00", "OK +"},
                  {versionsnummer, "1.1", "Verfahren neuer als Jorv+ - Knopf"},
                  {versionsnummer, "0,9", "veraltet, aber OK + Knopf"},
                  {versionsdatum, "02.12.2016", "Verfahren neuer als Jorv+ - Knopf"},
                  {versionsdatum, "Mai", "Versionsdatum? - Knopf"},
                  {versionsdatum, "", "Versionsdatum? - Knopf"},
                  {versionsnummer, "", "Werte fehlen, aber OK + Knopf"}};
    for (const auto& f : faelle) {
        import_setzen(p.g, d, f.feld, t1252(f.text));
        EXPECT_EQ(status(d, f.feld), f.status) << f.text;
    }
    EXPECT_EQ(d.wert(modus), "E");
    for (std::size_t i = 0; i < importstellen; ++i) import_knopf(p.g, d, static_cast<Importstelle>(i));
    EXPECT_EQ(d.statuswort, "0111111");  // a name can't be mended by a button
    EXPECT_EQ(d.wert(nummer) + d.wert(versionsnummer) + d.wert(letztdatum), "0011.001.12.2016 12:00:00");
    belegen("004", "Nachbar", p.g.Arbeitsverzeichnis + "\\");
    import_pruefen(p.g, d);
    EXPECT_EQ(status(d, verzeichnis), "bereits vergeben -");
}

TEST_F(Import, BatchWirdZeileFuerZeileUmgeschrieben)
{
    const Batchumschrift u = {"001",     "Muster",  t1252("C:\\alt\\grün"), "017", "Neu",
                              "D:\\neu", "D:\\exe", "01.12.2016 12:00:00"};
    const std::string alt =
        t1252("REM WaSoft- Auswertung von: Muster (001)\nREM am: 1.2.2003\r\npath %path%;C:\\EXE\r\nC:\r\n") +
        "cd \\alt\\gr\x81n\r\ncd \\alt\\fremd\r\nif exist 001.UTM del muster.utm\r\nwa2 5001.UTM +ACF001.ATX +C001.COO "
        "+FL5001.LIS 001.BAT";
    EXPECT_EQ(batch_umschreiben(alt, {u}),
              "REM WaSoft- Auswertung von: Muster (001)\r\nREM importiert als: Neu (017)\r\n"
              "REM am: 1.2.2003\r\nREM importiert am : 01.12.2016 12:00:00\r\npath %path%;D:\\exe\r\nD:\r\ncd \\neu\r\n"
              "cd \\alt\\fremd\r\nif exist 017.UTM del 017.utm\r\nwa2 5001.UTM +ACF017.ATX +C017.COO +FL5001.LIS "
              "001.BAT\r\n");
}

TEST_F(Import, ErhaeltDatenUnterNeuerNummer)
{
    belegen("001", "Anderes", "Z:\\anderswo");
    for (const auto name : {"001.COO", "Muster.KRZ", "001.ATX", "001.BAT"}) schreiben(p.pfad(name), "cd \\\r\n");
    Importdialog d = laden();
    EXPECT_EQ(d.statuswort, "1011111");
    import_knopf(p.g, d, Importstelle::nummer);
    ASSERT_TRUE(d.importierbar());
    const int stationen = p.g.OBS_S.anzahl(), rover = p.g.OBS_R.anzahl();
    EXPECT_EQ(cmd_import(p.g, d), Fehler::keiner) << p.schirm.einzige();
    EXPECT_TRUE(p.schirm.gezeigt.empty());
    for (const auto name : {"002.INI", "002.COO", "002.KRZ", "002.ATX", "002.BAT", "001.BAT", "Jorv.BAT"})
        EXPECT_TRUE(fs::exists(p.pfad(name))) << name;
    for (const auto name : {"001.INI", "001.COO", "Muster.KRZ", "001.ATX"})
        EXPECT_FALSE(fs::exists(p.pfad(name))) << name;
    EXPECT_TRUE(lesen(p.pfad("Jorv.BAT")).ends_with("\\002.BAT\"\r\n"));
    EXPECT_EQ(p.g.Verfahrensnummer + Titel(p.g).substr(0, 27), "002Verfahren -->Muster<--(002)");
    EXPECT_EQ(p.g.Verfahren.letztes().Antenne + Antennenformat(p.g), "AXTATX");
    EXPECT_EQ(p.g.OBS_S.anzahl(), stationen);
    EXPECT_EQ(p.g.OBS_R.anzahl(), rover);
    EXPECT_EQ(Profil(lesen(p.ordner.wurzel() / "einstellungen" / "JorvPlus.INI")).wert("VERFAHREN-Name", "002"),
              "Muster");

    // Baselines are not read yet, and a save doesn't lose them.
    EXPECT_EQ(p.g.BASISLINIE.anzahl(), 0);
    EXPECT_EQ(Verfahren_oeffnen(p.g, "Muster"), Fehler::keiner);
    EXPECT_GT(p.g.BASISLINIE.anzahl(), 0);
}

TEST_F(Import, HindernisseWerdenGemeldetUndUebergangen)
{
    belegen("001", "Anderes", "Z:\\anderswo");
    const std::string v = utf8_aus_1252(p.g.Arbeitsverzeichnis) + "\\", bat = "Die Batchdatei:\n" + v;
    for (const auto name : {"001.COO", "001.KRZ", "001.BAT"}) schreiben(p.pfad(name), "x");
    for (const auto name : {"002.COO", "002.BAT", "Jorv.BAT"}) fs::create_directories(p.pfad(name) / "voll");
    Importdialog d = laden();
    import_knopf(p.g, d, Importstelle::nummer);
    EXPECT_EQ(cmd_import(p.g, d), Fehler::keiner);
    EXPECT_THAT(p.schirm.texte(),
                testing::ElementsAre("Fehler beim COPY der Datei:\n" + v + "001.COO\n in die Datei:\n" + v + "002.COO",
                                     bat + "002.BAT\nkonnte nicht angelegt/überschrieben werden!",
                                     "Die Aufrufdatei:\n" + v +
                                         "Jorv.BAT\nder Batchdatei konnte nicht "
                                         "angelegt/überschrieben werden!"));
    EXPECT_TRUE(fs::exists(p.pfad("001.COO")));
}

TEST_F(Import, WiderspenstigeUndVerschwundeneDateien)
{
    belegen("001", "Anderes", "Z:\\anderswo");
    const std::string v = utf8_aus_1252(p.g.Arbeitsverzeichnis) + "\\";
    for (const auto name : {"001.KRZ", "001.BAT"}) schreiben(p.pfad(name), "x");
    static const Systemaufrufe gestoert = stoerung::aufrufe();
    p.g.dateien = Dateisystem(p.g.dateien.laufwerke(), gestoert);
    Importdialog d = laden();
    import_knopf(p.g, d, Importstelle::nummer);
    Importdialog ohne_datei = d;
    EXPECT_EQ(cmd_import(p.g, d), Fehler::keiner);
    fs::remove(p.pfad("001.KRZ"));
    p.g.Verfahren[2].Name = "anders", p.g.Verfahren[2].Pfad = "Z:\\x";
    import_setzen(p.g, ohne_datei, Importfeld::nummer, "003");
    fs::remove(p.ordner.wurzel() / "einstellungen" / "JorvPlus.INI");
    EXPECT_EQ(cmd_import(p.g, ohne_datei), Fehler::gesetzt);
    EXPECT_THAT(p.schirm.texte(), testing::ElementsAre("Fehler beim DELETE der Datei:\n" + v + "001.KRZ",
                                                       "Lesefehler in der Datei:\n" + v + "001.BAT\nin der Zeile: 1",
                                                       "Fehler beim COPY der Datei:\n" + v +
                                                           "001.INI\n in die Datei:\n" + v + "003.INI"));
    EXPECT_EQ(p.g.Verfahren.anzahl(), 2);
}

TEST_F(Import, UmbenannteDateiAelterenStandesErhaeltEinstellungen)
{
    Profil alt(lesen(p.pfad("001.INI")));
    for (const auto& n : alt.schluessel("ROVER-SETTINGS")) alt.entfernen("ROVER-SETTINGS", n);
    alt.entfernen("VERFAHREN", "Modus");
    schreiben(p.pfad("Altes Projekt.INI"), alt.text());
    fs::remove(p.pfad("001.INI"));
    schreiben(p.pfad(p.g.OBS_R[1].Dateiname), verkettet("    15.000", std::string(50, ' '), "INTERVAL\n"));
    auto d = m_datei_importieren(p.g, im_Verfahren(p.g, "Altes Projekt.INI"));
    ASSERT_TRUE(d && d->importierbar());
    import_setzen(p.g, *d, Importfeld::nummer, "002");
    fs::create_directory(p.pfad("001.BAT"));
    EXPECT_EQ(cmd_import(p.g, *d), Fehler::keiner);
    EXPECT_TRUE(p.schirm.einzige().ends_with("001.BAT\nkonnte nicht geöffnet werden!"));
    EXPECT_TRUE(fs::exists(p.pfad("002.INI")) && fs::exists(p.pfad("Altes Projekt.INI")));
    EXPECT_EQ(p.g.Verfahrensmodus, "1");
    ASSERT_EQ(p.g.ROVER_Settings.anzahl(), p.g.OBS_R.anzahl());
    EXPECT_EQ(p.g.ROVER_Settings[1].ROVER_Dateiname, p.g.OBS_R[1].Dateiname);
    EXPECT_EQ(p.g.ROVER_Settings[1].EpochRate, 15);
    EXPECT_EQ(p.g.ROVER_Settings[1].EndTime, p.g.OBS_R[1].Endzeit_GPS_Sekunde);
}

TEST_F(Import, EinInzwischenVergebenerNameHaeltDenImportAn)
{
    Importdialog d = laden();
    schreiben(p.ordner.wurzel() / "einstellungen" / "JorvPlus.INI", "[VERFAHREN-Name]\r\n005=Muster\r\n");
    const std::string vorher = lesen(p.pfad("001.INI"));
    EXPECT_EQ(cmd_import(p.g, d), Fehler::gesetzt);
    EXPECT_EQ(d.statuswort, "0111111");
    EXPECT_EQ(lesen(p.pfad("001.INI")), vorher);
}
