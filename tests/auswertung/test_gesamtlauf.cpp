// The whole-project way: its batch to the byte, its run, and the commands that show what came of it.
#include "auswertung/gesamtlauf.h"

#include <gtest/gtest.h>

#include <functional>

#include "auswertung/gesamt_batch.h"
#include "auswertung/protokolle.h"
#include "beispiel.h"

using namespace jorv;
using namespace jorv::hilfen;

namespace {

struct Gesamtstand : Beispiel {
    explicit Gesamtstand(std::string_view modus = "1")
        : Beispiel({"5501092a.05o", "5502092a.05o", "5503092.05o"}, modus)
    {
        verlegen("D:", "D:\\Projekte\\Muster");
        status(1, 3, 1);
        baum_aufbauen(g);
        umgebung.prozess = [this](const Dateisystem&, std::string_view zeile, const std::function<void()>&) {
            gestartet = zeile;
            if (kind) kind();
            return true;
        };
    }
    void status(std::uint8_t eins, std::uint8_t zwei, std::uint8_t drei)
    {
        g.ROVER_TOREL[1].Status = eins, g.ROVER_TOREL[2].Status = zwei, g.ROVER_TOREL[3].Status = drei;
    }
    void antennen_legen()
    {
        legen("001.ATX", "TRM22020.00+GP  NONE00220020                                TYPE / SERIAL NO    \r\n");
    }
    Fehler laufen(Fehler (*befehl)(Global&, const Lauf_Umgebung&))
    {
        antennen_legen();
        return befehl(g, umgebung);
    }

    Lauf_Umgebung umgebung;
    std::function<void()> kind;
    std::string gestartet;
};

struct Fall {
    const char* name;  // of the file with the right bytes, or of the message
    std::function<void(Gesamtstand&)> aendern;
};

TEST(GesamtBatch, schreibt_jede_zeile_auf_das_byte)
{
    const Fall tafel[] = {
        {"alle_einfach", [](Gesamtstand& s) { s.g.ROVER_Settings[1].Ein_Ausschalterkennung = 0; }},  // no matter here
        {"alle_fenster",
         [](Gesamtstand& s) {
             s.g.Zeitfenster_1h = "1";
             for (auto& rover : s.g.ROVER_TOREL) rover.Zeitfenster_Startzeit = " 81500 ";
             s.g.ROVER_TOREL[1].Zeitfenster_Endzeit = "91500";
             s.g.ROVER_TOREL[3].Zeitfenster_Endzeit = "100001";  // one second behind the stations' last epoch
         }},
        {"alle_l0", [](Gesamtstand& s) { s.g.Auswertemodus = "L0"; }},
        {"alle_utm_zone", [](Gesamtstand& s) { s.g.UTM_Zone = "32"; }},
        {"alle_unc", [](Gesamtstand& s) { s.verlegen("\\\\server\\freigabe", "\\\\server\\freigabe\\Muster"); }},
        {"alle_umlaute",
         [](Gesamtstand& s) {
             const std::string name = t1252("ö503092.05o");
             s.g.OBS_R[3].Dateiname = s.g.ROVER_TOREL[3].ROVER_Dateiname = name;
             s.g.ROVER_Settings[3].ROVER_Dateiname = name;
             s.g.Verfahrensname = s.g.Verfahren[1].Name = t1252("Büro Süd & Größe");
             s.g.EXE_Verzeichnis = t1252("C:\\Programme für Vermessung\\WaSoft");
             s.verlegen("D:", t1252("D:\\Übung Nr. 5\\Straße ä"));
         }},
        {"alle_apc",  // this way of working takes the old antenna files, and none of the rovers' settings
         [](Gesamtstand& s) {
             s.g.Verfahren[1].Antenne = "APC";
             const std::string antenne = "TRM22020.00+GP  NONE\r\n";
             s.legen("001.APC", verkettet("\n\n\n\n\n\n\n\n\n\n\n", antenne));
             s.legen("001.COO", std::string(41, ' ') + antenne);
             s.g.MARKER_Info = "L";
             s.g.ROVER_Settings[1].Elevation = 10;
             s.g.ROVER_Settings[1].Solution = 1;
         }},
        {"alle_rot", [](Gesamtstand& s) { s.status(2, 3, 0); }}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.name);
        Gesamtstand s("2");
        fall.aendern(s);
        s.antennen_legen();
        ASSERT_EQ(m_wasoft_erstellen(s.g), Fehler::keiner) << s.schirm.einzige();
        EXPECT_EQ(s.datei("001.BAT"), probe(std::string(fall.name) + ".BAT"));
    }
}

TEST(Gesamtlauf, fragt_vor_dem_ueberschreiben_und_startet_dann)
{
    for (const auto antwort : {Antwort::nein, Antwort::ja}) {
        Gesamtstand s;
        s.legen("001.BAT", "alt");
        if (antwort == Antwort::ja) s.schirm.antworten = {antwort};
        EXPECT_EQ(s.laufen(m_wasoft_run), antwort == Antwort::ja ? Fehler::keiner : Fehler::gesetzt);
        EXPECT_EQ(s.schirm.einzige(), "Die Batchdatei:\n" + s.pfad8("001.BAT") +
                                          "\nist ist bereits vorhanden!\n\nDie Datei überschreiben?");
        EXPECT_EQ(s.datei("001.BAT"), antwort == Antwort::ja ? probe("alle_einfach.BAT") : "alt");
        EXPECT_EQ(s.gestartet, antwort == Antwort::ja ? "\"D:\\Projekte\\Muster\\Jorv.BAT\"" : "");
    }
    Gesamtstand gesperrt;
    gesperrt.versperren("001.BAT");
    gesperrt.schirm.antworten = {Antwort::ja};
    EXPECT_EQ(gesperrt.laufen(m_wasoft_run), Fehler::gesetzt);
    EXPECT_EQ(gesperrt.schirm.texte().back(), "Die angegebene Batchdatei:\n" + gesperrt.pfad8("001.BAT") +
                                                  "\nkonnte nicht angelegt/überschrieben werden!");
    Gesamtstand fremd("3");
    EXPECT_EQ(fremd.laufen(m_wasoft_run), Fehler::gesetzt);
    EXPECT_EQ(fremd.schirm.einzige(), "Eine Batchdatei aller ROVER gibt es nur in den Modi E und S!");
}

TEST(Gesamtlauf, sagt_am_ende_was_fehlt)
{
    const std::string eins = "5501 FixedL1\r\n";
    const Fall tafel[] = {
        {"0 messages:",
         [&](Gesamtstand& s) {
             // A result of an earlier run goes with the folder that the batch removes.
             s.legen("jorv_out\\dat_rov\\5501092a.05o.UTM", "alt");
             baum_aufbauen(s.g);
             s.kind = [&] {
                 (void)s.g.dateien.ordner_loeschen(im_Verfahren(s.g, "jorv_out"));
                 s.legen("001.KRZ", eins + eins);
             };
         }},
        {"Achtung!\n\nFür diese Antennen wurde keine Kalibrierung gefunden. An ihren Punkten wurde ohne "
         "Antennenkorrektur gerechnet:\n\n\"7\" \"T\"\n   bei 5501092a.05o\n\n"
         "Unbedingt die Berechnungsprotokolle einsehen!",
         [&](Gesamtstand& s) {
             s.kind = [&] {
                 s.legen("001.KRZ", eins + eins);
                 s.legen("001.LIS", "WARNUNG: Antenne \"7\" \"T\" der Datei 5501092a.05o fehlt in 001.ATX: x\r\n");
             };
         }},
        {"Achtung!\n\nEs wurden 1 Punkte mit \"Float-Lösung\" berechnet.\n\nEs wurden nur 1 von 2 Punkte berechnet.\n\n"
         "Unbedingt die Kurzprotokolldatei einsehen!",
         [](Gesamtstand& s) { s.kind = [&] { s.legen("001.KRZ", "5501 FloatDGNSS\r\n"); }; }},
        {"Achtung!\n\nEs kam zu Fehlern bei der Ausführung der WaSoft.\n\nUnbedingt Fehlerprotokoll einsehen!",
         [](Gesamtstand& s) { s.kind = [&] { s.legen("001.ERR", "Fehler\r\n"); }; }},
        {"Es kann keine ROVER-Datei ausgewertet werden!", [](Gesamtstand& s) { s.status(2, 3, 2); }},
        {"Es sind keine ROVER-Dateien im aktuellen Verfahren vorhanden!", [](Gesamtstand& s) { s.g.OBS_R.leeren(); }},
        {"Eine Batchdatei für das Verfahren existiert noch nicht!",
         [](Gesamtstand& s) { (void)s.g.dateien.loeschen(im_Verfahren(s.g, "001.BAT")); }}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.name);
        Gesamtstand s;
        s.legen("001.BAT", "x");
        s.legen("Jorv.BAT", "WATIME");  // the call file of another command
        fall.aendern(s);
        (void)s.laufen(m_wasoft_batch);
        EXPECT_EQ(s.schirm.einzige(), fall.name);
        EXPECT_EQ(s.datei("Jorv.BAT"), s.hat("001.BAT") ? probe("aufruf.BAT") : "WATIME");
        EXPECT_EQ(s.gestartet.empty(), !s.hat("001.BAT"));
    }
}

TEST(Protokolle, jeder_befehl_oeffnet_seine_datei_oder_sagt_dass_es_sie_nicht_gibt)
{
    struct {
        const char* befehl;
        const char* modus;
        const char* datei;
        const char* fehlt;  // "": the path is named
    } const tafel[] = {
        {"m_protkoll_einsehen", "1", "001.LIS", "Es existiert noch keine Protokolldatei!"},
        {"m_protkoll_einsehen", "4", "jorv_out\\lis_bas\\001.LIS", "Es existiert noch keine Protokolldatei!"},
        {"m_protkoll_kurz", "4", "001.KRZ", "Es existiert noch keine Kurzprotokolldatei!"},
        {"m_protkoll_kurz_aller", "3", "001.ALL", "Es existiert noch keine Kurzprotokolldatei für alle ROVER!"},
        {"m_protkoll_fehler", "1", "001.ERR", ""},
        {"mnu_tree_dat_editieren", "1", "jorv_out\\dat_rov\\5501092a.05o.UTM", ""}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.befehl);
        Beispiel b({}, fall.modus);
        const auto befehl = [&] { return protokoll_oeffnen(b.g, fall.befehl, "5501092a.05o"); };
        const std::string fehlt = fall.fehlt, pfad = b.pfad8(fall.datei);
        EXPECT_EQ(befehl(), Fehler::gesetzt);
        b.legen(fall.datei, "x");
        EXPECT_EQ(befehl(), Fehler::keiner);
        b.schirm.editor_startet = false;
        EXPECT_EQ(befehl(), Fehler::gesetzt);
        EXPECT_EQ(b.schirm.texte(),
                  (std::vector<std::string>{
                      fehlt.empty() ? "Es existiert noch keine Datei: " + pfad : fehlt,
                      "FEHLER !!!\nDie Datei: \"" + pfad + "\" konnte nicht in den Editor geladen werden!"}));
        EXPECT_EQ(b.schirm.geoeffnet.front(), im_Verfahren(b.g, fall.datei));
    }
}

}  // namespace
