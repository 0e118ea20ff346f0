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

const std::string ueberschreiben = "\nist ist bereits vorhanden!\n\nDie Datei überschreiben?";

struct Gesamtstand : Beispiel {
    explicit Gesamtstand(std::string_view modus = "1")
        : Beispiel({"5501092a.05o", "5502092a.05o", "5503092.05o"}, modus)
    {
        verlegen("D:", "D:\\Projekte\\Muster");
        g.ROVER_TOREL[2].Status = 3;
        baum_aufbauen(g);
        antennen_legen();
        umgebung.prozess = [this](const Dateisystem&, std::string_view zeile, const std::function<void()>&) {
            gestartet.emplace_back(zeile);
            if (kind) kind();
            return true;
        };
    }
    void antennen_legen()
    {
        legen("001.ATX", "TRM22020.00+GP  NONE00220020                                TYPE / SERIAL NO    \r\n");
    }
    void zeilen(const std::string& loesungen)
    {
        std::string text;
        for (const char art : loesungen) text += art == 'f' ? "5501 FloatDGNSS\r\n" : "5501 FixedL1\r\n";
        legen("001.KRZ", text);
    }

    Lauf_Umgebung umgebung;
    std::function<void()> kind;
    std::vector<std::string> gestartet;
};

TEST(GesamtBatch, schreibt_jede_zeile_auf_das_byte)
{
    struct {
        const char* probe;
        std::function<void(Gesamtstand&)> aendern;
    } const tafel[] = {
        {"alle_einfach", [](Gesamtstand& s) { s.g.Zeitfenster_1h = "1", s.g.OBS_S[3].Dateiname = "anders"; }},
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
        {"alle_rot",
         [](Gesamtstand& s) {
             for (auto& rover : s.g.ROVER_TOREL) rover.Status = 2;
         }},
        {"alle_einfach", [](Gesamtstand& s) { s.g.ROVER_Settings[1].Ein_Ausschalterkennung = 0; }}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.probe);
        Gesamtstand s("2");
        fall.aendern(s);
        s.antennen_legen();
        ASSERT_EQ(m_wasoft_erstellen(s.g), Fehler::keiner) << s.schirm.einzige();
        EXPECT_EQ(s.datei("001.BAT"), probe(std::string(fall.probe) + ".BAT"));
        EXPECT_TRUE(s.hat("Jorv.BAT"));
    }
}

TEST(GesamtBatch, fragt_vor_dem_ueberschreiben_und_sagt_was_nicht_geht)
{
    Gesamtstand s;
    s.legen("001.BAT", "alt");
    EXPECT_EQ(m_wasoft_run(s.g, s.umgebung), Fehler::gesetzt);  // "no" is the default, and ends the run too
    EXPECT_EQ(s.schirm.einzige(), "Die Batchdatei:\n" + s.pfad8("001.BAT") + ueberschreiben);
    EXPECT_EQ(s.datei("001.BAT"), "alt");
    EXPECT_TRUE(s.gestartet.empty());
    s.schirm.antworten = {Antwort::ja};
    EXPECT_EQ(m_wasoft_erstellen(s.g), Fehler::keiner);
    EXPECT_EQ(s.datei("001.BAT"), probe("alle_einfach.BAT"));

    Gesamtstand gesperrt;
    gesperrt.versperren("001.BAT");
    gesperrt.schirm.antworten = {Antwort::ja};
    EXPECT_EQ(m_wasoft_erstellen(gesperrt.g), Fehler::gesetzt);
    EXPECT_EQ(gesperrt.schirm.texte().back(), "Die angegebene Batchdatei:\n" + gesperrt.pfad8("001.BAT") +
                                                  "\nkonnte nicht angelegt/überschrieben werden!");
    Gesamtstand fremd("3");
    EXPECT_EQ(m_wasoft_erstellen(fremd.g), Fehler::gesetzt);
    EXPECT_FALSE(fremd.hat("001.BAT"));
}

TEST(Gesamtlauf, startet_den_batch_und_sagt_am_ende_was_fehlt)
{
    const std::string achtung = "Achtung!\n\n", schluss = "Unbedingt die Kurzprotokolldatei einsehen!";
    struct {
        const char* loesungen;
        std::string text;
    } const tafel[] = {{"ll", ""},
                       {"l", achtung + "Es wurden nur 1 von 2 Punkte berechnet.\n\n" + schluss},
                       {"lf", achtung + "Es wurden 1 Punkte mit \"Float-Lösung\" berechnet.\n\n" + schluss}};
    for (const auto& fall : tafel) {
        Gesamtstand s;
        // Results of an earlier run go with the folder that the batch removes.
        s.legen("jorv_out\\dat_rov\\5501092a.05o.UTM", "alt");
        baum_aufbauen(s.g);
        s.kind = [&] {
            (void)s.g.dateien.ordner_loeschen(im_Verfahren(s.g, "jorv_out"));
            s.zeilen(fall.loesungen);
        };
        EXPECT_EQ(m_wasoft_run(s.g, s.umgebung), Fehler::keiner);
        EXPECT_EQ(s.gestartet, std::vector<std::string>{"\"D:\\Projekte\\Muster\\Jorv.BAT\""});
        EXPECT_EQ(s.schirm.gezeigt.empty() ? "" : s.schirm.einzige(), fall.text);
        EXPECT_NE(s.datei("001.KRZ").find("Anzahl Berechnungen:2\r\n"), std::string::npos);
        EXPECT_TRUE(s.g.baum.finden("E_Datei")->Kinder.empty());
    }
}

TEST(Gesamtlauf, endet_wo_etwas_fehlt)
{
    struct {
        std::function<void(Gesamtstand&)> vorher;
        const char* text;
        Symbol symbol;
        std::size_t gestartet;
    } const tafel[] = {
        {[](Gesamtstand&) {}, "Eine Batchdatei für das Verfahren existiert noch nicht!", Symbol::warnung, 0},
        {[](Gesamtstand& s) {
             s.legen("001.BAT", "x");
             s.legen("Jorv.BAT", "WATIME");  // the call file of another command
             s.kind = [&s] { s.legen("001.ERR", "Fehler\r\n"); };
         },
         "Achtung!\n\nEs kam zu Fehlern bei der Ausführung der WaSoft.\n\nUnbedingt Fehlerprotokoll einsehen!",
         Symbol::stop, 1},
        {[](Gesamtstand& s) {
             s.legen("001.BAT", "x");
             for (auto& rover : s.g.ROVER_TOREL) rover.Status = 2;
         },
         "Es kann keine ROVER-Datei ausgewertet werden!", Symbol::info, 1},
        {[](Gesamtstand& s) {
             s.legen("001.BAT", "x");
             s.g.OBS_R.leeren();
         },
         "Es sind keine ROVER-Dateien im aktuellen Verfahren vorhanden!", Symbol::info, 1}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.text);
        Gesamtstand s;
        fall.vorher(s);
        EXPECT_EQ(m_wasoft_batch(s.g, s.umgebung), Fehler::gesetzt);
        EXPECT_EQ(s.schirm.einzige(), fall.text);
        EXPECT_EQ(s.schirm.gezeigt[0].symbol, fall.symbol);
        EXPECT_EQ(s.gestartet.size(), fall.gestartet);
        EXPECT_EQ(s.datei("Jorv.BAT"), fall.gestartet > 0 ? probe("aufruf.BAT") : "(keine)");
    }
}

TEST(Protokolle, jeder_befehl_oeffnet_seine_datei_oder_sagt_dass_es_sie_nicht_gibt)
{
    struct {
        const char* befehl;
        const char* modus;
        const char* datei;
        const char* fehlt;  // nullptr: the path is named
    } const tafel[] = {
        {"m_protkoll_einsehen", "1", "001.LIS", "Es existiert noch keine Protokolldatei!"},
        {"m_protkoll_einsehen", "4", "jorv_out\\lis_bas\\001.LIS", "Es existiert noch keine Protokolldatei!"},
        {"m_protkoll_kurz", "1", "001.KRZ", "Es existiert noch keine Kurzprotokolldatei!"},
        {"m_protkoll_kurz_aller", "3", "001.ALL", "Es existiert noch keine Kurzprotokolldatei für alle ROVER!"},
        {"m_protkoll_fehler", "1", "001.ERR", nullptr},
        {"mnu_tree_dat_editieren", "1", "jorv_out\\dat_rov\\5501092a.05o.UTM", nullptr},
        {"mnu_tree_vrs_report_editieren", "1", "jorv_out\\prot_vrs\\5501092a.VRT", nullptr},
        {"mnu_tree_editieren", "3", "5501092a.05o", nullptr}};
    for (const auto& fall : tafel) {
        SCOPED_TRACE(fall.datei);
        Beispiel b({}, fall.modus);
        EXPECT_EQ(protokoll_oeffnen(b.g, fall.befehl, "5501092a.05o"), Fehler::gesetzt);
        EXPECT_EQ(b.schirm.einzige(),
                  fall.fehlt ? fall.fehlt : "Es existiert noch keine Datei: " + b.pfad8(fall.datei));
        EXPECT_EQ(b.schirm.gezeigt[0].symbol, Symbol::info);
        b.legen(fall.datei, "x");
        EXPECT_EQ(protokoll_oeffnen(b.g, fall.befehl, "5501092a.05o"), Fehler::keiner);
        EXPECT_EQ(b.schirm.geoeffnet, std::vector<std::string>{im_Verfahren(b.g, fall.datei)});
    }
}

TEST(Protokolle, ein_editor_der_nicht_startet_wird_gemeldet)
{
    Beispiel b;
    b.legen("001.KRZ", "x");
    b.schirm.editor_startet = false;
    EXPECT_EQ(datei_editieren(b.g, im_Verfahren(b.g, "001.KRZ")), Fehler::gesetzt);
    EXPECT_EQ(b.schirm.einzige(),
              "FEHLER !!!\nDie Datei: \"" + b.pfad8("001.KRZ") + "\" konnte nicht in den Editor geladen werden!");
    EXPECT_EQ(b.schirm.gezeigt[0].symbol, Symbol::stop);
}

}  // namespace
